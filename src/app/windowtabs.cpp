// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/windowtabs.h"

#include "commands/commandparts.h"

#include <iterator>

using namespace Qt::StringLiterals;

namespace zephira {

std::span<const WindowTab> sideTabs()
{
    static constexpr WindowTab tabs[] = {
        {u"fileman", u"File Manager", u"File Manager", u"folder-symbolic"},
        {u"asp", u"ASP Codes / Tags", u"ASP Codes / Tags", u"format-text-code"},
        {u"html", u"HTML Tags", u"HTML Tags", u"tag"},
        {u"ihtml", u"IHTML Tags", u"IHTML Tags", u"code-context"},
        {u"documenttree", u"Document Tree", u"Document Tree", u"view-list-tree"},
        {u"scripts", u"Script Library", u"Script Library", u"dialog-scripts"},
        {u"c1", u"", u"Custom tab 1", u"#custom1"},
        {u"c2", u"", u"Custom tab 2", u"#custom2"},
        {u"c3", u"", u"Custom tab 3", u"#custom3"},
        {u"c4", u"", u"Custom tab 4", u"#custom4"},
        {u"c5", u"", u"Custom tab 5", u"#custom5"},
        {u"c6", u"", u"Custom tab 6", u"#custom6"},
    };
    static_assert(std::size(tabs) == static_cast<std::size_t>(SideTab::Custom6));
    return tabs;
}

std::span<const WindowTab> workspaceTabs()
{
    static constexpr WindowTab tabs[] = {
        {u"code", u"Code View", u"Click to view / edit your html code", u"text-html"},
        {u"preview", u"Preview", u"Preview your document in Zephira's browser", u"document-preview"},
        {u"wysiwyg", u"WYSIWYG Editor", u"Use this to create your webpage using a visual approach", u"document-edit"},
    };
    return tabs;
}

} // namespace zephira
