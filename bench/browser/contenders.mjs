// SPDX-License-Identifier: MIT
// The same menu as each library wants it: what stands in the page, and the files that the page loads.
// Every library is set up as its documentation says, with the choices that take its delays and
// animations away, and with hovering where it has that.
import { readFileSync } from 'node:fs';

const read = path => readFileSync(new URL(path, import.meta.url), 'utf8');
const peer = path => read('node_modules/' + path);

// Items of the top menu, of each of its submenus, and of each of theirs.
export const shapes = { 50: [5, 3, 2], 500: [10, 7, 6], 5000: [8, 24, 25] };

// The menu of that many items as a list of { id, caption, url, children }. Ids are positions joined by "i".
export function makeMenu(count) {
    const level = (shape, path) => !shape.length ? [] : Array.from({ length: shape[0] }, (_, index) => {
        const parts = [...path, index + 1];
        return { id: parts.join('i'), caption: 'Department ' + parts.join('.'),
                 url: `pages/department${parts.join('_')}.html`, children: level(shape.slice(1), parts) };
    });
    return level(shapes[count], []);
}

// A menu as nested lists; `list`, `line` and `link` give the attributes by depth, from 0, and by whether
// the item has a submenu.
function nestedLists(items, { list, line, link }, depth = 0) {
    const lines = items.map(({ caption, url, children }) => {
        const hasSubmenu = children.length > 0;
        const submenu = hasSubmenu ? nestedLists(children, { list, line, link }, depth + 1) : '';
        return `<li${line(depth, hasSubmenu)}>` +
            `<a${link(depth, hasSubmenu)} href="${url}">${caption}</a>${submenu}</li>`;
    });
    return `<ul${list(depth)}>\n${lines.join('\n')}</ul>`;
}

// A menu as a definition file. It opens without a delay and an effect, and closes at once when the mouse has
// left it.
function definition(items) {
    const lines = ['zev_state.opendelay = 0;', 'zev_state.ffade = 0;', 'zev_state.closedelay = 0;',
                   "zevmenu = new ZEVMenu('0');", 'zevmenu.columns = 20;', "zevmenu.position = 'bottom';",
                   'zevmenu.cellpadding = 5;'];
    const addItems = children => children.forEach(({ caption, url }) =>
        lines.push(`zevmenu.AddItem('${caption}', '${url}', '');`));
    const addSubmenus = children => children.forEach(({ id, children }) => {
        if (!children.length) return;
        lines.push('', `zevmenu = new ZEVMenu('${id}');`, 'zevmenu.cellpadding = 5;');
        addItems(children);
        addSubmenus(children);
    });
    addItems(items);
    addSubmenus(items);
    return lines.join('\r\n') + '\r\n';
}

const style = name => `<link rel="stylesheet" href="${name}">`;
const script = name => `<script src="${name}"></script>`;
const none = () => '';

// How a list of plain links becomes a menu; the peers without a style of their own get it too.
const listStyle = `ul { list-style: none; margin: 0; padding: 0; }
.menu { display: flex; }
.menu li { position: relative; }
.menu a { display: block; padding: 5px 12px; white-space: nowrap; text-decoration: none; }
.menu a { color: #fff; background: #000; }
.menu a:hover, .menu a:focus { color: #000; background: #888; }
.menu ul { position: absolute; left: 0; top: 100%; z-index: 1; }
.menu ul ul { left: 100%; top: 0; }
`;

// The opener and its submenu where submenus stand in the items of one list.
const listOpener = `document.querySelector('nav > ul > li:nth-child(2) > a')`;
const listSubmenu = `document.querySelector('nav > ul > li:nth-child(2) > ul')`;

// What the integrator writes into a page.
const ourPage = {
    head: `<script>var zev_path = '';</script>${script('zevmenu_loader.js')}`,
    bodyAttributes: ' onload="ZEVLoadMenu();" onresize="ZEVLoadMenu();"',
    body: () => `${script('menu.js')}<script>ZEVDisplayMenu();</script>`,
    end: '<script>ZEVCreateMenu()</script>',
    lateScript: 'zevmenu_dom.js',
};

// Asks for the second file, and does nothing else.
const emptyLoader = `function ZEVDisplayMenu() {}
ZEVCreateMenu = ZEVLoadMenu = ZEVDisplayMenu;
document.head.append(Object.assign(document.createElement('script'), { src: 'zevmenu_dom.js' }));
`;

/*
 * Each contender: `head` and `body` of its page, as a function of the menu's items; `files` beside the
 * page, name -> text; `opener` and `submenu`, JavaScript that gives the second top item's link and its
 * submenu's element (null before there is one); `isClicked` where a click opens. The page calls
 * bench.done() when its last script has run. `lateScript` names one that follows without blocking
 * the page and that submenus need. One without `submenu` has nothing to open.
 */
