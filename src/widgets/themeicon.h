// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>
#include <QPixmap>
#include <QStyleOption>

#include <functional>

namespace zephira {

/// A cache of rendered icons, from this run or an earlier one. Looking icons up in their theme and drawing them would
/// take more of the start-up time than all toolbars.
class IconPictures
{
public:
    virtual ~IconPictures() = default;

    /// Whether any picture of the icon is cached, which implies that the icon exists.
    virtual bool knows(const QString &icon) = 0;
    /// The icon at a size in device pixels, for the given device pixel ratio; null if it isn't cached.
    virtual QPixmap find(const QString &icon, QSize size, qreal scale) = 0;
    virtual void keep(const QString &icon, QSize size, qreal scale, const QPixmap &picture) = 0;
};

/// The style hint with which an icon gets the cache from the application's style. A style without a cache leaves
/// `pictures` unchanged.
struct IconPicturesHint : QStyleHintReturn {
    static constexpr auto question = static_cast<QStyle::StyleHint>(QStyle::SH_CustomBase + 1);

    IconPictures *pictures = nullptr;
};

/// A theme icon, as from QIcon::fromTheme(), that is looked up only if no picture of it is cached.
QIcon themeIcon(const QString &name);
/// The same, or one of the application's style where the theme lacks it.
QIcon themeIcon(const QString &name, QStyle::StandardPixmap fallback);

/// The same for an icon from another source: `make` creates it if no picture is cached under the name.
QIcon keptIcon(const QString &name, std::function<QIcon()> make);

} // namespace zephira
