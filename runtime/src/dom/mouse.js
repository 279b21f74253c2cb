// SPDX-License-Identifier: MIT
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
    if (link) state.press = { pointer: event.pointerType, wasOpen: isOpen(link) };
}

function isAccordionAt(link) {
    return link == state.foldLink || (isList(boxAt(link)) && sideOfSubmenu(link) == 'inside');
}

function onClick(event) {
    const link = linkAt(event.target);
    if (!link) return;
    const hasAddress = link.hasAttribute('href'), { pointer = '', wasOpen = isOpen(link) } = state.press;
    state.press = {};
    const meaning = isModified(event) ? 'follow' : meaningOfClick({
        pointer, wasOpen, hasAddress, hasSubmenu: submenuOf(link) != null,
        isAccordion: pointer == 'mouse' && isAccordionAt(link)
    });
    if (meaning != 'follow') event.preventDefault();
    else if (hasAddress) closeFrom(0);
    if (meaning == 'open') openSubmenu(link);
    if (meaning == 'enter') openAndEnter(link);
    if (meaning == 'close') closeFrom(depthAt(link));
}
