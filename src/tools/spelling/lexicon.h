// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/filestore.h"
#include "tools/spelling/speller.h"

#include <QSet>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace zephira {

class UserSettings;

/// All words that count as spelled right: those of a dictionary, the user's own, and the names that belong to markup and
/// programs. The dictionary is loaded at the first use and then kept.
class Lexicon
{
public:
    struct Parts {
        FileStore &files;
        UserSettings &settings;
        SpellerLoader loadSpeller;
        /// Finds the installed dictionaries.
        std::function<std::vector<Dictionary>()> findDictionaries;
        /// The file of the user's own words; it needn't exist.
        QString customFile;
        /// Where the list of names may be; the first file that exists is read.
        QStringList nameFiles;
    };

    explicit Lexicon(const Parts &parts) : m_parts(parts) {}

    /// Prepares for use: loads what isn't loaded yet, and the user's own words again if their file has changed. Fails
    /// if there is no dictionary. What is wrong with the lists of words is no failure; see takeNotes().
    Result<void> OpenLexicon();
    /// Whether every word in the text is spelled right.
    bool CheckWord(QStringView text);
    /// Whether the word is spelled right.
    bool knows(QStringView word);
    /// Words that may have been meant, the likeliest first.
    QStringList suggestions(const QString &word);
    /// Adds a word to the user's own, and to their file. Fails if that can't be written or can't hold the word; the word
    /// isn't added then.
    Result<void> add(const QString &word);

    /// The installed dictionaries, and the name of the one in use.
    const std::vector<Dictionary> &dictionaries() const { return m_dictionaries; }
    const QString &dictionary() const { return m_dictionary; }
    /// Uses another installed dictionary, also in the future.
    Result<void> choose(const QString &dictionary);

    /// The sentences that tell what is wrong with the lists of words, each only once.
    QStringList takeNotes() { return std::exchange(m_notes, {}); }

private:
    Result<void> openDictionary(const Dictionary &dictionary);
    QString wantedDictionary() const;
    void readNames();
    void readCustomWords();
    Result<QByteArray> customBytes() const;
    void useCustomWords(const QStringList &words);

    const Parts m_parts;
    Speller *m_speller = nullptr;
    std::vector<Dictionary> m_dictionaries;
    QString m_dictionary;
    /// The names in lower case.
    QSet<QString> m_names;
    bool m_hasNames = false;
    QSet<QString> m_customWords;
    /// Those of the user's own words that the speller got because its dictionary doesn't have them.
    QSet<QString> m_added;
    std::optional<FileSignature> m_customSignature;
    QStringList m_notes;
};

} // namespace zephira
