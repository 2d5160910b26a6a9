// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/textlines.h"
#include "panes/customtabfile.h"
#include "support/fakes.h"
#include "support/testregistry.h"

#include <QTest>

using namespace zephira;
using namespace Qt::StringLiterals;

namespace {

/// The file as a text: the header, then a line for each entry.
QString described(const CustomTabFile &tab)
{
    QString text = u'[' + tab.header + u']';
    for (const CustomTabFile::Entry &entry : tab.entries)
        text += u'\n' + entry.title + u" = "_s + entry.code;
    return text;
}

QString described(const QString &file)
{
    return described(parseCustomTab(textLines(file)));
}

} // namespace

class TstCustomTabFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reading_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("expected");
        QTest::newRow("header alone") << u"Props"_s << u"[Props]"_s;
        QTest::newRow("a title line as header is none") << u"#EXTINF,x\ncode"_s << u"[#EXTINF,x]\ncode = code"_s;
        QTest::newRow("titled") << u"H\n#EXTINF,Bold\n<b></b>"_s << u"[H]\nBold = <b></b>"_s;
        QTest::newRow("what is before the comma is ignored") << u"H\n#EXTINF:123,Song\nx"_s << u"[H]\nSong = x"_s;
        QTest::newRow("no comma") << u"H\n#EXTINF\nx"_s << u"[H]\n#EXTINF = x"_s;
        QTest::newRow("longer without a comma") << u"H\n#EXTINFO:7\nx"_s << u"[H]\n#EXTINFO:7 = x"_s;
        QTest::newRow("only the first comma splits") << u"H\n#EXTINF,a,b,c\nx"_s << u"[H]\na,b,c = x"_s;
        QTest::newRow("empty title") << u"H\n#EXTINF,\nx"_s << u"[H]\n = x"_s;
        QTest::newRow("title at the end") << u"H\n#EXTINF,T"_s << u"[H]\nT = "_s;
        QTest::newRow("small letters are no mark") << u"H\n#extinf,x"_s << u"[H]\n#extinf,x = #extinf,x"_s;
        QTest::newRow("a mark further in is none") << u"H\n #EXTINF,x"_s << u"[H]\n #EXTINF,x =  #EXTINF,x"_s;
        QTest::newRow("six characters are none") << u"H\n#EXTIN"_s << u"[H]\n#EXTIN = #EXTIN"_s;
        QTest::newRow("two titles") << u"H\n#EXTINF,a\n#EXTINF,b\nx"_s << u"[H]\na = #EXTINF,b\nx = x"_s;
        QTest::newRow("plain lines") << u"H\n<hr>\n<br>"_s << u"[H]\n<hr> = <hr>\n<br> = <br>"_s;
        QTest::newRow("blank line") << u"H\n\n<br>"_s << u"[H]\n = \n<br> = <br>"_s;
        QTest::newRow("blank header") << u"\r\n#EXTINF,a\r\nx"_s << u"[]\na = x"_s;
        QTest::newRow("CR") << u"H\r#EXTINF,a\rx\ry"_s << u"[H]\na = x\ny = y"_s;
        QTest::newRow("other scripts") << u"Имя\n#EXTINF,заголовок\nкод"_s << u"[Имя]\nзаголовок = код"_s;
    }

    void reading()
    {
        QFETCH(QString, file);
        QTEST(described(file), "expected");
    }

    void anEntryAsItIsWritten() { QCOMPARE(customTabEntry(u"T"_s, u"<b>"_s), u"\r\n#EXTINF,T\r\n<b>"_s); }

    void whatIsWrittenIsRead_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        QTest::addColumn<QString>("read");
        QTest::newRow("behind a line without an end")
            << QByteArray("H\r\nx") << QByteArray("H\r\nx\r\n#EXTINF,T, too\r\n<b>") << u"[H]\nx = x\nT, too = <b>"_s;
        QTest::newRow("behind a line end a blank entry comes first")
            << QByteArray("H\r\n") << QByteArray("H\r\n\r\n#EXTINF,T, too\r\n<b>") << u"[H]\n = \nT, too = <b>"_s;
        QTest::newRow("in an empty file the header is blank")
            << QByteArray("") << QByteArray("\r\n#EXTINF,T, too\r\n<b>") << u"[]\nT, too = <b>"_s;
    }

    void whatIsWrittenIsRead()
    {
        QFETCH(QByteArray, before);
        MemoryFileStore files;
        files.contents[u"/a"_s] = before;
        QVERIFY(AppendToFile(files, u"/a"_s, customTabEntry(u"T, too"_s, u"<b>"_s)).ok());
        QTEST(files.contents[u"/a"_s], "after");
        QTEST(described(QString::fromUtf8(files.contents[u"/a"_s])), "read");
    }

    void aMissingFileIsMade()
    {
        MemoryFileStore files;
        QVERIFY(AppendToFile(files, u"/new"_s, u"text"_s).ok());
        QCOMPARE(files.contents[u"/new"_s], QByteArray("text"));
        QVERIFY(AppendToFile(files, u"/new"_s, u" more"_s).ok());
        QCOMPARE(files.contents[u"/new"_s], QByteArray("text more"));
    }

    void theEncodingStays_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        QTest::newRow("ASCII") << QByteArray("a") << QByteArray("a\xc3\xbc");
        QTest::newRow("UTF-8 with a mark") << QByteArray("\xef\xbb\xbf"
                                                         "a")
                                           << QByteArray("\xef\xbb\xbf"
                                                         "a\xc3\xbc");
        QTest::newRow("Windows-1252") << QByteArray("\xe4 ") << QByteArray("\xe4 \xfc");
        QTest::newRow("UTF-16") << QByteArray("\xff\xfe"
                                              "a\0",
                                              4)
                                << QByteArray("\xff\xfe"
                                              "a\0\xfc\0",
                                              6);
    }

    void theEncodingStays()
    {
        QFETCH(QByteArray, before);
        MemoryFileStore files;
        files.contents[u"/a"_s] = before;
        QVERIFY(AppendToFile(files, u"/a"_s, u"ü"_s).ok());
        QTEST(files.contents[u"/a"_s], "after");
    }

    void whatCannotBeWrittenChangesNothing()
    {
        MemoryFileStore files;
        files.contents[u"/a"_s] = "\xe4 ";
        QCOMPARE(AppendToFile(files, u"/a"_s, u"日"_s).error().code, Error::Code::Unencodable);
        QCOMPARE(files.contents[u"/a"_s], QByteArray("\xe4 "));
        files.unwritable.emplace(u"/b"_s, Error{Error::Code::Unwritable, u"Full."_s});
        QCOMPARE(AppendToFile(files, u"/b"_s, u"x"_s).error().sentence, u"Full."_s);
        files.unreadable.emplace(u"/c"_s, Error{Error::Code::Unreadable, u"Locked."_s});
        QCOMPARE(AppendToFile(files, u"/c"_s, u"x"_s).error().sentence, u"Locked."_s);
        QVERIFY(files.log.isEmpty());
    }
};

ZEPHIRA_TEST(TstCustomTabFile)
#include "tst_customtabfile.moc"
