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
zevmenu.columns = 1;
zevmenu.position = 'bottom';

zevmenu.AddItem('Café 日本', 'a.html', '');

zevmenu = new ZEVMenu('1');

zevmenu.AddItem('B', 'b.html', '');


