// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/assistfixture.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstLastEdit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void goesBack()
    {
        AssistFixture f;
        f.show();
        f.world.files.contents[u"/a"_s] = "one\r\ntwo\r\nthree\r\n";
        QVERIFY(f.editor.openFile(u"/a"_s));
        f.run(TextCommand::GoToLastEdit);
        QCOMPARE(f.editor.engine().caret(), 0);
        f.editor.select({0, 3, 0, 3});
        f.type(u"xy"_s);
        f.editor.select({2, 0, 2, 0});
        QTest::keyClick(&f.editor, Qt::Key_Delete);
        f.editor.select({3, 0, 3, 0});
        f.run(TextCommand::GoToLastEdit);
        QCOMPARE(f.editor.selection(true), (CodeMaxRange{2, 0, 2, 0}));
        f.run(TextCommand::GoToLastEdit);
        QCOMPARE(f.editor.selection(true), (CodeMaxRange{0, 5, 0, 5}));
        f.run(TextCommand::GoToLastEdit);
        QCOMPARE(f.editor.selection(true), (CodeMaxRange{2, 0, 2, 0}));
    }

    void anotherFileHasNone()
    {
        AssistFixture f;
        f.show();
        f.type(u"one"_s);
        f.world.files.contents[u"/a"_s] = "text";
        QVERIFY(f.editor.openFile(u"/a"_s));
        f.editor.select({0, 1, 0, 1});
        f.run(TextCommand::GoToLastEdit);
        QCOMPARE(f.editor.engine().caret(), 1);
    }
};

ZEPHIRA_TEST(TstLastEdit)

#include "tst_lastedit.moc"
