// What use leaves behind, as the browser counts it: nodes, listeners, and listeners by element. Only
// chromium tells these numbers.
import assert from 'node:assert/strict';
import { after, before, test } from 'node:test';
import { nested, pause, startLab } from './support.mjs';

const isSkipped = (process.env.ENGINE || 'chromium') != 'chromium' && 'only chromium counts nodes and listeners';

let lab, page, browser;
before(async () => {
    lab = await startLab();
    page = lab.page;
    if (!isSkipped) browser = await page.createCDPSession();
});
after(() => lab.close());

// [nodes, listeners] alive in the page.
async function counts() {
    // What is built ahead is built by then.
    await pause(500);
    await browser.send('HeapProfiler.collectGarbage');
    const { nodes, jsEventListeners } = await browser.send('Memory.getDOMCounters');
    return [nodes, jsEventListeners];
}

// Opens Products and Boats below it by the keyboard, and closes both.
async function openAndClose() {
    for (const key of ['ArrowDown', 'ArrowRight', 'Escape', 'Escape']) await page.keyboard.press(key);
}

// What may be repeated without end. [what, action, times]
const uses = [
    ['300 openings', openAndClose, 300],
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
    test(`${what} leave no element and no listener behind`, { skip: isSkipped }, async () => {
        await lab.show({ definition: nested });
        for (const key of ['Tab', 'ArrowRight']) await page.keyboard.press(key);
        await openAndClose();
        for (let i = 0; i < 3; i++) await action();
        const first = await counts();
        assert.ok(first[0] > 30 && first[1] > 5, first.join());
        for (let i = 0; i < times; i++) await action();
        assert.deepEqual(await counts(), first);
    });
}

test('the counts see one element and one listener more', { skip: isSkipped }, async () => {
    await lab.show();
    const first = await counts();
    await page.evaluate(() => document.body.appendChild(document.createElement('p'))
        .addEventListener('click', () => {}));
    assert.deepEqual(await counts(), [first[0] + 1, first[1] + 1]);
});
