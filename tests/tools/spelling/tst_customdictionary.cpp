// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "tools/spelling/customdictionary.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstCustomDictionary final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void read_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<int>("faultyLines");
        QTest::addColumn<int>("firstFaultyLine");
        const auto row = [](const char *name, const QByteArray &bytes, const QStringList &words, int faulty = 0,
                            int first = 0) { QTest::newRow(name) << bytes << words << faulty << first; };
        row("nothing", {}, {});
        row("words", "one\ntwo\n", {u"one"_s, u"two"_s});
        row("no line end at the end", "one\ntwo", {u"one"_s, u"two"_s});
        row("any line ends", "a\r\nb\rc\nd", {u"a"_s, u"b"_s, u"c"_s, u"d"_s});
        row("blanks and empty lines", " a \n\n\t\nb\t\n", {u"a"_s, u"b"_s});
        row("twice", "a\na\n", {u"a"_s});
        row("UTF-8", "caf\xc3\xa9\n", {u"café"_s});
        row("a byte order mark",
            "\xef\xbb\xbf"
            "a\n",
            {u"a"_s});
        row("anything with a letter", "e-mail\nC++\n.net\n", {u"e-mail"_s, u"C++"_s, u".net"_s});
        row("no letters", "1\n--\nx\n", {u"x"_s}, 2, 1);
        row("two words", "a\n\nNew York\n", {u"a"_s}, 1, 3);
        row("not UTF-8", "a\ncaf\xe9\n\xff\xfe\nb", {u"a"_s, u"b"_s}, 2, 2);
        row("controls", QByteArray("a\0b\nc\x01\nd", 8), {u"d"_s}, 2, 1);
        row("long", QByteArray(100, 'x') + '\n' + QByteArray(101, 'x'), {QString(100, u'x')}, 1, 2);
    }

    void read()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(int, faultyLines);
        QFETCH(int, firstFaultyLine);
        const CustomDictionary dictionary = readCustomDictionary(bytes);
        QTEST(dictionary.words, "words");
        QCOMPARE(dictionary.faultyLines, faultyLines);
        QCOMPARE(dictionary.firstFaultyLine, firstFaultyLine);
    }

    void withAnotherWord_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        QTest::newRow("none") << QByteArray() << QByteArray("n\xc3\xa9w\n");
        QTest::newRow("only a mark") << QByteArray("\xef\xbb\xbf") << QByteArray("\xef\xbb\xbfn\xc3\xa9w\n");
        QTest::newRow("some") << QByteArray("a\nb\n") << QByteArray("a\nb\nn\xc3\xa9w\n");
        QTest::newRow("no line end") << QByteArray("a\nb") << QByteArray("a\nb\nn\xc3\xa9w\n");
        QTest::newRow("CR LF") << QByteArray("a\r\nb") << QByteArray("a\r\nb\r\nn\xc3\xa9w\r\n");
        QTest::newRow("rubbish stays") << QByteArray("\xff\0 x y\n12\n\xe9", 11)
                                       << QByteArray("\xff\0 x y\n12\n\xe9\nn\xc3\xa9w\n", 17);
        QTest::newRow("there already") << QByteArray("n\xc3\xa9w \nb") << QByteArray("n\xc3\xa9w \nb");
    }

    void withAnotherWord()
    {
        QFETCH(QByteArray, before);
        QTEST(withCustomWord(before, u"néw"_s), "after");
    }

    void whatCanBeAWord()
    {
        QVERIFY(isCustomWord(u"word"));
        QVERIFY(isCustomWord(u"\U00010400"));
        QVERIFY(!isCustomWord({}));
        QVERIFY(!isCustomWord(u"\U0001F600"));
        QVERIFY(!isCustomWord(u"a\u00a0b"));
        QVERIFY(!isCustomWord(u"a\u2028b"));
        QVERIFY(!isCustomWord(QString(u"a"_s + QChar(0xD800))));
    }
};

ZEPHIRA_TEST(TstCustomDictionary)

#include "tst_customdictionary.moc"
