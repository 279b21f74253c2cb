// SPDX-License-Identifier: MIT
// ---- Links of pop-ups ----

const handlers = ['onmouseover', 'onclick', 'onfocus'];
const popupLinks = '[data-zev-popup],' + handlers.map(name => `[${name}*="ZEVMenuOpen"]`).join();
const anyLink = 'a,area,button,input,[tabindex],' + popupLinks;

// Known by its attributes, or from its first call on.
function popupLinkAt({ target }) {
    return target.closest?.(popupLinks) || around(target, 'zevPopup');
}

function adopt(link) {
    if (link.zevOwn) return;
    link.zevOwn = Object.fromEntries(['aria-expanded', 'aria-haspopup', 'tabindex', 'role']
        .map(name => [name, link.getAttribute(name)]));
    mark(link, { 'aria-haspopup': true, 'aria-expanded': false });
    if (link.matches('[href],button,input,[tabindex]')) return;
    mark(link, { tabindex: 0, role: link.zevOwn.role || 'button' });
}

function release(link) {
    if (link.zevOwn) mark(link, link.zevOwn);
    delete link.zevOwn;
    delete link.zevPopup;
}

shared.openPopup = function (call) {
    const id = popupId(call.of), { isEvent, x, y } = call, { actingLink } = state, menu = state.menus[id];
    const isEarly = !menu && (document.readyState == 'loading' || !state.menus['0']);
    if (isEarly || !document.body) return (state.early = call);
    if (!menu) return warn(`ZEVMenuOpen: there is no submenu "${id}"`);
    const link = call.link?.matches?.(anyLink) ? call.link : actingLink;
    if (link) {
        link.zevPopup = call.of;
        adopt(link);
    }
    if (levels[0]?.menu == menu && levels[0].opener == link) return keep(1);
    close(0);
    // By a key, a tap or the focus the menu opens below the link.
    const isBelow = link && isEvent && (actingLink || x == null);
    openLevel(0, {
        menu, box: boxFor(menu, link), opener: link,
        point: isBelow ? null : { x: +x || 0, y: +y || 0 },
        wish: isBelow ? 'bottom' : isEvent ? realSide('right', isRtlAt(document.body)) : '',
        offset: isBelow || !isEvent ? 0 : 8
    });
};

// Of 'zev1' and the id, or 'zev1i' + N and the rest of it.
function popupId(of) {
    return of.replace(/^zev1(i\d+)? ([1-9][\di]*)$/, '$1i$2').slice(1);
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
function onEnter(event) {
    answer(popupLinkAt(event), event.type == 'focusin' ? 'onfocus' : 'onmouseover', event);
}

function onLeave(event) {
    const link = popupLinkAt(event);
    if (!link || link.onmouseout || !link.matches('[data-zev-popup],[onmouseout*=ZEVMenuClose]')) return;
    state.early = null;
    shared.closePopup(link.zevPopup);
}

// By its handler, or as its listener did last.
function openFrom(link, event) {
    const name = handlers.find(name => /ZEVMenuOpen/.test(link.getAttribute(name)));
    state.actingLink = link;
    try {
        if (link[name]) link[name](event);
        else shared.openPopup(callOf(link, name || 'onmouseover') || { of: link.zevPopup, isEvent: true });
    } finally {
        state.actingLink = null;
    }
}
