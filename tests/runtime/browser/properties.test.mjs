// SPDX-License-Identifier: MIT
// Every property of a definition has its visible effect.
import assert from 'node:assert/strict';
import { after, afterEach, before, test } from 'node:test';
import { boxRect, hover, isNamed, isShown, item, rect, script, source, startLab, style, until, waitShown }
    from './support.mjs';

let lab, page;
before(async () => {
    lab = await startLab();
    page = lab.page;
});
after(() => lab.close());
afterEach(() => assert.deepEqual(page.errors, []));

// Four items, the first with a submenu of two. `lines` belong to the top menu, `below` to the submenu.
function definition({ state = '', lines = '', below = '' }) {
    return `${state}
zevmenu = new ZEVMenu('0');
${lines}
zevmenu.AddItem('One', 'one.html', '');
zevmenu.AddItem('Two', 'two.html', 'own');
zevmenu.AddItem('Three', 'three.html', '');
zevmenu.AddItem('Four', 'javascript:void(0)', '');
zevmenu = new ZEVMenu('1');
${below}
zevmenu.AddItem('Under', 'under.html', '');
zevmenu.AddItem('Below', 'below.html', '');`;
}

async function show(options, pageOptions = {}) {
    await lab.show({ definition: definition(options), ...pageOptions });
}

// ---- Columns ----

// [columns, expected position of One to Four as row and column]
const grids = [
    [1, ['0,0', '1,0', '2,0', '3,0']],
    [2, ['0,0', '0,1', '1,0', '1,1']],
    [3, ['0,0', '0,1', '0,2', '1,0']],
    [4, ['0,0', '0,1', '0,2', '0,3']],
    [10, ['0,0', '0,1', '0,2', '0,3']],
    ["'2'", ['0,0', '0,1', '1,0', '1,1']],
];

for (const [columns, expected] of grids) {
    test(`columns = ${columns} puts that many items in a row`, async () => {
        await show({ lines: `zevmenu.columns = ${columns};` });
        const rects = await Promise.all(['One', 'Two', 'Three', 'Four'].map(name => rect(page, name)));
        const order = key => [...new Set(rects.map(r => Math.round(r[key])))].sort((a, b) => a - b);
        const [tops, lefts] = [order('top'), order('left')];
        assert.deepEqual(rects.map(r => tops.indexOf(Math.round(r.top)) + ',' + lefts.indexOf(Math.round(r.left))),
                         expected);
    });
}

test('a menu without columns is a vertical list', async () => {
    await show({});
    assert.ok((await rect(page, 'Two')).top >= (await rect(page, 'One')).bottom);
    assert.equal((await rect(page, 'Two')).left, (await rect(page, 'One')).left);
});

// ---- Properties that set one style ----

// [property, value, element, CSS property, computed value]
const item_ = 'a', box = 'ul';
const styles = [
    ['nbgcolor', "'#102030'", item_, 'backgroundColor', 'rgb(16, 32, 48)'],
    ['nbgcolor', "'transparent'", item_, 'backgroundColor', 'rgba(0, 0, 0, 0)'],
    ['nbgcolor', "'rebeccapurple'", item_, 'backgroundColor', 'rgb(102, 51, 153)'],
    ['nftcolor', "'#405060'", item_, 'color', 'rgb(64, 80, 96)'],
    ['bgimage', "'stripes.svg'", box, 'backgroundImage', 'url("ORIGIN/site/stripes.svg")'],
    ['itemborder', "'2px dashed #FF0000'", item_, 'borderTop', '2px dashed rgb(255, 0, 0)'],
    ['menuborder', "'3px solid #00FF00'", box, 'borderLeft', '3px solid rgb(0, 255, 0)'],
    ['cellpadding', '7', item_, 'padding', '7px'],
    ['cellpadding', '0', item_, 'padding', '0px'],
    ['fontFamily', "'Georgia'", item_, 'fontFamily', 'Georgia'],
    ['fontSize', "'15pt'", item_, 'fontSize', '20px'],
    ['fontStyle', "'italic'", item_, 'fontStyle', 'italic'],
    ['fontWeight', "'bold'", item_, 'fontWeight', '700'],
    ['fopacity', "'60'", box, 'opacity', '0.6'],
    ['fshadow', "'#0000FF'", box, 'boxShadow', 'rgb(0, 0, 255) 3px 3px 6px 0px'],
];

