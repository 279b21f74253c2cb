zev_state.columns = 1;
zev_state.hbgcolor = '#C8102E';
zev_state.hftcolor = '#FFFFFF';
zev_state.nbgcolor = '#33363B';
zev_state.nftcolor = '#F5F5F5';
zev_state.menuoffset = 1;
zev_state.closedelay = 500;
zev_state.position = 'right';
zev_state.fontFamily = 'Arial, Liberation Sans, sans-serif';
zev_state.fontSize = '10pt';

zevmenu = new ZEVMenu('0');
zevmenu.columns = 10;
zevmenu.position = 'bottom';
zevmenu.cellpadding = 8;

zevmenu.AddItem('Power tools', 'pages/page.html?power-tools', '');
zevmenu.AddItem('Hand tools', 'pages/page.html?hand-tools', '');
zevmenu.AddItem('Garden', 'pages/page.html?garden', '');
zevmenu.AddItem('Paint', 'pages/page.html?paint', '');
zevmenu.AddItem('Electrical', 'pages/page.html?electrical', '');
zevmenu.AddItem('Plumbing', 'pages/page.html?plumbing', '');
zevmenu.AddItem('Timber', 'pages/page.html?timber', '');
zevmenu.AddItem('Fixings', 'pages/page.html?fixings', '');

zevmenu = new ZEVMenu('1');
zevmenu.position = 'bottom';
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Drills', 'pages/page.html?power-tools-drills', '');
zevmenu.AddItem('Saws', 'pages/page.html?power-tools-saws', '');
zevmenu.AddItem('Sanders', 'pages/page.html?power-tools-sanders', '');
zevmenu.AddItem('Routers', 'pages/page.html?power-tools-routers', '');
zevmenu.AddItem('Grinders', 'pages/page.html?power-tools-grinders', '');
zevmenu.AddItem('Batteries', 'pages/page.html?power-tools-batteries', '');

zevmenu = new ZEVMenu('1i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?power-tools-drills-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?power-tools-drills-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?power-tools-drills-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?power-tools-drills-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?power-tools-drills-offers', '');

zevmenu = new ZEVMenu('1i1i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?power-tools-drills-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?power-tools-drills-by-price-25-to-100', '');
zevmenu.AddItem('Over 100', 'pages/page.html?power-tools-drills-by-price-over-100', '');

zevmenu = new ZEVMenu('1i1i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?power-tools-drills-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?power-tools-drills-by-maker-birch-and-sons', '');
zevmenu.AddItem('Cedarworks', 'pages/page.html?power-tools-drills-by-maker-cedarworks', '');

zevmenu = new ZEVMenu('1i1i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?power-tools-drills-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?power-tools-drills-by-use-workshop', '');
zevmenu.AddItem('Building site', 'pages/page.html?power-tools-drills-by-use-building-site', '');

zevmenu = new ZEVMenu('1i1i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?power-tools-drills-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?power-tools-drills-service-spare-parts', '');
zevmenu.AddItem('Manuals', 'pages/page.html?power-tools-drills-service-manuals', '');

zevmenu = new ZEVMenu('1i1i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?power-tools-drills-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?power-tools-drills-offers-reduced', '');
zevmenu.AddItem('Sets', 'pages/page.html?power-tools-drills-offers-sets', '');

zevmenu = new ZEVMenu('1i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?power-tools-saws-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?power-tools-saws-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?power-tools-saws-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?power-tools-saws-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?power-tools-saws-offers', '');

zevmenu = new ZEVMenu('1i2i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?power-tools-saws-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?power-tools-saws-by-price-25-to-100', '');
zevmenu.AddItem('Over 100', 'pages/page.html?power-tools-saws-by-price-over-100', '');

zevmenu = new ZEVMenu('1i2i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?power-tools-saws-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?power-tools-saws-by-maker-birch-and-sons', '');
zevmenu.AddItem('Cedarworks', 'pages/page.html?power-tools-saws-by-maker-cedarworks', '');

zevmenu = new ZEVMenu('1i2i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?power-tools-saws-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?power-tools-saws-by-use-workshop', '');
zevmenu.AddItem('Building site', 'pages/page.html?power-tools-saws-by-use-building-site', '');

zevmenu = new ZEVMenu('1i2i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?power-tools-saws-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?power-tools-saws-service-spare-parts', '');
zevmenu.AddItem('Manuals', 'pages/page.html?power-tools-saws-service-manuals', '');

zevmenu = new ZEVMenu('1i2i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?power-tools-saws-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?power-tools-saws-offers-reduced', '');
zevmenu.AddItem('Sets', 'pages/page.html?power-tools-saws-offers-sets', '');

zevmenu = new ZEVMenu('1i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?power-tools-sanders-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?power-tools-sanders-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?power-tools-sanders-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?power-tools-sanders-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?power-tools-sanders-offers', '');

zevmenu = new ZEVMenu('1i3i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?power-tools-sanders-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?power-tools-sanders-by-price-25-to-100', '');
zevmenu.AddItem('Over 100', 'pages/page.html?power-tools-sanders-by-price-over-100', '');

zevmenu = new ZEVMenu('1i3i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?power-tools-sanders-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?power-tools-sanders-by-maker-birch-and-sons', '');
zevmenu.AddItem('Cedarworks', 'pages/page.html?power-tools-sanders-by-maker-cedarworks', '');

zevmenu = new ZEVMenu('1i3i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?power-tools-sanders-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?power-tools-sanders-by-use-workshop', '');
zevmenu.AddItem('Building site', 'pages/page.html?power-tools-sanders-by-use-building-site', '');

zevmenu = new ZEVMenu('1i3i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?power-tools-sanders-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?power-tools-sanders-service-spare-parts', '');
zevmenu.AddItem('Manuals', 'pages/page.html?power-tools-sanders-service-manuals', '');

zevmenu = new ZEVMenu('1i3i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?power-tools-sanders-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?power-tools-sanders-offers-reduced', '');
zevmenu.AddItem('Sets', 'pages/page.html?power-tools-sanders-offers-sets', '');

zevmenu = new ZEVMenu('1i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?power-tools-routers-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?power-tools-routers-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?power-tools-routers-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?power-tools-routers-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?power-tools-routers-offers', '');

zevmenu = new ZEVMenu('1i4i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?power-tools-routers-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?power-tools-routers-by-price-25-to-100', '');
zevmenu.AddItem('Over 100', 'pages/page.html?power-tools-routers-by-price-over-100', '');

zevmenu = new ZEVMenu('1i4i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?power-tools-routers-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?power-tools-routers-by-maker-birch-and-sons', '');
zevmenu.AddItem('Cedarworks', 'pages/page.html?power-tools-routers-by-maker-cedarworks', '');

zevmenu = new ZEVMenu('1i4i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?power-tools-routers-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?power-tools-routers-by-use-workshop', '');
zevmenu.AddItem('Building site', 'pages/page.html?power-tools-routers-by-use-building-site', '');

zevmenu = new ZEVMenu('1i4i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?power-tools-routers-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?power-tools-routers-service-spare-parts', '');
zevmenu.AddItem('Manuals', 'pages/page.html?power-tools-routers-service-manuals', '');

zevmenu = new ZEVMenu('1i4i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?power-tools-routers-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?power-tools-routers-offers-reduced', '');
zevmenu.AddItem('Sets', 'pages/page.html?power-tools-routers-offers-sets', '');

zevmenu = new ZEVMenu('1i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?power-tools-grinders-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?power-tools-grinders-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?power-tools-grinders-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?power-tools-grinders-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?power-tools-grinders-offers', '');

zevmenu = new ZEVMenu('1i5i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?power-tools-grinders-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?power-tools-grinders-by-price-25-to-100', '');
zevmenu.AddItem('Over 100', 'pages/page.html?power-tools-grinders-by-price-over-100', '');

zevmenu = new ZEVMenu('1i5i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?power-tools-grinders-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?power-tools-grinders-by-maker-birch-and-sons', '');
zevmenu.AddItem('Cedarworks', 'pages/page.html?power-tools-grinders-by-maker-cedarworks', '');

zevmenu = new ZEVMenu('1i5i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?power-tools-grinders-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?power-tools-grinders-by-use-workshop', '');
zevmenu.AddItem('Building site', 'pages/page.html?power-tools-grinders-by-use-building-site', '');

zevmenu = new ZEVMenu('1i5i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?power-tools-grinders-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?power-tools-grinders-service-spare-parts', '');
zevmenu.AddItem('Manuals', 'pages/page.html?power-tools-grinders-service-manuals', '');

zevmenu = new ZEVMenu('1i5i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?power-tools-grinders-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?power-tools-grinders-offers-reduced', '');
zevmenu.AddItem('Sets', 'pages/page.html?power-tools-grinders-offers-sets', '');

