// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugins/filler/fillertext.h"
#include "support/testregistry.h"

#include <QRegularExpression>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstFillerText final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void paragraphs()
    {
        static const QRegularExpression form(u"^<p>[A-Z][^<>&]{150,450}\\.</p>\r\n$"_s);
        QStringList texts;
        for (int i = 0; i < fillerParagraphs(); ++i) {
            texts.append(fillerParagraph(i));
            QVERIFY2(texts.last().contains(form), qPrintable(texts.last()));
            const QStringList lines = texts.last().split(u"\r\n"_s);
            QVERIFY(std::ranges::all_of(lines, [](const QString &line) { return line.size() <= 80; }));
            QVERIFY2(lines.size() >= 4 && !texts.last().contains(u"  "_s), qPrintable(texts.last()));
        }
        QCOMPARE(texts.removeDuplicates(), 0);
        QVERIFY(texts.size() >= 5);
        QCOMPARE(fillerParagraph(fillerParagraphs()), texts.first());
    }
};

ZEPHIRA_TEST(TstFillerText)
#include "tst_fillertext.moc"
