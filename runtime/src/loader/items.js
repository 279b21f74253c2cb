// SPDX-License-Identifier: MIT
// ---- A menu's box and its items ----

// Read in another document: as HTML in an XML page too, and before anything is fetched.
var workshop;
function parse(menu, html) {
    var text = html.replace(/&nbsp;/g, '\xa0');
    if (!/[<&]/.test(text)) return document.createTextNode(text);
    if (!workshop) workshop = document.implementation.createHTMLDocument('').createElement('template');
    workshop.innerHTML = policy.createHTML(html);
    resolveAll(menu, 'src');
    resolveAll(menu, 'href');
    return document.importNode(workshop.content, true);
}

function resolveAll(menu, name) {
    var linked = workshop.content.querySelectorAll('[' + name + ']'), i, url;
    for (i = 0; i < linked.length; i++) {
        url = resolve(menu, linked[i].getAttribute(name));
        linked[i].setAttribute(name, policy.createScriptURL(url));
    }
}

function wordsOf(node) {
    var words = node.nodeType == 3 ? node.data : node.alt || '', child;
    for (child = node.firstChild; child; child = child.nextSibling) words += wordsOf(child);
    return words;
}

function nameOf(menu, item) {
    return item.imageOut ? nameFromFiles(item) : wordsOf(parse(menu, item.caption));
}

function addPicture(link, className, url) {
    var picture = append(link, 'img', className);
    picture.alt = link.zevName;
    picture.src = url;
}

function addItemTo(box, menu, position, settings) {
    var item = menu.zevItems[position - 1], before = settings.htmlBefore, after = settings.htmlAfter;
    var link = append(append(box, 'li'), 'a', item.imageOut && 'rollover');
    // A script runs in this page; the menu's frame is for its pages.
    var target = item.target || (/^ *javascript:/i.test(item.url) ? '' : settings.target);
    link.zevSubmenu = submenuId(menu, position);
    if (item.url) link.setAttribute('href', resolve(menu, item.url));
    if (item.url && target) link.setAttribute('target', target);
    if (item.imageOut) {
        link.zevName = nameFromFiles(item);
        addPicture(link, 'out', resolve(menu, item.imageOut));
        addPicture(link, 'over', resolve(menu, item.imageOver));
    } else {
        link.appendChild(parse(menu, item.caption));
        link.zevName = wordsOf(link);
        if (!/\S/.test(link.textContent)) link.className = 'picture';
        // What stands around the caption is no part of the name.
        if (before || after) link.setAttribute('aria-label', link.zevName);
        link.insertBefore(parse(menu, before), link.firstChild);
        link.appendChild(parse(menu, after));
    }
    link.zevItem = item;
    addMark(link, menu);
}

// A picture has none.
function addMark(link, menu) {
    var html = setting(state.menus['0'], 'marker'), submenu = submenuOf(link);
    if (!submenu || html == 'none' || link.className || link.zevIsMarked) return;
    link.zevIsMarked = true;
    if (html) {
        link.insertBefore(addOrnament(link, 'mark', menu, html), link.firstChild);
    } else {
        link.setAttribute('data-side', wishedSide(submenu));
    }
}

// No part of a name.
function addOrnament(parent, className, menu, html) {
    var ornament = append(parent, 'span', className);
    ornament.setAttribute('aria-hidden', 'true');
    ornament.appendChild(parse(menu, html));
    return ornament;
}

function styleBox(box, menu, settings) {
    var style = box.style, image = settings.bgimage, isPadded = typeof settings.cellpadding == 'number', name, row;
    for (name in properties) {
        row = properties[name];
        if (row[2]) style.setProperty(row[2], settings[name] + (row[3] || ''));
    }
    style.setProperty('--zev-row', isPadded ? '0px' : '24px');
    if (settings.menuborder) style.outline = 'none';
    if (image) style.backgroundImage = 'url("' + resolve(menu, image).replace(/["\\]/g, '\\$&') + '")';
    if (box.className == 'grid') style.gridTemplateColumns = 'repeat(' + settings.columns + ',auto)';
}

function buildBox(menu) {
    var box = document.createElement('ul'), settings = {}, count = 0, name, i;
    for (name in properties) settings[name] = setting(menu, name);
    var columns = settings.columns, hasDivider = settings.hspacing && !/^(&nbsp;)?$/.test(settings.divider);
    for (i = 1; i <= menu.zevItems.length; i++) {
        if (menu.zevItems[i - 1]) {
            if (hasDivider && count && (columns == 1 || count % columns)) {
                addOrnament(box.lastChild, 'divider', menu, settings.divider);
            }
            addItemTo(box, menu, i, settings);
            count++;
        }
    }
    box.className = columns == 1 ? 'list' : columns >= count ? 'bar' : 'grid';
    styleBox(box, menu, settings);
    // A divider fills the space itself.
    if (hasDivider) box.style[columns == 1 ? 'rowGap' : 'columnGap'] = 0;
    box.zevMenu = menu;
    return box;
}

// Stands for the top menu in a narrow window, and looks like one of its items.
function addFold(menu) {
    var width = setting(menu, 'fold'), label = setting(menu, 'label'), looks = Object.create(menu), box;
    if (!width) return;
    looks.zevItems = [{ caption: label.replace(/&/g, '&amp;').replace(/</g, '&lt;'), url: '', target: '' }];
    box = state.bar.shadowRoot.lastChild.appendChild(buildBox(looks));
    box.className = 'fold';
    box.zevMenu = null;
    state.foldLink = box.querySelector('a');
    state.foldLink.zevSubmenu = '0';
    addMark(state.foldLink, menu);
    state.foldLink.onclick = function () { state.isFoldAsked = !state.isFoldAsked; };
    // A window may be a fraction of a pixel wider than a whole number.
    state.fold = matchMedia('(max-width:' + (width - 0.02) + 'px)');
    if (state.fold.matches) state.bar.setAttribute('data-folded', '');
}
