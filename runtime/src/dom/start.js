// SPDX-License-Identifier: MIT
'use strict';

// Submenus, pop-ups, placement and keyboard of a menu that zevmenu_loader.js drew.

const shared = window.ZEVMenu?.shared;
if (!shared || shared.sums) return;
const { state, setting, submenuOf, warn } = shared;

// What changes here, beside what the loader began with.
function clearState() {
    Object.assign(state, {
        levels: [],         // open submenus, the deepest last
        watched: [],        // documents in which a click closes them
        ahead: [],          // menus still to be built
        building: 0,        // timer or idle callback of the next of them
        looking: 0,         // timer or idle callback of the search for the page's own items
        actingLink: null,   // the pop-up link that a key or tap is to open
        over: null,         // { box, link } under the mouse
        opening: 0,         // timer of what the mouse is on
        lastPoint: null,    // { x, y } of the mouse
        crossing: null,     // { from, timer } of a mouse on its way to a submenu
        press: {},          // the last pointerdown on a link, until the click
        typed: {}           // { text, time } of the last letters
    });
}
clearState();

// What no definition sets.
const restMs = 200;         // a mouse that rests so long stays
const typingMs = 700;       // letters that follow sooner belong together
const openingMs = 100;      // of a box without an ffade
const rowPx = 44;           // what a box shows at least, in the smallest window too
const besideMousePx = 8;    // from the mouse to its pop-up
const menusAhead = 50;      // submenus of a box that are built before they open
const itemsAhead = 200;     // in each of them
