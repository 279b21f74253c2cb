// SPDX-License-Identifier: MIT
// The page's style and the menu's: neither changes the other, whatever the page's own style sheet does. Compared
// are all computed styles of every element of the menu, and of the page.
import assert from 'node:assert/strict';
import { after, afterEach, before, test } from 'node:test';
import { hover, nested, script, source, startLab, until, waitShown } from './support.mjs';

let lab, page;
before(async () => {
    lab = await startLab();
    page = lab.page;
    lab.files.set('/site/out.svg', '<svg xmlns="http://www.w3.org/2000/svg" width="60" height="20"/>');
});
after(() => lab.close());
afterEach(() => assert.deepEqual(page.errors, []));

// The menu has every kind of element: captions with HTML, dividers, a rollover, a grid.
const definition = nested.replace("zevmenu.AddItem('Home'",
    "zevmenu.hspacing = 8; zevmenu.divider = '|'; zevmenu.AddItem('<b>H</b>o<i>me</i>'").replace(
    "zevmenu.AddItem('Sea kayaks'", `zevmenu.columns = 2; zevmenu.menuborder = '2px solid red';
    zevmenu.AddRollover('roll.html', 'out.svg', 'out.svg', ''); zevmenu.AddItem('Third', '', ''); $&`);

// What stands in the page around the menu, with the names that the menu uses inside itself.
const around = {
    before: '<div id="frame">', after: `</div><ul class="list bar grid"><li><a href="#" role="menuitem">own</a>
        <span class="divider">|</span><img class="out" alt="" src="out.svg"></li></ul><div hidden>hidden</div>`,
};

/*
 * Runs in the page: [name, look] of every element of the menu. A look is all its styles and its rectangle, in
 * pixels from the corner of the box around it; variables count by what they do.
 */
function menuLook() {
    const found = [];
    for (const host of document.querySelectorAll('[data-zev]')) {
        for (const box of host.shadowRoot.querySelectorAll('ul:not([hidden])')) {
            const origin = box.getBoundingClientRect();
            for (const element of [box, ...box.querySelectorAll('*')]) {
                const { left, top, width, height } = element.getBoundingClientRect();
                const style = getComputedStyle(element), look = {};
                for (const name of style) if (!name.startsWith('--')) look[name] = style.getPropertyValue(name);
                look.rectangle = [left - origin.left, top - origin.top, width, height].map(Math.round).join();
                found.push([element.tagName + ' ' + element.textContent.trim(), look]);
            }
        }
    }
    return found;
}

// Runs in the page: [name, styles] of every element of the page's own; widths and heights are among them.
function pageLook() {
    return Array.from(document.querySelectorAll('html, body, body *:not([data-zev]):not(script)'), element => {
        const style = getComputedStyle(element), look = {};
        for (const name of style) look[name] = style.getPropertyValue(name);
        return [element.tagName + '.' + element.className, look];
    });
}

// Fails with the first differences between two looks.
function assertSame(actual, expected, apart = []) {
    assert.deepEqual(actual.map(([name]) => name), expected.map(([name]) => name));
    const differences = [];
    actual.forEach(([name, look], index) => {
        for (const [property, value] of Object.entries(look)) {
            const wanted = expected[index][1][property];
            if (value != wanted && !apart.includes(property)) {
                differences.push(`${name}: ${property} is ${value}, not ${wanted}`);
            }
        }
    });
    assert.deepEqual(differences.slice(0, 20), []);
}

async function showOpen(options) {
    await lab.show({ ...around, definition, ...options });
    await hover(page, 'Products', 'Boats', 'Kayaks');
    await waitShown(page, 'Sea kayaks');
    await until(() => page.$eval('[data-zev=layer]', ({ shadowRoot }) => Array.from(shadowRoot.querySelectorAll('ul'))
        .every(box => !box.getAnimations?.().length)), 'the opening to be done');
    await until(() => page.$$eval('>>> img', images => images.every(image => image.naturalWidth)), 'the images');
}

