// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/filefilter.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstFileFilter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesAndPatterns_data();
    void namesAndPatterns();
    void suffix_data();
    void suffix();
};

void TstFileFilter::namesAndPatterns_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("empty") << u""_s << QStringList();
    QTest::newRow("one") << u"SQL Files|*.sql"_s << QStringList{u"SQL Files (*.sql)"_s};
    QTest::newRow("several patterns") << u"Html Files|*.html;*.htm|All Files|*.*"_s
                                      << QStringList{u"Html Files (*.html *.htm)"_s, u"All Files (*)"_s};
    QTest::newRow("pattern without a dot")
        << u"Supported|*.java;*css;*.js"_s << QStringList{u"Supported (*.java *css *.js)"_s};
    QTest::newRow("name with brackets") << u"Module (BAS) Files|*.bas"_s
                                        << QStringList{u"Module (BAS) Files (*.bas)"_s};
    QTest::newRow("blanks around patterns") << u"Pictures|*.gif; *.jpg ;"_s << QStringList{u"Pictures (*.gif *.jpg)"_s};
    QTest::newRow("name without patterns") << u"A|*.a|B"_s << QStringList{u"A (*.a)"_s};
}

void TstFileFilter::namesAndPatterns()
{
    QFETCH(QString, filter);
    QFETCH(QStringList, expected);
    QCOMPARE(nameFilters(filter), expected);
}

void TstFileFilter::suffix_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("expected");
    QTest::newRow("added") << u"HTML Files (*.html)"_s << u"/home/me/page"_s << u"/home/me/page.html"_s;
    QTest::newRow("first of several") << u"Html Files (*.html *.htm)"_s << u"/p"_s << u"/p.html"_s;
    QTest::newRow("brackets in the name") << u"Module (BAS) Files (*.bas)"_s << u"/m"_s << u"/m.bas"_s;
    QTest::newRow("has one") << u"HTML Files (*.html)"_s << u"/p.htm"_s << u"/p.htm"_s;
    QTest::newRow("dot at the end") << u"HTML Files (*.html)"_s << u"/p."_s << u"/p."_s;
    QTest::newRow("dot in the folder") << u"HTML Files (*.html)"_s << u"/my.site/page"_s << u"/my.site/page.html"_s;
    QTest::newRow("all files") << u"All Files (*)"_s << u"/Makefile"_s << u"/Makefile"_s;
    QTest::newRow("pattern without a dot") << u"Style Sheets (*css)"_s << u"/p"_s << u"/p"_s;
    QTest::newRow("wildcard in the extension") << u"Any (*.ht*)"_s << u"/p"_s << u"/p"_s;
    QTest::newRow("no filter") << u""_s << u"/p"_s << u"/p"_s;
    QTest::newRow("no name") << u"HTML Files (*.html)"_s << u"/home/"_s << u"/home/"_s;
}

void TstFileFilter::suffix()
{
    QFETCH(QString, filter);
    QFETCH(QString, path);
    QFETCH(QString, expected);
    QCOMPARE(withSuffixOf(filter, path), expected);
}

ZEPHIRA_TEST(TstFileFilter)
#include "tst_filefilter.moc"
