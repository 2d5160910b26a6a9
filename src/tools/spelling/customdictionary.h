// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QStringList>
#include <QStringView>

namespace zephira {

/// The user's own words as read from their file.
struct CustomDictionary {
    QStringList words; ///< in the order of the file, each once
    qsizetype faultyLines = 0;
    qsizetype firstFaultyLine = 0; ///< counts from 1; 0 if there is none
};

/// Whether a file of the user's words can hold the word: at most a hundred printable characters without white space, at
/// least one of them a letter.
bool isCustomWord(QStringView word);

/// Reads UTF-8 text with one word to a line. Blanks around a word, empty lines and a byte order mark don't matter.
/// Other lines are counted as faulty.
CustomDictionary readCustomDictionary(const QByteArray &bytes);

/// The bytes with one more line. The existing ones stay as they are, whatever they are. A word that is there already
/// isn't added again.
QByteArray withCustomWord(const QByteArray &bytes, const QString &word);

} // namespace zephira
