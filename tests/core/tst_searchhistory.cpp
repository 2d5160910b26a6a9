// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/searchhistory.h"
#include "support/fakes.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace zephira {

class TstSearchHistory final : public QObject
{
    Q_OBJECT

    using Kind = SearchHistory::Kind;

private Q_SLOTS:
    void theLatestComesFirst()
    {
        MemoryUserSettings settings;
        SearchHistory history(settings);
        QCOMPARE(history.words(Kind::Searches), QStringList());
        for (const QString &word : {u"a"_s, u"b\\n\"\u05D0"_s, u"a"_s, u"a"_s, QString()})
            history.add(Kind::Searches, word);
        QCOMPARE(history.words(Kind::Searches), (QStringList{u"a"_s, u"b\\n\"\u05D0"_s}));
        QCOMPARE(history.words(Kind::Replacements), QStringList());
        history.add(Kind::Replacements, u"c"_s);
        QCOMPARE(SearchHistory(settings).words(Kind::Replacements), QStringList{u"c"_s});
    }

    void twentyAreKept()
    {
        MemoryUserSettings settings;
        SearchHistory history(settings);
        for (int i = 1; i <= 30; ++i)
            history.add(Kind::Searches, QString::number(i));
        QCOMPARE(history.words(Kind::Searches).size(), 20);
        QCOMPARE(history.words(Kind::Searches).front(), u"30"_s);
        QCOMPARE(history.words(Kind::Searches).back(), u"11"_s);
    }

    void nonsenseCountsAsNothing()
    {
        MemoryUserSettings settings;
        for (const QString &kept : {u"nonsense"_s, u"{\"a\":1}"_s, u"[1,null,\"\"]"_s}) {
            QVERIFY(settings.SaveSetting(UserSetting::SearchHistory, kept));
            QCOMPARE(SearchHistory(settings).words(Kind::Searches), QStringList());
        }
    }
};

ZEPHIRA_TEST(TstSearchHistory)

} // namespace zephira

#include "tst_searchhistory.moc"
