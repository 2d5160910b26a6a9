// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/selectedcolour.h"

#include "colour/colournotations.h"

#include <QColor>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace zephira {

std::optional<quint32> colourOfText(const QString &text)
{
    static const QRegularExpression triple(uR"(^rgb\(\s*(\d{1,3})\s*,\s*(\d{1,3})\s*,\s*(\d{1,3})\s*\)$)"_s,
                                           QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression digits(u"^#([0-9a-f]{3}|[0-9a-f]{6})$"_s,
                                           QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression word(u"^[a-z]+$"_s, QRegularExpression::CaseInsensitiveOption);
    const QString trimmed = text.trimmed();
    if (const QRegularExpressionMatch match = triple.match(trimmed); match.hasMatch()) {
        const auto red = decimalChannel(match.captured(1));
        const auto green = decimalChannel(match.captured(2));
        const auto blue = decimalChannel(match.captured(3));
        return red && green && blue ? std::optional(colourOf({*red, *green, *blue})) : std::nullopt;
    }
    if (!digits.match(trimmed).hasMatch() && !word.match(trimmed).hasMatch())
        return {};
    const QColor colour(trimmed);
    // "transparent", which is no colour, is a name too.
    if (!colour.isValid() || colour.alpha() != 255)
        return {};
    return colourOf(
        {static_cast<quint8>(colour.red()), static_cast<quint8>(colour.green()), static_cast<quint8>(colour.blue())});
}

} // namespace zephira
