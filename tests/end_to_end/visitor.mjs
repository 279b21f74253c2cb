// SPDX-License-Identifier: MIT
// A visitor with a browser: what the scripts here share that look at saved files.
import assert from 'node:assert/strict';
import { mkdtempSync, rmSync } from 'node:fs';
import { createRequire } from 'node:module';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { item, until } from '../runtime/browser/support.mjs';

const puppeteer = createRequire(new URL('../runtime/', import.meta.url))('puppeteer-core');

export const windowSize = { width: 900, height: 600 };

// Runs `visit` with a tab of a new chromium; a script error in one of its pages fails.
export async function withVisitor(visit) {
    const profile = mkdtempSync(join(tmpdir(), 'zevmenu-visitor-'));
    const browser = await puppeteer.launch({
        executablePath: process.env.CHROMIUM || '/usr/bin/chromium', headless: true, userDataDir: profile,
        args: ['--no-sandbox', '--disable-gpu', '--no-first-run', '--disable-background-networking'],
    });
    try {
        const page = await browser.newPage();
        const errors = [];
        page.on('pageerror', error => errors.push(String(error)));
        await page.setViewport(windowSize);
        await visit(page);
        assert.deepEqual(errors, []);
    } finally {
        await browser.close();
        rmSync(profile, { recursive: true, force: true, maxRetries: 5 });
    }
}

// Puts the mouse where no menu is.
export async function moveAway(page) {
    await page.mouse.move(windowSize.width - 1, windowSize.height - 1);
}

// Clicks an item and waits for the page with that address and title.
export async function clickAndExpect(page, name, url, title) {
    await (await item(page, name)).click();
    await until(async () => await page.title().catch(() => '') == title, `the page "${title}"`);
    assert.equal(page.url(), url);
}
