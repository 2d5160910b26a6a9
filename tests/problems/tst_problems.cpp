// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/assistfixture.h"
#include "core/languages.h"
#include "editor/indicators.h"
#include "problems/problems.h"
#include "problems/told.h"
#include "support/testregistry.h"

#include <QElapsedTimer>
#include <QHelpEvent>
#include <QLabel>
#include <QTest>
#include <QToolTip>
#include <QTreeView>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

using Sci = QsciScintillaBase;

/// A page that is checked with everything that the program has.
struct ProblemsBench : AssistFixture {
    QStringList notices;
    TidyLibrary tidy;

    explicit ProblemsBench(bool on = true)
    {
        QFile data(QStringLiteral(COMPLETION_DATA));
        if (data.open(QIODevice::ReadOnly))
            world.files.contents[context.appPath + u"/deps/completion.dat"_s] = data.readAll();
        if (!on)
            writeSwitch(world.settings, UserSetting::MarkProblems, false);
        world.document.row = language::Html;
        editor.setLanguage(u"HTML"_s);
        TextServices services;
        services.notice = [this](const QString &sentence) { notices.append(sentence); };
        services.loadTidy = [this]() -> Result<TidyEngine *> { return &tidy; };
        helpers.setServices(services);
        helpers.start();
        show();
    }

    Problems &problems() { return helpers.problems(); }

    /// The marked parts of the text, errors before warnings.
    QStringList marked() const
    {
        QStringList parts;
        const SciEngine &engine = editor.engine();
        for (const int indicator : {ErrorIndicator, WarningIndicator}) {
            for (qsizetype at = 0; at < engine.length();) {
                const qsizetype end = engine.send(Sci::SCI_INDICATOREND, indicator, at);
                if (engine.send(Sci::SCI_INDICATORVALUEAT, indicator, at))
                    parts.append(QString::fromUtf8(engine.bytes(at, end)));
                at = end > at ? end : engine.length();
            }
        }
        return parts;
    }

    QTreeView *tree() { return window.findChild<QTreeView *>(u"treProblems"_s); }
    /// The rows of the list, as they read.
    QStringList rows()
    {
        panel.show(u"ProblemsPage"_s);
        QStringList lines;
        const QAbstractItemModel &model = *tree()->model();
        for (int row = 0; row < model.rowCount(); ++row)
            lines.append(model.index(row, 0).data().toString() + u'|' + model.index(row, 1).data().toString());
        return lines;
    }
    QString caption()
    {
        panel.show(u"ProblemsPage"_s);
        const auto *tabs = window.findChild<QTabWidget *>(u"toolPanelPages"_s);
        return tabs->tabText(tabs->currentIndex());
    }
    QString state() { return window.findChild<QLabel *>(u"lblState"_s)->text(); }
};

} // namespace

