// SPDX-License-Identifier: MIT
// ---- What is added, and taken away again ----

function listen(target, isOn, listeners, isCapturing) {
    const change = isOn ? 'addEventListener' : 'removeEventListener';
    Object.keys(listeners).forEach(type => target[change](type, listeners[type], isCapturing));
}

// The documents of a page and its frames, as far as they are the site's own.
function documentsIn(page) {
    if (!page) return [];
    const frames = [...page.querySelectorAll('iframe,frame')];
    return [page, ...frames.flatMap(frame => documentsIn(frame.contentDocument))];
}

function closeAll() {
    closeFrom(0);
}

// The page, while a submenu is open. What happens in another site's frame shows as a loss of the focus.
function watch(isOn) {
    let top = window;
    while (top.frameElement) top = top.parent;
    if (isOn) state.watched = documentsIn(top.document);
    state.watched.forEach(page => listen(page, isOn, { pointerdown: onOutside }, true));
    listen(document, isOn, { keydown: onEscape }, true);
    listen(window, isOn, { scroll: placeAll }, true);
    listen(window, isOn, { resize: placeAll, blur: closeAll, beforeprint: closeAll });
}

// The top menu, or the layer of the submenus.
function attend(host, isOn) {
    listen(host.shadowRoot, isOn, { scroll: placeAll }, true);
    listen(host.shadowRoot, isOn, {
        pointerover: onPointerOver, pointermove: onPointerMove, pointerdown: onPress,
        click: onClick, keydown: onKeyDown, focusin: onFocusIn
    });
    listen(host, isOn, { pointerleave: onPointerLeave });
    if (host == state.bar && state.fold) listen(state.fold, isOn, { change: refold });
}

shared.serve = function (isOn) {
    listen(document, isOn, {
        pointerdown: onPress, click: onPageClick, keydown: onPageKey, mouseover: onArrival, focusin: onArrival,
        mouseout: onLeaving, DOMContentLoaded: finish
    });
    listen(window, isOn, { load: onLoad });
};

shared.adoptBar = function () {
    attend(state.bar, true);
    const { bar, barBox } = state, label = setting(barBox.zevMenu, 'label');
    mark(barBox, { 'aria-label': label, dir: isRtlAt(bar) ? 'rtl' : null });
    promote(barBox, 'menubar');
    if (!bar.closest('nav,[role=navigation]')) mark(bar, { role: 'navigation', 'aria-label': label });
    adoptFold();
    // The mouse may have been there first.
    const link = barBox.querySelector('li:hover>a');
    if (link) {
        state.over = { box: barBox, link };
        hover();
    }
    lookUpCurrent();
    buildAhead(barBox);
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
    lookUpCurrent();
    if (document.readyState != 'loading') finish();
    placeAll();
};

shared.stop = function () {
    const { bar, barBox, layer } = state;
    closeFrom(0);
    dropCrossing();
    [state.building, state.looking].forEach(window.cancelIdleCallback || clearTimeout);
    shared.serve(false);
    if (barBox) attend(bar, false);
    if (layer) attend(layer, false);
    layer?.remove();
    document.querySelectorAll('[aria-haspopup]').forEach(release);
    Object.values(state.menus).forEach(menu => { menu.zevBox = null; });
    clearState();
};

if (!state.isRemoved) {
    shared.serve(true);
    if (document.readyState != 'loading') finish();
    if (state.barBox) shared.adoptBar();
    openEarly();
    answer(document.querySelector(`:is(${popupLinks}):hover`), 'onmouseover');
}
