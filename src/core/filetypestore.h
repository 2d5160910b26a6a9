// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QString>

namespace zephira {

/// Which programs open which types of files, in keys that form a tree: ".htm" names a type, "htmfile\shell" says what
/// can be done with files of that type. The parts of a key are divided by "\". A key has texts as its values, each with
/// a name; the value without a name is the key's default value. Names aren't case-sensitive.
///
/// A key with an empty part, as "htmfile\shell\\command", doesn't exist and can't be made: it reads as empty, and what
/// is written to it is lost. An empty sub-key stands for the key itself.
class FileTypeStore
{
public:
    virtual ~FileTypeStore() = default;

    virtual void createKey(const QString &key, const QString &subKey = {}) = 0;
    /// A missing key or value reads as "". What follows a NUL isn't read.
    virtual QString readValue(const QString &key, const QString &subKey, const QString &name) const = 0;
    /// Makes the key if it is missing.
    virtual void setValue(const QString &key, const QString &subKey, const QString &name, const QString &text) = 0;
    /// Removes a key and its values. A key that has others below it stays.
    virtual void deleteKey(const QString &key) = 0;

    /// Reads the store anew; changes that weren't kept are forgotten. Fails if the store can't be read.
    virtual Result<void> refresh() = 0;
    /// Keeps all changes since refresh(), and makes the desktop follow them. On failure nothing has changed. Without
    /// changes nothing is written.
    virtual Result<void> commit() = 0;
};

} // namespace zephira
