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
function sideOf(rooms, size, wish, kind, frame) {
    const length = isBeside(wish) ? size.width : size.height, other = opposite[wish];
    // Where three boxes do not stand side by side, none lies over what leads to it.
    const isFree = side => length <= rooms[side] && (side != kind || size.width * 3 <= frame.width);
    if (!wish || kind == 'fixed' || isFree(wish)) return wish;
    if (isFree(other)) return other;
    if (isBeside(wish)) return kind ? 'inside' : sideOf(rooms, size, 'bottom');
    return rooms[other] > rooms[wish] ? other : wish;
}

/*
 * Where a box of that size stands: `left` and `top` in the window, the `width` and `height` it may have at
 * most, and its `side`. Across its side it is shifted into the window. It leaves its anchor free, unless that
 * takes the whole window: a row of 44 pixels can be reached then too. `kind` is 'fixed' where the box is to stay on the
 * side of its wish; where the anchor is an item of a list, the side from which that was opened, else 'list'.
 */
function place(anchor, size, wish, offset, frame, isRtl, kind) {
    // The anchor with its distance, as far as it is in the window, and how much of that is on each side of it.
    const right = Math.max(anchor.right + offset, 0), left = Math.min(anchor.left - offset, frame.width);
    const bottom = Math.max(anchor.bottom + offset, 0), top = Math.min(anchor.top - offset, frame.height);
    const rooms = { right: frame.width - right, left, bottom: frame.height - bottom, top };
    const side = sideOf(rooms, size, wish, kind, frame), isWide = isBeside(side);
    const limit = side in rooms && !isWide ? Math.max(rooms[side], 44) : frame.height;
    const { width } = size, height = Math.min(size.height, limit);
    const start = { right, left: left - width, bottom, top: top - height }[side];
    const x = isWide ? start : isRtl && side ? anchor.right - width : anchor.left,
        y = isWide ? anchor.top : start ?? anchor.top;
    return { left: shift(x, width, frame.width), top: shift(y, height, frame.height),
             width: isWide ? rooms[side] : frame.width, height: limit, side };
}

// In a zoomed page `width` pixels of the layer are as wide as `origin`.
function unzoomed(length, origin, width) {
    return length * width / ((origin.right - origin.left) || width);
}

// Towards the near edge of the box, a little widened, from a little before where the pointer was.
function isHeadedFor(from, to, box, side) {
    const [along, across, start, end] = isBeside(side)
        ? ['x', 'y', 'top', 'bottom'] : ['y', 'x', 'left', 'right'];
    const apex = from[along] + (isForward(side) ? -2 : 2);
    const times = (box[opposite[side]] - apex) / (to[along] - apex),
        landing = from[across] + times * (to[across] - from[across]);
    return times >= 1 && landing >= box[start] - 8 && landing <= box[end] + 8;
}

// A column or row goes round at its ends; -1 is outside.
function neighbour(index, count, columns, direction) {
    const step = isForward(direction) ? 1 : -1, isRow = isBeside(direction);
    if (columns == 1 || columns >= count) return isRow == (columns == 1) ? -1 : (index + step + count) % count;
    const next = index + step * (isRow ? 1 : columns), isNextRow = isRow && Math.max(index, next) % columns == 0;
    return next < 0 || next >= count || isNextRow ? -1 : next;
}

// One letter, also repeated, goes on to the next name; more letters may stay where they fit.
function typeAhead(names, index, typed) {
    const text = typed.toLowerCase().replace(/^(.)\1+$/, '$1');
    const order = names.map((name, i) => (index + i + !text[1]) % names.length);
    return order.find(next => names[next].trim().toLowerCase().startsWith(text)) ?? -1;
}

shared.sums = { place, unzoomed, isHeadedFor, neighbour, realSide, typeAhead };
