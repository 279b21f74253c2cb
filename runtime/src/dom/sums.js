// ---- Sums: rectangles in, coordinates out; no page is needed ----

const opposite = { right: 'left', left: 'right', top: 'bottom', bottom: 'top' };

function isBeside(side) {
    return side == 'right' || side == 'left';
}

function realSide(side, isRtl) {
    return isRtl && isBeside(side) ? opposite[side] : side;
}

// Moves a length into 0 to `limit`; its start wins if it is too long.
function shift(start, length, limit) {
    return Math.max(0, Math.min(start, limit - length));
}

// Flips to the opposite side if only that has room, then shifts into the window.
function place(anchor, size, side, offset, frame, isRtl) {
    const starts = { right: anchor.right + offset, left: anchor.left - offset - size.width,
                     bottom: anchor.bottom + offset, top: anchor.top - offset - size.height };
    const length = isBeside(side) ? 'width' : 'height';
    const fits = side => shift(starts[side], size[length], frame[length]) == starts[side];
    const real = !fits(side) && fits(opposite[side]) ? opposite[side] : side;
    const spot = { left: isRtl && side ? anchor.right - size.width : anchor.left, top: anchor.top };
    if (side) spot[isBeside(side) ? 'left' : 'top'] = starts[real];
    return { left: shift(spot.left, size.width, frame.width),
             top: shift(spot.top, size.height, frame.height), side: real };
}

// In a zoomed page `ruler` pixels of the layer are as wide as `origin`.
function unzoomed(length, origin, ruler) {
    return length * ruler / ((origin.right - origin.left) || ruler);
}

// In the triangle from where the pointer was to the near edge of the box.
function isHeadedFor(from, to, box, side) {
    const [along, across, start, end] = isBeside(side)
        ? ['x', 'y', 'top', 'bottom'] : ['y', 'x', 'left', 'right'];
    const apex = from[along] + (side == 'right' || side == 'bottom' ? -2 : 2), slack = 8;
    const part = (to[along] - apex) / (box[opposite[side]] - apex);
    const way = to[across] - from[across];
    return part >= 0 && part <= 1 && way >= part * (box[start] - slack - from[across]) &&
        way <= part * (box[end] + slack - from[across]);
}

// A column or row goes round at its ends; -1 is outside.
function neighbour(index, count, columns, direction) {
    const step = direction == 'right' || direction == 'bottom' ? 1 : -1;
    const isAlongRow = isBeside(direction);
    if (columns == 1 || columns >= count) {
        return isAlongRow == (columns == 1) ? -1 : (index + step + count) % count;
    }
    const next = index + step * (isAlongRow ? 1 : columns);
    const isSameRow = Math.floor(next / columns) == Math.floor(index / columns);
    return next < 0 || next >= count || (isAlongRow && !isSameRow) ? -1 : next;
}

// One letter, also repeated, goes on to the next name; more letters may stay where they fit.
function typeAhead(names, index, typed) {
    const text = typed.toLowerCase(), isOneLetter = text == text[0].repeat(text.length);
    const start = isOneLetter ? text[0] : text;
    for (let i = 0; i < names.length; i++) {
        const next = (index + i + isOneLetter) % names.length;
        if (names[next].trim().toLowerCase().startsWith(start)) return next;
    }
    return -1;
}

shared.sums = { place, unzoomed, isHeadedFor, neighbour, realSide, typeAhead };
