// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/editoritems.h"
#include "core/errorstyles.h"
#include "support/fakes.h"
#include "support/testregistry.h"

#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <stdexcept>

using namespace zephira;
using namespace Qt::StringLiterals;

class TstSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rowsStandWhereTheirNamesSay()
    {
        for (std::size_t i = 0; i < settingRows().size(); ++i)
            QCOMPARE(static_cast<std::size_t>(settingRows()[i].setting), i);
        for (std::size_t i = 0; i < userSettingRows().size(); ++i)
            QCOMPARE(static_cast<std::size_t>(userSettingRows()[i].setting), i);
    }

    void everyKeyStandsOnce()
    {
        QSet<QString> keys;
        for (const SettingRow &row : settingRows())
            keys.insert(u"[%1] %2"_s.arg(row.section, row.key).toLower());
        QCOMPARE(static_cast<std::size_t>(keys.size()), settingRows().size());
    }

    void keys_data()
    {
        QTest::addColumn<Setting>("setting");
        QTest::addColumn<QString>("key"); // "[section] key"
        QTest::addColumn<bool>("isRequired");
        const auto add = [](Setting setting, const char *key, bool isRequired) {
            QTest::newRow(key) << setting << QString::fromLatin1(key) << isRequired;
        };
        add(Setting::StartDialog, "[startup] selprj", false);
        add(Setting::RootSelection, "[startup] rootsel", true);
        add(Setting::HighlightLine, "[options] highlight", true);
        add(Setting::LineNumbers, "[options] linenumber", true);
        add(Setting::LeftMargin, "[options] leftmargin", true);
        add(Setting::Whitespace, "[options] whitespace", true);
        add(Setting::SelectionBounds, "[options] selbounds", true);
        add(Setting::FontName, "[font] name", false);
        add(Setting::FontSize, "[font] size", false);
        add(Setting::FontBold, "[font] bold", false);
        add(Setting::FontItalic, "[font] italic", false);
        add(Setting::FontStrikethrough, "[font] strikethrough", false);
        add(Setting::FontUnderline, "[font] underline", false);
        add(Setting::FileFilters, "[filters] filters", false);
        add(customTabSetting(1), "[ctab] 1", false);
        add(customTabSetting(6), "[ctab] 6", false);
        add(Setting::BrowserPath, "[paths] iepath", false);
        add(Setting::ServerRoot, "[server] root", false);
        add(Setting::ServerAddress, "[server] url", false);
        add(colourSetting(0, ColourPart::Background), "[colors] clr0bg", true);
        add(colourSetting(3, ColourPart::Foreground), "[colors] clr3fr", true);
        add(colourSetting(17, ColourPart::FontStyle), "[colors] clr17fnt", true);
    }

    void keys()
    {
        QFETCH(Setting, setting);
        const SettingRow &row = settingRow(setting);
        QTEST(u"[%1] %2"_s.arg(row.section, row.key).toLower(), "key");
        QTEST(row.isRequired, "isRequired");
    }

    void coloursAreTheLastRows()
    {
        QCOMPARE(settingRows().size(), static_cast<std::size_t>(Setting::FirstColour) + 3 * appearanceRows.size());
        QCOMPARE(settingRows().back().setting, colourSetting(17, ColourPart::FontStyle));
    }

    void userValues_data()
    {
        QTest::addColumn<UserSetting>("setting");
        QTest::addColumn<QString>("place"); // branch/section/key; what has an owner is shown as that of "frmmain"
        QTest::newRow("tips") << UserSetting::ShowTips << u"zephira/Options/Show Tips at Startup"_s;
        QTest::newRow("folder") << UserSetting::ProgramFolder << u"Zephira/data/apppath"_s;
        QTest::newRow("version") << UserSetting::ProgramVersion << u"Zephira/data/version"_s;
        QTest::newRow("state") << UserSetting::WindowShowState << u"zephira/frmmain/WindowState"_s;
        QTest::newRow("top") << UserSetting::WindowTop << u"zephira/frmmain/Top"_s;
        QTest::newRow("left") << UserSetting::WindowLeft << u"zephira/frmmain/Left"_s;
        QTest::newRow("height") << UserSetting::WindowHeight << u"zephira/frmmain/Height"_s;
        QTest::newRow("width") << UserSetting::WindowWidth << u"zephira/frmmain/Width"_s;
        QTest::newRow("remote content") << UserSetting::RemoteContent << u"zephira/frmmain/RemoteContent"_s;
        QTest::newRow("dictionary") << UserSetting::SpellingDictionary << u"zephira/Spelling/Dictionary"_s;
        QTest::newRow("keys") << UserSetting::MenuKeys << u"zephira/Keys/frmmain"_s;
        QTest::newRow("breadcrumb") << UserSetting::Breadcrumb << u"zephira/Text/Breadcrumb"_s;
        QTest::newRow("uses") << UserSetting::CommandUses << u"zephira/CommandUses/frmmain"_s;
        QTest::newRow("searches") << UserSetting::SearchHistory << u"zephira/Search/Searches"_s;
        QTest::newRow("replacements") << UserSetting::ReplacementHistory << u"zephira/Search/Replacements"_s;
        QTest::newRow("completion") << UserSetting::CompleteWhileTyping << u"zephira/Text/CompleteWhileTyping"_s;
        QTest::newRow("closers") << UserSetting::AutoClose << u"zephira/Text/AutoClose"_s;
        QTest::newRow("swatches") << UserSetting::ColourSwatches << u"zephira/Text/ColorSwatches"_s;
        QTest::newRow("problems") << UserSetting::MarkProblems << u"zephira/Text/MarkProblems"_s;
    }

    void userValues()
    {
        QFETCH(UserSetting, setting);
        QFETCH(QString, place);
        MemoryUserSettings settings;
        if (userSettingRow(setting).section.isEmpty() || userSettingRow(setting).key.isEmpty())
            settings.SaveSetting(setting, u"frmmain"_s, u"here"_s);
        else
            settings.SaveSetting(setting, u"here"_s);
        QCOMPARE(settings.values, (std::map<QString, QString>{{place, u"here"_s}}));
    }

    void valuesUnderTheirOwners()
    {
        MemoryUserSettings settings;
        using enum UserSetting;
        QCOMPARE(settings.owners(MenuKeys), QStringList());
        QCOMPARE(settings.GetSetting(MenuKeys, u"save"_s, u"none"_s), u"none"_s);
        QVERIFY(settings.SaveSetting(MenuKeys, u"save"_s, u"F11"_s));
        QVERIFY(settings.SaveSetting(MenuKeys, u"open"_s, {}));
        settings.SaveSetting(SpellingDictionary, u"en"_s);
        QCOMPARE(settings.owners(MenuKeys), (QStringList{u"open"_s, u"save"_s}));
        QCOMPARE(settings.GetSetting(MenuKeys, u"save"_s, u"none"_s), u"F11"_s);
        QCOMPARE(settings.GetSetting(MenuKeys, u"open"_s, u"none"_s), QString());
        QVERIFY(settings.RemoveSetting(MenuKeys, u"save"_s));
        QCOMPARE(settings.owners(MenuKeys), QStringList{u"open"_s});
        QCOMPARE(settings.GetSetting(MenuKeys, u"save"_s, u"none"_s), u"none"_s);
        settings.writable = false;
        QVERIFY(!settings.SaveSetting(MenuKeys, u"save"_s, u"F11"_s));
        QVERIFY(!settings.RemoveSetting(MenuKeys, u"open"_s));
        QCOMPARE(settings.owners(MenuKeys), QStringList{u"open"_s});
    }

    void shippedValuesFitTheirKind()
    {
        const std::map<SettingKind, QRegularExpression> forms = {
            {SettingKind::Switch, QRegularExpression(u"^[01]$"_s)},
            {SettingKind::Truth, QRegularExpression(u"^(True|False)$"_s)},
            {SettingKind::Number, QRegularExpression(uR"(^\d+$)"_s)},
            {SettingKind::Measure, QRegularExpression(uR"(^\d+(\.\d+)?$)"_s)},
            {SettingKind::Colour, QRegularExpression(uR"(^(-1|\d{1,8})$)"_s)},
            {SettingKind::FontStyle, QRegularExpression(u"^[0-4]$"_s)},
            {SettingKind::Text, QRegularExpression(u"^[^;]*$"_s)},
            {SettingKind::Patterns, QRegularExpression(uR"(^\*\.?\w+(;\*\.?\w+)*$)"_s)},
            {SettingKind::Path, QRegularExpression(u"^[^;]*$"_s)},
        };
        for (const SettingRow &row : settingRows())
            QVERIFY2(forms.at(row.kind).match(row.shipped).hasMatch(), qPrintable(row.key));
    }

    /// What must be there ships with a value.
    void whatIsRequiredIsShipped()
    {
        for (const SettingRow &row : settingRows())
            QVERIFY2(!row.isRequired || !row.shipped.isEmpty(), qPrintable(row.key));
    }

    void aMissingValueCountsAsTheFallback()
    {
        MemoryConfiguration configuration;
        for (const SettingRow &row : settingRows()) {
            const Configuration &read = configuration;
            QCOMPARE(read.value(row.setting), row.fallback);
            configuration.setValue(row.setting, u"x"_s);
            QCOMPARE(read.value(row.setting), u"x"_s);
        }
        QCOMPARE(settingRow(Setting::ServerAddress).fallback, u"http://localhost/"_s);
    }

    /// A setting is read and written as what it is; anything else is a mistake in the program.
    void aSettingHasOneKind()
    {
        MemoryConfiguration configuration;
        MemoryUserSettings settings;
        for (const SettingRow &row : settingRows()) {
            using enum SettingKind;
            const auto isAllowed = [](const auto &act) {
                try {
                    act();
                } catch (const std::logic_error &) {
                    return false;
                } catch (const HandlerError &) {
                    return true; // The value is missing.
                }
                return true;
            };
            const Setting setting = row.setting;
            const bool isWhole =
                row.kind == Switch || row.kind == Number || row.kind == Colour || row.kind == FontStyle;
            QCOMPARE(isAllowed([&] { isSwitchedOn(configuration, setting); }), row.kind == Switch);
            QCOMPARE(isAllowed([&] { isTrue(configuration, setting); }), row.kind == Truth);
            QCOMPARE(isAllowed([&] { measure(configuration, setting); }), row.kind == Measure);
            QCOMPARE(isAllowed([&] { zephira::wholeNumber(configuration, setting, {}); }), isWhole);
            QCOMPARE(isAllowed([&] { writeSwitch(configuration, setting, true); }), row.kind == Switch);
            QCOMPARE(isAllowed([&] { writeTruth(configuration, setting, true); }), row.kind == Truth);
            QCOMPARE(isAllowed([&] { writeMeasure(configuration, setting, 1); }), row.kind == Measure);
            QCOMPARE(isAllowed([&] { numberChange(setting, 1); }), isWhole && row.kind != Switch);
        }
        QVERIFY_EXCEPTION_THROWN(zephira::wholeNumber(settings, UserSetting::ProgramFolder), std::logic_error);
        QVERIFY_EXCEPTION_THROWN(zephira::wholeNumber(settings, UserSetting::ShowTips, u"frmmain"_s, 0),
                                 std::logic_error);
        QVERIFY_EXCEPTION_THROWN(writeSwitch(settings, UserSetting::WindowTop, true), std::logic_error);
        QVERIFY_EXCEPTION_THROWN(writeNumber(settings, UserSetting::ShowTips, u"frmmain"_s, 0), std::logic_error);
        QVERIFY(settings.values.empty());
    }

    void measures()
    {
        MemoryConfiguration configuration;
        QCOMPARE(measure(configuration, Setting::FontSize), 0.0);
        configuration.put(u"font"_s, u"size"_s, u"large"_s);
        QCOMPARE(measure(configuration, Setting::FontSize), 0.0);
        QVERIFY(writeMeasure(configuration, Setting::FontSize, 10.5));
        QCOMPARE(measure(configuration, Setting::FontSize), 10.5);
        QCOMPARE(configuration.log, QStringList{u"[font] size=10.5"_s});
        configuration.writable = false;
        QVERIFY(!writeMeasure(configuration, Setting::FontSize, 11));
    }

    void numbersOfAForm()
    {
        MemoryUserSettings settings;
        QCOMPARE(zephira::wholeNumber(settings, UserSetting::WindowTop, u"frmTip"_s, 7), 7);
        writeNumber(settings, UserSetting::WindowTop, u"frmTip"_s, -30);
        QCOMPARE(settings.values, (std::map<QString, QString>{{u"zephira/frmTip/Top"_s, u"-30"_s}}));
        QCOMPARE(zephira::wholeNumber(settings, UserSetting::WindowTop, u"frmTip"_s, 7), -30);
        settings.SaveSetting(UserSetting::WindowTop, u"frmTip"_s, u"up"_s);
        QCOMPARE(zephira::wholeNumber(settings, UserSetting::WindowTop, u"frmTip"_s, 7), 7);
    }

    void tipsShowUntilTheyAreSwitchedOff()
    {
        MemoryUserSettings settings;
        QCOMPARE(zephira::wholeNumber(settings, UserSetting::ShowTips), 1);
        writeSwitch(settings, UserSetting::ShowTips, false);
        QCOMPARE(settings.GetSetting(UserSetting::ShowTips), u"0"_s);
        QCOMPARE(zephira::wholeNumber(settings, UserSetting::ShowTips), 0);
        writeSwitch(settings, UserSetting::ShowTips, true);
        settings.SaveSetting(UserSetting::ShowTips, u"no"_s);
        QCOMPARE(zephira::wholeNumber(settings, UserSetting::ShowTips), 0);
    }

    void switchesAreExact()
    {
        MemoryConfiguration configuration;
        const Configuration &read = configuration;
        QVERIFY(!isSwitchedOn(read, Setting::StartDialog));
        for (const QString &value : {u"01"_s, u"0"_s, u"True"_s}) {
            configuration.put(u"Startup"_s, u"selprj"_s, value);
            QVERIFY(!isSwitchedOn(read, Setting::StartDialog));
        }
        writeSwitch(configuration, Setting::StartDialog, true);
        QVERIFY(isSwitchedOn(read, Setting::StartDialog));
        writeSwitch(configuration, Setting::StartDialog, false);
        QCOMPARE(configuration.log, (QStringList{u"[Startup] selprj=1"_s, u"[Startup] selprj=0"_s}));
    }

    void truthIsAWord()
    {
        MemoryConfiguration configuration;
        QVERIFY(!isTrue(configuration, Setting::FontBold));
        configuration.put(u"font"_s, u"bold"_s, u"tRUE"_s);
        QVERIFY(isTrue(configuration, Setting::FontBold));
        writeTruth(configuration, Setting::FontBold, false);
        QVERIFY(!isTrue(configuration, Setting::FontBold));
        writeTruth(configuration, Setting::FontBold, true);
        QCOMPARE(configuration.log, (QStringList{u"[font] bold=False"_s, u"[font] bold=True"_s}));
    }

    void wholeNumber_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("message"); // empty if the value converts
        QTest::newRow("one") << u"1"_s << u""_s;
        QTest::newRow("negative") << u"-7"_s << u""_s;
        QTest::newRow("missing")
            << u""_s
            << u"Zephira can't start: the key \"highlight\" in section [options] of /x/zephira.ini is missing."_s;
        QTest::newRow("word")
            << u"yes"_s
            << u"Zephira can't start: the key \"highlight\" in section [options] of /x/zephira.ini isn't a number (\"yes\")."_s;
        QTest::newRow("too long")
            << u"99999999999"_s
            << u"Zephira can't start: the key \"highlight\" in section [options] of /x/zephira.ini isn't a "
               u"number (\"99999999999\")."_s;
    }

    void wholeNumber()
    {
        QFETCH(QString, value);
        QFETCH(QString, message);
        MemoryConfiguration configuration;
        configuration.put(u"options"_s, u"highlight"_s, value);
        QString raised;
        int number = 0;
        try {
            number = zephira::wholeNumber(configuration, Setting::HighlightLine, u"/x/zephira.ini"_s);
        } catch (const HandlerError &error) {
            raised = error.description;
        }
        QCOMPARE(raised, message);
        if (message.isEmpty())
            QCOMPARE(QString::number(number), value);
    }

    /// The program starts without a number that isn't required.
    void aNumberThatIsNotRequiredCountsAsNone()
    {
        MemoryConfiguration configuration;
        QCOMPARE(zephira::wholeNumber(configuration, Setting::StartDialog, {}), 0);
        configuration.put(u"startup"_s, u"selprj"_s, u"yes"_s);
        QCOMPARE(zephira::wholeNumber(configuration, Setting::StartDialog, {}), 0);
        configuration.put(u"startup"_s, u"selprj"_s, u"3"_s);
        QCOMPARE(zephira::wholeNumber(configuration, Setting::StartDialog, {}), 3);
    }
};

ZEPHIRA_TEST(TstSettings)
#include "tst_settings.moc"
