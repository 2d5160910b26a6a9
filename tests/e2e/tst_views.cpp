// SPDX-License-Identifier: GPL-3.0-or-later
#include "e2e/programfolder.h"
#include "e2e/runningprogram.h"
#include "e2e/titles.h"
#include "support/testregistry.h"

#include <QFile>
#include <QFileInfo>
#include <QTest>

using namespace zephira;
using namespace zephira::titles;
using namespace Qt::StringLiterals;

namespace {

/// A page that fills the view with one colour.
QByteArray pageOf(const QByteArray &colour)
{
    return "<!DOCTYPE html>\r\n<html><head><title>t</title></head>\r\n<body bgcolor=\"" + colour
        + "\"><p>x</p></body></html>\r\n";
}

const QString previewColour = u"#12AB34"_s;
const QString designerColour = u"#3412AB"_s;

/// A page whose script runs only in the preview, which tells the two views apart.
QByteArray pageOfTwoColours()
{
    return pageOf("#3412AB").replace("</body>", "<script>document.body.bgColor = '#12AB34'</script></body>");
}

/// The running program with a page in a folder of its own.
struct PageInProgram {
    explicit PageInProgram(const QByteArray &content, const QString &name = u"site/page.html"_s)
        : file(folder.write(name, content)), program(folder, {file}), title(RunningProgram::captionOf(file))
    {}

    bool isShown() const { return program.waitForWindow(title); }
    /// Switches to the next view and waits until it shows its colour.
    bool goOn(const QString &wanted)
    {
        program.key(title, u"F8"_s);
        return program.waitForMiddleColour(title, wanted);
    }
    QString colour() const { return program.middleColour(title); }
    /// Closes the window; true if the program exited with status 0.
    bool close()
    {
        program.close(title);
        return program.waitForEnd() == 0;
    }

    ProgramFolder folder;
    QString file;
    RunningProgram program;
    QString title;
};

} // namespace

