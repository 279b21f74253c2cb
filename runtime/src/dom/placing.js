// SPDX-License-Identifier: MIT
// ---- Showing and placing ----

function levelOf(link) {
    const menu = submenuOf(link);
    return menu && { menu, box: boxFor(menu, link), opener: link, isFold: link == state.foldLink,
                     reading: shared.wishOf(menu), offset: setting(null, 'menuoffset') };
}

// Chromium before 128 and Safari do not tell an element's zoom, and divide its rectangle by it.
function rectOf(node) {
    const { x, y, width, height } = node.getBoundingClientRect();
    let zoom = 1, up = 'currentCSSZoom' in node ? null : node;
    for (; up; up = up.parentElement || up.getRootNode().host) zoom *= getComputedStyle(up).zoom || 1;
    return new DOMRect(x * zoom, y * zoom, width * zoom, height * zoom);
}

// Into the layer, or into the line of an item. What is moved would lose the focus.
function move(box, home, next) {
    if (box.parentNode == home) return;
    const link = box.contains(focused()) && focused();
    home.insertBefore(box, next);
    if (link) link.focus();
}

// Of the layer, where `origin` is its rectangle in the window.
function pixels(length, origin) {
    return unzoomed(length, origin, 100) + 'px';
}

// Shows the box in its own size in the layer, to be measured: outside the page, which gets no scroll bar by it.
function lay({ box, isFold }) {
    shape(box, isFold ? 'list flat' : box.zevShape);
    move(box, homeOf(state.layer), null);
    box.hidden = false;
    Object.assign(box.style, { left: '-1e5px', maxWidth: 'none', top: '-1e5px' });
}

// Its size in the layer, at most as wide as the window.
function measure(box, width) {
    if (rectOf(box).width > width) box.style.maxWidth = pixels(width, rectOf(homeOf(state.layer)));
    return rectOf(box);
}

// Where the level is to stand. One that is inside its parent keeps the size it had outside. The page is asked
// after all that changes it, so that it is laid out once.
function spotOf(level) {
    const { box, opener, point } = level, parent = opener?.zevItem && boxAt(opener);
    const isNested = parent?.matches('.flat'), isLaid = !isNested && (!level.size || !isInside(level));
    if (isLaid) lay(level);
    const isRtl = isRtlAt(opener || document.body);
    box.dir = isRtl ? 'rtl' : 'ltr';
    if (level.reading) level.wish = realSide(level.reading, isRtl);
    if (isNested) return { side: 'inside' };
    const { clientWidth: width, clientHeight: height } = document.scrollingElement || document.documentElement;
    const frame = { width, height }, isFixed = isSteady(levels.indexOf(level) + 1 || levels.length);
    if (isLaid) level.size = measure(box, width);
    level.isOn ||= opener?.getClientRects()[0];
    const kind = isFixed ? 'fixed'
        : parent?.matches('.list') && (opposite[levels[depthOf(parent) - 1]?.side] || 'list');
    // A pop-up stays with the page when that scrolls.
    const anchor = point ? new DOMRect(point.x - window.scrollX, point.y - window.scrollY) : rectOf(opener);
    return place(anchor, level.size, isFixed ? level.side : level.wish, level.offset, frame, isRtl, kind);
}

function placeLevel(level) {
    const { box } = level, { style } = box, was = level.side, spot = spotOf(level);
    level.side = spot.side;
    if (isInside(level)) return placeInside(level);
    if (was == 'inside') return placeLevel(level);
    const origin = rectOf(homeOf(state.layer));
    style.maxWidth = pixels(spot.width, origin);
    if (level.size.height > spot.height) {
        style.maxHeight = pixels(spot.height, origin);
        box.className += ' long';
    }
    style.left = pixels(spot.left - origin.left, origin);
    style.top = pixels(spot.top - origin.top, origin);
}

// In the flow, below its item.
function placeInside({ box, opener }) {
    shape(box, 'list flat inside');
    box.hidden = false;
    move(box, opener.parentNode, opener.nextSibling);
}

