// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QStringList>

#include <random>
#include <vector>

namespace zephira {

/// Names of all languages that the properties are tested with.
QStringList corpusLanguages();

/// A text of about so many pieces: words, signs and line ends with which a lexer changes its mind, in any order. The same
/// generator gives the same texts.
QByteArray corpusText(std::mt19937 &dice, int pieces);

/// Bytes without any order, with more signs of markup among them than chance would give.
QByteArray corpusBytes(std::mt19937 &dice, int size);

/// Where the lines of a text begin, the first at 0. A line end at the text's end begins no line.
std::vector<qsizetype> lineStartsOf(const QByteArray &text);

} // namespace zephira
