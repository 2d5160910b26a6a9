// SPDX-License-Identifier: GPL-3.0-or-later
#include "trust/savepaths.h"

#include "files/appfolder.h"
#include "files/desktopusersettings.h"
#include "files/diskfilestore.h"
#include "files/documentfile.h"
#include "files/iniconfiguration.h"
#include "files/recoverycopies.h"
#include "ftp/ftpclient.h"
#include "ftp/recordingdesk.h"
#include "ftp/recordingoperations.h"
#include "ftp/siteprofile.h"
#include "ftp/transferengine.h"
#include "panes/customtabfile.h"
#include "search/filereplacement.h"
#include "start/customtemplates.h"
#include "support/diskfiles.h"
#include "support/fakes.h"
#include "tools/textpage.h"
#include "wizards/savedtags.h"

#include <QDir>
#include <QFile>

#include <array>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

using Begin = std::function<void()>;

const QByteArray oldText = QByteArray("<p>the old text</p>\r\n").repeated(600);
const QByteArray newText = QByteArray("<p>the new text, which is longer</p>\r\n").repeated(700);
const QByteArray foreignText = QByteArray("<p>what another program wrote</p>\r\n").repeated(500);
const QByteArray nothing("<unreadable>");

QString page(const QString &folder)
{
    return folder + u"/a.htm"_s;
}

/// The contents of the recovery copies.
QByteArrayList copiesIn(const QString &folder)
{
    QByteArrayList contents;
    const QDir copies(folder + u"/recovery"_s);
    const QStringList names = copies.entryList(QDir::Files);
    for (const QString &name : names)
        contents.append(contentOf(copies.filePath(name)));
    return contents;
}

QByteArray pageState(const QString &folder)
{
    return contentOf(page(folder));
}

/// What a save of a document needs.
struct Desk {
    explicit Desk(const QString &folder) : recovery(folder + u"/recovery"_s, files, clock), document(files, recovery) {}

    bool save(const QString &path, QByteArrayView text)
    {
        TextFormat format;
        format.lineEnds = LineEnds::CrLf;
        return document.save(path, {&text, 1}, format).ok();
    }

    DiskFileStore files;
    FakeClock clock;
    RecoveryCopies recovery;
    DocumentFile document;
};

bool saveDocument(const QString &folder, const Begin &begin)
{
    Desk desk(folder);
    if (!desk.document.open(page(folder)))
        return false;
    begin();
    return desk.save(page(folder), newText);
}

/// Another program has written the file since it was opened; its text must be in the file or among the copies.
bool saveOverForeign(const QString &folder, const Begin &begin)
{
    Desk desk(folder);
    if (!desk.document.open(page(folder)))
        return false;
    putFile(page(folder), foreignText);
    begin();
    return desk.save(page(folder), newText);
}

QByteArray foreignState(const QString &folder)
{
    const QByteArray content = pageState(folder);
    if (content == newText && !copiesIn(folder).contains(foreignText))
        return "lost what another program wrote";
    return content == foreignText ? oldText : content;
}

/// A file that is torn counts as the old one as long as there is a copy of that.
QByteArray inPlaceState(const QString &folder)
{
    const QByteArray content = pageState(folder);
    return content != newText && copiesIn(folder).contains(oldText) ? oldText : content;
}

bool saveAs(const QString &folder, const Begin &begin)
{
    Desk desk(folder);
    begin();
    return desk.save(page(folder), newText);
}

bool saveOptions(const QString &folder, const Begin &begin)
{
    IniConfiguration configuration(folder + u"/zephira.ini"_s);
    begin();
    return configuration.setValues({{Setting::FontSize, u"17"_s}, {Setting::BrowserPath, u"/usr/bin/x"_s}}).ok();
}

QByteArray iniState(const QString &folder)
{
    return contentOf(folder + u"/zephira.ini"_s);
}

bool saveProfile(const QString &folder, const Begin &begin)
{
    begin();
    return writeSiteProfile({.siteName = u"New"_s,
                             .server = u"new.example.org"_s,
                             .user = u"new"_s,
                             .password = u"new word"_s,
                             .port = u"2121"_s},
                            siteProfilePath(folder, u"site"_s));
}

QByteArray profileState(const QString &folder)
{
    return contentOf(siteProfilePath(folder, u"site"_s));
}

