// SPDX-License-Identifier: MIT
// The button that stands for the top menu in a narrow window.
import assert from 'node:assert/strict';
import { after, afterEach, before, test } from 'node:test';
import { boxRect, enforceMedia, engine, focus, hover, isNamed, isShown, item, nested, pause,
    printedColours, rect, shown, startLab, until, waitAt, waitGone, waitShown } from './support.mjs';

let lab, page;
before(async () => {
    lab = await startLab();
    page = lab.page;
});
after(() => lab.close());
afterEach(() => assert.deepEqual(page.errors, []));

const folding = 'zev_state.fold = 600;' + nested;
const narrow = { definition: folding, width: 320, height: 568,
    before: '<a id="before" href="#">before</a><h1>Boats for all</h1>', after: '<a id="after" href="#">after</a>' };
const label = 'Site menu';
const all = ['Home', 'Products', 'Contact'];

async function middle(name) {
    const { x, y, width, height } = await rect(page, name);
    return [x + width / 2, y + height / 2];
}

async function click(name) {
    await page.mouse.click(...await middle(name));
}

async function press(...keys) {
    for (const key of keys) await page.keyboard.press(key);
}

async function resize(width) {
    await page.setViewport({ width, height: 568, hasTouch: false });
    await until(() => page.evaluate(width => innerWidth == width, width), `a window of ${width} pixels`);
}

test('below its width the menu is one button, as wide as its words, and the page does not jump', async () => {
    await lab.show(narrow);
    assert.equal(await shown(page, label, ...all), label);
    assert.ok((await rect(page, label)).width < 160);
    const top = await page.$eval('#after', link => link.getBoundingClientRect().top);
    await pause(200);
    assert.equal(await page.$eval('#after', link => link.getBoundingClientRect().top), top);
});

test('from its width on the menu is a bar', async () => {
    await lab.show({ ...narrow, width: 600 });
    assert.equal(await shown(page, label, ...all), all.join(' '));
    await lab.show({ ...narrow, width: 599 });
    assert.equal(await shown(page, label, ...all), label);
});

test('the button opens the menu over the page, as wide as the window, and closes it', async () => {
    await lab.show(narrow);
    const top = await page.$eval('#after', link => link.getBoundingClientRect().top);
    await click(label);
    await waitShown(page, 'Home');
    const box = await boxRect(page, 'Home'), button = await rect(page, label);
    assert.deepEqual([box.left, box.width], [0, 320]);
    assert.ok(box.top >= button.bottom - 1 && box.bottom <= 568, JSON.stringify(box));
    assert.equal(await page.$eval('#after', link => link.getBoundingClientRect().top), top);
    const rows = [];
    for (const name of all) rows.push((await rect(page, name)).top);
    assert.deepEqual(rows, [...rows].sort((a, b) => a - b));
    assert.equal(new Set(rows).size, 3);
    await click(label);
    await waitGone(page, 'Home');
});

test('its levels open inside each other by clicks, and a second click follows the link', async () => {
    await lab.show(narrow);
    await click(label);
    await waitShown(page, 'Products');
    await click('Products');
    await waitShown(page, 'Boats');
    await click('Boats');
    await waitShown(page, 'Kayaks');
    assert.ok((await rect(page, 'Kayaks')).bottom <= (await rect(page, 'Oars')).top + 1);
    assert.ok((await rect(page, 'Oars')).bottom <= (await rect(page, 'Contact')).top + 1);
    await click('Boats');
    await waitAt(page, lab.origin + '/site/boats.html');
});

test('the mouse opens nothing by coming, and closes nothing by going', async () => {
    await lab.show({ ...narrow, definition: folding.replace('300', '50') });
    await hover(page, label);
    await pause(300);
    assert.equal(await isShown(page, 'Home'), false);
    await click(label);
    await waitShown(page, 'Products');
    await hover(page, 'Products');
    await page.mouse.move(310, 560);
    await pause(300);
    assert.equal(await shown(page, 'Boats', ...all), all.join(' '));
    await page.mouse.click(310, 560);
    await waitGone(page, 'Home');
});

test('it works by a finger', async () => {
    await lab.show({ ...narrow, hasTouch: true });
    await page.touchscreen.tap(...await middle(label));
    await waitShown(page, 'Contact');
    await page.touchscreen.tap(...await middle('Contact'));
    await waitShown(page, 'Map');
    await page.touchscreen.tap(...await middle('Map'));
    await waitAt(page, lab.origin + '/site/map.html');
});

const many = Array.from({ length: 30 }, (_, index) => `zevmenu.AddItem('Item ${index + 1}', '', '');`).join('');

