// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/designer/pagemerge.h"

#include "web/designer/movedwords.h"
#include "web/designer/tagparts.h"
#include "web/designer/tokenmatch.h"

#include <QHash>

#include <algorithm>
#include <numeric>
#include <span>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// How many tokens an addition or removal is moved at most.
constexpr int farthestMove = 200;

std::vector<int> keysOf(const std::vector<PageToken> &tokens)
{
    std::vector<int> keys(tokens.size());
    std::ranges::transform(tokens, keys.begin(), &PageToken::key);
    return keys;
}

/// The source ends before the page's own end tags. Those that stand within it mean nothing to the engine, and must not
/// be taken for the ones that it writes at the end.
std::vector<PageToken> withoutEarlyEnds(std::vector<PageToken> tokens, QStringView page, TokenKeys &keys)
{
    const int stray = keys.keyOf(u"\u0002");
    for (PageToken &token : tokens) {
        if (token.kind != TokenKind::EndTag)
            continue;
        const QStringView name = readTag(page, token.begin).name(page);
        if (name.compare(u"body", Qt::CaseInsensitive) == 0 || name.compare(u"html", Qt::CaseInsensitive) == 0)
            token.key = stray;
    }
    return tokens;
}

/// The markup without the page's own end tags, which the source ends before.
QStringView withoutPageEnd(QStringView markup)
{
    for (const QStringView tag : {QStringView(u"</html>"), QStringView(u"</body>")}) {
        if (!markup.endsWith(tag))
            break;
        markup.chop(tag.size());
    }
    return markup;
}

/// The entry at an index that isn't negative.
template<typename List>
auto &at(List &list, int index)
{
    return list[static_cast<size_t>(index)];
}

int countOf(const std::vector<PageToken> &tokens)
{
    return static_cast<int>(tokens.size());
}

std::span<const PageToken> part(const std::vector<PageToken> &tokens, int begin, int end)
{
    return std::span(tokens).subspan(static_cast<size_t>(begin), static_cast<size_t>(end - begin));
}

QString lowerName(const TagAttribute &attribute, QStringView page)
{
    return attribute.name(page).toString().toLower();
}

QString readValue(const TagAttribute &attribute, QStringView page)
{
    QString value;
    appendRead(attribute.value(page), References::InValue, value);
    return value;
}

} // namespace

PageAlignment::PageAlignment(QString source, QString loaded)
    : m_source(std::move(source))
    , m_loaded(std::move(loaded))
    , m_sourceTokens(withoutEarlyEnds(pageTokens(m_source, m_keys), m_source, m_keys))
    , m_tokens(pageTokens(m_loaded, m_keys))
    , m_inSource(partnersIn(keysOf(m_sourceTokens), keysOf(m_tokens), m_keys.count()))
{
    findElements();
    m_otherPlaces = otherPlaces(m_source, m_sourceTokens, m_loaded, m_tokens, m_inSource);
}

std::span<const int> PageAlignment::originsOf(int token) const
{
    const int &partner = at(m_inSource, token);
    if (partner >= 0)
        return {&partner, 1};
    const auto other = m_otherPlaces.constFind(token);
    return other != m_otherPlaces.constEnd() ? std::span<const int>(*other) : std::span<const int>();
}

void PageAlignment::findElements()
{
    m_openAt.assign(m_tokens.size() + 1, -1);
    m_endOf.assign(m_tokens.size(), -1);
    std::vector<int> open;
    for (int index = 0; index < countOf(m_tokens); ++index) {
        at(m_openAt, index) = open.empty() ? -1 : open.back();
        const PageToken &token = at(m_tokens, index);
        if (token.kind == TokenKind::StartTag && !token.isVoid) {
            open.push_back(index);
        } else if (token.kind == TokenKind::EndTag && !open.empty()) {
            at(m_endOf, open.back()) = index;
            open.pop_back();
        }
    }
    m_openAt.back() = open.empty() ? -1 : open.back();
}

PageMerge::PageMerge(PageAlignment &alignment, QString edited, MarkupWriter write)
    : m_page(alignment)
    , m_edited(std::move(edited))
    , m_write(std::move(write))
    , m_editedTokens(pageTokens(m_edited, alignment.m_keys))
    , m_inEdited(partnersIn(keysOf(m_editedTokens), keysOf(m_page.m_tokens), alignment.m_keys.count()))
{
    findHunks();
}

