// SPDX-License-Identifier: MIT
// What tells a visitor which items open something, which are dead, which box is which, and where he is.
import assert from 'node:assert/strict';
import { after, afterEach, before, test } from 'node:test';
import { boxRect, focus, hover, isNamed, isShown, item, nested, pause, rect, shown, source, startLab, style,
    until, waitShown } from './support.mjs';

let lab, page;
before(async () => {
    lab = await startLab();
    page = lab.page;
});
after(() => lab.close());
afterEach(() => assert.deepEqual(page.errors, []));

// The quarter turns of an item's mark, as a visitor sees them: 0 to the right, 1 down; null without a mark.
async function pointing(name) {
    return (await item(page, name)).evaluate(link => {
        const { content, transform } = getComputedStyle(link, '::before');
        if (content == 'none') return null;
        const { a, b, c, d } = new DOMMatrix(transform);
        // The corner of the drawn angle is its upper right one.
        const x = a - c, y = b - d;
        return Math.abs(x) > Math.abs(y) ? x > 0 ? 'right' : 'left' : y > 0 ? 'down' : 'up';
    });
}

async function hoverShown(name, ...expected) {
    await hover(page, name);
    for (const other of expected) await waitShown(page, other);
}

test('items with a submenu have a mark that points to where it opens, others have none', async () => {
    await lab.show();
    assert.equal(await pointing('Products'), 'down');
    assert.equal(await pointing('Home'), null);
    await hoverShown('Products', 'Boats');
    assert.equal(await pointing('Boats'), 'right');
    assert.equal(await pointing('Oars'), null);
});

// [rule, definition, page, items that are hovered, the last one's mark before and while it is open]
const long = "zevmenu.AddItem('A submenu as wide as a submenu may be at times', '', '');";
const one = position => `zev_state.position = '${position}'; zevmenu = new ZEVMenu('0');
    zevmenu.AddItem('One', '', ''); zevmenu = new ZEVMenu('1'); ${long}`;
const turns = [
    ['a submenu on the right', one('right'), {}, 'right', 'right'],
    ['a submenu on the left', one('left'), { before: '<p style="position:absolute;left:50%">', after: '</p>' },
        'left', 'left'],
    ['a submenu above', one('top'), { before: '<p style="margin-top:300px">' }, 'up', 'up'],
    ['a submenu that is flipped to the left', one('right'), { before: '<div style="position:absolute;right:0">' },
        'right', 'left'],
    ['a submenu flipped to above', one('bottom'), { before: '<div style="position:absolute;bottom:0">' },
        'down', 'up'],
    ['right to left', one('right'), { html: '<html lang="ar" dir="rtl">' }, 'left', 'left'],
    ['right to left by style', one('right'), { head: '<style>body { direction: rtl }</style>' }, 'left', 'left'],
];

for (const [rule, definition, options, closed, open] of turns) {
    test(`the mark of ${rule} points ${closed}, and ${open} while it is open`, async () => {
        await lab.show({ definition, ...options });
        await until(async () => await pointing('One') == closed, `a mark that points ${closed}`);
        await hoverShown('One', 'A submenu as wide as a submenu may be at times');
        assert.equal(await pointing('One'), open);
        await page.keyboard.press('Escape');
        assert.equal(await pointing('One'), closed);
    });
}

test('in an accordion the mark of a closed item points to the end of the line, of an open one down', async () => {
    await lab.show({ definition: one('right').replace("'One'", "'One item of a menu that is wide too'"), width: 320 });
    const name = 'One item of a menu that is wide too';
    assert.equal(await pointing(name), 'right');
    await (await item(page, name)).evaluate(link => link.click());
    assert.equal(await pointing(name), 'down');
});

test('a mark is no part of the name, nor does it move the bar when the second file arrives', async () => {
    await lab.show();
    assert.ok(await isNamed(page, '>>> li:nth-child(2) > a', 'Products'));
    const before = await rect(page, 'Contact');
    await pause(200);
    assert.deepEqual(await rect(page, 'Contact'), before);
});

