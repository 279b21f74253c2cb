// SPDX-License-Identifier: MIT
// The sums of zevmenu_dom.js, run in node without a page.
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import test from 'node:test';
import vm from 'node:vm';
import { library } from '../library.mjs';

const source = readFileSync(new URL('zevmenu_dom.js', library), 'utf8');

function loadSums() {
    const window = { ZEVMenu: { shared: { state: {} } }, addEventListener() {} };
    const document = { readyState: 'loading', addEventListener() {}, querySelector() {} };
    vm.runInNewContext(source, { window, document });
    return window.ZEVMenu.shared.sums;
}

const { place, unzoomed, isHeadedFor, neighbour, realSide, typeAhead } = loadSums();
const frame = { width: 800, height: 600 };

function rect(left, top, width, height) {
    return { left, top, right: left + width, bottom: top + height };
}

const middle = rect(300, 200, 100, 20);
const box = { width: 150, height: 80 };

// [rule, anchor, size, side, offset, rtl, expected left, top, side]
const placements = [
    ['right', middle, box, 'right', 1, false, 401, 200, 'right'],
    ['bottom', middle, box, 'bottom', 1, false, 300, 221, 'bottom'],
    ['left', middle, box, 'left', 1, false, 149, 200, 'left'],
    ['top', middle, box, 'top', 1, false, 300, 119, 'top'],
    ['a negative offset overlaps', middle, box, 'right', -5, false, 395, 200, 'right'],
    ['right flips at the right edge',
        rect(690, 200, 100, 20), box, 'right', 1, false, 539, 200, 'left'],
    ['left flips at the left edge',
        rect(10, 200, 100, 20), box, 'left', 1, false, 111, 200, 'right'],
    ['bottom flips at the lower edge',
        rect(300, 560, 100, 20), box, 'bottom', 1, false, 300, 479, 'top'],
    ['top flips at the upper edge',
        rect(300, 30, 100, 20), box, 'top', 1, false, 300, 51, 'bottom'],
    ['exactly enough room does not flip',
        rect(549, 200, 100, 20), box, 'right', 1, false, 650, 200, 'right'],
    ['one pixel too little flips',
        rect(550, 200, 100, 20), box, 'right', 1, false, 399, 200, 'left'],
    ['no room on either side opens below',
        rect(50, 200, 700, 20), box, 'right', 1, false, 50, 221, 'bottom'],
    ['no room on either side nor below opens above',
        rect(50, 560, 700, 20), box, 'left', 1, false, 50, 479, 'top'],
    ['a box beside shifts up at the lower edge',
        rect(300, 560, 100, 20), box, 'right', 1, false, 401, 520, 'right'],
    ['a box below shifts left at the right edge',
        rect(700, 200, 80, 20), box, 'bottom', 1, false, 650, 221, 'bottom'],
    ['a box taller than the window begins at its top',
        middle, { width: 150, height: 900 }, 'right', 1, false, 401, 0, 'right'],
    ['a box wider than the window begins at its left',
        middle, { width: 900, height: 80 }, 'bottom', 1, false, 0, 221, 'bottom'],
    ['right to left, a box that reads right flips at the left edge',
        rect(10, 200, 100, 20), box, realSide('right', true), 1, true, 111, 200, 'right'],
    ['an item partly scrolled out to the left keeps its box in the window',
        rect(-50, 200, 100, 20), box, 'bottom', 1, false, 0, 221, 'bottom'],
    ['on a phone a box beside opens below its item',
        rect(500, 200, 300, 20), { width: 700, height: 80 }, 'right', 1, false, 100, 221, 'bottom'],
    ['right to left, a box below ends with its item',
        middle, box, 'bottom', 1, true, 250, 221, 'bottom'],
    ['a point without a side is the corner', rect(30, 40, 0, 0), box, '', 0, false, 30, 40, ''],
    ['a point without a side shifts into the window',
        rect(790, 590, 0, 0), box, '', 0, false, 650, 520, ''],
];

for (const [rule, anchor, size, side, offset, isRtl, left, top, real] of placements) {
    test(`place: ${rule}`, () => {
        const spot = place(anchor, size, side, offset, frame, isRtl);
        assert.deepEqual({ left: spot.left, top: spot.top, side: spot.side }, { left, top, side: real });
    });
}

const tall = { width: 150, height: 900 };

// [rule, anchor, size, wish, kind, expected side, top, height, width]
const limits = [
    ['below the larger room is taken and scrolled in', rect(300, 250, 100, 20), tall, 'bottom', '', 'bottom', 271, 329, 800],
    ['above the larger room is taken, and the box ends at its item',
        rect(300, 400, 100, 20), tall, 'bottom', '', 'top', 0, 399, 800],
    ['a wish for above gives way to the larger room', rect(300, 250, 100, 20), tall, 'top', '', 'bottom', 271, 329, 800],
    ['a box beside has the window\'s height', middle, tall, 'right', '', 'right', 0, 600, 399],
    ['an item as tall as the window leaves a row', rect(300, 0, 100, 600), tall, 'bottom', '', 'bottom', 556, 44, 800],
    ['a list with room beside it has its submenu there', middle, box, 'right', 'list', 'right', 200, 600, 399],
    ['a list with room on the other side too', rect(690, 200, 100, 20), box, 'right', 'list', 'left', 200, 600, 689],
    ['a fixed box stays where there is less room', rect(300, 400, 100, 20), tall, 'bottom', 'fixed', 'bottom', 421, 179, 800],
    ['a fixed box beside has what is left', rect(690, 200, 100, 20), box, 'right', 'fixed', 'right', 200, 600, 9],
];