void PageMerge::findHunks()
{
    const int count = countOf(m_page.m_tokens);
    const int editedCount = countOf(m_editedTokens);
    int index = 0;
    int edited = 0;
    while (index < count || edited < editedCount) {
        if (index < count && at(m_inEdited, index) == edited) {
            ++index;
            ++edited;
            continue;
        }
        MergeHunk hunk{index, index, edited, edited};
        while (hunk.end < count && at(m_inEdited, hunk.end) < 0)
            ++hunk.end;
        hunk.editedEnd = hunk.end < count ? at(m_inEdited, hunk.end) : editedCount;
        moveToElements(hunk);
        m_hunks.push_back(hunk);
        index = hunk.end;
        edited = hunk.editedEnd;
    }
}

/// Whether a hunk that adds or removes tokens adds or removes elements as a whole.
bool PageMerge::isWhole(const MergeHunk &hunk) const
{
    const auto tokens = hunk.begin < hunk.end ? part(m_page.m_tokens, hunk.begin, hunk.end)
                                              : part(m_editedTokens, hunk.editedBegin, hunk.editedEnd);
    if (tokens.front().kind != TokenKind::StartTag)
        return false;
    int depth = 0;
    for (const PageToken &token : tokens) {
        depth += token.kind == TokenKind::StartTag && !token.isVoid;
        depth -= token.kind == TokenKind::EndTag;
        if (depth < 0)
            return false;
    }
    return depth == 0;
}

/// Whether a hunk that adds or removes tokens means the same one token before its place, for the step -1, or after it.
bool PageMerge::canMove(const MergeHunk &hunk, int step) const
{
    const int place = step < 0 ? hunk.begin - 1 : hunk.end;
    const int edited = step < 0 ? hunk.editedBegin - 1 : hunk.editedEnd;
    if (place < 0 || place >= countOf(m_page.m_tokens) || edited < 0 || at(m_inEdited, place) != edited)
        return false;
    const PageToken &opposite = hunk.begin < hunk.end
        ? at(m_page.m_tokens, step < 0 ? hunk.end - 1 : hunk.begin)
        : at(m_editedTokens, step < 0 ? hunk.editedEnd - 1 : hunk.editedBegin);
    return at(m_page.m_tokens, place).key == opposite.key;
}

/// Of the places where the tokens could as well have been added or removed, such as a row behind the start tag of
/// another one, takes one where they are whole elements.
void PageMerge::moveToElements(MergeHunk &hunk)
{
    const bool isOneSided = (hunk.begin == hunk.end) != (hunk.editedBegin == hunk.editedEnd);
    if (!isOneSided || isWhole(hunk))
        return;
    for (const int step : {-1, 1}) {
        MergeHunk moved = hunk;
        int distance = 0;
        while (distance < farthestMove && canMove(moved, step) && !isWhole(moved)) {
            moved.begin += step;
            moved.end += step;
            moved.editedBegin += step;
            moved.editedEnd += step;
            ++distance;
        }
        if (!isWhole(moved))
            continue;
        std::fill(m_inEdited.begin() + moved.begin, m_inEdited.begin() + moved.end, -1);
        const MergeHunk &first = step < 0 ? moved : hunk;
        const int place = step < 0 ? first.end : first.begin;
        const int edited = step < 0 ? first.editedEnd : first.editedBegin;
        std::iota(m_inEdited.begin() + place, m_inEdited.begin() + place + distance, edited);
        hunk = moved;
        return;
    }
}

QStringView PageMerge::editedText(int begin, int end) const
{
    if (begin >= end)
        return {};
    const qsizetype first = at(m_editedTokens, begin).begin;
    return QStringView(m_edited).sliced(first, at(m_editedTokens, end - 1).end - first);
}

/// The edited page's tokens as they are written into the source.
QString PageMerge::writtenText(int begin, int end) const
{
    return m_write(withoutPageEnd(editedText(begin, end)));
}

/// Text without references is written as it is, apart from its line ends.
QString PageMerge::written(QStringView markup, References references) const
{
    if (references != References::None)
        return m_write(markup);
    const QString lineEnd = m_write(u"\n");
    return markup.toString().replace(u'\n', lineEnd);
}

/// Whether each token of the loaded page has a partner in the source, and these stand side by side.
bool PageMerge::haveContiguousPartners(const MergeHunk &hunk) const
{
    for (int index = hunk.begin; index < hunk.end; ++index) {
        const int partner = at(m_page.m_inSource, index);
        if (partner < 0 || (index > hunk.begin && partner != at(m_page.m_inSource, index - 1) + 1))
            return false;
    }
    return hunk.begin < hunk.end;
}

