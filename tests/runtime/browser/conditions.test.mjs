// SPDX-License-Identifier: MIT
// The menu for visitors with special wishes, on paper and on a phone.
import assert from 'node:assert/strict';
import { after, afterEach, before, test } from 'node:test';
import { boxRect, engine, hover, nested, printedColours, shown, startLab, style, waitShown }
    from './support.mjs';

let lab, page;
before(async () => {
    lab = await startLab();
    page = lab.page;
});
after(() => lab.close());
afterEach(() => assert.deepEqual(page.errors, []));

async function inLab(options, body) {
    const special = await startLab(options);
    try {
        await body(special, special.page);
        assert.deepEqual(special.page.errors, []);
    } finally {
        await special.close();
    }
}

test('ffade does nothing for visitors who want less motion', () =>
    inLab({ reducedMotion: true }, async (lab, page) => {
        await lab.show({ definition: nested.replace("ZEVMenu('2');", "ZEVMenu('2'); zevmenu.ffade = '5';") });
        await hover(page, 'Products');
        await waitShown(page, 'Boats');
        assert.equal(await style(page, 'Boats', 'opacity', 'ul'), '1');
    }));

test('a submenu is whole on a page 320 pixels wide', async () => {
    await lab.show({ width: 320 });
    await hover(page, 'Products', 'Boats', 'Kayaks', 'Sea kayaks');
    for (const name of ['Boats', 'Kayaks', 'Sea kayaks']) {
        const box = await boxRect(page, name);
        assert.ok(box.left >= 0 && box.right <= 320.1, `${name}: ${JSON.stringify(box)}`);
    }
});

const coloured = nested.replace("ZEVMenu('0');", "ZEVMenu('0'); zevmenu.nbgcolor = '#336699';")
    .replace("ZEVMenu('2');", "ZEVMenu('2'); zevmenu.nbgcolor = '#993366';");

const cannotPrint = engine == 'webkit' && 'its driver cannot print; see the next test';

test('printing shows the top menu only', { skip: cannotPrint }, async () => {
    await lab.show({ definition: coloured });
    await hover(page, 'Products', 'Boats');
    assert.equal(await shown(page, 'Home', 'Boats'), 'Home Boats');
    const colours = await printedColours(page);
    assert.ok(colours.has('51 102 153'), [...colours].join('; '));
    assert.ok(!colours.has('153 51 102'), [...colours].join('; '));
});

test('the rules for paper, put in force on the screen, show the top menu only', async () => {
    await lab.show();
    await hover(page, 'Products', 'Boats');
    assert.equal(await shown(page, 'Home', 'Boats'), 'Home Boats');
    await page.evaluate(() => document.querySelectorAll('[data-zev]').forEach(({ shadowRoot }) => {
        for (const { media } of shadowRoot.adoptedStyleSheets.flatMap(sheet => [...sheet.cssRules])) {
            if (media?.mediaText == 'print') media.mediaText = 'screen';
        }
    }));
    assert.equal(await shown(page, 'Home', 'Boats'), 'Home');
});

const skip = engine == 'webkit' && 'WebKit on Linux forces no colours';

test('with forced colours every item can still be told from its background', { skip }, () =>
    inLab({ forcedColours: true }, async (lab, page) => {
        await lab.show();
        assert.ok(await page.evaluate(() => matchMedia('(forced-colors: active)').matches));
        await hover(page, 'Products', 'Boats');
        for (const name of ['Home', 'Products', 'Boats', 'Oars']) {
            assert.notEqual(await style(page, name, 'color'), await style(page, name, 'backgroundColor'), name);
        }
    }));
