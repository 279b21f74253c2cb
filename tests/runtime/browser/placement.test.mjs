// SPDX-License-Identifier: MIT
// Where submenus stand in pages that scroll in boxes, are zoomed, or are as narrow as a phone.
import assert from 'node:assert/strict';
import { after, afterEach, before, test } from 'node:test';
import { boxRect, hover, isShown, nested, rect, script, source, startLab, until, waitGone, waitShown }
    from './support.mjs';

let lab, page;
before(async () => {
    lab = await startLab();
    page = lab.page;
});
after(() => lab.close());
afterEach(() => assert.deepEqual(page.errors, []));

function assertNear(actual, expected, what) {
    assert.ok(Math.abs(actual - expected) <= 1, `${what}: ${actual}, not ${expected}`);
}

async function assertInWindow(name) {
    const { left, top, right, bottom } = await boxRect(page, name);
    const [width, height] = await page.evaluate(() => [innerWidth, innerHeight]);
    assert.ok(left >= -1 && top >= -1 && right <= width + 1 && bottom <= height + 1,
              JSON.stringify([left, top, right, bottom]));
}

// [zoom, the page's style]
const zooms = [
    ['zoom on the body', 'body { zoom: 1.5 }'],
    ['zoom below 1 on the body', 'body { zoom: 0.5 }'],
    ['zoom on the root', 'html { zoom: 2 }'],
    ['zoom around the menu', '#around { zoom: 1.5 }'],
    ['a scaled body', 'body { transform: scale(0.8); transform-origin: 50px 10px }'],
];

for (const [zoom, css] of zooms) {
    test(`${zoom}: submenus stand at their items and in the window`, async () => {
        await lab.show({ head: `<style>${css}</style>`, before: '<div id="around">', after: '</div>' });
        await hover(page, 'Products', 'Boats');
        await waitShown(page, 'Canoes');
        const [products, boats, canoes] = [await rect(page, 'Products'), await boxRect(page, 'Boats'),
            await boxRect(page, 'Canoes')];
        assertNear(boats.left, products.left, 'left of the submenu');
        assert.ok(boats.top >= products.bottom && boats.top <= products.bottom + 2.5);
        assert.ok(canoes.left >= boats.right && canoes.left <= boats.right + 2.5);
    });

    test(`${zoom}: a submenu that does not fit is flipped`, async () => {
        await lab.show({ head: `<style>${css}</style>`, place:
            `<div id="around" style="position:absolute;right:0;bottom:0">${source('menu.js')}${
                script('ZEVDisplayMenu();')}</div>` });
        await hover(page, 'Contact');
        await waitShown(page, 'Map');
        await assertInWindow('Map');
        assert.ok((await boxRect(page, 'Map')).bottom <= (await rect(page, 'Contact')).top + 1 ||
                  (await boxRect(page, 'Map')).top >= (await rect(page, 'Contact')).bottom - 1);
    });
}

// The menu in a box that scrolls inside another one.
const nestedBoxes = {
    definition: nested.replace('300', '60000'),
    before: `<div id="outer" style="height:300px;overflow:auto"><div style="height:100px"></div>
        <div id="inner" style="height:150px;overflow:auto"><div style="height:60px"></div>`,
    after: '<div style="height:900px"></div></div><div style="height:900px"></div></div>',
};

function scrollBy(id, y) {
    return page.$eval(id, (box, y) => { box.scrollTop += y; }, y);
}

test('an open submenu follows its item through nested scrolling boxes', async () => {
    await lab.show(nestedBoxes);
    await hover(page, 'Products');
    await waitShown(page, 'Boats');
    await scrollBy('#outer', 30);
    await scrollBy('#inner', 20);
    const top = (await rect(page, 'Products')).bottom + 1;
    await until(async () => Math.abs((await boxRect(page, 'Boats')).top - top) <= 1, `the submenu at ${top}`);
});

test('a submenu closes when its item is scrolled out of the box around it', async () => {
    await lab.show(nestedBoxes);
    await hover(page, 'Products');
    await waitShown(page, 'Boats');
    await scrollBy('#inner', 200);
    await waitGone(page, 'Boats', 250);
});

