// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/menukeys.h"
#include "commands/menutable.h"
#include "support/testregistry.h"

#include <QSet>
#include <QTest>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

CommandKey commandNamed(const QString &name)
{
    const std::vector<CommandKey> commands = menuCommands();
    const auto found = std::ranges::find(commands, name, &CommandKey::name);
    return found == commands.end() ? CommandKey{} : *found;
}

QStringList keysOf(const std::vector<CommandKey> &commands)
{
    QStringList keys;
    for (const CommandKey &command : commands)
        keys.append(command.name + u'=' + command.keys);
    return keys;
}

} // namespace

class TstMenuKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void captions()
    {
        QCOMPARE(plainCaption(u"&Go To..."_s), u"Go To"_s);
        QCOMPARE(plainCaption(u"C&ut"_s), u"Cut"_s);
        QCOMPARE(plainCaption({}), QString());
    }

    void commands_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("caption");
        QTest::addColumn<QString>("keys");
        QTest::newRow("entry") << u"save"_s << u"File > Save Document"_s << u"Ctrl+S"_s;
        QTest::newRow("in a menu below") << u"mnufromtemp"_s << u"File > New > From Template"_s << u"Ctrl+T"_s;
        QTest::newRow("without keys") << u"mnutblwiz"_s << u"Tools > Table Wizard"_s << QString();
        QTest::newRow("check mark") << u"highlightlines"_s << u"Options > Highlighted Lines"_s << u"Ctrl+H"_s;
        QTest::newRow("tag") << u"StartTag"_s << u"Fast Web Tags > Start Tag <>"_s << u"Shift+Del"_s;
        QTest::newRow("designer") << u"TableSub_2"_s << u"Table > Insert Row"_s << QString();
        QTest::newRow("text") << u"textJoinLines"_s << u"Code View > Lines > Join Lines"_s << u"Ctrl+J"_s;
    }

    void commands()
    {
        QFETCH(QString, name);
        QFETCH(QString, caption);
        QFETCH(QString, keys);
        QCOMPARE(commandNamed(name), (CommandKey{name, caption, keys, keys}));
    }

    void whatIsNoCommand_data()
    {
        QTest::addColumn<QString>("name");
        for (const char *name : {"mnufile", "new", "mnusep", "TableSub_1", "mnupluginoptions_0", "mnuqv", "sug_0"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }

    void whatIsNoCommand()
    {
        QFETCH(QString, name);
        QVERIFY(findMenuItem(name));
        QCOMPARE(commandNamed(name), CommandKey{});
    }

    void eachStandsOnce()
    {
        const std::vector<CommandKey> commands = menuCommands();
        QSet<QString> names;
        QSet<QString> keys;
        int withKeys = 0;
        for (const CommandKey &command : commands) {
            names.insert(command.name);
            if (command.keys.isEmpty())
                continue;
            keys.insert(command.keys);
            ++withKeys;
        }
        QCOMPARE(names.size(), static_cast<qsizetype>(commands.size()));
        QCOMPARE(keys.size(), withKeys);
        QCOMPARE(std::ranges::count_if(barCommands(), [](const CommandKey &each) { return !each.keys.isEmpty(); }), 25);
    }

    void theTextComesLast()
    {
        std::vector<CommandKey> commands = barCommands();
        const auto ofTheBar = static_cast<qsizetype>(commands.size());
        std::ranges::move(textCommands(), std::back_inserter(commands));
        QVERIFY(static_cast<qsizetype>(commands.size()) > ofTheBar);
        QCOMPARE(menuCommands(), commands);
    }

    void kept_data()
    {
        QTest::addColumn<QHash<QString, QString>>("kept");
        QTest::addColumn<QStringList>("keys");
        using Kept = QHash<QString, QString>;
        QTest::newRow("nothing") << Kept{} << QStringList{u"a=F1"_s, u"b=F2"_s, u"c="_s};
        QTest::newRow("others") << Kept{{u"a"_s, u"F3"_s}} << QStringList{u"a=F3"_s, u"b=F2"_s, u"c="_s};
        QTest::newRow("none") << Kept{{u"b"_s, {}}} << QStringList{u"a=F1"_s, u"b="_s, u"c="_s};
        QTest::newRow("taken from another")
            << Kept{{u"a"_s, {}}, {u"c"_s, u"F1"_s}} << QStringList{u"a="_s, u"b=F2"_s, u"c=F1"_s};
        QTest::newRow("before what ships") << Kept{{u"c"_s, u"F1"_s}} << QStringList{u"a="_s, u"b=F2"_s, u"c=F1"_s};
        QTest::newRow("exchanged") << Kept{{u"a"_s, u"F2"_s}, {u"b"_s, u"F1"_s}}
                                   << QStringList{u"a=F2"_s, u"b=F1"_s, u"c="_s};
        QTest::newRow("twice") << Kept{{u"a"_s, u"F5"_s}, {u"b"_s, u"F5"_s}, {u"c"_s, u"F5"_s}}
                               << QStringList{u"a=F5"_s, u"b=F2"_s, u"c="_s};
        QTest::newRow("none, twice") << Kept{{u"a"_s, {}}, {u"b"_s, {}}} << QStringList{u"a="_s, u"b="_s, u"c="_s};
        QTest::newRow("unknown") << Kept{{u"z"_s, u"F9"_s}} << QStringList{u"a=F1"_s, u"b=F2"_s, u"c="_s};
    }

    void kept()
    {
        using Kept = QHash<QString, QString>;
        QFETCH(Kept, kept);
        std::vector<CommandKey> commands = {{u"a"_s, {}, u"F1"_s, {}}, {u"b"_s, {}, u"F2"_s, {}}, {u"c"_s, {}, {}, {}}};
        applyKept(commands, kept);
        QTEST(keysOf(commands), "keys");
    }

    void mnemonics()
    {
        const std::vector<OtherKey> keys = menuMnemonics();
        QCOMPARE(keys.front(), (OtherKey{u"Alt+F"_s, u"opens the menu File"_s, false}));
        QCOMPARE(keys.back(), (OtherKey{u"Alt+2"_s, u"opens the menu 2D"_s, false}));
        QVERIFY(std::ranges::none_of(keys, [](const OtherKey &key) { return key.use.contains(u"Plugins"_s); }));
    }
};

ZEPHIRA_TEST(TstMenuKeys)
#include "tst_menukeys.moc"
