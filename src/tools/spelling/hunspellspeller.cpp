// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/spelling/hunspellspeller.h"

#include <QFile>
#include <QFileInfo>

#include <hunspell/hunspell.hxx>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// Longer words are in no dictionary, and searching for similar ones would take long.
constexpr qsizetype longestWord = MAXWORDLEN;
constexpr qsizetype longestSuggested = 40;

/// Qt's name of a character set that a dictionary names.
QByteArray characterSet(const std::string &name)
{
    return QByteArray::fromStdString(name).replace("microsoft-cp", "windows-");
}

} // namespace

HunspellSpeller::HunspellSpeller() = default;

HunspellSpeller::~HunspellSpeller() = default;

Result<void> HunspellSpeller::open(const Dictionary &dictionary)
{
    // The library only complains about unreadable files on stderr, and every word is then wrong.
    for (const QString &ending : {u".aff"_s, u".dic"_s}) {
        if (!QFileInfo(dictionary.path + ending).isReadable()) {
            return Error{Error::Code::Unreadable,
                         u"The spelling dictionary %1 can't be read."_s.arg(dictionary.path + ending)};
        }
    }
    auto hunspell = std::make_unique<Hunspell>(QFile::encodeName(dictionary.path + u".aff"_s).constData(),
                                               QFile::encodeName(dictionary.path + u".dic"_s).constData());
    const QByteArray set = characterSet(hunspell->get_dict_encoding());
    QStringEncoder encode(set.constData());
    QStringDecoder decode(set.constData());
    if (!encode.isValid() || !decode.isValid()) {
        return Error{Error::Code::Malformed,
                     u"The spelling dictionary %1 has the unknown character set %2."_s.arg(dictionary.path,
                                                                                           QString::fromLatin1(set))};
    }
    m_hunspell = std::move(hunspell);
    m_encode = std::move(encode);
    m_decode = std::move(decode);
    return {};
}

/// The word in the dictionary's character set; empty if it has no such characters.
std::string HunspellSpeller::encoded(const QString &word)
{
    if (!m_hunspell || word.size() > longestWord)
        return {};
    m_encode.resetState();
    m_decode.resetState();
    // Not every encoder reports the characters that it replaces.
    const QByteArray bytes = m_encode.encode(word);
    return m_decode.decode(bytes) == word ? bytes.toStdString() : std::string();
}

bool HunspellSpeller::knows(const QString &word)
{
    const std::string bytes = encoded(word);
    return !bytes.empty() && m_hunspell->spell(bytes);
}

QStringList HunspellSpeller::suggestions(const QString &word)
{
    const std::string bytes = encoded(word);
    QStringList all;
    if (bytes.empty() || word.size() > longestSuggested)
        return all;
    for (const std::string &suggestion : m_hunspell->suggest(bytes)) {
        m_decode.resetState();
        all.append(m_decode.decode(QByteArrayView(suggestion.data(), static_cast<qsizetype>(suggestion.size()))));
    }
    return all;
}

void HunspellSpeller::add(const QString &word)
{
    if (const std::string bytes = encoded(word); !bytes.empty())
        m_hunspell->add(bytes);
}

void HunspellSpeller::remove(const QString &word)
{
    if (const std::string bytes = encoded(word); !bytes.empty())
        m_hunspell->remove(bytes);
}

} // namespace zephira
