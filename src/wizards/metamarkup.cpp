// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/metamarkup.h"

#include "wizards/attribute.h"

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

QString metaTag(const QString &name, const QString &content)
{
    return u"<META"_s + attribute(u"NAME"_s, name) + attribute(u"content"_s, content) + u'>';
}

} // namespace

QString metaMarkup(const SiteFacts &facts)
{
    // The blank at the end of the first line and the capital of the last name are part of the text.
    return metaTag(u"description"_s, facts.description) + u" \r\n"_s //
        + metaTag(u"keywords"_s, facts.keywords) + u"\r\n"_s         //
        + metaTag(u"author"_s, facts.author) + u"\r\n"_s             //
        + metaTag(u"Copyright"_s, facts.copyright);
}

} // namespace zephira
