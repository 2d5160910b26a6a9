// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/servervariables.h"

using namespace Qt::StringLiterals;

namespace zephira {

QStringList serverVariables()
{
    return {
        u"ALL_HTTP\t"_s,          u"AUTH_PASS\t"_s,  u"AUTH_TYPE"_s,       u"CONTENT_LENGTH"_s,  u"CONTENT_TYPE"_s,
        u"GATEWAY_INTERFACE\t"_s, u"PATH_INFO"_s,    u"PATH_TRANSLATED"_s, u"QUERY_STRING"_s,    u"REMOTE_ADDR"_s,
        u"REMOTE_HOST"_s,         u"REMOTE_IDENT"_s, u"REMOTE_USER"_s,     u"REQUEST_BODY"_s,    u"REQUEST_METHOD"_s,
        u"SCRIPT_NAME"_s,         u"SERVER_NAME"_s,  u"SERVER_PORT"_s,     u"SERVER_PROTOCOL"_s, u"SERVER_SOFTWARE"_s,
    };
}

} // namespace zephira
