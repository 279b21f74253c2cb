// SPDX-License-Identifier: MIT
// ---- What is added, and taken away again ----

function listen(target, isOn, listeners, capture) {
    const change = isOn ? 'addEventListener' : 'removeEventListener';
    Object.keys(listeners).forEach(type => target[change](type, listeners[type], capture));
}

// The documents of a page and its frames, as far as they are the site's own.
function documentsIn(page) {
    return page ? [page, ...[...page.querySelectorAll('iframe,frame')]
        .flatMap(frame => documentsIn(frame.contentDocument))] : [];
}

function closeAll() {
    close(0);
}

// The page, while a submenu is open. What happens in another site's frame shows as a loss of the focus.
function watch(isOn) {
    let top = window;
    while (top.frameElement) top = top.parent;
    if (isOn) state.watched = documentsIn(top.document);
    state.watched.forEach(page => listen(page, isOn, { pointerdown: onOutside }, true));
    listen(window, isOn, { keydown: onEscape, scroll: placeAll, resize: placeAll, beforeprint: closeAll }, true);
    listen(window, isOn, { blur: closeAll });
}

const presses = { pointerdown: onPress, click: onClick, keydown: onKeyDown };

// The top menu, or the layer of the submenus.
function attend(host, isOn) {
    listen(host.shadowRoot, isOn, {
        ...presses, pointerover: onPointer, pointermove: onPointer, focusin: onFocusIn, scroll: placeAll
    }, true);
    listen(host, isOn, { pointerleave: onPointer });
    if (host == state.bar && state.fold) listen(state.fold, isOn, { change: refold });
}

shared.serve = function (isOn) {
    listen(document, isOn, {
        ...presses, mouseover: onEnter, focusin: onEnter, mouseout: onLeave, DOMContentLoaded: shared.refresh
    });
    listen(window, isOn, { load: shared.refresh });
};

shared.adoptBar = function () {
    attend(state.bar, true);
    const { bar, barBox } = state, label = setting(barBox.zevMenu, 'label');
    mark(barBox, { 'aria-label': label });
    mark(barBox.parentNode, { dir: isRtlAt(bar) ? 'rtl' : null });
    promote(barBox, 'menubar');
    if (!bar.closest('nav,[role=navigation]')) mark(bar, { role: 'navigation', 'aria-label': label });
    adoptFold();
    // The mouse may have been there first.
    const link = barBox.querySelector('li:hover>a');
    if (link) {
        state.over = { box: barBox, link };
        hover();
    }
    shared.refresh();
};

// Whatever can be done with as much of the page as there is.
shared.refresh = function () {
    const { early, menus, barBox } = state;
    state.early = null;
    if (early) shared.openPopup(early);
    if (document.readyState == 'loading') return;
    placeAll();
    lookUp();
    buildAhead(barBox);
    document.querySelectorAll(popupLinks).forEach(adopt);
    Object.keys(menus).forEach(id => {
        if (id != '0' && !itemOf(menus[id])) warn(`menu ${id} has no item`);
    });
};

shared.stop = function () {
    const { bar, barBox, layer } = state;
    close(0);
    uncross();
    [state.building, state.looking].forEach(window.cancelIdleCallback || clearTimeout);
    shared.serve(false);
    if (barBox) attend(bar, false);
    if (layer) attend(layer, false);
    layer?.remove();
    document.querySelectorAll('[aria-haspopup]').forEach(release);
    Object.values(state.menus).forEach(menu => { menu.zevBox = null; });
};

if (!state.isRemoved) {
    shared.serve(true);
    if (state.barBox) shared.adoptBar();
    else shared.refresh();
    answer(document.querySelector(`:is(${popupLinks}):hover`), 'onmouseover');
}
