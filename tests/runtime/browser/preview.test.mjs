// SPDX-License-Identifier: MIT
// The preview page's list of pop-up links.
import assert from 'node:assert/strict';
import { copyFileSync, mkdtempSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { createServer } from 'node:net';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { after, afterEach, before, test } from 'node:test';
import { pathToFileURL } from 'node:url';
import { hover, item, libraryFolder, nested, shown, startLab, until, waitAt, waitReady, waitShown } from './support.mjs';

let lab, page;
before(async () => {
    lab = await startLab();
    page = lab.page;
});
after(() => lab.close());
afterEach(() => assert.deepEqual(page.errors, []));

async function showPreview(definition, width = 800) {
    for (const [name, source] of [['orlet_temp.html', 'zevmenu.html'], ['zevmenu_loader.js', 'zevmenu_loader.js'],
        ['zevmenu_dom.js', 'zevmenu_dom.js']]) {
        lab.files.set('/preview/' + name, readFileSync(join(libraryFolder, source), 'utf8'));
    }
    lab.files.set('/preview/orlet_temp.js', definition);
    await page.setViewport({ width, height: 600 });
    await page.mouse.move(1, 1);
    await page.goto(lab.origin + '/preview/orlet_temp.html');
    await waitReady(page);
}

test('the preview page lists each submenu with items as a pop-up link that bears the way to it', async () => {
    await showPreview(nested.replace("'Boats'", "'<b>Bo</b>ats &amp; more'") +
        "zevmenu = new ZEVMenu('1'); zevmenu.AddItem();");
    const links = await page.$$eval('#links a', all => all.map(link => link.textContent));
    assert.deepEqual(links, ['Products', 'Products › Boats & more', 'Products › Boats & more › Kayaks',
                             'Contact']);
    await page.hover('#links a:nth-child(2)');
    await waitShown(page, 'Canoes');
    assert.equal(await shown(page, 'Boats', 'Canoes', 'Sea kayaks', 'Map'), 'Canoes');
    await hover(page, 'Kayaks');
    await waitShown(page, 'Sea kayaks');
});

test('the preview page names a pop-up link of a rollover after its file', async () => {
    await showPreview(`zevmenu = new ZEVMenu('0'); zevmenu.AddRollover('our_team.html', 'a.gif', 'b.gif', '');
        zevmenu = new ZEVMenu('1'); zevmenu.AddItem('Ann', '', '');`);
    assert.equal(await page.$eval('#links a', link => link.textContent), 'our team');
});

test('the list of pop-up links adds no names to the page', async () => {
    await showPreview(nested);
    const names = await page.evaluate(() => ['shared', 'nameOf', 'addLink', 'addSubmenusOf'].filter(name =>
        name in window));
    assert.deepEqual(names, []);
});

test('the preview page says what a click on a link does: a browser follows it', async () => {
    await showPreview(nested);
    const text = await page.$eval('main', main => main.innerText.replace(/\s+/g, ' '));
    assert.match(text, /In the editor a click on a link to a page stays here and tells where the link leads;/);
    assert.match(text, /; in a browser it is followed\./);
    await (await item(page, 'Home')).click();
    await waitAt(page, lab.origin + '/preview/home.html');
});

test('the preview page has no list of pop-ups where there are no submenus', async () => {
    await showPreview("zevmenu = new ZEVMenu('0'); zevmenu.AddItem('Home', '', '');");
    assert.equal(await page.$eval('#popups', popups => popups.hidden), true);
});

test('the preview page is not wider than a phone with long names of pop-ups', async () => {
    await showPreview(nested.replace('Kayaks', 'Kayaks'.repeat(20)), 320);
    const [width, room] = await page.evaluate(() => [document.scrollingElement.scrollWidth,
        document.documentElement.clientWidth]);
    assert.ok(width <= room && room <= 320, `${width} in ${room}`);
});

test('the preview page opened from the disk shows its menu, which reaches no other file and no server', async t => {
    // Chromium connects ahead before it asks the policy; what counts is what is sent.
    const heard = [];
    const server = createServer(socket => {
        socket.on('data', bytes => { heard.push(String(bytes).slice(0, 80)); socket.destroy(); });
        socket.on('error', () => {});
    });
    await new Promise(resolve => server.listen(0, '127.0.0.1', resolve));
    const folder = mkdtempSync(join(tmpdir(), 'preview-'));
    t.after(() => { server.close(); rmSync(folder, { recursive: true }); });
    for (const [name, source] of [['orlet_temp.html', 'zevmenu.html'], ['zevmenu_loader.js', 'zevmenu_loader.js'],
        ['zevmenu_dom.js', 'zevmenu_dom.js']]) {
        copyFileSync(join(libraryFolder, source), join(folder, name));
    }
    writeFileSync(join(folder, 'secret.html'), '<script>parent.read = 1</script>');
    const other = `http://127.0.0.1:${server.address().port}/`;
    writeFileSync(join(folder, 'orlet_temp.js'), `${nested}
        onmessage = event => { read = event.data };
        const attempts = [
            () => fetch('${other}1', { mode: 'no-cors' }), () => navigator.sendBeacon('${other}2', 'x'),
            () => { r = new XMLHttpRequest; r.open('GET', '${other}3'); r.send(); },
            () => new WebSocket('${other}'.replace('http', 'ws')), () => new EventSource('${other}4'),
            () => new Worker('data:text/javascript,fetch("${other}5",{mode:"no-cors"})'),
            () => new Worker(URL.createObjectURL(new Blob(['fetch("${other}6",{mode:"no-cors"})']))),
            ...['script', 'iframe', 'embed', 'video', 'audio'].map(tag => () =>
                document.body.append(Object.assign(document.createElement(tag), { src: '${other}7' }))),
            () => document.body.append(Object.assign(document.createElement('iframe'), { src: 'secret.html' })),
            () => document.body.append(Object.assign(document.createElement('object'), { data: '${other}8' })),
            () => document.body.append(Object.assign(document.createElement('link'),
                { rel: 'stylesheet', href: '${other}9' })),
            () => { const form = document.createElement('form'); form.action = '${other}10';
                document.body.append(form); form.submit(); },
        ];
        tried = 0;
        addEventListener('load', () => attempts.forEach(attempt => { try { attempt(); } catch {} ++tried; }));`);
    await page.goto(pathToFileURL(join(folder, 'orlet_temp.html')).href);
    await waitReady(page);
    await until(() => page.evaluate(() => tried == attempts.length), 'every attempt');
    await new Promise(resolve => setTimeout(resolve, 1500));
    assert.deepEqual(heard, []);
    assert.equal(await page.evaluate(() => typeof read), 'undefined');
    assert.match(await page.url(), /orlet_temp\.html$/);
    // Firefox tells the console's listener of what it refuses.
    page.errors = [];
});
