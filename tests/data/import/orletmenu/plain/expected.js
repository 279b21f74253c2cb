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

zevmenu.AddItem('Home', '../pages/page.html#home', '');
zevmenu.AddItem('Opening hours', '../pages/page.html#hours', '');
zevmenu.AddItem('Rooms', '../pages/page.html#rooms', '');
zevmenu.AddItem('Membership', '../pages/page.html#membership', '');
zevmenu.AddItem('Contact', '../pages/page.html#contact', '');

zevmenu = new ZEVMenu('3');

zevmenu.AddItem('Reading room', '../pages/page.html#reading', '');
zevmenu.AddItem('Map room', '../pages/page.html#map', '');
zevmenu.AddItem('Music room', '../pages/page.html#music', '');

zevmenu = new ZEVMenu('4');

zevmenu.AddItem('Join', '../pages/page.html#join', '');
zevmenu.AddItem('Fees', '../pages/page.html#fees', '');


