// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/designer/pageplace.h"

#include "web/designer/characterspans.h"
#include "web/designer/pagescan.h"

#include <algorithm>
#include <span>
#include <string_view>
#include <vector>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// How many characters of the text behind a tag are compared.
constexpr qsizetype comparedCharacters = 32;
/// How many parts of a page are searched for them, and how far from the expected element others are compared.
constexpr size_t comparedParts = 400;
constexpr qsizetype farthestCompared = 100;

/// What a start tag means for places that are counted from tags.
enum class TagRole {
    Anchor,     ///< places are counted from it
    Leaf,       ///< the same, but what is in the element doesn't count
    Unseen,     ///< what is in the element doesn't count, and nor does the tag
    Passed,     ///< the engine may have more or fewer of it
    Body,       ///< there is only one
    LineKeeper, ///< an anchor; a line end right behind the tag isn't part of the text
};

struct NamedRole {
    std::u16string_view name;
    TagRole role;
};

/// In the order of the names.
constexpr NamedRole roles[] = {
    {u"a", TagRole::Passed},           {u"b", TagRole::Passed},       {u"base", TagRole::Passed},
    {u"basefont", TagRole::Passed},    {u"bgsound", TagRole::Passed}, {u"big", TagRole::Passed},
    {u"body", TagRole::Body},          {u"code", TagRole::Passed},    {u"colgroup", TagRole::Passed},
    {u"em", TagRole::Passed},          {u"font", TagRole::Passed},    {u"frameset", TagRole::Passed},
    {u"head", TagRole::Passed},        {u"html", TagRole::Passed},    {u"i", TagRole::Passed},
    {u"iframe", TagRole::Leaf},        {u"image", TagRole::Passed},   {u"link", TagRole::Passed},
    {u"listing", TagRole::LineKeeper}, {u"math", TagRole::Leaf},      {u"meta", TagRole::Passed},
    {u"nobr", TagRole::Passed},        {u"noembed", TagRole::Unseen}, {u"noframes", TagRole::Unseen},
    {u"noscript", TagRole::Unseen},    {u"pre", TagRole::LineKeeper}, {u"s", TagRole::Passed},
    {u"script", TagRole::Unseen},      {u"select", TagRole::Leaf},    {u"small", TagRole::Passed},
    {u"strike", TagRole::Passed},      {u"strong", TagRole::Passed},  {u"style", TagRole::Unseen},
    {u"svg", TagRole::Leaf},           {u"tbody", TagRole::Passed},   {u"template", TagRole::Unseen},
    {u"textarea", TagRole::Leaf},      {u"title", TagRole::Unseen},   {u"tt", TagRole::Passed},
    {u"u", TagRole::Passed},
};
static_assert(std::ranges::is_sorted(roles, {}, &NamedRole::name));
constexpr qsizetype longestName = 8;

TagRole roleOf(QStringView name)
{
    if (name.size() > longestName)
        return TagRole::Anchor;
    char16_t lower[longestName];
    std::ranges::transform(name, lower, [](QChar c) { return c.isUpper() ? c.toLower().unicode() : c.unicode(); });
    const std::u16string_view wanted(lower, static_cast<size_t>(name.size()));
    const auto *const found = std::ranges::lower_bound(roles, wanted, {}, &NamedRole::name);
    return found != std::end(roles) && found->name == wanted ? found->role : TagRole::Anchor;
}

bool isAnchor(TagRole role)
{
    return role == TagRole::Anchor || role == TagRole::Leaf || role == TagRole::LineKeeper;
}

bool isNamed(QStringView name, QStringView wanted)
{
    return name.compare(wanted, Qt::CaseInsensitive) == 0;
}

bool isBlank(char32_t c)
{
    return c == U' ' || c == U'\t' || c == U'\n' || c == U'\r' || c == U'\f';
}

qsizetype unitsOf(const CharacterSpan &span)
{
    return QChar::requiresSurrogates(span.character) ? 2 : 1;
}

/// What is visible of a page: its tags, its text, and what stands between them.
struct PagePart {
    enum class Kind { StartTag, EndTag, Text, Other };

    Kind kind = Kind::Other;
    qsizetype begin = 0;
    qsizetype end = 0;
    QStringView name = {};
    TagRole role = TagRole::Anchor;
    References references = References::None;
};

