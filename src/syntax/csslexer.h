// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "syntax/linelexer.h"

namespace zephira {

/// Colours style sheets: selectors as element names, properties as attribute names, at-rules as keywords, values by
/// their form. Whether a statement is a rule or a declaration is decided by what ends it, so nested rules need no extra
/// work.
class CssLexer final : public CodeLexer
{
public:
    const Byte *paint(const StyleCanvas &canvas, const Byte *begin, const Byte *end, bool lineStart,
                      quint32 &state) const override;
    quint32 behindLineEnd(quint32 state) const override;
    SyntaxStyle lineEndStyle(quint32 state) const override;
};

} // namespace zephira
