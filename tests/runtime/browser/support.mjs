// SPDX-License-Identifier: MIT
// What the browser tests share: one browser, a web server on this machine that serves the library
// and the pages of a test, and questions about what a visitor sees.
import { readFile } from 'node:fs/promises';
import { createServer } from 'node:http';
import { join } from 'node:path';
import { fileURLToPath } from 'node:url';
import { inflateSync } from 'node:zlib';
import { library } from '../library.mjs';
import { engine, startBrowser } from './support_engines.mjs';

export { engine };

export const libraryFolder = fileURLToPath(library);
export const samplesFolder = fileURLToPath(new URL('../../../samples/', import.meta.url));

const types = { html: 'text/html', xhtml: 'application/xhtml+xml', js: 'text/javascript', svg: 'image/svg+xml' };
// The sample pages name the library's folder as seen from the checkout.
const folders = { runtime: libraryFolder, 'build/release/bin': libraryFolder, samples: samplesFolder };

// How long the tests wait for what must come; a busy machine can be slow.
const patienceMs = 20000;

/*
 * Starts the browser and the server. Paths of the server: /runtime/ is the folder of the built
 * library, /samples/ that of the repository, everything else comes from `files` (path -> text, a function that gives it or a promise of
 * it, or { text, headers, delayMs });
 * any other .html answers with an empty page, as a place for links to lead to. The options are
 * startBrowser()'s.
 */
export async function startLab(options = {}) {
    const files = new Map();
    let page;
    const { browser, close } = await startBrowser(options);
    const server = createServer((request, response) => request.method == 'POST'
        ? hear(page, request, response) : answer(files, request, response));
    await new Promise(resolve => server.listen(0, '127.0.0.1', resolve));
    const origin = `http://127.0.0.1:${server.address().port}`;
    page = await newPage(browser);
    return {
        origin, files, page,
        show: (options = {}) => show(page, origin, files, options),
        async close() {
            // The server first: while it runs, so do the tests.
            server.closeAllConnections();
            server.close();
            await close();
        },
    };
}

async function answer(files, request, response) {
    const path = decodeURIComponent(new URL(request.url, 'http://localhost').pathname);
    const [, folder, name] = /^\/(runtime|build\/release\/bin|samples)\/(.*)$/.exec(path) || [];
    const given = files.get(path);
    const { text = typeof given == 'function' ? await given() : given, headers = {}, delayMs = 0 } = given ?? {};
    const found = path == '/listener.js' ? listenerText : text !== undefined ? text
        : folder ? await readFile(join(folders[folder], name)).catch(() => null)
        : path.endsWith('.html') ? `<!DOCTYPE html><title>${path}</title>` : null;
    await new Promise(resolve => setTimeout(resolve, delayMs));
    const isPage = /html$/.test(path);
    const type = types[path.split('.').pop()] || 'text/plain';
    response.writeHead(found === null ? 404 : 200, {
        'Content-Type': type + '; charset=utf-8', 'Cache-Control': given === undefined ? 'max-age=60' : 'no-store',
        ...headers,
    });
    response.end(engine == 'webkit' && isPage ? String(found).replace('<head>', '<head>' + listener) : found);
}

/*
 * WebKit's driver does not tell what a page writes into its console. There the server puts a script at the
 * start of each page, which sends that here before the page goes on.
 */
const listener = '<script src="/listener.js"></script>';
const listenerText = `(() => {
    const tell = (event, text) => {
        const request = new XMLHttpRequest();
        request.open('POST', '/', false);
        request.send(JSON.stringify([event, String(text)]));
    };
    const warn = console.warn;
    console.warn = (...words) => { tell('console', words.join(' ')); warn.apply(console, words); };
    addEventListener('error', event => tell('pageerror', event.message));
    addEventListener('unhandledrejection', event => tell('pageerror', event.reason));
})();`;

async function hear(page, request, response) {
    let body = '';
    for await (const part of request) body += part;
    const [event, text] = JSON.parse(body);
    page.emit(event, event == 'console' ? { type: () => 'warn', text: () => text } : text);
    response.end();
}

// A browser tab; `warnings` and `errors` collect what its console got since the last show().
async function newPage(browser) {
    const page = await browser.newPage();
    page.setDefaultTimeout(patienceMs);
    page.warnings = [];
    page.errors = [];
    page.on('console', message => message.type() == 'warn' && page.warnings.push(message.text()));
    page.on('pageerror', error => page.errors.push(String(error)));
    sizeOnce(page);
    if (engine == 'firefox') nameSpaceKey(page.keyboard);
    return page;
}

// Sizing the window takes longer than most tests; it is done when the size changes.
function sizeOnce(page) {
    const original = page.setViewport.bind(page);
    let current = '';
    page.setViewport = async viewport => {
        const wanted = JSON.stringify(viewport);
        if (wanted != current) await original(viewport).catch(error => awaitSize(page, viewport, error));
        current = wanted;
    };
}

