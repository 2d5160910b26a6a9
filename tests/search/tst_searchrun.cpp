// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/diskfilestore.h"
#include "search/searchrun.h"
#include "support/diskfiles.h"
#include "support/testregistry.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// A folder of files, and what a search in it finds.
struct Project {
    QTemporaryDir folder;
    std::vector<FoundFile> files;
    SearchCounts counts;

    QString path(const QString &name) const { return folder.filePath(name); }
    void put(const QString &name, const QByteArray &content) const { putFile(path(name), content); }

    ProjectSearch search(const QString &pattern) const
    {
        ProjectSearch search;
        search.request.pattern = pattern;
        search.folder = folder.path();
        return search;
    }

    void run(const ProjectSearch &search, int atMost = maximumMatches)
    {
        const Result<std::unique_ptr<SearchRun>> run = SearchRun::start(search, atMost);
        QVERIFY(run.ok());
        QTRY_VERIFY_WITH_TIMEOUT(run.value()->isFinished(), 30000);
        files = run.value()->take();
        counts = run.value()->counts();
        std::ranges::sort(files, {}, &FoundFile::order);
    }

    /// "name:line:column text", a match a line.
    QString found() const
    {
        QStringList lines;
        for (const FoundFile &file : files) {
            for (const FoundMatch &match : file.matches)
                lines.append(u"%1:%2:%3 %4"_s.arg(QDir(folder.path()).relativeFilePath(file.path))
                                 .arg(match.line)
                                 .arg(match.column)
                                 .arg(match.text));
        }
        return lines.join(u'\n');
    }
};

} // namespace

