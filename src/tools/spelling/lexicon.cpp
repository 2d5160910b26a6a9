// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/spelling/lexicon.h"

#include "core/usersettings.h"
#include "tools/spelling/customdictionary.h"
#include "tools/spelling/words.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// A larger file isn't a list that someone made word by word, and reading it would delay the first question.
constexpr qint64 largestCustomFile = qint64{1} << 20;

} // namespace

Result<void> Lexicon::OpenLexicon()
{
    if (!m_speller) {
        m_dictionaries = m_parts.findDictionaries();
        if (m_dictionaries.empty()) {
            return Error{
                Error::Code::NotFound,
                QCoreApplication::translate(
                    "Spelling", "There is no spelling dictionary. Please install the package hunspell-en-us.")};
        }
        const Result<Speller *> speller = m_parts.loadSpeller();
        if (!speller)
            return speller.error();
        m_speller = speller.value();
        if (const Result<void> opened = choose(wantedDictionary()); !opened) {
            m_speller = nullptr;
            return opened;
        }
    }
    if (!m_hasNames)
        readNames();
    if (const FileSignature signature = m_parts.files.signature(m_parts.customFile); m_customSignature != signature) {
        readCustomWords();
        m_customSignature = signature;
    }
    return {};
}

bool Lexicon::CheckWord(QStringView text)
{
    for (TextPlace word = nextWord(text, 0); word.length > 0; word = nextWord(text, word.end())) {
        if (!knows(text.sliced(word.start, word.length)))
            return false;
    }
    return true;
}

bool Lexicon::knows(QStringView word)
{
    const QString whole = word.toString();
    return m_names.contains(whole.toLower()) || m_customWords.contains(whole) || (m_speller && m_speller->knows(whole));
}

QStringList Lexicon::suggestions(const QString &word)
{
    return m_speller ? m_speller->suggestions(word) : QStringList();
}

QString Lexicon::wantedDictionary() const
{
    for (const QString &name : {m_parts.settings.GetSetting(UserSetting::SpellingDictionary), standardDictionary}) {
        if (std::ranges::find(m_dictionaries, name, &Dictionary::name) != m_dictionaries.end())
            return name;
    }
    return m_dictionaries.front().name;
}

Result<void> Lexicon::choose(const QString &dictionary)
{
    const auto chosen = std::ranges::find(m_dictionaries, dictionary, &Dictionary::name);
    if (chosen == m_dictionaries.end() || !m_speller)
        return Error{Error::Code::NotFound,
                     QCoreApplication::translate("Spelling", "There is no spelling dictionary %1.").arg(dictionary)};
    if (const Result<void> opened = m_speller->open(*chosen); !opened)
        return opened;
    const bool isAnother = !m_dictionary.isEmpty() && m_dictionary != dictionary;
    m_dictionary = dictionary;
    if (isAnother)
        m_parts.settings.SaveSetting(UserSetting::SpellingDictionary, dictionary);
    m_added.clear();
    useCustomWords(m_customWords.values());
    return {};
}

void Lexicon::readNames()
{
    m_hasNames = true;
    for (const QString &file : m_parts.nameFiles) {
        const Result<QByteArray> bytes = m_parts.files.read(file);
        if (!bytes)
            continue;
        const QList<QByteArray> names = bytes.value().split('\n');
        m_names = QSet<QString>();
        m_names.reserve(names.size());
        for (const QByteArray &name : names)
            m_names.insert(QString::fromUtf8(name.trimmed()));
        m_names.remove({});
        return;
    }
    m_notes.append(QCoreApplication::translate(
                       "Spelling", "The list of names %1 is missing, so tags and keywords count as unknown words.")
                       .arg(m_parts.nameFiles.value(0)));
}

/// A missing file has no words.
Result<QByteArray> Lexicon::customBytes() const
{
    const FileSignature signature = m_parts.files.signature(m_parts.customFile);
    if (signature.exists && signature.size > largestCustomFile) {
        return Error{
            Error::Code::TooLarge,
            QCoreApplication::translate("Spelling", "The file %1 is too large for a list of words, so it isn't used.")
                .arg(m_parts.customFile)};
    }
    Result<QByteArray> bytes = m_parts.files.read(m_parts.customFile);
    if (!bytes && bytes.error().code == Error::Code::NotFound)
        return QByteArray();
    return bytes;
}

void Lexicon::readCustomWords()
{
    const Result<QByteArray> bytes = customBytes();
    if (!bytes) {
        m_notes.append(bytes.error().sentence);
        useCustomWords({});
        return;
    }
    const CustomDictionary custom = readCustomDictionary(bytes.value());
    if (custom.faultyLines > 0) {
        m_notes.append(
            QCoreApplication::translate(
                "Spelling", "Not every line of the file %1 is a word. Unused lines: %2; the first is line %3.")
                .arg(m_parts.customFile)
                .arg(custom.faultyLines)
                .arg(custom.firstFaultyLine));
    }
    useCustomWords(custom.words);
}

void Lexicon::useCustomWords(const QStringList &words)
{
    m_customWords = QSet<QString>(words.begin(), words.end());
    const QSet<QString> gone = QSet<QString>(m_added).subtract(m_customWords);
    for (const QString &word : gone)
        m_speller->remove(word);
    m_added.subtract(gone);
    for (const QString &word : words) {
        // Removing a word of the dictionary later would forbid it.
        if (m_added.contains(word) || m_speller->knows(word))
            continue;
        m_speller->add(word);
        m_added.insert(word);
    }
}

Result<void> Lexicon::add(const QString &word)
{
    // Such a line would count as faulty when the file is read again.
    if (!isCustomWord(word))
        return Error{Error::Code::Refused,
                     QCoreApplication::translate("Spelling", "This word is too long to be added.")};
    // Another window may have added words since the file was read.
    const Result<QByteArray> bytes = customBytes();
    if (!bytes)
        return bytes.error();
    const QByteArray longer = withCustomWord(bytes.value(), word);
    if (longer != bytes.value()) {
        if (const Result<void> written = m_parts.files.write(m_parts.customFile, longer); !written)
            return written;
    }
    m_customSignature = m_parts.files.signature(m_parts.customFile);
    useCustomWords(readCustomDictionary(longer).words);
    return {};
}

} // namespace zephira
