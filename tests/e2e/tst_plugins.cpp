// SPDX-License-Identifier: GPL-3.0-or-later
#include "e2e/programfolder.h"
#include "e2e/runningprogram.h"
#include "e2e/titles.h"
#include "plugins/modulebench.h"
#include "support/testregistry.h"

#include <QFile>
#include <QTest>

using namespace zephira;
using namespace zephira::titles;
using namespace Qt::StringLiterals;

namespace {

const QString chooser = u"Select Template"_s;
const QString articleForm = u"Article Page"_s;
/// The first entry of the menu to the left of Help.
const QString firstPlugin = u"alt+h Left Return"_s;

} // namespace

/// Plug-ins and start wizards in the real program: the shipped ones, and bad ones beside them.
class TstPlugins final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theShippedPlugin()
    {
        const ProgramFolder folder;
        const QString path = folder.write(u"page.html"_s, "<h1>Bees</h1>\r\n");
        const QString caption = RunningProgram::captionOf(path);
        RunningProgram program(folder, {path});
        QVERIFY(program.waitForWindow(caption));
        program.key(caption, u"ctrl+End "_s + firstPlugin);
        program.key(caption, u"ctrl+s"_s);
        QTRY_VERIFY_WITH_TIMEOUT(ProgramFolder::read(path).contains("</p>"), patience);
        QVERIFY(ProgramFolder::read(path).startsWith("<h1>Bees</h1>\r\n<p>The first train"));
        program.close(caption);
        QCOMPARE(program.waitForEnd(), 0);
    }

    void theShippedWizard()
    {
        const ProgramFolder folder;
        folder.setIni(u"Startup"_s, u"selprj"_s, u"1"_s);
        RunningProgram program(folder, {});
        QVERIFY(program.waitForWindow(chooser));
        // Backwards from the first page to the last one, and into its list.
        program.key(chooser, u"ctrl+shift+Tab Tab Home Return"_s);
        QVERIFY(program.waitForWindow(articleForm));
        program.type(articleForm, u"Bees"_s);
        program.key(articleForm, u"Return"_s);
        QCOMPARE(program.waitForWindows({untitled}), QStringList{untitled});
        const QString path = folder.place(u"article.html"_s);
        program.key(untitled, u"ctrl+s"_s);
        program.fillIn(saveDialog, path);
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(path), patience);
        QVERIFY(ProgramFolder::read(path).contains("<h1>Bees</h1>"));
    }

    /// An endless plug-in leaves the window to its user, who writes, saves and closes it.
    void anEndlessPlugin()
    {
        const ProgramFolder folder;
        installModule(folder.path(), u"plugins"_s, u"a-endless.so"_s);
        const QString path = folder.write(u"page.html"_s, "before");
        const QString caption = RunningProgram::captionOf(path);
        RunningProgram program(folder, {path});
        QVERIFY(program.waitForWindow(caption));
        program.key(caption, firstPlugin);
        program.key(caption, u"ctrl+Home x ctrl+s"_s);
        QTRY_COMPARE_WITH_TIMEOUT(ProgramFolder::read(path), "xbefore", patience);
        program.close(caption);
        QCOMPARE(program.waitForEnd(), 0);
    }

    void badOnesDoNotStopTheProgram_data()
    {
        QTest::addColumn<QString>("module");
        QTest::addColumn<QString>("name");
        QTest::newRow("throws") << testmodule::citizen() << u"a-throwsnew.so"_s;
        QTest::newRow("throws while loading") << testmodule::throwing() << u"a-throwing.so"_s;
        QTest::newRow("another build") << testmodule::unresolved() << u"a-unresolved.so"_s;
        QTest::newRow("no create") << testmodule::bare() << u"a-bare.so"_s;
        QTest::newRow("vanishes") << testmodule::citizen() << u"a-vanishes.so"_s;
        QTest::newRow("throws from an event") << testmodule::citizen() << u"a-throwsevent.so"_s;
    }

    /// A bad module is chosen, if it has an entry; then the user writes and saves.
    void badOnesDoNotStopTheProgram()
    {
        QFETCH(QString, module);
        QFETCH(QString, name);
        const ProgramFolder folder;
        installModule(folder.path(), u"plugins"_s, name, module);
        const QString path = folder.write(u"page.html"_s, "before");
        const QString caption = RunningProgram::captionOf(path);
        RunningProgram program(folder, {path});
        QVERIFY(program.waitForWindow(caption));
        program.key(caption, firstPlugin);
        program.key(caption, u"Escape Escape ctrl+Home x ctrl+s"_s);
        QTRY_COMPARE_WITH_TIMEOUT(ProgramFolder::read(path), "xbefore", patience);
        program.close(caption);
        QCOMPARE(program.waitForEnd(), 0);
    }
};

ZEPHIRA_TEST(TstPlugins)
#include "tst_plugins.moc"