/// Reads the parts of a page one after the other. Elements of which nothing is visible are Other.
class PartReader
{
public:
    explicit PartReader(QStringView source) : m_source(source), m_pieces(scanPage(source)) {}

    bool isAtEnd() const { return m_at == m_pieces.size(); }

    PagePart next()
    {
        const PagePiece &piece = m_pieces[m_at++];
        PagePart part{PagePart::Kind::Other, piece.begin, piece.end};
        if (piece.kind == PieceKind::Markup)
            readTag(piece, part);
        else if (!m_hidden.isEmpty())
            return part;
        else if (piece.kind == PieceKind::Text || piece.kind == PieceKind::PlainText)
            readText(part, References::InText);
        else if (piece.kind == PieceKind::RawText)
            readText(part, References::None);
        m_afterLineKeeper = part.kind == PagePart::Kind::StartTag && part.role == TagRole::LineKeeper;
        return part;
    }

private:
    void readTag(const PagePiece &piece, PagePart &part)
    {
        bool isEnd = false;
        part.name = tagNameOf(piece.in(m_source), &isEnd);
        // The rest of the tag follows, in pieces.
        while (m_at < m_pieces.size() && !isEndOfTag(m_pieces[m_at - 1]))
            part.end = m_pieces[m_at++].end;
        if (part.name.isEmpty())
            return;
        if (!m_hidden.isEmpty()) {
            if (isEnd && isNamed(part.name, m_hidden))
                m_hidden = {};
            return;
        }
        part.role = roleOf(part.name);
        part.kind = isEnd ? PagePart::Kind::EndTag : PagePart::Kind::StartTag;
        const bool hides = part.role == TagRole::Leaf || part.role == TagRole::Unseen;
        if (hides && !isEnd && !(part.end - part.begin > 1 && m_source[part.end - 2] == u'/' && isForeign(part.name)))
            m_hidden = part.name;
        if (part.role == TagRole::Unseen)
            part.kind = PagePart::Kind::Other;
    }

    static bool isForeign(QStringView name) { return isNamed(name, u"svg") || isNamed(name, u"math"); }

    bool isEndOfTag(const PagePiece &piece) const
    {
        return piece.kind == PieceKind::Markup && piece.in(m_source).endsWith(u'>');
    }

    void readText(PagePart &part, References references)
    {
        part.kind = PagePart::Kind::Text;
        part.references = references;
        if (m_afterLineKeeper && QStringView(u"\r\n").contains(m_source[part.begin]))
            part.begin = characterAt(m_source.sliced(0, part.end), part.begin, References::None).end;
    }

    const QStringView m_source;
    const std::vector<PagePiece> m_pieces;
    size_t m_at = 0;
    /// The name of the element of which nothing is visible, as long as it hasn't ended.
    QStringView m_hidden;
    bool m_afterLineKeeper = false;
};

/// Passes over the characters of a text from `place` on while `goesOn`, given a character and where it ends, is true.
/// Returns where it stopped.
template<typename Predicate>
qsizetype passCharacters(QStringView source, const PagePart &text, Predicate goesOn)
{
    const QStringView page = source.first(text.end);
    qsizetype place = text.begin;
    while (place < text.end) {
        const CharacterSpan span = characterAt(page, place, text.references);
        if (!goesOn(span))
            break;
        place = span.end;
    }
    return place;
}

std::vector<PagePart> partsOf(QStringView source)
{
    std::vector<PagePart> parts;
    PartReader reader(source);
    while (!reader.isAtEnd())
        parts.push_back(reader.next());
    return parts;
}

/// The text that comes first in these parts, without blanks.
QString followingText(QStringView source, std::span<const PagePart> parts)
{
    QString following;
    for (const PagePart &part : parts.first(std::min(parts.size(), comparedParts))) {
        if (part.kind != PagePart::Kind::Text)
            continue;
        passCharacters(source, part, [&](const CharacterSpan &span) {
            if (!isBlank(span.character))
                following += QStringView(QString::fromUcs4(&span.character, 1));
            return following.size() < comparedCharacters;
        });
        if (following.size() >= comparedCharacters)
            break;
    }
    return following.first(std::min(following.size(), comparedCharacters));
}

