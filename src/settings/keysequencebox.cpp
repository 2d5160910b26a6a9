// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/keysequencebox.h"

#include <QKeyEvent>
#include <QSignalBlocker>

namespace zephira {

namespace {

bool isPlain(const QKeyEvent &event, Qt::Key key)
{
    return event.key() == key && !(event.modifiers() & ~Qt::KeypadModifier);
}

} // namespace

bool KeySequenceBox::event(QEvent *event)
{
    // The box takes every key before it becomes a short-cut; Escape is left to the dialog.
    if (event->type() == QEvent::ShortcutOverride && isPlain(*static_cast<QKeyEvent *>(event), Qt::Key_Escape)) {
        event->ignore();
        return true;
    }
    return QKeySequenceEdit::event(event);
}

void KeySequenceBox::keyPressEvent(QKeyEvent *event)
{
    if (isPlain(*event, Qt::Key_Escape)) {
        event->ignore();
        return;
    }
    if (isPlain(*event, Qt::Key_Return) || isPlain(*event, Qt::Key_Enter)) {
        event->accept();
        Q_EMIT confirmed();
        return;
    }
    // The box would collect up to four keys and tell of them a second after the last one.
    QSignalBlocker quiet(this);
    const QKeySequence before = keySequence();
    clear();
    QKeySequenceEdit::keyPressEvent(event);
    const QKeySequence pressed = keySequence();
    setKeySequence(before);
    quiet.unblock();
    if (!pressed.isEmpty()) // A modifier alone is no key.
        setKeySequence(pressed);
}

} // namespace zephira
