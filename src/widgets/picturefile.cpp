// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/picturefile.h"

#include "core/filestore.h"

#include <QBuffer>
#include <QImageReader>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// In MiB. A pixel takes at most eight bytes, in pictures with 16 bits for each of four channels.
constexpr int memoryForLargestPicture = 8 * maximumPicturePixels / (1024 * 1024) + 1;

} // namespace

Result<QPixmap> readPicture(const FileStore &files, const QString &path)
{
    Result<QByteArray> bytes = files.read(path);
    if (!bytes)
        return bytes.error();
    QByteArray content = std::move(bytes).value();
    QBuffer buffer(&content);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);

    const QSize size = reader.size();
    if (size.isValid() && static_cast<qint64>(size.width()) * size.height() > maximumPicturePixels) {
        return Error{Error::Code::TooLarge,
                     u"The picture %1 has %2 x %3 pixels. Pictures above 100 megapixels aren't shown."_s.arg(
                         path, QString::number(size.width()), QString::number(size.height()))};
    }
    // The limit applies to the whole process, so it is lifted only while this picture is read.
    const auto restoreLimit =
        qScopeGuard([limit = QImageReader::allocationLimit()] { QImageReader::setAllocationLimit(limit); });
    QImageReader::setAllocationLimit(memoryForLargestPicture);
    const QImage image = reader.read();
    if (image.isNull())
        return Error{Error::Code::Malformed, u"The picture %1 can't be shown: %2."_s.arg(path, reader.errorString())};
    return QPixmap::fromImage(image);
}

} // namespace zephira
