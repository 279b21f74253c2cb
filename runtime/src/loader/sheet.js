// SPDX-License-Identifier: MIT
var styleText = [
    // Whether the menu is visible is the page's matter, so the host has to have that of the page's
    // style; without a box of its own it can have the rest too. Inline boxes do not take part in
    // the page's underlining.
    ':host{display:contents!important;zoom:1!important}',
    ':host>div{all:initial;visibility:inherit;display:block;width:fit-content;max-width:100%;',
    'line-height:0}',
    ':host>.layer{position:absolute;left:0;top:0;width:100px;z-index:2147483647}',
    'ul{display:inline-flex;vertical-align:top;line-height:1.2;box-sizing:border-box;margin:0;padding:0;',
    'width:max-content;max-width:100%;',
    'gap:var(--zev-space)}',
    '.list,.list>li{flex-direction:column}',
    '.bar{flex-wrap:wrap}',
    'ul.grid{display:inline-grid}',
    'ul[role=menu]{position:absolute;overscroll-behavior:contain;outline-offset:-1px;',
    'outline:1px solid color-mix(in srgb,currentColor 35%,transparent)}',
    // What the button opens is as wide as it may be.
    'ul.flat{display:flex;width:1e4px}',
    'ul.inside{position:static;width:auto;padding-inline-start:1em;background-color:var(--zev-nbg);',
    'box-shadow:none!important}',
    'ul[hidden]{display:none}',
    'li{display:flex;min-width:0}',
    'a{box-sizing:border-box;flex:auto;min-width:0;overflow-wrap:break-word;',
    'padding:var(--zev-padding);border:var(--zev-border);background:var(--zev-nbg);',
    'color:inherit;text-decoration:none}',
    'a:is([href],[aria-expanded]){cursor:pointer}',
    // A finger needs a higher row than a mouse. Browsers before 2024 leave the text at its top.
    'a:not([class]){min-height:var(--zev-row);align-content:center}',
    '@media(pointer:coarse){ul{--zev-row:44px!important}}',
    'a:is(:hover,:focus,[aria-expanded=true]){background:var(--zev-hbg);color:var(--zev-hft)}',
    // Around the text, on whatever colours; in a box that scrolls it would be cut off.
    'a:focus-visible{position:relative;z-index:1;outline:2px solid #fff;outline-offset:0;box-shadow:0 0 0 4px #000}',
    '.long{overflow-y:auto}',
    '.long>li>a:focus-visible{outline-offset:-4px;box-shadow:inset 0 0 0 2px #000}',
    '.mark,a[data-side]::before{float:right;float:inline-end;margin-inline:.7em .4em}',
    'a[data-side]::before{content:"";box-sizing:border-box;width:.45em;height:.45em;margin-top:.37em;',
    'border:solid;border-width:.13em .13em 0 0;transform:scaleX(var(--zev-x,1)) rotate(var(--zev-turn,45deg))}',
    '[dir=rtl]{--zev-x:-1}',
    '[data-side=bottom]{--zev-turn:135deg}',
    '[data-side=left]{--zev-turn:225deg}',
    '[data-side=top]{--zev-turn:-45deg}',
    // A closed row of an accordion opens where its line ends.
    '.flat>li>a[aria-expanded=false]{--zev-turn:45deg}',
    '.fold a[aria-expanded=true]{--zev-turn:-45deg}',
    // Both pictures share one cell, so that nothing moves.
    'a.rollover{display:grid;justify-content:start}',
    'a.rollover>img{grid-area:1/1}',
    'a:not(:hover,:focus,[aria-expanded=true])>.over,',
    'a:is(:hover,:focus,[aria-expanded=true])>.out{visibility:hidden}',
    '.divider{flex:none;min-width:var(--zev-space);min-height:var(--zev-space);',
    'text-align:center;align-self:center}',
    '.list>li>.divider{align-self:stretch}',
    '@media(forced-colors:active){ul{outline:1px solid!important;outline-offset:-1px}',
    'a:is(:hover,[aria-expanded=true]):not(:focus-visible){outline:2px solid;outline-offset:-2px}}',
    '@media print{ul:is([role=menu],.fold){display:none}',
    'ul[hidden]:not([role=menu],.fold){display:inline-flex;flex-direction:column}}'
].join('');

// Firefox until 100 and Safari until 16.3 cannot construct style sheets.
var sheet;
function addStyle(root) {
    if (CSSStyleSheet.prototype.replaceSync && document.adoptedStyleSheets) {
        if (!sheet) (sheet = new CSSStyleSheet()).replaceSync(styleText);
        root.adoptedStyleSheets = [sheet];
    } else {
        append(root, 'style').textContent = styleText;
    }
}

function append(parent, name, className) {
    var node = document.createElement(name);
    if (className) node.className = className;
    return parent.appendChild(node);
}

// The element of its shadow tree that holds the boxes.
shared.homeOf = function (host) {
    return host.shadowRoot.lastChild;
};

shared.createHost = function (kind) {
    // Of a name that no style sheet of the page tells of.
    var host = document.createElement('zev-menu');
    host.setAttribute('data-zev', kind);
    addStyle(host.attachShadow({ mode: 'open' }));
    append(host.shadowRoot, 'div', kind);
    return host;
};
