// SPDX-License-Identifier: GPL-3.0-or-later
// Keys, mouse, drops and the context menu of the editing control.
#include "core/graphemes.h"
#include "editor/bidipainter.h"
#include "editor/codemax.h"
#include "editor/codemaxglobals.h"
#include "editor/colouritems.h"
#include "editor/editorappearance.h"
#include "editor/editormargins.h"
#include "editor/hotkeys.h"
#include "widgets/qtvalues.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>

namespace zephira {

using namespace Qt::StringLiterals;

bool CodeMax::event(QEvent *event)
{
    // Without a selection the Delete key deletes the next character; a menu entry with the same key only deletes
    // selections.
    if (event->type() == QEvent::ShortcutOverride) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (TypingRules::isPlainDelete(*key) && !isReadOnly() && m_engine.send(SCI_GETSELECTIONEMPTY)) {
            event->accept();
            return true;
        }
    }
    return QsciScintillaBase::event(event);
}

void CodeMax::keyPressEvent(QKeyEvent *event)
{
    if (const auto command = m_globals->commandFor(event->keyCombination())) {
        executeCmd(*command);
        event->accept();
    } else if (event->key() == Qt::Key_Escape) {
        // With a single caret the key is left to the window.
        bool kept = false;
        perform([&] { kept = m_typing.keepOneCaret(); });
        event->setAccepted(kept);
    } else if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier) {
        // The toolkit makes a menu event of the menu key alone.
        const QPoint caret = inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
        QContextMenuEvent menu(QContextMenuEvent::Keyboard, caret, mapToGlobal(caret));
        contextMenuEvent(&menu);
    } else if (TypingRules::isLeftToWindow(*event)) {
        event->ignore();
    } else {
        type(event);
    }
}

void CodeMax::type(QKeyEvent *event)
{
    const bool isModifier = TypingRules::isModifier(*event);
    goOn([&] {
        if (!isModifier)
            beginStep(*event);
        m_typing.type(*event, [&] { QsciScintillaBase::keyPressEvent(event); });
        if (!isModifier)
            m_steps.note();
    });
}

void CodeMax::beginStep(const QKeyEvent &key)
{
    const bool selected = !m_engine.send(SCI_GETSELECTIONEMPTY);
    if (isReadOnly())
        m_steps.end();
    else if (TypingRules::isPlainBackspace(key) && !selected)
        m_steps.beginErasing(UndoSteps::Kind::EraseBackward);
    else if (const char32_t typed = TypingRules::typedCharacter(key); typed != 0 && !(selected && typed == U'\t'))
        m_steps.begin(UndoSteps::Kind::Insertion, typed, typed);
    else
        m_steps.end();
}

/// Erases the character behind each caret, or the selected text.
void CodeMax::deleteForward()
{
    const bool erases = m_engine.send(SCI_GETSELECTIONEMPTY) && !isReadOnly();
    if (!erases)
        m_steps.end();
    goOn([&] {
        if (erases)
            m_steps.beginErasing(UndoSteps::Kind::EraseForward);
        m_typing.deleteForward();
        m_steps.note();
    });
}

/// An input method shows its preedit text in the engine's history, which can't be done within a group of changes.
void CodeMax::inputMethodEvent(QInputMethodEvent *event)
{
    const QString text = event->commitString();
    goOn([&] {
        if (text.isEmpty() || isReadOnly()) {
            m_steps.closeGroup();
            QsciScintillaBase::inputMethodEvent(event);
            return;
        }
        if (m_hasPreedit) {
            m_steps.closeGroup();
            QInputMethodEvent nothing;
            QsciScintillaBase::inputMethodEvent(&nothing);
        }
        const QList<uint> characters = text.toUcs4();
        m_steps.begin(UndoSteps::Kind::Insertion, characters.first(), characters.last());
        QsciScintillaBase::inputMethodEvent(event);
        m_steps.note();
    });
    m_hasPreedit = text.isEmpty() && !event->preeditString().isEmpty();
}

/// Passes an event to the engine at the position where the engine has the character painted under the mouse.
void CodeMax::giveToEngine(QMouseEvent *event, const std::function<void(QMouseEvent *)> &handle)
{
    QMouseEvent moved(event->type(), m_bidi->toEngine(event->position()), event->scenePosition(),
                      event->globalPosition(), event->button(), event->buttons(), event->modifiers(),
                      event->pointingDevice());
    moved.setTimestamp(event->timestamp());
    const auto act = [&] {
        handle(&moved);
        m_typing.settleCarets();
    };
    // The mouse may be moved while one types.
    if (event->type() == QEvent::MouseMove && event->buttons() == Qt::NoButton)
        goOn(act);
    else
        perform(act);
}