test('zev_state.marker none takes the marks away', async () => {
    await lab.show({ definition: "zev_state.marker = 'none';" + nested });
    assert.equal(await pointing('Products'), null);
    await hoverShown('Products', 'Boats');
    assert.equal(await pointing('Boats'), null);
});

test("a mark of one's own is shown as it is, its picture counted from the definition, and is no part of the name",
    async () => {
        lab.files.set('/site/js/marked.js', `zev_state.marker = '<img src="mark.svg" alt="more"><i>&gt;</i>';${nested}`);
        await lab.show({ place: `${source('js/marked.js')}<script>ZEVDisplayMenu();</script>` });
        assert.equal(await pointing('Products'), null);
        const mark = await (await item(page, 'Products')).evaluate(link => {
            const found = link.querySelector('[aria-hidden=true]');
            return [found.querySelector('img').src, found.querySelector('i').textContent];
        });
        assert.deepEqual(mark, [`${lab.origin}/site/js/mark.svg`, '>']);
        assert.ok(await isNamed(page, '>>> li:nth-child(2) > a', 'Products'));
        assert.equal(await (await item(page, 'Home')).evaluate(link => link.querySelector('[aria-hidden]')), null);
    });

test('a picture has no mark', async () => {
    await lab.show({ definition: `zevmenu = new ZEVMenu('0'); zevmenu.AddRollover('a.html', 'a_out.svg', '', '');
        zevmenu.AddItem('<img src="b.svg" alt="b">', '', '');
        zevmenu = new ZEVMenu('1'); zevmenu.AddItem('A', '', '');
        zevmenu = new ZEVMenu('2'); zevmenu.AddItem('B', '', '');` });
    assert.deepEqual([await pointing('a'), await pointing('b')], [null, null]);
});

// ---- Names ----

test('the menubar and its landmark have a name', async () => {
    await lab.show();
    assert.ok(await isNamed(page, '[data-zev=bar]', 'Site menu'));
    assert.ok(await isNamed(page, '>>> [role=menubar]', 'Site menu'));
    await lab.show({ definition: "zev_state.label = 'Boats & more';" + nested });
    assert.ok(await isNamed(page, '[data-zev=bar]', 'Boats & more'));
});

// [image, its item's name]
const images = [['boat_out.gif', 'boat'], ['boat-off.gif', 'boat'], ['img/boat_normal.png', 'boat'], ['boat_outing.gif',
    'boat outing'], ['out.gif', 'out']];

for (const [image, name] of images) {
    test(`an image ${image} is named ${name}`, async () => {
        await lab.show({ definition: `zevmenu = new ZEVMenu('0'); zevmenu.AddRollover('', '${image}', '', '');` });
        assert.ok(await item(page, name));
    });
}

// ---- The page that is shown ----

function current() {
    return page.$$eval('>>> [aria-current]', links =>
        links.map(link => `${link.getAttribute('aria-label')} ${link.getAttribute('aria-current')}`).join(', '));
}

test('the item of the page that is shown is told, and what leads there, also in submenus', async () => {
    await lab.show({ path: '/site/kayaks.html' });
    await until(async () => await current() == 'Products true', 'the current item');
    await hover(page, 'Products', 'Boats');
    await waitShown(page, 'Kayaks');
    assert.equal(await current(), 'Products true, Boats true, Kayaks page');
});

test('a fragment of the page does not count, a query does', async () => {
    await lab.show({ definition: nested.replace("'home.html'", "'page.html?a#b'").replace("'contact.html'", "'#map'") });
    await pause(300);
    assert.equal(await current(), '');
    await page.evaluate(() => history.replaceState(null, '', 'page.html?a#c'));
    await page.evaluate(() => window.ZEVLoadMenu());
    await until(async () => await current() == 'Home page', 'the current item');
});

test('after a change of the page by script the current item is looked up again', async () => {
    await lab.show({ path: '/site/home.html' });
    await until(async () => await current() == 'Home page', 'the current item');
    await page.evaluate(() => {
        history.replaceState(null, '', 'letter.html');
        window.ZEVLoadMenu();
    });
    await until(async () => await current() == 'Contact true', 'the current item');
});

