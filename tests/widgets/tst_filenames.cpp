// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "widgets/filenames.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

const QString everyFilter =
    u"*.vbs;*.asp;*.ini;*.log;*.txt;*.htm;*.html;*css;*.js;*.c;*.cpp;*.h;*.pl;*.cgi;*.xml;*.pas;"
    u"*.bas;*.frm;*.vbp;*.gif;*.bmp;*.jpg;*.java;*.sql"_s;

void touch(const QString &path)
{
    QFile file(path);
    QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(path));
}

/// A straightforward implementation of the wildcard rule.
bool plainMatch(const QString &pattern, const QString &name)
{
    if (pattern.isEmpty())
        return name.isEmpty();
    if (pattern[0] == u'*')
        return plainMatch(pattern.mid(1), name) || (!name.isEmpty() && plainMatch(pattern, name.mid(1)));
    if (name.isEmpty())
        return false;
    return (pattern[0] == u'?' || pattern[0] == name[0]) && plainMatch(pattern.mid(1), name.mid(1));
}

QString randomText(QRandomGenerator &random, const QString &letters, int longest)
{
    QString text;
    for (int length = random.bounded(longest + 1); length > 0; --length)
        text += letters[random.bounded(letters.size())];
    return text;
}

} // namespace

class TstFileNames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void match_data()
    {
        QTest::addColumn<QString>("patterns");
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("matches");
        QTest::newRow("ending") << u"*.htm"_s << u"a.htm"_s << true;
        QTest::newRow("longer ending") << u"*.htm"_s << u"a.html"_s << false;
        QTest::newRow("capitals in the name") << u"*.htm"_s << u"A.HTM"_s << true;
        QTest::newRow("capitals in the pattern") << u"*.HTM"_s << u"a.htm"_s << true;
        QTest::newRow("umlauts fold too") << u"Ä*"_s << u"äpfel.txt"_s << true;
        QTest::newRow("second of a list") << u"*.htm;*.css"_s << u"a.css"_s << true;
        QTest::newRow("none of a list") << u"*.htm;*.css"_s << u"a.js"_s << false;
        QTest::newRow("blanks around") << u" *.htm ; *.css "_s << u"a.css"_s << true;
        QTest::newRow("empty entries") << u";;*.css;"_s << u"a.css"_s << true;
        QTest::newRow("empty entries match nothing") << u";;*.css;"_s << u"a.js"_s << false;
        QTest::newRow("*.* means every name") << u"*.*"_s << u"README"_s << true;
        QTest::newRow("*.* beside others") << u"*.htm;*.*"_s << u"Makefile"_s << true;
        QTest::newRow("*.* within a wildcard does not") << u"a*.*"_s << u"abc"_s << false;
        QTest::newRow("empty list") << u""_s << u"README"_s << true;
        QTest::newRow("list of nothing") << u" ; ;"_s << u"README"_s << true;
        QTest::newRow("css without a dot") << everyFilter << u"style.css"_s << true;
        QTest::newRow("css without any dot") << everyFilter << u"mycss"_s << true;
        QTest::newRow("jpeg is not among the filters") << everyFilter << u"a.jpeg"_s << false;
        QTest::newRow("question mark") << u"a?.txt"_s << u"ab.txt"_s << true;
        QTest::newRow("question mark is one") << u"a?.txt"_s << u"a.txt"_s << false;
        QTest::newRow("question mark is one character") << u"?.txt"_s << u"\U0001F600.txt"_s << true;
        QTest::newRow("two characters") << u"?.txt"_s << u"\U0001F600\U0001F600.txt"_s << false;
        QTest::newRow("brackets are themselves") << u"[ab].txt"_s << u"a.txt"_s << false;
        QTest::newRow("brackets match brackets") << u"[ab].txt"_s << u"[ab].txt"_s << true;
        QTest::newRow("regular expressions are none") << u"a.+"_s << u"abc"_s << false;
        QTest::newRow("backslash") << u"*\\*"_s << u"a\\b"_s << true;
        QTest::newRow("stars together") << u"***a***"_s << u"xay"_s << true;
        QTest::newRow("a word is a whole name") << u"RESET"_s << u"reset"_s << true;
        QTest::newRow("reset is no ending") << u"reset"_s << u"a.reset"_s << false;
        QTest::newRow("hidden") << u"*"_s << u".htaccess"_s << false;
        QTest::newRow("hidden stays so for *.*") << u"*.*"_s << u".htaccess"_s << false;
        QTest::newRow("hidden by a dot") << u".*"_s << u".htaccess"_s << true;
        QTest::newRow("hidden by name") << u"*.txt;.htaccess"_s << u".htaccess"_s << true;
        QTest::newRow("stars in any number") << u"*a*a*a*a*a*a*a*a*a*a*b"_s << u"a"_s.repeated(240) << false;
    }

    void match()
    {
        QFETCH(QString, patterns);
        QFETCH(QString, name);
        QTEST(FilePatterns(patterns).match(name), "matches");
    }

    void anyPatternMatchesAsTheRuleSays()
    {
        QRandomGenerator random(20);
        int matches = 0;
        for (int i = 0; i < 20000; ++i) {
            const QString pattern = u'a' + randomText(random, u"ab*?"_s, 6);
            const QString name = u'a' + randomText(random, u"ab"_s, 6);
            const bool expected = plainMatch(pattern, name);
            QVERIFY2(FilePatterns(pattern).match(name) == expected, qPrintable(pattern + u' ' + name));
            matches += expected;
        }
        QVERIFY(matches > 1000 && matches < 19000);
    }

    void namesInOrder()
    {
        const QTemporaryDir folder;
        const QStringList inOrder{u"10.txt"_s,    u"a b.txt"_s, u"Alpha.txt"_s, u"beta.TXT"_s,
                                  u"Ärger.txt"_s, u"Жук.txt"_s, u"日本.txt"_s,  u"\U0001F600.txt"_s};
        for (const QString &name : inOrder)
            touch(folder.filePath(name));
        touch(folder.filePath(u"other.png"_s));
        touch(folder.filePath(u".hidden.txt"_s));
        QDir(folder.path()).mkdir(u"folder.txt"_s);
        QCOMPARE(fileNames(folder.path(), u"*.txt"_s), inOrder);
        QCOMPARE(fileNames(folder.path() + u'/', u"*.txt"_s), inOrder);
        QCOMPARE(fileNames(folder.path(), u".*"_s), QStringList{u".hidden.txt"_s});
    }

    void noMatch()
    {
        const QTemporaryDir folder;
        touch(folder.filePath(u"a.txt"_s));
        QCOMPARE(fileNames(folder.path(), u"*.nothing"_s), QStringList());
    }

    void noFolder()
    {
        const QTemporaryDir folder;
        touch(folder.filePath(u"a.txt"_s));
        QCOMPARE(fileNames({}, u"*"_s), QStringList());
        QCOMPARE(fileNames(folder.filePath(u"none"_s), u"*"_s), QStringList());
        QCOMPARE(fileNames(folder.filePath(u"a.txt"_s), u"*"_s), QStringList());
    }

    void oddEntriesAreLeftOut()
    {
        const QTemporaryDir folder;
        const auto native = [&](const char *name) { return folder.path().toUtf8() + '/' + name; };
        touch(folder.filePath(u"a.txt"_s));
        QCOMPARE(::mkfifo(native("pipe.txt").constData(), 0600), 0);
        QCOMPARE(::symlink("self.txt", native("self.txt").constData()), 0);
        QCOMPARE(::symlink("nowhere", native("lost.txt").constData()), 0);
        QCOMPARE(::symlink("a.txt", native("link.txt").constData()), 0);
        const int notText = ::open(native("\xff\xfe.txt").constData(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600);
        QVERIFY(notText >= 0);
        ::close(notText);
        const QStringList names = fileNames(folder.path(), u"*.txt"_s);
        QCOMPARE(::unlink(native("\xff\xfe.txt").constData()),
                 0); // Qt can't represent this name, so it can't remove the file.
        QCOMPARE(names, (QStringList{u"a.txt"_s, u"link.txt"_s}));
    }
};

ZEPHIRA_TEST(TstFileNames)
#include "tst_filenames.moc"
