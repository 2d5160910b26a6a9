// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

namespace zephira {

class SyntaxEngine;

/// Describes the colours of a text: one line "offset length style" for each run of equal styles, offset (0-based) and
/// length in bytes, each line ended by a line feed.
QByteArray describeStyles(QByteArrayView text, const SyntaxEngine &engine);

/// The same for a language given by name, built in or "Perl", not case-sensitive. Returns an empty result for an
/// unknown name.
QByteArray describeStyles(QByteArrayView text, const QString &language);

} // namespace zephira