zevmenu = new ZEVMenu('1i6');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?power-tools-batteries-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?power-tools-batteries-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?power-tools-batteries-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?power-tools-batteries-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?power-tools-batteries-offers', '');

zevmenu = new ZEVMenu('1i6i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?power-tools-batteries-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?power-tools-batteries-by-price-25-to-100', '');
zevmenu.AddItem('Over 100', 'pages/page.html?power-tools-batteries-by-price-over-100', '');

zevmenu = new ZEVMenu('1i6i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?power-tools-batteries-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?power-tools-batteries-by-maker-birch-and-sons', '');
zevmenu.AddItem('Cedarworks', 'pages/page.html?power-tools-batteries-by-maker-cedarworks', '');

zevmenu = new ZEVMenu('1i6i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?power-tools-batteries-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?power-tools-batteries-by-use-workshop', '');
zevmenu.AddItem('Building site', 'pages/page.html?power-tools-batteries-by-use-building-site', '');

zevmenu = new ZEVMenu('1i6i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?power-tools-batteries-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?power-tools-batteries-service-spare-parts', '');
zevmenu.AddItem('Manuals', 'pages/page.html?power-tools-batteries-service-manuals', '');

zevmenu = new ZEVMenu('1i6i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?power-tools-batteries-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?power-tools-batteries-offers-reduced', '');
zevmenu.AddItem('Sets', 'pages/page.html?power-tools-batteries-offers-sets', '');

zevmenu = new ZEVMenu('2');
zevmenu.position = 'bottom';
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Hammers', 'pages/page.html?hand-tools-hammers', '');
zevmenu.AddItem('Screwdrivers', 'pages/page.html?hand-tools-screwdrivers', '');
zevmenu.AddItem('Pliers', 'pages/page.html?hand-tools-pliers', '');
zevmenu.AddItem('Planes', 'pages/page.html?hand-tools-planes', '');
zevmenu.AddItem('Chisels', 'pages/page.html?hand-tools-chisels', '');
zevmenu.AddItem('Measuring', 'pages/page.html?hand-tools-measuring', '');

zevmenu = new ZEVMenu('2i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?hand-tools-hammers-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?hand-tools-hammers-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?hand-tools-hammers-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?hand-tools-hammers-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?hand-tools-hammers-offers', '');

zevmenu = new ZEVMenu('2i1i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?hand-tools-hammers-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?hand-tools-hammers-by-price-25-to-100', '');
zevmenu.AddItem('Over 100', 'pages/page.html?hand-tools-hammers-by-price-over-100', '');

zevmenu = new ZEVMenu('2i1i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?hand-tools-hammers-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?hand-tools-hammers-by-maker-birch-and-sons', '');
zevmenu.AddItem('Cedarworks', 'pages/page.html?hand-tools-hammers-by-maker-cedarworks', '');

zevmenu = new ZEVMenu('2i1i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?hand-tools-hammers-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?hand-tools-hammers-by-use-workshop', '');
zevmenu.AddItem('Building site', 'pages/page.html?hand-tools-hammers-by-use-building-site', '');

zevmenu = new ZEVMenu('2i1i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?hand-tools-hammers-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?hand-tools-hammers-service-spare-parts', '');
zevmenu.AddItem('Manuals', 'pages/page.html?hand-tools-hammers-service-manuals', '');

zevmenu = new ZEVMenu('2i1i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?hand-tools-hammers-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?hand-tools-hammers-offers-reduced', '');
zevmenu.AddItem('Sets', 'pages/page.html?hand-tools-hammers-offers-sets', '');

zevmenu = new ZEVMenu('2i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?hand-tools-screwdrivers-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?hand-tools-screwdrivers-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?hand-tools-screwdrivers-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?hand-tools-screwdrivers-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?hand-tools-screwdrivers-offers', '');

zevmenu = new ZEVMenu('2i2i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?hand-tools-screwdrivers-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?hand-tools-screwdrivers-by-price-25-to-100', '');
zevmenu.AddItem('Over 100', 'pages/page.html?hand-tools-screwdrivers-by-price-over-100', '');

zevmenu = new ZEVMenu('2i2i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?hand-tools-screwdrivers-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?hand-tools-screwdrivers-by-maker-birch-and-sons', '');
zevmenu.AddItem('Cedarworks', 'pages/page.html?hand-tools-screwdrivers-by-maker-cedarworks', '');

zevmenu = new ZEVMenu('2i2i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?hand-tools-screwdrivers-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?hand-tools-screwdrivers-by-use-workshop', '');
zevmenu.AddItem('Building site', 'pages/page.html?hand-tools-screwdrivers-by-use-building-site', '');

zevmenu = new ZEVMenu('2i2i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?hand-tools-screwdrivers-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?hand-tools-screwdrivers-service-spare-parts', '');
zevmenu.AddItem('Manuals', 'pages/page.html?hand-tools-screwdrivers-service-manuals', '');

zevmenu = new ZEVMenu('2i2i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?hand-tools-screwdrivers-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?hand-tools-screwdrivers-offers-reduced', '');
zevmenu.AddItem('Sets', 'pages/page.html?hand-tools-screwdrivers-offers-sets', '');

zevmenu = new ZEVMenu('2i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?hand-tools-pliers-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?hand-tools-pliers-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?hand-tools-pliers-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?hand-tools-pliers-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?hand-tools-pliers-offers', '');

zevmenu = new ZEVMenu('2i3i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?hand-tools-pliers-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?hand-tools-pliers-by-price-25-to-100', '');
zevmenu.AddItem('Over 100', 'pages/page.html?hand-tools-pliers-by-price-over-100', '');

zevmenu = new ZEVMenu('2i3i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?hand-tools-pliers-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?hand-tools-pliers-by-maker-birch-and-sons', '');
zevmenu.AddItem('Cedarworks', 'pages/page.html?hand-tools-pliers-by-maker-cedarworks', '');

zevmenu = new ZEVMenu('2i3i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?hand-tools-pliers-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?hand-tools-pliers-by-use-workshop', '');
zevmenu.AddItem('Building site', 'pages/page.html?hand-tools-pliers-by-use-building-site', '');

zevmenu = new ZEVMenu('2i3i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?hand-tools-pliers-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?hand-tools-pliers-service-spare-parts', '');
zevmenu.AddItem('Manuals', 'pages/page.html?hand-tools-pliers-service-manuals', '');

zevmenu = new ZEVMenu('2i3i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?hand-tools-pliers-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?hand-tools-pliers-offers-reduced', '');
zevmenu.AddItem('Sets', 'pages/page.html?hand-tools-pliers-offers-sets', '');

zevmenu = new ZEVMenu('2i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?hand-tools-planes-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?hand-tools-planes-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?hand-tools-planes-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?hand-tools-planes-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?hand-tools-planes-offers', '');

zevmenu = new ZEVMenu('2i4i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?hand-tools-planes-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?hand-tools-planes-by-price-25-to-100', '');
zevmenu.AddItem('Over 100', 'pages/page.html?hand-tools-planes-by-price-over-100', '');

zevmenu = new ZEVMenu('2i4i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?hand-tools-planes-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?hand-tools-planes-by-maker-birch-and-sons', '');
zevmenu.AddItem('Cedarworks', 'pages/page.html?hand-tools-planes-by-maker-cedarworks', '');

zevmenu = new ZEVMenu('2i4i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?hand-tools-planes-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?hand-tools-planes-by-use-workshop', '');
zevmenu.AddItem('Building site', 'pages/page.html?hand-tools-planes-by-use-building-site', '');

zevmenu = new ZEVMenu('2i4i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?hand-tools-planes-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?hand-tools-planes-service-spare-parts', '');
zevmenu.AddItem('Manuals', 'pages/page.html?hand-tools-planes-service-manuals', '');

zevmenu = new ZEVMenu('2i4i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?hand-tools-planes-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?hand-tools-planes-offers-reduced', '');
zevmenu.AddItem('Sets', 'pages/page.html?hand-tools-planes-offers-sets', '');

zevmenu = new ZEVMenu('2i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?hand-tools-chisels-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?hand-tools-chisels-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?hand-tools-chisels-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?hand-tools-chisels-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?hand-tools-chisels-offers', '');

zevmenu = new ZEVMenu('2i5i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?hand-tools-chisels-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?hand-tools-chisels-by-price-25-to-100', '');
zevmenu.AddItem('Over 100', 'pages/page.html?hand-tools-chisels-by-price-over-100', '');

zevmenu = new ZEVMenu('2i5i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?hand-tools-chisels-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?hand-tools-chisels-by-maker-birch-and-sons', '');
zevmenu.AddItem('Cedarworks', 'pages/page.html?hand-tools-chisels-by-maker-cedarworks', '');

zevmenu = new ZEVMenu('2i5i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?hand-tools-chisels-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?hand-tools-chisels-by-use-workshop', '');
zevmenu.AddItem('Building site', 'pages/page.html?hand-tools-chisels-by-use-building-site', '');

