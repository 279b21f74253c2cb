zev_state.columns = 2;
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
zevmenu.columns = 5;
zevmenu.position = 'top';
zevmenu.target = 'main';

zevmenu.AddItem('', '', '');
zevmenu.AddItem('Members', 'members.html', '_top');
zevmenu.AddItem('a=b;', 'x.html?q=1;r=2', '');
zevmenu.AddItem('short', '', '');

zevmenu = new ZEVMenu('2');
zevmenu.htmlBefore = '<b class="x">';
zevmenu.divider = '';

zevmenu.AddItem('List', 'list.html', '');


