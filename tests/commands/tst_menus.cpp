// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/icons.h"
#include "commands/menus.h"
#include "commands/menutable.h"
#include "commands/tagsmenu.h"
#include "support/fakes.h"
#include "support/testregistry.h"

#include <QAction>
#include <QGuiApplication>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

Command commandOf(const QString &name)
{
    const MenuItem *item = findMenuItem(name);
    return item ? item->command : Command{InsertsTag{findTagsEntry(name)}};
}

struct Window {
    QMainWindow window;
    Menus menus{window.menuBar(), &window};
};

/// One line per entry: indentation, name, caption, shortcut and marks. Entries without a name are left out.
void list(const QList<QAction *> &actions, int depth, QStringList &lines)
{
    for (const QAction *action : actions) {
        const QMenu *menu = action->menu();
        const QString name = menu ? menu->objectName() : action->objectName();
        if (name.isEmpty())
            continue;
        QString line = QString(depth * 2, u' ') + name;
        if (action->isSeparator())
            line += u" ---"_s;
        else
            line += u" \""_s + action->text() + u'"';
        if (!action->shortcut().isEmpty())
            line += u' ' + action->shortcut().toString(QKeySequence::PortableText);
        if (action->isCheckable())
            line += u" check"_s;
        if (!action->isEnabled())
            line += u" disabled"_s;
        lines.append(line);
        if (menu)
            list(menu->actions(), depth + 1, lines);
    }
}

} // namespace

class TstMenus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tree();
    void popups();
    void everyNameIsFoundOnce();
    void entriesReportTheirCommands();
    void shortcutsFireOnce_data();
    void shortcutsFireOnce();
    void checkMarksAreTheCommandsToSet();
    void everyCommandHasAStatusTip();
    void iconsComeWithTheFirstOpening();
};