/// The index behind the start tag of the element from which a place is counted, or nothing.
std::optional<size_t> findAnchor(QStringView source, std::span<const PagePart> parts, const PagePlace &place)
{
    std::vector<size_t> found;
    for (size_t index = 0; index < parts.size(); ++index) {
        if (parts[index].kind == PagePart::Kind::StartTag && isNamed(parts[index].name, place.anchor))
            found.push_back(index + 1);
    }
    if (found.empty())
        return {};
    // The nearest one with the same text, or else the one with the number.
    const auto count = static_cast<qsizetype>(found.size());
    const qsizetype wanted = std::clamp<qsizetype>(place.number, 0, count - 1);
    for (qsizetype distance = 0; distance <= farthestCompared; ++distance) {
        for (const qsizetype number : {wanted - distance, wanted + distance}) {
            if (number < 0 || number >= count)
                continue;
            const size_t index = found[static_cast<size_t>(number)];
            if (followingText(source, parts.subspan(index)) == place.following)
                return index;
        }
    }
    return found[static_cast<size_t>(wanted)];
}

} // namespace

PagePlace pagePlace(QStringView source, qsizetype position)
{
    const std::vector<PagePart> parts = partsOf(source);
    PagePlace place;
    size_t behindAnchor = 0;
    size_t index = 0;
    for (; index < parts.size() && parts[index].begin < position; ++index) {
        const PagePart &part = parts[index];
        const bool isStart = part.kind == PagePart::Kind::StartTag;
        const bool isAnchored = !place.anchor.isEmpty();
        if (isStart && (isAnchor(part.role) || part.role == TagRole::Body)) {
            behindAnchor = index + 1;
            place = {isAnchor(part.role) ? part.name.toString().toLower() : QString()};
        } else if (part.kind == PagePart::Kind::EndTag && !isAnchored && isNamed(part.name, u"head")) {
            place = {};
        } else if (part.kind == PagePart::Kind::Text) {
            passCharacters(source, part, [&](const CharacterSpan &span) {
                if (span.end > position)
                    return false;
                place.characters += unitsOf(span);
                place.isBehindTags = false;
                return true;
            });
        } else if (isStart || part.end <= position) {
            place.isBehindTags = true;
        }
    }
    if (place.anchor.isEmpty())
        return place;
    const std::span<const PagePart> all(parts);
    place.number = std::ranges::count_if(all.first(behindAnchor - 1), [&](const PagePart &part) {
        return part.kind == PagePart::Kind::StartTag && isNamed(part.name, place.anchor);
    });
    place.following = followingText(source, all.subspan(behindAnchor));
    return place;
}

std::optional<qsizetype> positionOf(QStringView source, const PagePlace &place)
{
    const std::vector<PagePart> parts = partsOf(source);
    size_t index = 0;
    if (!place.anchor.isEmpty()) {
        const std::optional<size_t> anchor = findAnchor(source, parts, place);
        if (!anchor)
            return {};
        index = *anchor;
    } else {
        const auto begins = [](const PagePart &part) {
            return (part.kind == PagePart::Kind::StartTag && part.role == TagRole::Body)
                || (part.kind == PagePart::Kind::EndTag && isNamed(part.name, u"head"));
        };
        // Behind the last tag that may precede the content.
        const auto last = std::find_if(parts.rbegin(), parts.rend(), begins);
        index = static_cast<size_t>(parts.rend() - last);
    }
    // A line end between a tag and its text may belong to neither.
    const bool isAtText = index < parts.size() && parts[index].kind == PagePart::Kind::Text;
    qsizetype position = isAtText ? parts[index].begin : index > 0 ? parts[index - 1].end : 0;
    qsizetype missing = place.characters;
    for (; index < parts.size(); ++index) {
        const PagePart &part = parts[index];
        const bool isThere = missing == 0;
        if (isThere && !place.isBehindTags)
            break;
        if (part.kind == PagePart::Kind::Text) {
            if (isThere)
                return part.begin;
            position = passCharacters(source, part, [&](const CharacterSpan &span) {
                if (missing < unitsOf(span))
                    return false;
                missing -= unitsOf(span);
                return true;
            });
            if (position < part.end)
                break;
        } else if (part.kind == PagePart::Kind::StartTag && isAnchor(part.role)) {
            return isThere ? part.begin : position;
        } else if (isThere) {
            if (part.kind == PagePart::Kind::EndTag && isNamed(part.name, place.parent))
                break;
            position = part.end;
        }
    }
    return position;
}

} // namespace zephira
