// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "widgets/drives.h"

#include <QFileInfo>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstDrives : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void order_data()
    {
        QTest::addColumn<QStringList>("mounted");
        QTest::addColumn<QStringList>("drives");
        QTest::newRow("none") << QStringList() << QStringList{u"/"_s};
        QTest::newRow("root first") << QStringList{u"/home"_s, u"/"_s} << QStringList{u"/"_s, u"/home"_s};
        QTest::newRow("by mount point") << QStringList{u"/media/b"_s, u"/"_s, u"/boot"_s, u"/media/a"_s}
                                        << QStringList{u"/"_s, u"/boot"_s, u"/media/a"_s, u"/media/b"_s};
        QTest::newRow("mounted over another")
            << QStringList{u"/mnt"_s, u"/"_s, u"/mnt"_s, u"/"_s} << QStringList{u"/"_s, u"/mnt"_s};
    }

    void order()
    {
        QFETCH(QStringList, mounted);
        QTEST(drivesOf(mounted), "drives");
    }

    void thisComputer()
    {
        const QStringList drives = mountedDrives();
        QCOMPARE(drives.value(0), u"/"_s);
        for (const QString &drive : drives)
            QVERIFY2(QFileInfo(drive).isDir(), qPrintable(drive));
    }
};

ZEPHIRA_TEST(TstDrives)
#include "tst_drives.moc"
