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
