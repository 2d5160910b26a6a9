// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/pairs/commentcommand.h"

#include "assist/lineblocks.h"
#include "assist/pairs/codecontext.h"
#include "assist/textedits.h"
#include "assist/texthelpers.h"
#include "editor/codemax.h"

#include <algorithm>
#include <array>
#include <optional>

namespace zephira {

namespace {

using Language = CodePlace::Language;
using Part = CodePlace::Part;

/// How far the marks of a comment may be from a place in it.
constexpr qsizetype reach = 64 * 1024;
/// How many tags of a line are looked at for the one that begins a script.
constexpr int mostTags = 100;

class CommentToggle
{
public:
    explicit CommentToggle(TextHelpers &helpers)
        : m_rt(helpers.rt()), m_engine(m_rt.engine()), m_context(helpers.context())
    {}

    void toggle(const TextSelection &selection)
    {
        const ByteRange range = rangeOf(selection);
        // Several carets may be in one line, or in one comment.
        if (range.start < m_done)
            return;
        const qsizetype place = selection.isEmpty() ? std::max(selection.caret, range.start) : range.start;
        const CodePlace code = codeAt(place, range);
        const CommentMarks marks = commentMarksAt(m_rt, m_context, code);
        if (marks.isEmpty())
            return;
        const ByteRange own = ownPart(range, place, code);
        const bool isPartOfLine =
            !selection.isEmpty() && m_engine.lineOf(own.start) == m_engine.lineOf(own.end) && !coversLine(own);
        if (const auto comment = commentOf(own, place, code, marks))
            removeMarks(*comment, marks);
        else if (marks.line.isEmpty() || (isPartOfLine && !marks.open.isEmpty()))
            putIntoComment(own, marks);
        else
            toggleLines(own, code, marks);
    }

    void make(TextSelections selections) const
    {
        for (TextSelection &each : selections.all) {
            each.anchor = m_edits.placeOf(each.anchor);
            each.caret = m_edits.placeOf(each.caret);
        }
        m_edits.make(m_rt, selections);
    }

private:
    QByteArrayView text(const ByteRange &range) const { return m_engine.bytes(range.start, range.end); }

    /// Without blanks and line ends at its ends.
    ByteRange trimmed(ByteRange range) const
    {
        const QByteArrayView bytes = text(range);
        const auto isBlank = [](char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; };
        const auto *const first = std::ranges::find_if_not(bytes.begin(), bytes.end(), isBlank);
        if (first == bytes.end())
            return {range.start, range.start};
        const auto last = std::find_if_not(bytes.rbegin(), bytes.rend(), isBlank);
        return {range.start + (first - bytes.begin()), range.end - (last - bytes.rbegin())};
    }

    /// What is selected, or the line of the caret.
    ByteRange rangeOf(const TextSelection &selection) const
    {
        if (!selection.isEmpty())
            return trimmed({selection.start(), selection.end()});
        const qsizetype line = m_engine.lineOf(selection.caret);
        const ByteRange range = trimmed({m_engine.lineStart(line), m_engine.lineEnd(line)});
        return range.start == range.end ? ByteRange{selection.caret, selection.caret} : range;
    }

    /// The end tag of a script or style sheet is markup.
    CodePlace codeAt(qsizetype place, const ByteRange &range) const
    {
        CodePlace code = surePlaceAt(m_rt, place);
        const bool isBlock = code.language != Language::Markup && code.language != Language::Own && !code.inServerBlock;
        if (isBlock && text({range.start, std::max(range.start, range.end)}).startsWith("</"))
            return {Language::Markup, Part::Content, false};
        return code;
    }

    bool isSameCode(qsizetype place, const CodePlace &code) const
    {
        const CodePlace other = surePlaceAt(m_rt, place);
        return other.language == code.language && other.inServerBlock == code.inServerBlock;
    }

    /// The part of the range around a place that is code of the same language. Markup may contain all others.
    ByteRange ownPart(const ByteRange &range, qsizetype place, const CodePlace &code) const
    {
        if (code.language == Language::Markup || code.language == Language::Own)
            return range;
        ByteRange own = range;
        if (!isSameCode(range.start, code))
            own.start = std::max(range.start, startOfCode(place, code));
        const QByteArrayView rest = m_engine.bytes(place, range.end);
        own.end = place + endOfCode(rest, code);
        return own.end > own.start ? trimmed(own) : ByteRange{place, place};
    }

