// SPDX-License-Identifier: MIT
// Submenus, pop-ups, placement and keyboard of a menu that zevmenu_loader.js drew.

const shared = window.ZEVMenu?.shared;
if (!shared || shared.sums) return;
const { state, setting, submenuOf, homeOf, warn } = shared, { levels } = state;
