// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "syntax/describestyles.h"
#include "syntax/styled.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace zephira {

class TstDescribeStyles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void runs_data();
    void runs();
    void unknownLanguages();
};

void TstDescribeStyles::runs_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("description");

    QTest::newRow("markup") << u"html"_s << QByteArray("<b>x</b>")
                            << QByteArray("0 1 3\n1 1 9\n2 1 3\n3 1 0\n4 2 3\n6 1 9\n7 1 3\n");
    QTest::newRow("Perl") << u"perl"_s << QByteArray("my $x\n") << QByteArray("0 2 2\n2 1 0\n3 1 2\n4 2 0\n");
    QTest::newRow("bytes, not characters") << u"Basic"_s << QByteArray("' é") << QByteArray("0 4 5\n");
    QTest::newRow("no text") << u"XML"_s << QByteArray() << QByteArray();
}

void TstDescribeStyles::runs()
{
    QFETCH(QString, language);
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, description);
    QCOMPARE(describeStyles(text, language), description);
    QCOMPARE(describeStyles(text, engineOf(language)), description);
}

void TstDescribeStyles::unknownLanguages()
{
    QCOMPARE(describeStyles("a", u""_s), QByteArray());
    QCOMPARE(describeStyles("a", u"Cobol"_s), QByteArray());
}

ZEPHIRA_TEST(TstDescribeStyles)

} // namespace zephira

#include "tst_describestyles.moc"
