// Starts the browser that ENGINE names: chromium (if nothing is named), firefox or webkit. Whatever a
// browser writes goes into a folder of its own, which close() removes.
import { mkdtempSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import puppeteer from 'puppeteer-core';
import { startWebKit } from './support_webkit.mjs';

export const engine = process.env.ENGINE || 'chromium';

const chromiumArguments = ['--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run',
    '--disable-background-networking', '--disable-component-update', '--disable-sync'];

const launchers = {
    chromium: (profile, { reducedMotion }) => puppeteer.launch({
        executablePath: process.env.CHROMIUM || '/usr/bin/chromium', headless: true, userDataDir: profile,
        args: [...chromiumArguments, ...reducedMotion ? ['--force-prefers-reduced-motion'] : []],
    }),
    firefox: (profile, { reducedMotion }) => puppeteer.launch({
        browser: 'firefox', executablePath: process.env.FIREFOX || '/usr/bin/firefox-esr', headless: true,
        userDataDir: profile, extraPrefsFirefox: { 'ui.prefersReducedMotion': reducedMotion ? 1 : 0 },
    }),
    webkit: startWebKit,
};

/*
 * Options: reducedMotion, for a visitor who wants less motion; awaitsLoad, false where a test asks a page that
 * has not loaded yet. Gives { browser, close }.
 */
export async function startBrowser(options = {}) {
    const profile = mkdtempSync(join(tmpdir(), 'zevmenu-browser-'));
    const browser = await launchers[engine](profile, options);
    return {
        browser,
        async close() {
            await browser.close();
            rmSync(profile, { recursive: true, force: true, maxRetries: 5 });
        },
    };
}
