// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "views/live/livepace.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstLivePace final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bySize()
    {
        QCOMPARE(livePace(500'000).pause, std::optional(250));
        QCOMPARE(livePace(500'000).notice, QString());
        QCOMPARE(livePace(500'001).pause, std::optional(2000));
        QCOMPARE(livePace(500'001).notice,
                 u"This page is large: it is shown again two seconds after the last change."_s);
        QCOMPARE(livePace(20'000'000).pause, std::optional<int>());
        QCOMPARE(livePace(20'000'000).notice, u"This page is very large: it is shown when it is saved or reloaded."_s);
    }

    void fits()
    {
        QCOMPARE(liveFit(600, 0), (LiveFit{600, 1}));
        QCOMPARE(liveFit(600, 375), (LiveFit{375, 1}));
        QCOMPARE(liveFit(600, 600), (LiveFit{600, 1}));
        QCOMPARE(liveFit(640, 1280), (LiveFit{640, 0.5}));
        QCOMPARE(liveFit(100, 4000), (LiveFit{100, 0.25}));
    }
};

ZEPHIRA_TEST(TstLivePace)

#include "tst_livepace.moc"
