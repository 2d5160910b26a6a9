// SPDX-License-Identifier: GPL-3.0-or-later
#include "handbook/keytables.h"

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

QString rowText(const KeyRow &row)
{
    QStringList keys;
    for (const QString &key : row.keys)
        keys.append(u"<kbd>%1</kbd>"_s.arg(key.toHtmlEscaped()));
    return u"<tr><td>%1</td><td>%2</td></tr>\n"_s.arg(keys.join(u", "_s), row.command.toHtmlEscaped());
}

} // namespace

QString keyTables(std::span<const KeyGroup> groups)
{
    QString html;
    for (const KeyGroup &group : groups) {
        html += u"<h2>%1</h2>\n<table>\n"_s.arg(group.title.toHtmlEscaped());
        html += u"<tr><th scope=\"col\">Key</th><th scope=\"col\">What it does</th></tr>\n"_s;
        for (const KeyRow &row : group.rows)
            html += rowText(row);
        html += u"</table>\n"_s;
    }
    return html;
}

} // namespace zephira
