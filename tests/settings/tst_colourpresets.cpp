// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/colourpresets.h"
#include "settings/options.h"
#include "support/fakes.h"
#include "support/testregistry.h"

#include <QTest>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// The relative luminance of a colour with red in the lowest byte.
double luminance(quint32 colour)
{
    const auto channel = [](quint32 value) {
        const double part = value / 255.0;
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * channel(colour & 0xff) + 0.7152 * channel(colour >> 8 & 0xff)
        + 0.0722 * channel(colour >> 16 & 0xff);
}

double contrast(quint32 a, quint32 b)
{
    const auto [dark, light] = std::minmax({luminance(a), luminance(b)});
    return (light + 0.05) / (dark + 0.05);
}

quint32 at(const ColourPreset &preset, int item)
{
    return preset.colours.at(static_cast<std::size_t>(item));
}

} // namespace

class TstColourPresets final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theirNames()
    {
        QStringList names;
        for (const ColourPreset &preset : colourPresets())
            names.append(preset.name.toString());
        QCOMPARE(names,
                 (QStringList{u"As the desktop"_s, u"Light"_s, u"Dark"_s, u"Dark blue"_s, u"Dark brown"_s,
                              u"High contrast"_s}));
        QVERIFY(colourPresets()[0].colours == shippedColours);
    }

    /// The guidelines for readable texts demand a contrast of 4.5, and 7 where more is wanted.
    void everyTextIsReadable()
    {
        for (const ColourPreset &preset : colourPresets()) {
            const double enough = preset.name == u"High contrast" ? 7 : 4.5;
            int texts = 0;
            for (const AppearanceRow &row : appearanceRows) {
                if (row.background == noItem)
                    continue;
                const quint32 own = at(preset, row.background);
                const quint32 ground = own == automaticColour ? at(preset, WindowColour) : own;
                const QByteArray what = (preset.name.toString() + u": "_s + QString::fromUtf16(row.name)).toUtf8();
                QVERIFY2(contrast(at(preset, row.foreground), ground) >= enough, what.constData());
                if (own == automaticColour) {
                    QVERIFY2(contrast(at(preset, row.foreground), at(preset, HighlightedLineColour)) >= enough,
                             what.constData());
                    ++texts;
                }
            }
            QCOMPARE(texts, 11);
        }
    }

    void lightAndDark()
    {
        for (const ColourPreset &preset : colourPresets()) {
            const bool isLight = preset.name == u"Light" || preset.name == u"As the desktop";
            QCOMPARE(luminance(at(preset, WindowColour)) > 0.5, isLight);
            QCOMPARE(luminance(at(preset, TextFore)) < 0.5, isLight);
        }
    }

    /// Colours that equal the shipped ones would turn dark on a dark desktop. Both dividers are saved as one.
    void othersStayOnEveryDesktop()
    {
        for (const ColourPreset &preset : colourPresets().subspan(1)) {
            QVERIFY(at(preset, WindowColour) != shippedColours[WindowColour]);
            QCOMPARE(at(preset, LineDividerColour), at(preset, MarginDividerColour));
        }
    }

    void theControlShowsThem()
    {
        FakeEditor editor;
        QVERIFY(!shownPreset(editor));
        for (int i = 0; i < std::ssize(colourPresets()); ++i) {
            setColours(editor, colourPresets()[static_cast<std::size_t>(i)].colours);
            QCOMPARE(shownPreset(editor), std::optional(i));
        }
        editor.setColor(OperatorBack, 5);
        QVERIFY(!shownPreset(editor));
    }

    /// Saving writes them as it writes any colour.
    void savingWritesThem()
    {
        TestContext world;
        const ColourPreset &preset = colourPresets()[3];
        setColours(world.editor, preset.colours);
        QVERIFY(saveOptions({}, world.editor, world.configuration, world.settings).ok());
        int compared = 0;
        for (int row = 0; row < std::ssize(appearanceRows); ++row) {
            const AppearanceRow &items = appearanceRows[static_cast<std::size_t>(row)];
            if (items.foreground == MarginDividerColour)
                continue;
            QCOMPARE(world.configuration.value(colourSetting(row, ColourPart::Foreground)),
                     QString::number(static_cast<qint32>(at(preset, items.foreground))));
            ++compared;
            if (items.background == noItem)
                continue;
            QCOMPARE(world.configuration.value(colourSetting(row, ColourPart::Background)),
                     QString::number(static_cast<qint32>(at(preset, items.background))));
            ++compared;
        }
        QCOMPARE(compared, 30);
    }

    void takingBackKeepsWhatWasChangedSince()
    {
        FakeEditor editor;
        setColours(editor, colourPresets()[1].colours);
        editor.setColor(StringFore, 9);
        takeBackPreset(editor, colourPresets()[1], shippedColours);
        EditorColours expected = shippedColours;
        expected[StringFore] = 9;
        QVERIFY(coloursOf(editor) == expected);
    }
};

ZEPHIRA_TEST(TstColourPresets)
#include "tst_colourpresets.moc"
