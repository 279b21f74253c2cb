// SPDX-License-Identifier: MIT
// The calls that pages make, and what definitions write. All are global, as the scripts are loaded by
// script elements.

/** Draws the top menu where it is called. */
declare function ZEVDisplayMenu(): void;

/** Begins with the definitions that have run. May be called once the page is there, and again. */
declare function ZEVLoadMenu(): void;

/** The same, for the end of the body. */
declare function ZEVCreateMenu(): void;

/**
 * Opens a submenu at a link of the page. `menu` and `entry` make its id: `'zev1', '3'` is the submenu of the
 * third item, `'zev1i2', '1'` that of the first item in it of the second.
 */
declare function ZEVMenuOpen(menu: string, entry: string, event: Event): void;
/** The same at a place in the page, in pixels from its left and top. */
declare function ZEVMenuOpen(menu: string, entry: string, x: number, y: number): void;

/** Lets it close, after the delay of the menu. The third argument means nothing. */
declare function ZEVMenuClose(menu: string, entry: string, unused?: boolean): void;

/** Set before the loader runs: the folder of the other two files, where that is not the loader's. */
declare var zev_path: string | undefined;

/** The menu that a definition describes; the id of the top menu is `'0'`. */
declare class ZEVMenu {
    constructor(id: string);
    AddItem(caption: string, url?: string, target?: string): void;
    AddRollover(url: string, imageOut: string, imageOver: string, target?: string): void;
    /** The version of the library, as of the programs: "1.0.0". */
    static readonly version: string;
}

/** What the next menu of a definition begins with. */
declare var zev_state: { [property: string]: string | number | undefined };
