// SPDX-License-Identifier: MIT
// What axe-core, a checker of accessibility, says of the menu: nothing, whatever is open.
import axe from 'axe-core';
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { join } from 'node:path';
import { after, afterEach, before, test } from 'node:test';
import { hover, libraryFolder, nested, source, startLab, waitGone, waitReady, waitShown } from './support.mjs';

let lab, page;
before(async () => {
    lab = await startLab();
    page = lab.page;
    lab.files.set('/axe.js', axe.source);
    for (const [name, colour] of [['out', 'navy'], ['over', 'maroon']]) {
        lab.files.set(`/site/${name}.svg`, `<svg xmlns="http://www.w3.org/2000/svg" width="60" height="20">
            <rect width="60" height="20" fill="${colour}"/></svg>`);
    }
});
after(() => lab.close());
afterEach(() => assert.deepEqual(page.errors, []));

/*
 * What axe-core finds in the page: { mistakes, unsure, looked }. The first two are texts, one for each element
 * that breaks a rule or of which axe-core is not sure; `looked` counts the menu items that passed the rule about
 * names of roles, so that a menu it did not look into is noticed.
 */
function check() {
    return page.evaluate(async () => {
        if (!window.axe) {
            await new Promise((resolve, reject) => {
                const script = document.createElement('script');
                Object.assign(script, { src: '/axe.js', onload: resolve, onerror: reject });
                document.head.append(script);
            });
        }
        const { violations, incomplete, passes } = await window.axe.run(document);
        const texts = rules => rules.flatMap(({ id, nodes }) =>
            nodes.map(node => `${id}: ${node.target.join(' ')}: ${node.html}: ${node.failureSummary}`));
        const roles = passes.find(rule => rule.id == 'aria-roles');
        const looked = roles ? roles.nodes.filter(({ html }) => /^<a .*role="menuitem"/.test(html)).length : 0;
        return { mistakes: texts(violations), unsure: texts(incomplete), looked };
    });
}

// Checks the page, in which that many menu items are to be seen.
async function assertAccessible(items) {
    const { mistakes, unsure, looked } = await check();
    assert.deepEqual([...mistakes, ...unsure], []);
    assert.equal(looked, items);
}

// The menu as part of a page that is itself in order.
const tidy = { before: '<header><h1>Boats</h1><nav>', after: '</nav></header><main><p>Text</p></main>' };

const rollovers = nested.replace(/AddItem\('(.*)', '(.*)', ''\)/g, "AddRollover('$1.html', 'out.svg', 'over.svg', '')");

// [menu, definition, page]
const menus = [
    ['a row', nested, {}],
    ['a list', nested.replace('columns = 10', 'columns = 1').replace("'bottom'", "'right'"), {}],
    ['a grid', nested.replace('columns = 10', 'columns = 2'), {}],
    ['rollovers', rollovers, {}],
    ['HTML around captions, dividers, borders', `zev_state.htmlBefore = '<b>&raquo;</b>'; zev_state.divider = '|';
        zev_state.hspacing = 9; zev_state.itemborder = '1px solid red';` + nested, {}],
    ['a right-to-left page', nested, { html: '<html lang="ar" dir="rtl">' }],
    ['a page without other landmarks than the main one', nested, {
        before: '<main><h1>Boats</h1></main>', after: '' }],
];

for (const [menu, definition, options] of menus) {
    test(`axe-core finds nothing in ${menu}: closed, open, deeply open, closed again`, async () => {
        await lab.show({ ...tidy, ...options, definition });
        await assertAccessible(3);
        await hover(page, 'Products');
        await waitShown(page, 'Boats');
        await assertAccessible(5);
        await hover(page, 'Boats', 'Kayaks');
        await waitShown(page, 'Sea kayaks');
        await assertAccessible(8);
        await page.keyboard.press('Escape');
        await waitGone(page, 'Boats');
        await assertAccessible(3);
    });
}

test('axe-core finds nothing in a menu used by keyboard', async () => {
    await lab.show({ ...tidy, after: tidy.after.replace('Text', '<a href="#">after</a>') });
    await page.keyboard.press('Tab');
    await assertAccessible(3);
    for (const key of ['ArrowRight', 'ArrowDown', 'ArrowRight']) await page.keyboard.press(key);
    await waitShown(page, 'Canoes');
    await assertAccessible(7);
});

