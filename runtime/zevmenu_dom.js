// Submenus, pop-ups, placement and keyboard of a menu that zevmenu_loader.js drew.
(function () {
'use strict';

const shared = window.ZEVMenu?.shared;
if (!shared || shared.sums) return;
const { state, setting, warn } = shared;

// What no definition sets.
const fixed = {
    restMs: 200,            // a mouse that rests so long stays
    typingMs: 700,          // letters that follow sooner belong together
    besideMousePx: 8,       // from the mouse to its pop-up
    menusAhead: 50,         // submenus of a box that are built before they open
    itemsAhead: 200         // in each of them
};

// ---- Sums: rectangles in, coordinates out; no page is needed ----

const opposite = { right: 'left', left: 'right', top: 'bottom', bottom: 'top' };

function isBeside(side) {
    return side == 'right' || side == 'left';
}

function realSide(side, isRtl) {
    return isRtl && isBeside(side) ? opposite[side] : side;
}

// Moves a length into 0 to `limit`; its start wins if it is too long.
function shift(start, length, limit) {
    return Math.max(0, Math.min(start, limit - length));
}

// Flips to the opposite side if only that has room, then shifts into the window.
function place(anchor, size, side, offset, frame, isRtl) {
    const starts = { right: anchor.right + offset, left: anchor.left - offset - size.width,
                     bottom: anchor.bottom + offset, top: anchor.top - offset - size.height };
    const length = isBeside(side) ? 'width' : 'height';
    const fits = side => shift(starts[side], size[length], frame[length]) == starts[side];
    const real = !fits(side) && fits(opposite[side]) ? opposite[side] : side;
    const spot = { left: isRtl && side ? anchor.right - size.width : anchor.left, top: anchor.top };
    if (side) spot[isBeside(side) ? 'left' : 'top'] = starts[real];
    return { left: shift(spot.left, size.width, frame.width),
             top: shift(spot.top, size.height, frame.height), side: real };
}

// In a zoomed page `ruler` pixels of the layer are as wide as `origin`.
function unzoomed(length, origin, ruler) {
    return length * ruler / ((origin.right - origin.left) || ruler);
}

// In the triangle from where the pointer was to the near edge of the box.
function isHeadedFor(from, to, box, side) {
    const [along, across, start, end] = isBeside(side)
        ? ['x', 'y', 'top', 'bottom'] : ['y', 'x', 'left', 'right'];
    const apex = from[along] + (side == 'right' || side == 'bottom' ? -2 : 2), slack = 8;
    const part = (to[along] - apex) / (box[opposite[side]] - apex);
    const way = to[across] - from[across];
    return part >= 0 && part <= 1 && way >= part * (box[start] - slack - from[across]) &&
        way <= part * (box[end] + slack - from[across]);
}

// A column or row goes round at its ends; -1 is outside.
function neighbour(index, count, columns, direction) {
    const step = direction == 'right' || direction == 'bottom' ? 1 : -1;
    const isAlongRow = isBeside(direction);
    if (columns == 1 || columns >= count) {
        return isAlongRow == (columns == 1) ? -1 : (index + step + count) % count;
    }
    const next = index + step * (isAlongRow ? 1 : columns);
    const isSameRow = Math.floor(next / columns) == Math.floor(index / columns);
    return next < 0 || next >= count || (isAlongRow && !isSameRow) ? -1 : next;
}

// One letter, also repeated, goes on to the next name; more letters may stay where they fit.
function typeAhead(names, index, typed) {
    const text = typed.toLowerCase(), isOneLetter = text == text[0].repeat(text.length);
    const start = isOneLetter ? text[0] : text;
    for (let i = 0; i < names.length; i++) {
        const next = (index + i + isOneLetter) % names.length;
        if (names[next].trim().toLowerCase().startsWith(start)) return next;
    }
    return -1;
}

shared.sums = { place, unzoomed, isHeadedFor, neighbour, realSide, typeAhead };

// ---- State: what opens, stays and closes; no element is called ----

// 0 for the top menu and what is closed, 1 for the first open level.
function depthOf(box) {
    return state.levels.findIndex(level => level.box == box) + 1;
}

function openLevel(depth, level) {
    closeFrom(depth);
    state.levels.push(level);
    show(level);
}

function closeFrom(depth) {
    while (state.levels.length > depth) {
        const level = state.levels.pop();
        clearTimeout(level.timer);
        hide(level);
    }
}

// Lets all but the first `depth` levels close after the delay.
function keep(depth) {
    state.levels.forEach((level, index) => {
        if (index < depth) {
            clearTimeout(level.timer);
            level.timer = 0;
        } else if (!level.timer) {
            level.timer = setTimeout(() => closeFrom(state.levels.indexOf(level)),
                                     setting(null, 'closedelay'));
        }
    });
}

shared.closePopup = function (id) {
    // Browsers may tell of the arrival on the pop-up before the leaving of the link.
    const isInside = state.over && depthOf(state.over.box) > 0;
    if (state.levels[0]?.menu.zevId == id && !isInside) keep(0);
};

function pointAt(box, link, point) {
    const { over: was, lastPoint: before, crossing } = state;
    state.lastPoint = point;
    if (!box || (was && was.link == link && was.box == box && !crossing)) return;
    state.over = { box, link };
    // On its way to a submenu the mouse may cross other items.
    const from = crossing ? crossing.from : before, level = state.levels[depthOf(box)];
    dropCrossing();
    if (was && level && level.opener != link &&
        isHeadedFor(from, point, rectOf(level.box), level.side)) {
        state.crossing = { from, timer: setTimeout(hover, fixed.restMs) };
    } else {
        hover();
    }
}

function hover() {
    const { box, link } = state.over, depth = depthOf(box), child = state.levels[depth];
    dropCrossing();
    if (link && child?.opener == link) return keep(depth + 1);
    keep(depth);
    if (link) openSubmenu(link);
}

function dropCrossing() {
    clearTimeout(state.crossing?.timer);
    state.crossing = null;
}

function pointAway() {
    state.lastPoint = state.over = null;
    dropCrossing();
    keep(0);
}

function takePress() {
    const { press } = state;
    state.press = {};
    return press;
}

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
    return Array.from(box.children, line => line.firstChild);
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

function promote(box, role) {
    const isRow = box.className != 'list', isBar = role == 'menubar';
    mark(box, { role });
    if (isRow != isBar) mark(box, { 'aria-orientation': isRow ? 'horizontal' : 'vertical' });
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

function ensureBox(menu) {
    const box = boxOf(menu);
    if (!state.layer) {
        state.layer = shared.createHost('layer');
        attend(state.layer, true);
    }
    if (!state.layer.isConnected) document.body.appendChild(state.layer);
    if (!box.isConnected) state.layer.shadowRoot.appendChild(box);
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

// ---- Showing and placing ----

function levelOf(link) {
    const menu = submenuOf(link), top = state.menus['0'];
    if (!menu) return null;
    const isBelowRow = !menu.zevId.includes('i') && setting(top, 'columns') > 1;
    const side = setting(menu, 'position', isBelowRow && top);
    return { menu, box: ensureBox(menu), opener: link, wish: realSide(side, isRtlAt(link)),
             offset: setting(null, 'menuoffset') };
}

// Chromium before 128 and Safari do not tell an element's zoom, and divide its rectangle by it.
function rectOf(element) {
    const { x, y, width, height } = element.getBoundingClientRect();
    let zoom = 1;
    if (!('currentCSSZoom' in element)) {
        for (let node = element; node; node = node.parentNode || node.host) {
            if (node.nodeType == 1) zoom *= getComputedStyle(node).zoom || 1;
        }
    }
    return new DOMRect(x * zoom, y * zoom, width * zoom, height * zoom);
}

// A pop-up stays with the page when that scrolls.
function anchorOf(level) {
    if (!level.point) return rectOf(level.opener);
    const x = level.point.x - window.scrollX, y = level.point.y - window.scrollY;
    return { left: x, right: x, top: y, bottom: y };
}

function placeLevel(level) {
    const { box } = level, { style } = box, isRtl = isRtlAt(level.opener || document.body);
    const root = document.scrollingElement || document.documentElement;
    const frame = { width: root.clientWidth, height: root.clientHeight };
    const origin = rectOf(state.layer), anchor = anchorOf(level);
    const pixels = length => unzoomed(length, origin, 100) + 'px';
    box.hidden = false;
    box.dir = isRtl ? 'rtl' : 'ltr';
    style.maxWidth = pixels(frame.width);
    style.maxHeight = style.overflowY = '';
    if (rectOf(box).height > frame.height) {
        style.maxHeight = pixels(frame.height);
        style.overflowY = 'auto';
    }
    const size = rectOf(box);
    const spot = place(anchor, size, level.wish, level.offset, frame, isRtl);
    style.left = pixels(spot.left - origin.left);
    style.top = pixels(spot.top - origin.top);
    level.side = spot.side;
}

function fade(level, direction, onEnd) {
    const duration = setting(level.menu, 'ffade') * 1000;
    if (!duration || matchMedia('(prefers-reduced-motion: reduce)').matches) return onEnd();
    level.box.getAnimations().forEach(fading => fading.cancel());
    level.box.animate([{}, { opacity: 0 }], { duration, direction }).onfinish = onEnd;
}

// Closes a level whose opener goes out of sight; an image's area has no box to be watched.
function follow(level) {
    if (!level.opener?.getClientRects().length) return;
    level.observer = new IntersectionObserver(entries => {
        // -1 if closed, but told in spite of disconnect().
        const index = state.levels.indexOf(level);
        const isLeft = !level.opener.isConnected || !level.box.contains(focused());
        if (index >= 0 && isLeft && !entries[entries.length - 1].isIntersecting) closeFrom(index);
    });
    level.observer.observe(level.opener);
}

function placeAll(event) {
    state.levels.slice(event ? depthAt(event.target) : 0).forEach(placeLevel);
}

function show(level) {
    const { box, opener } = level;
    // Measured first and marked then, so that styles are calculated once.
    follow(level);
    placeLevel(level);
    box.style.pointerEvents = '';
    if (opener) mark(opener, { 'aria-expanded': true });
    if (state.levels.length == 1) {
        const name = box.getAttribute('aria-label') || '';
        mark(state.layer, { role: 'navigation', 'aria-label': name });
        watch(true);
    }
    fade(level, 'reverse', () => {});
    buildAhead(box);
}

function hide(level) {
    const { box, opener } = level;
    level.observer?.disconnect();
    if (opener) {
        if (box.contains(focused())) opener.focus();
        mark(opener, { 'aria-expanded': false });
    }
    box.style.pointerEvents = 'none';
    fade(level, 'normal', () => { box.hidden = true; });
    if (!state.levels.length) {
        mark(state.layer, { role: null, 'aria-label': null });
        watch(false);
    }
}

function openSubmenu(link) {
    const depth = depthAt(link), level = levelOf(link);
    if (level && state.levels[depth]?.menu != level.menu) openLevel(depth, level);
}

// ---- Mouse ----

function onPointerMove(event) {
    if (event.pointerType != 'mouse') return;
    pointAt(boxAt(event.target), linkAt(event.target), { x: event.clientX, y: event.clientY });
}

// Holds a box that appears under a resting mouse, and opens nothing.
function onPointerOver(event) {
    if (event.pointerType == 'mouse' && !state.over) keep(depthAt(event.target));
}

function onPointerLeave(event) {
    if (event.pointerType == 'mouse') pointAway();
}

function onPress(event) {
    const link = linkAt(event.target) || popupLinkAt(event);
    if (link) state.press = { type: event.pointerType, wasOpen: isOpen(link) };
}

// A finger or an assistive technology, which presses nothing, first opens and then follows.
function onClick(event) {
    const link = linkAt(event.target);
    if (!link) return;
    const { type, wasOpen } = takePress();
    const isFirst = type != 'mouse' && !(type ? wasOpen : isOpen(link)) && submenuOf(link);
    if (isFirst) event.preventDefault();
    if (!isFirst && link.hasAttribute('href')) closeFrom(0);
    else openSubmenu(link);
}

// ---- Keyboard ----

function focused() {
    return (document.activeElement?.shadowRoot || document).activeElement;
}

function onFocusIn(event) {
    const link = event.target;
    if (!link.zevSubmenu || boxAt(link) != state.barBox) return;
    linksOf(state.barBox).forEach(other => { other.tabIndex = other == link ? 0 : -1; });
}

function enter(box, isAtEnd) {
    const links = linksOf(box), link = links[isAtEnd ? links.length - 1 : 0];
    link?.focus();
}

function openAndEnter(link, isAtEnd) {
    openSubmenu(link);
    const level = state.levels[depthAt(link)];
    if (level?.opener == link) enter(level.box, isAtEnd);
}

function sideOfSubmenu(link) {
    if (isOpen(link)) return state.levels[depthAt(link)].side;
    const level = levelOf(link);
    if (!level) return '';
    const wasHidden = level.box.hidden;
    placeLevel(level);
    level.box.hidden = wasHidden;
    return level.side;
}

function moveTo(target) {
    const depth = depthAt(target), hadOpen = state.levels.length;
    closeFrom(depth);
    target.focus();
    if (!depth && hadOpen) openSubmenu(target);
}

function nextLink(link, reading) {
    const box = boxAt(link), links = linksOf(box);
    const columns = setting(box.zevMenu, 'columns');
    return links[neighbour(links.indexOf(link), links.length, columns, reading)];
}

function onArrow(link, direction) {
    const depth = depthAt(link), level = state.levels[depth - 1];
    const reading = realSide(direction, isRtlAt(link));
    const next = nextLink(link, reading);
    if (next) return moveTo(next);
    const side = sideOfSubmenu(link);
    if (side == direction) return openAndEnter(link);
    if (level?.opener && level.side == opposite[direction]) return closeFrom(depth - 1);
    if (side && !level && side == opposite[direction]) return openAndEnter(link, true);
    if (side && (reading == 'right' || reading == 'bottom')) return openAndEnter(link);
    // From a submenu below a row the key goes on to the row's neighbour.
    const root = level && state.levels[0].opener;
    const isGridEnd = boxAt(link).className == 'grid' && !isBeside(reading);
    const beyond = root?.zevSubmenu && !isGridEnd && nextLink(root, reading);
    if (beyond) moveTo(beyond);
}

const arrows = { ArrowRight: 'right', ArrowLeft: 'left', ArrowDown: 'bottom', ArrowUp: 'top' };

// A space belongs to typing only after letters.
function onLetter(link, event) {
    const isMore = event.timeStamp - state.typed.time < fixed.typingMs;
    if (event.key.length != 1 || (event.key == ' ' && !isMore)) return false;
    const links = linksOf(boxAt(link)), text = (isMore ? state.typed.text : '') + event.key;
    const next = links[typeAhead(links.map(other => other.zevName), links.indexOf(link), text)];
    if (next || event.key != ' ') state.typed = { text, time: event.timeStamp };
    if (next) moveTo(next);
    return next;
}

function hasModifier(event) {
    return event.ctrlKey || event.altKey || event.metaKey;
}

function onKeyDown(event) {
    const link = event.target, { key } = event;
    if (!link.zevSubmenu || hasModifier(event)) return;
    const links = linksOf(boxAt(link));
    // Tab goes on from where closing puts the focus. WebKit names Shift+Tab only by its code.
    if (key == 'Tab' || event.code == 'Tab') return closeFrom(0);
    if (arrows[key]) {
        onArrow(link, arrows[key]);
    } else if (key == 'Home') {
        moveTo(links[0]);
    } else if (key == 'End') {
        moveTo(links[links.length - 1]);
    } else if (!onLetter(link, event)) {
        if (key != ' ' && key != 'Enter') return;
        if (submenuOf(link)) openAndEnter(link);
        else if (key == ' ') link.click();
        else return;
    }
    event.preventDefault();
}

function onEscape(event) {
    if (event.key != 'Escape') return;
    const index = state.levels.findIndex(level => level.box.contains(focused()));
    closeFrom(Math.max(index, 0));
}

function onOutside(event) {
    const path = event.composedPath();
    const { layer, bar, levels } = state;
    if (![layer, bar, levels[0].opener].some(own => path.includes(own))) closeFrom(0);
}

// ---- Links of pop-ups ----

const handlers = ['onmouseover', 'onclick', 'onfocus'];
const popupLinks = handlers.map(name => `[${name}*="ZEVMenuOpen"]`).join();
const anyLink = 'a,area,button,input,[tabindex],' + popupLinks;

// Known by its attributes, or from its first call on.
function popupLinkAt({ target }) {
    return (target instanceof Element && target.closest(popupLinks)) || around(target, 'zevPopup');
}

const popupMarks = ['aria-expanded', 'aria-haspopup', 'tabindex', 'role'];

function adopt(link) {
    link.zevOwn ??= Object.fromEntries(popupMarks.map(name => [name, link.getAttribute(name)]));
    if (!link.hasAttribute('aria-expanded')) mark(link, { 'aria-expanded': false });
    mark(link, { 'aria-haspopup': true });
    if (link.matches('[href],button,input,[tabindex]')) return;
    link.tabIndex = 0;
    if (!link.hasAttribute('role')) mark(link, { role: 'button' });
}

function release(link) {
    if (!link.zevOwn) return;
    mark(link, link.zevOwn);
    delete link.zevOwn;
    delete link.zevPopup;
}

shared.openPopup = function (call) {
    const { id, isEvent, x, y } = call, { levels, actingLink } = state, menu = state.menus[id];
    if (!document.body || (document.readyState == 'loading' && !menu)) {
        state.earlyCall = call;
        return;
    }
    if (!menu) return warn(`ZEVMenuOpen: there is no submenu "${id}"`);
    const isLink = call.link instanceof Element && call.link.matches(anyLink);
    const link = isLink ? call.link : actingLink;
    if (link) {
        link.zevPopup = id;
        adopt(link);
    }
    if (levels[0]?.menu == menu && levels[0].opener == link) return keep(1);
    closeFrom(0);
    // By a key, a tap or the focus the menu opens below the link.
    const isBelow = link && isEvent && (actingLink || x == null);
    openLevel(0, {
        menu, box: ensureBox(menu), opener: link,
        point: isBelow ? null : { x: x || 0, y: y || 0 },
        wish: isBelow ? 'bottom' : isEvent ? realSide('right', isRtlAt(document.body)) : '',
        offset: isBelow || !isEvent ? 0 : fixed.besideMousePx
    });
};

// By its handler, or as its listener did last.
function openFrom(link, event) {
    const name = handlers.find(name => /ZEVMenuOpen/.test(link.getAttribute(name)));
    state.actingLink = link;
    try {
        if (link[name]) link[name](event);
        else if (link.zevPopup) shared.openPopup({ id: link.zevPopup, isEvent: true });
    } finally {
        state.actingLink = null;
    }
    return isOpen(link);
}

function onPageClick(event) {
    const link = popupLinkAt(event);
    if (!link) return;
    const { type, wasOpen } = takePress(), isTap = type != 'mouse' && !wasOpen;
    // An empty address would load the page anew.
    if (link.getAttribute('href') == '' || isTap) event.preventDefault();
    if (isTap && !isOpen(link)) openFrom(link, event);
}

function onPageKey(event) {
    const link = popupLinkAt(event), { key } = event;
    if (!link || hasModifier(event)) return;
    const isPress = key == 'Enter' || key == 'ArrowDown' || (key == ' ' && !link.matches('[href]'));
    if (!isPress || !openFrom(link, event)) return;
    event.preventDefault();
    enter(state.levels[0].box);
}

function openEarly() {
    const call = state.earlyCall;
    state.earlyCall = null;
    if (call) shared.openPopup(call);
}

// ---- What is added, and taken away again ----

function listen(target, isOn, listeners, isCapturing) {
    const change = isOn ? 'addEventListener' : 'removeEventListener';
    Object.keys(listeners).forEach(type => target[change](type, listeners[type], isCapturing));
}

// The page, while a submenu is open.
function watch(isOn) {
    listen(document, isOn, { keydown: onEscape, pointerdown: onOutside }, true);
    listen(window, isOn, { scroll: placeAll }, true);
    listen(window, isOn, { resize: placeAll });
}

// The top menu, or the layer of the submenus.
function attend(host, isOn) {
    listen(host.shadowRoot, isOn, { scroll: placeAll }, true);
    listen(host.shadowRoot, isOn, {
        pointerover: onPointerOver, pointermove: onPointerMove, pointerdown: onPress,
        click: onClick, keydown: onKeyDown, focusin: onFocusIn
    });
    listen(host, isOn, { pointerleave: onPointerLeave });
}

shared.serve = function (isOn) {
    listen(document, isOn, {
        pointerdown: onPress, click: onPageClick, keydown: onPageKey, DOMContentLoaded: finish
    });
    listen(window, isOn, { load: onLoad });
};

shared.adoptBar = function () {
    attend(state.bar, true);
    promote(state.barBox, 'menubar');
    if (!state.bar.closest('nav,[role=navigation]')) mark(state.bar, { role: 'navigation' });
    // The mouse may have been there first.
    const link = state.barBox.querySelector('li:hover>a');
    if (link) openSubmenu(link);
    buildAhead(state.barBox);
};

function finish() {
    openEarly();
    document.querySelectorAll(popupLinks).forEach(adopt);
    Object.keys(state.menus).forEach(id => {
        if (id == '0' || itemOf(state.menus[id])) return;
        warn(`menu ${id} has no item to open from`);
    });
}

function onLoad() {
    buildAhead(state.barBox);
}

shared.refresh = function () {
    if (document.readyState != 'loading') finish();
    placeAll();
};

shared.stop = function () {
    const { bar, barBox, layer } = state;
    closeFrom(0);
    dropCrossing();
    (window.cancelIdleCallback || clearTimeout)(state.building);
    shared.serve(false);
    if (barBox) attend(bar, false);
    if (layer) {
        attend(layer, false);
        layer.remove();
    }
    document.querySelectorAll('[aria-haspopup]').forEach(release);
};

if (!state.isRemoved) {
    shared.serve(true);
    if (document.readyState != 'loading') finish();
    if (state.barBox) shared.adoptBar();
    openEarly();
}

})();
