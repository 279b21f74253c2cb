// Käse
qlmenu1 = new mainMenu('vertical', '', '', '', '', 'hölzern.gif');
qlmenu1.addItems('Käse € 5', 'käse.html', '');
qlmenu1.addImages('café.html', 'œuvre.gif', 'œuvre2.gif', '');
qlmenu1 = new subMenu('1');
qlmenu1.divider = '•';
qlmenu1.addItems('„Alt“', '', '');
