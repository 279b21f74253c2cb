zev_state.columns = 4;
zev_state.fontStyle = 'italic';
zevmenu = new ZEVMenu('0');
zevmenu.columns = 4;
zevmenu.hbgcolor = '#888888';
zevmenu.position = 'left';
zevmenu.fontFamily = 'Arial';
zevmenu.fontStyle = 'none';
zevmenu.AddItem('A', '', '');
