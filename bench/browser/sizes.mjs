// SPDX-License-Identifier: MIT
// How large the files are that a visitor's browser loads: compressed by gzip, in bytes.
import { readFileSync } from 'node:fs';
import { gzipSync } from 'node:zlib';
import { minify } from 'terser';

const read = path => readFileSync(new URL(path, import.meta.url), 'utf8');
const packed = text => gzipSync(text, { level: 9 }).length;
const sum = (files, size) => files.reduce((total, file) => total + size(file), 0);

// What each makes ready for use: its scripts and style sheets as published, and minified by their makers.
const peers = {
    smartmenus: [['dist/js/smartmenus.browser.js', 'dist/css/smartmenus.css'],
                 ['dist/js/smartmenus.browser.min.js', 'dist/css/smartmenus.min.css']],
    'accessible-menu': [['dist/menubar.iife.js'], ['dist/menubar.iife.js']],
    bootstrap: [['dist/js/bootstrap.bundle.js', 'dist/css/bootstrap.css'],
                ['dist/js/bootstrap.bundle.min.js', 'dist/css/bootstrap.min.css']],
};
const ours = ['loader', 'dom', 'ns4'].map(name => `../../build/release/bin/zevmenu_${name}.js`);

/*
 * Gives name -> { served, minified }, both the sum of the files, each compressed by itself. The library is
 * served as built; it is minified for this figure only.
 */
export async function measureSizes() {
    const short = await Promise.all(ours.map(async path => (await minify(read(path))).code));
    const served = sum(ours, path => packed(read(path)));
    const result = { zevmenu: { served, minified: sum(short, packed) } };
    for (const [name, [served, minified]] of Object.entries(peers)) {
        const size = file => packed(read(`node_modules/${name}/${file}`));
        result[name] = { served: sum(served, size), minified: sum(minified, size) };
    }
    return result;
}