for (const [property, value, element, cssProperty, expected] of styles) {
    for (const [owner, lines] of [['zevmenu', 'lines'], ['zev_state', 'state']]) {
        test(`${owner}.${property} = ${value} gives ${cssProperty} ${expected}`, async () => {
            await show({ [lines]: `${owner}.${property} = ${value};` });
            assert.equal(await style(page, 'One', cssProperty, element), expected.replace('ORIGIN', lab.origin));
        });
    }
}

// [CSS property, factory value]
const factory = [
    ['backgroundColor', 'rgb(0, 0, 0)'], ['color', 'rgb(255, 255, 255)'], ['padding', '1px'],
    ['fontFamily', 'Arial'], ['fontSize', '13.33px'], ['fontStyle', 'normal'], ['fontWeight', '400'],
    ['borderTopWidth', '0px'], ['textDecorationLine', 'none'],
];

test('what is not set has its factory value', async () => {
    await show({});
    const found = [];
    for (const [property] of factory) {
        // Browsers tell more or fewer decimals.
        const value = (await style(page, 'One', property)).replace(/(\.\d\d)\d+/, '$1');
        found.push([property, value]);
    }
    assert.deepEqual(found, factory);
});

test("a menu's own value wins over zev_state, and a submenu takes zev_state's, not its parent's", async () => {
    await show({ state: "zev_state.nbgcolor = '#111111'; zev_state.nftcolor = '#EEEEEE';",
                 lines: "zevmenu.nbgcolor = '#222222'; zevmenu.cellpadding = 9;" });
    await hover(page, 'One', 'Under');
    assert.equal(await style(page, 'Two', 'backgroundColor'), 'rgb(34, 34, 34)');
    assert.equal(await style(page, 'Below', 'backgroundColor'), 'rgb(17, 17, 17)');
    assert.equal(await style(page, 'Two', 'color'), 'rgb(238, 238, 238)');
    assert.equal(await style(page, 'Below', 'padding'), '1px');
});

for (const [property, cssProperty, value] of [['fontStyle', 'fontStyle', 'normal'], ['fontWeight', 'fontWeight', '400']]) {
    test(`${property} 'none' is normal, also against zev_state`, async () => {
        await show({ state: "zev_state.fontStyle = 'italic'; zev_state.fontWeight = 'bold';",
                     lines: `zevmenu.${property} = 'none';` });
        assert.equal(await style(page, 'One', cssProperty), value);
        assert.deepEqual(page.warnings, []);
    });
}

// ---- Highlight ----

const highlight = "zev_state.hbgcolor = '#ABCDEF'; zev_state.hftcolor = '#123456';";

async function assertHighlighted(name) {
    assert.equal(await style(page, name, 'backgroundColor'), 'rgb(171, 205, 239)');
    assert.equal(await style(page, name, 'color'), 'rgb(18, 52, 86)');
}

test('hbgcolor and hftcolor show while the mouse is on an item, and no longer', async () => {
    await show({ state: highlight });
    await hover(page, 'Two');
    await assertHighlighted('Two');
    await hover(page, 'Three');
    assert.equal(await style(page, 'Two', 'backgroundColor'), 'rgb(0, 0, 0)');
});

test('hbgcolor and hftcolor show while an item has the focus', async () => {
    await show({ state: highlight });
    await page.keyboard.press('Tab');
    await assertHighlighted('One');
});

