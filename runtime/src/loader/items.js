// SPDX-License-Identifier: MIT
// ---- A menu's box and its items ----

// Read in another document: as HTML in an XML page too, and before anything is fetched.
var template;
function parse(menu, html) {
    var text = html.replace(/&nbsp;/g, '\xa0');
    if (!/[<&]/.test(text)) return document.createTextNode(text);
    if (!template) template = document.implementation.createHTMLDocument('').createElement('template');
    template.innerHTML = policy.createHTML(html);
    resolveAll(menu, 'src');
    resolveAll(menu, 'href');
    return document.importNode(template.content, true);
}

function resolveAll(menu, name) {
    var linked = template.content.querySelectorAll('[' + name + ']'), i, url;
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

shared.nameOf = function (menu, item) {
    return item.over
        ? nameFromFile(item.url) || nameFromFile(item.caption).replace(/ (out|off|normal)$/i, '')
        : wordsOf(parse(menu, item.caption));
};

function addPicture(link, className, item, url) {
    var image = append(link, 'img', className);
    image.alt = item.name;
    image.src = url;
}

function addItemTo(box, menu, item, settings) {
    var link = append(append(box, 'li'), 'a', item.over && 'rollover');
    // A script runs in this page; the menu's frame is for its pages.
    var target = item.target || (/^ *javascript:/i.test(item.url) ? '' : settings.target);
    if (item.url) {
        link.href = resolve(menu, item.url);
        if (target) link.target = target;
    }
    if (item.over) {
        item.name = shared.nameOf(menu, item);
        addPicture(link, 'out', item, resolve(menu, item.caption));
        addPicture(link, 'over', item, resolve(menu, item.over));
    } else {
        link.append(parse(menu, item.caption));
        item.name = wordsOf(link);
        if (!/\S/.test(link.textContent)) link.className = 'picture';
        // What stands around the caption is no part of the name.
        link.setAttribute('aria-label', item.name);
        link.prepend(parse(menu, settings.htmlBefore));
        link.append(parse(menu, settings.htmlAfter));
    }
    link.zevItem = item;
    shared.addMark(link, menu);
}

// A picture has none.
shared.addMark = function (link, menu) {
    var html = setting(state.menus['0'], 'marker'), submenu = shared.submenuOf(link);
    if (!submenu || html == 'none' || link.className || link.zevIsMarked) return;
    link.zevIsMarked = true;
    if (html) link.prepend(addSpan(link, 'mark', menu, html));
    else link.setAttribute('data-side', shared.wishOf(submenu));
};

// No part of a name.
function addSpan(parent, className, menu, html) {
    var span = append(parent, 'span', className);
    span.setAttribute('aria-hidden', 'true');
    span.append(parse(menu, html));
    return span;
}

function styleBox(box, menu, settings) {
    var style = box.style, image = settings.bgimage, name, row;
    for (name in table) {
        row = table[name];
        if (row[1]) style.setProperty(row[1], settings[name] + (row[3] || ''));
    }
    style.setProperty('--zev-row', typeof settings.cellpadding == 'number' ? 0 : '24px');
    if (settings.menuborder) style.outline = 'none';
    if (image) style.backgroundImage = 'url("' + resolve(menu, image).replace(/["\\]/g, '\\$&') + '")';
    if (box.className == 'grid') style.gridTemplateColumns = 'repeat(' + settings.columns + ',auto)';
}

function buildBox(menu) {
    var box = document.createElement('ul'), settings = {}, items = menu.zevItems, i = 0, name;
    for (name in table) settings[name] = setting(menu, name);
    var columns = settings.columns, hasDivider = settings.hspacing && !/^(&nbsp;)?$/.test(settings.divider);
    for (; i < items.length; i++) {
        if (hasDivider && i && (columns == 1 || i % columns)) {
            addSpan(box.lastChild, 'divider', menu, settings.divider);
        }
        addItemTo(box, menu, items[i], settings);
    }
    box.className = columns == 1 ? 'list' : columns >= i ? 'bar' : 'grid';
    styleBox(box, menu, settings);
    // A divider fills the space itself.
    if (hasDivider) box.style[columns == 1 ? 'rowGap' : 'columnGap'] = 0;
    box.zevMenu = menu;
    return box;
}

// Stands for the top menu in a narrow window, and looks like one of its items.
function addFold(home, menu) {
    var width = setting(menu, 'fold'), label = setting(menu, 'label'), looks = Object.create(menu), box;
    if (!width) return;
    // The label is text, a caption is HTML.
    looks.zevItems = [{ caption: new Option(label).innerHTML, id: '0' }];
    box = home.appendChild(buildBox(looks));
    box.className = 'fold';
    box.zevMenu = null;
    state.foldLink = box.querySelector('a');
    state.foldLink.onclick = function () { state.isAsked = true; };
    // A window may be a fraction of a pixel wider than a whole number.
    state.fold = matchMedia('(max-width:' + (width - 0.02) + 'px)');
    box.hidden = !state.fold.matches;
}
