// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/fakes.h"
#include "support/testregistry.h"
#include "widgets/picturefile.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

QByteArray bitmap(int width, int height)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::blue);
    image.save(&buffer, "BMP");
    return bytes;
}

/// The header of a bitmap that claims a size, without the pixels.
QByteArray claiming(qint32 width, qint32 height)
{
    QByteArray bytes = bitmap(2, 2);
    memcpy(bytes.data() + 18, &width, 4);
    memcpy(bytes.data() + 22, &height, 4);
    return bytes;
}

} // namespace

class TstPictureFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void read();
    void contentDecides();
    void aboveTheUsualLimit();
    void failures_data();
    void failures();
    void limitIsRestored();
};

void TstPictureFile::read()
{
    MemoryFileStore files;
    files.contents[u"/p.bmp"_s] = bitmap(30, 20);
    const Result<QPixmap> picture = readPicture(files, u"/p.bmp"_s);
    QVERIFY(picture.ok());
    QCOMPARE(picture.value().size(), QSize(30, 20));
    QCOMPARE(picture.value().toImage().pixelColor(0, 0), QColor(Qt::blue));
}

void TstPictureFile::contentDecides()
{
    MemoryFileStore files;
    files.contents[u"/p.gif"_s] = bitmap(3, 2);
    QVERIFY(readPicture(files, u"/p.gif"_s).ok());
}

void TstPictureFile::aboveTheUsualLimit()
{
    // Readers usually allocate no more than 128 MiB.
    const QSize size(6000, 6000);
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    MemoryFileStore files;
    QBuffer buffer(&files.contents[u"/p.jpg"_s]);
    QVERIFY(image.save(&buffer, "JPG"));
    const Result<QPixmap> picture = readPicture(files, u"/p.jpg"_s);
    QVERIFY(picture.ok());
    QCOMPARE(picture.value().size(), size);
}

void TstPictureFile::failures_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("sentence");
    QTest::newRow("text") << QByteArray("This is no picture.")
                          << u"The picture /p.bmp can't be shown: Unsupported image format."_s;
    QTest::newRow("empty") << QByteArray() << u"The picture /p.bmp can't be shown: Unsupported image format."_s;
    QTest::newRow("above 100 megapixels")
        << claiming(10001, 10000)
        << u"The picture /p.bmp has 10001 x 10000 pixels. Pictures above 100 megapixels aren't shown."_s;
}

void TstPictureFile::failures()
{
    QFETCH(QByteArray, content);
    MemoryFileStore files;
    files.contents[u"/p.bmp"_s] = content;
    const Result<QPixmap> picture = readPicture(files, u"/p.bmp"_s);
    QVERIFY(!picture.ok());
    QTEST(picture.error().sentence, "sentence");
}

void TstPictureFile::limitIsRestored()
{
    const int limit = QImageReader::allocationLimit();
    MemoryFileStore files;
    files.contents[u"/p.bmp"_s] = bitmap(1, 1);
    QVERIFY(readPicture(files, u"/p.bmp"_s).ok());
    QCOMPARE(QImageReader::allocationLimit(), limit);
}

ZEPHIRA_TEST(TstPictureFile)
#include "tst_picturefile.moc"
