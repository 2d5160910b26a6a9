// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/assistfixture.h"
#include "assist/picturepath.h"
#include "assist/picturetip.h"
#include "support/testregistry.h"

#include <QBuffer>
#include <QImage>

using namespace Qt::StringLiterals;
using namespace zephira;

/// The picture's tip over src.
class TstPictureTip final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sources_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<QByteArray>("expected");
        // The mouse is at the bar.
        QTest::newRow("quotes") << QByteArray(R"(<img alt="a" src="b/|c.png">)") << QByteArray("b/c.png");
        QTest::newRow("single quotes, blanks") << QByteArray("<img SRC = '|c d.png' >") << QByteArray("c d.png");
        QTest::newRow("without quotes") << QByteArray("<img src=c|.png>") << QByteArray("c.png");
        QTest::newRow("an address with a sign") << QByteArray(R"(<img src="c.png?a=b|c">)") << QByteArray("c.png?a=bc");
        QTest::newRow("the name") << QByteArray(R"(<img s|rc="c.png">)") << QByteArray();
        QTest::newRow("behind") << QByteArray(R"(<img src="c.png"| alt="">)") << QByteArray();
        QTest::newRow("another attribute") << QByteArray(R"(<img src="c.png" alt="|x">)") << QByteArray();
        QTest::newRow("a longer name") << QByteArray(R"(<img data-src="|c.png">)") << QByteArray();
        QTest::newRow("text") << QByteArray("src=\"a.png\"> b|c") << QByteArray();
        QTest::newRow("nothing") << QByteArray("|") << QByteArray();
        QTest::newRow("open") << QByteArray("<img src=\"|") << QByteArray();
    }

    void sources()
    {
        QFETCH(QByteArray, line);
        const qsizetype at = line.indexOf('|');
        line.remove(at, 1);
        QTEST(sourceAt(line, at).toByteArray(), "expected");
    }

    void files()
    {
        const QString page = u"/site/sub"_s;
        const QString project = u"/site"_s;
        QCOMPARE(pictureFile(u"a.png"_s, page, project), u"/site/sub/a.png"_s);
        QCOMPARE(pictureFile(u"../a%20b.png?x#y"_s, page, project), u"/site/a b.png"_s);
        QCOMPARE(pictureFile(u"/a.png"_s, page, project), u"/site/a.png"_s);
        for (const QString &address : {u"http://a/b.png"_s, u"//a/b.png"_s, u"data:image/png;base64,AA"_s, u""_s,
                                       u"#a"_s, u"<?= $a ?>"_s, u"a%00.png"_s, u"C:\\a.png"_s})
            QCOMPARE(pictureFile(address, page, project), QString());
        QCOMPARE(pictureFile(u"a.png"_s, {}, project), QString());
        QCOMPARE(pictureFile(u"/a.png"_s, page, {}), QString());
    }

    void tip()
    {
        AssistFixture bench;
        QImage image(480, 20, QImage::Format_RGB32);
        image.fill(Qt::red);
        QByteArray data;
        QBuffer buffer(&data);
        QVERIFY(buffer.open(QIODevice::WriteOnly) && image.save(&buffer, "PNG"));
        bench.world.files.contents[u"/site/a.png"_s] = data;
        bench.world.files.contents[u"/site/b.png"_s] = "no picture";
        bench.world.document.setProjectPath(u"/site"_s);
        bench.editor.setText(u"<img src=\"/a.png\"><img src=\"/b.png\"><img src=\"/c.png\">"_s);
        const PictureTip tip(bench.editor, bench.context);
        QVERIFY(tip.tipAt(12).startsWith(u"<img src=\"data:image/png;base64,"_s));
        QVERIFY(tip.tipAt(12).endsWith(u"<br>480 \u00d7 20 pixels"_s));
        QCOMPARE(tip.tipAt(2), QString());
        QCOMPARE(tip.tipAt(30), QString());
        QCOMPARE(tip.tipAt(48), QString());
    }
};

ZEPHIRA_TEST(TstPictureTip)

#include "tst_picturetip.moc"
