// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/codemaxglobals.h"

#include "editor/hotkeys.h"

#include <algorithm>

namespace zephira {

using namespace Qt::StringLiterals;

CodeMaxGlobals::CodeMaxGlobals(QObject *parent) : QObject(parent)
{
    setObjectName(u"CodeMaxGlobals"_s);
    const auto keys = initialHotKeys();
    m_hotKeys.assign(keys.begin(), keys.end());
}

void CodeMaxGlobals::RegisterLanguage(const QString &name, const CodeMaxLanguage &language)
{
    m_languages.RegisterLanguage(name, language);
    Q_EMIT languageRegistered(name);
}

int CodeMaxGlobals::hotKeyCount(int command) const
{
    return static_cast<int>(std::ranges::count(m_hotKeys, command, &CodeMaxHotKey::command));
}

CodeMaxHotKey CodeMaxGlobals::hotKey(int command, int index) const
{
    for (const CodeMaxHotKey &hotKey : m_hotKeys) {
        if (hotKey.command == command && index-- == 0)
            return hotKey;
    }
    return {};
}

void CodeMaxGlobals::UnregisterHotKey(const CodeMaxHotKey &hotKey)
{
    std::erase(m_hotKeys, hotKey);
}

std::optional<int> CodeMaxGlobals::commandFor(QKeyCombination keys) const
{
    const QKeyCombination wanted(keys.keyboardModifiers() & ~Qt::KeypadModifier, keys.key());
    const auto found = std::ranges::find(m_hotKeys, wanted, &CodeMaxHotKey::keys);
    if (found == m_hotKeys.end())
        return std::nullopt;
    return found->command;
}

} // namespace zephira
