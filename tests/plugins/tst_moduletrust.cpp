// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugins/moduletrust.h"
#include "support/testregistry.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstModuleTrust final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir().mkdir(place(u"plugins"_s)) && QDir().mkdir(place(u"elsewhere"_s)));
        setMode(QString(), 0755);
        for (const QString &folder : {u"plugins"_s, u"elsewhere"_s}) {
            setMode(folder, 0755);
            QVERIFY(QFile(place(folder + u"/a.so"_s)).open(QIODevice::WriteOnly));
            setMode(folder + u"/a.so"_s, 0644);
        }
    }

    void modes_data()
    {
        QTest::addColumn<QString>("place");
        QTest::addColumn<uint>("mode");
        QTest::addColumn<bool>("trusted");
        QTest::newRow("as installed") << u"plugins/a.so"_s << 0755u << true;
        QTest::newRow("only mine") << u"plugins"_s << 0700u << true;
        QTest::newRow("everybody's file") << u"plugins/a.so"_s << 0666u << false;
        QTest::newRow("the group's file") << u"plugins/a.so"_s << 0664u << false;
        QTest::newRow("everybody's folder") << u"plugins"_s << 0777u << false;
        QTest::newRow("a folder like /tmp") << u"plugins"_s << 01777u << false;
        QTest::newRow("the group's folder") << u"plugins"_s << 0775u << false;
        QTest::newRow("everybody's program folder") << QString() << 0777u << false;
    }

    void modes()
    {
        QFETCH(QString, place);
        QFETCH(uint, mode);
        setMode(place, mode);
        QTEST(isTrustedModule(this->place(u"plugins/a.so"_s), this->place({})), "trusted");
    }

    void whoseItIs_data()
    {
        QTest::addColumn<QString>("place");
        QTest::newRow("file") << u"plugins/a.so"_s;
        QTest::newRow("folder") << u"plugins"_s;
        QTest::newRow("program folder") << QString();
    }

    /// Only root can give files away; for everybody else root's own files show that root is trusted.
    void whoseItIs()
    {
        QFETCH(QString, place);
        if (::geteuid() != 0) {
            QVERIFY(isTrustedModule(u"/usr/bin/env"_s, u"/usr"_s));
            return;
        }
        QCOMPARE(::chown(QFile::encodeName(this->place(place)).constData(), 65534, 65534), 0);
        QVERIFY(!isTrustedModule(this->place(u"plugins/a.so"_s), this->place({})));
    }

    void links()
    {
        const QString link = place(u"plugins/link.so"_s);
        QVERIFY(QFile::link(place(u"elsewhere/a.so"_s), link));
        QVERIFY(isTrustedModule(link, place({})));
        setMode(u"elsewhere"_s, 0777);
        QVERIFY(!isTrustedModule(link, place({})));
        setMode(u"elsewhere"_s, 0755);
        setMode(u"elsewhere/a.so"_s, 0666);
        QVERIFY(!isTrustedModule(link, place({})));
        setMode(u"elsewhere/a.so"_s, 0644);
        setMode(u"plugins"_s, 0777);
        QVERIFY(!isTrustedModule(link, place({})));
    }

    void whatDoesNotExist()
    {
        QVERIFY(!isTrustedModule(place(u"plugins/b.so"_s), place({})));
        QVERIFY(!isTrustedModule({}, place({})));
        QVERIFY(!isTrustedModule(place(u"plugins/a.so"_s), u"/nowhere"_s));
    }

private:
    QString place(const QString &name) const { return name.isEmpty() ? m_folder->path() : m_folder->filePath(name); }
    void setMode(const QString &name, uint mode) const
    {
        QCOMPARE(::chmod(QFile::encodeName(place(name)).constData(), mode), 0);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

ZEPHIRA_TEST(TstModuleTrust)
#include "tst_moduletrust.moc"