test('hbgcolor and hftcolor show while the submenu of an item is open', async () => {
    await show({ state: highlight });
    await hover(page, 'One', 'Below');
    await assertHighlighted('One');
    await assertHighlighted('Below');
});

// ---- Space and divider ----

test('hspacing is the distance between neighbours, in a list, a row and a grid', async () => {
    for (const [columns, next, edge] of [[1, 'Two', 'top'], [10, 'Two', 'left'], [2, 'Three', 'top'], [2, 'Two', 'left']]) {
        await show({ lines: `zevmenu.hspacing = 12; zevmenu.columns = ${columns};` });
        const [one, other] = [await rect(page, 'One'), await rect(page, next)];
        assert.equal(Math.round(other[edge] - one[edge == 'top' ? 'bottom' : 'right']), 12, `${columns} columns`);
    }
});

function dividerTexts() {
    return page.$$eval('>>> span.divider', spans => spans.map(span => span.textContent));
}

test('divider stands in the space between neighbours, and nowhere else', async () => {
    await show({ lines: "zevmenu.columns = 10; zevmenu.hspacing = 20; zevmenu.divider = '<b>|</b>';" });
    assert.deepEqual(await dividerTexts(), ['|', '|', '|']);
    const [one, two] = [await rect(page, 'One'), await rect(page, 'Two')];
    assert.equal(Math.round(two.left - one.right), 20);
    const mark = await (await page.$('>>> span.divider b')).boundingBox();
    assert.ok(mark.x >= one.right && mark.x + mark.width <= two.left);
});

test('a divider wider than hspacing is not cut off and covers no item', async () => {
    await show({ lines: "zevmenu.columns = 10; zevmenu.hspacing = 1; zevmenu.divider = '=====';" });
    const mark = await (await page.$('>>> span.divider')).boundingBox();
    const [one, two] = [await rect(page, 'One'), await rect(page, 'Two')];
    assert.ok(mark.width > 20);
    assert.ok(mark.x >= one.right - 0.1 && mark.x + mark.width <= two.left + 0.1);
});

for (const [what, lines] of [
    ['without hspacing', "zevmenu.divider = '|';"],
    ['with hspacing 0', "zevmenu.hspacing = 0; zevmenu.divider = '|';"],
    ['that is &nbsp;', "zevmenu.hspacing = 5; zevmenu.divider = '&nbsp;';"],
    ['that is empty', "zevmenu.hspacing = 5; zevmenu.divider = '';"]]) {
    test(`a divider ${what} shows nothing`, async () => {
        await show({ lines });
        assert.deepEqual(await dividerTexts(), []);
    });
}

// ---- HTML around captions ----

async function textOf(name) {
    return (await item(page, name)).evaluate(link => link.textContent);
}

test('two spaces stand on either side of a caption unless a menu says otherwise', async () => {
    await show({});
    assert.equal(await textOf('One'), '\u00a0\u00a0One\u00a0\u00a0');
    assert.ok(await isNamed(page, '>>> li:first-child > a', 'One'));
});

test('htmlBefore and htmlAfter stand around each caption and are no part of its name', async () => {
    await show({ lines: "zevmenu.htmlBefore = '<b>&raquo;</b> '; zevmenu.htmlAfter = ' !';" });
    assert.equal(await textOf('One'), '\u00bb One !');
    assert.ok(await page.$('>>> li > a > b'));
    assert.ok(await isNamed(page, '>>> li:first-child > a', 'One'));
});

test('an empty htmlBefore and htmlAfter mean nothing around the caption', async () => {
    await show({ lines: "zevmenu.htmlBefore = ''; zevmenu.htmlAfter = '';" });
    const texts = await page.$$eval('>>> li > a', links => links.map(link => link.textContent));
    assert.deepEqual(texts, ['One', 'Two', 'Three', 'Four']);
    assert.ok(await isNamed(page, '>>> li:first-child > a', 'One'));
});

