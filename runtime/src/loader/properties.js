// SPDX-License-Identifier: MIT
// ---- Checks: the value to use, or null ----

function asText(value) {
    return typeof value == 'string' || typeof value == 'number' ? '' + value : null;
}

/*
 * `kind` is nothing for a text, a pattern of it, a CSS property of which it is to be a value, or a list: least,
 * most and whether whole of a number.
 */
function checked(value, kind) {
    var text = asText(value), isGood = text != null;
    if (typeof kind == 'string') {
        if (text == 'none' && /^font/.test(kind)) text = 'normal';
        // Words such as "inherit" are valid CSS, but would let the page's style into the menu.
        isGood = isGood && CSS.supports(kind, text) &&
            !/var\(|env\(|^ *(inherit|initial|unset|revert|revert-layer) *$/i.test(text);
    } else if (kind) {
        isGood = kind.test ? kind.test(text)
            : /\d/.test(text) && text - 0 >= kind[0] && text - 0 <= kind[1] && !(kind[2] && text % 1);
        if (!kind.test) text = text - 0;
    }
    return isGood ? text : null;
}

// ---- Properties: factory value, style of the box, kind (else of that style), what follows the value there ----

var table = {
    // A page's script may have given all objects more properties.
    __proto__: null,
    columns: [1, '', [1, 1e6, true]],
    bgimage: [''],
    nbgcolor: ['#000000', '--zev-nbg', 'color'],
    nftcolor: ['#FFFFFF', 'color'],
    hbgcolor: ['#888888', '--zev-hbg', 'color'],
    hftcolor: ['#000000', '--zev-hft', 'color'],
    hspacing: [0, '--zev-space', [0, 1e4], 'px'],
    divider: ['&nbsp;'],
    htmlBefore: ['&nbsp;&nbsp;'],
    htmlAfter: ['&nbsp;&nbsp;'],
    itemborder: ['0', '--zev-border', 'border'],
    menuborder: ['', 'border'],
    cellpadding: ['1', '--zev-padding', [0, 1e4], 'px'],    // a text is not a written one
    target: [''],
    fontFamily: ['Arial', 'font-family'],
    fontSize: ['10pt', 'font-size'],
    fontStyle: ['normal', 'font-style'],
    fontWeight: ['normal', 'font-weight'],
    position: ['right', '', /^(right|bottom|left|top)$/],
    menuoffset: [1, '', [-1e4, 1e4]],       // pixels
    closedelay: [500, '', [0, 1e9]],        // milliseconds
    opendelay: [80, '', [0, 1e9]],          // milliseconds
    marker: [''],
    fold: [0, '', [0, 1e5]],                // pixels
    label: ['Site menu'],
    ffade: ['', '', [0, 5]],                // seconds; not set is a short one
    fopacity: [100, 'opacity', [1, 100], '%'],
    fshadow: ['transparent', 'box-shadow', 'color', ' 3px 3px 6px']
};

// The menu's own value, else the other menu's, else everybody's. Empty means "not set", but "nothing" where it is
// HTML.
function setting(menu, name, other) {
    var owners = [menu, other, window.zev_state], row = table[name], i, value;
    for (i = 0; i < 3; i++) {
        value = owners[i] ? owners[i][name] : null;
        if (value != null && (asText(value) != '' || /^(html|divider)/.test(name))) {
            value = checked(value, row[2] || row[1]);
            if (value != null) return value;
            warn((owners[i].zevId ? 'menu ' + owners[i].zevId : 'zev_state') + ': the value of ' + name +
                ' makes no sense');
        }
    }
    return row[0];
}

// What was set for the whole menu before its definition. The next menu has its own.
var ofBar = ['opendelay', 'marker', 'fold', 'label'];
function takeOver(menu) {
    for (var i = 0; i < ofBar.length; i++) {
        menu[ofBar[i]] = setting(null, ofBar[i]);
        delete window.zev_state[ofBar[i]];
    }
}
