// SPDX-License-Identifier: MIT
// ---- What pages call ----

function drawTop() {
    var menu = state.menus['0'];
    if (!state.bar || state.barBox || !menu || !menu.zevItems.length) return;
    state.barBox = buildBox(menu);
    if (state.bar.closest('[dir]')) state.barBox.dir = state.bar.closest('[dir]').dir;
    addFold(menu);
    state.bar.shadowRoot.lastChild.appendChild(state.barBox);
    if (shared.adoptBar) shared.adoptBar();
}

// The page's element that stands for a call of ZEVDisplayMenu.
function findPlace() {
    return isModern && document.querySelector('[data-zevmenu]');
}

function draw() {
    if (findPlace() && !state.isRemoved) ZEVDisplayMenu();
    else drawTop();
}

// What was asked for in the page's head has its place now.
function onReady() {
    if (state.bar && !state.bar.isConnected) ZEVDisplayMenu();
    else draw();
}

// A handler or the page's head names no place, and gets the start of the page.
function placeBar() {
    var script = currentScript(), body = document.body, place = findPlace();
    if (place) {
        place.appendChild(state.bar);
    } else if (script && script.parentNode && script.parentNode != document.head) {
        script.parentNode.insertBefore(state.bar, script);
    } else if (body) {
        body.insertBefore(state.bar, body.firstChild);
    }
}

// The old menu has left the page with the part that held it.
function startAfresh() {
    takeAway(state.next['0'] ? state.next : state.menus);
    if (!shared.serve) return;
    shared.serve(true);
    shared.refresh();
}

window.ZEVDisplayMenu = function () {
    if (shared.writeLinks) {
        shared.writeLinks();
    } else if (isModern) {
        if (state.barBox && !state.bar.isConnected) startAfresh();
        if (!state.bar) state.bar = createHost('bar');
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
    var event = x && typeof x == 'object' ? x : null;
    var call = { of: asText(a) + ' ' + asText(b), link: event && event.currentTarget, isEvent: event != null,
        x: event ? event.pageX : asText(x), y: event ? event.pageY : asText(y) };
    if (shared.openPopup) shared.openPopup(call);
    else state.earlyCall = call;
};

window.ZEVMenuClose = function (a, b) {
    state.earlyCall = null;
    if (shared.closePopup) shared.closePopup(asText(a) + ' ' + asText(b));
};

function takeAway(menus) {
    if (shared.stop) shared.stop();
    clearTimeout(state.drawing);
    document.removeEventListener('DOMContentLoaded', onReady);
    if (state.bar) state.bar.remove();
    Object.assign(state, emptyState(), { menus: menus, scripts: state.scripts });
}

// Takes away what was added, but for the global names. The next definition starts again.
function destroy() {
    takeAway({});
    while (state.scripts.length) state.scripts.pop().remove();
    state.isRemoved = true;
    window.zevmenu = noMenu;
}

ZEVMenu.shared = shared;
window.ZEVMenu = ZEVMenu;
window.zev_state = window.zev_state || {};
window.zevmenu = noMenu;

var own = currentScript();
var definition = own && own.getAttribute('data-definition');
var prefix = typeof window.zev_path == 'string' ? window.zev_path : '';
if (prefix == '' && own) prefix = own.src.replace(/[^\/]*([?#].*)?$/, '');

// What the page trusts this file with holds for those that it asks for.
function load(url) {
    var script = document.createElement('script');
    if (own) script.nonce = own.nonce;
    script.onerror = function () {
        warn(url + ' did not load');
    };
    script.src = policy.createScriptURL(url);
    state.scripts.push(script);
    return (document.head || document.documentElement).appendChild(script);
}

if (isModern) {
    load(prefix + 'zevmenu_dom.js');
    document.addEventListener('DOMContentLoaded', onReady);
    if (definition) load(definition).onload = ZEVLoadMenu;
} else {
    document.write('<script language="JavaScript1.2" src="' + prefix +
        'zevmenu_ns4.js"><\/script>');
}
