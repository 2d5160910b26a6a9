// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

namespace zephira {

// A private profile is a text of lines `[section]` and `key=value`; lines that start with ";" are comments, and lines of
// any other shape are passed over. Lines end with CR LF, LF or CR. Blanks around names and values don't count, nor does
// one pair of quotes, "…" or '…', around a value. Names are compared without regard to case. The first section of a name
// is the only one that counts, and in it the first key.
//
// The text is bytes in UTF-8, with or without a byte order mark. Values that are not valid UTF-8 are read as Windows-1252.

/// The value in full; nothing when there is no such section or key.
std::optional<QString> profileValue(QByteArrayView profile, const QString &section, const QString &key);

/// The profile with one value set, all other bytes kept. A key that is new goes to the end of its section, before blank
/// lines; a section that is new goes to the end. Line breaks and NULs in the value become blanks; a value whose own blanks
/// or quotes would be lost on reading is put in quotes. Nothing when a name can't stand in a profile: one that holds a
/// line break or NUL, a section with "]", a key that is empty, holds "=" or starts with ";" or "[".
std::optional<QByteArray> withProfileValue(const QByteArray &profile, const QString &section, const QString &key,
                                           const QString &value);

struct ProfileEntry {
    QString section;
    QString key;
    QString value;
};

/// All values in their order, also those that an earlier one of the same name hides.
std::vector<ProfileEntry> profileEntries(QByteArrayView profile);

} // namespace zephira
