// SPDX-License-Identifier: GPL-3.0-or-later
#include "syntax/languageregistry.h"

#include "syntax/syntaxengine.h"

namespace zephira {

namespace {

constexpr struct {
    const char16_t *name;
    LanguageDefinition (*make)();
} builtInLanguages[] = {
    {u"HTML", htmlDefinition},   {u"C/C++", cppDefinition},     {u"XML", xmlDefinition},
    {u"Basic", basicDefinition}, {u"Pascal", pascalDefinition}, {u"Java", javaDefinition},
};

} // namespace

/// Built-in definitions and all engines are created on first use, so that the program's start pays only for the
/// language that it shows.
struct LanguageRegistry::Entry {
    QString name;
    LanguageDefinition (*make)() = nullptr;
    LanguageDefinition definition = {};
    std::shared_ptr<const SyntaxEngine> engine = {};

    const LanguageDefinition &made()
    {
        if (make)
            definition = make();
        make = nullptr;
        return definition;
    }
};

LanguageRegistry::LanguageRegistry()
{
    for (const auto &row : builtInLanguages) {
        const QString name = QString::fromUtf16(row.name);
        m_entries[name.toLower()] = std::make_unique<Entry>(Entry{name, row.make});
    }
}

LanguageRegistry::~LanguageRegistry() = default;

void LanguageRegistry::RegisterLanguage(const QString &name, const CodeMaxLanguage &language)
{
    if (!name.isEmpty())
        m_entries[name.toLower()] = std::make_unique<Entry>(Entry{name, nullptr, {language}});
}

LanguageRegistry::Entry *LanguageRegistry::entry(const QString &name) const
{
    const auto it = m_entries.find(name.toLower());
    return it == m_entries.end() ? nullptr : it->second.get();
}

const CodeMaxLanguage *LanguageRegistry::find(const QString &name) const
{
    Entry *found = entry(name);
    return found ? &found->made().language : nullptr;
}

std::shared_ptr<const SyntaxEngine> LanguageRegistry::engine(const QString &name) const
{
    Entry *found = entry(name);
    if (!found)
        return nullptr;
    if (!found->engine)
        found->engine = std::make_shared<const SyntaxEngine>(found->made());
    return found->engine;
}

QStringList LanguageRegistry::names() const
{
    QStringList all;
    for (const auto &[key, entry] : m_entries)
        all.append(entry->name);
    return all;
}

} // namespace zephira
