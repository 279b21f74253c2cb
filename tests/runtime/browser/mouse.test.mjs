// SPDX-License-Identifier: MIT
// Submenus, rollovers and pop-ups under a real mouse.
import assert from 'node:assert/strict';
import { after, afterEach, before, test } from 'node:test';
import { boxRect, focus, hover, isShown, item, nested, pause, rect, script, shown, source, startLab,
    until, waitAt, waitGone, waitShown } from './support.mjs';

let lab, page;
before(async () => {
    lab = await startLab();
    page = lab.page;
});
after(() => lab.close());
afterEach(() => assert.deepEqual(page.errors, []));

const everything = ['Boats', 'Canoes', 'Sea kayaks', 'Map'];

async function openDeep() {
    await hover(page, 'Products', 'Boats', 'Kayaks', 'Sea kayaks');
}

// ---- Opening and closing ----

test('submenus open by hovering at every depth, and only along the path', async () => {
    await lab.show();
    assert.equal(await shown(page, ...everything), '');
    await hover(page, 'Products');
    await waitShown(page, 'Boats');
    assert.equal(await shown(page, ...everything), 'Boats');
    await openDeep();
    assert.equal(await shown(page, ...everything), 'Boats Canoes Sea kayaks');
});

test('hovering a neighbour with a submenu of its own changes over at once', async () => {
    await lab.show({ definition: longDelay });
    await openDeep();
    await hover(page, 'Contact');
    await waitShown(page, 'Map');
    assert.equal(await shown(page, ...everything), 'Map');
});

const longDelay = `zev_state.closedelay = 60000;
    zevmenu = new ZEVMenu('0'); zevmenu.columns = 10; zevmenu.position = 'bottom'; zevmenu.cellpadding = 5;
    zevmenu.AddItem('Home', 'home.html', ''); zevmenu.AddItem('Products', 'products.html', '');
    zevmenu.AddItem('Contact', 'contact.html', '');
    zevmenu = new ZEVMenu('2'); zevmenu.cellpadding = 5;
    zevmenu.AddItem('Boats', 'boats.html', ''); zevmenu.AddItem('Oars', 'oars.html', '');
    zevmenu = new ZEVMenu('2i1'); zevmenu.cellpadding = 5;
    zevmenu.AddItem('Canoes', 'canoes.html', ''); zevmenu.AddItem('Kayaks', '', '');
    zevmenu = new ZEVMenu('2i1i2'); zevmenu.cellpadding = 5; zevmenu.AddItem('Sea kayaks', 'sea.html', '');
    zevmenu = new ZEVMenu('3'); zevmenu.cellpadding = 5; zevmenu.AddItem('Map', 'map.html', '');`;

// In the page: notes when the mouse left a host last and when each box was hidden, in milliseconds.
async function noteTimes() {
    await page.evaluate(() => {
        const times = document.noted = { left: 0, hidden: {} };
        const layer = document.querySelector('[data-zev=layer]');
        document.querySelectorAll('[data-zev]').forEach(host =>
            host.addEventListener('pointerleave', () => { times.left = performance.now(); }));
        layer.shadowRoot.querySelectorAll('ul').forEach(box => new MutationObserver(() => {
            if (box.hidden) times.hidden[box.zevMenu.zevId] = performance.now();
        }).observe(box, { attributeFilter: ['hidden'] }));
    });
}

test('every level stays closedelay milliseconds after the mouse has left, and then closes', async () => {
    await lab.show();
    await openDeep();
    await noteTimes();
    await page.mouse.move(700, 500);
    await waitGone(page, 'Boats');
    const { left, hidden } = await page.evaluate(() => document.noted);
    assert.deepEqual(Object.keys(hidden).sort(), ['2', '2i1', '2i1i2']);
    for (const [id, time] of Object.entries(hidden)) {
        const delay = time - left;
        assert.ok(delay >= 299 && delay < 1300, `menu ${id} closed after ${delay} ms, not 300`);
    }
});

test('a deeper level closes on its own delay while the mouse stays on a shallower one', async () => {
    await lab.show();
    await openDeep();
    await hover(page, 'Canoes');
    assert.equal(await shown(page, ...everything), 'Boats Canoes Sea kayaks');
    await waitGone(page, 'Sea kayaks');
    assert.equal(await shown(page, ...everything), 'Boats Canoes');
});

