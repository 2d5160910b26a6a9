// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/colourtable.h"
#include "core/editoritems.h"
#include "core/errorstyles.h"
#include "support/fakes.h"
#include "support/testregistry.h"

#include <QTest>

using namespace zephira;
using namespace Qt::StringLiterals;

class TstColourTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyItemComesFromExactlyOneKey()
    {
        std::array<int, colourItemTotal> colours{};
        std::array<int, fontStyleTotal> styles{};
        for (const AppearanceRow &items : appearanceRows) {
            for (const int item : {items.foreground, items.background}) {
                if (item >= 0)
                    ++colours[static_cast<std::size_t>(item)];
            }
            if (items.fontStyle >= 0)
                ++styles[static_cast<std::size_t>(items.fontStyle)];
        }
        for (const int uses : colours)
            QCOMPARE(uses, 1);
        for (const int uses : styles)
            QCOMPARE(uses, 1);
    }

    void pushesEachKeyToItsItem()
    {
        MemoryConfiguration configuration;
        fill(configuration);
        FakeEditor editor;
        const ColourTable table = readColours(configuration, u"/x/zephira.ini"_s);
        QCOMPARE(table[5].background, 500);
        QCOMPARE(table[5].foreground, 501);
        QCOMPARE(table[5].fontStyle, 502);
        applyColours(table, editor);
        // The keys are row * 100 for the background, + 1 for the foreground, + 2 for the font style.
        const std::map<int, quint32> expected = {
            {0, 1701},  {1, 601},   {2, 1},     {3, 0},     {4, 1601},  {5, 1600},  {6, 801},   {7, 800},
            {8, 501},   {9, 500},   {10, 901},  {11, 900},  {12, 1001}, {13, 1000}, {14, 101},  {15, 100},
            {16, 1101}, {17, 1100}, {18, 1501}, {19, 1500}, {20, 1301}, {21, 1300}, {22, 1201}, {23, 1200},
            {24, 1401}, {25, 1400}, {26, 701},  {27, 700},  {28, 201},  {29, 301},  {30, 401}};
        QVERIFY(editor.colours == expected);
        const std::map<int, int> styles = {{0, 1602}, {1, 802},  {2, 502},  {3, 902},  {4, 1002},  {5, 102},
                                           {6, 1102}, {7, 1502}, {8, 1302}, {9, 1202}, {10, 1402}, {11, 702}};
        QVERIFY(editor.fontStyles == styles);
    }

    void aMissingKeyIsNamed()
    {
        MemoryConfiguration configuration;
        fill(configuration);
        configuration.put(u"Colors"_s, u"clr17fnt"_s, u""_s); // Never used, but required.
        QVERIFY_EXCEPTION_THROWN(readColours(configuration, u"/x/zephira.ini"_s), HandlerError);
    }

private:
    static void fill(MemoryConfiguration &configuration)
    {
        for (int row = 0; row < std::ssize(appearanceRows); ++row) {
            const QString key = u"clr%1"_s.arg(row);
            configuration.put(u"Colors"_s, key + u"bg"_s, QString::number(row * 100));
            configuration.put(u"Colors"_s, key + u"fr"_s, QString::number(row * 100 + 1));
            configuration.put(u"Colors"_s, key + u"fnt"_s, QString::number(row * 100 + 2));
        }
    }
};

ZEPHIRA_TEST(TstColourTable)
#include "tst_colourtable.moc"
