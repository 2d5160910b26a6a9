// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/spelling/spellcheck.h"

#include <map>
#include <optional>
#include <set>

namespace zephira {

/// A speller in memory with the dictionaries that the test gives it.
struct FakeSpeller final : Speller {
    /// The words of each dictionary, by its path.
    std::map<QString, std::set<QString>> words{
        {QStringLiteral("/dict/en_US"),
         {QStringLiteral("a"), QStringLiteral("good"), QStringLiteral("text"), QStringLiteral("word")}},
        {QStringLiteral("/dict/de_DE"), {QStringLiteral("gut"), QStringLiteral("Wort")}},
    };
    std::map<QString, QStringList> suggested;
    std::set<QString> added;
    /// The paths of the dictionaries that were opened, and how many words were asked for.
    QStringList opened;
    int asked = 0;
    /// If set, open() fails with this error.
    std::optional<Error> failure;

    Result<void> open(const Dictionary &dictionary) override
    {
        if (failure)
            return *failure;
        opened.append(dictionary.path);
        added.clear();
        return {};
    }
    bool knows(const QString &word) override
    {
        ++asked;
        return !opened.isEmpty() && (words[opened.back()].contains(word) || added.contains(word));
    }
    QStringList suggestions(const QString &word) override { return suggested[word]; }
    void add(const QString &word) override { added.insert(word); }
    void remove(const QString &word) override { added.erase(word); }
};

/// A check with a fake speller. Its lists of words are those of the file store: custom.dic and deps/names.dic in the
/// program folder.
struct SpellingBench {
    SpellingBench(FileStore &files, UserSettings &settings, const QString &appPath = QStringLiteral("/app"))
        : check({.files = files,
                 .settings = settings,
                 .loadSpeller = [this]() -> Result<Speller *> {
                     ++loads;
                     return &speller;
                 },
                 .findDictionaries = [this] { return dictionaries; },
                 .customFile = appPath + QStringLiteral("/custom.dic"),
                 .nameFiles = {appPath + QStringLiteral("/deps/names.dic")}})
    {}

    static QString customFile() { return QStringLiteral("/app/custom.dic"); }
    static QString nameFile() { return QStringLiteral("/app/deps/names.dic"); }

    FakeSpeller speller;
    std::vector<Dictionary> dictionaries{{QStringLiteral("en_US"), QStringLiteral("/dict/en_US")}};
    /// How often the speller was loaded.
    int loads = 0;
    SpellCheck check;
};

} // namespace zephira
