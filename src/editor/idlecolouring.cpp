// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/idlecolouring.h"

#include "editor/longruns.h"
#include "syntax/syntaxstyle.h"

#include <QElapsedTimer>

#include <algorithm>

namespace zephira {

namespace {

using Sci = QsciScintillaBase;

/// The number of word widths that the engine caches for a text with long lines.
constexpr int widthsRemembered = 256 * 1024;
/// The amount coloured at once while the window is painted, in bytes; it takes about as long as the painting itself.
constexpr qsizetype immediateBytes = 256 * 1024;
constexpr qsizetype sliceBytes = 64 * 1024;
constexpr qint64 sliceMilliseconds = 4;

/// The engine's field for the fold level has 12 bits above its base. Greater depths are drawn like this one but still
/// counted.
constexpr int deepestDrawnLevel = 3000;
constexpr int deepestLevel = 0x7fff;
constexpr int nextLevelShift = 16;

qsizetype packedFold(const FoldLine &line, int nextLevel)
{
    int level = Sci::SC_FOLDLEVELBASE + std::min(line.level, deepestDrawnLevel);
    if (line.header)
        level |= Sci::SC_FOLDLEVELHEADERFLAG;
    // Blank lines aren't marked as such, because the engine would draw a block's end below the blank lines that follow
    // it.
    return level | std::min(nextLevel, deepestLevel) << nextLevelShift;
}

bool endsWithLineEnd(QByteArrayView text)
{
    return !text.isEmpty() && (text.back() == '\n' || text.back() == '\r');
}

/// Collects line starts. When `settled` says for two consecutive lines that their state hasn't changed, the rest is
/// known and the run ends.
class StateCollector final : public LineStateSink
{
public:
    using Settled = std::function<bool(qsizetype index, LineState state)>;

    explicit StateCollector(Settled settled) : m_settled(std::move(settled)) {}

    bool lineStart(qsizetype offset, LineState state) override
    {
        if (offset == 0)
            return true;
        offsets.push_back(offset);
        states.push_back(state);
        const bool same = m_settled && m_settled(std::ssize(offsets), state);
        stopped = same && m_sameBefore;
        m_sameBefore = same;
        return !stopped;
    }

