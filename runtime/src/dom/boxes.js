// ---- Page: elements, styles, events ----

function submenuOf(link) {
    const menu = state.menus[link.zevSubmenu];
    return menu?.zevItems.some(Boolean) ? menu : null;
}

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
    Object.keys(attributes).forEach(name => {
        if (attributes[name] == null) element.removeAttribute(name);
        else element.setAttribute(name, attributes[name]);
    });
}

function isAccordion(box) {
    return box.classList.contains('inside');
}

function isList(box) {
    return box.classList.contains('list') || isAccordion(box);
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

// What of the page lies above the rest of it, and holds the opener.
function topAround(opener) {
    const isTop = node => node.matches?.('dialog[open],[popover]') || node == document.fullscreenElement;
    let node = opener;
    while (node && !isTop(node)) node = node.assignedSlot || node.parentNode || node.host;
    return node != document.documentElement && node;
}

// There the layer has to be too, and above it; each time anew, as what was opened last lies highest.
function raise(layer, top) {
    const home = top || shared.ofDocument('body');
    if (layer.parentNode != home) home.appendChild(layer);
    mark(layer, { popover: null });
    if (!top || !layer.showPopover || !layer.isConnected) return;
    mark(layer, { popover: 'manual' });
    layer.showPopover();
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
                menu.zevItems.length <= fixed.itemsAhead)
        .slice(0, fixed.menusAhead).concat(state.ahead);
    if (!isRunning) buildWhenIdle();
}

function buildWhenIdle() {
    if (state.ahead.length) state.building = (window.requestIdleCallback || setTimeout)(() => {
        boxOf(state.ahead.shift());
        buildWhenIdle();
    });
}
