// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "completion/completionplace.h"

namespace zephira {

/// What stands at the end of a text of HTML or XML. In HTML, scripts, style sheets and server blocks end as browsers and
/// servers have them end.
CompletionPlace markupPlace(QByteArrayView before, bool isXml);

/// Whether an element of HTML has no closing tag. The name is in lower case.
bool isVoidElement(QByteArrayView name);

/// Whether an attribute's value is the address of a file.
bool isFileAttribute(QByteArrayView attribute);

} // namespace zephira
