// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/editoritems.h"
#include "settings/options.h"
#include "support/fakes.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// What is written when the colour of each item is 1000 plus its number, and the style of each item its number.
const QStringList writtenLooks = {
    u"[Colors] clr1fr=1014"_s,   u"[Colors] clr0fr=1002"_s,  u"[Colors] clr0bg=1003"_s,  u"[Colors] clr1bg=1015"_s,
    u"[Colors] clr2fr=1028"_s,   u"[Colors] clr2fr=1029"_s,  u"[Colors] clr4fr=1030"_s,  u"[Colors] clr5fr=1008"_s,
    u"[Colors] clr5bg=1009"_s,   u"[Colors] clr6fr=1001"_s,  u"[Colors] clr7fr=1026"_s,  u"[Colors] clr7bg=1027"_s,
    u"[Colors] clr8fr=1006"_s,   u"[Colors] clr8bg=1007"_s,  u"[Colors] clr9fr=1010"_s,  u"[Colors] clr9bg=1011"_s,
    u"[Colors] clr10fr=1012"_s,  u"[Colors] clr10bg=1013"_s, u"[Colors] clr11fr=1016"_s, u"[Colors] clr11bg=1017"_s,
    u"[Colors] clr14fr=1024"_s,  u"[Colors] clr14bg=1025"_s, u"[Colors] clr12fr=1022"_s, u"[Colors] clr12bg=1023"_s,
    u"[Colors] clr13fr=1020"_s,  u"[Colors] clr13bg=1021"_s, u"[Colors] clr15fr=1018"_s, u"[Colors] clr15bg=1019"_s,
    u"[Colors] clr16fr=1004"_s,  u"[Colors] clr16bg=1005"_s, u"[Colors] clr17fr=1000"_s, u"[font] bold=True"_s,
    u"[font] italic=False"_s,    u"[font] name=Mono"_s,      u"[font] size=10.5"_s,      u"[font] strikethrough=True"_s,
    u"[font] underline=False"_s, u"[Colors] clr1fnt=5"_s,    u"[Colors] clr5fnt=2"_s,    u"[Colors] clr7fnt=11"_s,
    u"[Colors] clr8fnt=1"_s,     u"[Colors] clr9fnt=3"_s,    u"[Colors] clr10fnt=4"_s,   u"[Colors] clr11fnt=6"_s,
    u"[Colors] clr14fnt=10"_s,   u"[Colors] clr12fnt=9"_s,   u"[Colors] clr13fnt=8"_s,   u"[Colors] clr15fnt=7"_s,
    u"[Colors] clr16fnt=0"_s,
};

const QStringList writtenOptions = {
    u"[options] highlight=1"_s,
    u"[options] linenumber=0"_s,
    u"[options] leftmargin=1"_s,
    u"[options] whitespace=1"_s,
    u"[options] selbounds=0"_s,
    u"[Filters] Filters= *.a;*b "_s,
    u"[ctab] 1=one"_s,
    u"[ctab] 2=two"_s,
    u"[ctab] 3="_s,
    u"[ctab] 4=four"_s,
    u"[ctab] 5=five"_s,
    u"[ctab] 6=six"_s,
    u"[Paths] IEPATH=/b/browser"_s,
    u"[server] root=/srv/"_s,
    u"[Startup] selprj=0"_s,
    u"[startup] rootsel=1"_s,
};

Options someOptions()
{
    Options options;
    options.highlightLine = true;
    options.leftMargin = true;
    options.whitespace = true;
    options.filters = u" *.a;*b "_s;
    options.customTabs = {u"one"_s, u"two"_s, {}, u"four"_s, u"five"_s, u"six"_s};
    options.browserPath = u"/b/browser"_s;
    options.serverRoot = u"/srv/"_s;
    options.startDialog = true;
    options.treeAtProject = true;
    return options;
}

void setLooks(FakeEditor &editor)
{
    for (int item = 0; item < colourItemTotal; ++item)
        editor.colours[item] = 1000U + static_cast<quint32>(item);
    for (int item = 0; item < fontStyleTotal; ++item)
        editor.fontStyles[item] = item;
    editor.font = {.name = u"Mono"_s, .size = 10.5, .bold = true, .strikethrough = true};
}

} // namespace

