// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "wizards/fieldtemplate.h"
#include "wizards/linkmarkup.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

/// What the link and the image wizard write, compared as whole texts.
class TstLinkMarkup final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void prefixesInOrder()
    {
        QCOMPARE(linkPrefixes().join(u' '),
                 u"Http:// ftp:// file:// gopher:// https:// mailto: news: telnet: wais: View -Source:"_s);
    }

    void prefix_data()
    {
        QTest::addColumn<QString>("address");
        QTest::addColumn<QString>("result");
        QTest::newRow("empty") << u""_s << u"news:"_s;
        QTest::newRow("a prefix") << u"ftp://"_s << u"news:"_s;
        QTest::newRow("the same prefix") << u"news:"_s << u"news:"_s;
        QTest::newRow("a prefix in lower case") << u"http://"_s << u"news:"_s;
        QTest::newRow("a prefix in capitals") << u"VIEW -SOURCE:"_s << u"news:"_s;
        QTest::newRow("a prefix with a blank") << u"ftp:// "_s << u"news:ftp:// "_s;
        QTest::newRow("another spelling") << u"view-source:"_s << u"news:view-source:"_s;
        QTest::newRow("a file") << u"a.htm"_s << u"news:a.htm"_s;
        QTest::newRow("an address with a prefix") << u"ftp://x"_s << u"news:ftp://x"_s;
    }

    void prefix()
    {
        QFETCH(QString, address);
        QTEST(withPrefix(u"news:"_s, address), "result");
    }

    void link_data()
    {
        QTest::addColumn<QString>("status");
        QTest::addColumn<QString>("text");
        QTest::newRow("no status text") << u""_s
                                        << u"<a href=\"a.htm\" target=\"_self\" name=\"n\" title=\"t\">Ä & \"b\"</a>"_s;
        QTest::newRow("status text")
            << u"it's"_s
            << u"<a href=\"a.htm\" target=\"_self\" name=\"n\" onMouseOver=\"window.status='it's'; return true;\" "
               "onMouseOut=\"window.status=''; return true;\" title=\"t\">Ä & \"b\"</a>"_s;
        QTest::newRow("a blank is a status text")
            << u" "_s
            << u"<a href=\"a.htm\" target=\"_self\" name=\"n\" onMouseOver=\"window.status=' '; return true;\" "
               "onMouseOut=\"window.status=''; return true;\" title=\"t\">Ä & \"b\"</a>"_s;
    }

    void link()
    {
        QFETCH(QString, status);
        QTEST(linkMarkup({.address = u"a.htm"_s,
                          .text = u"Ä & \"b\""_s,
                          .target = u"_self"_s,
                          .statusText = status,
                          .title = u"t"_s,
                          .name = u"n"_s}),
              "text");
    }

    void emptyFieldsAreWritten()
    {
        QCOMPARE(linkMarkup({}), u"<a href=\"\" target=\"\" name=\"\" title=\"\"></a>"_s);
        QCOMPARE(imageMarkup({}), u"<img src=\"\" width=\"\" height=\"\" alt=\"\" border=\"\">\r\n"_s);
    }

    void image_data()
    {
        QTest::addColumn<QString>("reference");
        QTest::addColumn<QString>("text");
        QTest::newRow("relative") << u"../b.png"_s
                                  << u"<img src=\"../b.png\" width=\"3\" height=\"2\" alt=\"ö<\" border=\"0\">\r\n"_s;
        QTest::newRow("another drive")
            << u":/a/b.png"_s << u"<img src=\"D:\\a\\b.png\" width=\"3\" height=\"2\" alt=\"ö<\" border=\"0\">\r\n"_s;
        QTest::newRow("a colon further on")
            << u"a:b.png"_s << u"<img src=\"a:b.png\" width=\"3\" height=\"2\" alt=\"ö<\" border=\"0\">\r\n"_s;
        QTest::newRow("none") << u""_s << u"<img src=\"\" width=\"3\" height=\"2\" alt=\"ö<\" border=\"0\">\r\n"_s;
    }

    void image()
    {
        QFETCH(QString, reference);
        QTEST(imageMarkup({.file = u"D:\\a\\b.png"_s,
                           .reference = reference,
                           .width = u"3"_s,
                           .height = u"2"_s,
                           .alternative = u"ö<"_s,
                           .border = u"0"_s}),
              "text");
    }

    void anyFieldsFillTheTemplates()
    {
        QRandomGenerator random(7603);
        for (int i = 0; i < 2000; ++i) {
            const QStringList f = generatedFields(random, 6);
            const QString apostrophe(u'\u0001');
            const QString status = f[3].isEmpty() ? QString()
                                                  : u" onMouseOver='window.status=\u0001④\u0001; return true;'"
                                                    " onMouseOut='window.status=\u0001\u0001; return true;'"_s;
            const QString notation = u"<a href='①' target='③' name='⑥'"_s + status + u" title='⑤'>②</a>"_s;
            QCOMPARE(linkMarkup({f[0], f[1], f[2], f[3], f[4], f[5]}), filled(notation, f).replace(apostrophe, u"'"_s));
            const QString source = f[1].left(1) == u":"_s ? u"①"_s : u"②"_s;
            QCOMPARE(imageMarkup({f[0], f[1], f[2], f[3], f[4], f[5]}),
                     filled(u"<img src='"_s + source + u"' width='③' height='④' alt='⑤' border='⑥'>\n"_s, f));
        }
    }
};

ZEPHIRA_TEST(TstLinkMarkup)

#include "tst_linkmarkup.moc"
