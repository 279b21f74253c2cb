// SPDX-License-Identifier: MIT
// A visitor of the site that test_integrated_site.cpp makes: opens its integrated pages in chromium, opens
// submenus and follows links.
//
//     node visit_site.mjs FOLDER
//
// FOLDER is the site. Exit status 0 when all went well.
import assert from 'node:assert/strict';
import { join } from 'node:path';
import { pathToFileURL } from 'node:url';
import { boxRect, hover, shown, until, waitGone, waitShown } from '../runtime/browser/support.mjs';
import { clickAndExpect, moveAway, withVisitor } from './visitor.mjs';

const site = pathToFileURL(join(process.argv[2], '/')).href;
const everything = ['Home', 'Products', 'Team', 'Boats', 'Oars', 'Canoes'];

// A page gets the title that its own script gives it when it has loaded.
const titles = {
    'index.htm': 'HARBOUR, loaded',
    'products/list.htm': 'Products, loaded',
    'about/us/team.htm': 'Team, loaded',
};

await withVisitor(async page => {
    async function open(path, title) {
        await page.goto(site + path);
        await moveAway(page);
        await until(async () => await page.title() == title, `the own onload of ${path}`);
    }

    async function clickAndArrive(name, path) {
        await clickAndExpect(page, name, site + path, titles[path]);
    }

    // In each folder the menu is drawn, its submenus open, and its links lead to the right files.
    for (const [path, title] of Object.entries(titles)) {
        await open(path, title);
        await waitShown(page, 'Home');
        assert.equal(await shown(page, ...everything), 'Home Products Team', path);
        await hover(page, 'Products', 'Boats');
        await waitShown(page, 'Canoes');
        await clickAndArrive('Canoes', 'products/list.htm');
        await open(path, title);
        await clickAndArrive('Team', 'about/us/team.htm');
        await clickAndArrive('Home', 'index.htm');
    }

    // Beside the mouse: there, and gone when the mouse has left.
    await open('mouse.htm', 'Mouse, loaded');
    assert.equal(await shown(page, ...everything), '');
    const link = await page.$('a[onmouseover]');
    const { x, y, width, height } = await link.boundingBox();
    const mouse = { x: x + width / 2, y: y + height / 2 };
    await page.mouse.move(mouse.x, mouse.y);
    await waitShown(page, 'Boats');
    assert.equal(await shown(page, ...everything), 'Boats Oars');
    const box = await boxRect(page, 'Boats');
    for (const [edge, place] of [[box.left, mouse.x], [box.top, mouse.y]]) {
        assert(Math.abs(edge - place) < 15, `a box at ${box.left}, ${box.top}, the mouse at ${mouse.x}, ${mouse.y}`);
    }
    await moveAway(page);
    await waitGone(page, 'Boats');
    await page.mouse.move(mouse.x, mouse.y);
    await hover(page, 'Boats', 'Canoes');
    await clickAndArrive('Canoes', 'products/list.htm');

    // At a position: there, and gone when the mouse has been in it and has left, or at a click elsewhere.
    await open('products/position.htm', 'Position, loaded');
    await page.hover('a[onmouseover]');
    await waitShown(page, 'Canoes');
    await page.mouse.click(600, 400);
    await waitGone(page, 'Canoes');
    await page.hover('a[onmouseover]');
    await hover(page, 'Canoes');
    await moveAway(page);
    await waitGone(page, 'Canoes');
    await page.hover('a[onmouseover]');
    await waitShown(page, 'Canoes');
    assert.equal(await shown(page, ...everything), 'Canoes');
    const { left, top } = await boxRect(page, 'Canoes');
    assert.deepEqual({ left, top }, { left: 100, top: 50 });
    await clickAndArrive('Canoes', 'products/list.htm');
});