// Firefox before 153 has no way to turn a screen, which puppeteer asks for with the size.
async function awaitSize(page, { width }, error) {
    if (!error.message.includes('setScreenOrientationOverride')) throw error;
    await until(() => page.evaluate(width => innerWidth == width, width), `a page of ${width} pixels`);
}

// Firefox takes keys by what they type, which for the space bar is not the name of the key.
function nameSpaceKey(keyboard) {
    for (const action of ['press', 'down', 'up']) {
        const original = keyboard[action].bind(keyboard);
        keyboard[action] = key => original(key == 'Space' ? ' ' : key);
    }
}

export const script = text => `<script language="JavaScript1.2">${text}</script>`;
export const source = url => `<script language="JavaScript1.2" src="${url}"></script>`;

// A page as the integrator writes it. Every part can be replaced; `place` is what stands where the
// menu is to be drawn.
export function pageText({
    doctype = '<!DOCTYPE html>', library = '/runtime/', definitionUrl = 'menu.js', head = '', before = '',
    place = source(definitionUrl) + script('ZEVDisplayMenu();'), after = '',
    end = script('ZEVCreateMenu()'), handlers = 'onload="ZEVLoadMenu();" onresize="ZEVLoadMenu();"',
    html = '<html lang="en">',
    loader = script(`var zev_path = '${library}';`) + source(library + 'zevmenu_loader.js'),
} = {}) {
    return `${doctype}\n${html}<head><meta charset="utf-8"><title>Test</title>${loader}${head}</head>\n` +
        `<body ${handlers}>${before}${place}${after}${end}</body></html>`;
}

/*
 * Shows a page with the given definition in the lab's tab and waits until the library is ready (unless
 * `awaitsLibrary` is false); the mouse is then in the window's lower right corner. Options: those of
 * pageText(), `definition` and the delay of its answer, `path` of the page, `headers` of its answer,
 * and the window's width, height, hasTouch.
 */
async function show(page, origin, files, options) {
    const { definition = nested, definitionDelayMs = 0, path = '/site/page.html', headers = {} } = options;
    const { width = 800, height = 600, hasTouch = false, awaitsLibrary = true } = options;
    files.set('/site/menu.js', { text: definition, delayMs: definitionDelayMs });
    files.set(path, { text: pageText(options), headers });
    await page.setViewport({ width, height, hasTouch });
    await page.mouse.move(width - 1, height - 1);
    page.warnings = [];
    page.errors = [];
    await page.goto(origin + path);
    if (awaitsLibrary) await waitReady(page);
    return page;
}

// Waits until both files of the library are there.
export async function waitReady(page) {
    await until(() => page.evaluate(() => !!window.ZEVMenu?.shared.sums), 'the library');
}

// Home, Products and Contact; below Products two boats, below them kayaks, below them sea kayaks.
export const nested = `
zev_state.closedelay = 300;
zevmenu = new ZEVMenu('0');
zevmenu.columns = 10;
zevmenu.position = 'bottom';
zevmenu.cellpadding = 5;
zevmenu.AddItem('Home', 'home.html', '');
zevmenu.AddItem('Products', 'products.html', '');
zevmenu.AddItem('Contact', 'contact.html', '');
zevmenu = new ZEVMenu('2');
zevmenu.cellpadding = 5;
zevmenu.AddItem('Boats', 'boats.html', '');
zevmenu.AddItem('Oars', 'oars.html', '');
zevmenu = new ZEVMenu('2i1');
zevmenu.cellpadding = 5;
zevmenu.AddItem('Canoes', 'canoes.html', '');
zevmenu.AddItem('Kayaks', 'kayaks.html', '');
zevmenu = new ZEVMenu('2i1i2');
zevmenu.cellpadding = 5;
zevmenu.AddItem('Sea kayaks', 'sea.html', '');
zevmenu = new ZEVMenu('3');
zevmenu.cellpadding = 5;
zevmenu.AddItem('Map', 'map.html', '');
zevmenu.AddItem('Letter', 'letter.html', '');
`;

// ---- What a visitor sees ----

/*
 * Runs in the page: what is to be seen of the items with those names, all at one moment; null for a name
 * that no menu has. `value` is that of the CSS property of what the selector finds around the item.
 */
function look(names, selector, property) {
    // WebKit divides an element's rectangle by the zoom that the element has from its style and its ancestors'.
    const windowRect = element => {
        const { x, y, width, height } = element.getBoundingClientRect();
        let zoom = 1;
        if (!('currentCSSZoom' in element)) {
            for (let other = element; other; other = other.parentElement || other.getRootNode().host) {
                zoom *= parseFloat(getComputedStyle(other).zoom) || 1;
            }
        }
        return new DOMRect(x * zoom, y * zoom, width * zoom, height * zoom).toJSON();
    };
    const roots = [...document.querySelectorAll('[data-zev]')].map(host => host.shadowRoot);
    return names.map(name => {
        const selected = `li > a:is([aria-label="${name}"], :has(> img[alt="${name}"]))`;
        const link = roots.map(root => root.querySelector(selected)).find(Boolean);
        return !link ? null : {
            isShown: link.getClientRects().length > 0,
            rect: windowRect(link),
            boxRect: windowRect(link.closest('ul')),
            value: getComputedStyle(link.closest(selector))[property],
        };
    });
}

