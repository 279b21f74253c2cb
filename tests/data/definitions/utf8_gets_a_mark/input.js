zevmenu = new ZEVMenu('0');
zevmenu.columns = 10;
zevmenu.position = 'bottom';

zevmenu.AddItem('日本語 😀', 'café.html', '');
