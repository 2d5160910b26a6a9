// SPDX-License-Identifier: GPL-3.0-or-later
#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QtEndian>

#include <cstdlib>

// makeicon SVG ICO: draws a picture in the usual sizes of icons, and writes them as one icon file.
// makeicon SVG PNG SIDE: draws it in one size.

namespace {

constexpr int sides[] = {16, 24, 32, 48, 64, 128, 256};
/// Larger pictures are compressed; not every reader expects that of the small ones.
constexpr int largestPlain = 48;
constexpr quint16 bitsPerPixel = 32;

template<typename Number>
void put(QByteArray &bytes, Number number)
{
    const Number little = qToLittleEndian(number);
    bytes.append(reinterpret_cast<const char *>(&little), sizeof little);
}

QImage drawn(QSvgRenderer &picture, int side)
{
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    picture.render(&painter);
    painter.end();
    return image.convertToFormat(QImage::Format_ARGB32);
}

QByteArray compressed(const QImage &image)
{
    QBuffer png;
    png.open(QIODevice::WriteOnly);
    return image.save(&png, "PNG") ? png.data() : QByteArray();
}

/// A bitmap without its file header: the pixels from the lowest row up, then a mask of which nothing is set, because
/// the pixels themselves are transparent. The height counts both.
QByteArray plain(const QImage &image)
{
    constexpr quint32 headerSize = 40;
    constexpr int rowAlignment = 32;
    const int maskRow = (image.width() + rowAlignment - 1) / rowAlignment * 4;
    QByteArray bytes;
    put(bytes, headerSize);
    put(bytes, static_cast<qint32>(image.width()));
    put(bytes, static_cast<qint32>(2 * image.height()));
    put(bytes, quint16{1});
    put(bytes, bitsPerPixel);
    for (int unused = 0; unused < 6; ++unused)
        put(bytes, quint32{0});
    for (int y = image.height() - 1; y >= 0; --y) {
        for (int x = 0; x < image.width(); ++x)
            put(bytes, static_cast<quint32>(image.pixel(x, y)));
    }
    return bytes + QByteArray(static_cast<qsizetype>(maskRow) * image.height(), '\0');
}

QByteArray iconFile(QSvgRenderer &picture)
{
    constexpr quint32 headerSize = 6;
    constexpr quint32 entrySize = 16;
    QByteArray header;
    QByteArray pictures;
    put(header, quint16{0});
    put(header, quint16{1});
    put(header, static_cast<quint16>(std::size(sides)));
    for (const int side : sides) {
        const QImage image = drawn(picture, side);
        const QByteArray bytes = side <= largestPlain ? plain(image) : compressed(image);
        // A side of 256 is written as 0.
        put(header, static_cast<quint8>(side));
        put(header, static_cast<quint8>(side));
        put(header, quint16{0});
        put(header, quint16{1});
        put(header, bitsPerPixel);
        put(header, static_cast<quint32>(bytes.size()));
        put(header,
            static_cast<quint32>(headerSize + entrySize * std::size(sides) + static_cast<quint32>(pictures.size())));
        pictures += bytes;
    }
    return header + pictures;
}

} // namespace

int main(int argc, char **argv)
{
    constexpr int withSide = 4;
    if (argc != withSide - 1 && argc != withSide)
        return EXIT_FAILURE;
    QSvgRenderer picture(QFile::decodeName(argv[1]));
    if (!picture.isValid())
        return EXIT_FAILURE;
    const QByteArray bytes =
        argc == withSide ? compressed(drawn(picture, QByteArray(argv[3]).toInt())) : iconFile(picture);
    QFile file(QFile::decodeName(argv[2]));
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush() ? EXIT_SUCCESS
                                                                                                : EXIT_FAILURE;
}
