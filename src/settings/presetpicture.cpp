// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/presetpicture.h"

#include "settings/colourpresets.h"
#include "widgets/qtvalues.h"

#include <QFontMetrics>
#include <QPainter>

namespace zephira {

namespace {

struct Piece {
    QStringView text;
    ColourItem item;
};

constexpr Piece sample[] = {
    {u"<p ", TagElementFore},  {u"id", TagAttributeFore}, {u"=", OperatorFore},
    {u"\"a\"", StringFore},    {u">", TagElementFore},    {u"Text", TagTextFore},
    {u"&amp;", TagEntityFore}, {u"</p>", TagElementFore}, {u"<!-- -->", CommentFore},
};

} // namespace

QPixmap presetPicture(const ColourPreset &preset, const QFont &font, QSize size, qreal ratio)
{
    const auto colour = [&](ColourItem item) { return toQColor(preset.colours[static_cast<std::size_t>(item)]); };
    QPixmap picture(size * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(colour(WindowColour));
    QPainter painter(&picture);
    painter.setFont(font);
    const QFontMetrics metrics(font);
    const int base = (size.height() + metrics.ascent() - metrics.descent()) / 2;
    const int margin = metrics.horizontalAdvance(u'0') * 2;
    painter.fillRect(0, 0, margin, size.height(), colour(LeftMarginColour));
    painter.setPen(colour(LineNumberFore));
    painter.drawText(margin / 4, base, QStringLiteral("1"));
    int x = margin + margin / 4;
    for (const auto &[text, item] : sample) {
        painter.setPen(colour(item));
        painter.drawText(x, base, text.toString());
        x += metrics.horizontalAdvance(text.toString());
    }
    return picture;
}

} // namespace zephira
