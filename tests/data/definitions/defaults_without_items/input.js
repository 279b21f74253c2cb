zev_state.menuoffset = 9;
zev_state.closedelay = 900;
zev_state.columns = 2;
zev_state.bgimage = 'bg.gif';
zev_state.hspacing = 3;
zev_state.fontWeight = 'bold';
zev_state.position = 'left';
