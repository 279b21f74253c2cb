// Writes large_menu.js: the navigation of a made-up hardware shop, 1,000 items on four levels.
// Run it with: node samples/make_large_menu.mjs
import { writeFileSync } from 'node:fs';
import { fileURLToPath } from 'node:url';

const departments = {
    'Power tools': ['Drills', 'Saws', 'Sanders', 'Routers', 'Grinders', 'Batteries'],
    'Hand tools': ['Hammers', 'Screwdrivers', 'Pliers', 'Planes', 'Chisels', 'Measuring'],
    'Garden': ['Mowers', 'Pruning', 'Watering', 'Fences', 'Ponds', 'Compost'],
    'Paint': ['Wall paint', 'Varnish', 'Brushes', 'Fillers', 'Wallpaper', 'Ladders'],
    'Electrical': ['Lamps', 'Switches', 'Cables', 'Sockets', 'Doorbells', 'Smoke alarms'],
    'Plumbing': ['Taps', 'Pipes', 'Basins', 'Showers', 'Pumps', 'Boilers'],
    'Timber': ['Boards', 'Beams', 'Flooring', 'Doors', 'Shelves', 'Plywood'],
    'Fixings': ['Screws', 'Nails', 'Bolts', 'Anchors', 'Hinges', 'Adhesives'],
};

const views = {
    'By price': ['Under 25', '25 to 100', 'Over 100'],
    'By maker': ['Alder &amp; Co.', 'Birch &amp; Sons', 'Cedarworks'],
    'By use': ['Home', 'Workshop', 'Building site'],
    'Service': ['Repairs', 'Spare parts', 'Manuals'],
    'Offers': ['New', 'Reduced', 'Sets'],
};

const wanted = 1000;

function node(caption, children = []) {
    return { caption, children };
}

// The last lists lose their last entries until the count is right.
function shopTree() {
    const tree = Object.entries(departments).map(([department, ranges]) =>
        node(department, ranges.map(range =>
            node(range, Object.entries(views).map(([view, entries]) =>
                node(view, entries.map(entry => node(entry))))))));
    const lists = tree.flatMap(d => d.children.flatMap(r => r.children)).reverse();
    for (let surplus = count(tree) - wanted; surplus > 0; surplus--) lists[surplus - 1].children.pop();
    return tree;
}

function count(nodes) {
    return nodes.reduce((sum, { children }) => sum + 1 + count(children), 0);
}

const defaults = [
    "zev_state.columns = 1;",
    "zev_state.hbgcolor = '#C8102E';",
    "zev_state.hftcolor = '#FFFFFF';",
    "zev_state.nbgcolor = '#33363B';",
    "zev_state.nftcolor = '#F5F5F5';",
    "zev_state.menuoffset = 1;",
    "zev_state.closedelay = 500;",
    "zev_state.position = 'right';",
    "zev_state.fontFamily = 'Arial, Liberation Sans, sans-serif';",
    "zev_state.fontSize = '10pt';",
    "",
];

function propertyLines(id) {
    if (id == '0') {
        return ["zevmenu.columns = 10;", "zevmenu.position = 'bottom';", "zevmenu.cellpadding = 8;"];
    }
    const position = id.includes('i') ? [] : ["zevmenu.position = 'bottom';"];
    return [...position, "zevmenu.menuborder = '1px solid #77797D';", "zevmenu.cellpadding = 5;"];
}

function linkOf(path) {
    const words = path.map(caption => caption.replace('&amp;', 'and').toLowerCase()).join(' ');
    return 'pages/page.html?' + words.replace(/[^a-z0-9]+/g, '-').replace(/-$/, '');
}

// The block of one menu, then those of its submenus, depth first.
function menuLines(nodes, id, path) {
    const lines = [`zevmenu = new ZEVMenu('${id}');`, ...propertyLines(id), ''];
    for (const { caption } of nodes) {
        lines.push(`zevmenu.AddItem('${caption}', '${linkOf([...path, caption])}', '');`);
    }
    lines.push('');
    nodes.forEach(({ caption, children }, index) => {
        const childId = id == '0' ? `${index + 1}` : `${id}i${index + 1}`;
        if (children.length) lines.push(...menuLines(children, childId, [...path, caption]));
    });
    return lines;
}

export function largeMenu() {
    return [...defaults, ...menuLines(shopTree(), '0', []), ''].map(line => line + '\r\n').join('');
}

if (process.argv[1] == fileURLToPath(import.meta.url)) {
    writeFileSync(new URL('large_menu.js', import.meta.url), largeMenu());
}
