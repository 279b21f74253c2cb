// Submenus, pop-ups, placement and keyboard of a menu that zevmenu_loader.js drew.
(function () {
'use strict';

const shared = window.ZEVMenu?.shared;
if (!shared || shared.sums) return;
const { menus, setting, warn } = shared;

// ---- Sums: rectangles in, coordinates out ----

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

// ---- State ----

// The open submenus: `opener` is the item or link, `wish` the side to open on, `side` the one
// found, `point` a pop-up's place.
const levels = [];

function openLevel(depth, level) {
    const { box, opener } = level;
    closeFrom(depth);
    levels.push(level);
    // Measured first and marked then, so that styles are calculated once.
    follow(level);
    placeLevel(level);
    box.style.pointerEvents = '';
    if (opener) mark(opener, { 'aria-expanded': true });
    if (!depth) {
        mark(layer, { role: 'navigation', 'aria-label': box.getAttribute('aria-label') || '' });
        watch(true);
    }
    fade(level, 'reverse', () => {});
    buildAhead(box);
}

function closeFrom(depth) {
    while (levels.length > depth) hide(levels.pop());
}

function hide(level) {
    const { box, opener } = level;
    clearTimeout(level.timer);
    level.observer?.disconnect();
    if (opener) {
        if (box.contains(focused())) opener.focus();
        mark(opener, { 'aria-expanded': false });
    }
    box.style.pointerEvents = 'none';
    fade(level, 'normal', () => { box.hidden = true; });
    if (!levels.length) {
        layer.removeAttribute('role');
        layer.removeAttribute('aria-label');
        watch(false);
    }
}

// Lets all but the first `depth` levels close after the delay.
function keep(depth) {
    levels.forEach((level, index) => {
        if (index < depth) {
            clearTimeout(level.timer);
            level.timer = 0;
        } else if (!level.timer) {
            level.timer = setTimeout(() => closeFrom(levels.indexOf(level)),
                                     setting(null, 'closedelay'));
        }
    });
}

// ---- Page ----

let layer = null;           // holds every submenu box

function submenuOf(link) {
    const menu = menus[link.zevSubmenu];
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

// 0 in the top menu, 1 in the first open level.
function depthOf(element) {
    const box = boxAt(element);
    return levels.findIndex(level => level.box == box) + 1;
}

function isRtlAt(element) {
    return getComputedStyle(element).direction == 'rtl';
}

function isOpen(link) {
    return link.getAttribute('aria-expanded') == 'true';
}

function mark(element, attributes) {
    Object.keys(attributes).forEach(name => element.setAttribute(name, attributes[name]));
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
    return menus[parentId || '0']?.zevItems[position - 1];
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
    if (!layer) {
        layer = shared.createHost('layer');
        listen(layer);
    }
    if (!layer.isConnected) document.body.appendChild(layer);
    if (!box.isConnected) layer.shadowRoot.appendChild(box);
    return box;
}

const mostMenusAhead = 50, mostItemsAhead = 200;
let ahead = [];             // menus still to be built

function buildAhead(box) {
    // Until the page has loaded, its scripts may add to the definition.
    if (!box || document.readyState != 'complete') return;
    const isRunning = ahead.length;
    ahead = linksOf(box).map(submenuOf)
        .filter(menu => menu && !menu.zevBox && !ahead.includes(menu) &&
                menu.zevItems.length <= mostItemsAhead)
        .slice(0, mostMenusAhead).concat(ahead);
    if (!isRunning) buildWhenIdle();
}

function buildWhenIdle() {
    if (ahead.length) (window.requestIdleCallback || setTimeout)(() => {
        boxOf(ahead.shift());
        buildWhenIdle();
    });
}

// ---- Showing and placing ----

function levelOf(link) {
    const menu = submenuOf(link), top = menus['0'];
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
    const origin = rectOf(layer), anchor = anchorOf(level);
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
        const index = levels.indexOf(level);    // -1: closed, but told in spite of disconnect()
        const isLeft = !level.opener.isConnected || !level.box.contains(focused());
        if (index >= 0 && isLeft && !entries[entries.length - 1].isIntersecting) closeFrom(index);
    });
    level.observer.observe(level.opener);
}

function placeAll(event) {
    levels.slice(event ? depthOf(event.target) : 0).forEach(placeLevel);
}

function openSubmenu(link) {
    const depth = depthOf(link), level = levelOf(link);
    if (level && levels[depth]?.menu != level.menu) openLevel(depth, level);
}

const besideMousePx = 8;
let actingLink = null;      // the pop-up link that a key or tap is to open

shared.openPopup = function (call) {
    const { id, isEvent, x, y } = call, menu = menus[id];
    if (!document.body || (document.readyState == 'loading' && !menu)) {
        shared.waiting = call;
        return;
    }
    if (!menu) return warn(`ZEVMenuOpen: there is no submenu "${id}"`);
    const link = call.link instanceof Element && call.link.matches(anyLink) ? call.link : actingLink;
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
        offset: isBelow || !isEvent ? 0 : besideMousePx
    });
};

