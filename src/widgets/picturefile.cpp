// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/picturefile.h"

#include "core/filestore.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QImageReader>
#include <QScopeGuard>

#include <utility>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// In MiB. A pixel takes at most eight bytes, in pictures with 16 bits for each of four channels.
constexpr int memoryForLargestPicture = 8 * maximumPicturePixels / (1024 * 1024) + 1;

bool isTooLarge(QSize size)
{
    return static_cast<qint64>(size.width()) * size.height() > maximumPicturePixels;
}

Error tooManyPixels(const QString &path, QSize size)
{
    return {Error::Code::TooLarge,
            QCoreApplication::translate(
                "Pictures", "The picture %1 has %2 x %3 pixels. Pictures above 100 megapixels aren't shown.")
                .arg(path, QString::number(size.width()), QString::number(size.height()))};
}

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
    if (size.isValid() && isTooLarge(size))
        return tooManyPixels(path, size);
    // The limit applies to the whole process, so it is lifted only while this picture is read.
    const auto restoreLimit =
        qScopeGuard([limit = QImageReader::allocationLimit()] { QImageReader::setAllocationLimit(limit); });
    QImageReader::setAllocationLimit(memoryForLargestPicture);
    QImage image = reader.read();
    if (image.isNull())
        return Error{Error::Code::Malformed,
                     QCoreApplication::translate("Pictures", "The picture %1 can't be shown: %2.")
                         .arg(path, reader.errorString())};
    // Some formats don't say their size in advance.
    if (isTooLarge(image.size()))
        return tooManyPixels(path, image.size());
    return QPixmap::fromImage(std::move(image));
}

} // namespace zephira
