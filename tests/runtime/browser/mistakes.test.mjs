// SPDX-License-Identifier: MIT
// Mistakes in definitions and pages, and sizes beyond reason: one warning each, never an exception.
import assert from 'node:assert/strict';
import { after, afterEach, before, test } from 'node:test';
import { hover, isShown, nested, script, shown, source, startLab, waitGone, waitShown } from './support.mjs';

let lab, page;
before(async () => {
    lab = await startLab();
    page = lab.page;
});
after(() => lab.close());
afterEach(() => assert.deepEqual(page.errors, []));

const everything = ['Boats', 'Canoes', 'Sea kayaks', 'Map'];

async function assertWorks() {
    await hover(page, 'Products', 'Boats', 'Kayaks', 'Sea kayaks');
    assert.equal(await shown(page, ...everything), 'Boats Canoes Sea kayaks');
}

async function assertWarnings(...patterns) {
    assert.equal(page.warnings.length, patterns.length, page.warnings.join('; '));
    patterns.forEach((pattern, index) => assert.match(page.warnings[index], pattern));
}

// [property, value]
const negative = [['columns', -1], ['hspacing', -1], ['cellpadding', "'-1'"], ['fopacity', -50], ['ffade', -1]];

for (const [name, value] of negative) {
    test(`${name} = ${value} costs one warning, however often the menu is opened`, async () => {
        await lab.show({ definition: nested.replace("zevmenu.AddItem('Boats'", `zevmenu.${name} = ${value};\n$&`) });
        await assertWorks();
        await page.keyboard.press('Escape');
        await page.mouse.move(700, 500);
        await assertWorks();
        await assertWarnings(new RegExp(`menu 2: the value of ${name} makes no sense`));
    });
}

// [property, value]
const strange = [['columns', 'function () {}'], ['nbgcolor', '[]'], ['htmlBefore', '{}'], ['divider', 'NaN / 0 == 1'],
    ['position', 'null == 0'], ['fontSize', 'Symbol()'], ['target', '{ toString: null }'], ['bgimage', '/x/'],
    ['closedelay', "'soon'"], ['menuoffset', '[]']];

for (const [name, value] of strange) {
    test(`zev_state.${name} = ${value} costs one warning`, async () => {
        await lab.show({ definition: `${nested} zev_state.${name} = ${value};
            zev_state.hspacing = 1;` });
        await assertWorks();
        await page.keyboard.press('Escape');
        await assertWarnings(new RegExp(`zev_state: the value of ${name} makes no sense`));
    });
}

for (const caption of ['<b><i>Open', '</a></li></ul>', '<ul><li><table><tr>', '<!--', '<img', '<a href="x">', '&#0;']) {
    test(`the caption ${caption} stays inside its item`, async () => {
        await lab.show({ definition: nested.replace("'Oars'", JSON.stringify(caption)) });
        await assertWorks();
        assert.equal((await page.$$('>>> ul > li > a[role=menuitem]')).length, 3 + 2 + 2 + 1 );
        assert.deepEqual(page.warnings, []);
    });
}

test('a top menu of 10,000 items is drawn, and its last item opens its submenu', async () => {
    await lab.show({ definition: `zevmenu = new ZEVMenu('0');
        for (let i = 1; i <= 10000; i++) zevmenu.AddItem('T' + i, '', '');
        zevmenu = new ZEVMenu('10000'); zevmenu.AddItem('Last', '', '');` });
    await page.keyboard.press('Tab');
    for (const key of ['End', 'ArrowRight']) await page.keyboard.press(key);
    await waitShown(page, 'Last');
    assert.deepEqual(page.warnings, []);
});

test('a submenu of 10,000 items opens', async () => {
    await lab.show({ definition: `zevmenu = new ZEVMenu('0'); zevmenu.AddItem('Top', '', '');
        zevmenu = new ZEVMenu('1');
        for (let i = 1; i <= 10000; i++) zevmenu.AddItem('S' + i, '', '');` });
    await hover(page, 'Top');
    await waitShown(page, 'S1');
    assert.deepEqual(page.warnings, []);
});

test('a menu of 50 levels opens down to the last', async () => {
    await lab.show({ definition: `zevmenu = new ZEVMenu('0'); zevmenu.AddItem('L1', '', '');
        for (let i = 1; i < 50; i++) {
            zevmenu = new ZEVMenu(Array(i).fill('1').join('i')); zevmenu.AddItem('L' + (i + 1), '', '');
        }` });
    await page.keyboard.press('Tab');
    for (let i = 1; i < 50; i++) await page.keyboard.press('Enter');
    assert.equal(await isShown(page, 'L50'), true);
    for (let i = 1; i < 50; i++) await page.keyboard.press('Escape');
    assert.equal(await isShown(page, 'L2'), false);
    assert.deepEqual(page.warnings, []);
});

// [what, lines of the page's own script, run while Boats and Canoes are open]
const removals = [
    ['everything in the body', "document.body.innerHTML = ''"],
    ['the body itself', 'document.body.remove()'],
    ['the layer of the submenus', "document.querySelector('[data-zev=layer]').remove()"],
    ['an open box', "document.querySelector('[data-zev=layer]').shadowRoot.querySelector('ul:not([hidden])').remove()"],
    ['the items of the top menu', "document.querySelector('[data-zev=bar]').shadowRoot.querySelector('ul').innerHTML = ''"],
    ['the items of an open box', "document.querySelector('[data-zev=layer]').shadowRoot.querySelector('ul:not([hidden])').innerHTML = ''"],
    ['the menus', "zevmenu = null; zev_state = null; ZEVMenu.prototype = null"],
];

for (const [what, lines] of removals) {
    test(`a page that takes away ${what} gets no exception`, async () => {
        await lab.show();
        await hover(page, 'Products', 'Boats');
        await waitShown(page, 'Canoes');
        await page.evaluate(lines);
        await page.evaluate(() => addEventListener('click', event => event.preventDefault()));
        await page.evaluate(() => { ZEVLoadMenu(); ZEVCreateMenu(); dispatchEvent(new Event('resize')); });
        for (const [x, y] of [[20, 10], [70, 10], [60, 40], [700, 500]]) await page.mouse.move(x, y);
        for (const key of ['Tab', 'ArrowRight', 'ArrowDown', 'End', 'x', 'Enter', 'Escape']) await page.keyboard.press(key);
        await page.evaluate(() => {
            ZEVMenuOpen('zev1', '2', 10, 10);
            ZEVMenuClose('zev1', '2', false);
            ZEVDisplayMenu();
        });
        await new Promise(resolve => setTimeout(resolve, 400));
    });
}

test("a pop-up's link that the page takes away costs nothing", async () => {
    await lab.show({ place: source('menu.js'), before:
        `<a id="link" href="" onmouseover="ZEVMenuOpen('zev1', '2', event)">Menu</a>` });
    await page.hover('#link');
    await waitShown(page, 'Boats');
    await page.$eval('#link', link => link.remove());
    await waitGone(page, 'Boats');
    await page.keyboard.press('Escape');
});

test('calls before the page is ready are done when it is', async () => {
    await lab.show({ head: script(`ZEVCreateMenu(); ZEVLoadMenu(); ZEVMenuClose('zev1', '2', false);
        ZEVMenuOpen('zev1', '3', 20, 100); ZEVMenuClose(); ZEVMenuOpen('zev1', '3', 20, 100);`) });
    await waitShown(page, 'Map');
    assert.deepEqual(page.warnings, []);
});
