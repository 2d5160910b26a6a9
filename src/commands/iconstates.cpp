// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/iconstates.h"

#include "widgets/themeicon.h"

#include <QImage>
#include <QPainter>
#include <QStyleOption>

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>
#include <span>

namespace zephira {

namespace {

constexpr qreal disabledOpacity = 0.4;

/// The contrast that the Web Content Accessibility Guidelines require of meaningful pictures.
constexpr qreal visibleContrast = 3;
/// An icon can be seen when so much of what it paints can.
constexpr qreal visibleShare = 0.25;
/// The colour that can be seen on black and on white.
constexpr QColor middleGrey(0x80, 0x80, 0x80);

/// The part of a colour, 0 to 255, that is light, 0 to 1, by the definition of sRGB.
qreal linear(int part)
{
    static const auto table = [] {
        std::array<qreal, 256> values{};
        for (std::size_t i = 0; i < values.size(); ++i) {
            const qreal share = static_cast<qreal>(i) / 255;
            values[i] = share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
        }
        return values;
    }();
    return table[static_cast<std::size_t>(part)];
}

qreal luminance(QRgb colour)
{
    return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) + 0.0722 * linear(qBlue(colour));
}

bool isVisible(const QImage &picture, const QColor &background)
{
    return shareSeen(picture, background) >= visibleShare;
}

/// The picture in the format that looking at it needs, so that looking twice converts it once.
QImage pixelsOf(const QPixmap &pixmap)
{
    return pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
}

/// The colour of some that is seen best on the background where it is seen worst.
QColor bestOn(std::initializer_list<QColor> backgrounds, std::initializer_list<QColor> colours)
{
    const auto worst = [&](const QColor &colour) {
        qreal least = contrast(colour, *backgrounds.begin());
        for (const QColor &background : backgrounds)
            least = std::min(least, contrast(colour, background));
        return least;
    };
    const auto isWorse = [&](const QColor &one, const QColor &other) { return worst(one) < worst(other); };
    return std::max(colours, isWorse);
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

/// The picture in one colour. It is drawn several times over itself, because its thin lines are half transparent and
/// would otherwise be too faint in a single colour.
QPixmap inColour(const QPixmap &pixmap, const QColor &colour)
{
    constexpr int layers = 3;
    QPixmap coloured = pixmap;
    QPainter painter(&coloured);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(coloured.rect(), colour);
    painter.end();
    QPixmap result = coloured;
    painter.begin(&result);
    for (int layer = 1; layer < layers; ++layer)
        painter.drawPixmap(0, 0, coloured);
    return result;
}

} // namespace

qreal contrast(const QColor &one, const QColor &other)
{
    const auto [darker, lighter] = std::minmax({luminance(one.rgb()), luminance(other.rgb())});
    return (lighter + 0.05) / (darker + 0.05);
}

qreal shareSeen(const QImage &picture, const QColor &background)
{
    constexpr int opaqueEnough = 96;
    const QImage image = picture.convertToFormat(QImage::Format_ARGB32);
    const qreal behind = luminance(background.rgb());
    int painted = 0;
    int seen = 0;
    QRgb last = 0; // Neighbours mostly have the same colour.
    bool lastIsSeen = false;
    const int height = image.height();
    const auto width = static_cast<std::size_t>(image.width());
    for (int row = 0; row < height; ++row) {
        const std::span line(reinterpret_cast<const QRgb *>(image.constScanLine(row)), width);
        for (const QRgb pixel : line) {
            if (qAlpha(pixel) < opaqueEnough)
                continue;
            if (pixel != last) {
                const auto [darker, lighter] = std::minmax({behind, luminance(pixel)});
                lastIsSeen = (lighter + 0.05) / (darker + 0.05) >= visibleContrast;
                last = pixel;
            }
            ++painted;
            seen += lastIsSeen;
        }
    }
    return painted == 0 ? 1 : static_cast<qreal>(seen) / painted;
}

QPixmap IconStates::generatedIconPixmap(QIcon::Mode mode, const QPixmap &pixmap, const QStyleOption *option) const
{
    switch (mode) {
    case QIcon::Disabled:
        return faint(pixmap);
    case QIcon::Selected: {
        const QColor behind = option->palette.color(QPalette::Highlight);
        if (isVisible(pixelsOf(pixmap), behind))
            return pixmap;
        const QColor text = option->palette.color(QPalette::HighlightedText);
        return inColour(pixmap, text);
    }
    case QIcon::Normal: {
        const QColor window = option->palette.color(QPalette::Window);
        const QColor paper = option->palette.color(QPalette::Base);
        const QImage picture = pixelsOf(pixmap);
        if (isVisible(picture, window) && isVisible(picture, paper))
            return pixmap;
        const QColor text = option->palette.color(QPalette::WindowText);
        return inColour(pixmap, bestOn({window, paper}, {text, middleGrey}));
    }
    default:
        return QProxyStyle::generatedIconPixmap(mode, pixmap, option);
    }
}

void IconStates::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                             const QWidget *widget) const
{
    const auto *row = element == CE_MenuItem ? qstyleoption_cast<const QStyleOptionMenuItem *>(option) : nullptr;
    if (!row || row->menuItemType != QStyleOptionMenuItem::Separator || row->text.isEmpty()) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    QStyleOptionMenuItem line(*row);
    line.text.clear();
    QProxyStyle::drawControl(element, &line, painter, widget);
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
