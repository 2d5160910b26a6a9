// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/recentfiles.h"
#include "files/diskfilestore.h"
#include "files/folderlock.h"
#include "support/diskfiles.h"
#include "support/testregistry.h"

#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <memory>
#include <optional>
#include <vector>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

struct Bench {
    QTemporaryDir folder;
    DiskFileStore files;
    RecentFiles::Places places{folder.path() + u"/data"_s, folder.path() + u"/config"_s, u"/opt/zephira"_s};
    std::optional<RecentFiles> recent{std::in_place, files, places};

    QString write(const QString &name, const QByteArray &content = "x") const
    {
        return putFile(folder.path() + u'/' + name, content);
    }
    QString listPath() const { return places.dataHome + u"/recently-used.xbel"_s; }
    QByteArray list() const { return contentOf(listPath()); }
    /// Notes a file, and waits until everything is written.
    void note(const QString &path)
    {
        recent->note(path);
        recent.reset();
        recent.emplace(files, places);
    }
};

} // namespace

class TstRecentFiles final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFileIsListed()
    {
        Bench bench;
        bench.note(bench.write(u"my page.html"_s));
        QVERIFY2(bench.list().contains("href=\"file://" + bench.folder.path().toUtf8() + "/my%20page.html\""),
                 bench.list().constData());
        QVERIFY(bench.list().contains("<mime:mime-type type=\"text/html\"/>"));
        QVERIFY(bench.list().contains("name=\"Zephira\" exec=\"'/opt/zephira %f'\""));
        QCOMPARE(modeOf(bench.listPath()), mode_t(0600));
        // Neither a lock nor a temporary file stays.
        QCOMPARE(QDir(bench.places.dataHome).entryList(QDir::Files | QDir::Hidden),
                 QStringList{u"recently-used.xbel"_s});
        bench.note(bench.write(u"code.qqzz"_s));
        QVERIFY(bench.list().contains("code.qqzz"));
        QVERIFY(bench.list().contains("type=\"text/plain\""));
    }

    /// Not while the file is being opened, but a moment later and without the program's end.
    void itIsWrittenLater()
    {
        Bench bench;
        bench.recent->note(bench.write(u"page.html"_s));
        QVERIFY(!QFile::exists(bench.listPath()));
        QTRY_VERIFY(bench.list().contains("page.html"));
    }

    void whatIsNoFileIsNotListed()
    {
        Bench bench;
        bench.note(bench.folder.path() + u"/gone.html"_s);
        bench.note(bench.folder.path());
        QVERIFY(!QFile::exists(bench.listPath()));
    }

    void aDamagedListStays()
    {
        Bench bench;
        const QByteArray damaged = "<xbel><bookmark href=\"file:///a\">";
        bench.write(u"data/recently-used.xbel"_s, damaged);
        bench.note(bench.write(u"page.html"_s));
        QCOMPARE(bench.list(), damaged);
    }

    void theUsersWish_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QByteArray>("settings");
        QTest::addColumn<bool>("listed");
        const QString gtk3 = u"config/gtk-3.0/settings.ini"_s;
        const QString gtk4 = u"config/gtk-4.0/settings.ini"_s;
        const QString globals = u"config/kdeglobals"_s;
        QTest::newRow("off") << gtk3 << QByteArray("[Settings]\ngtk-recent-files-enabled=0\n") << false;
        QTest::newRow("false") << gtk4 << QByteArray("[Settings]\ngtk-recent-files-enabled = False\n") << false;
        QTest::newRow("no age") << gtk4 << QByteArray("[Settings]\ngtk-recent-files-max-age=0\n") << false;
        QTest::newRow("on") << gtk3 << QByteArray("[Settings]\ngtk-recent-files-enabled=1\n") << true;
        QTest::newRow("some age") << gtk3 << QByteArray("[Settings]\ngtk-recent-files-max-age=30\n") << true;
        QTest::newRow("other group") << gtk3 << QByteArray("[Other]\ngtk-recent-files-enabled=0\n") << true;
        QTest::newRow("globals off") << globals << QByteArray("[RecentDocuments]\nUseRecent=false\n") << false;
        QTest::newRow("globals on") << globals << QByteArray("[RecentDocuments]\nUseRecent=true\n") << true;
    }

    void theUsersWish()
    {
        QFETCH(QString, file);
        QFETCH(QByteArray, settings);
        Bench bench;
        bench.write(file, settings);
        bench.note(bench.write(u"page.html"_s));
        QTEST(QFile::exists(bench.listPath()), "listed");
    }

    /// Several windows that open files at the same time are several processes.
    void severalWriters()
    {
        Bench bench;
        constexpr int writers = 8;
        constexpr int rounds = 5;
        std::vector<QStringList> paths(writers);
        for (int i = 0; i < writers * rounds; ++i)
            paths[static_cast<std::size_t>(i % writers)].append(bench.write(u"page%1.html"_s.arg(i)));
        std::vector<std::unique_ptr<QThread>> threads;
        for (const QStringList &own : std::as_const(paths)) {
            threads.emplace_back(QThread::create([&bench, &own] {
                for (const QString &path : own) {
                    RecentFiles recent(bench.files, bench.places);
                    recent.note(path);
                }
            }));
            threads.back()->start();
        }
        for (const std::unique_ptr<QThread> &thread : std::as_const(threads))
            QVERIFY(thread->wait());
        for (int i = 0; i < writers * rounds; ++i)
            QVERIFY2(bench.list().contains("/page" + QByteArray::number(i) + ".html\""), bench.list().constData());
    }

    /// A process that holds the lock and hangs doesn't keep the program from ending.
    void aLockThatIsNeverGivenBack()
    {
        Bench bench;
        QVERIFY(QDir().mkpath(bench.places.dataHome));
        const FolderLock lock(QFile::encodeName(bench.places.dataHome));
        QVERIFY(lock.isHeld());
        bench.note(bench.write(u"page.html"_s));
        QVERIFY(!QFile::exists(bench.listPath()));
    }

    void commands_data()
    {
        QTest::addColumn<QString>("program");
        QTest::addColumn<QString>("command");
        QTest::newRow("usual") << u"/opt/a-b_c.d+1/zephira"_s << u"'/opt/a-b_c.d+1/zephira %f'"_s;
        QTest::newRow("percent") << u"/100%f/zephira"_s << uR"(''\''/100%%f/zephira'\'' %f')"_s;
        QTest::newRow("blank") << u"/my files/zephira"_s << uR"(''\''/my files/zephira'\'' %f')"_s;
    }

    void commands()
    {
        QFETCH(QString, program);
        QTEST(recentCommand(program), "command");
    }
};

ZEPHIRA_TEST(TstRecentFiles)
#include "tst_recentfiles.moc"
