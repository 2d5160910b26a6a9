// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/assistfixture.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstLineCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void join_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("text");
        QTest::newRow("this and the next") << u"on|e\r\n  two\r\nthree"_s << u"one two\r\nthree"_s;
        QTest::newRow("selected ones") << u"o^ne\r\ntwo\r\nthr|ee\r\nfour"_s << u"one two three\r\nfour"_s;
        QTest::newRow("up to a line's start") << u"^one\r\ntwo\r\n|three"_s << u"one two\r\nthree"_s;
        QTest::newRow("the last one") << u"one\r\ntw|o"_s << u"one\r\ntwo"_s;
    }

    void join()
    {
        QFETCH(QString, before);
        AssistFixture f;
        f.setMarked(before);
        const QString original = f.editor.text();
        f.run(TextCommand::JoinLines);
        QTEST(f.editor.text(), "text");
        if (f.editor.text() != original) {
            f.editor.undo();
            QCOMPARE(f.editor.text(), original);
        }
    }

    void trailingBlanks()
    {
        AssistFixture f;
        f.setMarked(u"one  \r\n^two \t\r\n|three \r\n"_s);
        f.run(TextCommand::RemoveTrailingBlanks);
        QCOMPARE(f.editor.text(), u"one  \r\ntwo\r\nthree \r\n"_s);
        f.editor.select({0, 0, 0, 0});
        f.run(TextCommand::RemoveTrailingBlanks);
        QCOMPARE(f.editor.text(), u"one\r\ntwo\r\nthree\r\n"_s);
        f.editor.undo();
        QCOMPARE(f.editor.text(), u"one  \r\ntwo\r\nthree \r\n"_s);
    }

    void aReadOnlyTextStays()
    {
        AssistFixture f;
        f.setMarked(u"|one \r\ntwo"_s);
        f.editor.setReadOnly(true);
        f.run(TextCommand::JoinLines);
        f.run(TextCommand::RemoveTrailingBlanks);
        QCOMPARE(f.editor.text(), u"one \r\ntwo"_s);
    }
};

ZEPHIRA_TEST(TstLineCommands)

#include "tst_linecommands.moc"
