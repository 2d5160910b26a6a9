// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/fakes.h"
#include "support/testregistry.h"
#include "tools/spelling/fakespeller.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

struct LexiconBench {
    MemoryFileStore files;
    MemoryUserSettings settings;
    SpellingBench spelling{files, settings};

    Lexicon &lexicon() { return spelling.check.lexicon(); }
    QByteArray &custom() { return files.contents[SpellingBench::customFile()]; }
    QByteArray &names() { return files.contents[SpellingBench::nameFile()]; }
};

const QString noDictionary = u"There is no spelling dictionary. Please install the package hunspell-en-us."_s;

} // namespace

class TstLexicon final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void allThreeLists()
    {
        LexiconBench bench;
        bench.custom() = "mine\n";
        bench.names() = "nbsp\nonclick\n";
        QVERIFY(bench.lexicon().OpenLexicon().ok());
        for (const QString &word : {u"good"_s, u"mine"_s, u"nbsp"_s, u"NBSP"_s, u"onClick"_s})
            QVERIFY2(bench.lexicon().knows(word), qPrintable(word));
        for (const QString &word : {u"bad"_s, u"gut"_s, u"nbsps"_s})
            QVERIFY2(!bench.lexicon().knows(word), qPrintable(word));
        QCOMPARE(bench.lexicon().takeNotes(), QStringList());
    }

    void eachWordOfATextIsChecked()
    {
        LexiconBench bench;
        QVERIFY(bench.lexicon().OpenLexicon().ok());
        QVERIFY(bench.lexicon().CheckWord(u"good"));
        QVERIFY(bench.lexicon().CheckWord(u"good, good"));
        QVERIFY(bench.lexicon().CheckWord(u"12 --"));
        QVERIFY(bench.lexicon().CheckWord({}));
        QVERIFY(!bench.lexicon().CheckWord(u"good baad"));
    }

    void theDictionaryIsLoadedOnce()
    {
        LexiconBench bench;
        QCOMPARE(bench.spelling.loads, 0);
        for (int i = 0; i < 3; ++i)
            QVERIFY(bench.lexicon().OpenLexicon().ok());
        QCOMPARE(bench.spelling.loads, 1);
        QCOMPARE(bench.spelling.speller.opened, QStringList{u"/dict/en_US"_s});
    }

    void noDictionaryNamesThePackage()
    {
        LexiconBench bench;
        bench.spelling.dictionaries.clear();
        const Result<void> opened = bench.lexicon().OpenLexicon();
        QVERIFY(!opened);
        QCOMPARE(opened.error().sentence, noDictionary);
        QVERIFY(!bench.lexicon().knows(u"good"));
        QCOMPARE(bench.lexicon().suggestions(u"good"_s), QStringList());
        // It may be installed while the program runs.
        bench.spelling.dictionaries = {{u"en_US"_s, u"/dict/en_US"_s}};
        QVERIFY(bench.lexicon().OpenLexicon().ok());
        QVERIFY(bench.lexicon().knows(u"good"));
    }

    void aDictionaryThatFails()
    {
        LexiconBench bench;
        bench.spelling.speller.failure = Error{Error::Code::Unreadable, u"no"_s};
        const Result<void> opened = bench.lexicon().OpenLexicon();
        QVERIFY(!opened);
        QCOMPARE(opened.error().sentence, u"no"_s);
        bench.spelling.speller.failure.reset();
        QVERIFY(bench.lexicon().OpenLexicon().ok());
    }

    void whichDictionary_data()
    {
        QTest::addColumn<QString>("chosen");
        QTest::addColumn<QStringList>("installed");
        QTest::addColumn<QString>("used");
        QTest::newRow("the standard one") << QString() << QStringList{u"de_DE"_s, u"en_US"_s} << u"en_US"_s;
        QTest::newRow("the chosen one") << u"de_DE"_s << QStringList{u"de_DE"_s, u"en_US"_s} << u"de_DE"_s;
        QTest::newRow("the chosen one is gone") << u"de_DE"_s << QStringList{u"en_GB"_s, u"en_US"_s} << u"en_US"_s;
        QTest::newRow("neither") << u"fr_FR"_s << QStringList{u"de_DE"_s, u"en_GB"_s} << u"de_DE"_s;
    }

    void whichDictionary()
    {
        QFETCH(QString, chosen);
        QFETCH(QStringList, installed);
        LexiconBench bench;
        bench.settings.SaveSetting(UserSetting::SpellingDictionary, chosen);
        bench.spelling.dictionaries.clear();
        for (const QString &name : std::as_const(installed))
            bench.spelling.dictionaries.push_back({name, u"/dict/"_s + name});
        QVERIFY(bench.lexicon().OpenLexicon().ok());
        QTEST(bench.lexicon().dictionary(), "used");
        // Only the user's choice is remembered.
        QCOMPARE(bench.settings.GetSetting(UserSetting::SpellingDictionary), chosen);
    }

    void anotherDictionary()
    {
        LexiconBench bench;
        bench.custom() = "mine\ngut\n";
        bench.spelling.dictionaries.push_back({u"de_DE"_s, u"/dict/de_DE"_s});
        QVERIFY(bench.lexicon().OpenLexicon().ok());
        QCOMPARE(bench.spelling.speller.added, (std::set<QString>{u"mine"_s, u"gut"_s}));
        QVERIFY(bench.lexicon().choose(u"de_DE"_s).ok());
        QCOMPARE(bench.lexicon().dictionary(), u"de_DE"_s);
        QVERIFY(bench.lexicon().knows(u"Wort") && !bench.lexicon().knows(u"good"));
        // The user's own words are there again, as far as the dictionary lacks them.
        QCOMPARE(bench.spelling.speller.added, (std::set<QString>{u"mine"_s}));
        QCOMPARE(bench.settings.GetSetting(UserSetting::SpellingDictionary), u"de_DE"_s);

        QVERIFY(!bench.lexicon().choose(u"fr_FR"_s).ok());
        bench.spelling.speller.failure = Error{Error::Code::Unreadable, u"no"_s};
        QVERIFY(!bench.lexicon().choose(u"en_US"_s).ok());
        QCOMPARE(bench.lexicon().dictionary(), u"de_DE"_s);
    }

    void addedWordsAreWritten()
    {
        LexiconBench bench;
        QVERIFY(bench.lexicon().OpenLexicon().ok());
        QVERIFY(bench.lexicon().add(u"café"_s).ok());
        QVERIFY(bench.lexicon().knows(u"café"));
        QCOMPARE(bench.custom(), QByteArray("caf\xc3\xa9\n"));
        QVERIFY(bench.lexicon().add(u"next"_s).ok());
        QCOMPARE(bench.custom(), QByteArray("caf\xc3\xa9\nnext\n"));
        QCOMPARE(bench.spelling.speller.added, (std::set<QString>{u"café"_s, u"next"_s}));
    }

    void anotherWindowsWordsStay()
    {
        LexiconBench bench;
        QVERIFY(bench.lexicon().OpenLexicon().ok());
        bench.custom() = "theirs\n";
        QVERIFY(bench.lexicon().add(u"ours"_s).ok());
        QCOMPARE(bench.custom(), QByteArray("theirs\nours\n"));
        QVERIFY(bench.lexicon().knows(u"theirs"));
    }

    void aChangedFileIsReadAgain()
    {
        LexiconBench bench;
        bench.custom() = "one\ngood\n";
        QVERIFY(bench.lexicon().OpenLexicon().ok());
        QVERIFY(bench.lexicon().knows(u"one"));
        bench.custom() = "two\n";
        QVERIFY(bench.lexicon().OpenLexicon().ok());
        QVERIFY(!bench.lexicon().knows(u"one") && bench.lexicon().knows(u"two"));
        // A word of the dictionary that the user had as well.
        QVERIFY(bench.lexicon().knows(u"good"));
        bench.files.contents.erase(SpellingBench::customFile());
        QVERIFY(bench.lexicon().OpenLexicon().ok());
        QVERIFY(!bench.lexicon().knows(u"two"));
        QCOMPARE(bench.lexicon().takeNotes().filter(u"custom"_s), QStringList());
    }

    void rubbishIsToldAndStays()
    {
        LexiconBench bench;
        bench.names() = "x";
        const QByteArray rubbish("\x89PNG\r\n\x1a\n\0\0\nmine\n", 16);
        bench.custom() = rubbish;
        QVERIFY(bench.lexicon().OpenLexicon().ok());
        QVERIFY(bench.lexicon().knows(u"mine"));
        QCOMPARE(bench.lexicon().takeNotes(),
                 QStringList{u"Not every line of the file /app/custom.dic is a word. "
                             "Unused lines: 3; the first is line 1."_s});
        QVERIFY(bench.lexicon().OpenLexicon().ok());
        QCOMPARE(bench.lexicon().takeNotes(), QStringList());
        QVERIFY(bench.lexicon().add(u"next"_s).ok());
        QCOMPARE(bench.custom(), rubbish + "next\r\n");
    }

    void aFileThatCantBeRead()
    {
        LexiconBench bench;
        bench.names() = "x";
        bench.custom() = "mine\n";
        bench.files.unreadable[SpellingBench::customFile()] = Error{Error::Code::Unreadable, u"It can't be read."_s};
        QVERIFY(bench.lexicon().OpenLexicon().ok());
        QCOMPARE(bench.lexicon().takeNotes(), QStringList{u"It can't be read."_s});
        // Its words would be lost if a new one were written.
        const Result<void> added = bench.lexicon().add(u"next"_s);
        QVERIFY(!added);
        QCOMPARE(added.error().sentence, u"It can't be read."_s);
        QCOMPARE(bench.custom(), QByteArray("mine\n"));
        QVERIFY(!bench.lexicon().knows(u"next"));
    }

    void aHugeFile()
    {
        LexiconBench bench;
        bench.names() = "x";
        bench.custom() = QByteArray("word\n").repeated(300'000);
        const QString sentence = u"The file /app/custom.dic is too large for a list of words, so it isn't used."_s;
        QVERIFY(bench.lexicon().OpenLexicon().ok());
        QCOMPARE(bench.lexicon().takeNotes(), QStringList{sentence});
        const Result<void> added = bench.lexicon().add(u"next"_s);
        QVERIFY(!added);
        QCOMPARE(added.error().sentence, sentence);
    }

    void aFileThatCantBeWritten()
    {
        LexiconBench bench;
        bench.custom() = "mine\n";
        QVERIFY(bench.lexicon().OpenLexicon().ok());
        bench.files.unwritable[SpellingBench::customFile()] = Error{Error::Code::Unwritable, u"The disk is full."_s};
        const Result<void> added = bench.lexicon().add(u"next"_s);
        QVERIFY(!added);
        QCOMPARE(added.error().sentence, u"The disk is full."_s);
        QCOMPARE(bench.custom(), QByteArray("mine\n"));
        QVERIFY(!bench.lexicon().knows(u"next"));
    }

    void whatTheFileCantHoldIsNotAdded()
    {
        LexiconBench bench;
        bench.names() = "x";
        bench.custom() = "mine\n";
        QVERIFY(bench.lexicon().OpenLexicon().ok());
        const Result<void> added = bench.lexicon().add(QString(101, u'x'));
        QVERIFY(!added);
        QCOMPARE(added.error().sentence, u"This word is too long to be added."_s);
        QCOMPARE(bench.custom(), QByteArray("mine\n"));
        QVERIFY(bench.lexicon().add(QString(100, u'x')).ok());
        QVERIFY(bench.lexicon().OpenLexicon().ok());
        QCOMPARE(bench.lexicon().takeNotes(), QStringList());
    }

    void missingNamesAreTold()
    {
        LexiconBench bench;
        QVERIFY(bench.lexicon().OpenLexicon().ok());
        QCOMPARE(bench.lexicon().takeNotes(),
                 QStringList{u"The list of names /app/deps/names.dic is missing, "
                             "so tags and keywords count as unknown words."_s});
        QVERIFY(bench.lexicon().knows(u"good"));
    }
};

ZEPHIRA_TEST(TstLexicon)

#include "tst_lexicon.moc"
