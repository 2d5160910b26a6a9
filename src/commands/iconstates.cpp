// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/iconstates.h"

#include "widgets/themeicon.h"

#include <QPainter>
#include <QStyleOption>

#include <algorithm>
#include <array>
#include <cmath>

namespace zephira {

namespace {

constexpr qreal disabledOpacity = 0.4;

/// Below this luminance ratio a picture can't be distinguished from its background.
constexpr qreal visibleContrast = 1.6;

/// The relative luminance of a colour, 0 to 1, by the definition of sRGB.
qreal luminance(const QColor &colour)
{
    const auto linear = [](qreal part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

/// The contrast ratio that the Web Content Accessibility Guidelines define: 1 for equal colours, 21 for black and white.
qreal contrast(const QColor &one, const QColor &other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

/// The mean colour of the visible pixels; transparent if there are none.
QColor meanColour(const QPixmap &pixmap)
{
    const QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
    std::array<qint64, 4> sums{};
    for (int row = 0; row < image.height(); ++row) {
        const auto *line = reinterpret_cast<const QRgb *>(image.constScanLine(row));
        for (int column = 0; column < image.width(); ++column) {
            const QRgb pixel = line[column];
            sums[0] += qRed(pixel);
            sums[1] += qGreen(pixel);
            sums[2] += qBlue(pixel);
            sums[3] += qAlpha(pixel);
        }
    }
    const auto mean = [&sums](size_t part) { return static_cast<int>(sums[part] * 255 / sums[3]); };
    return sums[3] == 0 ? QColor(Qt::transparent) : QColor(mean(0), mean(1), mean(2));
}

QPixmap faint(const QPixmap &pixmap)
{
    QPixmap result(pixmap.size());
    result.setDevicePixelRatio(pixmap.devicePixelRatio());
    result.fill(Qt::transparent);
    QPainter painter(&result);
    painter.setOpacity(disabledOpacity);
    painter.drawPixmap(0, 0, pixmap);
    return result;
}

QPixmap inColour(const QPixmap &pixmap, const QColor &colour)
{
    QPixmap result = pixmap;
    QPainter painter(&result);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(result.rect(), colour);
    return result;
}

} // namespace

QPixmap IconStates::generatedIconPixmap(QIcon::Mode mode, const QPixmap &pixmap, const QStyleOption *option) const
{
    switch (mode) {
    case QIcon::Disabled:
        return faint(pixmap);
    case QIcon::Selected: {
        const bool isVisible =
            contrast(meanColour(pixmap), option->palette.color(QPalette::Highlight)) >= visibleContrast;
        return isVisible ? pixmap : inColour(pixmap, option->palette.color(QPalette::HighlightedText));
    }
    default:
        return QProxyStyle::generatedIconPixmap(mode, pixmap, option);
    }
}

int IconStates::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                          QStyleHintReturn *answer) const
{
    if (hint != IconPicturesHint::question)
        return QProxyStyle::styleHint(hint, option, widget, answer);
    static_cast<IconPicturesHint *>(answer)->pictures = m_pictures;
    return m_pictures != nullptr;
}

QIcon IconStates::standardIcon(StandardPixmap icon, const QStyleOption *option, const QWidget *widget) const
{
    // Every menu bar asks for this icon when it is created, but shows it only if the bar is too narrow.
    if (icon == SP_ToolBarHorizontalExtensionButton) {
        return keptIcon(QStringLiteral("toolbar-extension"), [this, icon] { return QProxyStyle::standardIcon(icon); });
    }
    return QProxyStyle::standardIcon(icon, option, widget);
}

} // namespace zephira
