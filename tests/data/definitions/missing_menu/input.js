zevmenu.columns = 3;
zevmenu = new ZEVMenu('0');
zevmenu.AddItem('A', '', '');
zevmenu = new ZEVMenu('7');
zevmenu.columns = 3;
zevmenu.AddItem('lost', '', '');
zevmenu.AddItem('lost=', '', '');
zevmenu = new ZEVMenu('1');
zevmenu.AddItem('A1', '', '');
