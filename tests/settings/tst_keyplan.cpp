// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/keyplan.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

constexpr std::size_t save = 0;
constexpr std::size_t font = 1;
constexpr std::size_t table = 2;

KeyPlan plan()
{
    return {{{u"save"_s, u"File > Save"_s, u"Ctrl+S"_s, u"Ctrl+S"_s},
             {u"font"_s, u"Options > Font"_s, u"F7"_s, u"F9"_s},
             {u"table"_s, u"Tools > Table Wizard"_s, {}, {}}},
            {{u"Ctrl+M"_s, u"is \"Go to the matching bracket\" in the text"_s, true},
             {u"Alt+F"_s, u"opens the menu File"_s, false},
             {u"F7"_s, u"is used by the text"_s, true},
             {u"F9"_s, u"is used by the text"_s, true}}};
}

QStringList keysOf(const KeyPlan &plan)
{
    QStringList keys;
    for (const CommandKey &command : plan.commands())
        keys.append(command.keys);
    return keys;
}

} // namespace

class TstKeyPlan : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void search_data()
    {
        QTest::addColumn<QString>("search");
        QTest::addColumn<bool>("found");
        QTest::newRow("empty") << u""_s << true;
        QTest::newRow("blanks") << u"  "_s << true;
        QTest::newRow("of the caption") << u"go"_s << true;
        QTest::newRow("case") << u"EDIT"_s << true;
        QTest::newRow("two words in any order") << u"to edit"_s << true;
        QTest::newRow("keys") << u"ctrl+g"_s << true;
        QTest::newRow("word and keys") << u"edit ctrl"_s << true;
        QTest::newRow("one of two isn't there") << u"edit save"_s << false;
        QTest::newRow("other keys") << u"Ctrl+H"_s << false;
        QTest::newRow("no pattern") << u".*"_s << false;
    }

    void search()
    {
        QFETCH(QString, search);
        QTEST(isFound(search, u"Edit > Go To"_s, u"Ctrl+G"_s), "found");
    }

    void clashes()
    {
        const KeyPlan keys = plan();
        QCOMPARE(keys.clash(table, u"Ctrl+S"_s), KeyClash{.command = save});
        QCOMPARE(keys.clash(save, u"Ctrl+S"_s), KeyClash{});
        QCOMPARE(keys.clash(table, u"Ctrl+T"_s), KeyClash{});
        QCOMPARE(keys.clash(table, {}), KeyClash{});
        // A command without keys doesn't clash with another one that has none.
        KeyPlan two = plan();
        two.set(save, {});
        QCOMPARE(two.clash(table, {}), KeyClash{});
        const KeyClash bracket = keys.clash(table, u"Ctrl+M"_s);
        QCOMPARE(bracket.other.use, u"is \"Go to the matching bracket\" in the text"_s);
        QVERIFY(bracket.isClash() && bracket.yields());
        QVERIFY(keys.clash(table, u"Alt+F"_s).isClash());
        QVERIFY(!keys.clash(table, u"Alt+F"_s).yields());
        QVERIFY(!KeyClash{}.isClash());
        QVERIFY(KeyClash{}.yields());
    }

    /// A command may always have the keys that ship with it; a command goes before other uses.
    void whatShipsIsOnesOwn()
    {
        const KeyPlan keys = plan();
        QCOMPARE(keys.clash(font, u"F7"_s), KeyClash{});
        QVERIFY(keys.clash(table, u"F7"_s).isClash());
        QCOMPARE(keys.clash(table, u"F9"_s), KeyClash{.command = font});
    }

    void setTakesKeysFromAnother()
    {
        KeyPlan keys = plan();
        QCOMPARE(keys.set(table, u"Ctrl+S"_s), std::optional(save));
        QCOMPARE(keysOf(keys), (QStringList{{}, u"F9"_s, u"Ctrl+S"_s}));
        QCOMPARE(keys.changes(), (std::vector<KeyChange>{{u"save"_s, {}}, {u"table"_s, u"Ctrl+S"_s}}));
        QCOMPARE(keys.set(table, {}), std::nullopt);
        QCOMPARE(keys.changes(), (std::vector<KeyChange>{{u"save"_s, {}}}));
        QCOMPARE(keys.reset(save), std::nullopt);
        QCOMPARE(keys.changes(), std::vector<KeyChange>{});
    }

    void resetTakesWhatShipsBack()
    {
        KeyPlan keys = plan();
        keys.set(table, u"F7"_s);
        QCOMPARE(keys.reset(font), std::optional(table));
        QCOMPARE(keysOf(keys), (QStringList{u"Ctrl+S"_s, u"F7"_s, {}}));
        keys.set(save, u"F7"_s);
        keys.resetAll();
        QCOMPARE(keysOf(keys), (QStringList{u"Ctrl+S"_s, u"F7"_s, {}}));
        QCOMPARE(keys.changes(), (std::vector<KeyChange>{{u"font"_s, u"F7"_s}}));
    }

    void whatIsSavedIsNoChange()
    {
        KeyPlan keys = plan();
        keys.set(table, u"F8"_s);
        keys.setSaved();
        QCOMPARE(keys.changes(), std::vector<KeyChange>{});
        keys.set(table, {});
        QCOMPARE(keys.changes(), (std::vector<KeyChange>{{u"table"_s, {}}}));
    }
};

ZEPHIRA_TEST(TstKeyPlan)
#include "tst_keyplan.moc"
