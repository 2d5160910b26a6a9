// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/elementmarkup.h"

#include "wizards/attribute.h"

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

QString clearValue(LineBreak kind)
{
    switch (kind) {
    case LineBreak::ClearRight:
        return u"Right"_s;
    case LineBreak::ClearLeft:
        return u"Left"_s;
    case LineBreak::ClearBoth:
        return u"Both"_s;
    case LineBreak::Unchosen:
    case LineBreak::Normal:
        break;
    }
    return {};
}

/// Empty for a value that says it is the default.
QString attributeUnlessDefault(const QString &name, const QString &value)
{
    return value.endsWith(u"default)") ? QString() : attribute(name, value);
}

/// Ends in a blank, unlike the other attributes.
QString sizeAttribute(const QString &name, const QString &value)
{
    return value.isEmpty() ? QString() : attribute(name, value) + u' ';
}

} // namespace

QString refreshMarkup(const RefreshFields &fields)
{
    return u"<meta http-equiv=\"refresh\" content=\""_s + fields.delay + u"\"; url=\""_s + fields.address + u"\">"_s;
}

QString breakMarkup(LineBreak kind)
{
    return kind == LineBreak::Normal ? u"<br>"_s : u"<br clear=\""_s + clearValue(kind) + u"\" > "_s;
}

QString inlineFrameMarkup(const InlineFrameFields &fields)
{
    return u"<iframe"_s + attribute(u"src"_s, fields.source) + attribute(u"name"_s, fields.name)
        + attribute(u"id"_s, fields.name) + attribute(u"width"_s, fields.width) + attribute(u"height"_s, fields.height)
        + attribute(u"marginwidth"_s, fields.marginWidth) + attribute(u"marginheight"_s, fields.marginHeight)
        + attribute(u"align"_s, fields.alignment) + attributeUnlessDefault(u"scrolling"_s, fields.scrolling)
        + attributeUnlessDefault(u"frameborder"_s, fields.border) + u"></iframe>"_s;
}

QString marqueeMarkup(const MarqueeFields &fields)
{
    const QString quotes = fields.responseWrite ? u"\"\""_s : u"\""_s;
    const QString element = u"<Marquee"_s + attribute(u"align"_s, fields.alignment, quotes)
        + attribute(u"behavior"_s, fields.behaviour, quotes) + attribute(u"bgcolor"_s, fields.background, quotes)
        + attribute(u"direction"_s, fields.direction, quotes) + attribute(u"scrollamount"_s, fields.amount, quotes)
        + attribute(u"scrolldelay"_s, fields.delay, quotes) + sizeAttribute(u"width"_s, fields.width)
        + sizeAttribute(u"height"_s, fields.height) + u'>' + fields.text + u"</Marquee>"_s;
    return fields.responseWrite ? u"response.write \""_s + element + u'"' : element;
}

} // namespace zephira
