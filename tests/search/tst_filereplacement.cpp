// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/buffertext.h"
#include "files/diskfilestore.h"
#include "files/recoverycopies.h"
#include "files/textfile.h"
#include "search/filereplacement.h"
#include "support/diskfiles.h"
#include "support/fakes.h"
#include "support/testregistry.h"

#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

std::vector<FoundMatch> matchesOf(const QString &text, const ReplaceOrder &order)
{
    const Result<PatternSearch> search = PatternSearch::make(order.request);
    return search
        ? findMatches(search.value(), withLineFeeds(text), order.replacement, 1000, [] { return true; }).matches
        : std::vector<FoundMatch>();
}

/// A file on the disk, what is found in it, and what is kept of it.
struct Fixture {
    QTemporaryDir folder;
    DiskFileStore files;
    FakeClock clock;
    RecoveryCopies recovery{folder.filePath(u"recovery"_s), files, clock};
    QString path = folder.filePath(u"a.htm"_s);
    FoundFile found;

    void put(const QByteArray &content, const ReplaceOrder &order)
    {
        putFile(path, content);
        found.path = path;
        found.signature = files.signature(path);
        found.matches = matchesOf(fromBuffer(decodeText(content).utf8, LineEnds::Mixed), order);
    }
    Result<void> replace(const ReplaceOrder &order)
    {
        const std::vector<bool> all(found.matches.size(), true);
        return replaceInFile(files, recovery, recovery.beginReplacing(), order, found, all);
    }
    QStringList copies() const { return QDir(recovery.folder()).entryList(QDir::Files); }
};

} // namespace

