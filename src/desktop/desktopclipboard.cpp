// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/desktopclipboard.h"

#include <QClipboard>
#include <QGuiApplication>

namespace zephira {

QString DesktopClipboard::text() const
{
    return QGuiApplication::clipboard()->text();
}

void DesktopClipboard::setText(const QString &text)
{
    QClipboard *clipboard = QGuiApplication::clipboard();
    // An empty text would still enable Paste.
    if (text.isEmpty())
        clipboard->clear();
    else
        clipboard->setText(text);
}

} // namespace zephira
