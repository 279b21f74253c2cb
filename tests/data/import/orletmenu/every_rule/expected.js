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

zevmenu.AddItem('Opening hours', '../pages/page.html#hours', 'main');
zevmenu.AddItem('Greenhouses', '', 'main');
zevmenu.AddItem('Garden', 'javascript:openMap(\'garden\')', '_blank');
zevmenu.AddItem('Gardener\'s tips', '../pages/page.html#tips', '');

zevmenu = new ZEVMenu('2');

zevmenu.AddItem('Orchids', '../pages/page.html#orchids', '');

zevmenu = new ZEVMenu('2i1');

zevmenu.AddItem('Lady\'s slipper', '../pages/page.html#slipper', '');

zevmenu = new ZEVMenu('3');

zevmenu.AddItem('"Alpine" corner', '../pages/page.html#alpine', 'main');
zevmenu.AddItem('', '../pages/page.html#an-item-without-a-caption', '');
zevmenu.AddItem('Ferns', '../pages/page.html#ferns', '');
zevmenu.AddItem('Cacti', '../pages/page.html?size=small#cacti', '');

zevmenu = new ZEVMenu('3i3');

zevmenu.AddItem('Tree ferns', '../pages/page.html#tree-ferns', '');
zevmenu.AddItem('Water ferns', '', '');


