// SPDX-License-Identifier: MIT
// The two files that browsers without a DOM read: their language, and what they write there.
import { parse } from 'acorn';
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import test from 'node:test';
import vm from 'node:vm';
import { library } from '../library.mjs';

function sourceOf(name) {
    return readFileSync(new URL(name, library), 'utf8');
}

// What JavaScript 1.2 lacks of the third edition of ECMAScript, which is the oldest acorn knows.
const newerOperators = ['===', '!==', 'in', 'instanceof'];

function newerSyntax(source) {
    const found = [];
    const visit = node => {
        if (!node || typeof node.type != 'string') return;
        const isNewer = /^(Try|Throw)Statement$/.test(node.type) ||
            (node.type == 'BinaryExpression' && newerOperators.includes(node.operator)) ||
            (node.regex && /\*\?|\+\?|\?\?|\(\?/.test(node.regex.pattern));
        if (isNewer) found.push(`${node.type} in line ${node.loc.start.line}`);
        Object.values(node).flat().forEach(visit);
    };
    visit(parse(source, { ecmaVersion: 3, sourceType: 'script', locations: true }));
    return found;
}

for (const name of ['zevmenu_loader.js', 'zevmenu_ns4.js']) {
    test(`${name} keeps to the language of JavaScript 1.2`, () => {
        assert.deepEqual(newerSyntax(sourceOf(name)), []);
    });
}

// [what, source]
const newerSources = [
    ['try', 'try { a(); } catch (e) { }'],
    ['===', 'a === b;'],
    ['the in operator', "'a' in b;"],
    ['a non-greedy pattern', '/a*?/;'],
];

for (const [what, source] of newerSources) {
    test(`the language check refuses ${what}`, () => {
        assert.equal(newerSyntax(source).length, 1);
    });
}

test('the language check refuses let', () => {
    assert.throws(() => newerSyntax('let a = 1;'), SyntaxError);
});

// A browser without document.getElementById: scripts run one after the other, document.write adds
// to the page, and a written script element is fetched at once.
function oldBrowser() {
    const window = { document: { write } };
    window.window = window;
    const browser = { html: '', run: source => vm.runInContext(source, context) };
    const context = vm.createContext(window);
    function write(html) {
        const script = /<script language="JavaScript1.2" src="(.*)"><\/script>/.exec(html);
        if (script) browser.run(sourceOf(script[1].replace('js/', '')));
        else browser.html += html;
    }
    browser.run("var zev_path = 'js/';");
    browser.run(sourceOf('zevmenu_loader.js'));
    return browser;
}

test('a browser without a DOM gets the whole menu as nested plain links', () => {
    const browser = oldBrowser();
    browser.run(`
        zev_state.columns = 1;
        zevmenu = new ZEVMenu('0');
        zevmenu.target = 'main';
        zevmenu.AddItem('Home', 'home.html', '');
        zevmenu.AddItem('Boats', '', '');
        zevmenu.AddRollover('a"b.html', 'boat_out.gif', 'boat_over.gif', '_top');
        zevmenu = new ZEVMenu('2');
        zevmenu.AddItem('Canoes', 'canoes.html', '');
        zevmenu = new ZEVMenu('2i1');
        zevmenu.AddItem('Red', 'red.html', '');`);
    browser.run('ZEVDisplayMenu();');
    browser.run('ZEVCreateMenu(); ZEVLoadMenu();');
    assert.equal(browser.html,
        '<ul><li><a href="home.html" target="main">Home</a></li>' +
        '<li>Boats<ul><li><a href="canoes.html">Canoes</a>' +
        '<ul><li><a href="red.html">Red</a></li></ul></li></ul></li>' +
        '<li><a href="a&quot;b.html" target="_top">' +
        '<img border="0" src="boat_out.gif" alt="a&quot;b"></a></li></ul>');
});

test('a browser without a DOM is written nothing by a second call', () => {
    const browser = oldBrowser();
    browser.run("zevmenu = new ZEVMenu('0'); zevmenu.AddItem('Home', 'home.html', '');");
    browser.run('ZEVDisplayMenu(); ZEVDisplayMenu();');
    assert.equal(browser.html, '<ul><li><a href="home.html">Home</a></li></ul>');
});

test('mistakes and pop-up calls do not stop a browser without a DOM', () => {
    const browser = oldBrowser();
    browser.run(`
        zevmenu.AddItem('Too early', '', '');
        zevmenu = new ZEVMenu('x');
        zevmenu.AddItem('Lost', '', '');
        zevmenu = new ZEVMenu('0');
        zevmenu.AddItem();
        zevmenu.AddItem('Second', '', '');
        ZEVMenuOpen('zev1', '1', null); ZEVMenuClose('zev1', '1', false);
        ZEVDisplayMenu();`);
    assert.equal(browser.html, '<ul><li>Second</li></ul>');
});

// [where it is loaded by hand, what the page has then]
const byHand = [
    ['without the loader', 'undefined'],
    ['where another script has the name of the library', 'function () {}'],
    ['in a browser that needs none', '{ shared: { isModern: true, state: { menus: {} } } }'],
];

for (const [where, library] of byHand) {
    test(`zevmenu_ns4.js, loaded by hand ${where}, does nothing`, () => {
        const window = { document: { write() { throw new Error('written'); } } };
        window.window = window;
        const context = vm.createContext(window);
        vm.runInContext(`var ZEVMenu = ${library === 'undefined' ? undefined : `(${library})`};`, context);
        vm.runInContext(sourceOf('zevmenu_ns4.js'), context);
        assert.equal(vm.runInContext('ZEVMenu && ZEVMenu.shared && ZEVMenu.shared.writeLinks', context), undefined);
    });
}

test('zevmenu_ns4.js, loaded a second time, writes the menu once', () => {
    const browser = oldBrowser();
    browser.run("zevmenu = new ZEVMenu('0'); zevmenu.AddItem('Home', 'home.html', '');");
    browser.run('ZEVDisplayMenu();');
    browser.run(sourceOf('zevmenu_ns4.js'));
    browser.run('ZEVDisplayMenu();');
    assert.equal(browser.html, '<ul><li><a href="home.html">Home</a></li></ul>');
});
