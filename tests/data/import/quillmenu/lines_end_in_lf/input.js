qlmenu1 = new mainMenu('horizontal', '#111111');
qlmenu1.addItems('A', 'a.html', '');
qlmenu1 = new subMenu('1');
qlmenu1.addItems('B', 'b.html', '');