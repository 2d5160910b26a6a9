// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

// Statements of server-side scripts. Fields are inserted as typed: nothing is quoted or checked. Lines end in CR LF.

struct CookieFields {
    QString value = {};
    QString expires = {};
    QString path = {};
};

/// A script block that sets the cookie "Type".
QString cookieMarkup(const CookieFields &fields);

struct IfFields {
    QString left = {};
    QString comparison = {};
    QString right = {};
    QString thenStatement = {};
    /// Empty for a statement without an alternative.
    QString elseStatement = {};
};

/// A script block with one If statement.
QString ifMarkup(const IfFields &fields);

/// A statement, without script delimiters, that sends the visitor to another address.
QString redirectStatement(const QString &address);

} // namespace zephira
