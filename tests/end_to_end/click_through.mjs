// SPDX-License-Identifier: MIT
// A visitor of the saved menu: opens the folder's page in chromium and clicks through the menu.
//
//     node click_through.mjs FOLDER
//
// FOLDER holds the menu that test_editor.cpp makes, and its page. Exit status 0 when all went well.
import assert from 'node:assert/strict';
import { existsSync, writeFileSync } from 'node:fs';
import { join } from 'node:path';
import { pathToFileURL } from 'node:url';
import { hover, pause, shown, waitGone, waitShown } from '../runtime/browser/support.mjs';
import { clickAndExpect, moveAway, withVisitor } from './visitor.mjs';

const folder = process.argv[2];
const everything = ['Home', 'Products', "It's us", 'Boats', 'Oars'];
const top = "Home Products It's us";

for (const name of ['home', 'products', 'about', 'boats', 'oars']) {
    assert(!existsSync(join(folder, name + '.html')));
    writeFileSync(join(folder, name + '.html'), `<!DOCTYPE html><title>${name}</title>`);
}
await withVisitor(async page => {
    const menuPage = pathToFileURL(join(folder, 'orlet_temp.html')).href;

    async function open() {
        await page.goto(menuPage);
        await moveAway(page);
        await waitShown(page, 'Home');
    }

    async function clickAndArrive(name, title) {
        await clickAndExpect(page, name, new URL(title + '.html', menuPage).href, title);
    }

    // Hovering opens the submenu; leaving closes it.
    await open();
    assert.equal(await shown(page, ...everything), top);
    await hover(page, 'Products');
    await waitShown(page, 'Boats');
    assert.equal(await shown(page, ...everything), top + ' Boats Oars');
    await moveAway(page);
    await waitGone(page, 'Boats');

    // Top items and submenu items lead to their pages.
    await clickAndArrive("It's us", 'about');
    await open();
    await hover(page, 'Products', 'Boats', 'Oars');
    await pause(100);
    await clickAndArrive('Oars', 'oars');
    await open();
    await hover(page, 'Products', 'Boats');
    await clickAndArrive('Boats', 'boats');
});
