// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "syntax/syntaxengine.h"

#include <QByteArray>

#include <memory>
#include <vector>

namespace zephira {

/// The engine of a language by its name, including "Perl"; created once for all tests.
const SyntaxEngine &engineOf(const QString &language);

/// The style bytes of a whole text. The text is copied to a buffer of exactly its size, so that a sanitizer detects
/// every access beyond it; writing beyond the styles' buffer is checked, too.
std::vector<unsigned char> stylesOf(const SyntaxEngine &engine, QByteArrayView text, LineState state = 0);

/// The styles as one letter per character, "0" to "9" and "a" for 10; line ends stay as they are. A character whose
/// bytes have different styles shows as "!".
QByteArray styleLetters(const SyntaxEngine &engine, QByteArrayView text);

/// The same with a letter for each byte, line ends included.
QByteArray byteLetters(const SyntaxEngine &engine, QByteArrayView text);

} // namespace zephira
