// SPDX-License-Identifier: MIT
// The menu in a page without inline scripts: the loader names the definition, an element the place.
import assert from 'node:assert/strict';
import { after, afterEach, before, test } from 'node:test';
import { focus, hover, isShown, item, nested, rect, script, shown, source, startLab, until, waitGone, waitShown }
    from './support.mjs';

let lab, page;
before(async () => {
    lab = await startLab();
    page = lab.page;
});
after(() => lab.close());
afterEach(() => assert.deepEqual([page.errors, page.warnings], [[], []]));

const loader = (attributes, definition = 'menu.js') =>
    `<script src="/runtime/zevmenu_loader.js" data-definition="${definition}" ${attributes}></script>`;
const bare = { end: '', handlers: '', place: '<div id="place" data-zevmenu></div>' };

async function assertWorksAt(selector) {
    await hover(page, 'Products', 'Boats', 'Kayaks', 'Sea kayaks');
    assert.equal(await shown(page, 'Canoes', 'Sea kayaks', 'Map'), 'Canoes Sea kayaks');
    const hosts = await page.$$eval('[data-zev=bar]', (bars, selector) =>
        bars.map(bar => bar.parentNode == document.querySelector(selector)), selector);
    assert.deepEqual(hosts, [true]);
}

// [where the loader stands, options]
const loaders = [
    ['deferred in the head', { loader: loader('defer') }],
    ['in the head', { loader: loader('') }],
    ['as it comes', { loader: loader('async') }],
    ['at the end of the body', { loader: '', end: loader('') }],
    ['in the head, and the definition late', { loader: loader('defer'), definitionDelayMs: 300 }],
];

for (const [where, options] of loaders) {
    test(`the loader, ${where}, draws its definition in the page's element for it`, async () => {
        await lab.show({ ...bare, before: '<p id="above">above</p>', ...options });
        await waitShown(page, 'Home');
        await assertWorksAt('#place');
        const above = await page.$eval('#above', p => p.getBoundingClientRect().bottom);
        assert.ok((await rect(page, 'Home')).top >= above);
    });
}

// [what else the page has, options, selector of the place]
const places = [
    ['a definition of its own', { place: bare.place + source('menu.js') }, '#place'],
    ['a definition in its head', { head: source('menu.js') }, '#place'],
    ['a later call elsewhere', { place: bare.place + source('menu.js') +
        '<div id="call">' + script('ZEVDisplayMenu();') + '</div>' }, '#place'],
    ['an earlier call elsewhere', { place: source('menu.js') +
        '<div id="call">' + script('ZEVDisplayMenu();') + '</div>' + bare.place }, '#call'],
    ['a second element', { place: bare.place + '<div data-zevmenu></div>' + source('menu.js') }, '#place'],
    ['a call in its head', { head: source('menu.js') + script('ZEVDisplayMenu();') }, '#place'],
    ['every call, too', { place: bare.place + source('menu.js'), handlers: 'onload="ZEVLoadMenu();"',
        end: script('ZEVCreateMenu(); ZEVDisplayMenu();') }, '#place'],
];

for (const [what, options, selector] of places) {
    test(`the menu stands once, at ${selector}, in a page with an element for it and ${what}`, async () => {
        await lab.show({ ...bare, ...options });
        await waitShown(page, 'Home');
        await assertWorksAt(selector);
    });
}

test("the address of the definition counts from the page, its links from the definition's folder", async () => {
    lab.files.set('/menus/menu.js', nested);
    await lab.show({ ...bare, loader: loader('defer', '../menus/menu.js') });
    await waitShown(page, 'Home');
    assert.equal(await (await item(page, 'Home')).evaluate(link => link.href), lab.origin + '/menus/home.html');
});

test('what stands in the element stays, for visitors without script', async () => {
    await lab.show({ ...bare, loader: loader('defer'), place: '<div data-zevmenu><p id="own">Links</p></div>' });
    await waitShown(page, 'Home');
    assert.equal(await page.$eval('#own', own => own.textContent), 'Links');
});

test('a page without an element for the menu gets its pop-ups only', async () => {
    await lab.show({ ...bare, loader: loader('defer'), definitionDelayMs: 300,
        place: '<a id="link" href="map.html" data-zev-popup="3">Map</a>' });
    assert.equal(await page.$('[data-zev]'), null);
    await page.hover('#link');
    await waitShown(page, 'Map');
    assert.equal(await isShown(page, 'Home'), false);
});

test('a definition that is missing costs one warning', async () => {
    await lab.show({ ...bare, loader: loader('defer', 'none.js') });
    await until(() => page.warnings.length, 'a warning');
    assert.match(page.warnings.join(), /^ZEVMenu: none\.js did not load$/);
    page.warnings.length = 0;
});

// ---- Pop-ups without handlers ----

const link = '<a id="link" href="map.html" data-zev-popup="2i1">Boats</a>';
const button = '<button id="button" type="submit" data-zev-popup="3">Contact</button>';
const popups = { loader: loader('defer'), ...bare, place: `<form action="sent.html">${link} ${button}</form>` };

async function showPopups(options) {
    await lab.show({ ...popups, ...options });
    await until(() => page.evaluate(() => !!ZEVMenu.shared.state.menus['3']), 'the definition');
}

