// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/filewalk.h"
#include "support/diskfiles.h"
#include "support/testregistry.h"

#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace zephira {

class TstFileWalk final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void visitsFilesBeforeFolders()
    {
        const QTemporaryDir folder;
        for (const QString &name :
             {u"b"_s, u"A"_s, u"c/d"_s, u"C2/e"_s, u"c/f/g"_s, u".h/i"_s, u".j"_s, u"k.skipped"_s})
            putFile(folder.filePath(name), "x");
        FileWalk walk(folder.path() + u'/', [](const QString &name) { return !name.endsWith(u".skipped"); });
        QStringList names;
        while (const auto path = walk.next())
            names.append(QDir(folder.path()).relativeFilePath(QFile::decodeName(*path)));
        QCOMPARE(names.join(u' '), u".j A b c/d c/f/g C2/e"_s);
        QCOMPARE(walk.leftOut(), FileWalk::LeftOut());
    }

    void followsNoLinks()
    {
        const QTemporaryDir folder;
        putFile(folder.filePath(u"a"_s), "x");
        QVERIFY(QFile::link(folder.path(), folder.filePath(u"circle"_s)));
        QVERIFY(QFile::link(folder.filePath(u"a"_s), folder.filePath(u"link"_s)));
        FileWalk walk(folder.filePath(u"circle"_s), [](const QString &) { return true; });
        QCOMPARE(walk.next(), QFile::encodeName(folder.filePath(u"circle/a"_s)));
        QVERIFY(!walk.next());
    }

    /// The kernel's files are on file systems of their own.
    void staysOnItsDisk()
    {
        FileWalk inside(u"/proc/self"_s, [](const QString &name) { return name == u"status"; });
        QVERIFY(inside.next());
        // Only the folders directly below the root count here: what is in them is visited later.
        FileWalk walk(u"/"_s, [](const QString &name) { return name == u"meminfo"; });
        const std::optional<QByteArray> found = walk.next();
        QVERIFY(!found || *found != "/proc/meminfo");
        QVERIFY(walk.leftOut().otherFileSystems > 0);
    }

    void namesThatAreNoText()
    {
        const QTemporaryDir folder;
        putFile(folder.filePath(u"a"_s), "x");
        const QByteArray badName = QFile::encodeName(folder.path()) + "/\xFF";
        QCOMPARE(::rename(QFile::encodeName(folder.filePath(u"a"_s)).constData(), badName.constData()), 0);
        FileWalk walk(folder.path(), [](const QString &) { return true; });
        QVERIFY(!walk.next());
        QCOMPARE(walk.leftOut().invalidNames, 1);
        QCOMPARE(::unlink(badName.constData()), 0);
    }

    void aMissingFolder()
    {
        FileWalk walk(u"/missing/folder"_s, [](const QString &) { return true; });
        QVERIFY(!walk.next());
        QCOMPARE(walk.leftOut().unreadableFolders, 1);
    }
};

ZEPHIRA_TEST(TstFileWalk)

} // namespace zephira

#include "tst_filewalk.moc"
