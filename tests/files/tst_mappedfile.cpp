// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/diskfilestore.h"
#include "files/documentfile.h"
#include "files/mappedfile.h"
#include "files/recoverycopies.h"
#include "support/fakes.h"
#include "support/testregistry.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

using namespace zephira;
using namespace Qt::StringLiterals;

/// Files mapped instead of read.
class TstMappedFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writersWaitAsLongAsTheFileIsMapped()
    {
        const QByteArray path = file(QByteArray(3 << 20, 'x'));
        const int reading = ::open(path.constData(), O_RDONLY);
        std::shared_ptr<const MappedFile> mapped = MappedFile::map(reading);
        QVERIFY(mapped);
        QVERIFY(mapped->bytes() == QByteArray(3 << 20, 'x'));
        // A non-blocking writer is refused, and the signal that announces it doesn't end our process.
        QCOMPARE(::open(path.constData(), O_WRONLY | O_TRUNC | O_NONBLOCK), -1);
        QCOMPARE(errno, EWOULDBLOCK);
        QVERIFY(mapped->bytes() == QByteArray(3 << 20, 'x'));
        mapped.reset();
        const int writing = ::open(path.constData(), O_WRONLY | O_NONBLOCK);
        QVERIFY(writing >= 0);
        ::close(writing);
    }

    void aFileThatSomebodyWritesIsReadInstead()
    {
        const QByteArray content(2 << 20, 'y');
        const QByteArray path = file(content);
        const int writing = ::open(path.constData(), O_WRONLY);
        const int reading = ::open(path.constData(), O_RDONLY);
        QVERIFY(!MappedFile::map(reading));
        QVERIFY(::fcntl(reading, F_GETFD) >= 0); // Still ours.
        ::close(reading);
        const Result<FileView> view = DiskFileStore().view(QString::fromUtf8(path));
        QVERIFY(view.ok());
        QVERIFY(!view.value().owner);
        QVERIFY(view.value().bytes == content);
        ::close(writing);
    }

    void anEmptyFileIsNotMapped()
    {
        const int reading = ::open(file({}).constData(), O_RDONLY);
        QVERIFY(!MappedFile::map(reading));
        ::close(reading);
    }

    void aLargeDocumentRoundTripsThroughTheMapping()
    {
        DiskFileStore files;
        FakeClock clock;
        RecoveryCopies recovery(m_folder.path() + u"/recovery"_s, files, clock);
        DocumentFile document(files, recovery);
        const QByteArray content = QByteArray("<p>\xC3\xA9</p>\n").repeated(200'000);
        const QString path = QString::fromUtf8(file(content));
        const QString copy = m_folder.path() + u"/copy"_s;
        {
            const Result<DecodedText> text = document.open(path);
            QVERIFY(text.ok());
            QVERIFY(text.value().owner);
            QVERIFY(text.value().utf8 == content);
            const QByteArrayView piece = text.value().utf8;
            QVERIFY(document.save(copy, std::span(&piece, 1), text.value().format).ok());
        }
        QVERIFY(files.read(copy).valueOr({}) == content);
    }

private:
    QByteArray file(const QByteArray &content)
    {
        const QString path = m_folder.filePath(QString::number(++m_count));
        QFile out(path);
        if (!out.open(QIODevice::WriteOnly) || out.write(content) != content.size())
            qFatal("can't write %s", qPrintable(path));
        return QFile::encodeName(path);
    }

    QTemporaryDir m_folder;
    int m_count = 0;
};

ZEPHIRA_TEST(TstMappedFile)
#include "tst_mappedfile.moc"
