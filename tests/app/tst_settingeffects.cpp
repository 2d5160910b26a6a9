// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/sidelists.h"
#include "app/windowbench.h"
#include "core/editoritems.h"
#include "core/errorstyles.h"
#include "panes/customtabs.h"
#include "panes/filepane.h"
#include "support/testregistry.h"

#include <QTest>
#include <QTreeWidget>

using namespace zephira;
using namespace Qt::StringLiterals;

namespace {

using Effects = std::map<Setting, QString>;

/// The window with a page for a web server, two folders of such a server, and two browsers.
struct SettingsBench : WindowBench {
    const QString document = write(u"site/a.asp"_s, "<p>\r\n");
    const QString browsers[2] = {write(u"browser1"_s, {}), write(u"browser2"_s, {})};
    const QString servers[2] = {u"http://127.0.0.1:1/"_s, u"http://127.0.0.1:2/"_s};
    const QString roots[2] = {write(u"root1/b.asp"_s, {}).chopped(5), write(u"root2/b.asp"_s, {}).chopped(5)};

    SettingsBench()
    {
        configuration.setValue(Setting::BrowserPath, browsers[0]);
        configuration.setValue(Setting::ServerAddress, servers[0]);
        configuration.setValue(Setting::ServerRoot, roots[0]);
    }

    /// A valid value that differs from the one in effect.
    QString otherValue(const SettingRow &row) const
    {
        switch (row.setting) {
        case Setting::RootSelection:
            return u"1"_s;
        case Setting::FontName:
            return u"Monospace"_s;
        case Setting::BrowserPath:
            return browsers[1];
        case Setting::ServerAddress:
            return servers[1];
        case Setting::ServerRoot:
            return roots[1];
        case Setting::LastCustomTab:
            return u"css.txt"_s;
        default:
            break;
        }
        switch (row.kind) {
        case SettingKind::Switch:
            return row.shipped == u"1" ? u"0"_s : u"1"_s;
        case SettingKind::Truth:
            return row.shipped == u"True" ? u"False"_s : u"True"_s;
        case SettingKind::Measure:
            return u"23"_s;
        case SettingKind::Colour:
            return u"1234"_s;
        case SettingKind::FontStyle:
            return u"3"_s;
        case SettingKind::Patterns:
            return u"*.one"_s;
        case SettingKind::Path: // A custom tab shows the file of the next one.
            return settingRows()[static_cast<std::size_t>(row.setting) + 1].shipped;
        default:
            qFatal("no other value for %s", qPrintable(row.key));
        }
    }

    /// What the running program does with each setting but StartDialog, which is the start procedure's.
    Effects effects()
    {
        CodeMax &rt = window->rt();
        const FontChoice font = rt.editorFont();
        const auto text = [](auto value) { return QVariant(value).toString(); };
        Effects found = {
            {Setting::RootSelection, text(window->rootSelect())},
            {Setting::HighlightLine, text(window->highlightMode())},
            {Setting::LineNumbers, text(rt.lineNumbering())},
            {Setting::LeftMargin, text(rt.displayLeftMargin())},
            {Setting::Whitespace, text(rt.displayWhitespace())},
            {Setting::SelectionBounds, text(rt.selBounds())},
            {Setting::FontName, font.name},
            {Setting::FontSize, text(font.size)},
            {Setting::FontBold, text(font.bold)},
            {Setting::FontItalic, text(font.italic)},
            {Setting::FontStrikethrough, text(font.strikethrough)},
            {Setting::FontUnderline, text(font.underline)},
            {Setting::FileFilters, window->filePane().fileList().pattern()},
            {Setting::BrowserPath, startedBrowser()},
        };
        for (int tab = 1; tab <= CustomTabs::count; ++tab) {
            window->sideLists().customTabs().load(tab);
            const auto *list = find<QTreeWidget>(u"c%1"_s.arg(tab));
            found[customTabSetting(tab)] = list->headerItem()->text(0) + u'/' + list->topLevelItem(0)->text(0);
        }
        preview();
        found[Setting::ServerRoot] = files.FileExists(roots[0] + u"a.asp"_s) ? roots[0] : roots[1];
        found[Setting::ServerAddress] = webViews.browser.home;
        for (int row = 0; row < std::ssize(appearanceRows); ++row) {
            const AppearanceRow &items = appearanceRows[static_cast<std::size_t>(row)];
            const ColourEntry &kept = window->state().colours[static_cast<std::size_t>(row)];
            const auto colour = [&](int item, int value) {
                return text(item == noItem ? value : static_cast<int>(rt.color(item)));
            };
            found[colourSetting(row, ColourPart::Background)] = colour(items.background, kept.background);
            found[colourSetting(row, ColourPart::Foreground)] = colour(items.foreground, kept.foreground);
            found[colourSetting(row, ColourPart::FontStyle)] =
                text(items.fontStyle == noItem ? kept.fontStyle : rt.fontStyle(items.fontStyle));
        }
        return found;
    }

private:
    QString startedBrowser()
    {
        prompts.expect({u"You must save your document to preview in Internet Explorer, would you like to save now?"_s,
                        {},
                        Question::Icon::Question,
                        Question::Buttons::YesNo},
                       Answer::Yes);
        choose(u"pie"_s);
        return shell.started.back().program;
    }