// No computed style tells of the lines that a page draws through all its text.
test('a page that underlines and strikes its text does not do so with the menu', async () => {
    const pictures = [];
    for (const line of ['none', 'underline', 'line-through 3px red']) {
        await lab.show({ definition, head: `<style>html { text-decoration: ${line} }</style>` });
        await until(() => page.$$eval('>>> img', images => images.every(image => image.naturalWidth)), 'the images');
        const clip = await page.$eval('>>> [role=menubar]', box => {
            const { x, y, width, height } = box.getBoundingClientRect();
            return { x, y, width, height };
        });
        const picture = await page.screenshot({ clip, captureBeyondViewport: false });
        pictures.push(Buffer.from(picture).toString('base64'));
    }
    assert.ok(pictures[0].length > 1000);
    assert.ok(pictures.every(picture => picture == pictures[0]));
});

const elements = 'html,body,div,ul,li,a,span,img,b,i';

// [what the style sheet does, style sheet]
const sheets = [
    ['takes every default away', `*, *::before, *::after { all: unset }`],
    ['goes back to defaults', `* { all: revert; box-sizing: border-box; margin: 0; padding: 0 }`],
    ['resets like most sites', `html { line-height: 1.15; -webkit-text-size-adjust: 100% }
        *, ::before, ::after { box-sizing: border-box; border: 0 solid #e5e7eb; margin: 0; padding: 0 }
        ol, ul { list-style: none } a { color: inherit; text-decoration: inherit } body { line-height: inherit }
        img, svg { display: block; vertical-align: middle; max-width: 100%; height: auto } [hidden] { display: none }`],
    ['styles every element by name, loudly', `ul, li, a, span, img, b, i { margin: 9px !important;
        padding: 9px !important; color: red !important; display: inline !important; float: right !important;
        list-style: square !important; background: yellow !important; width: 3px !important; opacity: 0.1 !important;
        text-transform: uppercase !important; position: static !important; visibility: hidden !important }
        a:hover, li:hover, ul:hover { color: lime !important; font-size: 40px !important }`],
    ['styles every div, loudly', `div { display: none !important; width: 3px !important; opacity: 0.1 !important;
        transform: scale(3) !important; overflow: hidden !important; position: static !important;
        visibility: hidden !important; filter: blur(9px) !important; clip-path: inset(50%) !important }
        #frame { display: block !important; visibility: visible !important; width: auto !important;
        opacity: 1 !important; transform: none !important; overflow: visible !important; filter: none !important;
        clip-path: none !important }`],
    ['has a huge root font', ':root { font-size: 60px; line-height: 4 } body { font-size: 2rem }'],
    ['sets all that is inherited', `body { font: italic bold small-caps 30px/3 serif; letter-spacing: 5px;
        word-spacing: 9px; text-align: center; text-transform: uppercase; text-indent: 40px; white-space: pre;
        color: green; cursor: wait; list-style: square inside; visibility: visible; text-shadow: 2px 2px red;
        hyphens: auto; word-break: break-all; overflow-wrap: anywhere; tab-size: 20; quotes: none;
        border-collapse: collapse; border-spacing: 9px; caption-side: bottom; empty-cells: hide; orphans: 5;
        font-variant-caps: all-small-caps; font-stretch: condensed; font-kerning: none; accent-color: red;
        caret-color: red; pointer-events: auto; user-select: none; text-underline-offset: 9px; line-break: anywhere;
        font-feature-settings: "smcp"; text-orientation: upright; -webkit-text-stroke: 1px red; color-scheme: dark }`],
    ['lays the body out in a grid', `body { display: grid; grid-template-columns: 1fr 2fr; gap: 30px;
        align-items: end; justify-items: center } body > * { align-self: center; justify-self: end }`],
    ['lays the body out in a row', `body { display: flex; flex-direction: row-reverse; align-items: stretch }
        body > * { flex: 1 1 0; min-width: 0; margin: auto }`],
    ['moves and contains the page', `html { overflow-x: hidden } body { position: relative; margin: 60px 40px;
        padding: 20px; border: 5px solid red; transform: translate(10px, 20px); contain: layout; will-change: transform }`],
    ['filters the page', 'body { filter: saturate(1); perspective: 500px; isolation: isolate }'],
    ['names what the menu uses itself', `.list, .bar, .grid, .out, .over, .rollover, .divider, [role=menu],
        [role=menubar], [role=menuitem], [aria-expanded] { display: none !important; color: red !important }
        [role=navigation] { border: 9px solid red; padding: 30px; background: red }
        [data-zev] { display: none; border: 9px solid red; padding: 30px; font-size: 50px; opacity: 0.1 }`],
    ['uses layers and variables', `@layer reset { ${elements} { all: unset !important } }
        :root { --zev-padding: 40px; --zev-nbg: red; --zev-hbg: red; --zev-nft: red; --zev-hft: red; --zev-gap: 50px;
        --zev-space: 50px; --zev-border: 9px solid red;
        --zev-shadow: red }`],
    ['animates everything', `@keyframes grow { from { font-size: 90px } to { font-size: 91px } }
        ul, li, a, div { animation: grow 100s; transition: all 100s }`],
];

