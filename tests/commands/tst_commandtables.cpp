// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/menutable.h"
#include "commands/palettetable.h"
#include "commands/tagsmenu.h"
#include "commands/toolbartable.h"
#include "support/testregistry.h"

#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

/// The content of the tables, except for the texts that the commands insert.
class TstCommandTables : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesAreUnique();
    void shortcutsAreUnique();
    void paletteButtons();
    void formattingBarOrder();
    void tipsNameTheirKeys();
    void pullDowns();
    void designerMenus_data();
    void designerMenus();
};

namespace {

void collect(std::span<const MenuItem> items, QStringList &names, QStringList &shortcuts)
{
    for (const MenuItem &item : items) {
        if (!item.name.isEmpty())
            names.append(item.name.toString());
        if (!item.shortcut.isEmpty())
            shortcuts.append(item.shortcut.toString());
        collect(item.children, names, shortcuts);
    }
}

std::pair<QStringList, QStringList> menuNamesAndShortcuts()
{
    QStringList names;
    QStringList shortcuts;
    collect(menuBarTable(), names, shortcuts);
    collect(popupTable(), names, shortcuts);
    for (const QuickTag &tag : tagsMenu()) {
        names.append(tag.key.toString());
        if (!tag.shortcut.isEmpty())
            shortcuts.append(tag.shortcut.toString());
    }
    return {names, shortcuts};
}

} // namespace

void TstCommandTables::namesAreUnique()
{
    const QStringList names = menuNamesAndShortcuts().first;
    const QSet<QString> unique(names.begin(), names.end());
    QCOMPARE(unique.size(), names.size());
    for (const QString &name : names)
        QVERIFY2(findMenuItem(name) || findTagsEntry(name), qPrintable(name));
    QVERIFY(!findMenuItem(u""));
    QVERIFY(!findMenuItem(u"nothing"));
}

void TstCommandTables::shortcutsAreUnique()
{
    const QStringList shortcuts = menuNamesAndShortcuts().second;
    const QSet<QString> unique(shortcuts.begin(), shortcuts.end());
    QCOMPARE(unique.size(), shortcuts.size());
    QCOMPARE(shortcuts.size(), 25);
}

void TstCommandTables::paletteButtons()
{
    QStringList actual;
    for (const PaletteToolbar &bar : paletteToolbars()) {
        actual.append(bar.caption.toString());
        for (const QuickTag &tag : bar.buttons)
            actual.append(u"  "_s + tag.key.toString() + u" | "_s
                          + (tag.label.isEmpty() ? u"-"_s : tag.label.toString()));
    }
    const QStringList expected = uR"(Tools
  tidy | Tidy your HTML/XML code with Zepphira technology
  spell | Click for information on spelling
  color | Show color dialog
  imagemap | Create an Image map
  link | Insert Link
  maillink | Insert Mail Link
  help | Help
  options | Options dialog
Common
  paragraph | Paragraph
  comment | Comment
  break | Insert Break
  link | Insert Link
  sound | Insert a Sound into the document
  anchor | Insert an anchor
  doctype | Insert Doc Type tag
  html | Insert HTML tag
  head | Insert Head Tag
  meta | Insert Meta Tags Wizard
  title | Insert Title
  body | Insert Body Tags
  base | Base
  picture | Insert Picture
Text
  paragraph | Format Selected Text as Paragraph
  div | Format Selected Text as DIV
  span | Format Selected Text as SPAN
  big | Format Selected Text as Big
  small | Format Selected Text as Smaller
  headings | Format Selected Text as Heading Size...
  wizard | Text Wizard
  insert | Format Selected Text as inserted text
  pre | Format Selected Text as PRE
  tt | Format Selected Text as TelyType
  strike | Format Selected Text as Strike through
  address | Format text as Address
  block | Format text as a block quote
  define | Format Selected Text as DEFINE
  code | Format text as code
  cite | Format text as a cite
Tables
  table | Insert Table Dialog
  qtable | Quick Table
  td | Insert Table Data
  tr | Insert Table Row
  th | Insert Table Header
  tabletags | Insert Table Tags
Style
  styleblock | Insert Style Block
  selector | Insert Style Selector
  prop | Insert Style Property
  topstyle | Edit in TopStyle
Frames
  framewiz | View the Frames Wizard
  frameset | Insert a FRAMESET tag
  frame | Insert a FRAME tag
  base | Inserts a BASE TARGET tag
  iframe | Insert iFrame Dialog
  noframe | Insert NOFRAME tags
Lists
   | Bullet List
   | Definition
   | List
   | Menu List
   | Last Definition
   | Numbered List
   | Definition Term
Forms
   | Form Wizard
   | Form Tags
   | -
   | Button
   | Check Box
   | Option
   | Drop Down List
   | List
   | Form Image
   | -
   | Browse For...
   | Password
   | Text
   | Hidden
   | Text Area
   | -
   | Submit Button
   | Reset Button
Scripts
   | Java Applet
   | Define Javascript
   | No Script
   | Alert Dialog
   | Confirmation Dialog
   | Document.Write
   | Object / Event Tree
   | Active X Component
   | Embed Object
   | Insert Flash Support
   | Insert Shockwave Support
   | Insert DHTML Layer
CFML
   | Server Variables
   | If block
   | Else block
   | Else If Block
   | CFSET
   | CF Cookie
   | CF Query
   | CF Mail
   | CF File
   | CF DIRECTORY
   | CF Table
   | CF Column
   | Loop
   | Include
   | CF Location
   | CF OUT
   | ##
   | <!---  --->
   | CF Switch
   | CF Case
   | CF Default Case
   | CF Abort
   | Break
ASP
   | Include File
   | ASP Tag
   | Output Tag
   | If
   | End If
SSI
   | Include File
   | Execute CGI
   | Label
   | GoTo
   | Break)"_s.split(u'\n');
    QCOMPARE(actual, expected);
}

