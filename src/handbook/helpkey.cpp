// SPDX-License-Identifier: GPL-3.0-or-later
#include "handbook/helpkey.h"

#include "commands/helppages.h"
#include "handbook/helptable.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QKeySequenceEdit>
#include <QShortcut>
#include <QWidget>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr Qt::Key helpKey = Qt::Key_F1;
/// The menu entry that opens the contents.
constexpr QStringView contentsEntry = u"helpme";

bool isHelpKey(const QEvent &event)
{
    if (event.type() != QEvent::ShortcutOverride && event.type() != QEvent::KeyPress)
        return false;
    const auto &key = static_cast<const QKeyEvent &>(event);
    return key.key() == helpKey && !(key.modifiers() & ~Qt::KeypadModifier);
}

/// Whether a command of the window has the key.
bool hasOwnUse(const QWidget &window)
{
    const QKeySequence keys(helpKey);
    const auto usesKey = [&keys](const QAction *action) {
        return action->objectName() != contentsEntry && action->isEnabled() && action->shortcuts().contains(keys);
    };
    return std::ranges::any_of(window.findChildren<QAction *>(), usesKey)
        || std::ranges::any_of(window.findChildren<QShortcut *>(), [&keys](const QShortcut *shortcut) {
               return shortcut->isEnabled() && shortcut->key() == keys;
           });
}

/// A box for keys takes this one as any other; its inner text box has the focus.
bool takesKeys(const QWidget &control)
{
    return qobject_cast<const QKeySequenceEdit *>(&control)
        || qobject_cast<const QKeySequenceEdit *>(control.parentWidget());
}

} // namespace

HelpKey::HelpKey(const AppContext &context, QObject *parent) : QObject(parent), m_context(context)
{
    QCoreApplication::instance()->installEventFilter(this);
}

HelpKey::~HelpKey() = default;

bool HelpKey::eventFilter(QObject *watched, QEvent *event)
{
    if (!isHelpKey(*event))
        return false;
    const auto *control = qobject_cast<QWidget *>(watched);
    if (!control || QApplication::activePopupWidget() || takesKeys(*control) || hasOwnUse(*control->window()))
        return false;
    // An accepted override comes back as a key press, before any shortcut or control has got it.
    event->accept();
    if (event->type() == QEvent::KeyPress && !static_cast<QKeyEvent *>(event)->isAutoRepeat())
        openHelpPage(m_context, helpFile(helpPageOf(*control)));
    return true;
}

QString helpPageOf(const QWidget &control)
{
    std::vector<QStringList> windows(1);
    for (const QWidget *widget = &control; widget; widget = widget->parentWidget()) {
        windows.back().append(widget->objectName());
        if (widget->isWindow())
            windows.emplace_back();
    }
    return helpPageFor(windows).toString();
}

} // namespace zephira
