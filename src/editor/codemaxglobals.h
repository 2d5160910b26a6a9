// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "syntax/languageregistry.h"

#include <QKeyCombination>
#include <QObject>

#include <optional>
#include <vector>

namespace zephira {

/// A key combination and the number of the command that it runs.
struct CodeMaxHotKey {
    int command = 0;
    QKeyCombination keys;

    friend bool operator==(const CodeMaxHotKey &, const CodeMaxHotKey &) = default;
};

/// The registered languages and the key bindings of an editing control. A child of the control, found by its object
/// name.
class CodeMaxGlobals : public QObject
{
    Q_OBJECT

public:
    explicit CodeMaxGlobals(QObject *parent = nullptr);

    Q_INVOKABLE void RegisterLanguage(const QString &name, const CodeMaxLanguage &language);
    const LanguageRegistry &languages() const { return m_languages; }

    /// The number of hot keys of a command; 0 for an unknown command.
    Q_INVOKABLE int hotKeyCount(int command) const;
    /// The command's hot key at a 0-based index below hotKeyCount(); an empty one for other indexes.
    Q_INVOKABLE CodeMaxHotKey hotKey(int command, int index) const;
    /// Removes a hot key. Does nothing if it isn't registered.
    Q_INVOKABLE void UnregisterHotKey(const CodeMaxHotKey &hotKey);

    /// The command that a key combination runs. Keys of the keypad count as the equivalent other keys.
    std::optional<int> commandFor(QKeyCombination keys) const;

Q_SIGNALS:
    void languageRegistered(const QString &name);

private:
    LanguageRegistry m_languages;
    std::vector<CodeMaxHotKey> m_hotKeys;
};

} // namespace zephira