export const contenders = {
    zevmenu: {
        ...ourPage,
        files: items => ({ 'zevmenu_loader.js': read('../../build/release/bin/zevmenu_loader.js'),
                           'zevmenu_dom.js': read('../../build/release/bin/zevmenu_dom.js'),
                           'menu.js': definition(items) }),
        opener: `document.querySelector('[data-zev=bar]').shadowRoot.querySelectorAll('li > a')[1]`,
        submenu: `Array.from(
            document.querySelector('[data-zev=layer]')?.shadowRoot.querySelectorAll('ul') || [])
            .find(list => list.firstElementChild.textContent.includes('Department 2.1'))`,
    },
    smartmenus: {
        head: style('smartmenus.css'),
        body: items => `<nav class="sm-navbar">${nestedLists(items, {
            list: depth => depth ? ' class="sm-sub"' : ' class="sm-nav"',
            line: depth => depth ? ' class="sm-sub-item"' : ' class="sm-nav-item"',
            link: (depth, hasSubmenu) =>
                ` class="${depth ? 'sm-sub-link' : 'sm-nav-link'}${hasSubmenu ? ' sm-sub-toggler' : ''}"`,
        })}</nav>`,
        end: script('smartmenus.js') + `<script>new SmartMenus(document.querySelector('.sm-navbar'), {
            dropdownsShowTrigger: 'mouseover', dropdownsShowTimeout: 0,
            dropdownsHideTrigger: 'mouseout', dropdownsHideTimeout: 0 });</script>`,
        files: () => ({ 'smartmenus.js': peer('smartmenus/dist/js/smartmenus.browser.min.js'),
                        'smartmenus.css': peer('smartmenus/dist/css/smartmenus.min.css') +
                            '\n.sm-navbar { --sm-sub-dropdowns-hide-animation: none; }' }),
        opener: listOpener, submenu: listSubmenu,
    },
    'accessible-menu': {
        head: style('menu.css'),
        body: items => `<nav>${nestedLists(items, {
            list: depth => depth ? '' : ' class="menu"', line: none, link: none })}</nav>`,
        end: script('menubar.js') + `<script>new Menubar({ menuElement: document.querySelector('.menu'),
            hoverType: 'on', hoverDelay: 0, transitionClass: '', transitionDuration: 0 });</script>`,
        files: () => ({ 'menubar.js': peer('accessible-menu/dist/menubar.iife.js'),
                        'menu.css': listStyle +
                            '.menu ul { display: none; }\n.menu ul.show { display: block; }' }),
        opener: listOpener, submenu: listSubmenu,
    },
    bootstrap: {
        head: style('bootstrap.css'),
        body: items => `<nav>${nestedLists(items, {
            list: depth => depth ? ' class="dropdown-menu"' : ' class="nav"',
            line: (depth, hasSubmenu) =>
                !depth ? ' class="nav-item dropdown"' : hasSubmenu ? ' class="dropend"' : '',
            link: (depth, hasSubmenu) => hasSubmenu
                ? ` class="${depth ? 'dropdown-item' : 'nav-link'} dropdown-toggle"` +
                    ' data-bs-toggle="dropdown" data-bs-auto-close="outside" aria-expanded="false"'
                : ` class="${depth ? 'dropdown-item' : 'nav-link'}"`,
        })}</nav>`,
        end: script('bootstrap.js'),
        files: () => ({ 'bootstrap.js': peer('bootstrap/dist/js/bootstrap.bundle.min.js'),
                        'bootstrap.css': peer('bootstrap/dist/css/bootstrap.min.css') }),
        opener: listOpener, submenu: listSubmenu, isClicked: true,
    },
    'plain list': {
        head: style('menu.css'),
        body: items => `<nav>${nestedLists(items, {
            list: depth => depth ? '' : ' class="menu"', line: none, link: none })}</nav>`,
        end: '',
        files: () => ({ 'menu.css': listStyle + '.menu ul { display: none; }\n' +
            '.menu li:hover > ul, .menu li:focus-within > ul { display: block; }' }),
        opener: listOpener, submenu: listSubmenu,
    },
    'empty files': {
        ...ourPage,
        files: () => ({ 'zevmenu_loader.js': emptyLoader, 'zevmenu_dom.js': '', 'menu.js': '' }),
        opener: 'document.body',
    },
};

// The page of a contender: `probe` is the script that stands first in it.
export function pageText(contender, items, probe) {
    return `<!DOCTYPE html>
<html lang="en"><head><script>${probe}</script><meta charset="utf-8"><title>Menu</title>
${contender.head}</head>
<body${contender.bodyAttributes || ''}>${contender.body(items)}
${contender.end}<script>bench.done();</script></body></html>
`;
}
