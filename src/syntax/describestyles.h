// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

namespace zephira {

class SyntaxEngine;

/// The colours of a text as text: one line per run of equal styles, "offset length style", numbers in bytes from 0, each
/// line ended by a line feed.
QByteArray describeStyles(QByteArrayView text, const SyntaxEngine &engine);

/// The same for a language by its name, built in or "Perl", without regard to case. An unknown name gives an empty answer.
QByteArray describeStyles(QByteArrayView text, const QString &language);

} // namespace zephira
