// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/fakes.h"
#include "support/lineartime.h"
#include "support/testregistry.h"
#include "support/textgenerator.h"
#include "tools/spelling/fakespeller.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

struct CheckBench {
    MemoryFileStore files;
    MemoryUserSettings settings;
    SpellingBench spelling{files, settings};
    SpellCheck &check = spelling.check;

    explicit CheckBench(const QString &text = {})
    {
        spelling.dictionaries.push_back({u"de_DE"_s, u"/dict/de_DE"_s});
        if (!check.lexicon().OpenLexicon())
            qFatal("no dictionary");
        check.start(text);
    }
};

} // namespace

class TstSpellCheck final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingToAsk()
    {
        const CheckBench bench(u"a good text, 12"_s);
        QVERIFY(!bench.check.isAsking());
        QVERIFY(!bench.check.isChanged());
        QCOMPARE(bench.check.text(), u"a good text, 12"_s);
    }

    void aQuestion()
    {
        const CheckBench bench(u"good. A baad word. text"_s);
        QVERIFY(bench.check.isAsking());
        QCOMPARE(bench.check.word(), u"A"_s);
    }

    void changes()
    {
        CheckBench bench(u"baad text baad"_s);
        QCOMPARE(bench.check.word(), u"baad"_s);
        QCOMPARE(bench.check.sentence(), (Excerpt{u"baad text baad"_s, {0, 4}}));
        bench.check.change(u"bad"_s);
        // What was put in isn't checked, but the next occurrence is asked about.
        QCOMPARE(bench.check.text(), u"bad text baad"_s);
        QCOMPARE(bench.check.word(), u"baad"_s);
        QCOMPARE(bench.check.sentence(), (Excerpt{u"baad text baad"_s, {10, 4}}));
        bench.check.change(u"b a d"_s);
        QVERIFY(!bench.check.isAsking());
        QCOMPARE(bench.check.text(), u"bad text b a d"_s);
        QVERIFY(bench.check.isChanged());
    }

    void changeAll()
    {
        CheckBench bench(u"baad, Baad baad xx baad!"_s);
        bench.check.changeAll(u"bad"_s);
        QCOMPARE(bench.check.word(), u"Baad"_s);
        bench.check.ignore();
        QCOMPARE(bench.check.word(), u"xx"_s);
        bench.check.ignore();
        QVERIFY(!bench.check.isAsking());
        QCOMPARE(bench.check.text(), u"bad, Baad bad xx bad!"_s);
    }

    void ignoring()
    {
        CheckBench bench(u"baad baad baad"_s);
        bench.check.ignore();
        QVERIFY(bench.check.isAsking());
        bench.check.ignoreAll();
        QVERIFY(!bench.check.isAsking());
        QVERIFY(!bench.check.isChanged());
        // The next check asks again.
        bench.check.start(u"baad"_s);
        QVERIFY(bench.check.isAsking());
    }

    void adding()
    {
        CheckBench bench(u"baad baad word"_s);
        QVERIFY(bench.check.add().ok());
        QVERIFY(!bench.check.isAsking());
        QCOMPARE(bench.files.contents[SpellingBench::customFile()], QByteArray("baad\n"));
        bench.check.start(u"baad"_s);
        QVERIFY(!bench.check.isAsking());
    }

    void aWordThatCantBeAdded()
    {
        CheckBench bench(u"baad word"_s);
        bench.files.unwritable[SpellingBench::customFile()] = Error{Error::Code::Unwritable, u"no"_s};
        QVERIFY(!bench.check.add().ok());
        QCOMPARE(bench.check.word(), u"baad"_s);
    }

    void stopping()
    {
        CheckBench bench(u"baad baad"_s);
        bench.check.change(u"bad"_s);
        bench.check.stop();
        QVERIFY(!bench.check.isAsking());
        QCOMPARE(bench.check.text(), u"bad baad"_s);
    }

    void changesBackAreNone()
    {
        CheckBench bench(u"baad"_s);
        bench.check.change(u"baad"_s);
        QVERIFY(!bench.check.isChanged());
    }

    void anotherDictionary()
    {
        CheckBench bench(u"good gut Wort good"_s);
        QCOMPARE(bench.check.word(), u"gut"_s);
        QVERIFY(bench.check.choose(u"de_DE"_s).ok());
        // It goes on from the word in question, and what was known isn't any more.
        QCOMPARE(bench.check.word(), u"good"_s);
        QCOMPARE(bench.check.sentence().word.start, 14);
        QVERIFY(!bench.check.choose(u"fr_FR"_s).ok());
        QCOMPARE(bench.check.word(), u"good"_s);
        bench.check.ignore();
        QVERIFY(bench.check.choose(u"en_US"_s).ok());
        QVERIFY(!bench.check.isAsking());
    }

    void withoutAQuestionAnswersDoNothing()
    {
        CheckBench bench(u"good"_s);
        bench.check.change(u"x"_s);
        bench.check.changeAll(u"x"_s);
        bench.check.ignore();
        bench.check.ignoreAll();
        QVERIFY(bench.check.add().ok());
        QVERIFY(!bench.check.isChanged());
        QVERIFY(bench.files.log.isEmpty());
    }

    void eachDifferentWordIsLookedUpOnce()
    {
        CheckBench bench;
        const int before = bench.spelling.speller.asked;
        bench.check.start(u"good text "_s.repeated(1000));
        QVERIFY(!bench.check.isAsking());
        QCOMPARE(bench.spelling.speller.asked - before, 2);
    }

    /// Whatever is answered, only the words that are changed differ.
    void answersInAnyOrder()
    {
        QRandomGenerator random(7);
        const QStringList pieces{u"good"_s, u"baad"_s, u" "_s, u"xx"_s, u"<b>"_s, u"\r\n"_s, u"12"_s, u"é"_s};
        for (int round = 0; round < 5000; ++round) {
            const QString text = generatedText(random, pieces, 15);
            CheckBench bench(text);
            // The brackets, which only changes put in, are taken out of the result.
            for (int answers = 0; bench.check.isAsking(); ++answers) {
                QVERIFY(answers <= text.size());
                const QString word = bench.check.word();
                switch (random.bounded(5)) {
                case 0:
                    bench.check.change(u"["_s + word + u"]"_s);
                    break;
                case 1:
                    bench.check.changeAll(u"["_s + word + u"]"_s);
                    break;
                case 2:
                    bench.check.ignore();
                    break;
                case 3:
                    bench.check.ignoreAll();
                    break;
                default:
                    QVERIFY(bench.check.add().ok());
                    break;
                }
            }
            QCOMPARE(bench.check.text().remove(u'[').remove(u']'), text);
        }
    }

    void tenTimesTheText()
    {
        const auto text = [](qsizetype count) { return u"<a>good text, baad word</a>\r\n"_s.repeated(count); };
        const double times = timesForTenTimes(text, 10'000, [](const QString &page) {
            CheckBench bench(page);
            while (bench.check.isAsking()) {
                if (bench.check.word() == u"baad"_s)
                    bench.check.change(u"bad"_s);
                else
                    bench.check.ignoreAll();
            }
            QVERIFY(bench.check.isChanged());
        });
        QVERIFY2(times <= mostOfLinear, qPrintable(QString::number(times)));
    }
};

ZEPHIRA_TEST(TstSpellCheck)

#include "tst_spellcheck.moc"