// After an accordion has grown or shrunk: the box around it, and of that the part where `level` is.
function settle(level) {
    const holder = levels.filter(other => !isInside(other)).pop();
    if (!holder) return;
    placeLevel(holder);
    if (!level) return;
    // Of what is longer than the box around it the start.
    const frame = rectOf(holder.box), over = rectOf(level.box).bottom - frame.bottom;
    holder.box.scrollTop += Math.min(Math.max(0, over), rectOf(level.opener).top - frame.top);
}

function fade({ menu, box }, isOn) {
    // A short opening, of 100 ms, where none is written.
    const seconds = setting(menu, 'ffade'), duration = seconds === '' ? isOn && 100 : seconds * 1000;
    // One that is closed meanwhile stays so.
    const end = () => { box.hidden ||= !isOn; };
    box.zevFading?.cancel();
    if (!duration || matchMedia('(prefers-reduced-motion)').matches) return end();
    // What measures colours at such a short moment is not to take it for the menu's own.
    const looks = [seconds === '' ? { filter: 'opacity(0)' } : { opacity: 0 }, {}];
    box.zevFading = box.animate(isOn ? looks : looks.reverse(), { duration });
    box.zevFading.onfinish = end;
}

// Closes a level whose opener goes out of sight, or out of the page. One that never had a box, as an image's area,
// is never in sight; `isOn` says that it had. The page may hide it in the very click that opened the level, before
// it is looked at here.
function follow(level) {
    const { opener, box } = level;
    if (!opener) return;
    level.observer = new IntersectionObserver(entries => {
        // -1 if closed, but told in spite of disconnect().
        const index = levels.indexOf(level);
        const isHeld = opener.isConnected && (!level.isOn || isSteady(index) || box.contains(focused()));
        if (index >= 0 && !isHeld && !entries.pop().isIntersecting) close(index);
    });
    level.observer.observe(opener);
}

function placeAll(event) {
    levels.slice(event ? depthAt(event.target) : 0).forEach(placeLevel);
}

// The opener of a level that opens or closes says so, and its mark points to where the submenu is, or will be.
// What is open in the layer is a landmark.
function tell({ opener, box }, isOn, side) {
    const first = levels.find(level => !isInside(level))?.box;
    mark(state.layer, { role: first && 'navigation', 'aria-label': first?.getAttribute('aria-label') });
    if (opener) mark(opener, { 'aria-expanded': isOn });
    if (opener?.dataset.side) opener.dataset.side = side == 'inside' ? 'bottom' : realSide(side, box.dir == 'rtl');
}

function show(level) {
    const { box } = level;
    // Measured first and marked then, so that styles are calculated once.
    follow(level);
    placeLevel(level);
    if (isInside(level)) settle(level);
    tell(level, true, level.side);
    if (levels.length == 1) watch(true);
    fade(level, true);
    buildAhead(box);
}

function hide(level) {
    const { box, opener } = level;
    level.observer?.disconnect();
    if (box.contains(focused())) opener?.focus();
    tell(level, false, level.wish);
    if (isInside(level)) {
        box.remove();
        settle();
    } else if (level.isFold) {
        // In its place on the page, which shows it when the button does not.
        box.zevFading?.cancel();
        shape(box, box.zevShape, 'menubar');
        box.hidden = state.fold.matches;
        homeOf(state.bar).append(box);
    } else {
        box.style.pointerEvents = 'none';
        fade(level);
    }
    if (!levels.length) watch(false);
}

// The mouse opens none that would stand inside its parent.
function openSubmenu(link, isHover) {
    const depth = depthAt(link), level = levelOf(link);
    if (!level || levels[depth]?.menu == level.menu) return;
    const mayBeInside = isHover && isList(boxAt(link));
    if (!mayBeInside || sideFor(link) != 'inside') openLevel(depth, level);
}

// Where the submenu of an item stands or would stand; '' if there is none.
function sideFor(link) {
    if (isOpen(link)) return levels[depthAt(link)].side;
    const level = levelOf(link);
    if (!level) return '';
    const { side } = spotOf(level);
    level.box.hidden = true;
    return side;
}
