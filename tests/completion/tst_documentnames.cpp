// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/documentnames.h"
#include "support/testregistry.h"

#include <QTest>

#include <algorithm>

using namespace zephira;

/// The names that documents use.
class TstDocumentNames final : public QObject
{
    Q_OBJECT

private:
    static QByteArray sorted(const QSet<QByteArray> &names)
    {
        QByteArrayList list(names.begin(), names.end());
        std::ranges::sort(list);
        return list.join(' ');
    }

private Q_SLOTS:
    void markup()
    {
        const DocumentNames names =
            markupNames("<!-- <p id=no> --><link rel='StyleSheet' href=\"a.css\"><link rel=icon href=b.ico>"
                        "<style>.s1, #s2 > p { } @import 'b.css';</style>"
                        "<p ID=one CLASS='two  three'>x<b id=\"<?= $a ?>\" class=\"<%= b %> c\">"
                        "<?php echo \"<p id='php'>\" ?><script>'<p id=js>'</script><a id='last'>",
                        PlaceLanguage::Html);
        QCOMPARE(sorted(names.ids), QByteArray("last one s2"));
        QCOMPARE(sorted(names.classes), QByteArray("s1 three two"));
        QCOMPARE(names.sheets, (QByteArrayList{"a.css", "b.css"}));
    }

    void xml()
    {
        const DocumentNames names =
            markupNames("<?xml version='1.0'?><Items xml:lang='en'><x:item Nr=\"1\"/><new", PlaceLanguage::Xml);
        QCOMPARE(sorted(names.tags), QByteArray("Items x:item"));
        QCOMPARE(sorted(names.attributes), QByteArray("Nr xml:lang"));
    }

    void brokenPages_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("ids");
        QTest::newRow("no end of a tag") << QByteArray("<p id=a <b id=b>") << QByteArray("a b");
        QTest::newRow("no quote") << QByteArray("<p id=a><b id=\"b>") << QByteArray("a");
        QTest::newRow("quote far below") << QByteArray("<p id=\"x>\n<b id=\"c\" id='d'>") << QByteArray("d");
        QTest::newRow("no end of a comment") << QByteArray("<p id=a><!-- <p id=b>") << QByteArray("a");
        QTest::newRow("no end of a script") << QByteArray("<p id=a><script><p id=b>") << QByteArray("a");
        QTest::newRow("cut") << QByteArray("<p id=a><p id=") << QByteArray("a");
        QTest::newRow("nothing") << QByteArray() << QByteArray();
    }

    void brokenPages()
    {
        QFETCH(QByteArray, text);
        QTEST(sorted(markupNames(text, PlaceLanguage::Html).ids), "ids");
    }

    void styles()
    {
        const DocumentNames names =
            styleNames("@charset \"utf-8\"; @import url( 'x.css' ) print; @import \"y.css\"; @import url(z.css);"
                       "/* .no */ .a.b:not(.c), #d [href='.no'] { width: .5em; background: url(no.png) }"
                       "@media print { .e { color: #fff } p.f-g, .\xc3\xa4 { } } h1 { .n { } }"
                       ".unfinished");
        QCOMPARE(sorted(names.classes), QByteArray("a b c e f-g n \xc3\xa4"));
        QCOMPARE(sorted(names.ids), QByteArray("d"));
        QCOMPARE(names.sheets, (QByteArrayList{"x.css", "y.css", "z.css"}));
    }

    void words()
    {
        QCOMPARE(sorted(wordsOf("if (alpha < beta_2) { x = 123abc; alpha++; } \xc3\xa4\xc3\xb6", 100)),
                 QByteArray("alpha beta_2 \xc3\xa4\xc3\xb6"));
        QCOMPARE(wordsOf(QByteArray("abc def ghi"), 2).size(), 2);
    }

    void manyNames()
    {
        QByteArray text;
        for (int i = 0; i < 20000; ++i)
            text += "<p id=n" + QByteArray::number(i) + " class='" + QByteArray(300, 'x') + "'>";
        const DocumentNames names = markupNames(text, PlaceLanguage::Html);
        QCOMPARE(names.ids.size(), 5000);
        QVERIFY(names.classes.isEmpty());
    }
};

ZEPHIRA_TEST(TstDocumentNames)

#include "tst_documentnames.moc"
