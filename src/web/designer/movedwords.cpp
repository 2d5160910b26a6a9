// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/designer/movedwords.h"

#include <algorithm>

namespace zephira {

namespace {

using TokenList = std::vector<PageToken>;

/// How many words of the source are looked through for one of the loaded page.
constexpr size_t farthestWord = 64;

bool isWord(const PageToken &token, QStringView page)
{
    return token.kind == TokenKind::Text && !QStringView(u" \t\r\n\f").contains(token.in(page).front());
}

class OtherPlaces
{
public:
    OtherPlaces(QStringView source, const TokenList &sourceTokens, QStringView loaded, const TokenList &tokens,
                std::span<const int> partners)
        : m_source(source)
        , m_sourceTokens(sourceTokens)
        , m_loaded(loaded)
        , m_tokens(tokens)
        , m_partners(partners)
        , m_isTaken(sourceTokens.size())
    {
        for (const int partner : partners) {
            if (partner >= 0)
                m_isTaken[static_cast<size_t>(partner)] = true;
        }
    }

    QHash<int, std::vector<int>> find()
    {
        findJoined();
        findMoved();
        return std::move(m_places);
    }

private:
    const PageToken &sourceToken(int index) const { return m_sourceTokens[static_cast<size_t>(index)]; }
    const PageToken &token(int index) const { return m_tokens[static_cast<size_t>(index)]; }
    bool isFree(int index) const
    {
        return m_partners[static_cast<size_t>(index)] < 0 && !m_places.contains(index)
            && token(index).kind == TokenKind::Text;
    }
    bool isFreeInSource(int index) const
    {
        return !m_isTaken[static_cast<size_t>(index)] && sourceToken(index).kind == TokenKind::Text;
    }

    void take(int index, const std::vector<int> &places)
    {
        for (const int place : places)
            m_isTaken[static_cast<size_t>(place)] = true;
        m_places.insert(index, places);
    }

    /// Between each two partners, compares the words of both sides in order.
    void findJoined()
    {
        int sourceBegin = 0;
        int begin = 0;
        const int count = static_cast<int>(m_tokens.size());
        for (int index = 0; index <= count; ++index) {
            const int partner =
                index < count ? m_partners[static_cast<size_t>(index)] : static_cast<int>(m_sourceTokens.size());
            if (partner < 0)
                continue;
            if (begin < index && sourceBegin < partner)
                findJoinedIn(sourceBegin, partner, begin, index);
            sourceBegin = partner + 1;
            begin = index + 1;
        }
    }

    void findJoinedIn(int sourceBegin, int sourceEnd, int begin, int end)
    {
        std::vector<int> words;
        for (int place = sourceBegin; place < sourceEnd; ++place) {
            if (isFreeInSource(place))
                words.push_back(place);
        }
        size_t next = 0;
        for (int index = begin; index < end && next < words.size(); ++index) {
            if (!isFree(index) || !isWord(token(index), m_loaded))
                continue;
            QString whole;
            appendRead(token(index).in(m_loaded), token(index).references, whole);
            for (size_t first = next; first < std::min(words.size(), next + farthestWord); ++first) {
                const auto ahead = std::span(words).subspan(first, std::min(words.size() - first, farthestWord));
                const std::vector<int> parts = partsOf(whole, ahead);
                if (parts.size() < 2)
                    continue;
                next = static_cast<size_t>(std::ranges::upper_bound(words, parts.back()) - words.begin());
                take(index, parts);
                break;
            }
        }
    }

    /// The words from the first one on that make the whole one together, or nothing. Some between them may be left out:
    /// the engine has dropped them with their element.
    std::vector<int> partsOf(QStringView whole, std::span<const int> words) const
    {
        std::vector<int> parts;
        for (const int place : words) {
            QString read;
            appendRead(sourceToken(place).in(m_source), sourceToken(place).references, read);
            if (whole.startsWith(read)) {
                parts.push_back(place);
                whole = whole.sliced(read.size());
            }
            if (parts.empty() || whole.isEmpty())
                break;
        }
        return whole.isEmpty() ? parts : std::vector<int>();
    }

    /// Words that are there once in what is left of each side, and their neighbours.
    void findMoved()
    {
        struct Where {
            int count = 0;
            int place = 0;
        };
        QHash<int, Where> inSource;
        QHash<int, Where> inLoaded;
        const auto note = [](QHash<int, Where> &all, int key, int place) {
            Where &where = all[key];
            where = {where.count + 1, place};
        };
        for (int place = 0; place < static_cast<int>(m_sourceTokens.size()); ++place) {
            if (isFreeInSource(place) && isWord(sourceToken(place), m_source))
                note(inSource, sourceToken(place).key, place);
        }
        if (inSource.isEmpty())
            return;
        for (int index = 0; index < static_cast<int>(m_tokens.size()); ++index) {
            if (isFree(index) && isWord(token(index), m_loaded))
                note(inLoaded, token(index).key, index);
        }
        for (int index = 0; index < static_cast<int>(m_tokens.size()); ++index) {
            if (!isFree(index) || inLoaded.value(token(index).key).count != 1)
                continue;
            const Where where = inSource.value(token(index).key);
            if (where.count != 1 || !isFreeInSource(where.place))
                continue;
            take(index, {where.place});
            takeNeighbours(index, where.place, -1);
            takeNeighbours(index, where.place, 1);
        }
    }

    void takeNeighbours(int index, int place, int step)
    {
        const int count = static_cast<int>(m_tokens.size());
        const int sourceCount = static_cast<int>(m_sourceTokens.size());
        for (;;) {
            index += step;
            place += step;
            if (index < 0 || place < 0 || index >= count || place >= sourceCount || !isFree(index)
                || !isFreeInSource(place) || token(index).key != sourceToken(place).key)
                return;
            take(index, {place});
        }
    }

    const QStringView m_source;
    const TokenList &m_sourceTokens;
    const QStringView m_loaded;
    const TokenList &m_tokens;
    const std::span<const int> m_partners;
    std::vector<bool> m_isTaken;
    QHash<int, std::vector<int>> m_places;
};

} // namespace

QHash<int, std::vector<int>> otherPlaces(QStringView source, const std::vector<PageToken> &sourceTokens,
                                         QStringView loaded, const std::vector<PageToken> &tokens,
                                         std::span<const int> partners)
{
    return OtherPlaces(source, sourceTokens, loaded, tokens, partners).find();
}

} // namespace zephira
