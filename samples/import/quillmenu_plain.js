// Menu of the Harbour Library

qlm_state.nbgcolor = '#1F4E79';
qlm_state.nftcolor = '#FFFFFF';
qlm_state.hbgcolor = '#F2B441';
qlm_state.hftcolor = '#1B2733';

qlmenu1 = new mainMenu('horizontal', '#1F4E79', '#F2B441', '#FFFFFF', '#1B2733', '');
qlmenu1.addItems('Home', '../pages/page.html#home', '');
qlmenu1.addItems('Catalogue', '../pages/page.html#catalogue', '');
qlmenu1.addItems('Events', '../pages/page.html#events', '');
qlmenu1.addItems('Visit us', '../pages/page.html#visit', '');

qlmenu1 = new subMenu('2', '#EAF1F8', '#F2B441', '#1B2733', '#1B2733', '');
qlmenu1.addItems('Fiction', '../pages/page.html#fiction', '');
qlmenu1.addItems('Children\'s books', '../pages/page.html#children', '');
qlmenu1.addItems('Maps &amp; charts', '../pages/page.html#maps', '');

qlmenu1 = new subMenu('2i3', '#EAF1F8', '#F2B441', '#1B2733', '#1B2733', '');
qlmenu1.addItems('Harbour charts', '../pages/page.html#charts', '');
qlmenu1.addItems('Town plans', '../pages/page.html#plans', '');

qlmenu1 = new subMenu('3', '#EAF1F8', '#F2B441', '#1B2733', '#1B2733', '');
qlmenu1.addItems('This week', '../pages/page.html#week', '');
qlmenu1.addItems('Readings', '../pages/page.html#readings', '');