zevmenu = new ZEVMenu('2i5i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?hand-tools-chisels-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?hand-tools-chisels-service-spare-parts', '');
zevmenu.AddItem('Manuals', 'pages/page.html?hand-tools-chisels-service-manuals', '');

zevmenu = new ZEVMenu('2i5i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?hand-tools-chisels-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?hand-tools-chisels-offers-reduced', '');
zevmenu.AddItem('Sets', 'pages/page.html?hand-tools-chisels-offers-sets', '');

zevmenu = new ZEVMenu('2i6');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?hand-tools-measuring-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?hand-tools-measuring-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?hand-tools-measuring-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?hand-tools-measuring-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?hand-tools-measuring-offers', '');

zevmenu = new ZEVMenu('2i6i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?hand-tools-measuring-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?hand-tools-measuring-by-price-25-to-100', '');
zevmenu.AddItem('Over 100', 'pages/page.html?hand-tools-measuring-by-price-over-100', '');

zevmenu = new ZEVMenu('2i6i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?hand-tools-measuring-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?hand-tools-measuring-by-maker-birch-and-sons', '');
zevmenu.AddItem('Cedarworks', 'pages/page.html?hand-tools-measuring-by-maker-cedarworks', '');

zevmenu = new ZEVMenu('2i6i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?hand-tools-measuring-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?hand-tools-measuring-by-use-workshop', '');
zevmenu.AddItem('Building site', 'pages/page.html?hand-tools-measuring-by-use-building-site', '');

zevmenu = new ZEVMenu('2i6i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?hand-tools-measuring-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?hand-tools-measuring-service-spare-parts', '');
zevmenu.AddItem('Manuals', 'pages/page.html?hand-tools-measuring-service-manuals', '');

zevmenu = new ZEVMenu('2i6i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?hand-tools-measuring-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?hand-tools-measuring-offers-reduced', '');
zevmenu.AddItem('Sets', 'pages/page.html?hand-tools-measuring-offers-sets', '');

zevmenu = new ZEVMenu('3');
zevmenu.position = 'bottom';
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Mowers', 'pages/page.html?garden-mowers', '');
zevmenu.AddItem('Pruning', 'pages/page.html?garden-pruning', '');
zevmenu.AddItem('Watering', 'pages/page.html?garden-watering', '');
zevmenu.AddItem('Fences', 'pages/page.html?garden-fences', '');
zevmenu.AddItem('Ponds', 'pages/page.html?garden-ponds', '');
zevmenu.AddItem('Compost', 'pages/page.html?garden-compost', '');

zevmenu = new ZEVMenu('3i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?garden-mowers-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?garden-mowers-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?garden-mowers-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?garden-mowers-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?garden-mowers-offers', '');

zevmenu = new ZEVMenu('3i1i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?garden-mowers-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?garden-mowers-by-price-25-to-100', '');
zevmenu.AddItem('Over 100', 'pages/page.html?garden-mowers-by-price-over-100', '');

zevmenu = new ZEVMenu('3i1i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?garden-mowers-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?garden-mowers-by-maker-birch-and-sons', '');
zevmenu.AddItem('Cedarworks', 'pages/page.html?garden-mowers-by-maker-cedarworks', '');

zevmenu = new ZEVMenu('3i1i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?garden-mowers-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?garden-mowers-by-use-workshop', '');
zevmenu.AddItem('Building site', 'pages/page.html?garden-mowers-by-use-building-site', '');

zevmenu = new ZEVMenu('3i1i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?garden-mowers-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?garden-mowers-service-spare-parts', '');
zevmenu.AddItem('Manuals', 'pages/page.html?garden-mowers-service-manuals', '');

zevmenu = new ZEVMenu('3i1i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?garden-mowers-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?garden-mowers-offers-reduced', '');
zevmenu.AddItem('Sets', 'pages/page.html?garden-mowers-offers-sets', '');

zevmenu = new ZEVMenu('3i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?garden-pruning-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?garden-pruning-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?garden-pruning-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?garden-pruning-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?garden-pruning-offers', '');

zevmenu = new ZEVMenu('3i2i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?garden-pruning-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?garden-pruning-by-price-25-to-100', '');
zevmenu.AddItem('Over 100', 'pages/page.html?garden-pruning-by-price-over-100', '');

zevmenu = new ZEVMenu('3i2i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?garden-pruning-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?garden-pruning-by-maker-birch-and-sons', '');
zevmenu.AddItem('Cedarworks', 'pages/page.html?garden-pruning-by-maker-cedarworks', '');

zevmenu = new ZEVMenu('3i2i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?garden-pruning-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?garden-pruning-by-use-workshop', '');
zevmenu.AddItem('Building site', 'pages/page.html?garden-pruning-by-use-building-site', '');

zevmenu = new ZEVMenu('3i2i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?garden-pruning-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?garden-pruning-service-spare-parts', '');
zevmenu.AddItem('Manuals', 'pages/page.html?garden-pruning-service-manuals', '');

zevmenu = new ZEVMenu('3i2i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?garden-pruning-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?garden-pruning-offers-reduced', '');
zevmenu.AddItem('Sets', 'pages/page.html?garden-pruning-offers-sets', '');

zevmenu = new ZEVMenu('3i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?garden-watering-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?garden-watering-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?garden-watering-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?garden-watering-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?garden-watering-offers', '');

zevmenu = new ZEVMenu('3i3i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?garden-watering-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?garden-watering-by-price-25-to-100', '');
zevmenu.AddItem('Over 100', 'pages/page.html?garden-watering-by-price-over-100', '');

zevmenu = new ZEVMenu('3i3i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?garden-watering-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?garden-watering-by-maker-birch-and-sons', '');
zevmenu.AddItem('Cedarworks', 'pages/page.html?garden-watering-by-maker-cedarworks', '');

zevmenu = new ZEVMenu('3i3i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?garden-watering-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?garden-watering-by-use-workshop', '');
zevmenu.AddItem('Building site', 'pages/page.html?garden-watering-by-use-building-site', '');

zevmenu = new ZEVMenu('3i3i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?garden-watering-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?garden-watering-service-spare-parts', '');
zevmenu.AddItem('Manuals', 'pages/page.html?garden-watering-service-manuals', '');

zevmenu = new ZEVMenu('3i3i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?garden-watering-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?garden-watering-offers-reduced', '');
zevmenu.AddItem('Sets', 'pages/page.html?garden-watering-offers-sets', '');

zevmenu = new ZEVMenu('3i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?garden-fences-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?garden-fences-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?garden-fences-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?garden-fences-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?garden-fences-offers', '');

zevmenu = new ZEVMenu('3i4i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?garden-fences-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?garden-fences-by-price-25-to-100', '');
zevmenu.AddItem('Over 100', 'pages/page.html?garden-fences-by-price-over-100', '');

zevmenu = new ZEVMenu('3i4i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?garden-fences-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?garden-fences-by-maker-birch-and-sons', '');
zevmenu.AddItem('Cedarworks', 'pages/page.html?garden-fences-by-maker-cedarworks', '');

zevmenu = new ZEVMenu('3i4i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?garden-fences-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?garden-fences-by-use-workshop', '');
zevmenu.AddItem('Building site', 'pages/page.html?garden-fences-by-use-building-site', '');

zevmenu = new ZEVMenu('3i4i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?garden-fences-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?garden-fences-service-spare-parts', '');
zevmenu.AddItem('Manuals', 'pages/page.html?garden-fences-service-manuals', '');

zevmenu = new ZEVMenu('3i4i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?garden-fences-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?garden-fences-offers-reduced', '');
zevmenu.AddItem('Sets', 'pages/page.html?garden-fences-offers-sets', '');

zevmenu = new ZEVMenu('3i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?garden-ponds-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?garden-ponds-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?garden-ponds-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?garden-ponds-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?garden-ponds-offers', '');

zevmenu = new ZEVMenu('3i5i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?garden-ponds-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?garden-ponds-by-price-25-to-100', '');
zevmenu.AddItem('Over 100', 'pages/page.html?garden-ponds-by-price-over-100', '');

zevmenu = new ZEVMenu('3i5i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?garden-ponds-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?garden-ponds-by-maker-birch-and-sons', '');
zevmenu.AddItem('Cedarworks', 'pages/page.html?garden-ponds-by-maker-cedarworks', '');

zevmenu = new ZEVMenu('3i5i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?garden-ponds-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?garden-ponds-by-use-workshop', '');
zevmenu.AddItem('Building site', 'pages/page.html?garden-ponds-by-use-building-site', '');

zevmenu = new ZEVMenu('3i5i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?garden-ponds-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?garden-ponds-service-spare-parts', '');
zevmenu.AddItem('Manuals', 'pages/page.html?garden-ponds-service-manuals', '');

