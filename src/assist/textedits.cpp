// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/textedits.h"

#include "editor/codemax.h"

#include <algorithm>
#include <utility>

namespace zephira {

namespace {

using Sci = QsciScintillaBase;

void select(const SciEngine &engine, const TextSelections &selections)
{
    // The main one comes last, and the engine takes the one that comes last for the main one.
    const auto &[all, main] = selections;
    bool first = true;
    const auto add = [&](const TextSelection &each) {
        engine.send(std::exchange(first, false) ? Sci::SCI_SETSELECTION : Sci::SCI_ADDSELECTION, each.caret,
                    each.anchor);
    };
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (i != main)
            add(all[i]);
    }
    add(all.at(main));
    engine.send(Sci::SCI_ENSUREVISIBLE, engine.lineOf(all.at(main).caret));
    engine.send(Sci::SCI_SCROLLCARET);
    engine.send(Sci::SCI_CHOOSECARETX);
}

} // namespace

TextSelections textSelections(const SciEngine &engine)
{
    TextSelections selections;
    const qsizetype count = engine.send(Sci::SCI_GETSELECTIONS);
    const qsizetype main = engine.send(Sci::SCI_GETMAINSELECTION);
    for (qsizetype i = 0; i < count; ++i)
        selections.all.push_back(
            {engine.send(Sci::SCI_GETSELECTIONNANCHOR, i), engine.send(Sci::SCI_GETSELECTIONNCARET, i)});
    const TextSelection last = selections.all.at(static_cast<std::size_t>(main));
    std::ranges::sort(selections.all, {}, &TextSelection::start);
    selections.main = static_cast<std::size_t>(std::ranges::find(selections.all, last) - selections.all.begin());
    return selections;
}

bool isAnySelected(const TextSelections &selections)
{
    return !std::ranges::all_of(selections.all, &TextSelection::isEmpty);
}

void selectTexts(CodeMax &rt, const TextSelections &selections)
{
    rt.perform([&] { select(rt.engine(), selections); });
}

void TextEdits::replace(const SciEngine &engine, qsizetype start, qsizetype end, const QByteArray &text, bool pushes)
{
    if (engine.bytes(start, end) == QByteArrayView(text))
        return;
    m_edits.push_back({start, end, text, pushes, m_growth});
    m_growth += text.size() - (end - start);
}

qsizetype TextEdits::placeOf(qsizetype position) const
{
    // The last change that begins before the place, or at it.
    const auto behind = std::ranges::upper_bound(m_edits, position, {}, &Edit::start);
    for (auto it = behind; it != m_edits.begin();) {
        const Edit &edit = *--it;
        const bool isInsertionHere = edit.start == edit.end && edit.start == position;
        if (isInsertionHere && !edit.pushes)
            continue;
        const qsizetype size = edit.text.size();
        if (position >= edit.end)
            return position + edit.growthBefore + size - (edit.end - edit.start);
        return edit.start + edit.growthBefore + std::min(size, position - edit.start);
    }
    return position;
}

void TextEdits::make(CodeMax &rt, const TextSelections &selections) const
{
    make(rt, [&selections] { return selections; });
}

void TextEdits::make(CodeMax &rt, const std::function<TextSelections()> &selections) const
{
    rt.perform([&] {
        const SciEngine &engine = rt.engine();
        engine.send(Sci::SCI_BEGINUNDOACTION);
        std::for_each(m_edits.rbegin(), m_edits.rend(),
                      [&](const Edit &edit) { rt.replaceBytes(edit.start, edit.end, edit.text); });
        engine.send(Sci::SCI_ENDUNDOACTION);
        select(engine, selections());
    });
}

} // namespace zephira
