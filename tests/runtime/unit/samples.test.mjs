// SPDX-License-Identifier: MIT
// The sample definitions are what the editor writes, so that opening and saving changes nothing.
import assert from 'node:assert/strict';
import { existsSync, readFileSync, readdirSync } from 'node:fs';
import test from 'node:test';
import { largeMenu } from '../../../samples/make_large_menu.mjs';

const folder = new URL('../../../samples/', import.meta.url);
const names = readdirSync(folder).filter(name => name.endsWith('.js'));

function read(name) {
    return readFileSync(new URL(name, folder), 'latin1');
}

const stateOrder = ['columns', 'bgimage', 'hbgcolor', 'hftcolor', 'nbgcolor', 'nftcolor', 'hspacing',
    'menuoffset', 'closedelay', 'position', 'fontFamily', 'fontSize', 'fontStyle', 'fontWeight'];
const menuOrder = ['columns', 'bgimage', 'hbgcolor', 'hftcolor', 'nbgcolor', 'nftcolor', 'hspacing',
    'position', 'ffade', 'fopacity', 'fshadow', 'fontFamily', 'fontSize', 'fontStyle', 'fontWeight',
    'htmlAfter', 'htmlBefore', 'itemborder', 'menuborder', 'target', 'cellpadding', 'divider'];
const unquoted = ['columns', 'hspacing', 'menuoffset', 'closedelay', 'cellpadding'];

// Reads a definition into { state, menus }, and throws at anything that is not an editor's line.
function readDefinition(text) {
    const blocks = text.slice(0, -4).split('\r\n\r\n').map(block => block.split('\r\n').filter(Boolean));
    const state = blocks.shift().map(line => property(line, 'zev_state'));
    const menus = [];
    while (blocks.length) {
        const [creation, ...lines] = blocks.shift();
        const id = /^zevmenu = new ZEVMenu\('([0-9i]+)'\);$/.exec(creation)[1];
        menus.push({ id, properties: lines.map(line => property(line, 'zevmenu')), items: blocks.shift() });
    }
    return { state, menus };
}

function property(line, owner) {
    const match = new RegExp(`^${owner}\\.(\\w+) = ('(?:[^'\\\\]|\\\\')*'|-?\\d+);$`).exec(line);
    assert.ok(match, line);
    assert.equal(match[2].startsWith("'"), !unquoted.includes(match[1]), line);
    return match[1];
}

// The order in which a tree's blocks are written: depth first.
function depthFirst(ids) {
    const numbers = id => (id == '0' ? [] : id.split('i').map(Number));
    return [...ids].sort((a, b) => {
        const [left, right] = [numbers(a), numbers(b)];
        for (let i = 0; i < Math.min(left.length, right.length); i++) {
            if (left[i] != right[i]) return left[i] - right[i];
        }
        return left.length - right.length;
    });
}

const text = "'(?:[^'\\\\]|\\\\')*'";
const itemLine = new RegExp(
    `^zevmenu\\.(AddItem\\(${text}, ${text}, ${text}\\)|AddRollover\\(${text}, ${text}, ${text}, ${text}\\));$`);

test('there are three samples', () => {
    assert.deepEqual(names, ['large_menu.js', 'rollover_menu.js', 'site_bar.js']);
});

for (const name of names) {
    const source = read(name);
    test(`${name}: every line ends in CR LF, and the file in two empty lines`, () => {
        assert.ok(!/[^\r]\n|\r[^\n]/.test(source));
        assert.ok(source.endsWith(';\r\n\r\n\r\n'));
    });

    test(`${name}: properties, items and blocks stand in the editor's order`, () => {
        const { state, menus } = readDefinition(source);
        assert.deepEqual(state, stateOrder.filter(property => state.includes(property)));
        for (const { id, properties, items } of menus) {
            assert.deepEqual(properties, menuOrder.filter(p => properties.includes(p)), `menu ${id}`);
            items.forEach(line => assert.match(line, itemLine));
        }
        const ids = menus.map(menu => menu.id);
        assert.deepEqual(ids, depthFirst(ids));
        // The editor gives the top menu these two before it reads a file, and so always writes them.
        assert.ok(['columns', 'position'].every(property => menus[0].properties.includes(property)));
    });

    test(`${name}: its pictures and pages exist`, () => {
        const links = source.match(/'(images|pages)\/[^'#]+/g).map(link => link.slice(1));
        assert.deepEqual(links.filter(link => !existsSync(new URL(link, folder))), []);
    });
}

test('large_menu.js has 1,000 items on four levels', () => {
    const { menus } = readDefinition(read('large_menu.js'));
    assert.equal(menus.reduce((sum, menu) => sum + menu.items.length, 0), 1000);
    assert.equal(Math.max(...menus.map(menu => menu.id == '0' ? 1 : menu.id.split('i').length + 1)), 4);
});

test('large_menu.js is what its script writes', () => {
    assert.ok(read('large_menu.js') == largeMenu());
});
