// SPDX-License-Identifier: MIT
// What a visitor can do before the second file of the library has arrived.
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { join } from 'node:path';
import { after, afterEach, before, test } from 'node:test';
import { hover, libraryFolder, nested, pageText, rect, shown, startLab, style, until, waitShown }
    from './support.mjs';

let lab, page;
before(async () => {
    lab = await startLab({ awaitsLoad: false });
    page = lab.page;
});
after(() => lab.close());
afterEach(() => assert.deepEqual(page.errors, []));

// Shows a page whose renderer has been asked for, and gives a function that lets it arrive.
async function showWithLateRenderer(definition = nested, width = 800) {
    let isAsked = false, arrive;
    const arrival = new Promise(resolve => { arrive = resolve; });
    const read = name => readFileSync(join(libraryFolder, name), 'utf8');
    lab.files.set('/late/zevmenu_loader.js', read('zevmenu_loader.js'));
    lab.files.set('/late/zevmenu_dom.js', async () => {
        isAsked = true;
        await arrival;
        return read('zevmenu_dom.js');
    });
    lab.files.set('/site/menu.js', definition);
    lab.files.set('/site/late.html', pageText({ library: '/late/', before:
        `<a id="link" href="" onmouseover="ZEVMenuOpen('zev1', '3', event)">Menu</a>
        <a id="bare" href="boats.html" data-zev-popup="2i1">Boats</a>` }));
    await page.setViewport({ width, height: 600 });
    await page.mouse.move(width - 1, 599);
    await page.goto(lab.origin + '/site/late.html', { waitUntil: 'domcontentloaded' });
    await until(() => isAsked, 'the renderer to be asked for');
    return arrive;
}

test('the top menu is drawn before the renderer has arrived, and an early hover opens when it has', async () => {
    const arrive = await showWithLateRenderer();
    await hover(page, 'Products');
    assert.equal(await page.evaluate(() => ZEVMenu.shared.sums), undefined);
    assert.notEqual(await style(page, 'Products', 'backgroundColor'), await style(page, 'Home', 'backgroundColor'));
    assert.equal(await shown(page, 'Boats', 'Map'), '');
    arrive();
    await waitShown(page, 'Boats');
});

test('an early pop-up opens when the renderer has arrived', async () => {
    const arrive = await showWithLateRenderer();
    await until(() => page.$('#link'), 'the link');
    await page.hover('#link');
    assert.equal(await shown(page, 'Map'), '');
    arrive();
    await waitShown(page, 'Map');
});

test('the pop-up of a link without handlers opens when the renderer has arrived and the mouse is there', async () => {
    const arrive = await showWithLateRenderer();
    await until(() => page.$('#bare'), 'the link');
    await page.hover('#bare');
    assert.equal(await shown(page, 'Canoes'), '');
    arrive();
    await waitShown(page, 'Canoes');
});

test('an early click on the button of a folded menu opens it when the renderer has arrived', async () => {
    const arrive = await showWithLateRenderer('zev_state.fold = 600;' + nested, 320);
    await until(() => shown(page, 'Site menu'), 'the button');
    const { x, y } = await rect(page, 'Site menu');
    await page.mouse.click(x + 5, y + 5);
    assert.equal(await shown(page, 'Home'), '');
    arrive();
    await waitShown(page, 'Home');
});