    void preview()
    {
        for (const QString &root : roots)
            QFile::remove(root + u"a.asp"_s);
        prompts.expect(
            {u"You must save your ASP document to your web servers root directory in order to continue, press OK to "
             u"save this document to the directory you designated as your LOCAL web server's root directory, with the "
             u"filename: a.asp"_s,
             {},
             Question::Icon::Question,
             Question::Buttons::OkCancel},
            Answer::Ok);
        auto *tabs = find<QTabBar>(u"workspace"_s);
        tabs->setCurrentIndex(1);
        tabs->setCurrentIndex(0);
    }
};

/// The settings file without a key.
QByteArray withoutKey(const QByteArray &ini, const SettingRow &row)
{
    QByteArrayList lines = ini.split('\n');
    QByteArray section;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const QByteArray line = lines[i].trimmed();
        if (line.startsWith('['))
            section = line.mid(1, line.size() - 2).toLower();
        else if (section == row.section.toLower().toLatin1() && line.startsWith(row.key.toLatin1() + '=')) {
            lines.removeAt(i);
            return lines.join('\n');
        }
    }
    qFatal("%s isn't among the settings", qPrintable(row.key));
}

} // namespace

/// What the table of settings says about the program, compared with what the program does.
class TstSettingEffects : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aStartFailsWithoutWhatIsRequired()
    {
        WindowBench bench;
        const QByteArray shipped = WindowBench::read(bench.configuration.file());
        const auto starts = [&bench] {
            try {
                bench.start();
            } catch (const HandlerError &) {
                return false;
            }
            return true;
        };
        QVERIFY(starts());
        for (const SettingRow &row : settingRows()) {
            const QByteArray rest = withoutKey(shipped, row);
            bench.write(u"app/zephira.ini"_s, rest);
            QVERIFY2(starts() != row.isRequired, qPrintable(row.key));
        }
    }

    void aChangeIsInEffectWhenTheTableSays()
    {
        SettingsBench bench;
        bench.start(bench.document);
        const Effects before = bench.effects();
        QCOMPARE(before.size(), settingRows().size() - 1);

        for (const SettingRow &row : settingRows())
            QVERIFY(bench.configuration.setValue(row.setting, bench.otherValue(row)));
        const Effects after = bench.effects();
        for (const auto &[setting, effect] : before) {
            const SettingRow &row = settingRow(setting);
            QVERIFY2((after.at(setting) != effect) == (row.applies == SettingApplies::AtUse), qPrintable(row.key));
        }

        bench.start(bench.document);
        const Effects restarted = bench.effects();
        for (const auto &[setting, effect] : before)
            QVERIFY2(restarted.at(setting) != effect, qPrintable(settingRow(setting).key));
    }
};

ZEPHIRA_TEST(TstSettingEffects)
#include "tst_settingeffects.moc"
