// SPDX-License-Identifier: MIT
// Where the files are that pages load: LIBRARY names the folder of a build, else it is the development build's.
import { pathToFileURL } from 'node:url';

export const library = process.env.LIBRARY ? pathToFileURL(process.env.LIBRARY + '/')
    : new URL('../../build/dev/bin/', import.meta.url);
