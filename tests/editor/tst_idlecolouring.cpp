// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/codemaxglobals.h"
#include "editor/colouritems.h"
#include "editor/editorfixture.h"
#include "support/testregistry.h"

#include <QRandomGenerator>

using namespace Qt::StringLiterals;
using Sci = QsciScintillaBase;

namespace zephira {

namespace {

QString bigPage(int lines)
{
    QString page = u"<html>\r\n"_s;
    for (int i = 0; i < lines; ++i)
        page += u"<p class=\"row\">paragraph number %1 &amp; more</p>\r\n"_s.arg(i);
    return page;
}

/// The result of colouring the whole text from scratch: styles, line states and fold levels.
struct Whole {
    QByteArray styles;
    std::vector<qsizetype> states;
    std::vector<qsizetype> folds;
    std::vector<bool> dividers;
};

Whole colouredBy(const EditorFixture &f)
{
    const SciEngine &engine = f.editor.engine();
    Whole whole{f.styles(), {}, {}, {}};
    for (qsizetype line = 0; line < engine.lineCount(); ++line) {
        whole.states.push_back(line == 0 ? 0 : engine.send(Sci::SCI_GETLINESTATE, line));
        whole.folds.push_back(engine.send(Sci::SCI_GETFOLDLEVEL, line));
        whole.dividers.push_back(engine.send(Sci::SCI_MARKERGET, line) >> dividerMarker & 1);
    }
    return whole;
}

} // namespace

class TstIdleColouring : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onlyWhatShowsIsColoured()
    {
        EditorFixture f;
        f.editor.setLanguage(u"HTML"_s);
        f.editor.setText(bigPage(20000));
        f.show();
        f.waitForColours();
        QVERIFY(f.editor.colouring().work() > 0);
        QVERIFY(f.editor.colouring().work() < 20000);
    }

    /// After a far jump the text is painted at once, uncoloured; the colours follow when the program is idle.
    void aFarJumpPaintsBeforeItColours()
    {
        EditorFixture f;
        f.editor.setLanguage(u"HTML"_s);
        f.editor.setText(bigPage(40000));
        f.show();
        f.waitForColours();
        const SciEngine &engine = f.editor.engine();
        const qsizetype end = engine.length();
        QVERIFY(end > 2'000'000);
        const qint64 before = f.editor.colouring().work();
        f.editor.executeCmd(EditorCommand::GoToLine, f.editor.lineCount() - 1);
        f.editor.viewport()->repaint();
        const qint64 painting = f.editor.colouring().work() - before;
        QVERIFY2(painting < 2'000'000, qPrintable(QString::number(painting)));
        QVERIFY(f.editor.colouring().isPending());
        const qsizetype name = engine.lineStart(engine.lineCount() - 2) + 1;
        QCOMPARE(engine.styleAt(name), 0);
        const QImage plain = f.editor.grab().toImage();
        QTRY_VERIFY(!f.editor.colouring().isPending());
        QCOMPARE(engine.styleAt(name), 9);
        QVERIFY(f.editor.grab().toImage() != plain);
    }

    void typingColoursALittle_data()
    {
        QTest::addColumn<int>("line");
        QTest::newRow("at the beginning") << 1;
        QTest::newRow("in the middle") << 100000;
        QTest::newRow("at the end") << 200000;
    }
    /// In ten megabytes a key costs the same wherever it is typed in the text.
    void typingColoursALittle()
    {
        QFETCH(int, line);
        EditorFixture f;
        f.editor.setLanguage(u"HTML"_s);
        f.editor.setText(bigPage(200000));
        f.show();
        f.editor.executeCmd(EditorCommand::GoToLine, line);
        f.waitForColours();
        const qint64 before = f.editor.colouring().work();
        for (int i = 0; i < 20; ++i) {
            QTest::keyClicks(&f.editor, u"x"_s);
            f.waitForColours();
        }
        const qint64 work = f.editor.colouring().work() - before;
        QVERIFY2(work > 0 && work < 20 * 1000, qPrintable(QString::number(work)));
    }