zevmenu = new ZEVMenu('3i5i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?garden-ponds-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?garden-ponds-offers-reduced', '');
zevmenu.AddItem('Sets', 'pages/page.html?garden-ponds-offers-sets', '');

zevmenu = new ZEVMenu('3i6');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?garden-compost-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?garden-compost-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?garden-compost-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?garden-compost-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?garden-compost-offers', '');

zevmenu = new ZEVMenu('3i6i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?garden-compost-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?garden-compost-by-price-25-to-100', '');
zevmenu.AddItem('Over 100', 'pages/page.html?garden-compost-by-price-over-100', '');

zevmenu = new ZEVMenu('3i6i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?garden-compost-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?garden-compost-by-maker-birch-and-sons', '');
zevmenu.AddItem('Cedarworks', 'pages/page.html?garden-compost-by-maker-cedarworks', '');

zevmenu = new ZEVMenu('3i6i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?garden-compost-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?garden-compost-by-use-workshop', '');
zevmenu.AddItem('Building site', 'pages/page.html?garden-compost-by-use-building-site', '');

zevmenu = new ZEVMenu('3i6i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?garden-compost-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?garden-compost-service-spare-parts', '');
zevmenu.AddItem('Manuals', 'pages/page.html?garden-compost-service-manuals', '');

zevmenu = new ZEVMenu('3i6i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?garden-compost-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?garden-compost-offers-reduced', '');
zevmenu.AddItem('Sets', 'pages/page.html?garden-compost-offers-sets', '');

zevmenu = new ZEVMenu('4');
zevmenu.position = 'bottom';
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Wall paint', 'pages/page.html?paint-wall-paint', '');
zevmenu.AddItem('Varnish', 'pages/page.html?paint-varnish', '');
zevmenu.AddItem('Brushes', 'pages/page.html?paint-brushes', '');
zevmenu.AddItem('Fillers', 'pages/page.html?paint-fillers', '');
zevmenu.AddItem('Wallpaper', 'pages/page.html?paint-wallpaper', '');
zevmenu.AddItem('Ladders', 'pages/page.html?paint-ladders', '');

zevmenu = new ZEVMenu('4i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?paint-wall-paint-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?paint-wall-paint-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?paint-wall-paint-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?paint-wall-paint-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?paint-wall-paint-offers', '');

zevmenu = new ZEVMenu('4i1i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?paint-wall-paint-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?paint-wall-paint-by-price-25-to-100', '');
zevmenu.AddItem('Over 100', 'pages/page.html?paint-wall-paint-by-price-over-100', '');

zevmenu = new ZEVMenu('4i1i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?paint-wall-paint-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?paint-wall-paint-by-maker-birch-and-sons', '');
zevmenu.AddItem('Cedarworks', 'pages/page.html?paint-wall-paint-by-maker-cedarworks', '');

zevmenu = new ZEVMenu('4i1i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?paint-wall-paint-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?paint-wall-paint-by-use-workshop', '');
zevmenu.AddItem('Building site', 'pages/page.html?paint-wall-paint-by-use-building-site', '');

zevmenu = new ZEVMenu('4i1i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?paint-wall-paint-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?paint-wall-paint-service-spare-parts', '');
zevmenu.AddItem('Manuals', 'pages/page.html?paint-wall-paint-service-manuals', '');

zevmenu = new ZEVMenu('4i1i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?paint-wall-paint-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?paint-wall-paint-offers-reduced', '');
zevmenu.AddItem('Sets', 'pages/page.html?paint-wall-paint-offers-sets', '');

zevmenu = new ZEVMenu('4i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?paint-varnish-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?paint-varnish-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?paint-varnish-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?paint-varnish-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?paint-varnish-offers', '');

zevmenu = new ZEVMenu('4i2i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?paint-varnish-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?paint-varnish-by-price-25-to-100', '');
zevmenu.AddItem('Over 100', 'pages/page.html?paint-varnish-by-price-over-100', '');

zevmenu = new ZEVMenu('4i2i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?paint-varnish-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?paint-varnish-by-maker-birch-and-sons', '');
zevmenu.AddItem('Cedarworks', 'pages/page.html?paint-varnish-by-maker-cedarworks', '');

zevmenu = new ZEVMenu('4i2i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?paint-varnish-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?paint-varnish-by-use-workshop', '');
zevmenu.AddItem('Building site', 'pages/page.html?paint-varnish-by-use-building-site', '');

zevmenu = new ZEVMenu('4i2i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?paint-varnish-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?paint-varnish-service-spare-parts', '');
zevmenu.AddItem('Manuals', 'pages/page.html?paint-varnish-service-manuals', '');

zevmenu = new ZEVMenu('4i2i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?paint-varnish-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?paint-varnish-offers-reduced', '');
zevmenu.AddItem('Sets', 'pages/page.html?paint-varnish-offers-sets', '');

zevmenu = new ZEVMenu('4i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?paint-brushes-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?paint-brushes-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?paint-brushes-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?paint-brushes-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?paint-brushes-offers', '');

zevmenu = new ZEVMenu('4i3i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?paint-brushes-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?paint-brushes-by-price-25-to-100', '');
zevmenu.AddItem('Over 100', 'pages/page.html?paint-brushes-by-price-over-100', '');

zevmenu = new ZEVMenu('4i3i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?paint-brushes-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?paint-brushes-by-maker-birch-and-sons', '');
zevmenu.AddItem('Cedarworks', 'pages/page.html?paint-brushes-by-maker-cedarworks', '');

zevmenu = new ZEVMenu('4i3i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?paint-brushes-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?paint-brushes-by-use-workshop', '');
zevmenu.AddItem('Building site', 'pages/page.html?paint-brushes-by-use-building-site', '');

zevmenu = new ZEVMenu('4i3i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?paint-brushes-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?paint-brushes-service-spare-parts', '');
zevmenu.AddItem('Manuals', 'pages/page.html?paint-brushes-service-manuals', '');

zevmenu = new ZEVMenu('4i3i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?paint-brushes-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?paint-brushes-offers-reduced', '');
zevmenu.AddItem('Sets', 'pages/page.html?paint-brushes-offers-sets', '');

zevmenu = new ZEVMenu('4i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?paint-fillers-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?paint-fillers-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?paint-fillers-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?paint-fillers-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?paint-fillers-offers', '');

zevmenu = new ZEVMenu('4i4i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?paint-fillers-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?paint-fillers-by-price-25-to-100', '');
zevmenu.AddItem('Over 100', 'pages/page.html?paint-fillers-by-price-over-100', '');

zevmenu = new ZEVMenu('4i4i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?paint-fillers-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?paint-fillers-by-maker-birch-and-sons', '');
zevmenu.AddItem('Cedarworks', 'pages/page.html?paint-fillers-by-maker-cedarworks', '');

zevmenu = new ZEVMenu('4i4i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?paint-fillers-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?paint-fillers-by-use-workshop', '');
zevmenu.AddItem('Building site', 'pages/page.html?paint-fillers-by-use-building-site', '');

zevmenu = new ZEVMenu('4i4i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?paint-fillers-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?paint-fillers-service-spare-parts', '');
zevmenu.AddItem('Manuals', 'pages/page.html?paint-fillers-service-manuals', '');

zevmenu = new ZEVMenu('4i4i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?paint-fillers-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?paint-fillers-offers-reduced', '');
zevmenu.AddItem('Sets', 'pages/page.html?paint-fillers-offers-sets', '');

zevmenu = new ZEVMenu('4i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?paint-wallpaper-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?paint-wallpaper-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?paint-wallpaper-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?paint-wallpaper-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?paint-wallpaper-offers', '');

zevmenu = new ZEVMenu('4i5i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?paint-wallpaper-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?paint-wallpaper-by-price-25-to-100', '');
zevmenu.AddItem('Over 100', 'pages/page.html?paint-wallpaper-by-price-over-100', '');

zevmenu = new ZEVMenu('4i5i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?paint-wallpaper-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?paint-wallpaper-by-maker-birch-and-sons', '');
zevmenu.AddItem('Cedarworks', 'pages/page.html?paint-wallpaper-by-maker-cedarworks', '');

zevmenu = new ZEVMenu('4i5i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?paint-wallpaper-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?paint-wallpaper-by-use-workshop', '');
zevmenu.AddItem('Building site', 'pages/page.html?paint-wallpaper-by-use-building-site', '');

zevmenu = new ZEVMenu('4i5i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?paint-wallpaper-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?paint-wallpaper-service-spare-parts', '');
zevmenu.AddItem('Manuals', 'pages/page.html?paint-wallpaper-service-manuals', '');

zevmenu = new ZEVMenu('4i5i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?paint-wallpaper-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?paint-wallpaper-offers-reduced', '');
zevmenu.AddItem('Sets', 'pages/page.html?paint-wallpaper-offers-sets', '');

