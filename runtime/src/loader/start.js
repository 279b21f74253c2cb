// SPDX-License-Identifier: MIT
// Takes a menu definition and draws its top menu. Keeps to JavaScript 1.2 (no try, no ===), because
// every browser ever made may meet it.
if (typeof window.ZEVMenu == 'function') return;

// All that changes while the library is at work; zevmenu_dom.js adds what is its own.
function emptyState() {
    return {
        menus: {},          // by id
        next: {},           // those defined after the top menu was drawn, by id
        told: {},           // warnings given
        scripts: [],        // elements of what was loaded
        isRemoved: false,   // by destroy(), and no menu defined since
        drawing: 0,         // timer of draw
        fold: null,         // media query: the top menu is a button
        foldLink: null,     // of that button
        isFoldAsked: false, // by a click that came too early
        bar: null,          // the page's element around the top menu
        barBox: null,       // the top menu
        layer: null,        // the page's element around the submenus
        earlyCall: null     // a ZEVMenuOpen that came too early
    };
}

var state = emptyState();
var shared = {
    state: state, destroy: destroy, warn: warn, setting: setting,
    submenuId: submenuId, submenuOf: submenuOf, wishedSide: wishedSide, resolve: resolve,
    createHost: createHost, buildBox: buildBox, addMark: addMark, nameOf: nameOf, nameFromFiles: nameFromFiles
};

var isModern = shared.isModern = document.getElementById && document.documentElement.attachShadow;

// Not the document's property itself, which can be an element of the page (<img name="currentScript">).
function currentScript() {
    return isModern && Document.prototype.__lookupGetter__('currentScript').call(document);
}

function warn(text) {
    if (!state.told[text] && window.console && console.warn) console.warn('ZEVMenu: ' + text);
    state.told[text] = true;
}

// For pages that demand Trusted Types. Captions and addresses are the site's own.
var policy = { createHTML: asText, createScriptURL: asText };
if (window.trustedTypes) policy = trustedTypes.createPolicy('zevmenu', policy);
