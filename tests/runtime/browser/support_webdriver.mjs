// SPDX-License-Identifier: MIT
// A small WebDriver client for WebKit: the part of a puppeteer page that the tests use, under the same
// names, as HTTP requests to WebKitWebDriver. Only url() differs: it gives a promise.

const elementKey = 'element-6066-11e4-a52e-4f735466cecf';
const keys = {
    Backspace: '\uE003', Tab: '\uE004', Enter: '\uE006', Shift: '\uE008', Control: '\uE009', Alt: '\uE00A',
    Escape: '\uE00C', Space: ' ', PageUp: '\uE00E', PageDown: '\uE00F', End: '\uE010', Home: '\uE011',
    ArrowLeft: '\uE012', ArrowUp: '\uE013', ArrowRight: '\uE014', ArrowDown: '\uE015', Delete: '\uE017',
    F10: '\uE03A', Meta: '\uE03D',
};

// A browser and its one page.
export class WebDriverBrowser {
    #address;

    constructor(address) {
        this.#address = address;
    }

    // Starts a session; `capabilities` say which program to run.
    static async start(server, capabilities) {
        const { sessionId } = await request(
            'POST', `${server}/session`, { capabilities: { alwaysMatch: capabilities } });
        return new WebDriverBrowser(`${server}/session/${sessionId}`);
    }

    newPage() {
        return new WebDriverPage(this.#address);
    }

    async close() {
        await request('DELETE', this.#address);
    }
}

// How long the driver may take for a command on a busy machine. When the browser hangs, the driver never answers.
export const commandMs = 120000;

async function request(method, url, body) {
    const command = `${method} ${new URL(url).pathname} ${JSON.stringify(body || {})}`;
    const answer = fetch(url, { method, body: method == 'POST' ? JSON.stringify(body || {}) : undefined,
                                signal: AbortSignal.timeout(commandMs) });
    const response = await answer.catch(cause => { throw new Error(`${command}: no answer`, { cause }); });
    const { value } = await response.json();
    if (!response.ok) throw new Error(`${command}: ${value.error}: ${value.message}`);
    return value;
}

class WebDriverPage {
    #address;
    #mouseAt = { x: 0, y: 0 };
    #listeners = { console: [], pageerror: [] };

    constructor(address) {
        this.#address = address;
        this.keyboard = {
            down: key => this.#keys('keyDown', key),
            up: key => this.#keys('keyUp', key),
            press: key => this.#press(key),
        };
        this.mouse = {
            move: (x, y) => this.#moveMouse(x, y),
            down: () => this.#mouse([{ type: 'pointerDown', button: 0 }]),
            up: () => this.#mouse([{ type: 'pointerUp', button: 0 }]),
            click: (x, y) => this.#moveMouse(x, y, ...tap),
            wheel: ({ deltaX = 0, deltaY = 0 }) => this.#wheel(deltaX, deltaY),
        };
        this.touchscreen = { tap: (x, y) => this.evaluate(touch, x, y) };
    }

    send(method, path, body) {
        return request(method, this.#address + path, body);
    }

    // Whoever hears what the page writes into its console tells the listeners by emit().
    on(event, listener) {
        this.#listeners[event].push(listener);
    }

    emit(event, value) {
        for (const listener of this.#listeners[event]) listener(value);
    }

    // ---- The window ----

    setDefaultTimeout() {}

    // Whether it waits until the page has loaded is a matter of the whole session's `pageLoadStrategy`.
    async goto(url) {
        await this.send('POST', '/url', { url });
    }

    async url() {
        return this.send('GET', '/url');
    }

    async title() {
        return this.send('GET', '/title');
    }

    // Sizes the window, which has nothing but the page in it, in pixels. The page hears of it a little later.
    async setViewport({ width, height }) {
        const size = () => this.evaluate(() => `${innerWidth} by ${innerHeight}`);
        const wanted = `${width} by ${height}`;
        if (await size() == wanted) return;
        await this.send('POST', '/window/rect', { width, height });
        await this.#until(async () => await size() == wanted, `a page of ${wanted} pixels`);
    }

    // A picture (PNG) of a part of the window; the driver's own pictures of elements are black.
    async screenshot({ clip }) {
        const url = await this.evaluate(cutOut, await this.send('GET', '/screenshot'), clip);
        return Buffer.from(url.split(',')[1], 'base64');
    }

    // ---- Elements and scripts ----

    // `code` is a function, or a text that is run as it stands and gives nothing.
    evaluate(code, ...args) {
        return typeof code == 'function' ? this.#call(code, ...args)
            : this.send('POST', '/execute/sync', { script: code, args });
    }

    // Calls a function, given as such or as its text, in the page. Elements among the arguments stay elements.
    async #call(code, ...args) {
        const text = await this.send('POST', '/execute/sync', {
            script: `const value = (${code})(...arguments);
                return Promise.resolve(value).then(value => value === undefined ? null : JSON.stringify(value));`,
            args: args.map(arg => arg instanceof WebDriverElement ? { [elementKey]: arg.id } : arg),
        });
        return text === null ? undefined : JSON.parse(text);
    }

    async waitForFunction(code) {
        await this.#until(() => this.#call(`() => !!(${code})()`), code);
    }

    async #until(question, what) {
        const end = Date.now() + 10000;
        while (!await question()) {
            if (Date.now() > end) throw new Error(`waited 10 s for ${what}`);
            await new Promise(resolve => setTimeout(resolve, 10));
        }
    }

    async $$(selector) {
        const found = await this.send('POST', '/execute/sync',
            { script: `return (${findAll})(...arguments)`, args: [selector] });
        return found.map(element => new WebDriverElement(this, element[elementKey]));
    }

    async $(selector) {
        return (await this.$$(selector))[0] || null;
    }

    $$eval(selector, code, ...args) {
        return this.#call(`(selector, ...args) => (${code})((${findAll})(selector), ...args)`, selector, ...args);
    }

    $eval(selector, code, ...args) {
        return this.#call(`(selector, ...args) => (${code})((${findAll})(selector)[0], ...args)`, selector, ...args);
    }

    focus(selector) {
        return this.$eval(selector, element => element.focus());
    }

    async hover(selector) {
        const { x, y, width, height } = await (await this.$(selector)).boundingBox();
        await this.mouse.move(x + width / 2, y + height / 2);
    }

    // ---- Input ----

    async #actions(...sources) {
        await this.send('POST', '/actions', { actions: sources });
    }

    #mouse(actions) {
        return this.#actions({ type: 'pointer', id: 'mouse', parameters: { pointerType: 'mouse' }, actions });
    }

