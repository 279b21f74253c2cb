// Takes a menu definition and draws its top menu. Keeps to JavaScript 1.2 (no try, no ===), because
// every browser ever made may meet it.
if (!window.ZEVMenu) (function () {

// All that changes while the library is at work.
function emptyState() {
    return {
        menus: {},          // by id
        told: {},           // warnings given
        renderer: null,     // script element
        isRemoved: false,   // by destroy(), and no menu defined since
        drawing: 0,         // timer of drawTop
        bar: null,          // the page's element around the top menu
        barBox: null,       // the top menu
        layer: null,        // the page's element around the submenus
        levels: [],         // open submenus, the deepest last
        ahead: [],          // menus still to be built
        building: 0,        // timer or idle callback of the next of them
        earlyCall: null,    // a ZEVMenuOpen that came too early
        actingLink: null,   // the pop-up link that a key or tap is to open
        over: null,         // { box, link } under the mouse
        lastPoint: null,    // { x, y } of the mouse
        crossing: null,     // { from, timer } of a mouse on its way to a submenu
        press: {},          // the last pointerdown on a link, until the click
        typed: { text: '', time: 0 }    // the last letters
    };
}

var state = emptyState();
var shared = {
    state: state, destroy: destroy, warn: warn, setting: setting, submenuId: submenuId,
    createHost: createHost, buildBox: buildBox, nameOf: nameOf, nameFromFiles: nameFromFiles
};

var isModern = document.getElementById && document.documentElement.attachShadow;

function warn(text) {
    if (!state.told[text] && window.console && console.warn) console.warn('ZEVMenu: ' + text);
    state.told[text] = true;
}

// ---- Checks: the value to use, or null ----

function asText(value) {
    return typeof value == 'string' || typeof value == 'number' ? '' + value : null;
}

function asNumber(least, most, isWhole) {
    return function (value) {
        var n = /\d/.test(asText(value)) ? value - 0 : null;
        return n != null && n >= least && n <= most && !(isWhole && n % 1) ? n : null;
    };
}

function asSide(value) {
    return /^(right|bottom|left|top)$/.test(asText(value)) ? value : null;
}

// Words such as "inherit" are valid CSS, but would let the page's style into the menu.
function asCss(property) {
    return function (value) {
        value = asText(value);
        if (value == 'none' && /^font/.test(property)) value = 'normal';
        return value != null && CSS.supports(property, value) &&
            !/var\(|env\(|^ *(inherit|initial|unset|revert|revert-layer) *$/i.test(value) ? value : null;
    };
}

// ---- Properties: check, factory value, style of the box, unit ----

var properties = {
    columns: [asNumber(1, 1e6, true), 1],
    bgimage: [asText, ''],
    nbgcolor: [asCss('color'), '#000000', '--zev-nbg'],
    nftcolor: [asCss('color'), '#FFFFFF', '--zev-nft'],
    hbgcolor: [asCss('color'), '#888888', '--zev-hbg'],
    hftcolor: [asCss('color'), '#000000', '--zev-hft'],
    hspacing: [asNumber(0, 1e4), 0, '--zev-space', 'px'],
    divider: [asText, '&nbsp;'],
    htmlBefore: [asText, '&nbsp;&nbsp;'],
    htmlAfter: [asText, '&nbsp;&nbsp;'],
    itemborder: [asCss('border'), '0', '--zev-border'],
    menuborder: [asCss('border'), '', 'border'],
    cellpadding: [asNumber(0, 1e4), 1, '--zev-padding', 'px'],
    target: [asText, ''],
    fontFamily: [asCss('font-family'), 'Arial', 'font-family'],
    fontSize: [asCss('font-size'), '10pt', 'font-size'],
    fontStyle: [asCss('font-style'), 'normal', 'font-style'],
    fontWeight: [asCss('font-weight'), 'normal', 'font-weight'],
    position: [asSide, 'right'],
    menuoffset: [asNumber(-1e4, 1e4), 1],               // pixels
    closedelay: [asNumber(0, 1e9), 500],                // milliseconds
    ffade: [asNumber(0, 5), 0],                         // seconds
    fopacity: [asNumber(1, 100), 100, 'opacity', '%'],
    fshadow: [asCss('color'), 'transparent', '--zev-shadow']
};

// Empty means "not set", but "nothing" where it is HTML.
function ownSetting(owner, name) {
    var value = owner ? owner[name] : null;
    if (value == null || (asText(value) == '' && !/^(html|divider)/.test(name))) return null;
    value = properties[name][0](value);
    if (value == null) {
        warn((owner.zevId ? 'menu ' + owner.zevId : 'zev_state') + ': the value of ' + name +
            ' makes no sense');
    }
    return value;
}

// The menu's own value, else the other menu's, else everybody's.
function setting(menu, name, other) {
    var value = ownSetting(menu, name);
    if (value == null) value = ownSetting(other, name);
    if (value == null) value = ownSetting(window.zev_state, name);
    return value == null ? properties[name][1] : value;
}

// ---- Definition ----

function submenuId(menu, position) {
    return (menu.zevId == '0' ? '' : menu.zevId + 'i') + position;
}

function ZEVMenu(id) {
    var script = document.currentScript;
    this.zevId = asText(id) || '';
    this.zevItems = [];         // null where a mistaken item keeps its number
    this.zevFile = script && /^[a-z][a-z0-9+.\-]*:\/\//i.test(script.src) ? script.src : '';
    if (!/^(0|[1-9]\d*(i[1-9]\d*)*)$/.test(this.zevId)) {
        warn('"' + this.zevId + '" is not a menu id');
    } else if (state.menus[this.zevId]) {
        warn('menu ' + this.zevId + ' is defined twice; the first is used');
    } else {
        state.menus[this.zevId] = this;
        // ZEVDisplayMenu may have been called first.
        if (state.bar && this.zevId == '0') state.drawing = setTimeout(drawTop, 0);
        if (state.isRemoved && shared.serve) shared.serve(true);
        state.isRemoved = false;
    }
}

function addItem(menu, isGood, item) {
    var position = menu.zevItems.length + 1;
    if (!isGood) warn('item ' + position + ' of menu ' + menu.zevId + ' is mistaken');
    menu.zevItems[position - 1] = isGood ? item : null;
}

ZEVMenu.prototype.AddItem = function (caption, url, target) {
    caption = asText(caption);
    addItem(this, caption != null,
        { caption: caption, url: asText(url) || '', target: asText(target) || '' });
};

ZEVMenu.prototype.AddRollover = function (url, imageOut, imageOver, target) {
    var out = asText(imageOut), over = asText(imageOver) || out;
    addItem(this, out,
        { url: asText(url) || '', imageOut: out, imageOver: over, target: asText(target) || '' });
};

var noMenu = { AddItem: warnOfItem, AddRollover: warnOfItem };
function warnOfItem() {
    warn('an item stands before any menu');
}

// URL() throws at some hosts, which follow two slashes.
function resolve(menu, url) {
    url = url.replace(/^[\x00- ]+|[\x00-\x1f]/g, '');
    return !menu.zevFile || url == '' || /^([#?]|[\\\/][\\\/]|[a-z][a-z0-9+.\-]*:)/i.test(url) ? url
        : new URL(url, menu.zevFile).href;
}

// "pages/our_team.html" is "our team".
function nameFromFiles(item) {
    return nameFromFile(item.url) || nameFromFile(item.imageOut);
}

function nameFromFile(url) {
    return url.replace(/^javascript:.*|[?].*$/i, '').replace(/^.*#(.)/, '$1').replace(/[#\/]+$/, '')
        .replace(/^.*\//, '').replace(/\.[a-z0-9]+$/i, '').replace(/(%20|[_+\-])+/g, ' ');
}

// ---- Elements ----

var styleText = [
    // Inline boxes do not take part in the page's underlining.
    ':host{all:initial!important;display:block!important;width:fit-content!important;',
    'max-width:100%!important;line-height:0!important}',
    ':host([data-zev=layer]){position:absolute!important;left:0!important;top:0!important;',
    'width:100px!important;max-width:none!important;z-index:2147483647!important}',
    'ul{display:inline-flex;vertical-align:top;line-height:normal;box-sizing:border-box;margin:0;padding:0;width:max-content;max-width:100%;',
    'gap:var(--zev-space);box-shadow:3px 3px 6px var(--zev-shadow)}',
    'ul.list,ul.list>li{flex-direction:column}',
    'ul.bar{flex-wrap:wrap}',
    'ul.grid{display:inline-grid}',
    'ul[role=menu]{position:absolute;overscroll-behavior:contain}',
    'ul[hidden]{display:none}',
    'li{display:flex;min-width:0}',
    'a{box-sizing:border-box;flex:auto;min-width:0;overflow-wrap:break-word;cursor:pointer;',
    'padding:var(--zev-padding);border:var(--zev-border);background:var(--zev-nbg);',
    'color:var(--zev-nft);text-decoration:none}',
    'a:is(:hover,:focus,[aria-expanded=true]){background:var(--zev-hbg);color:var(--zev-hft)}',
    'a:focus-visible{outline:2px solid;outline-offset:-2px}',
    // Both pictures share one cell, so that nothing moves.
    'a.rollover{display:grid;justify-content:start}',
    'a.rollover>img{grid-area:1/1}',
    'img.over,a:is(:hover,:focus,[aria-expanded=true])>img.out{visibility:hidden}',
    'a:is(:hover,:focus,[aria-expanded=true])>img.over{visibility:visible}',
    'span.divider{flex:none;min-width:var(--zev-space);min-height:var(--zev-space);',
    'text-align:center;align-self:center;color:var(--zev-nft)}',
    'ul.list>li>span.divider{align-self:stretch}',
    '@media(forced-colors:active){a:is(:hover,[aria-expanded=true]){outline:2px solid;',
    'outline-offset:-2px}}',
    '@media print{ul[role=menu]{display:none}}'
].join('');

// Firefox until 100 and Safari until 16.3 cannot construct style sheets.
var sheet;
function addStyle(root) {
    if (CSSStyleSheet.prototype.replaceSync && document.adoptedStyleSheets) {
        if (!sheet) {
            sheet = new CSSStyleSheet();
            sheet.replaceSync(styleText);
        }
        root.adoptedStyleSheets = [sheet];
    } else {
        append(root, 'style').textContent = styleText;
    }
}

function append(parent, name, className) {
    var element = document.createElement(name);
    if (className) element.className = className;
    return parent.appendChild(element);
}

function createHost(kind) {
    var host = document.createElement('div');
    host.setAttribute('data-zev', kind);
    addStyle(host.attachShadow({ mode: 'open' }));
    return host;
}

// Read in another document: as HTML in an XML page too, and before anything is fetched.
var workshop;
function parse(menu, html) {
    var text = html.replace(/&nbsp;/g, '\xa0'), names = ['src', 'href'], linked, i, k, value;
    if (!/[<&]/.test(text)) return document.createTextNode(text);
    if (!workshop) workshop = document.implementation.createHTMLDocument('').createElement('template');
    workshop.innerHTML = html;
    for (k = 0; k < 2; k++) {
        linked = workshop.content.querySelectorAll('[' + names[k] + ']');
        for (i = 0; i < linked.length; i++) {
            value = linked[i].getAttribute(names[k]);
            linked[i].setAttribute(names[k], resolve(menu, value));
        }
    }
    return document.importNode(workshop.content, true);
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
        // What stands around the caption is no part of the name.
        if (before || after) link.setAttribute('aria-label', link.zevName);
        link.insertBefore(parse(menu, before), link.firstChild);
        link.appendChild(parse(menu, after));
    }
}

function addDivider(line, menu, html) {
    var divider = append(line, 'span', 'divider');
    divider.setAttribute('aria-hidden', 'true');
    divider.appendChild(parse(menu, html));
}

function styleBox(box, menu, settings) {
    var style = box.style, image = settings.bgimage, name, row;
    for (name in properties) {
        row = properties[name];
        if (row[2]) style.setProperty(row[2], settings[name] + (row[3] || ''));
    }
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
                addDivider(box.lastChild, menu, settings.divider);
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

function drawTop() {
    var menu = state.menus['0'];
    if (!state.bar || state.barBox || !menu || !menu.zevItems.length) return;
    state.barBox = state.bar.shadowRoot.appendChild(buildBox(menu));
    if (shared.adoptBar) shared.adoptBar();
}

// A handler or the page's head names no place, and gets the start of the page.
function placeBar() {
    var script = document.currentScript;
    if (script && script.parentNode && script.parentNode != document.head) {
        script.parentNode.insertBefore(state.bar, script);
    } else if (document.body) {
        document.body.insertBefore(state.bar, document.body.firstChild);
    } else {
        document.addEventListener('DOMContentLoaded', placeBar);
    }
}

window.ZEVDisplayMenu = function () {
    if (shared.writeLinks) {
        shared.writeLinks();
    } else if (isModern) {
        if (!state.bar) state.bar = createHost('bar');
        if (!state.bar.isConnected) placeBar();
        drawTop();
    }
};

window.ZEVCreateMenu = window.ZEVLoadMenu = function () {
    drawTop();
    if (shared.refresh && !state.isRemoved) shared.refresh();
};

// 'zev1' and the id, or 'zev1i' + N and the rest of it.
function popupId(a, b) {
    var call = /^zev1(i\d+)? ([1-9][\di]*)$/.exec(asText(a) + ' ' + asText(b));
    return call ? ((call[1] || '') + 'i' + call[2]).substring(1) : '';
}

// An event's data are gone when a waiting call is done.
window.ZEVMenuOpen = function (a, b, x, y) {
    var event = x && typeof x == 'object' ? x : null, coordinate = asNumber(-1e7, 1e7);
    var call = { id: popupId(a, b), link: event && event.currentTarget, isEvent: event != null,
        x: coordinate(event ? event.pageX : x), y: coordinate(event ? event.pageY : y) };
    if (shared.openPopup) shared.openPopup(call);
    else state.earlyCall = call;
};

window.ZEVMenuClose = function (a, b) {
    state.earlyCall = null;
    if (shared.closePopup) shared.closePopup(popupId(a, b));
};

// Takes away what was added, but for the global names. The next definition starts again.
function destroy() {
    if (shared.stop) shared.stop();
    clearTimeout(state.drawing);
    document.removeEventListener('DOMContentLoaded', placeBar);
    if (state.bar) state.bar.remove();
    if (state.renderer) state.renderer.remove();
    Object.assign(state, emptyState());
    state.isRemoved = true;
    window.zevmenu = noMenu;
}

ZEVMenu.shared = shared;
window.ZEVMenu = ZEVMenu;
window.zev_state = window.zev_state || {};
window.zevmenu = noMenu;

var own = document.currentScript;
var prefix = typeof window.zev_path == 'string' ? window.zev_path : '';
if (prefix == '' && own && own.src) prefix = own.src.replace(/[^\/]*([?#].*)?$/, '');

if (isModern) {
    var renderer = state.renderer = document.createElement('script');
    renderer.src = prefix + 'zevmenu_dom.js';
    renderer.onerror = function () {
        warn(renderer.src + ' did not load; submenus do not open');
    };
    (document.head || document.documentElement).appendChild(renderer);
} else {
    document.write('<script language="JavaScript1.2" src="' + prefix +
        'zevmenu_ns4.js"><\/script>');
}

})();
