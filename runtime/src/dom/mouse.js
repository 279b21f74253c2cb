// SPDX-License-Identifier: MIT
// ---- Mouse ----

// That it comes holds a box that appears under a resting mouse, and opens nothing.
function onPointer(event) {
    const { type, target } = event;
    if (event.pointerType != 'mouse') return;
    if (type == 'pointermove') pointAt(boxAt(target), linkAt(target), event);
    else if (type == 'pointerleave') pointAway();
    else if (!state.over) keep(depthAt(target));
}

// ---- Clicks on items and on links of pop-ups ----

function onPress(event) {
    const link = linkAt(event.target) || popupLinkAt(event);
    if (link) state.press = { pointer: event.pointerType, wasOpen: isOpen(link) };
}

// On a button the mouse is a finger; its first click keeps open what its arrival there opened.
function pressOn(link) {
    const { press } = state;
    state.press = {};
    if (press.pointer != 'mouse' || !link.matches(':is(button,input)[data-zev-popup]')) return press;
    return { pointer: 'touch', wasOpen: isOpen(link) && levels[0].isClicked };
}

function hasAddress(link) {
    return /[^#]/.test(link.getAttribute('href') || '');
}

function onClick(event) {
    const link = linkAt(event.target) || popupLinkAt(event);
    if (!link) return;
    const { zevItem } = link, href = link.getAttribute('href');
    if (!zevItem) answer(link, 'onclick', event);
    const { pointer = '', wasOpen = zevItem && isOpen(link) } = pressOn(link), isMouse = pointer == 'mouse';
    const meaning = hasModifier(event) || event.shiftKey ? 'follow' : meaningOfClick({
        pointer, wasOpen, hasAddress: hasAddress(link), hasSubmenu: zevItem ? submenuOf(link) : !isMouse,
        isAccordion: zevItem && isMouse && (link == state.foldLink || sideFor(link) == 'inside')
    });
    // An empty address would load the page anew.
    if (meaning != 'follow' || href == '') event.preventDefault();
    if (meaning == 'close') return close(depthAt(link));
    if (meaning == 'follow') return zevItem && href && close(0);
    if (open(link, event)) levels[0].isClicked = true;
    if (meaning == 'enter') enterFrom(link);
}
