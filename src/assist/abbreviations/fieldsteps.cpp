// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/abbreviations/fieldsteps.h"

#include "editor/codemax.h"

#include <QKeyEvent>

#include <algorithm>
#include <limits>
#include <utility>

namespace zephira {

namespace {

using Sci = QsciScintillaBase;

/// Whether the key steps; how far, or 0 for Escape.
std::optional<int> stepOf(const QKeyEvent &key)
{
    const Qt::KeyboardModifiers modifiers = key.modifiers() & ~Qt::KeypadModifier;
    if (key.key() == Qt::Key_Tab && modifiers == Qt::NoModifier)
        return 1;
    if (modifiers == Qt::ShiftModifier && (key.key() == Qt::Key_Backtab || key.key() == Qt::Key_Tab))
        return -1;
    if (key.key() == Qt::Key_Escape && modifiers == Qt::NoModifier)
        return 0;
    return {};
}

} // namespace

FieldSteps::FieldSteps(CodeMax &rt) : m_rt(rt)
{
    connect(&m_rt, &Sci::SCN_MODIFIED, this, [this](int position, int type, const char *, int length) {
        if (!isActive())
            return;
        if (type & Sci::SC_MOD_BEFOREINSERT)
            inserted(position, length);
        else if (type & Sci::SC_MOD_BEFOREDELETE)
            removed(position, length);
    });
    connect(&m_rt, &CodeMax::SelChange, this, &FieldSteps::lookAtCaret);
    connect(&m_rt, &CodeMax::Change, this, &FieldSteps::lookAtCaret);
    m_rt.installEventFilter(this);
}

void FieldSteps::begin(qsizetype start, qsizetype end, std::vector<TextField> fields)
{
    m_whole = {0, start, end};
    m_length = m_rt.engine().length();
    m_fields = std::move(fields);
    m_steps.clear();
    for (const TextField &field : m_fields)
        m_steps.push_back(field.number);
    std::ranges::sort(m_steps, {}, [](int number) { return number == 0 ? std::numeric_limits<int>::max() : number; });
    const auto equal = std::ranges::unique(m_steps);
    m_steps.erase(equal.begin(), equal.end());
    if (!m_steps.empty())
        goTo(0);
}

void FieldSteps::end()
{
    m_fields.clear();
    m_steps.clear();
}

void FieldSteps::goTo(std::size_t step)
{
    m_step = step;
    const SciEngine &engine = m_rt.engine();
    m_rt.perform([&] {
        bool isFirst = true;
        for (const TextField &field : std::as_const(m_fields)) {
            if (field.number != m_steps[m_step])
                continue;
            engine.send(isFirst ? Sci::SCI_SETSELECTION : Sci::SCI_ADDSELECTION, field.end, field.start);
            isFirst = false;
        }
        engine.send(Sci::SCI_SETMAINSELECTION, 0);
        engine.send(Sci::SCI_SCROLLCARET);
    });
    if (m_step + 1 >= m_steps.size())
        end();
}

/// What is inserted at the edge of a place belongs to it only while the caret is there.
void FieldSteps::inserted(qsizetype position, qsizetype length)
{
    const int current = m_steps[m_step];
    for (TextField &field : m_fields) {
        const bool isCurrent = field.number == current;
        const bool isBefore = isCurrent ? position < field.start : position <= field.start;
        const bool isWithin = isCurrent ? position <= field.end : position < field.end;
        field.start += isBefore ? length : 0;
        field.end += isBefore || isWithin ? length : 0;
    }
    m_length += length;
    if (position < m_whole.start)
        m_whole.start += length;
    if (position <= m_whole.end)
        m_whole.end += length;
}

void FieldSteps::removed(qsizetype position, qsizetype length)
{
    const auto moved = [&](qsizetype place) { return place <= position ? place : std::max(position, place - length); };
    for (TextField &field : m_fields)
        field = {field.number, moved(field.start), moved(field.end)};
    m_whole = {0, moved(m_whole.start), moved(m_whole.end)};
    m_length -= length;
    if (m_whole.start == m_whole.end)
        end();
}

void FieldSteps::lookAtCaret()
{
    if (!isActive())
        return;
    const qsizetype caret = m_rt.engine().caret();
    // Nothing is told of the loading of another text.
    if (caret < m_whole.start || caret > m_whole.end || m_rt.engine().length() != m_length)
        end();
}

bool FieldSteps::eventFilter(QObject *watched, QEvent *event)
{
    const bool isKey = event->type() == QEvent::KeyPress;
    if (!isActive() || (!isKey && event->type() != QEvent::ShortcutOverride))
        return QObject::eventFilter(watched, event);
    const std::optional<int> step = stepOf(*static_cast<QKeyEvent *>(event));
    if (!step)
        return QObject::eventFilter(watched, event);
    event->accept();
    if (!isKey)
        return true;
    if (*step == 0)
        end();
    else if (*step > 0)
        goTo(m_step + 1);
    else if (m_step > 0)
        goTo(m_step - 1);
    return true;
}

} // namespace zephira
