// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "widgets/fileimages.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

/// The picture that a file has by its extension.
class TstFileImages final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void extensions_data();
    void extensions();
};

void TstFileImages::extensions_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("image");
    struct Row {
        int image;
        QStringList extensions;
    };
    const Row rows[] = {
        {8, {u"avi"_s, u"mpg"_s, u"mpeg"_s, u"mov"_s}},
        {4, {u"gif"_s}},
        {1, {u"jpg"_s, u"jpeg"_s, u"jpe"_s, u"bmp"_s}},
        {2, {u"htm"_s, u"html"_s, u"xml"_s, u"asp"_s}},
        {5, {u"js"_s, u"css"_s, u"cgi"_s}},
        {6, {u"mp3"_s, u"ram"_s, u"au"_s, u"vaw"_s}},
        {7, {u"zip"_s, u"arj"_s}},
        {9, {u"exe"_s, u"com"_s, u"bat"_s}},
        {3, {u"txt"_s, u"log"_s, u"doc"_s, u"rtf"_s, u"ftp"_s, u"ini"_s, u"dat"_s}},
    };
    for (const Row &row : rows) {
        for (const QString &extension : row.extensions)
            QTest::newRow(qPrintable(extension)) << u"a."_s + extension << row.image;
    }
    QTest::newRow("upper case") << u"INDEX.HTM"_s << 2;
    QTest::newRow("two points") << u"page.htm.zip"_s << 7;
    QTest::newRow("wav") << u"a.wav"_s << 10;
    QTest::newRow("no extension") << u"htm"_s << 10;
    QTest::newRow("point at the end") << u"htm."_s << 10;
    QTest::newRow("unknown") << u"a.xyz"_s << 10;
    QTest::newRow("nothing") << QString() << 10;
}

void TstFileImages::extensions()
{
    QFETCH(QString, name);
    QTEST(imageForFile(name), "image");
}

ZEPHIRA_TEST(TstFileImages)

#include "tst_fileimages.moc"
