// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

/// What the designer takes a document for.
enum class DocumentKind {
    Markup,
    PlainText, ///< a program, a style sheet or notes: shown as they stand, and edited as text
};

/// By the extension of the name. A document without a name or of an extension that nobody knows is markup.
DocumentKind documentKind(const QString &fileName);

} // namespace zephira