bool saveTagSet(const QString &folder, const Begin &begin)
{
    SiteFacts facts;
    facts.description = u"new"_s;
    facts.keywords = u"new, words"_s;
    facts.author = u"New"_s;
    facts.copyright = u"New"_s;
    begin();
    return saveTags(facts, folder, u"set"_s).ok();
}

bool appendToTab(const QString &folder, const Begin &begin)
{
    DiskFileStore files;
    begin();
    return AppendToFile(files, page(folder), customTabEntry(u"Title"_s, u"<b></b>"_s)).ok();
}

/// The second copy of a document replaces the first, also under another name.
template<bool isRenamed>
bool saveRecovery(const QString &folder, const Begin &begin)
{
    Desk desk(folder);
    const QByteArrayView before = oldText;
    if (!desk.recovery.write(u"a.htm"_s, {&before, 1}))
        return false;
    begin();
    const QByteArrayView after = newText;
    return desk.recovery.write(isRenamed ? u"b.htm"_s : u"a.htm"_s, {&after, 1}).ok();
}

/// The newest whole text among the copies.
QByteArray recoveryState(const QString &folder)
{
    const QByteArrayList copies = copiesIn(folder);
    for (const QByteArray &whole : {newText, oldText}) {
        if (copies.contains(whole))
            return whole;
    }
    return copies.isEmpty() ? nothing : copies.constFirst();
}

bool firstRecovery(const QString &folder, const Begin &begin)
{
    Desk desk(folder);
    begin();
    const QByteArrayView text = newText;
    return desk.recovery.write(u"a.htm"_s, {&text, 1}).ok();
}

/// Nobody looks at a transfer.
struct Unseen final : TransferDisplay {
    void beginRun(qint64, double) override {}
    void beginFile(int, const QString &, double) override {}
    void moved(const TransferProgress &) override {}
    void endFile(const TransferProgress &) override {}
    void showAll() override {}
};

bool download(const QString &folder, const Begin &begin)
{
    RecordingOperations operations;
    operations.files[u"/pub/a.htm"_s] = newText;
    ScriptedPrompts prompts;
    prompts.onFailure = [](const QString &) {}; // Messages end in silence.
    RecordingDesk desk;
    DiskFileStore files;
    Unseen display;
    FtpClient client{operations};
    client.session.ftpOpenHandle = 1;
    client.session.ftpConnectHandle = 2;
    client.session.ftpLocalFolder = folder + u'/';
    client.session.ftpRemoteFolder = u"/pub/"_s;
    TransferEngine engine{client, files, prompts, {desk, desk, display}, [] { return 0U; }};
    begin();
    return engine.run({TransferQueue::Direction::Download, {{u"a.htm"_s, newText.size()}}})
        == TransferEngine::Outcome::Completed;
}

bool saveUserSetting(const QString &folder, const Begin &begin)
{
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder));
    DesktopUserSettings settings;
    begin();
    return settings.SaveSetting(UserSetting::ShowTips, u"new"_s);
}

QByteArray userState(const QString &folder)
{
    return contentOf(folder + u"/Zephira/Zephira.ini"_s);
}

