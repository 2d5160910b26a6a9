// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "wizards/fieldtemplate.h"
#include "wizards/savedtags.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;
using namespace zephira;

/// The files of saved meta tags: what they contain, what comes back, and what goes wrong.
class TstSavedTags final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir(m_folder->path()).mkdir(u"Tags"_s));
    }

    void folder() { QCOMPARE(savedTagsFolder(u"/program"_s), u"/program/Tags"_s); }

    void theFile()
    {
        QVERIFY(saveTags({u"A \"shop\""_s, u"tea, pots"_s, u"Größe"_s, u"2002"_s}, tags(), u"my shop"_s).ok());
        QCOMPARE(names(), QStringList{u"my shop.smt"_s});
        QCOMPARE(get(u"my shop.smt"_s),
                 "[Saved Tags]\r\nDesc=A \"shop\"\r\nKeywords=tea, pots\r\nAuthor=Gr\xc3\xb6\xc3\x9f"
                 "e\r\ncright=2002\r\n");
    }

    void anEmptyNameIsAName()
    {
        QVERIFY(saveTags({.author = u"me"_s}, tags(), QString()).ok());
        QCOMPARE(names(), QStringList{u".smt"_s});
        QCOMPARE(load(u".smt"_s), (SiteFacts{.author = u"me"_s}));
    }

    void onlyTheKeysAreTouched()
    {
        put(u"a.smt"_s,
            "; mine\r\n[other]\r\nDesc=stays\r\n\r\n[SAVED TAGS]\r\ncolour = red\r\ncright = old\r\n"
            "desc=\"old\"\r\n");
        QVERIFY(saveTags({u"d"_s, u"k"_s, u"a"_s, u"c"_s}, tags(), u"a"_s).ok());
        QCOMPARE(get(u"a.smt"_s),
                 "; mine\r\n[other]\r\nDesc=stays\r\n\r\n[SAVED TAGS]\r\ncolour = red\r\ncright = c\r\ndesc=d\r\n"
                 "Keywords=k\r\nAuthor=a\r\n");
        QVERIFY(saveTags({}, tags(), u"a"_s).ok());
        QCOMPARE(load(u"a.smt"_s), SiteFacts());
    }

    void whatIsMissingIsEmpty_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QStringList>("facts");
        QTest::newRow("empty file") << QByteArray() << QStringList{{}, {}, {}, {}};
        QTest::newRow("no section") << QByteArray("Desc=a\r\nAuthor=b\r\n") << QStringList{{}, {}, {}, {}};
        QTest::newRow("another section") << QByteArray("[Tags]\r\nDesc=a\r\n") << QStringList{{}, {}, {}, {}};
        QTest::newRow("two keys") << QByteArray("[saved tags]\nauthor=b\nKEYWORDS= c \n")
                                  << QStringList{{}, u"c"_s, u"b"_s, {}};
        QTest::newRow("Windows-1252") << QByteArray("[Saved Tags]\r\ncright=\xa9 M\xfcller\r\n")
                                      << QStringList{{}, {}, {}, u"© Müller"_s};
        QTest::newRow("UTF-16") << QByteArray("\xff\xfe[\0S\0a\0v\0e\0d\0 \0T\0a\0g\0s\0]\0\n\0D\0e\0s\0c\0=\0\xe4\0",
                                              40)
                                << QStringList{u"ä"_s, {}, {}, {}};
    }

    void whatIsMissingIsEmpty()
    {
        QFETCH(QByteArray, content);
        QFETCH(QStringList, facts);
        put(u"a.smt"_s, content);
        QCOMPARE(load(u"a.smt"_s), (SiteFacts{facts[0], facts[1], facts[2], facts[3]}));
    }

    void valuesAreCut()
    {
        const QString longText(1500, u'ä');
        QVERIFY(saveTags({.description = longText, .copyright = longText}, tags(), u"a"_s).ok());
        QCOMPARE(load(u"a.smt"_s), (SiteFacts{.description = longText.left(999), .copyright = longText.left(999)}));
        QCOMPARE(get(u"a.smt"_s).count("\xc3\xa4"), 3000);
    }

    /// Whatever was typed, the file stays a profile, and every text comes back with its line breaks as blanks.
    void anyTextsComeBackOnOneLine()
    {
        QRandomGenerator random(7402);
        for (int i = 0; i < 50; ++i) {
            const QStringList f = generatedFields(random, 4);
            QVERIFY(saveTags({f[0], f[1], f[2], f[3]}, tags(), u"a"_s).ok());
            const QStringList lines = QString::fromUtf8(get(u"a.smt"_s)).split(u"\r\n"_s);
            QCOMPARE(lines.size(), 6);
            QCOMPARE(lines.first(), u"[Saved Tags]"_s);
            QStringList kept = f;
            kept.replaceInStrings(u"\r\n"_s, u" "_s);
            QCOMPARE(load(u"a.smt"_s), (SiteFacts{kept[0], kept[1], kept[2], kept[3]}));
        }
    }

    void withoutTheFolderNothingIsSaved()
    {
        QVERIFY(QDir().rmdir(tags()));
        QVERIFY(saveTags({.author = u"me"_s}, tags(), u"a"_s).ok());
        QVERIFY(!QFileInfo::exists(tags()));
        QCOMPARE(loadError(u"a.smt"_s).code, Error::Code::NotFound);
    }

    void aFileInsteadOfTheFolder()
    {
        QVERIFY(QDir().rmdir(tags()));
        QFile file(tags());
        QVERIFY(file.open(QIODevice::WriteOnly));
        const auto saved = saveTags({}, tags(), u"a"_s);
        QVERIFY(!saved);
        QCOMPARE(saved.error().sentence,
                 u"The file \"%1\" could not be saved: a part of its path is not a folder."_s.arg(path(u"a.smt"_s)));
        QCOMPARE(loadError(u"Text1"_s).code, Error::Code::Unreadable);
    }

    void namesThatCantBeFiles_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("sentence");
        QTest::newRow("a separator") << u"a/b"_s << u"\"a/b.smt\" can't be the name of a file."_s;
        QTest::newRow("outside") << u"../a"_s << u"\"../a.smt\" can't be the name of a file."_s;
        QTest::newRow("NUL") << u"a\0b"_s << u"\"a\0b.smt\" can't be the name of a file."_s;
        QTest::newRow("too long") << QString(100'000, u'x') << u"its name is too long."_s;
        QTest::newRow("a byte too long") << QString(252, u'x') << u"its name is too long."_s;
    }

    void namesThatCantBeFiles()
    {
        QFETCH(QString, name);
        QFETCH(QString, sentence);
        const auto saved = saveTags({.author = u"me"_s}, tags(), name);
        QVERIFY(!saved);
        QVERIFY2(saved.error().sentence.endsWith(sentence), qPrintable(saved.error().sentence));
        QCOMPARE(names(), QStringList());
    }

    void oddNamesThatCanBeFiles()
    {
        const QStringList odd{u".."_s, u"a\\b"_s, u"ü \U0001F600"_s, u"a\r\nb"_s, QString(251, u'x')};
        for (const QString &name : odd) {
            QVERIFY2(saveTags({.author = name}, tags(), name).ok(), qPrintable(name));
            QVERIFY(QFileInfo::exists(path(name + u".smt"_s)));
            QVERIFY(load(name + u".smt"_s).author.startsWith(name.left(1)));
        }
    }

    void filesThatCantBeUsed()
    {
        put(u"a.smt"_s, "[Saved Tags]\r\nDesc=old\r\n");
        QVERIFY(QFile::setPermissions(path(u"a.smt"_s), QFile::ReadOwner));
        const auto saved = saveTags({.description = u"new"_s}, tags(), u"a"_s);
        QVERIFY(!saved);
        QCOMPARE(saved.error().sentence,
                 u"The file \"%1\" could not be saved: it is read-only."_s.arg(path(u"a.smt"_s)));
        QCOMPARE(load(u"a.smt"_s).description, u"old"_s);
        QVERIFY(QDir(tags()).mkdir(u"folder.smt"_s));
        QCOMPARE(loadError(u"folder.smt"_s).sentence,
                 u"The file \"%1\" could not be read: it is a folder."_s.arg(path(u"folder.smt"_s)));
        QVERIFY(!saveTags({}, tags(), u"folder"_s));
    }

    void randomBytesAndTenMegabytes()
    {
        QRandomGenerator random(7403);
        QByteArray bytes(10 * 1024 * 1024, Qt::Uninitialized);
        std::ranges::generate(bytes, [&] { return static_cast<char>(random.bounded(256)); });
        put(u"a.smt"_s, bytes);
        QCOMPARE(load(u"a.smt"_s), SiteFacts());
        put(u"a.smt"_s, bytes + "\n[Saved Tags]\nAuthor=me\nDesc=" + bytes.left(1000) + '\n');
        QCOMPARE(load(u"a.smt"_s).author, u"me"_s);
        put(u"a.smt"_s, "[Saved Tags]\nDesc=" + QByteArray(bytes.size(), 'x'));
        QCOMPARE(load(u"a.smt"_s).description, QString(999, u'x'));
    }

private:
    QString tags() const { return m_folder->filePath(u"Tags"_s); }
    QString path(const QString &name) const { return m_folder->filePath(u"Tags/"_s + name); }
    QStringList names() const { return QDir(tags()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot); }
    void put(const QString &name, const QByteArray &content) const
    {
        QFile file(tags() + u'/' + name);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(content), content.size());
    }
    QByteArray get(const QString &name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
    }
    SiteFacts load(const QString &name) const { return loadTags(tags(), name).valueOr({.author = u"unreadable"_s}); }
    Error loadError(const QString &name) const
    {
        const auto loaded = loadTags(tags(), name);
        return loaded ? Error{} : loaded.error();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

ZEPHIRA_TEST(TstSavedTags)

#include "tst_savedtags.moc"
