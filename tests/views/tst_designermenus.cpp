// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/fakes.h"
#include "support/testregistry.h"
#include "views/designercontextmenu.h"
#include "views/designermenus.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

const QStringList formats{u"Normal"_s, u"Heading 1"_s, u"Paragraph"_s};

/// The entries as texts: the name; "+" if enabled, "-" if disabled; "*" if checked, "o" if unchecked; the caption.
QStringList described(const QList<DesignerMenuEntry> &entries)
{
    QStringList lines;
    for (const DesignerMenuEntry &entry : entries) {
        QString line = entry.name;
        if (entry.enabled)
            line += *entry.enabled ? u" +"_s : u" -"_s;
        if (entry.checked)
            line += *entry.checked ? u" *"_s : u" o"_s;
        if (entry.caption)
            line += u' ' + *entry.caption;
        lines.append(line);
    }
    return lines;
}

} // namespace

/// The content of the designer's menus and of its context menu.
class TstDesignerMenus final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tableFollowsTheStatuses()
    {
        FakeDesigner designer;
        designer.statuses[DesignerCommand::InsertRow] = DesignerStatus::Disabled;
        designer.statuses[DesignerCommand::MergeCells] = DesignerStatus::NotSupported;
        QCOMPARE(
            described(designerMenuEntries(u"Table"_s, designer, formats)),
            (QStringList{u"TableSub_0 +"_s, u"TableSub_2 -"_s, u"TableSub_3 +"_s, u"TableSub_4 +"_s, u"TableSub_6 +"_s,
                         u"TableSub_7 +"_s, u"TableSub_8 +"_s, u"TableSub_10 -"_s, u"TableSub_11 +"_s}));
    }

    void insertFollowsTheSelection_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("mark");
        QTest::newRow("caret") << u"None"_s << u"+"_s;
        QTest::newRow("text") << u"Text"_s << u"+"_s;
        QTest::newRow("element") << u"Control"_s << u"-"_s;
    }

    void insertFollowsTheSelection()
    {
        QFETCH(QString, type);
        QFETCH(QString, mark);
        FakeDesigner designer;
        designer.selected = type;
        designer.statuses[DesignerCommand::Hyperlink] = DesignerStatus::Disabled;
        QCOMPARE(
            described(designerMenuEntries(u"Insert"_s, designer, formats)),
            (QStringList{u"InsertSub_0 +"_s, u"InsertSub_1 -"_s, u"InsertButton "_s + mark, u"InsertHTML "_s + mark}));
    }

    void positionsCaption_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("first");
        QTest::newRow("positioned") << 7 << u"D2DSub_0 + Set Position Attribute To 1D"_s;
        QTest::newRow("not positioned") << 3 << u"D2DSub_0 + Set Position Attribute To Absolute"_s;
        QTest::newRow("mixed") << 11 << u"D2DSub_0 - Set Position Attribute To Absolute"_s;
        QTest::newRow("disabled") << 1 << u"D2DSub_0 - Set Position Attribute To Absolute"_s;
        QTest::newRow("not supported") << 0 << u"D2DSub_0 - Set Position Attribute To Absolute"_s;
    }

    void positionsCaption()
    {
        QFETCH(int, status);
        FakeDesigner designer;
        designer.statuses[DesignerCommand::AbsolutePosition] = status;
        designer.statuses[DesignerCommand::BringToFront] = DesignerStatus::Disabled;
        const QStringList entries = described(designerMenuEntries(u"d2d"_s, designer, formats));
        QTEST(entries.value(0), "first");
        QCOMPARE(entries.mid(1),
                 (QStringList{u"D2DSub_1 -"_s, u"D2DSub_2 +"_s, u"D2DSub_3 +"_s, u"D2DSub_4 +"_s, u"D2DSub_5 +"_s,
                              u"D2DSub_6 +"_s, u"D2DSub_8 + o"_s}));
    }

    void aLockedElementIsChecked()
    {
        FakeDesigner designer;
        designer.statuses[DesignerCommand::LockElement] = DesignerStatus::On;
        QCOMPARE(described(designerMenuEntries(u"d2d"_s, designer, formats)).last(), u"D2DSub_8 + *"_s);
    }

    void formatChecksTheCurrentOne_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("current");
        QTest::addColumn<QStringList>("entries");
        const QStringList open{u"FormatSub_0 + o"_s, u"FormatSub_1 + *"_s, u"FormatSub_2 + o"_s};
        QTest::newRow("heading") << 3 << u"Heading 1"_s << open;
        QTest::newRow("mixed") << 11 << u"Heading 1"_s << open;
        QTest::newRow("unknown") << 3 << u"Blink"_s
                                 << QStringList{u"FormatSub_0 + o"_s, u"FormatSub_1 + o"_s, u"FormatSub_2 + o"_s};
        QTest::newRow("disabled") << 1 << u"Heading 1"_s
                                  << QStringList{u"FormatSub_0 - o"_s, u"FormatSub_1 - o"_s, u"FormatSub_2 - o"_s};
    }

    void formatChecksTheCurrentOne()
    {
        QFETCH(int, status);
        QFETCH(QString, current);
        FakeDesigner designer;
        designer.statuses[DesignerCommand::GetBlockFormat] = status;
        designer.results[DesignerCommand::GetBlockFormat] = current;
        QTEST(described(designerMenuEntries(u"Format"_s, designer, formats)), "entries");
    }

    void viewShowsTheSwitches()
    {
        FakeDesigner designer;
        designer.details = true;
        QCOMPARE(described(designerMenuEntries(u"View"_s, designer, formats)),
                 (QStringList{u"ViewSub_0 o"_s, u"ViewSub_1 *"_s, u"ViewSub_2 o"_s, u"ViewSub_10 o"_s}));
    }

    void otherMenusHaveNothing()
    {
        FakeDesigner designer;
        QVERIFY(designerMenuEntries(u"edit"_s, designer, formats).isEmpty());
    }

    void contextMenu_data()
    {
        QTest::addColumn<int>("absolute");
        QTest::addColumn<int>("toBack");
        QTest::addColumn<int>("row");
        QTest::addColumn<QStringList>("entries");
        QTest::addColumn<QList<int>>("commands");
        const QStringList fixed{u"Cut"_s, u"Copy"_s, u"Paste"_s, QString(), u"Select All"_s, QString(), u"Font..."_s};
        const QList<int> fixedCommands{5003, 5002, 5032, 0, 5035, 0, 5009};
        const QStringList table{QString(), u"Insert Row"_s, u"Insert Column"_s,
                                QString(), u"Delete Row"_s, u"Delete Column"_s};
        const QList<int> tableCommands{0, 5021, 5020, 0, 5007, 5006};
        QTest::newRow("text") << 1 << 1 << 1 << fixed << fixedCommands;
        QTest::newRow("in a table") << 1 << 1 << 3 << fixed + table << fixedCommands + tableCommands;
        QTest::newRow("an element") << 3 << 1 << 1 << fixed + QStringList{QString(), u"Make 2D"_s}
                                    << fixedCommands + QList<int>{0, 5028};
        QTest::newRow("a positioned element")
            << 7 << 3 << 1 << fixed + QStringList{QString(), u"Make 1D"_s} << fixedCommands + QList<int>{0, 5028};
        QTest::newRow("a positioned element in a table")
            << 7 << 3 << 3 << fixed + QStringList{QString(), u"Make 1D"_s} + table
            << fixedCommands + QList<int>{0, 5028} + tableCommands;
        QTest::newRow("not supported") << 0 << 0 << 0 << fixed << fixedCommands;
    }

    void contextMenu()
    {
        QFETCH(int, absolute);
        QFETCH(int, toBack);
        QFETCH(int, row);
        QFETCH(QList<int>, commands);
        FakeDesigner designer;
        designer.statuses[DesignerCommand::AbsolutePosition] = absolute;
        designer.statuses[DesignerCommand::SendToBack] = toBack;
        designer.statuses[DesignerCommand::InsertRow] = row;
        DesignerContextMenu menu(designer);
        menu.show();
        QTEST(designer.menuEntries, "entries");
        QCOMPARE(designer.menuStates.size(), designer.menuEntries.size());
        for (int index = -1; index <= commands.size(); ++index) {
            designer.runs.clear();
            menu.run(index);
            const int command = commands.value(index, 0);
            if (command == 0)
                QVERIFY(designer.runs.empty());
            else
                QVERIFY(
                    designer.runs
                    == std::vector<FakeDesigner::Run>({{DesignerCommand(command), DesignerPrompting::Default, {}}}));
        }
    }

    void whatCannotBeDoneIsGrey()
    {
        FakeDesigner designer;
        designer.statuses[DesignerCommand::AbsolutePosition] = DesignerStatus::Disabled;
        designer.statuses[DesignerCommand::InsertRow] = DesignerStatus::Enabled;
        for (const DesignerCommand command :
             {DesignerCommand::Cut, DesignerCommand::Font, DesignerCommand::DeleteColumns})
            designer.statuses[command] = DesignerStatus::Disabled;
        DesignerContextMenu(designer).show();
        QStringList grey;
        for (qsizetype i = 0; i < designer.menuEntries.size(); ++i) {
            if (designer.menuStates[i] == DesignerMenuState::Greyed)
                grey.append(designer.menuEntries[i]);
        }
        QCOMPARE(grey, (QStringList{u"Cut"_s, u"Font..."_s, u"Delete Column"_s}));
    }
};

ZEPHIRA_TEST(TstDesignerMenus)
#include "tst_designermenus.moc"
