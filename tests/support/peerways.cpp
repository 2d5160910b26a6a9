// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/peerways.h"

namespace zephira {

namespace {

constexpr PeerWay ways[] = {
    {"the page", "<script>speak('WAY', window)</script>"},
    {"a frame that has come",
     "<script>frame('iframe', f => { f.src = 'inner.html'; "
     "f.onload = () => speak('WAY', f.contentWindow) })</script>"},
    {"a script in a frame with text", "<script>frame('iframe', f => f.srcdoc = ownScript('WAY'))</script>"},
    {"a script in a frame with an address of data",
     "<script>frame('iframe', f => f.src = 'data:text/html,' + encodeURIComponent(ownScript('WAY')))</script>"},
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
  (place.kept = place.kept || []).push(made);
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
