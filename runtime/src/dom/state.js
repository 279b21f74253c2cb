// SPDX-License-Identifier: MIT
// ---- State: what opens, stays and closes; no element is called ----

// 0 for the top menu and what is closed, 1 for the first open level.
function depthOf(box) {
    return levels.findIndex(level => level.box == box) + 1;
}

function openLevel(depth, level) {
    close(depth);
    levels.push(level);
    show(level);
}

function close(depth) {
    clearTimeout(state.opening);
    while (levels.length > depth) {
        const level = levels.pop();
        clearTimeout(level.timer);
        hide(level);
    }
}

function isInside(level) {
    return level.side == 'inside';
}

// What the fold button opened is an accordion too.
function isFlat(level) {
    return isInside(level) || level.isFold;
}

// An accordion and what holds one: the mouse's coming and going changes nothing there.
function isSteady(index) {
    return levels.slice(index).some(isFlat);
}

// Lets all but the first `depth` levels close after the delay.
function keep(depth) {
    levels.forEach((level, index) => {
        if (index < depth) {
            level.timer = clearTimeout(level.timer);
        } else if (!isSteady(index)) {
            level.timer ||= setTimeout(() => close(levels.indexOf(level)), setting(null, 'closedelay'));
        }
    });
}

shared.closePopup = function (of) {
    // Browsers may tell of the arrival on the pop-up before the leaving of the link.
    if (levels[0]?.menu.zevId == popupId(of) && !depthOf(state.over?.box)) keep(0);
};

function pointAt(box, link, point) {
    const { over: was, last: before, crossing } = state;
    state.last = point;
    if (!box || (was?.box == box && was.link == link && !crossing)) return;
    state.over = { box, link };
    // On its way to a submenu the mouse may cross other items.
    const from = crossing?.from || before, level = levels[depthOf(box)];
    uncross();
    if (was && level && level.opener != link &&
        isHeadedFor(from, point, rectOf(level.box), level.side)) {
        // A mouse that rests so many milliseconds stays.
        state.crossing = { from, timer: setTimeout(hover, 200) };
    } else {
        hover();
    }
}

function hover() {
    const { box, link } = state.over, depth = depthOf(box), child = levels[depth];
    uncross();
    if (link && child?.opener == link) return keep(depth + 1);
    keep(depth);
    if (!link) return;
    // A bar that is open switches at once.
    const delay = levels.length ? 0 : setting(state.menus['0'], 'opendelay');
    if (delay) state.opening = setTimeout(openSubmenu, delay, link, true);
    else openSubmenu(link, true);
}

function uncross() {
    clearTimeout(state.opening);
    clearTimeout(state.crossing?.timer);
    state.crossing = null;
}

function pointAway() {
    state.last = state.over = null;
    uncross();
    keep(0);
}

/*
 * What a click on an item means: 'follow' its link, 'open' its submenu, 'enter' it too, 'close' it. `pointer`
 * is what was pressed: '' for a click that nothing pressed, as assistive technology makes it, 'key' for the key
 * that follows links. In an accordion a mouse is a finger.
 */
function meaningOfClick({ pointer, wasOpen, hasSubmenu, hasAddress, isAccordion }) {
    if (!hasSubmenu || pointer == 'key') return 'follow';
    if (pointer == 'mouse' && !isAccordion) return hasAddress ? 'follow' : 'open';
    if (!wasOpen) return pointer ? 'open' : 'enter';
    return hasAddress ? 'follow' : 'close';
}

/*
 * What an arrow means that leads to no neighbour: 'enter' the item's submenu, 'enterLast', 'close' the one the
 * item is in, go 'beyond' it along the top menu; '' for nothing. `side` is that of the item's submenu, '' if it
 * has none; `own` that of the one it is in, '' if it is in none or that has no item; `reading` is the
 * direction as from left to right.
 */
function meaningOfArrow({ direction, reading, side, own, isTop }) {
    if (side == direction || (side == 'inside' && reading == 'right')) return 'enter';
    if (own == 'inside' ? reading == 'left' : own && own == opposite[direction]) return 'close';
    if (side && isTop && side == opposite[direction]) return 'enterLast';
    if (side && side != 'inside' && isForward(reading)) return 'enter';
    // From a submenu below a row the key goes on to the row's neighbour.
    return own == 'inside' ? '' : 'beyond';
}
