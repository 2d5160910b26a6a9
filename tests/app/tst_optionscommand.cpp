// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/sidelists.h"
#include "app/windowbench.h"
#include "core/editoritems.h"
#include "core/itemroles.h"
#include "panes/customtabs.h"
#include "panes/filepane.h"
#include "settings/colourpresets.h"
#include "support/testregistry.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

#include <cerrno>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

using Work = std::function<void(QDialog &)>;

void click(const QDialog &form, const QString &button)
{
    auto *control = form.findChild<QAbstractButton *>(button);
    QVERIFY(control->isVisible());
    // Boxes are wider than what reacts to the mouse.
    QTest::mouseClick(control, Qt::LeftButton, {}, {10, control->height() / 2});
}

/// Clicks a page's node in the list.
void turnTo(const QDialog &form, const QString &key)
{
    auto *tree = form.findChild<QTreeWidget *>(u"TreeView1"_s);
    for (QTreeWidgetItemIterator node(tree); *node; ++node) {
        if ((*node)->data(0, KeyRole) == key) {
            QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualItemRect(*node).center());
            return;
        }
    }
    qFatal("no page has the key %s", qPrintable(key));
}

void type(const QDialog &form, const QString &field, const QString &text)
{
    auto *line = form.findChild<QLineEdit *>(field);
    QVERIFY(line->isVisible());
    line->selectAll();
    QTest::keyClicks(line, text);
}

/// Opens the dialog with a command and works it.
void inOptions(const WindowBench &bench, const Work &work)
{
    bool opened = false;
    QTimer::singleShot(0, bench.window.get(), [&] {
        auto *form = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (!form || form->objectName() != u"frmOptions")
            return;
        opened = true;
        work(*form);
        if (form->isVisible())
            form->reject();
    });
    bench.choose(u"main"_s);
    QVERIFY(opened);
}

/// The lines of the settings file that differ.
QStringList changedLines(const QByteArray &before, const QByteArray &after)
{
    const QByteArrayList old = before.split('\n');
    const QByteArrayList now = after.split('\n');
    QStringList changed;
    for (qsizetype i = 0; i < qMax(old.size(), now.size()); ++i) {
        if (old.value(i) != now.value(i))
            changed.append(QString::fromUtf8(now.value(i).trimmed()));
    }
    return changed;
}

} // namespace

