// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/accessibleeditor.h"

#include "editor/bidipainter.h"
#include "editor/codemax.h"
#include "files/buffertext.h"

#include <QTextBoundaryFinder>

#include <algorithm>
#include <optional>

namespace zephira {

using namespace Qt::StringLiterals;

namespace {

using Sci = QsciScintillaBase;

/// Makes sure that the engine has its index of UTF-16 offsets by line. The index costs time for each line when a text
/// is loaded, so it is created only when needed and released before the next file is loaded.
void needIndex(const SciEngine &engine)
{
    if (!(engine.send(Sci::SCI_GETLINECHARACTERINDEX) & Sci::SC_LINECHARACTERINDEX_UTF16))
        engine.send(Sci::SCI_ALLOCATELINECHARACTERINDEX, Sci::SC_LINECHARACTERINDEX_UTF16);
}

/// The boundary finder's type for a unit within a line; nothing for characters, lines and the whole text.
std::optional<QTextBoundaryFinder::BoundaryType> finderType(QAccessible::TextBoundaryType boundary)
{
    switch (boundary) {
    case QAccessible::WordBoundary:
        return QTextBoundaryFinder::Word;
    case QAccessible::SentenceBoundary:
        return QTextBoundaryFinder::Sentence;
    case QAccessible::CharBoundary:
        return QTextBoundaryFinder::Grapheme;
    default:
        return std::nullopt;
    }
}

} // namespace

AccessibleEditor::AccessibleEditor(CodeMax &editor)
    : QAccessibleWidget(&editor, QAccessible::EditableText), m_editor(editor)
{}

QAccessibleInterface *AccessibleEditor::make(const QString &, QObject *object)
{
    auto *editor = qobject_cast<CodeMax *>(object);
    return editor ? new AccessibleEditor(*editor) : nullptr;
}

int AccessibleEditor::offsetOf(const SciEngine &engine, qsizetype position)
{
    needIndex(engine);
    const qsizetype line = engine.lineOf(position);
    return static_cast<int>(engine.send(Sci::SCI_INDEXPOSITIONFROMLINE, line, Sci::SC_LINECHARACTERINDEX_UTF16)
                            + utf16Length(engine.bytes(engine.lineStart(line), position)));
}

void *AccessibleEditor::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TextInterface)
        return static_cast<QAccessibleTextInterface *>(this);
    if (type == QAccessible::EditableTextInterface)
        return static_cast<QAccessibleEditableTextInterface *>(this);
    return QAccessibleWidget::interface_cast(type);
}

QAccessible::State AccessibleEditor::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.multiLine = true;
    state.selectableText = true;
    state.readOnly = m_editor.isReadOnly();
    state.editable = !state.readOnly;
    return state;
}

QString AccessibleEditor::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Value ? text(0, characterCount()) : QAccessibleWidget::text(kind);
}

void AccessibleEditor::setText(QAccessible::Text kind, const QString &text)
{
    if (kind != QAccessible::Value)
        QAccessibleWidget::setText(kind, text);
    else if (!m_editor.isReadOnly())
        m_editor.setText(text);
}

const SciEngine &AccessibleEditor::engine() const
{
    return m_editor.engine();
}

int AccessibleEditor::toOffset(qsizetype position) const
{
    return offsetOf(engine(), position);
}

qsizetype AccessibleEditor::toPosition(int offset) const
{
    const int within = std::clamp(offset, 0, characterCount());
    const qsizetype line = engine().send(Sci::SCI_LINEFROMINDEXPOSITION, within, Sci::SC_LINECHARACTERINDEX_UTF16);
    const qsizetype lineOffset = engine().send(Sci::SCI_INDEXPOSITIONFROMLINE, line, Sci::SC_LINECHARACTERINDEX_UTF16);
    const qsizetype start = engine().lineStart(line);
    return start + byteOffset(engine().bytes(start, engine().lineStart(line + 1)), within - lineOffset);
}

