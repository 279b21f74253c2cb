// SPDX-License-Identifier: MIT
// Starts WebKit: a display of its own, the driver on a free port, and the browser that the driver starts.
import { execFile, spawn } from 'node:child_process';
import { once } from 'node:events';
import { mkdirSync, writeFileSync } from 'node:fs';
import { createServer } from 'node:net';
import { join } from 'node:path';
import { promisify } from 'node:util';
import { WebDriverBrowser, commandMs } from './support_webdriver.mjs';

const program = process.env.WEBKIT || '/usr/lib/x86_64-linux-gnu/webkit2gtk-4.1/MiniBrowser';
// Full screen means without a toolbar, which the window could not be narrower than.
const args = ['--automation', '--full-screen'];
const startMs = 30000;     // how long a program may take to start, on a busy machine

/*
 * Starts everything with the settings and files of `folder`. Gives a browser whose close() ends every
 * process that was started here.
 */
export async function startWebKit(folder, { reducedMotion = false, awaitsLoad = true }) {
    const display = spawn('Xvfb', ['-displayfd', '3', '-screen', '0', '1400x1200x24', '-nolisten', 'tcp'],
                          { stdio: ['ignore', 'ignore', 'ignore', 'pipe'] });
    const processes = [display];
    try {
        const [number] = await within(startMs, once(display.stdio[3], 'data'), 'Xvfb');
        const env = environment(folder, String(number).trim(), reducedMotion);
        const address = await startDriver(env, processes);
        const browser = await WebDriverBrowser.start(
            address, { 'webkitgtk:browserOptions': { binary: program, args }, timeouts: { script: commandMs },
                       pageLoadStrategy: awaitsLoad ? 'normal' : 'none' });
        await giveFocus(env);
        return {
            newPage: () => browser.newPage(),
            async close() {
                await browser.close().finally(() => stop(processes));
            },
        };
    } catch (error) {
        await stop(processes);
        throw error;
    }
}

// The browser's window cannot be narrower than its toolbar and its search bar, which count although they are
// hidden; with this a page can have a phone's width. (An entry asks for 150 pixels whatever its style says.)
const smallBars = `window *:not(webkitwebview) {
    margin: 0; padding: 0; border-width: 0; min-width: 0; font-size: 1px; }
    window image { min-width: 0; -gtk-icon-transform: scale(0); }
    window entry { margin: 0 -70px; }`;

// Variables that keep the browser to itself: no settings of the user, no desktop services.
function environment(folder, display, reducedMotion) {
    mkdirSync(join(folder, 'run'), { mode: 0o700 });
    mkdirSync(join(folder, 'config', 'gtk-3.0'), { recursive: true });
    writeFileSync(join(folder, 'config', 'gtk-3.0', 'settings.ini'),
                  `[Settings]\ngtk-enable-animations=${reducedMotion ? 0 : 1}\n`);
    writeFileSync(join(folder, 'config', 'gtk-3.0', 'gtk.css'), smallBars);
    return { PATH: process.env.PATH, LANG: 'C.UTF-8', HOME: folder, XDG_CONFIG_HOME: join(folder, 'config'),
             XDG_RUNTIME_DIR: join(folder, 'run'), DISPLAY: ':' + display, GDK_BACKEND: 'x11',
             NO_AT_BRIDGE: '1', LIBGL_ALWAYS_SOFTWARE: '1', DBUS_SESSION_BUS_ADDRESS: 'disabled:' };
}

// Starts the driver and gives its address.
async function startDriver(env, processes) {
    const port = await freePort();
    const driver = spawn(process.env.WEBKIT_DRIVER || '/usr/bin/WebKitWebDriver', [`--port=${port}`],
                         { env, stdio: 'ignore' });
    processes.push(driver);
    const address = `http://127.0.0.1:${port}`;
    await answers(address);
    return address;
}

/*
 * Makes the browser's window the one that has the keyboard, as a window manager would. In a window without
 * it nothing matches :focus.
 */
async function giveFocus(env) {
    await promisify(execFile)('xdotool', ['search', '--sync', '--onlyvisible', '--class', 'MiniBrowser',
        'windowfocus', '--sync'], { env, timeout: startMs });
}

async function answers(address) {
    const signal = AbortSignal.timeout(startMs);
    while (!signal.aborted) {
        const response = await fetch(address + '/status', { signal }).catch(() => null);
        if (response?.ok) return;
        await new Promise(resolve => setTimeout(resolve, 20));
    }
    throw new Error('WebKitWebDriver does not answer');
}

async function freePort() {
    const server = createServer().listen(0, '127.0.0.1');
    await once(server, 'listening');
    const { port } = server.address();
    server.close();
    await once(server, 'close');
    return port;
}

async function within(ms, promise, what) {
    let timer;
    const late = new Promise((_, reject) => {
        timer = setTimeout(() => reject(new Error(`${what} does not answer`)), ms);
    });
    try {
        return await Promise.race([promise, late]);
    } finally {
        clearTimeout(timer);
    }
}

// Ends the processes, the last one first, and waits until they are gone.
async function stop(processes) {
    for (const child of processes.reverse()) {
        if (child.exitCode !== null || child.signalCode !== null) continue;
        child.kill();
        await once(child, 'exit');
    }
}