/// With Ctrl the engine would start a rectangular selection; here it adds a caret, and dragging selects from there.
/// Rectangular selections are made with Alt.
bool CodeMax::addsCaret(QMouseEvent *event)
{
    const bool pressed = event->type() == QEvent::MouseButtonPress;
    if (pressed)
        m_addsCaret = event->button() == Qt::LeftButton && event->modifiers() == Qt::ControlModifier
            && event->position().x() >= static_cast<double>(m_margins->width());
    if (!m_addsCaret)
        return false;
    const QPoint point = m_bidi->toEngine(event->position()).toPoint();
    const qsizetype at = m_engine.send(SCI_POSITIONFROMPOINT, point.x(), point.y());
    perform([&] {
        if (pressed)
            m_engine.send(SCI_ADDSELECTION, at, at);
        else
            m_engine.send(SCI_SETSELECTIONNCARET, m_engine.send(SCI_GETMAINSELECTION), at);
        m_typing.settleCarets();
    });
    if (event->type() == QEvent::MouseButtonRelease)
        m_addsCaret = false;
    event->accept();
    return true;
}

void CodeMax::mousePressEvent(QMouseEvent *event)
{
    if (addsCaret(event))
        return;
    giveToEngine(event, [this](QMouseEvent *press) {
        if (!m_dragDrop && press->button() == Qt::LeftButton && press->modifiers() == Qt::NoModifier) {
            // The engine drags a selection when the mouse is pressed on it; without a selection there is nothing to
            // drag.
            const QPoint at = press->position().toPoint();
            m_engine.send(SCI_SETEMPTYSELECTION, m_engine.send(SCI_POSITIONFROMPOINT, at.x(), at.y()));
        }
        QsciScintillaBase::mousePressEvent(press);
    });
}

void CodeMax::mouseDoubleClickEvent(QMouseEvent *event)
{
    giveToEngine(event, [this](QMouseEvent *click) { QsciScintillaBase::mouseDoubleClickEvent(click); });
}

void CodeMax::mouseMoveEvent(QMouseEvent *event)
{
    if (addsCaret(event))
        return;
    giveToEngine(event, [this](QMouseEvent *move) { QsciScintillaBase::mouseMoveEvent(move); });
}

void CodeMax::mouseReleaseEvent(QMouseEvent *event)
{
    if (addsCaret(event))
        return;
    giveToEngine(event, [this](QMouseEvent *release) { QsciScintillaBase::mouseReleaseEvent(release); });
}

void CodeMax::wheelEvent(QWheelEvent *event)
{
    const int turned = event->angleDelta().y();
    if (event->modifiers() != Qt::ControlModifier || turned == 0) {
        QsciScintillaBase::wheelEvent(event);
        return;
    }
    m_engine.send(turned > 0 ? SCI_ZOOMIN : SCI_ZOOMOUT);
    event->accept();
}

/// Dropped files are left to the window, and only editable text accepts a drop.
bool CodeMax::takesDrop(const QDropEvent &event) const
{
    return m_dragDrop && !isReadOnly() && !event.mimeData()->hasUrls();
}

/// Where a drop would put its text: nothing is put between a letter and its accents.
qsizetype CodeMax::dropPosition(const QPointF &at) const
{
    const QPoint point = m_bidi->toEngine(at).toPoint();
    const qsizetype position = m_engine.send(SCI_POSITIONFROMPOINT, point.x(), point.y());
    const qsizetype line = m_engine.lineOf(position);
    const qsizetype start = m_engine.lineStart(line);
    return start + graphemeStart(m_engine.bytes(start, m_engine.lineEnd(line)), position - start);
}

/// Gives a drag to the engine at the place where that has what is painted under the mouse. The drop comes to the place that
/// the engine saw last.
void CodeMax::giveDragToEngine(QDragMoveEvent *event)
{
    if (!takesDrop(*event)) {
        event->ignore();
        return;
    }
    const qsizetype position = dropPosition(event->position());
    // One pixel further, since accents end where their letter does.
    const QPoint at(static_cast<int>(m_engine.send(SCI_POINTXFROMPOSITION, 0, position)) + 1,
                    static_cast<int>(m_engine.send(SCI_POINTYFROMPOSITION, 0, position)));
    QDragMoveEvent moved(at, event->possibleActions(), event->mimeData(), event->buttons(), event->modifiers());
    moved.setDropAction(event->dropAction());
    QsciScintillaBase::dragMoveEvent(&moved);
    event->setDropAction(moved.dropAction());
    event->setAccepted(moved.isAccepted());
    m_bidi->setDropPosition(moved.isAccepted() ? position : -1);
}

void CodeMax::dragEnterEvent(QDragEnterEvent *event)
{
    giveDragToEngine(event);
}

void CodeMax::dragMoveEvent(QDragMoveEvent *event)
{
    giveDragToEngine(event);
}

void CodeMax::dragLeaveEvent(QDragLeaveEvent *event)
{
    m_bidi->setDropPosition(-1);
    QsciScintillaBase::dragLeaveEvent(event);
}

void CodeMax::dropEvent(QDropEvent *event)
{
    m_bidi->setDropPosition(-1);
    if (takesDrop(*event))
        perform([&] { QsciScintillaBase::dropEvent(event); });
    else
        event->ignore();
}

