// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary texts in the boxes of a color: they come to rest, and all notations show one color or none.
#include "colour/colournotations.h"
#include "colour/keynotations.h"
#include "fuzz/fuzztarget.h"

#include <QHash>
#include <QStringList>

using namespace zephira;

namespace {

/// Boxes that report each change, as those of a form do.
class Boxes final : public ColourBoxes
{
public:
    QString text(Notation notation, int channel) const override { return m_texts[index(notation, channel)]; }
    void setText(Notation notation, int channel, const QString &text) override
    {
        m_texts[index(notation, channel)] = text;
        notations->changed(notation, channel);
        check(m_colour <= 0xffffff);
    }
    void setMarked(Notation notation, int channel, bool marked) override
    {
        m_marked[index(notation, channel)] = marked;
    }
    void setResult(Notation notation, const QString &text) override { m_results[static_cast<int>(notation)] = text; }
    void showColour(quint32 colour) override { m_colour = colour; }

    ColourNotations *notations = nullptr;

private:
    static int index(Notation notation, int channel) { return static_cast<int>(notation) * 3 + channel; }

    QString m_texts[9];
    bool m_marked[9] = {};
    QString m_results[3];
    quint32 m_colour = 0;
};

} // namespace

FUZZ_TARGET(colournotations)
{
    QString text = zephira::fuzz::inputText(data, size);
    Boxes boxes;
    ColourNotations notations(boxes);
    boxes.notations = &notations;
    while (!text.isEmpty()) {
        const QString line = zephira::fuzz::takenLine(text);
        if (line.isEmpty())
            continue;
        const auto notation = static_cast<Notation>(line.front().unicode() % 3);
        const int channel = notation == Notation::Long ? 0 : line.front().unicode() / 3 % 3;
        boxes.setText(notation, channel, line.mid(1));
        check(!notations.isUpdating());
        const std::optional<quint8> hex = hexChannel(line.mid(1));
        check(!hex || line.mid(1).toInt(nullptr, 16) == *hex);
        const std::optional<quint8> decimal = decimalChannel(line.mid(1));
        check(!decimal || line.mid(1).toInt() == *decimal);
        check(hexadecimalDigits(firstCodePoint(line)).toUInt(nullptr, 16) == firstCodePoint(line));
        check(binaryDigits(firstCodePoint(line)).toUInt(nullptr, 2) == firstCodePoint(line));
    }
    return 0;
}
