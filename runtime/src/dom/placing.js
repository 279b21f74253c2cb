// ---- Showing and placing ----

function levelOf(link) {
    const menu = submenuOf(link), top = state.menus['0'];
    if (!menu) return null;
    const isBelowRow = !menu.zevId.includes('i') && setting(top, 'columns') > 1;
    const side = setting(menu, 'position', isBelowRow && top);
    return { menu, box: ensureBox(menu, link), opener: link, wish: realSide(side, isRtlAt(link)),
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
    const { box } = level, { style } = box, isRtl = isRtlAt(level.opener || shared.ofDocument('body'));
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
        // From a frame that was left it would take the focus away from what was clicked.
        const mayFocus = window.parent == window || document.hasFocus();
        if (mayFocus && box.contains(focused())) opener.focus();
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
