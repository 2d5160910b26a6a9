// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QRect>
#include <QStringList>

#include <functional>

class QWidget;

namespace zephira {

/// What a look over a visible form has found.
struct FormFindings {
    /// How many texts or controls were looked at; a walk that looks at nothing proves nothing.
    int looks = 0;
    /// A sentence for each fault.
    QStringList faults;
};

/// A text that a form shows, and where.
struct ShownText {
    const QWidget *widget = nullptr;
    QString text;
    /// What the text takes, as it is drawn.
    QSize needs;
    /// The room that it has, in the widget's coordinates.
    QRect room;
};

/// The visible texts of the form: labels, buttons, titles of groups, tabs, headings of columns, the shown entry of lists,
/// the longest numbers of spin boxes, the hints in empty boxes. A box that takes any text counts as one with a single letter.
QList<ShownText> shownTexts(const QWidget &form);

/// Calls `look` for the form as it is, and then with each page of its tabs and stacks in front.
void withEachPage(QWidget &form, const std::function<void()> &look);

/// Measures each shown text against the room that it has. Also finds controls that reach beyond their parent or cover each
/// other.
FormFindings cutTexts(const QWidget &form);

} // namespace zephira
