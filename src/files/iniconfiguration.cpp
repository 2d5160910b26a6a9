// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/iniconfiguration.h"

#include "files/diskfilestore.h"
#include "files/fileerror.h"
#include "files/filesystemcalls.h"
#include "files/folderlock.h"
#include "files/textfile.h"
#include "files/writetarget.h"

#include <QFile>
#include <QFileInfo>

#include <array>
#include <chrono>
#include <vector>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr qsizetype longestValue = 999;

/// A profile as UTF-8. UTF-16 is converted; everything else stays as it is, including a byte order mark and invalid
/// bytes.
struct Profile {
    QByteArray bytes;
    std::optional<TextFormat> converted;
};

Profile profileFrom(QByteArray bytes)
{
    if (!bytes.startsWith("\xFF\xFE") && !bytes.startsWith("\xFE\xFF"))
        return {std::move(bytes), {}};
    DecodedText text = decodeText(bytes);
    if (text.format.encoding == Encoding::Windows1252)
        return {std::move(bytes), {}};
    return {std::move(text.utf8), text.format};
}

QString shortValue(QByteArrayView profile, const QString &section, const QString &key)
{
    QString value = profileValue(profile, section, key).value_or(QString());
    value.truncate(longestValue);
    // Don't leave half of a surrogate pair.
    if (value.size() == longestValue && value.back().isHighSurrogate())
        value.chop(1);
    return value;
}

/// Whether a later change of the file is certain to change its modification time: the timestamps of file systems have a
/// granularity of some milliseconds, on some of two seconds.
bool isSettled(const FileSignature &signature)
{
    constexpr std::chrono::nanoseconds coarsest = std::chrono::seconds(2);
    const std::chrono::nanoseconds now = std::chrono::system_clock::now().time_since_epoch();
    return signature.modifiedNs < (now - coarsest).count();
}

/// Writes several values, or none.
Result<void> writeProfile(std::span<const ProfileEntry> values, const QString &file, int mode, FileSystemCalls &calls)
{
    DiskFileStore store(calls);
    // The lock must be on the folder in which the file is replaced, which is the folder of a symbolic link's target.
    const Result<QByteArray> target = linkTarget(calls, file);
    if (!target)
        return target.error();
    const QFileInfo info(QFile::decodeName(target.value()));
    const FolderLock lock(QFile::encodeName(info.path()));
    if (!lock.isHeld())
        return saveError(file, lock.error());

    Result<QByteArray> bytes = store.read(info.filePath());
    if (!bytes && bytes.error().code != Error::Code::NotFound)
        return bytes.error();
    const Profile profile = profileFrom(bytes.valueOr(QByteArray()));
    QByteArray changed = profile.bytes;
    for (const auto &[section, key, value] : values) {
        std::optional<QByteArray> next = withProfileValue(changed, section, key, value);
        if (!next)
            return saveError(file, Error::Code::Malformed, u"a name is not allowed in it"_s);
        changed = *std::move(next);
    }
    if (bytes && changed == profile.bytes)
        return {};
    const Result<QByteArray> encoded = profile.converted ? encodeText(changed, *profile.converted) : changed;
    if (!encoded)
        return encoded.error();
    return store.write(info.filePath(), encoded.value(), mode);
}

} // namespace

QString ReadIni(const QString &section, const QString &key, const QString &file)
{
    return readIniValues(section, {key}, file).valueOr({QString()}).constFirst();
}

bool WriteIni(const QString &section, const QString &key, const QString &value, const QString &file, int mode)
{
    return writeIniValue(section, key, value, file, mode).ok();
}

QStringList iniValues(const QByteArray &content, const QString &section, const QStringList &keys)
{
    const Profile profile = profileFrom(content);
    QStringList values;
    for (const QString &key : keys)
        values.append(shortValue(profile.bytes, section, key));
    return values;
}

Result<QStringList> readIniValues(const QString &section, const QStringList &keys, const QString &file)
{
    const Result<QByteArray> content = DiskFileStore().read(file);
    if (!content)
        return content.error();
    return iniValues(content.value(), section, keys);
}

Result<void> writeIniValue(const QString &section, const QString &key, const QString &value, const QString &file,
                           int mode)
{
    const ProfileEntry entry{section, key, value};
    return writeIniValues({&entry, 1}, file, mode);
}

Result<void> writeIniValues(std::span<const ProfileEntry> values, const QString &file, int mode)
{
    FileSystemCalls calls;
    return writeProfile(values, file, mode, calls);
}

IniConfiguration::IniConfiguration(QString file)
    : m_file(std::move(file)), m_ownCalls(std::make_unique<FileSystemCalls>()), m_calls(*m_ownCalls), m_store(m_calls)
{}

IniConfiguration::IniConfiguration(QString file, FileSystemCalls &calls)
    : m_file(std::move(file)), m_calls(calls), m_store(m_calls)
{}

IniConfiguration::~IniConfiguration() = default;

QString IniConfiguration::read(const QString &section, const QString &key) const
{
    const FileSignature signature = m_store.signature(m_file);
    if (!signature.exists || signature != m_signature) {
        Result<QByteArray> bytes = m_store.read(m_file);
        m_signature = bytes && isSettled(signature) ? signature : FileSignature();
        m_profile = bytes ? profileFrom(std::move(bytes).value()).bytes : QByteArray();
    }
    return shortValue(m_profile, section, key);
}

Result<void> IniConfiguration::write(std::span<const SettingChange> changes)
{
    std::vector<ProfileEntry> entries;
    for (const auto &[setting, value] : changes) {
        const SettingRow &row = settingRow(setting);
        entries.push_back({row.section, row.key, value});
    }
    constexpr int usualMode = 0666;
    return writeProfile(entries, m_file, usualMode, m_calls);
}

} // namespace zephira
