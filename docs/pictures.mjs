// SPDX-License-Identifier: MIT
/*
 * Makes the pictures of properties.md, each from the lines that the page itself shows above it.
 *
 *   node docs/pictures.mjs                     into images/properties
 *   ENGINE=firefox node docs/pictures.mjs DIR  with another browser (or webkit), into DIR
 *   node docs/pictures.mjs --contact DIR       with all three browsers into folders of DIR, and beside
 *                                              these a sheet per property: chromium, firefox, webkit
 */
import { execFileSync } from 'node:child_process';
import { mkdirSync, writeFileSync } from 'node:fs';
import { basename, join } from 'node:path';
import { fileURLToPath } from 'node:url';
import { hover, pause, rect, startLab } from '../tests/runtime/browser/support.mjs';
import { readExamples } from './examples.mjs';

const here = fileURLToPath(new URL('.', import.meta.url));

// What the pictures show of the page around the menu, in pixels.
const margin = 8;

// A submenu has opened after that: its delay, and its short opening.
const openedSeconds = 0.4;

// What the page has around the menu: room on all sides, text below it, a frame beside it.
const head = `<style>body { margin: 100px 160px; font: 14px/1.4 Arial; color: #666; }
    iframe { position: absolute; left: 260px; top: 100px; width: 180px; height: 64px;
        border: 1px solid #999; }
    @media (max-width: 500px) { body { margin: 20px; } }
    </style>`;
const text = '<p style="margin: 8px 0">This is the text of the page that the menu stands in. A submenu ' +
    'lies above it, covers it as long as it is open, and moves nothing. This text goes on for a while, so ' +
    'that there is enough of it behind a submenu, wherever that opens, and then it ends.</p>';

const files = {
    '/site/tea.html': '<!DOCTYPE html><title>Tea</title><main style="font: 14px Arial; width: 140px">' +
        'This is the page that the item leads to.</main>',
    '/site/leaves.svg': `<svg xmlns="http://www.w3.org/2000/svg" width="24" height="24">
        <rect width="24" height="24" fill="#dcedc8"/>
        <path d="M4 20C4 10 10 4 20 4c0 10-6 16-16 16z" fill="#8bc34a"/></svg>`,
};

// Runs in the page: the rectangle around the menu, its open submenus and the frames of the page.
function contentRect() {
    const hosts = Array.from(document.querySelectorAll('[data-zev]'));
    const boxes = hosts.flatMap(host => Array.from(host.shadowRoot.querySelectorAll('ul')));
    const shown = boxes.concat(Array.from(document.querySelectorAll('iframe,main')))
        .filter(element => element.getClientRects().length).map(element => element.getBoundingClientRect());
    const left = Math.min(...shown.map(r => r.left)), top = Math.min(...shown.map(r => r.top));
    const right = Math.max(...shown.map(r => r.right)), bottom = Math.max(...shown.map(r => r.bottom));
    return { left, top, right, bottom };
}

// Stops the fading of the open submenus at a time, and waits until that is drawn.
async function holdFading(seconds) {
    const hosts = Array.from(document.querySelectorAll('[data-zev]'));
    const boxes = hosts.flatMap(host => Array.from(host.shadowRoot.querySelectorAll('ul')));
    for (const fading of boxes.flatMap(box => box.getAnimations())) {
        fading.pause();
        fading.currentTime = seconds * 1000;
        await fading.ready;
    }
    await new Promise(resolve => requestAnimationFrame(() => requestAnimationFrame(resolve)));
}

async function act(page, example) {
    if (example.mouseOn) {
        await hover(page, example.mouseOn);
        await pause((example.onSeconds ?? openedSeconds) * 1000);
    }
    if (example.fadingSeconds !== null) await page.evaluate(holdFading, example.fadingSeconds);
    if (example.leftSeconds !== null) {
        await page.mouse.move(1, 1);
        await pause(example.leftSeconds * 1000);
    }
    if (example.clickOn) {
        const { x, y, width, height } = await rect(page, example.clickOn);
        await page.mouse.click(x + width / 2, y + height / 2);
        if (example.lines.some(line => line.startsWith('zev_state.fold'))) return pause(openedSeconds * 1000);
        await page.waitForFunction(() => [window, ...Array.from(frames)].some(
            frame => frame.document.title == 'Tea'));
    }
}

async function takePicture(lab, example) {
    const page = await lab.show({ definition: example.definition, head, before: example.html, after: text,
                                  width: example.windowPx ?? undefined });
    await act(page, example);
    const content = await page.evaluate(contentRect);
    const x = Math.floor(content.left) - margin, y = Math.floor(content.top) - margin;
    const width = Math.ceil(content.right) + margin - x, height = Math.ceil(content.bottom) + margin - y;
    // Beyond the viewport, Chromium would make its window one pixel wide for a moment, and submenus whose
    // item is then out of sight would close.
    return page.screenshot({ clip: { x, y, width, height }, captureBeyondViewport: false });
}

// Makes every picture with the browser that ENGINE names.
async function takePictures(folder) {
    const lab = await startLab();
    mkdirSync(folder, { recursive: true });
    for (const [path, content] of Object.entries(files)) lab.files.set(path, content);
    try {
        for (const example of readExamples()) {
            writeFileSync(join(folder, basename(example.path)), await takePicture(lab, example));
        }
    } finally {
        await lab.close();
    }
}

// One picture per property: a row per example, a column per browser.
function makeContactSheets(folder) {
    const engines = ['chromium', 'firefox', 'webkit'];
    for (const ENGINE of engines) {
        execFileSync(process.execPath, [fileURLToPath(import.meta.url), join(folder, ENGINE)],
                     { env: { ...process.env, ENGINE }, stdio: 'inherit' });
    }
    const examples = readExamples();
    for (const property of new Set(examples.map(example => example.property))) {
        const names = examples.filter(example => example.property == property)
            .map(example => basename(example.path));
        const pictures = names.flatMap(name => engines.map(engine => join(folder, engine, name)));
        execFileSync('montage', ['-background', '#b0bec5', '-tile', '3x', '-geometry', '+6+6',
                                 ...pictures, join(folder, property + '.png')]);
    }
}

const [first, second] = process.argv.slice(2);
if (first == '--contact') makeContactSheets(second);
else await takePictures(first || join(here, 'images', 'properties'));
