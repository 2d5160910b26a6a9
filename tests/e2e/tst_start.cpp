// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/configuration.h"
#include "e2e/programfolder.h"
#include "e2e/runningprogram.h"
#include "e2e/titles.h"
#include "support/sourcefolder.h"
#include "support/testregistry.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QSettings>
#include <QTest>

#include <sys/inotify.h>
#include <unistd.h>

using namespace zephira;
using namespace zephira::titles;
using namespace Qt::StringLiterals;

namespace {

const QString tip = u"Tip of the Day"_s;
const QString chooser = u"Select Template"_s;

/// Counts how often files are opened, by whomever.
class OpenCounter
{
public:
    explicit OpenCounter(const QStringList &paths) : m_file(inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
    {
        for (const QString &path : paths)
            m_watches += inotify_add_watch(m_file, QFile::encodeName(path).constData(), IN_OPEN) >= 0;
    }
    ~OpenCounter() { ::close(m_file); }
    Q_DISABLE_COPY_MOVE(OpenCounter)

    /// How many of the files are watched.
    int watches() const { return m_watches; }
    /// How many openings there were since the last call.
    int count() const
    {
        int opened = 0;
        inotify_event event;
        while (::read(m_file, &event, sizeof event) == sizeof event)
            ++opened;
        return opened;
    }

private:
    const int m_file;
    int m_watches = 0;
};

} // namespace

/// The dialogs at the start, the options that only print, and starts that fail, with the real program.
class TstStart : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void table_data()
    {
        QTest::addColumn<QString>("argument");
        QTest::addColumn<bool>("tips");
        QTest::addColumn<QString>("selprj");
        QTest::addColumn<QStringList>("dialogs"); // One after the other, each closed with Escape.
        const QString file = u"FILE"_s;
        QTest::newRow("nodialog, all on") << u"/nodialog"_s << true << u"1"_s << QStringList{};
        QTest::newRow("nodialog, all off") << u"/nodialog"_s << false << u"0"_s << QStringList{};
        QTest::newRow("empty, start dialog alone") << u""_s << false << u"1"_s << QStringList{chooser};
        QTest::newRow("empty, nothing") << u""_s << false << u"0"_s << QStringList{};
        QTest::newRow("file, tips off") << file << false << u"1"_s << QStringList{};
        QTest::newRow("empty, tip before start dialog") << u""_s << true << u"1"_s << QStringList{tip, chooser};
        QTest::newRow("empty, tip alone") << u""_s << true << u"0"_s << QStringList{tip};
        QTest::newRow("file, a tip but no start dialog") << file << true << u"1"_s << QStringList{tip};
    }

    void table()
    {
        QFETCH(QString, argument);
        QFETCH(bool, tips);
        QFETCH(QString, selprj);
        QFETCH(QStringList, dialogs);
        ProgramFolder folder;
        folder.setTips(tips);
        folder.setIni(u"startup"_s, u"selprj"_s, selprj);
        QString title = untitled;
        if (argument == u"FILE"_s) {
            argument = folder.write(u"site/my page.html"_s, "<p>x</p>\n");
            title = u"Zephira - ["_s + argument + u']';
        }
        RunningProgram program(folder, argument.isEmpty() ? QStringList() : QStringList(argument));
        for (const QString &dialog : std::as_const(dialogs)) {
            QCOMPARE(program.waitForWindows({title, dialog}), sorted({title, dialog}));
            program.key(dialog, u"Escape"_s);
        }
        QCOMPARE(program.waitForWindows({title}), QStringList{title});
        program.close(title);
        QCOMPARE(program.waitForEnd(), 0);
        QCOMPARE(program.standardOutput(), QByteArray());
    }

    void withoutADisplayOneSentenceSaysSo()
    {
        ProgramFolder folder;
        RunningProgram program(folder, {}, {u"env"_s, u"-u"_s, u"WAYLAND_DISPLAY"_s, u"DISPLAY=:none"_s});
        QCOMPARE(program.waitForEnd(), 1);
        QCOMPARE(program.standardOutput(), QByteArray());
        QCOMPARE(program.standardError(),
                 QByteArray("Zephira can't start: there is no display to show its window on.\n"));
    }

    void theFirstStartShowsTheStartDialog()
    {
        ProgramFolder folder;
        const QString settings = folder.path() + u"/zephira.ini"_s;
        QVERIFY(QFile::remove(settings));
        QVERIFY(QFile::copy(sourcePath(u"data/zephira.ini"_s), settings));
        RunningProgram program(folder, {});
        QCOMPARE(program.waitForWindows({untitled, chooser}), sorted({untitled, chooser}));
    }

