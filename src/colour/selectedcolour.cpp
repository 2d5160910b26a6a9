// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/selectedcolour.h"

#include "colour/colournotations.h"

#include <QColor>
#include <QRegularExpression>

#include <cmath>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// A channel as it is written in rgb(): 0 to 255, or a share of it in percent.
std::optional<quint8> channelIn(const QString &text)
{
    if (!text.endsWith(u'%'))
        return decimalChannel(text);
    const double percent = text.chopped(1).toDouble();
    return percent <= 100 ? std::optional(static_cast<quint8>(std::lround(percent * 255 / 100))) : std::nullopt;
}

/// The colour of a name, or of hexadecimal digits.
QColor namedColour(const QString &name)
{
    // The one name that pages know and Qt doesn't.
    if (name.compare("rebeccapurple"_L1, Qt::CaseInsensitive) == 0)
        return {0x66, 0x33, 0x99};
    return QColor(name);
}

} // namespace

std::optional<quint32> colourOfText(const QString &text)
{
    // All three are numbers, or all three are percentages.
    static const QRegularExpression numbers(uR"(^rgb\(\s*(\d{1,3})\s*,\s*(\d{1,3})\s*,\s*(\d{1,3})\s*\)$)"_s,
                                            QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression percentages(
        uR"(^rgb\(\s*(\d+(?:\.\d+)?%)\s*,\s*(\d+(?:\.\d+)?%)\s*,\s*(\d+(?:\.\d+)?%)\s*\)$)"_s,
        QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression digits(u"^#([0-9a-f]{3}|[0-9a-f]{6})$"_s,
                                           QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression word(u"^[a-z]+$"_s, QRegularExpression::CaseInsensitiveOption);
    const QString trimmed = text.trimmed();
    for (const QRegularExpression &form : {numbers, percentages}) {
        const QRegularExpressionMatch match = form.match(trimmed);
        if (!match.hasMatch())
            continue;
        const auto red = channelIn(match.captured(1));
        const auto green = channelIn(match.captured(2));
        const auto blue = channelIn(match.captured(3));
        return red && green && blue ? std::optional(colourOf({*red, *green, *blue})) : std::nullopt;
    }
    if (!digits.match(trimmed).hasMatch() && !word.match(trimmed).hasMatch())
        return {};
    const QColor colour = namedColour(trimmed);
    // "transparent", which is no colour, is a name too.
    if (!colour.isValid() || colour.alpha() != 255)
        return {};
    return colourOf(
        {static_cast<quint8>(colour.red()), static_cast<quint8>(colour.green()), static_cast<quint8>(colour.blue())});
}

} // namespace zephira
