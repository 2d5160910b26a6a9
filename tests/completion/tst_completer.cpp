// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/completionbench.h"
#include "support/pace.h"
#include "support/testregistry.h"

#include <QElapsedTimer>
#include <QFile>
#include <QScrollBar>

using namespace Qt::StringLiterals;
using namespace zephira;

/// Completing while typing, with real keys in a real text.
class TstCompleter final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void comesUp_data()
    {
        QTest::addColumn<QString>("before"); // with "|" at the caret
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("first"); // the first entry; empty if the list stays away
        QTest::newRow("tag") << u"|"_s << u"<"_s << u"a"_s;
        QTest::newRow("attribute") << u"<div|>"_s << u" "_s << u"class"_s;
        QTest::newRow("entity") << u"a |"_s << u"&"_s << u"Aacute"_s;
        QTest::newRow("value of a property") << u"<style>p { top|"_s << u":"_s << u"auto"_s;
        QTest::newRow("pseudo-class") << u"<style>a|"_s << u":"_s << u":hover"_s;
        QTest::newRow("in style=\"\"") << u"<p style=\"top|\">"_s << u":"_s << u"auto"_s;
        QTest::newRow("colon in text") << u"Note|"_s << u":"_s << QString();
        QTest::newRow("blank in text") << u"<p>a|"_s << u" "_s << QString();
        QTest::newRow("letter in text") << u"|"_s << u"div"_s << QString();
        QTest::newRow("letter in a tag") << u"<div |>"_s << u"c"_s << QString();
        QTest::newRow("comment") << u"<!-- |"_s << u"<"_s << QString();
        QTest::newRow("script") << u"<script>a |"_s << u"<"_s << QString();
        QTest::newRow("server block") << u"<?php $a |"_s << u"<"_s << QString();
        QTest::newRow("server block of another kind") << u"<% a |"_s << u"<"_s << QString();
        QTest::newRow("void") << u"|"_s << u"</"_s << QString();
    }

    void comesUp()
    {
        QFETCH(QString, before);
        QFETCH(QString, typed);
        QFETCH(QString, first);
        CompletionBench bench;
        bench.setMarked(before);
        bench.type(typed);
        QCOMPARE(bench.marked(), QString(before).replace(u"|"_s, typed + u'|'));
        QCOMPARE(bench.entries().value(0), first);
    }

    void narrowsWhileTyping()
    {
        CompletionBench bench;
        bench.setMarked(u"|"_s);
        bench.type(u"<d"_s);
        QCOMPARE(bench.entries().mid(0, 2), (QStringList{u"div"_s, u"dl"_s}));
        bench.type(u"i"_s);
        QCOMPARE(bench.entries().first(), u"div"_s);
        bench.type(u"x"_s);
        QVERIFY(!bench.completer().isShown());
        // What doesn't fit is taken back.
        bench.press(Qt::Key_Backspace);
        QCOMPARE(bench.entries().first(), u"div"_s);
        bench.press(Qt::Key_Backspace);
        bench.press(Qt::Key_Backspace);
        QVERIFY(bench.entries().size() > 4);
        bench.press(Qt::Key_Backspace);
        QVERIFY(!bench.completer().isShown());
        QCOMPARE(bench.marked(), u"|"_s);
    }

    /// A whole page typed without a look at the list, with each of its keys: it stands there as it was typed.
    void whatIsTypedGoesInAsTyped_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("row");
        const int html = language::Html;
        QTest::newRow("page")
            << u"<!DOCTYPE html>\n<html lang=\"en\">\n<body class=\"a b\" id=x>\n<p title='q' hidden>A &amp; B &lt; <b>c</b>: d\n</p></body></html>"_s
            << html;
        QTest::newRow("styles")
            << u"<style>\na:hover, p::before { color: red; top:auto }\n@media print { .x { content: none } }\n</style>"_s
            << html;
        QTest::newRow("style") << u"<p style=\"color: red; top:0\">x</p>"_s << html;
        QTest::newRow("script") << u"<script>if (a < b && c) { x = y ? 1 : 2; }\n</script><a href=\"x.html\">"_s
                                << html;
        QTest::newRow("php") << u"<?php if ($a < $b) { echo \"<p \"; } ?><p <?= $c ?> class=\"d\">"_s << html;
        QTest::newRow("broken") << u"<div <p \"' = & ; < / >\n</ x <<>> &&;: </p"_s << html;
        QTest::newRow("style sheet") << u"a:hover { color: red !important; }\n#x.y:not(.z)\n{ top : auto }"_s
                                     << static_cast<int>(language::StyleSheets);
    }

    void whatIsTypedGoesInAsTyped()
    {
        QFETCH(QString, text);
        QFETCH(int, row);
        CompletionBench bench;
        bench.world.document.row = row;
        bench.editor.setLanguage(row == language::Html ? u"HTML"_s : u"java"_s);
        EditorOptions options = bench.editor.options();
        options.autoIndent = false;
        bench.editor.setOptions(options);
        bench.editor.setText({});
        for (const QChar c : text) {
            if (c == u'\n')
                bench.press(Qt::Key_Return);
            else
                bench.type(c);
        }
        QCOMPARE(bench.editor.text(), text.replace(u"\n"_s, u"\r\n"_s));
    }

    void tabTakesAnEntry()
    {
        CompletionBench bench;
        bench.setMarked(u"x|"_s);
        bench.type(u"<di"_s);
        bench.press(Qt::Key_Tab);
        QCOMPARE(bench.marked(), u"x<div|"_s);
        QVERIFY(!bench.completer().isShown());
        bench.editor.undo();
        QVERIFY(!bench.editor.text().contains(u"div"));
    }

    void returnTakesAnEntryOnlyAfterAMove()
    {
        CompletionBench bench;
        bench.setMarked(u"|"_s);
        bench.type(u"<d"_s);
        bench.press(Qt::Key_Return);
        QCOMPARE(bench.marked(), u"<d\r\n|"_s);
        QVERIFY(!bench.completer().isShown());
        bench.setMarked(u"|"_s);
        bench.type(u"<d"_s);
        bench.press(Qt::Key_Down);
        bench.press(Qt::Key_Return);
        QCOMPARE(bench.marked(), u"<dl|"_s);
        // Typing on forgets the move.
        bench.setMarked(u"|"_s);
        bench.type(u"<"_s);
        bench.press(Qt::Key_Down);
        bench.type(u"d"_s);
        bench.press(Qt::Key_Return);
        QCOMPARE(bench.marked(), u"<d\r\n|"_s);
    }

    void escapeCloses()
    {
        CompletionBench bench;
        bench.setMarked(u"|"_s);
        bench.type(u"<d"_s);
        bench.press(Qt::Key_Escape);
        QVERIFY(!bench.completer().isShown());
        QCOMPARE(bench.marked(), u"<d|"_s);
        bench.type(u"i"_s);
        QVERIFY(!bench.completer().isShown());
        bench.press(Qt::Key_Tab);
        QVERIFY(bench.editor.text() != u"<div"_s);
    }

    void attributesAndTheirValues()
    {
        CompletionBench bench;
        bench.setMarked(u"<input|>"_s);
        bench.type(u" ty"_s);
        bench.press(Qt::Key_Tab);
        QCOMPARE(bench.marked(), u"<input type=\"|\">"_s);
        // The values come up by themselves.
        QCOMPARE(bench.entries(), (QStringList{u"text"_s, u"checkbox"_s}));
        bench.type(u"ch"_s);
        bench.press(Qt::Key_Tab);
        QCOMPARE(bench.marked(), u"<input type=\"checkbox|\">"_s);
        bench.press(Qt::Key_Right);
        bench.type(u" hi"_s);
        QCOMPARE(bench.entries(), QStringList{u"hidden"_s});
        bench.press(Qt::Key_Tab);
        QCOMPARE(bench.marked(), u"<input type=\"checkbox\" hidden|>"_s);
    }

    void upperCaseIsFollowed()
    {
        CompletionBench bench;
        bench.setMarked(u"|"_s);
        bench.type(u"<DI"_s);
        bench.press(Qt::Key_Tab);
        bench.type(u" CLA"_s);
        bench.press(Qt::Key_Tab);
        QCOMPARE(bench.marked(), u"<DIV CLASS=\"|\""_s);
    }

    void propertiesAndTheirValues()
    {
        CompletionBench bench;
        bench.setMarked(u"<style>p { |"_s);
        bench.completer().complete();
        QCOMPARE(bench.entries(), (QStringList{u"color"_s, u"content"_s, u"top"_s}));
        bench.type(u"col"_s);
        bench.press(Qt::Key_Tab);
        QCOMPARE(bench.marked(), u"<style>p { color: |"_s);
        QCOMPARE(bench.entries().first(), u"red"_s);
        bench.type(u"teal"_s);
        QCOMPARE(bench.entries().first(), u"teal"_s);
        bench.type(u";"_s);
        QVERIFY(!bench.completer().isShown());
        QCOMPARE(bench.marked(), u"<style>p { color: teal;|"_s);
    }

    void closingTagsAndEntities()
    {
        CompletionBench bench;
        bench.setMarked(u"<ul><li>a|"_s);
        // It is completed without a list; a list is asked for.
        bench.type(u"</"_s);
        QCOMPARE(bench.entries(), QStringList());
        QCOMPARE(bench.marked(), u"<ul><li>a</li>|"_s);
        bench.setMarked(u"<ul><li>a</|"_s);
        bench.run(TextCommand::Complete);
        QCOMPARE(bench.entries(), (QStringList{u"li"_s, u"ul"_s}));
        bench.press(Qt::Key_Tab);
        QCOMPARE(bench.marked(), u"<ul><li>a</li>|"_s);
        bench.type(u"&eac"_s);
        bench.press(Qt::Key_Tab);
        QCOMPARE(bench.marked(), u"<ul><li>a</li>&eacute;|"_s);
    }

    void onRequest()
    {
        CompletionBench bench;
        bench.setMarked(u"<di|"_s);
        bench.run(TextCommand::Complete);
        QCOMPARE(bench.entries().first(), u"div"_s);
        bench.press(Qt::Key_Tab);
        QCOMPARE(bench.marked(), u"<div|"_s);
        // In code the words of the document.
        bench.setMarked(u"<script>var alphabet; al|"_s);
        bench.run(TextCommand::Complete);
        QCOMPARE(bench.entries(), QStringList{u"alphabet"_s});
        bench.press(Qt::Key_Tab);
        QCOMPARE(bench.marked(), u"<script>var alphabet; alphabet|"_s);
        bench.setMarked(u"<!-- <di|"_s);
        bench.run(TextCommand::Complete);
        QCOMPARE(bench.entries(), QStringList());
        bench.setMarked(u"<^di|"_s);
        bench.run(TextCommand::Complete);
        QCOMPARE(bench.entries(), QStringList());
        bench.setMarked(u"<di|"_s);
        bench.editor.setReadOnly(true);
        bench.run(TextCommand::Complete);
        QCOMPARE(bench.entries(), QStringList());
    }

    void theEndOfAWordIsntWrittenTwice()
    {
        CompletionBench bench;
        bench.setMarked(u"<d|iv>"_s);
        bench.run(TextCommand::Complete);
        bench.press(Qt::Key_Tab);
        QCOMPARE(bench.marked(), u"<div|>"_s);
        bench.setMarked(u"<p cl|=\"a\">"_s);
        bench.run(TextCommand::Complete);
        bench.press(Qt::Key_Tab);
        QCOMPARE(bench.marked(), u"<p class|=\"a\">"_s);
    }

    void switchedOff()
    {
        CompletionBench bench;
        QCOMPARE(isSwitchedOn(bench.helpers, TextCommand::CompleteWhileTyping), std::optional(true));
        bench.setMarked(u"|"_s);
        bench.type(u"<"_s);
        QVERIFY(bench.completer().isShown());
        bench.run(TextCommand::CompleteWhileTyping);
        QVERIFY(!bench.completer().isShown());
        QCOMPARE(isSwitchedOn(bench.helpers, TextCommand::CompleteWhileTyping), std::optional(false));
        QCOMPARE(bench.world.settings.GetSetting(UserSetting::CompleteWhileTyping), u"0"_s);
        bench.setMarked(u"|"_s);
        bench.type(u"<"_s);
        QVERIFY(!bench.completer().isShown());
        bench.run(TextCommand::Complete);
        QVERIFY(bench.completer().isShown());
        // Another window begins as this one ended.
        const Completer other(bench.editor, bench.context);
        QVERIFY(!other.isOn());
        QCOMPARE(isSwitchedOn(bench.helpers, TextCommand::JoinLines), std::optional<bool>());
    }

    void closesWhenTheUserGoesElsewhere_data()
    {
        QTest::addColumn<QString>("how");
        for (const char *how :
             {"caret", "click", "wheel", "scroll", "focus", "window", "text", "undo", "hide", "preedit", "selection"})
            QTest::newRow(how) << QString::fromLatin1(how);
    }

    void closesWhenTheUserGoesElsewhere()
    {
        QFETCH(QString, how);
        CompletionBench bench;
        auto *other = new QWidget(&bench.window);
        other->setFocusPolicy(Qt::StrongFocus);
        other->show();
        bench.setMarked(QString(u"line\r\n"_s).repeated(100) + u"|"_s);
        bench.type(u"<d"_s);
        QVERIFY(bench.completer().isShown());
        const QString before = bench.editor.text();
        if (how == u"caret")
            bench.press(Qt::Key_Left);
        else if (how == u"click")
            QTest::mouseClick(bench.editor.viewport(), Qt::LeftButton, {}, {100, 20});
        else if (how == u"wheel") {
            QWheelEvent wheel({50, 50}, {50, 50}, {}, {0, 120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(bench.editor.viewport(), &wheel);
        } else if (how == u"scroll") {
            QTest::qWait(1);
            bench.editor.verticalScrollBar()->setValue(0);
        } else if (how == u"focus")
            other->setFocus();
        else if (how == u"window")
            bench.window.move(bench.window.pos() + QPoint(20, 20));
        else if (how == u"text")
            bench.editor.setText(u"other"_s);
        else if (how == u"undo")
            bench.editor.undo();
        else if (how == u"hide")
            bench.editor.hide();
        else if (how == u"preedit") {
            QInputMethodEvent preedit(u"ä"_s, {});
            QCoreApplication::sendEvent(&bench.editor, &preedit);
        } else
            bench.press(Qt::Key_Left, Qt::ShiftModifier);
        QTRY_VERIFY(!bench.completer().isShown());
        if (how != u"text" && how != u"undo" && how != u"preedit")
            QCOMPARE(bench.editor.text(), before);
    }

    void inputMethods()
    {
        CompletionBench bench;
        bench.setMarked(u"|"_s);
        QInputMethodEvent commit;
        commit.setCommitString(u"<"_s);
        QCoreApplication::sendEvent(&bench.editor, &commit);
        QCOMPARE(bench.marked(), u"<|"_s);
        QVERIFY(bench.completer().isShown());
        QInputMethodEvent more;
        more.setCommitString(u"di"_s);
        QCoreApplication::sendEvent(&bench.editor, &more);
        QCOMPARE(bench.entries().first(), u"div"_s);
    }

    void severalCarets()
    {
        CompletionBench bench;
        bench.setMarked(u"|\r\n\r\n"_s);
        bench.editor.engine().send(QsciScintillaBase::SCI_ADDSELECTION, 2, 2);
        bench.type(u"<di"_s);
        QCOMPARE(bench.editor.text(), u"<di\r\n<di\r\n"_s);
        QCOMPARE(bench.entries().first(), u"div"_s);
        bench.press(Qt::Key_Tab);
        QCOMPARE(bench.editor.text(), u"<div\r\n<div\r\n"_s);
        QCOMPARE(bench.editor.selectionCount(), 2);
        bench.type(u" cl"_s);
        bench.press(Qt::Key_Tab);
        QCOMPARE(bench.editor.text(), u"<div class=\"\"\r\n<div class=\"\"\r\n"_s);
        bench.type(u"x"_s);
        QCOMPARE(bench.editor.text(), u"<div class=\"x\"\r\n<div class=\"x\"\r\n"_s);
    }

    void oneUndoTakesAnEntryBack()
    {
        CompletionBench bench;
        bench.setMarked(u"<cl|\r\n<cl"_s);
        bench.setMarked(u"<p cl|\r\n<p cl"_s);
        bench.editor.engine().send(QsciScintillaBase::SCI_ADDSELECTION, 12, 12);
        bench.run(TextCommand::Complete);
        bench.press(Qt::Key_Tab);
        QCOMPARE(bench.editor.text(), u"<p class=\"\"\r\n<p class=\"\""_s);
        bench.editor.undo();
        QCOMPARE(bench.editor.text(), u"<p cl\r\n<p cl"_s);
    }

    void namesOfTheDocumentAndItsSheets()
    {
        CompletionBench bench;
        bench.world.files.contents[u"/site/a.css"_s] = ".from-sheet { } #sheet-id { }";
        bench.world.document.dialogFile = u"/site/page.html"_s;
        bench.setMarked(u"<link rel=stylesheet href=a.css><p class=\"own\" id=top><b class=\"|\">"_s);
        bench.run(TextCommand::Complete);
        QCOMPARE(bench.entries(), (QStringList{u"from-sheet"_s, u"own"_s}));
        bench.setMarked(u"<link rel=stylesheet href=a.css><p class=\"own\" id=top><a href=\"#|\">"_s);
        bench.run(TextCommand::Complete);
        QCOMPARE(bench.entries(), (QStringList{u"sheet-id"_s, u"top"_s}));
    }

    void filesBesideTheDocument()
    {
        const QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkpath(u"pictures/small"_s));
        for (const QString &name : {u"b.html"_s, u"a page.html"_s, u"pictures/c.png"_s}) {
            QFile file(folder.filePath(name));
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
        CompletionBench bench;
        bench.world.document.dialogFile = folder.filePath(u"page.html"_s);
        bench.setMarked(u"<a |>"_s);
        bench.run(TextCommand::Complete);
        bench.type(u"hr"_s);
        bench.press(Qt::Key_Tab);
        QCOMPARE(bench.entries(), (QStringList{u"pictures/"_s, u"a page.html"_s, u"b.html"_s}));
        bench.press(Qt::Key_Tab);
        QCOMPARE(bench.marked(), u"<a href=\"pictures/|\">"_s);
        QCOMPARE(bench.entries(), (QStringList{u"small/"_s, u"c.png"_s}));
        bench.type(u"c."_s);
        bench.press(Qt::Key_Tab);
        QCOMPARE(bench.marked(), u"<a href=\"pictures/c.png|\">"_s);
        bench.setMarked(u"<a href=\"a|\">"_s);
        bench.run(TextCommand::Complete);
        bench.press(Qt::Key_Tab);
        QCOMPARE(bench.marked(), u"<a href=\"a%20page.html|\">"_s);
        bench.setMarked(u"<a href=\"none/|\">"_s);
        bench.run(TextCommand::Complete);
        QCOMPARE(bench.entries(), QStringList());
    }

    void withoutItsData()
    {
        CompletionBench bench;
        bench.world.files.contents.clear();
        bench.setMarked(u"<ul></|"_s);
        bench.run(TextCommand::Complete);
        QCOMPARE(bench.entries(), QStringList{u"ul"_s});
    }

    /// Keys in a document of 10 MB with the real data: what the list costs is bounded.
    void hugeDocuments()
    {
        QFile file(QStringLiteral(COMPLETION_DATA));
        QVERIFY(file.open(QIODevice::ReadOnly));
        CompletionBench bench(file.readAll());
        bench.editor.setText(QString(u"<p class=\"a\">text <b>bold</b></p>\r\n"_s).repeated(300000));
        bench.editor.engine().send(QsciScintillaBase::SCI_DOCUMENTEND);
        bench.type(u"<"_s);
        QVERIFY(bench.completer().isShown());
        qint64 best = 1'000'000'000;
        for (int run = 0; run < 5; ++run) {
            bench.press(Qt::Key_Backspace);
            QVERIFY(!bench.completer().isShown());
            QElapsedTimer clock;
            clock.start();
            bench.type(u"<"_s);
            best = std::min(best, clock.nsecsElapsed());
            QVERIFY(bench.completer().isShown());
        }
        QVERIFY2(best < pace * 100'000'000, qPrintable(QString::number(best)));
    }
};

ZEPHIRA_TEST(TstCompleter)

#include "tst_completer.moc"
