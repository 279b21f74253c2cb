// SPDX-License-Identifier: MIT
/*
 * zevmenu_ns4.js: the menu for browsers that cannot run zevmenu_dom.js.
 *
 * Writes the whole menu as nested lists of plain links where ZEVDisplayMenu() is called. The
 * language is JavaScript 1.2. These browsers do not tell a script its own address, so links are
 * those of the definition file as they stand.
 */

var shared = window.ZEVMenu && ZEVMenu.shared;
// A page may load it by hand, though its browser needs none, or has it.
if (!shared || shared.isModern || shared.writeLinks) return;
var menus = shared.state.menus, isWritten = false;

function attribute(name, value) {
    return value ? ' ' + name + '="' + value.replace(/"/g, '&quot;') + '"' : '';
}

function linkOf(menu, item) {
    var caption = item.caption, target = item.target || shared.setting(menu, 'target');
    if (item.imageOut) {
        caption = '<img border="0"' + attribute('src', item.imageOut) +
            attribute('alt', shared.nameFromFiles(item)) + '>';
    }
    if (!item.url) return caption;
    return '<a' + attribute('href', item.url) + attribute('target', target) + '>' + caption +
        '</a>';
}

function listOf(menu) {
    var html = '<ul>', i, item, child;
    for (i = 0; i < menu.zevItems.length; i++) {
        item = menu.zevItems[i];
        if (item) {
            child = menus[shared.submenuId(menu, i + 1)];
            html += '<li>' + linkOf(menu, item) + (child ? listOf(child) : '') + '</li>';
        }
    }
    return html + '</ul>';
}

// A second call writes nothing.
shared.writeLinks = function () {
    var top = menus['0'];
    if (top && !isWritten) {
        isWritten = true;
        document.write(listOf(top));
    }
};