test('a long menu scrolls inside the window', async () => {
    await lab.show({ ...narrow, definition: "zev_state.fold = 600; zevmenu = new ZEVMenu('0'); zevmenu.columns = 9;" + many });
    await press('Tab', 'Tab', 'ArrowUp');
    assert.equal(await focus(page), 'Item 30');
    const box = await boxRect(page, 'Item 30');
    assert.ok(box.bottom <= 568 && box.top >= (await rect(page, label)).bottom - 1, JSON.stringify(box));
    assert.ok((await rect(page, 'Item 30')).bottom <= 569);
});

// [rule, keys after "Tab Tab", focus then, what is shown then]
const keys = [
    ['Tab reaches the button', '', label, ''],
    ['Enter opens, to the first item', 'Enter', 'Home', all.join(' ')],
    ['Space too', 'Space', 'Home', all.join(' ')],
    ['Arrow Down too', 'ArrowDown', 'Home', all.join(' ')],
    ['Arrow Up opens, to the last', 'ArrowUp', 'Contact', all.join(' ')],
    ['down and up go along the items', 'Enter ArrowDown ArrowDown ArrowUp', 'Products', all.join(' ')],
    ['the arrow to the end of the line opens', 'Enter ArrowDown ArrowRight', 'Boats', 'Home Products Boats Contact'],
    ['the arrow to its start closes', 'Enter ArrowDown ArrowRight ArrowLeft', 'Products', all.join(' ')],
    ['and at the first level goes back to the button', 'Enter ArrowLeft', label, ''],
    ['Escape goes back level by level', 'Enter ArrowDown ArrowRight Escape', 'Products', all.join(' ')],
    ['Escape at the first level goes back to the button', 'Enter ArrowDown Escape', label, ''],
    ['Tab leaves and closes', 'Enter ArrowDown Tab', 'after', ''],
];

for (const [rule, pressed, expected, open] of keys) {
    test(`K23: ${rule}`, async () => {
        await lab.show(narrow);
        await press(...('Tab Tab ' + pressed).trim().split(' '));
        assert.equal(await focus(page), expected);
        assert.equal(await shown(page, 'Home', 'Products', 'Boats', 'Contact'), open);
    });
}

test('a click that no pointer made opens the menu and takes the focus into it', async () => {
    await lab.show(narrow);
    await (await item(page, label)).evaluate(link => link.click());
    assert.equal(await focus(page), 'Home');
});

test('the button says what it is, and what it opens has roles and names', async () => {
    await lab.show({ ...narrow, definition: "zev_state.label = 'All <boats>';" + folding });
    const name = 'All <boats>';
    const states = async () => (await item(page, name)).evaluate(link =>
        ['role', 'aria-haspopup', 'aria-expanded'].map(state => link.getAttribute(state)).join(' '));
    assert.equal(await states(), 'button true false');
    await click(name);
    await waitShown(page, 'Home');
    assert.equal(await states(), 'button true true');
    assert.ok(await isNamed(page, '>>> ul[role=menu]', name));
});

test('it follows the window: open or closed, the focus goes to the button or back to its item', async () => {
    await lab.show({ ...narrow, width: 800 });
    await press('Tab', 'Tab', 'ArrowRight', 'ArrowDown');
    assert.equal(await focus(page), 'Boats');
    await resize(320);
    await until(async () => await focus(page) == label, 'the focus at the button');
    assert.equal(await shown(page, label, 'Boats', ...all), label);
    await resize(800);
    await until(async () => await focus(page) == 'Products', 'the focus at its item');
    assert.equal(await shown(page, label, 'Boats', ...all), all.join(' '));
    await hover(page, 'Products');
    await waitShown(page, 'Boats');
});

test('an open menu is closed when the window gets wide, and is a bar again', async () => {
    await lab.show(narrow);
    await press('Tab', 'Tab', 'Enter', 'ArrowDown', 'ArrowRight');
    await resize(800);
    await until(async () => await focus(page) == 'Products', 'the focus at its item');
    const tops = [];
    for (const name of all) tops.push((await rect(page, name)).top);
    assert.equal(new Set(tops).size, 1);
    assert.equal(await isShown(page, 'Boats'), false);
});

const cannotPrint = engine == 'webkit' && 'its driver cannot print; see the next test';

test('printed, it is a list, whether open or closed', { skip: cannotPrint }, async () => {
    await lab.show({ ...narrow, definition: folding.replace("zevmenu = new ZEVMenu('0');",
        "zevmenu = new ZEVMenu('0'); zevmenu.nbgcolor = '#123456';") });
    assert.ok((await printedColours(page)).has('18 52 86'));
    await click(label);
    await waitShown(page, 'Home');
    assert.ok((await printedColours(page)).has('18 52 86'));
    assert.equal(await shown(page, label, 'Boats'), label);
});

test('the rules for paper, put in force on the screen, show a list without the button', async () => {
    await lab.show(narrow);
    await enforceMedia(page, 'print');
    assert.equal(await shown(page, label, 'Boats', ...all), all.join(' '));
    const rows = [];
    for (const name of all) rows.push((await rect(page, name)).top);
    assert.equal(new Set(rows).size, 3);
});
