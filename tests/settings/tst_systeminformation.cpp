// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/systeminformation.h"
#include "support/fakes.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstSystemInformation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void noTool();
    void firstToolWins();
    void toolWithAnArgument();
};

void TstSystemInformation::noTool()
{
    QVERIFY(!systemInformationTool(MemoryFileStore()).has_value());
}

void TstSystemInformation::firstToolWins()
{
    MemoryFileStore files;
    files.contents[u"/usr/bin/kinfocenter"_s] = {};
    files.contents[u"/usr/bin/gnome-control-center"_s] = {};
    QCOMPARE(systemInformationTool(files), std::optional(SystemTool{u"/usr/bin/kinfocenter"_s}));
    files.contents[u"/usr/bin/hardinfo"_s] = {};
    QCOMPARE(systemInformationTool(files), std::optional(SystemTool{u"/usr/bin/hardinfo"_s}));
}

void TstSystemInformation::toolWithAnArgument()
{
    MemoryFileStore files;
    files.contents[u"/usr/bin/gnome-control-center"_s] = {};
    QCOMPARE(systemInformationTool(files),
             std::optional(SystemTool{u"/usr/bin/gnome-control-center"_s, {u"info-overview"_s}}));
}

ZEPHIRA_TEST(TstSystemInformation)
#include "tst_systeminformation.moc"