void AccessibleEditor::selection(int index, int *start, int *end) const
{
    *start = *end = 0;
    if (index < 0 || index >= selectionCount())
        return;
    *start = toOffset(engine().send(Sci::SCI_GETSELECTIONNSTART, index));
    *end = toOffset(engine().send(Sci::SCI_GETSELECTIONNEND, index));
}

int AccessibleEditor::selectionCount() const
{
    return m_editor.canCopy() ? static_cast<int>(engine().send(Sci::SCI_GETSELECTIONS)) : 0;
}

void AccessibleEditor::addSelection(int start, int end)
{
    m_editor.perform([&] {
        const auto message = m_editor.canCopy() ? Sci::SCI_ADDSELECTION : Sci::SCI_SETSELECTION;
        engine().send(message, toPosition(end), toPosition(start));
    });
}

void AccessibleEditor::removeSelection(int index)
{
    if (index < 0 || index >= selectionCount())
        return;
    m_editor.perform([&] {
        if (selectionCount() == 1)
            engine().send(Sci::SCI_SETEMPTYSELECTION, engine().caret());
        else
            engine().send(Sci::SCI_DROPSELECTIONN, index);
    });
}

void AccessibleEditor::setSelection(int index, int start, int end)
{
    if (index < 0 || index >= engine().send(Sci::SCI_GETSELECTIONS))
        return;
    m_editor.perform([&] {
        engine().send(Sci::SCI_SETSELECTIONNSTART, index, toPosition(start));
        engine().send(Sci::SCI_SETSELECTIONNEND, index, toPosition(end));
    });
}

int AccessibleEditor::cursorPosition() const
{
    return toOffset(engine().caret());
}

void AccessibleEditor::setCursorPosition(int offset)
{
    m_editor.perform([&] {
        engine().send(Sci::SCI_GOTOPOS, toPosition(offset));
        engine().send(Sci::SCI_CHOOSECARETX);
    });
}

QString AccessibleEditor::text(int start, int end) const
{
    return fromBuffer(engine().bytes(toPosition(start), toPosition(end)), LineEnds::Mixed);
}

int AccessibleEditor::characterCount() const
{
    needIndex(engine());
    return static_cast<int>(
        engine().send(Sci::SCI_INDEXPOSITIONFROMLINE, engine().lineCount(), Sci::SC_LINECHARACTERINDEX_UTF16));
}

/// The character, word, sentence or line around an offset. Words and sentences end with their line.
AccessibleEditor::Stretch AccessibleEditor::stretchAt(int offset, QAccessible::TextBoundaryType boundary) const
{
    if (boundary == QAccessible::NoBoundary)
        return {0, characterCount()};
    const qsizetype line = engine().lineOf(toPosition(offset));
    const int start = toOffset(engine().lineStart(line));
    const int end = toOffset(engine().lineStart(line + 1));
    const auto type = finderType(boundary);
    if (!type)
        return {start, end};
    const QString lineText = text(start, end);
    QTextBoundaryFinder finder(*type, lineText);
    finder.setPosition(std::clamp(offset - start, 0, static_cast<int>(lineText.size())));
    if (!finder.isAtBoundary() || offset >= end)
        finder.toPreviousBoundary();
    const auto from = std::max<qsizetype>(finder.position(), 0);
    const auto to = finder.toNextBoundary();
    return {start + static_cast<int>(from), to < 0 ? end : start + static_cast<int>(to)};
}

QString AccessibleEditor::given(Stretch stretch, int *start, int *end) const
{
    *start = stretch.start;
    *end = stretch.end;
    return text(stretch.start, stretch.end);
}

QString AccessibleEditor::textAtOffset(int offset, QAccessible::TextBoundaryType boundary, int *start, int *end) const
{
    return given(stretchAt(offset, boundary), start, end);
}

