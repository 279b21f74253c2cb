// SPDX-License-Identifier: MIT
// ---- Definition ----

function submenuId(menu, position) {
    return (menu.zevId == '0' ? '' : menu.zevId + 'i') + position;
}

// The menu that opens from an item's link, or null.
function submenuOf(link) {
    var menu = state.menus[link.zevSubmenu], i;
    for (i = 0; menu && i < menu.zevItems.length; i++) if (menu.zevItems[i]) return menu;
    return null;
}

// As from left to right.
function wishedSide(menu) {
    var top = state.menus['0'];
    return setting(menu, 'position', !/i/.test(menu.zevId) && setting(top, 'columns') > 1 && top);
}

function ZEVMenu(id) {
    var script = currentScript(), menus = state.barBox ? state.next : state.menus;
    this.zevId = asText(id) || '';
    this.zevItems = [];         // null where a mistaken item keeps its number
    this.zevFile = script && /^[a-z][a-z0-9+.\-]*:\/\//i.test(script.src) ? script.src : '';
    if (this.zevId == '0') takeOver(this);
    if (!/^(0|[1-9]\d*(i[1-9]\d*)*)$/.test(this.zevId)) {
        warn('"' + this.zevId + '" is not a menu id');
    } else if (menus[this.zevId]) {
        warn('menu ' + this.zevId + ' is defined twice; the first is used');
    } else {
        menus[this.zevId] = this;
        // It may belong to the menu that is drawn, or to one that will take its place.
        if (!state.next['0'] && !state.menus[this.zevId]) state.menus[this.zevId] = this;
        // Its place may have been named first.
        if (this.zevId == '0' && (state.bar || findPlace())) state.drawing = setTimeout(draw, 0);
        if (state.isRemoved && shared.serve) shared.serve(true);
        state.isRemoved = false;
    }
}

function addItem(menu, isGood, item, url, target) {
    var position = menu.zevItems.length + 1;
    if (!isGood) warn('item ' + position + ' of menu ' + menu.zevId + ' is mistaken');
    item.url = asText(url) || '';
    item.target = asText(target) || '';
    menu.zevItems[position - 1] = isGood ? item : null;
}

ZEVMenu.prototype.AddItem = function (caption, url, target) {
    caption = asText(caption);
    addItem(this, caption != null, { caption: caption }, url, target);
};

ZEVMenu.prototype.AddRollover = function (url, imageOut, imageOver, target) {
    var out = asText(imageOut);
    addItem(this, out, { imageOut: out, imageOver: asText(imageOver) || out }, url, target);
};

var noMenu = { AddItem: warnOfItem, AddRollover: warnOfItem };

ZEVMenu.version = '1.0.0';
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
    return nameFromFile(item.url) || nameFromFile(item.imageOut).replace(/ (out|off|normal)$/i, '');
}

function nameFromFile(url) {
    return url.replace(/^javascript:.*|[?].*$/i, '').replace(/^.*#(.)/, '$1').replace(/[#\/]+$/, '')
        .replace(/^.*\//, '').replace(/\.[a-z0-9]+$/i, '').replace(/(%20|[_+\-])+/g, ' ');
}
