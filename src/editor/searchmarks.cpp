// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/searchmarks.h"

#include "core/textparts.h"
#include "editor/codemax.h"
#include "editor/editorsearch.h"
#include "editor/indicators.h"
#include "files/buffertext.h"

#include <QElapsedTimer>

#include <algorithm>
#include <utility>
#include <vector>

namespace zephira {

namespace {

using Sci = QsciScintillaBase;

/// How long a slice of counting may take, and how long the text must have been left alone, in milliseconds.
constexpr int sliceTime = 10;
constexpr int pauseTime = 300;
/// The most bytes that are looked through for marks; more can be in sight only in lines that are longer than any window.
constexpr qsizetype mostSeen = 256 * 1024;
/// Of such a line a part is looked through, which begins some bytes before what is seen.
constexpr qsizetype longLinePart = 32 * 1024;
constexpr qsizetype longLineBefore = 8 * 1024;
/// More marks than these say nothing.
constexpr int mostMarks = 5000;

constexpr int margins = 5;

constexpr int markColour = 0x1ea0e6; // Blue, green, red: an amber that is seen on light and on dark.

bool continuesCharacter(char byte)
{
    return (byte & 0xc0) == 0x80;
}

/// A part of the buffer with line feeds as line ends, and for each code unit the byte where its character begins.
struct SeenText {
    explicit SeenText(QByteArrayView utf8)
    {
        const QString raw = fromBuffer(utf8, LineEnds::Mixed);
        text.reserve(raw.size());
        bytes.reserve(static_cast<std::size_t>(raw.size()) + 1);
        qsizetype byte = 0;
        for (qsizetype i = 0; i < raw.size(); ++i) {
            const bool isCr = raw[i] == u'\r';
            text += isCr ? QChar(u'\n') : raw[i];
            bytes.push_back(byte);
            if (isCr && i + 1 < raw.size() && raw[i + 1] == u'\n') {
                ++i;
                ++byte;
            }
            if (!raw[i].isLowSurrogate()) {
                do
                    ++byte;
                while (byte < utf8.size() && continuesCharacter(utf8[byte]));
            }
        }
        bytes.push_back(byte);
    }

