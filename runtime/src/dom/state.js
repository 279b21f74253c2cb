// ---- State: what opens, stays and closes; no element is called ----

// 0 for the top menu and what is closed, 1 for the first open level.
function depthOf(box) {
    return state.levels.findIndex(level => level.box == box) + 1;
}

function openLevel(depth, level) {
    closeFrom(depth);
    state.levels.push(level);
    show(level);
}

function closeFrom(depth) {
    while (state.levels.length > depth) {
        const level = state.levels.pop();
        clearTimeout(level.timer);
        hide(level);
    }
}

// Lets all but the first `depth` levels close after the delay.
function keep(depth) {
    state.levels.forEach((level, index) => {
        if (index < depth) {
            clearTimeout(level.timer);
            level.timer = 0;
        } else if (!level.timer) {
            level.timer = setTimeout(() => closeFrom(state.levels.indexOf(level)),
                                     setting(null, 'closedelay'));
        }
    });
}

shared.closePopup = function (id) {
    // Browsers may tell of the arrival on the pop-up before the leaving of the link.
    const isInside = state.over && depthOf(state.over.box) > 0;
    if (state.levels[0]?.menu.zevId == id && !isInside) keep(0);
};

function pointAt(box, link, point) {
    const { over: was, lastPoint: before, crossing } = state;
    state.lastPoint = point;
    if (!box || (was && was.link == link && was.box == box && !crossing)) return;
    state.over = { box, link };
    // On its way to a submenu the mouse may cross other items.
    const from = crossing ? crossing.from : before, level = state.levels[depthOf(box)];
    dropCrossing();
    if (was && level && level.opener != link &&
        isHeadedFor(from, point, rectOf(level.box), level.side)) {
        state.crossing = { from, timer: setTimeout(hover, fixed.restMs) };
    } else {
        hover();
    }
}

function hover() {
    const { box, link } = state.over, depth = depthOf(box), child = state.levels[depth];
    dropCrossing();
    if (link && child?.opener == link) return keep(depth + 1);
    keep(depth);
    if (link) openSubmenu(link);
}

function dropCrossing() {
    clearTimeout(state.crossing?.timer);
    state.crossing = null;
}

function pointAway() {
    state.lastPoint = state.over = null;
    dropCrossing();
    keep(0);
}

function takePress() {
    const { press } = state;
    state.press = {};
    return press;
}
