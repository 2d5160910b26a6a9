// SPDX-License-Identifier: GPL-3.0-or-later
#include "e2e/programfolder.h"
#include "e2e/runningprogram.h"
#include "e2e/titles.h"
#include "support/testregistry.h"

#include <QFile>
#include <QTest>

using namespace zephira;
using namespace zephira::titles;
using namespace Qt::StringLiterals;

namespace {

/// A page that fills the view with one colour.
QByteArray pageOf(const QByteArray &colour)
{
    return "<!DOCTYPE html>\r\n<html><head><title>t</title></head>\r\n<body bgcolor=\"" + colour + "\"><p>x</p></body></html>\r\n";
}

const QString previewColour = u"#12AB34"_s;
const QString designerColour = u"#3412AB"_s;

/// A page whose script runs in the preview alone, which tells the two views apart.
QByteArray pageOfTwoColours()
{
    return pageOf("#3412AB").replace("</body>", "<script>document.body.bgColor = '#12AB34'</script></body>");
}

} // namespace

/// Preview and designer in the real program, through the module that lies beside it.
class TstViews : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thePreviewShowsThePage()
    {
        ProgramFolder folder;
        const QString file = folder.write(u"site/my page.html"_s, pageOf("#12AB34"));
        RunningProgram program(folder, {file});
        const QString title = RunningProgram::captionOf(file);
        QVERIFY(program.waitForWindow(title));
        program.key(title, u"F8"_s);
        QVERIFY2(program.waitForMiddleColour(title, u"#12AB34"_s), qPrintable(program.middleColour(title)));
        const QString copy = file + u"temp.html"_s;
        QVERIFY(QFile::exists(copy));
        program.close(title);
        QCOMPARE(program.waitForEnd(), 0);
        QVERIFY(!QFile::exists(copy));
        // The terminal is told nothing but what concerns it.
        for (const QByteArray &line : program.standardError().split('\n'))
            QVERIFY2(line.isEmpty() || line.contains("superuser") || line.contains("XDG_RUNTIME_DIR"), line.constData());
    }

    void whatIsTypedInTheDesignerIsSaved()
    {
        ProgramFolder folder;
        const QByteArray page = pageOfTwoColours();
        const QString file = folder.write(u"site/page.html"_s, page);
        RunningProgram program(folder, {file});
        const QString title = RunningProgram::captionOf(file);
        QVERIFY(program.waitForWindow(title));
        program.key(title, u"F8"_s);
        QVERIFY2(program.waitForMiddleColour(title, previewColour), qPrintable(program.middleColour(title)));
        program.key(title, u"F8"_s);
        QVERIFY2(program.waitForMiddleColour(title, designerColour), qPrintable(program.middleColour(title)));
        program.type(title, u"typed here"_s);
        program.key(title, u"ctrl+s"_s);
        QTRY_VERIFY_WITH_TIMEOUT(ProgramFolder::read(file) != page, patience);
        const QByteArray saved = ProgramFolder::read(file);
        QVERIFY2(saved.startsWith("<!DOCTYPE html>\r\n") && saved.contains("<p>typed herex</p><script>document.body.bgColor = '#12AB34'</script></body></html>"),
                 saved.constData());
        program.close(title);
        QCOMPARE(program.waitForEnd(), 0);
    }

    void editingKeysInThePreviewLeaveTheSourceAlone()
    {
        ProgramFolder folder;
        const QByteArray page = pageOfTwoColours();
        const QString file = folder.write(u"site/page.html"_s, page);
        RunningProgram program(folder, {file});
        const QString title = RunningProgram::captionOf(file);
        QVERIFY(program.waitForWindow(title));
        program.key(title, u"ctrl+a F8"_s);
        QVERIFY2(program.waitForMiddleColour(title, previewColour), qPrintable(program.middleColour(title)));
        program.key(title, u"Delete ctrl+x ctrl+v F5"_s);
        program.key(title, u"F8"_s); // Which asks where the document has changed.
        QVERIFY2(program.waitForMiddleColour(title, designerColour), qPrintable(program.middleColour(title)));
        QCOMPARE(program.windows(), QStringList{title});
        program.close(title);
        QCOMPARE(program.waitForEnd(), 0);
        QCOMPARE(ProgramFolder::read(file), page);
    }

    void withoutTheModuleTheProgramSaysSoAndGoesOn()
    {
        ProgramFolder folder;
        QVERIFY(QFile::remove(folder.path() + u"/zephiraweb.so"_s));
        const QString file = folder.write(u"page.html"_s, "x");
        RunningProgram program(folder, {file});
        const QString title = RunningProgram::captionOf(file);
        QVERIFY(program.waitForWindow(title));
        program.key(title, u"F8"_s);
        program.answer(message, u"Return"_s);
        QVERIFY(program.waitUntilGone(message));
        QVERIFY(program.isRunning());
        program.close(title);
        QCOMPARE(program.waitForEnd(), 0);
    }

    void theStartBringsNoEngineAlong()
    {
        ProgramFolder folder;
        RunningProgram program(folder, {u"/nodialog"_s});
        QVERIFY(program.waitForWindow(untitled));
        const QByteArray maps = ProgramFolder::read(u"/proc/%1/maps"_s.arg(program.pid()));
        QVERIFY(maps.contains("libQt6Widgets"));
        for (const char *library : {"WebEngine", "libcurl", "zephiraweb", "zephirafetch", "libLLVM", "_dri.so"})
            QVERIFY2(!maps.contains(library), library);
    }
};

ZEPHIRA_TEST(TstViews)
#include "tst_views.moc"
