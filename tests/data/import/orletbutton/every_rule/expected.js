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

zevmenu.AddItem('Start <img src="../images/start_out.svg" border="0">', '../pages/page.html#start', '_top');
zevmenu.AddItem('Plants <img src="../images/plants_out.svg" border="0">', '', 'main');
zevmenu.AddItem('Seeds', '../pages/page.html?kind=all&amp;sort=name#seeds', '');
zevmenu.AddItem('Gardener\'s advice <img src="../images/advice_out.svg" border="0">', 'javascript:openTips(\'today\')', '_blank');
zevmenu.AddItem(' <img src="../images/visit_out.svg" border="0">', '../pages/page.html#visit', '');
zevmenu.AddItem('Contact', '', '');
zevmenu.AddItem('By train', '../pages/page.html#train', 'main');

zevmenu = new ZEVMenu('2');

zevmenu.AddItem('Herbs', '../pages/page.html#herbs', 'main');
zevmenu.AddItem('Roses', '../pages/page.html#roses', '');

zevmenu = new ZEVMenu('2i2');

zevmenu.AddItem('Climbing roses', '', 'main');

zevmenu = new ZEVMenu('6');

zevmenu.AddItem('By bus', '../pages/page.html#bus', 'main');


