// SPDX-License-Identifier: MIT
// Measures the run-time library beside other menu libraries in the browser that ENGINE names (chromium,
// firefox or webkit), and prints a table: node run.mjs [ROUNDS]. What is measured, and how, is told in
// ../README.md.
import { readFileSync } from 'node:fs';
import { engine, pause, startLab, until } from '../../tests/runtime/browser/support.mjs';
import { contenders, makeMenu, pageText, shapes } from './contenders.mjs';
import { measureSizes } from './sizes.mjs';
import { printTable } from './table.mjs';

const rounds = Number(process.argv[2] || 7);
const names = Object.keys(contenders);
const sizes = Object.keys(shapes).map(Number);
const largest = sizes.at(-1);
const slowSizes = [sizes[0], largest];
const laterOpenings = 3;
const answerDelayMs = 100;
const restMs = 200;
const idleMs = 1000;

const probeText = readFileSync(new URL('probe.js', import.meta.url), 'utf8');
const types = { js: 'text/javascript', css: 'text/css' };
// With these a browser gives a page exact times.
const isolation = { 'Cross-Origin-Opener-Policy': 'same-origin',
                    'Cross-Origin-Embedder-Policy': 'require-corp' };

const figures = new Map();

function note(what, name, size, value) {
    const key = [what, name, size].join();
    figures.set(key, [...figures.get(key) || [], value]);
}

function median(what, name, size) {
    const values = figures.get([what, name, size].join());
    return values && values.toSorted((a, b) => a - b)[Math.floor(values.length / 2)];
}

// Puts a contender's page and files on the server. Files that are not slow stay in the browser's cache.
function addPages(files, name, size) {
    const contender = contenders[name], items = makeMenu(size);
    const probe = `${probeText}
        bench.lateScript = ${JSON.stringify(contender.lateScript || '')};
        bench.opener = function () { return ${contender.opener}; };
        bench.submenu = function () { return ${contender.submenu}; };`;
    for (const isSlow of [false, true]) {
        const folder = folderOf(name, size, isSlow);
        files.set(folder + 'page.html', { text: pageText(contender, items, probe), headers: isolation });
        for (const [file, text] of Object.entries(contender.files(items))) {
            const headers = { 'Content-Type': types[file.split('.').pop()] + '; charset=utf-8',
                              'Cache-Control': isSlow ? 'no-store' : 'max-age=3600' };
            files.set(folder + file, { text, headers, delayMs: isSlow ? answerDelayMs : 0 });
        }
    }
}

function folderOf(name, size, isSlow) {
    return `/${name.replace(' ', '-')}/${size}/${isSlow ? 'slow' : 'fast'}/`;
}

// Shows the page of a contender after a rest on an empty one, in which the browser can tidy up what the page
// before left. Gives the milliseconds until it was drawn and ready.
async function load(page, origin, name, size, isSlow = false) {
    await page.goto(origin + '/empty.html');
    await page.mouse.move(1000, 700);
    await pause(restMs);
    return show(page, origin, name, size, isSlow);
}

async function show(page, origin, name, size, isSlow) {
    await page.goto(origin + folderOf(name, size, isSlow) + 'page.html');
    await page.waitForFunction(() => bench.ready);
    if (page.errors?.length) throw new Error(`${name}: ${page.errors.join('; ')}`);
    return page.evaluate(() => ({ drawn: bench.drawn - bench.start, ready: bench.ready - bench.start }));
}

// Opens the second item's submenu with the mouse, as a visitor would, and closes it again.
async function open(page, name) {
    const { isClicked } = contenders[name];
    const at = await page.evaluate(isClicked => {
        bench.watch(isClicked ? ['click'] : ['pointerover', 'pointermove']);
        const { x, y, width, height } = bench.opener().getBoundingClientRect();
        return { x: x + width / 2, y: y + height / 2 };
    }, !!isClicked);
    if (isClicked) await page.mouse.click(at.x, at.y);
    else await page.mouse.move(at.x, at.y);
    await until(() => page.evaluate(() => bench.opening !== null), `${name} to open its submenu`, 20000);
    const opening = await page.evaluate(() => bench.opening);
    if (isClicked) await page.mouse.click(1000, 700);
    else await page.mouse.move(1000, 700);
    await until(() => page.evaluate(() => !bench.isShown()), `${name} to close its submenu`, 20000);
    await pause(100);
    return opening;
}

