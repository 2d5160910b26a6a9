// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace zephira {

class UserSettings;

/// What the user has searched for and replaced by, the latest first, for all windows that search.
class SearchHistory
{
public:
    enum class Kind { Searches, Replacements };

    explicit SearchHistory(UserSettings &settings) : m_settings(settings) {}

    QStringList words(Kind kind) const;
    /// Puts a text first; an empty one isn't kept. The oldest of more than `longest` are forgotten.
    void add(Kind kind, const QString &text);

    static constexpr qsizetype longest = 20;

private:
    UserSettings &m_settings;
};

} // namespace zephira
