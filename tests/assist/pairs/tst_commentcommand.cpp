// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/selectionmarks.h"
#include "core/languages.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstCommentCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void toggles_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("comment");
        // clang-format off: a row a line
        QTest::newRow("markup") << u"HTML"_s << u"  <p>a|b</p>\r\nc"_s << u"  <!-- <p>a|b</p> -->\r\nc"_s;
        QTest::newRow("selected markup") << u"HTML"_s << u"<p>«a<br>\r\nb»</p>"_s << u"<p><!-- «a<br>\r\nb» --></p>"_s;
        QTest::newRow("markup with a comment")
            << u"HTML"_s << u"a<!-- b -->|c"_s << u"<!-- a<!-&#45; b -&#45;>|c -->"_s;
        QTest::newRow("style") << u"HTML"_s << u"<style>\r\np { col|or: red }\r\n</style>"_s
                               << u"<style>\r\n/* p { col|or: red } */\r\n</style>"_s;
        QTest::newRow("script") << u"HTML"_s << u"<script>\r\n  f|();\r\n</script>"_s
                                << u"<script>\r\n  // f|();\r\n</script>"_s;
        QTest::newRow("script lines") << u"HTML"_s << u"<script>\r\n  «f();\r\n    g();»\r\n</script>"_s
                                      << u"<script>\r\n  // «f();\r\n  //   g();»\r\n</script>"_s;
        QTest::newRow("part of a script line")
            << u"HTML"_s << u"<script>\r\nf(«a»);\r\n</script>"_s << u"<script>\r\nf(/* «a» */);\r\n</script>"_s;
        QTest::newRow("script in one line")
            << u"HTML"_s << u"<b><script>f(|)</script>"_s << u"<b><script>// f(|)</script>"_s;
        QTest::newRow("a script's tag") << u"HTML"_s << u"|<script>"_s << u"<!-- |<script> -->"_s;
        QTest::newRow("VBScript") << u"HTML"_s << u"<%\r\nx = |1\r\n%>"_s << u"<%\r\n' x = |1\r\n%>"_s;
        QTest::newRow("VBScript in a line") << u"HTML"_s << u"<p><%= x| %></p>"_s << u"<p><%= ' x| %></p>"_s;
        QTest::newRow("PHP") << u"HTML"_s << u"<?php\r\necho |1;\r\n?>"_s << u"<?php\r\n// echo |1;\r\n?>"_s;
        QTest::newRow("PHP in a line") << u"HTML"_s << u"<td><?php f(|) ?></td>"_s << u"<td><?php // f(|) ?></td>"_s;
        QTest::newRow("XML") << u"XML"_s << u"<a>|</a>"_s << u"<!-- <a>|</a> -->"_s;
        QTest::newRow("C++") << u"C/C++"_s << u"int |a;"_s << u"// int |a;"_s;
        QTest::newRow("Basic") << u"Basic"_s << u"x| = 1"_s << u"' x| = 1"_s;
        QTest::newRow("Pascal") << u"Pascal"_s << u"x| := 1"_s << u"// x| := 1"_s;
        QTest::newRow("two carets in a line") << u"C/C++"_s << u"a|b|c"_s << u"// a|b|c"_s;
        QTest::newRow("carets in two languages") << u"HTML"_s << u"a|\r\n<script>\r\nf|\r\n</script>"_s
                                                 << u"<!-- a| -->\r\n<script>\r\n// f|\r\n</script>"_s;
        // clang-format on
    }

    void toggles()
    {
        QFETCH(QString, language);
        QFETCH(QString, text);
        QFETCH(QString, comment);
        AssistFixture f;
        f.show();
        f.editor.setLanguage(language);
        QCOMPARE(afterCommand(f, text, TextCommand::ToggleComment), comment);
        QCOMPARE(afterCommand(f, comment, TextCommand::ToggleComment), text);
    }

    void aCaretInALongCommentRemovesIt()
    {
        AssistFixture f;
        f.show();
        f.editor.setLanguage(u"HTML"_s);
        QCOMPARE(afterCommand(f, u"a\r\n<!-- b\r\nc|\r\nd -->"_s, TextCommand::ToggleComment), u"a\r\nb\r\nc|\r\nd"_s);
        f.editor.setLanguage(u"C/C++"_s);
        QCOMPARE(afterCommand(f, u"/* b\r\n|c */"_s, TextCommand::ToggleComment), u"b\r\n|c"_s);
        QCOMPARE(afterCommand(f, u"f(); // b|"_s, TextCommand::ToggleComment), u"// f(); // b|"_s);
    }

    void aBlankLineGetsMarks()
    {
        AssistFixture f;
        f.show();
        f.editor.setLanguage(u"HTML"_s);
        QCOMPARE(afterCommand(f, u"a\r\n|"_s, TextCommand::ToggleComment), u"a\r\n<!-- | -->"_s);
        QCOMPARE(afterCommand(f, u"a\r\n<!-- | -->"_s, TextCommand::ToggleComment), u"a\r\n|"_s);
    }

    /// Their files are coloured as another language.
    void styleSheetsAndSql()
    {
        AssistFixture f;
        f.show();
        f.editor.setLanguage(u"java"_s);
        QCOMPARE(afterCommand(f, u"|a"_s, TextCommand::ToggleComment), u"// |a"_s);
        f.world.document.row = language::StyleSheets;
        QCOMPARE(afterCommand(f, u"|a"_s, TextCommand::ToggleComment), u"/* |a */"_s);
        f.world.document.row = language::Sql;
        QCOMPARE(afterCommand(f, u"|a"_s, TextCommand::ToggleComment), u"-- |a"_s);
    }

    void plainAndReadOnlyTextStays()
    {
        AssistFixture f;
        f.show();
        QCOMPARE(afterCommand(f, u"|a"_s, TextCommand::ToggleComment), u"|a"_s);
        f.editor.setLanguage(u"HTML"_s);
        f.editor.setReadOnly(true);
        QCOMPARE(afterCommand(f, u"|a"_s, TextCommand::ToggleComment), u"|a"_s);
    }

    /// Nothing that isn't shown yet is coloured.
    void farBehindTheColours()
    {
        AssistFixture f;
        f.editor.setLanguage(u"HTML"_s);
        f.editor.setText(u"<script>\r\n"_s + u"f();\r\n"_s.repeated(200'000));
        f.editor.select({150'000, 1, 150'000, 1});
        f.run(TextCommand::ToggleComment);
        const SciEngine &engine = f.editor.engine();
        QCOMPARE(engine.bytes(engine.lineStart(150'000), engine.lineEnd(150'000)), QByteArrayView("// f();"));
    }
};

ZEPHIRA_TEST(TstCommentCommand)

#include "tst_commentcommand.moc"