bool replaceText(const QString &folder, const Begin &begin)
{
    Desk desk(folder);
    const ReplaceOrder order{{.pattern = u"old"_s}, u"new"_s};
    const Result<PatternSearch> search = PatternSearch::make(order.request);
    FoundFile found;
    found.path = page(folder);
    found.signature = desk.files.signature(found.path);
    const QString text = withLineFeeds(QString::fromUtf8(oldText));
    found.matches = findMatches(search.value(), text, order.replacement, 10'000, [] { return true; }).matches;
    const std::vector<bool> all(found.matches.size(), true);
    const QString run = desk.recovery.beginReplacing();
    begin();
    return replaceInFile(desk.files, desk.recovery, run, order, found, all).ok();
}

bool renameTemplate(const QString &folder, const Begin &begin)
{
    Desk desk(folder);
    begin();
    return renameCustomTemplate(desk.files, desk.recovery, folder, u"a.htm"_s, u"b.htm"_s).ok();
}

/// As long as one of the two is whole, nothing is lost.
QByteArray templateState(const QString &folder)
{
    const QByteArray from = pageState(folder);
    const QByteArray to = contentOf(folder + u"/b.htm"_s);
    if (from == oldText && (to == nothing || to == oldText))
        return oldText;
    return from == nothing && to == oldText ? QByteArray("renamed") : from + to;
}

bool makePage(const QString &folder, const Begin &begin)
{
    DiskFileStore files;
    begin();
    return writeTextPage(files, folder + u"/in.txt"_s, page(folder), {}).ok();
}

bool fillAppFolder(const QString &folder, const Begin &begin)
{
    begin();
    return prepareAppPath(folder + u"/bin"_s, folder + u"/share"_s, folder + u"/home"_s, u"1"_s).ok();
}

/// A folder that has its configuration has all the rest, and each file in it is whole.
QByteArray appFolderState(const QString &folder)
{
    const QString made = folder + u"/home/zephira/"_s;
    const QByteArray ini = contentOf(made + u"zephira.ini"_s);
    const QByteArray data = contentOf(made + u"tags.dat"_s);
    if ((data != nothing && data != newText) || (ini != nothing && data != newText))
        return "torn";
    return ini == nothing ? QByteArray("begun") : ini;
}

void oldPage(const QString &folder)
{
    putFile(page(folder), oldText);
}

void noFile(const QString &) {}

std::vector<SavePath> makeSavePaths()
{
    const auto ini = [](const QString &name) {
        return [name](const QString &folder) {
            putFile(folder + u'/' + name,
                    "; kept\r\n[options]\r\nfontsize=10\r\n" + QByteArray("x=1\r\n").repeated(900));
        };
    };
    return {
        {"document", oldPage, saveDocument, pageState},
        {"document that another program wrote", oldPage, saveOverForeign, foreignState},
        {"document with two names",
         [](const QString &folder) {
             oldPage(folder);
             if (::link(QFile::encodeName(page(folder)).constData(),
                        QFile::encodeName(folder + u"/second.htm"_s).constData())
                 != 0)
                 qFatal("can't link");
         },
         saveDocument, inPlaceState},
        {"save as, a new file", noFile, saveAs, pageState},
        {"save as, an existing file", oldPage, saveAs, pageState},
        {"options", ini(u"zephira.ini"_s), saveOptions, iniState},
        {"options, none yet", noFile, saveOptions, iniState},
        {"site profile",
         [](const QString &folder) {
             writeSiteProfile({.siteName = u"Old"_s,
                               .server = u"old.example.org"_s,
                               .user = u"old"_s,
                               .password = u"old word"_s,
                               .port = u"21"_s},
                              siteProfilePath(folder, u"site"_s));
         },
         saveProfile, profileState},
        {"site profile, a new one", noFile, saveProfile, profileState},
        {"tag set",
         [](const QString &folder) {
             SiteFacts facts;
             facts.description = u"old"_s;
             facts.keywords = u"old, words"_s;
             static_cast<void>(saveTags(facts, folder, u"set"_s));
         },
         saveTagSet, [](const QString &folder) { return contentOf(folder + u"/set.smt"_s); }},
        {"custom tab", oldPage, appendToTab, pageState},
        {"recovery copy, the first", noFile, firstRecovery, recoveryState},
        {"recovery copy", noFile, saveRecovery<false>, recoveryState},
        {"recovery copy, renamed", noFile, saveRecovery<true>, recoveryState},
        {"download", oldPage, download, pageState},
        {"download, a new file", noFile, download, pageState},
        {"user settings",
         [](const QString &folder) {
             putFile(folder + u"/Zephira/Zephira.ini"_s,
                     "[x]\n" + QByteArray("key=value\n").repeated(1) + "[y]\ntips=old\n");
         },
         saveUserSetting, userState},
        {"user settings, none yet", noFile, saveUserSetting, userState},
        {"replacing in files", oldPage, replaceText, pageState},
        {"template's new name", oldPage, renameTemplate, templateState},
        {"page made of a text",
         [](const QString &folder) {
             oldPage(folder);
             putFile(folder + u"/in.txt"_s, "some\ntext\n");
         },
         makePage, pageState},
        {"folder of the user's data",
         [](const QString &folder) {
             putFile(folder + u"/share/tags.dat"_s, newText);
             putFile(folder + u"/share/zephira.ini"_s, "[options]\r\n");
         },
         fillAppFolder, appFolderState, true},
    };
}

} // namespace

const std::vector<SavePath> &savePaths()
{
    static const std::vector<SavePath> all = makeSavePaths();
    return all;
}

} // namespace zephira
