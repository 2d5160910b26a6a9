// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/startdecision.h"
#include "core/errorstyles.h"
#include "support/fakes.h"
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
        QTest::newRow("empty") << u""_s << int(StartArgument::None);
        QTest::newRow("nodialog") << u"/nodialog"_s << int(StartArgument::NoDialog);
        QTest::newRow("case counts") << u"/NoDialog"_s << int(StartArgument::File);
        QTest::newRow("blank behind") << u"/nodialog "_s << int(StartArgument::File);
        QTest::newRow("file") << u"a page.html"_s << int(StartArgument::File);
    }

    void argument()
    {
        QFETCH(QString, argument);
        QTEST(int(startArgument(argument)), "kind");
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
        QTest::newRow("tips 2 is not 1") << None << 2 << u"1"_s << Actions{ShowStartDialog};
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

    void requiredNumber_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("message"); // empty: converts
        QTest::newRow("one") << u"1"_s << u""_s;
        QTest::newRow("negative") << u"-7"_s << u""_s;
        QTest::newRow("missing")
            << u""_s
            << u"Zephira can't start: the key \"highlight\" in section [options] of /x/zephira.ini is missing."_s;
        QTest::newRow("word")
            << u"yes"_s
            << u"Zephira can't start: the key \"highlight\" in section [options] of /x/zephira.ini isn't a number (\"yes\")."_s;
        QTest::newRow("too long")
            << u"99999999999"_s
            << u"Zephira can't start: the key \"highlight\" in section [options] of /x/zephira.ini isn't a "
               u"number (\"99999999999\")."_s;
    }

    void requiredNumber()
    {
        QFETCH(QString, value);
        QFETCH(QString, message);
        MemoryConfiguration configuration;
        configuration.put(u"options"_s, u"highlight"_s, value);
        QString raised;
        int number = 0;
        try {
            number = zephira::requiredNumber(configuration, u"options"_s, u"highlight"_s, u"/x/zephira.ini"_s);
        } catch (const HandlerError &error) {
            raised = error.description;
        }
        QCOMPARE(raised, message);
        if (message.isEmpty())
            QCOMPARE(QString::number(number), value);
    }
};

ZEPHIRA_TEST(TstStartDecision)
#include "tst_startdecision.moc"