void TstMenus::tree()
{
    Window w;
    QStringList lines;
    list(w.window.menuBar()->actions(), 0, lines);
    const QStringList expected = uR"~(mnufile "&File"
  new "&New..."
    mnufromtemp "From Template" Ctrl+T
    mnunewdoc "Blank Document" Ctrl+N
    mnunewwindow "Window" F12
  open "&Open Document" Ctrl+O
  save "&Save Document" Ctrl+S
  saveas "Save Document &As"
  mnusavetemplate "Save Document as &Template"
  print "&Print" Ctrl+P
  clearclip "&Clear Clipboard"
  exit "&Exit"
edit "&Edit"
  undo "&Undo" Ctrl+Z
  redo "&Redo" Ctrl+Y
  cut "C&ut" Ctrl+X
  copy "&Copy" Ctrl+C
  paste "&Paste" Ctrl+V
  delete "&Delete" Del
  find "&Find" Ctrl+F
  findnext "Find &Next" F3
  mnreplace "&Replace" Ctrl+R
  goto "&Go To..." Ctrl+G
  selectall "&Select All" Ctrl+A
  Timedate "&Time/Date" F5
  mnunextview "Next View" F8
tools "&Tools"
  mnuascwiz "Ascii Wizard"
  mnucp "Color Picker"
  colors "&Color Spy"
  mnucw "Cookie Wizard"
  mnuddg "Drop Down Generator"
  mnuformwiz "Form Wizard"
  mnufsc "Format Source Code"
    mnufcomp "Compact"
    mnuformath "Hierarchical"
    mnufsimple "Simple"
  mnuframewiz "Frames Wizard"
  mnuftpclient "&FTP Client"
  mnuimw "Image Wizard"
  mnuinsbreakd "Insert Break..."
  mnule "&Link Extractor"
  mnumw "Marquee Wizard"
  mnuaspredirect "Meta Redirect"
  mnumtw "Meta Tag Wizard"
  mnutblwiz "Table Wizard"
  mnuthw "&Text File to HTML Wizard"
  mnutextwiz "Text Wizard"
  mnuvbsw "VB Statement Wizard"
  webview "&Web Source Viewer" Ctrl+W
options "&Options"
  main "Main Options"
  highlightlines "&Highlighted Lines" Ctrl+H check
  fileassociations "&Setup File Associations"
  font "&Font" F7
  mnuviewtip "View Tip of The Day" check
Tags "&Fast Web Tags"
  StartTag "&Start Tag <>" Shift+Del
  EndTag "&End Tag </>"
  Anchor "&Anchor"
  Image "&Image"
  Bold "&Bold"
  Italic "&Italic"
  FoSizeoneplus "Font Size +1"
  FoSize1Minus "&Font Size -1"
  Block "&Blockquote"
  Break "&Break"
  Center "&Center"
  Comment "&Comment"
  HorRule "&Horizontal Rule"
  nobreak "&Non Breaking Break (Space)"
  Paragraph "&Paragraph"
  Head1 "&Heading 1"
  head2 "&Heading 2"
  head3 "&Heading 3"
  tagwiz "&Advanced Tag Wizard"
mnuplugins "Plugins"
  mnupluginoptions_0 "No Plugins Installed" disabled
help "&Help"
  helpme "&General Help" F1
  readme "&Readme"
  mnuupdate "Update Zephira."
  website "Zephira Website"
  about "&About" F6
mnusep "|" disabled
View "&View" disabled
  ViewSub_0 "Borders" check
  ViewSub_1 "Document Details" check
  ViewSub_2 "Preview" check
  ViewSub_10 "Snap to Grid" check
Insert "&Insert" disabled
  InsertSub_0 "Picture"
  InsertSub_1 "Anchor"
  InsertButton "Insert &Button"
  InsertHTML "Insert &HTML..."
Format "F&ormat" disabled
  FormatSub_0 "" check
  FormatSub_1 "" check
  FormatSub_2 "" check
  FormatSub_3 "" check
  FormatSub_4 "" check
  FormatSub_5 "" check
  FormatSub_6 "" check
  FormatSub_7 "" check
  FormatSub_8 "" check
  FormatSub_9 "" check
  FormatSub_10 "" check
  FormatSub_11 "" check
  FormatSub_12 "" check
  FormatSub_13 "" check
  FormatSub_14 "" check
  FormatSub_15 "" check
Table "T&able" disabled
  TableSub_0 "Insert Table"
  TableSub_1 ---
  TableSub_2 "Insert Row"
  TableSub_3 "Insert Collumn"
  TableSub_4 "Insert Cell"
  TableSub_5 ---
  TableSub_6 "Delete Rows"
  TableSub_7 "Delete Collumns"
  TableSub_8 "Delete Cells"
  TableSub_9 ---
  TableSub_10 "Merge Cells"
  TableSub_11 "Split Cell"
d2d "&2D" disabled
  D2DSub_0 "Set position to absolute"
  D2DSub_1 "Bring to front"
  D2DSub_2 "Send to back"
  D2DSub_3 "Bring forward"
  D2DSub_4 "Send back"
  D2DSub_5 "Bring above text"
  D2DSub_6 "Send below text"
  D2DSub_7 ---
  D2DSub_8 "Lock element" check)~"_s.split(u'\n');
    QCOMPARE(lines.join(u'\n'), expected.join(u'\n'));
}

void TstMenus::popups()
{
    Window w;
    QStringList lines;
    for (const QString &name : {u"mnuhid"_s, u"mnuspell"_s, u"cmenu"_s}) {
        QMenu *menu = w.menus.menu(name);
        QVERIFY(menu);
        QVERIFY(!w.window.menuBar()->actions().contains(menu->menuAction()));
        list({menu->menuAction()}, 0, lines);
    }
    QCOMPARE(lines.join(u'\n'), uR"(mnuhid "hid"
  mnufilerc "filerc"
    mnuqv "QuickView"
    mnuinslink "Insert Link to this file"
    mnuef "Edit Filters"
mnuspell "Spelling"
  sug_0 "- Spelling Suggestions -" disabled
cmenu "cmenu"
  mnuaddcentry "Add Entry")"_s);
}

