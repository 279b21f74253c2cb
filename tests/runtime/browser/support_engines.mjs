// SPDX-License-Identifier: MIT
// Starts the browser that ENGINE names: chromium (if nothing is named), firefox or webkit. Whatever a
// browser writes goes into a folder of its own, which close() removes.
import { once } from 'node:events';
import { mkdtempSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import puppeteer from 'puppeteer-core';
import { startWebKit } from './support_webkit.mjs';

export const engine = process.env.ENGINE || 'chromium';

const chromiumArguments = ['--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run',
    '--disable-background-networking', '--disable-component-update', '--disable-sync'];

const timeout = 120000;     // milliseconds that a browser may take to start on a busy machine

const launchers = {
    chromium: (profile, { reducedMotion, forcedColours }) => puppeteer.launch({
        executablePath: process.env.CHROMIUM || '/usr/bin/chromium', headless: true, userDataDir: profile, timeout,
        args: [...chromiumArguments, ...reducedMotion ? ['--force-prefers-reduced-motion'] : [],
               ...forcedColours ? ['--force-high-contrast'] : []],
    }),
    firefox: (profile, { reducedMotion, forcedColours, coarsePointer }) => puppeteer.launch({
        browser: 'firefox', executablePath: process.env.FIREFOX || '/usr/bin/firefox-esr', headless: true,
        userDataDir: profile, timeout, extraPrefsFirefox: {
            // As for visitors: the driver would let pages from the disk read each other.
            'security.fileuri.strict_origin_policy': true,
            'ui.prefersReducedMotion': reducedMotion ? 1 : 0,
            'browser.display.document_color_use': forcedColours ? 2 : 1,
            ...coarsePointer && { 'ui.primaryPointerCapabilities': 1, 'ui.allPointerCapabilities': 1 },
            // On a busy machine a tap can take long, and is a tap all the same.
            'apz.max_tap_time': timeout, 'ui.click_hold_context_menus.delay': timeout,
        },
    }),
    webkit: startWebKit,
};

/*
 * Options: reducedMotion, for a visitor who wants less motion; forcedColours (not in webkit), for one who
 * has chosen few colours for all pages; coarsePointer (in firefox; chromium goes by hasTouch), for one who has
 * nothing finer than a finger; awaitsLoad, false where a test asks a page that has not loaded yet.
 * Gives { browser, close }.
 */
export async function startBrowser(options = {}) {
    const profile = mkdtempSync(join(tmpdir(), 'zevmenu-browser-'));
    const browser = await launchers[engine](profile, options);
    return {
        browser,
        async close() {
            const program = browser.process?.();
            await browser.close();
            // On a busy machine puppeteer does not wait until Firefox has ended.
            if (program && program.exitCode === null && program.signalCode === null) await once(program, 'exit');
            await remove(profile);
        },
    };
}

// Removes a browser's folder, into which its last processes may still write while they end.
async function remove(folder) {
    for (let tries = 1;; tries++) {
        try {
            return rmSync(folder, { recursive: true, force: true });
        } catch (error) {
            if (error.code != 'ENOTEMPTY' || tries == 50) throw error;
            await new Promise(resolve => setTimeout(resolve, 100));
        }
    }
}
