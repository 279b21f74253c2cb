zev_state.columns = 2;
zev_state.bgimage = 'all.gif';
zev_state.hbgcolor = '#000001';
zev_state.hftcolor = '#000002';
zev_state.nbgcolor = '#000003';
zev_state.nftcolor = '#000004';
zev_state.hspacing = 1;
zev_state.menuoffset = 1;
zev_state.closedelay = 500;
zev_state.position = 'bottom';
zev_state.fontFamily = 'Verdana';
zev_state.fontSize = '9pt';

zevmenu = new ZEVMenu('0');
zevmenu.columns = 3;
zevmenu.bgimage = 'img/bg.gif';
zevmenu.hbgcolor = '#112233';
zevmenu.hftcolor = '#445566';
zevmenu.nbgcolor = 'transparent';
zevmenu.nftcolor = '#778899';
zevmenu.hspacing = 4;
zevmenu.position = 'top';
zevmenu.ffade = '2';
zevmenu.fopacity = '80';
zevmenu.fshadow = '#222222';
zevmenu.fontFamily = 'Times New Roman';
zevmenu.fontSize = '14pt';
zevmenu.fontStyle = 'italic';
zevmenu.fontWeight = 'bold';
zevmenu.htmlAfter = '&gt;';
zevmenu.htmlBefore = '<i>';
zevmenu.itemborder = '1px solid #000';
zevmenu.menuborder = '2px dotted';
zevmenu.target = 'main';
zevmenu.cellpadding = 5;
zevmenu.divider = '|';

zevmenu.AddItem('A', '', '');

zevmenu = new ZEVMenu('1');
zevmenu.columns = 3;
zevmenu.bgimage = 'img/bg.gif';
zevmenu.hbgcolor = '#112233';
zevmenu.hftcolor = '#445566';
zevmenu.nbgcolor = 'transparent';
zevmenu.nftcolor = '#778899';
zevmenu.hspacing = 4;
zevmenu.position = 'top';
zevmenu.ffade = '2';
zevmenu.fopacity = '80';
zevmenu.fshadow = '#222222';
zevmenu.fontFamily = 'Times New Roman';
zevmenu.fontSize = '14pt';
zevmenu.fontStyle = 'italic';
zevmenu.fontWeight = 'bold';
zevmenu.htmlAfter = '&gt;';
zevmenu.htmlBefore = '<i>';
zevmenu.itemborder = '1px solid #000';
zevmenu.menuborder = '2px dotted';
zevmenu.target = 'main';
zevmenu.cellpadding = 5;
zevmenu.divider = '|';

zevmenu.AddItem('A1', '', '');


