// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <map>

namespace zephira {

/// The keys of a FileTypeStore, whose rules for names they follow, and their text in a file.
class FileTypeKeys
{
public:
    void createKey(const QString &key, const QString &subKey = {});
    QString readValue(const QString &key, const QString &subKey, const QString &name) const;
    void setValue(const QString &key, const QString &subKey, const QString &name, const QString &text);
    void deleteKey(const QString &key);

    bool contains(const QString &key) const;
    /// The names directly below a key, or those of the topmost keys, as they were first written and in alphabetical
    /// order.
    QStringList namesBelow(const QString &key = {}) const;

    /// The keys as JSON: an object of keys, each an object of values.
    QByteArray toJson() const;
    /// Fails with Code::Malformed for anything else.
    static Result<FileTypeKeys> fromJson(const QByteArray &json);

    friend bool operator==(const FileTypeKeys &, const FileTypeKeys &) = default;

private:
    struct Value {
        QString name;
        QString text;

        friend bool operator==(const Value &, const Value &) = default;
    };
    struct Key {
        /// The whole key as it was first written.
        QString path;
        /// By their names in one case.
        std::map<QString, Value> values;

        friend bool operator==(const Key &, const Key &) = default;
    };

    /// Makes the key and those above it; nullptr if it has an empty part.
    Key *made(const QString &path);

    /// By their paths in one case.
    std::map<QString, Key> m_keys;
};

} // namespace zephira
