// SPDX-License-Identifier: GPL-3.0-or-later
#include "panes/tagplace.h"
#include "support/fakeeditor.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstTagPlace final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void find_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("tagText");
        QTest::addColumn<qsizetype>("position");
        QTest::addColumn<qsizetype>("found");
        const auto row = [](const char *name, const QString &text, const QString &tagText, qsizetype position,
                            qsizetype found) { QTest::newRow(name) << text << tagText << position << found; };
        row("where it stood", u"<b>1<b>2<b>"_s, u"b"_s, 4, 4);
        row("moved down", u"new <b>"_s, u"b"_s, 0, 4);
        row("moved up", u"<b>"_s, u"b"_s, 40, 0);
        row("the nearest before", u"<b>12345<b>"_s, u"b"_s, 3, 0);
        row("the nearest behind", u"<b>12345<b>"_s, u"b"_s, 5, 8);
        row("a longer name is another tag", u"<body><b>"_s, u"b"_s, 1, 6);
        row("a title cut short", u"<title>Home</title>"_s, u"title>Home</titl"_s, 0, 0);
        row("gone", u"<i><body>"_s, u"b"_s, 1, -1);
        row("no text", {}, u"b"_s, 7, -1);
    }

    void find()
    {
        QFETCH(QString, text);
        QFETCH(QString, tagText);
        QFETCH(qsizetype, position);
        QTEST(findTag(text, tagText, position).value_or(-1), "found");
    }

    void select_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<qsizetype>("position");
        QTest::addColumn<QList<int>>("range");
        QTest::newRow("first line") << u"a<b c>d"_s << static_cast<qsizetype>(1) << QList<int>{0, 1, 0, 6};
        QTest::newRow("third line") << u"a\r\nb\r\nxy<b c>"_s << static_cast<qsizetype>(8) << QList<int>{2, 2, 2, 7};
        QTest::newRow("at the start of a line")
            << u"a\r\n<b c>"_s << static_cast<qsizetype>(3) << QList<int>{1, 0, 1, 5};
        QTest::newRow("other line ends") << u"a\nb\r<b c>"_s << static_cast<qsizetype>(4) << QList<int>{2, 0, 2, 5};
    }

    void select()
    {
        QFETCH(QString, text);
        QFETCH(qsizetype, position);
        QFETCH(QList<int>, range);
        FakeEditor editor;
        editor.setText(text);
        QVERIFY(selectTag(editor, u"b c"_s, position));
        const CodeMaxRange selected = editor.selection(false);
        QCOMPARE((QList<int>{selected.StartLineNo, selected.StartColNo, selected.EndLineNo, selected.EndColNo}), range);
        QCOMPARE(editor.selText(), u"<b c>"_s);
    }

    void selectsATagOverSeveralLines()
    {
        FakeEditor editor;
        editor.setText(u"x\r\n<b\r\nc>y"_s);
        QVERIFY(selectTag(editor, u"b\r\nc"_s, 3));
        QCOMPARE(editor.selText(), u"<b\r\nc>"_s);
    }

    void selectsATitle()
    {
        FakeEditor editor;
        editor.setText(u"<title>Home</title>\r\n"_s);
        QVERIFY(selectTag(editor, u"title>Home</title"_s, 0));
        QCOMPARE(editor.selText(), u"<title>Home</title>"_s);
    }

    void whatIsGoneLeavesTheSelection()
    {
        FakeEditor editor;
        editor.setText(u"<i>"_s);
        editor.selectOffsets(1, 2);
        QVERIFY(!selectTag(editor, u"b"_s, 0));
        QCOMPARE(editor.selText(), u"i"_s);
    }
};

ZEPHIRA_TEST(TstTagPlace)

#include "tst_tagplace.moc"
