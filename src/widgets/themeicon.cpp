// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/themeicon.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QStyle>

#include <optional>

namespace zephira {

namespace {

IconPictures *keptPictures()
{
    IconPicturesHint hint;
    QApplication::style()->styleHint(IconPicturesHint::question, nullptr, nullptr, &hint);
    return hint.pictures;
}

/// Draws the cached picture, or the icon itself if there is none.
class KeptIconEngine final : public QIconEngine
{
public:
    KeptIconEngine(QString name, std::function<QIcon()> make, bool isOfTheme)
        : m_name(std::move(name)), m_make(std::move(make)), m_isOfTheme(isOfTheme)
    {}

    QString key() const override { return QStringLiteral("KeptIconEngine"); }
    QIconEngine *clone() const override { return new KeptIconEngine(*this); }
    QString iconName() override { return m_isOfTheme ? m_name : QString(); }

    bool isNull() override
    {
        IconPictures *pictures = keptPictures();
        return !(pictures && pictures->knows(m_name)) && icon().isNull();
    }

    /// Only icons of a theme have specific sizes.
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override
    {
        return m_isOfTheme ? icon().availableSizes(mode, state) : QList<QSize>();
    }

    QSize actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        if (IconPictures *pictures = keptPictures()) {
            const qreal scale = qApp->devicePixelRatio();
            if (const QPixmap picture = pictures->find(m_name, size * scale, scale); !picture.isNull())
                return (QSizeF(picture.size()) / scale).toSize();
        }
        return icon().actualSize(size, mode, state);
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        const qreal scale = painter->device()->devicePixelRatio();
        painter->drawPixmap(rect, scaledPixmap(rect.size() * scale, mode, state, scale));
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        return scaledPixmap(size, mode, state, 1);
    }

    QPixmap scaledPixmap(const QSize &size, QIcon::Mode mode, QIcon::State state, qreal scale) override
    {
        const QPixmap drawn = picture(size, state, scale);
        if (drawn.isNull())
            return drawn;
        QStyleOption option(0);
        option.palette = QGuiApplication::palette();
        const auto inState = [&option](QIcon::Mode wanted, const QPixmap &from) {
            return QApplication::style()->generatedIconPixmap(wanted, from, &option);
        };
        // A theme doesn't know the window's colours.
        if (mode == QIcon::Selected || !m_isOfTheme)
            return mode == QIcon::Normal ? drawn : inState(mode, drawn);
        const QPixmap normal = inState(QIcon::Normal, drawn);
        return mode == QIcon::Normal ? normal : inState(mode, normal);
    }

private:
    QPixmap picture(QSize size, QIcon::State state, qreal scale)
    {
        IconPictures *pictures = keptPictures();
        if (pictures) {
            if (QPixmap kept = pictures->find(m_name, size, scale); !kept.isNull())
                return kept;
        }
        QPixmap drawn = icon().pixmap((QSizeF(size) / scale).toSize(), scale, QIcon::Normal, state);
        drawn.setDevicePixelRatio(1);
        if (pictures && !drawn.isNull())
            pictures->keep(m_name, size, scale, drawn);
        return drawn;
    }

    QIcon &icon()
    {
        if (!m_icon)
            m_icon = m_make();
        return *m_icon;
    }

    QString m_name;
    std::function<QIcon()> m_make;
    bool m_isOfTheme;
    std::optional<QIcon> m_icon;
};

} // namespace

QIcon themeIcon(const QString &name)
{
    return QIcon(new KeptIconEngine(
        name, [name] { return QIcon::fromTheme(name); }, true));
}

QIcon themeIcon(const QString &name, QStyle::StandardPixmap fallback)
{
    const QIcon icon = themeIcon(name);
    return icon.isNull() ? QApplication::style()->standardIcon(fallback) : icon;
}

QIcon keptIcon(const QString &name, std::function<QIcon()> make)
{
    return QIcon(new KeptIconEngine(name, std::move(make), false));
}

} // namespace zephira
