// SPDX-License-Identifier: MIT
// Prints what was measured: one line a figure, with all contenders, the ratio that counts, and the aim.
import { engine } from '../../tests/runtime/browser/support.mjs';

const short = name => name.replace(/-.*/, '');
const milliseconds = value => value === undefined ? '-' : value.toFixed(value < 10 ? 2 : 1);
const kilobytes = value => value === undefined ? '-' : (value / 1024).toFixed(1);

function verdict(value, most) {
    return value <= most ? '' : 'miss';
}

/*
 * `median(what, name, size)` gives a figure or undefined; `growth` and `sizesOf` are those of
 * measureGrowth() and measureSizes().
 */
export function printTable({ rounds, names, sizes, slowSizes, median, growth, sizesOf }) {
    const largest = sizes.at(-1);
    const print = (what, values, result = '', aim = '', miss = '') => console.log(
        (what.padEnd(36) + values.map(value => String(value).padStart(11)).join('') + '  ' +
            result.padEnd(20) + aim.padEnd(15) + miss).trimEnd());

    // A time of every contender, and ours as a ratio to the one named `peer`.
    const printTime = (title, what, size, peer, most) => {
        const values = names.map(name => milliseconds(median(what, name, size)));
        const ratio = peer && median(what, 'zevmenu', size) / median(what, peer, size);
        print(`${title}, ${size} items`, values, peer ? `${ratio.toFixed(2)} of ${short(peer)}` : '',
              most ? `at most ${most}` : '', most ? verdict(Number(ratio.toFixed(2)), most) : '');
    };

    console.log(`${engine}: medians of ${rounds} rounds; times in milliseconds`);
    print('', names.map(short), 'result', 'aim');
    const starts = new Map([[50, 0.8], [500, 0.7], [5000, 0.4]]);
    sizes.forEach(size => printTime('ready', 'ready', size, 'smartmenus', starts.get(size)));
    printTime('ready', 'ready', largest, 'plain list', engine == 'firefox' ? 1.3 : 1.0);
    sizes.forEach(size => printTime('ready', 'ready', size, 'empty files'));
    sizes.forEach(size => printTime('drawn', 'drawn', size, 'smartmenus'));

    const delayed = 'each file after 100 ms';
    for (const size of slowSizes) {
        const slow = median('slow drawn', 'zevmenu', size);
        print(`drawn, ${delayed}, ${size}`, names.map(name => milliseconds(median('slow drawn', name, size))),
              `${milliseconds(slow)} ms`, 'at most 115 ms', verdict(slow, 115));
        print(`ready, ${delayed}, ${size}`,
              names.map(name => milliseconds(median('slow ready', name, size))));
    }

    sizes.forEach(size =>
        printTime('first opening', 'first', size, 'accessible-menu', size < largest ? 1.0 : 0.7));
    sizes.forEach(size => printTime('later openings', 'later', size, 'accessible-menu', 1.0));

    const most = new Map([[50, 10 + 3 * 5], [500, 10 + 3 * 10], [5000, 10 + 3 * 8]]);
    sizes.forEach(size => {
        const count = median('elements', 'zevmenu', size);
        print(`elements before opening, ${size} items`, names.map(name => median('elements', name, size) ?? '-'),
              String(count), `at most ${most.get(size)}`, verdict(count, most.get(size)));
    });

    if (engine == 'chromium') {
        const heaps = what => names.map(name => median(what, name, largest));
        const [our, smart] = heaps('script heap');
        print(`script heap, ${largest} items, KB`, heaps('script heap').map(kilobytes),
              `${(our / smart).toFixed(2)} of smartmenus`, 'at most 1', verdict(our, smart));
        print('  and heap of elements, KB', heaps('whole heap').map(kilobytes));
    }
    const downloads = [['gzip as served, KB', 'served', 14], ['gzip minified, KB', 'minified']];
    for (const [title, kind, aim] of downloads) {
        const size = sizesOf.zevmenu[kind] / 1024;
        print(title, names.map(name => kilobytes(sizesOf[name]?.[kind])), `${size.toFixed(1)} KB`,
              aim ? `at most ${aim} KB` : '', aim ? verdict(size, aim) : '');
    }
    for (const [what, count] of Object.entries(growth)) {
        if (count === null) continue;
        print(`${what} left by use`, names.map(name => name == 'zevmenu' ? count : '-'), String(count), '0',
              verdict(count, 0));
    }
}
