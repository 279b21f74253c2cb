// SPDX-License-Identifier: MIT
// ---- Keyboard ----

function focused() {
    return (document.activeElement?.shadowRoot || document).activeElement;
}

function onFocusIn(event) {
    const link = event.target;
    if (boxAt(link) != state.barBox || !link.zevItem) return;
    linksOf(state.barBox).forEach(other => { other.tabIndex = other == link ? 0 : -1; });
}

function enter(box, isEnd) {
    const links = linksOf(box);
    if (links.length) moveTo(links[isEnd ? links.length - 1 : 0]);
}

function enterFrom(link, isEnd) {
    const level = levels[depthAt(link)];
    if (level?.opener == link) enter(level.box, isEnd);
}

function openAndEnter(link, isEnd) {
    openSubmenu(link);
    enterFrom(link, isEnd);
}

// Of an item or of the link of a pop-up, and says whether it is open.
function open(link, event) {
    if (link.zevItem) openSubmenu(link);
    else openFrom(link, event);
    return isOpen(link);
}

function moveTo(target) {
    const depth = depthAt(target), child = levels[depth], wasOpen = levels.length;
    // An accordion stays open below the item.
    if (!child || !isInside(child)) close(depth);
    target.focus();
    if (!depth && wasOpen && (!child || !isInside(child))) openSubmenu(target);
}

function nextLink(link, reading) {
    const box = boxAt(link), links = linksOf(box), columns = isList(box) ? 1 : setting(box.zevMenu, 'columns');
    return links[neighbour(links.indexOf(link), links.length, columns, reading)];
}

function onArrow(link, direction) {
    const depth = depthAt(link), level = levels[depth - 1];
    const reading = realSide(direction, isRtlAt(link)), next = nextLink(link, reading);
    if (next) return moveTo(next);
    const meaning = meaningOfArrow({ direction, reading, side: sideFor(link),
                                     own: !level?.opener ? '' : isFlat(level) ? 'inside' : level.side, isTop: !level });
    if (meaning == 'close') close(depth - 1);
    else if (meaning == 'beyond') goBeyond(link, reading);
    else if (meaning) openAndEnter(link, meaning == 'enterLast');
}

function goBeyond(link, reading) {
    const first = depthAt(link) && levels[0].opener;
    const isEdge = boxAt(link).matches('.grid') && !isBeside(reading);
    const next = first?.zevItem && !isEdge && nextLink(first, reading);
    if (next) moveTo(next);
}

const arrows = { ArrowRight: 'right', ArrowLeft: 'left', ArrowDown: 'bottom', ArrowUp: 'top' };

// Letters that follow within 700 ms belong together, and a space to letters before it.
function onLetter(link, { key, timeStamp: time }) {
    const before = time - state.typed.time < 700 ? state.typed.text : '', text = before + key;
    if (key[1] || (key == ' ' && !before)) return false;
    const links = linksOf(boxAt(link));
    const next = links[typeAhead(links.map(other => other.zevItem.name), links.indexOf(link), text)];
    if (next || key != ' ') state.typed = { text, time };
    if (next) moveTo(next);
    return next;
}

function hasModifier(event) {
    return event.ctrlKey || event.altKey || event.metaKey;
}

function onKeyDown(event) {
    const link = linkAt(event.target) || popupLinkAt(event), { key } = event;
    if (!link || hasModifier(event)) return;
    // Tab goes on from where closing puts the focus. WebKit names Shift+Tab only by its code.
    if (key == 'Tab' || event.code == 'Tab') return close(0);
    // The browser makes a click of the key.
    if (key == 'Enter' && hasAddress(link)) return (state.press = { pointer: 'key' });
    if (!link.zevItem || link == state.foldLink) {
        if (!/^(Enter| |Arrow(Down|Up))$/.test(key) || !open(link, event)) return;
        enterFrom(link, key == 'ArrowUp');
    } else if (/^Arrow/.test(key)) {
        onArrow(link, arrows[key]);
    } else if (key == 'Home' || key == 'End') {
        enter(boxAt(link), key == 'End');
    } else if (!onLetter(link, event)) {
        if (key != ' ' && key != 'Enter') return;
        if (submenuOf(link)) openAndEnter(link);
        else link.click();
    }
    event.preventDefault();
}

function onEscape(event) {
    if (event.key != 'Escape') return;
    close(Math.max(depthAt(focused()) - 1, 0));
    // The next one closes the dialog.
    if (homeOf(state.layer).hasAttribute('popover')) event.preventDefault();
}

function onOutside(event) {
    const path = event.composedPath(), { layer, bar } = state;
    if (![layer, bar, levels[0].opener].some(own => path.includes(own))) close(0);
}