// What look() tells of one item; fails when no menu has it.
async function lookAt(page, name, selector = 'a', property = 'display') {
    const [found] = await page.evaluate(look, [name], selector, property);
    if (!found) throw new Error(`no item "${name}"`);
    return found;
}

// The element of the item with that name; fails when no menu has it.
export async function item(page, name) {
    const found = await page.$(`>>> li > a:is([aria-label="${name}"], :has(> img[alt="${name}"]))`);
    if (!found) throw new Error(`no item "${name}"`);
    return found;
}

export async function isShown(page, name) {
    return await shown(page, name) == name;
}

// Which of the names are to be seen.
export async function shown(page, ...names) {
    const found = await page.evaluate(look, names, 'a', 'display');
    return names.filter((name, index) => found[index]?.isShown).join(' ');
}

// The rectangle of an item in the window.
export async function rect(page, name) {
    return (await lookAt(page, name)).rect;
}

// The rectangle of the box around an item.
export async function boxRect(page, name) {
    return (await lookAt(page, name)).boxRect;
}

export async function style(page, name, property, selector = 'a') {
    return (await lookAt(page, name, selector, property)).value;
}

export async function waitShown(page, name, timeout = patienceMs) {
    await until(() => isShown(page, name), `"${name}" to be shown`, timeout);
}

export async function waitGone(page, name, timeout = patienceMs) {
    await until(async () => !await isShown(page, name), `"${name}" to be gone`, timeout);
}

export async function until(question, what, timeout = patienceMs) {
    const end = Date.now() + timeout;
    while (!await question()) {
        if (Date.now() > end) throw new Error(`waited ${timeout} ms for ${what}`);
        await pause(10);
    }
}

// Waits until a link has led to that address and the page there is complete, so that its arrival does not
// disturb what the test does next. The page itself is asked: the browser's driver knows of a new address before
// the old page is gone. A page that goes while it is asked has not arrived.
export async function waitAt(page, url) {
    await until(() => page.evaluate(url => location.href == url && document.readyState == 'complete', url)
        .catch(() => false), url);
}

export function pause(ms) {
    return new Promise(resolve => setTimeout(resolve, ms));
}

// Whether assistive technology is told exactly that name of the element.
export async function isNamed(page, selector, name) {
    const element = await page.$(selector);
    if (engine == 'webkit') return await element.accessibleName() == name;
    if (engine == 'chromium') {
        return (await page.accessibility.snapshot({ root: element, interestingOnly: false })).name == name;
    }
    const parent = await element.evaluateHandle(element => element.parentNode);
    const named = await parent.$$(`::-p-aria([name="${name}"])`);
    return (await Promise.all(named.map(other => other.evaluate((other, element) => other == element, element))))
        .includes(true);
}

/*
 * Puts those rules of the library's style sheets in force that are for another medium: `media` as the sheet
 * says it, without spaces. For what an engine's driver cannot change.
 */
export function enforceMedia(page, media) {
    return page.evaluate(wanted => document.querySelectorAll('[data-zev]').forEach(({ shadowRoot }) => {
        for (const { media } of shadowRoot.adoptedStyleSheets.flatMap(sheet => [...sheet.cssRules])) {
            if (media?.mediaText.replace(/ /g, '') == wanted) media.mediaText = 'all';
        }
    }), media);
}

// The fill colours on the printed page, each as "r g b" with r, g and b from 0 to 255.
export async function printedColours(page) {
    const bytes = Buffer.from(await page.pdf({ printBackground: true }));
    const found = new Set();
    for (let start = bytes.indexOf('stream\n'); start >= 0; start = bytes.indexOf('stream\n', start + 1)) {
        if (bytes.toString('latin1', start - 3, start) == 'end') continue;
        const data = bytes.subarray(start + 7);
        if ((data[0] & 15) != 8) continue;
        const text = inflateSync(data).toString('latin1');
        for (const [, ...parts] of text.matchAll(/([\d.]+) ([\d.]+) ([\d.]+) rg\b/g)) {
            found.add(parts.map(part => Math.round(part * 255)).join(' '));
        }
    }
    return found;
}

// Moves the mouse onto items one after the other, and waits for each to be there.
export async function hover(page, ...names) {
    for (const name of names) {
        await waitShown(page, name);
        const { x, y, width, height } = await rect(page, name);
        await page.mouse.move(x + width / 2, y + height / 2);
    }
}

// Name of the item that has the focus.
export function focus(page) {
    return page.evaluate(() => {
        const host = document.activeElement;
        const link = host?.shadowRoot?.activeElement || host;
        return link.getAttribute('aria-label') || link.id || link.tagName;
    });
}
