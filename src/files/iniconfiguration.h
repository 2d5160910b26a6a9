// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/configuration.h"
#include "core/result.h"
#include "files/diskfilestore.h"
#include "files/privateprofile.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <span>

namespace zephira {

/// Reads a value of a private profile file. Names are not case-sensitive, the first match wins, spaces around the value
/// and one pair of quotes are removed, and the value is cut to 999 characters. A missing file, section or key reads as
/// "".
QString ReadIni(const QString &section, const QString &key, const QString &file);

/// Writes one value at once and leaves all other lines unchanged byte for byte. Returns false if the file can't be
/// written. Safe if other processes write the same file at the same time. Line breaks in the value become spaces.
/// `mode` applies to a new file.
bool WriteIni(const QString &section, const QString &key, const QString &value, const QString &file, int mode = 0666);

/// Values of one section of a profile's content, in the order of their keys and each like ReadIni().
QStringList iniValues(const QByteArray &content, const QString &section, const QStringList &keys);

/// The same for a file, from one state of it. Fails if the file can't be read; Code::NotFound if there is none.
Result<QStringList> readIniValues(const QString &section, const QStringList &keys, const QString &file);

/// Like WriteIni(), for callers that report a failure.
Result<void> writeIniValue(const QString &section, const QString &key, const QString &value, const QString &file,
                           int mode = 0666);

/// The same for several values, in this order. On failure the file keeps all its values.
Result<void> writeIniValues(std::span<const ProfileEntry> values, const QString &file, int mode = 0666);

/// The configuration in a private profile file. Every value is the one currently in the file; the file is read again
/// unless it is unchanged since the last read.
class IniConfiguration final : public Configuration
{
public:
    explicit IniConfiguration(QString file);
    /// Uses system calls that a test observes or makes fail; they must outlive the configuration.
    IniConfiguration(QString file, FileSystemCalls &calls);
    ~IniConfiguration() override;

    QString file() const { return m_file; }

private:
    QString read(const QString &section, const QString &key) const override;
    Result<void> write(std::span<const SettingChange> changes) override;

    QString m_file;
    const std::unique_ptr<FileSystemCalls> m_ownCalls;
    FileSystemCalls &m_calls;
    DiskFileStore m_store;
    /// The profile as last read, in UTF-8, and the state of its file at that time.
    mutable QByteArray m_profile;
    mutable FileSignature m_signature;
};

} // namespace zephira
