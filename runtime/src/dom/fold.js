// SPDX-License-Identifier: MIT
// ---- The button that stands for the top menu in a narrow window ----

function adoptFold() {
    const { foldLink, fold, barBox } = state;
    if (!foldLink) return;
    barBox.zevMenu.zevBox = barBox;
    foldLink.onclick = null;
    mark(foldLink, { role: 'button', tabindex: 0, 'aria-haspopup': true, 'aria-expanded': false });
    mark(foldLink.parentNode, { role: 'none' });
    mark(foldLink.parentNode.parentNode, { role: 'none', dir: barBox.dir || null });
    refold();
    if (state.isFoldAsked && fold.matches) openSubmenu(foldLink);
}

// The focus goes with what stands for its place.
function refold() {
    const { bar, barBox, fold, foldLink } = state, link = focused();
    const hadFocus = link == foldLink || boxAt(link);
    closeFrom(0);
    mark(bar, { 'data-folded': fold.matches ? '' : null });
    if (hadFocus) (fold.matches ? foldLink : linksOf(barBox).find(item => item.tabIndex == 0)).focus();
}

// The top menu in its place on the page, which shows it when the button does not.
function putBack(box) {
    box.zevFading?.cancel();
    box.classList.remove('folded');
    mark(box, { role: 'menubar' });
    orient(box);
    Object.assign(box.style, unplaced);
    state.bar.shadowRoot.lastChild.appendChild(box);
}
