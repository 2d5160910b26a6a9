// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/ftpimages.h"

#include "ftp/filetypes.h"

#include <QStyle>
#include <QWidget>

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

constexpr int treeImageSize = 16;
constexpr int imageSizes[] = {treeImageSize, 32};

} // namespace

QIcon ftpImage(int number, const QWidget &widget)
{
    const ImageRow &row = images[number - 1];
    const QIcon picture =
        QIcon::fromTheme(row.icon.toString(), widget.style()->standardIcon(row.fallback, nullptr, &widget));
    QIcon icon;
    for (const int size : imageSizes) {
        const QPixmap pixmap = picture.pixmap({size, size}, widget.devicePixelRatioF());
        icon.addPixmap(pixmap, QIcon::Normal);
        // Otherwise a style would blend it with the selection's colour, where its thin lines become invisible.
        icon.addPixmap(pixmap, QIcon::Selected);
    }
    return icon;
}

QIcon ftpFolderImage(const QWidget &widget)
{
    const QSize size(treeImageSize, treeImageSize);
    const qreal ratio = widget.devicePixelRatioF();
    const QPixmap closed = ftpImage(folderImage, widget).pixmap(size, ratio);
    const QPixmap open = ftpImage(openFolderImage, widget).pixmap(size, ratio);
    QIcon icon;
    icon.addPixmap(closed, QIcon::Normal);
    icon.addPixmap(open, QIcon::Selected);
    return icon;
}

} // namespace zephira
