// SPDX-License-Identifier: MIT
// ---- Page: elements, styles, events ----

function around(element, property) {
    while (element && !element[property]) element = element.parentNode;
    return element;
}

function linkAt(element) {
    return around(element, 'zevSubmenu');
}

function boxAt(element) {
    return around(element, 'zevMenu');
}

function linksOf(box) {
    return [...box.children].map(line => line.firstChild);
}

function depthAt(element) {
    return depthOf(boxAt(element));
}

function isRtlAt(element) {
    return getComputedStyle(element).direction == 'rtl';
}

function isOpen(link) {
    return link.getAttribute('aria-expanded') == 'true';
}

// An attribute of null is taken away.
function mark(element, attributes) {
    Object.entries(attributes).forEach(([name, value]) => {
        if (value == null) element.removeAttribute(name);
        else element.setAttribute(name, value);
    });
}

function isAccordion(box) {
    return box.matches('.inside,.folded');
}

function isList(box) {
    return box.matches('.list,.inside,.folded');
}

function orient(box) {
    const isRow = !isList(box), isBar = box.getAttribute('role') == 'menubar';
    mark(box, { 'aria-orientation': isRow == isBar ? null : isRow ? 'horizontal' : 'vertical' });
}

function promote(box, role) {
    const isBar = role == 'menubar';
    mark(box, { role });
    orient(box);
    linksOf(box).forEach((link, index) => {
        mark(link.parentNode, { role: 'none' });
        mark(link, { role: 'menuitem', tabindex: isBar && !index ? 0 : -1 });
        if (submenuOf(link)) mark(link, { 'aria-haspopup': true, 'aria-expanded': false });
        shared.addMark(link, box.zevMenu);
        markCurrent(link);
    });
}

// ---- The items of the page that is shown ----

function markCurrent(link) {
    mark(link, { 'aria-current': link.zevItem.zevCurrent });
}

// An address without its fragment; '' for a place in the page, and for what is no address.
function pageAt(menu, url) {
    try {
        return /^[^#]/.test(url) ? new URL(shared.resolve(menu, url), document.baseURI).href.split('#')[0] : '';
    } catch {
        return '';
    }
}

// Whether a menu, or one below it, leads to the page that is shown.
function findCurrent(menu, here) {
    return menu.zevItems.filter((item, index) => {
        if (!item) return false;
        const below = state.menus[shared.submenuId(menu, index + 1)], isOnWay = below && findCurrent(below, here);
        return (item.zevCurrent = pageAt(menu, item.url) == here ? 'page' : isOnWay ? true : null);
    }).length;
}

function lookUpCurrent() {
    state.looking ||= whenIdle(() => {
        const { menus, barBox } = state, top = menus['0'];
        state.looking = 0;
        if (top) findCurrent(top, pageAt(top, location.href));
        const boxes = [barBox, ...Object.values(menus).map(menu => menu.zevBox)].filter(Boolean);
        boxes.flatMap(linksOf).forEach(markCurrent);
    });
}

function itemOf(menu) {
    const [, parentId, position] = /^(?:(.*)i)?(.*)/.exec(menu.zevId);
    return state.menus[parentId || '0']?.zevItems[position - 1];
}

function boxOf(menu) {
    if (!menu.zevBox) {
        const box = menu.zevBox = shared.buildBox(menu), item = itemOf(menu);
        box.hidden = true;
        if (item) mark(box, { 'aria-label': shared.nameOf(menu, item) });
        promote(box, 'menu');
    }
    return menu.zevBox;
}

// The dialog or popover that holds the opener, whatever shadow trees lie between them.
function topAround(opener) {
    return opener && (opener.closest('dialog[open],[popover]') || topAround(opener.getRootNode().host));
}

// Puts the layer there too, above it: what was opened last lies highest.
function raise(layer, top) {
    const home = top || document.body;
    if (layer.parentNode != home) home.appendChild(layer);
    mark(layer, { popover: null });
    if (!top) return;
    mark(layer, { popover: 'manual' });
    layer.showPopover?.();
}

function ensureBox(menu, opener) {
    const box = boxOf(menu);
    if (!state.layer) {
        state.layer = shared.createHost('layer');
        attend(state.layer, true);
    }
    if (!opener || !depthAt(opener)) raise(state.layer, topAround(opener));
    return box;
}

function buildAhead(box) {
    // Until the page has loaded, its scripts may add to the definition.
    if (!box || document.readyState != 'complete') return;
    const isRunning = state.ahead.length;
    state.ahead = linksOf(box).map(submenuOf)
        .filter(menu => menu && !menu.zevBox && !state.ahead.includes(menu) &&
                menu.zevItems.length <= itemsAhead)
        .slice(0, menusAhead).concat(state.ahead);
    if (!isRunning) buildWhenIdle();
}

function whenIdle(job) {
    return (window.requestIdleCallback || setTimeout)(job);
}

function buildWhenIdle() {
    if (state.ahead.length) state.building = whenIdle(() => {
        boxOf(state.ahead.shift());
        buildWhenIdle();
    });
}
