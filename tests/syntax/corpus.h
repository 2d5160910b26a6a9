// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QStringList>

#include <random>
#include <vector>

namespace zephira {

/// The languages for which the general properties are tested.
QStringList corpusLanguages();

/// A text of about `pieces` pieces in random order: words, symbols and line ends that change a lexer's state. Equal
/// generators give equal texts.
QByteArray corpusText(std::mt19937 &dice, int pieces);

/// Random bytes, with markup characters more frequent than by chance.
QByteArray corpusBytes(std::mt19937 &dice, int size);

/// The offsets at which the lines of a text begin, the first at 0. A line end at the text's end begins no line.
std::vector<qsizetype> lineStartsOf(const QByteArray &text);

} // namespace zephira