for (const [selector, name, other] of [['#link', 'Canoes', 'Map'], ['#button', 'Map', 'Canoes']]) {
    test(`the mouse on ${selector} opens its menu beside the mouse, which closes when the mouse is gone`, async () => {
        await showPopups();
        await page.hover(selector);
        await waitShown(page, name);
        const [at, box] = [await page.$eval(selector, e => e.getBoundingClientRect().toJSON()), await rect(page, name)];
        assert.ok(Math.abs(box.left - at.x - at.width / 2 - 8) < 6, JSON.stringify([at, box]));
        assert.equal(await isShown(page, other), false);
        await hover(page, name);
        await new Promise(resolve => setTimeout(resolve, 600));
        assert.ok(await isShown(page, name));
        await page.mouse.move(700, 500);
        await waitGone(page, name);
    });

    test(`the arrow down on ${selector} opens its menu below it and enters`, async () => {
        await showPopups();
        await page.focus(selector);
        assert.equal(await isShown(page, name), false);
        await page.keyboard.press('ArrowDown');
        await waitShown(page, name);
        assert.equal(await focus(page), name);
        const bottom = await page.$eval(selector, e => e.getBoundingClientRect().bottom);
        assert.ok(Math.abs((await rect(page, name)).top - bottom) < 2);
        await page.keyboard.press('Escape');
        await waitGone(page, name);
        assert.equal(await focus(page), selector.slice(1));
    });

    test(`assistive technology is told that ${selector} has a menu, and whether it is open`, async () => {
        await showPopups();
        const states = () => page.$eval(selector, e => e.getAttribute('aria-haspopup') + ' ' + e.getAttribute('aria-expanded'));
        assert.equal(await states(), 'true false');
        await page.hover(selector);
        await waitShown(page, name);
        assert.equal(await states(), 'true true');
    });
}

test('a click on a button opens its menu, and the next one closes it; no form is sent', async () => {
    await showPopups();
    for (const isOpen of [true, false, true, false]) {
        await (await page.$('#button')).click();
        await until(async () => await isShown(page, 'Map') == isOpen, `the menu to be ${isOpen ? 'open' : 'closed'}`);
    }
    assert.ok(!(await page.evaluate(() => location.href)).includes('sent'));
});

test('a tap on a button opens its menu, and the next one closes it', async () => {
    await showPopups({ hasTouch: true });
    const { x, y } = await page.$eval('#button', e => e.getBoundingClientRect().toJSON());
    for (const isOpen of [true, false, true, false]) {
        await page.touchscreen.tap(x + 10, y + 10);
        await until(async () => await isShown(page, 'Map') == isOpen, `the menu to be ${isOpen ? 'open' : 'closed'}`);
    }
});

test('the first tap on a link opens its menu, the second follows it', async () => {
    await showPopups({ hasTouch: true });
    const { x, y } = await page.$eval('#link', e => e.getBoundingClientRect().toJSON());
    await page.touchscreen.tap(x + 5, y + 5);
    await waitShown(page, 'Canoes');
    await page.touchscreen.tap(x + 5, y + 5);
    await until(async () => (await page.evaluate(() => location.pathname).catch(() => '')) == '/site/map.html',
        'the page of the link');
});

// ---- Pop-ups whose handlers a policy blocks ----

const blockedLinks =
    `<a id="mouse" href="" onmouseover="ZEVMenuOpen('zev1i2', '1', event)" onmouseout="ZEVMenuClose('zev1i2', '1', false)">Boats</a>
    <a id="point" href="" onmouseover="ZEVMenuOpen('zev1', '3', 120, 230)">Contact</a>
    <a id="click" href="#" onclick="ZEVMenuOpen(&quot;zev1&quot;, &quot;3&quot;, event); return false">Contact</a>
    <a id="focus" href="#" onfocus="ZEVMenuOpen('zev1', '3', event)">Contact</a>`;

async function showBlocked() {
    await showPopups({ place: blockedLinks, headers: { 'Content-Security-Policy': "script-src 'self'" } });
}

// Firefox tells the console's listener what the policy refuses, WebKit's page has no such listener.
function forgetReports() {
    page.errors = page.errors.filter(error => !/Content-Security-Policy/.test(error));
    page.warnings = page.warnings.filter(warning => !/Content-Security-Policy/.test(warning));
}

// [what the visitor does, action, item that appears, its place or null]
const visits = [
    ['moves the mouse onto a link', () => page.hover('#mouse'), 'Canoes', null],
    ['moves the mouse onto a link with coordinates', () => page.hover('#point'), 'Map', [120, 230]],
    ['clicks a link', async () => (await page.$('#click')).click(), 'Map', null],
    ['leads the focus to a link that opens by it', () => page.focus('#focus'), 'Map', null],
    ['presses the arrow down on a link without an address', async () => {
        await page.focus('#click');
        await page.keyboard.press('ArrowDown');
    }, 'Map', null],
];

for (const [what, action, name, place] of visits) {
    test(`with handlers blocked by a policy a visitor who ${what} gets its menu`, async () => {
        await showBlocked();
        await action();
        await waitShown(page, name);
        if (place) {
            const { left, top } = await rect(page, name);
            assert.deepEqual([Math.round(left), Math.round(top)], place);
        }
        forgetReports();
    });
}

test('with handlers blocked by a policy the menu closes when the mouse is gone', async () => {
    await showBlocked();
    await page.hover('#mouse');
    await waitShown(page, 'Canoes');
    await page.mouse.move(700, 500);
    await waitGone(page, 'Canoes');
    forgetReports();
});