// ---- Dead items, edges, lines ----

test('an item without link and submenu does not look like a link', async () => {
    await lab.show({ definition: `zevmenu = new ZEVMenu('0'); zevmenu.AddItem('Dead', '', '');
        zevmenu.AddItem('Link', 'a.html', ''); zevmenu.AddItem('Opener', '', '');
        zevmenu = new ZEVMenu('3'); zevmenu.AddItem('A', '', '');` });
    assert.notEqual(await style(page, 'Dead', 'cursor'), 'pointer');
    assert.equal(await style(page, 'Link', 'cursor'), 'pointer');
    assert.equal(await style(page, 'Opener', 'cursor'), 'pointer');
});

async function edge(name) {
    return [await style(page, name, 'outlineStyle', 'ul'), await style(page, name, 'outlineWidth', 'ul')].join(' ');
}

test('boxes of submenus have an edge, unless a border is written, none too', async () => {
    await lab.show({ definition: nested.replace("ZEVMenu('2i1');", "ZEVMenu('2i1'); zevmenu.menuborder = 'none';")
        .replace("ZEVMenu('3');", "ZEVMenu('3'); zevmenu.menuborder = '3px solid red';") });
    await hover(page, 'Products', 'Boats');
    await waitShown(page, 'Canoes');
    assert.equal(await edge('Boats'), 'solid 1px');
    assert.match(await edge('Canoes'), /none/);
    assert.match(await edge('Home'), /none/);
    await hoverShown('Contact', 'Map');
    assert.match(await edge('Map'), /none/);
});

