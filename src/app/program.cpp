// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/program.h"

#include "app/endsignals.h"
#include "app/failedstart.h"
#include "app/frmmain.h"
#include "app/sessionend.h"
#include "app/startprocedure.h"
#include "app/suddenend.h"
#include "app/windowend.h"
#include "colour/registerforms.h"
#include "commands/icons.h"
#include "commands/iconstates.h"
#include "core/clock.h"
#include "core/errorstyles.h"
#include "core/formcatalogue.h"
#include "desktop/desktopclipboard.h"
#include "desktop/desktopfiletypes.h"
#include "desktop/desktopprompts.h"
#include "desktop/desktopshell.h"
#include "desktop/desktoptranslation.h"
#include "desktop/module.h"
#include "desktop/recentfiles.h"
#include "editor/codemax.h"
#include "files/appfolder.h"
#include "files/crashreports.h"
#include "files/desktopusersettings.h"
#include "files/diskfilestore.h"
#include "files/iniconfiguration.h"
#include "files/recoverycopies.h"
#include "ftp/ftpclient.h"
#include "ftp/net/netoperations.h"
#include "ftp/registerforms.h"
#include "panes/registerforms.h"
#include "settings/registerforms.h"
#include "start/registerforms.h"
#include "tags/registerforms.h"
#include "tools/registerforms.h"
#include "tools/spelling/registerspelling.h"
#include "tools/spelling/spellcheck.h"
#include "views/registerforms.h"
#include "widgets/keptpictures.h"
#include "wizards/registerforms.h"

#include <QApplication>
#include <QDir>
#include <QLocale>
#include <QPointer>
#include <QScopeGuard>
#include <QStandardPaths>

#include <cstdlib>
#include <memory>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

QString dataHome()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
}

/// Where an installation in the system has its data, relative to the folder of the executable and its modules.
QString installedData()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + u'/' + QStringLiteral(ZEPHIRA_DATA_FOLDER));
}

/// Modules are in the executable's folder.
QString modulePath(const QString &name)
{
    return QCoreApplication::applicationDirPath() + u'/' + name;
}

/// Where the spelling check's list of names may be. A program folder that an older version filled doesn't have it.
QStringList nameFiles(const QString &appPath)
{
    QStringList files;
    for (const QString &folder : {appPath, QCoreApplication::applicationDirPath(), installedData()})
        files.append(folder + u"/deps/names.dic"_s);
    return files;
}

/// Where the program's texts in other languages may be. A program folder that an older version filled has those of that
/// version.
QStringList translationFolders()
{
    return {QCoreApplication::applicationDirPath(), installedData()};
}

/// The folder of the recovery copies, next to the per-user settings.
QString recoveryFolder()
{
    return userFolder() + u"/recovery"_s;
}

/// The file that caches icon pictures between runs.
QString iconFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) + u"/zephira/icons"_s;
}

} // namespace

Translation desktopTranslation()
{
    return Translation(DiskFileStore(), translationFolders(), QLocale::system().uiLanguages());
}

