// SPDX-License-Identifier: MIT
// The menu for visitors with special wishes, on paper and on a phone.
import assert from 'node:assert/strict';
import { after, afterEach, before, test } from 'node:test';
import { boxRect, enforceMedia, engine, hover, nested, printedColours, rect, shown, startLab, style, waitShown }
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
    await enforceMedia(page, 'print');
    assert.equal(await shown(page, 'Home', 'Boats'), 'Home');
});

const skip = engine == 'webkit' && 'WebKit on Linux forces no colours';

// What a visitor tells things by where colours are forced: an edge of the box, the mark, the ring around the focus,
// each as [what it is, colour of it, colour it stands on].
function edges(page) {
    return page.evaluate(names => {
        const roots = [...document.querySelectorAll('[data-zev]')].map(host => host.shadowRoot);
        const find = name => roots.map(root => root.querySelector(`a[aria-label="${name}"]`)).find(Boolean);
        const canvas = getComputedStyle(document.documentElement).backgroundColor;
        const [opener, inside] = names.map(find), box = getComputedStyle(inside.closest('ul'));
        const mark = getComputedStyle(opener, '::before'), ring = getComputedStyle(inside);
        return [['edge', box.outlineStyle, box.outlineColor, canvas],
                ['mark', mark.borderTopStyle, mark.borderTopColor, getComputedStyle(opener).backgroundColor],
                ['ring', ring.outlineStyle, ring.outlineColor, ring.backgroundColor]];
    }, ['Products', 'Boats']);
}

test('with forced colours every item can still be told from its background', { skip }, () =>
    inLab({ forcedColours: true }, async (lab, page) => {
        await lab.show();
        assert.ok(await page.evaluate(() => matchMedia('(forced-colors: active)').matches));
        await hover(page, 'Products', 'Boats');
        for (const name of ['Home', 'Products', 'Boats', 'Oars']) {
            assert.notEqual(await style(page, name, 'color'), await style(page, name, 'backgroundColor'), name);
        }
    }));

test('with forced colours boxes have an edge, and marks and the focus can be seen', { skip }, () =>
    inLab({ forcedColours: true }, async (lab, page) => {
        await lab.show({ definition: "zev_state.menuborder = 'none';" + nested });
        for (const key of ['Tab', 'ArrowRight', 'ArrowDown']) await page.keyboard.press(key);
        await waitShown(page, 'Boats');
        for (const [what, line, colour, ground] of await edges(page)) {
            assert.equal(line, 'solid', what);
            assert.notEqual(colour, ground, what);
            assert.doesNotMatch(colour, /^rgba\(.*, 0\)$/, what);
        }
    }));

test('rows of text are at least 44 px high for a finger', { skip: engine == 'webkit' &&
    'WebKit on Linux has no coarse pointer; see the next test' }, () =>
    inLab({ coarsePointer: true }, async (lab, page) => {
        await lab.show({ width: 360, height: 568, hasTouch: true });
        assert.equal(await page.evaluate(() => matchMedia('(pointer:coarse)').matches), true);
        assert.ok((await rect(page, 'Home')).height >= 44);
    }));

test('the rule for a finger, put in force, makes rows of text 44 px high, and not those of pictures', async () => {
    await lab.show({ definition: nested + "zevmenu.AddRollover('picture.html', 'picture.svg', '', '');" });
    assert.ok((await rect(page, 'Home')).height < 44);
    await enforceMedia(page, '(pointer:coarse)');
    assert.ok((await rect(page, 'Home')).height >= 44);
    await hover(page, 'Contact');
    await waitShown(page, 'Map');
    assert.ok((await rect(page, 'Map')).height >= 44);
    assert.ok((await rect(page, 'picture')).height < 44);
});
