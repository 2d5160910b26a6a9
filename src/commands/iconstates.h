// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProxyStyle>

namespace zephira {

class IconPictures;

/// How icons look in the states for which a theme has no pictures of its own, on light and on dark windows alike:
/// disabled ones are faint, and selected ones stay as they are unless they would vanish in the colour of the selection;
/// then they take the colour of selected text. Styles of their own accord take the colour out of the former, which the
/// theme's icons have none of, and give the latter the colour of the selection. It knows of the pictures of icons that are
/// kept, too.
class IconStates final : public QProxyStyle
{
    Q_OBJECT

public:
    using QProxyStyle::QProxyStyle;

    /// Lends the icons the pictures that are kept of them; they must outlive the style, or be taken back by nullptr.
    void setPictures(IconPictures *pictures) { m_pictures = pictures; }

    QPixmap generatedIconPixmap(QIcon::Mode mode, const QPixmap &pixmap, const QStyleOption *option) const override;
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *answer) const override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption *option, const QWidget *widget) const override;

private:
    IconPictures *m_pictures = nullptr;
};

} // namespace zephira
