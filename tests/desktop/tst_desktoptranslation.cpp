// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/translation.h"
#include "desktop/desktoptranslation.h"
#include "files/diskfilestore.h"
#include "support/diskfiles.h"
#include "support/sourcefolder.h"
#include "support/testregistry.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

const QString built = QStringLiteral(ZEPHIRA_BUILD);

/// Counts what is read.
struct CountingStore final : FileStore {
    DiskFileStore disk;
    mutable QStringList reads;

    Result<QByteArray> read(const QString &path) const override
    {
        reads.append(path);
        return disk.read(path);
    }
    Result<void> write(const QString &path, std::span<const QByteArrayView> pieces, int mode) override
    {
        return disk.write(path, pieces, mode);
    }
    Result<void> remove(const QString &path) override { return disk.remove(path); }
    bool FileExists(const QString &path) const override { return disk.FileExists(path); }
    FileSignature signature(const QString &path) const override { return disk.signature(path); }
};

QString shown()
{
    return translated("TextMenu", ZEPHIRA_TEXT("TextMenu", "&Join Lines"));
}

/// All that the expression finds in a text, sorted.
QStringList found(const QRegularExpression &expression, const QString &text)
{
    QStringList all;
    for (const QRegularExpressionMatch &match : expression.globalMatch(text))
        all.append(match.captured());
    all.sort();
    return all;
}

} // namespace

class TstDesktopTranslation final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void languages_data()
    {
        QTest::addColumn<QStringList>("wanted");
        QTest::addColumn<QString>("language");
        QTest::newRow("none") << QStringList() << QString();
        QTest::newRow("plain") << QStringList{u"de"_s} << u"de"_s;
        QTest::newRow("country") << QStringList{u"de-AT"_s, u"en"_s} << u"de"_s;
        QTest::newRow("as the system writes it") << QStringList{u"de_DE.UTF-8"_s} << u"de"_s;
        QTest::newRow("English") << QStringList{u"en-GB"_s, u"de"_s} << QString();
        QTest::newRow("C") << QStringList{u"C"_s} << QString();
        QTest::newRow("another") << QStringList{u"nds"_s, u"de"_s} << u"nds"_s;
        QTest::newRow("no language") << QStringList{u"../../de"_s} << QString();
    }

    void languages()
    {
        QFETCH(QStringList, wanted);
        QTEST(translationLanguage(wanted), "language");
    }

    void theDesktopsLanguage()
    {
        const CountingStore files;
        {
            const Translation german(files, {u"/nowhere"_s, built}, {u"de-DE"_s});
            QCOMPARE(shown(), u"Zeilen &zusammenfügen"_s);
            QCOMPARE(translated(nullptr, u"&Join Lines"), u"&Join Lines"_s);
            QCOMPARE(translated("TextMenu", u"no such text"), u"no such text"_s);
            QCOMPARE(translated("TextMenu", {}), QString());
            QCOMPARE(files.reads, QStringList{built + u"/translations/zephira_de.qm"_s});
        }
        QCOMPARE(shown(), u"&Join Lines"_s);
    }

    void englishOpensNoFile()
    {
        const CountingStore files;
        const Translation english(files, {built}, {u"en-US"_s, u"de"_s});
        const Translation none(files, {built}, {u"C"_s});
        const Translation unknown(files, {built}, {u"tlh"_s});
        QCOMPARE(shown(), u"&Join Lines"_s);
        QCOMPARE(files.reads, QStringList());
    }

    void aDamagedFileIsNoTranslation_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("text") << QByteArray("no translation");
        QTest::newRow("cut") << contentOf(built + u"/translations/zephira_de.qm"_s).left(1000);
    }

    void aDamagedFileIsNoTranslation()
    {
        QFETCH(QByteArray, content);
        const QTemporaryDir folder;
        putFile(folder.filePath(u"translations/zephira_de.qm"_s), content);
        const Translation german(DiskFileStore(), {folder.path()}, {u"de"_s});
        QCOMPARE(shown(), u"&Join Lines"_s);
    }

    /// What the program puts into a text, or reads from it, must be in the translation as well.
    void nothingIsLostInTranslation()
    {
        static const QRegularExpression places(u"%[1-9n]"_s);
        static const QRegularExpression tags(u"<[^>]*>|&[a-z]+;"_s);
        static const QRegularExpression mnemonic(u"&[^&\\s;a-z]|&[a-z](?![a-z]+;)"_s);
        static const QRegularExpression end(u"(\\n|:|\\.\\.\\.)$"_s);
        QXmlStreamReader xml(contentOf(sourcePath(u"translations/zephira_de.ts"_s)));
        QString source;
        int count = 0;
        while (!xml.atEnd()) {
            if (xml.readNext() != QXmlStreamReader::StartElement)
                continue;
            if (xml.name() == u"source"_s)
                source = xml.readElementText();
            if (xml.name() != u"translation"_s)
                continue;
            QVERIFY2(xml.attributes().isEmpty(), qPrintable(source));
            const QString text = xml.readElementText();
            ++count;
            for (const QRegularExpression &each : {places, tags, end})
                QVERIFY2(found(each, source) == found(each, text), qPrintable(source + u" - "_s + text));
            QVERIFY2(found(mnemonic, source).size() == found(mnemonic, text).size(),
                     qPrintable(source + u" - "_s + text));
            QVERIFY(!text.trimmed().isEmpty());
        }
        QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
        QVERIFY(count > 200);
    }
};

ZEPHIRA_TEST(TstDesktopTranslation)
#include "tst_desktoptranslation.moc"
