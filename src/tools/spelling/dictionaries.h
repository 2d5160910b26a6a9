// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace zephira {

/// An installed dictionary: two files of the same name that end in ".aff" and ".dic".
struct Dictionary {
    QString name; ///< its language, such as "en_US"
    QString path; ///< of both files, without their endings

    friend bool operator==(const Dictionary &, const Dictionary &) = default;
};

/// The dictionary that is used unless another one was chosen.
inline const QString standardDictionary = QStringLiteral("en_US");

/// The folders where dictionaries are installed; the user's own come first.
QStringList dictionaryFolders();

/// The dictionaries in the folders, sorted by name. Of two with the same name, the one in the earlier folder counts.
std::vector<Dictionary> dictionariesIn(const QStringList &folders);

/// A dictionary's name for the user, "American English (en_US)"; the name alone if it isn't a language's.
QString dictionaryTitle(const QString &name);

} // namespace zephira
