// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>
#include <QPixmap>
#include <QStyleOption>

#include <functional>

namespace zephira {

/// What icons looked like when they were drawn before, in this run or an earlier one: finding an icon in its theme and
/// drawing it costs a start more than all of its bars.
class IconPictures
{
public:
    virtual ~IconPictures() = default;

    /// Whether any picture of the icon is kept, so that the icon is there.
    virtual bool knows(const QString &icon) = 0;
    /// The icon at a size in pixels on a screen of that scale; null where it isn't kept.
    virtual QPixmap find(const QString &icon, QSize size, qreal scale) = 0;
    virtual void keep(const QString &icon, QSize size, qreal scale, const QPixmap &picture) = 0;
};

/// How an icon asks the application's style for the pictures. A style that keeps none leaves `pictures` alone.
struct IconPicturesHint : QStyleHintReturn {
    static constexpr auto question = static_cast<QStyle::StyleHint>(QStyle::SH_CustomBase + 1);

    IconPictures *pictures = nullptr;
};

/// An icon of the theme, as QIcon::fromTheme() gives it, that is only looked for where no picture of it is kept.
QIcon themeIcon(const QString &name);

/// The same for an icon from elsewhere: `make` gives it where no picture is kept under the name.
QIcon keptIcon(const QString &name, std::function<QIcon()> make);

} // namespace zephira
