// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/configuration.h"
#include "files/diskfilestore.h"

#include <QString>

namespace zephira {

/// Reads a value of a private profile file: names without regard to case, the first match wins, blanks around the value
/// and one pair of quotes removed, at most 999 characters. A missing file, section or key reads as "".
QString ReadIni(const QString &section, const QString &key, const QString &file);

/// Writes one value at once; all other lines stay byte for byte. Returns false if the file can't be written. Safe
/// against other processes that write the same file at the same time. Line breaks in the value become blanks. `mode` is
/// for a file that is new.
bool WriteIni(const QString &section, const QString &key, const QString &value, const QString &file, int mode = 0666);

/// The configuration in a private profile file. Each value is the one that the file holds at that moment; only a file that
/// didn't change since it was read last isn't read again.
class IniConfiguration final : public Configuration
{
public:
    explicit IniConfiguration(QString file);
    /// Reads through calls that a test watches; they must outlive the configuration.
    IniConfiguration(QString file, FileSystemCalls &calls);

    QString file() const { return m_file; }

private:
    QString read(const QString &section, const QString &key) const override;
    bool write(const QString &section, const QString &key, const QString &value) override;

    QString m_file;
    DiskFileStore m_store;
    /// The profile as it was read last, in UTF-8, and the file that it was then.
    mutable QByteArray m_profile;
    mutable FileSignature m_signature;
};

} // namespace zephira
