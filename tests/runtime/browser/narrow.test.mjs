// SPDX-License-Identifier: MIT
// Menus where there is little room: a submenu never lies over its opener, and a list opens in itself.
import assert from 'node:assert/strict';
import { after, afterEach, before, test } from 'node:test';
import { boxRect, focus, hover, isShown, item, pause, rect, shown, startLab, until, waitAt, waitGone,
    waitShown } from './support.mjs';

let lab, page;
before(async () => {
    lab = await startLab();
    page = lab.page;
});
after(() => lab.close());
afterEach(() => assert.deepEqual(page.errors, []));

async function middle(name) {
    const { x, y, width, height } = await rect(page, name);
    return [x + width / 2, y + height / 2];
}

async function click(name) {
    await page.mouse.click(...await middle(name));
}

async function tap(name) {
    await page.touchscreen.tap(...await middle(name));
}

const list = (id, names) => `zevmenu = new ZEVMenu('${id}'); zevmenu.cellpadding = 5;
    ${names.map(name => `zevmenu.AddItem('${name}', '${name.toLowerCase().replace(/ /g, '_')}.html', '');`).join('\n')}`;

// ---- Over its opener ----

const bar = (items, position) => `zev_state.position = '${position}';
    zevmenu = new ZEVMenu('0'); zevmenu.columns = 9; zevmenu.AddItem('Bicycles', 'bicycles.html', '');
    zevmenu.AddItem('Bells', 'bells.html', '');
    ${list('1', Array.from({ length: items }, (_, index) => 'Bicycle ' + (index + 1)))}`;

// [where the bar is, height of the banner, window height, items, wished side]
const bars = [
    ['in the middle', 300, 650, 18, 'bottom'],
    ['in the middle, to open above', 300, 650, 18, 'top'],
    ['at the lower edge', 600, 650, 40, 'bottom'],
    ['at the upper edge', 0, 300, 40, 'top'],
];

for (const [where, banner, height, items, position] of bars) {
    test(`a click on an item of a bar ${where} goes where the item leads, however long its submenu`, async () => {
        await lab.show({ definition: bar(items, position), height, width: 900,
            before: `<div style="height:${banner}px"></div>` });
        await hover(page, 'Bicycles');
        await waitShown(page, 'Bicycle 1');
        const [opener, box] = [await rect(page, 'Bicycles'), await boxRect(page, 'Bicycle 1')];
        assert.ok(box.top >= opener.bottom || box.bottom <= opener.top, JSON.stringify([opener, box]));
        assert.ok(box.top >= 0 && box.bottom <= height, JSON.stringify(box));
        await click('Bicycles');
        await waitAt(page, lab.origin + '/site/bicycles.html');
    });
}

test('the last item of a submenu that takes the larger room can be scrolled to', async () => {
    await lab.show({ definition: bar(30, 'bottom'), height: 650, before: '<div style="height:300px"></div>' });
    await page.keyboard.press('Tab');
    await page.keyboard.press('ArrowUp');
    assert.equal(await focus(page), 'Bicycle 30');
    const [last, opener] = [await rect(page, 'Bicycle 30'), await rect(page, 'Bicycles')];
    assert.ok(last.top >= opener.bottom && last.bottom <= 650, JSON.stringify(last));
});

// ---- Accordion ----

// One path of six levels; each level has three items, and the second opens the next.
const level = depth => [`A${depth} first of the items that these are`, `B${depth} opens the next`, `C${depth} last of these`];
const sixLevels = [0, 1, 2, 3, 4, 5].map(depth =>
    list(depth ? Array(depth).fill(2).join('i') : '0', level(depth))
        .replace(';', depth ? ';' : "; zevmenu.columns = 3; zevmenu.position = 'bottom';")).join('\n');
const vertical = sixLevels.replace("columns = 3; zevmenu.position = 'bottom'", 'columns = 1');
const opener = depth => level(depth)[1];

async function openAll(act, levels) {
    for (let depth = 0; depth < levels; depth++) {
        await act(opener(depth));
        await waitShown(page, level(depth + 1)[0]);
    }
}

// All items of the named levels are in the window or can be scrolled to, none lies over another.
async function assertApart(names) {
    const rects = [];
    for (const name of names) rects.push([name, await rect(page, name)]);
    for (const [name, a] of rects) {
        assert.ok(a.left >= 0 && a.right <= page.viewportWidth, `${name}: ${JSON.stringify(a)}`);
        for (const [other, b] of rects) {
            const isOver = name != other && a.left < b.right - 1 && b.left < a.right - 1 &&
                a.top < b.bottom - 1 && b.top < a.bottom - 1;
            assert.ok(!isOver, `${name} over ${other}: ${JSON.stringify([a, b])}`);
        }
    }
}