    /// Each reading of a setting that opened the file anew would be seen here.
    void theConfigurationIsReadOnce()
    {
        ProgramFolder folder;
        folder.setTips(false);
        folder.setIni(u"startup"_s, u"selprj"_s, u"0"_s);
        QFile ini(folder.ini());
        QVERIFY(ini.open(QIODevice::ReadWrite));
        QVERIFY(ini.setFileTime(QDateTime::currentDateTime().addDays(-1), QFileDevice::FileModificationTime));
        ini.close();
        const OpenCounter opened({folder.ini()});
        RunningProgram program(folder, {});
        QCOMPARE(program.waitForWindows({untitled}), QStringList{untitled});
        program.close(untitled);
        QCOMPARE(program.waitForEnd(), 0);
        const int times = opened.count();
        QVERIFY(times >= 1);
        QVERIFY2(times <= 2, qPrintable(QString::number(times))); // Once for the folder, once for the settings.
    }

    /// Their pictures are kept from the start before.
    void theSecondStartLooksForNoIcons()
    {
        ProgramFolder folder;
        // Copies in the program's own home, which come first: programs of other tests open the system's at the same time.
        QStringList indexes;
        for (const QString &theme : {u"breeze"_s, u"breeze-dark"_s, u"hicolor"_s}) {
            const QString system = u"/usr/share/icons/%1/index.theme"_s.arg(theme);
            const QString own = folder.home() + u"/.local/share/icons/%1/index.theme"_s.arg(theme);
            QVERIFY(QDir().mkpath(QFileInfo(own).path()));
            if (QFile::copy(system, own))
                indexes.append(own);
        }
        folder.setTips(false);
        folder.setIni(u"startup"_s, u"selprj"_s, u"0"_s);
        const OpenCounter opened(indexes);
        QCOMPARE(opened.watches(), indexes.size());
        const auto run = [&folder] {
            RunningProgram program(folder, {});
            QCOMPARE(program.waitForWindows({untitled}), QStringList{untitled});
            program.close(untitled);
            QCOMPARE(program.waitForEnd(), 0);
        };
        run();
        QVERIFY(opened.count() > 0);
        run();
        QCOMPARE(opened.count(), 0);
    }

    /// In the desktop's list of recent files, where other programs have entries too.
    void anOpenedFileIsListedAsRecent()
    {
        ProgramFolder folder;
        folder.setTips(false);
        const QByteArray entry = "<bookmark href=\"file:///other.txt\" modified=\"2020-01-01T00:00:00Z\"/>";
        const QString list = folder.write(u"home/.local/share/recently-used.xbel"_s, "<xbel>" + entry + "</xbel>");
        const QString file = folder.write(u"my page.html"_s, "x");
        RunningProgram program(folder, {file});
        const QString title = RunningProgram::captionOf(file);
        QCOMPARE(program.waitForWindows({title}), QStringList{title});
        QTRY_VERIFY_WITH_TIMEOUT(ProgramFolder::read(list).contains("/my%20page.html\""), patience);
        const QByteArray text = ProgramFolder::read(list);
        QVERIFY2(text.startsWith("<xbel>" + entry), text.constData());
        QVERIFY2(text.contains("<mime:mime-type type=\"text/html\"/>"), text.constData());
        QVERIFY2(text.contains("name=\"Zephira\" exec=\"'" + folder.executable().toUtf8() + " %f'\""),
                 text.constData());
    }

