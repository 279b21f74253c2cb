// SPDX-License-Identifier: MIT
// ---- Links of pop-ups ----

const handlers = ['onmouseover', 'onclick', 'onfocus'];
const popupLinks = '[data-zev-popup],' + handlers.map(name => `[${name}*="ZEVMenuOpen"]`).join();
const anyLink = 'a,area,button,input,[tabindex],' + popupLinks;

// Known by its attributes, or from its first call on.
function popupLinkAt({ target }) {
    return target.closest?.(popupLinks) || around(target, 'zevPopup');
}

const popupMarks = ['aria-expanded', 'aria-haspopup', 'tabindex', 'role'];

function adopt(link) {
    if (link.zevOwn) return;
    link.zevOwn = Object.fromEntries(popupMarks.map(name => [name, link.getAttribute(name)]));
    mark(link, { 'aria-haspopup': true, 'aria-expanded': false });
    if (link.matches('[href],button,input,[tabindex]')) return;
    mark(link, { tabindex: 0, role: link.zevOwn.role || 'button' });
}

function release(link) {
    if (!link.zevOwn) return;
    mark(link, link.zevOwn);
    delete link.zevOwn;
    delete link.zevPopup;
}

shared.openPopup = function (call) {
    const id = popupId(call.of), { isEvent, x, y } = call, { levels, actingLink } = state, menu = state.menus[id];
    const isEarly = !menu && (document.readyState == 'loading' || !state.menus['0']);
    if (isEarly || !document.body) {
        state.earlyCall = call;
        return;
    }
    if (!menu) return warn(`ZEVMenuOpen: there is no submenu "${id}"`);
    const link = call.link?.matches?.(anyLink) ? call.link : actingLink;
    if (link) {
        link.zevPopup = call.of;
        adopt(link);
    }
    if (levels[0]?.menu == menu && levels[0].opener == link) return keep(1);
    closeFrom(0);
    // By a key, a tap or the focus the menu opens below the link.
    const isBelow = link && isEvent && (actingLink || x == null);
    openLevel(0, {
        menu, box: ensureBox(menu, link), opener: link,
        point: isBelow ? null : { x: +x || 0, y: +y || 0 },
        wish: isBelow ? 'bottom' : isEvent ? realSide('right', isRtlAt(document.body)) : '',
        offset: isBelow || !isEvent ? 0 : besideMousePx
    });
};

// Of 'zev1' and the id, or 'zev1i' + N and the rest of it.
function popupId(of) {
    const [, parent = '', rest] = /^zev1(i\d+)? ([1-9][\di]*)$/.exec(of) || [];
    return rest ? (parent + 'i' + rest).slice(1) : '';
}

// The call that a link makes without a handler, or that its handler would if a policy let it run.
const handlerCall = /ZEVMenuOpen\W+(zev1\w*)\W+([\di]+)(?:\W+?(-?\d+)\W+?(-?\d+))?/;

function callOf(link, name) {
    const own = link.getAttribute('data-zev-popup');
    if (own) return name == 'onmouseover' && { of: 'zev1 ' + own, link, isEvent: true };
    const [, a, b, x, y] = handlerCall.exec(link[name] ? '' : link.getAttribute(name)) || [];
    return b && { of: `${a} ${b}`, link, isEvent: !x, x, y };
}

function answer(link, name, { pageX, pageY } = {}) {
    const call = link && callOf(link, name);
    if (call) shared.openPopup({ ...call, x: call.x ?? pageX, y: call.y ?? pageY });
}

// Of the mouse or the focus.
function onArrival(event) {
    answer(popupLinkAt(event), event.type == 'focusin' ? 'onfocus' : 'onmouseover', event);
}

function onLeaving(event) {
    const link = popupLinkAt(event);
    if (!link || link.onmouseout || !link.matches('[data-zev-popup],[onmouseout*=ZEVMenuClose]')) return;
    state.earlyCall = null;
    shared.closePopup(link.zevPopup);
}

// By its handler, or as its listener did last.
function openFrom(link, event) {
    const name = handlers.find(name => /ZEVMenuOpen/.test(link.getAttribute(name))) || handlers[0];
    state.actingLink = link;
    try {
        const call = callOf(link, name) || (link.zevPopup && { of: link.zevPopup, isEvent: true });
        if (link[name]) link[name](event);
        else if (call) shared.openPopup(call);
    } finally {
        state.actingLink = null;
    }
    return isOpen(link);
}

function hasOwnAddress(link) {
    return !['', '#', null].includes(link.getAttribute('href'));
}

// On a button the mouse is a finger; its first click keeps open what its arrival there opened.
function pressOn(link) {
    const { press } = state;
    state.press = {};
    if (press.pointer != 'mouse' || !link.matches(':is(button,input)[data-zev-popup]')) return press;
    return { pointer: 'touch', wasOpen: isOpen(link) && state.levels[0].isClicked };
}

function onPageClick(event) {
    const link = popupLinkAt(event);
    if (!link) return;
    answer(link, 'onclick', event);
    const { pointer = '', wasOpen = false } = pressOn(link), hasAddress = hasOwnAddress(link);
    const meaning = isModified(event) ? 'follow'
        : meaningOfClick({ pointer, wasOpen, hasAddress, hasSubmenu: pointer != 'mouse' });
    // An empty address would load the page anew.
    if (link.getAttribute('href') == '' || meaning != 'follow') event.preventDefault();
    if (meaning == 'close') return closeFrom(0);
    if (meaning == 'follow') return;
    if (isOpen(link) || openFrom(link, event)) state.levels[0].isClicked = true;
    if (meaning == 'enter') enterFrom(link);
}

function onPageKey(event) {
    const link = popupLinkAt(event), { key } = event;
    if (!link || hasModifier(event)) return;
    if (key == 'Enter' && hasOwnAddress(link)) return followByKey();
    if (!/^(Enter| |ArrowDown)$/.test(key) || !openFrom(link, event)) return;
    event.preventDefault();
    enterFrom(link);
}

function openEarly() {
    const call = state.earlyCall;
    state.earlyCall = null;
    if (call) shared.openPopup(call);
}
