// The menu under a real keyboard, a finger, and what it tells assistive technology.
import assert from 'node:assert/strict';
import { after, afterEach, before, test } from 'node:test';
import { focus, hover, isShown, item, nested, pause, rect, script, shown, source, startLab, until, waitGone,
    waitShown } from './support.mjs';

let lab, page;
before(async () => {
    lab = await startLab();
    page = lab.page;
});
after(() => lab.close());
afterEach(() => assert.deepEqual(page.errors, []));

const around = { before: '<a id="before" href="#">before</a>', after: '<a id="after" href="#">after</a>' };
const everything = ['Boats', 'Canoes', 'Sea kayaks', 'Map'];

async function press(...keys) {
    for (const key of keys) await page.keyboard.press(key);
}

// A vertical top menu whose submenu opens right and holds a grid of two columns.
const vertical = `zevmenu = new ZEVMenu('0');
    zevmenu.AddItem('First', 'first.html', ''); zevmenu.AddItem('Second', 'second.html', '');
    zevmenu = new ZEVMenu('1'); zevmenu.columns = 2;
    zevmenu.AddItem('A', '', ''); zevmenu.AddItem('B', '', '');
    zevmenu.AddItem('C', '', ''); zevmenu.AddItem('D', '', '');`;

// [rule, definition, keys, item that has the focus then, submenu items to be seen then]
const keyRows = [
    ['Tab reaches the first item and opens nothing', nested, 'Tab Tab', 'Home', ''],
    ['the menu is one tab stop', nested, 'Tab Tab Tab', 'after', ''],
    ['Right goes along a row', nested, 'Tab Tab ArrowRight', 'Products', ''],
    ['Right goes round at the end', nested, 'Tab Tab ArrowRight ArrowRight ArrowRight', 'Home', ''],
    ['Left goes round at the start', nested, 'Tab Tab ArrowLeft', 'Contact', ''],
    ['End goes to the last item', nested, 'Tab Tab End', 'Contact', ''],
    ['Home goes to the first item', nested, 'Tab Tab End Home', 'Home', ''],
    ['Down opens a submenu below a row', nested, 'Tab Tab ArrowRight ArrowDown', 'Boats', 'Boats'],
    ['Enter opens a submenu', nested, 'Tab Tab ArrowRight Enter', 'Boats', 'Boats'],
    ['Space opens a submenu', nested, 'Tab Tab ArrowRight Space', 'Boats', 'Boats'],
    ['Down goes along a list', nested, 'Tab Tab ArrowRight ArrowDown ArrowDown', 'Oars', 'Boats'],
    ['Up goes round in a list', nested, 'Tab Tab ArrowRight ArrowDown ArrowUp', 'Oars', 'Boats'],
    ['Right opens a submenu on the right', nested,
        'Tab Tab ArrowRight ArrowDown ArrowRight', 'Canoes', 'Boats Canoes'],
    ['Left closes a submenu on the right', nested,
        'Tab Tab ArrowRight ArrowDown ArrowRight ArrowLeft', 'Boats', 'Boats'],
    ['Escape goes back to the parent item', nested,
        'Tab Tab ArrowRight ArrowDown ArrowRight Escape', 'Boats', 'Boats'],
    ['Escape goes back to the top menu', nested,
        'Tab Tab ArrowRight ArrowDown Escape', 'Products', ''],
    ['Right where nothing opens goes on in the row and opens there', nested,
        'Tab Tab ArrowRight ArrowDown ArrowDown ArrowRight', 'Contact', 'Map'],
    ['Left from a submenu below a row goes back in the row', nested,
        'Tab Tab ArrowLeft ArrowDown ArrowLeft', 'Products', 'Boats'],
    ['Tab leaves from any depth and closes', nested,
        'Tab Tab ArrowRight ArrowDown ArrowRight Tab', 'after', ''],
    ['Shift+Tab leaves backwards and closes', nested,
        'Tab Tab ArrowRight ArrowDown Shift+Tab', 'before', ''],
    ['the tab stop is the item that had the focus last', nested,
        'Tab Tab End Tab Shift+Tab', 'Contact', ''],
    ['Down goes along a vertical menu', vertical, 'Tab Tab ArrowDown', 'Second', ''],
    ['Right opens a submenu beside a vertical menu', vertical, 'Tab Tab ArrowRight', 'A', 'A'],
    ['Right goes along a row of a grid', vertical, 'Tab Tab ArrowRight ArrowRight', 'B', 'A'],
    ['Down goes along a column of a grid', vertical, 'Tab Tab ArrowRight ArrowDown', 'C', 'A'],
    ['Left at the edge of a grid goes back', vertical,
        'Tab Tab ArrowRight ArrowRight ArrowLeft ArrowLeft', 'First', ''],
    ['a key with Ctrl is not the menu\'s', nested, 'Tab Tab Control+ArrowRight', 'Home', ''],
];

