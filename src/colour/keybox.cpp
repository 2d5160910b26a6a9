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
    // Escape belongs to the form, which closes. Some keys without a text would paste.
    if (event->key() == Qt::Key_Escape || event->text().isEmpty()) {
        event->ignore();
        return;
    }
    take(event->text());
    // A control character is shown only as numbers; what the box would do with it, such as pasting, isn't a key.
    if (QChar::isPrint(firstCodePoint(event->text())))
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
