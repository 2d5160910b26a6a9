// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/tablemarkup.h"

#include "core/errorstyles.h"
#include "core/vbtext.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr auto lineEnd = "\r\n"_L1;

/// The parts of a table: all cells are the same, and so are all rows.
struct TableParts {
    QString head;
    QString rowStart;
    QString cell;
    QString rowEnd;
    QString tail;
};

Result<QString> assembled(TableSize size, const TableParts &parts)
{
    const qint64 rows = std::max(size.rows, 0);
    const qint64 cells = std::max(size.columns, 1);
    const qint64 rowLength = parts.rowStart.size() + cells * parts.cell.size() + parts.rowEnd.size();
    const qint64 room = maximumTableLength - parts.head.size() - parts.tail.size();
    // Uses a division because the product of two such counts may not fit in 64 bits.
    if (room < 0 || rows > room / rowLength) {
        return Error{Error::Code::TooLarge,
                     u"A table of %1 columns and %2 rows is too large for a page."_s.arg(cells).arg(rows)};
    }
    const QString row = rows > 0 ? parts.rowStart + parts.cell.repeated(cells) + parts.rowEnd : QString();
    return parts.head + row.repeated(rows) + parts.tail;
}

/// A colour attribute without quotes; empty for "Default".
QString colourAttribute(const QString &name, const QString &colour)
{
    return colour == u"Default" ? QString() : name + colour;
}

QString widthAttribute(const TableFields &fields)
{
    if (!fields.hasWidth)
        return {};
    const QString quotes = fields.asp ? u"\"\""_s : QString();
    const QString unit = fields.widthUnit == TableFields::WidthUnit::Percent ? u"%"_s : QString();
    return u" width="_s + quotes + fields.width + unit + quotes;
}

/// The opening tag of a full table. The width is between padding and spacing.
QString tableTag(const QString &alignment, const QString &quotes, const TableFields &fields,
                 const TableAttributes &attributes)
{
    return u"<TABLE "_s + alignment + u" Border="_s + quotes + fields.borderSize + quotes + u" cellpadding="_s + quotes
        + fields.cellPadding + quotes + attributes.width + u" cellspacing="_s + quotes + fields.cellSpacing + quotes
        + attributes.background + attributes.border + attributes.lightAndDark + u">"_s;
}

/// An attribute in single quotes; empty for `none`.
QString cellAttribute(const QString &name, const QString &value, QStringView none)
{
    return value == none ? QString() : u" "_s + name + u"='"_s + value + u"'"_s;
}

QString spanAttribute(const CellFields &fields)
{
    if (fields.span == u"Column")
        return cellAttribute(u"Colspan"_s, fields.spanCount, u"");
    if (fields.span == u"Row")
        return cellAttribute(u"Rowspan"_s, fields.spanCount, u"");
    return {};
}

} // namespace

std::optional<qint32> tableCount(const QString &typed)
{
    std::optional<qint32> count;
    endingQuietly([&] { count = CLng(typed); });
    return count;
}

TableAttributes tableAttributes(const TableFields &fields)
{
    const QString light = colourAttribute(u" bordercolorlight="_s, fields.lightColour);
    const QString dark = colourAttribute(u" bordercolordark="_s, fields.darkColour);
    return {
        .width = widthAttribute(fields),
        .background = colourAttribute(u" bgcolor="_s, fields.backgroundColour),
        .border = colourAttribute(u" bordercolor="_s, fields.borderColour),
        .lightAndDark = light.isEmpty() || dark.isEmpty() ? QString() : light + dark,
    };
}

Result<QString> simpleTableMarkup(TableSize size)
{
    return assembled(size,
                     {
                         .head = u"<TABLE Align=\"center\" Border=\"0\">\r\n"_s,
                         .rowStart = u"<TR>\r\n"_s,
                         .cell = u"<TD> </TD>\r\n"_s,
                         // The next row, or the end of the table, continues on the same line.
                         .rowEnd = u"\t</TR>"_s,
                         .tail = u"</TABLE>\r\n"_s,
                     });
}

Result<QString> plainTableMarkup(TableSize size, const TableFields &fields, const TableAttributes &attributes)
{
    const QString alignment = fields.alignment.isEmpty() ? QString() : u"Align=\""_s + fields.alignment + u"\""_s;
    return assembled(size,
                     {
                         .head = tableTag(alignment, u"\""_s, fields, attributes) + lineEnd,
                         .rowStart = u"<TR>\r\n"_s,
                         .cell = u"  <TD>&nbsp;</TD>\r\n"_s,
                         .rowEnd = u" </TR>\r\n"_s,
                         .tail = u"</TABLE>\r\n"_s,
                     });
}

Result<QString> aspTableMarkup(TableSize size, const TableFields &fields, const TableAttributes &attributes)
{
    const QString alignment = fields.alignment.isEmpty() ? QString() : u" Align=\"\""_s + fields.alignment + u"\"\""_s;
    const auto line = [&](const QString &markup) {
        return fields.responseWrite ? u"response.write\""_s + markup + u"\""_s : markup;
    };
    const auto delimiter = [&](const QString &mark) { return fields.responseWrite ? mark : QString(); };
    return assembled(
        size,
        {
            .head = delimiter(u"<%"_s) + lineEnd + line(tableTag(alignment, u"\"\""_s, fields, attributes)) + lineEnd,
            .rowStart = lineEnd + line(u"<TR>"_s) + lineEnd,
            .cell = line(u"<TD>&nbsp;</TD>"_s) + lineEnd,
            .rowEnd = line(u"</TR>"_s),
            .tail = lineEnd + line(u"</TABLE>"_s) + lineEnd + delimiter(u"%>"_s),
        });
}

QString cellMarkup(const CellFields &fields)
{
    return u"<TD"_s + cellAttribute(u"align"_s, fields.horizontal, u"Default")
        + cellAttribute(u"valign"_s, fields.vertical, u"Default") + spanAttribute(fields) + u"></TD>\r\n"_s;
}

} // namespace zephira
