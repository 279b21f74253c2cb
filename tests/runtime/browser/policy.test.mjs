// SPDX-License-Identifier: MIT
// The menu in a page with a strict Content-Security-Policy or Trusted Types, and with the doctype of XHTML.
import assert from 'node:assert/strict';
import { after, afterEach, before, test } from 'node:test';
import { hover, item, nested, shown, source, startLab, style, until, waitShown } from './support.mjs';

let lab, page;
before(async () => {
    lab = await startLab();
    page = lab.page;
});
after(() => lab.close());
afterEach(() => assert.deepEqual(page.errors, []));

// A page without inline scripts; `document.reports` collects what the browser refuses.
const strict = {
    headers: { 'Content-Security-Policy': "script-src 'self'; style-src 'self'" }, handlers: '',
    loader: source('collect.js') + source('/runtime/zevmenu_loader.js'),
    place: source('menu.js') + source('display.js'), end: source('create.js'),
};

async function showStrict(definition) {
    lab.files.set('/site/collect.js', `document.reports = []; addEventListener('securitypolicyviolation',
        event => document.reports.push(event.violatedDirective + ' ' + event.blockedURI));`);
    lab.files.set('/site/display.js', 'ZEVDisplayMenu();');
    lab.files.set('/site/create.js', 'ZEVCreateMenu();');
    await lab.show({ ...strict, definition });
}

test('a strict Content-Security-Policy has nothing to refuse of a menu with every property', async () => {
    await showStrict(`zev_state.ffade = 0.1; zev_state.fopacity = 90; zev_state.fshadow = 'black';
        zev_state.hspacing = 9; zev_state.divider = '|'; zev_state.itemborder = '1px solid red';
        zev_state.htmlBefore = '<i>-</i>'; zev_state.bgimage = 'none.svg';` + nested);
    await hover(page, 'Products', 'Boats', 'Kayaks');
    await waitShown(page, 'Sea kayaks');
    assert.equal(await style(page, 'Boats', 'backgroundColor'), 'rgb(136, 136, 136)');
    assert.deepEqual(await page.evaluate(() => document.reports), []);
    assert.deepEqual(page.warnings, []);
});

test("a refused style of the page's own is reported", async () => {
    await showStrict(nested);
    await page.evaluate(() => { document.body.insertAdjacentHTML('beforeend', '<p style="color: red"></p>'); });
    await until(() => page.evaluate(() => document.reports.some(text => /^style-src/.test(text))), 'a report');
    // Firefox tells the console's listener too.
    page.errors = page.errors.filter(error => !/Content-Security-Policy/.test(error));
});

// A page that names the definition at the loader, and its place by an element.
const withoutInline = {
    loader: '<script nonce="abc" src="/runtime/zevmenu_loader.js" data-definition="menu.js" defer></script>',
    place: '<div data-zevmenu></div>', end: '', handlers: '',
};
// A page whose own scripts carry the word that the server gave them.
const withNonce = {
    loader: '<script nonce="abc" src="/runtime/zevmenu_loader.js"></script>',
    place: '<script nonce="abc" src="menu.js"></script><script nonce="abc">ZEVDisplayMenu();</script>',
    end: '<script nonce="abc">ZEVCreateMenu();</script>', handlers: '',
};

// [policy, what stands in the page]
const policies = [
    ["script-src 'self'", withoutInline],
    ["default-src 'none'; script-src 'self'", withoutInline],
    ["script-src 'nonce-abc'", withNonce],
    ["script-src 'nonce-abc'", withoutInline],
    ["script-src 'nonce-abc' 'strict-dynamic'", withNonce],
    ["script-src 'nonce-abc' 'strict-dynamic'", withoutInline],
];

for (const [policy, options] of policies) {
    const way = options == withNonce ? 'by calls' : 'by an element';
    test(`the menu, placed ${way}, opens down to its last level under the policy ${policy}`, async () => {
        await lab.show({ ...options, headers: { 'Content-Security-Policy': policy } });
        await hover(page, 'Products', 'Boats', 'Kayaks');
        await waitShown(page, 'Sea kayaks');
        assert.deepEqual(page.warnings, []);
        page.errors = page.errors.filter(error => !/Content-Security-Policy/.test(error));
    });
}

// Shows a page that demands Trusted Types, of policies with that name; false where the engine has none.
async function showTrusted(name, options) {
    const policy = `require-trusted-types-for 'script'; trusted-types ${name}`;
    await lab.show({ place: '', end: '', loader: '', handlers: '', awaitsLibrary: false });
    if (!await page.evaluate(() => 'trustedTypes' in window)) return false;
    await lab.show({ ...options, headers: { 'Content-Security-Policy': policy } });
    return true;
}

const formatted = nested.replace("'Home'", "'<b>Ho</b>me<script src=\"x.js\"><\\/script>'").replace("'Oars'", "'<i>Oars</i>'");
const noTypes = 'this engine has no Trusted Types';

for (const options of [{}, withoutInline]) {
    test(`a page that demands Trusted Types gets the whole menu${options.loader ? ', placed by an element' : ''}`,
        async t => {
            if (!await showTrusted('zevmenu', { ...options, definition: formatted })) return t.skip(noTypes);
            await hover(page, 'Products', 'Boats', 'Kayaks');
            await waitShown(page, 'Sea kayaks');
            assert.equal(await (await item(page, 'Home')).evaluate(link => link.querySelector('b').textContent), 'Ho');
            assert.equal(await (await item(page, 'Oars')).evaluate(link => link.querySelector('i').textContent), 'Oars');
            assert.deepEqual(page.warnings, []);
        });
}

for (const doctype of ['Transitional', 'Strict']) {
    test(`the menu works in a page with the doctype of XHTML 1.0 ${doctype}`, async () => {
        await lab.show({ doctype: `<!DOCTYPE html PUBLIC "-//W3C//DTD XHTML 1.0 ${doctype}//EN"
            "http://www.w3.org/TR/xhtml1/DTD/xhtml1-${doctype.toLowerCase()}.dtd">`,
            html: '<html xmlns="http://www.w3.org/1999/xhtml" lang="en">' });
        await hover(page, 'Products', 'Boats', 'Kayaks');
        await waitShown(page, 'Sea kayaks');
        assert.equal(await shown(page, 'Boats', 'Canoes', 'Sea kayaks', 'Map'), 'Boats Canoes Sea kayaks');
    });
}