test('a level that was left earlier closes earlier', async () => {
    await lab.show({ definition: longDelay.replace('60000', '1000') });
    await openDeep();
    await noteTimes();
    await hover(page, 'Canoes');
    await pause(600);
    await page.mouse.move(700, 500);
    await waitGone(page, 'Boats');
    const { hidden } = await page.evaluate(() => document.noted);
    assert.ok(hidden['2'] - hidden['2i1i2'] > 500, JSON.stringify(hidden));
});

test('coming back in time keeps every level open', async () => {
    await lab.show({ definition: longDelay.replace('60000', '1500') });
    await openDeep();
    await page.mouse.move(700, 500);
    await pause(150);
    await hover(page, 'Sea kayaks');
    await pause(1700);
    assert.equal(await shown(page, ...everything), 'Boats Canoes Sea kayaks');
});

test('a resting mouse keeps a submenu open as long as it rests', async () => {
    await lab.show();
    await hover(page, 'Products', 'Boats');
    await pause(700);
    assert.ok(await isShown(page, 'Boats'));
});

test('closedelay 0 closes at once', async () => {
    await lab.show({ definition: longDelay.replace('60000', '0') });
    await hover(page, 'Products', 'Boats');
    await page.mouse.move(700, 500);
    await waitGone(page, 'Boats', 500);
});

test('a diagonal path towards an open submenu does not change over to the items it crosses', async () => {
    await lab.show({ definition: longDelay.replace("zevmenu.AddItem('Oars'", `
        zevmenu.AddItem('Rafts', '', ''); zevmenu.AddItem('Oars'`) + `
        zevmenu = new ZEVMenu('2i2'); zevmenu.AddItem('Bamboo', '', '');
        zevmenu = new ZEVMenu('2i1'); ` });
    // On a slow machine a step may take so long that the mouse rests; such a try tells nothing.
    let slowest = Infinity;
    for (let tries = 0; tries < 10 && slowest > 150; tries++) slowest = await goDiagonally();
    assert.equal(await shown(page, 'Kayaks', 'Bamboo'), 'Kayaks');
});

// Moves from Boats to the submenu's Kayaks across Rafts; gives the milliseconds of the slowest step.
async function goDiagonally() {
    await page.keyboard.press('Escape');
    await page.mouse.move(700, 500);
    await hover(page, 'Products', 'Boats');
    await waitShown(page, 'Kayaks');
    const [from, to] = [await rect(page, 'Boats'), await rect(page, 'Kayaks')];
    const steps = 10;
    let slowest = 0;
    for (let step = 0; step <= steps; step++) {
        const start = Date.now();
        await page.mouse.move(from.right - 30 + (to.left - from.right + 50) * step / steps,
                              from.bottom - 3 + (to.bottom - from.bottom - 2) * step / steps);
        slowest = Math.max(slowest, Date.now() - start);
    }
    return slowest;
}

test('a mouse that stops on the way changes over to the item it rests on', async () => {
    await lab.show({ definition: longDelay.replace("zevmenu.AddItem('Oars'", `
        zevmenu.AddItem('Rafts', '', ''); zevmenu.AddItem('Oars'`) + `
        zevmenu = new ZEVMenu('2i2'); zevmenu.AddItem('Bamboo', '', '');` });
    await hover(page, 'Products', 'Boats');
    await waitShown(page, 'Kayaks');
    const from = await rect(page, 'Boats');
    await page.mouse.move(from.right - 12, from.bottom - 2);
    await page.mouse.move(from.right - 8, from.bottom + 2);
    await waitShown(page, 'Bamboo');
    await waitGone(page, 'Kayaks');
});

test('Escape closes everything at once, wherever the focus is', async () => {
    await lab.show({ definition: longDelay, after: '<input id="field" autofocus>' });
    await page.focus('#field');
    await openDeep();
    await page.keyboard.press('Escape');
    assert.equal(await shown(page, ...everything), '');
    assert.equal(await focus(page), 'field');
});

test('a click outside closes everything at once', async () => {
    await lab.show({ definition: longDelay });
    await openDeep();
    await page.mouse.click(700, 500);
    assert.equal(await shown(page, ...everything), '');
});

