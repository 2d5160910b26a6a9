// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/enginefeatures.h"

#include <QByteArray>

namespace zephira {

void closeUnfencedFeatures()
{
    constexpr char name[] = "QTWEBENGINE_CHROMIUM_FLAGS";
    // Of an option that is given twice, the engine takes the last one.
    qputenv(name, qgetenv(name) + " --disable-blink-features=SharedWorker,WebTransport");
}

} // namespace zephira
