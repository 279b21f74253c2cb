/*
 * zevmenu_dom.js: submenus, pop-ups, placement and keyboard of a menu that zevmenu_loader.js drew.
 *
 *   sums   rectangles in, coordinates out; needs no page
 *   state  what is open, and which delay runs
 *   page   elements, styles, events
 */
(function () {
'use strict';

const shared = window.ZEVMenu && window.ZEVMenu.shared;
if (!shared || shared.sums) return;

// ======== Sums ========
// Rectangles are { left, top, right, bottom } in pixels of the window, sizes { width, height }.

const opposite = { right: 'left', left: 'right', top: 'bottom', bottom: 'top' };

// A side as it reads, as the side where it lies: a right-to-left page mirrors right and left.
function realSide(side, isRtl) {
    return isRtl && (side == 'right' || side == 'left') ? opposite[side] : side;
}

// Room between the anchor and the window's edge on a side.
function roomOn(side, anchor, frame) {
    return { right: frame.width - anchor.right, left: anchor.left,
             bottom: frame.height - anchor.bottom, top: anchor.top }[side];
}

// The side to use: the wished one, or the opposite one when only there is room.
function chooseSide(side, anchor, size, offset, frame) {
    const need = offset + (side == 'right' || side == 'left' ? size.width : size.height);
    return roomOn(side, anchor, frame) < need && roomOn(opposite[side], anchor, frame) >= need
        ? opposite[side] : side;
}

// Nearest place to `start` at which `length` lies within 0 to `limit`; the start wins if too long.
function shift(start, length, limit) {
    return Math.max(0, Math.min(start, limit - length));
}

/*
 * Where a box of `size` opens beside `anchor`: flipped to the opposite side when only that has
 * room, then shifted into the window of size `frame`, over the anchor if need be. `side` is a real
 * side; without one the box begins at the anchor's corner. Gives { left, top, side }.
 */
function place(anchor, size, side, offset, frame, isRtl) {
    const real = side && chooseSide(side, anchor, size, offset, frame);
    let left = isRtl && side ? anchor.right - size.width : anchor.left;
    let top = anchor.top;
    if (real == 'right') left = anchor.right + offset;
    if (real == 'left') left = anchor.left - offset - size.width;
    if (real == 'bottom') top = anchor.bottom + offset;
    if (real == 'top') top = anchor.top - offset - size.height;
    return { left: shift(left, size.width, frame.width), top: shift(top, size.height, frame.height),
             side: real };
}

// A length in the window as a length inside the layer, which a page's zoom may enlarge. The layer is
// `ruler` pixels wide by its own measure and as wide as `origin` in the window.
function unzoomed(length, origin, ruler) {
    return length * ruler / ((origin.right - origin.left) || ruler);
}

function cross(a, b, c) {
    return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

function isInTriangle(point, a, b, c) {
    const signs = [cross(a, b, point), cross(b, c, point), cross(c, a, point)];
    return !(signs.some(sign => sign < 0) && signs.some(sign => sign > 0));
}

// Whether a pointer that was at `from` and is at `to` is on its way to `box`, which stands on
// `side` of its item: inside the triangle from there to the near edge of the box, a little widened.
function isHeadedFor(from, to, box, side) {
    const slack = 8;
    const near = opposite[side];
    if (!near) return false;
    const apex = { x: from.x, y: from.y };
    if (side == 'right' || side == 'left') {
        apex.x += side == 'right' ? -2 : 2;
        return isInTriangle(to, apex, { x: box[near], y: box.top - slack },
                            { x: box[near], y: box.bottom + slack });
    }
    apex.y += side == 'bottom' ? -2 : 2;
    return isInTriangle(to, apex, { x: box.left - slack, y: box[near] },
                        { x: box.right + slack, y: box[near] });
}

/*
 * The item that an arrow key leads to within a box of `count` items in rows of `columns`, or -1
 * when the key leads out of the box. A single column or row goes round at its ends.
 */
function neighbour(index, count, columns, direction) {
    const isForward = direction == 'right' || direction == 'bottom';
    const isAlongRow = direction == 'right' || direction == 'left';
    if (columns == 1 || columns >= count) {
        if (isAlongRow == (columns == 1)) return -1;
        return (index + (isForward ? 1 : count - 1)) % count;
    }
    const next = index + (isForward ? 1 : -1) * (isAlongRow ? 1 : columns);
    const isSameRow = Math.floor(next / columns) == Math.floor(index / columns);
    return next < 0 || next >= count || (isAlongRow && !isSameRow) ? -1 : next;
}

/*
 * The item among `names` that typed letters lead to from the one at `index`, or -1. One letter, also
 * repeated, goes on to the next name that begins with it; more letters may stay where they fit.
 */
function typeAhead(names, index, typed) {
    const text = typed.toLowerCase(), isOneLetter = text == text[0].repeat(text.length);
    const start = isOneLetter ? text[0] : text;
    for (let i = 0; i < names.length; i++) {
        const next = (index + i + (isOneLetter ? 1 : 0)) % names.length;
        if (names[next].trim().toLowerCase().startsWith(start)) return next;
    }
    return -1;
}

shared.sums = { place, unzoomed, isHeadedFor, neighbour, realSide, typeAhead };

// ======== State ========
// The open submenus, from the one nearest the top menu to the deepest. A level is
// { menu, box, opener, wish, offset, point, side, timer, observer }: `opener` is the item or the pop-up's
// link, or null for a pop-up at coordinates; `wish` the real side it is to open on and `offset` its
// distance in pixels; `point` where a pop-up stands; `side` where the box really lies.

const levels = [];

function openLevel(depth, level) {
    closeFrom(depth);
    levels.push(level);
    show(level);
}

function closeFrom(depth) {
    while (levels.length > depth) {
        const level = levels.pop();
        clearTimeout(level.timer);
        hide(level);
    }
}

// The mouse is where it holds the first `depth` levels open: deeper ones have been left, and close
// when their delay is over. A delay that already runs is not begun anew.
function keep(depth) {
    levels.forEach((level, index) => {
        if (index < depth) {
            clearTimeout(level.timer);
            level.timer = 0;
        } else if (!level.timer) {
            level.timer = setTimeout(() => closeFrom(levels.indexOf(level)),
                                     shared.stateSetting('closedelay'));
        }
    });
}

// ======== Page ========

let layer = null;           // the element at the end of the body that holds every submenu box
const boxes = new Map();    // menu -> its box, built when the menu is first opened
const told = new Set();     // what a warning was given for

function submenuOf(link) {
    const menu = shared.menus[link.zevItem.childId];
    return menu && menu.zevItems.some(Boolean) ? menu : null;
}

// The item and the box that an element inside them belongs to, or null.
function linkAt(element) {
    while (element && !element.zevItem) element = element.parentNode;
    return element;
}

function boxAt(element) {
    while (element && !element.zevMenu) element = element.parentNode;
    return element;
}

function linksOf(box) {
    return Array.from(box.children, line => line.firstChild);
}

// Depth of a box: 0 is the top menu, 1 the first open level.
function depthOf(box) {
    return levels.findIndex(level => level.box == box) + 1;
}

function isRtlAt(element) {
    return getComputedStyle(element).direction == 'rtl';
}

// The list of links becomes a menu in the sense of assistive technology.
function promote(box, role) {
    box.setAttribute('role', role);
    const isRow = box.className != 'list';
    if (isRow != (role == 'menubar')) {
        box.setAttribute('aria-orientation', isRow ? 'horizontal' : 'vertical');
    }
    linksOf(box).forEach((link, index) => {
        link.parentNode.setAttribute('role', 'none');
        link.setAttribute('role', 'menuitem');
        link.tabIndex = role == 'menubar' && index == 0 ? 0 : -1;
        if (submenuOf(link)) {
            link.setAttribute('aria-haspopup', 'true');
            link.setAttribute('aria-expanded', 'false');
        }
    });
}

// The menu that a submenu opens from, and its item there; undefined or null where there is none.
function parentOf(menu) {
    return shared.menus[menu.zevId.replace(/i?\d+$/, '') || '0'];
}

function itemOf(menu) {
    const parent = parentOf(menu);
    return parent && parent.zevItems[/\d+$/.exec(menu.zevId)[0] - 1];
}

function ensureLayer() {
    if (!layer) {
        layer = shared.createHost('layer');
        listen(layer);
    }
    if (!layer.isConnected) document.body.appendChild(layer);
}

function boxOf(menu) {
    let box = boxes.get(menu);
    if (!box) {
        box = shared.buildBox(menu);
        box.hidden = true;
        // A submenu bears the name of its item.
        if (itemOf(menu)) box.setAttribute('aria-label', shared.nameOf(parentOf(menu), itemOf(menu)));
        promote(box, 'menu');
        boxes.set(menu, box);
    }
    return box;
}

// The box of a menu, in the page.
function ensureBox(menu) {
    const box = boxOf(menu);
    ensureLayer();
    if (!box.isConnected) layer.shadowRoot.appendChild(box);
    return box;
}

// ---- Building ahead ----
// The submenus of a box that can be seen are likely to open next. While the page is idle they are
// built, outside the page, so that the first opening is as fast as the later ones.

const mostMenusAhead = 50, mostItemsAhead = 200;
let ahead = [];             // menus still to be built, the likeliest first

function buildAhead(box) {
    // Until the page has loaded, its scripts may add to the definition.
    if (!box || document.readyState != 'complete') return;
    const isRunning = ahead.length > 0;
    const menus = linksOf(box).map(submenuOf).filter(menu =>
        menu && !boxes.has(menu) && menu.zevItems.length <= mostItemsAhead);
    ahead = menus.slice(0, mostMenusAhead).concat(ahead);
    if (!isRunning && ahead.length) whenIdle(buildNext);
}

function buildNext() {
    boxOf(ahead.shift());
    if (ahead.length) whenIdle(buildNext);
}

function whenIdle(action) {
    if (window.requestIdleCallback) window.requestIdleCallback(action);
    else setTimeout(action, 100);
}

// ---- Showing and placing ----

// The side on which a submenu is to open: its own position, else for the submenu of a top menu
// that is a row the top menu's, else everybody's.
function wishedSide(menu) {
    const top = shared.menus['0'];
    const isBelowRow = top && !menu.zevId.includes('i') && shared.setting(top, 'columns') > 1;
    return shared.isSide(menu.position) || (isBelowRow && shared.isSide(top.position)) ||
        shared.stateSetting('position');
}

function menuOffset() {
    return shared.stateSetting('menuoffset');
}

function windowSize() {
    const root = document.scrollingElement || document.documentElement;
    return { width: root.clientWidth, height: root.clientHeight };
}

// The rectangle of an element in the window. Browsers that do not tell an element's zoom divide the
// rectangle by it (Chromium before 128, Safari).
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

// The rectangle a level opens from. A pop-up's point is in page coordinates, so that it stays with
// the page when that scrolls.
function anchorOf(level) {
    if (!level.point) return rectOf(level.opener);
    const x = level.point.x - window.scrollX, y = level.point.y - window.scrollY;
    return { left: x, right: x, top: y, bottom: y };
}

// A length in the window as a style of a box.
function pixels(length) {
    return unzoomed(length, rectOf(layer), 100) + 'px';
}

// Measures a box as it would stand in the window; it must not be hidden.
function measure(box, frame) {
    box.style.maxWidth = pixels(frame.width);
    box.style.maxHeight = box.style.overflowY = '';
    let size = rectOf(box);
    if (size.height > frame.height) {
        box.style.maxHeight = pixels(frame.height);
        box.style.overflowY = 'auto';
        size = rectOf(box);
    }
    return size;
}

function placeLevel(level) {
    const frame = windowSize(), isRtl = isRtlAt(level.opener || document.body);
    level.box.dir = isRtl ? 'rtl' : 'ltr';
    const size = measure(level.box, frame);
    const spot = place(anchorOf(level), size, level.wish, level.offset, frame, isRtl);
    const origin = rectOf(layer);
    level.box.style.left = pixels(spot.left - origin.left);
    level.box.style.top = pixels(spot.top - origin.top);
    level.side = spot.side;
}

function fade(level, from, to, onEnd) {
    const seconds = shared.setting(level.menu, 'ffade');
    const box = level.box, full = shared.setting(level.menu, 'fopacity') / 100;
    if (box.zevFading) box.zevFading.cancel();
    box.zevFading = null;
    if (!seconds || matchMedia('(prefers-reduced-motion: reduce)').matches) return onEnd();
    box.zevFading = box.animate([{ opacity: from * full }, { opacity: to * full }], seconds * 1000);
    box.zevFading.onfinish = onEnd;
}

function show(level) {
    const box = level.box;
    box.hidden = false;
    box.style.pointerEvents = '';
    placeLevel(level);
    fade(level, 0, 1, () => {});
    if (level.opener) level.opener.setAttribute('aria-expanded', 'true');
    if (levels.length == 1) {
        // What is open lies outside the top menu's landmark, and is another one.
        layer.setAttribute('role', 'navigation');
        layer.setAttribute('aria-label', box.getAttribute('aria-label') || '');
        watch(true);
    }
    follow(level);
    buildAhead(box);
}

// Closes a level whose opener is scrolled out of sight, hidden or removed. (Some openers, such as
// the areas of an image, have no box of their own to be watched.)
function follow(level) {
    if (!level.opener || !level.opener.getClientRects().length) return;
    level.observer = new IntersectionObserver(entries => {
        const index = levels.indexOf(level);    // -1: closed, but told in spite of disconnect()
        const isLeft = !level.opener.isConnected || !level.box.contains(focused());
        if (index >= 0 && isLeft && !entries[entries.length - 1].isIntersecting) closeFrom(index);
    });
    level.observer.observe(level.opener);
}

function hide(level) {
    const opener = level.opener;
    if (level.observer) level.observer.disconnect();
    if (level.box.contains(focused()) && opener) opener.focus();
    if (opener) opener.setAttribute('aria-expanded', 'false');
    // A box that fades away is no longer there for the mouse.
    level.box.style.pointerEvents = 'none';
    fade(level, 1, 0, () => { level.box.hidden = true; });
    if (!levels.length) {
        layer.removeAttribute('role');
        layer.removeAttribute('aria-label');
        watch(false);
    }
}

// When a box scrolls, what it opened moves; when anything else does, everything may.
function placeAll(event) {
    const box = event && boxAt(event.target);
    levels.slice(box ? depthOf(box) : 0).forEach(placeLevel);
}

// ---- Opening ----

function openSubmenu(link) {
    const depth = depthOf(boxAt(link)), menu = submenuOf(link);
    if (!menu || (levels[depth] && levels[depth].menu == menu)) return;
    openLevel(depth, { menu, box: ensureBox(menu), opener: link, offset: menuOffset(),
                       wish: realSide(wishedSide(menu), isRtlAt(link)) });
}

function isOpen(link) {
    return link.getAttribute('aria-expanded') == 'true';
}

// Id named by the two texts of a pop-up call: 'zev1' and the id, or 'zev1i' + N and the rest of it.
function popupId(a, b) {
    const call = typeof a == 'string' && /^zev1(?:i(\d+))?$/.exec(a);
    if (!call || !/^(string|number)$/.test(typeof b)) return '';
    return call[1] ? call[1] + 'i' + b : '' + b;
}

function popupMenu(id) {
    const menu = shared.menus[id];
    if (menu && menu.zevItems && id != '0') return menu;
    if (!told.has('popup ' + id)) shared.warn('ZEVMenuOpen: there is no submenu "' + id + '"');
    told.add('popup ' + id);
    return null;
}

const besideMousePx = 8;
let actingLink = null;      // the pop-up link whose handler runs because of a key or tap

shared.openPopup = function (a, b, where) {
    const id = popupId(a, b);
    if (document.readyState == 'loading' && !(document.body && shared.menus[id])) {
        shared.waiting = [a, b, where];
        return;
    }
    const menu = popupMenu(id);
    if (!menu || !document.body) return;
    const link = actingLink || (where.link instanceof Element ? where.link : null);
    if (levels.length && levels[0].menu == menu && levels[0].opener == link) return keep(1);
    closeFrom(0);
    const level = { menu, box: ensureBox(menu), opener: link, wish: 'bottom', offset: 0 };
    if (where.pageX != null && where.pageY != null) {
        level.point = { x: where.pageX, y: where.pageY };
        level.wish = '';
    } else if (!actingLink) {
        level.point = { x: (where.clientX || 0) + window.scrollX,
                        y: (where.clientY || 0) + window.scrollY };
        level.wish = realSide('right', isRtlAt(document.body));
        level.offset = besideMousePx;
    }
    openLevel(0, level);
};

shared.closePopup = function (a, b) {
    // A browser may tell of the arrival on the pop-up before it tells of the leaving of the link.
    const isInside = over && depthOf(over.box) > 0;
    if (levels.length && levels[0].menu.zevId == popupId(a, b) && !isInside) keep(0);
};

// ---- Mouse ----

const restMs = 200;                 // how long a mouse rests before it counts as staying
let over = null;                    // { box, link } the mouse is on, or null while on no menu
let lastPoint = null;               // where it is there, in the window
let waiting = null;                 // { from, timer }: a hover put off, see onPointerMove()

function dropWaiting() {
    if (waiting) clearTimeout(waiting.timer);
    waiting = null;
}

// The mouse has come to stay: on an item, or on a box beside its items (link null).
function hover() {
    const { box, link } = over, depth = depthOf(box), child = levels[depth];
    dropWaiting();
    if (link && child && child.opener == link) return keep(depth + 1);
    keep(depth);
    if (link) openSubmenu(link);
}

function isOnItsWay(from, point, level) {
    return isHeadedFor(from, point, rectOf(level.box), level.side);
}

// Only a mouse that moves points at something: a box that appears under a resting one is entered
// (pointerover), but not moved on.
function onPointerMove(event) {
    const point = { x: event.clientX, y: event.clientY }, before = lastPoint;
    if (event.pointerType != 'mouse') return;
    const link = linkAt(event.target), box = boxAt(event.target);
    const isNew = !over || over.link != link || over.box != box;
    const wasOnMenu = over != null;
    lastPoint = point;
    if (!box || (!isNew && !waiting)) return;
    over = { box, link };
    // On its way to the open submenu the mouse may cross other items, until it rests on one.
    const from = waiting ? waiting.from : before;
    const level = levels[depthOf(box)];
    dropWaiting();
    if (wasOnMenu && level && level.opener != link && isOnItsWay(from, point, level)) {
        waiting = { from, timer: setTimeout(hover, restMs) };
    } else {
        hover();
    }
}

function onPointerLeave(event) {
    if (event.pointerType != 'mouse') return;
    lastPoint = over = null;
    dropWaiting();
    keep(0);
}

// ---- Tap and click ----

let press = { type: '', wasOpen: false };   // the last pointerdown on an item

function onPointerDown(event) {
    const link = linkAt(event.target);
    press = { type: event.pointerType, wasOpen: !!link && isOpen(link) };
}

// A finger, a pen, or an assistive technology (which presses nothing) first opens, then follows.
function onClick(event) {
    const link = linkAt(event.target);
    if (!link) return;
    const isFirst = press.type != 'mouse' && !(press.type ? press.wasOpen : isOpen(link));
    press = { type: '', wasOpen: false };
    if (submenuOf(link) && isFirst) {
        event.preventDefault();
        openSubmenu(link);
    } else if (link.hasAttribute('href')) {
        closeFrom(0);
    } else {
        openSubmenu(link);
    }
}

// ---- Keyboard ----

function focused() {
    const host = document.activeElement;
    return host && (host == shared.bar || host == layer) ? host.shadowRoot.activeElement : host;
}

// One item of the top menu is in the tab order: the last one that had the focus.
function onFocusIn(event) {
    const link = event.target;
    if (!link.zevItem || boxAt(link) != shared.barBox) return;
    linksOf(shared.barBox).forEach(other => { other.tabIndex = other == link ? 0 : -1; });
}

function enter(box, isAtEnd) {
    const links = linksOf(box), link = links[isAtEnd ? links.length - 1 : 0];
    if (link) link.focus();
}

function openAndEnter(link, isAtEnd) {
    openSubmenu(link);
    const level = levels[depthOf(boxAt(link))];
    if (level && level.opener == link) enter(level.box, isAtEnd);
}

// The side on which an item's submenu stands or would stand.
function sideOfSubmenu(link) {
    const menu = submenuOf(link);
    if (!menu || isOpen(link)) return menu && levels[depthOf(boxAt(link))].side;
    const box = ensureBox(menu), frame = windowSize(), isRtl = isRtlAt(link);
    const wasHidden = box.hidden;
    box.hidden = false;
    const size = measure(box, frame);
    box.hidden = wasHidden;
    return chooseSide(realSide(wishedSide(menu), isRtl), rectOf(link), size,
                      menuOffset(), frame);
}

// Moves to an item of an open box; in the top menu an open submenu follows.
function moveTo(target) {
    const depth = depthOf(boxAt(target)), hadOpen = levels.length > 0;
    closeFrom(depth);
    target.focus();
    if (!depth && hadOpen) openSubmenu(target);
}

function columnsOf(box) {
    return box.className == 'list' ? 1
        : box.className == 'bar' ? box.children.length : shared.setting(box.zevMenu, 'columns');
}

function onArrow(link, direction) {
    const box = boxAt(link), links = linksOf(box), level = levels[depthOf(box) - 1];
    const isRtl = isRtlAt(box), reading = realSide(direction, isRtl);
    const next = neighbour(links.indexOf(link), links.length, columnsOf(box), reading);
    if (next >= 0) return moveTo(links[next]);
    const side = sideOfSubmenu(link);
    if (side == direction) return openAndEnter(link);
    if (level && level.opener && level.side == opposite[direction]) {
        return closeFrom(depthOf(box) - 1);
    }
    if (side && !level && side == opposite[direction]) return openAndEnter(link, true);
    if (side && (reading == 'right' || reading == 'bottom')) return openAndEnter(link);
    const root = levels[0] && levels[0].opener;
    const isGridEnd = box.className == 'grid' && (reading == 'top' || reading == 'bottom');
    if (!level || !root || !root.zevItem || isGridEnd) return;
    // From a submenu below a row the key goes on to the row's neighbour.
    const bar = linksOf(shared.barBox), columns = columnsOf(shared.barBox);
    const index = neighbour(bar.indexOf(root), bar.length, columns, reading);
    if (index >= 0) moveTo(bar[index]);
}

const arrows = { ArrowRight: 'right', ArrowLeft: 'left', ArrowDown: 'bottom', ArrowUp: 'top' };

const typingMs = 700;               // letters that follow sooner belong together
let typed = { text: '', time: 0 };

// Follows a typed letter, and says whether it led to an item. A space does only after letters.
function onLetter(link, event) {
    const isMore = event.timeStamp - typed.time < typingMs;
    if (event.key.length != 1 || (event.key == ' ' && !isMore)) return false;
    const links = linksOf(boxAt(link)), text = (isMore ? typed.text : '') + event.key;
    const names = links.map(other => other.getAttribute('aria-label') || shared.wordsOf(other));
    const next = typeAhead(names, links.indexOf(link), text);
    if (event.key == ' ' && next < 0) return false;
    typed = { text, time: event.timeStamp };
    if (next < 0) return false;
    moveTo(links[next]);
    return true;
}

function onKeyDown(event) {
    const link = event.target;
    if (!link.zevItem || event.ctrlKey || event.altKey || event.metaKey) return;
    const links = linksOf(boxAt(link));
    // Closing gives the focus to the top menu or the pop-up's link; Tab goes on from there. (The key of
    // Shift+Tab is "Unidentified" in WebKit on Linux, its code is right.)
    if (event.key == 'Tab' || event.code == 'Tab') return closeFrom(0);
    if (arrows[event.key]) {
        onArrow(link, arrows[event.key]);
    } else if (event.key == 'Home') {
        moveTo(links[0]);
    } else if (event.key == 'End') {
        moveTo(links[links.length - 1]);
    } else if (!onLetter(link, event)) {
        if (event.key != ' ' && !(event.key == 'Enter' && submenuOf(link))) return;
        if (submenuOf(link)) openAndEnter(link);
        else link.click();
    }
    event.preventDefault();
}

// ---- Watching the page while something is open ----

function onEscape(event) {
    if (event.key != 'Escape') return;
    const index = levels.findIndex(level => level.box.contains(focused()));
    closeFrom(Math.max(index, 0));
}

function onOutside(event) {
    const path = event.composedPath();
    const link = levels[0].opener;
    if (!path.includes(layer) && !path.includes(shared.bar) && !path.includes(link)) closeFrom(0);
}

function watch(isOn) {
    const change = isOn ? 'addEventListener' : 'removeEventListener';
    document[change]('keydown', onEscape, true);
    document[change]('pointerdown', onOutside, true);
    window[change]('scroll', placeAll, { capture: true, passive: true });
    window[change]('resize', placeAll);
}

function listen(host) {
    const root = host.shadowRoot;
    root.addEventListener('scroll', placeAll, { capture: true, passive: true });
    root.addEventListener('pointermove', onPointerMove);
    root.addEventListener('pointerdown', onPointerDown);
    root.addEventListener('click', onClick);
    root.addEventListener('keydown', onKeyDown);
    root.addEventListener('focusin', onFocusIn);
    host.addEventListener('pointerleave', onPointerLeave);
}

// ---- Links of pop-ups ----

const handlers = ['onmouseover', 'onclick', 'onfocus'];
const popupLinks = handlers.map(name => `[${name}*="ZEVMenuOpen"]`).join();

let pressOnPage = { type: '', wasOpen: false };

function popupLinkAt(event) {
    return event.target instanceof Element ? event.target.closest(popupLinks) : null;
}

// Gives links that open pop-ups what they lack for keyboards and assistive technology.
function adoptPopupLinks() {
    document.querySelectorAll(popupLinks).forEach(link => {
        if (!link.hasAttribute('aria-expanded')) link.setAttribute('aria-expanded', 'false');
        link.setAttribute('aria-haspopup', 'true');
        if (link.matches('[href],button,input,[tabindex]')) return;
        link.tabIndex = 0;
        if (!link.hasAttribute('role')) link.setAttribute('role', 'button');
    });
}

function isPopupOf(link) {
    return levels.length > 0 && levels[0].opener == link;
}

// Lets the link's own handler open the pop-up, below the link, and says whether it did.
function openFrom(link, event) {
    const name = handlers.find(name => /ZEVMenuOpen/.test(link.getAttribute(name)));
    actingLink = link;
    try {
        link[name](event);
    } finally {
        actingLink = null;
    }
    return isPopupOf(link);
}

function onPagePress(event) {
    const link = popupLinkAt(event);
    if (link) pressOnPage = { type: event.pointerType, wasOpen: isPopupOf(link) };
}

function onPageClick(event) {
    const link = popupLinkAt(event);
    if (!link) return;
    const isTap = pressOnPage.type != 'mouse' && !pressOnPage.wasOpen;
    pressOnPage = { type: '', wasOpen: false };
    // An empty address would only load the page anew.
    if (link.getAttribute('href') == '' || isTap) event.preventDefault();
    if (isTap && !isPopupOf(link)) openFrom(link, event);
}

function onPageKey(event) {
    const link = popupLinkAt(event);
    const isPress = event.key == 'Enter' || (event.key == ' ' && link && !link.matches('[href]'));
    if (!link || (!isPress && event.key != 'ArrowDown')) return;
    if (event.ctrlKey || event.altKey || event.metaKey || !openFrom(link, event)) return;
    event.preventDefault();
    enter(levels[0].box);
}

// ---- Start ----

shared.adoptBar = function () {
    listen(shared.bar);
    promote(shared.barBox, 'menubar');
    if (!shared.bar.closest('nav,[role=navigation]')) shared.bar.setAttribute('role', 'navigation');
    // The mouse may have been there first.
    const link = shared.barBox.querySelector('li:hover>a');
    if (link) openSubmenu(link);
    buildAhead(shared.barBox);
};

function openWaiting() {
    const call = shared.waiting;
    shared.waiting = null;
    if (call) shared.openPopup.apply(null, call);
}

// What waits for the page to be complete: tells of submenus whose item does not exist, and looks
// for links of pop-ups.
function finish() {
    openWaiting();
    adoptPopupLinks();
    Object.keys(shared.menus).forEach(id => {
        if (id == '0' || told.has(id) || itemOf(shared.menus[id])) return;
        told.add(id);
        shared.warn('menu ' + id + ' has no item to open from; it is not shown');
    });
}

shared.refresh = function () {
    if (document.readyState != 'loading') finish();
    placeAll();
};

document.addEventListener('pointerdown', onPagePress);
document.addEventListener('click', onPageClick);
document.addEventListener('keydown', onPageKey);
document.addEventListener('DOMContentLoaded', finish);
window.addEventListener('load', () => buildAhead(shared.barBox), { once: true });
if (document.readyState != 'loading') finish();
if (shared.barBox) shared.adoptBar();
openWaiting();

})();
