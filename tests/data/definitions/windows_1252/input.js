zevmenu = new ZEVMenu('0');
zevmenu.AddItem('Café € “q”', '', '');
