// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/peerways.h"

namespace zephira {

namespace {

/// A frame's first document is empty, and there until its own one has come. Scripts can use its window at once, before any
/// script of ours has run in it.
constexpr PeerWay ways[] = {
    {"the page", "<script>speak('WAY', window)</script>"},
    {"a frame", "<script>speak('WAY', frame('iframe', f => f.src = 'inner.html'))</script>"},
    {"a frame that has come",
     "<script>frame('iframe', f => { f.src = 'inner.html'; "
     "f.onload = () => speak('WAY', f.contentWindow) })</script>"},
    {"a frame without an address", "<script>speak('WAY', frame('iframe', () => {}))</script>"},
    {"an empty frame", "<script>speak('WAY', frame('iframe', f => f.src = 'about:blank'))</script>"},
    {"an empty frame that has come",
     "<script>frame('iframe', f => { f.src = 'about:blank'; "
     "f.onload = () => speak('WAY', f.contentWindow) })</script>"},
    {"a frame with text", "<script>speak('WAY', frame('iframe', f => f.srcdoc = '<p>inner'))</script>"},
    {"a script in a frame with text", "<script>frame('iframe', f => f.srcdoc = ownScript('WAY'))</script>"},
    {"a script in a frame with an address of data",
     "<script>frame('iframe', f => f.src = 'data:text/html,' + encodeURIComponent(ownScript('WAY')))</script>"},
    {"a frame with a script", "<script>speak('WAY', frame('iframe', f => f.src = 'javascript:1'))</script>"},
    {"the script of a frame", "<iframe src=\"javascript:parent.speak('WAY', window)\"></iframe>"},
    {"a frame in a sandbox",
     "<script>speak('WAY', frame('iframe', f => { f.sandbox = 'allow-same-origin'; f.src = 'inner.html' }))</script>"},
    {"a frame of a set", "<script>speak('WAY', frame('frame', f => f.src = 'inner.html'))</script>"},
    {"an object", "<script>speak('WAY', frame('object', f => f.data = 'inner.html'))</script>"},
    {"an embedded page", "<script>speak('WAY', frame('embed', f => f.src = 'inner.html'))</script>"},
    {"a frame in a frame",
     "<script>{ const outer = frame('iframe', () => {}); const f = outer.document.createElement('iframe');"
     "f.src = 'inner.html'; outer.document.body.append(f); speak('WAY', f.contentWindow); }</script>"},
    {"a frame in a shadow",
     "<script>{ const host = document.createElement('div'); document.body.append(host);"
     "const f = document.createElement('iframe'); f.src = 'inner.html';"
     "host.attachShadow({ mode: 'closed' }).append(f); speak('WAY', f.contentWindow); }</script>"},
    {"a frame of the text",
     "<iframe src='inner.html'></iframe><script>speak('WAY', frames[frames.length - 1])</script>"},
    {"a frame of the text, by its name",
     "<iframe name=byname src='inner.html'></iframe><script>speak('WAY', window.byname)</script>"},
    {"a frame from text",
     "<div id=fromtext></div><script>fromtext.innerHTML = \"<iframe src='inner.html'></iframe>\";"
     "speak('WAY', frames[frames.length - 1])</script>"},
    {"a frame that is written",
     "<script>document.write(\"<iframe src='inner.html'></iframe>\");"
     "speak('WAY', frames[frames.length - 1])</script>"},
    {"a window", "<script>speak('WAY', open(''))</script>"},
    {"a script that comes with its frame",
     "<script>{ const piece = document.createDocumentFragment(); const f = document.createElement('iframe');"
     "f.src = 'inner.html'; const s = document.createElement('script');"
     "s.textContent = \"speak('WAY', frames[frames.length - 1])\"; piece.append(f, s); document.body.append(piece);"
     "}</script>"},
};

/// Connections are kept, because the engine ends those that no script can reach.
constexpr char head[] = R"(<script>
window.spoken = [];
const connect = (place, host) => {
  const made = ['RTCPeerConnection', 'webkitRTCPeerConnection'].flatMap(name => { try {
    const c = new place[name]({ iceServers: [{ urls: 'stun:' + host },
      { urls: 'turn:' + host + '?transport=tcp', username: 'u', credential: 'c' }] });
    c.createDataChannel('d');
    c.createOffer().then(offer => c.setLocalDescription(offer)).catch(() => {});
    return [c];
  } catch (e) { return []; } });
  if (made.length) (place.kept = place.kept || []).push(made);
  return made.length;
};
const speak = (way, place) => { if (connect(place, 'HOST')) window.spoken.push(way); };
window.speak = speak;
addEventListener('message', e => { if (e.data && e.data.way) window.spoken.push(e.data.way); });
const ownScript = way => "<script>if ((" + connect + ")(window, 'HOST')) parent.postMessage({ way: '" + way + "' }, '*')</"
  + "script>";
const frame = (tag, fill) => { const f = document.createElement(tag); fill(f); document.body.append(f);
  return f.contentWindow || frames[frames.length - 1]; };
</script>
)";

} // namespace

std::span<const PeerWay> peerWays()
{
    return ways;
}

QByteArray peerMarkup(std::span<const PeerWay> chosen, const QByteArray &server)
{
    QByteArray markup = QByteArray(head).replace("HOST", server);
    for (const PeerWay &way : chosen)
        markup += QByteArray(way.html).replace("WAY", way.name) + '\n';
    return markup;
}

} // namespace zephira
