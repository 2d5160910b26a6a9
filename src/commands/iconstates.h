// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QImage>
#include <QProxyStyle>

namespace zephira {

class IconPictures;

/// The contrast ratio that the Web Content Accessibility Guidelines define: 1 for equal colours, 21 for black and white.
qreal contrast(const QColor &one, const QColor &other);
/// How much of what a picture paints can be told from a background, 0 to 1; 1 where it paints nothing.
qreal shareSeen(const QImage &picture, const QColor &background);

/// How icons look in the states for which a theme has no pictures of its own, on light and on dark windows alike:
/// disabled ones are faint, and selected ones stay as they are unless they would vanish in the colour of the selection;
/// then they take the colour of selected text. Icons of the theme that would vanish in the window, or in its lists, take
/// the colour of text. Styles of their own accord take the colour out of the former, which the
/// theme's icons have none of, and give the latter the colour of the selection. It knows of the pictures of icons that are
/// kept, too. The lines in menus are plain: a text that such a row has, to be read from outside, isn't painted.
class IconStates final : public QProxyStyle
{
    Q_OBJECT

public:
    using QProxyStyle::QProxyStyle;

    /// Sets the cache of icon pictures; it must outlive the style, or be reset with nullptr.
    void setPictures(IconPictures *pictures) { m_pictures = pictures; }

    QPixmap generatedIconPixmap(QIcon::Mode mode, const QPixmap &pixmap, const QStyleOption *option) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *answer) const override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption *option, const QWidget *widget) const override;

private:
    IconPictures *m_pictures = nullptr;
};

} // namespace zephira
