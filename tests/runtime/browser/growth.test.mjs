// SPDX-License-Identifier: MIT
// What use leaves behind. Chromium itself counts the nodes and listeners that are alive; the other engines do
// not tell, there the page counts its elements, and what it was asked to listen to.
import assert from 'node:assert/strict';
import { after, afterEach, before, test } from 'node:test';
import { engine, nested, pause, startLab } from './support.mjs';

let lab, page, browser;
before(async () => {
    lab = await startLab();
    page = lab.page;
    if (engine == 'chromium') browser = await page.createCDPSession();
});
after(() => lab.close());
afterEach(() => assert.deepEqual(page.errors, []));

const counter = `<script>
    listening = [];
    const { addEventListener: add, removeEventListener: remove } = EventTarget.prototype;
    const find = (target, type, listener, options) => listening.findIndex(known => known[0] == target &&
        known[1] == type && known[2] == listener && known[3] == !!(options && options.capture || options === true));
    EventTarget.prototype.addEventListener = function (type, listener, options) {
        if (find(this, type, listener, options) < 0) {
            listening.push([this, type, listener, !!(options && options.capture || options === true)]);
        }
        add.apply(this, arguments);
    };
    EventTarget.prototype.removeEventListener = function (type, listener, options) {
        const index = find(this, type, listener, options);
        if (index >= 0) listening.splice(index, 1);
        remove.apply(this, arguments);
    };</script>`;
// A busy browser may be idle for the first time long after the page was shown, or never; here the library
// builds ahead after a moment instead.
const counting = { loader: (engine == 'chromium' ? '' : counter) +
    '<script>window.requestIdleCallback = undefined;</script><script src="/runtime/zevmenu_loader.js"></script>' };

// [nodes, listeners] alive in the page.
async function counts() {
    if (engine != 'chromium') {
        return page.evaluate(() => {
            const roots = [document];
            for (const root of roots) {
                for (const element of root.querySelectorAll('*')) {
                    if (element.shadowRoot) roots.push(element.shadowRoot);
                }
            }
            return [roots.flatMap(root => [...root.querySelectorAll('*')]).length, listening.length];
        });
    }
    await browser.send('HeapProfiler.collectGarbage');
    const { nodes, jsEventListeners } = await browser.send('Memory.getDOMCounters');
    return [nodes, jsEventListeners];
}

// The counts once they do not change any more: when what is built ahead is built, and garbage is gone.
async function steadyCounts() {
    let now, last;
    for (let tries = 0; tries < 20; tries++) {
        last = now;
        now = await counts();
        if (String(now) == String(last)) return now;
        await pause(500);
    }
    throw new Error(`the counts go on changing: ${last}, ${now}`);
}

// Opens Products and Boats below it by the keyboard, and closes both.
async function openTwo() {
    for (const key of ['ArrowDown', 'ArrowRight', 'Escape', 'Escape']) await page.keyboard.press(key);
}

// What may be repeated without end. [what, action, times]
const uses = [
    ['300 openings', openTwo, 150],
    ['50 calls of ZEVLoadMenu', () => page.evaluate(() => ZEVLoadMenu()), 50],
    ['50 calls of ZEVCreateMenu and ZEVDisplayMenu', () => page.evaluate(() => {
        ZEVCreateMenu();
        ZEVDisplayMenu();
    }), 50],
    ['100 pop-ups', () => page.evaluate(() => {
        ZEVMenuOpen('zev1', '2', 20, 200);
        document.dispatchEvent(new KeyboardEvent('keydown', { key: 'Escape' }));
    }), 100],
];

for (const [what, action, times] of uses) {
    test(`${what} leave no element and no listener behind`, async () => {
        await lab.show({ definition: nested, ...counting });
        for (const key of ['Tab', 'ArrowRight']) await page.keyboard.press(key);
        await openTwo();
        for (let i = 0; i < 3; i++) await action();
        const first = await steadyCounts();
        assert.ok(first[0] > 20 && first[1] > 5, first.join());
        for (let i = 0; i < times; i++) await action();
        assert.deepEqual(await steadyCounts(), first);
    });
}

test('the counts see one element and one listener more', async () => {
    await lab.show(counting);
    const first = await steadyCounts();
    await page.evaluate(() => document.body.appendChild(document.createElement('p'))
        .addEventListener('click', () => {}));
    assert.deepEqual(await steadyCounts(), [first[0] + 1, first[1] + 1]);
});
