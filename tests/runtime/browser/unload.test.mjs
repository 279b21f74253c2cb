// SPDX-License-Identifier: MIT
// A menu taken away from the page again, at every moment of its use: nothing that it added is left.
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { join } from 'node:path';
import { after, afterEach, before, test } from 'node:test';
import { focus, hover, libraryFolder, nested, pageText, shown, startLab, until, waitGone,
    waitShown } from './support.mjs';
import { countingScript } from './support_counts.mjs';

let lab, page;
before(async () => {
    lab = await startLab();
    page = lab.page;
});
after(() => lab.close());
afterEach(() => assert.deepEqual([page.errors, page.warnings], [[], []]));

// A page without a menu, and in it document.lab: the same by hand. `load` puts a definition and its menu into the
// page, `held` is what the page holds and shows in its source.
async function showEmptyPage() {
    lab.files.set('/site/unload.html', pageText({ loader: countingScript, handlers: '', end: '',
        place: '<div id="place"></div><p style="height: 300px">Text</p>', after:
        `<span id="handler" onmouseover="ZEVMenuOpen('zev1', '3', event)">Map</span>` +
        '<a id="listener" href="map.html" role="link" aria-haspopup="dialog">Map</a>' }));
    await page.setViewport({ width: 800, height: 600 });
    await page.mouse.move(799, 599);
    page.warnings = [];
    page.errors = [];
    await page.goto(lab.origin + '/site/unload.html');
    await page.evaluate(() => {
        const run = text => {
            const script = document.createElement('script');
            script.text = text;
            document.getElementById('place').append(script);
            script.remove();
        };
        document.getElementById('listener').addEventListener('mouseover', event =>
            ZEVMenuOpen('zev1', '2i1', event));
        document.lab = {
            loadLibrary: url => new Promise((resolve, reject) => {
                const script = document.createElement('script');
                script.onload = () => resolve(script.remove());
                script.onerror = reject;
                script.src = url;
                document.head.append(script);
            }),
            load(definition, isLate) {
                run(isLate ? 'ZEVDisplayMenu()' : definition);
                run(isLate ? definition : 'ZEVDisplayMenu()');
                ZEVCreateMenu();
                ZEVLoadMenu();
            },
            held: () => ({ ...document.counts(), source: document.documentElement.outerHTML,
                isDefined: !!window.ZEVMenu && zevmenu instanceof ZEVMenu }),
        };
    });
}

/*
 * Runs in the page. Loads and unloads the menu that many times, each time at the next of the moments. Gives what the
 * page held before the library came, at each moment, and where it held something else after unloading.
 */
async function loadAndUnload(times, definition) {
    const { held, load, loadLibrary } = document.lab;
    const pause = ms => new Promise(resolve => setTimeout(resolve, ms));
    const linkOf = name => [...document.querySelectorAll('[data-zev]')]
        .map(host => host.shadowRoot.querySelector(`a[aria-label="${name}"]`)).find(Boolean);
    const send = (target, type, Type = PointerEvent, more = {}) => target.dispatchEvent(new Type(type,
        { pointerType: 'mouse', bubbles: true, composed: true, cancelable: true, ...more }));
    const move = (name, point) => send(linkOf(name), 'pointermove', PointerEvent, point);
    const open = () => {
        move('Products', { clientX: 60, clientY: 10 });
        send(linkOf('Boats'), 'keydown', KeyboardEvent, { key: 'ArrowRight' });
    };
    const moments = {
        drawn() {},
        'drawn by a late definition'() {},
        built: () => pause(100),
        open,
        watched: async () => { open(); await pause(50); },
        left() {
            open();
            send(linkOf('Home').getRootNode().host, 'pointerleave', PointerEvent, { bubbles: false });
        },
        crossing() {
            move('Products', { clientX: 60, clientY: 10 });
            move('Contact', { clientX: 61, clientY: 12 });
        },
        fading() {
            open();
            send(document.body, 'pointerdown');
        },
        'opened by a handler': () => send(document.getElementById('handler'), 'keydown', KeyboardEvent,
            { key: 'Enter' }),
        'opened by a listener': () => send(document.getElementById('listener'), 'mouseover', MouseEvent),
        'pressed and typed'() {
            send(linkOf('Home'), 'pointerdown');
            linkOf('Home').focus();
            send(linkOf('Home'), 'keydown', KeyboardEvent, { key: 'c' });
        },
    };
    const names = Object.keys(moments), before = held(), at = {}, left = [];
    await loadLibrary('/runtime/zevmenu_loader.js');
    while (!ZEVMenu.shared.sums) await pause(10);
    const compare = moment => {
        const now = held();
        if (JSON.stringify(now) != JSON.stringify(before)) left.push({ moment, ...now });
    };
    for (let i = 0; i < times; i++) {
        const name = names[i % names.length];
        load(definition, /late/.test(name));
        await moments[name]();
        at[name] = held();
        ZEVMenu.shared.destroy();
        compare(`${name}, ${i}`);
        // The page's handlers do not know of it.
        ZEVLoadMenu();
        compare(`${name}, ${i}, then a resize`);
    }
    // Longer than all delays.
    await pause(1000);
    compare('a second later');
    return { before, at, left };
}

