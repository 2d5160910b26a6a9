// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/editorsearch.h"

#include "core/textparts.h"
#include "editor/codemax.h"
#include "files/buffertext.h"

#include <algorithm>

namespace zephira {

namespace {

using Sci = QsciScintillaBase;

/// Up to this many replacements are made one by one, which keeps the bookmarks between them in place.
constexpr std::size_t fewReplacements = 1000;

} // namespace

EditorSearch::EditorSearch(CodeMax &editor) : m_editor(editor)
{
    if (UserSettings *settings = editor.services().settings)
        m_history.emplace(*settings);
}

QStringList EditorSearch::words(SearchHistory::Kind kind) const
{
    return m_history ? m_history->words(kind) : QStringList();
}

void EditorSearch::remember(SearchHistory::Kind kind, const QString &text)
{
    if (m_history)
        m_history->add(kind, text);
}

const QString &EditorSearch::plainText()
{
    refresh();
    return m_text;
}

EditorSearch::Range EditorSearch::scopeOf(bool inSelection)
{
    refresh();
    const Range bytes = byteScope(inSelection);
    return inSelection ? Range(toOffset(bytes.first), toOffset(bytes.second)) : Range(0, m_text.size());
}

EditorSearch::Range EditorSearch::byteScope(bool inSelection) const
{
    const qsizetype length = m_editor.engine().length();
    if (!inSelection || !m_scope)
        return {0, length};
    return {std::min(m_scope->first, length), std::min(m_scope->second, length)};
}

Result<void> EditorSearch::setOptions(const Options &options)
{
    if (!m_search || options.request != m_options.request) {
        Result<PatternSearch> search = PatternSearch::make(options.request);
        if (!search)
            return search.error();
        m_search.reset();
        if (!options.request.pattern.isEmpty())
            m_search = std::move(search).value();
        m_last.reset();
    }
    m_options = options;
    return {};
}

void EditorSearch::takeScope()
{
    const SciEngine &engine = m_editor.engine();
    m_scope = Range{engine.send(Sci::SCI_GETSELECTIONSTART), engine.send(Sci::SCI_GETSELECTIONEND)};
}

bool EditorSearch::isReadOnly() const
{
    return m_editor.isReadOnly();
}

QString EditorSearch::seed() const
{
    return selectionSpansLines() ? QString() : m_editor.selText();
}

bool EditorSearch::selectionSpansLines() const
{
    const CodeMaxRange range = m_editor.selection(true);
    return range.StartLineNo != range.EndLineNo;
}

/// Updates the copy of the text if the text has changed.
void EditorSearch::refresh()
{
    if (m_version == m_editor.textVersion())
        return;
    m_version = m_editor.textVersion();
    m_last.reset();
    const QString text = fromBuffer(m_editor.utf8Pieces(), LineEnds::Mixed);
    m_text.clear();
    m_text.reserve(text.size());
    m_lineStarts.assign(1, 0);
    qsizetype begin = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] != u'\r' && text[i] != u'\n')
            continue;
        m_text += QStringView(text).sliced(begin, i - begin);
        m_text += u'\n';
        m_lineStarts.push_back(m_text.size());
        if (text[i] == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n')
            ++i;
        begin = i + 1;
    }
    m_text += QStringView(text).sliced(begin);
}

qsizetype EditorSearch::toOffset(qsizetype position) const
{
    const SciEngine &engine = m_editor.engine();
    const qsizetype line = engine.lineOf(position);
    const qsizetype end = std::min(position, engine.lineEnd(line));
    return m_lineStarts[static_cast<std::size_t>(line)] + utf16Length(engine.bytes(engine.lineStart(line), end));
}

qsizetype EditorSearch::toPosition(qsizetype offset) const
{
    return toPositions({{offset, offset}}).front().first;
}

/// The byte positions of consecutive matches. Each is computed from the previous one, so that many matches in a long
/// line take linear time.
std::vector<EditorSearch::Range> EditorSearch::toPositions(const std::vector<TextMatch> &matches) const
{
    const SciEngine &engine = m_editor.engine();
    qsizetype line = -1;
    qsizetype knownOffset = 0;
    qsizetype knownPosition = 0;
    const auto position = [&](qsizetype offset) {
        const auto next = std::ranges::upper_bound(m_lineStarts, offset);
        const qsizetype itsLine = next - m_lineStarts.begin() - 1;
        if (itsLine != line) {
            line = itsLine;
            knownOffset = m_lineStarts[static_cast<std::size_t>(line)];
            knownPosition = engine.lineStart(line);
        }
        knownPosition += byteOffset(engine.bytes(knownPosition, engine.lineEnd(line)), offset - knownOffset);
        knownOffset = offset;
        return knownPosition;
    };
    std::vector<Range> ranges;
    ranges.reserve(matches.size());
    for (const TextMatch &match : matches) {
        const qsizetype start = position(match.start);
        ranges.emplace_back(start, position(match.end));
    }
    return ranges;
}

void EditorSearch::show(const TextMatch &match)
{
    const Range range = toPositions({match}).front();
    const SciEngine &engine = m_editor.engine();
    m_editor.perform([&] {
        engine.send(Sci::SCI_ENSUREVISIBLE, engine.lineOf(range.first));
        engine.send(Sci::SCI_ENSUREVISIBLE, engine.lineOf(range.second));
        engine.send(Sci::SCI_SETSEL, range.first, range.second);
        engine.send(Sci::SCI_CHOOSECARETX);
    });
    m_last = match;
}