    std::vector<qsizetype> offsets;
    std::vector<LineState> states;
    bool stopped = false;

private:
    Settled m_settled;
    bool m_sameBefore = false;
};

} // namespace

IdleColouring::IdleColouring(SciEngine engine, QObject *parent) : QObject(parent), m_engine(engine)
{
    connect(&m_timer, &QTimer::timeout, this, &IdleColouring::slice);
}

void IdleColouring::setLanguage(std::shared_ptr<const SyntaxEngine> language)
{
    m_language = std::move(language);
    m_engine.send(Sci::SCI_CLEARDOCUMENTSTYLE);
    restart();
}

void IdleColouring::restart()
{
    m_dirty = {};
    m_colouredLines = 0;
    m_editLine = -1;
    m_wanted = 0;
    m_timer.stop();
    m_engine.send(Sci::SCI_STARTSTYLING, 0);
}

void IdleColouring::beforeEdit(qsizetype position)
{
    settleEdit();
    m_editLine = m_engine.lineOf(position);
    m_linesBefore = m_engine.lineCount();
}

/// Processes an announced edit. The number of lines that it added or removed is known only after the edit.
void IdleColouring::settleEdit()
{
    if (m_editLine < 0)
        return;
    const qsizetype line = std::exchange(m_editLine, -1);
    const qsizetype added = m_engine.lineCount() - m_linesBefore;
    if (line >= m_colouredLines)
        return;
    m_colouredLines = std::max(line + 1, m_colouredLines + added);
    if (m_dirty.last > line)
        m_dirty.last = std::max(line, m_dirty.last + added);
    m_dirty.first = std::min(m_dirty.first, line);
    // One line more than was touched: adding or removing a line feed after a carriage return affects the neighbouring
    // line.
    m_dirty.last = std::max(m_dirty.last, line + std::max<qsizetype>(added, 0) + 1);
}

void IdleColouring::colourTo(qsizetype position)
{
    if (!m_language) {
        passOver(position);
        return;
    }
    m_wanted = std::min(m_timer.isActive() ? std::max(m_wanted, position) : position, m_engine.length());
    if (!colourSome(m_wanted, immediateBytes))
        m_timer.start(0);
}

/// Text without a language has one style, which is broken where lines are long.
void IdleColouring::passOver(qsizetype position)
{
    m_editLine = -1;
    const qsizetype styled = m_engine.send(Sci::SCI_GETENDSTYLED);
    if (styled >= m_engine.length())
        return;
    const qsizetype target = m_engine.lineOf(position);
    for (qsizetype line = m_engine.lineOf(styled); line <= target; ++line) {
        const qsizetype start = m_engine.lineStart(line);
        const qsizetype size = m_engine.lineStart(line + 1) - start;
        if (size <= longLineBytes)
            continue;
        m_styles.assign(static_cast<std::size_t>(size), static_cast<unsigned char>(SyntaxStyle::Text));
        m_work += size;
        showStyles(start, m_engine.bytes(start, start + size), {});
    }
    m_engine.send(Sci::SCI_STARTSTYLING, m_engine.lineStart(target + 1));
}

void IdleColouring::colourAll()
{
    m_wanted = m_engine.length();
    m_timer.stop();
    if (!m_language) {
        passOver(m_wanted);
        return;
    }
    while (!colourSome(m_wanted, immediateBytes)) {}
}

void IdleColouring::slice()
{
    QElapsedTimer clock;
    clock.start();
    const qsizetype wanted = std::min(m_wanted, m_engine.length());
    bool done = false;
    while (!done && clock.elapsed() < sliceMilliseconds)
        done = colourSome(wanted, sliceBytes);
    if (done)
        m_timer.stop();
}

/// Colours at most about `bytes` towards the line that contains the position `target`. Returns true if that line is
/// reached.
bool IdleColouring::colourSome(qsizetype target, qsizetype bytes)
{
    settleEdit();
    const qsizetype targetLine = m_engine.lineOf(target);
    const auto isReached = [&] { return nextLine() > targetLine || nextLine() >= m_engine.lineCount(); };
    bool mayStopEarly = true;
    while (!isReached() && bytes > 0) {
        const Stretch stretch = nextStretch(targetLine, bytes);
        const StyledLines styled = styleStretch(stretch, mayStopEarly);
        bytes -= std::max<qsizetype>(styled.size, 1);
        const FoldedLines folded = foldStretch(stretch, styled);
        mayStopEarly = noteColoured(styled, folded);
    }
    markColoured();
    return isReached();
}

/// The first line that isn't coloured yet.
qsizetype IdleColouring::nextLine() const
{
    return m_dirty.any() ? m_dirty.first : m_colouredLines;
}

/// The lines to colour next, at most about `bytes` of them. The line before a changed one is coloured again, because
/// the engine may have moved its state when lines were inserted or removed.
IdleColouring::Stretch IdleColouring::nextStretch(qsizetype targetLine, qsizetype bytes) const
{
    const qsizetype next = nextLine();
    const qsizetype line = m_dirty.any() ? std::max<qsizetype>(0, next - 1) : next;
    const qsizetype start = m_engine.lineStart(line);
    const qsizetype lastLine = std::min(targetLine, m_engine.lineOf(std::min(start + bytes, m_engine.length())));
    return {line, start, m_engine.bytes(start, m_engine.lineStart(std::max(lastLine, next) + 1))};
}

/// Styles the stretch into m_styles. May stop where a change has no more effect on the lines after it.
IdleColouring::StyledLines IdleColouring::styleStretch(const Stretch &stretch, bool mayStopEarly)
{
    const auto [line, start, text] = stretch;
    m_styles.resize(static_cast<std::size_t>(text.size()));
    StateCollector::Settled settled;
    if (m_dirty.any() && mayStopEarly) {
        settled = [this, first = line](qsizetype index, LineState state) {
            return first + index > m_dirty.last && first + index < m_colouredLines
                && static_cast<LineState>(m_engine.send(Sci::SCI_GETLINESTATE, first + index)) == state;
        };
    }
    StateCollector lines(settled);
    const LineState state = line == 0 ? 0 : static_cast<LineState>(m_engine.send(Sci::SCI_GETLINESTATE, line));
    const StyledRange styled = m_language->styleRange(text, state, m_styles, lines);
    if (!lines.stopped && endsWithLineEnd(text) && (lines.offsets.empty() || lines.offsets.back() < text.size())) {
        lines.offsets.push_back(text.size());
        lines.states.push_back(styled.state);
    }
    const qsizetype size = lines.stopped ? lines.offsets.back() : styled.end;
    m_work += size;
    showStyles(start, text.first(size), lines.offsets);
    return {std::move(lines.offsets), std::move(lines.states), size, lines.stopped};
}

void IdleColouring::showStyles(qsizetype start, QByteArrayView text, const std::vector<qsizetype> &offsets)
{
    const std::span<const unsigned char> shown = shownStyles(text, offsets);
    m_engine.send(Sci::SCI_STARTSTYLING, start);
    m_engine.sendText(Sci::SCI_SETSTYLINGEX, text.size(), reinterpret_cast<const char *>(shown.data()));
}

/// The styles of the text as passed to the engine: in long lines the runs are broken up. `offsets` are the starts of
/// the text's lines after the first.
std::span<const unsigned char> IdleColouring::shownStyles(QByteArrayView text, const std::vector<qsizetype> &offsets)
{
    const std::span styles = std::span(m_styles).first(static_cast<std::size_t>(text.size()));
    m_brokenStyles.clear();
    qsizetype begin = 0;
    const auto breakLine = [&](qsizetype end) {
        if (end - begin > longLineBytes) {
            if (m_brokenStyles.empty())
                m_brokenStyles.assign(styles.begin(), styles.end());
            const std::span line = std::span(m_brokenStyles)
                                       .subspan(static_cast<std::size_t>(begin), static_cast<std::size_t>(end - begin));
            breakLongRuns(text.sliced(begin, end - begin), line);
        }
        begin = end;
    };
    for (const qsizetype offset : offsets)
        breakLine(std::min(offset, text.size()));
    breakLine(text.size());
    if (m_brokenStyles.empty())
        return styles;
    if (!std::exchange(m_hasLongLines, true))
        m_engine.send(Sci::SCI_SETPOSITIONCACHE, widthsRemembered);
    return m_brokenStyles;
}

/// Sets the fold levels of the lines of a styled stretch, and stores their start states in the engine.
IdleColouring::FoldedLines IdleColouring::foldStretch(const Stretch &stretch, const StyledLines &styled)
{
    FoldState fold = foldStateAt(stretch.line);
    qsizetype line = stretch.line;
    qsizetype offset = 0;
    const auto foldLine = [&](qsizetype end) {
        const FoldLine folded = m_language->foldRules().fold(
            stretch.text.sliced(offset, end - offset),
            std::span(m_styles).subspan(static_cast<std::size_t>(offset), static_cast<std::size_t>(end - offset)),
            fold);
        setFold(line, packedFold(folded, fold.level));
        if (m_lineFolded)
            m_lineFolded(line, folded.level, fold.level);
        offset = end;
        ++line;
    };
    for (std::size_t i = 0; i < styled.offsets.size(); ++i) {
        foldLine(styled.offsets[i]);
        m_engine.send(Sci::SCI_SETLINESTATE, line, static_cast<int>(styled.states[i]));
    }
    const bool lastIsEmpty = line < m_engine.lineCount() && m_engine.lineStart(line) == m_engine.length();
    if (offset < styled.size || lastIsEmpty)
        foldLine(styled.size);
    return {line, fold.level};
}

/// Records how far the text is coloured. Returns false if the text has reached its old state but the folds haven't:
/// then the next stretch must not stop early again.
bool IdleColouring::noteColoured(const StyledLines &styled, const FoldedLines &folded)
{
    const auto drawn = m_engine.send(Sci::SCI_GETFOLDLEVEL, folded.nextLine) & Sci::SC_FOLDLEVELNUMBERMASK;
    const bool sameFold = drawn - Sci::SC_FOLDLEVELBASE == std::min(folded.level, deepestDrawnLevel);
    bool mayStopEarly = true;
    if (styled.stopped && sameFold) {
        m_dirty = {};
    } else if (folded.nextLine >= m_colouredLines) {
        m_colouredLines = folded.nextLine;
        m_dirty = {};
    } else {
        m_dirty = {folded.nextLine, std::max(m_dirty.last, folded.nextLine)};
        mayStopEarly = !styled.stopped;
    }
    return mayStopEarly;
}

/// Sets the fold level of a line. If that changes while blocks are folded, nothing may stay hidden below a line that no
/// longer begins a block. (The engine could do this itself, but would colour the whole block, possibly the whole text,
/// whenever a new block begins.)
void IdleColouring::setFold(qsizetype line, qsizetype level)
{
    const bool changed = m_engine.send(Sci::SCI_GETFOLDLEVEL, line) != level;
    if (!changed)
        return;
    m_engine.send(Sci::SCI_SETFOLDLEVEL, line, level);
    if (m_engine.send(Sci::SCI_GETALLLINESVISIBLE))
        return;
    const auto expanded = [this](qsizetype header) { return m_engine.send(Sci::SCI_GETFOLDEXPANDED, header) != 0; };
    if (!(level & Sci::SC_FOLDLEVELHEADERFLAG) && !expanded(line))
        m_engine.send(Sci::SCI_SETFOLDEXPANDED, line, true);
    if (m_engine.send(Sci::SCI_GETLINEVISIBLE, line))
        return;
    const qsizetype parent = m_engine.send(Sci::SCI_GETFOLDPARENT, line);
    if (parent < 0 || (expanded(parent) && m_engine.send(Sci::SCI_GETLINEVISIBLE, parent)))
        m_engine.send(Sci::SCI_SHOWLINES, line, line);
}

/// The fold state at the start of a line whose predecessor is coloured.
FoldState IdleColouring::foldStateAt(qsizetype line) const
{
    if (line == 0)
        return {};
    const auto level = m_engine.send(Sci::SCI_GETFOLDLEVEL, line - 1) >> nextLevelShift;
    const int lastStyle = m_engine.styleAt(m_engine.lineStart(line) - 1);
    return {static_cast<int>(level), lastStyle == numberOf(SyntaxStyle::Comment)};
}

/// Tells the engine from where on styles are missing, so that it requests them before it paints that part.
void IdleColouring::markColoured()
{
    m_engine.send(Sci::SCI_STARTSTYLING, m_engine.lineStart(nextLine()));
}

} // namespace zephira