for (const [what, sheet] of sheets) {
    test(`the menu is the same in a page whose style sheet ${what}`, async () => {
        await showOpen({});
        const plain = await page.evaluate(menuLook);
        assert.ok(plain.length == 30 && plain.filter(([name]) => name.startsWith('A ')).length == 10, `${plain.length}`);
        await showOpen({ head: `<style>${sheet}</style>` });
        // Lengths that only place the box in the page differ with the page.
        assertSame(await page.evaluate(menuLook), plain, ['left', 'top', 'right', 'bottom', 'max-width',
            'inset-inline-start', 'inset-inline-end', 'inset-block-start', 'inset-block-end', 'max-inline-size']);
    });
}

test('the look of the menu tells of a style sheet that does reach it', async () => {
    await showOpen({});
    const plain = await page.evaluate(menuLook);
    await page.evaluate(() => {
        document.querySelector('[data-zev=bar]').shadowRoot.querySelector('a').style.letterSpacing = '1px';
    });
    const changed = await page.evaluate(menuLook);
    assert.throws(() => assertSame(changed, plain), /letter-spacing/);
});

test("the menu leaves the styles of the page's own elements alone, closed and open", async () => {
    const empty = { ...around, definition, place: '', loader: '<script>ZEVMenu = { shared: { sums: {} } };' +
        'ZEVCreateMenu = ZEVLoadMenu = () => {};</script>' };
    // The menu is out of the flow, so that it does not move what follows it.
    const out = '<div style="position:absolute">';
    await lab.show({ ...empty, place: `${out}</div>` });
    const without = await page.evaluate(pageLook);
    await lab.show({ ...around, definition, place: out + source('menu.js') + script('ZEVDisplayMenu();') + '</div>' });
    const apart = ['width', 'height', 'right', 'bottom', 'inline-size', 'block-size', 'inset-inline-end',
        'inset-block-end', 'perspective-origin', 'transform-origin'];
    const check = async () => {
        const look = await page.evaluate(pageLook);
        look.forEach(([name, style], index) => {
            // The element around the menu is as large as the menu.
            if (style.position == 'absolute') for (const property of apart) style[property] = without[index][1][property];
        });
        assertSame(look, without);
        assert.equal(await page.$$eval('style, link', sheets => sheets.length), 0);
    };
    await check();
    await hover(page, 'Products', 'Boats', 'Kayaks');
    await waitShown(page, 'Sea kayaks');
    await check();
    assert.equal(await page.evaluate(() => document.adoptedStyleSheets?.length || 0), 0);
});