QString AccessibleEditor::textBeforeOffset(int offset, QAccessible::TextBoundaryType boundary, int *start,
                                           int *end) const
{
    const Stretch here = stretchAt(offset, boundary);
    return given(here.start == 0 ? Stretch{0, 0} : stretchAt(here.start - 1, boundary), start, end);
}

QString AccessibleEditor::textAfterOffset(int offset, QAccessible::TextBoundaryType boundary, int *start,
                                          int *end) const
{
    const Stretch here = stretchAt(offset, boundary);
    const int count = characterCount();
    return given(here.end >= count ? Stretch{count, count} : stretchAt(here.end, boundary), start, end);
}

QRect AccessibleEditor::characterRect(int offset) const
{
    const qsizetype position = toPosition(offset);
    const QRectF rightToLeft = m_editor.bidi().characterRect(position);
    if (!rightToLeft.isEmpty())
        return {m_editor.viewport()->mapToGlobal(rightToLeft.topLeft()).toPoint(), rightToLeft.size().toSize()};
    const auto coordinate = [&](unsigned int message, qsizetype at) {
        return static_cast<int>(engine().send(message, 0, at));
    };
    const QPoint corner(coordinate(Sci::SCI_POINTXFROMPOSITION, position),
                        coordinate(Sci::SCI_POINTYFROMPOSITION, position));
    const int next = coordinate(Sci::SCI_POINTXFROMPOSITION, engine().send(Sci::SCI_POSITIONAFTER, position));
    const int height = static_cast<int>(engine().send(Sci::SCI_TEXTHEIGHT, engine().lineOf(position)));
    return {m_editor.viewport()->mapToGlobal(corner), QSize(std::max(next - corner.x(), 1), height)};
}

int AccessibleEditor::offsetAtPoint(const QPoint &point) const
{
    const QPoint at = m_editor.bidi().toEngine(m_editor.viewport()->mapFromGlobal(point)).toPoint();
    const qsizetype position = engine().send(Sci::SCI_CHARPOSITIONFROMPOINTCLOSE, at.x(), at.y());
    return position < 0 ? -1 : toOffset(position);
}

void AccessibleEditor::scrollToSubstring(int start, int end)
{
    engine().send(Sci::SCI_SCROLLRANGE, toPosition(end), toPosition(start));
}

QString AccessibleEditor::attributes(int offset, int *start, int *end) const
{
    const qsizetype position = toPosition(offset);
    const qsizetype line = engine().lineOf(position);
    const int style = engine().styleAt(position);
    qsizetype from = position;
    qsizetype to = position;
    while (from > engine().lineStart(line) && engine().styleAt(from - 1) == style)
        --from;
    while (to < engine().lineStart(line + 1) && engine().styleAt(to) == style)
        ++to;
    *start = toOffset(from);
    *end = toOffset(to);
    const auto colour = [&](unsigned int message) {
        const auto number = engine().send(message, style);
        return u"rgb(%1,%2,%3)"_s.arg(number & 0xff).arg(number >> 8 & 0xff).arg(number >> 16 & 0xff);
    };
    return u"color:%1;background-color:%2;font-weight:%3;font-style:%4;"_s.arg(
        colour(Sci::SCI_STYLEGETFORE), colour(Sci::SCI_STYLEGETBACK),
        engine().send(Sci::SCI_STYLEGETBOLD, style) ? u"bold"_s : u"normal"_s,
        engine().send(Sci::SCI_STYLEGETITALIC, style) ? u"italic"_s : u"normal"_s);
}

void AccessibleEditor::deleteText(int start, int end)
{
    replaceText(start, end, {});
}

void AccessibleEditor::insertText(int offset, const QString &text)
{
    replaceText(offset, offset, text);
}

void AccessibleEditor::replaceText(int start, int end, const QString &text)
{
    if (m_editor.isReadOnly())
        return;
    m_editor.perform(
        [&] { m_editor.replaceBytes(toPosition(start), toPosition(end), toBuffer(text, m_editor.typedLineEnds())); });
}

} // namespace zephira