async function show(options) {
    page.viewportWidth = options.width || 320;
    await lab.show({ definition: sixLevels, width: 320, height: 568, ...options });
}

for (const width of [320, 360, 400]) {
    test(`at ${width} px the third level opens inside the second, below its item and indented`, async () => {
        await show({ width });
        await hover(page, opener(0));
        await waitShown(page, opener(1));
        await click(opener(1));
        await waitShown(page, opener(2));
        const [above, item, next] = [await rect(page, opener(1)), await rect(page, level(2)[0]),
            await rect(page, level(1)[2])];
        assert.ok(item.top >= above.bottom - 1 && next.top >= item.bottom, JSON.stringify([above, item, next]));
        await assertApart([...level(1), ...level(2)]);
        assert.equal(await page.url(), lab.origin + '/site/page.html');
    });
}

test('where two boxes stand side by side the third opens inside the second, not back over the first', async () => {
    const names = depth => ['A', 'B', 'C'].map(letter => `${letter}${depth} of a menu that is wide`);
    const definition = [0, 1, 2].map(depth => list(depth ? Array(depth).fill(2).join('i') : '0', names(depth))).join('\n');
    await show({ width: 900, definition });
    const width = Math.ceil((await boxRect(page, names(0)[1])).width * 2.5);
    await show({ width, definition });
    await hover(page, names(0)[1]);
    await waitShown(page, names(1)[1]);
    assert.ok((await rect(page, names(1)[1])).left >= (await rect(page, names(0)[1])).right);
    await click(names(1)[1]);
    await waitShown(page, names(2)[0]);
    await assertApart([0, 1, 2].flatMap(names));
    await page.setViewport({ width: 900, height: 568 });
    await until(async () => (await rect(page, names(2)[0])).left >= (await rect(page, names(1)[1])).right,
        'the third level beside the second');
});

test('a click on the open item of an accordion follows its link', async () => {
    await show({});
    await hover(page, opener(0));
    await waitShown(page, opener(1));
    await click(opener(1));
    await waitShown(page, opener(2));
    await click(opener(1));
    await waitAt(page, lab.origin + '/site/b1_opens_the_next.html');
});

test('six levels are opened one inside the other by a finger, and all rows can be tapped', async () => {
    await show({ hasTouch: true });
    await openAll(tap, 5);
    await assertApart(level(5));
    assert.equal(await shown(page, ...[1, 2, 3, 4, 5].map(opener)), [1, 2, 3, 4, 5].map(opener).join(' '));
    await tap(level(5)[0]);
    await waitAt(page, lab.origin + '/site/a5_first_of_the_items_that_these_are.html');
});

test('an accordion taller than the window scrolls inside it', async () => {
    await show({ height: 300 });
    await page.keyboard.press('Tab');
    for (const key of ['ArrowRight', 'ArrowDown', 'ArrowDown', ...Array(4).fill(['ArrowRight', 'ArrowDown']).flat()]) {
        await page.keyboard.press(key);
    }
    assert.equal(await focus(page), opener(5));
    const box = await rect(page, opener(5));
    assert.ok(box.top >= 0 && box.bottom <= 300, JSON.stringify(box));
    await page.keyboard.press('End');
    assert.ok((await rect(page, level(5)[2])).bottom <= 301);
});

test('a list in the page opens in itself and pushes the page down', async () => {
    await show({ definition: vertical, after: '<p id="below">Below</p>' });
    const top = () => page.$eval('#below', below => below.getBoundingClientRect().top);
    const before = await top();
    await openAll(click, 5);
    assert.ok(await top() > before + 100);
    await assertApart([0, 1, 2, 3, 4, 5].flatMap(level));
    assert.equal(await page.evaluate(() => document.scrollingElement.scrollWidth), 320);
    await page.keyboard.press('Escape');
    await page.mouse.click(300, 560);
    await waitGone(page, level(1)[0]);
    assert.equal(await top(), before);
});

test('a submenu of an accordion that is closed while it appears does not come back', async () => {
    await show({ definition: 'zev_state.ffade = 0.5;' + vertical });
    await click(opener(0));
    await waitShown(page, opener(1));
    await page.keyboard.press('Escape');
    await hover(page, level(0)[2], opener(0));
    await pause(900);
    assert.equal(await isShown(page, opener(1)).catch(() => false), false);
});

