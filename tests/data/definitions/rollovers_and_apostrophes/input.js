zevmenu = new ZEVMenu('0');
zevmenu.AddRollover('x\'y.html', 'o\'.gif', 'v.gif', 't\'');
zevmenu.AddItem('It\'s "it"', 'javascript:f(\'a\', \'b\')', '');
zevmenu.AddItem('It's', 'a.html', '');
zevmenu.AddItem('literal ~||~', '', '');
