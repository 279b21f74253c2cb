// SPDX-License-Identifier: MIT
// The menu in parts of a page that are hidden for a time: drawers, tabs, pages that wait for their fonts, paper.
import assert from 'node:assert/strict';
import { after, afterEach, before, test } from 'node:test';
import { engine, focus, hover, nested, printedColours, shown, source, script, startLab, style, waitShown }
    from './support.mjs';

let lab, page;
before(async () => {
    lab = await startLab();
    page = lab.page;
});
after(() => lab.close());
afterEach(() => assert.deepEqual([page.errors, page.warnings], [[], []]));

const place = `<div id="drawer">${source('menu.js') + script('ZEVDisplayMenu();')}</div>`;
const withPicture = nested.replace("zevmenu = new ZEVMenu('2');",
    "zevmenu.AddRollover('garden.html', '/samples/images/plants_out.svg', '/samples/images/plants_over.svg', '');\n$&");

async function isVisible(name) {
    return await style(page, name, 'visibility') == 'visible';
}

// [what hides the menu, page's style, script that shows it again]
const hidings = [
    ['a drawer that is closed', '#drawer { visibility: hidden }',
        "document.getElementById('drawer').style.visibility = 'visible'"],
    ['a body that waits for its fonts', 'body { visibility: hidden }',
        "document.body.style.visibility = 'visible'"],
    ['a rule for everything in the body', 'body * { visibility: hidden } body.ready * { visibility: visible }',
        "document.body.className = 'ready'"],
];

for (const [what, rules, showAgain] of hidings) {
    for (const where of ['in an element', 'in the body itself']) {
        if (where == 'in the body itself' && /drawer/.test(what)) continue;
        test(`a menu ${where} is hidden with ${what}, and there again when that is`, async () => {
            await lab.show({ definition: withPicture, head: `<style>${rules}</style>`,
                ...where == 'in an element' ? { place } : {} });
            for (const name of ['garden', 'Home', 'Products']) assert.ok(!await isVisible(name), name);
            await page.mouse.move(90, 20);
            await page.keyboard.press('Tab');
            assert.equal(await focus(page), 'BODY');
            assert.equal(await shown(page, 'Boats', 'Map'), '');
            await page.evaluate(showAgain);
            for (const name of ['garden', 'Home', 'Products']) assert.ok(await isVisible(name), name);
            await hover(page, 'Products', 'Boats');
            await waitShown(page, 'Canoes');
            assert.ok(await isVisible('Canoes'));
        });
    }
}

test('the picture of an item whose submenu is open goes with its drawer', async () => {
    await lab.show({ place, definition: withPicture.replace("ZEVMenu('3')", "ZEVMenu('4')") });
    await hover(page, 'garden');
    await waitShown(page, 'Map');
    await page.evaluate(() => { document.getElementById('drawer').style.visibility = 'hidden'; });
    const pictures = await page.$$eval('>>> img', images => images.map(image => getComputedStyle(image).visibility));
    assert.deepEqual(pictures, ['hidden', 'hidden']);
});

const coloured = nested.replace("ZEVMenu('0');", "ZEVMenu('0'); zevmenu.nbgcolor = '#336699';");
const cannotPrint = engine == 'webkit' && 'its driver cannot print';

for (const [what, rule, isPrinted] of [['everything', 'body * { visibility: hidden }', false],
    ['the text only', 'p { visibility: hidden }', true]]) {
    test(`a page that hides ${what} from paper prints ${isPrinted ? 'the' : 'no'} menu`, { skip: cannotPrint }, async () => {
        await lab.show({ definition: coloured, head: `<style>@media print { ${rule} }</style>` });
        assert.equal((await printedColours(page)).has('51 102 153'), isPrinted);
    });
}