void TstMenus::everyNameIsFoundOnce()
{
    Window w;
    QStringList names;
    const QList<QObject *> objects = w.window.menuBar()->findChildren<QObject *>();
    for (const QObject *object : objects) {
        const bool isEntry = qobject_cast<const QAction *>(object) || qobject_cast<const QMenu *>(object);
        if (isEntry && !object->objectName().isEmpty() && !object->objectName().startsWith(u"qt_"))
            names.append(object->objectName());
    }
    const QSet<QString> unique(names.begin(), names.end());
    QCOMPARE(unique.size(), names.size());
    QCOMPARE(w.window.findChild<QAction *>(u"save"_s), w.menus.action(u"save"_s));
    QCOMPARE(w.window.findChild<QMenu *>(u"mnufilerc"_s), w.menus.menu(u"mnufilerc"_s));
    QVERIFY(!w.menus.action(u"mnufile"_s));
    QVERIFY(!w.menus.menu(u"save"_s));
}

void TstMenus::entriesReportTheirCommands()
{
    Window w;
    QSignalSpy chosen(&w.menus, &Menus::chosen);
    for (const QString &name : {u"save"_s, u"Bold"_s, u"mnufcomp"_s, u"mnuqv"_s, u"FormatSub_3"_s}) {
        w.menus.action(name)->trigger();
        QCOMPARE(chosen.size(), 1);
        QCOMPARE(chosen.takeFirst().first().value<Command>(), commandOf(name));
    }
}

void TstMenus::shortcutsFireOnce_data()
{
    QTest::addColumn<QString>("shortcut");
    QTest::addColumn<QString>("name");
    QTest::newRow("Del") << u"Del"_s << u"delete"_s;
    QTest::newRow("Shift+Del") << u"Shift+Del"_s << u"StartTag"_s;
    QTest::newRow("Ctrl+T") << u"Ctrl+T"_s << u"mnufromtemp"_s;
    QTest::newRow("Ctrl+W") << u"Ctrl+W"_s << u"webview"_s;
    QTest::newRow("Ctrl+H") << u"Ctrl+H"_s << u"highlightlines"_s;
    QTest::newRow("F1") << u"F1"_s << u"helpme"_s;
    QTest::newRow("F8") << u"F8"_s << u"mnunextview"_s;
    QTest::newRow("F12") << u"F12"_s << u"mnunewwindow"_s;
}

void TstMenus::shortcutsFireOnce()
{
    QFETCH(QString, shortcut);
    QFETCH(QString, name);
    Window w;
    w.window.show();
    QVERIFY(QTest::qWaitForWindowActive(&w.window));
    QSignalSpy chosen(&w.menus, &Menus::chosen);
    const QKeyCombination key = QKeySequence(shortcut)[0];
    QTest::keyClick(&w.window, key.key(), key.keyboardModifiers());
    QCOMPARE(chosen.size(), 1);
    QCOMPARE(chosen.first().first().value<Command>(), commandOf(name));
}

void TstMenus::checkMarksAreTheCommandsToSet()
{
    Window w;
    QAction *entry = w.menus.action(u"mnuviewtip"_s);
    bool seen = true;
    connect(&w.menus, &Menus::chosen, &w.window, [&] {
        seen = entry->isChecked();
        entry->setChecked(true);
    });
    entry->trigger();
    QVERIFY(!seen);
    QVERIFY(entry->isChecked());
}

void TstMenus::everyCommandHasAStatusTip()
{
    Window w;
    for (const QString &name : {u"mnufile"_s, u"edit"_s, u"tools"_s, u"options"_s, u"Tags"_s, u"help"_s}) {
        const QList<QAction *> entries = w.menus.menu(name)->actions();
        for (const QAction *entry : entries) {
            if (!entry->isSeparator() && !entry->menu())
                QVERIFY2(!entry->statusTip().isEmpty(), qPrintable(entry->objectName()));
        }
    }
    QCOMPARE(w.menus.action(u"Bold"_s)->statusTip(), u"Insert <b></b>"_s);
}

void TstMenus::iconsComeWithTheFirstOpening()
{
    IconTheme theme(*qGuiApp);
    Window w;
    QMenu *menu = w.menus.menu(u"edit"_s);
    QVERIFY(w.menus.action(u"undo"_s)->icon().isNull());
    Q_EMIT menu->aboutToShow();
    QVERIFY(!w.menus.action(u"undo"_s)->icon().isNull());
    QVERIFY(w.menus.action(u"save"_s)->icon().isNull());
}

ZEPHIRA_TEST(TstMenus)
#include "tst_menus.moc"
