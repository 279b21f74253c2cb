qlmenu1 = new mainMenu('horizontal');
qlmenu1.addItems('Café 日本', 'a.html', '');