/// The change of a hunk that is text on both sides: only the characters that differ.
std::optional<TextChanges> PageMerge::textChange(const MergeHunk &hunk) const
{
    const auto isText = [](const PageToken &token) { return token.kind == TokenKind::Text; };
    const auto editedTokens = part(m_editedTokens, hunk.editedBegin, hunk.editedEnd);
    if (!std::ranges::all_of(part(m_page.m_tokens, hunk.begin, hunk.end), isText)
        || !std::ranges::all_of(editedTokens, isText))
        return {};
    const std::vector<PlacedCharacter> before = placedCharacters(hunk);
    if (before.empty())
        return {};
    const QStringView text = editedText(hunk.editedBegin, hunk.editedEnd);
    const std::vector<CharacterSpan> after = characterSpans(text, at(m_page.m_tokens, hunk.begin).references);
    const auto isSame = [](const PlacedCharacter &one, const CharacterSpan &other) {
        return one.character == other.character;
    };
    const size_t most = std::min(before.size(), after.size());
    size_t first = 0;
    while (first < most && isSame(before[first], after[first]))
        ++first;
    size_t last = 0;
    while (last < most - first && isSame(before[before.size() - 1 - last], after[after.size() - 1 - last]))
        ++last;
    const std::span<const PlacedCharacter> gone = std::span(before).subspan(first, before.size() - last - first);
    const auto in = [&](size_t index) { return index < after.size() ? after[index].begin : text.size(); };
    const QStringView come = text.sliced(in(first), in(after.size() - last) - in(first));
    if (gone.empty()) {
        const PlacedCharacter &beside = before[first > 0 ? first - 1 : 0];
        const qsizetype place = first > 0 ? beside.end : beside.begin;
        return TextChanges{{place, place, written(come, beside.references)}};
    }
    // Tags that the engine has dropped between the characters stay.
    TextChanges changes{{gone.front().begin, gone.front().begin, written(come, gone.front().references)}};
    for (const PlacedCharacter &each : gone) {
        if (each.begin != changes.back().end)
            changes.push_back({each.begin, each.begin, {}});
        changes.back().end = each.end;
    }
    return changes;
}

/// The characters of a hunk that is text, where they stand in the source; nothing if that isn't known of all.
std::vector<PageMerge::PlacedCharacter> PageMerge::placedCharacters(const MergeHunk &hunk) const
{
    std::vector<PlacedCharacter> characters;
    for (int token = hunk.begin; token < hunk.end; ++token) {
        const std::span<const int> origins = m_page.originsOf(token);
        if (origins.empty())
            return {};
        for (const int origin : origins) {
            const PageToken &source = at(m_page.m_sourceTokens, origin);
            for (const CharacterSpan &each : characterSpans(source.in(m_page.m_source), source.references))
                characters.push_back(
                    {each.character, source.begin + each.begin, source.begin + each.end, source.references});
        }
    }
    return characters;
}

/// The changes of a hunk in which the same tags have other attributes.
std::optional<TextChanges> PageMerge::tagChanges(const MergeHunk &hunk) const
{
    if (hunk.end - hunk.begin != hunk.editedEnd - hunk.editedBegin)
        return {};
    TextChanges changes;
    for (int step = 0; step < hunk.end - hunk.begin; ++step) {
        const PageToken &token = at(m_page.m_tokens, hunk.begin + step);
        const PageToken &edited = at(m_editedTokens, hunk.editedBegin + step);
        if (token.key == edited.key)
            continue;
        if (token.kind != TokenKind::StartTag || edited.kind != TokenKind::StartTag)
            return {};
        const TagParts tag = readTag(m_page.m_loaded, token.begin);
        const TagParts editedTag = readTag(m_edited, edited.begin);
        if (tag.name(m_page.m_loaded).compare(editedTag.name(m_edited), Qt::CaseInsensitive) != 0)
            return {};
        const PageToken &written = at(m_page.m_sourceTokens, at(m_page.m_inSource, hunk.begin + step));
        std::ranges::move(attributeChanges(written, edited), std::back_inserter(changes));
    }
    return changes;
}

/// The attribute as it is written in the source, with a blank before it.
QString PageMerge::writtenAttribute(QStringView attribute) const
{
    constexpr QStringView opening = u"<a";
    constexpr QStringView closing = u">";
    QString plain = opening.toString();
    plain.append(u' ').append(attribute).append(closing);
    const QString tag = m_write(plain);
    return tag.sliced(opening.size()).chopped(closing.size());
}

