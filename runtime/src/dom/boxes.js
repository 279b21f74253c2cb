// SPDX-License-Identifier: MIT
// ---- Page: elements, styles, events ----

function around(node, property) {
    while (node && !node[property]) node = node.parentNode;
    return node;
}

function linkAt(node) {
    return around(node, 'zevItem');
}

function boxAt(node) {
    return around(node, 'zevMenu');
}

function linksOf(box) {
    return [...box.children].map(line => line.firstChild);
}

function depthAt(node) {
    return depthOf(boxAt(node));
}

function isRtlAt(node) {
    return getComputedStyle(node).direction == 'rtl';
}

function isOpen(link) {
    return link.matches('[aria-expanded=true]');
}

// An attribute of null is taken away.
function mark(node, attributes) {
    Object.entries(attributes).forEach(([name, value]) =>
        node[value == null ? 'removeAttribute' : 'setAttribute'](name, value));
}

function isList(box) {
    return box.matches('.list');
}

// What kind of box it is; it loses the place that it had.
function shape(box, className, role = 'menu') {
    box.className = className;
    Object.assign(box.style, { left: '', top: '', maxWidth: '', maxHeight: '', pointerEvents: '' });
    const isRow = !isList(box);
    mark(box, { role, 'aria-orientation': isRow == (role == 'menubar') ? null : isRow ? 'horizontal' : 'vertical' });
}

function promote(box, role) {
    shape(box, box.zevShape = box.className, role);
    box.zevMenu.zevBox = box;
    linksOf(box).forEach((link, index) => {
        const submenu = submenuOf(link);
        mark(link.parentNode, { role: 'none' });
        mark(link, { role: 'menuitem', tabindex: role == 'menubar' && !index ? 0 : -1,
                     'aria-haspopup': submenu && true, 'aria-expanded': submenu && false });
        shared.addMark(link, box.zevMenu);
        markCurrent(link);
    });
}

// ---- The items of the page that is shown ----

function markCurrent(link) {
    mark(link, { 'aria-current': link.zevItem.current });
}

// An address without its fragment; false for a place in the page. An element does not throw at what is no address.
let area;
function pageAt(menu, url) {
    area ||= document.createElement('area');
    area.href = shared.resolve(menu, url);
    return /^[^#]/.test(url) && area.href.split('#')[0];
}

// Whether a menu, or one below it, leads to the page that is shown.
function findCurrent(menu, here) {
    return menu.zevItems.filter(item => {
        const below = state.menus[item.id], isOnWay = below && findCurrent(below, here);
        return (item.current = pageAt(menu, item.url) == here ? 'page' : isOnWay ? true : null);
    }).length;
}

function lookUp() {
    whenIdle('looking', () => {
        const { menus } = state, top = menus['0'];
        if (top) findCurrent(top, pageAt(top, location.href));
        Object.values(menus).forEach(({ zevBox }) => zevBox && linksOf(zevBox).forEach(markCurrent));
    });
}

function itemOf(menu) {
    const { zevId } = menu;
    return state.menus[zevId.replace(/i?\d+$/, '') || '0']?.zevItems.find(item => item.id == zevId);
}

function boxOf(menu) {
    if (!state.layer) {
        state.layer = shared.createHost('layer');
        attend(state.layer, true);
    }
    if (!menu.zevBox) {
        const box = shared.buildBox(menu), item = itemOf(menu);
        mark(box, { hidden: true, dir: 'ltr', 'aria-label': item && shared.nameOf(menu, item) });
        promote(box);
    }
    return menu.zevBox;
}

// The dialog or popover that holds the opener, whatever shadow trees lie between them.
function topAround(opener) {
    return opener && (opener.closest('dialog[open],[popover]') || topAround(opener.getRootNode().host));
}

// Puts the layer there too, above it: what was opened last lies highest.
function raise(opener) {
    const top = topAround(opener), home = top || document.body, { layer } = state, box = homeOf(layer);
    if (layer.parentNode != home) home.append(layer);
    mark(box, { popover: null });
    if (!top) return;
    mark(box, { popover: 'manual' });
    box.showPopover?.();
}

function boxFor(menu, opener) {
    const box = boxOf(menu);
    if (!opener || !depthAt(opener)) raise(opener);
    return box;
}

function buildAhead(box) {
    // Until the page has loaded, its scripts may add to the definition.
    if (!box || document.readyState != 'complete') return;
    state.ahead = linksOf(box).map(submenuOf)
        .filter(menu => menu && !menu.zevBox && menu.zevItems.length <= 200)
        .slice(0, 50).concat(state.ahead);
    buildNext();
}

// `name` is that of the state's timer; a job that waits is not asked for again.
function whenIdle(name, job) {
    state[name] ||= (window.requestIdleCallback || setTimeout)(() => {
        state[name] = 0;
        job();
    });
}

function buildNext() {
    if (state.ahead.length) whenIdle('building', () => {
        boxOf(state.ahead.shift());
        buildNext();
    });
}
