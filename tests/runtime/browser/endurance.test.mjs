// SPDX-License-Identifier: MIT
// A menu opened and closed 10,000 times: nothing is left of it. So many openings with real input would take an
// hour; the events are made in the page, by the same targets and in the same order (growth.test.mjs has 300
// openings by real keys). What a page holds is counted by support_counts.mjs.
import assert from 'node:assert/strict';
import { after, afterEach, before, test } from 'node:test';
import { engine, nested, script, source, startLab } from './support.mjs';
import { countingScript, driverTimers } from './support_counts.mjs';

let lab, page;
before(async () => {
    lab = await startLab();
    page = lab.page;
});
after(() => lab.close());
afterEach(() => assert.deepEqual(page.errors, []));

// Runs in the page. Opens Products that many times, every tenth time Boats below it too, and closes them by all
// the ways there are in turn.
async function openAndClose(times, driverTimers) {
    const linkOf = name => [...document.querySelectorAll('[data-zev]')]
        .map(host => host.shadowRoot.querySelector(`a[aria-label="${name}"]`)).find(Boolean);
    const send = (target, type, Type = PointerEvent, more = {}) => target.dispatchEvent(new Type(type,
        { pointerType: 'mouse', bubbles: true, composed: true, cancelable: true, ...more }));
    const pause = ms => new Promise(resolve => setTimeout(resolve, ms));
    const isOpen = () => linkOf('Products').getAttribute('aria-expanded') == 'true';
    let opened = 0;
    for (let i = 0; i < times; i++) {
        // A mouse that stays on an item does not open what was closed under it.
        send(linkOf('Home'), 'pointermove');
        for (const [name, key] of [['Products', 'ArrowDown'], ['Boats', 'ArrowRight']].slice(0, i % 10 ? 1 : 2)) {
            if (i % 3) send(linkOf(name), 'pointermove');
            else send(linkOf(name), 'keydown', KeyboardEvent, { key });
        }
        if (isOpen()) opened++;
        if (i % 200 == 7) {
            send(linkOf('Products').getRootNode().host, 'pointerleave', PointerEvent, { bubbles: false });
            // closedelay is 0.
            while (isOpen()) await pause(0);
        } else if (i % 2) {
            send(document.body, 'pointerdown');
        } else {
            for (let k = 0; k < 2; k++) send(document, 'keydown', KeyboardEvent, { key: 'Escape' });
        }
        if (isOpen()) throw new Error('the menu is still open');
        // What observers tell, and the end of fading, comes between.
        if (i % 20 == 19) await pause(0);
    }
    // What is built ahead takes a moment; a timer that never ends is no reason to wait for ever.
    for (let tries = 0; tries < 30 && (!tries || document.counts().timers > driverTimers); tries++) await pause(100);
    return opened;
}

const counting = { loader: countingScript + script("var zev_path = '/runtime/';") +
    source('/runtime/zevmenu_loader.js') };
const atOnce = 'zev_state.opendelay = 0;' + nested.replace('closedelay = 300', 'closedelay = 0');

// Bytes that the page's scripts hold; only Chromium tells.
async function heapBytes() {
    const session = await page.createCDPSession();
    await session.send('HeapProfiler.collectGarbage');
    const { usedSize } = await session.send('Runtime.getHeapUsage');
    await session.detach();
    return usedSize;
}

// [what, definition, rounds, openings in each]
const uses = [
    ['10,000 openings', atOnce, 10, 1000],
    ['100 openings of submenus that fade', atOnce.replace('= 0;', '= 0; zev_state.ffade = 0.01;'), 1, 100],
];

for (const [what, definition, rounds, times] of uses) {
    test(`${what} leave no element, listener, timer, observer, animation or memory behind`, async () => {
        await lab.show({ ...counting, definition });
        assert.equal(await page.evaluate(openAndClose, times, driverTimers), times);
        const first = await page.evaluate(() => document.counts());
        assert.ok(first.elements > 20 && first.listeners > 10, JSON.stringify(first));
        assert.deepEqual([first.timers, first.observed, first.animations], [driverTimers, 0, 0]);
        const firstBytes = engine == 'chromium' && await heapBytes();
        for (let i = 0; i < rounds; i++) assert.equal(await page.evaluate(openAndClose, times, driverTimers), times);
        assert.deepEqual(await page.evaluate(() => document.counts()), first);
        if (engine != 'chromium') return;
        const growth = await heapBytes() - firstBytes;
        // One small object kept of each opening would be 12 bytes or more for each; code is compiled meanwhile.
        assert.ok(growth < 20000 + 8 * rounds * times, `${growth} bytes more than ${firstBytes}`);
    });
}

test('the counts see one element, style sheet, listener, timer, observed element and animation more', async () => {
    await lab.show({ ...counting, definition: atOnce });
    await page.evaluate(openAndClose, 1, driverTimers);
    const first = await page.evaluate(() => document.counts());
    await page.evaluate(() => {
        const host = document.querySelector('[data-zev=bar]'), box = host.shadowRoot.querySelector('ul');
        host.shadowRoot.append(document.createElement('p'));
        host.shadowRoot.adoptedStyleSheets = [...host.shadowRoot.adoptedStyleSheets, new CSSStyleSheet()];
        box.addEventListener('click', () => {});
        setTimeout(() => {}, 60000);
        new IntersectionObserver(() => {}).observe(box);
        box.animate([{ opacity: 1 }, { opacity: 0 }], 60000);
    });
    const expected = Object.fromEntries(Object.entries(first).map(([what, count]) => [what, count + 1]));
    assert.deepEqual(await page.evaluate(() => document.counts()), expected);
});

if (engine == 'chromium') {
    test('the heap tells of 1,000 small objects more', async () => {
        await lab.show({ ...counting, definition: atOnce });
        // What is built while idle is there, and garbage of the start gone.
        await page.evaluate(openAndClose, 1, driverTimers);
        await heapBytes();
        const first = await heapBytes();
        await page.evaluate(() => { document.kept = Array.from({ length: 1000 }, (_, i) => ({ i })); });
        assert.ok(await heapBytes() - first > 10000);
    });
}
