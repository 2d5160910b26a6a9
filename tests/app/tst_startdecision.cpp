// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/startdecision.h"
#include "support/testregistry.h"

#include <QTest>

using namespace zephira;
using namespace Qt::StringLiterals;
using Actions = std::vector<StartAction>;
Q_DECLARE_METATYPE(Actions)

class TstStartDecision : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void argument_data()
    {
        QTest::addColumn<QString>("argument");
        QTest::addColumn<int>("kind");
        QTest::newRow("empty") << u""_s << static_cast<int>(StartArgument::None);
        QTest::newRow("nodialog") << u"/nodialog"_s << static_cast<int>(StartArgument::NoDialog);
        QTest::newRow("case counts") << u"/NoDialog"_s << static_cast<int>(StartArgument::File);
        QTest::newRow("file transfer") << u"--ftp"_s << static_cast<int>(StartArgument::FileTransfer);
        QTest::newRow("blank after it") << u"/nodialog "_s << static_cast<int>(StartArgument::File);
        QTest::newRow("file") << u"a page.html"_s << static_cast<int>(StartArgument::File);
    }

    void argument()
    {
        QFETCH(QString, argument);
        QTEST(static_cast<int>(startArgument(argument)), "kind");
    }

    void actions_data()
    {
        QTest::addColumn<StartArgument>("argument");
        QTest::addColumn<int>("tips");
        QTest::addColumn<QString>("selprj");
        QTest::addColumn<Actions>("actions");
        using enum StartAction;
        using enum StartArgument;
        const Actions tip{CheckViewTip, ShowTip};
        QTest::newRow("nodialog, all on") << NoDialog << 1 << u"1"_s << Actions{};
        QTest::newRow("nodialog, all off") << NoDialog << 0 << u"0"_s << Actions{};
        QTest::newRow("start dialog alone") << None << 0 << u"1"_s << Actions{ShowStartDialog};
        QTest::newRow("tips 2 doesn't count as 1") << None << 2 << u"1"_s << Actions{ShowStartDialog};
        QTest::newRow("nothing") << None << 0 << u"0"_s << Actions{};
        QTest::newRow("file, tips off") << File << 0 << u"1"_s << Actions{};
        QTest::newRow("tip, then start dialog")
            << None << 1 << u"1"_s << Actions{ShowTipOverStartDialog, ShowStartDialog, CheckViewTip};
        QTest::newRow("tip alone") << None << 1 << u"0"_s << tip;
        QTest::newRow("selprj must be exactly 1") << None << 1 << u"01"_s << tip;
        QTest::newRow("file has a tip, no start dialog") << File << 1 << u"1"_s << tip;
    }

    void actions()
    {
        QFETCH(StartArgument, argument);
        QFETCH(int, tips);
        QFETCH(QString, selprj);
        QFETCH(Actions, actions);
        QVERIFY(startActions(argument, tips, selprj) == actions);
    }
};

ZEPHIRA_TEST(TstStartDecision)
#include "tst_startdecision.moc"
