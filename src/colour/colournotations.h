// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <array>
#include <optional>

namespace zephira {

/// The ways in which a colour is written: each channel in hexadecimal, each channel in decimal, or one integer with red
/// in the lowest byte.
enum class Notation { Hex, Rgb, Long };

/// Red, green and blue.
using Channels = std::array<quint8, 3>;

/// Red in the lowest byte.
quint32 colourOf(Channels channels);
/// The three lowest bytes, the lowest first.
Channels channelsOf(quint32 colour);

/// A channel of one or two hexadecimal digits, or of up to three decimal digits and at most 255. Nothing for any other
/// text.
std::optional<quint8> hexChannel(const QString &text);
std::optional<quint8> decimalChannel(const QString &text);

/// The boxes in which a colour is typed, and those that show it. Channels count from 0; the notation Long has only the
/// channel 0.
class ColourBoxes
{
public:
    virtual ~ColourBoxes() = default;
    virtual QString text(Notation notation, int channel) const = 0;
    virtual void setText(Notation notation, int channel, const QString &text) = 0;
    /// Marks a box whose text isn't a value, or removes the mark.
    virtual void setMarked(Notation notation, int channel, bool marked) = 0;
    virtual void setResult(Notation notation, const QString &text) = 0;
    /// Red in the lowest byte.
    virtual void showColour(quint32 colour) = 0;
};

/// Keeps the boxes of the three notations in step. What it writes itself doesn't start another round, so the boxes may
/// report every change.
class ColourNotations
{
public:
    /// The boxes must outlive this object.
    explicit ColourNotations(ColourBoxes &boxes) : m_boxes(boxes) {}

    /// Brings the other notations in step with a box that has changed. A text that isn't a value marks its box and
    /// changes nothing else; an empty box changes nothing. Returns whether there was a colour.
    bool changed(Notation notation, int channel);
    /// Whether boxes are being written, so that their changes are echoes.
    bool isUpdating() const { return m_updating; }

private:
    bool fromHex(int channel);
    bool fromRgb(int channel);
    bool fromLong();
    /// Marks the boxes of the family that hold no value. If all of them hold one, fills the family's result and shows
    /// the colour.
    std::optional<Channels> checkHex();
    std::optional<Channels> checkRgb();
    std::optional<qint32> checkLong();
    std::optional<Channels> check(Notation notation);
    /// Writes a family's boxes: the changed channel, and others that hold another value. Boxes that are empty or marked
    /// are being typed into and stay.
    void follow(Notation notation, const Channels &channels, int changed);
    void writeLong(const Channels &channels);

    ColourBoxes &m_boxes;
    bool m_updating = false;
};

} // namespace zephira
