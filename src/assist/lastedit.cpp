// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/lastedit.h"

#include "assist/texthelpers.h"
#include "editor/codemax.h"

#include <algorithm>

namespace zephira {

namespace {

using Sci = QsciScintillaBase;

} // namespace

LastEdit::LastEdit(CodeMax &rt) : m_rt(rt)
{
    connect(&rt, &QsciScintillaBase::SCN_MODIFIED, this,
            [this](int position, int type, const char *, int length) { noteChange(position, type, length); });
    // A loaded text has nothing in common with the one before. Loading isn't announced as a change at a place.
    connect(&rt, &CodeMax::Change, this, [this] {
        if (m_rt.path() == m_path)
            return;
        m_path = m_rt.path();
        m_places.clear();
    });
}

/// Changes are announced before they are made, so the places and lines are those of the text as it was.
void LastEdit::noteChange(int position, int type, int length)
{
    const auto isNear = [&engine = m_rt.engine()](qsizetype a, qsizetype b) {
        return engine.lineOf(std::min(a, engine.length())) == engine.lineOf(std::min(b, engine.length()));
    };
    if (type & Sci::SC_MOD_BEFOREINSERT)
        m_places.inserted(position, length, isNear);
    else if (type & Sci::SC_MOD_BEFOREDELETE)
        m_places.removed(position, length, isNear);
}

void LastEdit::go()
{
    const SciEngine &engine = m_rt.engine();
    const qsizetype place = m_places.next(engine.caret());
    if (place < 0)
        return;
    m_rt.perform([&] {
        const qsizetype position = std::min(place, engine.length());
        engine.send(Sci::SCI_ENSUREVISIBLE, engine.lineOf(position));
        engine.send(Sci::SCI_GOTOPOS, position);
        engine.send(Sci::SCI_CHOOSECARETX);
    });
}

void goToLastEdit(TextHelpers &helpers)
{
    helpers.lastEdit().go();
}

} // namespace zephira
