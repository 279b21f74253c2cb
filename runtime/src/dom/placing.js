// SPDX-License-Identifier: MIT
// ---- Showing and placing ----

function levelOf(link) {
    const menu = submenuOf(link), isFolded = link == state.foldLink;
    if (!menu) return null;
    return { menu, box: ensureBox(menu, link), opener: link, isFolded,
             wish: isFolded ? 'bottom' : realSide(shared.wishedSide(menu), isRtlAt(link)),
             offset: isFolded ? 0 : setting(null, 'menuoffset') };
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

// What takes the place of a box in the layer away again.
const unplaced = { width: '', maxWidth: '', maxHeight: '', overflowY: '', left: '', top: '' };

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

// Shows the box in its own size in the layer, to be measured.
function lay({ box, isFolded }, frame) {
    const { style } = box, { shadowRoot } = state.layer, maxWidth = pixels(frame.width, rectOf(state.layer));
    box.classList.remove('inside');
    move(box, shadowRoot, null);
    box.hidden = false;
    Object.assign(style, unplaced, { maxWidth });
    if (!isFolded) return;
    box.classList.add('folded');
    mark(box, { role: 'menu' });
    style.width = maxWidth;
}

function isHolder(level) {
    return isSteady(state.levels.indexOf(level) + 1 || state.levels.length);
}

// Where the level is to stand. One that is inside its parent keeps the size it had outside.
function spotOf(level) {
    const { box, opener } = level, isRtl = isRtlAt(opener || document.body);
    const parent = opener?.zevSubmenu && boxAt(opener);
    box.dir = isRtl ? 'rtl' : 'ltr';
    if (parent && isAccordion(parent)) return { side: 'inside' };
    const root = document.scrollingElement || document.documentElement;
    const frame = { width: root.clientWidth, height: root.clientHeight }, isFixed = isHolder(level);
    if (!level.size || level.side != 'inside') {
        lay(level, frame);
        level.size = rectOf(box);
    }
    const kind = isFixed ? 'fixed' : parent && isList(parent) ? 'list' : '';
    return place(anchorOf(level), level.size, isFixed ? level.side : level.wish, level.offset, frame, isRtl, kind);
}

function placeLevel(level) {
    const { box } = level, { style } = box, was = level.side, spot = spotOf(level);
    level.side = spot.side;
    if (isInside(level)) return placeInside(level);
    if (was == 'inside') return placeLevel(level);
    const origin = rectOf(state.layer);
    if (isHolder(level)) style.maxWidth = pixels(spot.width, origin);
    if (level.size.height > spot.height) {
        style.maxHeight = pixels(spot.height, origin);
        style.overflowY = 'auto';
    }
    style.left = pixels(spot.left - origin.left, origin);
    style.top = pixels(spot.top - origin.top, origin);
    orient(box);
}

// In the flow, below its item.
function placeInside({ box, opener }) {
    box.classList.add('inside');
    box.hidden = false;
    Object.assign(box.style, unplaced);
    move(box, opener.parentNode, opener.nextSibling);
    orient(box);
}

// After an accordion has grown or shrunk: the box around it, and of that the part where `shown` is.
function settle(shown) {
    const holder = state.levels.filter(level => !isInside(level)).pop();
    if (!holder) return;
    placeLevel(holder);
    if (!shown) return;
    const frame = rectOf(holder.box), { bottom } = rectOf(shown.box), { top } = rectOf(shown.opener);
    holder.box.scrollTop += Math.min(Math.max(0, bottom - frame.bottom), top - frame.top);
}

function fade({ menu, box }, isOpening) {
    // A short opening, where none is written.
    const seconds = setting(menu, 'ffade'), isCalm = seconds === '' && isOpening;
    const duration = isCalm ? openingMs : seconds * 1000;
    // One that is closed meanwhile stays so.
    const end = () => { box.hidden ||= !isOpening; };
    box.zevFading?.cancel();
    if (!duration || matchMedia('(prefers-reduced-motion: reduce)').matches) return end();
    // What measures colours at such a short moment is not to take it for the menu's own.
    const look = isCalm ? { filter: 'opacity(0)' } : { opacity: 0 };
    box.zevFading = box.animate(isOpening ? [look, {}] : [{}, look], { duration });
    box.zevFading.onfinish = end;
}

// Closes a level whose opener goes out of sight; an image's area has no box to be watched.
function follow(level) {
    const { opener, box } = level;
    if (!opener?.getClientRects().length) return;
    level.observer = new IntersectionObserver(entries => {
        // -1 if closed, but told in spite of disconnect().
        const index = state.levels.indexOf(level);
        const isHeld = opener.isConnected && (isSteady(index) || box.contains(focused()));
        if (index >= 0 && !isHeld && !entries.pop().isIntersecting) closeFrom(index);
    });
    level.observer.observe(opener);
}

function placeAll(event) {
    state.levels.slice(event ? depthAt(event.target) : 0).forEach(placeLevel);
}

// What is open in the layer is a landmark.
function nameLayer() {
    const [first] = state.levels, box = first && !isInside(first) && first.box;
    mark(state.layer, { role: box ? 'navigation' : null,
                        'aria-label': box ? box.getAttribute('aria-label') : null });
}

// The mark points to where the submenu is, or will be.
function turnMark({ opener, box }, side) {
    if (!opener?.hasAttribute('data-side')) return;
    mark(opener, { 'data-side': side == 'inside' ? 'bottom' : realSide(side, box.dir == 'rtl') });
}

function show(level) {
    const { box, opener } = level;
    // Measured first and marked then, so that styles are calculated once.
    follow(level);
    placeLevel(level);
    if (isInside(level)) settle(level);
    box.style.pointerEvents = '';
    if (opener) mark(opener, { 'aria-expanded': true });
    turnMark(level, level.side);
    nameLayer();
    if (state.levels.length == 1) watch(true);
    fade(level, true);
    buildAhead(box);
}

function hide(level) {
    const { box, opener } = level;
    level.observer?.disconnect();
    if (opener) {
        if (box.contains(focused())) opener.focus();
        mark(opener, { 'aria-expanded': false });
    }
    turnMark(level, level.wish);
    if (isInside(level)) {
        box.hidden = true;
        box.remove();
        settle();
    } else if (level.isFolded) {
        putBack(box);
    } else {
        box.style.pointerEvents = 'none';
        fade(level);
    }
    nameLayer();
    if (!state.levels.length) watch(false);
}

// The mouse opens none that would stand inside its parent.
function openSubmenu(link, isHover) {
    const depth = depthAt(link), level = levelOf(link);
    if (!level || state.levels[depth]?.menu == level.menu) return;
    const mayBeInside = isHover && isList(boxAt(link));
    if (!mayBeInside || sideOfSubmenu(link) != 'inside') openLevel(depth, level);
}

// Where the submenu of an item stands or would stand; '' if there is none.
function sideOfSubmenu(link) {
    if (isOpen(link)) return state.levels[depthAt(link)].side;
    const level = levelOf(link);
    if (!level) return '';
    const { side } = spotOf(level);
    level.box.hidden = true;
    return side;
}
