// SPDX-License-Identifier: MIT
// Runs the tests of one folder: node run.mjs unit|browser. ENGINE names the browser: chromium (if it names
// none), firefox or webkit. Fails, and says why, when something that the tests need is missing.
import { spawnSync } from 'node:child_process';
import { existsSync, readFileSync, readdirSync } from 'node:fs';
import { fileURLToPath } from 'node:url';
import { library } from './library.mjs';

const here = fileURLToPath(new URL('.', import.meta.url));
const folder = process.argv[2];

function fail(message) {
    console.error(message);
    process.exit(1);
}

if (!['unit', 'browser'].includes(folder)) fail('Usage: node run.mjs unit|browser');

const { devDependencies } = JSON.parse(readFileSync(here + 'package.json', 'utf8'));
const missing = Object.keys(devDependencies).filter(name => !existsSync(here + 'node_modules/' + name));
if (missing.length) fail(`${missing.join(', ')} not installed; run: npm ci --prefix tests/runtime`);

if (!existsSync(new URL('zevmenu_loader.js', library))) {
    fail(`no built library in ${library}; run: cmake --build --preset dev --target zev_runtime_files`);
}

// engine: package -> program in it
const programs = {
    chromium: { chromium: process.env.CHROMIUM || '/usr/bin/chromium' },
    firefox: { 'firefox-esr': process.env.FIREFOX || '/usr/bin/firefox-esr' },
    webkit: { 'webkit2gtk-driver': process.env.WEBKIT_DRIVER || '/usr/bin/WebKitWebDriver',
              xvfb: '/usr/bin/Xvfb', xdotool: '/usr/bin/xdotool' },
}[process.env.ENGINE || 'chromium'];
if (!programs) fail('ENGINE has to be chromium, firefox or webkit');
for (const [name, program] of Object.entries(programs)) {
    if (folder == 'browser' && !existsSync(program)) fail(`${program} not found; install the package ${name}`);
}

const files = readdirSync(here + folder).filter(name => name.endsWith('.test.mjs'));
if (!files.length) fail(`no tests in ${here}${folder}`);

const result = spawnSync(process.execPath,
    ['--test', '--test-reporter=spec', '--test-concurrency=2', ...files.map(file => `${here}${folder}/${file}`)],
    { stdio: 'inherit' });
process.exit(result.status ?? 1);
