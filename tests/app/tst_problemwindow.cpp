// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/windowbench.h"
#include "core/documenthost.h"
#include "core/languages.h"
#include "editor/indicators.h"
#include "support/testregistry.h"

#include <QStatusBar>
#include <QTabWidget>
#include <QTest>
#include <QTreeView>
#include <QWindow>

using namespace Qt::StringLiterals;
using namespace zephira;

/// Problems of the document, with the keys of the real window.
class TstProblemWindow : public QObject
{
    Q_OBJECT

private:
    using Sci = QsciScintillaBase;

    static CodeMax &begin(WindowBench &bench)
    {
        bench.write(u"app/deps/completion.dat"_s,
                    "A\tclass\nT\tbody\nT\tdiv\nT\tp\nT\timg\nA\tsrc\nA\talt\nP\tcolor\n");
        frmmain &window = bench.start();
        window.show();
        [&] { QVERIFY(QTest::qWaitForWindowExposed(&window)); }();
        window.activateWindow();
        [&] { QTRY_VERIFY(window.findChild<QAction *>(u"textNextProblem"_s)); }();
        window.rt().setFocus();
        [&] { QTRY_VERIFY(window.rt().hasFocus()); }();
        return window.rt();
    }

    static void press(WindowBench &bench, const QString &keys)
    {
        const QKeyCombination key = QKeySequence::fromString(keys, QKeySequence::PortableText)[0];
        QTest::keyClick(bench.window->windowHandle(), key.key(), key.keyboardModifiers());
    }

    static QString said(const WindowBench &bench) { return bench.window->findChild<QStatusBar *>()->currentMessage(); }

    static int marks(const CodeMax &rt)
    {
        int count = 0;
        for (const int indicator : {ErrorIndicator, WarningIndicator}) {
            for (qsizetype at = 0; at < rt.engine().length();) {
                count += rt.engine().send(Sci::SCI_INDICATORVALUEAT, indicator, at) ? 1 : 0;
                const qsizetype end = rt.engine().send(Sci::SCI_INDICATOREND, indicator, at);
                at = end > at ? end : rt.engine().length();
            }
        }
        return count;
    }

private Q_SLOTS:
    void flow()
    {
        WindowBench bench;
        CodeMax &rt = begin(bench);
        bench.window->context().document.setLanguageRow(language::Html);
        QTest::keyClicks(&rt, u"<div><blok></blok><p clas=1></p></div>"_s);
        QTRY_COMPARE_WITH_TIMEOUT(marks(rt), 2, 5000);
        QCOMPARE(rt.text(), u"<div><blok></blok><p clas=1></p></div>"_s);

        press(bench, u"F4"_s);
        QCOMPARE(rt.engine().caret(), 5);
        QTRY_VERIFY(said(bench).contains(u"The tag <blok> isn't known."));
        press(bench, u"F4"_s);
        QCOMPARE(rt.engine().caret(), 21);
        press(bench, u"Shift+F4"_s);
        QCOMPARE(rt.engine().caret(), 5);

        // The panel is closed at first.
        QVERIFY(!bench.window->findChild<QWidget *>(u"ProblemsPage"_s));
        bench.choose(u"textListProblems"_s);
        auto *tree = bench.find<QTreeView>(u"treProblems"_s);
        QTRY_VERIFY(tree->hasFocus());
        const auto *tabs = bench.find<QTabWidget>(u"toolPanelPages"_s);
        QCOMPARE(tabs->tabText(tabs->currentIndex()), u"Problems (2)"_s);
        press(bench, u"Down"_s);
        press(bench, u"Return"_s);
        QTRY_VERIFY(rt.hasFocus());
        QCOMPARE(rt.engine().caret(), 21);
        bench.choose(u"textListProblems"_s);
        press(bench, u"Escape"_s);
        QTRY_VERIFY(rt.hasFocus());

        // Switched off, nothing is left.
        auto *entry = bench.find<QAction>(u"textMarkProblems"_s);
        QVERIFY(entry->isChecked());
        entry->trigger();
        QVERIFY(!entry->isChecked());
        QCOMPARE(marks(rt), 0);
        QCOMPARE(tabs->tabText(tabs->currentIndex()), u"Problems"_s);
        QCOMPARE(bench.settings.GetSetting(UserSetting::MarkProblems), u"0"_s);
        entry->trigger();
        QTRY_COMPARE_WITH_TIMEOUT(marks(rt), 2, 5000);
    }

    /// Opened files are checked, with their links.
    void files()
    {
        WindowBench bench;
        CodeMax &rt = begin(bench);
        const QString first =
            bench.write(u"site/first.html"_s, "<body>\n<img alt='' src='there.png'><img alt='' src='none.png'></body>");
        const QString second = bench.write(u"site/second.css"_s, "p { colr: red }\n");
        bench.write(u"site/there.png"_s, "x");
        bench.window->context().document.openFile(first);
        QTRY_COMPARE_WITH_TIMEOUT(marks(rt), 1, 5000);
        press(bench, u"F4"_s);
        QTRY_VERIFY(said(bench).contains(u"The file none.png doesn't exist."));
        bench.window->context().document.openFile(second);
        QCOMPARE(marks(rt), 0);
        QTRY_COMPARE_WITH_TIMEOUT(marks(rt), 1, 5000);
        press(bench, u"F4"_s);
        QTRY_VERIFY(said(bench).contains(u"The property colr isn't known."));
    }
};

ZEPHIRA_TEST(TstProblemWindow)

#include "tst_problemwindow.moc"
