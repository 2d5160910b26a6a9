// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/abbreviations/fieldsteps.h"
#include "assist/assistfixture.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

/// Steps over "<a b=''>c</a>" with a field in the value, one around c, and one behind.
struct StepsFixture : AssistFixture {
    FieldSteps steps{editor};

    StepsFixture()
    {
        show();
        setMarked(u"x <a b=''>c</a>| y"_s);
        steps.begin(2, 15, {{1, 8, 8}, {2, 10, 11}, {0, 15, 15}});
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&editor, key, modifiers);
    }
};

class TstFieldSteps : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void stepsForthAndBack()
    {
        StepsFixture f;
        QCOMPARE(f.marked(), u"x <a b='|'>c</a> y"_s);
        f.type(u"é"_s);
        f.press(Qt::Key_Tab);
        QCOMPARE(f.marked(), u"x <a b='é'>^c|</a> y"_s);
        f.press(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(f.marked(), u"x <a b='^é|'>c</a> y"_s);
        f.press(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(f.marked(), u"x <a b='^é|'>c</a> y"_s);
        f.press(Qt::Key_Tab);
        f.type(u"text"_s);
        f.press(Qt::Key_Tab);
        QCOMPARE(f.marked(), u"x <a b='é'>text</a>| y"_s);
        QVERIFY(!f.steps.isActive());
        f.press(Qt::Key_Tab);
        QCOMPARE(f.marked(), u"x <a b='é'>text</a>\t| y"_s);
    }

    void erasedPlacesMove()
    {
        StepsFixture f;
        f.press(Qt::Key_Tab);
        f.press(Qt::Key_Delete);
        f.press(Qt::Key_Tab);
        QCOMPARE(f.marked(), u"x <a b=''></a>| y"_s);
    }

    void escapeEnds()
    {
        StepsFixture f;
        f.press(Qt::Key_Escape);
        QVERIFY(!f.steps.isActive());
        f.press(Qt::Key_Tab);
        QCOMPARE(f.marked(), u"x <a b='\t|'>c</a> y"_s);
    }

    void movingAwayEnds()
    {
        StepsFixture f;
        f.press(Qt::Key_Right);
        QVERIFY(f.steps.isActive());
        f.press(Qt::Key_Home);
        QVERIFY(!f.steps.isActive());
    }

    void anotherTextEnds()
    {
        StepsFixture f;
        f.editor.setText(u"other"_s);
        QVERIFY(!f.steps.isActive());
    }

    void equalPlacesAreFilledTogether()
    {
        AssistFixture f;
        f.show();
        f.setMarked(u"<> </> .|"_s);
        FieldSteps steps(f.editor);
        steps.begin(0, 8, {{1, 1, 1}, {1, 5, 5}, {2, 7, 8}});
        f.type(u"em"_s);
        QCOMPARE(f.editor.text(), u"<em> </em> ."_s);
        QTest::keyClick(&f.editor, Qt::Key_Tab);
        QCOMPARE(f.marked(), u"<em> </em> ^.|"_s);
    }
};

ZEPHIRA_TEST(TstFieldSteps)

#include "tst_fieldsteps.moc"
