// ---- Links of pop-ups ----

const handlers = ['onmouseover', 'onclick', 'onfocus'];
const popupLinks = handlers.map(name => `[${name}*="ZEVMenuOpen"]`).join();
const anyLink = 'a,area,button,input,[tabindex],' + popupLinks;

// Known by its attributes, or from its first call on.
function popupLinkAt({ target }) {
    return (target instanceof Element && target.closest(popupLinks)) || around(target, 'zevPopup');
}

const popupMarks = ['aria-expanded', 'aria-haspopup', 'tabindex', 'role'];

function adopt(link) {
    link.zevOwn ??= Object.fromEntries(popupMarks.map(name => [name, link.getAttribute(name)]));
    if (!link.hasAttribute('aria-expanded')) mark(link, { 'aria-expanded': false });
    mark(link, { 'aria-haspopup': true });
    if (link.matches('[href],button,input,[tabindex]')) return;
    link.tabIndex = 0;
    if (!link.hasAttribute('role')) mark(link, { role: 'button' });
}

function release(link) {
    if (!link.zevOwn) return;
    mark(link, link.zevOwn);
    delete link.zevOwn;
    delete link.zevPopup;
}

shared.openPopup = function (call) {
    const { id, isEvent, x, y } = call, { levels, actingLink } = state, menu = state.menus[id];
    if (!document.body || (document.readyState == 'loading' && !menu)) {
        state.earlyCall = call;
        return;
    }
    if (!menu) return warn(`ZEVMenuOpen: there is no submenu "${id}"`);
    const isLink = call.link instanceof Element && call.link.matches(anyLink);
    const link = isLink ? call.link : actingLink;
    if (link) {
        link.zevPopup = id;
        adopt(link);
    }
    if (levels[0]?.menu == menu && levels[0].opener == link) return keep(1);
    closeFrom(0);
    // By a key, a tap or the focus the menu opens below the link.
    const isBelow = link && isEvent && (actingLink || x == null);
    openLevel(0, {
        menu, box: ensureBox(menu), opener: link,
        point: isBelow ? null : { x: x || 0, y: y || 0 },
        wish: isBelow ? 'bottom' : isEvent ? realSide('right', isRtlAt(document.body)) : '',
        offset: isBelow || !isEvent ? 0 : fixed.besideMousePx
    });
};

// By its handler, or as its listener did last.
function openFrom(link, event) {
    const name = handlers.find(name => /ZEVMenuOpen/.test(link.getAttribute(name)));
    state.actingLink = link;
    try {
        if (link[name]) link[name](event);
        else if (link.zevPopup) shared.openPopup({ id: link.zevPopup, isEvent: true });
    } finally {
        state.actingLink = null;
    }
    return isOpen(link);
}

function hasOwnAddress(link) {
    return !['', '#', null].includes(link.getAttribute('href'));
}

function onPageClick(event) {
    const link = popupLinkAt(event);
    if (!link) return;
    const { pointer = '', wasOpen = false } = takePress(), hasAddress = hasOwnAddress(link);
    const meaning = isModified(event) ? 'follow'
        : meaningOfClick({ pointer, wasOpen, hasAddress, hasSubmenu: pointer != 'mouse' });
    // An empty address would load the page anew.
    if (link.getAttribute('href') == '' || meaning != 'follow') event.preventDefault();
    if (meaning == 'close') return closeFrom(0);
    if (meaning == 'follow') return;
    if (!isOpen(link)) openFrom(link, event);
    if (meaning == 'enter') enterPopup(link);
}

function enterPopup(link) {
    if (isOpen(link)) enter(state.levels[0].box);
}

function onPageKey(event) {
    const link = popupLinkAt(event), { key } = event;
    if (!link || hasModifier(event)) return;
    if (key == 'Enter' && hasOwnAddress(link)) return followByKey();
    if (!['Enter', 'ArrowDown', ' '].includes(key) || !openFrom(link, event)) return;
    event.preventDefault();
    enterPopup(link);
}

function openEarly() {
    const call = state.earlyCall;
    state.earlyCall = null;
    if (call) shared.openPopup(call);
}