test('in an accordion the mouse opens and closes nothing by coming and going', async () => {
    await show({ definition: 'zev_state.closedelay = 50;' + vertical });
    await hover(page, opener(0));
    await pause(400);
    assert.equal(await isShown(page, opener(1)).catch(() => false), false);
    await click(opener(0));
    await waitShown(page, opener(1));
    await hover(page, level(1)[0], level(0)[2]);
    await page.mouse.move(310, 500);
    await pause(400);
    assert.ok(await isShown(page, opener(1)));
});

test('an accordion does not close because its item was scrolled out of sight', async () => {
    await show({ definition: vertical, after: '<div style="height:3000px"></div>' });
    await click(opener(0));
    await waitShown(page, opener(1));
    await page.evaluate(() => window.scrollTo(0, 2000));
    await pause(300);
    assert.ok(await isShown(page, opener(1)));
});

test('opening another item of a level closes the one that was open', async () => {
    await show({ definition: vertical + list('1', ['Other of the names that are as wide']) });
    await click(opener(0));
    await waitShown(page, opener(1));
    await click(level(0)[0]);
    await waitShown(page, 'Other of the names that are as wide');
    assert.equal(await isShown(page, opener(1)), false);
});

// [rule, keys after the first Tab, focus then, what is shown of the second items, direction of the page]
const keys = [
    ['K20: the arrow to the end of the line opens', 'ArrowDown ArrowRight', level(1)[0], 'B1', 'ltr'],
    ['K20: right to left that is Left', 'ArrowDown ArrowLeft', level(1)[0], 'B1', 'rtl'],
    ['K20: from level to level', 'ArrowDown ArrowRight ArrowDown ArrowRight', level(2)[0], 'B1 B2', 'ltr'],
    ['K20: nothing happens on an item without a submenu', 'ArrowDown ArrowRight ArrowRight', level(1)[0], 'B1', 'ltr'],
    ['K21: the arrow to the start of the line closes', 'ArrowDown ArrowRight ArrowLeft', opener(0), '', 'ltr'],
    ['K21: right to left that is Right', 'ArrowDown ArrowLeft ArrowRight', opener(0), '', 'rtl'],
    ['K21: Escape closes one level',
        'ArrowDown ArrowRight ArrowDown ArrowRight Escape', opener(1), 'B1', 'ltr'],
    ['K22: down stays in the level', 'ArrowDown ArrowRight ArrowDown ArrowDown', level(1)[2], 'B1', 'ltr'],
    ['K22: up goes round in the level', 'ArrowDown ArrowRight ArrowUp', level(1)[2], 'B1', 'ltr'],
    ['K22: what is open stays', 'ArrowDown ArrowRight ArrowDown ArrowRight ArrowLeft ArrowRight ArrowUp', level(2)[2],
        'B1 B2', 'ltr'],
];

for (const [rule, pressed, expected, open, direction] of keys) {
    test(rule, async () => {
        await show({ definition: vertical, html: `<html lang="en" dir="${direction}">` });
        for (const key of ('Tab ' + pressed).split(' ')) await page.keyboard.press(key);
        assert.equal(await focus(page), expected);
        const names = await shown(page, ...[1, 2, 3].map(opener));
        assert.equal(names.replace(/ opens the next/g, ''), open);
    });
}

test('an accordion turns into boxes when the window gets wider, and the focus stays', async () => {
    await show({ definition: vertical });
    for (const key of ['Tab', 'ArrowDown', 'ArrowRight', 'ArrowDown']) await page.keyboard.press(key);
    assert.ok((await rect(page, level(1)[0])).left < (await rect(page, opener(0))).right);
    await page.setViewport({ width: 900, height: 568 });
    await pause(200);
    assert.ok((await boxRect(page, level(1)[0])).left >= (await rect(page, opener(0))).right);
    assert.equal(await focus(page), opener(1));
});

test('a submenu of two columns has one in an accordion, and says so', async () => {
    await show({ definition: vertical.replace("ZEVMenu('2');", "ZEVMenu('2'); zevmenu.columns = 2;") });
    await click(opener(0));
    await waitShown(page, opener(1));
    await assertApart([...level(0), ...level(1)]);
    const box = await (await item(page, opener(1))).evaluate(link => {
        const { left } = link.getBoundingClientRect();
        return [link.closest('ul').getAttribute('aria-orientation'),
            Array.from(link.closest('ul').children, line => line.firstChild.getBoundingClientRect().left == left)];
    });
    assert.deepEqual(box, [null, [true, true, true]]);
});