zevmenu = new ZEVMenu('4i6');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?paint-ladders-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?paint-ladders-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?paint-ladders-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?paint-ladders-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?paint-ladders-offers', '');

zevmenu = new ZEVMenu('4i6i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?paint-ladders-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?paint-ladders-by-price-25-to-100', '');
zevmenu.AddItem('Over 100', 'pages/page.html?paint-ladders-by-price-over-100', '');

zevmenu = new ZEVMenu('4i6i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?paint-ladders-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?paint-ladders-by-maker-birch-and-sons', '');
zevmenu.AddItem('Cedarworks', 'pages/page.html?paint-ladders-by-maker-cedarworks', '');

zevmenu = new ZEVMenu('4i6i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?paint-ladders-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?paint-ladders-by-use-workshop', '');
zevmenu.AddItem('Building site', 'pages/page.html?paint-ladders-by-use-building-site', '');

zevmenu = new ZEVMenu('4i6i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?paint-ladders-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?paint-ladders-service-spare-parts', '');
zevmenu.AddItem('Manuals', 'pages/page.html?paint-ladders-service-manuals', '');

zevmenu = new ZEVMenu('4i6i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?paint-ladders-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?paint-ladders-offers-reduced', '');
zevmenu.AddItem('Sets', 'pages/page.html?paint-ladders-offers-sets', '');

zevmenu = new ZEVMenu('5');
zevmenu.position = 'bottom';
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Lamps', 'pages/page.html?electrical-lamps', '');
zevmenu.AddItem('Switches', 'pages/page.html?electrical-switches', '');
zevmenu.AddItem('Cables', 'pages/page.html?electrical-cables', '');
zevmenu.AddItem('Sockets', 'pages/page.html?electrical-sockets', '');
zevmenu.AddItem('Doorbells', 'pages/page.html?electrical-doorbells', '');
zevmenu.AddItem('Smoke alarms', 'pages/page.html?electrical-smoke-alarms', '');

zevmenu = new ZEVMenu('5i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?electrical-lamps-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?electrical-lamps-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?electrical-lamps-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?electrical-lamps-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?electrical-lamps-offers', '');

zevmenu = new ZEVMenu('5i1i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?electrical-lamps-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?electrical-lamps-by-price-25-to-100', '');
zevmenu.AddItem('Over 100', 'pages/page.html?electrical-lamps-by-price-over-100', '');

zevmenu = new ZEVMenu('5i1i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?electrical-lamps-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?electrical-lamps-by-maker-birch-and-sons', '');
zevmenu.AddItem('Cedarworks', 'pages/page.html?electrical-lamps-by-maker-cedarworks', '');

zevmenu = new ZEVMenu('5i1i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?electrical-lamps-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?electrical-lamps-by-use-workshop', '');
zevmenu.AddItem('Building site', 'pages/page.html?electrical-lamps-by-use-building-site', '');

zevmenu = new ZEVMenu('5i1i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?electrical-lamps-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?electrical-lamps-service-spare-parts', '');
zevmenu.AddItem('Manuals', 'pages/page.html?electrical-lamps-service-manuals', '');

zevmenu = new ZEVMenu('5i1i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?electrical-lamps-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?electrical-lamps-offers-reduced', '');
zevmenu.AddItem('Sets', 'pages/page.html?electrical-lamps-offers-sets', '');

zevmenu = new ZEVMenu('5i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?electrical-switches-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?electrical-switches-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?electrical-switches-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?electrical-switches-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?electrical-switches-offers', '');

zevmenu = new ZEVMenu('5i2i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?electrical-switches-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?electrical-switches-by-price-25-to-100', '');
zevmenu.AddItem('Over 100', 'pages/page.html?electrical-switches-by-price-over-100', '');

zevmenu = new ZEVMenu('5i2i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?electrical-switches-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?electrical-switches-by-maker-birch-and-sons', '');
zevmenu.AddItem('Cedarworks', 'pages/page.html?electrical-switches-by-maker-cedarworks', '');

zevmenu = new ZEVMenu('5i2i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?electrical-switches-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?electrical-switches-by-use-workshop', '');
zevmenu.AddItem('Building site', 'pages/page.html?electrical-switches-by-use-building-site', '');

zevmenu = new ZEVMenu('5i2i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?electrical-switches-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?electrical-switches-service-spare-parts', '');
zevmenu.AddItem('Manuals', 'pages/page.html?electrical-switches-service-manuals', '');

zevmenu = new ZEVMenu('5i2i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?electrical-switches-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?electrical-switches-offers-reduced', '');
zevmenu.AddItem('Sets', 'pages/page.html?electrical-switches-offers-sets', '');

zevmenu = new ZEVMenu('5i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?electrical-cables-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?electrical-cables-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?electrical-cables-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?electrical-cables-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?electrical-cables-offers', '');

zevmenu = new ZEVMenu('5i3i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?electrical-cables-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?electrical-cables-by-price-25-to-100', '');
zevmenu.AddItem('Over 100', 'pages/page.html?electrical-cables-by-price-over-100', '');

zevmenu = new ZEVMenu('5i3i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?electrical-cables-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?electrical-cables-by-maker-birch-and-sons', '');
zevmenu.AddItem('Cedarworks', 'pages/page.html?electrical-cables-by-maker-cedarworks', '');

zevmenu = new ZEVMenu('5i3i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?electrical-cables-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?electrical-cables-by-use-workshop', '');
zevmenu.AddItem('Building site', 'pages/page.html?electrical-cables-by-use-building-site', '');

zevmenu = new ZEVMenu('5i3i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?electrical-cables-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?electrical-cables-service-spare-parts', '');
zevmenu.AddItem('Manuals', 'pages/page.html?electrical-cables-service-manuals', '');

zevmenu = new ZEVMenu('5i3i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?electrical-cables-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?electrical-cables-offers-reduced', '');
zevmenu.AddItem('Sets', 'pages/page.html?electrical-cables-offers-sets', '');

zevmenu = new ZEVMenu('5i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?electrical-sockets-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?electrical-sockets-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?electrical-sockets-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?electrical-sockets-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?electrical-sockets-offers', '');

zevmenu = new ZEVMenu('5i4i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?electrical-sockets-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?electrical-sockets-by-price-25-to-100', '');
zevmenu.AddItem('Over 100', 'pages/page.html?electrical-sockets-by-price-over-100', '');

zevmenu = new ZEVMenu('5i4i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?electrical-sockets-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?electrical-sockets-by-maker-birch-and-sons', '');
zevmenu.AddItem('Cedarworks', 'pages/page.html?electrical-sockets-by-maker-cedarworks', '');

zevmenu = new ZEVMenu('5i4i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?electrical-sockets-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?electrical-sockets-by-use-workshop', '');
zevmenu.AddItem('Building site', 'pages/page.html?electrical-sockets-by-use-building-site', '');

zevmenu = new ZEVMenu('5i4i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?electrical-sockets-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?electrical-sockets-service-spare-parts', '');
zevmenu.AddItem('Manuals', 'pages/page.html?electrical-sockets-service-manuals', '');

zevmenu = new ZEVMenu('5i4i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?electrical-sockets-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?electrical-sockets-offers-reduced', '');
zevmenu.AddItem('Sets', 'pages/page.html?electrical-sockets-offers-sets', '');

zevmenu = new ZEVMenu('5i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?electrical-doorbells-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?electrical-doorbells-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?electrical-doorbells-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?electrical-doorbells-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?electrical-doorbells-offers', '');

zevmenu = new ZEVMenu('5i5i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?electrical-doorbells-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?electrical-doorbells-by-price-25-to-100', '');
zevmenu.AddItem('Over 100', 'pages/page.html?electrical-doorbells-by-price-over-100', '');

zevmenu = new ZEVMenu('5i5i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?electrical-doorbells-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?electrical-doorbells-by-maker-birch-and-sons', '');
zevmenu.AddItem('Cedarworks', 'pages/page.html?electrical-doorbells-by-maker-cedarworks', '');

zevmenu = new ZEVMenu('5i5i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?electrical-doorbells-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?electrical-doorbells-by-use-workshop', '');
zevmenu.AddItem('Building site', 'pages/page.html?electrical-doorbells-by-use-building-site', '');

zevmenu = new ZEVMenu('5i5i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?electrical-doorbells-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?electrical-doorbells-service-spare-parts', '');
zevmenu.AddItem('Manuals', 'pages/page.html?electrical-doorbells-service-manuals', '');

zevmenu = new ZEVMenu('5i5i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?electrical-doorbells-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?electrical-doorbells-offers-reduced', '');
zevmenu.AddItem('Sets', 'pages/page.html?electrical-doorbells-offers-sets', '');

zevmenu = new ZEVMenu('5i6');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?electrical-smoke-alarms-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?electrical-smoke-alarms-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?electrical-smoke-alarms-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?electrical-smoke-alarms-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?electrical-smoke-alarms-offers', '');

