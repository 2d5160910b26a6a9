// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/filetypekeys.h"
#include "core/filetypestore.h"

#include <QStringList>

#include <optional>

namespace zephira {

/// The types of files in memory: what was committed, and what hasn't been yet.
struct MemoryFileTypes final : FileTypeStore {
    FileTypeKeys kept;
    FileTypeKeys keys;
    std::optional<Error> unreadable;
    std::optional<Error> unwritable;
    /// What was done, in order: "create .htm", "set .htm[] = htmfile", "delete .htm\ShellNew", "commit".
    QStringList log;

    QString committed(const QString &key, const QString &name = {}) const { return kept.readValue(key, {}, name); }

    void createKey(const QString &key, const QString &subKey) override
    {
        log.append(QStringLiteral("create ") + path(key, subKey));
        keys.createKey(key, subKey);
    }
    QString readValue(const QString &key, const QString &subKey, const QString &name) const override
    {
        return keys.readValue(key, subKey, name);
    }
    void setValue(const QString &key, const QString &subKey, const QString &name, const QString &text) override
    {
        log.append(QStringLiteral("set %1[%2] = %3").arg(path(key, subKey), name, text));
        keys.setValue(key, subKey, name, text);
    }
    void deleteKey(const QString &key) override
    {
        log.append(QStringLiteral("delete ") + key);
        keys.deleteKey(key);
    }
    Result<void> refresh() override
    {
        if (unreadable)
            return *unreadable;
        keys = kept;
        return {};
    }
    Result<void> commit() override
    {
        if (unwritable)
            return *unwritable;
        log.append(QStringLiteral("commit"));
        kept = keys;
        return {};
    }

private:
    static QString path(const QString &key, const QString &subKey)
    {
        return subKey.isEmpty() ? key : key + QLatin1Char('\\') + subKey;
    }
};

} // namespace zephira
