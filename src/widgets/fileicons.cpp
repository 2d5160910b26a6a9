// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/fileicons.h"

#include "widgets/fileimages.h"
#include "widgets/themeicon.h"

#include <QIconEngine>
#include <QStyle>

#include <utility>

namespace zephira {

namespace {

struct ImageRow {
    QStringView icon;
    QStyle::StandardPixmap fallback;
};

/// The image lists, starting with number 1.
constexpr ImageRow images[] = {
    {u"image-x-generic", QStyle::SP_FileIcon},
    {u"text-html", QStyle::SP_FileIcon},
    {u"text-plain", QStyle::SP_FileIcon},
    {u"image-gif", QStyle::SP_FileIcon},
    {u"text-css", QStyle::SP_FileIcon},
    {u"audio-x-generic", QStyle::SP_FileIcon},
    {u"application-zip", QStyle::SP_FileIcon},
    {u"video-x-generic", QStyle::SP_FileIcon},
    {u"application-x-executable", QStyle::SP_FileIcon},
    {u"unknown", QStyle::SP_FileIcon},
    {u"network-server", QStyle::SP_DriveNetIcon},
    {u"folder", QStyle::SP_DirIcon},
    {u"folder-open", QStyle::SP_DirOpenIcon},
};

/// A folder that opens when it is selected.
class FolderEngine final : public QIconEngine
{
public:
    FolderEngine(QIcon closed, QIcon open) : m_closed(std::move(closed)), m_open(std::move(open)) {}

    QIconEngine *clone() const override { return new FolderEngine(*this); }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        shown(mode).paint(painter, rect, Qt::AlignCenter, mode, state);
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        return scaledPixmap(size, mode, state, 1);
    }

    QPixmap scaledPixmap(const QSize &size, QIcon::Mode mode, QIcon::State state, qreal scale) override
    {
        QPixmap picture = shown(mode).pixmap((QSizeF(size) / scale).toSize(), scale, mode, state);
        picture.setDevicePixelRatio(1);
        return picture;
    }

private:
    const QIcon &shown(QIcon::Mode mode) const { return mode == QIcon::Selected ? m_open : m_closed; }

    QIcon m_closed;
    QIcon m_open;
};

} // namespace

QIcon fileIcon(int number)
{
    const ImageRow &row = images[number - 1];
    return themeIcon(row.icon.toString(), row.fallback);
}

QIcon folderIcon()
{
    return QIcon(new FolderEngine(fileIcon(folderImage), fileIcon(openFolderImage)));
}

} // namespace zephira
