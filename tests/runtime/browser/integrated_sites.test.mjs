// SPDX-License-Identifier: MIT
// Pages of sites of different make with the menu in them, as the integrator's own tests expect them byte for
// byte: the menu stands where it was placed, its submenus open, the site's own script has run.
import assert from 'node:assert/strict';
import { readFileSync, readdirSync, statSync } from 'node:fs';
import { after, before, test } from 'node:test';
import { fileURLToPath } from 'node:url';
import { engine, hover, libraryFolder, shown, startLab, waitReady, waitShown } from './support.mjs';

const sites = fileURLToPath(new URL('../../data/sites/', import.meta.url));
const names = readdirSync(sites).filter(name => statSync(sites + name).isDirectory());

let lab, page;
before(async () => {
    lab = await startLab();
    page = lab.page;
    for (const name of ['loader', 'dom', 'ns4']) {
        const file = `zevmenu_${name}.js`;
        lab.files.set('/site/lib/' + file, { text: readFileSync(libraryFolder + '/' + file) });
    }
    lab.files.set('/site/menu.js', { text: readFileSync(sites + 'menu.js') });
    await page.setViewport({ width: 800, height: 600 });
});
after(() => lab.close());

function optionsOf(name) {
    return Object.fromEntries(readFileSync(`${sites}${name}/options.txt`, 'utf8').trim().split('\n')
        .map(line => line.includes(': ') ? line.split(/: (.*)/).slice(0, 2) : [line, true]));
}

// What the server sends: no blocks of its own code, each byte else as it is. In WebKit the listener for what
// the page writes into its console comes first.
function sent(bytes) {
    let text = bytes.toString('latin1').replace(/<\?(?!xml)[^]*?(\?>|$)|<%[^]*?%>/g, '');
    if (engine == 'webkit') text = text.replace(/<head[^>]*>/i, '$&<script src="/listener.js"></script>');
    return Buffer.from(text, 'latin1');
}

async function open(name, file) {
    const path = `/site/${name}-${file}`;
    const type = optionsOf(name).type;
    lab.files.set(path, { text: sent(readFileSync(`${sites}${name}/${file}`)), headers: { 'Content-Type': type } });
    await page.mouse.move(799, 599);
    page.warnings = [];
    page.errors = [];
    await page.goto(lab.origin + path);
}

test('there are sites', () => assert(names.filter(name => optionsOf(name).parent).length >= 18));

for (const name of names) {
    const { parent, 'without-script': hasList } = optionsOf(name);
    if (!parent) continue;      // it has no place for a menu

    test(`the menu works in a page of the kind ${name}`, async () => {
        await open(name, 'placed.htm');
        await waitReady(page);
        await waitShown(page, 'Home');
        assert.deepEqual(await page.$$eval('[data-zev=bar]', (bars, parent) =>
            bars.map(bar => bar.parentNode.matches(parent)), parent), [true]);
        // Nothing but the marks and scripts of the placed menu is between its first mark and the menu.
        assert.equal(await page.$eval('[data-zev=bar]', bar => {
            let node = bar;
            do node = node.previousSibling; while (node && node.data != ' zevmenu menu ' &&
                (node.nodeType == 8 || /^(script|noscript)$/i.test(node.nodeName)));
            return node && node.data;
        }), ' zevmenu menu ');
        await hover(page, 'Products', 'Boats');
        assert.equal(await shown(page, 'Home', 'Boats', 'Ask'), 'Home Boats Ask');
        assert.equal(await page.$eval('html', html => html.getAttribute('data-own')), 'ran');
        // The list is for browsers without script only: it is not there, and in XHTML not rendered.
        assert.equal(await page.$$eval('nav[aria-label="Site menu"] a', links =>
            links.filter(link => link.getClientRects().length > 0).length), 0);
        assert.deepEqual([page.errors, page.warnings], [[], []]);
    });

    if (hasList && engine == 'chromium') test(`${name} shows the links to a browser without script`, async () => {
        await page.setJavaScriptEnabled(false);
        await open(name, 'placed.htm');
        await page.setJavaScriptEnabled(true);
        const links = await page.$$eval('nav[aria-label="Site menu"] a', links =>
            links.map(link => `${link.textContent} ${link.href} ${link.getClientRects().length > 0}`));
        assert.deepEqual(links, [`Home ${lab.origin}/site/index.html true`,
            `Boats ${lab.origin}/boats.html#all true`, 'Caf\u00e9 https://example.org/caf%C3%A9?a=1&b=2 true']);
    });
}
