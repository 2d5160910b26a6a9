// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace zephira {

/// Line ends of a text: one kind throughout, or mixed. A text without a line end counts as CR LF.
enum class LineEnds { CrLf, Lf, Cr, Mixed };

/// The kind of a text in UTF-8 or another encoding that keeps ASCII as it is. Stops at the second kind it meets.
LineEnds lineEndsOf(QByteArrayView text);

/// The text with every line end (CR LF, LF or CR) made one of the kind; Mixed leaves all as they are. A text that needs
/// no change is given back without a copy.
QByteArray toLineEnds(QByteArray text, LineEnds kind);

/// The text with every line end made CR LF.
QString toCrLf(const QString &text);

} // namespace zephira
