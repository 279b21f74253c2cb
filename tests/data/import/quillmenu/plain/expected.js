zev_state.columns = 1;
zev_state.hbgcolor = '#F2B441';
zev_state.hftcolor = '#1B2733';
zev_state.nbgcolor = '#1F4E79';
zev_state.nftcolor = '#FFFFFF';
zev_state.menuoffset = 1;
zev_state.closedelay = 500;
zev_state.position = 'right';
zev_state.fontFamily = 'Arial';
zev_state.fontSize = '10pt';

zevmenu = new ZEVMenu('0');
zevmenu.columns = 20;
zevmenu.position = 'bottom';

zevmenu.AddItem('Home', '../pages/page.html#home', '');
zevmenu.AddItem('Catalogue', '../pages/page.html#catalogue', '');
zevmenu.AddItem('Events', '../pages/page.html#events', '');
zevmenu.AddItem('Visit us', '../pages/page.html#visit', '');

zevmenu = new ZEVMenu('2');
zevmenu.columns = 1;
zevmenu.nbgcolor = '#EAF1F8';
zevmenu.nftcolor = '#1B2733';

zevmenu.AddItem('Fiction', '../pages/page.html#fiction', '');
zevmenu.AddItem('Children\'s books', '../pages/page.html#children', '');
zevmenu.AddItem('Maps &amp; charts', '../pages/page.html#maps', '');

zevmenu = new ZEVMenu('2i3');
zevmenu.columns = 1;
zevmenu.nbgcolor = '#EAF1F8';
zevmenu.nftcolor = '#1B2733';

zevmenu.AddItem('Harbour charts', '../pages/page.html#charts', '');
zevmenu.AddItem('Town plans', '../pages/page.html#plans', '');

zevmenu = new ZEVMenu('3');
zevmenu.columns = 1;
zevmenu.nbgcolor = '#EAF1F8';
zevmenu.nftcolor = '#1B2733';

zevmenu.AddItem('This week', '../pages/page.html#week', '');
zevmenu.AddItem('Readings', '../pages/page.html#readings', '');