/// The options in the real window: each one takes effect when it says so.
class TstOptionsCommand final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itOpensFromItsMenuAndItsButton()
    {
        WindowBench bench;
        bench.start().show();
        inOptions(bench, [](QDialog &form) { QCOMPARE(form.windowTitle(), u"Options"_s); });
        QString opened;
        QTimer::singleShot(0, bench.window.get(), [&opened] {
            QWidget *form = QApplication::activeModalWidget();
            opened = form->objectName();
            form->close();
        });
        bench.click(u"Toolbar_0"_s, u"options"_s);
        QCOMPARE(opened, u"frmOptions"_s);
    }

    /// What ships is also what the control has, so that saving it again changes no value but the dividers'.
    void savingAtOnceKeepsTheFile()
    {
        WindowBench bench;
        bench.start().show();
        const QByteArray before = WindowBench::read(bench.configuration.file());
        inOptions(bench, [](QDialog &form) { click(form, u"cmdOK"_s); });
        const QByteArray after = WindowBench::read(bench.configuration.file());
        const QString dividers = bench.configuration.value(colourSetting(3, ColourPart::Foreground));
        QCOMPARE(changedLines(before, after), QStringList{u"clr2fr="_s + dividers});
    }

    void theDisplayOptionsTakeEffectAtOnce()
    {
        WindowBench bench;
        frmmain &window = bench.start();
        window.show();
        const CodeMax &rt = window.rt();
        const auto shown = [&rt] {
            return QList<bool>{rt.lineNumbering(), rt.displayLeftMargin(), rt.displayWhitespace(), rt.selBounds()};
        };
        const QList<bool> before = shown();
        const int highlighted = rt.highlightedLine();
        inOptions(bench, [&](QDialog &form) {
            turnTo(form, u"Display Options"_s);
            for (const QString &box : {u"chkHighlight"_s, u"chkLine"_s, u"chkLeft"_s, u"chkWhite"_s, u"chkSel"_s}) {
                QTest::keyClick(form.findChild<QCheckBox *>(box), Qt::Key_Space);
            }
            QCOMPARE(shown(), before);
            click(form, u"Command2"_s);
            for (qsizetype i = 0; i < before.size(); ++i)
                QCOMPARE(shown()[i], !before[i]);
            // Cancel takes nothing back.
            click(form, u"cmdCancel"_s);
        });
        const QList<bool> after = shown();
        for (qsizetype i = 0; i < before.size(); ++i)
            QCOMPARE(after[i], !before[i]);
        QCOMPARE(window.highlightMode(), 1);
        QCOMPARE(rt.highlightedLine(), highlighted);
        frmmain &restarted = bench.start();
        QCOMPARE(restarted.highlightMode(), 0);
        QCOMPARE(restarted.rt().lineNumbering(), after[0]);
        QCOMPARE(restarted.rt().displayWhitespace(), after[2]);
        QCOMPARE(restarted.rt().selBounds(), after[3]);
    }

    void theOtherOptionsTakeEffectWhenTheyAreUsed()
    {
        WindowBench bench;
        bench.write(u"app/ctabs/mine.txt"_s, "Mine\r\nx\r\n");
        bench.start().show();
        inOptions(bench, [](QDialog &form) {
            turnTo(form, u"Filters"_s);
            type(form, u"Text1"_s, u"*.one"_s);
            turnTo(form, u"startup"_s);
            click(form, u"Check1"_s);
            click(form, u"Option1"_s);
            turnTo(form, u"paths"_s);
            type(form, u"c2path"_s, u"mine.txt"_s);
            type(form, u"iepath"_s, u"/b/browser"_s);
            type(form, u"rootpath"_s, u"/srv/"_s);
            QTest::keyClick(form.findChild<QLineEdit *>(u"rootpath"_s), Qt::Key_Return);
        });
        QCOMPARE(bench.settings.values.at(u"zephira/Options/Show Tips at Startup"_s), u"0"_s);
        QCOMPARE(bench.configuration.value(Setting::StartDialog), u"0"_s);
        QCOMPARE(bench.configuration.value(Setting::BrowserPath), u"/b/browser"_s);
        QCOMPARE(bench.configuration.value(Setting::ServerRoot), u"/srv/"_s);
        bench.window->sideLists().customTabs().load(2);
        QCOMPARE(bench.find<QTreeWidget>(u"c2"_s)->topLevelItemCount(), 1);
        QVERIFY(bench.window->filePane().fileList().pattern() != u"*.one"_s);
        QVERIFY(!bench.window->rootSelect());

        bench.start().show();
        QCOMPARE(bench.window->filePane().fileList().pattern(), u"*.one"_s);
        QVERIFY(bench.window->rootSelect());
    }

    /// The properties dialog stands in front of the options, and what it changes is written only by saving.
    void coloursAndFontAreTakenFromTheControl()
    {
        WindowBench bench;
        frmmain &window = bench.start();
        window.show();
        // Opened before by the context menu, it belongs to the window.
        window.rt().executeCmd(EditorCommand::PropertiesDialog);
        qobject_cast<QDialog *>(QApplication::activeModalWidget())->reject();
        const QByteArray before = WindowBench::read(bench.configuration.file());
        inOptions(bench, [&](QDialog &form) {
            click(form, u"Command1"_s);
            auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            QVERIFY(dialog && dialog != &form);
            QCOMPARE(dialog->parentWidget(), &form);
            dialog->reject();
            QCOMPARE(QApplication::activeModalWidget(), &form);
            window.rt().setColor(CommentFore, 0x123456);
            window.rt().setFontStyle(CommentFont, BoldStyle);
            FontChoice font = window.rt().editorFont();
            font.size = 17;
            window.rt().setEditorFont(font);
            QCOMPARE(WindowBench::read(bench.configuration.file()), before);
            click(form, u"cmdOK"_s);
        });
        frmmain &restarted = bench.start();
        QCOMPARE(restarted.rt().color(CommentFore), 0x123456U);
        QCOMPARE(restarted.rt().fontStyle(CommentFont), static_cast<int>(BoldStyle));
        QCOMPARE(restarted.rt().editorFont().size, 17.0);
    }

    /// All of it but the dividers, which have one key for two.
    void aPresetOutlivesARestart()
    {
        WindowBench bench;
        frmmain &window = bench.start();
        window.show();
        const auto choose = [&window](const QDialog &form, int row) {
            turnTo(form, u"Appearance"_s);
            auto *list = form.findChild<QListWidget *>(u"lstpresets"_s);
            QCOMPARE(list->currentRow(), 0);
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(row)).center());
            QCOMPARE(shownPreset(window.rt()), std::optional(row));
        };
        inOptions(bench, [&](QDialog &form) {
            choose(form, 4);
            form.close();
        });
        QCOMPARE(shownPreset(window.rt()), std::optional(0));
        inOptions(bench, [&](QDialog &form) {
            choose(form, 2);
            click(form, u"cmdOK"_s);
        });
        frmmain &restarted = bench.start();
        for (int item = 0; item < colourItemTotal; ++item) {
            if (item != MarginDividerColour)
                QCOMPARE(restarted.rt().color(item), colourPresets()[2].colours.at(static_cast<std::size_t>(item)));
        }
        QCOMPARE(restarted.rt().color(MarginDividerColour), shippedColours[MarginDividerColour]);
    }

    void aReadOnlyFileStaysWhole()
    {
        WindowBench bench;
        bench.start().show();
        const QString file = bench.configuration.file();
        const QByteArray before = WindowBench::read(file);
        QVERIFY(QFile::setPermissions(file, QFile::ReadOwner));
        failToSave(bench, u"it is read-only"_s);
        QCOMPARE(WindowBench::read(file), before);
    }

    void aFullDiskLeavesTheFileWhole()
    {
        WindowBench bench;
        bench.start().show();
        const QString file = bench.configuration.file();
        const QByteArray before = WindowBench::read(file);
        bench.configurationCalls.intervene = [](int, FileSystemCalls::Call call) {
            return call == FileSystemCalls::Call::Write ? ENOSPC : 0;
        };
        failToSave(bench, u"the disk is full"_s);
        QCOMPARE(WindowBench::read(file), before);
    }

private:
    /// The dialog says why and stays, with what was typed.
    static void failToSave(WindowBench &bench, const QString &reason)
    {
        inOptions(bench, [&](QDialog &form) {
            turnTo(form, u"Filters"_s);
            type(form, u"Text1"_s, u"*.mine"_s);
            bench.prompts.expectTell(
                u"The file \"%1\" could not be saved: %2."_s.arg(bench.configuration.file(), reason), u"Options"_s,
                Question::Icon::Exclamation);
            click(form, u"cmdOK"_s);
            QVERIFY(form.isVisible());
            QCOMPARE(form.findChild<QLineEdit *>(u"Text1"_s)->text(), u"*.mine"_s);
        });
        QVERIFY(!bench.settings.values.contains(u"zephira/Options/Show Tips at Startup"_s));
    }
};

ZEPHIRA_TEST(TstOptionsCommand)
#include "tst_optionscommand.moc"