    /// Whoever opens a file and leaves at once finds it in the list as well.
    void aShortVisitIsListedAsRecent()
    {
        ProgramFolder folder;
        const QString file = folder.write(u"page.html"_s, "x");
        RunningProgram program(folder, {file});
        const QString title = RunningProgram::captionOf(file);
        QVERIFY(program.waitForWindow(title));
        program.close(title);
        QCOMPARE(program.waitForEnd(), 0);
        const QString list = folder.home() + u"/.local/share/recently-used.xbel"_s;
        QVERIFY(ProgramFolder::read(list).contains("/page.html\""));
        QCOMPARE(QFileInfo(list).permissions() & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
    }

    /// A second start has a window of its own, whatever the first one shows.
    void aSecondStartWithAFileOpensAWindow()
    {
        ProgramFolder folder;
        const QString file = folder.write(u"page.html"_s, "x");
        const QString title = RunningProgram::captionOf(file);
        RunningProgram first(folder, {file});
        QCOMPARE(first.waitForWindows({title}), QStringList{title});
        const QString other = folder.write(u"other.html"_s, "y");
        const QString otherTitle = RunningProgram::captionOf(other);
        RunningProgram second(folder, {other});
        QCOMPARE(second.waitForWindows({otherTitle}), QStringList{otherTitle});
        QCOMPARE(first.windows(), QStringList{title});
        QVERIFY(first.isRunning());
    }

    void theDesktopsLanguage_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("find"); // The title of a dialog whose texts aren't fixed.
        QTest::addColumn<QByteArray>("help");
        QTest::addColumn<bool>("opened"); // The file of the translation.
        QTest::newRow("German") << u"de_AT.UTF-8"_s << u"Suchen"_s << QByteArray("Aufruf: zephira ") << true;
        QTest::newRow("English") << u"en_GB.UTF-8"_s << u"Find"_s << QByteArray("Usage: zephira ") << false;
        QTest::newRow("another") << u"tlh_QX.UTF-8"_s << u"Find"_s << QByteArray("Usage: zephira ") << false;
    }

    void theDesktopsLanguage()
    {
        QFETCH(QString, language);
        QFETCH(QString, find);
        QFETCH(QByteArray, help);
        ProgramFolder folder;
        const QStringList wrapper{u"env"_s, u"LC_ALL="_s + language, u"LANGUAGE="_s};
        {
            RunningProgram program(folder, {u"--help"_s}, wrapper);
            QCOMPARE(program.waitForEnd(), 0);
            const QByteArray text = program.standardOutput();
            QVERIFY2(text.startsWith(help), text.constData());
        }
        const OpenCounter opened({folder.path() + u"/translations/zephira_de.qm"_s});
        QCOMPARE(opened.watches(), 1);
        RunningProgram program(folder, {u"/nodialog"_s}, wrapper);
        QCOMPARE(program.waitForWindows({untitled}), QStringList{untitled});
        program.key(untitled, u"ctrl+f"_s);
        QVERIFY(program.waitForWindow(find));
        program.key(find, u"Escape"_s);
        program.close(untitled);
        QCOMPARE(program.waitForEnd(), 0);
        QTEST(opened.count() > 0, "opened");
    }

    void severalWordsAreOneName()
    {
        ProgramFolder folder;
        const QString file = folder.write(u"my own page.html"_s, "x");
        RunningProgram program(folder, file.split(u' '));
        const QString title = u"Zephira - ["_s + file + u']';
        QCOMPARE(program.waitForWindows({title}), QStringList{title});
    }

    void aNameThatIsNotThereLeavesAnEmptyDocument_data()
    {
        QTest::addColumn<QString>("argument");
        QTest::newRow("missing") << u"/nowhere/at all.html"_s;
        QTest::newRow("quoted") << u"\"QUOTED\""_s;
        QTest::newRow("case of nodialog") << u"/NODIALOG"_s;
    }

    void aNameThatIsNotThereLeavesAnEmptyDocument()
    {
        QFETCH(QString, argument);
        ProgramFolder folder;
        argument.replace(u"QUOTED"_s, folder.write(u"page.html"_s, "x"));
        RunningProgram program(folder, {argument});
        QCOMPARE(program.waitForWindows({untitled}), QStringList{untitled});
        program.close(untitled);
        QCOMPARE(program.waitForEnd(), 0);
    }

    void informationEndsBeforeAnythingElse_data()
    {
        QTest::addColumn<QString>("argument");
        QTest::addColumn<QByteArray>("begin");
        QTest::newRow("version") << u"--version"_s << QByteArray("Zephira 2.1.0\n");
        QTest::newRow("help") << u"--help"_s << QByteArray("Usage: zephira ");
    }

    void informationEndsBeforeAnythingElse()
    {
        QFETCH(QString, argument);
        QFETCH(QByteArray, begin);
        ProgramFolder folder;
        QVERIFY(QFile::remove(folder.ini())); // Not even the settings are read.
        RunningProgram program(folder, {argument});
        QCOMPARE(program.waitForEnd(), 0);
        QVERIFY(program.standardOutput().startsWith(begin));
        QVERIFY(!QFileInfo::exists(folder.home() + u"/.cache/zephira"_s));
    }

