// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/ftpreply.h"
#include "support/testregistry.h"

#include <QList>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// The reply in lines that end with LF; with code 0 if they don't form one.
FtpReply replyFrom(const QByteArray &lines)
{
    FtpReplyReader reader;
    const QList<QByteArray> all = lines.split('\n');
    for (const QByteArray &line : all) {
        if (!reader.take(line))
            return {};
    }
    return reader.isComplete() ? reader.reply() : FtpReply();
}

/// The expected port of a row; none for 0.
std::optional<quint16> port(int number)
{
    return number == 0 ? std::nullopt : std::optional(static_cast<quint16>(number));
}

} // namespace

/// The replies of servers on the control connection.
class TstFtpReply final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reading_data()
    {
        QTest::addColumn<QByteArray>("lines");
        QTest::addColumn<int>("code");
        QTest::newRow("one line") << "230 Login successful."_ba << 230;
        QTest::newRow("code alone") << "200"_ba << 200;
        QTest::newRow("several lines") << "211-Features:\n UTF8\n211 End"_ba << 211;
        QTest::newRow("lines that begin like other replies") << "220-Hello\n230 no\n220-more\n220 Ready"_ba << 220;
        QTest::newRow("code alone as the end") << "220-Hello\n220"_ba << 220;
        QTest::newRow("not ended") << "220-Hello\n221 no"_ba << 0;
        QTest::newRow("a line after the end") << "220 Hello\n220 again"_ba << 0;
        QTest::newRow("no code") << "Hello"_ba << 0;
        QTest::newRow("empty") << ""_ba << 0;
        QTest::newRow("two digits") << "22"_ba << 0;
        QTest::newRow("four digits") << "2200 Hello"_ba << 0;
        QTest::newRow("not a reply class") << "620 Hello"_ba << 0;
        QTest::newRow("begins with a blank") << " 220 Hello"_ba << 0;
    }

    void reading()
    {
        QFETCH(QByteArray, lines);
        QTEST(replyFrom(lines).code, "code");
    }

    void keepsTheLines()
    {
        QCOMPARE(replyFrom("211-Features:\n UTF8\n211 End").text, "211-Features:\n UTF8\n211 End"_ba);
    }

    void endlessReply()
    {
        FtpReplyReader reader;
        QVERIFY(reader.take("220-Hello"));
        int lines = 0;
        while (reader.take("and on and on") && lines < 1'000'000)
            ++lines;
        QVERIFY(lines < 1'000'000);
        QVERIFY(!reader.isComplete());
    }

    void classes()
    {
        QVERIFY(replyFrom("150 Here it comes").isPreliminary());
        QVERIFY(replyFrom("226 Done").isSuccess());
        QVERIFY(replyFrom("331 Password?").isIntermediate());
        QVERIFY(!FtpReply().isPreliminary() && !FtpReply().isSuccess() && !FtpReply().isIntermediate());
    }

    void extendedPassive_data()
    {
        QTest::addColumn<QByteArray>("reply");
        QTest::addColumn<int>("number");
        QTest::newRow("usual") << "229 Entering Extended Passive Mode (|||6446|)"_ba << 6446;
        QTest::newRow("another divider") << "229 ok (!!!65535!)"_ba << 65535;
        QTest::newRow("parentheses before") << "229 Ok (really) (|||1|)"_ba << 1;
        QTest::newRow("wrong code") << "227 Entering Extended Passive Mode (|||6446|)"_ba << 0;
        QTest::newRow("no parentheses") << "229 |||6446|"_ba << 0;
        QTest::newRow("port 0") << "229 ok (|||0|)"_ba << 0;
        QTest::newRow("port too large") << "229 ok (|||65536|)"_ba << 0;
        QTest::newRow("port far too large") << "229 ok (|||99999999999999999999|)"_ba << 0;
        QTest::newRow("negative") << "229 ok (|||-1|)"_ba << 0;
        QTest::newRow("an address too") << "229 ok (|1|10.0.0.1|6446|)"_ba << 0;
        QTest::newRow("not ended") << "229 ok (|||6446"_ba << 0;
        QTest::newRow("empty") << "229 ok ()"_ba << 0;
        QTest::newRow("no port") << "229 ok (||||)"_ba << 0;
    }

    void extendedPassive()
    {
        QFETCH(QByteArray, reply);
        QFETCH(int, number);
        QCOMPARE(extendedPassivePort(replyFrom(reply)), port(number));
    }

    void passive_data()
    {
        QTest::addColumn<QByteArray>("reply");
        QTest::addColumn<int>("number");
        QTest::newRow("usual") << "227 Entering Passive Mode (127,0,0,1,25,46)."_ba << 25 * 256 + 46;
        QTest::newRow("a strange address") << "227 ok (10,99,3,7,0,21)"_ba << 21;
        QTest::newRow("no parentheses") << "227 Entering Passive Mode 127,0,0,1,255,255"_ba << 65535;
        QTest::newRow("wrong code") << "229 ok (127,0,0,1,25,46)"_ba << 0;
        QTest::newRow("too few") << "227 ok (127,0,0,1,25)"_ba << 0;
        QTest::newRow("too many") << "227 ok (127,0,0,1,25,46,7)"_ba << 0;
        QTest::newRow("too large") << "227 ok (127,0,0,1,256,0)"_ba << 0;
        QTest::newRow("port 0") << "227 ok (127,0,0,1,0,0)"_ba << 0;
        QTest::newRow("missing numbers") << "227 ok (,,,,,)"_ba << 0;
        QTest::newRow("no numbers") << "227 ok"_ba << 0;
    }

    void passive()
    {
        QFETCH(QByteArray, reply);
        QFETCH(int, number);
        QCOMPARE(passivePort(replyFrom(reply)), port(number));
    }

    void folders_data()
    {
        QTest::addColumn<QByteArray>("reply");
        QTest::addColumn<QByteArray>("folder");
        QTest::newRow("root") << "257 \"/\" is the current directory"_ba
                              << "/"_ba;
        QTest::newRow("blanks") << "257 \"/a b\" is current"_ba
                                << "/a b"_ba;
        QTest::newRow("quotes") << "257 \"/a \"\"b\"\"\" is current"_ba
                                << "/a \"b\""_ba;
        QTest::newRow("nothing after it") << "257 \"/home\""_ba
                                          << "/home"_ba;
        QTest::newRow("not ended") << "257 \"/home"_ba
                                   << "none"_ba;
        QTest::newRow("no quotes") << "257 /home"_ba
                                   << "none"_ba;
        QTest::newRow("refused") << "550 \"/home\""_ba
                                 << "none"_ba;
    }

    void folders()
    {
        QFETCH(QByteArray, reply);
        QTEST(quotedFolder(replyFrom(reply)).value_or("none"_ba), "folder");
    }

    void features_data()
    {
        QTest::addColumn<QByteArray>("feature");
        QTest::addColumn<bool>("has");
        QTest::newRow("with facts after it") << "MLST"_ba << true;
        QTest::newRow("as the last word") << "UTF8"_ba << true;
        QTest::newRow("in lower case") << "utf8"_ba << true;
        QTest::newRow("the beginning of a word") << "ML"_ba << false;
        QTest::newRow("longer than the word") << "UTF8X"_ba << false;
        QTest::newRow("missing") << "TVFS"_ba << false;
    }

    void features()
    {
        QFETCH(QByteArray, feature);
        const FtpReply reply = replyFrom("211-Features:\n MLST type*;size*;modify*;\n UTF8\n211 End");
        QTEST(hasFeature(reply, feature), "has");
        QVERIFY(!hasFeature(replyFrom("500 MLST UTF8 unknown\n"_ba.trimmed()), feature));
    }
};

ZEPHIRA_TEST(TstFtpReply)

#include "tst_ftpreply.moc"
