// SPDX-License-Identifier: MIT
// ---- Sums: rectangles in, coordinates out; no page is needed ----

const opposite = { right: 'left', left: 'right', top: 'bottom', bottom: 'top' };

function isBeside(side) {
    return side == 'right' || side == 'left';
}

// To the right or down.
function isForward(side) {
    return side == 'right' || side == 'bottom';
}

function realSide(side, isRtl) {
    return isRtl && isBeside(side) ? opposite[side] : side;
}

// Moves a length into 0 to `limit`; its start wins if it is too long.
function shift(start, length, limit) {
    return Math.max(0, Math.min(start, limit - length));
}

// The wished side, or the opposite one if only that has room. If neither has: in a list inside it, beside
// all else below; above or below where there is more. A fixed wish is done.
function sideOf(rooms, size, wish, kind) {
    const length = isBeside(wish) ? size.width : size.height, other = opposite[wish];
    if (!wish || kind == 'fixed' || length <= rooms[wish]) return wish;
    if (length <= rooms[other]) return other;
    if (isBeside(wish)) return kind == 'list' ? 'inside' : sideOf(rooms, size, 'bottom');
    return rooms[other] > rooms[wish] ? other : wish;
}

/*
 * Where a box of that size stands: `left` and `top` in the window, the `width` and `height` it may have at
 * most, and its `side`. Across its side it is shifted into the window. It leaves its anchor free, unless that
 * takes the whole window: a row can be reached then too. `kind` is 'list' where the anchor is an item of a
 * list, 'fixed' where the box is to stay on the side of its wish.
 */
function place(anchor, size, wish, offset, frame, isRtl, kind) {
    // The anchor with its distance, and how much of the window is on each side of it.
    const right = anchor.right + offset, left = anchor.left - offset;
    const bottom = anchor.bottom + offset, top = anchor.top - offset;
    const rooms = { right: Math.min(frame.width - right, frame.width), left: Math.min(left, frame.width),
                    bottom: Math.min(frame.height - bottom, frame.height), top: Math.min(top, frame.height) };
    const side = sideOf(rooms, size, wish, kind);
    const limit = side in rooms && !isBeside(side) ? Math.max(rooms[side], rowPx) : frame.height;
    const { width } = size, height = Math.min(size.height, limit);
    const starts = { left: isRtl && side ? anchor.right - width : anchor.left, top: anchor.top };
    if (isBeside(side)) starts.left = side == 'right' ? right : left - width;
    else if (side in rooms) starts.top = side == 'bottom' ? bottom : top - height;
    return { left: shift(starts.left, width, frame.width), top: shift(starts.top, height, frame.height),
             width: isBeside(side) ? rooms[side] : frame.width, height: limit, side };
}

// In a zoomed page `ruler` pixels of the layer are as wide as `origin`.
function unzoomed(length, origin, ruler) {
    return length * ruler / ((origin.right - origin.left) || ruler);
}

// In the triangle from where the pointer was to the near edge of the box.
function isHeadedFor(from, to, box, side) {
    const [along, across, start, end] = isBeside(side)
        ? ['x', 'y', 'top', 'bottom'] : ['y', 'x', 'left', 'right'];
    const apex = from[along] + (isForward(side) ? -2 : 2), slack = 8;
    const part = (to[along] - apex) / (box[opposite[side]] - apex);
    const way = to[across] - from[across];
    return part >= 0 && part <= 1 && way >= part * (box[start] - slack - from[across]) &&
        way <= part * (box[end] + slack - from[across]);
}

// A column or row goes round at its ends; -1 is outside.
function neighbour(index, count, columns, direction) {
    const step = isForward(direction) ? 1 : -1;
    const isAlongRow = isBeside(direction);
    if (columns == 1 || columns >= count) {
        return isAlongRow == (columns == 1) ? -1 : (index + step + count) % count;
    }
    const next = index + step * (isAlongRow ? 1 : columns);
    const isNextRow = isAlongRow && Math.max(index, next) % columns == 0;
    return next < 0 || next >= count || isNextRow ? -1 : next;
}

// One letter, also repeated, goes on to the next name; more letters may stay where they fit.
function typeAhead(names, index, typed) {
    const text = typed.toLowerCase(), isOneLetter = /^(.)\1*$/.test(text);
    const order = names.map((name, i) => (index + i + isOneLetter) % names.length);
    return order.find(next => names[next].trim().toLowerCase().startsWith(isOneLetter ? text[0] : text)) ?? -1;
}

shared.sums = { place, unzoomed, isHeadedFor, neighbour, realSide, typeAhead };
