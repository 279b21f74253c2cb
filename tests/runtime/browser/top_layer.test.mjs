// SPDX-License-Identifier: MIT
// The menu in dialogs and popovers, which browsers draw above everything else.
import assert from 'node:assert/strict';
import { after, afterEach, before, test } from 'node:test';
import { focus, hover, isShown, item, rect, script, source, startLab, waitAt, waitGone, waitShown }
    from './support.mjs';

let lab, page;
before(async () => {
    lab = await startLab();
    page = lab.page;
});
after(() => lab.close());
afterEach(() => assert.deepEqual([page.errors, page.warnings], [[], []]));

const menu = source('menu.js') + script('ZEVDisplayMenu();');
const look = 'style="width: 260px; height: 40px; margin: 30px; padding: 10px; overflow: auto; transform: translate(5px)"';

// [what, markup around the menu, how it is opened and closed]
const tops = [
    ['a modal dialog', `<dialog id="top" ${look}>${menu}</dialog>`, 'showModal', 'close'],
    ['a dialog that is not modal', `<dialog id="top" ${look}>${menu}</dialog>`, 'show', 'close'],
    ['a popover', `<div id="top" popover ${look}>${menu}</div>`, 'showPopover', 'hidePopover'],
    ['a popover in a modal dialog', `<dialog id="outer"><div id="top" popover ${look}>${menu}</div></dialog>`,
        'showPopover', 'hidePopover'],
];

// Shows the page and opens what is around the menu; false where the engine has no such thing.
async function showTop([, place, open], options) {
    await lab.show({ place, after: '<p style="height: 900px">Text</p>', ...options });
    return page.evaluate(open => {
        const top = document.getElementById('top');
        if (!top[open]) return false;
        document.getElementById('outer')?.showModal();
        top[open]();
        return true;
    }, open);
}

// Whether a click on the middle of the item would meet it.
async function isOnTop(name) {
    const link = await item(page, name);
    return link.evaluate(link => {
        const { x, y, width, height } = link.getBoundingClientRect();
        let element = document.elementFromPoint(x + width / 2, y + height / 2), inner;
        while ((inner = element?.shadowRoot?.elementFromPoint(x + width / 2, y + height / 2)) && inner != element) {
            element = inner;
        }
        return element == link;
    });
}

for (const top of tops) {
    const [what, , open, close] = top;
    test(`submenus of a menu in ${what} lie above it, uncut, and are clicked`, async t => {
        if (!await showTop(top)) return t.skip(`this engine has no ${open}()`);
        await hover(page, 'Products', 'Boats', 'Kayaks');
        await waitShown(page, 'Sea kayaks');
        for (const name of ['Boats', 'Oars', 'Canoes', 'Kayaks', 'Sea kayaks']) assert.ok(await isOnTop(name), name);
        const [from, to] = [await rect(page, 'Products'), await rect(page, 'Boats')];
        assert.ok(Math.abs(to.top - from.bottom - 1) < 0.6 && Math.abs(to.left - from.left) < 0.6,
            JSON.stringify([from, to]));
        const { x, y } = await rect(page, 'Sea kayaks');
        await page.mouse.click(x + 10, y + 10);
        await waitAt(page, lab.origin + '/site/sea.html');
    });

    test(`the keyboard leads through the menu in ${what}, and Escape closes only the submenu`, async t => {
        if (!await showTop(top)) return t.skip(`this engine has no ${open}()`);
        await (await item(page, 'Products')).evaluate(link => link.focus());
        await page.keyboard.press('ArrowDown');
        assert.equal(await focus(page), 'Boats');
        assert.ok(await isOnTop('Boats'));
        await page.keyboard.press('Escape');
        await waitGone(page, 'Boats');
        assert.ok(await isShown(page, 'Products'));
        assert.equal(await focus(page), 'Products');
    });

    test(`${what}, closed and opened again, has its submenus above it again`, async t => {
        if (!await showTop(top)) return t.skip(`this engine has no ${open}()`);
        for (let times = 0; times < 3; times++) {
            await page.mouse.move(790, 590);
            await waitGone(page, 'Boats');
            await hover(page, 'Products', 'Oars');
            assert.ok(await isOnTop('Oars'));
            await page.evaluate(close => document.getElementById('top')[close](), close);
            await waitGone(page, 'Oars');
            await page.evaluate(open => document.getElementById('top')[open](), open);
        }
    });
}

test('after a dialog the same pop-ups open in the page again', async () => {
    const link = (id, name) => `<a id="${id}" href="" onmouseover="ZEVMenuOpen('zev1', '3', event)"
        onmouseout="ZEVMenuClose('zev1', '3', false)">${name}</a>`;
    await lab.show({ place: source('menu.js'),
        before: `${link('outside', 'Outside')}<dialog id="top">${link('inside', 'Inside')}</dialog>` });
    for (const id of ['outside', 'inside', 'outside', 'inside']) {
        await page.evaluate(isInside => document.getElementById('top')[isInside ? 'showModal' : 'close'](), id == 'inside');
        await page.hover('#' + id);
        await waitShown(page, 'Map');
        assert.ok(await isOnTop('Map'), id);
        await page.mouse.move(790, 590);
        await waitGone(page, 'Map');
    }
});

test('a dialog that the page takes away takes nothing of the menu outside with it', async () => {
    await lab.show({ after: `<dialog id="top"><a id="link" href="" data-zev-popup="3">Contact</a></dialog>` });
    await page.evaluate(() => document.getElementById('top').showModal());
    await page.hover('#link');
    await waitShown(page, 'Map');
    await page.evaluate(() => document.getElementById('top').remove());
    await waitGone(page, 'Map');
    await hover(page, 'Products', 'Boats');
    await waitShown(page, 'Canoes');
    assert.ok(await isOnTop('Canoes'));
});

test('a dialog around a web component that holds the menu has the submenus above it', async () => {
    await lab.show({ place: source('menu.js'), after: `<dialog id="top" style="height: 60px">
        <div id="component"></div></dialog>` });
    await page.evaluate(() => {
        const root = document.getElementById('component').attachShadow({ mode: 'open' });
        ZEVDisplayMenu();
        root.append(document.querySelector('[data-zev=bar]'));
        document.getElementById('top').showModal();
        const { x, y } = root.firstChild.shadowRoot.querySelectorAll('a')[1].getBoundingClientRect();
        document.at = [x + 5, y + 5];
    });
    const [x, y] = await page.evaluate(() => document.at);
    await page.mouse.move(x, y);
    await page.mouse.move(x + 3, y + 3);
    await waitShown(page, 'Boats');
    assert.ok(await isOnTop('Boats'));
});
