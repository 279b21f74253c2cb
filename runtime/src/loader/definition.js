// SPDX-License-Identifier: MIT
// ---- Definition ----

// The menu that opens from an item's link, or null.
shared.submenuOf = function (link) {
    var menu = state.menus[link.zevItem.id];
    return menu && menu.zevItems.length ? menu : null;
};

// As from left to right.
shared.wishOf = function (menu) {
    var top = state.menus['0'];
    return menu == top ? 'bottom'
        : setting(menu, 'position', !/i/.test(menu.zevId) && setting(top, 'columns') > 1 && top);
};

function ZEVMenu(name) {
    var script = currentScript(), menus = state.barBox ? state.next : state.menus;
    var id = this.zevId = asText(name) || '';
    this.zevItems = [];
    this.zevCount = 0;          // of all items; a mistaken one keeps its number
    this.zevFolder = script && /^[^:]+:\/\//.test(script.src) ? folderOf(script.src) : '';
    if (id == '0') takeOver(this);
    if (!/^(0|[1-9]\d*(i[1-9]\d*)*)$/.test(id)) {
        warn('"' + id + '" is not a menu id');
    } else if (menus[id]) {
        warn('menu ' + id + ' is defined twice');
    } else {
        menus[id] = this;
        // It may belong to the menu that is drawn, or to one that will take its place.
        if (!state.next['0'] && !state.menus[id]) state.menus[id] = this;
        // Its place may have been named first.
        if (id == '0' && (state.bar || placeOf())) state.drawing = setTimeout(draw, 0);
        if (state.isRemoved && shared.serve) shared.serve(true);
        state.isRemoved = false;
    }
}

// Of a rollover the caption is the address of its picture, and `over` that of the other.
function addItem(menu, caption, url, target, isRollover, over) {
    var id = menu.zevId, position = ++menu.zevCount, text = asText(caption);
    if (text == null || isRollover && !text) {
        warn('item ' + position + ' of menu ' + id + ' is mistaken');
    } else {
        menu.zevItems.push({
            id: (id == '0' ? '' : id + 'i') + position,         // of the menu that opens from it
            caption: text, url: asText(url) || '', target: asText(target) || '',
            over: isRollover && (asText(over) || text)
        });
    }
}

ZEVMenu.prototype.AddItem = function (caption, url, target) {
    addItem(this, caption, url, target);
};

ZEVMenu.prototype.AddRollover = function (url, out, over, target) {
    addItem(this, out, url, target, true, over);
};

var noMenu = { AddItem: warnOfItem, AddRollover: warnOfItem };

ZEVMenu.version = '1.0.0';
function warnOfItem() {
    warn('an item stands before any menu');
}

// URL() throws at some hosts, which follow two slashes, and takes long.
function resolve(menu, url) {
    url = url.replace(/^[\x00- ]+|[\x00-\x1f]/g, '');
    return !menu.zevFolder || /^([#?]|[\\\/]{2}|[a-z][\w+.\-]*:|$)/i.test(url) ? url
        : /^\w/.test(url) ? menu.zevFolder + url : new URL(url, menu.zevFolder).href;
}

// "pages/our_team.html" is "our team".
function nameFromFile(url) {
    return url.replace(/^javascript:.*|[?].*$/i, '').replace(/^.*#(.)/, '$1').replace(/[#\/]+$/, '')
        .replace(/^.*\//, '').replace(/\.[a-z0-9]+$/i, '').replace(/(%20|[_+\-])+/g, ' ');
}
