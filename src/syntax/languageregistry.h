// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "syntax/languagedefinition.h"

#include <QStringList>

#include <map>
#include <memory>

namespace zephira {

class SyntaxEngine;

/// The languages that an editing control knows, by name; upper and lower case make no difference. HTML, C/C++, XML, Basic,
/// Pascal and Java are there from the beginning.
class LanguageRegistry
{
public:
    LanguageRegistry();
    ~LanguageRegistry();
    LanguageRegistry(const LanguageRegistry &) = delete;
    LanguageRegistry &operator=(const LanguageRegistry &) = delete;

    /// Makes a language known; one that bears the name already is replaced. The empty name stands for "no language" and
    /// is left alone.
    void RegisterLanguage(const QString &name, const CodeMaxLanguage &language);

    /// The definition, or nullptr for a name that nobody registered. Valid until the name is registered again.
    const CodeMaxLanguage *find(const QString &name) const;
    /// The engine for a language, compiled when it is first asked for, or nullptr.
    std::shared_ptr<const SyntaxEngine> engine(const QString &name) const;
    /// All names as they were registered, in alphabetical order.
    QStringList names() const;

private:
    struct Entry;
    Entry *entry(const QString &name) const;

    std::map<QString, std::unique_ptr<Entry>> m_entries;
};

} // namespace zephira
