// SPDX-License-Identifier: MIT
// The script that stands first in every page of the benchmarks; what it says of a contender follows it
// (lateScript, opener, submenu). Times are milliseconds since the navigation began.
var bench = { start: performance.now() };

// The page's last script has run: the menu's place is laid out now, whatever follows later.
bench.done = function () {
    bench.layOut();
    bench.drawn = performance.now();
    bench.isDrawn = true;
    bench.finish();
};

bench.layOut = function () {
    return document.body.offsetHeight + bench.opener().getBoundingClientRect().height;
};

// The script that submenus need and that nothing waits for, where there is one, has run.
document.addEventListener('load', function (event) {
    var isScript = event.target.nodeName == 'SCRIPT';
    if (!bench.lateScript || !isScript || !event.target.src.endsWith(bench.lateScript)) return;
    bench.lateScript = '';
    bench.finish();
}, true);

bench.finish = function () {
    if (bench.lateScript || !bench.isDrawn) return;
    bench.layOut();
    bench.ready = performance.now();
};

// Whether the submenu can be seen: laid out, inside the window, and not transparent.
bench.isShown = function () {
    var submenu = bench.submenu();
    if (!submenu || !submenu.checkVisibility({ checkOpacity: true, checkVisibilityCSS: true })) return false;
    var rect = submenu.getBoundingClientRect();
    return rect.width > 0 && rect.height > 0 && rect.left < innerWidth && rect.top < innerHeight &&
        rect.right > 0 && rect.bottom > 0;
};

/*
 * Waits for the first event on the opener, and measures from there until the first frame that shows the
 * submenu is laid out and painted: the message posted in a frame's callback comes after that. What the
 * browser needs until the page gets the event is the same for all and left out.
 */
bench.watch = function (types) {
    bench.opening = null;
    var input = 0, channel = new MessageChannel();
    function onInput(event) {
        if (input || !event.composedPath().includes(bench.opener())) return;
        input = performance.now();
        types.forEach(function (type) { removeEventListener(type, onInput, true); });
        requestAnimationFrame(onFrame);
    }
    function onFrame() {
        if (bench.isShown()) channel.port2.postMessage('');
        else requestAnimationFrame(onFrame);
    }
    channel.port1.onmessage = function () {
        bench.opening = performance.now() - input;
    };
    types.forEach(function (type) { addEventListener(type, onInput, true); });
};

// Elements of the page with those in shadow trees, but for the benchmark's own two scripts.
bench.countElements = function () {
    function count(root) {
        return Array.from(root.querySelectorAll('*')).reduce(function (sum, element) {
            return sum + 1 + (element.shadowRoot ? count(element.shadowRoot) : 0);
        }, 0);
    }
    return count(document) - 2;
};
