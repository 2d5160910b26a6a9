// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editorcommandlist.h"
#include "app/windowbench.h"
#include "commands/menus.h"
#include "commands/palette.h"
#include "core/designer.h"
#include "core/documenthost.h"
#include "core/languages.h"
#include "editor/codemaxglobals.h"
#include "support/testregistry.h"

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QListView>
#include <QSet>
#include <QStackedWidget>
#include <QTest>
#include <QTimer>
#include <QToolBar>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

const QString place = u"zephira/CommandUses/"_s;

/// The visible window with the list of commands.
struct PaletteBench : WindowBench {
    PaletteBench()
    {
        start();
        window->context().document.setLanguageRow(language::Html);
        window->show();
        activate();
        window->rt().setFocus();
    }

    void activate() const
    {
        window->activateWindow();
        if (!QTest::qWaitForWindowActive(window.get()))
            qFatal("the window doesn't become active");
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(window->windowHandle(), key, modifiers);
    }
    void open() const { press(Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier); }
    bool isOpen() const
    {
        const auto *popup = window->findChild<QWidget *>(u"pickPopup"_s);
        return popup && popup->isVisible();
    }
    QListView &list() const { return *find<QListView>(u"lstpick"_s); }
    void type(const QString &text) const { QTest::keyClicks(QApplication::focusWidget(), text); }

    QString textOf(int row, int role = Qt::DisplayRole) const
    {
        return list().model()->index(row, 0).data(role).toString();
    }
    /// The captions in the list.
    QStringList captions() const
    {
        QStringList found;
        for (int row = 0; row < list().model()->rowCount(); ++row)
            found.append(textOf(row));
        return found;
    }
    /// What the row with a caption says, or a null string.
    QString said(const QString &caption) const
    {
        const auto row = captions().indexOf(caption);
        return row < 0 ? QString() : textOf(static_cast<int>(row), Qt::AccessibleTextRole);
    }

    /// Runs the best match.
    void run(const QString &typed) const
    {
        open();
        type(typed);
        press(Qt::Key_Return);
        QCoreApplication::processEvents();
    }

    /// The form that the best match opens, which is closed again.
    QString formOpenedBy(const QString &typed) const
    {
        QString opened;
        QTimer closer;
        QObject::connect(&closer, &QTimer::timeout, &closer, [&] {
            if (QWidget *form = QApplication::activeModalWidget()) {
                opened = form->objectName();
                form->close();
            }
        });
        closer.start(0);
        run(typed);
        for (int i = 0; i < 20 && opened.isEmpty(); ++i)
            QTest::qWait(5);
        activate();
        return opened;
    }
};

} // namespace

