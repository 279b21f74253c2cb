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

zevmenu.AddItem('Home <img src="../images/start_out.svg" border="0">', '../pages/page.html#home', '');
zevmenu.AddItem('Catalogue <img src="../images/seeds_out.svg" border="0">', '../pages/page.html#catalogue', '');
zevmenu.AddItem('Visit us <img src="../images/visit_out.svg" border="0">', '../pages/page.html#visit', '');

zevmenu = new ZEVMenu('2');

zevmenu.AddItem('Fiction', '../pages/page.html#fiction', '');
zevmenu.AddItem('Maps &amp; charts', '../pages/page.html#maps', '');

zevmenu = new ZEVMenu('2i2');

zevmenu.AddItem('Harbour charts', '../pages/page.html#charts', '');
zevmenu.AddItem('Town plans', '../pages/page.html#plans', '');

zevmenu = new ZEVMenu('3');

zevmenu.AddItem('How to get here', '../pages/page.html#map', '');
zevmenu.AddItem('Contact', '../pages/page.html#contact', '');


