// SPDX-License-Identifier: MIT
// Clicks in a frame of the menu's page, around the frame that holds the menu, and beside it.
import assert from 'node:assert/strict';
import { after, afterEach, before, test } from 'node:test';
import { hover, nested, pageText, startLab, until, waitGone, waitShown } from './support.mjs';

let lab, page;
before(async () => {
    lab = await startLab();
    page = lab.page;
    // The same server under another name is another site to the browser.
    foreign = lab.origin.replace('127.0.0.1', 'localhost');
});
after(() => lab.close());
afterEach(() => assert.deepEqual([page.errors, page.warnings], [[], []]));
let foreign;

// So that only a click closes.
const lasting = nested.replace('closedelay = 300', 'closedelay = 60000');
const frameStyle = 'style="position: absolute; left: 300px; top: 200px; width: 400px; height: 300px"';
const text = '<!DOCTYPE html><input id="field" style="margin: 20px; width: 200px"><p>Text</p>';

async function showWithFrame(origin) {
    lab.files.set('/site/text.html', text);
    await lab.show({ definition: lasting, after: `<iframe ${frameStyle} src="${origin}/site/text.html"></iframe>` });
}

for (const site of ['the same site', 'another site']) {
    const origin = () => site == 'the same site' ? lab.origin : foreign;
    test(`a click into a frame of ${site} closes the menu and gives the focus to what was clicked`, async () => {
        await showWithFrame(origin());
        await page.mouse.click(100, 500);
        // Once with the focus in the page, once, if the frame tells of it, with the focus in the frame already.
        for (let times = 0; times < (site == 'the same site' ? 2 : 1); times++) {
            await hover(page, 'Products', 'Boats');
            await waitShown(page, 'Canoes');
            await page.mouse.click(300 + 60, 200 + 30);
            await waitGone(page, 'Boats');
            assert.equal(await page.evaluate(() => document.activeElement.tagName), 'IFRAME');
        }
    });

    test(`a click into a frame of ${site} closes a menu that a key opened`, async () => {
        await showWithFrame(origin());
        await page.keyboard.press('Tab');
        for (const key of ['ArrowRight', 'ArrowDown', 'ArrowRight']) await page.keyboard.press(key);
        await waitShown(page, 'Canoes');
        await page.mouse.click(300 + 60, 200 + 30);
        await waitGone(page, 'Boats');
        assert.equal(await page.evaluate(() => document.activeElement.tagName), 'IFRAME');
    });
}

// Shows a page that holds the menu in a frame of its own; what the frame's window says is asked with inFrame().
async function showInFrame(origin) {
    lab.files.set('/site/menu.js', lasting);
    lab.files.set('/site/framed.html', pageText({}));
    lab.files.set('/site/text.html', text);
    lab.files.set('/site/outer.html', `<!DOCTYPE html><title>Outer</title>
        <input id="outer" style="position: absolute; left: 20px; top: 400px">
        <iframe id="menu" style="position: absolute; left: 0; top: 0; width: 400px; height: 300px"
            src="${origin}/site/framed.html"></iframe>
        <iframe id="beside" style="position: absolute; left: 450px; top: 0; width: 300px; height: 300px"
            src="text.html"></iframe>`);
    await page.setViewport({ width: 800, height: 600 });
    await page.mouse.move(790, 590);
    await page.goto(lab.origin + '/site/outer.html');
}

// In the outer page: whether the items in the frame are shown.
function look(...names) {
    const hosts = [...document.getElementById('menu').contentDocument?.querySelectorAll('[data-zev]') || []];
    return names.filter(name => hosts.some(host =>
        host.shadowRoot.querySelector(`a[aria-label="${name}"]`)?.getClientRects().length)).join(' ');
}

// [where, x, y]
const outside = [['the page around its frame', 100, 410], ['the frame beside it', 510, 30]];

for (const [where, x, y] of outside) {
    for (const how of ['the mouse', 'a key']) {
        test(`a click in ${where} closes a menu in a frame that ${how} opened`, async () => {
            await showInFrame(lab.origin);
            await until(() => page.evaluate(() => !!document.getElementById('menu').contentWindow.ZEVMenu?.shared.sums),
                'the library');
            if (how == 'the mouse') {
                const at = await page.evaluate(() => document.getElementById('menu').contentDocument
                    .querySelector('[data-zev]').shadowRoot.querySelectorAll('a')[1].getBoundingClientRect().toJSON());
                await page.mouse.move(at.left + 5, at.top + 5);
                await page.mouse.move(at.left + 10, at.top + 8);
            } else {
                await page.evaluate(() => document.getElementById('menu').contentWindow.focus());
                await page.evaluate(() => document.getElementById('menu').contentDocument
                    .querySelector('[data-zev]').shadowRoot.querySelectorAll('a')[1].focus());
                await page.keyboard.press('ArrowDown');
            }
            await until(() => page.evaluate(look, 'Boats'), 'the submenu');
            await page.mouse.click(x, y);
            await until(async () => !await page.evaluate(look, 'Boats'), 'the submenu to be gone');
            const id = where == 'the frame beside it' ? 'beside' : 'outer';
            assert.equal(await page.evaluate(() => document.activeElement.id), id);
        });
    }
}

test('a menu in a frame of another site does not take the focus back from what was clicked outside', async () => {
    await showInFrame(foreign);
    await page.mouse.click(200, 250);
    for (const key of ['Tab', 'ArrowRight', 'ArrowDown']) await page.keyboard.press(key);
    await page.mouse.click(100, 410);
    await page.keyboard.press('a');
    assert.equal(await page.$eval('#outer', outer => document.activeElement.id + ' ' + outer.value), 'outer a');
});

test('the menu leaves the pages of other frames as they were when it has closed', async () => {
    await showWithFrame(lab.origin);
    await page.evaluate(() => {
        const other = document.querySelector('iframe').contentDocument, { addEventListener, removeEventListener } = other;
        document.heard = 0;
        other.addEventListener = function (...args) { document.heard++; addEventListener.apply(other, args); };
        other.removeEventListener = function (...args) { document.heard--; removeEventListener.apply(other, args); };
    });
    await hover(page, 'Products', 'Boats');
    await waitShown(page, 'Canoes');
    assert.ok(await page.evaluate(() => document.heard) > 0);
    await page.keyboard.press('Escape');
    await waitGone(page, 'Boats');
    assert.equal(await page.evaluate(() => document.heard), 0);
});
