// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/tips.h"
#include "support/sourcefolder.h"
#include "support/testregistry.h"

#include <QFile>
#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstTips : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lines_data();
    void lines();
    void draw_data();
    void draw();
    void instructions();
    void shippedTips();
};

void TstTips::lines_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("tips");
    QTest::newRow("empty") << u""_s << QStringList();
    QTest::newRow("one line") << u"A tip"_s << QStringList{u"A tip"_s};
    QTest::newRow("line end at the end") << u"A\r\nB\r\n"_s << QStringList{u"A"_s, u"B"_s};
    QTest::newRow("no line end at the end") << u"A\nB"_s << QStringList{u"A"_s, u"B"_s};
    QTest::newRow("blank line is a tip") << u"A\r\n\r\nB"_s << QStringList{u"A"_s, u""_s, u"B"_s};
    QTest::newRow("blanks stay") << u" A \n"_s << QStringList{u" A "_s};
}

void TstTips::lines()
{
    QFETCH(QString, text);
    QTEST(tipLines(text), "tips");
}

void TstTips::draw_data()
{
    QTest::addColumn<double>("random");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("tip");
    QTest::newRow("lowest") << 0.0 << 4 << 1;
    QTest::newRow("just below a quarter") << 0.2499 << 4 << 1;
    QTest::newRow("a quarter") << 0.25 << 4 << 2;
    QTest::newRow("highest") << 0.999999 << 4 << 4;
    QTest::newRow("one tip") << 0.7 << 1 << 1;
}

void TstTips::draw()
{
    QFETCH(double, random);
    QFETCH(int, count);
    QTEST(drawTip(random, count), "tip");
}

void TstTips::instructions()
{
    QCOMPARE(tipInstructions(),
             u"That the TIPOFDAY.TXT file was not found? \r\nCreate a text file named TIPOFDAY.TXT using NotePad with "
             "1 tip per line. Then place it in the same directory as the application. "_s);
}

void TstTips::shippedTips()
{
    QFile file(sourcePath(u"data/TIPOFDAY.TXT"_s));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QStringList tips = tipLines(QString::fromUtf8(file.readAll()));
    QCOMPARE(tips.size(), 40);
    QCOMPARE(QSet<QString>(tips.begin(), tips.end()).size(), 40);
    for (const QString &tip : tips) {
        QVERIFY2(tip.size() >= 40 && tip.size() <= 160, qPrintable(tip));
        QVERIFY2(tip.endsWith(u'.') && tip == tip.trimmed(), qPrintable(tip));
    }
}

ZEPHIRA_TEST(TstTips)

#include "tst_tips.moc"
