qlmenu1.addItems('before any menu', '', '');
qlmenu1.columns = 3;
qlmenu1 = new mainMenu('horizontal', '#111111', '#2222
qlmenu1 = new mainMenu('horizontal', '#111111');
qlmenu1.addItems('Start', 'start.html', '');
qlmenu1.addItems('Plants', 'plants.html', ''
qlmenu1.addItems('Seeds', 'seeds.html);
qlmenu1.addItems(Roses);
qlmenu1.addImages('roses.html');
qlmenu1.nbgcolor = '#333333;
qlmenu1.hbgcolor = ;
qlmenu1.hspacing = 2; // pixels;
qlmenu1 = new subMenu('2, '#444444');
qlmenu1.addItems('lost', '', '');
qlmenu1 = new subMenu();
qlmenu1.addItems('lost as well', '', '');
qlmenu1 = new subMenu('1');
qlmenu1.addItems('kept', '', '');
qlmenu1 = new subMenu('1');
qlmenu1.addItems('lost', '', '');
qlmenu1.addItems('bytes ÿþ', '', '');
qlmenu1.addItems('cut o
