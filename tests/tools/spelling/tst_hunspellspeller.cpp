// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "tools/spelling/hunspellspeller.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

/// A speller with a dictionary of the test's own.
struct OwnDictionary {
    QTemporaryDir folder;
    HunspellSpeller speller;

    Dictionary dictionary() const { return {u"xx"_s, folder.filePath(u"xx"_s)}; }
    Result<void> open(const QByteArray &set, const QByteArray &words)
    {
        write(folder.filePath(u"xx.aff"_s), "SET " + set + "\nTRY abc\n");
        write(folder.filePath(u"xx.dic"_s), words);
        return speller.open(dictionary());
    }
};

} // namespace

/// The installed dictionaries, and the speller with real ones.
class TstHunspellSpeller final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theStandardDictionary()
    {
        const std::vector<Dictionary> installed = dictionariesIn(dictionaryFolders());
        const auto english = std::ranges::find(installed, standardDictionary, &Dictionary::name);
        QVERIFY(english != installed.end());
        HunspellSpeller speller;
        QVERIFY(speller.open(*english).ok());
        for (const QString &word : {u"spelling"_s, u"Spelling"_s, u"don't"_s, u"don’t"_s, u"2nd"_s, u"a"_s})
            QVERIFY2(speller.knows(word), qPrintable(word));
        for (const QString &word : {u"speling"_s, u"слово"_s, u"dont"_s, QString(5000, u'a')})
            QVERIFY2(!speller.knows(word), qPrintable(word));
        QVERIFY(speller.suggestions(u"speling"_s).contains(u"spelling"_s));
        QCOMPARE(speller.suggestions(QString(5000, u'a')), QStringList());
    }

    void addedWords()
    {
        OwnDictionary own;
        QVERIFY(own.open("UTF-8", "1\nword\n").ok());
        QVERIFY(!own.speller.knows(u"caféteria"_s));
        own.speller.add(u"caféteria"_s);
        QVERIFY(own.speller.knows(u"caféteria"_s));
        QVERIFY(own.speller.knows(u"Caféteria"_s));
        QVERIFY(own.speller.suggestions(u"caféteri"_s).contains(u"caféteria"_s));
        own.speller.remove(u"caféteria"_s);
        QVERIFY(!own.speller.knows(u"caféteria"_s));
        own.speller.add(u"again"_s);
        QVERIFY(own.speller.open(own.dictionary()).ok());
        QVERIFY(!own.speller.knows(u"again"_s));
    }

    void characterSets_data()
    {
        QTest::addColumn<QByteArray>("set");
        QTest::addColumn<QByteArray>("dictionary");
        QTest::addColumn<QString>("word");
        QTest::newRow("UTF-8") << QByteArray("UTF-8") << QByteArray("1\nsch\xc3\xb6n\n") << u"schön"_s;
        QTest::newRow("ISO8859-1") << QByteArray("ISO8859-1") << QByteArray("1\nsch\xf6n\n") << u"schön"_s;
        QTest::newRow("ISO8859-2") << QByteArray("ISO8859-2") << QByteArray("1\nza\xbfy\n") << u"zaży"_s;
        QTest::newRow("KOI8-R") << QByteArray("KOI8-R") << QByteArray("1\n\xd3\xcc\xcf\xd7\xcf\n") << u"слово"_s;
        QTest::newRow("microsoft-cp1251")
            << QByteArray("microsoft-cp1251") << QByteArray("1\n\xf1\xeb\xee\xe2\xee\n") << u"слово"_s;
    }

    void characterSets()
    {
        QFETCH(QByteArray, set);
        QFETCH(QByteArray, dictionary);
        QFETCH(QString, word);
        OwnDictionary own;
        QVERIFY(own.open(set, dictionary).ok());
        QVERIFY(own.speller.knows(word));
        QVERIFY(!own.speller.knows(word + u'x'));
        QVERIFY(own.speller.suggestions(word.chopped(1)).contains(word));
        // A character that the set doesn't have.
        QCOMPARE(own.speller.knows(u"語"_s), false);
        own.speller.add(u"語"_s);
        QCOMPARE(own.speller.knows(u"語"_s), set == "UTF-8");
    }

    void whatCantBeOpened()
    {
        OwnDictionary own;
        QVERIFY(own.open("UTF-8", "1\nword\n").ok());
        const Result<void> missing = own.speller.open({u"yy"_s, u"/nowhere/yy"_s});
        QVERIFY(!missing);
        QCOMPARE(missing.error().sentence, u"The spelling dictionary /nowhere/yy.aff can't be read."_s);
        // The dictionary that was open stays.
        QVERIFY(own.speller.knows(u"word"_s));
        const Result<void> strange = own.open("NO-SUCH-SET", "1\nword\n");
        QVERIFY(!strange);
        QCOMPARE(strange.error().sentence,
                 u"The spelling dictionary %1 has the unknown character set NO-SUCH-SET."_s.arg(own.dictionary().path));
    }

    void withoutADictionary()
    {
        HunspellSpeller speller;
        speller.add(u"word"_s);
        speller.remove(u"word"_s);
        QVERIFY(!speller.knows(u"word"_s));
        QCOMPARE(speller.suggestions(u"word"_s), QStringList());
    }

    void dictionariesOfFolders()
    {
        const QTemporaryDir folder;
        const QDir root(folder.path());
        QVERIFY(root.mkdir(u"own"_s) && root.mkdir(u"system"_s));
        for (const QString &name : {u"own/de_DE.aff"_s, u"own/de_DE.dic"_s, u"own/lonely.dic"_s, u"system/de_DE.aff"_s,
                                    u"system/de_DE.dic"_s, u"system/ast.aff"_s, u"system/ast.dic"_s})
            write(root.filePath(name), {});
        QCOMPARE(dictionariesIn({root.filePath(u"own"_s), root.filePath(u"system"_s), root.filePath(u"none"_s)}),
                 (std::vector<Dictionary>{{u"ast"_s, root.filePath(u"system/ast"_s)},
                                          {u"de_DE"_s, root.filePath(u"own/de_DE"_s)}}));
        QVERIFY(dictionariesIn({}).empty());
    }

    void titles()
    {
        QCOMPARE(dictionaryTitle(u"en_US"_s), u"American English (en_US)"_s);
        QCOMPARE(dictionaryTitle(u"zz-made-up"_s), u"zz-made-up"_s);
    }
};

ZEPHIRA_TEST(TstHunspellSpeller)

#include "tst_hunspellspeller.moc"
