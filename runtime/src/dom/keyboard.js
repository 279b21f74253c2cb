// ---- Keyboard ----

function focused() {
    return (document.activeElement?.shadowRoot || document).activeElement;
}

function onFocusIn(event) {
    const link = event.target;
    if (!link.zevSubmenu || boxAt(link) != state.barBox) return;
    linksOf(state.barBox).forEach(other => { other.tabIndex = other == link ? 0 : -1; });
}

function enter(box, isAtEnd) {
    const links = linksOf(box), link = links[isAtEnd ? links.length - 1 : 0];
    link?.focus();
}

function openAndEnter(link, isAtEnd) {
    openSubmenu(link);
    const level = state.levels[depthAt(link)];
    if (level?.opener == link) enter(level.box, isAtEnd);
}

function sideOfSubmenu(link) {
    if (isOpen(link)) return state.levels[depthAt(link)].side;
    const level = levelOf(link);
    if (!level) return '';
    const wasHidden = level.box.hidden;
    placeLevel(level);
    level.box.hidden = wasHidden;
    return level.side;
}

function moveTo(target) {
    const depth = depthAt(target), hadOpen = state.levels.length;
    closeFrom(depth);
    target.focus();
    if (!depth && hadOpen) openSubmenu(target);
}

function nextLink(link, reading) {
    const box = boxAt(link), links = linksOf(box);
    const columns = setting(box.zevMenu, 'columns');
    return links[neighbour(links.indexOf(link), links.length, columns, reading)];
}

function onArrow(link, direction) {
    const depth = depthAt(link), level = state.levels[depth - 1];
    const reading = realSide(direction, isRtlAt(link));
    const next = nextLink(link, reading);
    if (next) return moveTo(next);
    const side = sideOfSubmenu(link);
    if (side == direction) return openAndEnter(link);
    if (level?.opener && level.side == opposite[direction]) return closeFrom(depth - 1);
    if (side && !level && side == opposite[direction]) return openAndEnter(link, true);
    if (side && (reading == 'right' || reading == 'bottom')) return openAndEnter(link);
    // From a submenu below a row the key goes on to the row's neighbour.
    const root = level && state.levels[0].opener;
    const isGridEnd = boxAt(link).className == 'grid' && !isBeside(reading);
    const beyond = root?.zevSubmenu && !isGridEnd && nextLink(root, reading);
    if (beyond) moveTo(beyond);
}

const arrows = { ArrowRight: 'right', ArrowLeft: 'left', ArrowDown: 'bottom', ArrowUp: 'top' };

// A space belongs to typing only after letters.
function onLetter(link, event) {
    const isMore = event.timeStamp - state.typed.time < fixed.typingMs;
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

function onKeyDown(event) {
    const link = event.target, { key } = event;
    if (!link.zevSubmenu || hasModifier(event)) return;
    const links = linksOf(boxAt(link));
    // Tab goes on from where closing puts the focus. WebKit names Shift+Tab only by its code.
    if (key == 'Tab' || event.code == 'Tab') return closeFrom(0);
    if (/^Arrow/.test(key)) {
        onArrow(link, arrows[key]);
    } else if (key == 'Home') {
        moveTo(links[0]);
    } else if (key == 'End') {
        moveTo(links[links.length - 1]);
    } else if (!onLetter(link, event)) {
        if (key != ' ' && key != 'Enter') return;
        if (submenuOf(link)) openAndEnter(link);
        else if (key == ' ') link.click();
        else return;
    }
    event.preventDefault();
}

function onEscape(event) {
    if (event.key != 'Escape') return;
    const index = state.levels.findIndex(level => level.box.contains(focused()));
    closeFrom(Math.max(index, 0));
    // The next one closes the dialog.
    if (state.layer.hasAttribute('popover')) event.preventDefault();
}

function onOutside(event) {
    const path = event.composedPath();
    const { layer, bar, levels } = state;
    if (![layer, bar, levels[0].opener].some(own => path.includes(own))) closeFrom(0);
}