test('a press inside a submenu closes nothing', async () => {
    await lab.show({ definition: longDelay });
    await openDeep();
    await page.mouse.down();
    assert.equal(await shown(page, ...everything), 'Boats Canoes Sea kayaks');
    // Let go elsewhere, or the link would be followed while the next test begins.
    await page.mouse.move(700, 500);
    await page.mouse.up();
});

test('a click on an item whose link leads nowhere keeps its submenu open, and the page where it is', async () => {
    await lab.show({ definition: nested.replace("'products.html'", "'#'") });
    await hover(page, 'Products');
    await waitShown(page, 'Boats');
    await (await item(page, 'Products')).click();
    await pause(100);
    assert.equal(await isShown(page, 'Boats'), true);
    assert.equal(await page.url(), lab.origin + '/site/page.html');
});

test('a click follows the link of an item, with or without a submenu', async () => {
    for (const [path, url] of [[['Products'], 'products.html'], [['Products', 'Oars'], 'oars.html']]) {
        await lab.show();
        await hover(page, ...path);
        await (await item(page, path.at(-1))).click();
        await waitAt(page, `${lab.origin}/site/${url}`);
    }
});

test('following a link to a place in the page closes the menu', async () => {
    await lab.show({ definition: longDelay.replace('canoes.html', '#canoes') });
    await hover(page, 'Products', 'Boats', 'Canoes');
    await (await item(page, 'Canoes')).click();
    assert.equal(await shown(page, ...everything), '');
});

test('nothing opens while the mouse rests where a box appears', async () => {
    await lab.show({ definition: longDelay });
    await hover(page, 'Products', 'Boats');
    const { x, y } = await rect(page, 'Boats');
    await page.keyboard.press('Escape');
    await page.mouse.move(x + 5, y + 5);
    await page.keyboard.press('Tab');
    await page.keyboard.press('ArrowRight');
    await page.keyboard.press('ArrowDown');
    await waitShown(page, 'Boats');
    await pause(100);
    assert.equal(await shown(page, ...everything), 'Boats');
});

test('opening and closing many times leaves no element behind', async () => {
    await lab.show();
    const count = () => page.evaluate(() => {
        let sum = document.querySelectorAll('*').length;
        document.querySelectorAll('[data-zev]').forEach(host => { sum += host.shadowRoot.querySelectorAll('*').length; });
        return sum;
    });
    await openDeep();
    await page.keyboard.press('Escape');
    const before = await count();
    for (let round = 0; round < 10; round++) {
        await openDeep();
        await page.evaluate(() => ZEVLoadMenu());
        await page.keyboard.press('Escape');
        await page.mouse.move(700, 500 + round);
    }
    assert.equal(await count(), before);
});

// ---- Rollover images ----

const picture = colour => `<svg xmlns="http://www.w3.org/2000/svg" width="60" height="20">` +
    `<rect width="60" height="20" fill="${colour}"/></svg>`;

const rollovers = `zevmenu = new ZEVMenu('0');
    zevmenu.AddRollover('first_page.html', 'out.svg', 'over.svg', '');
    zevmenu.AddRollover('second.html', 'missing.svg', 'missing2.svg', '');
    zevmenu.AddRollover('', 'pictures/big-boat_out.svg', '', '');
    zevmenu.AddRollover('plain.html', 'out.svg', 'over.svg', '');
    zevmenu = new ZEVMenu('1'); zevmenu.AddItem('Under', '', '');`;

async function showRollovers() {
    lab.files.set('/site/out.svg', picture('red'));
    lab.files.set('/site/over.svg', picture('blue'));
    await lab.show({ definition: rollovers });
}

// File names of the pictures that are to be seen in each item.
function pictures() {
    return page.$$eval('>>> li > a.rollover', links => links.map(link => Array.from(link.children)
        .filter(image => getComputedStyle(image).visibility == 'visible')
        .map(image => image.src.split('/').pop()).join('+')));
}

async function middleOf(index) {
    const box = await (await page.$$('>>> li > a.rollover'))[index].boundingBox();
    return [box.x + box.width / 2, box.y + box.height / 2];
}

