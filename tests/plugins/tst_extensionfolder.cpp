// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/errorstyles.h"
#include "plugins/extensionfolder.h"
#include "plugins/modulebench.h"
#include "support/testregistry.h"

#include <QDir>
#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstExtensionFolder final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTwoKinds()
    {
        QCOMPARE(ExtensionFolder(pluginKind, u"/app"_s).path(), u"/app/plugins"_s);
        QCOMPARE(ExtensionFolder(wizardKind, u"/app"_s).path(), u"/app/wizards"_s);
        QVERIFY(ExtensionFolder(pluginKind, u"/nowhere"_s).fileNames().isEmpty());
    }

    void namesOfObjects_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("object");
        QTest::newRow("one dot") << u"hello.so"_s << u"hello.Main"_s;
        QTest::newRow("two dots") << u"hello.2.so"_s << u"hello.Main"_s;
        QTest::newRow("capitals and blanks") << u"My Plug-in.so"_s << u"My Plug-in.Main"_s;
        QTest::newRow("another script") << u"日本.so"_s << u"日本.Main"_s;
    }

    void namesOfObjects()
    {
        QFETCH(QString, file);
        QTEST(ExtensionFolder::objectName(file), "object");
    }

    void onlyModulesAreListedInAlphabeticalOrder()
    {
        const ModuleBench bench;
        for (const QString &name : {u"b.so"_s, u"C.so"_s, u"a.so"_s, u"readme.txt"_s, u"c.so.bak"_s, u".hidden.so"_s})
            bench.plugin(name);
        QVERIFY(QDir().mkdir(bench.path() + u"/plugins/folder.so"_s));
        QVERIFY(QFile::link(bench.path() + u"/nowhere"_s, bench.path() + u"/plugins/broken.so"_s));
        QCOMPARE(ExtensionFolder(pluginKind, bench.path()).fileNames(), (QStringList{u"a.so"_s, u"b.so"_s, u"C.so"_s}));
    }

    void eachObjectIsANewOne()
    {
        const ModuleBench bench;
        bench.plugin(u"a.so"_s);
        ExtensionFolder folder(pluginKind, bench.path());
        auto first = folder.create(u"a.Main"_s);
        auto second = folder.create(u"a.Main"_s);
        QVERIFY(first != second);
        first.reset();
        QCOMPARE(second->text("pluginId"), u"a"_s);
        second.reset();
        QCOMPARE(takeLog(), (QStringList{u"new a"_s, u"new a"_s, u"delete a"_s, u"a.title"_s, u"delete a"_s}));
    }

    /// The module is asked for the part before the first dot, whatever follows.
    void aFileWithTwoDots()
    {
        const ModuleBench bench;
        bench.plugin(u"two.dots.so"_s);
        ExtensionFolder folder(pluginKind, bench.path());
        QCOMPARE(folder.create(u"two.Main"_s)->text("pluginId"), u"two"_s);
        QCOMPARE(failure(folder, u"two.dots.Main"_s), u"There is no module for two.dots.Main."_s);
    }

    void aModuleThatIsTheObject()
    {
        const ModuleBench bench;
        bench.plugin(u"lonely.so"_s, testmodule::lonely());
        ExtensionFolder folder(pluginKind, bench.path());
        auto first = folder.create(u"lonely.Main"_s);
        QCOMPARE(first->number("PluginStart"), 0);
        // Two users share the one that there is; afterwards there is a new one.
        auto second = folder.create(u"lonely.Main"_s);
        QCOMPARE(second->text("strReturn"), u"[lonely 1]"_s);
        first.reset();
        QVERIFY(second->isAlive());
        second.reset();
        QCOMPARE(folder.create(u"lonely.Main"_s)->text("strReturn"), u"[lonely 0]"_s);
    }

    void anObjectThatBelongsToItsModuleStays()
    {
        const ModuleBench bench;
        bench.plugin(u"owned.so"_s);
        ExtensionFolder folder(pluginKind, bench.path());
        QCOMPARE(folder.create(u"owned.Main"_s)->text("pluginId"), u"owned"_s);
        QCOMPARE(takeLog(), (QStringList{u"new owned"_s, u"owned.title"_s}));
    }

    void aLinkToAModule()
    {
        const ModuleBench bench;
        const ModuleBench elsewhere;
        bench.plugin(u"a.so"_s);
        QVERIFY(QFile::link(elsewhere.plugin(u"other.so"_s), bench.path() + u"/plugins/link.so"_s));
        ExtensionFolder folder(pluginKind, bench.path());
        QCOMPARE(folder.create(u"link.Main"_s)->text("pluginId"), u"link"_s);
    }

    void noObject_data()
    {
        QTest::addColumn<QString>("module");
        QTest::addColumn<QString>("name");
        QTest::newRow("unknown name") << testmodule::citizen() << u"unknown"_s;
        QTest::newRow("throws when it is asked") << testmodule::citizen() << u"throwscreate"_s;
        QTest::newRow("throws when it is made") << testmodule::citizen() << u"throwsnew"_s;
        QTest::newRow("throws when it is loaded") << testmodule::throwing() << u"throwing"_s;
        QTest::newRow("function of another build") << testmodule::unresolved() << u"unresolved"_s;
    }

    void noObject()
    {
        QFETCH(QString, module);
        QFETCH(QString, name);
        const ModuleBench bench;
        bench.plugin(name + u".so"_s, module);
        ExtensionFolder folder(pluginKind, bench.path());
        QVERIFY(!failure(folder, name + u".Main"_s).isEmpty());
        // Nor the next time.
        QVERIFY(!failure(folder, name + u".Main"_s).isEmpty());
    }

    /// The module's own object is the one that counts if it has no function that makes one, even if it has no members.
    void aModuleWithoutCreate()
    {
        const ModuleBench bench;
        bench.plugin(u"bare.so"_s, testmodule::bare());
        ExtensionFolder folder(pluginKind, bench.path());
        const auto object = folder.create(u"bare.Main"_s);
        QVERIFY(!endingQuietly([&] { object->text("pluginId"); }));
    }

    void noModule_data()
    {
        QTest::addColumn<QByteArray>("content");
        QFile citizen(testmodule::citizen());
        QVERIFY(citizen.open(QIODevice::ReadOnly));
        const QByteArray whole = citizen.readAll();
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("text") << QByteArray("#!/bin/sh\necho hello\n");
        QTest::newRow("cut off") << whole.left(whole.size() / 2);
        QTest::newRow("only a head") << whole.left(64);
        QTest::newRow("head and noise") << whole.left(64) + QByteArray(100'000, '\xAA');

        // Behind its mark the metadata has a version of its own and the two numbers of Qt's.
        const QByteArray mark("qt-project!\0", 12);
        const qsizetype metadata = whole.indexOf(mark) + mark.size();
        QVERIFY(whole.contains(mark));
        QCOMPARE(whole[metadata + 1], static_cast<char>(QT_VERSION_MAJOR));
        QCOMPARE(whole[metadata + 2], static_cast<char>(QT_VERSION_MINOR));
        QByteArray other = whole;
        other[metadata + 2] = 99;
        QTest::newRow("a later Qt") << other;
        other[metadata + 1] = 5;
        other[metadata + 2] = 15;
        QTest::newRow("an earlier Qt") << other;
        other = whole;
        other[metadata] = 77;
        QTest::newRow("another metadata") << other;
        other = whole;
        other[18] = '\x08'; // The processor of the file's head: a MIPS.
        other[19] = '\0';
        QTest::newRow("another processor") << other;
        other = whole;
        other.replace(mark, QByteArray("qt-project?\0", 12));
        QTest::newRow("no metadata") << other;
    }

    void noModule()
    {
        QFETCH(QByteArray, content);
        const ModuleBench bench;
        QFile file(bench.plugin(u"a.so"_s));
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        QCOMPARE(file.write(content), content.size());
        file.close();
        ExtensionFolder folder(pluginKind, bench.path());
        QVERIFY(!failure(folder, u"a.Main"_s).isEmpty());
        QVERIFY(takeLog().isEmpty());
    }

    void aModuleThatOthersCanChange()
    {
        const ModuleBench bench;
        const QString path = bench.plugin(u"a.so"_s);
        QVERIFY(QFile::setPermissions(path, QFile::permissions(path) | QFile::WriteOther));
        ExtensionFolder folder(pluginKind, bench.path());
        QCOMPARE(failure(folder, u"a.Main"_s), u"Others can change the module %1."_s.arg(path));
        QVERIFY(takeLog().isEmpty());
    }

    void aModuleThatIsRemoved()
    {
        const ModuleBench bench;
        const QString path = bench.plugin(u"a.so"_s);
        ExtensionFolder folder(pluginKind, bench.path());
        const auto object = folder.create(u"a.Main"_s);
        QVERIFY(QFile::remove(path));
        QVERIFY(!failure(folder, u"a.Main"_s).isEmpty());
        QCOMPARE(object->text("pluginId"), u"a"_s);
    }

private:
    /// Why the object can't be made; empty if it can.
    static QString failure(ExtensionFolder &folder, const QString &name)
    {
        QString reason;
        endingWith([&reason](const QString &description) { reason = description; }, [&] { folder.create(name); });
        return reason;
    }
};

ZEPHIRA_TEST(TstExtensionFolder)
#include "tst_extensionfolder.moc"
