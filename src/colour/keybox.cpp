// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/keybox.h"

#include "colour/keynotations.h"

#include <QInputMethodEvent>
#include <QKeyEvent>

namespace zephira {

KeyBox::KeyBox(QWidget *parent) : QLineEdit(parent)
{
    setContextMenuPolicy(Qt::NoContextMenu);
    setAcceptDrops(false);
}

void KeyBox::keyPressEvent(QKeyEvent *event)
{
    // Escape belongs to the form, which closes.
    if (event->key() == Qt::Key_Escape || event->text().isEmpty()) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    take(event->text());
    // A control character is shown in numbers only: what the box makes of it, pasting for one, isn't a key.
    if (event->text().front().isPrint())
        insert(event->text());
    event->accept();
}

void KeyBox::inputMethodEvent(QInputMethodEvent *event)
{
    const QString text = event->commitString();
    if (!text.isEmpty())
        take(text);
    QLineEdit::inputMethodEvent(event);
}

void KeyBox::mouseReleaseEvent(QMouseEvent *event)
{
    // The middle button would paste.
    if (event->button() != Qt::MiddleButton)
        QLineEdit::mouseReleaseEvent(event);
}

void KeyBox::take(const QString &text)
{
    clear();
    Q_EMIT keyTyped(firstCodePoint(text));
}

} // namespace zephira
