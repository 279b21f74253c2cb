// SPDX-License-Identifier: MIT
// Pages that draw their parts anew by script: the bar under the mouse, or the whole body with another menu.
import assert from 'node:assert/strict';
import { after, afterEach, before, test } from 'node:test';
import { focus, hover, isShown, nested, pause, rect, script, shown, source, startLab, until, waitGone, waitShown }
    from './support.mjs';
import { countingScript, driverTimers } from './support_counts.mjs';

let lab, page;
before(async () => {
    lab = await startLab();
    page = lab.page;
});
after(() => lab.close());
afterEach(() => assert.deepEqual([page.errors, page.warnings], [[], []]));

const other = `zev_state.closedelay = 300;
    zevmenu = new ZEVMenu('0');
    zevmenu.AddItem('Start', 'start.html', '');
    zevmenu.AddItem('Trees', 'trees.html', '');
    zevmenu = new ZEVMenu('2');
    zevmenu.AddItem('Oaks', 'oaks.html', '');
    zevmenu = new ZEVMenu('2i1');
    zevmenu.AddItem('Acorns', 'acorns.html', '');`;

// In the page: runs a script file as pages do that load their parts.
function run(url) {
    return page.evaluate(url => new Promise((resolve, reject) => {
        const script = document.head.appendChild(document.createElement('script'));
        script.onload = () => resolve();
        script.onerror = reject;
        script.src = url;
    }), url);
}

async function countHosts() {
    return page.$$eval('[data-zev]', hosts => hosts.map(host => host.dataset.zev).sort().join(' '));
}

// ---- The same menu again ----

// In the page: ways to draw the bar anew.
const redraw = {
    'its host': () => {
        document.querySelector('[data-zev=bar]').remove();
        ZEVDisplayMenu();
    },
    'the element around it': () => {
        document.getElementById('place').outerHTML = '<div id="place"></div>';
        const call = document.createElement('script');
        call.text = 'ZEVDisplayMenu()';
        document.getElementById('place').append(call);
    },
    'its marked place': () => {
        document.getElementById('place').outerHTML = '<div id="place" data-zevmenu></div>';
        ZEVLoadMenu();
    },
};

for (const [what, action] of Object.entries(redraw)) {
    test(`a bar under the mouse whose page draws ${what} anew opens at the next move on the same item`, async () => {
        await lab.show({ place: `<div id="place">${source('menu.js') + script('ZEVDisplayMenu();')}</div>` });
        await hover(page, 'Products');
        await waitShown(page, 'Boats');
        await page.evaluate(action);
        assert.equal(await isShown(page, 'Boats'), false);
        const { x, y } = await rect(page, 'Products');
        await page.mouse.move(x + 12, y + 12);
        await page.mouse.move(x + 14, y + 12);
        await waitShown(page, 'Boats');
        await hover(page, 'Boats', 'Kayaks');
        await waitShown(page, 'Sea kayaks');
        assert.equal(await countHosts(), 'bar layer');
    });
}

test('a bar that the page draws anew is reached by keys', async () => {
    await lab.show();
    await page.keyboard.press('Tab');
    await page.evaluate(redraw['its host']);
    await page.keyboard.press('Tab');
    assert.equal(await focus(page), 'Home');
    for (const key of ['ArrowRight', 'ArrowDown']) await page.keyboard.press(key);
    assert.equal(await focus(page), 'Boats');
});

test('a bar that the page only moves stays as it is', async () => {
    await lab.show({ after: '<div id="new"></div>' });
    await page.evaluate(() => {
        document.bar = document.querySelector('[data-zev=bar]');
        document.getElementById('new').append(document.bar);
        ZEVDisplayMenu();
        ZEVLoadMenu();
    });
    assert.ok(await page.evaluate(() => document.querySelector('#new > [data-zev=bar]') == document.bar));
    await hover(page, 'Products');
    await waitShown(page, 'Boats');
});

// ---- Another menu ----

