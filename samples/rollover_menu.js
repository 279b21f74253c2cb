zev_state.columns = 1;
zev_state.hbgcolor = '#DCEBDD';
zev_state.hftcolor = '#14361C';
zev_state.nbgcolor = '#FFFFFF';
zev_state.nftcolor = '#26332A';
zev_state.menuoffset = 1;
zev_state.closedelay = 500;
zev_state.position = 'right';
zev_state.fontFamily = 'Georgia, DejaVu Serif, serif';
zev_state.fontSize = '11pt';

zevmenu = new ZEVMenu('0');
zevmenu.columns = 1;
zevmenu.nbgcolor = 'transparent';
zevmenu.hspacing = 4;
zevmenu.position = 'bottom';

zevmenu.AddRollover('pages/page.html#start', 'images/start_out.svg', 'images/start_over.svg', '');
zevmenu.AddRollover('pages/page.html#plants', 'images/plants_out.svg', 'images/plants_over.svg', '');
zevmenu.AddRollover('pages/page.html#seeds', 'images/seeds_out.svg', 'images/seeds_over.svg', '');
zevmenu.AddRollover('pages/page.html#advice', 'images/advice_out.svg', 'images/advice_over.svg', '');
zevmenu.AddRollover('pages/page.html#visit', 'images/visit_out.svg', 'images/visit_over.svg', '');

zevmenu = new ZEVMenu('2');
zevmenu.fshadow = '#B5C4B7';
zevmenu.menuborder = '1px solid #7FA486';
zevmenu.cellpadding = 6;

zevmenu.AddItem('Perennials', 'pages/page.html#perennials', '');
zevmenu.AddItem('Roses', 'pages/page.html#roses', '');
zevmenu.AddItem('Fruit trees', 'pages/page.html#fruit-trees', '');
zevmenu.AddItem('Hedges', 'pages/page.html#hedges', '');

zevmenu = new ZEVMenu('2i3');
zevmenu.fshadow = '#B5C4B7';
zevmenu.menuborder = '1px solid #7FA486';
zevmenu.cellpadding = 6;

zevmenu.AddItem('Apples', 'pages/page.html#apples', '');
zevmenu.AddItem('Pears', 'pages/page.html#pears', '');
zevmenu.AddItem('Plums', 'pages/page.html#plums', '');

zevmenu = new ZEVMenu('4');
zevmenu.fshadow = '#B5C4B7';
zevmenu.menuborder = '1px solid #7FA486';
zevmenu.cellpadding = 6;

zevmenu.AddItem('Soil and compost', 'pages/page.html#soil', '');
zevmenu.AddItem('Pruning', 'pages/page.html#pruning', '');
zevmenu.AddItem('The garden in <i>winter</i>', 'pages/page.html#winter', '');


