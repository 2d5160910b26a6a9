// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/sourceformatting.h"
#include "support/fakes.h"
#include "support/testregistry.h"

#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

const QString source = u"<a>  <b> x </b>\r\n</a>"_s;
const QString indented = u"\r\n<a> \r\n\t<b>x \r\n\t</b>\r\n</a>"_s;
const QString compact = u"<a><b>x</b></a>"_s;

/// A formatting run over a text in memory, and something that happens during it.
struct Run {
    TestContext world;
    std::unique_ptr<SourceFormatting> formatting = std::make_unique<SourceFormatting>(world);
    QStringList written;

    explicit Run(const QString &text = source)
    {
        world.editor.setText(text);
        world.editor.onChange = [this] { written.append(world.editor.text()); };
    }

    void hierarchicalWhile(const std::function<void()> &action)
    {
        bool happened = false;
        QTimer::singleShot(0, qApp, [&] {
            happened = true;
            action();
        });
        formatting->hierarchical();
        QVERIFY(happened);
    }
};

} // namespace

class TstSourceFormatting final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theWholeTextIsReplacedOnce_data()
    {
        QTest::addColumn<bool>("visual");
        QTest::newRow("code view") << false;
        QTest::newRow("visual mode") << true;
    }

    void theWholeTextIsReplacedOnce()
    {
        QFETCH(bool, visual);
        const std::pair<void (SourceFormatting::*)(), QString> entries[] = {
            {&SourceFormatting::compact, compact},
            {&SourceFormatting::hierarchical, indented},
            {&SourceFormatting::simple, u"<a>\r\n<b>x</b>\r\n</a>"_s},
        };
        for (const auto &[entry, expected] : entries) {
            Run run;
            run.world.designer.showing = visual;
            run.world.editor.selectPart(u"x"_s);
            (run.formatting.get()->*entry)();
            QCOMPARE(run.written, QStringList{expected});
        }
    }

    void eventsAreHandledDuringARun()
    {
        Run run;
        QString seen;
        run.hierarchicalWhile([&] { seen = run.world.editor.text(); });
        QCOMPARE(seen, source);
        QCOMPARE(run.written, QStringList{indented});
    }

    void whatTheUserChangesIsOverwritten()
    {
        Run run;
        run.hierarchicalWhile([&] { run.world.editor.setText(u"new"_s); });
        QCOMPARE(run.written, (QStringList{u"new"_s, indented}));
    }

    void runsNest()
    {
        Run run;
        run.hierarchicalWhile([&] { run.formatting->compact(); });
        QCOMPARE(run.written, (QStringList{compact, indented}));

        Run same;
        same.hierarchicalWhile([&] { same.formatting->hierarchical(); });
        QCOMPARE(same.written, (QStringList{indented, indented}));
    }

    void anAbandonedRunWritesNothing()
    {
        Run run;
        run.hierarchicalWhile([&] { run.formatting->abandon(); });
        QVERIFY(run.written.isEmpty());
        run.formatting->hierarchical();
        QCOMPARE(run.written, QStringList{indented});
    }

    void allNestedRunsAreAbandoned()
    {
        Run run;
        run.hierarchicalWhile([&] { run.hierarchicalWhile([&] { run.formatting->abandon(); }); });
        QVERIFY(run.written.isEmpty());
    }

    void aRunOutlivesItsObject()
    {
        Run run;
        run.hierarchicalWhile([&] { run.formatting.reset(); });
        QVERIFY(run.written.isEmpty());
    }

    void aLongRunLetsTheWindowWorkAgainAndAgain()
    {
        Run run(u"<b>some text</b>\r\n"_s.repeated(20000));
        int events = 0;
        QTimer timer;
        connect(&timer, &QTimer::timeout, &timer, [&events] { ++events; });
        timer.start(0);
        run.formatting->hierarchical();
        QVERIFY2(events >= 20, qPrintable(QString::number(events)));
        QCOMPARE(run.written.size(), 1);
    }

    void aResultThatIsTooLargeIsTold()
    {
        Run run(u"<li>"_s.repeated(30000));
        run.world.prompts.expect({u"An error has occured at: frmmain in Procedure: mnuformath_Click\r\n"
                                  "The error is as follows: Out of string space\r\n"
                                  "Please Report this to the Zephira. team\r\n"
                                  "Click OK to continue, Cancel to Exit the current SUB"_s,
                                  {},
                                  Question::Icon::Critical,
                                  Question::Buttons::OkCancel},
                                 Answer::Ok);
        run.formatting->hierarchical();
        QVERIFY(run.written.isEmpty());
        QVERIFY(run.world.prompts.verify());
    }
};

ZEPHIRA_TEST(TstSourceFormatting)

#include "tst_sourceformatting.moc"
