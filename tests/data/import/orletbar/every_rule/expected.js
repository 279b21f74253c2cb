zev_state.columns = 1;
zev_state.hbgcolor = '#888888';
zev_state.hftcolor = '#000000';
zev_state.nbgcolor = '#000000';
zev_state.nftcolor = '#FFFFFF';
zev_state.menuoffset = 1;
zev_state.closedelay = 500;
zev_state.position = 'right';
zev_state.fontFamily = 'Arial';
zev_state.fontSize = '10pt';

zevmenu = new ZEVMenu('0');
zevmenu.columns = 10;
zevmenu.position = 'bottom';

zevmenu.AddItem('Start', '../pages/page.html#start', '_top');
zevmenu.AddItem('Plants', '', '');
zevmenu.AddItem('Seeds', '../pages/page.html?kind=all&amp;sort=name#seeds', '');
zevmenu.AddItem('What\'s on', 'javascript:showCalendar(\'spring\');', 'main');
zevmenu.AddItem('Workshops', '', '');
zevmenu.AddItem('Tools', '../pages/page.html#tools', '');

zevmenu = new ZEVMenu('2');

zevmenu.AddItem('Herbs', '../pages/page.html#herbs', 'main');
zevmenu.AddItem('Roses', '../pages/page.html#roses', '');

zevmenu = new ZEVMenu('2i2');

zevmenu.AddItem('Climbing roses', '../pages/page.html#climbing', '');

zevmenu = new ZEVMenu('2i2i1');

zevmenu.AddItem('Ramblers', '../pages/page.html#ramblers', '');

zevmenu = new ZEVMenu('4');

zevmenu.AddItem('<b>Spring market</b>', '../pages/page.html#market', '');
zevmenu.AddItem('Children\'s day', '../pages/page.html#children', '');

zevmenu = new ZEVMenu('5');

zevmenu.AddItem('Grafting', '../pages/page.html#grafting', '');
zevmenu.AddItem('Pruning', '../pages/page.html#pruning', '');

zevmenu = new ZEVMenu('6');

zevmenu.AddItem('Spades', '../pages/page.html#spades', '');