zevmenu = new ZEVMenu('5i6i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?electrical-smoke-alarms-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?electrical-smoke-alarms-by-price-25-to-100', '');
zevmenu.AddItem('Over 100', 'pages/page.html?electrical-smoke-alarms-by-price-over-100', '');

zevmenu = new ZEVMenu('5i6i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?electrical-smoke-alarms-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?electrical-smoke-alarms-by-maker-birch-and-sons', '');
zevmenu.AddItem('Cedarworks', 'pages/page.html?electrical-smoke-alarms-by-maker-cedarworks', '');

zevmenu = new ZEVMenu('5i6i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?electrical-smoke-alarms-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?electrical-smoke-alarms-by-use-workshop', '');
zevmenu.AddItem('Building site', 'pages/page.html?electrical-smoke-alarms-by-use-building-site', '');

zevmenu = new ZEVMenu('5i6i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?electrical-smoke-alarms-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?electrical-smoke-alarms-service-spare-parts', '');
zevmenu.AddItem('Manuals', 'pages/page.html?electrical-smoke-alarms-service-manuals', '');

zevmenu = new ZEVMenu('5i6i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?electrical-smoke-alarms-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?electrical-smoke-alarms-offers-reduced', '');
zevmenu.AddItem('Sets', 'pages/page.html?electrical-smoke-alarms-offers-sets', '');

zevmenu = new ZEVMenu('6');
zevmenu.position = 'bottom';
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Taps', 'pages/page.html?plumbing-taps', '');
zevmenu.AddItem('Pipes', 'pages/page.html?plumbing-pipes', '');
zevmenu.AddItem('Basins', 'pages/page.html?plumbing-basins', '');
zevmenu.AddItem('Showers', 'pages/page.html?plumbing-showers', '');
zevmenu.AddItem('Pumps', 'pages/page.html?plumbing-pumps', '');
zevmenu.AddItem('Boilers', 'pages/page.html?plumbing-boilers', '');

zevmenu = new ZEVMenu('6i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?plumbing-taps-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?plumbing-taps-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?plumbing-taps-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?plumbing-taps-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?plumbing-taps-offers', '');

zevmenu = new ZEVMenu('6i1i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?plumbing-taps-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?plumbing-taps-by-price-25-to-100', '');
zevmenu.AddItem('Over 100', 'pages/page.html?plumbing-taps-by-price-over-100', '');

zevmenu = new ZEVMenu('6i1i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?plumbing-taps-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?plumbing-taps-by-maker-birch-and-sons', '');
zevmenu.AddItem('Cedarworks', 'pages/page.html?plumbing-taps-by-maker-cedarworks', '');

zevmenu = new ZEVMenu('6i1i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?plumbing-taps-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?plumbing-taps-by-use-workshop', '');
zevmenu.AddItem('Building site', 'pages/page.html?plumbing-taps-by-use-building-site', '');

zevmenu = new ZEVMenu('6i1i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?plumbing-taps-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?plumbing-taps-service-spare-parts', '');
zevmenu.AddItem('Manuals', 'pages/page.html?plumbing-taps-service-manuals', '');

zevmenu = new ZEVMenu('6i1i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?plumbing-taps-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?plumbing-taps-offers-reduced', '');
zevmenu.AddItem('Sets', 'pages/page.html?plumbing-taps-offers-sets', '');

zevmenu = new ZEVMenu('6i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?plumbing-pipes-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?plumbing-pipes-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?plumbing-pipes-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?plumbing-pipes-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?plumbing-pipes-offers', '');

zevmenu = new ZEVMenu('6i2i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?plumbing-pipes-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?plumbing-pipes-by-price-25-to-100', '');
zevmenu.AddItem('Over 100', 'pages/page.html?plumbing-pipes-by-price-over-100', '');

zevmenu = new ZEVMenu('6i2i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?plumbing-pipes-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?plumbing-pipes-by-maker-birch-and-sons', '');
zevmenu.AddItem('Cedarworks', 'pages/page.html?plumbing-pipes-by-maker-cedarworks', '');

zevmenu = new ZEVMenu('6i2i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?plumbing-pipes-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?plumbing-pipes-by-use-workshop', '');
zevmenu.AddItem('Building site', 'pages/page.html?plumbing-pipes-by-use-building-site', '');

zevmenu = new ZEVMenu('6i2i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?plumbing-pipes-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?plumbing-pipes-service-spare-parts', '');
zevmenu.AddItem('Manuals', 'pages/page.html?plumbing-pipes-service-manuals', '');

zevmenu = new ZEVMenu('6i2i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?plumbing-pipes-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?plumbing-pipes-offers-reduced', '');
zevmenu.AddItem('Sets', 'pages/page.html?plumbing-pipes-offers-sets', '');

zevmenu = new ZEVMenu('6i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?plumbing-basins-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?plumbing-basins-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?plumbing-basins-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?plumbing-basins-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?plumbing-basins-offers', '');

zevmenu = new ZEVMenu('6i3i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?plumbing-basins-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?plumbing-basins-by-price-25-to-100', '');
zevmenu.AddItem('Over 100', 'pages/page.html?plumbing-basins-by-price-over-100', '');

zevmenu = new ZEVMenu('6i3i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?plumbing-basins-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?plumbing-basins-by-maker-birch-and-sons', '');
zevmenu.AddItem('Cedarworks', 'pages/page.html?plumbing-basins-by-maker-cedarworks', '');

zevmenu = new ZEVMenu('6i3i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?plumbing-basins-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?plumbing-basins-by-use-workshop', '');
zevmenu.AddItem('Building site', 'pages/page.html?plumbing-basins-by-use-building-site', '');

zevmenu = new ZEVMenu('6i3i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?plumbing-basins-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?plumbing-basins-service-spare-parts', '');
zevmenu.AddItem('Manuals', 'pages/page.html?plumbing-basins-service-manuals', '');

zevmenu = new ZEVMenu('6i3i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?plumbing-basins-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?plumbing-basins-offers-reduced', '');
zevmenu.AddItem('Sets', 'pages/page.html?plumbing-basins-offers-sets', '');

zevmenu = new ZEVMenu('6i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?plumbing-showers-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?plumbing-showers-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?plumbing-showers-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?plumbing-showers-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?plumbing-showers-offers', '');

zevmenu = new ZEVMenu('6i4i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?plumbing-showers-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?plumbing-showers-by-price-25-to-100', '');
zevmenu.AddItem('Over 100', 'pages/page.html?plumbing-showers-by-price-over-100', '');

zevmenu = new ZEVMenu('6i4i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?plumbing-showers-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?plumbing-showers-by-maker-birch-and-sons', '');
zevmenu.AddItem('Cedarworks', 'pages/page.html?plumbing-showers-by-maker-cedarworks', '');

zevmenu = new ZEVMenu('6i4i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?plumbing-showers-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?plumbing-showers-by-use-workshop', '');
zevmenu.AddItem('Building site', 'pages/page.html?plumbing-showers-by-use-building-site', '');

zevmenu = new ZEVMenu('6i4i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?plumbing-showers-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?plumbing-showers-service-spare-parts', '');
zevmenu.AddItem('Manuals', 'pages/page.html?plumbing-showers-service-manuals', '');

zevmenu = new ZEVMenu('6i4i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?plumbing-showers-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?plumbing-showers-offers-reduced', '');
zevmenu.AddItem('Sets', 'pages/page.html?plumbing-showers-offers-sets', '');

zevmenu = new ZEVMenu('6i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?plumbing-pumps-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?plumbing-pumps-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?plumbing-pumps-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?plumbing-pumps-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?plumbing-pumps-offers', '');

zevmenu = new ZEVMenu('6i5i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?plumbing-pumps-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?plumbing-pumps-by-price-25-to-100', '');
zevmenu.AddItem('Over 100', 'pages/page.html?plumbing-pumps-by-price-over-100', '');

zevmenu = new ZEVMenu('6i5i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?plumbing-pumps-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?plumbing-pumps-by-maker-birch-and-sons', '');
zevmenu.AddItem('Cedarworks', 'pages/page.html?plumbing-pumps-by-maker-cedarworks', '');

zevmenu = new ZEVMenu('6i5i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?plumbing-pumps-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?plumbing-pumps-by-use-workshop', '');
zevmenu.AddItem('Building site', 'pages/page.html?plumbing-pumps-by-use-building-site', '');

zevmenu = new ZEVMenu('6i5i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?plumbing-pumps-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?plumbing-pumps-service-spare-parts', '');
zevmenu.AddItem('Manuals', 'pages/page.html?plumbing-pumps-service-manuals', '');

zevmenu = new ZEVMenu('6i5i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?plumbing-pumps-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?plumbing-pumps-offers-reduced', '');
zevmenu.AddItem('Sets', 'pages/page.html?plumbing-pumps-offers-sets', '');

