// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/fakes.h"

#include "core/errorstyles.h"

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

QString keyOf(const QString &section, const QString &key)
{
    return section.toCaseFolded() + u'\n' + key.toCaseFolded();
}

} // namespace

void FakeDesigner::loadDocument(const QString &path)
{
    loaded.append(path);
    if (unreadable)
        throw HandlerError{QStringLiteral("The file %1 can't be read.").arg(path)};
}

QVariant FakeDesigner::execCommand(DesignerCommand command, DesignerPrompting prompting, const QVariant &argument)
{
    commands.push_back(static_cast<int>(command));
    runs.push_back({command, prompting, argument});
    const auto result = results.find(command);
    return result == results.end() ? QVariant() : result->second;
}

int FakeDesigner::queryStatus(DesignerCommand command) const
{
    const auto status = statuses.find(command);
    return status == statuses.end() ? DesignerStatus::Enabled : status->second;
}

void FakeDesigner::setContextMenu(const QStringList &entries, const QList<DesignerMenuState> &states)
{
    menuEntries = entries;
    menuStates = states;
}

Result<void> FakeShell::open(const QString &pathOrUrl)
{
    opened.append(pathOrUrl);
    return outcome();
}

Result<void> FakeShell::start(const QString &program, const QStringList &arguments)
{
    started.push_back({program, arguments});
    return outcome();
}

Result<void> FakeShell::showProperties(const QString &path)
{
    properties.append(path);
    return outcome();
}

Result<void> FakeShell::findFiles()
{
    ++searches;
    return outcome();
}

void FakeFormOpener::open(const QString &form, QStringList &list)
{
    if (!isAvailable(form))
        return;
    list.append(form);
    if (onOpen)
        onOpen(form);
}

Result<QByteArray> MemoryFileStore::read(const QString &path) const
{
    if (const auto failing = unreadable.find(path); failing != unreadable.end())
        return failing->second;
    const auto entry = contents.find(path);
    if (entry == contents.end())
        return Error{Error::Code::NotFound, u"%1 doesn't exist."_s.arg(path)};
    return entry->second;
}

Result<void> MemoryFileStore::write(const QString &path, std::span<const QByteArrayView> pieces, int)
{
    if (const auto failing = unwritable.find(path); failing != unwritable.end())
        return failing->second;
    QByteArray content;
    for (const QByteArrayView piece : pieces)
        content.append(piece);
    contents[path] = content;
    log.append(u"write "_s + path);
    return {};
}

Result<void> MemoryFileStore::remove(const QString &path)
{
    if (const auto failing = unwritable.find(path); failing != unwritable.end())
        return failing->second;
    if (contents.erase(path) == 0)
        return Error{Error::Code::NotFound, u"%1 doesn't exist."_s.arg(path)};
    log.append(u"remove "_s + path);
    return {};
}

bool MemoryFileStore::FileExists(const QString &path) const
{
    return contents.contains(path) && !unreadable.contains(path);
}

FileSignature MemoryFileStore::signature(const QString &path) const
{
    const auto entry = contents.find(path);
    if (entry == contents.end())
        return {};
    // The hash of the content replaces the modification time, so that direct changes of `contents` are noticed, too.
    return {true, 1, qHash(path), entry->second.size(), static_cast<qint64>(qHash(entry->second))};
}

QString MemoryConfiguration::read(const QString &section, const QString &key) const
{
    const auto entry = m_values.find(keyOf(section, key));
    return entry == m_values.end() ? QString() : entry->second;
}

Result<void> MemoryConfiguration::write(std::span<const SettingChange> changes)
{
    if (!writable)
        return Error{Error::Code::Unwritable, u"The settings could not be saved."_s};
    for (const auto &[setting, value] : changes) {
        const SettingRow &row = settingRow(setting);
        put(row.section, row.key, value);
        log.append(u"[%1] %2=%3"_s.arg(row.section, row.key, value));
    }
    return {};
}

void MemoryConfiguration::put(const QString &section, const QString &key, const QString &value)
{
    m_values[keyOf(section, key)] = value;
}

QString MemoryUserSettings::read(const QString &branch, const QString &section, const QString &key,
                                 const QString &fallback) const
{
    const auto entry = values.find(branch + u'/' + section + u'/' + key);
    return entry == values.end() ? fallback : entry->second;
}

bool MemoryUserSettings::write(const QString &branch, const QString &section, const QString &key, const QString &value)
{
    if (writable)
        values[branch + u'/' + section + u'/' + key] = value;
    return writable;
}

bool MemoryUserSettings::remove(const QString &branch, const QString &section, const QString &key)
{
    if (writable)
        values.erase(branch + u'/' + section + u'/' + key);
    return writable;
}

QStringList MemoryUserSettings::keys(const QString &branch, const QString &section) const
{
    const QString place = branch + u'/' + section + u'/';
    QStringList found;
    for (const auto &[name, value] : values) {
        if (name.startsWith(place))
            found.append(name.mid(place.size()));
    }
    return found;
}

Result<void> FakeCommandKeys::save(std::span<const KeyChange> changes)
{
    if (failure)
        return *failure;
    saved.insert(saved.end(), changes.begin(), changes.end());
    return {};
}

} // namespace zephira
