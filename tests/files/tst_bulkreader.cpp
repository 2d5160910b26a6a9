// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/bulkreader.h"
#include "support/diskfiles.h"
#include "support/testregistry.h"

#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr qsizetype mebibyte = 1024 * 1024;

} // namespace

class TstBulkReader final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_stopped = false; }

    void kinds_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<int>("kind");
        const auto row = [](const char *name, const QByteArray &content, BulkReader::Kind kind) {
            QTest::newRow(name) << content << static_cast<int>(kind);
        };
        using enum BulkReader::Kind;
        row("wanted", "a needle", Wanted);
        row("unwanted", "none", Unwanted);
        row("empty", "", Unwanted);
        row("binary", QByteArray("needle\0", 7), Binary);
        row("a NUL far inside", "needle" + QByteArray(9000, ' ') + QByteArray(1, '\0'), Wanted);
        row("little UTF-16", QByteArray("\xFF\xFE\0needle", 9), Wanted);
        row("big UTF-16", QByteArray("\xFE\xFF\0needle", 9), Wanted);
        row("a block", "needle" + QByteArray(mebibyte - 6, ' '), Wanted);
        row("over a border", QByteArray(mebibyte - 1, ' ') + "needle", Wanted);
        row("over the second border", QByteArray(2 * mebibyte - 5, ' ') + "needle", Wanted);
        row("large and unwanted", QByteArray(3 * mebibyte, ' '), Unwanted);
        row("large and binary", QByteArray(3 * mebibyte, '\0'), Binary);
    }

    void kinds()
    {
        QFETCH(QByteArray, content);
        QFETCH(int, kind);
        const QTemporaryDir folder;
        const QString path = putFile(folder.filePath(u"a"_s), content);
        BulkReader reader = make();
        for (int i = 0; i < 2; ++i) {
            const BulkReader::Content read = reader.read(QFile::encodeName(path));
            QCOMPARE(static_cast<int>(read.kind), kind);
            if (read.kind == BulkReader::Kind::Wanted)
                QVERIFY(read.bytes == content);
            QCOMPARE(read.signature.size, content.size());
        }
    }

    void whatCannotBeRead()
    {
        const QTemporaryDir folder;
        const QString path = putFile(folder.filePath(u"a"_s), "needle");
        QVERIFY(QFile::link(path, folder.filePath(u"link"_s)));
        QCOMPARE(::mkfifo(QFile::encodeName(folder.filePath(u"pipe"_s)).constData(), 0600), 0);
        BulkReader reader = make();
        for (const QString &name : {u"link"_s, u"pipe"_s, u"missing"_s, u"."_s})
            QCOMPARE(reader.read(QFile::encodeName(folder.filePath(name))).kind, BulkReader::Kind::Unreadable);
        QCOMPARE(reader.read(QFile::encodeName(path)).kind, BulkReader::Kind::Wanted);
    }

    void tooLarge()
    {
        const QTemporaryDir folder;
        const QString path = putFile(folder.filePath(u"a"_s), "needle" + QByteArray(9000, ' '));
        QCOMPARE(::truncate(QFile::encodeName(path).constData(), 257 * mebibyte), 0);
        QCOMPARE(make().read(QFile::encodeName(path)).kind, BulkReader::Kind::TooLarge);
    }

    void stops()
    {
        const QTemporaryDir folder;
        const QString path = putFile(folder.filePath(u"a"_s), QByteArray(3 * mebibyte, ' '));
        m_stopped = true;
        QCOMPARE(make().read(QFile::encodeName(path)).kind, BulkReader::Kind::Stopped);
    }

private:
    BulkReader make() const
    {
        return BulkReader({.mayHold = [](QByteArrayView bytes) { return bytes.contains(QByteArrayView("needle")); },
                           .overlap = 5,
                           .isStopped = [this] { return m_stopped; }});
    }

    bool m_stopped = false;
};

ZEPHIRA_TEST(TstBulkReader)

} // namespace zephira

#include "tst_bulkreader.moc"