/// Problems while one types.
class TstProblems final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// The marks come a second after the last key, and stay at their places while one types on.
    void marks()
    {
        ProblemsBench bench;
        QElapsedTimer clock;
        clock.start();
        QTest::keyClicks(&bench.editor, u"<p><blok clas=1>x</p>"_s);
        QCOMPARE(bench.marked(), QStringList());
        QTRY_COMPARE_WITH_TIMEOUT(bench.marked(), QStringList{u"<blok"_s}, 5000);
        // A timer may be a little early.
        QVERIFY(clock.elapsed() >= Problems::delay * 9 / 10);
        bench.editor.select({0, 0, 0, 0});
        bench.type(u"\u05e9<b></b> "_s);
        QCOMPARE(bench.marked(), QStringList{u"<blok"_s});
        QCOMPARE(bench.problems().textAt(14), u"The tag <blok> isn't known.\n<blok> isn't closed before </p>."_s);
        QCOMPARE(bench.problems().textAt(3), QString());
        // Corrected, it is no longer marked.
        bench.editor.setText(u"<p>x</p>"_s);
        QTRY_COMPARE_WITH_TIMEOUT(bench.marked(), QStringList(), 5000);
        QCOMPARE(bench.problems().textAt(3), QString());
    }

    void list()
    {
        ProblemsBench bench;
        bench.editor.setText(u"<body>\r\n<p clas=1>x</p>\r\n<img src=a><blok>\u05e9</blok>\r\n</body>"_s);
        QTRY_COMPARE_WITH_TIMEOUT(bench.caption(), u"Problems (3)"_s, 5000);
        QCOMPARE(
            bench.rows(),
            (QStringList{u"2|<p> has no attribute clas."_s, u"3|<img> has no alt: a text in place of the picture."_s,
                         u"3|The tag <blok> isn't known."_s}));
        const QModelIndex last = bench.tree()->model()->index(2, 1);
        QCOMPARE(last.data(Qt::AccessibleTextRole).toString(), u"Error: The tag <blok> isn't known."_s);
        QCOMPARE(last.data(Qt::ToolTipRole).toString(), Qt::convertFromPlainText(u"The tag <blok> isn't known."_s));

        // Return goes to the place where the problem is now.
        bench.editor.select({0, 0, 0, 0});
        QTest::keyClicks(&bench.editor, u"12"_s);
        bench.run(TextCommand::ListProblems);
        QTRY_VERIFY(bench.tree()->hasFocus());
        bench.tree()->setCurrentIndex(last);
        QTest::keyClick(bench.tree(), Qt::Key_Return);
        QVERIFY(bench.editor.hasFocus());
        QCOMPARE(bench.editor.engine().bytes(bench.editor.engine().caret(), bench.editor.engine().length()).first(5),
                 QByteArrayView("<blok"));
        QCOMPARE(bench.notices, QStringList{u"The tag <blok> isn't known."_s});
    }

    void walk()
    {
        ProblemsBench bench;
        bench.run(TextCommand::NextProblem);
        QCOMPARE(bench.notices, QStringList{u"No problems were found."_s});
        bench.editor.setText(u"<p a=1></p><p b=1></p><blok></blok>"_s);
        bench.run(TextCommand::NextProblem);
        QCOMPARE(bench.notices.last(), u"The document is being checked."_s);
        QTRY_COMPARE_WITH_TIMEOUT(bench.marked().size(), 3, 5000);
        const auto go = [&bench](TextCommand command) {
            bench.run(command);
            return bench.editor.engine().caret();
        };
        for (const qsizetype place : {3, 14, 22, 3})
            QCOMPARE(go(TextCommand::NextProblem), place);
        QCOMPARE(bench.notices.last(), u"<p> has no attribute a."_s);
        for (const qsizetype place : {22, 14, 3})
            QCOMPARE(go(TextCommand::PreviousProblem), place);
        QCOMPARE(bench.editor.text(), u"<p a=1></p><p b=1></p><blok></blok>"_s);
    }

    void tip()
    {
        ProblemsBench bench;
        bench.editor.setText(u"<p><blok></blok></p>"_s);
        QTRY_COMPARE_WITH_TIMEOUT(bench.marked().size(), 1, 5000);
        const SciEngine &engine = bench.editor.engine();
        const auto rest = [&](qsizetype position) {
            const QPoint at(static_cast<int>(engine.send(Sci::SCI_POINTXFROMPOSITION, 0, position)) + 2,
                            static_cast<int>(engine.send(Sci::SCI_POINTYFROMPOSITION, 0, position)) + 4);
            QHelpEvent event(QEvent::ToolTip, at, bench.editor.viewport()->mapToGlobal(at));
            QCoreApplication::sendEvent(bench.editor.viewport(), &event);
        };
        rest(4);
        QCOMPARE(QToolTip::text(), Qt::convertFromPlainText(u"The tag <blok> isn't known."_s));
        QToolTip::hideText();
        QTRY_VERIFY(!QToolTip::isVisible());
        rest(15);
        QVERIFY(!QToolTip::isVisible());
    }

    void option()
    {
        ProblemsBench bench;
        bench.editor.setText(u"<blok></blok>"_s);
        QTRY_COMPARE_WITH_TIMEOUT(bench.marked().size(), 1, 5000);
        QCOMPARE(isSwitchedOn(bench.helpers, TextCommand::MarkProblems), std::optional(true));
        bench.run(TextCommand::MarkProblems);
        QCOMPARE(bench.marked(), QStringList());
        QCOMPARE(bench.rows(), QStringList());
        QCOMPARE(bench.caption(), u"Problems"_s);
        QCOMPARE(bench.state(), u"Problems aren't looked for."_s);
        QCOMPARE(bench.world.settings.GetSetting(UserSetting::MarkProblems), u"0"_s);
        bench.run(TextCommand::NextProblem);
        QCOMPARE(bench.notices, QStringList{u"Problems aren't looked for."_s});
        QTest::keyClicks(&bench.editor, u"<a"_s);
        QTest::qWait(Problems::delay + 300);
        QCOMPARE(bench.marked(), QStringList());
        bench.run(TextCommand::MarkProblems);
        QTRY_VERIFY(!bench.marked().isEmpty());
        QCOMPARE(bench.world.settings.GetSetting(UserSetting::MarkProblems), u"1"_s);
    }

    void offAtFirst()
    {
        ProblemsBench bench(false);
        bench.editor.setText(u"<blok></blok>"_s);
        QTest::qWait(Problems::delay + 300);
        QCOMPARE(bench.marked(), QStringList());
        bench.run(TextCommand::MarkProblems);
        QTRY_COMPARE(bench.marked().size(), 1);
    }

    /// A file that is opened is checked, and nothing is left of the one before.
    void otherDocument()
    {
        ProblemsBench bench;
        bench.world.files.contents[u"/first.html"_s] = "<p><blok></blok></p>";
        bench.world.files.contents[u"/second.html"_s] = "<p>a</p>\n<p clas=b>c</p>\n";
        QVERIFY(bench.editor.openFile(u"/first.html"_s));
        QTRY_COMPARE_WITH_TIMEOUT(bench.rows(), QStringList{u"1|The tag <blok> isn't known."_s}, 5000);
        QVERIFY(bench.editor.openFile(u"/second.html"_s));
        QCOMPARE(bench.rows(), QStringList());
        QCOMPARE(bench.caption(), u"Problems"_s);
        QCOMPARE(bench.marked(), QStringList());
        QTRY_COMPARE_WITH_TIMEOUT(bench.rows(), QStringList{u"2|<p> has no attribute clas."_s}, 5000);
        QCOMPARE(bench.marked(), QStringList{u"clas"_s});
        QVERIFY(bench.editor.openFile(u"/first.html"_s));
        QVERIFY(bench.editor.openFile(u"/second.html"_s));
        QTRY_COMPARE_WITH_TIMEOUT(bench.rows(), QStringList{u"2|<p> has no attribute clas."_s}, 5000);
    }

    void languages()
    {
        ProblemsBench bench;
        bench.editor.setText(u"a { colr: red }"_s);
        bench.world.document.row = language::StyleSheets;
        bench.helpers.languageChanged();
        QTRY_COMPARE_WITH_TIMEOUT(bench.marked(), QStringList{u"colr"_s}, 5000);
        // Languages that are made into style sheets have words of their own.
        bench.world.document.dialogFile = u"/a.scss"_s;
        bench.helpers.languageChanged();
        QCOMPARE(bench.marked(), QStringList());
        QTest::qWait(Problems::delay + 300);
        QCOMPARE(bench.marked(), QStringList());
        bench.world.document.dialogFile = u"/a.xml"_s;
        bench.world.document.row = language::Xml;
        bench.editor.setLanguage(u"XML"_s);
        bench.helpers.languageChanged();
        QTRY_COMPARE_WITH_TIMEOUT(bench.rows(), QStringList{u"1|Start tag expected."_s}, 5000);
        bench.world.document.row = language::JavaScript;
        bench.editor.setLanguage(u"JavaScript"_s);
        bench.helpers.languageChanged();
        QCOMPARE(bench.rows(), QStringList());
    }

    /// What can't be checked in time isn't, and the list says so.
    void pauses()
    {
        ProblemsBench bench;
        const QByteArray tooLarge = QByteArray("a { colr: red }\n").repeated(20 * 1024 * 1024 / 16);
        bench.world.files.contents[u"/large.css"_s] = tooLarge;
        bench.world.document.row = language::StyleSheets;
        QVERIFY(bench.editor.openFile(u"/large.css"_s));
        QTRY_COMPARE_WITH_TIMEOUT(bench.rows(),
                                  QStringList{u"|This document is larger than 4 MB, so it isn't checked."_s}, 5000);
        QCOMPARE(bench.state(), u"Not checked."_s);
        QCOMPARE(bench.caption(), u"Problems"_s);
        bench.run(TextCommand::NextProblem);
        QCOMPARE(bench.notices, QStringList{u"This document is larger than 4 MB, so it isn't checked."_s});
        // A row that tells no problem leads nowhere.
        bench.run(TextCommand::ListProblems);
        QTest::keyClick(bench.tree(), Qt::Key_Return);
        QCOMPARE(bench.editor.engine().caret(), 0);

        bench.world.document.row = language::Html;
        bench.editor.setText(u"<blok>a\u0000b</blok>"_s);
        QTRY_COMPARE_WITH_TIMEOUT(
            bench.rows(), QStringList{u"|This document contains bytes that aren't text, so it isn't checked."_s}, 5000);
        QCOMPARE(bench.marked(), QStringList());
        bench.editor.setText(u"<blok></blok>"_s);
        QTRY_COMPARE_WITH_TIMEOUT(bench.rows(), QStringList{u"1|The tag <blok> isn't known."_s}, 5000);
    }

    /// The text is handed to the thread in no time, and the marks are set in little.
    void handsOver()
    {
        ProblemsBench bench;
        bench.editor.setText(QString(u"<p clas=\"a\">\u05e9\u05dc\u05d5\u05dd</p>\r\n"_s).repeated(40'000));
        QTRY_VERIFY_WITH_TIMEOUT(!bench.marked().isEmpty(), 30'000);
        QCOMPARE(bench.marked().size(), 1000);
        QCOMPARE(bench.caption(), u"Problems (1000+)"_s);
        QCOMPARE(bench.rows().front(), u"|There are more problems: these are the first 1000."_s);
    }
};

ZEPHIRA_TEST(TstProblems)

#include "tst_problems.moc"