// A submenu of 60 items; the third opens another one.
const tall = `zev_state.closedelay = 60000;
    zevmenu = new ZEVMenu('0'); zevmenu.AddItem('Top', '', '');
    zevmenu = new ZEVMenu('1');
    for (let i = 1; i <= 60; i++) zevmenu.AddItem('Item ' + i, '', '');
    zevmenu = new ZEVMenu('1i3'); zevmenu.AddItem('Deep', '', '');`;

test('a submenu of a tall, scrolled submenu follows its item', async () => {
    await lab.show({ definition: tall });
    await hover(page, 'Top', 'Item 3');
    await waitShown(page, 'Deep');
    await page.mouse.wheel({ deltaY: 20 });
    await until(async () => (await rect(page, 'Item 1')).top < 0, 'the submenu to scroll');
    await until(async () => Math.abs((await boxRect(page, 'Deep')).top - (await rect(page, 'Item 3')).top) <= 1,
                'the deep submenu to follow');
});

test('a tall submenu keeps its scrolling when the page is resized or scrolls', async () => {
    await lab.show({ definition: tall, after: '<div style="height:3000px"></div>' });
    await page.keyboard.press('Tab');
    for (const key of ['ArrowRight', 'End']) await page.keyboard.press(key);
    const before = (await rect(page, 'Item 1')).top;
    assert.ok(before < -100);
    await page.evaluate(() => window.dispatchEvent(new Event('resize')));
    assertNear((await rect(page, 'Item 1')).top, before, 'first item');
});

test('every item of a tall submenu can be seen at 320 px, and the page gets no wider', async () => {
    await lab.show({ definition: tall, width: 320, height: 256 });
    await page.keyboard.press('Tab');
    await page.keyboard.press('ArrowRight');
    for (const [key, name] of [['End', 'Item 60'], ['Home', 'Item 1']]) {
        await page.keyboard.press(key);
        const { top, bottom, left, right } = await rect(page, name);
        assert.ok(top >= -1 && bottom <= 257 && left >= 0 && right <= 320, name);
    }
    assert.equal(await page.evaluate(() => document.scrollingElement.scrollWidth), 320);
});

// A scroll bar that came and went would make the window narrower just then.
test('a submenu higher than the window makes the page no longer while it is measured', async () => {
    await lab.show({ definition: tall });
    await page.evaluate(() => {
        const measure = Element.prototype.getBoundingClientRect, { scrollingElement } = document;
        window.heights = [];
        Element.prototype.getBoundingClientRect = function () {
            window.heights.push(scrollingElement.scrollHeight - scrollingElement.clientHeight);
            return measure.call(this);
        };
    });
    await hover(page, 'Top');
    await waitShown(page, 'Item 1');
    const heights = await page.evaluate(() => window.heights);
    assert.ok(heights.length > 0);
    assert.deepEqual(heights.filter(height => height > 0), []);
});

test('a submenu closes when the page takes its item away', async () => {
    await lab.show({ definition: tall });
    await hover(page, 'Top');
    await waitShown(page, 'Item 1');
    await page.$eval('[data-zev=bar]', bar => bar.remove());
    await waitGone(page, 'Item 1', 250);
    assert.equal(await isShown(page, 'Deep'), false);
});

// As a drawer that closes at every click in it.
for (const what of ['hides', 'removes']) {
    test(`a submenu closes when the page ${what} the bar in the moment in which it opens`, async () => {
        await lab.show({ definition: tall, before: '<div id="drawer">', after: '</div>' });
        await page.$eval('[data-zev=bar]', ({ shadowRoot }, what) => {
            const drawer = document.querySelector('#drawer');
            new MutationObserver(() => what == 'hides' ? drawer.hidden = true : drawer.remove())
                .observe(shadowRoot, { attributeFilter: ['aria-expanded'], subtree: true });
        }, what);
        await hover(page, 'Top');
        await until(async () => !await isShown(page, 'Top'), 'the item to go');
        await waitGone(page, 'Item 1');
    });
}
