// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/inserttext.h"
#include "core/pasteitem.h"
#include "support/fakes.h"
#include "support/testregistry.h"

#include <QTest>

using namespace zephira;
using namespace Qt::StringLiterals;

class TstPasteItem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void behindTheSelection_data()
    {
        QTest::addColumn<QString>("selected");
        QTest::addColumn<QString>("item");
        QTest::addColumn<QString>("text");
        QTest::newRow("at the caret") << QString() << u"<hr>"_s << u"<hr>one two three"_s;
        QTest::newRow("behind a selection") << u"two"_s << u"<hr>"_s << u"one two<hr> three"_s;
        QTest::newRow("several lines") << u"three"_s << u"a\nb"_s << u"one two threea\nb"_s;
        QTest::newRow("nothing") << u"two"_s << QString() << u"one two three"_s;
    }

    void behindTheSelection()
    {
        QFETCH(QString, selected);
        QFETCH(QString, item);
        TestContext world;
        TextInserter inserter(world.editor, world.designer);
        const AppContext context{world.editor,   inserter,    world.designer, world.document,       world.configuration,
                                 world.settings, world.files, world.prompts,  world.shell,          world.clipboard,
                                 world.clock,    world.forms, world.keys,     world.context.appPath};
        world.editor.setText(u"one two three"_s);
        world.editor.placeCaret(0);
        if (!selected.isEmpty())
            QVERIFY(world.editor.selectPart(selected));
        pasteInCodeView(context, item);
        QTEST(world.editor.text(), "text");
    }

    void nothingToPasteIsNoChange()
    {
        TestContext world;
        bool changed = false;
        world.editor.onChange = [&] { changed = true; };
        pasteBehindSelection(world, {});
        QVERIFY(!changed);
        QVERIFY(world.inserter.inserted.isEmpty());
    }

    void aTextThatCouldBeMadeIsPasted()
    {
        TestContext world;
        QVERIFY(pasteOrTell(world, u"<table>"_s, u"Table Wizard"_s));
        QCOMPARE(world.inserter.inserted, QStringList{u"<table>"_s});
        QVERIFY(world.prompts.verify());
    }

    void anErrorIsToldInsteadOfAText()
    {
        TestContext world;
        world.prompts.expectTell(u"It is too large"_s, u"Table Wizard"_s, Question::Icon::Exclamation);
        QVERIFY(!pasteOrTell(world, Error{Error::Code::TooLarge, u"It is too large"_s}, u"Table Wizard"_s));
        QVERIFY(world.inserter.inserted.isEmpty());
        QVERIFY(world.prompts.verify());
    }

    void visualMode()
    {
        TestContext world;
        world.designer.showing = true;
        world.editor.setText(u"one"_s);
        world.editor.selectPart(u"one"_s);
        world.prompts.expectTell(u"Sorry, these tools can only be used in Code View"_s, u"Feature Limitation"_s);
        pasteInCodeView(world, u"<hr>"_s);
        QVERIFY(world.inserter.inserted.isEmpty());
        // The function that ignores the view also uses the text of the code view.
        pasteBehindSelection(world, u".class"_s);
        QCOMPARE(world.inserter.inserted, QStringList{u"one.class"_s});
    }
};

ZEPHIRA_TEST(TstPasteItem)
#include "tst_pasteitem.moc"
