// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

namespace zephira {

// A private profile is a text of lines `[section]` and `key=value`. Lines that start with ";" are comments, and other
// lines are ignored. Lines end with CR LF, LF or CR. Spaces around names and values are ignored, and so is one pair of
// quotes, "…" or '…', around a value. Names are not case-sensitive. If a section or key occurs more than once, only the
// first one counts.
//
// The profile is UTF-8, with or without a byte order mark. Values that are not valid UTF-8 are read as Windows-1252.

/// The complete value; nothing if there is no such section or key.
std::optional<QString> profileValue(QByteArrayView profile, const QString &section, const QString &key);

/// The profile with one value set and all other bytes kept. A new key is added at the end of its section, before blank
/// lines; a new section is added at the end. Line breaks and NULs in the value become spaces; a value whose spaces or
/// quotes would be lost on reading is put in quotes. Returns nothing if a name isn't allowed in a profile: if it
/// contains a line break or NUL, if a section contains "]", or if a key is empty, contains "=" or starts with ";" or
/// "[".
std::optional<QByteArray> withProfileValue(const QByteArray &profile, const QString &section, const QString &key,
                                           const QString &value);

struct ProfileEntry {
    QString section;
    QString key;
    QString value;
};

/// All values in order, including those hidden by an earlier one of the same name.
std::vector<ProfileEntry> profileEntries(QByteArrayView profile);

} // namespace zephira
