// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>
#include <QString>

namespace zephira {

/// How an element is called: its name with its id and its classes, as a style sheet would select it. A long caption is
/// cut off.
///
///     elementCaption("<DIV id=main class=\"a b\">", "div") == "div#main.a.b"
QString elementCaption(QByteArrayView tag, QByteArrayView name);

} // namespace zephira
