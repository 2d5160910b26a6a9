// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/variablelists.h"

namespace zephira {

namespace {

constexpr QStringView ssiVariables[] = {
    u"CONTENT_LENGTH", u"CONTENT_TYPE",      u"DATE_GMT",        u"DATE_LOCAL",      u"DOCUMENT_NAME",
    u"DOCUMENT_URI",   u"GATEWAY_INTERFACE", u"HTTP_ACCEPT",     u"HTTP_REFERER",    u"HTTP_USER_AGENT",
    u"LAST_MODIFIED",  u"PATH_INFO",         u"PATH_TRANSLATED", u"QUERY_STRING",    u"QUERY_STRING_UNESCAPED",
    u"REMOTE_ADDR",    u"REMOTE_HOST",       u"REMOTE_USER",     u"REQUEST_METHOD",  u"SCRIPT_NAME",
    u"SERVER_NAME",    u"SERVER_PORT",       u"SERVER_PROTOCOL", u"SERVER_SOFTWARE",
};

// REMOTE_IDENT appears twice in this list, as it always has.
constexpr QStringView serverVariables[] = {
    u"HTTP_REFERER",      u"ALL_HTTP",     u"AUTH_PASS",       u"AUTH_TYPE",       u"CONTENT_LENGTH", u"CONTENT_TYPE",
    u"GATEWAY_INTERFACE", u"PATH_INFO",    u"PATH_TRANSLATED", u"QUERY_STRING",    u"REMOTE_ADDR",    u"REMOTE_HOST",
    u"REMOTE_IDENT",      u"REMOTE_IDENT", u"REMOTE_USER",     u"REQUEST_BODY",    u"REQUEST_METHOD", u"SCRIPT_NAME",
    u"SERVER_NAME",       u"SERVER_PORT",  u"SERVER_PROTOCOL", u"SERVER_SOFTWARE",
};

constexpr VariableList lists[] = {
    {u"ssivar", u"SSI variables", PaletteTab::Ssi, ssiVariables},
    {u"Combo6", u"Server Variables", PaletteTab::Asp, serverVariables},
};

} // namespace

std::span<const VariableList> variableLists()
{
    return lists;
}

} // namespace zephira
