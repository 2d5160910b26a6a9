// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugins/extensionfolder.h"
#include "plugins/extensionscan.h"
#include "plugins/modulebench.h"
#include "support/scriptedprompts.h"
#include "support/sourcefolder.h"
#include "support/testregistry.h"

#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstExtensionScan final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void plugins()
    {
        const ModuleBench bench;
        for (const QString &name : {u"b-second.so"_s, u"a-first.so"_s})
            bench.plugin(name);
        QCOMPARE(scan(bench),
                 (QStringList{u"a-first: a-first.Main"_s, u"a-first - 1.0 - A citizen"_s, u"b-second: b-second.Main"_s,
                              u"b-second - 1.0 - A citizen"_s}));
        QCOMPARE(
            takeLog(),
            (QStringList{u"new a-first"_s, u"a-first.title"_s, u"a-first.title"_s, u"a-first.version"_s,
                         u"a-first.description"_s, u"delete a-first"_s, u"new b-second"_s, u"b-second.title"_s,
                         u"b-second.title"_s, u"b-second.version"_s, u"b-second.description"_s, u"delete b-second"_s}));
    }

    void anEmptyFolder()
    {
        const ModuleBench bench;
        QCOMPARE(scan(bench), QStringList());
        QCOMPARE(m_reason, QString());
    }

    void membersAsFunctions()
    {
        const ModuleBench bench;
        bench.plugin(u"functions.so"_s);
        QCOMPARE(scan(bench), (QStringList{u"functions: functions.Main"_s, u"functions - 2 - Only functions"_s}));
    }

    /// The search ends at the first module that fails; entries that were added before stay.
    void aBadOneEndsIt_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("module");
        QTest::addColumn<bool>("hasEntry");
        QTest::addColumn<QString>("reason");
        QTest::newRow("can't be made") << u"b-unknown"_s << testmodule::citizen() << false
                                       << u"makes no object: it doesn't know the name b-unknown.Main."_s;
        QTest::newRow("throws from create") << u"b-throwscreate"_s << testmodule::citizen() << false
                                            << u"The module has raised an error: a bad citizen."_s;
        QTest::newRow("throws from its constructor") << u"b-throwsnew"_s << testmodule::citizen() << false
                                                     << u"The module has raised an error: a bad citizen."_s;
        QTest::newRow("throws while loading")
            << u"b-throwing"_s << testmodule::throwing() << false << u"The module has raised an error."_s;
        QTest::newRow("another build") << u"b-unresolved"_s << testmodule::unresolved() << false
                                       << u"undefined symbol"_s;
        QTest::newRow("neither create nor members")
            << u"b-bare"_s << testmodule::bare() << false << u"The member pluginId can't be read."_s;
        QTest::newRow("throws from its title") << u"b-throwstitle"_s << testmodule::citizen() << false
                                               << u"The module has raised an error: a bad citizen."_s;
        QTest::newRow("throws from its version") << u"b-throwsversion"_s << testmodule::citizen() << true
                                                 << u"The module has raised an error: a bad citizen."_s;
        QTest::newRow("throws from its description") << u"b-throwsdescription"_s << testmodule::citizen() << true
                                                     << u"The module has raised an error: a bad citizen."_s;
        QTest::newRow("no version") << u"b-versionless"_s << testmodule::citizen() << true
                                    << u"The member pluginversion can't be read."_s;
        QTest::newRow("no module at all") << u"b-text"_s << sourceOfThisTest() << false << u"makes no object: "_s;
    }

    void aBadOneEndsIt()
    {
        QFETCH(QString, name);
        QFETCH(QString, module);
        QFETCH(bool, hasEntry);
        const ModuleBench bench;
        bench.plugin(u"a.so"_s);
        bench.plugin(name + u".so"_s, module);
        bench.plugin(u"c.so"_s);
        QStringList expected{u"a: a.Main"_s, u"a - 1.0 - A citizen"_s};
        if (hasEntry)
            expected.append((name == u"b-versionless" ? u"versionless"_s : name) + u": "_s + name + u".Main"_s);
        QCOMPARE(scan(bench), expected);
        QVERIFY(!takeLog().contains(u"new c"_s));
        QFETCH(QString, reason);
        QVERIFY2(m_reason.startsWith(u"The search ended at %1.so. "_s.arg(name)) && m_reason.contains(reason),
                 qPrintable(m_reason));
    }

    void others()
    {
        const ModuleBench bench;
        bench.plugin(u"a.so"_s);
        QVERIFY(QFile::setPermissions(bench.path() + u"/plugins"_s, QFile::Permissions::fromInt(0x7777)));
        QCOMPARE(scan(bench), QStringList());
        QCOMPARE(m_reason,
                 u"The search ended at a.so. Others can change the module %1/plugins/a.so."_s.arg(bench.path()));
        QVERIFY(takeLog().isEmpty());
    }

    /// Each row comes above the ones before it.
    void wizards()
    {
        const ModuleBench bench;
        for (const QString &name : {u"a.so"_s, u"b.2.so"_s, u"c-throwstitle.so"_s, u"d.so"_s})
            bench.wizard(name);
        ExtensionFolder folder(wizardKind, bench.path());
        ScriptedPrompts prompts;
        QStringList rows;
        scanWizards(folder, folder.fileNames(), prompts,
                    [&rows](const QString &key, const QString &text) { rows.prepend(key + u'=' + text); });
        QCOMPARE(rows, (QStringList{u"b=b"_s, u"a=a"_s}));
        QCOMPARE(takeLog(),
                 (QStringList{u"new a"_s, u"a.title"_s, u"delete a"_s, u"new b"_s, u"b.title"_s, u"delete b"_s,
                              u"new c-throwstitle"_s, u"c-throwstitle.title"_s, u"delete c-throwstitle"_s}));
    }

    void baseNames()
    {
        ScriptedPrompts prompts;
        QCOMPARE(wizardBaseName(u"article.so"_s, prompts), u"article"_s);
        QCOMPARE(wizardBaseName(u"a.b.so"_s, prompts), u"a"_s);
        QCOMPARE(wizardBaseName(u"page.html"_s, prompts), u"page"_s);
        prompts.expectTell(u"Insert Template"_s, {}, Question::Icon::None);
        QCOMPARE(wizardBaseName(u"*.html"_s, prompts), QString());
    }

private:
    static QString sourceOfThisTest() { return sourcePath(u"tests/plugins/tst_extensionscan.cpp"_s); }

    /// What the search adds and tells.
    QStringList scan(const ModuleBench &bench)
    {
        ExtensionFolder folder(pluginKind, bench.path());
        QStringList found;
        m_reason = scanPlugins(
            folder, folder.fileNames(),
            [&found](const QString &caption, const QString &tag) { found.append(caption + u": "_s + tag); },
            [&found](const QString &text) { found.append(text); });
        return found;
    }

    /// Why the last search ended early.
    QString m_reason;
};

ZEPHIRA_TEST(TstExtensionScan)
#include "tst_extensionscan.moc"
