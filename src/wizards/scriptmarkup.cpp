// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/scriptmarkup.h"

using namespace Qt::StringLiterals;

namespace zephira {

QString cookieMarkup(const CookieFields &fields)
{
    // The uneven indents, and the blank at the end of the line before the last, are part of the text.
    return u"<%\r\n"_s                                                                  //
        + u"  Response.Cookies(\"Type\") = \""_s + fields.value + u"\"\r\n"_s           //
        + u"  Response.Cookies(\"Type\").Expires = \""_s + fields.expires + u"\"\r\n"_s //
        + u"  Response.Cookies(\"Type\").Domain =\"\"\r\n"_s                            //
        + u" Response.Cookies(\"Type\").Path = \""_s + fields.path + u"\"\r\n"_s        //
        + u"Response.Cookies(\"Type\").Secure = FALSE \r\n"_s                           //
        + u"%>"_s;
}

QString ifMarkup(const IfFields &fields)
{
    const QString otherwise =
        fields.elseStatement.isEmpty() ? QString() : u"Else\r\n"_s + fields.elseStatement + u"\r\n"_s;
    return u"<% If "_s + fields.left + u' ' + fields.comparison + u' ' + fields.right + u" Then \r\n"_s
        + fields.thenStatement + u"\r\n"_s + otherwise + u"End If %>\r\n"_s;
}

QString redirectStatement(const QString &address)
{
    return u"Response.redirect\""_s + address + u'"';
}

} // namespace zephira
