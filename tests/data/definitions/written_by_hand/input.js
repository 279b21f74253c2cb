// Menu of the club
var now = new Date();
  zev_state.columns=2;
	zev_state.columns = 9;

    zevmenu = new ZEVMenu('0');
    zevmenu.columns   =   5  ;
    zevmenu.position = "top";
    zevmenu.target = "main";
    zevmenu.AddItem("Home", "index.html", "");
    zevmenu.AddItem('Members', 'members.html', '_top');   
    zevmenu.AddItem('a=b;', 'x.html?q=1;r=2', '');
    zevmenu.AddItem('short');

zevmenu = new ZEVMenu('2');
zevmenu.divider = '';
zevmenu.cellpadding = 1;
zevmenu.htmlBefore = '<b class="x">';
zevmenu.AddItem('List', 'list.html', '');
ZEVCreateMenu();
