// ---- What pages call ----

function drawTop() {
    var menu = state.menus['0'];
    if (!state.bar || state.barBox || !menu || !menu.zevItems.length) return;
    state.barBox = buildBox(menu);
    if (state.bar.closest('[dir]')) state.barBox.dir = state.bar.closest('[dir]').dir;
    addFold(menu);
    state.bar.shadowRoot.appendChild(state.barBox);
    if (shared.adoptBar) shared.adoptBar();
}

// A handler or the page's head names no place, and gets the start of the page.
function placeBar() {
    var script = document.currentScript;
    if (script && script.parentNode && script.parentNode != document.head) {
        script.parentNode.insertBefore(state.bar, script);
    } else if (document.body) {
        document.body.insertBefore(state.bar, document.body.firstChild);
    } else {
        document.addEventListener('DOMContentLoaded', placeBar);
    }
}

window.ZEVDisplayMenu = function () {
    if (shared.writeLinks) {
        shared.writeLinks();
    } else if (isModern) {
        if (!state.bar) state.bar = createHost('bar');
        if (!state.bar.isConnected) placeBar();
        drawTop();
    }
};

window.ZEVCreateMenu = window.ZEVLoadMenu = function () {
    drawTop();
    if (shared.refresh && !state.isRemoved) shared.refresh();
};

// 'zev1' and the id, or 'zev1i' + N and the rest of it.
function popupId(a, b) {
    var call = /^zev1(i\d+)? ([1-9][\di]*)$/.exec(asText(a) + ' ' + asText(b));
    return call ? ((call[1] || '') + 'i' + call[2]).substring(1) : '';
}

// An event's data are gone when a waiting call is done.
window.ZEVMenuOpen = function (a, b, x, y) {
    var event = x && typeof x == 'object' ? x : null, coordinate = asNumber(-1e7, 1e7);
    var call = { id: popupId(a, b), link: event && event.currentTarget, isEvent: event != null,
        x: coordinate(event ? event.pageX : x), y: coordinate(event ? event.pageY : y) };
    if (shared.openPopup) shared.openPopup(call);
    else state.earlyCall = call;
};

window.ZEVMenuClose = function (a, b) {
    state.earlyCall = null;
    if (shared.closePopup) shared.closePopup(popupId(a, b));
};

// Takes away what was added, but for the global names. The next definition starts again.
function destroy() {
    if (shared.stop) shared.stop();
    clearTimeout(state.drawing);
    document.removeEventListener('DOMContentLoaded', placeBar);
    if (state.bar) state.bar.remove();
    if (state.renderer) state.renderer.remove();
    Object.assign(state, emptyState());
    state.isRemoved = true;
    window.zevmenu = noMenu;
}

ZEVMenu.shared = shared;
window.ZEVMenu = ZEVMenu;
window.zev_state = window.zev_state || {};
window.zevmenu = noMenu;

var own = document.currentScript;
var prefix = typeof window.zev_path == 'string' ? window.zev_path : '';
if (prefix == '' && own && own.src) prefix = own.src.replace(/[^\/]*([?#].*)?$/, '');

if (isModern) {
    var renderer = state.renderer = document.createElement('script');
    renderer.src = prefix + 'zevmenu_dom.js';
    renderer.onerror = function () {
        warn(renderer.src + ' did not load; submenus do not open');
    };
    (document.head || document.documentElement).appendChild(renderer);
} else {
    document.write('<script language="JavaScript1.2" src="' + prefix +
        'zevmenu_ns4.js"><\/script>');
}
