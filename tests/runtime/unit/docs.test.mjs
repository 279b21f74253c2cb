// SPDX-License-Identifier: MIT
// The page for web authors tells of every property, with pictures made from the lines it shows.
import { parse } from 'acorn';
import assert from 'node:assert/strict';
import { readFileSync, readdirSync } from 'node:fs';
import test from 'node:test';
import { readExamples } from '../../../docs/examples.mjs';
import { library } from '../library.mjs';

const docs = new URL('../../../docs/', import.meta.url);
const page = readFileSync(new URL('properties.md', docs), 'utf8');
const loader = readFileSync(new URL('zevmenu_loader.js', library), 'utf8');
const examples = readExamples();

// The keys of the loader's table of properties: of the one object in its source that tells of nbgcolor. `__proto__`
// is how it says that it has no prototype.
function propertiesOfLoader() {
    const found = [];
    const visit = node => {
        if (!node || typeof node.type != 'string') return;
        const keys = (node.type == 'ObjectExpression' ? node.properties : []).map(({ key }) => key.name)
            .filter(name => name != '__proto__');
        if (keys.includes('nbgcolor')) found.push(keys);
        Object.values(node).flat().forEach(visit);
    };
    visit(parse(loader, { ecmaVersion: 3, sourceType: 'script' }));
    assert.equal(found.length, 1);
    return found[0];
}

test('the page has a section and a line in its list for each property of the loader, and no other', () => {
    const names = propertiesOfLoader().sort();
    const namesIn = pattern => Array.from(page.matchAll(pattern), match => match[1]).sort();
    assert.deepEqual(namesIn(/^### `(\w+)`$/gm), names);
    assert.deepEqual(namesIn(/^\| \[`(\w+)`\]/gm), names);
});

for (const name of propertiesOfLoader()) {
    test(`the page shows ${name} at work, in at least two pictures`, () => {
        const own = examples.filter(example => example.property == name);
        assert.ok(own.length >= 2);
        assert.ok(own.some(example => example.lines.some(line => line.split(' = ')[0].endsWith('.' + name))));
    });
}

test('each example of the page has its own picture with a text for who cannot see it', () => {
    for (const { property, alt, path } of examples) {
        assert.match(path || '', /^images\/properties\/\w[\w-]*\.png$/, property);
        assert.ok(alt, path);
    }
    assert.equal(new Set(examples.map(({ path }) => path)).size, examples.length);
});

test('each picture of the page exists, and none is left over', () => {
    const files = readdirSync(new URL('images/properties', docs)).map(name => 'images/properties/' + name);
    assert.deepEqual(files.sort(), examples.map(({ path }) => path).sort());
});

test("each line of an example stands in its definition, a menu's own before the menu's items", () => {
    for (const { lines, definition, path } of examples) {
        let id = '0';
        for (const line of lines) {
            const created = /new ZEVMenu\('(.*)'\)/.exec(line);
            if (created) id = created[1];
            const start = line.startsWith('zev_state') ? 0 : definition.indexOf(`new ZEVMenu('${id}')`);
            const end = definition.indexOf('AddItem', start), index = definition.indexOf(line);
            assert.ok(created || (index >= start && index < end), `${path}: ${line}\n${definition}`);
        }
    }
});