test('a rollover shows its other image while the mouse is on it', async () => {
    await showRollovers();
    assert.equal((await pictures())[3], 'out.svg');
    await page.mouse.move(...await middleOf(3));
    assert.equal((await pictures())[3], 'over.svg');
    await page.mouse.move(700, 500);
    assert.equal((await pictures())[3], 'out.svg');
});

test('a rollover shows its other image while it has the focus', async () => {
    await showRollovers();
    await page.keyboard.press('Tab');
    assert.equal((await pictures())[0], 'over.svg');
});

test('a rollover shows its other image while its submenu is open', async () => {
    await showRollovers();
    await page.mouse.move(...await middleOf(0));
    await hover(page, 'Under');
    assert.equal((await pictures())[0], 'over.svg');
});

test('both images of a rollover are loaded before the mouse comes', async () => {
    await showRollovers();
    const loaded = await page.$$eval('>>> li:first-child > a.rollover > img',
        images => images.map(image => image.complete && image.naturalWidth));
    assert.deepEqual(loaded, [60, 60]);
});

test('swapping images moves nothing', async () => {
    await showRollovers();
    const before = await middleOf(1);
    await page.mouse.move(...await middleOf(0));
    assert.deepEqual(await middleOf(1), before);
});

test('a rollover is named after its link, or else after its image', async () => {
    await showRollovers();
    const names = await page.$$eval('>>> li > a.rollover', links => links.map(link => link.children[0].alt));
    assert.deepEqual(names, ['first page', 'second', 'big boat', 'plain']);
});

test('a missing image leaves a readable item that can be clicked', async () => {
    await showRollovers();
    const [x, y] = await middleOf(1);
    const { width } = await (await page.$$('>>> li > a.rollover'))[1].boundingBox();
    assert.ok(width > 30, `${width}`);
    await page.mouse.click(x, y);
    await waitAt(page, lab.origin + '/site/second.html');
});

// ---- Staying in the window ----

function placed(x, y) {
    return { place: `<div style="position:absolute;left:${x}px;top:${y}px">${source('menu.js')}` +
        `${script('ZEVDisplayMenu();')}</div>` };
}

function oneSubmenu(position, items = 1) {
    return `zevmenu = new ZEVMenu('0'); zevmenu.AddItem('One', '', '');
        zevmenu = new ZEVMenu('1'); zevmenu.position = '${position}';
        zevmenu.AddItem('A submenu of some width', '', '');` +
        Array.from({ length: items - 1 }, (_, i) => `zevmenu.AddItem('Item ${i}', '', '');`).join('\n');
}

// [position, where the item stands, side on which the submenu has to stand]
const flips = [
    ['right', 700, 100, 'left'], ['left', 20, 100, 'right'], ['bottom', 300, 570, 'top'], ['top', 300, 5, 'bottom'],
];

for (const [position, x, y, side] of flips) {
    test(`a submenu that does not fit ${position} opens ${side}`, async () => {
        await lab.show({ definition: oneSubmenu(position, position == 'right' || position == 'left' ? 1 : 3),
                         ...placed(x, y) });
        await hover(page, 'One');
        await waitShown(page, 'A submenu of some width');
        const [from, to] = [await rect(page, 'One'), await boxRect(page, 'A submenu of some width')];
        const gaps = { right: to.left - from.right, left: from.left - to.right, bottom: to.top - from.bottom,
                       top: from.top - to.bottom };
        assert.equal(Math.round(gaps[side]), 1);
        assertInWindow(to);
    });
}

function assertInWindow(box, width = 800, height = 600) {
    assert.ok(box.left >= 0 && box.top >= 0 && box.right <= width + 0.1 && box.bottom <= height + 0.1,
              JSON.stringify(box));
}

test('a submenu beside an item at the lower edge is shifted up into the window', async () => {
    await lab.show({ definition: oneSubmenu('right', 10), ...placed(100, 550) });
    await hover(page, 'One');
    await waitShown(page, 'Item 8');
    const box = await boxRect(page, 'Item 8');
    assertInWindow(box);
    assert.equal(Math.round(box.bottom), 600);
});

