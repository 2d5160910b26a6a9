// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/pairs/closingtags.h"

#include "assist/pairs/autoclosed.h"
#include "assist/pairs/codecontext.h"
#include "assist/pairs/pairtext.h"
#include "core/textparts.h"
#include "editor/codemax.h"

#include <QString>

#include <algorithm>
#include <utility>

namespace zephira {

namespace {

/// Whether a place is within a section of characters, which has no tags.
bool isInSection(const SciEngine &engine, qsizetype position)
{
    const QByteArrayView before = engine.bytes(std::max<qsizetype>(0, position - pairReach), position);
    const qsizetype begin = before.lastIndexOf("<![CDATA[");
    return begin >= 0 && before.indexOf("]]>", begin) < 0;
}

} // namespace

ClosingTags::ClosingTags(CodeMax &rt, Elements &elements, AutoClosed &closers)
    : m_rt(rt), m_elements(elements), m_closers(closers)
{
    connect(&elements, &Elements::ready, this, [this] {
        const bool isSame = std::exchange(m_waiting, 0) == m_rt.textVersion();
        if (isSame && textSelections(m_rt.engine()).all == m_after.all)
            complete();
    });
}

void ClosingTags::forget()
{
    m_done.clear();
    m_typed = 0;
    m_steps = 0;
}

/// Whether nothing else was done since.
bool ClosingTags::isPending() const
{
    return !m_done.empty() && m_rt.textVersion() == m_version && textSelections(m_rt.engine()).all == m_after.all;
}

std::optional<ClosingTags::Completion> ClosingTags::completionAt(qsizetype caret)
{
    const SciEngine &engine = m_rt.engine();
    Completion completion{caret, 0, {}, {}};
    const bool isBegun = caret >= 2 && engine.bytes(caret - 2, caret) == QByteArrayView("</");
    if (!isBegun || !isTagPlace(m_rt, caret - 2) || isInSection(engine, caret - 2))
        return completion;
    const auto elements = m_elements.soon(caret - 2);
    if (!elements)
        return {};
    if (elements->empty())
        return completion;
    const ElementTag &innermost = elements->back();
    // The name as it is written. Where a tag begins within another one, that isn't a place to end anything.
    const qsizetype nameAt = innermost.begin + 1;
    if (innermost.tagEnd > caret - 2)
        return completion;
    completion.rest = engine.bytes(nameAt, nameAt + innermost.name.size()).toByteArray() + '>';
    const qsizetype closer = m_closers.sizeAt(caret);
    if (engine.bytes(caret, caret + closer) == "</" + completion.rest)
        completion.replaced = closer;
    if (!keepsBlanks(innermost.name))
        completion.indent = alignedWith(m_rt, caret - 2, innermost.begin);
    return completion;
}

void ClosingTags::slashTyped()
{
    forget();
    if (hasTags(m_rt) && !m_rt.isReadOnly() && !m_rt.overtype())
        complete();
}

void ClosingTags::complete()
{
    forget();
    const TextSelections selections = textSelections(m_rt.engine());
    Completions all;
    for (const TextSelection &each : selections.all) {
        std::optional<Completion> completion =
            each.isEmpty() ? completionAt(each.caret) : Completion{each.caret, 0, {}, {}};
        if (!completion) {
            m_waiting = m_rt.textVersion();
            m_after = selections;
            return;
        }
        all.push_back(std::move(completion).value());
    }
    if (std::ranges::all_of(all, [](const Completion &each) { return each.rest.isEmpty(); }))
        return;
    m_done = std::move(all);
    m_after.main = selections.main;
    put();
}

/// Makes what was typed of the completion one undo step, and the rest of it another one.
void ClosingTags::put()
{
    const SciEngine &engine = m_rt.engine();
    TextEdits typed;
    TextEdits rest;
    TextSelections behindTyped{{}, m_after.main};
    TextSelections behindAll{{}, m_after.main};
    m_steps = 0;
    m_rt.perform([&] {
        for (const Completion &each : m_done) {
            const QByteArray begin = each.rest.first(std::min(m_typed, each.rest.size()));
            typed.replace(engine, each.caret, each.caret, begin);
            const qsizetype caret = typed.moved(each.caret);
            behindTyped.all.push_back({caret, caret});
        }
        if (!typed.isEmpty()) {
            typed.make(m_rt, behindTyped);
            ++m_steps;
        }
        for (std::size_t i = 0; i < m_done.size(); ++i) {
            const Completion &each = m_done[i];
            const qsizetype caret = behindTyped.all[i].caret;
            // The blanks before this caret have moved like what was typed at those before.
            const qsizetype shift = caret - std::min(m_typed, each.rest.size()) - each.caret;
            if (each.indent)
                rest.replace(engine, each.indent->start + shift, each.indent->end + shift, each.indent->text);
            const qsizetype before = rest.moved(caret);
            rest.replace(engine, caret, caret + each.replaced, each.rest.sliced(std::min(m_typed, each.rest.size())));
            const qsizetype behind = rest.moved(caret + each.replaced);
            const qsizetype place = m_typed == 0 ? behind : before;
            behindAll.all.push_back({place, place});
        }
        if (!rest.isEmpty()) {
            rest.make(m_rt, behindAll);
            ++m_steps;
        }
    });
    m_after = textSelections(engine);
    m_version = m_rt.textVersion();
}

/// Leaves what was typed before the completion.
void ClosingTags::takeOut()
{
    TextSelections before{{}, m_after.main};
    for (const Completion &each : m_done)
        before.all.push_back({each.caret, each.caret});
    for (; m_steps > 0; --m_steps)
        m_rt.undo();
    selectTexts(m_rt, before);
}

void ClosingTags::typeOver(qsizetype size)
{
    m_rt.perform([&] {
        takeOut();
        m_typed += size;
        put();
    });
    const bool isWhole =
        std::ranges::all_of(m_done, [&](const Completion &each) { return each.rest.size() <= m_typed; });
    if (isWhole)
        forget();
}

/// Whether what is typed next is the same that was completed.
bool ClosingTags::goesOn(const QByteArray &typed) const
{
    return std::ranges::all_of(m_done, [&](const Completion &each) {
        return each.rest.size() > m_typed && each.rest.sliced(m_typed).startsWith(typed);
    });
}

bool ClosingTags::takeKey(char32_t typed)
{
    m_waiting = 0;
    if (!isPending()) {
        forget();
        return false;
    }
    const bool isUntouched = m_typed == 0;
    const QByteArray utf8 = QString::fromUcs4(&typed, 1).toUtf8();
    if (goesOn(utf8)) {
        typeOver(utf8.size());
        return true;
    }
    // Nobody begins a name with anything else than a letter: it belongs behind the end tag.
    if (isUntouched && typed != U'\b' && !isAsciiLetter(typed)) {
        forget();
        return typed == U'>';
    }
    if (typed == U'\t') {
        TextSelections behind = m_after;
        for (std::size_t i = 0; i < behind.all.size(); ++i) {
            const qsizetype rest = std::max<qsizetype>(0, m_done[i].rest.size() - m_typed);
            behind.all[i] = {behind.all[i].caret + rest, behind.all[i].caret + rest};
        }
        forget();
        selectTexts(m_rt, behind);
        return true;
    }
    m_rt.perform([&] {
        takeOut();
        if (!isUntouched) {
            // What was typed stays, without the rest.
            TextEdits edits;
            TextSelections selections{{}, m_after.main};
            for (const Completion &each : m_done) {
                edits.replace(m_rt.engine(), each.caret, each.caret,
                              each.rest.first(std::min(m_typed, each.rest.size())));
                selections.all.push_back({edits.moved(each.caret), edits.moved(each.caret)});
            }
            edits.make(m_rt, selections);
        }
    });
    forget();
    return isUntouched && typed == U'\b';
}

} // namespace zephira
