// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/fakes.h"
#include "support/formkit.h"
#include "support/testregistry.h"
#include "views/registerforms.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// A form of the folder with fakes of its own.
struct Dialog {
    TestContext world;
    LivingForm form;

    explicit Dialog(const QString &name) : form(catalogue(), name, world) {}

    static FormCatalogue catalogue()
    {
        FormCatalogue forms;
        views::registerForms(forms, {}, {});
        return forms;
    }
};

const QString rowsMessage = u"Please specify a positive integer for the number of table rows."_s;
const QString columnsMessage = u"Please specify a positive integer for the number of table columns."_s;
const QString cellsMessage = u"Please specify a table of no more than 20000 cells."_s;

} // namespace

/// The two small dialogs of the designer.
class TstInsertDialogs final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTableBeginsWithTheDefaults()
    {
        const Dialog dialog(u"InsertTableDlg"_s);
        QCOMPARE(dialog.form.value(u"InsertTableDlg"_s), u"Insert Table"_s);
        QCOMPARE(dialog.form.value(u"Rows"_s), u"3"_s);
        QCOMPARE(dialog.form.value(u"Cols"_s), u"3"_s);
        QCOMPARE(dialog.form.value(u"TableAttrs"_s), InsertTableParam().tableAttributes);
        QCOMPARE(dialog.form.value(u"CellAttrs"_s), QString());
        QCOMPARE(dialog.form.value(u"TableCaption"_s), QString());
        QCOMPARE(dialog.form.focus(), u"Rows"_s);
    }

    void wrongNumbers_data()
    {
        QTest::addColumn<QString>("rows");
        QTest::addColumn<QString>("columns");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("focus");
        for (const char *wrong : {"", "0", "x", "-2", "1.5"}) {
            const QString text = QString::fromLatin1(wrong);
            QTest::addRow("rows '%s'", wrong) << text << u"2"_s << rowsMessage << u"Rows"_s;
            QTest::addRow("columns '%s'", wrong) << u"2"_s << text << columnsMessage << u"Cols"_s;
        }
        QTest::newRow("rows come first") << u"0"_s << u"0"_s << rowsMessage << u"Rows"_s;
        QTest::newRow("too many cells") << u"201"_s << u"100"_s << cellsMessage << u"Rows"_s;
        QTest::newRow("far too many cells") << u"32767"_s << u"32767"_s << cellsMessage << u"Rows"_s;
    }

    void wrongNumbers()
    {
        QFETCH(QString, rows);
        QFETCH(QString, columns);
        QFETCH(QString, message);
        Dialog dialog(u"InsertTableDlg"_s);
        dialog.form.type(u"Rows"_s, rows);
        dialog.form.type(u"Cols"_s, columns);
        dialog.world.prompts.expectTell(message, {}, Question::Icon::Critical);
        dialog.form.press(u"OkCmd"_s);
        QVERIFY(dialog.form.isOpen());
        QTEST(dialog.form.focus(), "focus");
        QVERIFY(dialog.world.designer.runs.empty());
    }

    void theTableIsInserted()
    {
        Dialog dialog(u"InsertTableDlg"_s);
        dialog.form.type(u"Rows"_s, u"2"_s);
        dialog.form.type(u"Cols"_s, u"4"_s);
        dialog.form.type(u"TableAttrs"_s, QString());
        dialog.form.type(u"CellAttrs"_s, u"align=right"_s);
        dialog.form.type(u"TableCaption"_s, u"Figures"_s);
        dialog.form.key(Qt::Key_Return);
        QVERIFY(!dialog.form.isOpen());
        QCOMPARE(dialog.world.designer.runs.size(), static_cast<std::size_t>(1));
        const FakeDesigner::Run &run = dialog.world.designer.runs.front();
        QCOMPARE(run.command, DesignerCommand::InsertTable);
        QCOMPARE(run.prompting, DesignerPrompting::DontPromptUser);
        QVERIFY(run.argument.value<InsertTableParam>()
                == (InsertTableParam{2, 4, QString(), u"align=right"_s, u"Figures"_s}));
    }

    void theLargestTable()
    {
        Dialog dialog(u"InsertTableDlg"_s);
        dialog.form.type(u"Rows"_s, u"200"_s);
        dialog.form.type(u"Cols"_s, u"100"_s);
        dialog.form.press(u"OkCmd"_s);
        QVERIFY(!dialog.form.isOpen());
        QCOMPARE(dialog.world.designer.runs.size(), static_cast<std::size_t>(1));
    }

    void noTable_data()
    {
        QTest::addColumn<bool>("byKey");
        QTest::newRow("Cancel") << false;
        QTest::newRow("Escape") << true;
    }

    void noTable()
    {
        QFETCH(bool, byKey);
        Dialog dialog(u"InsertTableDlg"_s);
        if (byKey)
            dialog.form.key(Qt::Key_Escape);
        else
            dialog.form.press(u"CancelCmd"_s);
        QVERIFY(!dialog.form.isOpen());
        QVERIFY(dialog.world.designer.runs.empty());
    }

    void markupIsPasted()
    {
        Dialog dialog(u"InsertHTMLDlg"_s);
        QCOMPARE(dialog.form.value(u"InsertHTMLDlg"_s), u"Insert HTML"_s);
        QCOMPARE(dialog.form.value(u"HTMLText"_s), u"<B> here's some <I>HTML</I></B>"_s);
        dialog.form.press(u"CmdOK"_s);
        QVERIFY(!dialog.form.isOpen());
        QCOMPARE(dialog.world.designer.pasted, QStringList{u"<B> here's some <I>HTML</I></B>"_s});
    }

    void typedMarkupIsPasted()
    {
        Dialog dialog(u"InsertHTMLDlg"_s);
        dialog.form.set(u"HTMLText"_s, u"<p>one\ntwo"_s);
        dialog.form.press(u"CmdOK"_s);
        QCOMPARE(dialog.world.designer.pasted, QStringList{u"<p>one\ntwo"_s});
    }

    void noMarkup()
    {
        Dialog dialog(u"InsertHTMLDlg"_s);
        dialog.form.press(u"CmdCancel"_s);
        QVERIFY(!dialog.form.isOpen());
        QVERIFY(dialog.world.designer.pasted.isEmpty());
    }
};

ZEPHIRA_TEST(TstInsertDialogs)
#include "tst_insertdialogs.moc"
