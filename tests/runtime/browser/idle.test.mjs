// SPDX-License-Identifier: MIT
// What the menu does while nobody uses it. Work is counted: elements made, callbacks asked for.
import assert from 'node:assert/strict';
import { after, afterEach, before, test } from 'node:test';
import { hover, nested, pause, startLab, until, waitShown } from './support.mjs';

let lab, page;
before(async () => {
    lab = await startLab();
    page = lab.page;
});
after(() => lab.close());
afterEach(() => assert.deepEqual(page.errors, []));

// Counts the links that the library makes, and the callbacks that it (not the browser's driver) asks for.
const head = `<script>
    made = asked = 0;
    const create = document.createElement;
    document.createElement = function (name) { made += name == 'a'; return create.call(document, name); };
    ['requestIdleCallback', 'setTimeout', 'setInterval', 'requestAnimationFrame', 'queueMicrotask'].forEach(name => {
        const ask = window[name];
        if (ask) window[name] = function () {
            asked += /zevmenu/.test(new Error().stack);
            return ask.apply(window, arguments);
        };
    });</script>`;
const counting = { loader: head + '<script src="/runtime/zevmenu_loader.js"></script>' };

function made() {
    return page.evaluate(() => made);
}

async function waitMade(count) {
    await until(async () => await made() >= count, `${count} links made`);
    assert.equal(await made(), count);
}

// A top menu of `count` items, each with a submenu of `size` items.
function broad(count, size) {
    return `zevmenu = new ZEVMenu('0');
        for (let i = 1; i <= ${count}; i++) zevmenu.AddItem('T' + i, '', '');
        for (let i = 1; i <= ${count}; i++) {
            zevmenu = new ZEVMenu('' + i);
            for (let k = 1; k <= ${size}; k++) zevmenu.AddItem('S' + i + '-' + k, '', '');
        }`;
}

test('submenus of the top menu are built while the page is idle, outside the page', async () => {
    await lab.show(counting);
    await waitMade(7);
    assert.equal(await page.$$eval('>>> li > a', links => links.length), 3);
});

test('an opened submenu was built before, and its own submenus are built next', async () => {
    await lab.show(counting);
    await waitMade(7);
    await page.evaluate(() => {
        window.requestIdleCallback = action => { window.later = action; };
    });
    await hover(page, 'Products');
    await waitShown(page, 'Boats');
    assert.equal(await made(), 7);
    await page.evaluate(() => later());
    assert.equal(await made(), 9);
    await hover(page, 'Boats');
    await waitShown(page, 'Canoes');
});

test('before the first opening the page has few elements, whatever the size of the menu', async () => {
    await lab.show({ ...counting, definition: broad(10, 100) });
    await waitMade(10 + 1000);
    const count = await page.$$eval('>>> *', all => all.filter(element =>
        element.matches('[data-zev]') || element.getRootNode() != document).length);
    assert.ok(count <= 10 + 3 * 10, String(count));
});

test('at most 50 submenus of a box are built ahead', async () => {
    await lab.show({ ...counting, definition: broad(60, 2) });
    await waitMade(60 + 50 * 2);
    await pause(300);
    assert.equal(await made(), 60 + 50 * 2);
    await hover(page, 'T2');
    await waitShown(page, 'S2-1');
});

test('a submenu of more than 200 items is built when it is opened', async () => {
    await lab.show({ ...counting, definition: broad(1, 201) });
    await pause(300);
    assert.equal(await made(), 1);
    await hover(page, 'T1');
    await waitShown(page, 'S1-1');
    assert.equal(await made(), 202);
});

test('items that a script adds until the page has loaded are in the menu', async () => {
    await lab.show({ ...counting, after: `<script>addEventListener('load', () =>
        zevmenu.AddItem('Late', '', ''));</script>` });
    await waitMade(8);
    await hover(page, 'Contact');
    await waitShown(page, 'Late');
});

test('an idle menu, closed or open, asks for nothing', async () => {
    await lab.show({ ...counting, definition: nested });
    await waitMade(7);
    const asked = () => page.evaluate(() => asked);
    await pause(300);           // the page has loaded by then on a busy machine, too
    assert.ok(await asked() > 0);
    const closed = await asked();
    await pause(500);
    assert.equal(await asked(), closed);
    await hover(page, 'Products');
    await waitMade(9);
    const open = await asked();
    await pause(500);
    assert.equal(await asked(), open);
});
