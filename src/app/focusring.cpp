// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/focusring.h"

#include <QApplication>
#include <QShortcut>
#include <QWidget>

#include <algorithm>

namespace zephira {

namespace {

bool takesFocus(const QWidget &widget)
{
    return widget.isVisible() && widget.isEnabled() && widget.focusPolicy() & Qt::TabFocus;
}

} // namespace

FocusRing::FocusRing(QWidget &window, std::vector<Part> parts) : QObject(&window), m_parts(std::move(parts))
{
    auto *forward = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_F6), &window);
    auto *back = new QShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_F6), &window);
    connect(forward, &QShortcut::activated, this, [this] { walk(false); });
    connect(back, &QShortcut::activated, this, [this] { walk(true); });
}

void FocusRing::walk(bool backward)
{
    const QWidget *focus = QApplication::focusWidget();
    const auto here = std::ranges::find_if(
        m_parts, [focus](const Part &part) { return focus && (part.area == focus || part.area->isAncestorOf(focus)); });
    const std::size_t count = m_parts.size();
    // If no part has the focus, start at an end.
    std::size_t at = here != m_parts.end() ? static_cast<std::size_t>(here - m_parts.begin())
        : backward                         ? 0
                                           : count - 1;
    for (std::size_t tries = 0; tries < count; ++tries) {
        at = (at + (backward ? count - 1 : 1)) % count;
        const Part &part = m_parts[at];
        QWidget *control = part.area->isVisible() ? firstControl(*part.area) : nullptr;
        if (!control)
            continue;
        if (part.enter)
            part.enter();
        else
            control->setFocus(Qt::ShortcutFocusReason);
        return;
    }
}

/// The area itself, or the first control inside it that takes focus by the Tab key.
QWidget *FocusRing::firstControl(QWidget &area)
{
    if (takesFocus(area))
        return &area;
    for (QWidget *next = area.nextInFocusChain(); next != &area; next = next->nextInFocusChain()) {
        if (area.isAncestorOf(next) && takesFocus(*next))
            return next;
    }
    return nullptr;
}

} // namespace zephira