TextChanges PageMerge::attributeChanges(const PageToken &tag, const PageToken &editedTag) const
{
    const QStringView source = m_page.m_source;
    const TagParts parts = readTag(source, tag.begin);
    const TagParts editedParts = readTag(m_edited, editedTag.begin);
    QHash<QString, const TagAttribute *> wanted;
    for (const TagAttribute &attribute : editedParts.attributes)
        wanted.insert(lowerName(attribute, m_edited), &attribute);
    const auto editedAttribute = [&](const TagAttribute &attribute) {
        return QStringView(m_edited).sliced(attribute.nameBegin, attribute.end - attribute.nameBegin);
    };
    TextChanges changes;
    QHash<QString, const TagAttribute *> present;
    for (const TagAttribute &attribute : parts.attributes) {
        const QString name = lowerName(attribute, source);
        const TagAttribute *other = wanted.value(name);
        if (!other) {
            changes.push_back({attribute.begin, attribute.end, {}});
            continue;
        }
        if (!attribute.isRepeated) {
            present.insert(name, &attribute);
            if (readValue(attribute, source) != readValue(*other, m_edited)) {
                const QString text = writtenAttribute(editedAttribute(*other));
                const qsizetype sign = text.indexOf(u'=');
                changes.push_back({attribute.nameEnd, attribute.end, sign < 0 ? QString() : text.sliced(sign)});
            }
        }
    }
    QString added;
    for (const TagAttribute &attribute : editedParts.attributes) {
        if (!present.contains(lowerName(attribute, m_edited)))
            added += writtenAttribute(editedAttribute(attribute));
    }
    if (!added.isEmpty()) {
        const qsizetype place = parts.attributes.empty() ? parts.nameEnd : parts.attributes.back().end;
        changes.push_back({place, place, added});
    }
    return changes;
}

/// The last token before a place of the loaded page that has a partner in the source, and in the edited page if `both`
/// is true; -1 if there is none.
int PageMerge::partnerBefore(int place, bool both) const
{
    int index = place - 1;
    while (index >= 0 && (at(m_page.m_inSource, index) < 0 || (both && at(m_inEdited, index) < 0)))
        --index;
    return index;
}

/// The next one at or after a place; the number of tokens if there is none.
int PageMerge::partnerAfter(int place, bool both) const
{
    int index = place;
    while (index < countOf(m_page.m_tokens)
           && (at(m_page.m_inSource, index) < 0 || (both && at(m_inEdited, index) < 0)))
        ++index;
    return index;
}

/// Where in the source the text after such a token begins.
qsizetype PageMerge::sourceBehind(int token) const
{
    return token < 0 ? 0 : at(m_page.m_sourceTokens, at(m_page.m_inSource, token)).end;
}

/// Where in the source such a token begins.
qsizetype PageMerge::sourceBegin(int token) const
{
    return token >= countOf(m_page.m_tokens) ? m_page.m_source.size()
                                             : at(m_page.m_sourceTokens, at(m_page.m_inSource, token)).begin;
}

TextChanges PageMerge::changesOf(const MergeHunk &hunk, MergeReach reach) const
{
    if (reach == MergeReach::Between)
        return {changeBetween(hunk)};
    if (const auto changes = textChange(hunk))
        return *changes;
    if (const auto changes = haveContiguousPartners(hunk) ? tagChanges(hunk) : std::nullopt)
        return *changes;
    const QString text = writtenText(hunk.editedBegin, hunk.editedEnd);
    if (const auto place = placeBesideMoved(hunk, reach))
        return {{*place, *place, text}};
    const int first = partnerAfter(hunk.begin);
    if (first < hunk.end)
        return {{sourceBegin(first), sourceBehind(partnerBefore(hunk.end)), text}};
    const qsizetype place =
        reach == MergeReach::BehindPartner ? sourceBehind(partnerBefore(hunk.begin)) : sourceBegin(first);
    return {{place, place, text}};
}

/// For an addition beside a word that the engine has joined or moved: where that is in the source.
std::optional<qsizetype> PageMerge::placeBesideMoved(const MergeHunk &hunk, MergeReach reach) const
{
    const bool isBehind = reach == MergeReach::BehindPartner;
    const int beside = isBehind ? hunk.begin - 1 : hunk.begin;
    if (hunk.begin < hunk.end || beside < 0 || beside >= countOf(m_page.m_tokens) || at(m_page.m_inSource, beside) >= 0)
        return {};
    const std::span<const int> origins = m_page.originsOf(beside);
    if (origins.empty())
        return {};
    return isBehind ? at(m_page.m_sourceTokens, origins.back()).end : at(m_page.m_sourceTokens, origins.front()).begin;
}