/// The list of all commands in the real window.
class TstCommandPalette final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void opensAndLeaves()
    {
        const PaletteBench bench;
        QVERIFY(!bench.isOpen());
        bench.open();
        QVERIFY(bench.isOpen());
        QCOMPARE(QApplication::focusWidget()->objectName(), u"txtpick"_s);
        QVERIFY2(bench.list().model()->rowCount() > 250, qPrintable(QString::number(bench.list().model()->rowCount())));
        bench.press(Qt::Key_Escape);
        QVERIFY(!bench.isOpen());
        QVERIFY(bench.window->rt().hasFocus());
        QVERIFY(bench.settings.values.empty() || !bench.settings.values.begin()->first.startsWith(place));
    }

    void runsEachKindOfRow()
    {
        const PaletteBench bench;
        CodeMax &rt = bench.window->rt();
        QCOMPARE(bench.formOpenedBy(u"table wizard"_s), u"frmTables"_s);
        QVERIFY(bench.window->rt().hasFocus());
        rt.setText(u"word"_s);
        bench.run(u"select all"_s);
        QCOMPARE(rt.selText(), u"word"_s);
        // A toolbar, the tag menu, the tool palette, its headings, and the text's own menus and commands.
        bench.run(u"bold formatting"_s);
        QCOMPARE(rt.text(), u"<strong>word</strong>"_s);
        rt.setText({});
        bench.run(u"end tag"_s);
        QCOMPARE(rt.text(), u"</>"_s);
        rt.setText({});
        bench.run(u"bullet list"_s);
        QCOMPARE(rt.text(), u"<ul></ul>"_s);
        rt.setText({});
        bench.run(u"heading 3 palette"_s);
        QCOMPARE(rt.text(), u"<h3></h3>"_s);
        rt.setText(u"a\r\nb"_s);
        bench.run(u"join lines"_s);
        QCOMPARE(rt.text(), u"a b"_s);
        rt.setText(u"ABC"_s);
        rt.select({0, 0, 0, 3});
        bench.run(u"lower case"_s);
        QCOMPARE(rt.text(), u"abc"_s);
        QVERIFY(rt.hasFocus());
    }

    /// The same signal as a click, once.
    void goesTheWayOfAClick()
    {
        const PaletteBench bench;
        int menus = 0;
        QStringList tags;
        connect(&bench.window->menus(), &Menus::chosen, this, [&] { ++menus; });
        connect(bench.window->findChild<Palette *>(), &Palette::clicked, this,
                [&](const QuickTag &tag) { tags.append(tag.label.toString()); });
        bench.run(u"undo edit"_s);
        QCOMPARE(menus, 2); // The first one opened the list.
        bench.run(u"bullet list"_s);
        QCOMPARE(tags, QStringList{u"Bullet List"_s});
        QCOMPARE(menus, 3);
        // A button that stays pressed.
        bench.run(u"insert style selector"_s);
        QCOMPARE(tags.last(), u"Insert Style Selector"_s);
        QVERIFY(bench.window->findChild<Palette *>()->isSelectorPressed());
    }

    void rowsTellTheirKeysAndState()
    {
        const PaletteBench bench;
        bench.open();
        QCOMPARE(bench.said(u"Save Document"_s), u"Save Document, Ctrl+S, File \u2013 Save the document"_s);
        QCOMPARE(bench.said(u"Command Palette"_s),
                 u"Command Palette, Ctrl+Shift+P, Code view > Go To \u2013 Search for a command and run it"_s);
        QCOMPARE(bench.said(u"Go to the next bookmark"_s), u"Go to the next bookmark, F2, Code view"_s);
        QVERIFY(bench.said(u"Highlighted Lines"_s).startsWith(u"Highlighted Lines, Ctrl+H, Options, on \u2013 "_s));
        bench.press(Qt::Key_Escape);
        bench.press(Qt::Key_H, Qt::ControlModifier);
        bench.open();
        QVERIFY(bench.said(u"Highlighted Lines"_s).startsWith(u"Highlighted Lines, Ctrl+H, Options \u2013 "_s));
    }

    /// Keys that the user has chosen; a key of the text that a command has taken is no longer named there.
    void rowsTellTheUsersKeys()
    {
        PaletteBench bench;
        bench.settings.values[u"zephira/Keys/about"_s] = u"F2"_s;
        bench.start();
        bench.window->show();
        bench.activate();
        bench.open();
        QVERIFY(bench.said(u"About"_s).startsWith(u"About, F2, "_s));
        QCOMPARE(bench.said(u"Go to the next bookmark"_s), u"Go to the next bookmark, Code view"_s);
    }

    void whatIsDisabledSaysWhy()
    {
        const PaletteBench bench;
        bench.open();
        QVERIFY(bench.said(u"Insert Row"_s).startsWith(u"Insert Row, Only in the visual view \u2013 Table"_s));
        QVERIFY(bench.said(u"QuickView"_s).contains(u"Needs a file that is selected in the file list"_s));
        QVERIFY(bench.said(u"Add Entry"_s).contains(u"Belongs to what its menu was opened on"_s));
        QVERIFY(bench.said(u"Edit in TopStyle"_s).contains(u"Needs a program that this system doesn't have"_s));
        bench.type(u"insert row"_s);
        bench.press(Qt::Key_Return);
        QVERIFY(bench.isOpen());
        bench.press(Qt::Key_Escape);
        bench.window->context().document.setLanguageRow(language::Text);
        bench.open();
        QVERIFY(bench.said(u"Bold"_s).contains(u"Only in a document of a markup language"_s)
                || bench.said(u"Bold"_s).contains(u"for a markup language"_s));
    }

    /// The same command is one row.
    void nothingIsListedTwice()
    {
        const PaletteBench bench;
        bench.open();
        QStringList rows;
        for (int row = 0; row < bench.list().model()->rowCount(); ++row)
            rows.append(bench.textOf(row, Qt::AccessibleTextRole));
        QCOMPARE(QSet<QString>(rows.cbegin(), rows.cend()).size(), rows.size());
        QCOMPARE(bench.captions().count(u"Insert Link"_s), 0);
        QCOMPARE(bench.captions().count(u"Print"_s), 1);
    }

    void theMostUsedComeFirst()
    {
        PaletteBench bench;
        bench.settings.values[place + u"Toolbar_6_0"_s] = u"nonsense"_s;
        bench.settings.values[place + u"gone"_s] = u"7"_s;
        bench.run(u"undo edit"_s);
        bench.run(u"bullet list"_s);
        bench.run(u"undo edit"_s);
        QCOMPARE(bench.settings.values.at(place + u"undo"_s), u"2"_s);
        QCOMPARE(bench.settings.values.at(place + u"Toolbar_6_0"_s), u"1"_s);
        bench.open();
        QCOMPARE(bench.captions().first(2), (QStringList{u"Undo"_s, u"Bullet List"_s}));
        bench.press(Qt::Key_Escape);
        // They are kept for the next window.
        bench.start();
        bench.window->show();
        bench.activate();
        bench.open();
        QCOMPARE(bench.captions().first(2), (QStringList{u"Undo"_s, u"Bullet List"_s}));
    }

    void worksInEachView()
    {
        PaletteBench bench;
        auto *tabs = bench.find<QTabBar>(u"workspace"_s);
        bench.window->document().openAtStart(bench.write(u"site/page.html"_s, "<p>old</p>\r\n"));
        // The preview.
        tabs->setCurrentIndex(1);
        QVERIFY(!bench.window->rt().isVisible());
        bench.open();
        QVERIFY(bench.isOpen());
        QVERIFY(bench.said(u"Join Lines"_s).contains(u"Only in the code view"_s));
        QVERIFY(bench.said(u"Meta Redirect"_s).contains(u"Only in the code view"_s));
        QVERIFY(bench.said(u"Go to the next bookmark"_s).contains(u"Only in the code view"_s));
        bench.press(Qt::Key_Escape);
        bench.run(u"next view"_s);
        QCOMPARE(tabs->currentIndex(), 2);
        // The designer: its commands run, and those of the tool palette write into the page.
        FakeDesigner &designer = bench.webViews.designer;
        QVERIFY(bench.window->context().designer.isShowing());
        designer.events.documentComplete();
        bench.open();
        QVERIFY(!bench.said(u"Insert Row"_s).contains(u"Only in"_s));
        bench.type(u"insert row"_s);
        bench.press(Qt::Key_Return);
        QTRY_COMPARE(designer.commands.empty() ? -1 : designer.commands.back(),
                     static_cast<int>(DesignerCommand::InsertRow));
        bench.run(u"bullet list"_s);
        QCOMPARE(designer.pasted.isEmpty() ? QString() : designer.pasted.last(), u"<ul></ul>"_s);
        // What the page doesn't allow here.
        designer.statuses[DesignerCommand::InsertRow] = 1;
        bench.open();
        QVERIFY(bench.said(u"Insert Row"_s).contains(u"Not possible here"_s));
        bench.press(Qt::Key_Escape);
        // One command, two ways: the entry of the tools is closed, the palette's button isn't.
        QCOMPARE(bench.formOpenedBy(u"image wizard"_s), u"ImageWizard"_s);
    }

    void pluginsAreListed()
    {
        PaletteBench bench;
        bench.window->menus().action(u"mnupluginoptions_0"_s)->setText(u"Filler"_s);
        bench.window->menus().action(u"mnupluginoptions_0"_s)->setData(u"filler"_s);
        bench.open();
        QVERIFY(bench.captions().contains(u"Filler"_s));
        bench.press(Qt::Key_Escape);
        bench.window->menus().action(u"mnupluginoptions_0"_s)->setData({});
        bench.open();
        QVERIFY(!bench.captions().contains(u"Filler"_s));
    }

    /// From the text's own menu, too.
    void opensByItsEntry()
    {
        const PaletteBench bench;
        bench.choose(u"textCommandPalette"_s);
        QVERIFY(bench.isOpen());
    }

    /// The code view's own commands, each once, none of which has an entry in a menu.
    void editorCommands()
    {
        const PaletteBench bench;
        const std::vector<EditorCommandRow> rows =
            editorCommandRows(bench.window->rt().globals(), {u"F2"_s, u"Ctrl++"_s});
        QSet<QString> captions;
        for (const EditorCommandRow &row : rows) {
            QVERIFY(!row.caption.isEmpty());
            captions.insert(row.caption);
        }
        QCOMPARE(captions.size(), static_cast<qsizetype>(rows.size()));
        QVERIFY(!captions.contains(u"Find"_s));
        const auto keysOf = [&](const QString &caption) {
            return std::ranges::find(rows, caption, &EditorCommandRow::caption)->keys;
        };
        QCOMPARE(keysOf(u"Go to the next bookmark"_s), QString());
        QCOMPARE(keysOf(u"Go to the previous bookmark"_s), u"Shift+F2"_s);
        QCOMPARE(keysOf(u"Larger text"_s), u"Ctrl+Shift++"_s);
    }

    void keepsUp()
    {
        const PaletteBench bench;
        QElapsedTimer timer;
        timer.start();
        bench.open();
        qInfo("opened in %lld ms", timer.elapsed());
        timer.start();
        bench.type(u"i"_s);
        qInfo("a key in %lld ms", timer.elapsed());
        QVERIFY(timer.elapsed() < 500);
    }
};

ZEPHIRA_TEST(TstCommandPalette)

#include "tst_commandpalette.moc"
