// SPDX-License-Identifier: MIT
// ---- What pages call ----

function drawTop() {
    var menu = state.menus['0'];
    if (!state.bar || !state.bar.isConnected || state.barBox || !menu || !menu.zevItems.length) return;
    var home = shared.homeOf(state.bar);
    // For its marks, and without asking for a style yet; the second file does.
    if (document.dir == 'rtl') home.dir = 'rtl';
    addFold(home, menu);
    state.barBox = home.appendChild(buildBox(menu));
    state.barBox.hidden = state.fold && state.fold.matches;
    if (shared.adoptBar) shared.adoptBar();
}

// The page's element that stands for a call of ZEVDisplayMenu.
function placeOf() {
    return isModern && document.querySelector('[data-zevmenu]');
}

function draw() {
    if (placeOf() && !state.isRemoved) ZEVDisplayMenu();
    else drawTop();
}

// What was asked for in the page's head has its place now.
function onReady() {
    if (state.bar && !state.bar.isConnected) ZEVDisplayMenu();
    else draw();
}

// A handler or the page's head names no place, and gets the start of the page.
function placeBar() {
    var script = currentScript(), body = document.body, place = placeOf();
    if (place) {
        place.append(state.bar);
    } else if (script && script.parentNode && script.parentNode != document.head) {
        script.before(state.bar);
    } else if (body) {
        body.prepend(state.bar);
    }
}

// The old menu has left the page with the part that held it.
function restart() {
    clear(state.next['0'] ? state.next : state.menus);
    if (!shared.serve) return;
    shared.serve(true);
    shared.refresh();
}

window.ZEVDisplayMenu = function () {
    if (shared.writeLinks) {
        shared.writeLinks();
    } else if (isModern) {
        if (state.barBox && !state.bar.isConnected) restart();
        if (!state.bar) state.bar = shared.createHost('bar');
        if (!state.bar.isConnected) placeBar();
        drawTop();
    }
};

window.ZEVCreateMenu = window.ZEVLoadMenu = function () {
    draw();
    if (shared.refresh && !state.isRemoved) shared.refresh();
};

// An event's data are gone when a waiting call is done.
window.ZEVMenuOpen = function (a, b, x, y) {
    var isEvent = x && typeof x == 'object';
    var call = { of: asText(a) + ' ' + asText(b), link: isEvent && x.currentTarget, isEvent: isEvent,
        x: isEvent ? x.pageX : asText(x), y: isEvent ? x.pageY : asText(y) };
    if (shared.openPopup) shared.openPopup(call);
    else state.early = call;
};

window.ZEVMenuClose = function (a, b) {
    state.early = null;
    if (shared.closePopup) shared.closePopup(asText(a) + ' ' + asText(b));
};

function clear(menus) {
    if (shared.stop) shared.stop();
    clearTimeout(state.drawing);
    document.removeEventListener('DOMContentLoaded', onReady);
    if (state.bar) state.bar.remove();
    // The others are none, or empty now.
    var kept = { menus: menus, scripts: state.scripts, levels: state.levels }, name;
    for (name in state) delete state[name];
    Object.assign(state, emptyState(), kept);
}

// Takes away what was added, but for the global names. The next definition starts again.
shared.destroy = function () {
    clear({});
    while (state.scripts.length) state.scripts.pop().remove();
    state.isRemoved = true;
    window.zevmenu = noMenu;
};

ZEVMenu.shared = shared;
window.ZEVMenu = ZEVMenu;
window.zev_state = window.zev_state || {};
window.zevmenu = noMenu;

var definition = own && own.getAttribute('data-definition');
if (isModern) {
    document.addEventListener('DOMContentLoaded', onReady);
    if (definition) load(definition).onload = ZEVLoadMenu;
} else {
    document.write('<script language="JavaScript1.2" src="' + prefix +
        'zevmenu_ns4.js"><\/script>');
}