// A small movement on the empty page: some libraries open nothing before they have seen a mouse.
async function moveABit(page) {
    for (let step = 0; step < 4; step++) await page.mouse.move(1000 - 2 * step, 700);
}

async function measureOpenings(page, name, size) {
    await pause(idleMs);
    note('elements', name, size, await page.evaluate(() => bench.countElements()));
    await moveABit(page);
    const first = await open(page, name);
    note('first', name, size, first);
    for (let time = 0; time < laterOpenings; time++) note('later', name, size, await open(page, name));
}

// Bytes that are alive in a page nobody has used yet: of scripts, and of scripts and elements. A new tab has
// nothing in it of the pages before.
async function measureHeap(lab, name) {
    const page = await lab.page.browser().newPage();
    await show(page, lab.origin, name, largest, false);
    await pause(idleMs);
    const session = await page.createCDPSession();
    await session.send('HeapProfiler.collectGarbage');
    const { usedSize, embedderHeapUsedSize } = await session.send('Runtime.getHeapUsage');
    note('script heap', name, largest, usedSize);
    note('whole heap', name, largest, usedSize + embedderHeapUsedSize);
    await page.close();
}

// Another order each time, so that what a page leaves to tidy up falls on every other in turn.
function shuffled(list) {
    const result = [...list];
    for (let index = result.length - 1; index > 0; index--) {
        const other = Math.floor(Math.random() * (index + 1));
        [result[index], result[other]] = [result[other], result[index]];
    }
    return result;
}

async function measureRound(lab, isCounted) {
    for (const size of sizes) {
        for (const name of shuffled(names)) {
            const { drawn, ready } = await load(lab.page, lab.origin, name, size);
            if (!isCounted) continue;
            note('drawn', name, size, drawn);
            note('ready', name, size, ready);
            if (contenders[name].submenu) await measureOpenings(lab.page, name, size);
        }
    }
    if (!isCounted) return;
    for (const size of slowSizes) {
        for (const name of shuffled(names)) {
            const { drawn, ready } = await load(lab.page, lab.origin, name, size, true);
            note('slow drawn', name, size, drawn);
            note('slow ready', name, size, ready);
        }
    }
    if (engine != 'chromium') return;
    for (const name of names) await measureHeap(lab, name);
}

// What 300 openings and 50 calls of ZEVLoadMenu leave behind: { elements, listeners }. Only chromium
// counts listeners.
async function measureGrowth(lab) {
    await load(lab.page, lab.origin, 'zevmenu', 500);
    await pause(idleMs);
    const session = engine == 'chromium' ? await lab.page.createCDPSession() : null;
    const count = async () => {
        await pause(300);
        const elements = await lab.page.evaluate(() => bench.countElements());
        if (!session) return [elements];
        await session.send('HeapProfiler.collectGarbage');
        return [elements, (await session.send('Memory.getDOMCounters')).jsEventListeners];
    };
    await open(lab.page, 'zevmenu');
    const before = await count();
    const at = await lab.page.evaluate(() => {
        const { x, y, width, height } = bench.opener().getBoundingClientRect();
        return { x: x + width / 2, y: y + height / 2 };
    });
    for (let time = 0; time < 300; time++) {
        await lab.page.mouse.move(at.x, at.y);
        await until(() => lab.page.evaluate(() => bench.isShown()), 'the submenu to open', 20000);
        await lab.page.mouse.move(1000, 700);
        await until(() => lab.page.evaluate(() => !bench.isShown()), 'the submenu to close', 20000);
    }
    await lab.page.evaluate(() => { for (let time = 0; time < 50; time++) ZEVLoadMenu(); });
    const after = await count();
    return { elements: after[0] - before[0], listeners: session ? after[1] - before[1] : null };
}

const lab = await startLab();
try {
    await lab.page.setViewport({ width: 1024, height: 768 });
    lab.files.set('/empty.html', { text: '<!DOCTYPE html><title>Empty</title>', headers: isolation });
    for (const name of names) {
        for (const size of sizes) addPages(lab.files, name, size);
    }
    await measureRound(lab, false);
    for (let round = 0; round < rounds; round++) await measureRound(lab, true);
    const growth = await measureGrowth(lab), sizesOf = await measureSizes();
    printTable({ rounds, names, sizes, slowSizes, median, growth, sizesOf });
} finally {
    await lab.close();
}
