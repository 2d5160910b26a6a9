// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/pluginmenu.h"
#include "app/windowbench.h"
#include "plugins/modulebench.h"
#include "support/actionwalk.h"
#include "support/testregistry.h"
#include "widgets/filelistbox.h"

#include <QComboBox>
#include <QMenu>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace zephira;

/// Plug-ins in the real window: their menu, and what a run does to the document.
class TstPluginMenu final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { takeLog(); }

    void withoutPlugins()
    {
        WindowBench bench;
        bench.start();
        QCOMPARE(entries(bench), QStringList{u"mnupluginoptions_0 No Plugins Installed (closed)"_s});
        QCOMPARE(bench.window->plugins().count(), 0);
    }

    void twoPlugins()
    {
        WindowBench bench;
        install(bench, u"b.so"_s);
        install(bench, u"a.so"_s);
        bench.start();
        QCOMPARE(entries(bench), (QStringList{u"mnupluginoptions_0 a a.Main"_s, u"mnupluginoptions_1 b b.Main"_s}));
        QCOMPARE(bench.window->plugins().count(), 2);
        QVERIFY(bench.find<QMenu>(u"mnuplugins"_s)->isEnabled());
        QCOMPARE(faultsOf(actionsOf(*bench.find<QMenu>(u"mnuplugins"_s))), QStringList());
        const auto *files = bench.find<FileListBox>(u"filePlugin"_s);
        QCOMPARE(files->path(), bench.appPath() + u"/plugins"_s);
        QCOMPARE(files->pattern(), u"*.so"_s);
        QVERIFY(!files->isVisible());
        QCOMPARE(bench.find<QMenu>(u"mnuplugins"_s)->menuAction()->statusTip(), QString());
        QVERIFY(!bench.window->docModified());
    }

    /// The entry of a plug-in without a version stays; the files behind it aren't looked at.
    void aBadOneInTheMiddle()
    {
        WindowBench bench;
        for (const QString &name : {u"a.so"_s, u"b-versionless.so"_s, u"c.so"_s})
            install(bench, name);
        bench.start();
        QCOMPARE(
            entries(bench),
            (QStringList{u"mnupluginoptions_0 a a.Main"_s, u"mnupluginoptions_1 versionless b-versionless.Main"_s}));
        QCOMPARE(bench.find<QMenu>(u"mnuplugins"_s)->menuAction()->statusTip(),
                 u"The search ended at b-versionless.so. The member pluginversion can't be read."_s);
    }

    /// While the hidden parts wait for the first picture, so do the plug-ins.
    void theyComeAfterThePicture()
    {
        WindowBench bench;
        bench.hiddenParts = HiddenParts::AfterPicture;
        install(bench, u"a.so"_s);
        bench.start();
        QCOMPARE(bench.window->plugins().count(), 0);
        bench.window->late().finish();
        QCOMPARE(bench.window->plugins().count(), 1);
    }

    void theTextComesBehindTheSelection()
    {
        WindowBench bench;
        install(bench, u"plain.so"_s);
        CodeMax &rt = bench.start().rt();
        rt.setText(u"one two three"_s);
        rt.select({0, 4, 0, 7});
        bench.choose(u"mnupluginoptions_0"_s);
        QCOMPARE(rt.text(), u"one two[plain] three"_s);
        QCOMPARE(bench.find<QComboBox>(u"cboLang"_s)->currentIndex(), 8);
        QVERIFY(bench.window->docModified());
        // One step takes it back.
        rt.undo();
        QCOMPARE(rt.text(), u"one two three"_s);
    }

    void eachEntryRunsItsOwn()
    {
        WindowBench bench;
        install(bench, u"a.so"_s);
        install(bench, u"b-works.so"_s);
        CodeMax &rt = bench.start().rt();
        bench.choose(u"mnupluginoptions_1"_s);
        bench.choose(u"mnupluginoptions_0"_s);
        QCOMPARE(rt.text(), u"[b-works][a]"_s);
    }

    void whatARunLeaves_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("language");
        QTest::newRow("nothing to say") << u"silent"_s << u"text"_s << 4;
        QTest::newRow("throws") << u"throwsstart"_s << u"text"_s << 4;
        QTest::newRow("throws its text") << u"throwstext"_s << u"text"_s << 4;
        QTest::newRow("throws its language") << u"throwslanguage"_s << u"text[throwslanguage]"_s << 4;
        QTest::newRow("vanishes") << u"vanishes"_s << u"text"_s << 4;
        QTest::newRow("throws from an event") << u"throwsevent"_s << u"text"_s << 4;
        QTest::newRow("a language too far") << u"farlanguage"_s << u"text[farlanguage]"_s << 4;
        QTest::newRow("a negative language") << u"minuslanguage"_s << u"text[minuslanguage]"_s << 4;
    }

    void whatARunLeaves()
    {
        QFETCH(QString, name);
        WindowBench bench;
        install(bench, name + u".so"_s);
        CodeMax &rt = bench.start().rt();
        rt.setText(u"text"_s);
        rt.select({0, 4, 0, 4});
        bench.window->context().document.setLanguageRow(4);
        bench.choose(u"mnupluginoptions_0"_s);
        QTEST(rt.text(), "text");
        QTEST(bench.find<QComboBox>(u"cboLang"_s)->currentIndex(), "language");
        // The window goes on working.
        rt.setSelText(u"!"_s);
        QVERIFY(rt.text().endsWith(u'!'));
    }

    /// While an endless plug-in runs, the user goes on writing, and then closes the window.
    void theWindowLivesAndEnds()
    {
        WindowBench bench;
        install(bench, u"endless.so"_s);
        CodeMax &rt = bench.start().rt();
        bench.window->show();
        QString typed;
        QTimer::singleShot(20, &rt, [&] {
            QTest::keyClicks(rt.focusProxy() ? rt.focusProxy() : &rt, u"abc"_s);
            typed = rt.text();
        });
        QTimer::singleShot(60, bench.window.get(), [&] {
            bench.prompts.expect({u"Document: \n\nThis document has been modified.\nDo you wish to save?"_s,
                                  u"Document Modified."_s, Question::Icon::Question, Question::Buttons::YesNoCancel},
                                 Answer::No);
            bench.window->close();
        });
        bench.choose(u"mnupluginoptions_0"_s);
        QCOMPARE(typed, u"abc"_s);
        QCOMPARE(rt.text(), u"abc"_s);
        QCOMPARE(bench.ended, 1);
    }

    /// A second plug-in delivers while the first one waits; the first one has lost its place.
    void aSecondRun()
    {
        WindowBench bench;
        install(bench, u"a-endless.so"_s);
        install(bench, u"b.so"_s);
        CodeMax &rt = bench.start().rt();
        QTimer::singleShot(20, &rt, [&] { bench.choose(u"mnupluginoptions_1"_s); });
        bench.choose(u"mnupluginoptions_0"_s);
        QCOMPARE(rt.text(), u"[b]"_s);
    }

    void aPluginThatWasRemoved()
    {
        WindowBench bench;
        const QString path = install(bench, u"a.so"_s);
        CodeMax &rt = bench.start().rt();
        QVERIFY(QFile::remove(path));
        bench.choose(u"mnupluginoptions_0"_s);
        QCOMPARE(rt.text(), QString());
        QVERIFY(bench.find<QAction>(u"mnupluginoptions_0"_s)->isEnabled());
    }

    void theShippedPlugin()
    {
        WindowBench bench;
        install(bench, u"filler.so"_s, testmodule::filler());
        CodeMax &rt = bench.start().rt();
        QCOMPARE(entries(bench), QStringList{u"mnupluginoptions_0 Filler Text filler.Main"_s});
        bench.choose(u"mnupluginoptions_0"_s);
        bench.choose(u"mnupluginoptions_0"_s);
        QCOMPARE(rt.text().count(u"<p>"_s), 2);
        QCOMPARE(rt.text().count(u"</p>\r\n"_s), 2);
        QCOMPARE(bench.find<QComboBox>(u"cboLang"_s)->currentIndex(), 1);
    }

private:
    static QString install(const WindowBench &bench, const QString &fileName,
                           const QString &module = testmodule::citizen())
    {
        return installModule(bench.appPath(), u"plugins"_s, fileName, module);
    }

    static QStringList entries(const WindowBench &bench)
    {
        QStringList lines;
        const QList<QAction *> actions = bench.find<QMenu>(u"mnuplugins"_s)->actions();
        for (const QAction *action : actions) {
            const QString tag = action->isEnabled() ? action->data().toString() : u"(closed)"_s;
            lines.append(action->objectName() + u' ' + action->text() + u' ' + tag);
        }
        return lines;
    }
};

ZEPHIRA_TEST(TstPluginMenu)
#include "tst_pluginmenu.moc"
