// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/finddata.h"
#include "ftp/folderlisting.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// The day on which the listings of these tests arrive.
const QDate today(2024, 3, 10);

/// "file 1024 2001-03-05 09:07 [index.htm]", one line per entry.
QByteArray described(const std::vector<ListedEntry> &entries)
{
    QByteArray text;
    for (const ListedEntry &entry : entries) {
        SystemTime time;
        FileTimeToSystemTime(entry.lastWriteTime, time);
        const char *kind = entry.isFolder ? "folder" : entry.isLink ? "link" : "file";
        const QString line =
            QString::asprintf("%s %llu %04d-%02d-%02d %02d:%02d [", kind, static_cast<unsigned long long>(entry.size),
                              time.year, time.month, time.day, time.hour, time.minute);
        text += line.toLatin1() + entry.name + "]\n";
    }
    return text;
}

} // namespace

/// Listings as servers send them.
class TstFolderListing final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void list_data()
    {
        QTest::addColumn<QByteArray>("listing");
        QTest::addColumn<QByteArray>("entries");
        const auto row = [](const char *name, const QByteArray &listing, const QByteArray &entries) {
            QTest::newRow(name) << listing << entries;
        };

        row("vsftpd: a file and a folder",
            "-rw-r--r--    1 106      113          4096 Feb 29 13:05 index.htm\r\n"
            "drwxr-xr-x    2 106      113         61440 Dec 31 23:59 many\r\n",
            "file 4096 2024-02-29 13:05 [index.htm]\nfolder 0 2023-12-31 23:59 [many]\n");
        row("vsftpd: above half a year", "-rw-r--r--    1 106      113            12 Mar 05  2001 old.htm\r\n",
            "file 12 2001-03-05 00:00 [old.htm]\n");
        row("proftpd",
            "drwxr-xr-x   2 ftp      nogroup      4096 Mar  5 09:07 sub\r\n"
            "-rw-r--r--   1 ftp      nogroup         0 Mar  5 09:07 empty\r\n",
            "folder 0 2024-03-05 09:07 [sub]\nfile 0 2024-03-05 09:07 [empty]\n");
        row("pure-ftpd: with its total and the folders of every folder",
            "total 8\r\n"
            "drwxr-xr-x    3 106        nogroup          4096 Mar  5 09:07 .\r\n"
            "drwxr-xr-x    3 106        nogroup          4096 Mar  5 09:07 ..\r\n"
            "-rw-r--r--    1 106        nogroup             3 Mar  5 09:07 a.txt\r\n",
            "file 3 2024-03-05 09:07 [a.txt]\n");
        row("pyftpdlib",
            "-rw-r--r--   1 root     root            5 Mar 05 09:07 a.htm\r\n"
            "lrwxrwxrwx   1 root     root            5 Mar 05 09:07 l -> a.htm\r\n",
            "file 5 2024-03-05 09:07 [a.htm]\nlink 0 2024-03-05 09:07 [l]\n");
        row("IIS, years of two digits",
            "02-29-24  01:05PM       <DIR>          images\r\n"
            "03-05-01  09:07AM                 1024 index.htm\r\n"
            "12-31-99  12:00AM                    0 midnight\r\n"
            "12-31-99  12:30PM                    7 noon\r\n",
            "folder 0 2024-02-29 13:05 [images]\nfile 1024 2001-03-05 09:07 [index.htm]\n"
            "file 0 1999-12-31 00:00 [midnight]\nfile 7 1999-12-31 12:30 [noon]\n");
        row("IIS, years of four digits, 24 hours",
            "03-05-2001  21:07                 1024 index.htm\r\n03-05-2001  21:07       <DIR>          images\r\n",
            "file 1024 2001-03-05 21:07 [index.htm]\nfolder 0 2001-03-05 21:07 [images]\n");
        row("IIS, names that begin with blanks",
            "03-05-01  09:07AM                 1024   two.htm\r\n03-05-01  09:07AM       <DIR>            two\r\n",
            "file 1024 2001-03-05 09:07 [  two.htm]\nfolder 0 2001-03-05 09:07 [  two]\n");
        row("IIS as Unix",
            "drwxrwxrwx   1 owner    group               0 Mar  5  9:07 images\r\n"
            "-rwxrwxrwx   1 owner    group            1024 Nov 20  2001 a b.htm\r\n",
            "folder 0 2024-03-05 09:07 [images]\nfile 1024 2001-11-20 00:00 [a b.htm]\n");
        row("NetWare",
            "d [R----F--] supervisor            512       Jan 16 18:53    login\r\n"
            "- [R----F--] rhesus             214059       Oct 20 15:27    cx.exe\r\n",
            "folder 0 2024-01-16 18:53 [login]\nfile 214059 2023-10-20 15:27 [cx.exe]\n");
        row("without a group", "-rw-r--r-- 1 ftp 12 Mar 5 09:07 a.htm\n", "file 12 2024-03-05 09:07 [a.htm]\n");
        row("owner of two words", "-rw-r--r-- 1 Domain Users Domain Admins 12 Mar 5 09:07 a.htm\n",
            "file 12 2024-03-05 09:07 [a.htm]\n");
        row("day before month", "-rw-r--r-- 1 ftp ftp 12 5 Mar 09:07 a.htm\n", "file 12 2024-03-05 09:07 [a.htm]\n");
        row("date as ISO has it", "-rw-r--r-- 1 ftp ftp 12 2001-03-05 09:07 a.htm\n",
            "file 12 2001-03-05 09:07 [a.htm]\n");
        row("rights with a mark", "-rw-r--r--+ 1 ftp ftp 12 Mar 5 09:07 acl\n-rwsr-sr-t. 1 ftp ftp 12 Mar 5 09:07 se\n",
            "file 12 2024-03-05 09:07 [acl]\nfile 12 2024-03-05 09:07 [se]\n");

        const QByteArray unixFile = "-rw-r--r-- 1 ftp ftp 12 Mar  5 09:07 ";
        row("name with blanks", unixFile + "a  b c \r\n", "file 12 2024-03-05 09:07 [a  b c ]\n");
        row("name that begins with blanks", unixFile + "  a\r\n", "file 12 2024-03-05 09:07 [  a]\n");
        row("file with an arrow in its name", unixFile + "a -> b\r\n", "file 12 2024-03-05 09:07 [a -> b]\n");
        row("name like a date", unixFile + "12 Mar  6 10:08 x\r\n", "file 12 2024-03-05 09:07 [12 Mar  6 10:08 x]\n");
        row("name in UTF-8", unixFile + "žluťoučký 日本.htm\r\n", "file 12 2024-03-05 09:07 [žluťoučký 日本.htm]\n");
        row("name in Latin-1", unixFile + "caf\xe9\r\n", "file 12 2024-03-05 09:07 [caf\xe9]\n");
        row("link with an arrow in its name", "lrwxrwxrwx 1 ftp ftp 1 Mar  5 09:07 a -> b -> c\r\n",
            "link 0 2024-03-05 09:07 [a -> b]\n");
        row("link with an arrow in its target", "lrwxrwxrwx 1 ftp ftp 6 Mar  5 09:07 a -> b -> c\r\n",
            "link 0 2024-03-05 09:07 [a]\n");
        row("link whose size is not its target's", "lrwxrwxrwx 1 ftp ftp 99 Mar  5 09:07 a -> b -> c\r\n",
            "link 0 2024-03-05 09:07 [a]\n");
        row("link without a target", "lrwxrwxrwx 1 ftp ftp 1 Mar  5 09:07 a\r\n", "link 0 2024-03-05 09:07 [a]\n");
        row("devices, pipes and sockets",
            "crw-rw-rw- 1 root root 1, 3 Mar  5 09:07 null\r\nbrw-rw---- 1 root disk 8, 0 Mar  5 09:07 sda\r\n"
            "prw-r--r-- 1 ftp ftp 0 Mar  5 09:07 pipe\r\nsrw-r--r-- 1 ftp ftp 0 Mar  5 09:07 socket\r\n",
            "");
        row("exactly 4 GiB, and more",
            "-rw-r--r-- 1 ftp ftp 4294967296 Mar  5 09:07 a\r\n"
            "-rw-r--r-- 1 ftp ftp 18446744073709551615 Mar  5 09:07 b\r\n",
            "file 4294967296 2024-03-05 09:07 [a]\nfile 18446744073709551615 2024-03-05 09:07 [b]\n");
        row("size beyond 64 bits", "-rw-r--r-- 1 ftp ftp 18446744073709551616 Mar  5 09:07 a\r\n", "");

        row("today", "-rw-r--r-- 1 ftp ftp 1 Mar 10 23:59 a\n", "file 1 2024-03-10 23:59 [a]\n");
        row("tomorrow, in another zone", "-rw-r--r-- 1 ftp ftp 1 Mar 11 00:30 a\n", "file 1 2024-03-11 00:30 [a]\n");
        row("the day after counts as a year ago", "-rw-r--r-- 1 ftp ftp 1 Mar 12 00:30 a\n",
            "file 1 2023-03-12 00:30 [a]\n");
        row("last autumn", "-rw-r--r-- 1 ftp ftp 1 Sep 11 00:30 a\n", "file 1 2023-09-11 00:30 [a]\n");
        row("no such day", "-rw-r--r-- 1 ftp ftp 1 Feb 30 00:30 a\n", "");
        row("no such hour", "-rw-r--r-- 1 ftp ftp 1 Mar  5 24:00 a\n", "");

        row("nothing", "", "");
        row("lines that are no entries",
            "total 0\r\n\r\nhello\r\n-rw-r--r--\r\n-rw-r--r-- 1 ftp ftp 12 Mar  5 09:07\r\n", "");
        row("last line without an end", "-rw-r--r-- 1 ftp ftp 12 Mar  5 09:07 a", "file 12 2024-03-05 09:07 [a]\n");
        row("hostile names",
            unixFile + "../../.bashrc\r\n" + unixFile + "/etc/passwd\r\n" + unixFile + "a\\b\r\n" + unixFile + "..\r\n"
                + unixFile + ".\r\n" + unixFile + "a\tb\r\n" + unixFile + "a\x1b[2J\r\n" + unixFile + "a\x7f\r\n"
                + unixFile + QByteArray("a\0b\r\n", 5) + unixFile + "a\rb\r\n" + unixFile + "\r\n" + unixFile + " \r\n",
            "file 12 2024-03-05 09:07 [ ]\n");
        row("names of 259 and 260 bytes",
            unixFile + QByteArray(259, 'x') + '\n' + unixFile + QByteArray(260, 'y') + '\n',
            "file 12 2024-03-05 09:07 [" + QByteArray(259, 'x') + "]\n");
        row("equal names", "-rw-r--r-- 1 ftp ftp 1 Mar  5 09:07 a\r\ndrwxr-xr-x 1 ftp ftp 2 Mar  5 09:07 a\r\n",
            "file 1 2024-03-05 09:07 [a]\n");
    }

    void list()
    {
        QFETCH(QByteArray, listing);
        QTEST(described(readList(listing, today)), "entries");
    }

    void leapDayOfYearsAgo()
    {
        QCOMPARE(described(readList("-rw-r--r-- 1 ftp ftp 1 Feb 29 09:07 a\n", QDate(2023, 3, 10))),
                 "file 1 2020-02-29 09:07 [a]\n"_ba);
    }

    void newYearsEve()
    {
        QCOMPARE(described(readList("-rw-r--r-- 1 ftp ftp 1 Jan  1 00:10 a\n", QDate(2023, 12, 31))),
                 "file 1 2024-01-01 00:10 [a]\n"_ba);
    }

    void mlsd_data()
    {
        QTest::addColumn<QByteArray>("listing");
        QTest::addColumn<QByteArray>("entries");
        const auto row = [](const char *name, const QByteArray &listing, const QByteArray &entries) {
            QTest::newRow(name) << listing << entries;
        };

        row("proftpd",
            "modify=20010305090700;perm=flcdmpe;type=cdir;unique=811U2;UNIX.mode=0755; .\r\n"
            "modify=20010305090700;perm=flcdmpe;type=pdir;unique=811U1;UNIX.mode=0755; ..\r\n"
            "modify=20240229130509;perm=flcdmpe;type=dir;unique=811U3;UNIX.mode=0755; images\r\n"
            "modify=20010305090700;perm=adfrw;size=1024;type=file;unique=811U4;UNIX.mode=0644; index.htm\r\n",
            "folder 0 2024-02-29 13:05 [images]\nfile 1024 2001-03-05 09:07 [index.htm]\n");
        row("pure-ftpd",
            "type=file;size=4096;modify=20010305090700;UNIX.mode=0644;unique=fc01g1; a.txt\r\n"
            "type=dir;sizd=4096;modify=20010305090700; sub\r\n",
            "file 4096 2001-03-05 09:07 [a.txt]\nfolder 0 2001-03-05 09:07 [sub]\n");
        row("pyftpdlib", "modify=20010305090700;perm=radfwMT;size=5;type=file;unique=fd01; a.htm\r\n",
            "file 5 2001-03-05 09:07 [a.htm]\n");
        row("upper case and fractions", "Type=FILE;Size=5;Modify=20010305090700.123; a.htm\r\n",
            "file 5 2001-03-05 09:07 [a.htm]\n");
        row("names with what divides facts", "type=file;size=5; a; b=c;  d\r\n",
            "file 5 1601-01-01 00:00 [a; b=c;  d]\n");
        row("name that begins with a blank", "type=file;size=5;  a\r\n", "file 5 1601-01-01 00:00 [ a]\n");
        row("no facts at all", " a\r\n", "file 0 1601-01-01 00:00 [a]\n");
        row("links", "type=OS.unix=slink:/var;size=3; a\r\ntype=OS.unix=slink; b\r\ntype=OS.unix=symlink; c\r\n",
            "link 3 1601-01-01 00:00 [a]\nlink 0 1601-01-01 00:00 [b]\nlink 0 1601-01-01 00:00 [c]\n");
        row("other kinds", "type=OS.unix=chr-1/3; null\r\ntype=OS.unix=socket; s\r\n", "");
        row("above 4 GiB", "type=file;size=4294967297; a\r\n", "file 4294967297 1601-01-01 00:00 [a]\n");
        row("numbers that are none",
            "type=file;size=-1;modify=2001; a\r\ntype=file;size=x;modify=20011305090700; b\r\n",
            "file 0 1601-01-01 00:00 [a]\nfile 0 1601-01-01 00:00 [b]\n");
        row("not a listing", "hello\r\nhello world\r\n", "");
        row("hostile names",
            "type=file; ../a\r\ntype=dir; ..\r\ntype=file; a/b\r\ntype=file; \r\ntype=file;\r\n"
            "type=file; ok\r\n",
            "file 0 1601-01-01 00:00 [ok]\n");
    }

    void mlsd()
    {
        QFETCH(QByteArray, listing);
        QTEST(described(readMlsd(listing)), "entries");
    }

    void tenThousandEntries()
    {
        QByteArray listing;
        for (int i = 0; i < 10'000; ++i)
            listing +=
                "-rw-r--r--    1 106      113          4096 Mar 05 09:07 file" + QByteArray::number(i) + ".htm\r\n";
        const std::vector<ListedEntry> entries = readList(listing, today);
        QCOMPARE(entries.size(), 10'000);
        QCOMPARE(entries.back().name, "file9999.htm"_ba);
    }
};

ZEPHIRA_TEST(TstFolderListing)

#include "tst_folderlisting.moc"
