// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

/// The single operation that inserts text into the document: it replaces the designer's selection in visual mode,
/// otherwise the code view's selection.
class Inserter
{
public:
    virtual ~Inserter() = default;
    virtual void InsertAtCaret(const QString &text) = 0;
};

} // namespace zephira
