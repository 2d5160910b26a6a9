// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/colournotations.h"

#include "core/errorstyles.h"
#include "core/vbtext.h"

#include <QScopedValueRollback>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr int channelCount = 3;

/// The value of a text that consists only of digits of that base, at most `longest` of them.
std::optional<int> digitsIn(const QString &text, int base, int longest)
{
    const bool digits = !text.isEmpty() && text.size() <= longest && std::ranges::all_of(text, [base](QChar digit) {
        return (digit >= u'0' && digit <= u'9')
            || (base == 16 && ((digit >= u'a' && digit <= u'f') || (digit >= u'A' && digit <= u'F')));
    });
    return digits ? std::optional(text.toInt(nullptr, base)) : std::nullopt;
}

std::optional<quint8> channelOf(Notation notation, const QString &text)
{
    return notation == Notation::Hex ? hexChannel(text) : decimalChannel(text);
}

QString digitsOf(Notation notation, quint8 channel)
{
    return notation == Notation::Hex ? QString::number(channel, 16).toUpper() : QString::number(channel);
}

} // namespace

quint32 colourOf(Channels channels)
{
    return channels[0] | static_cast<quint32>(channels[1]) << 8 | static_cast<quint32>(channels[2]) << 16;
}

Channels channelsOf(quint32 colour)
{
    return {static_cast<quint8>(colour), static_cast<quint8>(colour >> 8), static_cast<quint8>(colour >> 16)};
}

std::optional<quint8> hexChannel(const QString &text)
{
    const std::optional<int> value = digitsIn(text, 16, 2);
    return value ? std::optional(static_cast<quint8>(*value)) : std::nullopt;
}

std::optional<quint8> decimalChannel(const QString &text)
{
    const std::optional<int> value = digitsIn(text, 10, 3);
    return value && *value <= 255 ? std::optional(static_cast<quint8>(*value)) : std::nullopt;
}

bool ColourNotations::changed(Notation notation, int channel)
{
    if (m_updating)
        return false;
    const QScopedValueRollback updating(m_updating, true);
    switch (notation) {
    case Notation::Hex:
        return fromHex(channel);
    case Notation::Rgb:
        return fromRgb(channel);
    case Notation::Long:
        return fromLong();
    }
    return false;
}

bool ColourNotations::fromHex(int channel)
{
    const std::optional<Channels> channels = checkHex();
    if (!channels)
        return false;
    follow(Notation::Rgb, *channels, channel);
    checkRgb();
    writeLong(*channels);
    return true;
}

bool ColourNotations::fromRgb(int channel)
{
    const std::optional<Channels> channels = checkRgb();
    if (!channels)
        return false;
    follow(Notation::Hex, *channels, channel);
    checkHex();
    writeLong(*channels);
    return true;
}

bool ColourNotations::fromLong()
{
    const std::optional<qint32> number = checkLong();
    if (!number)
        return false;
    const Channels channels = channelsOf(static_cast<quint32>(*number));
    for (const Notation notation : {Notation::Hex, Notation::Rgb}) {
        for (int i = 0; i < channelCount; ++i)
            m_boxes.setText(notation, i, digitsOf(notation, channels.at(static_cast<std::size_t>(i))));
    }
    checkHex();
    checkRgb();
    return true;
}

std::optional<Channels> ColourNotations::checkHex()
{
    const std::optional<Channels> channels = check(Notation::Hex);
    if (channels) {
        QString digits;
        for (int i = 0; i < channelCount; ++i)
            digits += m_boxes.text(Notation::Hex, i).toUpper();
        m_boxes.setResult(Notation::Hex, u'#' + digits);
        m_boxes.showColour(colourOf(*channels));
    }
    return channels;
}

std::optional<Channels> ColourNotations::checkRgb()
{
    const std::optional<Channels> channels = check(Notation::Rgb);
    if (channels) {
        m_boxes.setResult(Notation::Rgb,
                          u"RGB(%1,%2,%3)"_s.arg(m_boxes.text(Notation::Rgb, 0), m_boxes.text(Notation::Rgb, 1),
                                                 m_boxes.text(Notation::Rgb, 2)));
        m_boxes.showColour(colourOf(*channels));
    }
    return channels;
}

std::optional<qint32> ColourNotations::checkLong()
{
    const QString text = m_boxes.text(Notation::Long, 0);
    qint32 number = 0;
    const bool converted = !text.isEmpty() && endingQuietly([&] { number = CLng(text); });
    m_boxes.setMarked(Notation::Long, 0, !text.isEmpty() && !converted);
    if (!converted)
        return {};
    m_boxes.setResult(Notation::Long, text);
    m_boxes.showColour(colourOf(channelsOf(static_cast<quint32>(number))));
    return number;
}

std::optional<Channels> ColourNotations::check(Notation notation)
{
    Channels channels{};
    bool complete = true;
    for (int i = 0; i < channelCount; ++i) {
        const QString text = m_boxes.text(notation, i);
        const std::optional<quint8> channel = channelOf(notation, text);
        m_boxes.setMarked(notation, i, !channel && !text.isEmpty());
        channels.at(static_cast<std::size_t>(i)) = channel.value_or(0);
        complete = complete && channel;
    }
    return complete ? std::optional(channels) : std::nullopt;
}

void ColourNotations::follow(Notation notation, const Channels &channels, int changed)
{
    for (int i = 0; i < channelCount; ++i) {
        const quint8 channel = channels.at(static_cast<std::size_t>(i));
        const std::optional<quint8> shown = channelOf(notation, m_boxes.text(notation, i));
        if (i == changed || (shown && *shown != channel))
            m_boxes.setText(notation, i, digitsOf(notation, channel));
    }
}

void ColourNotations::writeLong(const Channels &channels)
{
    m_boxes.setText(Notation::Long, 0, QString::number(colourOf(channels)));
    checkLong();
}

} // namespace zephira
