// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/earlyfonts.h"
#include "support/testregistry.h"

#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// Whether the process has mapped the list of the system's fonts.
bool knowsFonts()
{
    QFile maps(u"/proc/self/maps"_s);
    return maps.open(QIODevice::ReadOnly) && maps.readAll().contains("/fontconfig/");
}

} // namespace

/// Loading the configuration of the fonts before the first text is measured.
class TstEarlyFonts final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFontsAreKnownAfterTheWait()
    {
        QVERIFY(!knowsFonts());
        EarlyFonts fonts;
        fonts.wait();
        QVERIFY(knowsFonts());
        fonts.wait(); // The second wait has nothing to wait for.
    }

    void aStartThatEndsAtOnceNeedsNoWait() { const EarlyFonts fonts; }
};

ZEPHIRA_TEST(TstEarlyFonts)
#include "tst_earlyfonts.moc"
