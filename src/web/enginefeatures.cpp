// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/enginefeatures.h"

#include <QByteArray>

using namespace Qt::StringLiterals;

namespace zephira {

void closeUnfencedFeatures()
{
    constexpr char name[] = "QTWEBENGINE_CHROMIUM_FLAGS";
    // The engine has no switch for peers, and no script of ours runs in the empty document that a frame begins with, whose
    // window other scripts can use at once. But the interpreter gives its own helpers a name in each new window before any
    // script gets hold of it: these two, which start a garbage collection and mark a trace, take the place of the peers.
    // Of an option that is given twice, the engine takes the last one.
    qputenv(name,
            qgetenv(name)
                + " --disable-blink-features=SharedWorker,WebTransport"
                  " --js-flags=--expose-gc-as=RTCPeerConnection,--expose-cputracemark-as=webkitRTCPeerConnection");
}

QString closedFeaturesScript()
{
    return u"delete window.RTCPeerConnection; delete window.webkitRTCPeerConnection;"_s;
}

} // namespace zephira