    /// Where code begins whose opening delimiter, or start tag, is in the same line.
    qsizetype startOfCode(qsizetype place, const CodePlace &code) const
    {
        const qsizetype lineStart = m_engine.lineStart(m_engine.lineOf(place));
        const QByteArrayView line = m_engine.bytes(lineStart, m_engine.lineEnd(m_engine.lineOf(place)));
        const QByteArrayView before = line.first(place - lineStart);
        if (code.inServerBlock) {
            qsizetype start = std::max(before.lastIndexOf("<%"), before.lastIndexOf("<?"));
            if (start < 0)
                return place;
            start += 2;
            if (line.sliced(start).startsWith("php"))
                start += 3;
            else if (line.sliced(start).startsWith('='))
                ++start;
            return lineStart + start;
        }
        qsizetype at = std::max<qsizetype>(0, before.lastIndexOf("</"));
        for (int tried = 0; tried < mostTags; ++tried) {
            at = before.indexOf('>', at) + 1;
            if (at == 0)
                break;
            if (isSameCode(lineStart + at, code))
                return lineStart + at;
        }
        return place;
    }

    static qsizetype endOfCode(QByteArrayView text, const CodePlace &code)
    {
        static constexpr std::array blockEnds{QByteArrayView("</script"), QByteArrayView("</style")};
        qsizetype end = text.size();
        const auto stopAt = [&](qsizetype found) {
            if (found >= 0)
                end = std::min(end, found);
        };
        if (code.inServerBlock) {
            stopAt(text.indexOf(code.language == Language::Php ? QByteArrayView("?>") : QByteArrayView("%>")));
        } else {
            const QByteArray lower = text.toByteArray().toLower();
            for (const QByteArrayView &blockEnd : blockEnds)
                stopAt(lower.indexOf(blockEnd));
        }
        return end;
    }

    /// Whether a range reaches from the first letter of its line to the last.
    bool coversLine(const ByteRange &range) const
    {
        const qsizetype line = m_engine.lineOf(range.start);
        const ByteRange letters = trimmed({m_engine.lineStart(line), m_engine.lineEnd(line)});
        return letters.start == range.start && letters.end == range.end;
    }

    /// The comment with two marks that the part is, or that the place is in.
    std::optional<ByteRange> commentOf(const ByteRange &own, qsizetype place, const CodePlace &code,
                                       const CommentMarks &marks) const
    {
        if (marks.open.isEmpty())
            return {};
        if (withoutComment(text(own), marks))
            return own;
        const bool isMarkedLine = !marks.line.isEmpty() && text(own).startsWith(marks.line);
        if (code.part != Part::Comment || isMarkedLine)
            return {};
        const qsizetype start = std::max<qsizetype>(0, place - reach);
        const QByteArrayView around = m_engine.bytes(start, std::min(m_engine.length(), place + reach));
        const auto comment = commentAround(around, place - start, marks);
        if (!comment)
            return {};
        return ByteRange{start + comment->start, start + comment->end};
    }

    void removeMarks(const ByteRange &comment, const CommentMarks &marks)
    {
        const auto changes = withoutComment(text(comment), marks);
        if (!changes || comment.start < m_done)
            return;
        add(comment.start, *changes);
        m_done = comment.end;
    }

    void putIntoComment(const ByteRange &range, const CommentMarks &marks)
    {
        add(range.start, intoComment(text(range), marks));
        m_done = range.end + 1;
    }

    void toggleLines(const ByteRange &own, const CodePlace &code, const CommentMarks &marks)
    {
        const qsizetype lineStart = m_engine.lineStart(m_engine.lineOf(own.start));
        const bool fromStart = code.language == Language::Own || isSameCode(lineStart, code);
        const ByteRange lines{fromStart ? lineStart : own.start, own.end};
        add(lines.start, toggledLines(text(lines), marks.line));
        m_done = m_engine.lineEnd(m_engine.lineOf(own.end)) + 1;
    }

    void add(qsizetype start, const ByteChanges &changes)
    {
        for (const ByteChange &change : changes)
            m_edits.replace(m_engine, start + change.at, start + change.at + change.size, change.text,
                            change.pushesCaret);
    }

    CodeMax &m_rt;
    const SciEngine &m_engine;
    const AppContext &m_context;
    TextEdits m_edits;
    /// What comes before was handled.
    qsizetype m_done = 0;
};

} // namespace

void toggleComment(TextHelpers &helpers)
{
    if (helpers.rt().isReadOnly())
        return;
    const TextSelections selections = textSelections(helpers.rt().engine());
    CommentToggle comments(helpers);
    for (const TextSelection &each : selections.all)
        comments.toggle(each);
    comments.make(selections);
}

} // namespace zephira
