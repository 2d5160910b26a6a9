// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "completion/completionplace.h"

#include <QByteArrayList>
#include <QSet>

namespace zephira {

/// The names that a document uses.
struct DocumentNames {
    QSet<QByteArray> ids;
    QSet<QByteArray> classes;
    QSet<QByteArray> tags;
    QSet<QByteArray> attributes;
    /// The addresses of style sheets that it links or imports, as they are written, in their order.
    QByteArrayList sheets;

    void add(const DocumentNames &other);
};

/// The names in HTML or XML, also in its style sheets. Tags and attributes have the case that they are written in.
DocumentNames markupNames(QByteArrayView text, PlaceLanguage language);

/// The ids and classes in the selectors of a style sheet, and the sheets that it imports.
DocumentNames styleNames(QByteArrayView text);

/// The words of a text with three letters or more, up to a number of them.
QSet<QByteArray> wordsOf(QByteArrayView text, qsizetype most);

} // namespace zephira
