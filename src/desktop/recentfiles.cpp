// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/recentfiles.h"

#include "core/filestore.h"
#include "desktop/recentlist.h"
#include "files/folderlock.h"
#include "files/privateprofile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QRegularExpression>
#include <QUrl>

#include <algorithm>
#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace zephira {

namespace {

/// The window's first picture and what follows it come first.
constexpr auto delay = 1s;
/// In bytes. A list that is larger isn't one of files that somebody remembers.
constexpr qint64 largestList = qint64{16} * 1024 * 1024;
/// For others that are writing the list. The end of the program waits no longer than that.
constexpr auto longestWait = 2s;
constexpr int ownerOnly = 0600;

/// The type by the name alone, because the file may have gone meanwhile.
QString mimeTypeOf(const QString &path)
{
    const QMimeType type = QMimeDatabase().mimeTypeForFile(path, QMimeDatabase::MatchExtension);
    return type.isDefault() ? u"text/plain"_s : type.name();
}

bool isFalse(const std::optional<QString> &value)
{
    return value && (*value == u"0" || value->compare(u"false"_s, Qt::CaseInsensitive) == 0);
}

bool isWanted(const FileStore &files, const QString &configHome)
{
    return std::ranges::none_of(
        QStringList{u"/gtk-3.0/settings.ini"_s, u"/gtk-4.0/settings.ini"_s, u"/kdeglobals"_s},
        [&](const QString &name) { return forbidsRecentFiles(files.read(configHome + name).valueOr({})); });
}

} // namespace

bool forbidsRecentFiles(QByteArrayView settings)
{
    return isFalse(profileValue(settings, u"Settings"_s, u"gtk-recent-files-enabled"_s))
        || profileValue(settings, u"Settings"_s, u"gtk-recent-files-max-age"_s) == u"0"_s
        || isFalse(profileValue(settings, u"RecentDocuments"_s, u"UseRecent"_s));
}

QString recentCommand(const QString &executable)
{
    static const QRegularExpression plain(uR"(^[\w/.+-]+$)"_s);
    const auto quoted = [](QString text) { return u'\'' + text.replace(u'\'', u"'\\''"_s) + u'\''; };
    const QString program = QString(executable).replace(u'%', u"%%"_s);
    return quoted((plain.match(program).hasMatch() ? program : quoted(program)) + u" %f"_s);
}

RecentFiles::RecentFiles(FileStore &files, Places places) : m_files(files), m_places(std::move(places))
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(delay);
    connect(&m_timer, &QTimer::timeout, this, &RecentFiles::begin);
}

RecentFiles::~RecentFiles()
{
    if (m_writing.valid())
        m_writing.wait();
    if (!m_uses.isEmpty())
        write(m_files, m_places, m_uses);
}

void RecentFiles::note(const QString &path)
{
    m_uses.append({path, QDateTime::currentDateTime()});
    if (!m_timer.isActive())
        m_timer.start();
}

void RecentFiles::begin()
{
    if (m_writing.valid() && m_writing.wait_for(0s) != std::future_status::ready) {
        m_timer.start();
        return;
    }
    m_writing = std::async(std::launch::async, &RecentFiles::write, std::ref(m_files), m_places,
                           std::exchange(m_uses, QList<Use>()));
}

/// Nothing that goes wrong here is the user's business: the list is a convenience.
void RecentFiles::write(FileStore &files, const Places &places, const QList<Use> &uses)
{
    if (!isWanted(files, places.configHome))
        return;
    const QString path = places.dataHome + u"/recently-used.xbel"_s;
    QDir().mkpath(places.dataHome);
    const FolderLock lock(QFile::encodeName(places.dataHome), longestWait);
    if (!lock.isHeld())
        return;
    // Programs that know nothing of the lock may write between reading and writing; then it is done once more.
    constexpr int attempts = 5;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        const FileSignature before = files.signature(path);
        if (before.size > largestList)
            return;
        const Result<QByteArray> content = before.exists ? files.read(path) : Result<QByteArray>(QByteArray());
        if (!content)
            return;
        QByteArray list = content.value();
        for (const Use &use : uses) {
            if (!QFileInfo(use.path).isFile())
                continue;
            const Result<QByteArray> next =
                withRecentUse(list,
                              {.address = QString::fromLatin1(
                                   QUrl::fromLocalFile(QFileInfo(use.path).absoluteFilePath()).toEncoded()),
                               .mimeType = mimeTypeOf(use.path),
                               .program = u"Zephira"_s,
                               .command = recentCommand(places.executable),
                               .time = use.time},
                              maximum);
            if (!next)
                return;
            list = next.value();
        }
        if (list == content.value())
            return;
        if (files.signature(path) == before) {
            static_cast<void>(files.write(path, list, ownerOnly));
            return;
        }
    }
}

} // namespace zephira
