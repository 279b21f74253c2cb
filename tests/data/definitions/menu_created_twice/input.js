zevmenu = new ZEVMenu('0');
zevmenu.AddItem('A', '', '');
zevmenu.AddItem('B', '', '');
zevmenu = new ZEVMenu('0');
zevmenu.columns = 2;
zevmenu.AddItem('C', '', '');
zevmenu.AddItem('D', '', '');
zevmenu.AddItem('E', '', '');
