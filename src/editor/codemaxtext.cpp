// SPDX-License-Identifier: GPL-3.0-or-later
// Text and selection of the editing control.
#include "editor/bidipainter.h"
#include "editor/bracematcher.h"
#include "editor/codemax.h"
#include "editor/editorappearance.h"
#include "editor/idlecolouring.h"
#include "files/buffertext.h"
#include "syntax/syntaxstyle.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace zephira {

namespace {

/// Makes a read-only text writable for the program during its lifetime.
class WritableWhile
{
public:
    explicit WritableWhile(const SciEngine &engine)
        : m_engine(engine), m_readOnly(engine.send(QsciScintillaBase::SCI_GETREADONLY))
    {
        m_engine.send(QsciScintillaBase::SCI_SETREADONLY, false);
    }
    ~WritableWhile() { m_engine.send(QsciScintillaBase::SCI_SETREADONLY, m_readOnly); }
    Q_DISABLE_COPY_MOVE(WritableWhile)

private:
    const SciEngine &m_engine;
    qsizetype m_readOnly;
};

} // namespace

std::array<QByteArrayView, 2> CodeMax::utf8Pieces() const
{
    const qsizetype gap = m_engine.send(SCI_GETGAPPOSITION);
    return {m_engine.bytes(0, gap), m_engine.bytes(gap, m_engine.length())};
}

QString CodeMax::text() const
{
    return fromBuffer(utf8Pieces(), m_format.current().lineEnds);
}

void CodeMax::setText(const QString &text)
{
    perform([&] {
        const WritableWhile writable(m_engine);
        m_engine.send(SCI_BEGINUNDOACTION);
        replaceBytes(0, m_engine.length(), toBuffer(text, m_format.current().lineEnds));
        if (text.isEmpty())
            m_format.startAnew();
        m_engine.send(SCI_ENDUNDOACTION);
        m_engine.send(SCI_SETEMPTYSELECTION, 0);
        m_engine.send(SCI_SCROLLTOSTART);
        m_changed = true;
    });
}

void CodeMax::changeText(const TextChanges &changes)
{
    if (changes.empty())
        return;
    perform([&] {
        const WritableWhile writable(m_engine);
        const LineEnds lineEnds = m_format.current().lineEnds;
        const QString before = text();
        const auto bytes = [&](qsizetype begin, qsizetype end) {
            return toBuffer(before.sliced(begin, end - begin), lineEnds).size();
        };
        qsizetype place = 0;
        qsizetype done = 0;
        m_engine.send(SCI_BEGINUNDOACTION);
        for (const TextChange &change : changes) {
            const QByteArray utf8 = toBuffer(change.text, lineEnds);
            place += bytes(done, change.begin);
            replaceBytes(place, place + bytes(change.begin, change.end), utf8);
            place += utf8.size();
            done = change.end;
        }
        m_engine.send(SCI_ENDUNDOACTION);
        m_changed = true;
    });
}

/// If the file's line ends are LF or CR, each of them counts as two characters, as in Text.
int CodeMax::textLength() const
{
    const qsizetype units =
        m_units + utf16Length(m_engine.bytes(m_inserted.position, m_inserted.position + m_inserted.length));
    const bool oneByteEnds = m_format.current().lineEnds == LineEnds::Lf || m_format.current().lineEnds == LineEnds::Cr;
    return static_cast<int>(units + (oneByteEnds ? m_engine.lineCount() - 1 : 0));
}

QString CodeMax::selText() const
{
    const bool simple = m_engine.send(SCI_GETSELECTIONS) == 1 && !m_engine.send(SCI_SELECTIONISRECTANGLE);
    if (simple)
        return fromBuffer(m_engine.bytes(m_engine.send(SCI_GETSELECTIONSTART), m_engine.send(SCI_GETSELECTIONEND)),
                          m_format.current().lineEnds);
    // The engine's size includes a NUL at the end.
    QByteArray joined(m_engine.send(SCI_GETSELTEXT), Qt::Uninitialized);
    m_engine.sendText(SCI_GETSELTEXT, 0, joined.data());
    joined.chop(1);
    return fromBuffer(joined, m_format.current().lineEnds);
}

void CodeMax::setSelText(const QString &text)
{
    perform([&] {
        const WritableWhile writable(m_engine);
        m_engine.send(SCI_BEGINUNDOACTION);
        if (m_engine.send(SCI_GETSELECTIONS) > 1 || m_engine.send(SCI_SELECTIONISRECTANGLE)) {
            m_engine.send(SCI_CLEAR);
            m_engine.send(SCI_SETEMPTYSELECTION, m_engine.caret());
        }
        const qsizetype start = m_engine.send(SCI_GETSELECTIONSTART);
        const QByteArray utf8 = toBuffer(text, m_format.current().lineEnds);
        replaceBytes(start, m_engine.send(SCI_GETSELECTIONEND), utf8);
        m_engine.send(SCI_ENDUNDOACTION);
        m_engine.send(SCI_SETEMPTYSELECTION, start + utf8.size());
        m_engine.send(SCI_SCROLLCARET);
        m_engine.send(SCI_CHOOSECARETX);
        m_changed = true;
    });
}

