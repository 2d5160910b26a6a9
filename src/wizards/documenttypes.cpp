// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/documenttypes.h"

#include <array>

namespace zephira {

std::span<const DocumentType> documentTypes()
{
    static constexpr std::array<DocumentType, 7> types{{
        {u"HTML 4.01 Transitional", u"<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.01 Transitional//EN\">"},
        {u"HTML 4.01 Strict", u"<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.01//EN\">"},
        {u"HTML 4.01 Frameset", u"<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.01 Frameset//EN\">"},
        {u"-", {}},
        {u"HTML 4.0 Transitional", u"<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.0 Transitional//EN\">"},
        {u"HTML 4.0 Strict", u"<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.0//EN\">"},
        {u"HTML 4.0 Frameset", u"<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.0 Frameset//EN\">"},
    }};
    return types;
}

} // namespace zephira
