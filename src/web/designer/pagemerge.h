// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/textchange.h"
#include "web/designer/pagetokens.h"

#include <QHash>

#include <functional>
#include <memory>
#include <optional>
#include <span>

namespace zephira {

/// Writes a piece of the engine's markup as it belongs into the page's source.
using MarkupWriter = std::function<QString(QStringView markup)>;

/// A page's source and what the engine made of it, aligned token by token. Both have marks in the place of server code.
/// It can serve for any number of merges.
class PageAlignment
{
public:
    /// `source` is the text that the engine was given without its doctype, `loaded` the root element as the engine
    /// serialised it before any change.
    PageAlignment(QString source, QString loaded);

    const QString &source() const { return m_source; }
    const QString &loaded() const { return m_loaded; }

private:
    friend class PageMerge;

    /// Finds for each place in the loaded page the element that is open there.
    void findElements();
    /// The tokens of the source that a token of the loaded page is made of, if these are known. They needn't stand side
    /// by side.
    std::span<const int> originsOf(int token) const;

    QString m_source;
    QString m_loaded;
    TokenKeys m_keys;
    std::vector<PageToken> m_sourceTokens;
    std::vector<PageToken> m_tokens;
    /// For each token of the loaded page its partner in the source, or -1: then the engine has added it.
    std::vector<int> m_inSource;
    /// For a word without a partner the tokens of the source that it is made of, where these are known.
    QHash<int, std::vector<int>> m_otherPlaces;
    /// For each token of the loaded page the start tag of the element that contains it, or -1.
    std::vector<int> m_openAt;
    /// For each start tag of the loaded page its end tag, or -1.
    std::vector<int> m_endOf;
};

/// A changed run of tokens: those of the loaded page from `begin` up to `end` became those of the edited page from
/// `editedBegin` up to `editedEnd`.
struct MergeHunk {
    int begin = 0;
    int end = 0;
    int editedBegin = 0;
    int editedEnd = 0;

    friend bool operator==(const MergeHunk &, const MergeHunk &) = default;
};
using MergeHunks = std::vector<MergeHunk>;

/// Where a hunk is written into the source. The first two differ only for a hunk that meets nothing but tags that the
/// engine has added.
enum class MergeReach {
    BehindPartner, ///< on its own partners, or else right behind the last partner before it
    BeforePartner, ///< on its own partners, or else right before the next partner after it
    Between,       ///< on all between these two, so that tags which the source only implied are written out
};

/// Finds what to replace in a page's source so that the engine would make the edited page of it. What was not touched
/// keeps its spelling. Such a replacement may be wrong beside implied tags and repairs of the engine, so the result has
/// to be parsed and compared; see mergedByLadder().
class PageMerge
{
public:
    /// `edited` is the root element as the engine serialises it now. The alignment must outlive the merge.
    PageMerge(PageAlignment &alignment, QString edited, MarkupWriter write);

    /// What has changed, in ascending order.
    const MergeHunks &hunks() const { return m_hunks; }
    const QString &edited() const { return m_edited; }

    /// The changes of the source that write these hunks; nothing if they overlap.
    std::optional<TextChanges> changes(const MergeHunks &hunks, MergeReach reach) const;
    /// Those of one hunk, not in order.
    TextChanges changesOf(const MergeHunk &hunk, MergeReach reach) const;
    /// The change of the loaded page that makes this hunk alone.
    TextChange changeOfLoaded(const MergeHunk &hunk) const;
    /// The change of the source that writes one hunk alone, with all of the element that it was grown to.
    TextChange changeWithin(const MergeHunk &grown, const MergeHunk &hunk) const;

    /// The hunk grown to the element around it; nothing around the root.
    std::optional<MergeHunk> enclosing(const MergeHunk &hunk) const;
    /// The hunk grown by so many tokens on both sides, and on to the next that have partners everywhere.
    MergeHunk widened(const MergeHunk &hunk, int tokens) const;

private:
    /// A character of the loaded page, where it stands in the source.
    struct PlacedCharacter {
        char32_t character = 0;
        qsizetype begin = 0;
        qsizetype end = 0;
        References references = References::None;
    };

    int partnerBefore(int place, bool both = false) const;
    int partnerAfter(int place, bool both = false) const;
    qsizetype sourceBehind(int token) const;
    qsizetype sourceBegin(int token) const;
    TextChange changeBetween(const MergeHunk &hunk) const;
    QStringView editedText(int begin, int end) const;
    QString writtenText(int begin, int end) const;
    QString written(QStringView markup, References references) const;
    bool haveContiguousPartners(const MergeHunk &hunk) const;
    std::vector<PlacedCharacter> placedCharacters(const MergeHunk &hunk) const;
    std::optional<TextChanges> textChange(const MergeHunk &hunk) const;
    std::optional<TextChanges> tagChanges(const MergeHunk &hunk) const;
    std::optional<qsizetype> placeBesideMoved(const MergeHunk &hunk, MergeReach reach) const;
    TextChanges attributeChanges(const PageToken &tag, const PageToken &editedTag) const;
    QString writtenAttribute(QStringView attribute) const;
    void findHunks();
    bool isWhole(const MergeHunk &hunk) const;
    bool canMove(const MergeHunk &hunk, int step) const;
    void moveToElements(MergeHunk &hunk);

    const PageAlignment &m_page;
    const QString m_edited;
    const MarkupWriter m_write;
    std::vector<PageToken> m_editedTokens;
    /// For each token of the loaded page its partner in the edited one, or -1.
    std::vector<int> m_inEdited;
    MergeHunks m_hunks;
};

/// Makes one hunk of those that overlap or touch in the loaded page.
MergeHunks joined(MergeHunks hunks);

/// Puts changes into order; nothing if they overlap.
std::optional<TextChanges> inOrder(TextChanges changes);

} // namespace zephira
