// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QString>

/// A text of a table, u"text", that is translated where it is shown, by translated() with the same context. The command
/// scripts/translations finds it by this name. Both must be plain literals.
#define ZEPHIRA_TEXT(context, text) u"" text

namespace zephira {

/// A table's text in the language of the desktop; the text itself if there is no translation, or no context: texts without
/// one stay as they are in every language.
inline QString translated(const char *context, QStringView text)
{
    return context && !text.isEmpty() ? QCoreApplication::translate(context, text.toUtf8().constData())
                                      : text.toString();
}

} // namespace zephira
