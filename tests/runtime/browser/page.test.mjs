// SPDX-License-Identifier: MIT
// The library as part of a page: what it adds, what it bears, and where its files lie.
import assert from 'node:assert/strict';
import { copyFileSync, mkdirSync, mkdtempSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { pathToFileURL } from 'node:url';
import { after, afterEach, before, test } from 'node:test';
import { boxRect, engine, hover, isShown, item, libraryFolder, nested, pageText, rect, script, shown, source,
    startLab, style, until, waitAt, waitReady, waitShown } from './support.mjs';

let lab, page;
before(async () => {
    lab = await startLab();
    page = lab.page;
});
after(() => lab.close());
afterEach(() => assert.deepEqual(page.errors, []));

const everything = ['Boats', 'Canoes', 'Sea kayaks', 'Map'];

async function assertWorks() {
    await hover(page, 'Products', 'Boats', 'Kayaks', 'Sea kayaks');
    assert.equal(await shown(page, ...everything), 'Boats Canoes Sea kayaks');
    assert.equal(await countBars(), 1);
}

function countBars() {
    return page.$$eval('>>> ul', boxes => boxes.filter(box => box.getRootNode().host.dataset.zev == 'bar').length);
}

// ---- Global names ----

test('the page gets exactly the documented global names', async () => {
    await lab.show({
        loader: `<script>namesAtStart = Object.getOwnPropertyNames(window);</script>` +
            script("var zev_path = '/runtime/';") + source('/runtime/zevmenu_loader.js'),
        before: `<a href="" onmouseover="ZEVMenuOpen('zev1', '3', event)">Menu</a>` });
    await assertWorks();
    // The driver of the browser adds names of its own, and the page zev_path.
    const names = await page.evaluate(() => Object.getOwnPropertyNames(window).filter(name =>
        !window.namesAtStart.includes(name) && !/puppeteer|ariaQuery|^(namesAtStart|zev_path)$/.test(name)).sort());
    assert.deepEqual(names, ['ZEVCreateMenu', 'ZEVDisplayMenu', 'ZEVLoadMenu', 'ZEVMenu', 'ZEVMenuClose',
        'ZEVMenuOpen', 'zev_state', 'zevmenu']);
});

// ---- Kinds of pages ----

// [kind, options]
const kinds = [
    ['standards mode', {}],
    ['quirks mode', { doctype: '' }],
    ['limited quirks mode', { doctype:
        '<!DOCTYPE html PUBLIC "-//W3C//DTD HTML 4.01 Transitional//EN" "http://www.w3.org/TR/html4/loose.dtd">' }],
    ['Latin-1', { headers: { 'Content-Type': 'text/html; charset=iso-8859-1' } }],
    ['right to left', { html: '<html dir="rtl">' }],
    ['a Content-Security-Policy that allows only files of the site', {
        headers: { 'Content-Security-Policy': "default-src 'self'; script-src 'self'; style-src 'self'" },
        loader: source('/runtime/zevmenu_loader.js'), handlers: '', end: source('create.js'),
        place: source('menu.js') + source('display.js') }],
];

for (const [kind, options] of kinds) {
    test(`the menu works in a page of this kind: ${kind}`, async () => {
        lab.files.set('/site/display.js', 'ZEVDisplayMenu();');
        lab.files.set('/site/create.js', 'ZEVCreateMenu();');
        await lab.show(options);
        await assertWorks();
        const [from, to] = [await rect(page, 'Products'), await boxRect(page, 'Boats')];
        assert.equal(Math.round(to.top - from.bottom), 1);
        assert.equal(await style(page, 'Home', 'backgroundColor'), 'rgb(0, 0, 0)');
        assert.deepEqual(page.warnings, []);
    });
}

test('the menu works in XHTML served as XML, its captions read as HTML', async () => {
    lab.files.set('/site/page.xhtml', `<?xml version="1.0" encoding="utf-8"?>
        <html xmlns="http://www.w3.org/1999/xhtml"><head><title>X</title>
        <script src="/runtime/zevmenu_loader.js"></script></head><body onload="ZEVLoadMenu();">
        <p><script src="menu.js"></script><script>ZEVDisplayMenu();</script></p>
        <script>ZEVCreateMenu()</script></body></html>`);
    await lab.show({ definition: nested.replace("'Home'", "'<b>Ho</b>me<br>'") });
    await page.goto(lab.origin + '/site/page.xhtml');
    await assertWorks();
    assert.equal(await (await item(page, 'Home')).evaluate(link => link.querySelector('b').textContent), 'Ho');
});

test('the menu works in a page opened as a file, with the library in another folder', async () => {
    const folder = mkdtempSync(join(tmpdir(), 'zevmenu-page-'));
    mkdirSync(join(folder, 'js'));
    mkdirSync(join(folder, 'pages'));
    for (const name of ['zevmenu_loader.js', 'zevmenu_dom.js']) {
        copyFileSync(join(libraryFolder, name), join(folder, 'js', name));
    }
    writeFileSync(join(folder, 'menu.js'), nested);
    writeFileSync(join(folder, 'pages', 'page.html'), pageText({ library: '../js/', definitionUrl: '../menu.js' }));
    try {
        await page.goto(pathToFileURL(join(folder, 'pages', 'page.html')).href);
        await assertWorks();
        const href = await (await item(page, 'Oars')).evaluate(link => link.href);
        assert.equal(href, pathToFileURL(join(folder, 'oars.html')).href);
    } finally {
        rmSync(folder, { recursive: true });
    }
});

// ---- Where files lie ----

test('without zev_path the library is looked for beside the loader', async () => {
    await lab.show({ loader: source('/runtime/zevmenu_loader.js') });
    await assertWorks();
    await lab.show({ loader: script("var zev_path = '';") + source('../runtime/zevmenu_loader.js') });
    await assertWorks();
});

test('zev_path is used as it stands', async () => {
    lab.files.set('/site/v2-zevmenu_dom.js', { text: 'document.title = "other";' });
    await lab.show({ loader: source('/runtime/zevmenu_loader.js') });
    lab.files.set('/site/page2.html', pageText({
        loader: script("var zev_path = 'v2-';") + source('/runtime/zevmenu_loader.js') }));
    await page.goto(lab.origin + '/site/page2.html');
    await until(async () => await page.title() == 'other', 'v2-zevmenu_dom.js');
});

// [link in the definition, link in a page of another folder]
const addresses = [
    ['a.html', 'ORIGIN/site/a.html'], ['sub/b.html?x=1#y', 'ORIGIN/site/sub/b.html?x=1#y'],
    ['../c.html', 'ORIGIN/c.html'], ['/d.html', 'ORIGIN/d.html'], ['#here', '#here'], ['?q=1', '?q=1'],
    ['http://example.invalid/x', 'http://example.invalid/x'], ['//example.invalid/x', '//example.invalid/x'],
    ['//[', '//['], ['mailto:a@example.invalid', 'mailto:a@example.invalid'],
    ['javascript:void(0)', 'javascript:void(0)'], ['', null],
];

test('addresses of a definition file are relative to its own folder', async () => {
    await lab.show({ path: '/other/deep/page.html', definitionUrl: '/site/menu.js', definition:
        "zevmenu = new ZEVMenu('0'); zevmenu.bgimage = 'img/bg.svg';" +
        addresses.map(([url]) => `zevmenu.AddItem('x', '${url}', '');`).join('\n') +
        "zevmenu.AddRollover('r.html', 'img/o.svg', 'img/v.svg', '');" +
        "zevmenu.AddItem('<img src=\"img/cap.svg\" alt=\"Pic\"><a href=\"in.html\">in</a>', '', '');" });
    const hrefs = await page.$$eval('>>> li > a', links => links.map(link => link.getAttribute('href')));
    const site = lab.origin + '/site/';
    assert.deepEqual(hrefs.slice(0, -2), addresses.map(([, url]) => url && url.replace('ORIGIN', lab.origin)));
    assert.equal(hrefs.at(-2), site + 'r.html');
    const images = await page.$$eval('>>> li img', all => all.map(image => image.src));
    assert.deepEqual(images, [site + 'img/o.svg', site + 'img/v.svg', site + 'img/cap.svg']);
    assert.equal(await (await page.$('>>> li > a > a')).evaluate(link => link.href), site + 'in.html');
    assert.equal(await (await page.$('>>> ul')).evaluate(box => getComputedStyle(box).backgroundImage),
                 `url("${site}img/bg.svg")`);
});

test("addresses of a definition inside the page are the page's own", async () => {
    await lab.show({ path: '/other/page.html', place: script(
        "zevmenu = new ZEVMenu('0'); zevmenu.AddItem('In', 'in.html', '');") + script('ZEVDisplayMenu();') });
    assert.equal(await (await item(page, 'In')).evaluate(link => link.href), lab.origin + '/other/in.html');
});

// ---- Calls: missing, late, early, twice ----

const display = script('ZEVDisplayMenu();');

// [what, options]
const calls = [
    ['every call twice', { place: source('menu.js') + display + display, end:
        script('ZEVCreateMenu();ZEVCreateMenu()'), handlers: 'onload="ZEVLoadMenu();ZEVLoadMenu();"' }],
    ['only ZEVDisplayMenu', { end: '', handlers: '' }],
    ['ZEVDisplayMenu before the definition', { place: display + source('menu.js') }],
    ['ZEVDisplayMenu before the definition, and no other call', {
        place: display + source('menu.js'), end: '', handlers: '' }],
    ["ZEVDisplayMenu in the page's head", { head: source('menu.js') + display, place: '' }],
    ['ZEVDisplayMenu only when the page has loaded', {
        place: source('menu.js'), handlers: 'onload="ZEVDisplayMenu();"' }],
    ['ZEVCreateMenu and ZEVLoadMenu before everything', { head: script('ZEVCreateMenu(); ZEVLoadMenu();') }],
    ['a definition that arrives after the page', {
        place: display + '<script>setTimeout(() => document.body.appendChild(' +
            'document.createElement("script")).src = "menu.js", 100)</script>', definitionDelayMs: 200 }],
    ['the loader twice', { after: script("var zev_path = '/runtime/';") + source('/runtime/zevmenu_loader.js') }],
];

for (const [what, options] of calls) {
    test(`the menu works and is drawn once with ${what}`, async () => {
        await lab.show(options);
        await waitShown(page, 'Home');
        await assertWorks();
        assert.deepEqual(page.warnings, []);
    });
}

test('the menu stands where ZEVDisplayMenu is called', async () => {
    await lab.show({ before: '<p id="above">above</p>', after: '<p id="below">below</p>' });
    const [above, below] = await Promise.all(['#above', '#below'].map(id =>
        page.$eval(id, p => p.getBoundingClientRect().toJSON())));
    const home = await rect(page, 'Home');
    assert.ok(home.top >= above.bottom && home.bottom <= below.top);
});

test('a page with pop-ups only shows no menu until one is opened', async () => {
    await lab.show({ place: source('menu.js') });
    assert.equal(await page.$('[data-zev]'), null);
    await page.evaluate(() => ZEVMenuOpen('zev1', '3', 100, 100));
    assert.ok(await isShown(page, 'Map'));
});

test('a menu without items draws nothing', async () => {
    await lab.show({ definition: 'zev_state.columns = 1;' });
    assert.equal(await countBars(), 0);
    assert.deepEqual(page.warnings, []);
});

// ---- The second file is missing ----

test('without the renderer the top menu is a list of links, with one warning', async () => {
    lab.files.set('/alone/zevmenu_loader.js', readFileSync(join(libraryFolder, 'zevmenu_loader.js'), 'utf8'));
    lab.files.set('/site/menu.js', nested);
    lab.files.set('/site/alone.html', pageText({ library: '/alone/' }));
    await page.goto(lab.origin + '/site/alone.html');
    await until(() => page.warnings.length > 0, 'a warning');
    assert.equal(page.warnings.length, 1);
    await (await item(page, 'Home')).click();
    await waitAt(page, lab.origin + '/site/home.html');
});

// ---- Mistakes in a definition ----

// [mistake, lines put into the definition, expected warning]
const mistakes = [
    ['an item before any menu', ["zevmenu.AddItem('Early', '', '');", 'start'], /item stands before any menu/],
    ['an item without a caption', ['zevmenu.AddItem();', 'end'], /item 3 of menu 3 is mistaken/],
    ['an item whose caption is an object', ['zevmenu.AddItem({}, "", "");', 'end'], /item 3 of menu 3/],
    ['a rollover without images', ["zevmenu.AddRollover('a.html');", 'end'], /item 3 of menu 3/],
    ['a menu id that is none',
        ["zevmenu = new ZEVMenu('3x'); zevmenu.AddItem('Lost', '', '');", 'end'], /"3x" is not a menu id/],
    ['a menu without an id', ['zevmenu = new ZEVMenu();', 'end'], /"" is not a menu id/],
    ['a menu id that is a symbol', ["zevmenu = new ZEVMenu(Symbol('3'));", 'end'], /"" is not a menu id/],
    ['a submenu without its item',
        ["zevmenu = new ZEVMenu('7'); zevmenu.AddItem('Lost', '', '');", 'end'], /menu 7 has no item/],
    ['a submenu without its menu', ["zevmenu = new ZEVMenu('1i2i3');", 'end'], /menu 1i2i3 has no item/],
    ['a menu defined twice',
        ["zevmenu = new ZEVMenu('2'); zevmenu.AddItem('Lost', '', '');", 'end'], /menu 2 is defined twice/],
];

for (const [mistake, [line, where], warning] of mistakes) {
    test(`${mistake} costs one warning, and the rest of the menu works`, async () => {
        await lab.show({ definition: where == 'start' ? line + nested : nested + line });
        await assertWorks();
        await page.evaluate(() => { ZEVLoadMenu(); ZEVCreateMenu(); });
        assert.equal(page.warnings.length, 1, page.warnings.join('; '));
        assert.match(page.warnings[0], warning);
        assert.equal(await isShown(page, 'Lost'), false);
    });
}

test('a mistaken item keeps its number, so that later submenus stay with their items', async () => {
    await lab.show({ definition: nested.replace("zevmenu.AddItem('Home', 'home.html', '');", 'zevmenu.AddItem();') });
    await assertWorks();
    assert.equal(page.warnings.length, 1);
});

test('menus may be defined in any order', async () => {
    const [state, ...menus] = nested.split('zevmenu = ');
    await lab.show({ definition: state + menus.reverse().map(menu => 'zevmenu = ' + menu).join('') });
    await assertWorks();
    assert.deepEqual(page.warnings, []);
});

test("a menu taken out of the page by the page's own scripts can be drawn again", async () => {
    await lab.show();
    await hover(page, 'Products', 'Boats');
    await page.evaluate(() => {
        document.querySelectorAll('[data-zev]').forEach(host => host.remove());
        ZEVLoadMenu();
        ZEVDisplayMenu();
    });
    await page.mouse.move(700, 500);
    await page.keyboard.press('Escape');
    await assertWorks();
});

// ---- The page's style and the menu's ----

const loudStyle = `<style>
    * { box-sizing: content-box; letter-spacing: 3px; }
    div { margin: 20px; padding: 30px; border: 5px solid red; width: 50%; float: right; opacity: .5; color: red; }
    ul, li, a { margin: 9px !important; padding: 9px !important; color: red !important; display: inline !important;
        list-style: square !important; background: yellow !important; text-transform: uppercase !important; }
    a:hover { color: lime !important; }
    body { font: italic bold 30px/3 serif; text-align: center; word-spacing: 10px; color: green; }
    .list, .bar { display: none !important; }</style>`;

// Size and style of the menu's items, and their places within their boxes.
async function look() {
    await hover(page, 'Products', 'Boats', 'Canoes');
    return page.$$eval('>>> ul', boxes => boxes.filter(box => !box.hidden).map(box => Array.from(
        box.querySelectorAll('li > a'), link => {
            const [outer, inner] = [box.getBoundingClientRect(), link.getBoundingClientRect()];
            const style = getComputedStyle(link);
            return [inner.left - outer.left, inner.top - outer.top, inner.width, inner.height].map(Math.round).join(',') +
                ['color', 'backgroundColor', 'fontStyle', 'textTransform', 'letterSpacing'].map(p => ' ' + style[p]).join('');
        })));
}

test("the page's own style does not change the menu", async () => {
    await lab.show();
    const plain = await look();
    await lab.show({ head: loudStyle });
    assert.deepEqual(await look(), plain);
});

test('the menu leaves the style of the page alone', async () => {
    const after = '<ul class="list"><li><a id="own" href="#" role="menuitem">own</a></li></ul>';
    const looks = () => page.$eval('#own', link => [link, link.parentNode, link.closest('ul')].map(element =>
        Array.from(getComputedStyle(element), name => getComputedStyle(element)[name])));
    await lab.show({ after, place: '' });
    const without = await looks();
    await lab.show({ after, definition: nested.replace("zevmenu.columns = 10;", '') });
    await hover(page, 'Products', 'Boats');
    assert.deepEqual(await looks(), without);
    assert.equal(await page.$$eval('style, link', sheets => sheets.length), 0);
});

test('submenus lie above everything in the page', async () => {
    await lab.show({ after: '<div style="position:relative;z-index:999999;background:#fff;height:300px">x</div>' });
    await hover(page, 'Products', 'Boats');
    const { x, y } = await rect(page, 'Boats');
    assert.equal(await page.evaluate((x, y) => document.elementFromPoint(x + 3, y + 3).dataset.zev, x, y), 'layer');
});

test('submenus are built when first opened', async () => {
    await lab.show();
    assert.equal(await page.$$eval('>>> ul', boxes => boxes.length), 1);
    assert.equal(await page.$$eval('>>> li > a', links => links.length), 3);
    await hover(page, 'Products', 'Boats');
    assert.equal(await page.$$eval('>>> ul', boxes => boxes.length), 3);
});

test('a row that is wider than the window goes on in a second line', async () => {
    await lab.show({ width: 130 });
    const [home, contact] = [await rect(page, 'Home'), await rect(page, 'Contact')];
    assert.ok(contact.top >= home.bottom && contact.right <= 130);
});

// ---- The preview page and the samples ----

async function showPreview(definition, width = 800) {
    lab.files.set('/preview/orlet_temp.html', readFileSync(join(libraryFolder, 'zevmenu.html'), 'utf8'));
    for (const name of ['zevmenu_loader.js', 'zevmenu_dom.js']) {
        lab.files.set('/preview/' + name, readFileSync(join(libraryFolder, name), 'utf8'));
    }
    lab.files.delete('/preview/orlet_temp.js');
    if (definition) lab.files.set('/preview/orlet_temp.js', definition);
    page.warnings.length = 0;
    await page.setViewport({ width, height: 600, hasTouch: false });
    await page.goto(lab.origin + '/preview/orlet_temp.html');
    await waitReady(page);
    return page.$eval('#empty', note => !note.hidden && note.textContent);
}

test('the preview page shows the menu', async () => {
    assert.equal(await showPreview(nested), false);
    await assertWorks();
    assert.deepEqual(page.warnings, []);
});

test('the preview page says when the menu is empty', async () => {
    assert.equal(await showPreview('zev_state.columns = 1;\r\n\r\n\r\n'), 'This menu has no items yet.');
});

// What the page says of a broken definition; it never calls the menu empty then.
async function brokenPreview(definition) {
    assert.equal(await showPreview(definition), false);
    return page.$eval('#problem', note => note.hidden ? '' : note.textContent);
}

test('the preview page tells an error of the script and its line', async () => {
    assert.equal(await brokenPreview(nested), '');
    const menu = "zevmenu = new ZEVMenu('0');\r\n";
    assert.match(await brokenPreview(menu + "zevmenu.AddItem('It's', '', '');\r\n"),
        /^The menu's script has an error in line 2: SyntaxError/);
    assert.match(await brokenPreview(menu + "zevmenu.AddItem('A', '', '');\r\nzevmenu.columns = many;\r\n"),
        /^The menu's script has an error in line 3: ReferenceError/);
    // Those two; WebKit's driver does not hear of an error while a page loads.
    assert.equal(page.errors.splice(0).length, engine == 'webkit' ? 0 : 2);
});

test('the preview page is not wider than a phone', async () => {
    await showPreview(nested, 320);
    const [width, room] = await page.evaluate(() => [document.scrollingElement.scrollWidth,
        document.documentElement.clientWidth]);
    assert.ok(width <= room && room <= 320, `${width} in ${room}`);
});

// [sample, items from the top to the deepest]
const samples = [
    ['site_bar', ['Bicycles', 'Touring bicycles', 'Steel frames']],
    ['rollover_menu', ['plants', 'Fruit trees', 'Apples']],
    ['large_menu', ['Garden', 'Pruning', 'Service', 'Repairs']],
];

for (const [sample, path] of samples) {
    test(`samples/${sample}.html shows its menu down to the deepest level without a warning`, async () => {
        await page.setViewport({ width: 1000, height: 700 });
        page.warnings.length = 0;
        await page.goto(`${lab.origin}/samples/${sample}.html`);
        await hover(page, ...path);
        assert.ok(await isShown(page, path.at(-1)));
        assert.deepEqual(page.warnings, []);
        const broken = await page.$$eval('>>> img', images => images.filter(image => !image.naturalWidth).length);
        assert.equal(broken, 0);
    });
}