zevmenu = new ZEVMenu('6i6');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?plumbing-boilers-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?plumbing-boilers-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?plumbing-boilers-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?plumbing-boilers-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?plumbing-boilers-offers', '');

zevmenu = new ZEVMenu('6i6i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?plumbing-boilers-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?plumbing-boilers-by-price-25-to-100', '');
zevmenu.AddItem('Over 100', 'pages/page.html?plumbing-boilers-by-price-over-100', '');

zevmenu = new ZEVMenu('6i6i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?plumbing-boilers-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?plumbing-boilers-by-maker-birch-and-sons', '');
zevmenu.AddItem('Cedarworks', 'pages/page.html?plumbing-boilers-by-maker-cedarworks', '');

zevmenu = new ZEVMenu('6i6i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?plumbing-boilers-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?plumbing-boilers-by-use-workshop', '');
zevmenu.AddItem('Building site', 'pages/page.html?plumbing-boilers-by-use-building-site', '');

zevmenu = new ZEVMenu('6i6i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?plumbing-boilers-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?plumbing-boilers-service-spare-parts', '');
zevmenu.AddItem('Manuals', 'pages/page.html?plumbing-boilers-service-manuals', '');

zevmenu = new ZEVMenu('6i6i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?plumbing-boilers-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?plumbing-boilers-offers-reduced', '');
zevmenu.AddItem('Sets', 'pages/page.html?plumbing-boilers-offers-sets', '');

zevmenu = new ZEVMenu('7');
zevmenu.position = 'bottom';
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Boards', 'pages/page.html?timber-boards', '');
zevmenu.AddItem('Beams', 'pages/page.html?timber-beams', '');
zevmenu.AddItem('Flooring', 'pages/page.html?timber-flooring', '');
zevmenu.AddItem('Doors', 'pages/page.html?timber-doors', '');
zevmenu.AddItem('Shelves', 'pages/page.html?timber-shelves', '');
zevmenu.AddItem('Plywood', 'pages/page.html?timber-plywood', '');

zevmenu = new ZEVMenu('7i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?timber-boards-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?timber-boards-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?timber-boards-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?timber-boards-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?timber-boards-offers', '');

zevmenu = new ZEVMenu('7i1i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?timber-boards-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?timber-boards-by-price-25-to-100', '');
zevmenu.AddItem('Over 100', 'pages/page.html?timber-boards-by-price-over-100', '');

zevmenu = new ZEVMenu('7i1i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?timber-boards-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?timber-boards-by-maker-birch-and-sons', '');
zevmenu.AddItem('Cedarworks', 'pages/page.html?timber-boards-by-maker-cedarworks', '');

zevmenu = new ZEVMenu('7i1i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?timber-boards-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?timber-boards-by-use-workshop', '');
zevmenu.AddItem('Building site', 'pages/page.html?timber-boards-by-use-building-site', '');

zevmenu = new ZEVMenu('7i1i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?timber-boards-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?timber-boards-service-spare-parts', '');
zevmenu.AddItem('Manuals', 'pages/page.html?timber-boards-service-manuals', '');

zevmenu = new ZEVMenu('7i1i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?timber-boards-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?timber-boards-offers-reduced', '');
zevmenu.AddItem('Sets', 'pages/page.html?timber-boards-offers-sets', '');

zevmenu = new ZEVMenu('7i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?timber-beams-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?timber-beams-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?timber-beams-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?timber-beams-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?timber-beams-offers', '');

zevmenu = new ZEVMenu('7i2i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?timber-beams-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?timber-beams-by-price-25-to-100', '');
zevmenu.AddItem('Over 100', 'pages/page.html?timber-beams-by-price-over-100', '');

zevmenu = new ZEVMenu('7i2i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?timber-beams-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?timber-beams-by-maker-birch-and-sons', '');
zevmenu.AddItem('Cedarworks', 'pages/page.html?timber-beams-by-maker-cedarworks', '');

zevmenu = new ZEVMenu('7i2i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?timber-beams-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?timber-beams-by-use-workshop', '');
zevmenu.AddItem('Building site', 'pages/page.html?timber-beams-by-use-building-site', '');

zevmenu = new ZEVMenu('7i2i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?timber-beams-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?timber-beams-service-spare-parts', '');
zevmenu.AddItem('Manuals', 'pages/page.html?timber-beams-service-manuals', '');

zevmenu = new ZEVMenu('7i2i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?timber-beams-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?timber-beams-offers-reduced', '');
zevmenu.AddItem('Sets', 'pages/page.html?timber-beams-offers-sets', '');

zevmenu = new ZEVMenu('7i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?timber-flooring-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?timber-flooring-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?timber-flooring-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?timber-flooring-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?timber-flooring-offers', '');

zevmenu = new ZEVMenu('7i3i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?timber-flooring-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?timber-flooring-by-price-25-to-100', '');
zevmenu.AddItem('Over 100', 'pages/page.html?timber-flooring-by-price-over-100', '');

zevmenu = new ZEVMenu('7i3i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?timber-flooring-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?timber-flooring-by-maker-birch-and-sons', '');
zevmenu.AddItem('Cedarworks', 'pages/page.html?timber-flooring-by-maker-cedarworks', '');

zevmenu = new ZEVMenu('7i3i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?timber-flooring-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?timber-flooring-by-use-workshop', '');
zevmenu.AddItem('Building site', 'pages/page.html?timber-flooring-by-use-building-site', '');

zevmenu = new ZEVMenu('7i3i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?timber-flooring-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?timber-flooring-service-spare-parts', '');
zevmenu.AddItem('Manuals', 'pages/page.html?timber-flooring-service-manuals', '');

zevmenu = new ZEVMenu('7i3i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?timber-flooring-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?timber-flooring-offers-reduced', '');
zevmenu.AddItem('Sets', 'pages/page.html?timber-flooring-offers-sets', '');

zevmenu = new ZEVMenu('7i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?timber-doors-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?timber-doors-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?timber-doors-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?timber-doors-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?timber-doors-offers', '');

zevmenu = new ZEVMenu('7i4i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?timber-doors-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?timber-doors-by-price-25-to-100', '');
zevmenu.AddItem('Over 100', 'pages/page.html?timber-doors-by-price-over-100', '');

zevmenu = new ZEVMenu('7i4i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?timber-doors-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?timber-doors-by-maker-birch-and-sons', '');
zevmenu.AddItem('Cedarworks', 'pages/page.html?timber-doors-by-maker-cedarworks', '');

zevmenu = new ZEVMenu('7i4i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?timber-doors-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?timber-doors-by-use-workshop', '');
zevmenu.AddItem('Building site', 'pages/page.html?timber-doors-by-use-building-site', '');

zevmenu = new ZEVMenu('7i4i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?timber-doors-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?timber-doors-service-spare-parts', '');
zevmenu.AddItem('Manuals', 'pages/page.html?timber-doors-service-manuals', '');

zevmenu = new ZEVMenu('7i4i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?timber-doors-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?timber-doors-offers-reduced', '');
zevmenu.AddItem('Sets', 'pages/page.html?timber-doors-offers-sets', '');

zevmenu = new ZEVMenu('7i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?timber-shelves-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?timber-shelves-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?timber-shelves-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?timber-shelves-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?timber-shelves-offers', '');

zevmenu = new ZEVMenu('7i5i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?timber-shelves-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?timber-shelves-by-price-25-to-100', '');
zevmenu.AddItem('Over 100', 'pages/page.html?timber-shelves-by-price-over-100', '');

zevmenu = new ZEVMenu('7i5i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?timber-shelves-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?timber-shelves-by-maker-birch-and-sons', '');
zevmenu.AddItem('Cedarworks', 'pages/page.html?timber-shelves-by-maker-cedarworks', '');

zevmenu = new ZEVMenu('7i5i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?timber-shelves-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?timber-shelves-by-use-workshop', '');
zevmenu.AddItem('Building site', 'pages/page.html?timber-shelves-by-use-building-site', '');

zevmenu = new ZEVMenu('7i5i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?timber-shelves-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?timber-shelves-service-spare-parts', '');
zevmenu.AddItem('Manuals', 'pages/page.html?timber-shelves-service-manuals', '');

zevmenu = new ZEVMenu('7i5i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?timber-shelves-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?timber-shelves-offers-reduced', '');
zevmenu.AddItem('Sets', 'pages/page.html?timber-shelves-offers-sets', '');

zevmenu = new ZEVMenu('7i6');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?timber-plywood-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?timber-plywood-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?timber-plywood-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?timber-plywood-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?timber-plywood-offers', '');

zevmenu = new ZEVMenu('7i6i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?timber-plywood-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?timber-plywood-by-price-25-to-100', '');
zevmenu.AddItem('Over 100', 'pages/page.html?timber-plywood-by-price-over-100', '');

