// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/desktopfiletypes.h"

#include "core/filestore.h"
#include "desktop/associationrecord.h"
#include "desktop/filetypedesktop.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

#include <algorithm>
#include <chrono>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// The desktop entry of this program for the types. It isn't that of a package, whose file it must not hide.
const QString entryName = u"zephira-filetypes.desktop"_s;

/// Runs one of the desktop's tools, if it is installed, and returns what it writes. A name that is searched for in the
/// user's path might be anybody's.
QByteArray run(const QString &tool, const QStringList &arguments)
{
    constexpr std::chrono::milliseconds patience = std::chrono::seconds(10);
    const QString path = QStandardPaths::findExecutable(tool, {u"/usr/bin"_s, u"/usr/local/bin"_s});
    if (path.isEmpty())
        return {};
    QProcess process;
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(path, arguments);
    if (!process.waitForFinished(static_cast<int>(patience.count()))) {
        process.kill();
        process.waitForFinished();
        return {};
    }
    return process.readAllStandardOutput();
}

QString currentDefault(const QString &type)
{
    static const QRegularExpression entry(uR"(^[^\s/;=]+\.desktop$)"_s);
    const QString answer =
        QString::fromUtf8(run(u"xdg-mime"_s, {u"query"_s, u"default"_s, type})).section(u'\n', 0, 0).trimmed();
    return entry.match(answer).hasMatch() ? answer : QString();
}

void makeFolder(const QString &path)
{
    const QFileInfo folder(path);
    if (folder.exists() || folder.path() == path)
        return;
    makeFolder(folder.path());
    QDir().mkdir(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

} // namespace

DesktopFileTypes::DesktopFileTypes(FileStore &files, Places places) : m_files(files), m_places(std::move(places)) {}

void DesktopFileTypes::createKey(const QString &key, const QString &subKey)
{
    m_keys.createKey(key, subKey);
}

QString DesktopFileTypes::readValue(const QString &key, const QString &subKey, const QString &name) const
{
    return m_keys.readValue(key, subKey, name);
}

void DesktopFileTypes::setValue(const QString &key, const QString &subKey, const QString &name, const QString &text)
{
    m_keys.setValue(key, subKey, name, text);
}

void DesktopFileTypes::deleteKey(const QString &key)
{
    m_keys.deleteKey(key);
}

QString DesktopFileTypes::keysFile() const
{
    return m_places.dataHome + u"/zephira/filetypes.json"_s;
}

Result<DesktopFileTypes::Content> DesktopFileTypes::read(const QString &path) const
{
    Result<QByteArray> content = m_files.read(path);
    if (content)
        return Content(std::move(content).value());
    if (content.error().code == Error::Code::NotFound)
        return Content();
    return content.error();
}

Result<void> DesktopFileTypes::refresh()
{
    const Result<Content> content = read(keysFile());
    if (!content)
        return content.error();
    const Result<FileTypeKeys> keys =
        content.value() ? FileTypeKeys::fromJson(*content.value()) : Result<FileTypeKeys>(FileTypeKeys());
    if (!keys)
        return Error{keys.error().code, u"The file \"%1\" can't be read: it is damaged."_s.arg(keysFile())};
    m_keys = keys.value();
    m_kept = m_keys;
    return {};
}

Result<void> DesktopFileTypes::put(const Change &change)
{
    constexpr int privateMode = 0600;
    constexpr int usualMode = 0666;
    if (change.content) {
        makeFolder(QFileInfo(change.path).path());
        const bool isOwn = change.path.startsWith(m_places.dataHome + u"/zephira/"_s);
        return m_files.write(change.path, *change.content, isOwn ? privateMode : usualMode);
    }
    Result<void> removed = m_files.remove(change.path);
    if (!removed && removed.error().code == Error::Code::NotFound)
        return {};
    return removed;
}

Result<void> DesktopFileTypes::putAll(const std::vector<Change> &changes)
{
    std::vector<Change> undone;
    for (const Change &change : changes) {
        const Result<Content> before = read(change.path);
        Result<void> done = before ? Result<void>() : before.error();
        if (before && before.value() != change.content) {
            undone.push_back({change.path, before.value()});
            done = put(change);
        }
        if (!done) {
            // The first error is the one to tell. What can't be put back now is put right by the next commit().
            std::for_each(undone.rbegin(), undone.rend(), [this](const Change &each) {
                const Result<void> back = put(each);
                Q_UNUSED(back)
            });
            return done;
        }
    }
    return {};
}

Result<std::vector<DesktopFileTypes::Change>> DesktopFileTypes::listChanges(const DesktopTypes &types) const
{
    const QString listFile = m_places.configHome + u"/mimeapps.list"_s;
    const QString recordFile = m_places.dataHome + u"/zephira/mimeapps.json"_s;
    const Result<Content> list = read(listFile);
    if (!list)
        return list.error();
    const Result<Content> kept = read(recordFile);
    if (!kept)
        return kept.error();
    AssociationRecord record{.before = list.value(), .after = list.value(), .types = {}, .kept = {}};
    if (kept.value()) {
        const Result<AssociationRecord> parsed = AssociationRecord::fromJson(*kept.value());
        if (!parsed)
            return Error{parsed.error().code, u"The file \"%1\" can't be read: it is damaged."_s.arg(recordFile)};
        record = parsed.value();
    }
    record = withTypes(record, list.value(), types, entryName.toUtf8(), currentDefault);
    // The record comes first: with it the list can be changed back, wherever this ends.
    return std::vector<Change>{{recordFile, types.all.isEmpty() ? Content() : Content(record.toJson())},
                               {listFile, record.after}};
}

Result<void> DesktopFileTypes::commit()
{
    if (m_keys == m_kept)
        return {};
    const std::vector<DesktopFileType> fileTypes = desktopFileTypes(m_keys, QFileInfo(m_places.executable).fileName());
    const DesktopTypes types = desktopTypes(fileTypes, systemMimeTypes);
    const auto contentOf = [](const QByteArray &text) { return text.isEmpty() ? Content() : Content(text); };
    const QString mimeFolder = m_places.dataHome + u"/mime"_s;
    const QString entryFolder = m_places.dataHome + u"/applications"_s;
    const Change package{mimeFolder + u"/packages/zephira-filetypes.xml"_s,
                         contentOf(mimePackage(fileTypes, systemMimeTypes))};
    const Change entry{entryFolder + u'/' + entryName,
                       contentOf(desktopEntry(types, m_places.executable, m_places.icon))};
    const Result<std::vector<Change>> list = listChanges(types);
    if (!list)
        return list.error();

    std::vector<Change> changes{{keysFile(), m_keys.toJson()}, package, entry};
    changes.insert(changes.end(), list.value().begin(), list.value().end());
    const bool hasNewTypes = read(package.path).valueOr({}) != package.content;
    const bool hasNewEntry = read(entry.path).valueOr({}) != entry.content;
    if (Result<void> written = putAll(changes); !written)
        return written;
    m_kept = m_keys;
    if (hasNewTypes)
        run(u"update-mime-database"_s, {mimeFolder});
    if (hasNewEntry)
        run(u"update-desktop-database"_s, {entryFolder});
    return {};
}

} // namespace zephira
