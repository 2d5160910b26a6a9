// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "syntax/languageregistry.h"

#include <QKeyCombination>
#include <QObject>

#include <optional>
#include <vector>

namespace zephira {

/// One key combination, and the number of the command that it runs.
struct CodeMaxHotKey {
    int command = 0;
    QKeyCombination keys;

    friend bool operator==(const CodeMaxHotKey &, const CodeMaxHotKey &) = default;
};

/// The editing control's services beside the text: the languages it knows, and which keys run its commands. A child of the
/// control, found by its own name.
class CodeMaxGlobals : public QObject
{
    Q_OBJECT

public:
    explicit CodeMaxGlobals(QObject *parent = nullptr);

    Q_INVOKABLE void RegisterLanguage(const QString &name, const CodeMaxLanguage &language);
    const LanguageRegistry &languages() const { return m_languages; }

    /// How many hot keys a command has; 0 for numbers that are no command.
    Q_INVOKABLE int hotKeyCount(int command) const;
    /// The command's hot key at a 0-based index below hotKeyCount(); an empty one otherwise.
    Q_INVOKABLE CodeMaxHotKey hotKey(int command, int index) const;
    /// The combination runs the command no more. One that isn't registered is left alone.
    Q_INVOKABLE void UnregisterHotKey(const CodeMaxHotKey &hotKey);

    /// What a key combination runs. The keypad's keys count as the others.
    std::optional<int> commandFor(QKeyCombination keys) const;

Q_SIGNALS:
    void languageRegistered(const QString &name);

private:
    LanguageRegistry m_languages;
    std::vector<CodeMaxHotKey> m_hotKeys;
};

} // namespace zephira
