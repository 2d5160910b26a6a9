// SPDX-License-Identifier: GPL-3.0-or-later
#include "layers/layerrules.h"
#include "support/sourcefolder.h"
#include "support/testregistry.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

constexpr auto licence = "// SPDX-License-Identifier: GPL-3.0-or-later\n"_L1;

/// The folders of tests that have no counterpart in the sources, because they test all of them or help to.
const QRegularExpression testsOfTheWhole(u"^(data|e2e|forms|fuzz|layers|probes|scripts|soak|support|trust)$"_s);

/// The folders below `root` that build something, however deep, relative to it.
QStringList foldersWithTargets(const QDir &root)
{
    QStringList result;
    QDirIterator files(root.path(), {u"CMakeLists.txt"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString folder = root.relativeFilePath(QFileInfo(files.next()).path());
        if (folder != u"."_s)
            result.append(folder);
    }
    return result;
}

} // namespace

/// The rules for the sources, checked on every source, and on small examples that break them.
class TstLayers final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTableNamesEachFolder()
    {
        QStringList named = folders();
        named.sort();
        QCOMPARE(named, QDir(sourcePath(u"src"_s)).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name));
    }

    void noArrowPointsUp()
    {
        QStringList above;
        const QStringList all = folders();
        for (const QString &folder : all) {
            const QStringList below = foldersBelow(folder);
            for (const QString &other : below)
                QVERIFY2(above.contains(other), qPrintable(folder + u" includes "_s + other));
            above.append(folder);
        }
    }

    void foldersStaySmall()
    {
        const QStringList all = folders();
        for (const QString &folder : all) {
            qsizetype lines = 0;
            QDirIterator files(sourcePath(u"src/"_s) + folder, {u"*.h"_s, u"*.cpp"_s}, QDir::Files,
                               QDirIterator::Subdirectories);
            while (files.hasNext()) {
                QFile file(files.next());
                QVERIFY(file.open(QIODevice::ReadOnly));
                lines += file.readAll().count('\n');
            }
            QVERIFY2(lines > 0 && lines < maximumFolderLines, qPrintable(u"%1 has %2 lines"_s.arg(folder).arg(lines)));
        }
    }

    /// Whoever looks for a file by its name finds one. Only the registration of forms is the same thing in each folder.
    void noTwoFilesHaveOneName()
    {
        QSet<QString> names;
        QDirIterator files(sourcePath(u"src"_s), {u"*.h"_s, u"*.cpp"_s}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString path = files.next();
            const QString name = files.fileName();
            QVERIFY2(!names.contains(name) || name.startsWith(u"registerforms."), qPrintable(path));
            names.insert(name);
        }
        QVERIFY(names.size() > 50);
    }

    void testsMirrorTheSources()
    {
        const QDir sources(sourcePath(u"src"_s));
        const QDir tests(sourcePath(u"tests"_s));
        const QStringList ours = foldersWithTargets(sources);
        QVERIFY(ours.contains(u"ftp/net"_s));
        for (const QString &folder : ours)
            QVERIFY2(tests.exists(folder + u"/CMakeLists.txt"_s), qPrintable(folder + u" has no tests"_s));
        const QStringList theirs = foldersWithTargets(tests);
        for (const QString &folder : theirs)
            QVERIFY2(ours.contains(folder) || folder.contains(testsOfTheWhole),
                     qPrintable(u"the sources have no folder "_s + folder));
    }

    void eachTestLiesBesideWhatItTests()
    {
        const QDir tests(sourcePath(u"tests"_s));
        const QStringList folders = foldersWithTargets(tests);
        int found = 0;
        QStringList strangers;
        for (const QString &folder : folders) {
            if (folder.contains(testsOfTheWhole))
                continue;
            const QDir place(tests.filePath(folder));
            // A folder without a library of its own belongs to the one above it.
            const QRegularExpression own(u"^#include \"(%1(?:/\\w+)?)/\\w+\\.h\""_s.arg(folder),
                                         QRegularExpression::MultilineOption);
            const auto isOwn = [&](const QRegularExpressionMatch &header) {
                return header.captured(1) == folder || !folders.contains(header.captured(1));
            };
            const QStringList files = place.entryList({u"tst_*.cpp"_s}, QDir::Files);
            for (const QString &name : files) {
                QFile file(place.filePath(name));
                QVERIFY(file.open(QIODevice::ReadOnly));
                const QString text = QString::fromUtf8(file.readAll());
                QRegularExpressionMatchIterator headers = own.globalMatch(text);
                bool any = false;
                while (headers.hasNext() && !any)
                    any = isOwn(headers.next());
                if (!any)
                    strangers.append(folder + u'/' + name);
                ++found;
            }
        }
        QVERIFY(found > 100);
        QVERIFY2(strangers.isEmpty(), qPrintable(u"these include nothing of their folder: "_s + strangers.join(u' ')));
    }

    void logicLinksLogic()
    {
        const QDir root(sourcePath(u"src"_s));
        QStringList broken;
        QDirIterator files(root.path(), {u"CMakeLists.txt"_s}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            QVERIFY(file.open(QIODevice::ReadOnly));
            broken += linkViolations(root.relativeFilePath(file.fileName()), QString::fromUtf8(file.readAll()));
        }
        QVERIFY2(broken.isEmpty(), qPrintable(broken.join(u'\n')));
    }

    void linkRules_data()
    {
        QTest::addColumn<QString>("cmake");
        QTest::addColumn<QString>("violation");
        QTest::newRow("logic on logic") << u"zephira_logic(a_logic SOURCES\n  a.cpp\n  LINK core b_logic)"_s
                                        << QString();
        QTest::newRow("core alone") << u"zephira_logic(core SOURCES a.h)"_s << QString();
        QTest::newRow("core with logic") << u"\nzephira_logic(core SOURCES a.h LINK a_logic)"_s
                                         << u"a/CMakeLists.txt:2: core doesn't link a_logic"_s;
        QTest::newRow("logic on forms") << u"zephira_logic(a_logic SOURCES a.h LINK core panes)"_s
                                        << u"a/CMakeLists.txt:1: a_logic doesn't link panes"_s;
        QTest::newRow("logic on widgets") << u"zephira_logic(a_logic SOURCES a.h LINK Qt6::Widgets)"_s
                                          << u"a/CMakeLists.txt:1: a_logic doesn't link Qt6::Widgets"_s;
        QTest::newRow("forms on widgets") << u"zephira_forms(a SOURCES a.h LINK Qt6::Svg)"_s << QString();
    }

    void linkRules()
    {
        QFETCH(QString, cmake);
        QTEST(linkViolations(u"a/CMakeLists.txt"_s, cmake).join(u'\n'), "violation");
    }

    void sourcesKeepTheRules()
    {
        const QString root = sourcePath(u"src"_s);
        const Layers layers = readLayers(root);
        int sources = 0;
        QStringList broken;
        QDirIterator files(root, {u"*.h"_s, u"*.cpp"_s}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            QVERIFY(file.open(QIODevice::ReadOnly));
            broken +=
                violations(QDir(root).relativeFilePath(file.fileName()), QString::fromUtf8(file.readAll()), layers);
            ++sources;
        }
        QVERIFY(sources > 50);
        QVERIFY2(broken.isEmpty(), qPrintable(broken.join(u'\n')));
    }

    void knowsLogicAndForms_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("isLogic");
        QTest::addColumn<bool>("isForm");
        QTest::newRow("a logic header") << u"wizards/tablemarkup.h"_s << true << false;
        QTest::newRow("a logic source") << u"wizards/tablemarkup.cpp"_s << true << false;
        QTest::newRow("one of a subfolder") << u"ftp/net/socket.cpp"_s << true << false;
        QTest::newRow("one in a variable") << u"commands/menutable.cpp"_s << true << false;
        QTest::newRow("a form") << u"wizards/frmtables.h"_s << false << true;
        QTest::newRow("a widget") << u"wizards/sizepicker.h"_s << false << false;
    }

    void knowsLogicAndForms()
    {
        QFETCH(QString, path);
        const Layers layers = readLayers(sourcePath(u"src"_s));
        QTEST(layers.logicFiles.contains(path), "isLogic");
        QTEST(layers.formHeaders.contains(path), "isForm");
    }

    void rules_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("violation");
        const auto row = [](const char *name, const QString &path, const QString &code, const QString &violation) {
            QTest::newRow(name) << path << code << violation;
        };
        row("logic with widgets", u"wizards/markup.cpp"_s, u"#include <QtWidgets/QWidget>\n"_s,
            u"wizards/markup.cpp:2: logic includes no more than Qt Core"_s);
        row("logic with a module", u"wizards/markup.cpp"_s, u"#include <QtGui>\n"_s,
            u"wizards/markup.cpp:2: logic includes no more than Qt Core"_s);
        row("logic with Qt Core", u"wizards/markup.cpp"_s, u"#include <QtCore/QString>\n#include <QtMath>\n"_s, {});
        row("a form with widgets", u"wizards/frma.cpp"_s, u"#include <QtWidgets/QWidget>\n"_s, {});
        row("another folder's form", u"app/main.cpp"_s, u"\n#include \"wizards/frma.h\"\n"_s,
            u"app/main.cpp:3: no folder includes another one's form"_s);
        row("a form of one's own", u"wizards/registerforms.cpp"_s, u"#include \"wizards/frma.h\"\n"_s, {});
        row("the editing widget", u"app/a.cpp"_s, u"#include <Qsci/qsciscintilla.h>\n"_s,
            u"app/a.cpp:2: only editor includes QScintilla"_s);
        row("the editing widget at home", u"editor/a.cpp"_s, u"#include <Qsci/qsciscintilla.h>\n"_s, {});
        row("the web engine", u"views/a.cpp"_s, u"#include <QWebEngineView>\n"_s,
            u"views/a.cpp:2: only web includes the web engine"_s);
        row("the program from below", u"panes/a.cpp"_s, u"#include \"app/program.h\"\n"_s,
            u"panes/a.cpp:2: panes includes nothing of app"_s);
        row("a folder next to it", u"panes/a.cpp"_s, u"#include \"views/a.h\"\n"_s,
            u"panes/a.cpp:2: panes includes nothing of views"_s);
        row("a folder that nobody knows", u"panes/a.cpp"_s, u"#include \"other/a.h\"\n"_s,
            u"panes/a.cpp:2: panes includes nothing of other"_s);
        row("from a folder that nobody knows", u"other/a.cpp"_s, u"#include \"core/a.h\"\n"_s,
            u"other/a.cpp:2: other includes nothing of core"_s);
        row("a folder below", u"panes/a.cpp"_s, u"#include \"core/a.h\"\n#include \"ui_a.h\"\n"_s, {});
        row("one's own subfolder", u"ftp/a.cpp"_s, u"#include \"ftp/net/a.h\"\n"_s, {});
        row("the program itself", u"app/a.cpp"_s, u"#include \"app/program.h\"\n"_s, {});
        row("curl", u"app/a.cpp"_s, u"#include <curl/curl.h>\n"_s,
            u"app/a.cpp:2: only the web viewer's fetch includes libcurl"_s);
        row("a socket", u"ftp/a.cpp"_s, u"#include <netinet/in.h>\n"_s,
            u"ftp/a.cpp:2: only the file transfer opens sockets"_s);
        row("a socket at home", u"ftp/net/a.cpp"_s, u"#include <sys/socket.h>\n"_s, {});
        row("a message box", u"app/a.cpp"_s, u"int a;\nvoid f() { QMessageBox::about(nullptr, {}, {}); }\n"_s,
            u"app/a.cpp:3: only desktop uses the dialog classes"_s);
        row("a message box in words", u"app/a.cpp"_s, u"// A QMessageBox\nconst char *a = \"QFileDialog\";\n"_s, {});
        row("a message box at home", u"desktop/a.cpp"_s, u"QMessageBox box;\nint i = box.exec();\n"_s, {});
        row("running a dialog", u"app/a.cpp"_s, u"int i = dialog.exec();\n"_s,
            u"app/a.cpp:2: only the form opener runs a dialog"_s);
        row("running a pointer's dialog", u"app/a.cpp"_s, u"int i = m_form->exec();\n"_s,
            u"app/a.cpp:2: only the form opener runs a dialog"_s);
        row("running oneself", u"app/a.cpp"_s, u"void F::f() { exec(); }\n"_s,
            u"app/a.cpp:2: only the form opener runs a dialog"_s);
        row("running as a base class", u"app/a.cpp"_s, u"void F::f() { QDialog::exec(); }\n"_s,
            u"app/a.cpp:2: only the form opener runs a dialog"_s);
        row("running the program, a loop and a menu", u"app/a.cpp"_s,
            u"int i = QApplication::exec() + loop.exec() + m_menu->exec() + application.exec();\n"_s, {});
        row("names that hold the word", u"app/a.cpp"_s, u"void f() { designer.execCommand(1); executive(); }\n"_s, {});
        row("the opener", u"desktop/modalformopener.cpp"_s, u"int i = dialog->exec();\n"_s, {});
        row("a file", u"panes/a.cpp"_s, u"#include <QFile>\nQFile file(path);\n"_s,
            u"panes/a.cpp:3: only files opens files"_s);
        row("a file behind a pointer", u"panes/a.cpp"_s, u"auto f = std::make_unique<QFile>(path);\n"_s,
            u"panes/a.cpp:2: only files opens files"_s);
        row("a store of one's own", u"web/a.cpp"_s, u"auto content = DiskFileStore().read(path);\n"_s,
            u"web/a.cpp:2: only files opens files"_s);
        row("a stream", u"panes/a.cpp"_s, u"std::ofstream out(path);\n"_s, u"panes/a.cpp:2: only files opens files"_s);
        row("a file of the system's", u"panes/a.cpp"_s, u"int f = ::open(path, 0);\n"_s,
            u"panes/a.cpp:2: only files opens files"_s);
        row("a file of C's", u"panes/a.cpp"_s, u"FILE *f = fopen(path, mode);\n"_s,
            u"panes/a.cpp:2: only files opens files"_s);
        row("a folder for a time", u"panes/a.cpp"_s, u"QTemporaryDir folder;\n"_s,
            u"panes/a.cpp:2: only files opens files"_s);
        row("settings of one's own", u"panes/a.cpp"_s, u"#include <QSettings>\nQSettings settings(path);\n"_s,
            u"panes/a.cpp:3: only files opens files"_s);
        row("settings at home", u"files/a.cpp"_s, u"QSettings settings(path);\n"_s, {});
        row("a lock", u"start/a.cpp"_s, u"QLockFile lock(path);\n"_s, u"start/a.cpp:2: only files opens files"_s);
        row("a copied file", u"panes/a.cpp"_s, u"bool done = QFile::copy(a, b);\n"_s,
            u"panes/a.cpp:2: only files opens files"_s);
        row("a picture by its name", u"views/a.cpp"_s, u"QImageReader reader(path);\n"_s,
            u"views/a.cpp:2: a picture is read from bytes"_s);
        row("a picture of bytes", u"views/a.cpp"_s,
            u"QImageReader reader(&buffer);\nint a = QImageReader::allocationLimit();\n"_s, {});
        row("a film", u"views/a.cpp"_s, u"#include <QMovie>\nQMovie film(device);\n"_s,
            u"views/a.cpp:3: a picture is read from bytes"_s);
        row("a pixmap by its name", u"views/a.cpp"_s, u"QPixmap pixmap(m_context.appPath + u\"/a.png\"_s);\n"_s,
            u"views/a.cpp:2: a picture is read from bytes"_s);
        row("an image by its name", u"views/a.cpp"_s, u"const auto image = QImage(fileName);\n"_s,
            u"views/a.cpp:2: a picture is read from bytes"_s);
        row("a loaded pixmap", u"views/a.cpp"_s, u"m_pixmap.load(path);\n"_s,
            u"views/a.cpp:2: a picture is read from bytes"_s);
        row("a painted picture", u"views/a.cpp"_s,
            u"QPixmap pixmap(size * ratio);\nQImage image(side, side, QImage::Format_RGB32);\n"
            u"QPixmap inFile(const QString &path);\n"_s,
            {});
        row("an icon by its name", u"settings/a.cpp"_s,
            u"const QIcon icon = there ? QIcon(picture) : windowIcon();\n"_s,
            u"settings/a.cpp:2: an icon isn't read from a file"_s);
        row("an icon of a resource", u"settings/a.cpp"_s, u"QIcon icon{u\":/a.svg\"_s};\n"_s,
            u"settings/a.cpp:2: an icon isn't read from a file"_s);
        row("the icon of the program", u"app/program.cpp"_s, u"QIcon icon{u\":/a.svg\"_s};\n"_s, {});
        row("an icon's file", u"settings/a.cpp"_s, u"icon.addFile(path);\n"_s,
            u"settings/a.cpp:2: an icon isn't read from a file"_s);
        row("icons of other things", u"settings/a.cpp"_s,
            u"QIcon a(new Engine);\nQIcon b(pixmap);\nQIcon c = ok ? QIcon() : QIcon(m_icon);\n"
            u"QIcon iconFor(const QString &name);\nQIcon shape(QStringView name);\nstd::function<QIcon(int)> made;\n"_s,
            {});
        row("a file at home", u"files/a.cpp"_s, u"QFile file(path);\n"_s, {});
        row("names of files", u"panes/a.cpp"_s,
            u"#include <QFile>\nbool there = QFile::exists(path) && QDialog::open();\n"_s, {});
        row("an error caught by hand", u"app/a.cpp"_s,
            u"void f() { try { g(); } catch (const HandlerError &error) {} }\n"_s,
            u"app/a.cpp:2: only the error styles catch errors"_s);
        row("an error caught at home", u"core/errorstyles.cpp"_s,
            u"void f() { try { g(); } catch (HandlerError &) {} }\n"_s, {});
        row("a header twice", u"app/a.h"_s, u"int a;\n"_s, u"app/a.h:1: a header is included once"_s);
        row("a thousand lines", u"app/a.cpp"_s, QString(999, u'\n'), {});
        row("more lines", u"app/a.cpp"_s, QString(1000, u'\n'),
            u"app/a.cpp:1001: no source has more than 1000 lines"_s);
    }

    void rules()
    {
        QFETCH(QString, path);
        QFETCH(QString, code);
        const Layers layers{{u"wizards/markup.cpp"_s}, {u"wizards/frma.h"_s}};
        QTEST(violations(path, licence + code, layers).join(u'\n'), "violation");
    }

    void theFirstLineNamesTheLicence()
    {
        QCOMPARE(violations(u"app/a.cpp"_s, u"int a;\n"_s, {}),
                 QStringList{u"app/a.cpp:1: the first line names the licence"_s});
    }

    void codeIsWhatIsCompiled_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("code");
        QTest::newRow("line comment") << u"a; // b\nc"_s << u"a; \nc"_s;
        QTest::newRow("comment over lines") << u"a /* b\nc */ d"_s << u"a \n d"_s;
        QTest::newRow("string") << u"a(\"b \\\" // c\", 'd')"_s << u"a(, )"_s;
        QTest::newRow("raw string") << u"a(uR\"x(b\n\" )\" c)x\"); d"_s << u"a(u\n); d"_s;
    }

    void codeIsWhatIsCompiled()
    {
        QFETCH(QString, text);
        QTEST(codeOf(text), "code");
    }
};

ZEPHIRA_TEST(TstLayers)

#include "tst_layers.moc"
