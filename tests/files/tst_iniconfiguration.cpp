// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/faultycalls.h"
#include "files/iniconfiguration.h"
#include "support/testregistry.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <vector>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace zephira {

class TstIniConfiguration : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_folder;

    QString ini() const { return m_folder->filePath(u"zephira.ini"_s); }
    void put(const QByteArray &content) const
    {
        QFile file(ini());
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(content), static_cast<qint64>(content.size()));
    }
    QByteArray get() const
    {
        QFile file(ini());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<unreadable>");
    }

    /// Sets the file's time back, as if it had been written some time ago.
    void letRest() const
    {
        QFile file(ini());
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(QDateTime::currentDateTime().addSecs(-60), QFileDevice::FileModificationTime));
    }

private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void sectionInAnySpelling_data()
    {
        QTest::addColumn<QString>("written");
        QTest::addColumn<QString>("read");
        const QStringList spellings{u"startup"_s, u"Startup"_s, u"STARTUP"_s};
        for (const QString &written : spellings) {
            for (const QString &read : spellings)
                QTest::addRow("%s as %s", qPrintable(written), qPrintable(read)) << written << read;
        }
    }

    void sectionInAnySpelling()
    {
        QFETCH(QString, written);
        QFETCH(QString, read);
        put("[Startup]\r\nrootsel=2\r\n");
        QVERIFY(WriteIni(written, u"selprj"_s, u"1"_s, ini()));
        QCOMPARE(ReadIni(read, u"selprj"_s, ini()), u"1"_s);
        QCOMPARE(get(), QByteArray("[Startup]\r\nrootsel=2\r\nselprj=1\r\n"));
    }

    void whatIsMissingReadsAsNothing()
    {
        QCOMPARE(ReadIni(u"options"_s, u"highlight"_s, ini()), QString());
        put("[options]\r\n");
        QCOMPARE(ReadIni(u"options"_s, u"highlight"_s, ini()), QString());
        QCOMPARE(ReadIni(u"font"_s, u"name"_s, ini()), QString());
        QCOMPARE(ReadIni(u"font"_s, u"name"_s, m_folder->path()), QString());
    }

    void valueIsCutOnReading_data()
    {
        QTest::addColumn<QString>("written");
        QTest::addColumn<QString>("read");
        QTest::newRow("999") << QString(999, u'x') << QString(999, u'x');
        QTest::newRow("1000") << QString(1000, u'x') << QString(999, u'x');
        QTest::newRow("in quotes") << u' ' + QString(1000, u'x') << u' ' + QString(998, u'x');
        QTest::newRow("letters of two bytes") << QString(1000, u'\u00E4') << QString(999, u'\u00E4');
        QTest::newRow("pair at the cut") << QString(998, u'x') + u"\U0001F600"_s << QString(998, u'x');
        QTest::newRow("pair before the cut")
            << QString(997, u'x') + u"\U0001F600\U0001F600"_s << QString(997, u'x') + u"\U0001F600"_s;
    }

    void valueIsCutOnReading()
    {
        QFETCH(QString, written);
        QVERIFY(WriteIni(u"s"_s, u"k"_s, written, ini()));
        QTEST(ReadIni(u"s"_s, u"k"_s, ini()), "read");
        QVERIFY(get().contains(written.toUtf8()));
    }

    void fileThatIsMissingIsMade()
    {
        QVERIFY(WriteIni(u"s"_s, u"k"_s, u"v"_s, ini()));
        QCOMPARE(get(), QByteArray("[s]\r\nk=v\r\n"));
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList{u"zephira.ini"_s});
    }

    void unwritableIsFalse()
    {
        QVERIFY(!WriteIni(u"s"_s, u"k"_s, u"v"_s, m_folder->filePath(u"none/zephira.ini"_s)));
        QVERIFY(!WriteIni(u"s"_s, u"k"_s, u"v"_s, m_folder->path()));
        QVERIFY(!WriteIni(u"s"_s, u"k"_s, u"v"_s, u"/proc/zephira.ini"_s));
        put("[s]\r\nk=old\r\n");
        QVERIFY(QFile::setPermissions(ini(), QFile::ReadOwner));
        QVERIFY(!WriteIni(u"s"_s, u"k"_s, u"v"_s, ini()));
        QVERIFY(!WriteIni(u"s"_s, u"k=x"_s, u"v"_s, ini()));
        QCOMPARE(get(), QByteArray("[s]\r\nk=old\r\n"));
    }

    void valuesOfOneState()
    {
        QCOMPARE(readIniValues(u"s"_s, {u"k"_s}, ini()).error().code, Error::Code::NotFound);
        QCOMPARE(readIniValues(u"s"_s, {u"k"_s}, m_folder->path()).error().sentence,
                 u"The file \"%1\" could not be read: it is a folder."_s.arg(m_folder->path()));
        put("[S]\r\nb=2\r\nA=" + QByteArray(1000, 'x') + "\r\n");
        QCOMPARE(readIniValues(u"s"_s, {u"a"_s, u"none"_s, u"b"_s}, ini()).value(),
                 (QStringList{QString(999, u'x'), {}, u"2"_s}));
        QCOMPARE(readIniValues(u"none"_s, {u"a"_s}, ini()).value(), QStringList{QString()});
    }

    void aFailureIsTold_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("reason");
        QTest::newRow("no folder") << u"none/a.ini"_s << u"k"_s << u"its folder does not exist"_s;
        QTest::newRow("a file in the path") << u"file/a.ini"_s << u"k"_s << u"a part of its path is not a folder"_s;
        QTest::newRow("name too long") << QString(256, u'x') << u"k"_s << u"its name is too long"_s;
        QTest::newRow("NUL") << u"a\0b"_s << u"k"_s << u"its name contains a NUL character"_s;
        QTest::newRow("no key") << u"a.ini"_s << u"k=x"_s << u"a name is not allowed in it"_s;
    }

    void aFailureIsTold()
    {
        QFETCH(QString, file);
        QFETCH(QString, key);
        QFETCH(QString, reason);
        QFile(m_folder->filePath(u"file"_s)).open(QIODevice::WriteOnly);
        const QString path = m_folder->filePath(file);
        const auto written = writeIniValue(u"s"_s, key, u"v"_s, path);
        QVERIFY(!written);
        QCOMPARE(written.error().sentence, u"The file \""_s + path + u"\" could not be saved: "_s + reason + u'.');
        QVERIFY(writeIniValue(u"s"_s, u"k"_s, u"v"_s, ini()).ok());
    }

    void linkIsKept()
    {
        QVERIFY(QDir(m_folder->path()).mkdir(u"real"_s));
        QCOMPARE(symlink("real/settings", QFile::encodeName(ini()).constData()), 0);
        QVERIFY(WriteIni(u"s"_s, u"k"_s, u"v"_s, ini()));
        QVERIFY(QFileInfo(ini()).isSymLink());
        QCOMPARE(get(), QByteArray("[s]\r\nk=v\r\n"));
    }

    void utf16StaysUtf16()
    {
        put(QByteArray("\xFF\xFE[\0s\0]\0\n\0", 10));
        QVERIFY(WriteIni(u"s"_s, u"k"_s, u"v"_s, ini()));
        QCOMPARE(get(), QByteArray("\xFF\xFE[\0s\0]\0\n\0k\0=\0v\0\n\0", 18));
        QCOMPARE(ReadIni(u"S"_s, u"K"_s, ini()), u"v"_s);
    }

    void configurationIsTheFile()
    {
        IniConfiguration configuration(ini());
        QVERIFY(configuration.setValue(Setting::FileFilters, u"*.htm;*css"_s));
        QCOMPARE(ReadIni(u"filters"_s, u"filters"_s, ini()), u"*.htm;*css"_s);
        QVERIFY(WriteIni(u"font"_s, u"size"_s, u"12"_s, ini()));
        QCOMPARE(configuration.value(Setting::FontSize), u"12"_s);
        QCOMPARE(configuration.file(), ini());
    }

    void severalValuesAreWrittenInOneGo()
    {
        put("[font]\nsize=12\n[other]\nx=1\n");
        FaultyCalls calls;
        IniConfiguration configuration(ini(), calls);
        QVERIFY(
            configuration
                .setValues({{Setting::FontSize, u"9"_s}, {Setting::FontName, u"Mono"_s}, {Setting::FontSize, u"10"_s}})
                .ok());
        QCOMPARE(get(), QByteArray("[font]\nsize=10\nname=Mono\n[other]\nx=1\n"));
        QCOMPARE(std::ranges::count(calls.made(), FileSystemCalls::Call::Rename), 1);
        QVERIFY(configuration.setValues({}).ok());
    }

    /// Whichever call fails, the file holds all the old values or all the new ones.
    void severalValuesOrNone()
    {
        const QByteArray old = "[font]\nsize=12\n";
        const QByteArray changed = "[font]\nsize=9\nname=Mono\n";
        const std::vector<SettingChange> changes{{Setting::FontSize, u"9"_s}, {Setting::FontName, u"Mono"_s}};
        int failures = 0;
        for (int failing = 0;; ++failing) {
            put(old);
            FaultyCalls calls;
            calls.intervene = [failing](int number, FileSystemCalls::Call) { return number == failing ? ENOSPC : 0; };
            const Result<void> written = IniConfiguration(ini(), calls).setValues(changes);
            QVERIFY(get() == changed || (!written && get() == old));
            QCOMPARE(QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                     QStringList{u"zephira.ini"_s});
            if (!written) {
                ++failures;
                QVERIFY2(written.error().sentence.contains(ini()), qPrintable(written.error().sentence));
            }
            if (failing >= calls.count())
                break;
        }
        QVERIFY(failures > 3);
    }

    /// A start reads some seventy values.
    void aFileThatRestsIsReadOnce()
    {
        put("[font]\nsize=12\n[Colors]\nclr0bg=7\n");
        letRest();
        FaultyCalls calls;
        const IniConfiguration configuration(ini(), calls);
        for (int i = 0; i < 70; ++i) {
            QCOMPARE(configuration.value(Setting::FontSize), u"12"_s);
            QCOMPARE(configuration.value(colourSetting(0, ColourPart::Background)), u"7"_s);
        }
        QCOMPARE(std::ranges::count(calls.made(), FileSystemCalls::Call::Open), 1);
    }

    void everyChangeOfTheFileShowsAtOnce()
    {
        IniConfiguration configuration(ini());
        QCOMPARE(configuration.value(Setting::FontSize), QString());
        put("[font]\nsize=12\n");
        letRest();
        QCOMPARE(configuration.value(Setting::FontSize), u"12"_s);
        // Same length as before and, with a coarse clock, same time.
        for (const char *size : {"13", "14", "15", "16"}) {
            put("[font]\nsize=" + QByteArray(size) + '\n');
            QCOMPARE(configuration.value(Setting::FontSize), QString::fromLatin1(size));
        }
        letRest();
        QCOMPARE(configuration.value(Setting::FontSize), u"16"_s);
        QVERIFY(configuration.setValue(Setting::FontSize, u"17"_s));
        QCOMPARE(configuration.value(Setting::FontSize), u"17"_s);
        QVERIFY(QFile::remove(ini()));
        QCOMPARE(configuration.value(Setting::FontSize), QString());
    }

    void eightProcessesLoseNothing()
    {
        put("; kept\r\n[shared]\r\nfirst=1\r\n");
        constexpr int processes = 8;
        constexpr int keys = 60;
        std::vector<std::unique_ptr<QProcess>> writers;
        for (int i = 0; i < processes; ++i) {
            writers.push_back(std::make_unique<QProcess>());
            writers.back()->start(
                QStringLiteral(INIPROBE),
                {ini(), i % 2 ? u"Shared"_s : u"own%1"_s.arg(i), QString(QChar(u'a' + i)), QString::number(keys)});
        }
        for (const auto &writer : writers) {
            QVERIFY(writer->waitForFinished(120'000));
            QCOMPARE(writer->exitCode(), 0);
        }
        for (int i = 0; i < processes; ++i) {
            for (int key = 0; key < keys; ++key)
                QCOMPARE(
                    ReadIni(i % 2 ? u"SHARED"_s : u"own%1"_s.arg(i), QChar(u'a' + i) + QString::number(key), ini()),
                    QString::number(key));
        }
        QVERIFY(get().startsWith("; kept\r\n[shared]\r\nfirst=1\r\n"));
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList{u"zephira.ini"_s});
    }
};

ZEPHIRA_TEST(TstIniConfiguration)

} // namespace zephira

#include "tst_iniconfiguration.moc"
