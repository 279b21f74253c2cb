zev_state.columns = 1;
zev_state.hbgcolor = '#F4E9CD';
zev_state.hftcolor = '#22382A';
zev_state.nbgcolor = '#3C6E47';
zev_state.nftcolor = '#FFFFFF';
zev_state.hspacing = 1;
zev_state.menuoffset = 1;
zev_state.closedelay = 500;
zev_state.position = 'right';
zev_state.fontFamily = 'Verdana, DejaVu Sans, sans-serif';
zev_state.fontSize = '11pt';

zevmenu = new ZEVMenu('0');
zevmenu.columns = 20;
zevmenu.bgimage = '../images/leaf.svg';
zevmenu.position = 'bottom';
zevmenu.fontWeight = 'bold';
zevmenu.htmlAfter = '&nbsp;';
zevmenu.htmlBefore = '&nbsp;';
zevmenu.itemborder = '1px solid #3C6E47';
zevmenu.menuborder = '1px solid #22382A';
zevmenu.target = 'main';
zevmenu.cellpadding = 8;
zevmenu.divider = '|';

zevmenu.AddItem('Start', '../pages/page.html#start', '_top');
zevmenu.AddRollover('../pages/page.html#plants', '../images/plants_out.svg', '../images/plants_over.svg', 'main');
zevmenu.AddItem('Seeds', '../pages/page.html?kind=all&amp;sort=name#seeds', '');
zevmenu.AddItem('<b>What\'s on</b>', 'javascript:showCalendar(\'spring\');', '');
zevmenu.AddItem('Address', '', '');

zevmenu = new ZEVMenu('2');
zevmenu.columns = 1;
zevmenu.bgimage = '../images/leaf.svg';
zevmenu.hbgcolor = '#3C6E47';
zevmenu.hftcolor = '#FFFFFF';
zevmenu.nbgcolor = '#F4E9CD';
zevmenu.nftcolor = '#22382A';
zevmenu.ffade = '0.2';
zevmenu.fopacity = '95';
zevmenu.fshadow = '#9AA58F';
zevmenu.fontStyle = 'italic';

zevmenu.AddItem('Herbs', '../pages/page.html#herbs', '');
zevmenu.AddItem('Roses', '../pages/page.html#roses', '');
zevmenu.AddRollover('../pages/page.html#trees', '../images/seeds_out.svg', '../images/seeds_over.svg', '');

zevmenu = new ZEVMenu('2i2');
zevmenu.columns = 2;
zevmenu.nbgcolor = '#F4E9CD';
zevmenu.nftcolor = '#7A1F2B';
zevmenu.position = 'left';

zevmenu.AddItem('Climbing roses', '../pages/page.html#climbing', '');
zevmenu.AddItem('Shrub roses', '../pages/page.html#shrubs', '');
zevmenu.AddItem('Wild roses', '../pages/page.html#wild', '');
zevmenu.AddItem('Old sorts', '../pages/page.html#old', '');

zevmenu = new ZEVMenu('2i2i3');
zevmenu.columns = 1;

zevmenu.AddItem('Dog rose', '../pages/page.html#dog', '');


