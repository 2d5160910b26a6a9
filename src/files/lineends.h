// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace zephira {

/// The line ends of a text: one kind throughout, or mixed. A text without any line end counts as CR LF.
enum class LineEnds { CrLf, Lf, Cr, Mixed };

/// The kind of line end in a text in UTF-8 or another superset of ASCII. Stops at the second kind it finds.
LineEnds lineEndsOf(QByteArrayView text);

/// Converts every line end (CR LF, LF or CR) to the given kind; Mixed leaves them unchanged. A text that needs no
/// change is returned without a copy.
QByteArray toLineEnds(QByteArray text, LineEnds kind);

/// Converts every line end to CR LF.
QString toCrLf(const QString &text);

} // namespace zephira