test('a submenu that opens under a resting mouse stays as long as the mouse rests', async () => {
    await lab.show({ definition: oneSubmenu('right').replace('zevmenu =', 'zev_state.menuoffset = -60; $&') });
    await hover(page, 'One');
    await waitShown(page, 'A submenu of some width');
    await pause(1000);
    assert.ok(await isShown(page, 'A submenu of some width'));
});

test('a submenu taller than the window scrolls, and its last item can be reached', async () => {
    await lab.show({ definition: oneSubmenu('right', 100) });
    await hover(page, 'One', 'A submenu of some width');
    assertInWindow(await boxRect(page, 'Item 98'));
    // A browser may limit how far one turn of the wheel goes.
    await until(async () => {
        await page.mouse.wheel({ deltaY: 10000 });
        await pause(200);
        return (await rect(page, 'Item 98')).bottom <= 601;
    }, 'the last item');
    assert.ok(await isShown(page, 'Item 98'));
});

test('an open submenu stays with its item when the page scrolls', async () => {
    await lab.show({ definition: longDelay, after: '<div style="height:3000px"></div>' });
    await hover(page, 'Products', 'Boats');
    await page.evaluate(() => window.scrollTo(0, 10));
    await until(async () => {
        const [from, to] = [await rect(page, 'Products'), await boxRect(page, 'Boats')];
        return Math.round(to.top - from.bottom) == 1 && from.top < 5;
    }, 'the submenu beside its item');
});

test('a menu in a scrolling box shows its submenus outside that box', async () => {
    await lab.show({ definition: longDelay, place: `<div style="overflow:auto;height:30px;width:400px">${
        source('menu.js')}${script('ZEVDisplayMenu();')}<div style="height:500px"></div></div>` });
    await hover(page, 'Products', 'Oars');
    const { x, y } = await rect(page, 'Oars');
    const top = await page.evaluate((x, y) => document.elementFromPoint(x + 5, y + 5).dataset.zev, x, y);
    assert.equal(top, 'layer');
});

test('an open submenu follows its item when a box around the menu scrolls', async () => {
    await lab.show({ definition: longDelay, place: `<div id="box" style="overflow:auto;height:80px">${
        source('menu.js')}${script('ZEVDisplayMenu();')}<div style="height:500px"></div></div>` });
    await hover(page, 'Products', 'Boats');
    await page.$eval('#box', box => { box.scrollTop = 7; });
    const gap = async () => (await boxRect(page, 'Boats')).top - (await rect(page, 'Products')).bottom;
    await until(async () => Math.round(await gap()) == 1, 'the submenu to follow');
});

test('submenus stand right in a page whose body is positioned and has margins', async () => {
    await lab.show({ definition: longDelay, head: '<style>body{position:relative;margin:40px 0 0 60px}</style>' });
    await hover(page, 'Products', 'Boats');
    const [from, to] = [await rect(page, 'Products'), await boxRect(page, 'Boats')];
    assert.equal(Math.round(to.top - from.bottom), 1);
    assert.equal(Math.round(to.left - from.left), 0);
});

// ---- Pop-ups ----

const popups = `<p style="height:1200px">
    <a id="fixed" href="" onmouseover="ZEVMenuOpen('zev1', '3', 250, 420)">Menu</a>
    <a id="lost" href="" onmouseover="ZEVMenuOpen('zev1', '9', event)">Menu</a>
    <a id="mouse" href="" onmouseover="ZEVMenuOpen('zev1i2', '1', event)"
        onmouseout="ZEVMenuClose('zev1i2', '1', false)">Menu</a></p>`;

async function showPopups(options = {}) {
    await lab.show({ place: source('menu.js'), before: popups, ...options });
}

async function pointAt(id) {
    const { x, y, width, height } = await (await page.$('#' + id)).boundingBox();
    const point = { x: x + width / 2, y: y + height / 2 };
    await page.mouse.move(point.x, point.y);
    return point;
}

test('a pop-up opens beside the mouse, with its submenus', async () => {
    await showPopups();
    const point = await pointAt('mouse');
    await waitShown(page, 'Canoes');
    const box = await boxRect(page, 'Canoes');
    assert.ok(box.left > point.x && box.left < point.x + 20 && Math.abs(box.top - point.y) < 20,
              JSON.stringify([box, point]));
    await hover(page, 'Kayaks', 'Sea kayaks');
    assert.equal(await shown(page, ...everything), 'Canoes Sea kayaks');
});