shared.closePopup = function (id) {
    // Browsers may tell of the arrival on the pop-up before the leaving of the link.
    const isInside = over && depthOf(over.box) > 0;
    if (levels[0]?.menu.zevId == id && !isInside) keep(0);
};

// ---- Mouse ----

const restMs = 200;                 // a mouse that rests so long stays
let over = null;                    // { box, link } under the mouse
let lastPoint = null;
let waiting = null;                 // { from, timer } of a hover put off

function dropWaiting() {
    clearTimeout(waiting?.timer);
    waiting = null;
}

function hover() {
    const { box, link } = over, depth = depthOf(box), child = levels[depth];
    dropWaiting();
    if (link && child?.opener == link) return keep(depth + 1);
    keep(depth);
    if (link) openSubmenu(link);
}

function onPointerMove(event) {
    if (event.pointerType != 'mouse') return;
    const point = { x: event.clientX, y: event.clientY };
    const link = linkAt(event.target), box = boxAt(event.target), before = lastPoint, was = over;
    lastPoint = point;
    if (!box || (was && was.link == link && was.box == box && !waiting)) return;
    over = { box, link };
    // On its way to a submenu the mouse may cross other items.
    const from = waiting ? waiting.from : before, level = levels[depthOf(box)];
    dropWaiting();
    if (was && level && level.opener != link &&
        isHeadedFor(from, point, rectOf(level.box), level.side)) {
        waiting = { from, timer: setTimeout(hover, restMs) };
    } else {
        hover();
    }
}

// Holds a box that appears under a resting mouse, and opens nothing.
function onPointerOver(event) {
    if (event.pointerType == 'mouse' && !over) keep(depthOf(event.target));
}

function onPointerLeave(event) {
    if (event.pointerType != 'mouse') return;
    lastPoint = over = null;
    dropWaiting();
    keep(0);
}

let press = {};             // the last pointerdown on a link, until the click

function onPress(event) {
    const link = linkAt(event.target) || popupLinkAt(event);
    if (link) press = { type: event.pointerType, wasOpen: isOpen(link) };
}

// A finger or an assistive technology, which presses nothing, first opens and then follows.
function onClick(event) {
    const link = linkAt(event.target);
    if (!link) return;
    const { type, wasOpen } = press;
    press = {};
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
    if (!link.zevSubmenu || boxAt(link) != shared.barBox) return;
    linksOf(shared.barBox).forEach(other => { other.tabIndex = other == link ? 0 : -1; });
}

function enter(box, isAtEnd) {
    const links = linksOf(box), link = links[isAtEnd ? links.length - 1 : 0];
    link?.focus();
}

function openAndEnter(link, isAtEnd) {
    openSubmenu(link);
    const level = levels[depthOf(link)];
    if (level?.opener == link) enter(level.box, isAtEnd);
}

function sideOfSubmenu(link) {
    if (isOpen(link)) return levels[depthOf(link)].side;
    const level = levelOf(link);
    if (!level) return '';
    const wasHidden = level.box.hidden;
    placeLevel(level);
    level.box.hidden = wasHidden;
    return level.side;
}

function moveTo(target) {
    const depth = depthOf(target), hadOpen = levels.length;
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
    const depth = depthOf(link), level = levels[depth - 1], reading = realSide(direction, isRtlAt(link));
    const next = nextLink(link, reading);
    if (next) return moveTo(next);
    const side = sideOfSubmenu(link);
    if (side == direction) return openAndEnter(link);
    if (level?.opener && level.side == opposite[direction]) return closeFrom(depth - 1);
    if (side && !level && side == opposite[direction]) return openAndEnter(link, true);
    if (side && (reading == 'right' || reading == 'bottom')) return openAndEnter(link);
    // From a submenu below a row the key goes on to the row's neighbour.
    const root = level && levels[0].opener;
    const isGridEnd = boxAt(link).className == 'grid' && !isBeside(reading);
    const beyond = root?.zevSubmenu && !isGridEnd && nextLink(root, reading);
    if (beyond) moveTo(beyond);
}