test("the edge has something of the text's colour", async () => {
    await lab.show({ definition: "zev_state.nbgcolor = '#ff0000'; zev_state.nftcolor = '#00ff00';" + nested });
    await hoverShown('Products', 'Boats');
    assert.match(await style(page, 'Boats', 'outlineColor', 'ul'), /^(color\(srgb 0 1 0 \/|rgba\(0, 255, 0,)/);
});

test('the captions of a bar stand on one line when one needs a taller font', async () => {
    await lab.show({ definition: `zevmenu = new ZEVMenu('0'); zevmenu.columns = 5;
        zevmenu.AddItem('Start', '', ''); zevmenu.AddItem('Caf\\u00e9 & \\u65e5\\u672c', '', '');` });
    const lines = await page.$$eval('>>> li > a', links => links.map(link => {
        const range = document.createRange();
        range.setStart(link.firstChild, 0);
        range.setEnd(link.firstChild, 1);
        const { top, bottom } = range.getBoundingClientRect();
        return (top + bottom) / 2;
    }));
    assert.ok(Math.abs(lines[0] - lines[1]) < 0.6, lines.join(' '));
});

test('the focus ring is of two colours that differ from any, and leaves the text free', async () => {
    await lab.show({ before: '<a id="before" href="#">before</a>' });
    await page.keyboard.press('Tab');
    await page.keyboard.press('Tab');
    assert.equal(await focus(page), 'Home');
    assert.equal(await style(page, 'Home', 'outlineColor'), 'rgb(255, 255, 255)');
    assert.match(await style(page, 'Home', 'boxShadow'), /rgb\(0, 0, 0\) 0px 0px 0px 4px/);
    assert.equal(parseFloat(await style(page, 'Home', 'outlineOffset')), 0);
});

// ---- Time ----

const delayed = ms => `zev_state.opendelay = ${ms};` + nested;

test('a mouse that crosses the bar opens nothing, one that stays opens after the delay', async () => {
    await lab.show({ definition: delayed(400), height: 300 });
    const { x, y } = await rect(page, 'Products');
    await page.mouse.move(x + 10, y + 5);
    await pause(100);
    await page.mouse.move(x + 12, y + 250);
    await pause(600);
    assert.equal(await shown(page, 'Boats'), '');
    await page.mouse.move(x + 10, y + 5);
    await page.mouse.move(x + 14, y + 6);
    await waitShown(page, 'Boats');
});

test('a bar that is open switches at once', async () => {
    await lab.show({ definition: delayed(1500) });
    await hoverShown('Products', 'Boats');
    await hover(page, 'Contact');
    await waitShown(page, 'Map', 700);
});

test('clicks and keys do not wait', async () => {
    await lab.show({ definition: delayed(60000).replace("'products.html'", "''") });
    const { x, y } = await rect(page, 'Products');
    await page.mouse.click(x + 10, y + 5);
    await waitShown(page, 'Boats', 2000);
    await lab.show({ definition: delayed(60000) });
    for (const key of ['Tab', 'ArrowRight', 'ArrowDown']) await page.keyboard.press(key);
    assert.equal(await isShown(page, 'Boats'), true);
});

test("a menu's delay is not the next one's", async () => {
    await lab.show({ definition: delayed(60000) });
    assert.equal(await page.evaluate(() => 'opendelay' in window.zev_state), false);
});

test('a submenu opens calmly, can be clicked at once, and closes at once', async () => {
    await lab.show();
    await hoverShown('Products', 'Boats');
    const durations = await page.$eval('[data-zev=layer]', layer => Array.from(layer.shadowRoot.querySelectorAll('ul'),
        box => box.getAnimations().map(animation => animation.effect.getTiming().duration)).flat());
    assert.ok(durations.every(duration => duration > 0 && duration <= 120), durations.join());
    await page.keyboard.press('Escape');
    assert.equal(await isShown(page, 'Boats'), false);
});

// What animates while a submenu opens.
async function effects(lab, definition) {
    await lab.show({ definition });
    await lab.page.evaluate(() => {
        const original = Element.prototype.animate;
        window.effects = [];
        Element.prototype.animate = function (frames, options) {
            window.effects.push(options.duration);
            return original.call(this, frames, options);
        };
    });
    await hover(lab.page, 'Products');
    await waitShown(lab.page, 'Boats');
    return lab.page.evaluate(() => window.effects.join());
}

test('an ffade of 0 opens without any effect, one that is written counts', async () => {
    assert.equal(await effects(lab, "zev_state.ffade = 0;" + nested), '');
    assert.equal(await effects(lab, "zev_state.ffade = 0.4;" + nested), '400');
    const [duration] = (await effects(lab, nested)).split(',').map(Number);
    assert.ok(duration > 0 && duration <= 120);
});

test('a visitor who wants less motion sees no effect', async () => {
    const calm = await startLab({ reducedMotion: true });
    try {
        assert.equal(await effects(calm, nested), '');
    } finally {
        await calm.close();
    }
});

// ---- Fingers ----

test('rows of text are at least 24 px high for a mouse, unless a cellpadding is written; pictures keep their size',
    async () => {
        await lab.show({ definition: `zevmenu = new ZEVMenu('0'); zevmenu.AddItem('Text', '', '');
            zevmenu.AddItem('<img src="${lab.origin}/none.svg" alt="dot" style="width:9px;height:9px">', '', '');
            zevmenu = new ZEVMenu('1'); zevmenu.cellpadding = 2; zevmenu.AddItem('Tight', '', '');` });
        assert.equal((await rect(page, 'Text')).height, 24);
        assert.ok((await rect(page, 'dot')).height < 22);
        await hoverShown('Text', 'Tight');
        assert.ok((await rect(page, 'Tight')).height < 22);
    });

test('the text is in the middle of its row', async () => {
    await lab.show({ definition: "zevmenu = new ZEVMenu('0'); zevmenu.AddItem('Text', '', '');" });
    const [above, below] = await (await item(page, 'Text')).evaluate(link => {
        const range = document.createRange();
        range.selectNodeContents(link);
        const text = range.getBoundingClientRect(), row = link.getBoundingClientRect();
        return [text.top - row.top, row.bottom - text.bottom];
    });
    assert.ok(Math.abs(above - below) <= 1.5, `${above} ${below}`);
});