for (const [rule, anchor, size, wish, kind, side, top, height, width] of limits) {
    test(`place: ${rule}`, () => {
        const spot = place(anchor, size, wish, 1, frame, false, kind);
        assert.deepEqual([spot.side, spot.top, spot.height, spot.width], [side, top, height, width]);
    });
}

const phone = { width: 360, height: 640 };
const wide = { width: 170, height: 80 };

// [rule, anchor, size, wish, side from which the anchor's box was opened, window, expected side]
const zigzags = [
    ['on a phone a box does not go back over the list that its own list opened from',
        rect(171, 200, 170, 20), wide, 'right', 'left', phone, 'inside'],
    ['nor on, when that was flipped', rect(19, 200, 170, 20), wide, 'right', 'right', phone, 'inside'],
    ['but goes where nothing is in its way', rect(171, 200, 170, 20), wide, 'right', 'top', phone, 'left'],
    ['where three boxes stand side by side it goes back', rect(650, 200, 140, 20), wide, 'right', 'left', frame, 'left'],
];

for (const [rule, anchor, size, wish, from, view, side] of zigzags) {
    test(`place: ${rule}`, () => {
        assert.equal(place(anchor, size, wish, 1, view, false, from).side, side);
    });
}

test('place: a list without room on either side takes the box inside', () => {
    assert.equal(place(rect(50, 200, 700, 20), box, 'right', 1, frame, false, 'list').side, 'inside');
});

// [rule, length, width of a layer that is 100 wide by its own measure, expected]
const zooms = [['no zoom', 30, 100, 30], ['zoomed in', 30, 200, 15], ['zoomed out', 30, 50, 60],
    ['a layer that is not laid out', 30, 0, 30]];

for (const [rule, length, width, expected] of zooms) {
    test(`unzoomed: ${rule}`, () => {
        assert.equal(unzoomed(length, rect(7, 0, width, 0), 100), expected);
    });
}

test('a right-to-left page mirrors right and left, and leaves bottom and top', () => {
    assert.deepEqual(['right', 'left', 'bottom', 'top'].map(side => realSide(side, true)),
                     ['left', 'right', 'bottom', 'top']);
    assert.equal(realSide('right', false), 'right');
});

const submenu = rect(200, 100, 100, 200);
// [rule, from, to, box, side, expected]
const paths = [
    ['down and to the right, towards a box on the right',
        [150, 110], [170, 140], submenu, 'right', true],
    ['straight to the right', [150, 110], [180, 110], submenu, 'right', true],
    ['straight down', [150, 110], [150, 140], submenu, 'right', false],
    ['away', [150, 110], [120, 110], submenu, 'right', false],
    ['too steep', [150, 110], [155, 200], submenu, 'right', false],
    ['towards a box on the left', [350, 110], [330, 140], submenu, 'left', true],
    ['towards a box below', [250, 50], [270, 80], submenu, 'bottom', true],
    ['sideways above a box below', [250, 50], [400, 52], submenu, 'bottom', false],
    ['towards a box above', [250, 350], [270, 320], submenu, 'top', true],
    ['a box without a side', [150, 110], [170, 140], submenu, '', false],
];

for (const [rule, [x, y], [toX, toY], target, side, expected] of paths) {
    test(`isHeadedFor: ${rule} is ${expected}`, () => {
        assert.equal(isHeadedFor({ x, y }, { x: toX, y: toY }, target, side), expected);
    });
}

// [rule, index, count, columns, direction, expected]
const moves = [
    ['a column goes down', 0, 3, 1, 'bottom', 1],
    ['a column goes round at its end', 2, 3, 1, 'bottom', 0],
    ['a column goes round at its start', 0, 3, 1, 'top', 2],
    ['sideways leads out of a column', 1, 3, 1, 'right', -1],
    ['a row goes right', 0, 3, 10, 'right', 1],
    ['a row goes round at its end', 2, 3, 10, 'right', 0],
    ['a row goes round at its start', 0, 3, 10, 'left', 2],
    ['downwards leads out of a row', 1, 3, 10, 'bottom', -1],
    ['a grid goes right', 0, 5, 2, 'right', 1],
    ['the end of a row leads out of a grid', 1, 5, 2, 'right', -1],
    ['the start of a row leads out of a grid', 2, 5, 2, 'left', -1],
    ['a grid goes down', 1, 5, 2, 'bottom', 3],
    ['the last row leads out of a grid', 3, 5, 2, 'bottom', -1],
    ['a grid goes up', 4, 5, 2, 'top', 2],
];

for (const [rule, index, count, columns, direction, expected] of moves) {
    test(`neighbour: ${rule}`, () => {
        assert.equal(neighbour(index, count, columns, direction), expected);
    });
}

// [rule, index, typed, expected]
const names = ['Boats', '  Bicycles', 'Oars', 'Sea kayaks', 'Sea shells', '\u00c9t\u00e9'];
const typings = [
    ['a letter leads to the next name that begins with it', 0, 'o', 2],
    ['a letter leads on from where the focus is', 0, 'b', 1],
    ['a letter goes round at the end', 1, 'b', 0],
    ['a letter may lead to the only name again', 2, 'o', 2],
    ['capitals count as small letters', 0, 'O', 2],
    ['an accented letter finds its capital', 0, '\u00e9', 5],
    ['the same letter again goes on', 0, 'bb', 1],
    ['two letters stay where they fit', 0, 'bo', 0],
    ['two letters lead to where they fit', 0, 'bi', 1],
    ['a space is part of a name', 3, 'sea s', 4],
    ['a letter in the middle of names leads nowhere', 0, 'k', -1],
    ['a space alone leads nowhere', 0, ' ', -1],
];

for (const [rule, index, typed, expected] of typings) {
    test(`typeAhead: ${rule}`, () => {
        assert.equal(typeAhead(names, index, typed), expected);
    });
}
