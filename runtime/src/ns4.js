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
var menus = shared.state.menus;

function attribute(name, value) {
    return value ? ' ' + name + '="' + value.replace(/"/g, '&quot;') + '"' : '';
}

function listOf(menu) {
    var html = '', i, item, link;
    if (!menu) return html;
    for (i = 0; i < menu.zevItems.length; i++) {
        item = menu.zevItems[i];
        link = item.caption;
        if (item.over) {
            link = '<img border="0"' + attribute('src', link) + attribute('alt', shared.nameOf(menu, item)) + '>';
        }
        if (item.url) {
            link = '<a' + attribute('href', item.url) +
                attribute('target', item.target || shared.setting(menu, 'target')) + '>' + link + '</a>';
        }
        html += '<li>' + link + listOf(menus[item.id]) + '</li>';
    }
    return '<ul>' + html + '</ul>';
}

// A second call writes nothing.
shared.writeLinks = function () {
    document.write(listOf(menus['0']));
    if (menus['0']) menus = {};
};
