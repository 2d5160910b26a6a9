// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

/// The one operation through which text goes into the document: into the designer's selection in visual mode, else in
/// the place of the code view's selection.
class Inserter
{
public:
    virtual ~Inserter() = default;
    virtual void InsertAtCaret(const QString &text) = 0;
};

} // namespace zephira