void CodeMax::changeEvent(QEvent *event)
{
    QsciScintillaBase::changeEvent(event);
    // The selection has the desktop's colour. The first change events arrive while the base class is still being
    // constructed.
    if (event->type() == QEvent::PaletteChange && m_appearance)
        m_appearance->applyAll();
}

void CodeMax::showEvent(QShowEvent *event)
{
    QsciScintillaBase::showEvent(event);
    showBraces();
}

void CodeMax::paintEvent(QPaintEvent *event)
{
    QsciScintillaBase::paintEvent(event);
    QPainter painter(viewport());
    m_bidi->paint(painter, event->rect());
    if (paintOver)
        paintOver(painter, event->rect());
    painter.end();
    if (m_margins->lineNumbers() && m_appearance->fontStyle(LineNumberFont) & UnderlinedStyle)
        underlineNumbers();
}

/// The engine doesn't draw underlining in its margins.
void CodeMax::underlineNumbers()
{
    constexpr int padding = 3;
    const auto width = [this](int margin) { return m_engine.send(SCI_GETMARGINWIDTHN, margin); };
    const qsizetype right = width(EditorMargins::Bookmarks) + width(EditorMargins::LineNumbers) - padding;
    const qsizetype bottom = m_engine.send(SCI_TEXTHEIGHT, 0) - 2;
    QPainter painter(viewport());
    painter.setPen(toQColor(m_appearance->colour(LineNumberFore)));
    const qsizetype first = m_engine.send(SCI_GETFIRSTVISIBLELINE);
    const qsizetype last = m_engine.send(SCI_DOCLINEFROMVISIBLE, first + m_engine.send(SCI_LINESONSCREEN));
    for (qsizetype line = m_engine.send(SCI_DOCLINEFROMVISIBLE, first); line <= last; ++line) {
        if (!m_engine.send(SCI_GETLINEVISIBLE, line))
            continue;
        const QByteArray number = QByteArray::number(line + 1);
        const qsizetype left = right - m_engine.sendText(SCI_TEXTWIDTH, STYLE_LINENUMBER, number.constData());
        const qsizetype y = bottom + m_engine.send(SCI_POINTYFROMPOSITION, 0, m_engine.lineStart(line));
        painter.drawLine(QPointF(static_cast<double>(left), static_cast<double>(y)),
                         QPointF(static_cast<double>(right), static_cast<double>(y)));
    }
}

void CodeMax::contextMenuEvent(QContextMenuEvent *event)
{
    if (event->reason() == QContextMenuEvent::Mouse) {
        const QPoint point = m_bidi->toEngine(event->pos()).toPoint();
        const qsizetype at = m_engine.send(SCI_POSITIONFROMPOINT, point.x(), point.y());
        const bool inSelection =
            canCopy() && at >= m_engine.send(SCI_GETSELECTIONSTART) && at <= m_engine.send(SCI_GETSELECTIONEND);
        if (!inSelection)
            perform([&] { m_engine.send(SCI_SETEMPTYSELECTION, at); });
    }
    event->accept();
    const QPointer<CodeMax> alive(this);
    m_menuPlace = event->globalPos();
    bool handled = false;
    Q_EMIT RClick(&handled);
    if (alive && !handled)
        showContextMenu(m_menuPlace);
}

void CodeMax::showContextMenu(const QPoint &at)
{
    auto *menu = new QMenu(this);
    menu->setObjectName(u"editorMenu"_s);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const bool writable = !isReadOnly();
    const auto add = [&](const QString &text, EditorCommand command, bool enabled) {
        QAction *action = menu->addAction(text);
        action->setEnabled(enabled);
        // A key that a menu of the window has taken over still does the same.
        const auto hotKey = std::ranges::find(initialHotKeys(), numberOf(command), &CodeMaxHotKey::command);
        if (hotKey != initialHotKeys().end())
            action->setShortcut(namedKeys ? namedKeys(command, hotKey->keys) : QKeySequence(hotKey->keys));
        connect(action, &QAction::triggered, this, [this, command] { executeCmd(command); });
    };
    add(tr("&Undo"), EditorCommand::UndoText, writable && canUndo());
    add(tr("&Redo"), EditorCommand::RedoText, writable && canRedo());
    menu->addSeparator();
    add(tr("Cu&t"), EditorCommand::CutByKey, writable && canCopy());
    add(tr("&Copy"), EditorCommand::CopyByKey, canCopy());
    add(tr("&Paste"), EditorCommand::PasteByKey, writable && m_engine.send(SCI_CANPASTE));
    add(tr("&Delete"), EditorCommand::DeleteText, writable && canCopy());
    menu->addSeparator();
    add(tr("Select &All"), EditorCommand::SelectAll, true);
    add(tr("Toggle &Bookmark"), EditorCommand::ToggleBookmark, true);
    if (extendMenu) {
        menu->addSeparator();
        extendMenu(*menu);
    }
    menu->addSeparator();
    add(tr("Propert&ies…"), EditorCommand::PropertiesDialog, true);
    menu->popup(at);
}

} // namespace zephira