test('a pop-up at coordinates opens there, in page coordinates', async () => {
    await showPopups();
    await pointAt('fixed');
    await waitShown(page, 'Map');
    const box = await boxRect(page, 'Map');
    assert.deepEqual([box.left, box.top], [250, 420]);
    await page.evaluate(() => window.scrollTo(0, 100));
    await until(async () => (await boxRect(page, 'Map')).top == 320, 'the pop-up to scroll with the page');
});

test('a pop-up closes closedelay milliseconds after its link was left', async () => {
    await showPopups({ definition: nested.replace('300', '1000') });
    await pointAt('mouse');
    await waitShown(page, 'Canoes');
    await page.mouse.move(700, 500);
    assert.ok(await isShown(page, 'Canoes'));
    await waitGone(page, 'Canoes');
});

test('a pop-up stays while the mouse is on it, and closes when it leaves', async () => {
    await showPopups();
    await pointAt('mouse');
    await hover(page, 'Canoes');
    await pause(600);
    assert.ok(await isShown(page, 'Canoes'));
    await page.mouse.move(700, 500);
    await waitGone(page, 'Canoes');
});

test("a pop-up stays when its link is told to be left after the mouse's arrival on it", async () => {
    await showPopups();
    await pointAt('mouse');
    await hover(page, 'Canoes');
    await page.evaluate(() => ZEVMenuClose('zev1i2', '1', false));
    await pause(600);
    assert.ok(await isShown(page, 'Canoes'));
});

test('one pop-up replaces the other, and the same one does not move', async () => {
    await showPopups({ definition: longDelay });
    await pointAt('mouse');
    await waitShown(page, 'Canoes');
    const before = await boxRect(page, 'Canoes');
    const { x, y } = await (await page.$('#mouse')).boundingBox();
    await page.mouse.move(x - 2, y - 2);
    await page.mouse.move(x + 2, y + 2);
    assert.deepEqual(await boxRect(page, 'Canoes'), before);
    await pointAt('fixed');
    await waitShown(page, 'Map');
    assert.equal(await shown(page, ...everything), 'Map');
});

test('Escape and a click outside close a pop-up', async () => {
    await showPopups();
    await pointAt('fixed');
    await waitShown(page, 'Map');
    await page.keyboard.press('Escape');
    assert.equal(await isShown(page, 'Map'), false);
    await pointAt('mouse');
    await waitShown(page, 'Canoes');
    await page.mouse.click(700, 500);
    assert.equal(await isShown(page, 'Canoes'), false);
});

test('a pop-up beside the mouse flips at the right edge', async () => {
    await showPopups({ head: '<style>p{text-align:right}</style>', width: 300 });
    await pointAt('mouse');
    await waitShown(page, 'Canoes');
    assertInWindow(await boxRect(page, 'Canoes'), 300);
});

test('a pop-up of a menu that does not exist costs one warning', async () => {
    await showPopups();
    await pointAt('lost');
    await pointAt('mouse');
    await pointAt('lost');
    assert.deepEqual(page.warnings, ['ZEVMenu: ZEVMenuOpen: there is no submenu "9"']);
});

test('pop-up calls with arguments of any kind do not throw', async () => {
    await showPopups();
    await page.evaluate(() => {
        const strange = [undefined, null, {}, Object.create(null), 'constructor', 'zev1', 0, NaN, Symbol('a')];
        for (const a of strange) {
            for (const b of strange) {
                ZEVMenuOpen(a, b, a, b);
                ZEVMenuOpen('zev1', '3', a, b);
                ZEVMenuClose(a, b, a);
            }
        }
    });
    assert.ok(await isShown(page, 'Map'));
});

test('a click on a pop-up link without an address does not load the page anew', async () => {
    await showPopups();
    await page.evaluate(() => { document.isSamePage = true; });
    const { x, y } = await pointAt('mouse');
    await page.mouse.click(x, y);
    await pause(100);
    assert.equal(await page.evaluate(() => document.isSamePage), true);
    assert.ok(await isShown(page, 'Canoes'));
});
