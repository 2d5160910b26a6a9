// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/fakes.h"
#include "support/testregistry.h"
#include "views/designerbarstate.h"
#include "views/designercommands.h"
#include "views/designertools.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

using Run = FakeDesigner::Run;
using enum DesignerPrompting;

struct Bench {
    TestContext world;
    FakeDesigner &designer = world.designer;
    DesignerTools tools{world};

    void makeReady()
    {
        tools.documentComplete();
        designer.runs.clear();
    }
};

} // namespace

/// How clicks in the designer's toolbar and menus become commands of the designer.
class TstDesignerTools final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void buttonsAreCrossed()
    {
        QStringList actual;
        for (const DesignerButton &button : designerButtons())
            actual.append(button.key.toString() + u' ' + QString::number(static_cast<int>(button.command)));
        QCOMPARE(actual,
                 (QStringList{u"Bold 5000"_s, u"Italic 5023"_s, u"Underline 5048"_s, u"Numbers 5030"_s,
                              u"Bullets 5051"_s, u"Outdent 5018"_s, u"Indent 5031"_s, u"LeftJustify 5025"_s,
                              u"Center 5024"_s, u"RightJustify 5026"_s, u"Color 5046"_s}));
    }

    void aButtonRunsItsCommand_data()
    {
        QTest::addColumn<DesignerCommand>("command");
        for (const DesignerButton &button : designerButtons()) {
            if (button.key != u"Color")
                QTest::newRow(qPrintable(button.key.toString())) << button.command;
        }
    }

    void aButtonRunsItsCommand()
    {
        QFETCH(DesignerCommand, command);
        Bench bench;
        bench.tools.click(command);
        QVERIFY(bench.designer.runs == std::vector<Run>({{command, Default, {}}}));
    }

    void theColourIsAskedForAndTurnedAround()
    {
        Bench bench;
        bench.world.prompts.expectColour(0, 0x0000ffu);
        bench.tools.click(DesignerCommand::SetForeColor);
        QVERIFY(bench.designer.runs == std::vector<Run>({{DesignerCommand::SetForeColor, Default, u"#FF0000"_s}}));
        bench.world.prompts.expectColour(0x0000ff, std::nullopt); // Cancelled.
        bench.tools.click(DesignerCommand::SetForeColor);
        QCOMPARE(bench.designer.runs.size(), static_cast<std::size_t>(1));
    }

    void colours_data()
    {
        QTest::addColumn<quint32>("number");
        QTest::addColumn<QString>("text");
        QTest::newRow("black") << 0u << u"#000000"_s;
        QTest::newRow("red is lowest") << 0xffu << u"#FF0000"_s;
        QTest::newRow("green") << 0xff00u << u"#00FF00"_s;
        QTest::newRow("blue") << 0xff0000u << u"#0000FF"_s;
        QTest::newRow("padded") << 0x10203u << u"#030201"_s;
        QTest::newRow("orange") << 0x0080ffu << u"#FF8000"_s;
        QTest::newRow("the highest byte doesn't count") << 0xff123456u << u"#563412"_s;
    }

    void colours()
    {
        QFETCH(quint32, number);
        QTEST(markupColour(number), "text");
    }

    void fontsHaveNoEffectBeforeTheFirstDocument()
    {
        Bench bench;
        bench.tools.chooseFont(u"Arial"_s);
        bench.tools.chooseFontSize(3);
        QCOMPARE(bench.tools.enterFontSize(u"3"_s), std::optional<QString>());
        QVERIFY(bench.designer.runs.empty());
        bench.makeReady();
        bench.tools.chooseFont(u"Arial"_s);
        QVERIFY(bench.designer.runs == std::vector<Run>({{DesignerCommand::SetFontName, Default, u"Arial"_s}}));
    }

    void theFirstDocumentTellsTheBlockFormats()
    {
        Bench bench;
        QStringList names;
        for (int i = 1; i <= 18; ++i)
            names.append(u"Format %1"_s.arg(i));
        bench.designer.results[DesignerCommand::GetBlockFormatNames] = names;
        QVERIFY(bench.tools.documentComplete());
        QCOMPARE(bench.tools.blockFormats(), names.mid(0, 16));
        QVERIFY(bench.designer.runs == std::vector<Run>({{DesignerCommand::GetBlockFormatNames, DontPromptUser, {}}}));
        QVERIFY(!bench.tools.documentComplete());
        QCOMPARE(bench.designer.runs.size(), static_cast<std::size_t>(1));
    }

    void fontsWaitForTheCommand_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<bool>("runs");
        QTest::newRow("not supported") << 0 << false;
        QTest::newRow("disabled") << 1 << false;
        QTest::newRow("enabled") << 3 << true;
        QTest::newRow("on") << 7 << true;
        QTest::newRow("mixed") << 11 << true;
    }

    void fontsWaitForTheCommand()
    {
        QFETCH(int, status);
        QFETCH(bool, runs);
        Bench bench;
        bench.makeReady();
        bench.designer.statuses[DesignerCommand::SetFontName] = status;
        bench.designer.statuses[DesignerCommand::SetFontSize] = status;
        bench.tools.chooseFont(u"Verdana"_s);
        bench.tools.chooseFontSize(7);
        QCOMPARE(bench.designer.runs.size(), static_cast<std::size_t>(runs ? 2 : 0));
        if (runs)
            QVERIFY(bench.designer.runs[1] == (Run{DesignerCommand::SetFontSize, Default, 7}));
    }

    void typedSizes_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("runs");
        QTest::newRow("1") << u"1"_s << true;
        QTest::newRow("7") << u"7"_s << true;
        QTest::newRow("0") << u"0"_s << false;
        QTest::newRow("8") << u"8"_s << false;
        QTest::newRow("9") << u"9"_s << false;
        QTest::newRow("negative") << u"-3"_s << false;
        QTest::newRow("word") << u"large"_s << false;
        QTest::newRow("empty") << u""_s << false;
        QTest::newRow("blanks around it") << u" 3 "_s << true;
        QTest::newRow("a fraction") << u"1.5"_s << true;
        QTest::newRow("a fraction too large") << u"7.5"_s << false;
        QTest::newRow("infinite") << u"inf"_s << false;
        QTest::newRow("not a number") << u"nan"_s << false;
    }

    void typedSizes()
    {
        QFETCH(QString, text);
        QFETCH(bool, runs);
        Bench bench;
        bench.makeReady();
        bench.designer.results[DesignerCommand::GetFontSize] = 4;
        const std::optional<QString> before = bench.tools.enterFontSize(text);
        QCOMPARE(before, runs ? std::optional<QString>() : u"4"_s);
        const auto sizes = std::ranges::count(bench.designer.runs, DesignerCommand::SetFontSize, &Run::command);
        QCOMPARE(sizes, runs ? 1 : 0);
        if (runs)
            QVERIFY(bench.designer.runs.back() == (Run{DesignerCommand::SetFontSize, Default, text}));
    }

    void aWrongSizeOverSeveralEmptiesTheBox()
    {
        Bench bench;
        bench.makeReady();
        bench.designer.statuses[DesignerCommand::GetFontSize] = DesignerStatus::Mixed;
        QCOMPARE(bench.tools.enterFontSize(u"9"_s), std::optional<QString>(QString()));
    }

    void buttonStates_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<bool>("pressed");
        QTest::newRow("not supported") << 0 << false << false;
        QTest::newRow("disabled") << 1 << false << false;
        QTest::newRow("enabled") << 3 << true << false;
        QTest::newRow("on") << 7 << true << true;
        QTest::newRow("mixed") << 11 << true << false;
    }

    void buttonStates()
    {
        QFETCH(int, status);
        QFETCH(bool, enabled);
        QFETCH(bool, pressed);
        Bench bench;
        bench.designer.statuses[DesignerCommand::Indent] = status;
        const DesignerBarState state = designerBarState(bench.designer);
        QCOMPARE(state.buttons.size(), 11);
        QVERIFY(state.buttons[5] == (DesignerBarState::Button{enabled, pressed})); // The key "Outdent".
        QVERIFY(state.buttons[6] == (DesignerBarState::Button{true, false}));
    }

    void boxes_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<int>("size");
        QTest::addColumn<QString>("fontText");
        QTest::addColumn<QString>("sizeText");
        QTest::addColumn<bool>("enabled");
        QTest::newRow("not supported") << 0 << 3 << QString() << QString() << false;
        QTest::newRow("disabled") << 1 << 3 << QString() << QString() << false;
        QTest::newRow("enabled") << 3 << 3 << u"Arial"_s << u"3"_s << true;
        QTest::newRow("on") << 7 << 7 << u"Arial"_s << u"7"_s << true;
        QTest::newRow("mixed") << 11 << 3 << QString() << QString() << true;
        QTest::newRow("no size") << 3 << 0 << u"Arial"_s << QString() << true;
    }

    void boxes()
    {
        QFETCH(int, status);
        QFETCH(int, size);
        QFETCH(QString, fontText);
        QFETCH(QString, sizeText);
        QFETCH(bool, enabled);
        Bench bench;
        for (const DesignerCommand query : {DesignerCommand::GetFontName, DesignerCommand::GetFontSize})
            bench.designer.statuses[query] = status;
        bench.designer.results[DesignerCommand::GetFontName] = u"Arial"_s;
        bench.designer.results[DesignerCommand::GetFontSize] = size;
        const DesignerBarState state = designerBarState(bench.designer);
        QVERIFY(state.font == (DesignerBarState::Box{fontText, enabled}));
        QVERIFY(state.size == (DesignerBarState::Box{sizeText, enabled}));
    }
};

ZEPHIRA_TEST(TstDesignerTools)
#include "tst_designertools.moc"