class TstOptions final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everythingIsWrittenInItsOrder()
    {
        TestContext world;
        setLooks(world.editor);
        QVERIFY(saveOptions(someOptions(), world.editor, world.configuration, world.settings).ok());
        QCOMPARE(world.configuration.log, writtenLooks + writtenOptions);
        QCOMPARE(world.settings.values,
                 (std::map<QString, QString>{{u"zephira/Options/Show Tips at Startup"_s, u"0"_s}}));
    }

    /// Each item is written to the row that it belongs to; only the vertical dividers go to the row above theirs.
    void eachItemBelongsToItsRow()
    {
        FakeEditor editor;
        setLooks(editor);
        std::map<Setting, int> expected;
        for (int row = 0; row < std::ssize(appearanceRows); ++row) {
            const AppearanceRow &items = appearanceRows[static_cast<std::size_t>(row)];
            const int keptRow = items.foreground == MarginDividerColour ? row - 1 : row;
            expected[colourSetting(keptRow, ColourPart::Foreground)] = 1000 + items.foreground;
            if (items.background != noItem)
                expected[colourSetting(row, ColourPart::Background)] = 1000 + items.background;
            if (items.fontStyle != noItem)
                expected[colourSetting(row, ColourPart::FontStyle)] = items.fontStyle;
        }
        std::map<Setting, int> found;
        const std::vector<SettingChange> changes = optionChanges({}, editor);
        for (const auto &[setting, value] : changes) {
            if (setting >= Setting::FirstColour)
                found[setting] = value.toInt();
        }
        QCOMPARE(found, expected);
    }

    /// "No colour" is a negative number in the file.
    void coloursAreSigned()
    {
        FakeEditor editor;
        setLooks(editor);
        editor.colours[CommentFore] = automaticColour;
        editor.colours[BookmarkFore] = 0xfffffe;
        const std::vector<SettingChange> changes = optionChanges({}, editor);
        QCOMPARE(changes[0].value, u"-1"_s);
        QCOMPARE(changes[1].value, u"16777214"_s);
    }

    void theHorizontalDividersTakeTheVerticalOnes()
    {
        TestContext world;
        world.configuration.put(u"Colors"_s, u"clr2fr"_s, u"1"_s);
        world.configuration.put(u"Colors"_s, u"clr3fr"_s, u"2"_s);
        setLooks(world.editor);
        QVERIFY(saveOptions({}, world.editor, world.configuration, world.settings).ok());
        QCOMPARE(world.configuration.value(u"Colors"_s, u"clr2fr"_s), u"1029"_s);
        QCOMPARE(world.configuration.value(u"Colors"_s, u"clr3fr"_s), u"2"_s);
    }

    void theStartDialogFollowsTheTips_data()
    {
        QTest::addColumn<bool>("tips");
        QTest::addColumn<bool>("dialog");
        QTest::addColumn<QString>("written");
        QTest::newRow("both") << true << true << u"1"_s;
        QTest::newRow("tips") << true << false << u"1"_s;
        QTest::newRow("dialog") << false << true << u"0"_s;
        QTest::newRow("neither") << false << false << u"0"_s;
    }

    void theStartDialogFollowsTheTips()
    {
        QFETCH(bool, tips);
        QFETCH(bool, dialog);
        QFETCH(QString, written);
        TestContext world;
        Options options;
        options.showTips = tips;
        options.startDialog = dialog;
        QVERIFY(saveOptions(options, world.editor, world.configuration, world.settings).ok());
        QCOMPARE(world.configuration.value(u"startup"_s, u"selprj"_s), written);
        QCOMPARE(world.settings.values.at(u"zephira/Options/Show Tips at Startup"_s), written);
    }

    void fourTakeEffectAtOnce()
    {
        TestContext world;
        world.editor.leftMarginShown = false;
        Options options;
        options.whitespace = options.lineNumbers = options.leftMargin = options.selectionBounds = true;
        options.highlightLine = true;
        QVERIFY(saveOptions(options, world.editor, world.configuration, world.settings).ok());
        QVERIFY(world.editor.whitespaceShown && world.editor.linesNumbered);
        QVERIFY(world.editor.leftMarginShown && world.editor.selectionBound);
        QCOMPARE(world.editor.highlighted, -1);
        QVERIFY(saveOptions({}, world.editor, world.configuration, world.settings).ok());
        QVERIFY(!world.editor.whitespaceShown && !world.editor.linesNumbered);
        QVERIFY(!world.editor.leftMarginShown && !world.editor.selectionBound);
    }

    void whatIsSavedIsLoaded()
    {
        TestContext world;
        Options options = someOptions();
        for (const bool on : {true, false}) {
            for (bool Options::*value :
                 {&Options::highlightLine, &Options::lineNumbers, &Options::leftMargin, &Options::whitespace,
                  &Options::selectionBounds, &Options::showTips, &Options::treeAtProject}) {
                options.*value = on;
                QVERIFY(saveOptions(options, world.editor, world.configuration, world.settings).ok());
                options.startDialog = options.showTips;
                QVERIFY(loadOptions(world.configuration, world.settings) == options);
            }
        }
    }

    void whatIsMissing()
    {
        const TestContext world;
        Options expected;
        expected.showTips = true;
        QVERIFY(loadOptions(world.configuration, world.settings) == expected);
    }

    void theTreeBeginsAtTheRootUnlessItIsOne_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<bool>("atProject");
        QTest::newRow("1") << u"1"_s << true;
        QTest::newRow("2") << u"2"_s << false;
        QTest::newRow("3") << u"3"_s << false;
        QTest::newRow("nonsense") << u"one"_s << false;
        QTest::newRow("nothing") << QString() << false;
    }

    void theTreeBeginsAtTheRootUnlessItIsOne()
    {
        QFETCH(QString, stored);
        TestContext world;
        world.configuration.put(u"startup"_s, u"rootsel"_s, stored);
        QTEST(loadOptions(world.configuration, world.settings).treeAtProject, "atProject");
    }

    void aFailureChangesNothing()
    {
        TestContext world;
        world.configuration.writable = false;
        Options options = someOptions();
        options.showTips = true;
        const Result<void> saved = saveOptions(options, world.editor, world.configuration, world.settings);
        QCOMPARE(saved.error().sentence, u"The settings could not be saved."_s);
        QVERIFY(world.configuration.log.isEmpty());
        QVERIFY(world.settings.values.empty());
        QVERIFY(!world.editor.whitespaceShown);
    }
};

ZEPHIRA_TEST(TstOptions)
#include "tst_options.moc"