int runProgram(QApplication &application, const QString &argument)
{
    DiskFileStore files;
    const Translation translation = desktopTranslation();
    KeptPictures pictures(files, iconFile(), QCoreApplication::applicationFilePath());
    // The style is destroyed after the pictures.
    const QPointer<IconStates> style = new IconStates;
    style->setPictures(&pictures);
    const auto takeBack = qScopeGuard([style] {
        if (style)
            style->setPictures(nullptr);
    });
    QApplication::setStyle(style);
    const IconTheme theme(application);
    QApplication::setWindowIcon(keptIcon(u"zephira"_s, [] { return QIcon(u":/zephira.svg"_s); }));

    const Result<QString> appPath = prepareAppPath(QCoreApplication::applicationDirPath(), installedData(), dataHome(),
                                                   QCoreApplication::applicationVersion());
    if (!appPath)
        return tellFailedStart(appPath.error().sentence);

    makeUserFolder();
    CrashWatch crashWatch(recoveryFolder());
    const QString iniFile = appPath.value() + u"/zephira.ini"_s;
    SystemClock clock;
    RecoveryCopies recovery(recoveryFolder(), files, clock);
    IniConfiguration configuration(iniFile);
    DesktopUserSettings userSettings;
    DesktopPrompts prompts(nullptr);
    DesktopShell shell;
    DesktopClipboard clipboard;
    NetOperations ftpOperations(clock);
    DesktopFileTypes fileTypes(files,
                               {.dataHome = dataHome(),
                                .configHome = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation),
                                .executable = QCoreApplication::applicationFilePath(),
                                .icon = appPath.value() + u"/zephira.ico"_s});

    RecentFiles recentFiles(files,
                            {.dataHome = dataHome(),
                             .configHome = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation),
                             .executable = QCoreApplication::applicationFilePath()});

    const auto spelling = std::make_shared<SpellCheck>(Lexicon::Parts{
        .files = files,
        .settings = userSettings,
        .loadSpeller = [] { return loadModuleAs<Speller>(modulePath(u"zephiraspell.so"_s)); },
        .findDictionaries = [] { return dictionariesIn(dictionaryFolders()); },
        .customFile = appPath.value() + u"/custom.dic"_s,
        .nameFiles = nameFiles(appPath.value()),
    });

    FormCatalogue catalogue;
    colour::registerForms(catalogue);
    wizards::registerForms(catalogue);
    wizards::registerImageMap(catalogue, [&](QWidget *parent) -> EditorView {
        auto *editor = new CodeMax({files, recovery, prompts}, parent);
        return {editor, editor};
    });
    panes::registerForms(catalogue);
    start::registerForms(catalogue, recovery);
    ftp::registerForms(catalogue, std::make_shared<FtpClient>(FtpClient{ftpOperations}));
    tags::registerForms(catalogue);
    settings::registerForms(catalogue, fileTypes, QCoreApplication::applicationFilePath());
    const TidyEngineLoader loadTidy = [] { return loadModuleAs<TidyEngine>(modulePath(u"zephiratidy.so"_s)); };
    const AbbreviationLoader loadAbbreviations = [] {
        return loadModuleAs<AbbreviationEngine>(modulePath(u"zephiraemmet.so"_s));
    };
    tools::registerForms(catalogue, loadTidy);
    tools::registerSpelling(catalogue, spelling);
    views::registerForms(
        catalogue,
        [&](QWidget *parent) -> EditorView {
            auto *viewer = new CodeMax({files, recovery, prompts}, parent);
            viewer->setReadOnly(true);
            return {viewer, viewer};
        },
        [] { return loadModuleAs<PageFetcher>(modulePath(u"zephirafetch.so"_s)); });

    bool ended = false;
    frmmain window({.files = files,
                    .recovery = recovery,
                    .configuration = configuration,
                    .settings = userSettings,
                    .prompts = prompts,
                    .shell = shell,
                    .clipboard = clipboard,
                    .clock = clock,
                    .catalogue = catalogue,
                    .webViews = [] { return loadModuleAs<WebViews>(modulePath(u"zephiraweb.so"_s)); },
                    .spelling = *spelling,
                    .appPath = appPath.value(),
                    .iniFile = iniFile,
                    .executable = QCoreApplication::applicationFilePath(),
                    .endProcess =
                        [&ended] {
                            ended = true;
                            QCoreApplication::exit(EXIT_SUCCESS);
                        },
                    .fileUsed = [&recentFiles](const QString &path) { recentFiles.note(path); },
                    .hiddenParts = HiddenParts::AfterPicture,
                    .text = {.loadAbbreviations = loadAbbreviations, .loadTidy = loadTidy}});
    window.late().add([&crashWatch] { crashWatch.prepareCallList(); });
    const EndSignals endSignals;
    QObject::connect(&endSignals, &EndSignals::received, &window, [&window] { window.windowEnd().endNow(); });
    const SessionEnd sessionEnd(application, window.windowEnd());
    const SuddenEnd suddenEnd([&window] { window.windowEnd().keepAtSuddenEnd(); });
    int status = EXIT_SUCCESS;
    if (!endingWith([&](const QString &description) { status = tellFailedStart(description); },
                    [&] { runStartProcedure(window, argument); }))
        return status;
    // If a start dialog has ended the program, the event loop, which hasn't started yet, would not notice.
    return ended ? EXIT_SUCCESS : QApplication::exec();
}

} // namespace zephira
