// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/designer/pagemerge.h"

#include "web/designer/tagparts.h"
#include "web/designer/tokenmatch.h"

#include <QHash>

#include <algorithm>
#include <span>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

std::vector<int> keysOf(const std::vector<PageToken> &tokens)
{
    std::vector<int> keys(tokens.size());
    std::ranges::transform(tokens, keys.begin(), &PageToken::key);
    return keys;
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
    , m_sourceTokens(pageTokens(m_source, m_keys))
    , m_tokens(pageTokens(m_loaded, m_keys))
    , m_inSource(partnersIn(keysOf(m_sourceTokens), keysOf(m_tokens), m_keys.count()))
{
    findElements();
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
        m_hunks.push_back(hunk);
        index = hunk.end;
        edited = hunk.editedEnd;
    }
}

QStringView PageMerge::editedText(int begin, int end) const
{
    if (begin >= end)
        return {};
    const qsizetype first = at(m_editedTokens, begin).begin;
    return QStringView(m_edited).sliced(first, at(m_editedTokens, end - 1).end - first);
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
    const References references = at(m_page.m_tokens, hunk.begin).references;
    const auto isSameText = [references](const PageToken &token) {
        return token.kind == TokenKind::Text && token.references == references;
    };
    const auto part = [](const std::vector<PageToken> &tokens, int begin, int end) {
        return std::span(tokens).subspan(static_cast<size_t>(begin), static_cast<size_t>(end - begin));
    };
    if (!std::ranges::all_of(part(m_page.m_tokens, hunk.begin, hunk.end), isSameText)
        || !std::ranges::all_of(part(m_editedTokens, hunk.editedBegin, hunk.editedEnd), isSameText))
        return {};
    const qsizetype begin = at(m_page.m_sourceTokens, at(m_page.m_inSource, hunk.begin)).begin;
    const qsizetype end = at(m_page.m_sourceTokens, at(m_page.m_inSource, hunk.end - 1)).end;
    const QStringView text = editedText(hunk.editedBegin, hunk.editedEnd);
    const std::vector<CharacterSpan> before =
        characterSpans(QStringView(m_page.m_source).sliced(begin, end - begin), references);
    const std::vector<CharacterSpan> after = characterSpans(text, references);
    const size_t most = std::min(before.size(), after.size());
    size_t first = 0;
    while (first < most && before[first].character == after[first].character)
        ++first;
    size_t last = 0;
    while (last < most - first
           && before[before.size() - 1 - last].character == after[after.size() - 1 - last].character)
        ++last;
    const auto from = [first](const std::vector<CharacterSpan> &spans, qsizetype length) {
        return first < spans.size() ? spans[first].begin : length;
    };
    const auto to = [last](const std::vector<CharacterSpan> &spans, qsizetype length) {
        return last > 0 ? spans[spans.size() - last].begin : length;
    };
    const qsizetype textBegin = from(after, text.size());
    return TextChanges{{begin + from(before, end - begin), begin + to(before, end - begin),
                        written(text.sliced(textBegin, to(after, text.size()) - textBegin), references)}};
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
    if (haveContiguousPartners(hunk)) {
        if (const auto changes = textChange(hunk))
            return *changes;
        if (const auto changes = tagChanges(hunk))
            return *changes;
    }
    const QString text = m_write(editedText(hunk.editedBegin, hunk.editedEnd));
    const int first = partnerAfter(hunk.begin);
    if (first < hunk.end)
        return {{sourceBegin(first), sourceBehind(partnerBefore(hunk.end)), text}};
    const qsizetype place =
        reach == MergeReach::BehindPartner ? sourceBehind(partnerBefore(hunk.begin)) : sourceBegin(first);
    return {{place, place, text}};
}

TextChange PageMerge::changeBetween(const MergeHunk &hunk) const
{
    const int before = partnerBefore(hunk.begin, true);
    const int after = partnerAfter(hunk.end, true);
    const int editedBegin = before >= 0 ? at(m_inEdited, before) + 1 : 0;
    const int editedEnd = after < countOf(m_page.m_tokens) ? at(m_inEdited, after) : countOf(m_editedTokens);
    return {sourceBehind(before), sourceBegin(after),
            m_write(editedText(std::min(editedBegin, hunk.editedBegin), std::max(editedEnd, hunk.editedEnd)))};
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
    return {sourceBehind(before), sourceBegin(after), m_write(text)};
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
