// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/fakes.h"
#include "support/testregistry.h"
#include "views/designercontextmenu.h"

#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

/// The designer's context menu as it is built and chosen from.
class TstDesignerContextMenu final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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

    /// Everything that can be chosen runs one command; nothing else runs any.
    void eachEntryHasOneEffect()
    {
        FakeDesigner designer; // Every command is enabled.
        DesignerContextMenu menu(designer);
        menu.show();
        QCOMPARE(menu.entries().size(), 15);
        QSet<int> commands;
        for (int index = 0; index < menu.entries().size(); ++index) {
            const DesignerContextEntry &entry = menu.entries()[index];
            const bool isSeparator = entry.text.isEmpty();
            QCOMPARE(entry.command == DesignerCommand::None, isSeparator);
            QVERIFY(entry.state == DesignerMenuState::Unchecked);
            designer.commands.clear();
            menu.run(index);
            QCOMPARE(designer.commands,
                     isSeparator ? std::vector<int>{} : std::vector<int>{static_cast<int>(entry.command)});
            commands.insert(static_cast<int>(entry.command));
        }
        QCOMPARE(commands.size(), 11); // Ten entries, and the separators' none.
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

ZEPHIRA_TEST(TstDesignerContextMenu)
#include "tst_designercontextmenu.moc"
