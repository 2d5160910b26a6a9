// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>
#include <QString>

#include <vector>

namespace zephira {

/// A place of a document that has a name.
struct DocumentSymbol {
    enum class Kind { Heading, Id, Rule, Function, Class };

    Kind kind = Kind::Heading;
    /// One line, without markup; cut after a few hundred characters.
    QString name;
    /// Byte offset from the start of the text.
    qsizetype position = 0;
    /// 1 to 6 of a heading, else 0.
    int level = 0;

    friend bool operator==(const DocumentSymbol &, const DocumentSymbol &) = default;
};

using DocumentSymbols = std::vector<DocumentSymbol>;

/// Adds a symbol; beyond 50,000 of them, nothing more is added.
void addSymbol(DocumentSymbols &symbols, DocumentSymbol symbol);

/// A name for display: no more than 200 characters, with one blank in place of each stretch of blanks and line ends.
QString symbolName(QByteArrayView utf8);

} // namespace zephira
