// A visitor of the saved menu: opens the folder's page in chromium and clicks through the menu.
//
//     node click_through.mjs FOLDER
//
// FOLDER holds the menu that test_editor.cpp makes, and its page. Exit status 0 when all went well.
import assert from 'node:assert/strict';
import { existsSync, mkdtempSync, rmSync, writeFileSync } from 'node:fs';
import { createRequire } from 'node:module';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { pathToFileURL } from 'node:url';
import { hover, item, pause, shown, until, waitGone, waitShown } from '../runtime/browser/support.mjs';

const puppeteer = createRequire(new URL('../runtime/', import.meta.url))('puppeteer-core');

const folder = process.argv[2];
const everything = ['Home', 'Products', "It's us", 'Boats', 'Oars'];
const top = "Home Products It's us";

const profile = mkdtempSync(join(tmpdir(), 'zevmenu-visitor-'));
const browser = await puppeteer.launch({
    executablePath: process.env.CHROMIUM || '/usr/bin/chromium', headless: true, userDataDir: profile,
    args: ['--no-sandbox', '--disable-gpu', '--no-first-run', '--disable-background-networking'],
});
try {
    for (const name of ['home', 'products', 'about', 'boats', 'oars']) {
        assert(!existsSync(join(folder, name + '.html')));
        writeFileSync(join(folder, name + '.html'), `<!DOCTYPE html><title>${name}</title>`);
    }
    const page = await browser.newPage();
    const errors = [];
    page.on('pageerror', error => errors.push(String(error)));
    await page.setViewport({ width: 900, height: 600 });
    const menuPage = pathToFileURL(join(folder, 'orlet_temp.html')).href;

    async function open() {
        await page.goto(menuPage);
        await page.mouse.move(899, 599);
        await waitShown(page, 'Home');
    }

    async function clickAndExpect(name, title) {
        await (await item(page, name)).click();
        await until(async () => await page.title().catch(() => '') == title, `the page "${title}"`);
        assert.equal(page.url(), new URL(title + '.html', menuPage).href);
    }

    // Hovering opens the submenu; leaving closes it.
    await open();
    assert.equal(await shown(page, ...everything), top);
    await hover(page, 'Products');
    await waitShown(page, 'Boats');
    assert.equal(await shown(page, ...everything), top + ' Boats Oars');
    await page.mouse.move(899, 599);
    await waitGone(page, 'Boats');

    // Top items and submenu items lead to their pages.
    await clickAndExpect("It's us", 'about');
    await open();
    await hover(page, 'Products', 'Boats', 'Oars');
    await pause(100);
    await clickAndExpect('Oars', 'oars');
    await open();
    await hover(page, 'Products', 'Boats');
    await clickAndExpect('Boats', 'boats');
    assert.deepEqual(errors, []);
} finally {
    await browser.close();
    rmSync(profile, { recursive: true, force: true, maxRetries: 5 });
}