int CodeMax::selectionCount() const
{
    return static_cast<int>(m_engine.send(SCI_GETSELECTIONS));
}

void CodeMax::replaceSelections(const std::function<QString(const QString &)> &make)
{
    perform([&] {
        const WritableWhile writable(m_engine);
        std::vector<std::pair<qsizetype, qsizetype>> ranges;
        for (int i = 0; i < selectionCount(); ++i)
            ranges.emplace_back(m_engine.send(SCI_GETSELECTIONNSTART, i), m_engine.send(SCI_GETSELECTIONNEND, i));
        std::ranges::sort(ranges);
        std::vector<qsizetype> carets;
        qsizetype moved = 0;
        m_engine.send(SCI_BEGINUNDOACTION);
        for (const auto &[start, end] : ranges) {
            const QString old = fromBuffer(m_engine.bytes(start + moved, end + moved), textFormat().lineEnds);
            const QByteArray utf8 = toBuffer(make(old), textFormat().lineEnds);
            replaceBytes(start + moved, end + moved, utf8);
            carets.push_back(start + moved + utf8.size());
            moved += utf8.size() - (end - start);
        }
        m_engine.send(SCI_ENDUNDOACTION);
        m_engine.send(SCI_SETEMPTYSELECTION, carets.front());
        for (std::size_t i = 1; i < carets.size(); ++i)
            m_engine.send(SCI_ADDSELECTION, carets[i], carets[i]);
        m_engine.send(SCI_SCROLLCARET);
        m_engine.send(SCI_CHOOSECARETX);
        m_changed = true;
    });
}

int CodeMax::selLength() const
{
    if (m_engine.send(SCI_GETSELECTIONS) > 1 || m_engine.send(SCI_SELECTIONISRECTANGLE))
        return static_cast<int>(selText().size());
    const qsizetype start = m_engine.send(SCI_GETSELECTIONSTART);
    const qsizetype end = m_engine.send(SCI_GETSELECTIONEND);
    const bool oneByteEnds = m_format.current().lineEnds == LineEnds::Lf || m_format.current().lineEnds == LineEnds::Cr;
    const qsizetype lineEnds = oneByteEnds ? m_engine.lineOf(end) - m_engine.lineOf(start) : 0;
    return static_cast<int>(utf16Length(m_engine.bytes(start, end)) + lineEnds);
}

QString CodeMax::currentWord() const
{
    const qsizetype caret = m_engine.caret();
    return fromBuffer(m_engine.bytes(m_engine.send(SCI_WORDSTARTPOSITION, caret, true),
                                     m_engine.send(SCI_WORDENDPOSITION, caret, true)),
                      LineEnds::Mixed);
}

int CodeMax::lineCount() const
{
    return static_cast<int>(m_engine.lineCount());
}

/// Width in pixels of the widest line that may be visible first. With it the scroll bar is right from the start;
/// otherwise the engine would find out while painting, then show the scroll bar and paint everything again.
qsizetype CodeMax::widthOfFirstLines() const
{
    constexpr qsizetype linesOfAScreen = 120;
    constexpr qsizetype widestMeasured = 2048;
    qsizetype widestStart = 0;
    qsizetype widestSize = 0;
    for (qsizetype line = 0; line < std::min(linesOfAScreen, m_engine.lineCount()); ++line) {
        const qsizetype start = m_engine.lineStart(line);
        const qsizetype size = std::min(m_engine.lineEnd(line) - start, widestMeasured);
        if (size > widestSize) {
            widestStart = start;
            widestSize = size;
        }
    }
    const QByteArray widest = m_engine.bytes(widestStart, widestStart + widestSize).toByteArray().replace('\t', "    ");
    return std::max<qsizetype>(1, m_engine.sendText(SCI_TEXTWIDTH, STYLE_DEFAULT, widest.constData()));
}