class TstFileReplacement final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void changes()
    {
        const QString text = u"ab\r\nab\rab\n\r\nab"_s;
        const ReplaceOrder order{{.pattern = u"b\\n|^ab$"_s, .regularExpression = true}, u"[$0]"_s};
        const std::vector<FoundMatch> matches = matchesOf(text, order);
        QCOMPARE(matches.size(), 4U);
        const Result<TextChanges> all = replacementsIn(text, order, matches, {true, true, true, true});
        QVERIFY(all.ok());
        QCOMPARE(withChanges(text, all.value()), u"[ab]\r\n[ab]\r[ab]\n\r\n[ab]"_s);
        const Result<TextChanges> some = replacementsIn(text, order, matches, {false, true, false, true});
        QVERIFY(some.ok());
        QCOMPARE(withChanges(text, some.value()), u"ab\r\n[ab]\rab\n\r\n[ab]"_s);
    }

    void aMatchOverALineEnd()
    {
        const QString text = u"x\r\nab\r\ncd"_s;
        const ReplaceOrder order{{.pattern = u"b\\r\\nc"_s, .regularExpression = true}, u"-"_s};
        const Result<TextChanges> changes = replacementsIn(text, order, matchesOf(text, order), {true});
        QVERIFY(changes.ok());
        QCOMPARE(changes.value(), (TextChanges{{4, 8, u"-"_s}}));
    }

    void anotherText()
    {
        const ReplaceOrder order{{.pattern = u"b"_s}, u"c"_s};
        const std::vector<FoundMatch> matches = matchesOf(u"ab"_s, order);
        for (const QString &text : {u"b"_s, u""_s, u"xxab\nab"_s}) {
            const Result<TextChanges> changes = replacementsIn(text, order, matches, {true});
            QVERIFY(!changes.ok());
            QCOMPARE(changes.error().sentence, u"It has changed since the search and was left as it is."_s);
        }
    }

    void keepsTheFormat_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        // clang-format off: a row a line
        QTest::newRow("UTF-8, LF") << QByteArray("\xC3\xBC b\nb") << QByteArray("\xC3\xBC <\n>\n<\n>");
        QTest::newRow("UTF-8 with its mark, CR LF")
            << QByteArray("\xEF\xBB\xBF\xC3\xBC b\r\n") << QByteArray("\xEF\xBB\xBF\xC3\xBC <\r\n>\r\n");
        QTest::newRow("two marks") << QByteArray("\xEF\xBB\xBF\xEF\xBB\xBF"
                                                 "b\n")
                                   << QByteArray("\xEF\xBB\xBF\xEF\xBB\xBF<\n>\n");
        QTest::newRow("Windows-1252, CR") << QByteArray("\xFC b\rb") << QByteArray("\xFC <\r>\r<\r>");
        QTest::newRow("UTF-16") << QByteArray("\xFF\xFE"
                                              "b\0\n\0",
                                              6)
                                << QByteArray("\xFF\xFE<\0\n\0>\0\n\0", 10);
        QTest::newRow("mixed, mostly CR LF") << QByteArray("b\r\n\r\n\n") << QByteArray("<\r\n>\r\n\r\n\n");
        // clang-format on
    }

    void keepsTheFormat()
    {
        QFETCH(QByteArray, before);
        Fixture f;
        const ReplaceOrder order{{.pattern = u"b"_s, .regularExpression = true}, u"<\\n>"_s};
        f.put(before, order);
        QVERIFY(f.replace(order).ok());
        QTEST(contentOf(f.path), "after");
        const QStringList copies = f.copies();
        QCOMPARE(copies.size(), 1);
        QVERIFY(copies.front().startsWith(u"replaced-20240229-") && copies.front().endsWith(u"-00001-a.htm"));
        QCOMPARE(contentOf(f.recovery.folder() + u'/' + copies.front()), before);
    }

    void aChangedFileIsLeftAlone()
    {
        Fixture f;
        const ReplaceOrder order{{.pattern = u"b"_s}, u"c"_s};
        f.put("ab", order);
        putFile(f.path, "ab and more");
        const Result<void> replaced = f.replace(order);
        QVERIFY(!replaced.ok());
        QCOMPARE(replaced.error().code, Error::Code::Refused);
        QCOMPARE(contentOf(f.path), QByteArray("ab and more"));
        QVERIFY(f.copies().isEmpty());
    }

    void whatCannotBeEncodedIsLeftAlone()
    {
        Fixture f;
        const ReplaceOrder order{{.pattern = u"b"_s}, u"\u05D0"_s};
        f.put("\xFC b", order);
        const Result<void> replaced = f.replace(order);
        QVERIFY(!replaced.ok());
        QCOMPARE(replaced.error().sentence,
                 u"The character \u201C\u05D0\u201D (U+05D0) in line 1 can't be stored as Windows-1252."_s);
        QCOMPARE(contentOf(f.path), QByteArray("\xFC b"));
    }

    void withoutACopyNothingIsChanged()
    {
        Fixture f;
        const ReplaceOrder order{{.pattern = u"b"_s}, u"c"_s};
        f.put("ab", order);
        putFile(f.recovery.folder(), "in the way");
        const Result<void> replaced = f.replace(order);
        QVERIFY(!replaced.ok());
        QVERIFY(replaced.error().sentence.startsWith(u"It was not changed, because no copy of it could be kept. "));
        QCOMPARE(contentOf(f.path), QByteArray("ab"));
    }

    void anEqualTextIsNotWritten()
    {
        Fixture f;
        const ReplaceOrder order{{.pattern = u"b"_s}, u"b"_s};
        f.put("ab", order);
        const FileSignature before = f.files.signature(f.path);
        QVERIFY(f.replace(order).ok());
        QCOMPARE(f.files.signature(f.path), before);
        QVERIFY(f.copies().isEmpty());
    }

    void aFileWithTwoNamesKeepsBoth()
    {
        Fixture f;
        const ReplaceOrder order{{.pattern = u"b"_s}, u"c"_s};
        putFile(f.path, "ab");
        const QString other = f.folder.filePath(u"other.htm"_s);
        QCOMPARE(::link(QFile::encodeName(f.path).constData(), QFile::encodeName(other).constData()), 0);
        f.found.path = f.path;
        f.found.signature = f.files.signature(f.path);
        f.found.matches = matchesOf(u"ab"_s, order);
        QVERIFY(f.replace(order).ok());
        QCOMPARE(contentOf(other), QByteArray("ac"));
    }
};

ZEPHIRA_TEST(TstFileReplacement)

} // namespace zephira

#include "tst_filereplacement.moc"