class TstSearchRun final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsInTheOrderOfNames()
    {
        Project p;
        p.put(u"b.htm"_s, "one needle\r\nNeedle two\r\n");
        p.put(u"A.htm"_s, "no\rneedle");
        p.put(u"sub/\u05D0.css"_s, "\n\n  needle;\n");
        p.put(u"c.htm"_s, "nothing");
        p.run(p.search(u"needle"_s));
        QCOMPARE(p.found(),
                 u"A.htm:1:0 needle\nb.htm:0:4 one needle\nb.htm:1:0 Needle two\nsub/\u05D0.css:2:2 needle;"_s);
        QCOMPARE(p.counts, (SearchCounts{.files = 4, .filesWithMatches = 3, .matches = 4}));
    }

    void options()
    {
        Project p;
        p.put(u"a.htm"_s, "cat CAT concat c.t cut");
        ProjectSearch search = p.search(u"cat"_s);
        search.request.matchCase = true;
        p.run(search);
        QCOMPARE(p.counts.matches, 2);
        search.request.wholeWord = true;
        p.run(search);
        QCOMPARE(p.counts.matches, 1);
        search.request = {.pattern = u"c.t"_s};
        p.run(search);
        QCOMPARE(p.counts.matches, 1);
        search.request.regularExpression = true;
        p.run(search);
        QCOMPARE(p.counts.matches, 5);
    }

    void aLineEndIsAnyLineEnd()
    {
        Project p;
        p.put(u"cr.htm"_s, "a\rb");
        p.put(u"crlf.htm"_s, "a\r\nb");
        p.put(u"lf.htm"_s, "a\nb");
        ProjectSearch search = p.search(u"a\\r\\nb"_s);
        search.request.regularExpression = true;
        p.run(search);
        QCOMPARE(p.counts.matches, 3);
        search.request.pattern = u"(a)\\n"_s;
        search.replacement = u"$1\\r\\n<\\1>"_s;
        p.run(search);
        QCOMPARE(p.files.at(0).matches.at(0).replacement, u"a\n<a>"_s);
    }

    void aBadExpression()
    {
        Project p;
        ProjectSearch search = p.search(u"a("_s);
        search.request.regularExpression = true;
        const auto run = SearchRun::start(search);
        QVERIFY(!run.ok());
        QVERIFY(run.error().sentence.startsWith(u"The regular expression is invalid at character 3"));
    }

    void encodings()
    {
        Project p;
        p.put(u"1252.htm"_s, "gr\xFC\xDF");
        p.put(u"big.htm"_s, QByteArray("\xFE\xFF\0g\0r\0\xFC\0\xDF", 10));
        p.put(u"little.htm"_s, QByteArray("\xFF\xFEg\0r\0\xFC\0\xDF\0", 10));
        p.put(u"utf8.htm"_s, "gr\xC3\xBC\xC3\x9F");
        p.put(u"utf8mark.htm"_s, "\xEF\xBB\xBFgr\xC3\xBC\xC3\x9F");
        p.run(p.search(u"R\u00DC\u00DF"_s));
        QCOMPARE(p.found(),
                 u"1252.htm:0:1 gr\u00FC\u00DF\nbig.htm:0:1 gr\u00FC\u00DF\nlittle.htm:0:1 gr\u00FC\u00DF\n"
                 "utf8.htm:0:1 gr\u00FC\u00DF\nutf8mark.htm:0:1 gr\u00FC\u00DF"_s);
    }

    void theFilters()
    {
        Project p;
        for (const QString &name :
             {u"a.htm"_s, u"b.css"_s, u"c.txt"_s, u".htaccess"_s, u".git/d.htm"_s, u"e.htm/f.css"_s})
            p.put(name, "x");
        ProjectSearch search = p.search(u"x"_s);
        search.filePatterns = u"*.HTM; *.css"_s;
        p.run(search);
        QCOMPARE(p.found(), u"a.htm:0:0 x\nb.css:0:0 x\ne.htm/f.css:0:0 x"_s);
        search.filePatterns = u".hta*"_s;
        p.run(search);
        QCOMPARE(p.found(), u".htaccess:0:0 x"_s);
    }

    void whatIsLeftOut()
    {
        Project p;
        p.put(u"a.htm"_s, "x");
        p.put(u"binary.htm"_s, QByteArray("x\0x", 3));
        p.put(u"closed.htm"_s, "x");
        p.put(u"empty.htm"_s, "");
        p.put(u"closed/a.htm"_s, "x");
        QVERIFY(QFile::link(p.path(u"a.htm"_s), p.path(u"link.htm"_s)));
        QVERIFY(QFile::link(p.folder.path(), p.path(u"circle"_s)));
        QVERIFY(QFile::link(u"itself.htm"_s, p.path(u"itself.htm"_s)));
        QCOMPARE(::mkfifo(QFile::encodeName(p.path(u"pipe.htm"_s)).constData(), 0600), 0);
        p.put(QFile::decodeName("late.htm"), "x");
        const QByteArray badName = QFile::encodeName(p.folder.path()) + "/bad\xFF.htm";
        QCOMPARE(::rename(QFile::encodeName(p.path(u"late.htm"_s)).constData(), badName.constData()), 0);
        QCOMPARE(::chmod(QFile::encodeName(p.path(u"closed.htm"_s)).constData(), 0), 0);
        QCOMPARE(::chmod(QFile::encodeName(p.path(u"closed"_s)).constData(), 0), 0);
        p.run(p.search(u"x"_s));
        QCOMPARE(::chmod(QFile::encodeName(p.path(u"closed"_s)).constData(), 0700), 0);
        QCOMPARE(::unlink(badName.constData()), 0);
        SearchCounts expected{.files = 2,
                              .filesWithMatches = 1,
                              .matches = 1,
                              .binaryFiles = 1,
                              .unreadableFiles = 1,
                              .unreadableFolders = 1,
                              .invalidNames = 1};
        // Root may read everything.
        if (::geteuid() == 0) {
            expected.files += 2;
            expected.filesWithMatches += 2;
            expected.matches += 2;
            expected.unreadableFiles = expected.unreadableFolders = 0;
        }
        QCOMPARE(p.counts, expected);
    }

    void noFolder()
    {
        Project p;
        ProjectSearch search = p.search(u"x"_s);
        search.folder += u"/missing"_s;
        p.run(search);
        QCOMPARE(p.counts, SearchCounts{.unreadableFolders = 1});
    }

    /// From the root the walk leaves out what isn't on its disk, such as the kernel's files, and can be stopped at once.
    void aWholeDisk()
    {
        ProjectSearch search;
        search.request.pattern = u"no file holds this \u2013 except this one"_s;
        search.folder = u"/"_s;
        const auto run = SearchRun::start(search);
        QVERIFY(run.ok());
        QTRY_VERIFY(run.value()->counts().files > 100);
        QElapsedTimer time;
        time.start();
        run.value()->stop();
        QVERIFY(time.elapsed() < 1000);
        QTRY_VERIFY_WITH_TIMEOUT(run.value()->isFinished(), 3000);
        QVERIFY(run.value()->counts().isStopped);
    }

    void theLimitEndsTheSearch()
    {
        Project p;
        for (int i = 0; i < 50; ++i)
            p.put(u"%1.htm"_s.arg(i), "x x x");
        p.run(p.search(u"x"_s), 10);
        QCOMPARE(p.counts.matches, 10);
        QVERIFY(p.counts.isCut && !p.counts.isStopped);
        qsizetype listed = 0;
        for (const FoundFile &file : std::as_const(p.files))
            listed += static_cast<qsizetype>(file.matches.size());
        QCOMPARE(listed, 10);
        p.run(p.search(u"x"_s), 150);
        QVERIFY(!p.counts.isCut);
        QCOMPARE(p.counts.matches, 150);
    }

    void theOpenDocumentIsSearchedAsItIs()
    {
        Project p;
        p.put(u"a.htm"_s, "old");
        p.put(u"b.htm"_s, "old");
        QVERIFY(QFile::link(p.folder.path(), p.path(u"../"_s) + p.folder.path().section(u'/', -1) + u"-link"_s));
        const QString linked = p.folder.path() + u"-link"_s;
        ProjectSearch search = p.search(u"new"_s);
        search.openFile = DiskFileStore().signature(linked + u"/a.htm"_s);
        QVERIFY(QFile::remove(linked));
        search.openText = u"\r\nnew"_s;
        p.run(search);
        QCOMPARE(p.found(), u"a.htm:1:0 new"_s);
        QVERIFY(p.files.at(0).isOpenDocument);
        search.request.pattern = u"old"_s;
        p.run(search);
        QCOMPARE(p.found(), u"b.htm:0:0 old"_s);
        QVERIFY(!p.files.at(0).isOpenDocument);
    }

    void largeFiles()
    {
        Project p;
        // The match lies over the border of the blocks in which large files are read.
        QByteArray content(1024 * 1024 - 3, '\n');
        content += "needle" + QByteArray(3 * 1024 * 1024, ' ');
        p.put(u"large.htm"_s, content);
        p.put(u"other.htm"_s, QByteArray(5 * 1024 * 1024, ' '));
        p.run(p.search(u"NEEDLE"_s));
        QCOMPARE(p.files.size(), 1U);
        QCOMPARE(p.files[0].matches.at(0).line, 1024 * 1024 - 3);
        QCOMPARE(p.counts.files, 2);
        QVERIFY(::truncate(QFile::encodeName(p.path(u"other.htm"_s)).constData(), 257LL * 1024 * 1024) == 0);
        p.run(p.search(u"needle"_s));
        QCOMPARE(p.counts.tooLargeFiles, 1);
    }
};

ZEPHIRA_TEST(TstSearchRun)

} // namespace zephira

#include "tst_searchrun.moc"
