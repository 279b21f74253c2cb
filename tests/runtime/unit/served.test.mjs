// SPDX-License-Identifier: MIT
// What a visitor's browser loads: the sources, small. The loader alone delays the first paint.
import { parse, tokenizer } from 'acorn';
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import test from 'node:test';
import { gzipSync } from 'node:zlib';
import { library } from '../library.mjs';

const packed = name => gzipSync(readFileSync(new URL(name, library)), { level: 9 }).length;

test('the loader is at most 6,144 bytes when compressed', () => {
    const size = packed('zevmenu_loader.js');
    assert.ok(size > 1000 && size <= 6144, `${size} bytes`);
});

test('the three files together are at most 14,336 bytes when compressed', () => {
    const sizes = ['zevmenu_loader.js', 'zevmenu_dom.js', 'zevmenu_ns4.js'].map(packed);
    assert.ok(sizes.reduce((sum, size) => sum + size) <= 14336, `${sizes.join(' + ')} bytes`);
});

const runtime = new URL('../../../runtime/', import.meta.url);
const joins = Array.from(readFileSync(new URL('CMakeLists.txt', runtime), 'utf8')
    .matchAll(/^zev_served_script\((\S+)([^)]*)\)/gm),
    ([, name, sources]) => ({ name, sources: sources.trim().split(/\s+/) }));

function tokensOf(source) {
    return Array.from(tokenizer(source, { ecmaVersion: 'latest' }), ({ type, value }) =>
        `${type.label} ${value?.pattern ?? value}`);
}

// Where a statement may end without a semicolon, a line end counts.
function shapeOf(source) {
    return JSON.stringify(parse(source, { ecmaVersion: 'latest' }), (key, value) =>
        ['start', 'end'].includes(key) ? undefined : typeof value == 'bigint' ? `${value}n` : value);
}

test('three scripts are made of sources', () => {
    assert.deepEqual(joins.map(({ name }) => name).sort(),
        ['zevmenu_dom.js', 'zevmenu_loader.js', 'zevmenu_ns4.js']);
});

for (const { name, sources } of joins) {
    test(`${name} is its mark and its sources word for word, in one function, less comments and white space`, () => {
        const text = sources.map(source => readFileSync(new URL('src/' + source, runtime), 'utf8')).join('');
        const served = readFileSync(new URL(name, library), 'utf8');
        const source = `(function () {\n${text}})();`;
        assert.deepEqual(tokensOf(served), tokensOf(source));
        assert.equal(shapeOf(served), shapeOf(source));
        const comments = [];
        parse(served, { ecmaVersion: 'latest', onComment: (isBlock, text) => comments.push(text) });
        assert.deepEqual(comments, ['ZEVMenu']);
        assert.ok(served.startsWith('(function(){//ZEVMenu\n'));
        assert.doesNotMatch(served, /\n\s/);
    });
}

// What a page, its elements and its events are spoken to by.
const pageNames = ['document', 'window', 'location', 'getComputedStyle', 'matchMedia', 'classList', 'style', 'querySelector',
    'setAttribute', 'getAttribute', 'focus', 'getBoundingClientRect', 'addEventListener', 'preventDefault', 'event'];

for (const [part, source] of [['the sums', 'dom/sums.js'], ['the state', 'dom/state.js']]) {
    test(`${part} speak to no page and no element`, () => {
        const text = readFileSync(new URL('src/' + source, runtime), 'utf8');
        const names = Array.from(tokenizer(text, { ecmaVersion: 'latest' }), ({ value }) => value);
        assert.ok(names.length > 100);
        assert.deepEqual(names.filter(name => pageNames.includes(name)), []);
    });
}
