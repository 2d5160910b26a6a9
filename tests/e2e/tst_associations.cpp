// SPDX-License-Identifier: GPL-3.0-or-later
#include "e2e/programfolder.h"
#include "e2e/runningprogram.h"
#include "e2e/titles.h"
#include "files/iniconfiguration.h"
#include "support/testregistry.h"

#include <QDirIterator>
#include <QTest>

using namespace zephira;
using namespace zephira::titles;
using namespace Qt::StringLiterals;

namespace {

const QString associations = u"File Associations - Zephira."_s;
const QString openIt = u"alt+o s"_s;
const QString ours = u"zephira-filetypes.desktop"_s;

/// What the user's desktop answers.
QString defaultOf(const ProgramFolder &folder, const QString &type)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"HOME"_s, folder.home());
    environment.insert(u"XDG_CONFIG_HOME"_s, folder.home() + u"/.config"_s);
    environment.insert(u"XDG_DATA_HOME"_s, folder.home() + u"/.local/share"_s);
    QProcess tool;
    tool.setProcessEnvironment(environment);
    tool.start(u"/usr/bin/xdg-mime"_s, {u"query"_s, u"default"_s, type});
    if (!tool.waitForFinished(patience) || tool.exitCode() != 0)
        return u"<xdg-mime failed>"_s;
    return QString::fromUtf8(tool.readAllStandardOutput()).trimmed();
}

/// All files of the user.
QStringList userFiles(const ProgramFolder &folder)
{
    QStringList files;
    QDirIterator walk(folder.home(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (walk.hasNext())
        files.append(walk.next().mid(folder.home().size() + 1));
    files.sort();
    return files;
}

} // namespace

/// Which program the desktop opens files with, before and after the window of the file associations.
class TstAssociations final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thereAndBack()
    {
        const ProgramFolder folder;
        const QByteArray entry = "[Desktop Entry]\nType=Application\nName=Other\nExec=/bin/true %f\nMimeType=";
        const QByteArray list = "# mine\n[Default Applications]\ntext/plain=notes.desktop\ntext/html=browser.desktop\n";
        const QString listFile = folder.write(u"home/.config/mimeapps.list"_s, list);
        folder.write(u"home/.local/share/applications/notes.desktop"_s, entry + "text/plain;\n");
        folder.write(u"home/.local/share/applications/browser.desktop"_s, entry + "text/html;\n");
        QCOMPARE(defaultOf(folder, u"text/plain"_s), u"notes.desktop"_s);
        QCOMPARE(defaultOf(folder, u"text/html"_s), u"browser.desktop"_s);

        // HTML and text.
        RunningProgram program(folder, {u"/nodialog"_s});
        QVERIFY(program.waitForWindow(untitled));
        program.key(untitled, openIt);
        program.answer(associations, u"space Tab space alt+o"_s);
        QVERIFY(program.waitUntilGone(associations));
        QVERIFY(program.waitUntilIdle());
        QCOMPARE(defaultOf(folder, u"text/plain"_s), ours);
        QCOMPARE(defaultOf(folder, u"text/html"_s), u"browser.desktop"_s);
        QVERIFY(ProgramFolder::read(listFile).contains("\ntext/html=zephira-filetypes.desktop;\n"));
        QCOMPARE(ReadIni(u"regdata"_s, u"HTML_Files"_s, folder.path() + u"/reg.ini"_s), u"1"_s);
        QCOMPARE(ReadIni(u"regdata"_s, u"Text_Files"_s, folder.path() + u"/reg.ini"_s), u"1"_s);
        QCOMPARE(ReadIni(u"regdata"_s, u"XML_Files"_s, folder.path() + u"/reg.ini"_s), u"0"_s);
        const QStringList bound = userFiles(folder);
        QVERIFY(bound.contains(u".local/share/applications/"_s + ours));

        // Cancel changes nothing.
        program.key(untitled, openIt);
        program.answer(associations, u"space Tab space alt+c"_s);
        QVERIFY(program.waitUntilGone(associations));
        QCOMPARE(userFiles(folder), bound);

        // And back again.
        program.key(untitled, openIt);
        program.answer(associations, u"space Tab space alt+o"_s);
        QVERIFY(program.waitUntilGone(associations));
        QVERIFY(program.waitUntilIdle());
        QCOMPARE(defaultOf(folder, u"text/plain"_s), u"notes.desktop"_s);
        QCOMPARE(defaultOf(folder, u"text/html"_s), u"browser.desktop"_s);
        QCOMPARE(ProgramFolder::read(listFile), list);
        QVERIFY(!userFiles(folder).contains(u".local/share/applications/"_s + ours));
        QCOMPARE(ReadIni(u"regdata"_s, u"HTML_Files"_s, folder.path() + u"/reg.ini"_s), u"0"_s);
        program.close(untitled);
        QCOMPARE(program.waitForEnd(), 0);
    }

    void aTypeOfTheUsersOwn()
    {
        const ProgramFolder folder;
        RunningProgram program(folder, {u"/nodialog"_s});
        QVERIFY(program.waitForWindow(untitled));
        program.key(untitled, openIt);
        QVERIFY(program.waitForWindow(associations));
        program.key(associations, u"Tab Tab Tab Tab Tab Tab Tab Tab"_s);
        program.type(associations, u"zzz"_s);
        program.key(associations, u"Tab"_s);
        program.type(associations, u"Sleepy file"_s);
        program.key(associations, u"Tab"_s);
        program.type(associations, u"Wake it up"_s);
        program.key(associations, u"Tab Tab space Return"_s);
        program.answer(message, u"Return"_s);
        QVERIFY(program.waitUntilGone(message));
        QCOMPARE(defaultOf(folder, u"application/x-zephira-zzz"_s), ours);
        QVERIFY(ProgramFolder::read(folder.home() + u"/.local/share/mime/globs"_s)
                    .contains("application/x-zephira-zzz:*.zzz"));
        program.key(associations, u"Escape"_s);
        QVERIFY(program.waitUntilGone(associations));
        QVERIFY(!QFile::exists(folder.path() + u"/reg.ini"_s));
        program.close(untitled);
        QCOMPARE(program.waitForEnd(), 0);
    }
};

ZEPHIRA_TEST(TstAssociations)
#include "tst_associations.moc"