// [when the other definition runs, how its place is named]
const swaps = [
    ['before the body is replaced', true, 'a call'], ['after the body is replaced', false, 'a call'],
    ['after the body is replaced', false, 'an element'],
];

for (const [when, isBefore, how] of swaps) {
    test(`another definition that runs ${when} is drawn at the place that ${how} names`, async () => {
        lab.files.set('/site/other.js', other);
        await lab.show();
        await hover(page, 'Products', 'Boats');
        if (isBefore) await run('other.js');
        await page.evaluate(mark => {
            document.body.innerHTML = `<p style="height: 100px">Another page</p><main><div ${mark}></div></main>`;
        }, how == 'a call' ? '' : 'data-zevmenu');
        if (!isBefore) await run('other.js');
        await page.evaluate(isCall => {
            const call = document.createElement('script');
            call.text = isCall ? 'ZEVDisplayMenu(); ZEVCreateMenu(); ZEVLoadMenu();' : 'ZEVLoadMenu();';
            document.querySelector('main').append(call);
        }, how == 'a call');
        await waitShown(page, 'Start');
        assert.ok((await rect(page, 'Start')).top >= 100);
        assert.equal(await shown(page, 'Home', 'Products', 'Boats', 'Start', 'Trees'), 'Start Trees');
        await hover(page, 'Trees', 'Oaks');
        await waitShown(page, 'Acorns');
        assert.equal(await countHosts(), 'bar layer');
        await page.mouse.move(700, 550);
        await waitGone(page, 'Oaks');
    });
}

test('the body itself may be replaced, and the old menu comes back when no other definition has run', async () => {
    await lab.show();
    await hover(page, 'Products', 'Boats');
    await page.evaluate(() => {
        document.body.replaceWith(document.createElement('body'));
        ZEVDisplayMenu();
    });
    await waitShown(page, 'Home');
    await hover(page, 'Products', 'Boats');
    await waitShown(page, 'Canoes');
    assert.equal(await countHosts(), 'bar layer');
});

test('links of pop-ups in the new body open the submenus of the new menu', async () => {
    lab.files.set('/site/other.js', other);
    await lab.show({ before: '<a id="old" href="" onmouseover="ZEVMenuOpen(\'zev1\', \'3\', event)">Old</a>' });
    await page.evaluate(() => {
        document.body.innerHTML = '<a id="new" href="" onmouseover="ZEVMenuOpen(\'zev1i2\', \'1\', event)">New</a>';
    });
    await run('other.js');
    await page.evaluate(() => ZEVDisplayMenu());
    assert.equal(await page.$eval('#new', link => link.getAttribute('aria-haspopup')), 'true');
    await page.hover('#new');
    await waitShown(page, 'Acorns');
});

test('a definition that runs while the bar is shown changes nothing until the bar has left', async () => {
    lab.files.set('/site/other.js', other);
    await lab.show();
    await run('other.js');
    await page.evaluate(() => { ZEVDisplayMenu(); ZEVCreateMenu(); ZEVLoadMenu(); });
    assert.equal(await shown(page, 'Home', 'Products', 'Start'), 'Home Products');
    await hover(page, 'Products');
    await waitShown(page, 'Boats');
});

test('a page swapped 20 times holds as much as after the first time', async () => {
    await lab.show({ head: countingScript });
    const count = () => page.evaluate(() => document.counts());
    const swap = () => page.evaluate(definition => {
        document.body.innerHTML = '<main></main>';
        for (const text of [definition, 'ZEVDisplayMenu(); ZEVLoadMenu();']) {
            const script = document.createElement('script');
            script.text = text;
            document.querySelector('main').append(script);
        }
    }, other);
    const steady = async () => {
        let last, now = await count();
        do {
            await pause(200);
            [last, now] = [now, await count()];
        } while (JSON.stringify(last) != JSON.stringify(now));
        return { ...now, timers: now.timers - driverTimers };
    };
    await swap();
    const first = await steady();
    assert.ok(first.elements > 10);
    for (let i = 0; i < 20; i++) await swap();
    assert.deepEqual(await steady(), first);
});
