/*
 * zevmenu_loader.js: takes a menu definition and draws its top menu.
 *
 * Every browser ever made may meet this file, so it keeps to JavaScript 1.2: no try, no ===, no
 * newer word. What a modern browser alone offers is only called once `isModern` is known. The rest
 * of the menu (submenus, keyboard, placement, pop-ups) is zevmenu_dom.js, which follows without
 * blocking the page; a browser that cannot run it gets plain links from zevmenu_ns4.js.
 *
 * The files talk through ZEVMenu.shared, so that the page sees no names but the documented ones.
 */
if (!window.ZEVMenu) (function () {

var shared = {
    menus: {},          // menu id -> ZEVMenu
    bar: null,          // the element that holds the top menu in the page, from ZEVDisplayMenu on
    barBox: null,       // the drawn top menu, a UL in the bar's shadow tree
    waiting: null       // arguments of the last ZEVMenuOpen that came too early
};

var isModern = document.getElementById && document.documentElement.attachShadow &&
    window.CSS && CSS.supports && window.URL;

// ---- Mistakes: one line in the console each, never an error in the page ----

function warn(text) {
    if (window.console && console.warn) console.warn('ZEVMenu: ' + text);
}

// ---- Checks: each gives the value to use, or null when the value makes no sense ----

function number(value, least, most) {
    var n = least - 1;
    if (typeof value == 'number') n = value;
    if (typeof value == 'string' && /^ *-?(\d+\.?\d*|\.\d+) *$/.test(value)) n = parseFloat(value);
    return n >= least && n <= most ? n : null;
}

function isCount(value) {
    var n = number(value, 1, 1000000);
    return n != null && n == Math.floor(n) ? n : null;
}

function isLength(value) { return number(value, 0, 10000); }

function isOffset(value) { return number(value, -10000, 10000); }

function isDelay(value) { return number(value, 0, 2147483647); }

function isFade(value) { return number(value, 0, 5); }

function isOpacity(value) { return number(value, 1, 100); }

function isText(value) {
    return typeof value == 'string' || typeof value == 'number' ? '' + value : null;
}

function isSide(value) {
    return typeof value == 'string' && /^(right|bottom|left|top)$/.test(value) ? value : null;
}

// A check for values of a CSS property. Words such as "inherit" and references to the page's
// variables are valid CSS, but would let the page's style into the menu.
function css(property) {
    var foreign = /var\(|env\(|^ *(inherit|initial|unset|revert|revert-layer) *$/i;
    return function (value) {
        var isGood = typeof value == 'string' && CSS.supports(property, value);
        return isGood && !foreign.test(value) ? value : null;
    };
}

function fontWord(property) {
    var check = css(property);
    return function (value) { return check(isText(value) == 'none' ? 'normal' : value); };
}

// ---- The table of properties: name, check, factory value ----

var properties = {
    columns: [isCount, 1],                              // items per row
    bgimage: [isText, ''],                              // URL of the box's background image
    nbgcolor: [css('background-color'), '#000000'],     // item background
    nftcolor: [css('color'), '#FFFFFF'],                // item text
    hbgcolor: [css('background-color'), '#888888'],     // background of a highlighted item
    hftcolor: [css('color'), '#000000'],                // text of a highlighted item
    hspacing: [isLength, 0],                            // pixels between neighbouring items
    divider: [isText, '&nbsp;'],                        // HTML in that space
    htmlBefore: [isText, '&nbsp;&nbsp;'],               // HTML before each caption
    htmlAfter: [isText, '&nbsp;&nbsp;'],                // HTML after each caption
    itemborder: [css('border'), ''],                    // CSS border of each item
    menuborder: [css('border'), ''],                    // CSS border of the box
    cellpadding: [isLength, 1],                         // pixels inside an item
    target: [isText, ''],                               // frame of the links
    fontFamily: [css('font-family'), 'Arial'],
    fontSize: [css('font-size'), '10pt'],
    fontStyle: [fontWord('font-style'), 'normal'],
    fontWeight: [fontWord('font-weight'), 'normal'],
    position: [isSide, 'right'],                        // side of its item on which it opens
    menuoffset: [isOffset, 1],                          // pixels from item to submenu
    closedelay: [isDelay, 500],                         // milliseconds until a left submenu closes
    ffade: [isFade, 0],                                 // seconds of fading
    fopacity: [isOpacity, 100],                         // per cent
    fshadow: [css('color'), '']                         // colour of the box's shadow
};

// An empty value means "not set", except for the HTML around items, where it means "nothing".
function isSet(name, value) {
    var isEmpty = typeof value == 'string' && value == '';
    return value != null && (!isEmpty || /^(html|divider)/.test(name));
}

// Checked value of a property of `owner` (a menu or zev_state), or null. A mistaken value is told
// once per owner and property.
function ownSetting(owner, ownerName, name) {
    if (!isSet(name, owner[name])) return null;
    var value = properties[name][0](owner[name]);
    var told = shared.told[ownerName] || (shared.told[ownerName] = {});
    if (value == null && !told[name]) {
        told[name] = true;
        warn(ownerName + ': the value of ' + name + ' makes no sense and is not used');
    }
    return value;
}
shared.told = {};

// What holds for a menu: its own value, else zev_state's, else the factory's.
function setting(menu, name) {
    var value = ownSetting(menu, 'menu ' + menu.zevId, name);
    if (value == null) value = stateSetting(name);
    return value;
}

function stateSetting(name) {
    var value = window.zev_state ? ownSetting(window.zev_state, 'zev_state', name) : null;
    return value != null ? value : properties[name][1];
}

// ---- Definition ----

// The id of the submenu that opens from the item at `position` (from 1) of menu `id`.
function childId(id, position) {
    return id == '0' ? '' + position : id + 'i' + position;
}

function ZEVMenu(id) {
    this.zevId = isText(id) || '';
    this.zevItems = [];         // items in order; null where a mistaken item keeps its number
    this.zevFolder = '';        // URL of the definition file; empty when it stands in the page
    var script = document.currentScript;
    if (script && script.src) this.zevFolder = script.src;
    if (!/^(0|[1-9]\d*(i[1-9]\d*)*)$/.test(this.zevId)) {
        warn('"' + this.zevId + '" is not a menu id; the menu is not shown');
    } else if (shared.menus[this.zevId]) {
        warn('menu ' + this.zevId + ' is defined twice; the first one is used');
    } else {
        shared.menus[this.zevId] = this;
        // ZEVDisplayMenu may have been called before the definition arrived.
        if (shared.bar && this.zevId == '0') setTimeout(drawTop, 0);
    }
}

function addItem(menu, item, isGood) {
    var position = menu.zevItems.length + 1;
    if (!isGood) warn('item ' + position + ' of menu ' + menu.zevId + ' is mistaken and not shown');
    item.url = isText(item.url) || '';
    item.target = isText(item.target) || '';
    item.childId = childId(menu.zevId, position);
    menu.zevItems[position - 1] = isGood ? item : null;
}

ZEVMenu.prototype.AddItem = function (caption, url, target) {
    var text = isText(caption);
    addItem(this, { caption: text, url: url, target: target }, text != null);
};

ZEVMenu.prototype.AddRollover = function (url, imageOut, imageOver, target) {
    var out = isText(imageOut), over = isText(imageOver);
    addItem(this, { url: url, imageOut: out, imageOver: over || out, target: target }, !!out);
};

// What `zevmenu` is until the definition makes a menu of its own.
function NoMenu() { }
NoMenu.prototype.AddItem = NoMenu.prototype.AddRollover = function () {
    warn('an item stands before any menu; it is not shown');
};

// ---- Addresses ----

// A link or image of a definition file, as an absolute URL. What names its own place is taken as it
// stands; what follows two slashes could be a host that URL() refuses by throwing.
function resolve(menu, url) {
    url = url.replace(/[\x00-\x1f]/g, '').replace(/^ +/, '');
    if (!/^[a-z][a-z0-9+.\-]*:\/\//i.test(menu.zevFolder) || url == '' || /^[#?]/.test(url) ||
        /^[\\\/][\\\/]/.test(url) || /^[a-z][a-z0-9+.\-]*:/i.test(url)) return url;
    return new URL(url, menu.zevFolder).href;
}

// A name for people out of a link, or else out of an image: "pages/our_team.html" is "our team".
function nameFromFiles(item) {
    var name = /^javascript:/i.test(item.url) ? '' : fileName(item.url);
    return name || fileName(item.imageOut);
}

function fileName(url) {
    var path = url.replace(/[?].*$/, '').replace(/^.*#(.)/, '$1').replace(/#$/, '');
    path = path.replace(/^[a-z]+:\/\//i, '').replace(/\/+$/, '').replace(/^.*\//, '');
    return path.replace(/\.[a-z0-9]+$/i, '').replace(/(%20|[_+\-])+/g, ' ');
}

// ---- Elements ----

/*
 * The one style sheet of the library. It lives in the shadow trees of the bar and of the submenu
 * layer, where the page's rules do not reach; what differs from menu to menu is set on the box
 * element, mostly as variables (--zev-...).
 */
var styleText = [
    ':host{all:initial!important;display:block!important;width:fit-content!important;',
    'max-width:100%!important}',
    ':host([data-zev=layer]){position:absolute!important;left:0!important;top:0!important;',
    'width:100px!important;max-width:none!important;height:0!important;',
    'z-index:2147483647!important}',
    'ul{box-sizing:border-box;list-style:none;margin:0;padding:0;width:max-content;max-width:100%;',
    'gap:var(--zev-gap);line-height:normal}',
    'ul.list{display:flex;flex-direction:column}',
    'ul.bar{display:flex;flex-wrap:wrap}',
    'ul.grid{display:grid}',
    ':host([data-zev=layer]) ul{position:absolute;overscroll-behavior:contain}',
    'ul[hidden]{display:none}',
    'li{display:flex;min-width:0}',
    'ul.list>li{flex-direction:column}',
    'a{box-sizing:border-box;flex:1 1 auto;min-width:0;overflow-wrap:break-word;cursor:pointer;',
    'padding:var(--zev-padding);border:var(--zev-border,0);background:var(--zev-nbg);',
    'color:var(--zev-nft);text-decoration:none}',
    'a:hover,a:focus,a[aria-expanded=true]{background:var(--zev-hbg);color:var(--zev-hft)}',
    'a:focus{outline:0}',
    'a:focus-visible{outline:2px solid;outline-offset:-2px}',
    // Both pictures of a rollover share one cell, so that nothing moves when they change places.
    'a.rollover{display:grid;justify-content:start}',
    'a.rollover>img{grid-area:1/1;border:0}',
    'a>img.over,a.rollover:hover>img.out,a.rollover:focus>img.out,',
    'a.rollover[aria-expanded=true]>img.out{visibility:hidden}',
    'a.rollover:hover>img.over,a.rollover:focus>img.over,',
    'a.rollover[aria-expanded=true]>img.over{visibility:visible}',
    'span.divider{flex:none;min-width:var(--zev-space);min-height:var(--zev-space);',
    'text-align:center;align-self:center;color:var(--zev-nft)}',
    'ul.list>li>span.divider{align-self:stretch}',
    '@media(forced-colors:active){a:hover,a[aria-expanded=true]{outline:2px solid;',
    'outline-offset:-2px}}',
    '@media print{:host([data-zev=layer]){display:none!important}}'
].join('');

// A constructed style sheet passes every Content-Security-Policy; browsers from before it (until
// Firefox 100, Safari 16.3) get a style element.
var sheet = null;
function addStyle(root) {
    if (CSSStyleSheet.prototype.replaceSync && document.adoptedStyleSheets) {
        if (!sheet) {
            sheet = new CSSStyleSheet();
            sheet.replaceSync(styleText);
        }
        root.adoptedStyleSheets = [sheet];
    } else {
        root.appendChild(document.createElement('style')).textContent = styleText;
    }
}

// A new element for the page ("bar" or "layer") with an empty shadow tree.
function createHost(kind) {
    var host = document.createElement('div');
    host.setAttribute('data-zev', kind);
    addStyle(host.attachShadow({ mode: 'open' }));
    return host;
}

// Nodes of a piece of HTML from a definition. It is read in a document of its own: as HTML in an
// XML page too, and with its addresses put right before anything is fetched.
var workshop = null;
function parse(menu, html) {
    var text = html.replace(/&nbsp;/g, String.fromCharCode(160));
    if (!/[<&]/.test(text)) return document.createTextNode(text);
    if (!workshop) workshop = document.implementation.createHTMLDocument('').body;
    workshop.innerHTML = html;
    var linked = workshop.querySelectorAll('[src],[href]'), names = ['src', 'href'], i, k, value;
    for (i = 0; i < linked.length; i++) {
        for (k = 0; k < 2; k++) {
            value = linked[i].getAttribute(names[k]);
            if (value != null) linked[i].setAttribute(names[k], resolve(menu, value));
        }
    }
    var nodes = document.createDocumentFragment();
    while (workshop.firstChild) {
        nodes.appendChild(document.importNode(workshop.firstChild, true));
        workshop.removeChild(workshop.firstChild);
    }
    return nodes;
}

// The words of a caption: its text, and the alternative text of its pictures.
function wordsOf(node) {
    if (node.nodeType == 3) return node.data;
    var words = node.nodeName == 'IMG' || node.nodeName == 'img' ? node.alt : '', child;
    for (child = node.firstChild; child; child = child.nextSibling) words += wordsOf(child);
    return words;
}

// The name of an item.
function nameOf(menu, item) {
    return item.imageOut ? nameFromFiles(item) : wordsOf(parse(menu, item.caption));
}

function addCaption(link, menu, item, html) {
    var caption = parse(menu, item.caption), words = wordsOf(caption);
    if (html.before) link.appendChild(parse(menu, html.before));
    link.appendChild(caption);
    if (html.after) link.appendChild(parse(menu, html.after));
    // What stands around the caption is decoration and no part of the item's name.
    if (html.before || html.after) link.setAttribute('aria-label', words);
}

function addPicture(link, menu, className, url, name) {
    var picture = document.createElement('img');
    picture.className = className;
    picture.alt = name;
    picture.src = resolve(menu, url);
    link.appendChild(picture);
}

function addAddress(link, menu, item) {
    if (!item.url) return;
    link.setAttribute('href', resolve(menu, item.url));
    // A script runs in this page; the menu's frame is for its pages.
    var target = item.target || (/^ *javascript:/i.test(item.url) ? '' : setting(menu, 'target'));
    if (target) link.setAttribute('target', target);
}

function buildItem(menu, item, html) {
    var line = document.createElement('li'), link = document.createElement('a');
    link.zevItem = item;
    addAddress(link, menu, item);
    if (item.imageOut) {
        link.className = 'rollover';
        addPicture(link, menu, 'out', item.imageOut, nameFromFiles(item));
        addPicture(link, menu, 'over', item.imageOver, nameFromFiles(item));
    } else {
        addCaption(link, menu, item, html);
    }
    line.appendChild(link);
    return line;
}

function addDivider(line, menu, html) {
    var divider = document.createElement('span');
    divider.className = 'divider';
    divider.setAttribute('aria-hidden', 'true');
    divider.appendChild(parse(menu, html));
    line.appendChild(divider);
}

function styleBox(box, menu, columns, count, hasDivider) {
    var style = box.style, space = setting(menu, 'hspacing') + 'px';
    var shadow = setting(menu, 'fshadow');
    box.className = columns == 1 ? 'list' : columns >= count ? 'bar' : 'grid';
    if (box.className == 'grid') style.gridTemplateColumns = 'repeat(' + columns + ',auto)';
    style.setProperty('--zev-space', space);
    // A divider fills the space along its row itself, and grows it where it needs more.
    style.setProperty('--zev-gap', !hasDivider ? space : columns == 1 ? '0' : space + ' 0');
    style.setProperty('--zev-padding', setting(menu, 'cellpadding') + 'px');
    style.setProperty('--zev-nbg', setting(menu, 'nbgcolor'));
    style.setProperty('--zev-nft', setting(menu, 'nftcolor'));
    style.setProperty('--zev-hbg', setting(menu, 'hbgcolor'));
    style.setProperty('--zev-hft', setting(menu, 'hftcolor'));
    if (setting(menu, 'itemborder')) style.setProperty('--zev-border', setting(menu, 'itemborder'));
    style.border = setting(menu, 'menuborder');
    style.fontFamily = setting(menu, 'fontFamily');
    style.fontSize = setting(menu, 'fontSize');
    style.fontStyle = setting(menu, 'fontStyle');
    style.fontWeight = setting(menu, 'fontWeight');
    style.opacity = setting(menu, 'fopacity') / 100;
    if (shadow) style.boxShadow = '3px 3px 6px ' + shadow;
    if (setting(menu, 'bgimage')) {
        style.backgroundImage = 'url("' +
            resolve(menu, setting(menu, 'bgimage')).replace(/["\\]/g, '\\$&') + '")';
    }
}

// The box of a menu: a list of links that is of use without zevmenu_dom.js too.
function buildBox(menu) {
    var box = document.createElement('ul'), columns = setting(menu, 'columns');
    var html = { before: setting(menu, 'htmlBefore'), after: setting(menu, 'htmlAfter') };
    var divider = setting(menu, 'divider'), items = [], i, line;
    if (divider == '&nbsp;' || !setting(menu, 'hspacing')) divider = '';
    for (i = 0; i < menu.zevItems.length; i++) {
        if (menu.zevItems[i]) items[items.length] = menu.zevItems[i];
    }
    for (i = 0; i < items.length; i++) {
        line = buildItem(menu, items[i], html);
        if (divider && i + 1 < items.length && (columns == 1 || (i + 1) % columns != 0)) {
            addDivider(line, menu, divider);
        }
        box.appendChild(line);
    }
    styleBox(box, menu, columns, items.length, divider != '');
    box.zevMenu = menu;
    return box;
}

// ---- What the page calls ----

function drawTop() {
    var menu = shared.menus['0'];
    if (!shared.bar || shared.barBox || !menu || !menu.zevItems.length) return;
    shared.barBox = buildBox(menu);
    shared.bar.shadowRoot.appendChild(shared.barBox);
    if (shared.adoptBar) shared.adoptBar();
}

// Puts the bar where the running script stands; a call from elsewhere (a handler, the page's head)
// names no place, and gets the start of the page.
function placeBar() {
    var script = document.currentScript;
    if (script && script.parentNode && script.parentNode != document.head) {
        script.parentNode.insertBefore(shared.bar, script);
    } else if (document.body) {
        document.body.insertBefore(shared.bar, document.body.firstChild);
    } else {
        document.addEventListener('DOMContentLoaded', placeBar);
    }
}

window.ZEVDisplayMenu = function () {
    if (shared.writeLinks) {
        shared.writeLinks();
    } else if (isModern) {
        if (!shared.bar) shared.bar = createHost('bar');
        if (!shared.bar.isConnected) placeBar();
        drawTop();
    }
};

window.ZEVCreateMenu = window.ZEVLoadMenu = function () {
    if (!isModern) return;
    drawTop();
    if (shared.refresh) shared.refresh();
};

// x is the event of the link's handler, or a page coordinate with y. The event's data are copied,
// because they are gone when zevmenu_dom.js comes to the call.
window.ZEVMenuOpen = function (a, b, x, y) {
    if (!isModern) return;
    var where = { pageX: number(x, -10000000, 10000000), pageY: number(y, -10000000, 10000000) };
    if (x && typeof x == 'object') {
        where = { clientX: x.clientX, clientY: x.clientY, link: x.currentTarget };
    }
    if (shared.openPopup) shared.openPopup(a, b, where);
    else shared.waiting = [a, b, where];
};

window.ZEVMenuClose = function (a, b) {
    shared.waiting = null;
    if (shared.closePopup) shared.closePopup(a, b);
};

window.ZEVMenu = ZEVMenu;
window.zev_state = window.zev_state || {};
window.zevmenu = new NoMenu();

ZEVMenu.shared = shared;
shared.warn = warn;
shared.setting = setting;
shared.stateSetting = stateSetting;
shared.isSide = isSide;
shared.createHost = createHost;
shared.buildBox = buildBox;
shared.nameOf = nameOf;
shared.nameFromFiles = nameFromFiles;
shared.wordsOf = wordsOf;

// ---- The second file ----

var own = document.currentScript;
var prefix = typeof window.zev_path == 'string' ? window.zev_path : '';
if (prefix == '' && own && own.src) prefix = own.src.replace(/[?#].*$/, '').replace(/[^\/]*$/, '');

if (isModern) {
    var renderer = document.createElement('script');
    renderer.src = prefix + 'zevmenu_dom.js';
    renderer.onerror = function () {
        warn(renderer.src + ' did not load; the top menu works, submenus do not');
    };
    (document.head || document.documentElement).appendChild(renderer);
} else {
    document.write('<script language="JavaScript1.2" src="' + prefix +
        'zevmenu_ns4.js"><\/script>');
}

})();
