// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/designer/entityhabits.h"

#include "core/entitynames.h"

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr char32_t noBreakSpace = 0xa0;
/// The longest name is "thetasym"; numbers may have some leading zeroes.
constexpr qsizetype longestReference = 16;

bool isAsciiAlphanumeric(QChar c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9');
}

/// Characters that are written as they are unless the author spelled them as references.
bool isEveryday(QChar c)
{
    return isAsciiAlphanumeric(c) || c == u' ' || c == u'\t';
}

/// Length of the reference after an ampersand, including "#" but not ";".
qsizetype referenceLength(QStringView text)
{
    qsizetype length = text.startsWith(u'#') ? 1 : 0;
    while (length < text.size() && length < longestReference && isAsciiAlphanumeric(text[length]))
        ++length;
    return length;
}

/// The code point at a position, which is moved past it.
char32_t nextCharacter(QStringView text, qsizetype &place)
{
    const QChar high = text[place++];
    if (high.isHighSurrogate() && place < text.size() && text[place].isLowSurrogate())
        return QChar::surrogateToUcs4(high, text[place++]);
    return high.unicode();
}

} // namespace

void EntityHabits::learn(QStringView source)
{
    qsizetype place = 0;
    while (place < source.size()) {
        if (source[place] == u'&') {
            const QStringView rest = source.sliced(place + 1);
            const qsizetype length = referenceLength(rest);
            if (const char32_t character = entityCharacter(rest.first(length))) {
                Habit &habit = m_habits[character];
                const QString spelling = u"&%1;"_s.arg(rest.first(length));
                if (habit.spelling.isEmpty())
                    habit.spelling = spelling;
                if (character >= m_plainAscii.size())
                    habit.all.append(spelling);
                place += 1 + length + rest.sliced(length).startsWith(u';');
                continue;
            }
        }
        const char32_t character = nextCharacter(source, place);
        if (character < m_plainAscii.size()) {
            m_plainAscii.set(character);
        } else {
            Habit &habit = m_habits[character];
            habit.seenPlain = true;
            habit.all.append(QString());
        }
    }
}

void EntityHabits::expect(QStringView characters, Progress &progress) const
{
    for (qsizetype place = 0; place < characters.size();) {
        const char32_t character = nextCharacter(characters, place);
        if (character >= m_plainAscii.size())
            ++progress.expected[character];
    }
}

QString EntityHabits::spellingOf(char32_t character, Progress *progress) const
{
    const auto habit = m_habits.constFind(character);
    if (progress && habit != m_habits.constEnd() && progress->expected.value(character) == habit->all.size()) {
        const qsizetype place = progress->written[character]++;
        if (const QString spelling = habit->all.value(place); !spelling.isEmpty())
            return spelling;
        if (character >= m_plainAscii.size())
            return QString::fromUcs4(&character, 1);
    }
    const bool isSpelled = habit != m_habits.constEnd() && !habit->spelling.isEmpty();
    const bool isPlain = character < m_plainAscii.size() ? m_plainAscii.test(character)
                                                         : habit != m_habits.constEnd() && habit->seenPlain;
    if (isSpelled && !isPlain)
        return habit->spelling;
    const bool staysPlain = isPlain && !isSpelled;
    switch (character) {
    case U'&':
        return u"&amp;"_s;
    case U'<':
        return m_place == Place::Value && !m_isXml ? u"<"_s : u"&lt;"_s;
    case U'>':
        return m_place == Place::Value || staysPlain ? u">"_s : u"&gt;"_s;
    case U'"':
        return m_place == Place::Value ? u"&quot;"_s : u"\""_s;
    case noBreakSpace:
        return staysPlain ? QString(QChar(noBreakSpace)) : m_isXml ? u"&#160;"_s : u"&nbsp;"_s;
    case U'\r':
        return u"&#13;"_s;
    case U'\n':
        return u"\r\n"_s;
    default:
        return QString::fromUcs4(&character, 1);
    }
}

QString EntityHabits::write(QStringView characters, Progress *progress) const
{
    QString text;
    text.reserve(characters.size());
    qsizetype done = 0;
    qsizetype place = 0;
    while (place < characters.size()) {
        // Runs of ordinary characters are copied at once; authors may spell even digits and letters, to hide an
        // address.
        const QChar c = characters[place];
        if (isEveryday(c) && !m_habits.contains(c.unicode())) {
            ++place;
            continue;
        }
        text += characters.sliced(done, place - done);
        const qsizetype before = place;
        const char32_t character = nextCharacter(characters, place);
        // An unpaired surrogate is no character and stays as it is.
        text += place == before + 1 && c.isSurrogate() ? QString(c) : spellingOf(character, progress);
        done = place;
    }
    text += characters.sliced(done);
    return text;
}

QString readEngineText(QStringView serialised)
{
    struct Spelling {
        QStringView text;
        char16_t character;
    };
    static constexpr Spelling spellings[] = {
        {u"&amp;", u'&'}, {u"&lt;", u'<'}, {u"&gt;", u'>'}, {u"&quot;", u'"'}, {u"&nbsp;", 0xa0},
    };
    QString text;
    text.reserve(serialised.size());
    qsizetype done = 0;
    for (qsizetype found = serialised.indexOf(u'&'); found >= 0; found = serialised.indexOf(u'&', done)) {
        text += serialised.sliced(done, found - done);
        done = found;
        for (const Spelling &spelling : spellings) {
            if (serialised.sliced(found).startsWith(spelling.text)) {
                text += QChar(spelling.character);
                done = found + spelling.text.size();
                break;
            }
        }
        if (done == found) {
            text += u'&';
            ++done;
        }
    }
    text += serialised.sliced(done);
    return text;
}

} // namespace zephira