SearchOutcome EditorSearch::find(bool against)
{
    if (!m_search)
        return {};
    refresh();
    const bool backward = m_options.backward != against;
    const auto [start, end] = scopeOf(m_options.inSelection);
    const SciEngine &engine = m_editor.engine();
    qsizetype from = toOffset(engine.send(backward ? Sci::SCI_GETSELECTIONSTART : Sci::SCI_GETSELECTIONEND));
    from = std::clamp(from, start, end);
    // An empty match at the current position isn't found again.
    const bool atEmptyMatch = m_last && m_last->start == m_last->end && m_last->start == from;
    std::optional<TextMatch> match;
    if (backward) {
        const qsizetype before = atEmptyMatch ? from - 1 : from;
        if (before >= start)
            match = m_search->previous(m_text, before, start, m_options.replacement);
    } else {
        match = m_search->next(m_text, from, end, m_options.replacement);
        if (match && atEmptyMatch && match->end == from)
            match = from < end ? m_search->next(m_text, behindCharacter(m_text, from), end, m_options.replacement)
                               : std::nullopt;
    }
    SearchOutcome outcome;
    if (!match && m_options.wrap) {
        match = backward ? m_search->previous(m_text, end, start, m_options.replacement)
                         : m_search->next(m_text, start, end, m_options.replacement);
        outcome.wrapped = match.has_value();
    }
    outcome.found = match.has_value();
    if (match)
        show(*match);
    return outcome;
}

SearchOutcome EditorSearch::findWord(bool backward)
{
    if (selectionSpansLines())
        return {};
    const SciEngine &engine = m_editor.engine();
    QString word = seed();
    bool isWhole = word == m_options.request.pattern && m_options.request.wholeWord;
    if (word.isEmpty()) {
        const qsizetype start = engine.send(Sci::SCI_WORDSTARTPOSITION, engine.caret(), 1);
        const qsizetype end = engine.send(Sci::SCI_WORDENDPOSITION, engine.caret(), 1);
        if (start == end)
            return {};
        m_editor.perform([&] { engine.send(Sci::SCI_SETSEL, start, end); });
        word = m_editor.selText();
        isWhole = true;
    }
    Options options;
    options.request = {word, m_options.request.matchCase, isWhole, false};
    options.replacement = m_options.replacement;
    if (!setOptions(options))
        return {};
    remember(SearchHistory::Kind::Searches, word);
    return find(backward);
}

SearchOutcome EditorSearch::replace()
{
    if (!m_search || isReadOnly())
        return {};
    refresh();
    const SciEngine &engine = m_editor.engine();
    const Range selected{engine.send(Sci::SCI_GETSELECTIONSTART), engine.send(Sci::SCI_GETSELECTIONEND)};
    int replaced = 0;
    if (m_last && toPositions({*m_last}).front() == selected) {
        // The match is searched again, because the replacement may have changed since.
        const auto match = m_search->next(m_text, m_last->start, m_text.size(), m_options.replacement);
        if (match && match->start == m_last->start && match->end == m_last->end) {
            const qsizetype before = engine.length();
            m_editor.replaceBytes(selected.first, selected.second,
                                  toBuffer(match->replacement, m_editor.typedLineEnds()));
            const qsizetype end = selected.second + engine.length() - before;
            engine.send(Sci::SCI_SETEMPTYSELECTION, m_options.backward ? selected.first : end);
            if (m_scope)
                m_scope->second += engine.length() - before;
            replaced = 1;
        }
    }
    SearchOutcome outcome = find();
    outcome.replaced = replaced;
    return outcome;
}

SearchOutcome EditorSearch::replaceAll()
{
    if (!m_search || isReadOnly())
        return {};
    refresh();
    const auto [start, end] = scopeOf(m_options.inSelection);
    const std::vector<TextMatch> matches = m_search->all(m_text, start, end, m_options.replacement);
    if (matches.empty())
        return {};
    const SciEngine &engine = m_editor.engine();
    const std::vector<Range> ranges = toPositions(matches);
    const qsizetype before = engine.length();
    m_editor.perform([&] {
        engine.send(Sci::SCI_BEGINUNDOACTION);
        if (matches.size() <= fewReplacements) {
            for (std::size_t i = matches.size(); i-- > 0;)
                m_editor.replaceBytes(ranges[i].first, ranges[i].second,
                                      toBuffer(matches[i].replacement, m_editor.typedLineEnds()));
        } else {
            // Replaced in one piece, with the text between the matches copied: linear in any case.
            QByteArray whole;
            qsizetype done = ranges.front().first;
            for (std::size_t i = 0; i < matches.size(); ++i) {
                whole += engine.bytes(done, ranges[i].first);
                whole += toBuffer(matches[i].replacement, m_editor.typedLineEnds());
                done = ranges[i].second;
            }
            m_editor.replaceBytes(ranges.front().first, done, whole);
        }
        engine.send(Sci::SCI_ENDUNDOACTION);
    });
    if (m_scope)
        m_scope->second += engine.length() - before;
    return {true, false, static_cast<int>(matches.size()), {}};
}

} // namespace zephira