test('a caption may be HTML, and unclosed tags stay inside it', async () => {
    await lab.show({ definition: `zevmenu = new ZEVMenu('0');
        zevmenu.AddItem('<b>Bold &amp; <i>open', 'a.html', ''); zevmenu.AddItem('Plain', 'b.html', '');` });
    assert.equal(await textOf('Bold & open'), '\u00a0\u00a0Bold & open\u00a0\u00a0');
    assert.equal(await style(page, 'Plain', 'fontWeight'), '400');
    assert.equal(await style(page, 'Plain', 'fontStyle'), 'normal');
});

// ---- Links ----

test("target is the frame of the menu's links, unless the item names its own or runs a script", async () => {
    await show({ lines: "zevmenu.target = 'main';" });
    const targets = await page.$$eval('>>> li > a', links => links.map(link => link.target));
    assert.deepEqual(targets, ['main', 'own', 'main', '']);
});

test('a link with a target opens in that frame', async () => {
    await show({}, { after: '<iframe name="own" src="about:blank"></iframe>' });
    await hover(page, 'Two');
    await (await item(page, 'Two')).click();
    await until(async () => await page.evaluate(() => frames.own.location.href) == lab.origin + '/site/two.html',
        'the frame');
    assert.equal(await page.url(), lab.origin + '/site/page.html');
});

test('an item without a link can be pointed at and leads nowhere', async () => {
    await lab.show({ definition: "zevmenu = new ZEVMenu('0'); zevmenu.AddItem('Nowhere', '', '');" });
    await (await item(page, 'Nowhere')).click();
    assert.equal(await (await item(page, 'Nowhere')).evaluate(link => link.hasAttribute('href')), false);
    assert.equal(await page.url(), lab.origin + '/site/page.html');
});

// ---- Position ----

const middle = { before: '<div style="height:150px"></div>', place:
    `<div style="margin-left:200px">${source('menu.js')}${script('ZEVDisplayMenu();')}</div>` };

// Distances from the item to the submenu's box on the named side, and along the other axis.
async function gaps() {
    const [from, to] = [await rect(page, 'One'), await boxRect(page, 'Under')];
    return { right: to.left - from.right, bottom: to.top - from.bottom, left: from.left - to.right,
             top: from.top - to.bottom, alongX: to.left - from.left, alongY: to.top - from.top };
}

for (const side of ['right', 'bottom', 'left', 'top']) {
    for (const offset of [1, 10, -4]) {
        test(`position ${side} with menuoffset ${offset} opens there at that distance`, async () => {
            await show({ state: `zev_state.menuoffset = ${offset};`, below: `zevmenu.position = '${side}';` }, middle);
            await hover(page, 'One');
            await waitShown(page, 'Under');
            const found = await gaps();
            assert.equal(Math.round(found[side]), offset);
            assert.equal(Math.round(side == 'right' || side == 'left' ? found.alongY : found.alongX), 0);
        });
    }
}

// [rule, lines, expected side]
const inheritance = [
    ['nothing set is right', {}, 'right'],
    ['zev_state.position', { state: "zev_state.position = 'left';" }, 'left'],
    ["a row's own position holds for its submenus", { state: "zev_state.position = 'left';",
        lines: "zevmenu.columns = 10; zevmenu.position = 'bottom';" }, 'bottom'],
    ["a list's own position does not", { state: "zev_state.position = 'left';",
        lines: "zevmenu.position = 'bottom';" }, 'left'],
    ["the submenu's own position wins", { lines: "zevmenu.columns = 10; zevmenu.position = 'bottom';",
        below: "zevmenu.position = 'top';" }, 'top'],
    ['a nonsense position counts as not set', { state: "zev_state.position = 'bottom';",
        below: "zevmenu.position = 'Top';" }, 'bottom'],
];

