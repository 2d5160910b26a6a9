// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/faultycalls.h"
#include "files/inplacewrite.h"
#include "support/diskfiles.h"
#include "support/testregistry.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace zephira {

using Call = FileSystemCalls::Call;

class TstInPlaceWrite final : public QObject
{
    Q_OBJECT

private:
    QString at(const QString &name) const { return m_folder->filePath(name); }
    static QByteArray native(const QString &path) { return QFile::encodeName(path); }
    void put(const QString &name, const QByteArray &content) const { putFile(at(name), content); }
    QByteArray get(const QString &name) const { return contentOf(at(name)); }
    Result<void> write(const QString &name, QByteArrayView content)
    {
        return writeInPlace(m_calls, at(name), {&content, 1});
    }
    bool must(const QString &name) { return mustBeWrittenInPlace(m_calls, at(name)); }

    std::unique_ptr<QTemporaryDir> m_folder;
    FaultyCalls m_calls;

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_calls.intervene = [](int, Call) { return 0; };
    }

    void whatMustBe()
    {
        put(u"one"_s, "a");
        put(u"two"_s, "a");
        QCOMPARE(link(native(at(u"two"_s)).constData(), native(at(u"second"_s)).constData()), 0);
        QCOMPARE(symlink("two", native(at(u"symbolic"_s)).constData()), 0);
        QVERIFY(!must(u"one"_s));
        QVERIFY(must(u"two"_s));
        QVERIFY(must(u"second"_s));
        QVERIFY(must(u"symbolic"_s));
        QVERIFY(!must(u"none"_s));
        QVERIFY(!must(u"none/a"_s));
        QVERIFY(!must(u""_s));
    }

    void aFolderThatAllowsNoNewFiles()
    {
        put(u"a"_s, "old");
        int asked = 0;
        // The first access check is for the file, the second for its folder.
        m_calls.intervene = [&](int, Call call) { return call == Call::Access && ++asked == 2 ? EACCES : 0; };
        QVERIFY(must(u"a"_s));
        asked = 0;
        // On a read-only disk the file can't be written to either.
        m_calls.intervene = [&](int, Call call) { return call == Call::Access && ++asked == 2 ? EROFS : 0; };
        QVERIFY(!must(u"a"_s));
    }

    void sizes_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        QTest::newRow("longer") << QByteArray("old") << QByteArray("the new text").repeated(1000);
        QTest::newRow("shorter") << QByteArray("the old text") << QByteArray("new");
        QTest::newRow("nothing") << QByteArray("the old text") << QByteArray();
        QTest::newRow("from nothing") << QByteArray() << QByteArray("new");
    }

    void sizes()
    {
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, after);
        put(u"a"_s, before);
        QCOMPARE(link(native(at(u"a"_s)).constData(), native(at(u"b"_s)).constData()), 0);
        QVERIFY(write(u"a"_s, after));
        QCOMPARE(get(u"a"_s), after);
        QCOMPARE(get(u"b"_s), after);
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size(), 2);
    }

    void modeStays()
    {
        put(u"a"_s, "old");
        QCOMPARE(chmod(native(at(u"a"_s)).constData(), 0741), 0);
        QVERIFY(write(u"a"_s, "new"));
        QCOMPARE(modeOf(at(u"a"_s)), mode_t(0741));
    }

    void eachCallFails()
    {
        int failures = 0;
        for (int failing = 0;; ++failing) {
            put(u"a"_s, "the old text");
            FaultyCalls calls;
            calls.intervene = [&](int number, Call) { return number == failing ? EIO : 0; };
            const QByteArrayView content = "new";
            const Result<void> written = writeInPlace(calls, at(u"a"_s), {&content, 1});
            if (calls.count() <= failing)
                break;
            const Call call = calls.made()[static_cast<std::size_t>(failing)];
            // Only a failing pre-allocation doesn't count as a failure.
            QCOMPARE(written.ok(), call == Call::Allocate);
            failures += written ? 0 : 1;
        }
        QVERIFY(failures >= 6);
    }

    void withoutRoomNothingIsTouched()
    {
        put(u"a"_s, "the old text");
        m_calls.intervene = [](int, Call call) { return call == Call::Allocate ? ENOSPC : 0; };
        QCOMPARE(write(u"a"_s, "new").error().sentence,
                 u"The file \"%1\" could not be saved: the disk is full."_s.arg(at(u"a"_s)));
        QCOMPARE(get(u"a"_s), QByteArray("the old text"));
    }

    void nothingButAFileIsTaken()
    {
        QCOMPARE(mkfifo(native(at(u"pipe"_s)).constData(), 0600), 0);
        QVERIFY(!write(u"pipe"_s, "new"));
        QVERIFY(!write(u""_s, "new"));
        QVERIFY(!write(u"none"_s, "new"));
        QVERIFY(!QFile::exists(at(u"none"_s)));
    }
};

ZEPHIRA_TEST(TstInPlaceWrite)

} // namespace zephira

#include "tst_inplacewrite.moc"
