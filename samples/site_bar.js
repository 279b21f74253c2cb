zev_state.columns = 1;
zev_state.hbgcolor = '#F2B441';
zev_state.hftcolor = '#1B2733';
zev_state.nbgcolor = '#1F4E79';
zev_state.nftcolor = '#FFFFFF';
zev_state.menuoffset = 1;
zev_state.closedelay = 500;
zev_state.position = 'right';
zev_state.fontFamily = 'Verdana, DejaVu Sans, sans-serif';
zev_state.fontSize = '10pt';

zevmenu = new ZEVMenu('0');
zevmenu.columns = 10;
zevmenu.hspacing = 1;
zevmenu.position = 'bottom';
zevmenu.fontWeight = 'bold';
zevmenu.cellpadding = 9;

zevmenu.AddItem('Home', 'pages/page.html#home', '');
zevmenu.AddItem('Bicycles', 'pages/page.html#bicycles', '');
zevmenu.AddItem('Workshop', 'pages/page.html#workshop', '');
zevmenu.AddItem('Tours', 'pages/page.html#tours', '');
zevmenu.AddItem('Contact', 'pages/page.html#contact', '');

zevmenu = new ZEVMenu('2');
zevmenu.nbgcolor = '#EAF1F8';
zevmenu.nftcolor = '#1B2733';
zevmenu.position = 'bottom';
zevmenu.ffade = '0.15';
zevmenu.fshadow = '#9AA5B1';
zevmenu.menuborder = '1px solid #1F4E79';
zevmenu.cellpadding = 7;

zevmenu.AddItem('City bicycles', 'pages/page.html#city', '');
zevmenu.AddItem('Touring bicycles', 'pages/page.html#touring', '');
zevmenu.AddItem('Children\'s bicycles', 'pages/page.html#children', '');
zevmenu.AddItem('Locks &amp; lights', 'pages/page.html#locks-and-lights', '');

zevmenu = new ZEVMenu('2i2');
zevmenu.nbgcolor = '#EAF1F8';
zevmenu.nftcolor = '#1B2733';
zevmenu.ffade = '0.15';
zevmenu.fshadow = '#9AA5B1';
zevmenu.menuborder = '1px solid #1F4E79';
zevmenu.cellpadding = 7;

zevmenu.AddItem('Steel frames', 'pages/page.html#steel', '');
zevmenu.AddItem('Aluminium frames', 'pages/page.html#aluminium', '');
zevmenu.AddItem('Made to measure', 'pages/page.html#made-to-measure', '');

zevmenu = new ZEVMenu('3');
zevmenu.nbgcolor = '#EAF1F8';
zevmenu.nftcolor = '#1B2733';
zevmenu.position = 'bottom';
zevmenu.ffade = '0.15';
zevmenu.fshadow = '#9AA5B1';
zevmenu.menuborder = '1px solid #1F4E79';
zevmenu.cellpadding = 7;

zevmenu.AddItem('Repairs', 'pages/page.html#repairs', '');
zevmenu.AddItem('Spring check', 'pages/page.html#spring-check', '');
zevmenu.AddItem('Prices', 'pages/page.html#prices', '');

zevmenu = new ZEVMenu('4');
zevmenu.columns = 2;
zevmenu.nbgcolor = '#EAF1F8';
zevmenu.nftcolor = '#1B2733';
zevmenu.position = 'bottom';
zevmenu.ffade = '0.15';
zevmenu.fshadow = '#9AA5B1';
zevmenu.menuborder = '1px solid #1F4E79';
zevmenu.cellpadding = 7;

zevmenu.AddItem('Along the river', 'pages/page.html#river', '');
zevmenu.AddItem('Lakes and mills', 'pages/page.html#lakes', '');
zevmenu.AddItem('Hill villages', 'pages/page.html#hills', '');
zevmenu.AddItem('Night ride', 'pages/page.html#night-ride', '');


