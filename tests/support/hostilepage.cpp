// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/hostilepage.h"

#include "support/diskfiles.h"
#include "support/peerways.h"

#include <QUrl>

namespace zephira {

namespace {

/// A page that reaches for a server and for files beyond its folder in every way that pages have. Whatever it gets to read
/// of them it adds to `window.got`; `window.tried` is true when all has been tried. Each way asks the server for a path of
/// its own below `server`, an address that ends in a slash; `outside` is the address of a folder with the files "own.js",
/// "own.css", "own.html", "own.svg" and "own.txt", whose contents have the word "secret". It goes all peerWays(), too.
QByteArray hostilePage(QByteArray server, QByteArray outside)
{
    static constexpr char page[] = R"page(<!DOCTYPE html><html><head><title>t</title>
<link rel=stylesheet href='SERVERlink.css'><link rel=stylesheet href='OUTSIDEown.css'>
<link rel=stylesheet href='out/own.css'><link rel=stylesheet href='linked.css'>
<link rel=icon href='SERVERicon.png'><link rel=preload as=script href='SERVERpreload.js'>
<link rel=prefetch href='SERVERprefetch'><link rel=preconnect href='SERVER'><link rel=dns-prefetch href='SERVER'>
<link rel=modulepreload href='SERVERmodule.js'><link rel=manifest href='SERVERmanifest'>
<style>@import 'SERVERimport.css'; @import 'OUTSIDEown.css';
@font-face { font-family: f; src: url(SERVERfont.woff) } p { font-family: f; background: url(SERVERback.png) }
p::before { content: url(SERVERcontent.png) } li { list-style-image: url(SERVERlist.png) }
b { cursor: url(SERVERcursor.cur), auto; border-image: url(SERVERborder.png) 1; mask: url(SERVERmask.svg#a) }</style>
</head><body background='SERVERbody.png'><p id=p>text<ul><li>a</ul><b>b</b>
<img src='SERVERimg.png' srcset='SERVERset.png 2x'><img src='OUTSIDEown.svg'><img src='out/own.svg'>
<img src='ftp://127.0.0.1/a.png'><img src='view-source:SERVERsource'>
<picture><source srcset='SERVERpicture.png'><img src='SERVERpicture2.png'></picture>
<video src='SERVERvideo.mp4' poster='SERVERposter.png' autoplay></video><audio src='SERVERaudio.ogg' autoplay></audio>
<track src='SERVERtrack.vtt'><embed src='SERVERembed'><object data='SERVERobject'></object>
<svg><image href='SERVERimage.png'/><use href='SERVERuse.svg#a'/><script href='SERVERsvg.js'></script></svg>
<iframe src='SERVERframe'></iframe><iframe src='OUTSIDEown.html'></iframe><iframe src='out/own.html'></iframe>
<iframe src="data:text/html,<img src='SERVERdataframe.png'><script>new Image().src='SERVERdatascript.png'</script>"></iframe>
<iframe srcdoc="<img src='SERVERsrcdoc.png'><link rel=stylesheet href='OUTSIDEown.css'>"></iframe>
<iframe src='view-source:OUTSIDEown.txt'></iframe><iframe src='ftp://127.0.0.1/'></iframe>
<iframe src='redirect.html'></iframe><iframe name=target></iframe>
<form id=f action='SERVERform' method=post target=target><input name=a value=b></form>
<form id=g action='OUTSIDEown.html' target=target></form>
<a id=d href='SERVERdownload' download>d</a><a id=a ping='SERVERping' href='#x'>a</a>
<a id=n target=_blank href='SERVERblank'>n</a><a id=t target=target href='OUTSIDEown.html'>t</a>
<script src='SERVERscript.js'></script><script src='OUTSIDEown.js'></script><script src='out/own.js'></script>
<script type=module>import 'SERVERimport.js'</script>
PEERS<script>
window.got = '';
const take = (way, text) => { if (String(text).includes('secret')) window.got += way + ' '; };
const attempt = action => { try { const done = action(); if (done && done.catch) done.catch(() => {}); } catch (e) {} };
addEventListener('message', e => take('message', e.data));
for (const file of ['OUTSIDEown.txt', 'out/own.txt', 'linked.txt', '../outside/own.txt', '%2e%2e/outside/own.txt']) {
  attempt(() => { const r = new XMLHttpRequest; r.open('GET', file); r.onload = () => take('xhr', r.responseText); r.send(); });
  attempt(() => { const r = new XMLHttpRequest; r.open('GET', file, false); r.send(); take('sync', r.responseText); });
  attempt(() => fetch(file).then(r => r.text()).then(t => take('fetch', t)));
}
for (const way of ['fetch', 'xhr', 'beacon'])
  attempt(() => way == 'fetch' ? fetch('SERVERfetch', { mode: 'no-cors', method: 'POST', body: 'x' })
    : way == 'xhr' ? (x => (x.open('POST', 'SERVERxhr'), x.send('x')))(new XMLHttpRequest)
    : navigator.sendBeacon('SERVERbeacon', 'x'));
attempt(() => new WebSocket('SERVERsocket'.replace('http', 'ws')));
attempt(() => new EventSource('SERVERevents'));
attempt(() => new Worker('SERVERworker.js'));
attempt(() => new Worker('OUTSIDEown.js'));
attempt(() => new SharedWorker('SERVERshared.js'));
attempt(() => new Worker(URL.createObjectURL(new Blob(
  ["try { importScripts('SERVERblobworker.js') } catch (e) {} fetch('SERVERblobfetch', {mode: 'no-cors'})"]))));
attempt(() => new SharedWorker(URL.createObjectURL(new Blob(["fetch('SERVERblobshared', {mode: 'no-cors'}); "
  + "new WebSocket('SERVERsharedsocket'.replace('http', 'ws'))"]))));
const transport = "new WebTransport('SERVERtransport'.replace('http:', 'https:')).ready.catch(() => {})";
attempt(() => new Function(transport)());
attempt(() => new Worker(URL.createObjectURL(new Blob([transport]))));
attempt(() => navigator.serviceWorker.register('SERVERservice.js'));
attempt(() => new FontFace('g', 'url(SERVERface.woff)').load());
attempt(() => import('SERVERdynamic.js'));
attempt(() => new Image().src = 'SERVERnew.png');
attempt(() => window.open('SERVERopen'));
attempt(() => window.open('OUTSIDEown.html'));
attempt(() => document.getElementById('f').submit());
attempt(() => document.getElementById('g').submit());
for (const id of ['a', 'n', 't']) attempt(() => document.getElementById(id).click());
attempt(() => { const s = document.createElement('script'); s.src = 'SERVERadded.js'; document.body.append(s); });
setTimeout(() => {
  if (getComputedStyle(document.getElementById('p')).marginLeft == '7px') window.got += 'style ';
  if (window.came) window.got += 'script ';
  for (const image of document.images) if (image.naturalWidth == 5) window.got += 'image ';
  for (let i = 0; i < frames.length; ++i) attempt(() => take('frame', frames[i].document.documentElement.textContent));
  for (const sheet of document.styleSheets) attempt(() => take('sheet', [...sheet.cssRules].map(r => r.cssText).join()));
  // Ways that lead the whole window away, one after the other, so that none takes another one's place.
  const link = (target, click) => { const a = document.createElement('a'); a.href = 'SERVERlink' + target; a.target = target;
    document.body.append(a); click(a); };
  const form = (method, target) => { const f = document.createElement('form'); f.action = 'SERVER' + method + target;
    f.method = method; f.target = target; document.body.append(f); f.submit(); };
  const ways = [() => location = 'SERVERlocation', () => location.replace('SERVERreplace'), () => location.assign('SERVERassign'),
    () => link('_self', a => a.click()), () => link('_top', a => a.dispatchEvent(new MouseEvent('click', { bubbles: true }))),
    () => link('_blank', a => a.dispatchEvent(new MouseEvent('click', { ctrlKey: true, bubbles: true }))),
    () => form('get', '_self'), () => form('post', '_top'), () => form('post', '_blank'),
    () => open('SERVERopen_self', '_self'), () => document.getElementById('d').click(),
    () => frames[0].parent.location = 'SERVERparent', () => history.back(),
    () => { const m = document.createElement('meta'); m.httpEquiv = 'refresh'; m.content = '0;url=SERVERmeta';
      document.head.append(m); }];
  ways.forEach((way, i) => setTimeout(() => attempt(way), 150 * i));
  setTimeout(() => window.tried = true, 150 * ways.length + 500);
}, 2000);
</script></body></html>)page";
    const QByteArray host = QUrl(QString::fromUtf8(server)).authority().toUtf8();
    return QByteArray(page)
        .replace("PEERS", peerMarkup(peerWays(), host))
        .replace("SERVER", server)
        .replace("OUTSIDE", outside);
}

} // namespace

QString plantHostilePage(const QString &folder, const QString &server)
{
    const QString outside = folder + QStringLiteral("/outside/");
    const QString site = folder + QStringLiteral("/site/");
    putFile(outside + QStringLiteral("own.js"),
            "window.came = 'secret'; self.postMessage && postMessage('secret', '*');");
    putFile(outside + QStringLiteral("own.css"), "p { margin-left: 7px } /* secret */");
    putFile(outside + QStringLiteral("own.html"), "<script>parent.postMessage('secret', '*')</script>secret");
    putFile(outside + QStringLiteral("own.svg"), "<svg xmlns='http://www.w3.org/2000/svg' width='5' height='5'/>");
    putFile(outside + QStringLiteral("own.txt"), "secret");
    putFile(site + QStringLiteral("redirect.html"),
            "<meta http-equiv=refresh content='0;url=" + (server + QStringLiteral("refresh")).toUtf8() + "'>");
    putFile(site + QStringLiteral("inner.html"), "<p>inner</p>");
    QFile::link(outside, site + QStringLiteral("out"));
    QFile::link(outside + QStringLiteral("own.css"), site + QStringLiteral("linked.css"));
    QFile::link(outside + QStringLiteral("own.txt"), site + QStringLiteral("linked.txt"));
    return putFile(site + QStringLiteral("page.html"),
                   hostilePage(server.toUtf8(), QUrl::fromLocalFile(outside).toEncoded()));
}

} // namespace zephira
