// SPDX-License-Identifier: GPL-3.0-or-later
#include "panes/outline.h"

#include "core/vbtext.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

using enum OutlineGroup;
using Picture = OutlinePicture;

constexpr std::array<OutlineRoot, 17> roots{{
    {u"HTML Outline", u"Main", Main, Picture::Root},
    {u"Document", u"document", Main, Picture::Section},
    {u"Declaration", u"declare", Main, Picture::Section},
    {u"Page Title", u"title", Main, Picture::Section},
    {u"Anchors", u"bookmarks", Document, Picture::Category},
    {u"Comments", u"comments", Document, Picture::Category},
    {u"Divisions", u"divisions", Document, Picture::Category},
    {u"Forms", u"forms", Document, Picture::Category},
    {u"Headings", u"headings", Document, Picture::Category},
    {u"Images", u"images", Document, Picture::Category},
    {u"Layers", u"layers", Document, Picture::Category},
    {u"Links", u"links", Document, Picture::Category},
    {u"Lists", u"lists", Document, Picture::Category},
    {u"Scripts", u"scripts", Document, Picture::Category},
    {u"Styles", u"styles", Document, Picture::Category},
    {u"Tables", u"tables", Document, Picture::Category},
    {u"Others", u"other", Document, Picture::Category},
}};

/// The caption that a tag gets in the tree.
enum class Show {
    Nothing,
    Name, ///< unchanged
    UpperName,
    Attribute,   ///< the first that is present, else `otherwise`, else the whole inner text
    Anchor,      ///< a link if it has a target, else a bookmark
    Declaration, ///< as Attribute, but a document type has its own caption
    Title,
};

struct TagRule {
    std::u16string_view name;
    Show show = Show::Nothing;
    OutlineGroup group = Other;
    std::array<QStringView, 4> attributes = {};
    QStringView otherwise = {};
    /// Comments up to the closing tag belong to the script or style sheet.
    bool beginsBlock = false;
};

constexpr std::array formAttributes{QStringView(u"NAME"), QStringView(u"ID"), QStringView(u"VALUE"),
                                    QStringView(u"TYPE")};

constexpr TagRule rules[] = {
    {u"body", Show::UpperName, Document},
    {u"head", Show::UpperName, Document},
    {u"img", Show::Attribute, Images, {u"SRC"}},
    {u"bgsound", Show::Attribute, Images, {u"SRC"}},
    {u"a", Show::Anchor},
    {u"table", Show::Name, Tables},
    {u"form", Show::Attribute, Forms, formAttributes},
    {u"input", Show::Attribute, Forms, formAttributes},
    {u"select", Show::Attribute, Forms, formAttributes},
    {u"textarea", Show::Attribute, Forms, formAttributes},
    {u"font", Show::Attribute, Styles, {u"FACE", u"COLOR", u"SIZE"}, u"FONT"},
    {u"div", Show::Attribute, Divisions, {u"ID"}, u"DIV"},
    {u"script", Show::Attribute, Scripts, {u"SRC", u"LANGUAGE", u"ID", u"TYPE"}, {}, true},
    {u"layer", Show::Attribute, Layers, {u"NAME", u"ID"}},
    {u"title", Show::Title, Title},
    {u"h1", Show::UpperName, Headings},
    {u"h2", Show::UpperName, Headings},
    {u"h3", Show::UpperName, Headings},
    {u"h4", Show::UpperName, Headings},
    {u"h5", Show::UpperName, Headings},
    {u"h6", Show::UpperName, Headings},
    {u"ol", Show::UpperName, Lists},
    {u"ul", Show::UpperName, Lists},
    {u"d", Show::UpperName, Lists}, // A definition list, dl, has always been among the others.
    {u"dt", Show::UpperName, Lists},
    {u"p"},
    {u"br"},
    {u"li"},
    {u"html"},
    {u"b"},
    {u"i"},
    {u"u"},
    {u"em"},
    {u"blockquote"},
    {u""},
    {u"tr"},
    {u"td"},
    {u"th"},
    {u"center"},
    {u"meta", Show::Declaration, Declare, {u"NAME", u"HTTP-EQUIV"}},
    {u"!doctype", Show::Declaration, Declare, {u"NAME", u"HTTP-EQUIV"}},
    {u"style", Show::Name, Other, {}, {}, true},
};

constexpr TagRule anyOtherTag{{}, Show::Name, Other};

constexpr auto rulesByName = [] {
    auto sorted = std::to_array(rules);
    std::ranges::sort(sorted, {}, &TagRule::name);
    return sorted;
}();

constexpr std::size_t longestName =
    std::ranges::max(rules, {}, [](const TagRule &rule) { return rule.name.size(); }).name.size();

QChar lower(QChar c)
{
    return c.toLower();
}

QChar upper(QChar c)
{
    return c.toUpper();
}

const TagRule &ruleOf(QStringView name)
{
    if (name.size() > static_cast<qsizetype>(longestName))
        return anyOtherTag;
    std::array<char16_t, longestName> letters{};
    const auto end = std::ranges::transform(name, letters.begin(), [](QChar c) { return lower(c).unicode(); }).out;
    const std::u16string_view key(letters.begin(), end);
    const auto rule = std::ranges::lower_bound(rulesByName, key, {}, &TagRule::name);
    return rule != rulesByName.end() && rule->name == key ? *rule : anyOtherTag;
}

