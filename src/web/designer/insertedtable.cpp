// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/designer/insertedtable.h"

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

QString startTag(const QString &name, const QString &attributes)
{
    return attributes.trimmed().isEmpty() ? u"<%1>"_s.arg(name) : u"<%1 %2>"_s.arg(name, attributes.trimmed());
}

} // namespace

QString insertedTableMarkup(const InsertTableParam &table)
{
    if (table.rows <= 0 || table.columns <= 0 || table.isTooLarge())
        return {};
    const QString cell = startTag(u"td"_s, table.cellAttributes) + u"<br></td>\n"_s;
    const QString row = u"<tr>\n"_s + cell.repeated(table.columns) + u"</tr>\n"_s;
    const QString caption =
        table.caption.isEmpty() ? QString() : u"<caption>%1</caption>\n"_s.arg(table.caption.toHtmlEscaped());
    return startTag(u"table"_s, table.tableAttributes) + u'\n' + caption + u"<tbody>\n"_s + row.repeated(table.rows)
        + u"</tbody>\n</table>"_s;
}

} // namespace zephira
