// SPDX-License-Identifier: MIT
// Pages whose scripts and markup change what the browser gives to all scripts.
import assert from 'node:assert/strict';
import { after, afterEach, before, test } from 'node:test';
import { hover, shown, source, startLab, waitShown } from './support.mjs';

let lab, page;
before(async () => {
    lab = await startLab();
    page = lab.page;
});
after(() => lab.close());
afterEach(() => assert.deepEqual([page.errors, page.warnings], [[], []]));

async function assertWorks() {
    await hover(page, 'Products', 'Boats', 'Kayaks', 'Sea kayaks');
    assert.equal(await shown(page, 'Boats', 'Canoes', 'Sea kayaks', 'Map'), 'Boats Canoes Sea kayaks');
    await page.keyboard.press('Escape');
    await page.keyboard.press('Tab');
    for (const key of ['p', 'ArrowDown']) await page.keyboard.press(key);
    await waitShown(page, 'Boats');
}

// [what the page's script does, its text]
const scripts = [
    ['extends all objects', `Object.prototype.x = Object.prototype.p = function () {};
        Object.prototype.each = function () {};`],
    ['extends all arrays', `Array.prototype.x = 1; Array.prototype.each = function () {};
        Array.prototype.remove = function () {};`],
    ['extends all texts and functions', `String.prototype.x = String.prototype.strip = function () {};
        Function.prototype.x = Function.prototype.delay = function () {};`],
    ['extends all elements', `Element.prototype.x = Element.prototype.show = Element.prototype.each = function () {};
        Node.prototype.empty = function () {};`],
    ['has its own way to make arrays', `Array.from = function (list) {
        var result = []; for (var i = 0; i < list.length; i++) result.push(list[i]); return result; };`],
];

for (const [what, text] of scripts) {
    test(`the menu works in a page whose script ${what}`, async () => {
        await lab.show({ head: `<script>${text}</script>` });
        await assertWorks();
    });

    test(`the menu works in a page whose script ${what} before the library comes`, async () => {
        await lab.show({ loader: `<script>${text}</script>` + source('/runtime/zevmenu_loader.js') });
        await assertWorks();
    });
}

// An element with such a name takes the place of a property of the document or the window.
const names = ['currentScript', 'scripts', 'ZEVMenu', 'zev_path', 'zevmenu', 'trustedTypes'];

for (const name of names) {
    test(`the menu works in a page with an image of the name ${name} above it`, async () => {
        // Browsers end the head at an image.
        const image = `<img name="${name}" id="${name}" alt="" src="/evil/x.svg">`;
        await lab.show({ loader: '', before: image + source('/runtime/zevmenu_loader.js') });
        await assertWorks();
        const loaded = await page.evaluate(() => performance.getEntriesByType('resource').map(entry => entry.name));
        assert.deepEqual(loaded.filter(url => /evil.*js/.test(url)), []);
    });
}

// The file for browsers without a DOM is none of this browser's.
for (const where of ['before', 'after']) {
    test(`the menu works in a page that loads zevmenu_ns4.js by hand ${where} the loader`, async () => {
        const [ns4, loader] = ['ns4', 'loader'].map(name => source(`/runtime/zevmenu_${name}.js`));
        await lab.show({ loader: where == 'before' ? ns4 + loader : loader + ns4 });
        await assertWorks();
        assert.equal(await page.$('body > ul'), null);
    });
}