TextChange PageMerge::changeBetween(const MergeHunk &hunk) const
{
    const int before = partnerBefore(hunk.begin, true);
    const int after = partnerAfter(hunk.end, true);
    const int editedBegin = before >= 0 ? at(m_inEdited, before) + 1 : 0;
    const int editedEnd = after < countOf(m_page.m_tokens) ? at(m_inEdited, after) : countOf(m_editedTokens);
    return {sourceBehind(before), sourceBegin(after),
            writtenText(std::min(editedBegin, hunk.editedBegin), std::max(editedEnd, hunk.editedEnd))};
}

std::optional<TextChanges> PageMerge::changes(const MergeHunks &hunks, MergeReach reach) const
{
    TextChanges changes;
    for (const MergeHunk &hunk : hunks)
        std::ranges::move(changesOf(hunk, reach), std::back_inserter(changes));
    return inOrder(std::move(changes));
}

TextChange PageMerge::changeOfLoaded(const MergeHunk &hunk) const
{
    const auto begin = [this](int index) {
        return index < countOf(m_page.m_tokens) ? at(m_page.m_tokens, index).begin : m_page.m_loaded.size();
    };
    return {begin(hunk.begin), begin(hunk.end), editedText(hunk.editedBegin, hunk.editedEnd).toString()};
}

TextChange PageMerge::changeWithin(const MergeHunk &grown, const MergeHunk &hunk) const
{
    const int before = partnerBefore(grown.begin);
    const int after = partnerAfter(grown.end);
    const QStringView loaded = m_page.m_loaded;
    const qsizetype begin = before >= 0 ? at(m_page.m_tokens, before).end : 0;
    const qsizetype end = after < countOf(m_page.m_tokens) ? at(m_page.m_tokens, after).begin : loaded.size();
    const TextChange inner = changeOfLoaded(hunk);
    QString text = loaded.sliced(begin, inner.begin - begin).toString();
    text.append(inner.text).append(loaded.sliced(inner.end, end - inner.end));
    return {sourceBehind(before), sourceBegin(after), m_write(withoutPageEnd(text))};
}

std::optional<MergeHunk> PageMerge::enclosing(const MergeHunk &hunk) const
{
    int open = at(m_page.m_openAt, hunk.begin);
    // The element's own tags must be in the edited page too.
    while (open >= 0) {
        const int end = at(m_page.m_endOf, open);
        if (end >= hunk.end && at(m_inEdited, open) >= 0 && at(m_inEdited, end) >= 0)
            return MergeHunk{open, end + 1, at(m_inEdited, open), at(m_inEdited, end) + 1};
        open = at(m_page.m_openAt, open);
    }
    return {};
}

MergeHunk PageMerge::widened(const MergeHunk &hunk, int tokens) const
{
    const int count = countOf(m_page.m_tokens);
    if (count == 0)
        return hunk;
    const int first = std::max(0, partnerBefore(std::clamp(hunk.begin - tokens, 0, count - 1) + 1, true));
    const int last = std::min(count - 1, partnerAfter(std::min(count - 1, hunk.end + tokens - 1), true));
    MergeHunk wide = hunk;
    wide.begin = std::min(first, hunk.begin);
    wide.end = std::max(last + 1, hunk.end);
    const int editedFirst = at(m_inEdited, first);
    const int editedLast = at(m_inEdited, last);
    wide.editedBegin = editedFirst >= 0 ? std::min(editedFirst, hunk.editedBegin) : 0;
    wide.editedEnd = editedLast >= 0 ? std::max(editedLast + 1, hunk.editedEnd) : countOf(m_editedTokens);
    return wide;
}

MergeHunks joined(MergeHunks hunks)
{
    std::ranges::sort(hunks, {}, [](const MergeHunk &hunk) { return std::pair(hunk.begin, hunk.end); });
    MergeHunks groups;
    for (const MergeHunk &hunk : hunks) {
        const bool isApart = groups.empty() || hunk.begin > groups.back().end
            || (hunk.begin == groups.back().end && hunk.editedBegin > groups.back().editedEnd);
        if (isApart) {
            groups.push_back(hunk);
            continue;
        }
        MergeHunk &group = groups.back();
        group.end = std::max(group.end, hunk.end);
        group.editedBegin = std::min(group.editedBegin, hunk.editedBegin);
        group.editedEnd = std::max(group.editedEnd, hunk.editedEnd);
    }
    return groups;
}

std::optional<TextChanges> inOrder(TextChanges changes)
{
    std::ranges::stable_sort(changes, {}, [](const TextChange &change) { return std::pair(change.begin, change.end); });
    const bool isApart =
        std::ranges::adjacent_find(
            changes, [](const TextChange &before, const TextChange &after) { return after.begin < before.end; })
        == changes.end();
    return isApart ? std::optional(std::move(changes)) : std::nullopt;
}

} // namespace zephira
