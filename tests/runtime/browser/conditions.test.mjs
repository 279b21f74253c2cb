// The menu for visitors with special wishes, on paper and on a phone.
import assert from 'node:assert/strict';
import { test } from 'node:test';
import { boxRect, engine, hover, nested, printedColours, shown, startLab, style, waitShown }
    from './support.mjs';

async function inLab(options, body) {
    const lab = await startLab(options);
    try {
        await body(lab, lab.page);
        assert.deepEqual(lab.page.errors, []);
    } finally {
        await lab.close();
    }
}

test('ffade does nothing for visitors who want less motion', () =>
    inLab({ reducedMotion: true }, async (lab, page) => {
        await lab.show({ definition: nested.replace("ZEVMenu('2');", "ZEVMenu('2'); zevmenu.ffade = '5';") });
        await hover(page, 'Products');
        await waitShown(page, 'Boats');
        assert.equal(await style(page, 'Boats', 'opacity', 'ul'), '1');
    }));

test('a submenu is whole on a page 320 pixels wide', () => inLab({}, async (lab, page) => {
    await lab.show({ width: 320 });
    await hover(page, 'Products', 'Boats', 'Kayaks', 'Sea kayaks');
    for (const name of ['Boats', 'Kayaks', 'Sea kayaks']) {
        const box = await boxRect(page, name);
        assert.ok(box.left >= 0 && box.right <= 320.1, `${name}: ${JSON.stringify(box)}`);
    }
}));

const coloured = nested.replace("ZEVMenu('0');", "ZEVMenu('0'); zevmenu.nbgcolor = '#336699';")
    .replace("ZEVMenu('2');", "ZEVMenu('2'); zevmenu.nbgcolor = '#993366';");

test('printing shows the top menu only', () => inLab({}, async (lab, page) => {
    await lab.show({ definition: coloured });
    await hover(page, 'Products', 'Boats');
    assert.equal(await shown(page, 'Home', 'Boats'), 'Home Boats');
    const colours = await printedColours(page);
    assert.ok(colours.has('51 102 153'), [...colours].join('; '));
    assert.ok(!colours.has('153 51 102'), [...colours].join('; '));
}));

// Only Chromium can be asked to show a page in the few colours that the visitor has chosen.
if (engine == 'chromium') {
    test('with forced colours every item can still be told from its background', () => inLab({}, async (lab, page) => {
        await lab.show();
        const session = await page.createCDPSession();
        await session.send('Emulation.setEmulatedMedia', { features: [{ name: 'forced-colors', value: 'active' }] });
        assert.ok(await page.evaluate(() => matchMedia('(forced-colors: active)').matches));
        await hover(page, 'Products', 'Boats');
        for (const name of ['Home', 'Products', 'Boats', 'Oars']) {
            assert.notEqual(await style(page, name, 'color'), await style(page, name, 'backgroundColor'), name);
        }
    }));
}