test('a menu loaded and unloaded 100 times leaves no element, listener, timer or attribute', async () => {
    await showEmptyPage();
    const fading = nested.replace('= 300;', '= 300; zev_state.opendelay = 0; zev_state.ffade = 0.3;');
    const { before, at, left } = await page.evaluate(loadAndUnload, 100, fading);
    assert.deepEqual(left.slice(0, 1), []);
    for (const [moment, held] of Object.entries(at)) {
        for (const what of ['elements', 'sheets', 'listeners']) {
            assert.ok(held[what] > before[what], `${moment}: ${what}`);
        }
        assert.match(held.source, /id="handler"[^>]* aria-expanded="/);
    }
    // The moments are what their names say.
    const more = (moment, what) => at[moment][what] - before[what];
    assert.ok(more('drawn', 'timers') > 0);
    assert.ok(more('drawn by a late definition', 'timers') > more('drawn', 'timers'));
    assert.ok(more('open', 'listeners') > more('built', 'listeners'));
    assert.ok(more('open', 'animations') > 0);
    assert.ok(more('watched', 'observed') > 0);
    assert.ok(more('left', 'timers') > more('watched', 'timers'));
    assert.ok(more('crossing', 'timers') > more('watched', 'timers'));
    assert.ok(more('fading', 'animations') > 0);
    assert.match(at['opened by a handler'].source, /id="handler"[^>]* aria-expanded="true"/);
    assert.match(at['opened by a listener'].source, /id="listener"[^>]* aria-expanded="true"/);
});

test('after unloading the next definition starts a menu that works by mouse and keys', async () => {
    await showEmptyPage();
    await page.evaluate(async definition => {
        await document.lab.loadLibrary('/runtime/zevmenu_loader.js');
        document.lab.load(definition);
    }, nested);
    await hover(page, 'Products');
    await waitShown(page, 'Boats');
    await page.evaluate(definition => {
        ZEVMenu.shared.destroy();
        document.lab.load(definition);
    }, nested.replace('Home', 'Start').replace('Boats', 'Ships').replace('Map', 'Plan'));
    assert.equal(await shown(page, 'Home', 'Start', 'Products'), 'Start Products');
    await page.mouse.move(799, 599);
    await hover(page, 'Products');
    await waitShown(page, 'Ships');
    await hover(page, 'Ships');
    await waitShown(page, 'Canoes');
    await page.mouse.click(799, 599);
    await waitGone(page, 'Ships');
    await page.focus('#handler');
    await page.keyboard.press('Enter');
    await waitShown(page, 'Plan');
    assert.equal(await focus(page), 'Plan');
    await page.keyboard.press('Escape');
    await waitGone(page, 'Plan');
});

test('a menu unloaded before the renderer has arrived stays away when that comes, until the next definition',
    async () => {
        let arrive;
        const arrival = new Promise(resolve => { arrive = resolve; });
        const read = name => readFileSync(join(libraryFolder, name), 'utf8');
        lab.files.set('/late/zevmenu_loader.js', read('zevmenu_loader.js'));
        lab.files.set('/late/zevmenu_dom.js', async () => {
            await arrival;
            return read('zevmenu_dom.js');
        });
        await showEmptyPage();
        const before = await page.evaluate(async definition => {
            const before = document.lab.held();
            await document.lab.loadLibrary('/late/zevmenu_loader.js');
            document.lab.load(definition);
            ZEVMenu.shared.destroy();
            return before;
        }, nested);
        assert.deepEqual(await page.evaluate(() => document.lab.held()), before);
        arrive();
        await until(() => page.evaluate(() => !!ZEVMenu.shared.sums), 'the renderer');
        assert.deepEqual(await page.evaluate(() => document.lab.held()), before);
        await page.evaluate(definition => document.lab.load(definition), nested);
        await hover(page, 'Products');
        await waitShown(page, 'Boats');
    });

test('a menu unloaded in the head of the page is not placed later', async () => {
    await lab.show({ definition: '', place: '', end: '', handlers: '',
        head: '<script>ZEVDisplayMenu(); ZEVMenu.shared.destroy();</script>' });
    assert.equal(await page.$$eval('[data-zev], [src*=zevmenu_dom]', all => all.length), 0);
});
