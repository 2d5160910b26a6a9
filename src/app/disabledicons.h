// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProxyStyle>

namespace zephira {

/// Draws the icons of disabled commands faintly, on light and on dark windows alike. Styles of their own accord only take
/// the colour out, and the icons of the theme have none.
class DisabledIcons : public QProxyStyle
{
    Q_OBJECT

public:
    using QProxyStyle::QProxyStyle;

    QPixmap generatedIconPixmap(QIcon::Mode mode, const QPixmap &pixmap, const QStyleOption *option) const override;
};

} // namespace zephira
