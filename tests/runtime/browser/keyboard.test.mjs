// SPDX-License-Identifier: MIT
// The menu under a real keyboard. The ids are those of the table in runtime/README.md.
import assert from 'node:assert/strict';
import { after, afterEach, before, test } from 'node:test';
import { boxRect, focus, hover, isShown, item, nested, script, shown, source, startLab, waitAt,
    waitGone, waitShown } from './support.mjs';

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
    zevmenu.AddItem('C', '', ''); zevmenu.AddItem('D', '', ''); zevmenu.AddItem('E', '', '');`;

// A top menu of two rows, the submenu of its second item below.
const grid = `zev_state.position = 'bottom';
    zevmenu = new ZEVMenu('0'); zevmenu.columns = 2;
    zevmenu.AddItem('P', '', ''); zevmenu.AddItem('Q', '', ''); zevmenu.AddItem('R', '', '');
    zevmenu = new ZEVMenu('3'); zevmenu.AddItem('A', '', '');`;

const names = `zevmenu = new ZEVMenu('0');
    zevmenu.AddItem('Home', '', ''); zevmenu.AddItem('Sea otters', '', '');
    zevmenu.AddItem('Sea shells', '', ''); zevmenu.AddRollover('salt_water.html', 'salt.svg', '', '');
    zevmenu = new ZEVMenu('2'); zevmenu.AddItem('A', '', '');`;

const goRight = { place: `<div style="position:absolute;right:0">${
    source('menu.js')}${script('ZEVDisplayMenu();')}</div>` };
const rtl = { html: '<html lang="ar" dir="rtl">' };

// The keys 'Tab Tab' come first: over the link before the menu into it.
// [id, rule, definition, keys, item that has the focus then, submenu items to be seen then, page]
const keyRows = [
    ['K1', 'Tab reaches the first item and opens nothing', nested, '', 'Home', ''],
    ['K1', 'the menu is one tab stop', nested, 'Tab', 'after', ''],
    ['K1', 'the tab stop is the item that had the focus last', nested, 'End Tab Shift+Tab', 'Contact', ''],
    ['K2', 'Tab leaves from any depth and closes', nested, 'ArrowRight ArrowDown ArrowRight Tab', 'after', ''],
    ['K2', 'Shift+Tab leaves backwards and closes', nested, 'ArrowRight ArrowDown Shift+Tab', 'before', ''],
    ['K3', 'Right goes along a row', nested, 'ArrowRight', 'Products', ''],
    ['K3', 'Right goes round at the end', nested, 'ArrowRight ArrowRight ArrowRight', 'Home', ''],
    ['K3', 'Left goes round at the start', nested, 'ArrowLeft', 'Contact', ''],
    ['K3', 'Down goes along a list', nested, 'ArrowRight ArrowDown ArrowDown', 'Oars', 'Boats'],
    ['K3', 'Up goes round in a list', nested, 'ArrowRight ArrowDown ArrowUp', 'Oars', 'Boats'],
    ['K3', 'Down goes along a vertical top menu', vertical, 'ArrowDown', 'Second', ''],
    ['K4', 'Right goes along a row of a grid', vertical, 'ArrowRight ArrowRight', 'B', 'A'],
    ['K4', 'Left goes along a row of a grid', vertical, 'ArrowRight ArrowRight ArrowLeft', 'A', 'A'],
    ['K4', 'Down goes along a column of a grid', vertical, 'ArrowRight ArrowDown', 'C', 'A'],
    ['K4', 'Up goes along a column of a grid', vertical, 'ArrowRight ArrowDown ArrowDown ArrowUp', 'C', 'A'],
    ['K4', 'the last row of a grid is an edge', vertical, 'ArrowRight ArrowDown ArrowDown ArrowDown', 'E', 'A'],
    ['K4', 'a top menu may be a grid', grid, 'ArrowRight ArrowLeft ArrowDown', 'R', ''],
    ['K4', 'below the last row of a top grid a submenu opens', grid, 'ArrowDown ArrowDown', 'A', 'A'],
    ['K5', 'Down opens a submenu below a row', nested, 'ArrowRight ArrowDown', 'Boats', 'Boats'],
    ['K5', 'Right opens a submenu on the right', nested, 'ArrowRight ArrowDown ArrowRight', 'Canoes', 'Boats Canoes'],
    ['K5', 'Right opens a submenu beside a vertical top menu', vertical, 'ArrowRight', 'A', 'A'],
    ['K6', 'Up opens a submenu below a row, to its last item', nested, 'ArrowRight ArrowUp', 'Oars', 'Boats'],
    ['K6', 'Left opens a submenu right of a list, to its last item', vertical, 'ArrowLeft', 'E', 'A'],
    ['K7', 'Left closes a submenu on the right', nested,
        'ArrowRight ArrowDown ArrowRight ArrowLeft', 'Boats', 'Boats'],
    ['K7', 'Left at the edge of a grid goes back', vertical,
        'ArrowRight ArrowRight ArrowLeft ArrowLeft', 'First', ''],
    ['K8', 'Right goes on in the row and opens there', nested,
        'ArrowRight ArrowDown ArrowDown ArrowRight', 'Contact', 'Map'],
    ['K8', 'Left goes back in the row', nested, 'ArrowLeft ArrowDown ArrowLeft', 'Products', 'Boats'],
    ['K9', 'a submenu flipped to the left opens by Left', vertical, 'ArrowLeft', 'A', 'A', goRight],
    ['K9', 'a submenu flipped to the left closes by Right', vertical,
        'ArrowLeft ArrowRight ArrowRight', 'First', '', goRight],
    ['K10', 'Left is the next item of a right-to-left row', nested, 'ArrowLeft', 'Products', '', rtl],
    ['K10', 'Left opens a submenu from right to left', nested,
        'ArrowLeft ArrowDown ArrowLeft', 'Canoes', 'Boats Canoes', rtl],
    ['K10', 'Right closes it', nested, 'ArrowLeft ArrowDown ArrowLeft ArrowRight', 'Boats', 'Boats', rtl],
    ['K10', 'a grid is mirrored', vertical, 'ArrowLeft ArrowLeft', 'B', 'A', rtl],
    ['K11', 'End goes to the last item', nested, 'End', 'Contact', ''],
    ['K11', 'Home goes to the first item', nested, 'End Home', 'Home', ''],
    ['K11', 'End goes to the last item of a submenu', nested, 'ArrowRight ArrowDown End', 'Oars', 'Boats'],
    ['K11', 'Home goes to the first item of a submenu', nested,
        'ArrowRight ArrowDown End Home', 'Boats', 'Boats'],
    ['K12', 'a letter goes to the next item of the box', nested, 'p', 'Products', ''],
    ['K12', 'a letter goes to an item of a submenu', nested, 'ArrowRight ArrowDown o', 'Oars', 'Boats'],
    ['K12', 'the same letter again goes on', names, 's s', 'Sea shells', ''],
    ['K12', 'more letters narrow down, spaces too', names, 's e a Space s', 'Sea shells', ''],
    ['K12', 'a letter that no name begins with does nothing', nested, 'x', 'Home', ''],
    ['K13', 'Space opens a submenu', nested, 'ArrowRight Space', 'Boats', 'Boats'],
    ['K13', 'Enter opens the submenu of an item without a link', grid, 'ArrowDown Enter', 'A', 'A'],
    ['K13', 'Enter opens the submenu of an item whose link leads nowhere', nested.replace("'products.html'", "'#'"),
        'ArrowRight Enter', 'Boats', 'Boats'],
    ['K15', 'Escape goes back to the parent item', nested,
        'ArrowRight ArrowDown ArrowRight Escape', 'Boats', 'Boats'],
    ['K15', 'Escape goes back to the top menu', nested, 'ArrowRight ArrowDown Escape', 'Products', ''],
    ['K16', 'Escape on the top menu closes what is open below it', nested,
        'ArrowLeft ArrowDown ArrowLeft Escape', 'Products', ''],
    ['K17', "an arrow with Ctrl is not the menu's", nested, 'Control+ArrowRight', 'Home', ''],
    ['K17', "an arrow with Alt is not the menu's", nested, 'ArrowRight Alt+ArrowDown', 'Products', ''],
    ['K17', "an arrow with Meta is not the menu's", nested, 'ArrowRight Meta+ArrowDown', 'Products', ''],
];

for (const [id, rule, definition, keys, expected, open, options] of keyRows) {
    test(`${id}: ${rule}`, async () => {
        await lab.show({ definition, ...around, ...options });
        for (const key of ('Tab Tab ' + keys).trim().split(' ')) {
            const [modifier, main] = key.includes('+') ? key.split('+') : [null, key];
            if (modifier) await page.keyboard.down(modifier);
            await press(main);
            if (modifier) await page.keyboard.up(modifier);
        }
        assert.equal(await focus(page), expected);
        assert.equal(await shown(page, ...everything, 'A'), open);
    });
}

// [what, keys, the page they lead to]
const followed = [
    ['an item with a submenu', ['ArrowRight', 'Enter'], 'products.html'],
    ['an item that a submenu was closed to', ['ArrowRight', 'ArrowDown', 'Escape', 'Enter'], 'products.html'],
    ['an item with a submenu in a submenu', ['ArrowRight', 'ArrowDown', 'Enter'], 'boats.html'],
];

for (const [what, keys, url] of followed) {
    test(`K14: Enter follows the link of ${what}`, async () => {
        await lab.show({ ...around });
        await press('Tab', 'Tab', ...keys);
        await waitAt(page, `${lab.origin}/site/${url}`);
    });
}

for (const key of ['Enter', 'Space']) {
    test(`K14: ${key} follows the link of an item without a submenu`, async () => {
        await lab.show({ ...around });
        await press('Tab', 'Tab', key);
        await waitAt(page, lab.origin + '/site/home.html');
    });
}

test('K12: a rollover is found by its name', async () => {
    await lab.show({ definition: names, ...around });
    await press('Tab', 'Tab', 's', 'a', 'Enter');
    await waitAt(page, lab.origin + '/site/salt_water.html');
});

test('K16: Escape closes what the mouse opened, wherever the focus is', async () => {
    await lab.show({ ...around });
    await press('Tab');
    await hover(page, 'Products', 'Boats', 'Canoes');
    await press('Escape');
    assert.equal(await shown(page, ...everything), '');
    assert.equal(await focus(page), 'before');
});

test('F1: the focus can be seen', async () => {
    await lab.show({ ...around });
    await press('Tab', 'Tab');
    const outline = await (await item(page, 'Home')).evaluate(link => getComputedStyle(link).outlineStyle);
    assert.equal(outline, 'solid');
});

test('F2: a submenu that closes under the focus gives it to its item', async () => {
    await lab.show({ ...around });
    await hover(page, 'Products', 'Boats');
    await press('Tab', 'Tab', 'ArrowRight', 'ArrowDown');
    assert.equal(await focus(page), 'Boats');
    await page.mouse.move(700, 500);
    await waitGone(page, 'Boats');
    assert.equal(await focus(page), 'Products');
});

// ---- Pop-up links ----

const opens = `onmouseover="ZEVMenuOpen('zev1', '2', event)" onmouseout="ZEVMenuClose('zev1', '2', false)"`;
const popup = { place: source('menu.js'), before: `<a id="link" href="" ${opens}>Menu</a>`,
    after: '<a id="after" href="#">after</a>' };

// [what, element, keys that open]
const openers = [
    ['a link', popup.before, ['Enter', 'ArrowDown', 'Space']],
    ['a link to nowhere', popup.before.replace('href=""', 'href="#"'), ['Enter', 'ArrowDown', 'Space']],
    ['a link opened by a click', `<a id="link" href="" onmouseover="window.status = ''"
        onclick="ZEVMenuOpen('zev1', '2', event); return false;">Menu</a>`, ['Enter', 'ArrowDown']],
    ['an anchor without an address', `<a id="link" ${opens}>Menu</a>`, ['Enter', 'ArrowDown', 'Space']],
    ['a button', `<button id="link" ${opens}>Menu</button>`, ['Enter', 'ArrowDown', 'Space']],
];

for (const [what, before, keys] of openers) {
    for (const key of keys) {
        test(`K18, K19: ${key} on ${what} opens its pop-up and goes in; Escape comes back`, async () => {
            await lab.show({ ...popup, before });
            await press('Tab', key);
            assert.equal(await focus(page), 'Boats');
            await press('Escape');
            assert.equal(await focus(page), 'link');
            assert.equal(await isShown(page, 'Boats'), false);
        });
    }
}

test('K18: Arrow Up on the link of a pop-up opens it, to its last item', async () => {
    await lab.show(popup);
    await press('Tab', 'ArrowUp');
    assert.equal(await focus(page), 'Oars');
});

test('K19: Tab on the link of an open pop-up closes it, and goes on', async () => {
    await lab.show(popup);
    await page.hover('#link');
    await waitShown(page, 'Boats');
    await page.focus('#link');
    await press('Tab');
    assert.equal(await focus(page), 'after');
    assert.equal(await shown(page, ...everything), '');
});

test('K18: Enter follows the link of a pop-up that has an address, Space and Arrow Down open it', async () => {
    await lab.show({ ...popup, before: popup.before.replace('href=""', 'href="away.html"') });
    await press('Tab', 'Space');
    assert.equal(await focus(page), 'Boats');
    await press('Escape', 'ArrowDown');
    assert.equal(await focus(page), 'Boats');
    await press('Escape');
    assert.equal(await page.url(), lab.origin + '/site/page.html');
    await press('Enter');
    await waitAt(page, lab.origin + '/site/away.html');
});

for (const modifier of ['Control', 'Alt', 'Meta']) {
    test(`K17: Arrow Down with ${modifier} opens no pop-up`, async () => {
        await lab.show(popup);
        await press('Tab');
        await page.keyboard.down(modifier);
        await press('ArrowDown');
        await page.keyboard.up(modifier);
        assert.equal(await isShown(page, 'Boats'), false);
        await press('ArrowDown');
        assert.equal(await isShown(page, 'Boats'), true);
    });
}

// A link whose handlers were put in by a script of the page, not written as attributes.
const scripted = { ...popup, before: '<a id="link" href="away.html">Menu</a>', after: `${popup.after}<script>
    const link = document.getElementById('link');
    link.addEventListener('mouseover', event => ZEVMenuOpen('zev1', '2', event));
    link.addEventListener('mouseout', () => ZEVMenuClose('zev1', '2', false));</script>` };

test('K18, K19: a link with listeners has the keys of a pop-up link from its first opening on', async () => {
    await lab.show(scripted);
    await page.hover('#link');
    await waitShown(page, 'Boats');
    await press('Escape', 'Tab', 'ArrowDown');
    assert.equal(await focus(page), 'Boats');
    const [link, box] = [await page.$eval('#link', link => link.getBoundingClientRect().toJSON()),
        await boxRect(page, 'Boats')];
    assert.ok(Math.abs(box.top - link.bottom) < 1 && Math.abs(box.left - link.left) < 1, JSON.stringify([link, box]));
    await press('Escape');
    assert.equal(await focus(page), 'link');
    assert.equal(await isShown(page, 'Boats'), false);
});

test('K19: Tab leaves a pop-up from its link on', async () => {
    await lab.show(popup);
    await press('Tab', 'Enter', 'ArrowRight', 'Tab');
    assert.equal(await focus(page), 'after');
    assert.equal(await shown(page, ...everything), '');
});

// ---- Roles and states ----

function attributes(selector, names) {
    return page.$$eval('>>> ' + selector, (all, names) =>
        all.map(element => names.map(name => element.getAttribute(name) || '-').join(' ')), names);
}

test('R1: boxes are a menubar and menus, and say how they lie where that is not usual', async () => {
    await lab.show({ definition: nested.replace("ZEVMenu('2');", "ZEVMenu('2'); zevmenu.columns = 9;") });
    await hover(page, 'Products', 'Boats');
    assert.deepEqual(await attributes('ul', ['role', 'aria-orientation']), [
        'menubar -', 'menu horizontal', 'menu -']);
    await lab.show({ definition: vertical });
    assert.deepEqual(await attributes('ul', ['role', 'aria-orientation']), ['menubar vertical']);
});

test('R2: items say whether they have a submenu and whether it is open', async () => {
    await lab.show();
    const states = ['role', 'aria-haspopup', 'aria-expanded'];
    await hover(page, 'Products', 'Boats');
    assert.deepEqual(await attributes('li > a', states), [
        'menuitem - -', 'menuitem true true', 'menuitem true false',
        'menuitem true true', 'menuitem - -',
        'menuitem - -', 'menuitem true false']);
    assert.deepEqual([...new Set(await attributes('li', ['role']))], ['none']);
    await press('Escape');
    assert.equal((await attributes('li > a[aria-expanded=true]', ['role'])).length, 0);
});

test('R3: links of pop-ups say that they have one and whether it is open', async () => {
    await lab.show(popup);
    const states = ['role', 'tabindex', 'aria-haspopup', 'aria-expanded'];
    assert.deepEqual(await attributes('#link', states), ['- - true false']);
    await press('Tab', 'Enter');
    assert.deepEqual(await attributes('#link', states), ['- - true true']);
    await press('Escape');
    assert.deepEqual(await attributes('#link', states), ['- - true false']);
});

test('R3: links with listeners say so from their first opening on', async () => {
    await lab.show(scripted);
    const states = ['role', 'tabindex', 'aria-haspopup', 'aria-expanded'];
    await page.hover('#link');
    await waitShown(page, 'Boats');
    assert.deepEqual(await attributes('#link', states), ['- - true true']);
    await press('Escape');
    assert.deepEqual(await attributes('#link', states), ['- - true false']);
});

test('R3: an element that listens for the links inside it is not taken for a link', async () => {
    await lab.show({ ...popup, before: '<p id="link"><a href="away.html">Menu</a></p>', after: scripted.after });
    await page.hover('#link a');
    await waitShown(page, 'Boats');
    assert.deepEqual(await attributes('#link', ['role', 'tabindex', 'aria-expanded']), ['- - -']);
});

test('R3: what opens a pop-up and has no address becomes a button', async () => {
    await lab.show({ ...popup, before: `<span id="link" ${opens}>Menu</span>` });
    assert.deepEqual(await attributes('#link', ['role', 'tabindex', 'aria-haspopup', 'aria-expanded']),
                     ['button 0 true false']);
});

test('R4: the menu is a landmark, unless it stands in one, and what is open another', async () => {
    await lab.show({ definition: nested.replace("'Boats'", "'<i>Big</i> boats'") });
    const landmarks = () => page.$$eval('[data-zev]', hosts => hosts.map(host =>
        [host.dataset.zev, host.getAttribute('role') || '-', host.getAttribute('aria-label') || '-'].join(' ')));
    assert.deepEqual(await landmarks(), ['bar navigation Site menu']);
    await hover(page, 'Products', 'Big boats');
    assert.deepEqual(await landmarks(), ['bar navigation Site menu', 'layer navigation Products']);
    assert.deepEqual(await attributes('ul[role=menu]', ['aria-label']), ['Products', 'Big boats']);
    await press('Escape');
    assert.deepEqual(await landmarks(), ['bar navigation Site menu', 'layer - -']);
    await lab.show({ before: '<nav>', after: '</nav>' });
    assert.deepEqual(await landmarks(), ['bar - -']);
});