const arrows = { ArrowRight: 'right', ArrowLeft: 'left', ArrowDown: 'bottom', ArrowUp: 'top' };

const typingMs = 700;               // letters that follow sooner belong together
let typed = { text: '', time: 0 };

// A space belongs to typing only after letters.
function onLetter(link, event) {
    const isMore = event.timeStamp - typed.time < typingMs;
    if (event.key.length != 1 || (event.key == ' ' && !isMore)) return false;
    const links = linksOf(boxAt(link)), text = (isMore ? typed.text : '') + event.key;
    const next = links[typeAhead(links.map(other => other.zevName), links.indexOf(link), text)];
    if (next || event.key != ' ') typed = { text, time: event.timeStamp };
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
    const index = levels.findIndex(level => level.box.contains(focused()));
    closeFrom(Math.max(index, 0));
}

function onOutside(event) {
    const path = event.composedPath();
    if (![layer, shared.bar, levels[0].opener].some(own => path.includes(own))) closeFrom(0);
}

function watch(isOn) {
    const change = isOn ? 'addEventListener' : 'removeEventListener';
    document[change]('keydown', onEscape, true);
    document[change]('pointerdown', onOutside, true);
    window[change]('scroll', placeAll, true);
    window[change]('resize', placeAll);
}

function listen(host) {
    const root = host.shadowRoot;
    root.addEventListener('scroll', placeAll, true);
    root.addEventListener('pointerover', onPointerOver);
    root.addEventListener('pointermove', onPointerMove);
    root.addEventListener('pointerdown', onPress);
    root.addEventListener('click', onClick);
    root.addEventListener('keydown', onKeyDown);
    root.addEventListener('focusin', onFocusIn);
    host.addEventListener('pointerleave', onPointerLeave);
}

// ---- Links of pop-ups ----

const handlers = ['onmouseover', 'onclick', 'onfocus'];
const popupLinks = handlers.map(name => `[${name}*="ZEVMenuOpen"]`).join();
const anyLink = 'a,area,button,input,[tabindex],' + popupLinks;

// Known by its attributes, or from its first call on.
function popupLinkAt({ target }) {
    return (target instanceof Element && target.closest(popupLinks)) || around(target, 'zevPopup');
}

function adopt(link) {
    if (!link.hasAttribute('aria-expanded')) mark(link, { 'aria-expanded': false });
    mark(link, { 'aria-haspopup': true });
    if (link.matches('[href],button,input,[tabindex]')) return;
    link.tabIndex = 0;
    if (!link.hasAttribute('role')) mark(link, { role: 'button' });
}

// By its handler, or as its listener did last.
function openFrom(link, event) {
    const name = handlers.find(name => /ZEVMenuOpen/.test(link.getAttribute(name)));
    actingLink = link;
    try {
        if (link[name]) link[name](event);
        else if (link.zevPopup) shared.openPopup({ id: link.zevPopup, isEvent: true });
    } finally {
        actingLink = null;
    }
    return isOpen(link);
}

function onPageClick(event) {
    const link = popupLinkAt(event);
    if (!link) return;
    const isTap = press.type != 'mouse' && !press.wasOpen;
    press = {};
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
    enter(levels[0].box);
}

shared.adoptBar = function () {
    listen(shared.bar);
    promote(shared.barBox, 'menubar');
    if (!shared.bar.closest('nav,[role=navigation]')) mark(shared.bar, { role: 'navigation' });
    // The mouse may have been there first.
    const link = shared.barBox.querySelector('li:hover>a');
    if (link) openSubmenu(link);
    buildAhead(shared.barBox);
};

function openWaiting() {
    const call = shared.waiting;
    shared.waiting = null;
    if (call) shared.openPopup(call);
}

function finish() {
    openWaiting();
    document.querySelectorAll(popupLinks).forEach(adopt);
    Object.keys(menus).forEach(id => {
        if (id == '0' || itemOf(menus[id])) return;
        warn(`menu ${id} has no item to open from`);
    });
}

shared.refresh = function () {
    if (document.readyState != 'loading') finish();
    placeAll();
};

document.addEventListener('pointerdown', onPress);
document.addEventListener('click', onPageClick);
document.addEventListener('keydown', onPageKey);
document.addEventListener('DOMContentLoaded', finish);
window.addEventListener('load', () => buildAhead(shared.barBox));
if (document.readyState != 'loading') finish();
if (shared.barBox) shared.adoptBar();
openWaiting();

})();
