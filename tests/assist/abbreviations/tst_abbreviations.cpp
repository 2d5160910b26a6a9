// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/abbreviations/abbreviations.h"
#include "assist/abbreviations/emmetlibrary.h"
#include "assist/assistfixture.h"
#include "core/languages.h"
#include "support/testregistry.h"

#include <QElapsedTimer>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

struct AbbreviationFixture : AssistFixture {
    EmmetLibrary library;
    QStringList notices;
    int loads = 0;

    explicit AbbreviationFixture(int row = language::Html)
    {
        world.document.setLanguageRow(row);
        helpers.setServices({.loadAbbreviations = [this]() -> Result<AbbreviationEngine *> {
                                 ++loads;
                                 return &library;
                             },
                             .loadTidy = {},
                             .notice = [this](const QString &sentence) { notices.append(sentence); }});
        show();
    }
    void expand() { run(TextCommand::ExpandAbbreviation); }
    QLineEdit *line() const { return window.findChild<QLineEdit *>(u"wrapAbbreviation"_s); }
    QString preview() const { return window.findChild<QPlainTextEdit *>(u"wrapResult"_s)->toPlainText(); }
};

} // namespace

class TstAbbreviations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void expands_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        const auto row = [](const char *name, int language, const char16_t *before, const char16_t *after) {
            QTest::newRow(name) << language << QString::fromUtf16(before) << QString::fromUtf16(after);
        };
        row("a list", language::Html, u"<body>\r\n  ul>li*2|\r\n</body>",
            u"<body>\r\n  <ul>\r\n  \t<li>|</li>\r\n  \t<li></li>\r\n  </ul>\r\n</body>");
        row("behind characters", language::Html, u"é שלום 🙂 p#a|.", u"é שלום 🙂 <p id=\"a\">|</p>.");
        row("what is selected", language::Html, u"x ^b+i| y", u"x <b>|</b><i></i> y");
        row("a value to fill in", language::Html, u"inp|", u"<input type=\"^text|\" name=\"\" id=\"\">");
        row("without a field", language::Html, u"hr|", u"<hr>|");
        row("characters in fields", language::Html, u"a{é}+b|", u"<a href=\"|\">é</a><b></b>");
        row("a closed page", language::Html, u"<!DOCTYPE html PUBLIC \"-//W3C//DTD XHTML 1.0 Strict//EN\" \"\">br|",
            u"<!DOCTYPE html PUBLIC \"-//W3C//DTD XHTML 1.0 Strict//EN\" \"\"><br />|");
        row("a style element", language::Html, u"<style>\r\n\tp { m10| }</style>",
            u"<style>\r\n\tp { margin: 10px;| }</style>");
        row("a style", language::Html, u"<p style=\"m10+p5|\">", u"<p style=\"margin: 10px; padding: 5px;|\">");
        row("a style sheet", language::StyleSheets, u"a {\n\tbgc#f|\n}", u"a {\r\n\tbackground-color: #fff;|\r\n}");
        row("XML", language::Xml, u"<r>item>name|</r>", u"<r><item>\r\n\t<name>|</name>\r\n</item></r>");
    }

    void expands()
    {
        QFETCH(int, row);
        QFETCH(QString, before);
        AbbreviationFixture f(row);
        f.setMarked(before);
        const QString original = f.editor.text();
        f.expand();
        QCOMPARE(f.notices, QStringList());
        QTEST(f.marked(), "after");
        f.editor.undo();
        QCOMPARE(f.editor.text(), original);
        QVERIFY(f.editor.canRedo());
    }

    void refuses_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("notice");
        const auto row = [](const char *name, int language, const char16_t *before, const char16_t *notice) {
            QTest::newRow(name) << language << QString::fromUtf16(before) << QString::fromUtf16(notice);
        };
        row("nothing there", language::Html, u"a |", u"There is no abbreviation before the caret.");
        row("a script", language::Html, u"<script>a|</script>", u"Abbreviations can't be used in a script or a tag.");
        row("a tag", language::Html, u"<p a|>", u"Abbreviations can't be used in a script or a tag.");
        row("another language", language::CCpp, u"a|", u"Abbreviations are for HTML, XML and style sheets.");
        row("too much", language::Html, u"a*1000000|",
            u"The abbreviation “a*1000000” makes too much: it may repeat elements 500 times.");
        row("not understood", language::Html, u"^a>>*>|", u"The abbreviation “a>>*>” can't be understood.");
    }

    void refuses()
    {
        QFETCH(int, row);
        QFETCH(QString, before);
        QFETCH(QString, notice);
        AbbreviationFixture f(row);
        f.setMarked(before);
        const quint64 version = f.editor.textVersion();
        f.expand();
        QCOMPARE(f.notices, QStringList(notice));
        QCOMPARE(f.editor.textVersion(), version);
        QCOMPARE(f.marked(), before);
    }

    void aReadOnlyTextStays()
    {
        AbbreviationFixture f;
        f.setMarked(u"ul|"_s);
        f.editor.setReadOnly(true);
        f.expand();
        f.run(TextCommand::WrapWithAbbreviation);
        QCOMPARE(f.marked(), u"ul|"_s);
        QCOMPARE(f.loads, 0);
        QVERIFY(!f.line());
    }

    void aMissingModuleIsTold()
    {
        AbbreviationFixture f;
        f.helpers.setServices({.loadAbbreviations = []() -> Result<AbbreviationEngine *> {
                                   return Error{Error::Code::Failed, u"It can't be loaded."_s};
                               },
                               .loadTidy = {},
                               .notice = [&f](const QString &sentence) { f.notices.append(sentence); }});
        f.setMarked(u"ul|"_s);
        f.expand();
        QCOMPARE(f.notices, QStringList(u"It can't be loaded."_s));
        QCOMPARE(f.marked(), u"ul|"_s);
    }

    void worksAtEveryCaret()
    {
        AbbreviationFixture f;
        f.setMarked(u"b|\r\n  ul>li\r\ni"_s);
        const SciEngine &engine = f.editor.engine();
        engine.send(QsciScintillaBase::SCI_ADDSELECTION, 10, 10);
        engine.send(QsciScintillaBase::SCI_ADDSELECTION, 13, 13);
        f.expand();
        QCOMPARE(f.editor.text(), u"<b></b>\r\n  <ul>\r\n  \t<li></li>\r\n  </ul>\r\n<i></i>"_s);
        QCOMPARE(f.editor.selectionCount(), 3);
        f.type(u"x"_s);
        QCOMPARE(f.editor.text(), u"<b>x</b>\r\n  <ul>\r\n  \t<li>x</li>\r\n  </ul>\r\n<i>x</i>"_s);
        f.editor.undo();
        f.editor.undo();
        QCOMPARE(f.editor.text(), u"b\r\n  ul>li\r\ni"_s);
    }

    void oneThatFailsStopsAll()
    {
        AbbreviationFixture f;
        f.setMarked(u"b|\r\na*1000000"_s);
        f.editor.engine().send(QsciScintillaBase::SCI_ADDSELECTION, 12, 12);
        f.expand();
        QCOMPARE(f.editor.text(), u"b\r\na*1000000"_s);
        QCOMPARE(f.notices.size(), 1);
    }

    void fieldsAreSteppedThrough()
    {
        AbbreviationFixture f;
        f.setMarked(u"ul>li*2|"_s);
        f.expand();
        f.type(u"one"_s);
        QTest::keyClick(&f.editor, Qt::Key_Tab);
        f.type(u"two"_s);
        QTest::keyClick(&f.editor, Qt::Key_Tab);
        QCOMPARE(f.marked(), u"<ul>\r\n\t<li>one</li>\r\n\t<li>two\t|</li>\r\n</ul>"_s);
    }

    void blanksIndentWhereTheTextHasThem()
    {
        AbbreviationFixture f;
        EditorOptions options = f.editor.options();
        options.tabsAsBlanks = true;
        options.tabWidth = 3;
        f.editor.setOptions(options);
        f.setMarked(u"p>hr|"_s);
        f.editor.setText(u"ul>li"_s);
        f.editor.select({0, 5, 0, 5});
        f.expand();
        QCOMPARE(f.editor.text(), u"<ul>\r\n   <li></li>\r\n</ul>"_s);
    }

    void wraps()
    {
        AbbreviationFixture f;
        f.setMarked(u"<body>\r\n^  one\r\n  two\r\n|</body>"_s);
        const quint64 version = f.editor.textVersion();
        f.run(TextCommand::WrapWithAbbreviation);
        QVERIFY(f.line() && f.line()->hasFocus());
        QTest::keyClicks(f.line(), u"ul>li*"_s);
        QCOMPARE(f.preview(), u"<ul>\n  \t<li>one</li>\n  \t<li>two</li>\n  </ul>"_s);
        QCOMPARE(f.editor.textVersion(), version);
        QTest::keyClick(f.line(), Qt::Key_Return);
        QVERIFY(f.editor.hasFocus());
        QVERIFY(!f.line()->isVisible());
        QCOMPARE(f.editor.text(), u"<body>\r\n  <ul>\r\n  \t<li>one</li>\r\n  \t<li>two</li>\r\n  </ul>\r\n</body>"_s);
        f.editor.undo();
        QCOMPARE(f.editor.text(), u"<body>\r\n  one\r\n  two\r\n</body>"_s);
    }

    void escapeLeavesTheTextAsItIs()
    {
        AbbreviationFixture f;
        f.setMarked(u"a ^b| c"_s);
        const quint64 version = f.editor.textVersion();
        f.run(TextCommand::WrapWithAbbreviation);
        QTest::keyClicks(f.line(), u"i"_s);
        QCOMPARE(f.preview(), u"<i>b</i>"_s);
        QTest::keyClick(f.line(), Qt::Key_Escape);
        QCOMPARE(f.marked(), u"a ^b| c"_s);
        QCOMPARE(f.editor.textVersion(), version);
        QVERIFY(f.editor.hasFocus());
    }

    void wrapsTheLineOfACaret()
    {
        AbbreviationFixture f;
        f.setMarked(u"\tone t|wo \r\nthree"_s);
        f.run(TextCommand::WrapWithAbbreviation);
        QTest::keyClicks(f.line(), u"p"_s);
        QTest::keyClick(f.line(), Qt::Key_Return);
        QCOMPARE(f.marked(), u"\t<p>one two</p>| \r\nthree"_s);
    }

    void whatCantBeWrappedIsTold()
    {
        AbbreviationFixture f;
        f.setMarked(u"|"_s);
        f.run(TextCommand::WrapWithAbbreviation);
        QVERIFY(!f.line());
        f.setMarked(u"<style>^a|</style>"_s);
        f.run(TextCommand::WrapWithAbbreviation);
        QCOMPARE(
            f.notices,
            QStringList({u"There is nothing to wrap: select a text first."_s, u"Only HTML and XML can be wrapped."_s}));
        f.setMarked(u"^a|"_s);
        f.run(TextCommand::WrapWithAbbreviation);
        QTest::keyClicks(f.line(), u"p*1000000"_s);
        QTest::keyClick(f.line(), Qt::Key_Return);
        QCOMPARE(f.marked(), u"^a|"_s);
        QVERIFY(f.line()->isVisible());
    }

    /// Far more than it takes, so that a busy machine passes.
    void isQuick()
    {
        AbbreviationFixture f;
        f.editor.setText(u"<p>ul>li*3</p>\r\n"_s);
        f.editor.select({0, 10, 0, 10});
        QElapsedTimer clock;
        clock.start();
        f.expand();
        const qint64 first = clock.restart();
        QVERIFY(f.editor.text().contains(u"<li>"_s));
        constexpr int times = 20;
        for (int i = 0; i < times; ++i) {
            f.setMarked(u"ul>li.a$*5>a{x}|"_s);
            f.expand();
        }
        const qint64 later = clock.elapsed() / times;
        qInfo() << "first expansion" << first << "ms, later ones" << later << "ms";
        QVERIFY(first < 3000);
        QVERIFY(later < 200);
    }
};

ZEPHIRA_TEST(TstAbbreviations)

#include "tst_abbreviations.moc"
