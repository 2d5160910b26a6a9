// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/fakes.h"
#include "support/formkit.h"
#include "support/testregistry.h"
#include "widgets/colourswatch.h"
#include "wizards/frmtable.h"
#include "wizards/registerforms.h"

#include <QComboBox>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// The wizard with fakes of its own.
struct Wizard {
    TestContext world;
    LivingForm form;

    Wizard() : form(catalogue(), u"frmTable"_s, world) {}

    static FormCatalogue catalogue()
    {
        FormCatalogue forms;
        wizards::registerForms(forms);
        return forms;
    }
};

} // namespace

class TstFrmTable final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults_data()
    {
        QTest::addColumn<QString>("control");
        QTest::addColumn<QString>("value");
        const QString none = u"Default"_s;
        const QString rows[][2] = {
            {u"frmTable"_s, u"Insert Tables"_s},
            {u"Text1"_s, u"1"_s},
            {u"Text2"_s, u"1"_s},
            {u"Combo1"_s, {}},
            {u"Text3"_s, u"0"_s},
            {u"Text4"_s, u"1"_s},
            {u"Text5"_s, u"1"_s},
            {u"Check1"_s, u"off"_s},
            {u"Text6"_s, u"100"_s},
            {u"Option1_0"_s, u"on"_s},
            {u"Option1_1"_s, u"off"_s},
            {u"Check2"_s, u"off"_s},
            {u"Check3"_s, u"off"_s},
            {u"Text8"_s, none},
            {u"bordercol"_s, none},
            {u"lightcol"_s, none},
            {u"darkcol"_s, none},
            {u"Combo4"_s, {}},
            {u"Text7"_s, {}},
            {u"Combo5"_s, none},
            {u"Combo7"_s, none},
        };
        for (const auto &[control, value] : rows)
            QTest::newRow(qPrintable(control)) << control << value;
    }

    void defaults()
    {
        QFETCH(QString, control);
        const Wizard wizard;
        QTEST(wizard.form.value(control), "value");
    }

    void lists_data()
    {
        QTest::addColumn<QString>("control");
        QTest::addColumn<bool>("editable");
        QTest::addColumn<QStringList>("entries");
        QTest::newRow("alignment") << u"Combo1"_s << false << QStringList{{}, u"Left"_s, u"Center"_s, u"Right"_s};
        QTest::newRow("span") << u"Combo4"_s << true << QStringList{u"Column"_s, u"Row"_s};
        QTest::newRow("horizontal") << u"Combo5"_s << true
                                    << QStringList{u"Default"_s, u"Left"_s, u"Right"_s, u"Center"_s};
        QTest::newRow("vertical") << u"Combo7"_s << true
                                  << QStringList{u"Default"_s, u"Top"_s, u"Middle"_s, u"Bottom"_s};
    }

    void lists()
    {
        QFETCH(QString, control);
        const Wizard wizard;
        const auto &list = wizard.form.get<QComboBox>(control);
        QStringList entries;
        for (int i = 0; i < list.count(); ++i)
            entries.append(list.itemText(i));
        QTEST(entries, "entries");
        QTEST(list.isEditable(), "editable");
    }

    void theSpanHasItsTip()
    {
        const Wizard wizard;
        QCOMPARE(wizard.form.get<QComboBox>(u"Combo4"_s).toolTip(), u"Span"_s);
    }

    void typedWordsStandAsTheyAre()
    {
        const Wizard wizard;
        wizard.form.type(u"Combo4"_s, u"row"_s);
        wizard.form.type(u"Text7"_s, u"2"_s);
        wizard.form.type(u"Combo5"_s, u"justify"_s);
        wizard.form.press(u"Command3"_s);
        QCOMPARE(wizard.world.inserter.inserted, QStringList{u"<TD align='justify'></TD>\r\n"_s});
        QCOMPARE(wizard.form.get<QComboBox>(u"Combo5"_s).count(), 4);
    }

    void statementsNeedTheScriptForm()
    {
        const Wizard wizard;
        wizard.form.press(u"Check3"_s);
        QCOMPARE(wizard.form.value(u"Check2"_s), u"on"_s);
        wizard.form.press(u"Check3"_s);
        QCOMPARE(wizard.form.value(u"Check2"_s), u"on"_s);
        wizard.form.press(u"Check3"_s);
        wizard.form.press(u"Check2"_s);
        QCOMPARE(wizard.form.value(u"Check3"_s), u"off"_s);
        wizard.form.press(u"Check2"_s);
        QCOMPARE(wizard.form.value(u"Check3"_s), u"off"_s);
    }

    void theSelectionStaysInFront_data()
    {
        QTest::addColumn<QString>("button");
        QTest::newRow("table") << u"Command1"_s;
        QTest::newRow("cell") << u"Command3"_s;
    }

    void theSelectionStaysInFront()
    {
        QFETCH(QString, button);
        Wizard wizard;
        wizard.world.editor.setText(u"<p>chosen</p>"_s);
        QVERIFY(wizard.world.editor.selectPart(u"chosen"_s));
        wizard.form.press(button);
        QCOMPARE(wizard.world.inserter.inserted.size(), 1);
        QVERIFY(wizard.world.inserter.inserted.first().startsWith(u"chosen<T"_s));
    }

    void aCellLeavesTheFormOpen()
    {
        const Wizard wizard;
        wizard.form.set(u"Check3"_s, u"on"_s);
        wizard.form.press(u"Command3"_s);
        wizard.form.set(u"Combo4"_s, u"Column"_s);
        wizard.form.set(u"Text7"_s, u"2"_s);
        wizard.form.press(u"Command3"_s);
        QVERIFY(wizard.form.isOpen());
        QCOMPARE(wizard.world.inserter.inserted, (QStringList{u"<TD></TD>\r\n"_s, u"<TD Colspan='2'></TD>\r\n"_s}));
    }

    void whatIsNoNumberKeepsTheFormOpen_data()
    {
        QTest::addColumn<QString>("columns");
        QTest::addColumn<QString>("rows");
        QTest::addColumn<QString>("focus");
        QTest::newRow("columns") << u"x"_s << u"1"_s << u"Text1"_s;
        QTest::newRow("rows") << u"1"_s << u""_s << u"Text2"_s;
        QTest::newRow("both") << u"x"_s << u"y"_s << u"Text1"_s;
        QTest::newRow("beyond 32 bits") << u"1"_s << u"2147483648"_s << u"Text2"_s;
    }

    void whatIsNoNumberKeepsTheFormOpen()
    {
        QFETCH(QString, columns);
        QFETCH(QString, rows);
        const Wizard wizard;
        wizard.form.set(u"Text1"_s, columns);
        wizard.form.set(u"Text2"_s, rows);
        wizard.form.press(u"Command1"_s);
        QVERIFY(wizard.form.isOpen());
        QVERIFY(wizard.world.inserter.inserted.isEmpty());
        QTEST(wizard.form.focus(), "focus");
    }

    void tooLargeIsTold()
    {
        Wizard wizard;
        wizard.world.prompts.expectTell(u"A table of 100000 columns and 200000 rows is too large for a page."_s,
                                        u"Insert Tables"_s, Question::Icon::Exclamation);
        wizard.form.set(u"Text1"_s, u"100000"_s);
        wizard.form.set(u"Text2"_s, u"200000"_s);
        wizard.form.press(u"Command1"_s);
        QVERIFY(wizard.form.isOpen());
        QVERIFY(wizard.world.inserter.inserted.isEmpty());
        QVERIFY(wizard.world.prompts.verify());
    }

    void addTableTakesReadyAttributes_data()
    {
        QTest::addColumn<QByteArray>("method");
        QTest::addColumn<QString>("text");
        QTest::newRow("plain")
            << QByteArray("AddTable")
            << u"<TABLE Align=\"Left\" Border=\"0\" cellpadding=\"1\" w cellspacing=\"1\" bg bc ld>\r\n"
               "<TR>\r\n  <TD>&nbsp;</TD>\r\n </TR>\r\n</TABLE>\r\n"_s;
        QTest::newRow("script")
            << QByteArray("AddTableAsp")
            << u"\r\n<TABLE  Align=\"\"Left\"\" Border=\"\"0\"\" cellpadding=\"\"1\"\" w cellspacing=\"\"1\"\" bg bc ld>\r\n"
               "\r\n<TR>\r\n<TD>&nbsp;</TD>\r\n</TR>\r\n</TABLE>\r\n"_s;
    }

    void addTableTakesReadyAttributes()
    {
        QFETCH(QByteArray, method);
        const Wizard wizard;
        wizard.form.set(u"Combo1"_s, u"Left"_s);
        QVERIFY(QMetaObject::invokeMethod(&wizard.form.widget(), method.constData(), Q_ARG(int, 1), Q_ARG(int, 1),
                                          Q_ARG(QString, u" w"_s), Q_ARG(QString, u" bg"_s), Q_ARG(QString, u" bc"_s),
                                          Q_ARG(QString, u" ld"_s)));
        QCOMPARE(wizard.world.inserter.inserted.size(), 1);
        QTEST(wizard.world.inserter.inserted.first(), "text");
    }

    void cancelInsertsNothing()
    {
        const Wizard wizard;
        wizard.form.press(u"Command2"_s);
        QVERIFY(!wizard.form.isOpen());
        QVERIFY(wizard.world.inserter.inserted.isEmpty());
    }

    void returnInsertsAndEscapeCancels()
    {
        const Wizard first;
        QVERIFY(first.form.get<QPushButton>(u"Command1"_s).isDefault());
        first.form.key(Qt::Key_Return);
        QVERIFY(!first.form.isOpen());
        QCOMPARE(first.world.inserter.inserted.size(), 1);
        const Wizard second;
        second.form.key(Qt::Key_Escape);
        QVERIFY(!second.form.isOpen());
        QVERIFY(second.world.inserter.inserted.isEmpty());
    }

    void returnInATypedListInserts()
    {
        const Wizard wizard;
        wizard.form.type(u"Combo5"_s, u"char"_s);
        wizard.form.key(Qt::Key_Return);
        QVERIFY(!wizard.form.isOpen());
        QCOMPARE(wizard.world.inserter.inserted.size(), 1);
    }

    void swatches_data()
    {
        QTest::addColumn<QString>("field");
        for (const QString &field : {u"Text8"_s, u"bordercol"_s, u"lightcol"_s, u"darkcol"_s})
            QTest::newRow(qPrintable(field)) << field;
    }

    void swatches()
    {
        QFETCH(QString, field);
        Wizard wizard;
        const auto &swatch = wizard.form.get<ColourSwatch>(field + u"Swatch"_s);
        wizard.world.prompts.expectColour(0xffffff, std::nullopt);
        wizard.form.press(swatch.objectName());
        QCOMPARE(wizard.form.value(field), u"Default"_s);
        // By keyboard: the swatch comes right behind its field.
        wizard.form.get(field).setFocus();
        wizard.form.key(Qt::Key_Tab);
        QCOMPARE(wizard.form.focus(), swatch.objectName());
        wizard.world.prompts.expectColour(0xffffff, 0x0080ff);
        wizard.form.key(Qt::Key_Space);
        QCOMPARE(wizard.form.value(field), u"#FF8000"_s);
        QCOMPARE(swatch.colour(), QColor(0xff, 0x80, 0));
        QVERIFY(wizard.world.prompts.verify());
    }
};

ZEPHIRA_TEST(TstFrmTable)

#include "tst_frmtable.moc"
