// SPDX-License-Identifier: MIT
/*
 * Reads properties.md, which is the source of its own pictures. The first block of code there is the
 * menu that all examples share; each table is a row of examples and a row of their pictures (a
 * table whose columns are aligned, |:--|, is none of these):
 *
 *     | factory value      | `zevmenu.columns = 2;`         |
 *     |---|---|
 *     | ![what it shows](x.png) | ![what it shows](y.png)   |
 *
 * Code in a cell is lines of the definition or, when it begins with "<", HTML of the page. The words
 * beside it say what the visitor does: "mouse on Tea", "mouse on Tea for 0.3 s", "click on Tea", "mouse
 * gone for 0.3 s", "fading for 0.5 s", "window 360 px wide".
 */
import { readFileSync } from 'node:fs';

const creation = /^zevmenu = new ZEVMenu\('(.*)'\);$/;

// The shared menu with further lines: those of zev_state at its start, those of a menu after the
// line that creates it. Lines belong to the top menu until one creates another.
function definitionOf(menu, lines) {
    const added = new Map([['state', []], ['0', []]]);
    let id = '0';
    for (const line of lines) {
        if (creation.test(line)) added.set(id = creation.exec(line)[1], []);
        else added.get(line.startsWith('zev_state.') ? 'state' : id).push(line);
    }
    const text = menu.split('\n').flatMap(line =>
        [line, ...creation.test(line) ? added.get(creation.exec(line)[1]) || [] : []]);
    return [...added.get('state'), ...text].join('\n');
}

function numberIn(words, pattern) {
    const [, number] = pattern.exec(words) || [];
    return number ? Number(number) : null;
}

function readExample(menu, cell, picture, property) {
    const [, alt, path] = /^!\[(.*)\]\((.*)\)$/.exec(picture) || [];
    const code = Array.from(cell.matchAll(/`([^`]+)`/g), match => match[1]);
    const words = cell.replace(/`[^`]+`/g, '');
    const lines = code.filter(line => !line.startsWith('<'));
    return {
        property, alt, path, lines, definition: definitionOf(menu, lines),
        html: code.filter(line => line.startsWith('<')).join(''),
        mouseOn: /mouse on (\w+)/.exec(words)?.[1],
        onSeconds: numberIn(words, /mouse on \w+ for ([\d.]+) s/),
        clickOn: /click on (\w+(?: menu)?)/.exec(words)?.[1],
        leftSeconds: numberIn(words, /mouse gone for ([\d.]+) s/),
        fadingSeconds: numberIn(words, /fading for ([\d.]+) s/),
        windowPx: numberIn(words, /window (\d+) px wide/),
    };
}

function cellsOf(row) {
    return row.slice(1, -1).split('|').map(cell => cell.trim());
}

/*
 * All examples of the page in order: { property, lines, definition, html, mouseOn, onSeconds, clickOn,
 * leftSeconds, fadingSeconds, windowPx, alt, path }. `property` is the heading that the example stands under, `path` that of its
 * picture as seen from the page; `alt` and `path` are undefined where the cell holds no picture.
 */
export function readExamples() {
    const page = readFileSync(new URL('properties.md', import.meta.url), 'utf8');
    const menu = /```js\n([^]*?)```/.exec(page)[1];
    const rows = page.split('\n');
    let property = '';
    return rows.flatMap((row, index) => {
        property = /^### `(\w+)`$/.exec(row)?.[1] || property;
        if (!/^\|(-+\|)+$/.test(row)) return [];
        const pictures = cellsOf(rows[index + 1]);
        return cellsOf(rows[index - 1]).map((cell, i) => readExample(menu, cell, pictures[i], property));
    });
}
