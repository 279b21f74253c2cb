// SPDX-License-Identifier: MIT
// Functions that the tests put into the preview page. They name an item by its accessible name, and
// give what a visitor sees as text.
items = () => [...document.querySelectorAll('[data-zev]')]
    .flatMap(host => [...host.shadowRoot.querySelectorAll('li > a')]);
nameOf = link => (link.getAttribute('aria-label') ?? link.querySelector('img').alt).trim();
item = name => items().find(link => nameOf(link) == name);
shownNames = () => items().filter(link => link.getClientRects().length).map(nameOf).join('|');
box = name => item(name).closest('ul');
rect = name => item(name).getBoundingClientRect();
point = name => item(name).dispatchEvent(new PointerEvent('pointermove', {
    pointerType: 'mouse', bubbles: true, composed: true,
    clientX: rect(name).left + 5, clientY: rect(name).top + 5 }));
isShown = name => Boolean(item(name)?.getClientRects().length);
side = (border, edge) => [border[`border${edge}Width`], border[`border${edge}Style`],
                          border[`border${edge}Color`]].join(' ');
look = name => {
    const style = getComputedStyle(item(name)), boxStyle = getComputedStyle(box(name));
    return [
        'background: ' + style.backgroundColor,
        'colour: ' + style.color,
        'font: ' + [style.fontStyle, style.fontWeight, style.fontSize,
                    style.fontFamily.replaceAll('"', '')].join(', '),
        'padding: ' + style.paddingLeft,
        'item border: ' + side(style, 'Left'),
        'menu border: ' + side(boxStyle, 'Left'),
        'image: ' + boxStyle.backgroundImage.replace(/.*\/([^\/]+\/[^\/]+)"\)/, '$1'),
        'opacity: ' + boxStyle.opacity,
        'shadow: ' + boxStyle.boxShadow.replace(/ 3px 3px.*/, ''),
        'text: ' + item(name).textContent.replaceAll('\u00a0', '_'),
        'target: ' + item(name).target
    ].join('\n');
};
grid = name => {
    const links = [...box(name).querySelectorAll('li > a')];
    const rects = links.map(link => link.getBoundingClientRect());
    const columns = rects.filter(one => Math.abs(one.top - rects[0].top) < 1).length;
    return columns + ' columns, ' + Math.round(rects[1].left - rects[0].right) + ' px apart, ' +
           [...box(name).querySelectorAll('span.divider')].map(mark => mark.textContent).join('');
};
gap = (from, to) => {
    const start = rect(from), end = box(to).getBoundingClientRect();
    return [['right', end.left - start.right], ['bottom', end.top - start.bottom],
            ['left', start.left - end.right], ['top', start.top - end.bottom]]
        .filter(([, pixels]) => pixels > 0).map(([name, pixels]) => name + ' ' +
                                                                 Math.round(pixels)).join(', ');
};
