// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

namespace zephira {

/// The same text in other letters, by the rules of no certain language. Texts are UTF-8; one that isn't stays as it is.
QByteArray upperCase(QByteArrayView text);
QByteArray lowerCase(QByteArrayView text);
/// Each word with a capital letter first and small ones behind it. An apostrophe within a word doesn't end it.
QByteArray capitalised(QByteArrayView text);

} // namespace zephira
