// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/spelling/spellcheck.h"

#include <QStringBuilder>

namespace zephira {

void SpellCheck::start(const QString &text)
{
    m_known.clear();
    m_replacements.clear();
    m_ignored.clear();
    m_changed.clear();
    m_copied = 0;
    m_text = text;
    goOn(0);
}

/// Goes to the first question at or after a place. The lexicon is asked about each word once, because a text has few
/// different words.
void SpellCheck::goOn(qsizetype from)
{
    const QStringView text(m_text);
    for (m_word = nextWord(text, from); m_word.length > 0; m_word = nextWord(text, m_word.end())) {
        const QStringView word = text.sliced(m_word.start, m_word.length);
        if (m_known.contains(word))
            continue;
        const QString whole = word.toString();
        if (const auto change = m_replacements.constFind(whole); change != m_replacements.cend())
            replace(*change);
        else if (m_ignored.contains(whole) || m_lexicon.knows(word))
            m_known.insert(word);
        else
            return;
    }
}

void SpellCheck::replace(const QString &replacement)
{
    m_changed += QStringView(m_text).sliced(m_copied, m_word.start - m_copied);
    m_changed += replacement;
    m_copied = m_word.end();
}

void SpellCheck::change(const QString &replacement)
{
    if (!isAsking())
        return;
    replace(replacement);
    goOn(m_word.end());
}

void SpellCheck::changeAll(const QString &replacement)
{
    if (!isAsking())
        return;
    m_replacements.insert(word(), replacement);
    goOn(m_word.start);
}

void SpellCheck::ignore()
{
    if (isAsking())
        goOn(m_word.end());
}

void SpellCheck::ignoreAll()
{
    if (!isAsking())
        return;
    m_ignored.insert(word());
    goOn(m_word.end());
}

Result<void> SpellCheck::add()
{
    if (!isAsking())
        return {};
    if (const Result<void> added = m_lexicon.add(word()); !added)
        return added;
    goOn(m_word.end());
    return {};
}

Result<void> SpellCheck::choose(const QString &dictionary)
{
    if (const Result<void> chosen = m_lexicon.choose(dictionary); !chosen)
        return chosen;
    m_known.clear();
    if (isAsking())
        goOn(m_word.start);
    return {};
}

void SpellCheck::stop()
{
    m_word = {};
}

QString SpellCheck::text() const
{
    return m_changed % QStringView(m_text).sliced(m_copied);
}

} // namespace zephira
