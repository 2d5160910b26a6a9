// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/pairs/codecontext.h"

#include "core/appcontext.h"
#include "core/documenthost.h"
#include "core/languages.h"
#include "editor/codemax.h"
#include "editor/codemaxglobals.h"
#include "editor/idlecolouring.h"
#include "syntax/syntaxengine.h"

#include <algorithm>
#include <limits>

namespace zephira {

namespace {

using Sci = QsciScintillaBase;

/// The entry of a list field that comes first, without a blank that must follow it.
QByteArray firstOf(const QString &list)
{
    return list.section(u'\n', 0, 0).trimmed().toUtf8();
}

/// Style sheets and SQL are coloured as another language.
CommentMarks marksOfText(const CodeMax &rt, const AppContext &context, const CodeMaxLanguage *language)
{
    const int row = context.document.languageRow();
    const bool isBorrowed = rt.language().compare(u"java", Qt::CaseInsensitive) == 0;
    if (isBorrowed && row == language::StyleSheets)
        return {{}, "/*", "*/"};
    if (isBorrowed && row == language::Sql)
        return {"--", "/*", "*/"};
    if (!language)
        return {};
    return {firstOf(language->SingleLineComments), firstOf(language->MultiLineComments1),
            firstOf(language->MultiLineComments2)};
}

} // namespace

std::optional<CodePlace> placeAt(CodeMax &rt, qsizetype position, qsizetype reach)
{
    const auto syntax = rt.globals().languages().engine(rt.language());
    if (!syntax)
        return CodePlace();
    const SciEngine &engine = rt.engine();
    const qsizetype line = engine.lineOf(position);
    const qsizetype start = engine.lineStart(line);
    if (position - start > reach)
        return {};
    rt.colouring().colourTo(position);
    if (engine.send(Sci::SCI_GETENDSTYLED) < start)
        return {};
    const auto state = line == 0 ? LineState{0} : static_cast<LineState>(engine.send(Sci::SCI_GETLINESTATE, line));
    const auto before = start == 0 ? SyntaxStyle::Text : static_cast<SyntaxStyle>(engine.styleAt(start - 1));
    return syntax->placeBehind(engine.bytes(start, position), state, before);
}

CodePlace surePlaceAt(CodeMax &rt, qsizetype position)
{
    constexpr auto anywhere = std::numeric_limits<qsizetype>::max();
    if (const auto place = placeAt(rt, position, anywhere))
        return *place;
    rt.colouring().colourAll();
    return placeAt(rt, position, anywhere).value_or(CodePlace());
}

bool hasTags(const CodeMax &rt)
{
    return rt.language().compare(u"HTML", Qt::CaseInsensitive) == 0
        || rt.language().compare(u"XML", Qt::CaseInsensitive) == 0;
}

MarkupRules markupRules(const CodeMax &rt)
{
    return rt.language().compare(u"XML", Qt::CaseInsensitive) == 0 ? MarkupRules::Xml : MarkupRules::Html;
}

/// What follows a comment at once counts as part of it.
bool isTagPlace(CodeMax &rt, qsizetype position)
{
    const auto place = placeAt(rt, position);
    if (!place || place->language != CodePlace::Language::Markup || place->inServerBlock)
        return false;
    const SciEngine &engine = rt.engine();
    return place->part == CodePlace::Part::Content
        || (place->part == CodePlace::Part::Comment
            && engine.bytes(std::max<qsizetype>(0, position - 3), position) == "-->");
}

std::optional<StartTag> startTagEndingAt(CodeMax &rt, qsizetype position)
{
    const auto place = placeAt(rt, position);
    const bool isInside = !place || place->inServerBlock || place->part == CodePlace::Part::Comment
        || place->part == CodePlace::Part::String;
    if (isInside || (place->language == CodePlace::Language::Markup && place->part != CodePlace::Part::Content))
        return {};
    const SciEngine &engine = rt.engine();
    const qsizetype from = std::max<qsizetype>(0, position - pairReach);
    const QByteArray text = engine.bytes(from, position).toByteArray();
    auto tag = startTagBefore(text, markupRules(rt), [&](qsizetype offset) { return isTagPlace(rt, from + offset); });
    if (tag)
        tag->begin += from;
    return tag;
}

CommentMarks commentMarksAt(CodeMax &rt, const AppContext &context, const CodePlace &place)
{
    switch (place.language) {
    case CodePlace::Language::Own:
        return marksOfText(rt, context, rt.globals().languages().find(rt.language()));
    case CodePlace::Language::Markup:
        return {{}, "<!--", "-->"};
    case CodePlace::Language::JavaScript:
    case CodePlace::Language::Php:
        return {"//", "/*", "*/"};
    case CodePlace::Language::VbScript:
        return {"'", {}, {}};
    case CodePlace::Language::StyleSheet:
        return {{}, "/*", "*/"};
    case CodePlace::Language::Unknown:
        break;
    }
    return {};
}

} // namespace zephira
