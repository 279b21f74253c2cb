// SPDX-License-Identifier: MIT
// What a page holds, counted by the page itself, in functions put in place of the browser's own before the library
// comes.
import { engine, script } from './support.mjs';

/*
 * Runs in the page before the library. Afterwards document.counts() tells what the page holds: elements and style
 * sheets, also of shadow trees, listeners, timers that have not run, observed elements and running animations.
 */
function countEverything() {
    const listeners = new Set(), timers = new Set(), observed = new Set(), numbers = new WeakMap();
    let last = 0;
    const numberOf = object => {
        if (!numbers.has(object)) numbers.set(object, ++last);
        return numbers.get(object);
    };
    const keyOf = (target, type, listener, options) => [numberOf(target || window), type, numberOf(listener),
        !!(options === true || options?.capture)].join();

    const { addEventListener, removeEventListener } = EventTarget.prototype;
    EventTarget.prototype.addEventListener = function (type, listener, options) {
        const key = keyOf(this, type, listener, options);
        listeners.add(key);
        if (options?.once) addEventListener.call(this, type, () => listeners.delete(key), options);
        return addEventListener.call(this, type, listener, options);
    };
    EventTarget.prototype.removeEventListener = function (type, listener, options) {
        listeners.delete(keyOf(this, type, listener, options));
        return removeEventListener.call(this, type, listener, options);
    };

    for (const [set, clear, isLasting] of [['setTimeout', 'clearTimeout'], ['setInterval', 'clearInterval', true],
        ['requestAnimationFrame', 'cancelAnimationFrame'], ['requestIdleCallback', 'cancelIdleCallback']]) {
        const [setOriginal, clearOriginal] = [window[set], window[clear]];
        if (!setOriginal) continue;
        window[set] = (action, ...rest) => {
            const id = setOriginal.call(window, (...values) => {
                if (!isLasting) timers.delete(set + id);
                action(...values);
            }, ...rest);
            timers.add(set + id);
            return id;
        };
        window[clear] = id => {
            timers.delete(set + id);
            clearOriginal.call(window, id);
        };
    }

    for (const type of [IntersectionObserver, ResizeObserver, MutationObserver]) {
        const { observe, disconnect } = type.prototype;
        type.prototype.observe = function (target, ...rest) {
            observed.add(numberOf(this) + ',' + numberOf(target));
            return observe.call(this, target, ...rest);
        };
        type.prototype.disconnect = function () {
            for (const key of observed) {
                if (key.startsWith(numberOf(this) + ',')) observed.delete(key);
            }
            return disconnect.call(this);
        };
    }

    document.counts = () => {
        const roots = [document];
        let elements = 0, sheets = 0;
        for (const root of roots) {
            // WebKit has the adopted ones in both lists.
            sheets += new Set([...root.styleSheets, ...root.adoptedStyleSheets || []]).size;
            for (const element of root.querySelectorAll('*')) {
                elements++;
                if (element.shadowRoot) roots.push(element.shadowRoot);
            }
        }
        const animations = roots.flatMap(root => root.getAnimations()).length;
        return { elements, sheets, listeners: listeners.size, timers: timers.size, observed: observed.size,
            animations };
    };
}

export const countingScript = script(`(${countEverything})()`);

// WebKit's driver has a timer of its own in the page while a script runs.
export const driverTimers = engine == 'webkit' ? 1 : 0;