for (const [rule, lines, side] of inheritance) {
    test(`position: ${rule}`, async () => {
        await show(lines, middle);
        await hover(page, 'One');
        await waitShown(page, 'Under');
        assert.equal(Math.round((await gaps())[side]), 1);
    });
}

// ---- Fading ----

test('ffade fades a submenu in and out over that time', async () => {
    await show({ below: "zevmenu.ffade = '1.5'; zevmenu.fopacity = '80';",
                 state: 'zev_state.closedelay = 0;' });
    const opacity = async () => Number(await style(page, 'Under', 'opacity', 'ul'));
    await hover(page, 'One');
    await waitShown(page, 'Under');
    assert.ok(await opacity() < 0.7);
    await until(async () => await opacity() == 0.8, 'full opacity');
    await page.mouse.move(700, 500);
    await until(async () => await opacity() < 0.7, 'fading out');
    await until(async () => !await isShown(page, 'Under'), 'the submenu to be gone');
});

// ---- Values that make no sense ----

// [property, value, CSS property, element, what zev_state gives instead]
const nonsense = [
    ['nbgcolor', "'#12345'", 'backgroundColor', 'a', 'rgb(1, 2, 3)'],
    ['nbgcolor', "'inherit'", 'backgroundColor', 'a', 'rgb(1, 2, 3)'],
    ['nbgcolor', "'var(--page)'", 'backgroundColor', 'a', 'rgb(1, 2, 3)'],
    ['nbgcolor', '{}', 'backgroundColor', 'a', 'rgb(1, 2, 3)'],
    ['nbgcolor', 'Object.create(null)', 'backgroundColor', 'a', 'rgb(1, 2, 3)'],
    ['cellpadding', '-3', 'padding', 'a', '4px'],
    ['cellpadding', "'wide'", 'padding', 'a', '4px'],
    ['cellpadding', 'NaN', 'padding', 'a', '4px'],
    ['fontSize', "'12'", 'fontSize', 'a', '16px'],
    ['fontWeight', "'heavy'", 'fontWeight', 'a', '700'],
    ['fopacity', "'0'", 'opacity', 'ul', '0.5'],
    ['fopacity', "'101'", 'opacity', 'ul', '0.5'],
    ['menuborder', "'solid gold bars'", 'borderTopStyle', 'ul', 'double'],
    ['itemborder', "'5 solid'", 'borderTopStyle', 'a', 'dotted'],
    ['columns', '0', 'display', 'ul', 'inline-grid'],
    ['columns', '2.5', 'display', 'ul', 'inline-grid'],
];
const sensible = `zev_state.nbgcolor = 'rgb(1,2,3)'; zev_state.cellpadding = 4; zev_state.fontSize = '12pt';
    zev_state.fontWeight = 'bold'; zev_state.fopacity = 50; zev_state.itemborder = '1px dotted red';
    zev_state.columns = 3; zev_state.menuborder = '3px double red';`;

for (const [property, value, cssProperty, element, expected] of nonsense) {
    test(`${property} = ${value} counts as not set and costs one warning`, async () => {
        await show({ state: sensible, lines: `zevmenu.${property} = ${value};` });
        assert.equal(await style(page, 'One', cssProperty, element), expected);
        assert.equal(page.warnings.length, 1, page.warnings.join('; '));
        assert.match(page.warnings[0], new RegExp(`menu 0: the value of ${property} `));
    });
}

test('a nonsense zev_state value falls back to the factory value, with one warning for all menus', async () => {
    await show({ state: "zev_state.nftcolor = 'colour';" });
    await hover(page, 'One', 'Under');
    assert.equal(await style(page, 'Under', 'color'), 'rgb(0, 0, 0)');
    assert.equal(await style(page, 'Two', 'color'), 'rgb(255, 255, 255)');
    assert.deepEqual(page.warnings, ['ZEVMenu: zev_state: the value of nftcolor makes no sense']);
});