for (const [rule, definition, keys, expected, open] of keyRows) {
    test(`keyboard: ${rule}`, async () => {
        await lab.show({ definition, ...around });
        for (const key of keys.split(' ')) {
            const [modifier, main] = key.includes('+') ? key.split('+') : [null, key];
            if (modifier) await page.keyboard.down(modifier);
            await press(main);
            if (modifier) await page.keyboard.up(modifier);
        }
        assert.equal(await focus(page), expected);
        assert.equal(await shown(page, ...everything, 'A'), open);
    });
}

test('keyboard: Enter follows the link of an item without a submenu', async () => {
    await lab.show({ ...around });
    await press('Tab', 'Tab', 'Enter');
    await until(() => page.url() == lab.origin + '/site/home.html', 'home.html');
});

test('keyboard: arrows follow the side on which a flipped submenu stands', async () => {
    await lab.show({ definition: vertical, ...around, place: `<div style="position:absolute;right:0">${
        source('menu.js')}${script('ZEVDisplayMenu();')}</div>` });
    await press('Tab', 'Tab', 'ArrowLeft');
    assert.equal(await focus(page), 'A');
    await press('ArrowRight', 'ArrowRight');
    assert.equal(await focus(page), 'First');
});

test('keyboard: arrows and sides are mirrored in a right-to-left page', async () => {
    await lab.show({ definition: nested, ...around, html: '<html lang="ar" dir="rtl">' });
    await press('Tab', 'Tab', 'ArrowLeft');
    assert.equal(await focus(page), 'Products');
    await press('ArrowDown', 'ArrowLeft');
    assert.equal(await focus(page), 'Canoes');
    assert.ok((await rect(page, 'Canoes')).right <= (await rect(page, 'Boats')).left);
    assert.ok((await rect(page, 'Products')).right <= (await rect(page, 'Home')).left);
});

test('keyboard: the focus can be seen', async () => {
    await lab.show({ ...around });
    await press('Tab', 'Tab');
    const outline = await (await item(page, 'Home')).evaluate(link => getComputedStyle(link).outlineStyle);
    assert.equal(outline, 'solid');
});

test('keyboard: a submenu that closes under the focus gives it to its item', async () => {
    await lab.show({ ...around });
    await hover(page, 'Products', 'Boats');
    await press('Tab', 'Tab', 'ArrowRight', 'ArrowDown');
    assert.equal(await focus(page), 'Boats');
    await page.mouse.move(700, 500);
    await waitGone(page, 'Boats');
    assert.equal(await focus(page), 'Products');
});

// ---- Pop-up links ----

const popup = { place: source('menu.js'), before: `<a id="link" href=""
    onmouseover="ZEVMenuOpen('zev1', '2', event)" onmouseout="ZEVMenuClose('zev1', '2', false)">Menu</a>`,
    after: '<a id="after" href="#">after</a>' };

for (const key of ['Enter', 'ArrowDown']) {
    test(`keyboard: ${key} on a pop-up's link opens it and goes in; Escape comes back`, async () => {
        await lab.show(popup);
        await press('Tab', key);
        assert.equal(await focus(page), 'Boats');
        await press('Escape');
        assert.equal(await focus(page), 'link');
        assert.equal(await isShown(page, 'Boats'), false);
    });
}

test('keyboard: Tab leaves a pop-up from its link on', async () => {
    await lab.show(popup);
    await press('Tab', 'Enter', 'ArrowRight', 'Tab');
    assert.equal(await focus(page), 'after');
    assert.equal(await shown(page, ...everything), '');
});

// ---- Touch ----

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
    assert.equal(page.url(), lab.origin + '/site/page.html');
    await tap('Products');
    await until(() => page.url() == lab.origin + '/site/products.html', 'products.html');
});

test('touch: a tap on an item without a submenu follows its link', async () => {
    await lab.show({ hasTouch: true });
    await tap('Products');
    await waitShown(page, 'Oars');
    await tap('Oars');
    await until(() => page.url() == lab.origin + '/site/oars.html', 'oars.html');
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
    assert.equal(page.url(), lab.origin + '/site/page.html');
});

// ---- Roles and states ----

test('assistive technology hears of a menubar, its menus, and which are open', async () => {
    await lab.show();
    await hover(page, 'Products', 'Boats');
    const roles = await page.$$eval('>>> ul', boxes => boxes.filter(box => !box.hidden).map(box =>
        [box.getAttribute('role'), ...Array.from(box.children, line =>
            [line.getAttribute('role'), ...['role', 'aria-haspopup', 'aria-expanded'].map(name =>
                line.firstChild.getAttribute(name))].join(' '))]));
    assert.deepEqual(roles, [
        ['menubar', 'none menuitem  ', 'none menuitem true true', 'none menuitem true false'],
        ['menu', 'none menuitem true true', 'none menuitem  '],
        ['menu', 'none menuitem  ', 'none menuitem true false'],
    ]);
});

test('a click without a pointer, as screen readers make it, first opens and then follows', async () => {
    await lab.show();
    await (await item(page, 'Products')).evaluate(link => link.click());
    await waitShown(page, 'Boats');
    await (await item(page, 'Products')).evaluate(link => link.click());
    await until(() => page.url() == lab.origin + '/site/products.html', 'products.html');
});
