// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/folderlock.h"
#include "support/testregistry.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>
#include <optional>

using namespace std::chrono_literals;
using namespace zephira;

class TstFolderLock final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void oneHolderAtATime()
    {
        const QTemporaryDir folder;
        const QByteArray name = QFile::encodeName(folder.path());
        std::optional<FolderLock> first(std::in_place, name);
        QVERIFY(first->isHeld());
        QElapsedTimer timer;
        timer.start();
        const FolderLock second(name, 50ms);
        QVERIFY(!second.isHeld());
        QCOMPARE(second.error(), EWOULDBLOCK);
        QVERIFY(timer.elapsed() >= 50);
        first.reset();
        QVERIFY(FolderLock(name, 50ms).isHeld());
    }

    void aFolderThatIsNotThere()
    {
        const QTemporaryDir folder;
        const QByteArray name = QFile::encodeName(folder.path()) + "/none";
        QCOMPARE(FolderLock(name).error(), ENOENT);
        QCOMPARE(FolderLock(name, 50ms).error(), ENOENT);
    }
};

ZEPHIRA_TEST(TstFolderLock)
#include "tst_folderlock.moc"
