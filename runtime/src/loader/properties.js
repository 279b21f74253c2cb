// SPDX-License-Identifier: MIT
// ---- Checks: the value to use, or null ----

function asText(value) {
    return typeof value == 'string' || typeof value == 'number' ? '' + value : null;
}

function asNumber(least, most, isWhole) {
    return function (value) {
        var n = /\d/.test(asText(value)) ? value - 0 : null;
        return n != null && n >= least && n <= most && !(isWhole && n % 1) ? n : null;
    };
}

function asSide(value) {
    return /^(right|bottom|left|top)$/.test(asText(value)) ? value : null;
}

// Words such as "inherit" are valid CSS, but would let the page's style into the menu.
function asCss(property) {
    return function (value) {
        value = asText(value);
        if (value == 'none' && /^font/.test(property)) value = 'normal';
        return value != null && CSS.supports(property, value) &&
            !/var\(|env\(|^ *(inherit|initial|unset|revert|revert-layer) *$/i.test(value) ? value : null;
    };
}

// ---- Properties: check, factory value, style of the box, unit ----

var properties = {
    columns: [asNumber(1, 1e6, true), 1],
    bgimage: [asText, ''],
    nbgcolor: [asCss('color'), '#000000', '--zev-nbg'],
    nftcolor: [asCss('color'), '#FFFFFF', '--zev-nft'],
    hbgcolor: [asCss('color'), '#888888', '--zev-hbg'],
    hftcolor: [asCss('color'), '#000000', '--zev-hft'],
    hspacing: [asNumber(0, 1e4), 0, '--zev-space', 'px'],
    divider: [asText, '&nbsp;'],
    htmlBefore: [asText, '&nbsp;&nbsp;'],
    htmlAfter: [asText, '&nbsp;&nbsp;'],
    itemborder: [asCss('border'), '0', '--zev-border'],
    menuborder: [asCss('border'), '', 'border'],
    cellpadding: [asNumber(0, 1e4), '1', '--zev-padding', 'px'],     // a text is not a written one
    target: [asText, ''],
    fontFamily: [asCss('font-family'), 'Arial', 'font-family'],
    fontSize: [asCss('font-size'), '10pt', 'font-size'],
    fontStyle: [asCss('font-style'), 'normal', 'font-style'],
    fontWeight: [asCss('font-weight'), 'normal', 'font-weight'],
    position: [asSide, 'right'],
    menuoffset: [asNumber(-1e4, 1e4), 1],               // pixels
    closedelay: [asNumber(0, 1e9), 500],                // milliseconds
    opendelay: [asNumber(0, 1e9), 80],                  // milliseconds
    marker: [asText, ''],
    fold: [asNumber(0, 1e5), 0],                        // pixels
    label: [asText, 'Site menu'],
    ffade: [asNumber(0, 5), ''],                        // seconds; not set is a short one
    fopacity: [asNumber(1, 100), 100, 'opacity', '%'],
    fshadow: [asCss('color'), 'transparent', '--zev-shadow']
};

// A page's script may have given all objects more properties.
if (isModern) Object.setPrototypeOf(properties, null);

// Empty means "not set", but "nothing" where it is HTML.
function ownSetting(owner, name) {
    var value = owner ? owner[name] : null;
    if (value == null || (asText(value) == '' && !/^(html|divider)/.test(name))) return null;
    value = properties[name][0](value);
    if (value == null) {
        warn((owner.zevId ? 'menu ' + owner.zevId : 'zev_state') + ': the value of ' + name +
            ' makes no sense');
    }
    return value;
}

// The menu's own value, else the other menu's, else everybody's.
function setting(menu, name, other) {
    var value = ownSetting(menu, name);
    if (value == null) value = ownSetting(other, name);
    if (value == null) value = ownSetting(window.zev_state, name);
    return value == null ? properties[name][1] : value;
}

// What was set for the whole menu before its definition. The next menu has its own.
var ofBar = ['opendelay', 'marker', 'fold', 'label'];
function takeOver(menu) {
    for (var i = 0; i < ofBar.length; i++) {
        menu[ofBar[i]] = setting(null, ofBar[i]);
        delete window.zev_state[ofBar[i]];
    }
}
