// SPDX-License-Identifier: MIT
// ---- Keyboard ----

function focused() {
    return (document.activeElement?.shadowRoot || document).activeElement;
}

function onFocusIn(event) {
    const link = event.target;
    if (boxAt(link) != state.barBox || !link.zevSubmenu) return;
    linksOf(state.barBox).forEach(other => { other.tabIndex = other == link ? 0 : -1; });
}

function enter(box, isAtEnd) {
    const links = linksOf(box);
    if (links.length) moveTo(links[isAtEnd ? links.length - 1 : 0]);
}

function enterFrom(link, isAtEnd) {
    const level = state.levels[depthAt(link)];
    if (level?.opener == link) enter(level.box, isAtEnd);
}

function openAndEnter(link, isAtEnd) {
    openSubmenu(link);
    enterFrom(link, isAtEnd);
}

function moveTo(target) {
    const depth = depthAt(target), child = state.levels[depth], hadOpen = state.levels.length;
    // An accordion stays open below the item.
    if (!child || !isInside(child)) closeFrom(depth);
    target.focus();
    if (!depth && hadOpen && (!child || !isInside(child))) openSubmenu(target);
}

function nextLink(link, reading) {
    const box = boxAt(link), links = linksOf(box);
    const columns = isList(box) ? 1 : setting(box.zevMenu, 'columns');
    return links[neighbour(links.indexOf(link), links.length, columns, reading)];
}

function onArrow(link, direction) {
    const depth = depthAt(link), level = state.levels[depth - 1];
    const reading = realSide(direction, isRtlAt(link));
    const next = nextLink(link, reading);
    if (next) return moveTo(next);
    const meaning = meaningOfArrow({ direction, reading, side: sideOfSubmenu(link),
                                     own: !level?.opener ? '' : isFlat(level) ? 'inside' : level.side, isTop: !level });
    if (meaning == 'close') closeFrom(depth - 1);
    else if (meaning == 'beyond') goBeyond(link, reading);
    else if (meaning) openAndEnter(link, meaning == 'enterLast');
}

function goBeyond(link, reading) {
    const root = state.levels[0]?.opener;
    const isGridEnd = boxAt(link).matches('.grid:not(.inside,.folded)') && !isBeside(reading);
    const next = depthAt(link) && root?.zevSubmenu && !isGridEnd && nextLink(root, reading);
    if (next) moveTo(next);
}

const arrows = { ArrowRight: 'right', ArrowLeft: 'left', ArrowDown: 'bottom', ArrowUp: 'top' };

// A space belongs to typing only after letters.
function onLetter(link, event) {
    const isMore = event.timeStamp - state.typed.time < typingMs;
    if (event.key.length != 1 || (event.key == ' ' && !isMore)) return false;
    const links = linksOf(boxAt(link)), text = (isMore ? state.typed.text : '') + event.key;
    const next = links[typeAhead(links.map(other => other.zevName), links.indexOf(link), text)];
    if (next || event.key != ' ') state.typed = { text, time: event.timeStamp };
    if (next) moveTo(next);
    return next;
}

function hasModifier(event) {
    return event.ctrlKey || event.altKey || event.metaKey;
}

// A new window or a download.
function isModified(event) {
    return hasModifier(event) || event.shiftKey;
}

function onKeyDown(event) {
    const link = event.target, { key } = event;
    if (!link.zevSubmenu || hasModifier(event)) return;
    // Tab goes on from where closing puts the focus. WebKit names Shift+Tab only by its code.
    if (key == 'Tab' || event.code == 'Tab') return closeFrom(0);
    if (link == state.foldLink) {
        if (!/^(Enter| |Arrow(Down|Up))$/.test(key)) return;
        openAndEnter(link, key == 'ArrowUp');
    } else if (/^Arrow/.test(key)) {
        onArrow(link, arrows[key]);
    } else if (key == 'Home' || key == 'End') {
        enter(boxAt(link), key == 'End');
    } else if (!onLetter(link, event)) {
        if (key != ' ' && key != 'Enter') return;
        if (key == 'Enter' && link.hasAttribute('href')) return followByKey();
        if (submenuOf(link)) openAndEnter(link);
        else link.click();
    }
    event.preventDefault();
}

// The browser makes a click of the key.
function followByKey() {
    state.press = { pointer: 'key' };
}

function onEscape(event) {
    if (event.key != 'Escape') return;
    closeFrom(Math.max(depthAt(focused()) - 1, 0));
    // The next one closes the dialog.
    if (state.layer.hasAttribute('popover')) event.preventDefault();
}

function onOutside(event) {
    const path = event.composedPath();
    const { layer, bar, levels } = state;
    if (![layer, bar, levels[0].opener].some(own => path.includes(own))) closeFrom(0);
}
