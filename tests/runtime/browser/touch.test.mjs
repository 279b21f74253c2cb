// SPDX-License-Identifier: MIT
// The menu under a finger, and under clicks that no pointer made.
import assert from 'node:assert/strict';
import { after, afterEach, before, test } from 'node:test';
import { focus, isShown, item, nested, pause, rect, source, startLab, waitAt, waitGone, waitShown } from './support.mjs';

let lab, page;
before(async () => {
    lab = await startLab();
    page = lab.page;
});
after(() => lab.close());
afterEach(() => assert.deepEqual(page.errors, []));

const popup = { place: source('menu.js'), before: `<a id="link" href=""
    onmouseover="ZEVMenuOpen('zev1', '2', event)" onmouseout="ZEVMenuClose('zev1', '2', false)">Menu</a>`,
    after: '<a id="after" href="#">after</a>' };

async function tap(name) {
    const { x, y, width, height } = await rect(page, name);
    await page.touchscreen.tap(x + width / 2, y + height / 2);
}

test('touch: the first tap opens a submenu, the second follows the link', async () => {
    await lab.show({ hasTouch: true });
    await tap('Products');
    await waitShown(page, 'Boats');
    await tap('Boats');
    await waitShown(page, 'Canoes');
    assert.equal(await page.url(), lab.origin + '/site/page.html');
    await tap('Products');
    await waitAt(page, lab.origin + '/site/products.html');
});

test('touch: a tap on an item without a submenu follows its link', async () => {
    await lab.show({ hasTouch: true });
    await tap('Products');
    await waitShown(page, 'Oars');
    await tap('Oars');
    await waitAt(page, lab.origin + '/site/oars.html');
});

test('touch: a second tap on an open item without a link closes it', async () => {
    await lab.show({ definition: nested.replace("'products.html'", "''"), hasTouch: true });
    await tap('Products');
    await waitShown(page, 'Boats');
    await tap('Products');
    await waitGone(page, 'Boats');
    await tap('Products');
    await waitShown(page, 'Boats');
});

test('touch: an open submenu stays, until a tap elsewhere', async () => {
    await lab.show({ hasTouch: true });
    await tap('Products');
    await waitShown(page, 'Boats');
    await pause(600);
    assert.ok(await isShown(page, 'Boats'));
    await page.touchscreen.tap(700, 500);
    await waitGone(page, 'Boats');
});

test("touch: a tap on a pop-up's link opens it and does not follow the link", async () => {
    await lab.show({ ...popup, before: popup.before.replace('href=""', 'href="away.html"'), hasTouch: true });
    const box = await (await page.$('#link')).boundingBox();
    await page.touchscreen.tap(box.x + 5, box.y + 5);
    await waitShown(page, 'Boats');
    await pause(100);
    assert.equal(await page.url(), lab.origin + '/site/page.html');
});

test('touch: a tap on a link with listeners opens its pop-up and does not follow the link', async () => {
    // Where no test before has tapped: Firefox takes the last tap's place for the mouse's, in the next page too.
    await lab.show({ ...popup, before: '<p style="margin:200px"><a id="link" href="away.html">Menu</a></p>',
        hasTouch: true,
        after: `<script>document.getElementById('link').addEventListener('mouseover', event =>
            ZEVMenuOpen('zev1', '2', event));</script>` });
    const box = await (await page.$('#link')).boundingBox();
    await page.touchscreen.tap(box.x + 5, box.y + 5);
    await waitShown(page, 'Boats');
    await pause(100);
    assert.equal(await page.url(), lab.origin + '/site/page.html');
});

test('a click without a pointer, as screen readers make it, first opens and then follows', async () => {
    await lab.show();
    await (await item(page, 'Products')).evaluate(link => link.click());
    await waitShown(page, 'Boats');
    assert.equal(await focus(page), 'Boats');
    await (await item(page, 'Products')).evaluate(link => link.click());
    await waitAt(page, lab.origin + '/site/products.html');
});

test('a second click without a pointer closes the submenu of an item without a link', async () => {
    await lab.show({ definition: nested.replace("'products.html'", "''") });
    for (const expected of ['Boats', 'Products']) {
        await (await item(page, 'Products')).evaluate(link => link.click());
        assert.equal(await focus(page), expected);
    }
    assert.equal(await isShown(page, 'Boats'), false);
});

test("a click without a pointer on a pop-up's link opens it and takes the focus into it", async () => {
    await lab.show(popup);
    await page.$eval('#link', link => link.click());
    assert.equal(await focus(page), 'Boats');
});
