// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/menutable.h"
#include "commands/quicktag.h"
#include "commands/tagsmenu.h"
#include "commands/texttable.h"
#include "editor/hotkeys.h"
#include "ftp/ftpcommandtables.h"
#include "handbook/shippedkeys.h"
#include "support/testregistry.h"

#include <QKeySequence>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// The command of a key in the group whose title begins so; empty if it isn't there.
QString commandOf(const QString &keys, const QString &group)
{
    const std::vector<KeyGroup> groups = shippedKeys();
    for (const KeyGroup &each : groups) {
        for (const KeyRow &row : each.rows) {
            if (each.title.startsWith(group) && row.keys.contains(keys))
                return row.command;
        }
    }
    return {};
}

void collect(std::span<const MenuItem> items, QStringList &keys)
{
    for (const MenuItem &item : items) {
        if (!item.shortcut.isEmpty())
            keys.append(item.shortcut.toString());
        collect(item.children, keys);
    }
}

} // namespace

/// The keys that the handbook lists, against the tables that they come from.
class TstShippedKeys final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachKeyOfTheMenus()
    {
        QStringList keys;
        collect(menuBarTable(), keys);
        for (const QuickTag &tag : tagsMenu()) {
            if (!tag.shortcut.isEmpty())
                keys.append(tag.shortcut.toString());
        }
        QVERIFY(keys.size() > 20);
        for (const QString &key : std::as_const(keys))
            QVERIFY2(!commandOf(key, u"Menu "_s).isEmpty(), qPrintable(key));
    }

    void eachKeyOfTheTextsMenus()
    {
        QStringList keys;
        collect(textMenuTable(), keys);
        QVERIFY(!keys.isEmpty());
        for (const QString &key : std::as_const(keys))
            QVERIFY2(!commandOf(key, u"Code view"_s).isEmpty(), qPrintable(key));
    }

    void eachKeyOfTheCodeView()
    {
        QStringList ofTheText;
        collect(textMenuTable(), ofTheText);
        QVERIFY(initialHotKeys().size() > 30);
        for (const CodeMaxHotKey &hotKey : initialHotKeys()) {
            const QString keys = QKeySequence(hotKey.keys).toString(QKeySequence::PortableText);
            // The menus get their keys before the text does.
            const bool isInAMenu = !commandOf(keys, u"Menu "_s).isEmpty();
            QVERIFY2(isInAMenu || !hotKeyText(hotKey.command).isEmpty(), qPrintable(keys));
            if (!ofTheText.contains(keys))
                QCOMPARE(commandOf(keys, u"Code view"_s),
                         isInAMenu ? QString() : hotKeyText(hotKey.command).toString());
        }
    }

    void eachKeyOfTheFileTransfer()
    {
        int found = 0;
        for (const std::span<const FtpToolKey> keys : {localToolKeys(), remoteToolKeys()}) {
            for (const FtpToolKey &key : keys) {
                if (key.pressed.isEmpty())
                    continue;
                ++found;
                const std::vector<KeyGroup> groups = shippedKeys();
                const KeyRow row{key.tip.toString(), {key.pressed.toString()}};
                QVERIFY2(std::ranges::find(groups.back().rows, row) != groups.back().rows.end(),
                         qPrintable(key.tip.toString()));
            }
        }
        QVERIFY(found > 4);
    }

    void theirNames_data()
    {
        QTest::addColumn<QString>("group");
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("command");
        QTest::newRow("entry") << u"Menu File"_s << u"Ctrl+O"_s << u"Open Document"_s;
        QTest::newRow("entry of a menu in a menu") << u"Menu File"_s << u"Ctrl+N"_s << u"New, Blank Document"_s;
        QTest::newRow("dots") << u"Menu Edit"_s << u"Ctrl+G"_s << u"Go To"_s;
        QTest::newRow("tags") << u"Menu Fast Web Tags"_s << u"Shift+Del"_s << u"Start Tag <>"_s;
        QTest::newRow("text's menu") << u"Code view"_s << u"Ctrl+J"_s << u"Lines, Join Lines"_s;
        QTest::newRow("text") << u"Code view"_s << u"Ctrl+F2"_s << u"Set or remove a bookmark"_s;
        QTest::newRow("second key") << u"Code view"_s << u"Ctrl+="_s << u"Larger text"_s;
        QTest::newRow("transfer") << u"File transfer"_s << u"F2"_s << u"Rename the selected local file"_s;
    }

    void theirNames()
    {
        QFETCH(QString, group);
        QFETCH(QString, keys);
        QTEST(commandOf(keys, group), "command");
    }
};

ZEPHIRA_TEST(TstShippedKeys)

#include "tst_shippedkeys.moc"
