// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "web/designer/wellformed.h"

#include <QTest>

using namespace zephira;

class TstWellFormed final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsXmlFromHtml_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("expected");
        QTest::newRow("nothing") << QString() << false;
        QTest::newRow("words") << "a" << false;
        QTest::newRow("one element") << "<p>a</p>" << true;
        QTest::newRow("a void element of HTML") << "<p>a<br></p>" << false;
        QTest::newRow("an empty element") << "<p>a<br /></p>" << true;
        QTest::newRow("a lone end tag") << "<div>a</p></div>" << false;
        QTest::newRow("an entity of XHTML") << "<p>a&nbsp;b</p>" << true;
        QTest::newRow("an ampersand") << "<p>a & b</p>" << false;
        QTest::newRow("a document type")
            << "<!DOCTYPE html PUBLIC '-//W3C//DTD XHTML 1.0 Strict//EN' 'a.dtd'><html></html>" << true;
        QTest::newRow("behind the end") << "<p>a</p><p>b</p>" << false;
    }
    void tellsXmlFromHtml()
    {
        QFETCH(const QString, text);
        QTEST(isWellFormed(text), "expected");
    }
};

ZEPHIRA_TEST(TstWellFormed)
#include "tst_wellformed.moc"