    // Turns the wheel where the mouse is.
    #wheel(deltaX, deltaY) {
        const { x, y } = this.#mouseAt;
        return this.#actions({ type: 'wheel', id: 'wheel', actions: [{ type: 'scroll', x, y, deltaX, deltaY }] });
    }

    #moveMouse(x, y, ...next) {
        const move = at(x, y);
        this.#mouseAt = move;
        return this.#mouse([move, ...next]);
    }

    #keys(type, key) {
        return this.#actions({ type: 'key', id: 'keyboard', actions: [{ type, value: keys[key] || key }] });
    }

    #press(key) {
        const value = keys[key] || key;
        return this.#actions({ type: 'key', id: 'keyboard',
                               actions: [{ type: 'keyDown', value }, { type: 'keyUp', value }] });
    }
}

const tap = [{ type: 'pointerDown', button: 0 }, { type: 'pointerUp', button: 0 }];

function at(x, y) {
    return { type: 'pointerMove', x: Math.round(x), y: Math.round(y), duration: 0 };
}

// Runs in the page: all elements of a selector; one that begins with ">>>" also looks into shadow trees.
function findAll(selector) {
    if (!selector.startsWith('>>>')) return Array.from(document.querySelectorAll(selector));
    const roots = [document];
    for (const root of roots) {
        for (const element of root.querySelectorAll('*')) {
            if (element.shadowRoot) roots.push(element.shadowRoot);
        }
    }
    return roots.flatMap(root => Array.from(root.querySelectorAll(selector.slice(3))));
}

// Runs in the page: a part of a picture, both as base64 (the result as a data URL).
async function cutOut(picture, { x, y, width, height }) {
    const image = new Image();
    image.src = 'data:image/png;base64,' + picture;
    await image.decode();
    const canvas = Object.assign(document.createElement('canvas'), { width, height });
    canvas.getContext('2d').drawImage(image, -x, -y);
    return canvas.toDataURL();
}

/*
 * Runs in the page: what it is told when a finger taps at a point of the window. The driver itself makes a mouse
 * click of a finger's tap.
 */
function touch(x, y) {
    let target = document.elementFromPoint(x, y), inner;
    while ((inner = target.shadowRoot?.elementFromPoint(x, y)) && inner != target) target = inner;
    const tell = (kind, type) => target.dispatchEvent(new kind(type, {
        bubbles: true, cancelable: true, composed: true, view: window, clientX: x, clientY: y, pointerType: 'touch' }));
    for (const type of ['over', 'down', 'up', 'out']) tell(PointerEvent, 'pointer' + type);
    for (const type of ['over', 'move', 'down', 'up']) tell(MouseEvent, 'mouse' + type);
    target.click();
}

class WebDriverElement {
    #page;

    constructor(page, id) {
        this.#page = page;
        this.id = id;
    }

    evaluate(code, ...args) {
        return this.#page.evaluate(code, this, ...args);
    }

    boundingBox() {
        return this.evaluate(element => {
            const { x, y, width, height } = element.getBoundingClientRect();
            return element.getClientRects().length ? { x, y, width, height } : null;
        });
    }

    async click() {
        await this.evaluate(element => element.scrollIntoView({ block: 'nearest', inline: 'nearest' }));
        const { x, y, width, height } = await this.boundingBox();
        await this.#page.mouse.click(x + width / 2, y + height / 2);
    }

    // The name that assistive technology is told.
    accessibleName() {
        return this.#page.send('GET', `/element/${this.id}/computedlabel`);
    }
}
