// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProxyStyle>

namespace zephira {

/// How icons look in the states for which a theme has no pictures of its own, on light and on dark windows alike:
/// disabled ones are faint, and selected ones stay as they are unless they would vanish in the colour of the selection;
/// then they take the colour of selected text. Styles of their own accord take the colour out of the former, which the
/// theme's icons have none of, and give the latter the colour of the selection.
class IconStates final : public QProxyStyle
{
    Q_OBJECT

public:
    using QProxyStyle::QProxyStyle;

    QPixmap generatedIconPixmap(QIcon::Mode mode, const QPixmap &pixmap, const QStyleOption *option) const override;
};

} // namespace zephira
