'use strict';

// Submenus, pop-ups, placement and keyboard of a menu that zevmenu_loader.js drew.

const shared = window.ZEVMenu?.shared;
if (!shared || shared.sums) return;
const { state, setting, submenuOf, warn } = shared;

// What no definition sets.
const fixed = {
    restMs: 200,            // a mouse that rests so long stays
    typingMs: 700,          // letters that follow sooner belong together
    openingMs: 100,         // of a box without an ffade
    rowPx: 44,              // what a box shows at least, in the smallest window too
    besideMousePx: 8,       // from the mouse to its pop-up
    menusAhead: 50,         // submenus of a box that are built before they open
    itemsAhead: 200         // in each of them
};
