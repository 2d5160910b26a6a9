// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/commandlist.h"
#include "commands/menukeys.h"
#include "commands/palettetable.h"
#include "commands/toolbartable.h"
#include "support/testregistry.h"
#include "views/designercommands.h"

#include <QSet>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

using Home = CommandWay::Home;

ListedCommand commandNamed(const QString &name)
{
    const std::vector<ListedCommand> commands = listedCommands();
    const auto found = std::ranges::find(commands, name, &ListedCommand::name);
    return found == commands.end() ? ListedCommand{} : *found;
}

/// All ways of all commands.
std::vector<CommandWay> allWays()
{
    std::vector<CommandWay> ways;
    const std::vector<ListedCommand> commands = listedCommands();
    for (const ListedCommand &command : commands)
        std::ranges::copy(command.ways, std::back_inserter(ways));
    return ways;
}

bool hasWay(const std::vector<CommandWay> &ways, Home home, const QString &name)
{
    return std::ranges::any_of(ways, [&](const CommandWay &way) { return way.home == home && way.name == name; });
}

} // namespace

/// The list of all commands, made of the rows of menus, toolbars and palette.
class TstCommandList final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void entries_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("caption");
        QTest::addColumn<QString>("place");
        QTest::addColumn<QString>("tip");
        const auto row = [](const QString &name, const QString &caption, const QString &place, const QString &tip) {
            QTest::newRow(qPrintable(name)) << name << caption << place << tip;
        };
        row(u"save"_s, u"Save Document"_s, u"File"_s, u"Save the document"_s);
        row(u"mnunewdoc"_s, u"Blank Document"_s, u"File > New"_s, u"Start an empty document"_s);
        row(u"StartTag"_s, u"Start Tag <>"_s, u"Fast Web Tags"_s, u"Insert <>"_s);
        row(u"textJoinLines"_s, u"Join Lines"_s, u"Code view > Lines"_s,
            u"Make one line of the selected lines, or of this one and the next"_s);
        row(u"Toolbar1_bold"_s, u"Bold"_s, u"Formatting toolbar"_s, {});
        row(u"Toolbar1_pidb"_s, u"Preview in default browser"_s, u"Formatting toolbar > Preview the document"_s,
            u"Save and show the document in the default browser"_s);
        row(u"Toolbar_1_head"_s, u"Insert Head Tag"_s, u"Tool palette > Common"_s, u"Insert <head> </head>"_s);
        row(u"Toolbar_6_0"_s, u"Bullet List"_s, u"Tool palette > Lists"_s, u"Insert <ul></ul>"_s);
        row(u"Toolbar_2_headings3"_s, u"Heading 3"_s, u"Tool palette > Text"_s,
            u"Format Selected Text as Heading Size..."_s);
        row(u"mnuqv"_s, u"QuickView"_s, u"Menu of the file list"_s, u"Show the file without opening it"_s);
    }

    void entries()
    {
        QFETCH(QString, name);
        const ListedCommand command = commandNamed(name);
        QTEST(command.caption, "caption");
        QTEST(command.place, "place");
        QTEST(command.tip, "tip");
    }

    /// What needs the menu needs the entry too, unless the entry has a need of its own.
    void needs()
    {
        QCOMPARE(commandNamed(u"mnutblwiz"_s).ways.front().need, Need::SourceView);
        QCOMPARE(commandNamed(u"TableSub_2"_s).ways.front().need, Need::VisualView);
        QCOMPARE(commandNamed(u"InsertButton"_s).ways.front().need, Need::PageText);
        QCOMPARE(commandNamed(u"save"_s).ways.front().need, Need::Nothing);
        QCOMPARE(commandNamed(u"textJoinLines"_s).ways.front().need, Need::SourceView);
        QCOMPARE(commandNamed(u"textCommandPalette"_s).ways.front().need, Need::Nothing);
    }

    /// A button that does what an entry does is another way to the entry.
    void buttonsLikeEntries()
    {
        const ListedCommand command = commandNamed(u"mnunewdoc"_s);
        QCOMPARE(command.ways, (std::vector<CommandWay>{{Home::Menu, u"mnunewdoc"_s}, {Home::Standard, u"new"_s}}));
        QCOMPARE(command.others, QStringList{u"New document"_s});
    }

    /// So is what opens the same form, runs the same function or writes the same markup.
    void sameEffects()
    {
        const ListedCommand image = commandNamed(u"mnuimw"_s);
        QCOMPARE(image.caption, u"Image Wizard"_s);
        QCOMPARE(image.others, QStringList{u"Insert Picture"_s});
        QCOMPARE(image.ways.size(), 2U);
        const ListedCommand preview = commandNamed(u"Toolbar1_preview"_s);
        QCOMPARE(preview.others, QStringList{u"In Zephira Browser"_s});
        const ListedCommand block = commandNamed(u"Block"_s);
        QCOMPARE(block.others, QStringList{u"Format text as a block quote"_s});
        QCOMPARE(block.ways.back().home, Home::Palette);
        QCOMPARE(commandNamed(u"helpme"_s).others, QStringList{u"Help"_s});
        // The tag editor on the page of images isn't the tag editor.
        QCOMPARE(commandNamed(u"Image"_s).ways.size(), 1U);
        QCOMPARE(commandNamed(u"tagwiz"_s).others, QStringList{u"Tag Wizard"_s});
        // Tidy tells something before its form opens.
        QCOMPARE(commandNamed(u"Toolbar_0_tidy"_s).ways.size(), 1U);
    }

    void eachStandsOnce()
    {
        const std::vector<ListedCommand> commands = listedCommands();
        QSet<QString> names;
        for (const ListedCommand &command : commands) {
            QVERIFY2(!names.contains(command.name), qPrintable(command.name));
            names.insert(command.name);
            QVERIFY(!command.ways.empty());
            QVERIFY2(!command.caption.isEmpty() || command.name.startsWith(u"FormatSub_"), qPrintable(command.name));
            QVERIFY(!command.place.isEmpty());
            QVERIFY2(!command.name.contains(u'/'), qPrintable(command.name));
        }
        QVERIFY2(commands.size() > 230, qPrintable(QString::number(commands.size())));
    }

    /// Every row that can be chosen is a way to some command.
    void noneIsMissing()
    {
        const std::vector<CommandWay> ways = allWays();
        const std::vector<CommandKey> entries = menuCommands();
        for (const CommandKey &entry : entries)
            QVERIFY2(hasWay(ways, Home::Menu, entry.name), qPrintable(entry.name));
        for (const auto &[table, home] :
             {std::pair(&standardToolBar(), Home::Standard), std::pair(&formattingToolBar(), Home::Formatting)}) {
            for (const ToolButton &button : table->buttons) {
                if (!button.key.isEmpty())
                    QVERIFY2(hasWay(ways, home, button.key.toString()), qPrintable(button.key.toString()));
                for (const PullDownEntry &row : button.pullDown)
                    QVERIFY2(hasWay(ways, home, row.key.toString()), qPrintable(row.key.toString()));
            }
        }
        for (const DesignerButton &button : designerButtons())
            QVERIFY2(hasWay(ways, Home::Designer, button.key.toString()), qPrintable(button.key.toString()));
        for (const QString &name : {u"mnuqv"_s, u"mnuinslink"_s, u"mnuef"_s, u"mnuaddcentry"_s})
            QVERIFY2(hasWay(ways, Home::Popup, name), qPrintable(name));
        int bar = 0;
        for (const PaletteToolbar &table : paletteToolbars()) {
            for (int position = 0; position < static_cast<int>(table.buttons.size()); ++position) {
                const TagKind kind = table.buttons[static_cast<std::size_t>(position)].kind;
                const auto is = [&](const CommandWay &way) {
                    return way.home == Home::Palette && way.bar == bar && way.position == position;
                };
                QCOMPARE(std::ranges::count_if(ways, is), kind != TagKind::Separator && kind != TagKind::Headings);
            }
            ++bar;
        }
        QCOMPARE(std::ranges::count(ways, Home::Heading, &CommandWay::home), 6);
    }

    void reasons()
    {
        QCOMPARE(whyDisabled(Home::Menu, Need::SourceView), u"Only in the code view"_s);
        QCOMPARE(whyDisabled(Home::Formatting, Need::Markup), u"Only in a document of a markup language"_s);
        QCOMPARE(whyDisabled(Home::Designer, Need::VisualView), u"Only in the visual view"_s);
        QCOMPARE(whyDisabled(Home::Menu, Need::QuickTags), u"Only in the code view, for a markup language"_s);
        QCOMPARE(whyDisabled(Home::Popup, Need::ListedFile), u"Needs a file that is selected in the file list"_s);
        QCOMPARE(whyDisabled(Home::Menu, Need::PageText), u"Not while an element of the page is selected as a whole"_s);
        QCOMPARE(whyDisabled(Home::Menu, Need::Plugin), u"Needs a plug-in"_s);
        QCOMPARE(whyDisabled(Home::Popup, Need::Nothing), u"Belongs to what its menu was opened on"_s);
        QCOMPARE(whyDisabled(Home::Palette, Need::Nothing), u"Needs a program that this system doesn't have"_s);
        QCOMPARE(whyDisabled(Home::Menu, Need::Nothing), u"Not possible here"_s);
    }
};

ZEPHIRA_TEST(TstCommandList)

#include "tst_commandlist.moc"