    QString text;
    std::vector<qsizetype> bytes;
};

} // namespace

SearchMarks::SearchMarks(EditorSearch &search) : m_search(search), m_editor(search.editor())
{
    const SciEngine &engine = m_editor.engine();
    engine.send(Sci::SCI_INDICSETSTYLE, MatchIndicator, Sci::INDIC_STRAIGHTBOX);
    engine.send(Sci::SCI_INDICSETFORE, MatchIndicator, markColour);
    engine.send(Sci::SCI_INDICSETALPHA, MatchIndicator, 70);
    engine.send(Sci::SCI_INDICSETOUTLINEALPHA, MatchIndicator, 170);
    engine.send(Sci::SCI_INDICSETUNDER, MatchIndicator, true);
    m_slices.setInterval(0);
    m_pause.setSingleShot(true);
    m_pause.setInterval(pauseTime);
    connect(&m_slices, &QTimer::timeout, this, &SearchMarks::countSlice);
    connect(&m_pause, &QTimer::timeout, this, &SearchMarks::restartCount);
    connect(&m_editor, &QsciScintillaBase::SCN_UPDATEUI, this, &SearchMarks::lookAgain);
    connect(&m_editor, &CodeMax::Change, this, [this] {
        if (m_pattern)
            m_pause.start();
    });
}

SearchMarks::~SearchMarks() = default;

void SearchMarks::show(const SearchRequest &request, bool inSelection)
{
    Result<PatternSearch> pattern = PatternSearch::make(request);
    if (request.pattern.isEmpty() || !pattern) {
        hide();
        return;
    }
    m_pattern = std::move(pattern).value();
    m_inSelection = inSelection;
    mark();
    restartCount();
}

void SearchMarks::hide()
{
    m_slices.stop();
    m_pause.stop();
    m_pattern.reset();
    clear();
}

SearchMarks::View SearchMarks::view() const
{
    const SciEngine &engine = m_editor.engine();
    return {engine.send(Sci::SCI_GETFIRSTVISIBLELINE), engine.send(Sci::SCI_LINESONSCREEN),
            engine.send(Sci::SCI_GETXOFFSET), static_cast<qsizetype>(m_editor.textVersion())};
}

/// The text was scrolled or changed.
void SearchMarks::lookAgain()
{
    if (m_pattern && view() != m_marked)
        mark();
}

void SearchMarks::mark()
{
    clear();
    m_marked = view();
    const SciEngine &engine = m_editor.engine();
    const qsizetype firstLine = engine.send(Sci::SCI_DOCLINEFROMVISIBLE, m_marked[0]);
    const qsizetype lastLine = engine.send(Sci::SCI_DOCLINEFROMVISIBLE, m_marked[0] + m_marked[1]);
    const auto [scopeStart, scopeEnd] = m_search.byteScope(m_inSelection);
    qsizetype start = engine.lineStart(firstLine);
    qsizetype end = engine.lineEnd(std::min(lastLine, engine.lineCount() - 1));
    if (end - start > mostSeen) {
        // What is at the left edge, and some bytes to either side of it.
        qsizetype left = 1;
        for (int margin = 0; margin < margins; ++margin)
            left += engine.send(Sci::SCI_GETMARGINWIDTHN, margin);
        const qsizetype seen = engine.send(Sci::SCI_POSITIONFROMPOINT, left, 0);
        start = std::max(start, seen - longLineBefore);
        end = std::min(end, start + longLinePart);
        const QByteArrayView part = engine.bytes(start, end);
        while (start < end && continuesCharacter(part[part.size() - (end - start)]))
            ++start;
        while (end > start && end < engine.length() && continuesCharacter(engine.bytes(end, end + 1)[0]))
            --end;
    }
    start = std::max(start, scopeStart);
    end = std::min(end, scopeEnd);
    if (start >= end)
        return;
    const SeenText seen(engine.bytes(start, end));
    engine.send(Sci::SCI_SETINDICATORCURRENT, MatchIndicator);
    int marks = 0;
    m_pattern->each(seen.text, 0, seen.text.size(), {}, [&](const TextMatch &match) {
        const qsizetype from = start + seen.bytes[static_cast<std::size_t>(match.start)];
        const qsizetype to = start + seen.bytes[static_cast<std::size_t>(match.end)];
        if (to > from) {
            engine.send(Sci::SCI_INDICATORFILLRANGE, from, to - from);
            m_hasMarks = true;
        }
        return ++marks < mostMarks;
    });
}

void SearchMarks::clear()
{
    if (!std::exchange(m_hasMarks, false))
        return;
    const SciEngine &engine = m_editor.engine();
    engine.send(Sci::SCI_SETINDICATORCURRENT, MatchIndicator);
    engine.send(Sci::SCI_INDICATORCLEARRANGE, 0, engine.length());
}

void SearchMarks::restartCount()
{
    if (!m_pattern)
        return;
    m_count = {};
    m_version = m_editor.textVersion();
    m_place = m_search.scopeOf(m_inSelection).first;
    m_slices.start();
}

void SearchMarks::countSlice()
{
    if (!m_pattern || m_version != m_editor.textVersion()) {
        // The pause after a change starts it anew.
        m_slices.stop();
        return;
    }
    QElapsedTimer time;
    time.start();
    const QString &text = m_search.plainText();
    const qsizetype end = m_search.scopeOf(m_inSelection).second;
    bool isCut = false;
    const bool isWhole = m_pattern->each(text, m_place, end, {}, [&](const TextMatch &match) {
        ++m_count.matches;
        // Behind an empty match another one may begin at the same place, so that a slice rather ends behind others.
        const bool isEmpty = match.start == match.end;
        if (match.end >= end || time.elapsed() < (isEmpty ? 3 * sliceTime : sliceTime))
            return true;
        isCut = true;
        m_place = isEmpty ? behindCharacter(text, match.end) : match.end;
        return false;
    });
    m_count.isComplete = !isCut;
    m_count.gaveUp = !isWhole;
    if (m_count.isComplete)
        m_slices.stop();
    Q_EMIT counted(m_count);
}

} // namespace zephira