/// Preview and designer in the real program, through the module next to it.
class TstViews : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thePreviewShowsThePage()
    {
        PageInProgram page(pageOf("#12AB34"), u"site/my page.html"_s);
        QVERIFY(page.isShown());
        QVERIFY2(page.goOn(previewColour), qPrintable(page.colour()));
        const QString copy = page.file + u"temp.html"_s;
        QVERIFY(QFile::exists(copy));
        QVERIFY(page.close());
        QVERIFY(!QFile::exists(copy));
        // Nothing unrelated is printed to the terminal.
        const QList<QByteArray> lines = page.program.standardError().split('\n');
        for (const QByteArray &line : lines)
            QVERIFY2(line.isEmpty() || line.contains("running as root") || line.contains("XDG_RUNTIME_DIR"),
                     line.constData());
    }

    void whatIsTypedInTheDesignerIsSaved()
    {
        const QByteArray content = pageOfTwoColours();
        PageInProgram page(content);
        QVERIFY(page.isShown());
        QVERIFY2(page.goOn(previewColour), qPrintable(page.colour()));
        QVERIFY2(page.goOn(designerColour), qPrintable(page.colour()));
        page.program.type(page.title, u"typed here"_s);
        page.program.key(page.title, u"ctrl+s"_s);
        QTRY_VERIFY_WITH_TIMEOUT(ProgramFolder::read(page.file) != content, patience);
        const QByteArray saved = ProgramFolder::read(page.file);
        QVERIFY2(
            saved.startsWith("<!DOCTYPE html>\r\n")
                && saved.contains("<p>typed herex</p><script>document.body.bgColor = '#12AB34'</script></body></html>"),
            saved.constData());
        QVERIFY(page.close());
    }

    /// The copy for the preview has a name that others can guess.
    void aPlantedLinkLeadsThePreviewNowhere()
    {
        PageInProgram page(pageOf("#12AB34"));
        const QString outside = page.folder.write(u"outside.html"_s, "theirs");
        const QString copy = page.file + u"temp.html"_s;
        QVERIFY(QFile::link(outside, copy));
        QVERIFY(page.isShown());
        QVERIFY2(page.goOn(previewColour), qPrintable(page.colour()));
        QCOMPARE(ProgramFolder::read(outside), "theirs");
        QVERIFY(!QFileInfo(copy).isSymLink());
        QVERIFY(page.close());
    }

    /// A page in an endless script holds neither the keys nor the next preview up.
    void aPageThatHangsIsLeft()
    {
        const QByteArray hang = "<script>setTimeout(() => { while (true); }, 300)</script>";
        PageInProgram page(pageOfTwoColours().replace("</body>", hang + "</body>"));
        QVERIFY(page.isShown());
        QVERIFY2(page.goOn(previewColour), qPrintable(page.colour()));
        QTest::qWait(1000); // By now it hangs.
        QVERIFY2(page.goOn(designerColour), qPrintable(page.colour()));
        page.program.type(page.title, u"typed here"_s);
        page.program.key(page.title, u"ctrl+s"_s);
        QTRY_VERIFY_WITH_TIMEOUT(ProgramFolder::read(page.file).contains("<p>typed herex</p>"), patience);
        QVERIFY2(page.goOn(previewColour), qPrintable(page.colour()));
        QTest::qWait(1000);
        // The code view takes what is typed, and closing asks as always.
        page.program.key(page.title, u"F8 F8"_s);
        page.program.type(page.title, u"in the code "_s);
        page.program.key(page.title, u"ctrl+s"_s);
        QTRY_VERIFY_WITH_TIMEOUT(ProgramFolder::read(page.file).contains("in the code "), patience);
        QVERIFY(page.close());
    }

    void editingKeysInThePreviewLeaveTheSourceAlone()
    {
        const QByteArray content = pageOfTwoColours();
        PageInProgram page(content);
        QVERIFY(page.isShown());
        page.program.key(page.title, u"ctrl+a"_s);
        QVERIFY2(page.goOn(previewColour), qPrintable(page.colour()));
        page.program.key(page.title, u"Delete ctrl+x ctrl+v F5"_s);
        // Entering the designer would ask a question if the document had changed.
        QVERIFY2(page.goOn(designerColour), qPrintable(page.colour()));
        QCOMPARE(page.program.windows(), QStringList{page.title});
        QVERIFY(page.close());
        QCOMPARE(ProgramFolder::read(page.file), content);
    }

    /// From preview and designer as from the code; nothing of it gets into the page.
    void keysLeaveTheViews()
    {
        const QByteArray content = pageOfTwoColours();
        PageInProgram page(content);
        QVERIFY(page.isShown());
        QVERIFY2(page.goOn(previewColour), qPrintable(page.colour()));
        // Back one part, to the tabs, and on to the designer's.
        page.program.key(page.title, u"ctrl+shift+F6 Right"_s);
        QVERIFY2(page.program.waitForMiddleColour(page.title, designerColour), qPrintable(page.colour()));
        // All parts once.
        page.program.key(page.title, u"ctrl+F6 ctrl+F6 ctrl+F6 ctrl+F6 ctrl+F6 Left"_s);
        QVERIFY2(page.program.waitForMiddleColour(page.title, previewColour), qPrintable(page.colour()));
        page.program.key(page.title, u"ctrl+F6 ctrl+F6 ctrl+F6 ctrl+F6 ctrl+F6 Right"_s);
        QVERIFY2(page.program.waitForMiddleColour(page.title, designerColour), qPrintable(page.colour()));
        // Into the designer again, which takes the keys.
        page.program.key(page.title, u"ctrl+F6"_s);
        page.program.type(page.title, u"typed here"_s);
        page.program.key(page.title, u"ctrl+s"_s);
        QTRY_VERIFY_WITH_TIMEOUT(ProgramFolder::read(page.file).contains("<p>typed herex</p>"), patience);
        QVERIFY(page.close());
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
        for (const char *library : {"WebEngine", "libcurl", "zephiraweb", "zephirafetch", "libtidy", "zephiratidy",
                                    "zephiraemmet", "libQt6Qml", "libLLVM", "_dri.so"})
            QVERIFY2(!maps.contains(library), library);
    }
};

ZEPHIRA_TEST(TstViews)
#include "tst_views.moc"
