// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/pairs/elements.h"

#include "assist/pairs/codecontext.h"
#include "assist/texthelpers.h"
#include "editor/codemax.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace zephira {

namespace {

using Sci = QsciScintillaBase;

/// How many bytes are read for a key, and at a time when none waits.
constexpr qsizetype portionOfKey = pairReach;
constexpr qsizetype portion = 500'000;

constexpr auto everything = std::numeric_limits<qsizetype>::max();

constexpr bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

} // namespace

Elements::Elements(CodeMax &rt) : m_rt(rt), m_reader(markupRules(rt))
{
    connect(&rt, &QsciScintillaBase::SCN_MODIFIED, this, [this](int position, int type) {
        if (type & (Sci::SC_MOD_BEFOREINSERT | Sci::SC_MOD_BEFOREDELETE))
            m_reader.changedFrom(position);
    });
    // Loading a text isn't announced as a change at a place.
    connect(&rt, &CodeMax::Change, this, [this, path = rt.path()]() mutable {
        if (std::exchange(path, m_rt.path()) != m_rt.path() || !m_rt.canUndo())
            m_reader.changedFrom(0);
    });
    m_reading.setSingleShot(true);
    connect(&m_reading, &QTimer::timeout, this, &Elements::readOn);
}

void Elements::takeLanguage()
{
    if (m_reader.rules() != markupRules(m_rt))
        m_reader = OpenElements(markupRules(m_rt));
}

std::vector<ElementTag> Elements::around(qsizetype position)
{
    takeLanguage();
    if (!hasTags(m_rt))
        return {};
    return m_reader.around(m_rt.utf8Pieces(), position, everything).value_or(std::vector<ElementTag>());
}

MarkupRules Elements::rules()
{
    takeLanguage();
    return m_reader.rules();
}

std::optional<std::vector<ElementTag>> Elements::soon(qsizetype position)
{
    takeLanguage();
    if (!hasTags(m_rt))
        return std::vector<ElementTag>();
    auto elements = m_reader.around(m_rt.utf8Pieces(), position, portionOfKey);
    if (!elements) {
        m_wanted = position;
        m_reading.start(1);
    }
    return elements;
}

void Elements::readOn()
{
    takeLanguage();
    const qsizetype wanted = std::min(m_wanted, m_rt.engine().length());
    if (!hasTags(m_rt) || m_reader.around(m_rt.utf8Pieces(), wanted, portion))
        Q_EMIT ready();
    else
        m_reading.start(1);
}

qsizetype Elements::endOf(const ElementTag &element)
{
    return m_reader.endOf(m_rt.utf8Pieces(), element);
}

std::vector<TextSelection> Elements::namesOf(const ElementTag &element)
{
    const SciEngine &engine = m_rt.engine();
    const qsizetype size = element.name.size();
    std::vector<TextSelection> names{{element.begin + 1, element.begin + 1 + size}};
    const qsizetype end = endOf(element);
    qsizetype nameEnd = end - 1;
    if (end <= element.tagEnd || nameEnd < 0 || engine.send(Sci::SCI_GETCHARAT, nameEnd) != '>')
        return names;
    while (nameEnd > element.tagEnd && isBlank(static_cast<char>(engine.send(Sci::SCI_GETCHARAT, nameEnd - 1))))
        --nameEnd;
    const qsizetype start = nameEnd - size;
    if (start - 2 < element.tagEnd || engine.bytes(start - 2, start) != QByteArrayView("</"))
        return names;
    const QByteArray name = engine.bytes(start, nameEnd).toByteArray();
    if (name.compare(element.name, m_reader.rules() == MarkupRules::Xml ? Qt::CaseSensitive : Qt::CaseInsensitive) == 0)
        names.push_back({start, nameEnd});
    return names;
}

void renameTag(TextHelpers &helpers)
{
    CodeMax &rt = helpers.rt();
    TextSelections names;
    for (const TextSelection &each : textSelections(rt.engine()).all) {
        const std::vector<ElementTag> elements = helpers.elements().around(each.caret);
        if (elements.empty())
            continue;
        for (const TextSelection &name : helpers.elements().namesOf(elements.back())) {
            if (std::ranges::find(names.all, name) == names.all.end())
                names.all.push_back(name);
        }
    }
    if (names.all.empty())
        return;
    // The view stays at the start tag.
    const TextSelection main = names.all.front();
    std::ranges::sort(names.all, {}, &TextSelection::start);
    names.main = static_cast<std::size_t>(std::ranges::find(names.all, main) - names.all.begin());
    selectTexts(rt, names);
}

} // namespace zephira