    void aMissingNumberEndsTheStart_data()
    {
        QTest::addColumn<QString>("section");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("value");
        QTest::newRow("rootsel missing") << u"Startup"_s << u"rootsel"_s << u""_s;
        QTest::newRow("highlight not a number") << u"options"_s << u"highlight"_s << u"yes"_s;
        QTest::newRow("a colour") << u"Colors"_s << u"clr17fnt"_s << u"blue"_s;
    }

    void aMissingNumberEndsTheStart()
    {
        QFETCH(QString, section);
        QFETCH(QString, key);
        QFETCH(QString, value);
        ProgramFolder folder;
        folder.setIni(section, key, value);
        RunningProgram program(folder, {u"/nodialog"_s});
        QCOMPARE(program.waitForWindows({u"Zephira"_s}), QStringList{u"Zephira"_s});
        program.key(u"Zephira"_s, u"Return"_s);
        QCOMPARE(program.waitForEnd(), 1);
        const QString message = QString::fromUtf8(program.standardError());
        QVERIFY2(message.contains(u'"' + key + u'"'), qPrintable(message));
        QVERIFY2(message.contains(u'[' + section + u']', Qt::CaseInsensitive), qPrintable(message));
        QVERIFY2(message.contains(folder.ini()), qPrintable(message));
    }

    void aMissingDataFileEndsTheStart()
    {
        ProgramFolder folder;
        QVERIFY(QFile::remove(folder.path() + u"/deps/csssel.dat"_s));
        RunningProgram program(folder, {u"/nodialog"_s});
        QCOMPARE(program.waitForWindows({u"Zephira"_s}), QStringList{u"Zephira"_s});
        program.key(u"Zephira"_s, u"Return"_s);
        QCOMPARE(program.waitForEnd(), 1);
        QVERIFY(program.standardError().contains("csssel.dat"));
    }

    void theScratchFolderIsMadeForTheUserAlone()
    {
        ProgramFolder folder;
        RunningProgram program(folder, {u"/nodialog"_s});
        QCOMPARE(program.waitForWindows({untitled}), QStringList{untitled});
        const QFileInfo scratch(folder.home() + u"/.cache/zephira/scratch"_s);
        QVERIFY(scratch.isDir());
        QCOMPARE(scratch.permissions() & ~(QFile::ReadUser | QFile::WriteUser | QFile::ExeUser),
                 QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    void twoProcessesShareTheSettings()
    {
        ProgramFolder folder;
        RunningProgram first(folder, {u"/nodialog"_s});
        QCOMPARE(first.waitForWindows({untitled}), QStringList{untitled});
        RunningProgram second(folder, {u"/nodialog"_s});
        QCOMPARE(second.waitForWindows({untitled}), QStringList{untitled});
        QVERIFY(first.isRunning());
    }

    void theProgramFolderIsRecorded()
    {
        ProgramFolder folder;
        RunningProgram program(folder, {u"/nodialog"_s});
        QCOMPARE(program.waitForWindows({untitled}), QStringList{untitled});
        const QSettings settings(folder.home() + u"/.config/Zephira/Zephira.ini"_s, QSettings::IniFormat);
        QCOMPARE(settings.value(u"Zephira/data/apppath"_s).toString(), folder.path());
        QCOMPARE(settings.value(u"Zephira/data/version"_s).toString(), u"210"_s);
    }

    /// Looking names up takes an eighth of the time until the first picture, so their most frequent places come first.
    void namesAreLookedUpWhereMostOfThemAre()
    {
        const ProgramFolder folder;
        QProcess loader;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"LD_TRACE_LOADED_OBJECTS"_s, u"1"_s); // It lists the libraries instead of starting.
        loader.setProcessEnvironment(environment);
        loader.start(folder.executable(), QStringList());
        QVERIFY(loader.waitForFinished());
        QStringList libraries;
        for (const QByteArray &line : loader.readAllStandardOutput().split('\n')) {
            if (line.contains("=>"))
                libraries.append(QString::fromUtf8(line.trimmed().split('.').constFirst()));
        }
        const QStringList first = {u"libQt6Core"_s, u"libstdc++"_s, u"libQt6Gui"_s, u"libQt6Widgets"_s, u"libc"_s};
        QCOMPARE(libraries.first(first.size()), first);
    }

private:
    static QStringList sorted(QStringList list)
    {
        list.sort();
        return list;
    }
};

ZEPHIRA_TEST(TstStart)
#include "tst_start.moc"
