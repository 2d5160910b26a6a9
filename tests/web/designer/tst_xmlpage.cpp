// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "web/designer/xmlpage.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstXmlPage final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsXmlFromHtml_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("expected");
        const auto page = [](const char *body) {
            return QString(u"<html><body>%1</body></html>"_s).arg(QLatin1String(body));
        };
        QTest::newRow("nothing") << QString() << false;
        QTest::newRow("words") << u"a"_s << false;
        QTest::newRow("a fragment") << u"<p>a</p>"_s << false;
        QTest::newRow("a page") << page("<p>a</p>") << true;
        QTest::newRow("a void element of HTML") << page("<p>a<br></p>") << false;
        QTest::newRow("an empty element") << page("<p>a<br /></p>") << true;
        QTest::newRow("a lone end tag") << page("<div>a</p></div>") << false;
        QTest::newRow("an entity of XHTML") << page("<p>a&nbsp;b</p>") << true;
        QTest::newRow("an ampersand") << page("<p>a & b</p>") << false;
        QTest::newRow("a declaration and a document type")
            << u"<?xml version='1.0'?><!DOCTYPE html PUBLIC '-//W3C//DTD XHTML 1.0 Strict//EN' 'a.dtd'>"_s + page("")
            << true;
        QTest::newRow("text behind the end") << page("") + u"a"_s << false;
    }
    void tellsXmlFromHtml()
    {
        QFETCH(const QString, text);
        QTEST(isXmlPage(text), "expected");
    }
};

ZEPHIRA_TEST(TstXmlPage)
#include "tst_xmlpage.moc"