/// Replaces the text without an undo step, leaving nothing of the previous document.
void CodeMax::replaceDocument(const DecodedText &document)
{
    const QByteArrayView utf8 = document.utf8;
    const WritableWhile writable(m_engine);
    const qsizetype events = m_engine.send(SCI_GETMODEVENTMASK);
    m_engine.send(SCI_SETMODEVENTMASK, 0);
    m_engine.send(SCI_SETUNDOCOLLECTION, false);
    m_engine.send(SCI_EMPTYUNDOBUFFER);
    m_engine.send(SCI_CLEARALL);
    m_engine.send(SCI_MARKERDELETEALL, -1);
    // An index requested by assistive technology would be updated for each line that is loaded.
    if (m_engine.send(SCI_GETLINECHARACTERINDEX) & SC_LINECHARACTERINDEX_UTF16)
        m_engine.send(SCI_RELEASELINECHARACTERINDEX, SC_LINECHARACTERINDEX_UTF16);
    m_inserted = {};
    if (!utf8.isEmpty())
        m_appearance->showText();
    m_bidi->learn(utf8);
    m_engine.send(SCI_ALLOCATE, utf8.size() + 1);
    m_engine.sendText(SCI_APPENDTEXT, utf8.size(), utf8.isEmpty() ? "" : utf8.data());
    m_units = utf16Length(utf8);
    m_engine.send(SCI_SETUNDOCOLLECTION, true);
    m_engine.send(SCI_EMPTYUNDOBUFFER);
    m_engine.send(SCI_SETSAVEPOINT);
    m_engine.send(SCI_SETMODEVENTMASK, events);
    m_engine.send(SCI_SETEMPTYSELECTION, 0);
    m_engine.send(SCI_SCROLLTOSTART);
    m_engine.send(SCI_SETSCROLLWIDTH, widthOfFirstLines());
    m_colouring->restart();
    m_braces->clear();
    m_format.restart(document.format);
    m_changed = true;
}

CodeMaxRange CodeMax::selection(bool normalized) const
{
    const qsizetype anchor = m_engine.anchor();
    const qsizetype caret = m_engine.caret();
    return normalized ? toRange(std::min(anchor, caret), std::max(anchor, caret)) : toRange(anchor, caret);
}

void CodeMax::select(const CodeMaxRange &range)
{
    perform([&] {
        const qsizetype anchor = toPosition(range.StartLineNo, range.StartColNo);
        const qsizetype caret = toPosition(range.EndLineNo, range.EndColNo);
        m_engine.send(SCI_ENSUREVISIBLE, m_engine.lineOf(anchor));
        m_engine.send(SCI_ENSUREVISIBLE, m_engine.lineOf(caret));
        m_engine.send(SCI_SETSEL, anchor, caret);
        m_engine.send(SCI_CHOOSECARETX);
    });
}

CodeMaxRange CodeMax::toRange(qsizetype start, qsizetype end) const
{
    const auto column = [this](qsizetype position) {
        const qsizetype lineStart = m_engine.lineStart(m_engine.lineOf(position));
        return static_cast<int>(utf16Length(m_engine.bytes(lineStart, position)));
    };
    return {static_cast<int>(m_engine.lineOf(start)), column(start), static_cast<int>(m_engine.lineOf(end)),
            column(end)};
}

/// The nearest valid position, in bytes.
qsizetype CodeMax::toPosition(int line, int column) const
{
    if (line < 0)
        return 0;
    if (line >= m_engine.lineCount())
        return m_engine.length();
    const qsizetype start = m_engine.lineStart(line);
    return start + byteOffset(m_engine.bytes(start, m_engine.lineEnd(line)), std::max(column, 0));
}

bool CodeMax::canUndo() const
{
    return m_engine.send(SCI_CANUNDO);
}

bool CodeMax::canRedo() const
{
    return m_engine.send(SCI_CANREDO);
}

bool CodeMax::canCopy() const
{
    return !m_engine.send(SCI_GETSELECTIONEMPTY);
}

void CodeMax::undo()
{
    perform([this] { step(SCI_UNDO); });
}

void CodeMax::redo()
{
    perform([this] { step(SCI_REDO); });
}

/// Undoes or redoes. The engine measures the caret's new line before it has its styles, and again afterwards. For long
/// lines the first measurement is avoided: meanwhile unstyled text has no width.
void CodeMax::step(unsigned int message)
{
    if (!m_colouring->hasLongLines()) {
        m_engine.send(message);
        return;
    }
    m_engine.send(SCI_STYLESETVISIBLE, numberOf(SyntaxStyle::Text), false);
    m_engine.send(message);
    m_colouring->colourTo(m_engine.caret());
    m_engine.send(SCI_STYLESETVISIBLE, numberOf(SyntaxStyle::Text), true);
    m_engine.send(SCI_SCROLLCARET);
}

void CodeMax::clearSelection()
{
    if (!m_engine.send(SCI_GETSELECTIONEMPTY))
        perform([this] { m_engine.send(SCI_CLEAR); });
}

} // namespace zephira