void TstCommandTables::formattingBarOrder()
{
    QStringList keys;
    for (const ToolButton &button : formattingToolBar().buttons)
        keys.append(button.key.toString());
    QCOMPARE(keys.size(), 15);
    // The buttons for all languages are at positions 13 to 15.
    QCOMPARE(keys.mid(12), (QStringList{u"specchars"_s, u"ftp"_s, u"reset"_s}));
    keys.removeAll(QString());
    QCOMPARE(keys,
             (QStringList{u"bold"_s, u"italic"_s, u"underline"_s, u"left"_s, u"center"_s, u"right"_s, u"preview"_s,
                          u"links"_s, u"htmltags"_s, u"loadtime"_s, u"specchars"_s, u"ftp"_s, u"reset"_s}));
    QCOMPARE(formattingToolBar().buttons.back().tip, QStringView(u"Discard Changes and Reload document"));
}

/// A button of the standard toolbar does the same as a menu entry, which has keys for its tip to name.
void TstCommandTables::tipsNameTheirKeys()
{
    for (const ToolButton &button : standardToolBar().buttons) {
        if (button.key.isEmpty())
            continue;
        QVERIFY(button.entry == (button.key == u"new" ? QStringView(u"mnunewdoc") : button.key));
        const MenuItem *item = findMenuItem(button.entry);
        QVERIFY(item);
        QVERIFY2(!item->shortcut.isEmpty(), qPrintable(button.key.toString()));
        QVERIFY2(!button.tip.contains(u'('), qPrintable(button.tip.toString()));
    }
}

void TstCommandTables::pullDowns()
{
    QStringList actual;
    for (const ToolButton &button : formattingToolBar().buttons) {
        for (const PullDownEntry &entry : button.pullDown)
            actual.append(button.key.toString() + u'/' + entry.key.toString() + u' ' + entry.caption.toString());
    }
    QCOMPARE(actual,
             (QStringList{u"preview/pie In Internet Explorer"_s, u"preview/pidb Preview in default browser"_s,
                          u"preview/picb In Zephira Browser"_s, u"links/linkwiz Link Wizard"_s,
                          u"links/linkextract Extract Links from Document"_s, u"htmltags/dtw Tag Wizard"_s,
                          u"htmltags/dts Tag Selector"_s, u"htmltags/dqw Quick Tags"_s}));
}

void TstCommandTables::designerMenus_data()
{
    QTest::addColumn<QString>("array");
    QTest::addColumn<QList<int>>("commands");
    QTest::newRow("InsertSub") << u"InsertSub"_s << QList<int>{5017, 5016};
    QTest::newRow("TableSub") << u"TableSub"_s
                              << QList<int>{5022, 0, 5021, 5020, 5019, 0, 5007, 5006, 5005, 0, 5029, 5047};
    QTest::newRow("D2DSub") << u"D2DSub"_s << QList<int>{5028, 5041, 5040, 5037, 5036, 5039, 5038, 0, 5027};
}

/// The commands of a menu array by its published numbers, 0 for a line. A table is asked for by a form.
void TstCommandTables::designerMenus()
{
    QFETCH(QString, array);
    QList<int> actual;
    while (const MenuItem *item = findMenuItem(u"%1_%2"_s.arg(array).arg(actual.size()))) {
        const auto *command = std::get_if<DesignerCommand>(&item->command.effect);
        actual.append(static_cast<int>(command ? *command : item->asks));
        QCOMPARE(item->kind == MenuItem::Kind::Divider, actual.back() == 0);
    }
    QTEST(actual, "commands");
}

ZEPHIRA_TEST(TstCommandTables)
#include "tst_commandtables.moc"
