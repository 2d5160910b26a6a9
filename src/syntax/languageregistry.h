// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "syntax/languagedefinition.h"

#include <QStringList>

#include <map>
#include <memory>

namespace zephira {

class SyntaxEngine;

/// The languages of an editing control by name, not case-sensitive. HTML, C/C++, XML, Basic, Pascal and Java are built
/// in.
class LanguageRegistry
{
public:
    LanguageRegistry();
    ~LanguageRegistry();
    LanguageRegistry(const LanguageRegistry &) = delete;
    LanguageRegistry &operator=(const LanguageRegistry &) = delete;

    /// Registers a language, replacing one of the same name. Does nothing for the empty name, which means "no
    /// language".
    void RegisterLanguage(const QString &name, const CodeMaxLanguage &language);

    /// The definition, or nullptr for an unknown name. Valid until the name is registered again.
    const CodeMaxLanguage *find(const QString &name) const;
    /// The engine for a language, compiled on first use, or nullptr for an unknown name.
    std::shared_ptr<const SyntaxEngine> engine(const QString &name) const;
    /// All names as registered, in alphabetical order.
    QStringList names() const;

private:
    struct Entry;
    Entry *entry(const QString &name) const;

    std::map<QString, std::unique_ptr<Entry>> m_entries;
};

} // namespace zephira
