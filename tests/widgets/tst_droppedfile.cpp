// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "widgets/droppedfile.h"

#include <QMimeData>
#include <QTest>
#include <QUrl>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstDroppedFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void firstFile_data()
    {
        QTest::addColumn<QStringList>("urls");
        QTest::addColumn<QString>("file");
        QTest::newRow("nothing") << QStringList() << QString();
        QTest::newRow("one") << QStringList{u"file:///a/b.htm"_s} << u"/a/b.htm"_s;
        QTest::newRow("first of several") << QStringList{u"file:///a"_s, u"file:///b"_s} << u"/a"_s;
        QTest::newRow("addresses don't count") << QStringList{u"http://host/a"_s, u"file:///b"_s} << u"/b"_s;
        QTest::newRow("an address alone") << QStringList{u"http://host/a"_s} << QString();
        QTest::newRow("blanks and umlauts") << QStringList{u"file:///my%20pages/%C3%A4.htm"_s} << u"/my pages/ä.htm"_s;
    }

    void firstFile()
    {
        QFETCH(QStringList, urls);
        QMimeData data;
        data.setUrls(QUrl::fromStringList(urls));
        QTEST(droppedFile(&data), "file");
    }

    void textIsNoFile()
    {
        QMimeData data;
        data.setText(u"/a/b.htm"_s);
        QCOMPARE(droppedFile(&data), QString());
    }
};

ZEPHIRA_TEST(TstDroppedFile)
#include "tst_droppedfile.moc"
