// SPDX-License-Identifier: MIT
// ---- The button that stands for the top menu in a narrow window ----

function adoptFold() {
    const { foldLink, fold, barBox } = state;
    if (!foldLink) return;
    foldLink.onclick = null;
    mark(foldLink, { role: 'button', tabindex: 0, 'aria-haspopup': true, 'aria-expanded': false });
    mark(foldLink.parentNode, { role: 'none' });
    mark(foldLink.parentNode.parentNode, { role: 'none' });
    refold();
    if (state.isAsked && fold.matches) openSubmenu(foldLink);
}

// The focus goes with what stands for its place.
function refold() {
    const { barBox, fold, foldLink } = state, link = focused();
    const hadFocus = link == foldLink || boxAt(link);
    close(0);
    barBox.hidden = fold.matches;
    foldLink.parentNode.parentNode.hidden = !fold.matches;
    if (hadFocus) (fold.matches ? foldLink : linksOf(barBox).find(item => item.tabIndex == 0)).focus();
}
