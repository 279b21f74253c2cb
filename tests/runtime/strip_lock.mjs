// SPDX-License-Identifier: MIT
// Takes the registry's addresses and the makers' funding links out of package-lock.json, so that it
// serves behind any mirror. Run it after every change of dependencies: node strip_lock.mjs [FILE]
import { readFileSync, writeFileSync } from 'node:fs';

const file = process.argv[2] || new URL('package-lock.json', import.meta.url);
const lock = JSON.parse(readFileSync(file, 'utf8'));
for (const entry of Object.values(lock.packages)) {
    delete entry.resolved;
    delete entry.funding;
}
writeFileSync(file, JSON.stringify(lock, null, 2) + '\n');
