// Menu of the Old Mill Nursery. Lines such as this one mean nothing to the import and are skipped.

// Menu-wide defaults. Offset and delay are not taken over, nor are names that do not exist.
qlm_state.columns = 1;
qlm_state.bgimage = '';
qlm_state.nbgcolor = '#3C6E47';
qlm_state.nftcolor = '#FFFFFF';
qlm_state.hbgcolor = '#F4E9CD';
qlm_state.hftcolor = '#22382A';
qlm_state.hspacing = 1;
qlm_state.cellpadding = 4;
qlm_state.position = 'right';
qlm_state.fontFamily = "Verdana, DejaVu Sans, sans-serif";
qlm_state.fontSize = '11pt';
qlm_state.fontStyle = 'none';
qlm_state.fontWeight = 'none';
qlm_state.menuoffset = 4;
qlm_state.closedelay = 900;
qlm_state.shadow = 'soft';

// The main menu: orientation, four colours, background image. Further arguments are not read.
qlmenu1 = new mainMenu('horizontal', '#3C6E47', '#F4E9CD', '#FFFFFF', '#22382A', '../images/leaf.svg', '20', 'fade');
qlmenu1.position = 'bottom';
qlmenu1.fontWeight = 'bold';
qlmenu1.cellpadding = 8;
qlmenu1.divider = '|';
qlmenu1.htmlBefore = '&nbsp;';
qlmenu1.htmlAfter = "&nbsp;";
qlmenu1.menuborder = '1px solid #22382A';
qlmenu1.itemborder = '1px solid #3C6E47';
qlmenu1.target = 'main';

// Items: caption, link, target; images: link, image, image under the mouse, target.
    qlmenu1.addItems('Start', '../pages/page.html#start', '_top');
    qlmenu1.addImages('../pages/page.html#plants', '../images/plants_out.svg', '../images/plants_over.svg', 'main');
    qlmenu1.addItems('Seeds', '../pages/page.html?kind=all&amp;sort=name#seeds', '');
    qlmenu1.addItems('<b>What\'s on</b>', 'javascript:showCalendar(\'spring\');', '');
    qlmenu1.addItems('Address');

// A submenu's id spells the positions of the items that lead to it.
qlmenu1 = new subMenu('2', '#F4E9CD', '#3C6E47', '#22382A', '#FFFFFF', '../images/leaf.svg');
qlmenu1.ffade = '0.2';
qlmenu1.fopacity = '95';
qlmenu1.fshadow = '#9AA58F';
qlmenu1.addItems('Herbs', '../pages/page.html#herbs', '');
qlmenu1.addItems('Roses', '../pages/page.html#roses', '');
qlmenu1.addImages('../pages/page.html#trees', '../images/seeds_out.svg', '../images/seeds_over.svg', '');

// The arguments a submenu lacks stay unset; lines of its own come after them.
qlmenu1 = new subMenu('2i2', '#F4E9CD');
qlmenu1.columns = 2;
qlmenu1.nftcolor = '#7A1F2B';
qlmenu1.position = 'left';
qlmenu1.addItems('Climbing roses', '../pages/page.html#climbing', '');
qlmenu1.addItems('Shrub roses', '../pages/page.html#shrubs', '');
qlmenu1.addItems('Wild roses', '../pages/page.html#wild', '');
qlmenu1.addItems('Old sorts', '../pages/page.html#old', '');

qlmenu1 = new subMenu('2i2i3');
qlmenu1.addItems('Dog rose', '../pages/page.html#dog', '');

// A menu may be created again for more properties. Its items are counted from 1 again, so this one
// is refused: its place is taken.
qlmenu1 = new subMenu('2');
qlmenu1.fontStyle = 'italic';
qlmenu1.addItems('Hedges', '../pages/page.html#hedges', '');

// The winter menu was taken out, its lines were forgotten: three warnings for two lines, because the
// second is an item and, with its "=", a property too.
qlmenu1 = new subMenu('6', '#FFFFFF', '#CCCCCC', '#000000', '#000000', '');
qlmenu1.columns = 3;
qlmenu1.addItems('Firewood', '../pages/page.html?kind=wood', '');
