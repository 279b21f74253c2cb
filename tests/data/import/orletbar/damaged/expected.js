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

zevmenu.AddItem('', '', '');
zevmenu.AddItem(' :Start', 'start.html', '');
zevmenu.AddItem('', '', '');
zevmenu.AddItem(' It\'s ', ' it\'s.html ', ' it\'s');
zevmenu.AddItem('cut o', '', '');

zevmenu = new ZEVMenu('2');

zevmenu.AddItem('', '', '');

zevmenu = new ZEVMenu('2i1');

zevmenu.AddItem('~', '', '');

zevmenu = new ZEVMenu('3');

zevmenu.AddItem('bytes ÿþ', '€.html', '');
zevmenu.AddItem('Past a jump', 'jump.html', '');
zevmenu.AddItem('Back', 'back.html', 'main');

zevmenu = new ZEVMenu('3i1');

zevmenu.AddItem('Deep', 'deep.html', '');


