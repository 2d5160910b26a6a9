// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/windowbench.h"
#include "support/testregistry.h"

#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

const QString source = u"<a>  <b> x </b>\r\n</a>\r\n"_s;
const QString indented = u"\r\n<a> \r\n\t<b>x \r\n\t</b>\r\n</a>"_s;

} // namespace

/// "Format Source Code" in the real window.
class TstFormatSource final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anEntryFormatsTheDocument_data()
    {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<QString>("caption");
        QTest::addColumn<QString>("text");
        QTest::newRow("compact") << u"mnufcomp"_s << u"Compact"_s << u"<a><b>x</b></a>"_s;
        QTest::newRow("hierarchical") << u"mnuformath"_s << u"Hierarchical"_s << indented;
        QTest::newRow("simple") << u"mnufsimple"_s << u"Simple"_s << u"<a>\r\n<b>x</b>\r\n</a>"_s;
    }

    void anEntryFormatsTheDocument()
    {
        QFETCH(QString, entry);
        WindowBench bench;
        frmmain &window = bench.start(bench.write(u"page.html"_s, source.toUtf8()));
        QCOMPARE(window.rt().text(), source);
        QVERIFY(!window.docModified());

        const auto *action = bench.find<QAction>(entry);
        QVERIFY(action->isEnabled());
        QTEST(action->text(), "caption");
        bench.choose(entry);
        QTEST(window.rt().text(), "text");
        QVERIFY(window.docModified());

        bench.choose(u"undo"_s);
        QCOMPARE(window.rt().text(), source);
        QVERIFY(!window.rt().canUndo());
        bench.choose(u"redo"_s);
        QTEST(window.rt().text(), "text");
    }

    void closingDuringARunEndsIt()
    {
        WindowBench bench;
        frmmain &window = openedPage(bench);
        runWhile(bench, [&] { QVERIFY(window.close()); });
        QCOMPARE(bench.ended, 1);
        QCOMPARE(window.rt().text(), source);
        QVERIFY(!window.docModified());
    }

    void aRefusedCloseLetsTheRunGoOn()
    {
        WindowBench bench;
        frmmain &window = openedPage(bench);
        window.rt().setSelText(u"y"_s);
        runWhile(bench, [&] {
            bench.prompts.expect(
                {u"Document: "_s + window.docTitle() + u"\n\nThis document has been modified.\nDo you wish to save?"_s,
                 u"Document Modified."_s, Question::Icon::Question, Question::Buttons::YesNoCancel},
                Answer::Cancel);
            QVERIFY(!window.close());
        });
        QCOMPARE(bench.ended, 0);
        QCOMPARE(window.rt().text(), u"y<"_s + indented);
    }

    void exitDuringARunEndsIt()
    {
        WindowBench bench;
        frmmain &window = openedPage(bench);
        runWhile(bench, [&] { bench.choose(u"exit"_s); });
        QCOMPARE(bench.ended, 1);
        QCOMPARE(window.rt().text(), source);
    }

    void theWindowMayGoDuringARun()
    {
        WindowBench bench;
        openedPage(bench);
        runWhile(bench, [&] { bench.window.reset(); });
        QVERIFY(!bench.window);
    }

    void aNewDocumentIsOverwritten()
    {
        WindowBench bench;
        frmmain &window = openedPage(bench);
        runWhile(bench, [&] { bench.choose(u"mnunewdoc"_s); });
        QCOMPARE(window.docTitle(), u"New Document"_s);
        QCOMPARE(window.rt().text(), indented);
    }

    void aSecondRunWithinTheFirst()
    {
        WindowBench bench;
        frmmain &window = openedPage(bench);
        runWhile(bench, [&] { bench.choose(u"mnuformath"_s); });
        QCOMPARE(window.rt().text(), indented);
        bench.choose(u"undo"_s);
        bench.choose(u"undo"_s);
        QCOMPARE(window.rt().text(), source);
    }

private:
    static frmmain &openedPage(WindowBench &bench)
    {
        frmmain &window = bench.start(bench.write(u"page.html"_s, source.toUtf8()));
        window.show();
        return window;
    }

    /// Chooses "Hierarchical", and does something at the first event of the run.
    static void runWhile(const WindowBench &bench, const std::function<void()> &action)
    {
        bool happened = false;
        QTimer::singleShot(0, qApp, [&] {
            happened = true;
            action();
        });
        bench.choose(u"mnuformath"_s);
        QVERIFY(happened);
    }
};

ZEPHIRA_TEST(TstFormatSource)
#include "tst_formatsource.moc"