test('axe-core finds nothing in a submenu that is higher than the window', async () => {
    await lab.show({ ...tidy, definition: `zevmenu = new ZEVMenu('0'); zevmenu.AddItem('Top', '', '');
        zevmenu = new ZEVMenu('1');
        for (let i = 1; i <= 60; i++) zevmenu.AddItem('Item ' + i, '', '');` });
    await hover(page, 'Top');
    await waitShown(page, 'Item 1');
    const { mistakes, unsure, looked } = await check();
    assert.deepEqual(mistakes, []);
    assert.equal(looked, 61);
    // It cannot know that arrow keys scroll, and does not see the text that the submenu covers.
    const expected = /^scrollable-region-focusable: .*ul|^color-contrast: (h1|p): .*overlapped/s;
    assert.deepEqual(unsure.filter(text => !expected.test(text)), []);
});

// [pop-up, what stands in the page, what opens it]
const popups = [
    ["a link's pop-up under the mouse", `<a id="link" href="" onmouseover="ZEVMenuOpen('zev1', '2', event)">Menu</a>`,
        () => page.hover('#link')],
    ["a link's pop-up opened by Enter", `<a id="link" href="" onmouseover="ZEVMenuOpen('zev1', '2', event)">Menu</a>`,
        async () => { for (const key of ['Tab', 'Enter']) await page.keyboard.press(key); }],
    ['a pop-up of what is no link', `<span id="link" onclick="ZEVMenuOpen('zev1', '2', event)">Menu</span>`,
        async () => { for (const key of ['Tab', 'Enter']) await page.keyboard.press(key); }],
    ['a pop-up at coordinates', '', () => page.evaluate(() => ZEVMenuOpen('zev1', '2', 100, 200))],
];

for (const [popup, text, open] of popups) {
    test(`axe-core finds nothing in ${popup}: closed, open, deeply open`, async () => {
        await lab.show({ before: `<main><h1>Boats</h1><p>${text}</p></main>`, place: source('menu.js') });
        assert.deepEqual((await check()).mistakes, []);
        await open();
        await waitShown(page, 'Boats');
        await assertAccessible(2);
        await hover(page, 'Boats');
        await waitShown(page, 'Canoes');
        await assertAccessible(4);
    });
}

async function showPreview(definition) {
    for (const name of ['zevmenu.html', 'zevmenu_loader.js', 'zevmenu_dom.js']) {
        lab.files.set('/preview/' + name, readFileSync(join(libraryFolder, name), 'utf8'));
    }
    lab.files.set('/preview/orlet_temp.js', definition);
    await page.setViewport({ width: 800, height: 600 });
    await page.mouse.move(799, 599);
    await page.goto(lab.origin + '/preview/zevmenu.html');
    await waitReady(page);
}

test('axe-core finds nothing in the preview page, closed or open', async () => {
    await showPreview(nested);
    await assertAccessible(3);
    await hover(page, 'Products');
    await waitShown(page, 'Boats');
    const { mistakes, looked } = await check();
    assert.deepEqual(mistakes, []);
    assert.equal(looked, 5);
});

test('axe-core finds nothing in a pop-up of the preview page', async () => {
    await showPreview(nested);
    await page.hover('#links a');
    await waitShown(page, 'Boats');
    const { mistakes, looked } = await check();
    assert.deepEqual(mistakes, []);
    assert.equal(looked, 5);
});

test('axe-core finds nothing in the preview page of an empty menu', async () => {
    await showPreview('');
    assert.deepEqual((await check()).mistakes, []);
});

// ---- The check itself ----

function inBar(name, value, selector) {
    return page.evaluate((name, value, selector) => {
        const root = document.querySelector('[data-zev=bar]').shadowRoot;
        root.querySelector(selector).setAttribute(name, value);
    }, name, value, selector);
}

// [what is broken, attribute, value, element of the top menu, what axe-core says]
const damages = [
    ['an unknown role', 'role', 'menuthing', 'a', /^aria-roles: /],
    ['a role of lists in a menu', 'role', 'listitem', 'li', /^aria-required-children: /],
    ['an unknown state', 'aria-expanded', 'maybe', 'a', /^aria-valid-attr-value: /],
    ['text that is hard to see', 'style', 'color: #222', 'a', /^color-contrast: /],
];

for (const [what, name, value, selector, mistake] of damages) {
    test(`axe-core sees ${what} in the menu`, async () => {
        await lab.show(tidy);
        await inBar(name, value, selector);
        const { mistakes } = await check();
        assert.ok(mistakes.some(text => mistake.test(text)), mistakes.join('\n') || 'nothing');
    });
}
