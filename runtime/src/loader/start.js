// SPDX-License-Identifier: MIT
// Takes a menu definition and draws its top menu. Keeps to JavaScript 1.2 (no try, no ===), because
// every browser ever made may meet it.
if (typeof window.ZEVMenu == 'function') return;

// All that changes while the library is at work, in both files. What begins as nothing is only told of here.
function emptyState() {
    return {
        menus: {},          // by id
        next: {},           // those defined after the top menu was drawn, by id
        told: {},           // warnings given
        scripts: [],        // elements of what was loaded
        levels: [],         // open submenus, the deepest last
        ahead: [],          // menus still to be built
        press: {},          // the last pointerdown on a link, until the click
        typed: {}           // { text, time } of the last letters
        // isRemoved        by destroy(), and no menu defined since
        // drawing          timer of draw
        // fold             media query: the top menu is a button
        // foldLink         of that button
        // isAsked          that button was clicked too early
        // bar              the page's element around the top menu
        // barBox           the top menu
        // layer            the page's element around the submenus
        // early            a ZEVMenuOpen that came too early
        // watched          documents in which a click closes submenus
        // building         timer or idle callback of the next menu to be built
        // looking          timer or idle callback of the search for the page's own items
        // actingLink       the pop-up link that a key or tap is to open
        // over             { box, link } under the mouse
        // opening          timer of what the mouse is on
        // last             { x, y } of the mouse
        // crossing         { from, timer } of a mouse on its way to a submenu
    };
}

var state = emptyState();
// What the files ask of each other.
var shared = { state: state, warn: warn, setting: setting, resolve: resolve, buildBox: buildBox };

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

function folderOf(url) {
    return url.replace(/[^\/]*([?#].*)?$/, '');
}

var own = currentScript(), prefix = asText(window.zev_path) || (own ? folderOf(own.src) : '');

// What the page trusts this file with holds for those that it asks for.
function load(url) {
    var script = document.createElement('script');
    if (own) script.nonce = own.nonce;
    script.onerror = function () {
        warn(url + ' did not load');
    };
    script.src = policy.createScriptURL(url);
    state.scripts.push(script);
    return (document.head || document.documentElement).appendChild(script);
}

// On its way while this file still runs.
if (isModern) load(prefix + 'zevmenu_dom.js');