zevmenu = new ZEVMenu('7i6i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?timber-plywood-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?timber-plywood-by-maker-birch-and-sons', '');
zevmenu.AddItem('Cedarworks', 'pages/page.html?timber-plywood-by-maker-cedarworks', '');

zevmenu = new ZEVMenu('7i6i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?timber-plywood-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?timber-plywood-by-use-workshop', '');
zevmenu.AddItem('Building site', 'pages/page.html?timber-plywood-by-use-building-site', '');

zevmenu = new ZEVMenu('7i6i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?timber-plywood-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?timber-plywood-service-spare-parts', '');
zevmenu.AddItem('Manuals', 'pages/page.html?timber-plywood-service-manuals', '');

zevmenu = new ZEVMenu('7i6i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?timber-plywood-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?timber-plywood-offers-reduced', '');
zevmenu.AddItem('Sets', 'pages/page.html?timber-plywood-offers-sets', '');

zevmenu = new ZEVMenu('8');
zevmenu.position = 'bottom';
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Screws', 'pages/page.html?fixings-screws', '');
zevmenu.AddItem('Nails', 'pages/page.html?fixings-nails', '');
zevmenu.AddItem('Bolts', 'pages/page.html?fixings-bolts', '');
zevmenu.AddItem('Anchors', 'pages/page.html?fixings-anchors', '');
zevmenu.AddItem('Hinges', 'pages/page.html?fixings-hinges', '');
zevmenu.AddItem('Adhesives', 'pages/page.html?fixings-adhesives', '');

zevmenu = new ZEVMenu('8i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?fixings-screws-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?fixings-screws-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?fixings-screws-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?fixings-screws-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?fixings-screws-offers', '');

zevmenu = new ZEVMenu('8i1i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?fixings-screws-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?fixings-screws-by-price-25-to-100', '');
zevmenu.AddItem('Over 100', 'pages/page.html?fixings-screws-by-price-over-100', '');

zevmenu = new ZEVMenu('8i1i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?fixings-screws-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?fixings-screws-by-maker-birch-and-sons', '');
zevmenu.AddItem('Cedarworks', 'pages/page.html?fixings-screws-by-maker-cedarworks', '');

zevmenu = new ZEVMenu('8i1i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?fixings-screws-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?fixings-screws-by-use-workshop', '');
zevmenu.AddItem('Building site', 'pages/page.html?fixings-screws-by-use-building-site', '');

zevmenu = new ZEVMenu('8i1i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?fixings-screws-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?fixings-screws-service-spare-parts', '');
zevmenu.AddItem('Manuals', 'pages/page.html?fixings-screws-service-manuals', '');

zevmenu = new ZEVMenu('8i1i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?fixings-screws-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?fixings-screws-offers-reduced', '');
zevmenu.AddItem('Sets', 'pages/page.html?fixings-screws-offers-sets', '');

zevmenu = new ZEVMenu('8i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?fixings-nails-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?fixings-nails-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?fixings-nails-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?fixings-nails-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?fixings-nails-offers', '');

zevmenu = new ZEVMenu('8i2i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?fixings-nails-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?fixings-nails-by-price-25-to-100', '');
zevmenu.AddItem('Over 100', 'pages/page.html?fixings-nails-by-price-over-100', '');

zevmenu = new ZEVMenu('8i2i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?fixings-nails-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?fixings-nails-by-maker-birch-and-sons', '');
zevmenu.AddItem('Cedarworks', 'pages/page.html?fixings-nails-by-maker-cedarworks', '');

zevmenu = new ZEVMenu('8i2i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?fixings-nails-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?fixings-nails-by-use-workshop', '');
zevmenu.AddItem('Building site', 'pages/page.html?fixings-nails-by-use-building-site', '');

zevmenu = new ZEVMenu('8i2i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?fixings-nails-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?fixings-nails-service-spare-parts', '');
zevmenu.AddItem('Manuals', 'pages/page.html?fixings-nails-service-manuals', '');

zevmenu = new ZEVMenu('8i2i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?fixings-nails-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?fixings-nails-offers-reduced', '');
zevmenu.AddItem('Sets', 'pages/page.html?fixings-nails-offers-sets', '');

zevmenu = new ZEVMenu('8i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?fixings-bolts-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?fixings-bolts-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?fixings-bolts-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?fixings-bolts-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?fixings-bolts-offers', '');

zevmenu = new ZEVMenu('8i3i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?fixings-bolts-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?fixings-bolts-by-price-25-to-100', '');
zevmenu.AddItem('Over 100', 'pages/page.html?fixings-bolts-by-price-over-100', '');

zevmenu = new ZEVMenu('8i3i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?fixings-bolts-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?fixings-bolts-by-maker-birch-and-sons', '');
zevmenu.AddItem('Cedarworks', 'pages/page.html?fixings-bolts-by-maker-cedarworks', '');

zevmenu = new ZEVMenu('8i3i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?fixings-bolts-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?fixings-bolts-by-use-workshop', '');
zevmenu.AddItem('Building site', 'pages/page.html?fixings-bolts-by-use-building-site', '');

zevmenu = new ZEVMenu('8i3i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?fixings-bolts-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?fixings-bolts-service-spare-parts', '');
zevmenu.AddItem('Manuals', 'pages/page.html?fixings-bolts-service-manuals', '');

zevmenu = new ZEVMenu('8i3i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?fixings-bolts-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?fixings-bolts-offers-reduced', '');

zevmenu = new ZEVMenu('8i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?fixings-anchors-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?fixings-anchors-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?fixings-anchors-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?fixings-anchors-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?fixings-anchors-offers', '');

zevmenu = new ZEVMenu('8i4i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?fixings-anchors-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?fixings-anchors-by-price-25-to-100', '');

zevmenu = new ZEVMenu('8i4i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?fixings-anchors-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?fixings-anchors-by-maker-birch-and-sons', '');

zevmenu = new ZEVMenu('8i4i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?fixings-anchors-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?fixings-anchors-by-use-workshop', '');

zevmenu = new ZEVMenu('8i4i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?fixings-anchors-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?fixings-anchors-service-spare-parts', '');

zevmenu = new ZEVMenu('8i4i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?fixings-anchors-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?fixings-anchors-offers-reduced', '');

zevmenu = new ZEVMenu('8i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?fixings-hinges-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?fixings-hinges-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?fixings-hinges-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?fixings-hinges-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?fixings-hinges-offers', '');

zevmenu = new ZEVMenu('8i5i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?fixings-hinges-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?fixings-hinges-by-price-25-to-100', '');

zevmenu = new ZEVMenu('8i5i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?fixings-hinges-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?fixings-hinges-by-maker-birch-and-sons', '');

zevmenu = new ZEVMenu('8i5i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?fixings-hinges-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?fixings-hinges-by-use-workshop', '');

zevmenu = new ZEVMenu('8i5i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?fixings-hinges-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?fixings-hinges-service-spare-parts', '');

zevmenu = new ZEVMenu('8i5i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?fixings-hinges-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?fixings-hinges-offers-reduced', '');

zevmenu = new ZEVMenu('8i6');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('By price', 'pages/page.html?fixings-adhesives-by-price', '');
zevmenu.AddItem('By maker', 'pages/page.html?fixings-adhesives-by-maker', '');
zevmenu.AddItem('By use', 'pages/page.html?fixings-adhesives-by-use', '');
zevmenu.AddItem('Service', 'pages/page.html?fixings-adhesives-service', '');
zevmenu.AddItem('Offers', 'pages/page.html?fixings-adhesives-offers', '');

zevmenu = new ZEVMenu('8i6i1');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Under 25', 'pages/page.html?fixings-adhesives-by-price-under-25', '');
zevmenu.AddItem('25 to 100', 'pages/page.html?fixings-adhesives-by-price-25-to-100', '');

zevmenu = new ZEVMenu('8i6i2');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Alder &amp; Co.', 'pages/page.html?fixings-adhesives-by-maker-alder-and-co', '');
zevmenu.AddItem('Birch &amp; Sons', 'pages/page.html?fixings-adhesives-by-maker-birch-and-sons', '');

zevmenu = new ZEVMenu('8i6i3');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Home', 'pages/page.html?fixings-adhesives-by-use-home', '');
zevmenu.AddItem('Workshop', 'pages/page.html?fixings-adhesives-by-use-workshop', '');

zevmenu = new ZEVMenu('8i6i4');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('Repairs', 'pages/page.html?fixings-adhesives-service-repairs', '');
zevmenu.AddItem('Spare parts', 'pages/page.html?fixings-adhesives-service-spare-parts', '');

zevmenu = new ZEVMenu('8i6i5');
zevmenu.menuborder = '1px solid #77797D';
zevmenu.cellpadding = 5;

zevmenu.AddItem('New', 'pages/page.html?fixings-adhesives-offers-new', '');
zevmenu.AddItem('Reduced', 'pages/page.html?fixings-adhesives-offers-reduced', '');


