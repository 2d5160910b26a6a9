// SPDX-License-Identifier: GPL-3.0-or-later
#include "problems/told.h"
#include "support/testregistry.h"

#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace zephira;

/// The check of a document as a whole.
class TstDocumentCheck final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingElse() { QCOMPARE(told(orderFor("<blok>", PlaceLanguage::Other)), QStringList()); }

    /// The first ones in the order of the text are told, however many there are.
    void limits()
    {
        const CheckOrder order = orderFor(QByteArray("<p><blok foo=1></p>\n").repeated(50'000));
        TidyWatch watch;
        const CheckReport report = checkDocument(order, watch);
        QVERIFY(report.isCut);
        QCOMPARE(report.problems.size(), CheckReport::mostProblems);
        QVERIFY(std::ranges::is_sorted(report.problems, {}, &Problem::start));
        QCOMPARE(report.problems.front().start, 3);
        TidyWatch other;
        QVERIFY(!checkDocument(orderFor("<blok>"), other).isCut);
    }

    void cancelled()
    {
        TidyWatch watch;
        watch.cancel();
        QVERIFY(checkDocument(orderFor(QByteArray("<p><blok></p>\n").repeated(5000)), watch).problems.empty());
    }

    /// Each byte of any text is read, none behind it.
    void anyText()
    {
        const QByteArray pieces[] = {"<", ">",  "/",  "!",  "--",    "\"",   "'",  "=",    " ",     "\r\n",    "a",
                                     "p", "id", "<%", "%>", "<?php", "?>",   "{{", "}}",   "<svg",  "<style>", "</",
                                     "{", "}",  "&",  ";",  "\xd7",  "\x00", "[",  "<!--", "label", "]]>"};
        quint32 seed = 7;
        for (int round = 0; round < 3000; ++round) {
            QByteArray text;
            for (int i = 0; i < 40; ++i) {
                seed = seed * 1664525U + 1013904223U;
                text += pieces[(seed >> 16U) % std::size(pieces)];
            }
            for (const PlaceLanguage language : {PlaceLanguage::Html, PlaceLanguage::Xml, PlaceLanguage::StyleSheet}) {
                TidyWatch watch;
                // Behind the end of the heap block a checker of memory would tell.
                const CheckReport report =
                    checkDocument(orderFor(QByteArray(text.constData(), text.size()), language), watch);
                for (const Problem &problem : report.problems)
                    QVERIFY2(problem.start >= 0 && problem.start < problem.end && problem.end <= text.size(),
                             text.toPercentEncoding().constData());
            }
        }
    }
};

ZEPHIRA_TEST(TstDocumentCheck)

#include "tst_documentcheck.moc"
