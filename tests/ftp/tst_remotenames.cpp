// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/finddata.h"
#include "ftp/namepattern.h"
#include "ftp/remotenames.h"
#include "ftp/safenames.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

/// Names, patterns and times of a server's entries.
class TstRemoteNames final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void safeNames_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("safe");
        QTest::newRow("usual") << u"index.htm"_s << true;
        QTest::newRow("blank") << u" "_s << true;
        QTest::newRow("three points") << u"..."_s << true;
        QTest::newRow("hidden") << u".htaccess"_s << true;
        QTest::newRow("not Latin") << u"日本 ž.htm"_s << true;
        QTest::newRow("signs of addresses") << u"a#b%20;c?d*"_s << true;
        QTest::newRow("259 bytes") << QString(259, u'x') << true;
        QTest::newRow("260 bytes") << QString(260, u'x') << false;
        QTest::newRow("130 characters of two bytes") << QString(130, u'ž') << false;
        QTest::newRow("empty") << QString() << false;
        QTest::newRow("this folder") << u"."_s << false;
        QTest::newRow("the folder above") << u".."_s << false;
        QTest::newRow("path") << u"a/b"_s << false;
        QTest::newRow("path of DOS") << u"a\\b"_s << false;
        QTest::newRow("absolute path") << u"/"_s << false;
        QTest::newRow("tabulator") << u"a\tb"_s << false;
        QTest::newRow("line end") << u"a\n"_s << false;
        QTest::newRow("delete") << u"a\x7f"_s << false;
        QTest::newRow("NUL") << u"a"_s + QChar(u'\0') << false;
    }

    void safeNames()
    {
        QFETCH(QString, name);
        QTEST(isSafeRemoteName(name), "safe");
        QTEST(isSafeRemoteName(QByteArrayView(name.toUtf8())), "safe");
    }

    void safeInCommands_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("safe");
        QTest::newRow("usual") << u"/a b/ž;type=a"_s << true;
        QTest::newRow("empty") << QString() << true;
        QTest::newRow("tabulator") << u"a\tb"_s << true;
        QTest::newRow("CR") << u"a\rDELE b"_s << false;
        QTest::newRow("LF") << u"a\nDELE b"_s << false;
        QTest::newRow("NUL") << u"a"_s + QChar(u'\0') + u"b"_s << false;
    }

    void safeInCommands()
    {
        QFETCH(QString, text);
        QTEST(isSafeInCommand(text), "safe");
        QTEST(isSafeInCommand(QByteArrayView(text.toUtf8())), "safe");
    }

    void patterns_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<bool>("matches");
        QTest::newRow("everything") << u"index.htm"_s << u"*.*"_s << true;
        QTest::newRow("everything, without a point") << u"README"_s << u"*.*"_s << true;
        QTest::newRow("star") << u"README"_s << u"*"_s << true;
        QTest::newRow("no pattern") << u"README"_s << QString() << true;
        QTest::newRow("extension") << u"index.htm"_s << u"*.htm"_s << true;
        QTest::newRow("other extension") << u"index.html"_s << u"*.htm"_s << false;
        QTest::newRow("other case") << u"INDEX.HTM"_s << u"*.htm"_s << false;
        QTest::newRow("beginning of an extension") << u"index.html"_s << u"*.htm*"_s << true;
        QTest::newRow("question mark") << u"a1.htm"_s << u"a?.htm"_s << true;
        QTest::newRow("question mark for nothing") << u"a.htm"_s << u"a?.htm"_s << false;
        QTest::newRow("two stars, second chance") << u"abcabcd"_s << u"*abc?"_s << true;
        QTest::newRow("exact") << u"a.htm"_s << u"a.htm"_s << true;
        QTest::newRow("longer") << u"a.html"_s << u"a.htm"_s << false;
        QTest::newRow("brackets stand for themselves") << u"a"_s << u"[a]"_s << false;
        QTest::newRow("empty name") << QString() << u"?"_s << false;
    }

    void patterns()
    {
        QFETCH(QString, name);
        QFETCH(QString, pattern);
        QTEST(matchesNamePattern(name, pattern), "matches");
    }

    void patternThatCouldTakeForever()
    {
        QVERIFY(!matchesNamePattern(QString(259, u'a'), u"*a*a*a*a*a*a*a*a*a*a*a*a*a*a*a*a*b"_s));
    }

    void utf8NamesGoBothWays()
    {
        RemoteNames names;
        QCOMPARE(names.shown(u"/"_s, "ž 日"_ba), u"ž 日"_s);
        QCOMPARE(names.sent(u"/ž 日/a"_s), "/ž 日/a"_ba);
    }

    void olderNamesAreSentAsTheyCame()
    {
        RemoteNames names;
        QCOMPARE(names.shown(u"/"_s, "caf\xe9"_ba), u"café"_s);
        QCOMPARE(names.shown(u"/café/"_s, "\x80uro.htm"_ba), u"€uro.htm"_s);
        QCOMPARE(names.sent(u"/café"_s), "/caf\xe9"_ba);
        QCOMPARE(names.sent(u"/café/"_s), "/caf\xe9/"_ba);
        QCOMPARE(names.sent(u"/café/€uro.htm"_s), "/caf\xe9/\x80uro.htm"_ba);
        // A name that was never shown, and one in another folder, are new ones.
        QCOMPARE(names.sent(u"/café/ž"_s), "/caf\xe9/ž"_ba);
        QCOMPARE(names.sent(u"/other/café"_s), "/other/café"_ba);
    }

    void ofNamesThatLookAlikeTheLastIsMeant()
    {
        RemoteNames names;
        names.shown(u"/"_s, "caf\xe9"_ba);
        QCOMPARE(names.shown(u"/"_s, "café"_ba), u"café"_s);
        QCOMPARE(names.sent(u"/café"_s), "/café"_ba);
    }

    void times_data()
    {
        QTest::addColumn<quint64>("time");
        QTest::addColumn<QList<int>>("parts");
        QTest::newRow("beginning") << static_cast<quint64>(0) << QList<int>{1601, 1, 1, 0, 0, 0};
        QTest::newRow("1970") << static_cast<quint64>(116444736000000000) << QList<int>{1970, 1, 1, 0, 0, 0};
        QTest::newRow("a second before") << static_cast<quint64>(116444735990000000)
                                         << QList<int>{1969, 12, 31, 23, 59, 59};
        QTest::newRow("2001") << static_cast<quint64>(126282568200000000) << QList<int>{2001, 3, 5, 9, 7, 0};
        QTest::newRow("leap day") << static_cast<quint64>(133536855090000000) << QList<int>{2024, 2, 29, 13, 5, 9};
    }

    void times()
    {
        QFETCH(quint64, time);
        QFETCH(QList<int>, parts);
        SystemTime got;
        QVERIFY(FileTimeToSystemTime(time, got));
        QCOMPARE((QList<int>{got.year, got.month, got.day, got.hour, got.minute, got.second}), parts);
        QCOMPARE(systemTimeToFileTime(got), std::optional(time));
    }

    void timesThatAreNone()
    {
        SystemTime parts{2001, 3, 5, 9, 7, 0};
        QVERIFY(!FileTimeToSystemTime(static_cast<quint64>(1) << 63, parts));
        QCOMPARE(parts, (SystemTime{2001, 3, 5, 9, 7, 0}));
        QVERIFY(!systemTimeToFileTime({2001, 2, 29, 0, 0, 0}));
        QVERIFY(!systemTimeToFileTime({2001, 3, 5, 24, 0, 0}));
        QVERIFY(!systemTimeToFileTime({1600, 12, 31, 0, 0, 0}));
        QVERIFY(!systemTimeToFileTime({100000, 1, 1, 0, 0, 0}));
    }
};

ZEPHIRA_TEST(TstRemoteNames)

#include "tst_remotenames.moc"
