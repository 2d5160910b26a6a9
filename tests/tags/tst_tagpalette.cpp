// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "tags/tagpalette.h"

#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstTagPalette final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rowsInTheirOrder()
    {
        QStringList rows;
        QSet<QString> items;
        for (const PaletteTag &tag : paletteTags()) {
            items.insert(tag.item.toString());
            rows.append(tag.item == tag.markup ? tag.item.toString()
                                               : tag.item.toString() + u" is "_s + tag.markup.toString());
        }
        QCOMPARE(items.size(), 44);
        QCOMPARE(rows,
                 QStringLiteral("<textarea> is <textarea> </textarea>\n"
                                "<img> is <img></img>\n"
                                "<a> is <a href=\"></a>\n"
                                "<br>\n"
                                "<blink> is <blink> </blink>\n"
                                "<center> is <center> </center>\n"
                                "<dir> is <dir> </dir>\n"
                                "<div> is <div> </div>\n"
                                "<head> is <head> </head>\n"
                                "<html> is <html> </html>\n"
                                "<menu> is <menu> </menu>\n"
                                "<nobr> is <nobr> </nobr>\n"
                                "<noembad> is <noembad> </noembad>\n"
                                "<nolayer> is <nolayer> </nolayer>\n"
                                "<plain text> is <plain text> </plain text>\n"
                                "<strong> is <strong> </strong>\n"
                                "<strike> is <strike> </strike>\n"
                                "<title> is <title> </title>\n"
                                "<u> is <u> </u>\n"
                                "<ul> is <ul> </ul>\n"
                                "<body> is <body></body>\n"
                                "<font> is <font></font>\n"
                                "<frame> is <frame> </frame>\n"
                                "<H1> is <H1> </H1>\n"
                                "<H2> is <H2> </H2>\n"
                                "<H3> is <H3> </H3>\n"
                                "<H4> is <H4> </H4>\n"
                                "<H5> is <H5> </H5>\n"
                                "<H6> is <H6> </H6>\n"
                                "<hr> is <hr></hr>\n"
                                "<table> is <table></table>\n"
                                "<tr> is <tr></tr>\n"
                                "<td> is <td></td>\n"
                                "<th> is <th> </th>\n"
                                "<Input type=\"button\">\n"
                                "<Input type=\"checkbox\">\n"
                                "<Input type=\"File\">\n"
                                "<Input type=\"hidden\">\n"
                                "<Input type=\"image\">\n"
                                "<Input type=\"password\">\n"
                                "<Input type=\"radio\">\n"
                                "<Input type=\"reset\">\n"
                                "<Input type=\"submit\">\n"
                                "<Input type=\"text\">")
                     .split(u'\n'));
    }

    void markup_data()
    {
        QTest::addColumn<QString>("item");
        QTest::addColumn<QString>("markup");
        QTest::newRow("br") << u"<br>"_s << u"<br>"_s;
        QTest::newRow("a") << u"<a>"_s << u"<a href=\"></a>"_s;
        QTest::newRow("text box") << u"<Input type=\"text\">"_s << u"<Input type=\"text\">"_s;
        QTest::newRow("another case") << u"<BR>"_s << QString();
        QTest::newRow("no item") << u"<p>"_s << QString();
        QTest::newRow("nothing") << QString() << QString();
    }

    void markup()
    {
        QFETCH(QString, item);
        QTEST(paletteMarkup(item).toString(), "markup");
    }
};

ZEPHIRA_TEST(TstTagPalette)

#include "tst_tagpalette.moc"
