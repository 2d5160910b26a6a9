// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "views/fetchedtext.h"
#include "views/pagefetcher.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstFetchedText final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void texts_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("charset");
        QTest::addColumn<QString>("text");
        const auto row = [](const char *name, const QByteArray &bytes, const QString &charset, const QString &text) {
            QTest::newRow(name) << bytes << charset << text;
        };
        row("UTF-8 by the server", "\xC3\xA9", u"utf-8"_s, u"é"_s);
        row("UTF-8 by its bytes", "\xC3\xA9", {}, u"é"_s);
        row("Windows-1252 by its bytes", "\xE9\x80", {}, u"é€"_s);
        row("Latin-1 is Windows-1252", "\x93\xE9\x94", u"ISO-8859-1"_s, u"“é”"_s);
        row("ASCII too", "\x96", u"us-ascii"_s, u"–"_s);
        row("cyrillic by the server", "\xCF\xF0\xE8", u"windows-1251"_s, u"При"_s);
        row("cyrillic by the page", "<meta charset=koi8-r>\xF0\xD2\xC9", {}, u"<meta charset=koi8-r>При"_s);
        row("japanese", "\x83\x65\x83\x58", u"Shift_JIS"_s, u"テス"_s);
        row("chinese", "\xD6\xD0\xCE\xC4", u"gb2312"_s, u"中文"_s);
        row("korean", "\xC7\xD1", u"euc-kr"_s, u"한"_s);
        row("the server goes before the page", "<meta charset=koi8-r>\xCF", u"windows-1251"_s,
            u"<meta charset=koi8-r>П"_s);
        row("the mark goes before the server", "\xEF\xBB\xBF\xC3\xA9", u"windows-1251"_s, u"é"_s);
        row("UTF-16 by its mark", QByteArray("\xFF\xFE\xE9\0", 4), {}, u"é"_s);
        row("UTF-16, big end first", QByteArray("\xFE\xFF\0\xE9", 4), {}, u"é"_s);
        row("a character set that isn't known", "\xC3\xA9", u"x-martian"_s, u"é"_s);
        row("an empty page", "", {}, {});
        row("a zero", QByteArray("a\0b", 3), {}, QString::fromLatin1("a\0b", 3));
    }

    void texts()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, charset);
        QTEST(fetchedText({bytes, charset}), "text");
    }

    void declarations_data()
    {
        QTest::addColumn<QByteArray>("page");
        QTest::addColumn<QString>("charset");
        QTest::newRow("short") << QByteArray("<html><META CHARSET='koi8-r'>") << u"koi8-r"_s;
        QTest::newRow("long") << QByteArray("<meta http-equiv=\"Content-Type\" content=\"text/html; charset=big5\">")
                              << u"big5"_s;
        QTest::newRow("blanks") << QByteArray("<meta  charset = \"utf-8\" />") << u"utf-8"_s;
        QTest::newRow("xml") << QByteArray("<?xml version=\"1.0\" encoding=\"ISO-8859-5\"?>") << u"ISO-8859-5"_s;
        QTest::newRow("style sheet") << QByteArray("@charset \"utf-8\";") << u"utf-8"_s;
        QTest::newRow("none") << QByteArray("<p>charset=koi8-r</p>") << QString();
        QTest::newRow("too late") << QByteArray(5000, ' ') + "<meta charset=koi8-r>" << QString();
    }

    void declarations()
    {
        QFETCH(QByteArray, page);
        QTEST(declaredCharset(page), "charset");
    }

    void contentTypes_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("charset");
        QTest::newRow("plain") << u"text/html; charset=utf-8"_s << u"utf-8"_s;
        QTest::newRow("quoted") << u"text/html; Charset=\"utf-8\"; x=y"_s << u"utf-8"_s;
        QTest::newRow("none") << u"text/html"_s << QString();
        QTest::newRow("empty") << QString() << QString();
    }

    void contentTypes()
    {
        QFETCH(QString, type);
        QTEST(charsetOfContentType(type), "charset");
    }
};

ZEPHIRA_TEST(TstFetchedText)
#include "tst_fetchedtext.moc"
