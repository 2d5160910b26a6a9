// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProxyStyle>

namespace zephira {

class IconPictures;

/// How icons look in the states for which a theme has no pictures of its own, on light and on dark windows alike.
/// Disabled icons are faint. Selected icons stay as they are unless they would vanish in the colour of the selection;
/// then they take the colour of selected text. Without this, styles would desaturate disabled icons, which changes
/// nothing in a theme without colours, and tint selected ones with the colour of the selection. It also uses the cache
/// of icon pictures.
class IconStates final : public QProxyStyle
{
    Q_OBJECT

public:
    using QProxyStyle::QProxyStyle;

    /// Sets the cache of icon pictures; it must outlive the style, or be reset with nullptr.
    void setPictures(IconPictures *pictures) { m_pictures = pictures; }

    QPixmap generatedIconPixmap(QIcon::Mode mode, const QPixmap &pixmap, const QStyleOption *option) const override;
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *answer) const override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption *option, const QWidget *widget) const override;

private:
    IconPictures *m_pictures = nullptr;
};

} // namespace zephira
