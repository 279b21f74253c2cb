import { hover, nested, startLab, pause } from './support.mjs';
import { writeFileSync } from 'node:fs';
const lab = await startLab();
let page = await lab.show({ definition: nested, after: '<p id=p>text text text</p>' });
await hover(page, 'Products');
writeFileSync('/tmp/zev/contact/full.png', Buffer.from(await page.send('GET', '/screenshot'), 'base64'));
const el = await page.$('body');
writeFileSync('/tmp/zev/contact/el.png', Buffer.from(await page.send('GET', `/element/${el.id}/screenshot`), 'base64'));
await lab.close();
