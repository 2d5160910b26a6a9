// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/spelling/lexicon.h"
#include "tools/spelling/words.h"

#include <QHash>
#include <QSet>
#include <QString>

namespace zephira {

/// The check of one text after another, question by question. Each question is about a word that the lexicon doesn't
/// know; it is answered by one of the functions below, which go on to the next question. Words are told apart by
/// case. While there is no question, the answers do nothing.
class SpellCheck
{
public:
    explicit SpellCheck(const Lexicon::Parts &parts) : m_lexicon(parts) {}
    Q_DISABLE_COPY_MOVE(SpellCheck)

    /// Goes to the first question of a text. What was answered for earlier texts is forgotten.
    void start(const QString &text);

    bool isAsking() const { return m_word.length > 0; }
    /// The word in question.
    QString word() const { return m_text.sliced(m_word.start, m_word.length); }
    /// The word in the original text.
    Excerpt sentence() const { return sentenceAround(m_text, m_word); }

    void change(const QString &replacement);
    /// Changes this word and its later occurrences in the text.
    void changeAll(const QString &replacement);
    void ignore();
    /// Ignores this word and its later occurrences in the text.
    void ignoreAll();
    /// Adds the word to the user's own; if that fails, the question stays.
    Result<void> add();
    /// Uses another dictionary from the current word on; if that fails, the question stays.
    Result<void> choose(const QString &dictionary);
    /// Leaves the remaining text as it is.
    void stop();

    /// The text with the changes made so far, and whether there are any.
    QString text() const;
    bool isChanged() const { return text() != m_text; }

    Lexicon &lexicon() { return m_lexicon; }

private:
    void goOn(qsizetype from);
    void replace(const QString &replacement);

    Lexicon m_lexicon;
    QString m_text;
    TextPlace m_word;
    /// The changed text up to the last change, and where that is in the original.
    QString m_changed;
    qsizetype m_copied = 0;
    /// Views of the original text.
    QSet<QStringView> m_known;
    QHash<QString, QString> m_replacements;
    QSet<QString> m_ignored;
};

} // namespace zephira