    void anOpenedCommentReachesTheEnd()
    {
        EditorFixture f;
        f.editor.setLanguage(u"HTML"_s);
        f.editor.setText(u"<p>\r\n<p>\r\n<p>"_s);
        f.show();
        f.waitForColours();
        QCOMPARE(f.styles().at(11), '9');
        f.editor.select({0, 0, 0, 0});
        f.editor.setSelText(u"<!-- "_s);
        f.waitForColours();
        QCOMPARE(f.styles().count('5'), f.editor.engine().length());
        f.editor.undo();
        f.waitForColours();
        QCOMPARE(f.styles().at(11), '9');
    }

    void editsColourAsTheWholeTextDoes_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QStringList>("pieces");
        QTest::newRow("HTML") << u"HTML"_s << QStringList{u"<!--"_s,     u"-->"_s,       u"<p class=\"a\">"_s,
                                                          u"</p>"_s,     u"<div>"_s,     u"</div>"_s,
                                                          u"<script>"_s, u"</script>"_s, u"<% "_s,
                                                          u" %>"_s,      u"\r\n"_s,      u"\r\n"_s,
                                                          u"\r"_s,       u"\n"_s,        u"\""_s,
                                                          u"{"_s,        u"}"_s,         u"text é "_s,
                                                          u"/*"_s,       u"*/"_s};
        QTest::newRow("C/C++") << u"C/C++"_s
                               << QStringList{u"/*"_s, u"*/"_s,         u"//"_s,     u"{"_s,       u"}"_s,
                                              u"{"_s,  u"}"_s,          u"\r\n"_s,   u"\n"_s,      u"\r"_s,
                                              u"\""_s, u"int x = 5;"_s, u"\\\r\n"_s, u"return "_s, u"R\"(\r\n"_s};
    }
    /// After any edits, colouring line by line as the window requests gives the same as colouring everything from
    /// scratch.
    void editsColourAsTheWholeTextDoes()
    {
        QFETCH(QString, language);
        QFETCH(QStringList, pieces);
        QRandomGenerator random(4711);
        const auto number = [&](qsizetype below) {
            return static_cast<qsizetype>(random.bounded(static_cast<quint32>(below)));
        };
        for (int round = 0; round < 60; ++round) {
            EditorFixture f;
            const SciEngine &engine = f.editor.engine();
            f.files.contents[u"/mixed"_s] = "a\rb\nc\r\n";
            QVERIFY(f.editor.openFile(u"/mixed"_s));
            f.editor.setLanguage(language);
            QString start;
            for (int i = 0; i < 60; ++i)
                start += pieces[number(pieces.size())];
            f.editor.setText(start);
            f.editor.colouring().colourAll();
            for (int edit = 0; edit < 25; ++edit) {
                const qsizetype position = number(engine.length() + 1);
                const qsizetype safe = engine.send(Sci::SCI_POSITIONBEFORE, position);
                const auto doing = number(10);
                if (doing < 5) {
                    f.editor.perform(
                        [&] { f.editor.replaceBytes(safe, safe, pieces[number(pieces.size())].toUtf8()); });
                } else if (doing < 8) {
                    const qsizetype end =
                        engine.send(Sci::SCI_POSITIONAFTER, std::min(safe + number(30), engine.length()));
                    f.editor.perform([&] { f.editor.replaceBytes(safe, std::max(safe, end), {}); });
                } else if (doing == 8) {
                    f.editor.undo();
                } else {
                    f.editor.redo();
                }
                // Sometimes only a part is requested, and sometimes nothing between two edits.
                if (number(3) > 0)
                    f.editor.colouring().colourTo(number(engine.length() + 1));
            }
            f.editor.colouring().colourAll();
            const Whole kept = colouredBy(f);
            engine.send(Sci::SCI_MARKERDELETEALL, dividerMarker);
            f.editor.colouring().restart();
            f.editor.colouring().colourAll();
            const Whole anew = colouredBy(f);
            QCOMPARE(kept.styles, anew.styles);
            QCOMPARE(kept.states, anew.states);
            QCOMPARE(kept.folds, anew.folds);
            QCOMPARE(kept.dividers, anew.dividers);
        }
    }

    void blocksFold()
    {
        EditorFixture f;
        f.editor.setLanguage(u"C/C++"_s);
        f.editor.setText(u"void f() {\r\n  if (x) {\r\n    y;\r\n  }\r\n}\r\nint z;"_s);
        f.show();
        f.waitForColours();
        const SciEngine &engine = f.editor.engine();
        const auto visible = [&](qsizetype line) { return engine.send(Sci::SCI_GETLINEVISIBLE, line) != 0; };
        QVERIFY(engine.send(Sci::SCI_GETFOLDLEVEL, 0) & Sci::SC_FOLDLEVELHEADERFLAG);
        f.editor.select({2, 0, 2, 0});
        QTest::keyClick(&f.editor, Qt::Key_F11, Qt::ControlModifier);
        QVERIFY(visible(1) && !visible(2) && !visible(3) && visible(4));
        QCOMPARE(f.editor.selection(false).EndLineNo, 1);
        // Selecting folded text unfolds it.
        f.editor.select({2, 0, 2, 1});
        QVERIFY(visible(2));
        QTest::keyClick(&f.editor, Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(!visible(1) && visible(5));
    }

    void whatNoBlockHoldsAnyMoreShows()
    {
        EditorFixture f;
        f.editor.setLanguage(u"C/C++"_s);
        f.editor.setText(u"f() {\r\n  a;\r\n  if {\r\n    b;\r\n  }\r\n}\r\nc;\r\n"_s);
        f.show();
        f.waitForColours();
        const SciEngine &engine = f.editor.engine();
        engine.send(Sci::SCI_TOGGLEFOLD, 0);
        QVERIFY(!engine.send(Sci::SCI_GETLINEVISIBLE, 3));
        // The brace that opens the folded block is deleted.
        f.editor.select({0, 4, 0, 5});
        f.editor.setSelText(QString());
        f.waitForColours();
        for (qsizetype line = 0; line < engine.lineCount(); ++line)
            QVERIFY2(engine.send(Sci::SCI_GETLINEVISIBLE, line), qPrintable(QString::number(line)));
        QVERIFY(engine.send(Sci::SCI_GETFOLDEXPANDED, 0));
    }

    void aLineEndsEachOutermostBlock()
    {
        EditorFixture f;
        f.editor.setLanguage(u"C/C++"_s);
        f.editor.setText(u"f() {\r\n  if {\r\n  }\r\n}\r\ng() {\r\n}\r\n"_s);
        f.editor.colouring().colourAll();
        QByteArray marks;
        for (qsizetype line = 0; line < f.editor.engine().lineCount(); ++line)
            marks += f.editor.engine().send(Sci::SCI_MARKERGET, line) >> dividerMarker & 1 ? '_' : '.';
        QCOMPARE(marks, "..._._."_ba);
    }

    void switchingTheLanguageColoursAnew()
    {
        EditorFixture f;
        f.editor.setText(u"begin /* x */"_s);
        f.show();
        f.editor.setLanguage(u"Pascal"_s);
        f.waitForColours();
        const QByteArray pascal = f.styles();
        f.editor.setLanguage(u"C/C++"_s);
        f.waitForColours();
        QVERIFY(pascal != f.styles());
        f.editor.setLanguage(u"Pascal"_s);
        f.waitForColours();
        QCOMPARE(f.styles(), pascal);
    }
};

ZEPHIRA_TEST(TstIdleColouring)

} // namespace zephira

#include "tst_idlecolouring.moc"
