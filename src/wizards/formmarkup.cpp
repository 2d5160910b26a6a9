// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/formmarkup.h"

#include "core/errorstyles.h"
#include "core/vbtext.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr auto lineEnd = "\r\n"_L1;

double numberIn(const QString &typed)
{
    double number = 0;
    endingQuietly([&] { number = CDbl(typed); });
    return number;
}

QString formField(int number)
{
    return u"\r\n<p>enter your field label name<input type=\"text\" size=\"20\" name=\"T"_s + QString::number(number)
        + u"\"></p>"_s;
}

} // namespace

Result<QString> formMarkup(const FormFields &fields)
{
    const double number = std::max(numberIn(fields.count), 0.0);
    if (number > mostFormFields)
        return Error{Error::Code::TooLarge, u"A form of %1 fields is too large for a page."_s.arg(CStr(number))};
    const int count = CLng(number);
    QString text = u"<form action=\""_s + fields.action + u"\" method=\""_s + fields.method + u"\" name=\""_s
        + fields.name + u"\">"_s;
    for (int i = 1; i <= count; ++i)
        text += formField(i);
    // The second button has no blanks between its attributes, and there is one before the closing tag.
    return text + u"\r\n<p><input type=\"submit\" name=\"B1\" value=\"Submit\">\r\n"_s
        + u"<input type=\"reset\"name=\"B2\"value=\"Reset\"></p>\r\n </form>"_s;
}

QString menuMarkup(const MenuFields &fields)
{
    const bool writes = fields.asp && fields.responseWrite;
    const auto line = [&](const QString &markup) {
        return (writes ? u"response.write\""_s + markup + u'"' : markup) + lineEnd;
    };
    const auto attribute = [quotes = fields.asp ? u"\"\""_s : u"\""_s](const QString &name, const QString &value) {
        return u' ' + name + u'=' + quotes + value + quotes;
    };
    const QString multiple = fields.multiple ? u" multiple"_s : QString();
    const QString tab = fields.tabOrder.isEmpty() ? QString() : attribute(u"tabindex"_s, fields.tabOrder);
    QString text = line(u"<select"_s + attribute(u"size"_s, fields.height) + attribute(u"name"_s, fields.name)
                        + multiple + tab + u'>');
    for (const MenuChoice &choice : fields.choices) {
        const QString value = choice.value == MenuChoice::noValue ? QString() : attribute(u"Value"_s, choice.value);
        const QString selected = choice.selected ? u" selected"_s : QString();
        text += line(u"  <option"_s + value + selected + u'>' + choice.text + u"</option>"_s);
    }
    return text + line(u"</select>"_s);
}

} // namespace zephira
