// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/clock.h"
#include "files/diskfilestore.h"
#include "files/documentfile.h"
#include "files/recoverycopies.h"
#include "support/diskfiles.h"
#include "support/testregistry.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// A store on the disk that records the pieces of a write.
class WatchingStore final : public FileStore
{
public:
    std::vector<QByteArrayView> lastPieces;
    bool writesFail = false;
    bool writesInPlaceFail = false;
    /// The content of the recovery folder at the time when a file was written in place.
    QString recovery;
    QStringList copiesInPlace;

    Result<QByteArray> read(const QString &path) const override { return m_disk.read(path); }
    Result<void> write(const QString &path, std::span<const QByteArrayView> pieces, int mode) override
    {
        lastPieces.assign(pieces.begin(), pieces.end());
        if (writesFail)
            return Error{Error::Code::Unwritable, u"No."_s};
        return m_disk.write(path, pieces, mode);
    }
    bool mustBeWrittenInPlace(const QString &path) const override { return m_disk.mustBeWrittenInPlace(path); }
    Result<void> writeInPlace(const QString &path, std::span<const QByteArrayView> pieces) override
    {
        copiesInPlace = QDir(recovery).entryList(QDir::Files, QDir::Name);
        if (writesInPlaceFail)
            return Error{Error::Code::Unwritable, u"No."_s};
        return m_disk.writeInPlace(path, pieces);
    }
    Result<void> remove(const QString &path) override { return m_disk.remove(path); }
    bool FileExists(const QString &path) const override { return m_disk.FileExists(path); }
    FileSignature signature(const QString &path) const override { return m_disk.signature(path); }

private:
    DiskFileStore m_disk;
};

struct Desk {
    QTemporaryDir folder;
    WatchingStore files;
    SystemClock clock;
    RecoveryCopies recovery{folder.filePath(u"recovery"_s), files, clock};
    DocumentFile document{files, recovery};
    QString path = folder.filePath(u"page.htm"_s);

    Desk() { files.recovery = folder.filePath(u"recovery"_s); }

    void put(const QByteArray &content) const { putFile(path, content); }
    QByteArray get() const { return contentOf(path); }
    Result<void> save(QByteArrayView text, const TextFormat &format = {})
    {
        return document.save(path, {&text, 1}, format);
    }
    QList<QByteArray> kept() const
    {
        QList<QByteArray> contents;
        const QDir copies(folder.filePath(u"recovery"_s));
        const QStringList names = copies.entryList({u"disk-*"_s}, QDir::Files, QDir::Name);
        for (const QString &name : names)
            contents.append(files.read(copies.filePath(name)).valueOr("<unreadable>"));
        return contents;
    }
};

} // namespace

class TstDocumentFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void roundTrip_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("LF") << QByteArray("a\nb\n");
        QTest::newRow("UTF-8 with mark") << QByteArray("\xEF\xBB\xBF<p>\xC3\xA4\r\n");
        QTest::newRow("UTF-16") << QByteArray("\xFF\xFE"
                                              "a\0\r\0\n\0",
                                              8);
        QTest::newRow("Windows-1252") << QByteArray("caf\xE9\x81\r");
        QTest::newRow("NULs") << QByteArray("a\0b\xFF", 4);
    }

    void roundTrip()
    {
        QFETCH(QByteArray, bytes);
        Desk desk;
        desk.put(bytes);
        const Result<DecodedText> text = desk.document.open(desk.path);
        QVERIFY(text);
        QVERIFY(desk.save(text.value().utf8, text.value().format));
        QCOMPARE(desk.get(), bytes);
        QCOMPARE(desk.kept(), QList<QByteArray>());
    }

    void utf8PiecesAreNotCopied()
    {
        Desk desk;
        const QByteArrayView pieces[] = {"before the gap ", "behind it"};
        QVERIFY(desk.document.save(desk.path, pieces, {Encoding::Utf8, true}));
        QCOMPARE(desk.get(),
                 QByteArray("\xEF\xBB\xBF"
                            "before the gap behind it"));
        QCOMPARE(desk.files.lastPieces.size(), static_cast<std::size_t>(3));
        QVERIFY(desk.files.lastPieces[1].data() == pieces[0].data()
                && desk.files.lastPieces[2].data() == pieces[1].data());
    }

    void ownSavesKeepNothing()
    {
        Desk desk;
        for (const char *text : {"one", "two", "three"})
            QVERIFY(desk.save(text));
        QCOMPARE(desk.kept(), QList<QByteArray>());
        QCOMPARE(desk.get(), QByteArray("three"));
    }

    void foreignChangeIsKept()
    {
        Desk desk;
        desk.put("opened");
        QVERIFY(desk.document.open(desk.path));
        desk.put("foreign \xFF bytes");
        QVERIFY(desk.save("ours"));
        QCOMPARE(desk.get(), QByteArray("ours"));
        QCOMPARE(desk.kept(), QList<QByteArray>{"foreign \xFF bytes"});
        // From now on the last known content is ours.
        QVERIFY(desk.save("ours again"));
        QCOMPARE(desk.kept().size(), 1);
        desk.put("foreign after the save");
        QVERIFY(desk.save("ours"));
        QCOMPARE(desk.kept(), (QList<QByteArray>{"foreign \xFF bytes", "foreign after the save"}));
    }

    void onePathInTwoSpellings()
    {
        Desk desk;
        desk.put("opened");
        QVERIFY(desk.document.open(desk.folder.path() + u"//./page.htm"_s));
        desk.put("foreign");
        QVERIFY(desk.save("ours"));
        QCOMPARE(desk.kept(), QList<QByteArray>{"foreign"});
    }

    void fileThatCouldNotBeReadIsKept()
    {
        Desk desk;
        QVERIFY(!desk.document.open(desk.path));
        desk.put("came later");
        QVERIFY(desk.save("ours"));
        QCOMPARE(desk.kept(), QList<QByteArray>{"came later"});
    }

    void failingOpenForgetsWhatWasSeen()
    {
        Desk desk;
        desk.put("opened");
        QVERIFY(desk.document.open(desk.path));
        QVERIFY(QFile::rename(desk.path, desk.path + u".away"_s));
        QVERIFY(!desk.document.open(desk.path));
        QVERIFY(QFile::rename(desk.path + u".away"_s, desk.path));
        QVERIFY(desk.save("ours"));
        QCOMPARE(desk.kept(), QList<QByteArray>{"opened"});
    }

    void deletedFileIsWrittenAnew()
    {
        Desk desk;
        desk.put("opened");
        QVERIFY(desk.document.open(desk.path));
        QVERIFY(QFile::remove(desk.path));
        QVERIFY(desk.save("ours"));
        QCOMPARE(desk.get(), QByteArray("ours"));
        QCOMPARE(desk.kept(), QList<QByteArray>());
    }

    void pathNeverSeenIsOverwrittenAsAsked()
    {
        Desk desk;
        desk.put("somebody's");
        QVERIFY(desk.save("ours"));
        QCOMPARE(desk.get(), QByteArray("ours"));
        QCOMPARE(desk.kept(), QList<QByteArray>());
    }

    void allNamesOfAFileShowWhatIsSaved()
    {
        Desk desk;
        desk.put("opened");
        const QString other = desk.folder.filePath(u"other.htm"_s);
        QCOMPARE(link(QFile::encodeName(desk.path).constData(), QFile::encodeName(other).constData()), 0);
        QVERIFY(desk.document.open(desk.path));
        QVERIFY(desk.save("ours"));
        QCOMPARE(desk.get(), QByteArray("ours"));
        QCOMPARE(desk.files.read(other).value(), QByteArray("ours"));
        // The copy existed only while it was needed.
        QCOMPARE(desk.files.copiesInPlace.size(), 1);
        QCOMPARE(desk.kept(), QList<QByteArray>());
    }

    void whatWasWrittenOverInVainIsKept()
    {
        Desk desk;
        desk.put("opened");
        const QString other = desk.folder.filePath(u"other.htm"_s);
        QCOMPARE(link(QFile::encodeName(desk.path).constData(), QFile::encodeName(other).constData()), 0);
        QVERIFY(desk.document.open(desk.path));
        desk.files.writesInPlaceFail = true;
        QVERIFY(!desk.save("ours"));
        QCOMPARE(desk.kept(), QList<QByteArray>{"opened"});
    }

    void aForeignVersionStaysKept()
    {
        Desk desk;
        desk.put("opened");
        const QString other = desk.folder.filePath(u"other.htm"_s);
        QCOMPARE(link(QFile::encodeName(desk.path).constData(), QFile::encodeName(other).constData()), 0);
        QVERIFY(desk.document.open(desk.path));
        desk.put("a foreign version");
        QVERIFY(desk.save("ours"));
        QCOMPARE(desk.files.read(other).value(), QByteArray("ours"));
        QCOMPARE(desk.kept(), QList<QByteArray>{"a foreign version"});
    }

    void nothingIsWrittenOverWithoutACopy()
    {
        Desk desk;
        desk.put("opened");
        const QString other = desk.folder.filePath(u"other.htm"_s);
        QCOMPARE(link(QFile::encodeName(desk.path).constData(), QFile::encodeName(other).constData()), 0);
        QVERIFY(desk.document.open(desk.path));
        const QString blocked = desk.folder.filePath(u"recovery"_s);
        QFile file(blocked);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        QFile::setPermissions(blocked, QFile::ReadOwner | QFile::WriteOwner);
        const Result<void> saved = desk.save("ours");
        QVERIFY(!saved);
        QVERIFY2(
            saved.error().sentence.startsWith(
                u"The file \"%1\" was not saved, because the version on disk, which would be overwritten, could not be "
                "backed up. "_s.arg(desk.path)),
            qPrintable(saved.error().sentence));
        QCOMPARE(desk.get(), QByteArray("opened"));
    }

    void saveFailsWhereTheForeignVersionCannotBeKept()
    {
        Desk desk;
        desk.put("opened");
        QVERIFY(desk.document.open(desk.path));
        desk.put("foreign");
        const QString blocked = desk.folder.filePath(u"recovery"_s);
        QFile file(blocked);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        QFile::setPermissions(blocked, QFile::ReadOwner | QFile::WriteOwner);
        const Result<void> saved = desk.save("ours");
        QVERIFY(!saved);
        QVERIFY2(
            saved.error().sentence.startsWith(
                u"The file \"%1\" was not saved, because the version on disk, which is not the one that was opened, "
                "could not be backed up. The file \"%2/disk-"_s.arg(desk.path, blocked)),
            qPrintable(saved.error().sentence));
        QCOMPARE(desk.get(), QByteArray("foreign"));
    }

    void failingSaveIsTold()
    {
        Desk desk;
        desk.put("opened");
        QVERIFY(desk.document.open(desk.path));
        desk.files.writesFail = true;
        QCOMPARE(desk.save("ours").error().sentence, u"No."_s);
        QCOMPARE(desk.get(), QByteArray("opened"));
    }

    void unencodableTouchesNothing()
    {
        Desk desk;
        desk.put("opened \xE9");
        QVERIFY(desk.document.open(desk.path));
        desk.put("foreign \xE9");
        const Result<void> saved = desk.save("\xD0\x96", {Encoding::Windows1252});
        QCOMPARE(saved.error().code, Error::Code::Unencodable);
        QCOMPARE(desk.get(), QByteArray("foreign \xE9"));
        QCOMPARE(desk.kept(), QList<QByteArray>());
    }
};

ZEPHIRA_TEST(TstDocumentFile)

} // namespace zephira

#include "tst_documentfile.moc"