/// The value of an attribute whose name is given in capitals, or nothing.
std::optional<QStringView> attributeValue(QStringView upperName, QStringView inner)
{
    qsizetype equals = inner.indexOf(u'=');
    while (equals >= 0
           && (equals < upperName.size()
               || !std::ranges::equal(inner.sliced(equals - upperName.size(), upperName.size()), upperName, {}, upper)))
        equals = inner.indexOf(u'=', equals + 1);
    if (equals < 0)
        return {};
    CInt(static_cast<double>(equals - upperName.size() + 1)); // Positions of attributes are numbers of 16 bits.

    const auto isQuote = [](QChar c) { return c == u'"' || c == u'\''; };
    const qsizetype blank = inner.indexOf(u' ', equals);
    QStringView value = inner.sliced(equals + 1, (blank < 0 ? inner.size() : blank) - equals - 1);
    if (!value.isEmpty() && isQuote(value.front()))
        value = value.sliced(1);
    if (!value.isEmpty() && isQuote(value.back()))
        value.chop(1);
    return value;
}

/// The value of the first of these attributes that is present, or nothing.
std::optional<QStringView> firstValue(std::span<const QStringView> upperNames, QStringView inner)
{
    for (const QStringView name : upperNames) {
        if (name.isEmpty())
            break;
        if (const std::optional<QStringView> value = attributeValue(name, inner))
            return value;
    }
    return {};
}

class OutlineScan
{
public:
    OutlineScan(const QString &text, const std::function<void(OutlineLeaf &&)> &sink) : m_text(text), m_sink(sink) {}

    void run()
    {
        const QStringView text(m_text);
        for (qsizetype behind = 0;;) {
            const qsizetype begin = text.indexOf(u'<', behind);
            const qsizetype end = begin < 0 ? -1 : text.indexOf(u'>', begin + 1);
            if (end < 0)
                return;
            behind = end + 1;
            scanTag(begin, text.sliced(begin + 1, end - begin - 1));
        }
    }

private:
    void scanTag(qsizetype begin, QStringView inner)
    {
        // Only a blank ends a name; a line break or a tab is part of it.
        const qsizetype blank = inner.indexOf(u' ');
        const QStringView name = blank < 0 ? inner : inner.first(blank);
        if (name.startsWith(u"!-"))
            scanComment(begin, inner.toString());
        else if (name.startsWith(u'/'))
            scanClosingTag(name);
        else
            addTag(begin, name, inner);
    }

    void scanClosingTag(QStringView name)
    {
        for (const QStringView block : {QStringView(u"/script"), QStringView(u"/style")}) {
            if (std::ranges::equal(name, block, {}, lower))
                m_inBlock = false;
        }
    }

    /// The caption is extracted as if each comment were `!-- text --`.
    void scanComment(qsizetype begin, const QString &inner)
    {
        constexpr qsizetype longestCaption = 9;
        if (m_inBlock)
            return;
        QString caption = Trim(Mid(inner, 4, inner.size() - 6));
        if (caption.size() > longestCaption)
            caption = caption.first(longestCaption) + u"..."_s;
        m_sink({Comments, caption, inner, begin});
    }

    void addTag(qsizetype begin, QStringView name, QStringView inner)
    {
        const TagRule &rule = ruleOf(name);
        m_inBlock |= rule.beginsBlock;
        const auto add = [&](OutlineGroup group, const QString &caption) {
            m_sink({group, caption, inner.toString(), begin});
        };
        switch (rule.show) {
        case Show::Nothing:
            break;
        case Show::Name:
            add(rule.group, name.toString());
            break;
        case Show::UpperName:
            add(rule.group, UCase(name.toString()));
            break;
        case Show::Attribute: {
            const QStringView otherwise = rule.otherwise.isEmpty() ? inner : rule.otherwise;
            add(rule.group, firstValue(rule.attributes, inner).value_or(otherwise).toString());
            break;
        }
        case Show::Anchor:
            if (const std::optional<QStringView> target = attributeValue(u"HREF", inner))
                add(Links, target->toString());
            else
                add(Bookmarks, attributeValue(u"NAME", inner).value_or(inner).toString());
            break;
        case Show::Declaration: {
            const QStringView otherwise = inner.startsWith(u'!') ? QStringView(u"!DOCTYPE") : inner;
            add(rule.group, firstValue(rule.attributes, inner).value_or(otherwise).toString());
            break;
        }
        case Show::Title:
            addTitle(begin, begin + 1 + inner.size());
            break;
        }
    }

    /// Extracted with fixed lengths, which assume a bare `<title>` before the text and exactly one more non-blank
    /// character after `</title>`. Positions are 1-based here, as in those lengths.
    void addTitle(qsizetype begin, qsizetype end)
    {
        if (m_closing < end)
            m_closing = m_text.indexOf(u"</", end);
        const qsizetype closing = CInt(static_cast<double>(m_closing + 1));
        const QString chunk = Trim(Mid(m_text, begin + 1, closing - (begin + 1) + 9));
        const QString tagText = Mid(chunk, 2, chunk.size() - 3);
        m_sink({Title, Mid(tagText, 7, tagText.size() - 13), tagText, begin});
    }

    const QString &m_text;
    const std::function<void(OutlineLeaf &&)> &m_sink;
    bool m_inBlock = false;
    /// The closing tag that was last used to measure a title, 0-based; -1 for none.
    qsizetype m_closing = -1;
};

} // namespace

std::span<const OutlineRoot> outlineRoots()
{
    return roots;
}

void scanOutline(const QString &documentText, const std::function<void(OutlineLeaf &&)> &sink)
{
    OutlineScan(documentText, sink).run();
}

QString GetTagAttribute(const QString &attributeName, const QString &innerText)
{
    return attributeValue(UCase(attributeName), innerText).value_or(innerText).toString();
}

} // namespace zephira
