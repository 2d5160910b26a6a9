// SPDX-License-Identifier: GPL-3.0-or-later
#include "soak/soakuser.h"

#include "document/document.h"
#include "soak/soakdesk.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QTest>
#include <QToolBar>
#include <QWheelEvent>
#include <QWindow>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// Left out: they end the program, or print.
const QStringList leftOut{u"exit"_s, u"mnuupdate"_s, u"print"_s};

/// A document that has become longer than this makes room for another one.
constexpr int longestText = 60000;

/// In a form, the user presses Escape now and then, surely after the first number of steps; a form that is still there
/// after the second can't be left.
constexpr int patienceInDialog = 60;
constexpr int endOfPatience = 400;

/// Now and then the user waits this long, in milliseconds, so that what happens in idle moments happens.
constexpr int pause = 15;

/// How long the window is left alone before it is measured: ticks, and the time between two of them in milliseconds.
constexpr int restTicks = 30;
constexpr int restInterval = 10;

constexpr std::array movingKeys = {Qt::Key_Left, Qt::Key_Right,  Qt::Key_Up,  Qt::Key_Down,    Qt::Key_Home,
                                   Qt::Key_End,  Qt::Key_PageUp, Qt::Key_Tab, Qt::Key_PageDown};
constexpr std::array editingKeys = {Qt::Key_Return, Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Tab,    Qt::Key_Insert,
                                    Qt::Key_Space,  Qt::Key_Enter,     Qt::Key_Menu,   Qt::Key_Escape, Qt::Key_Backtab};

const QStringList snippets{u"<div class=\""_s, u"</"_s,           u"<a href='"_s, u"{"_s,        u"("_s,
                           u"ul>li*3"_s,       u"color: #f0c;"_s, u"<!-- "_s,     u"<?php "_s,   u"&nbsp;"_s,
                           u"äß€"_s,           u"\U0001F600"_s,   u"*.*"_s,       u"../index"_s, u"function f()"_s,
                           u"text text "_s,    u"12"_s,           u"é\u200B"_s};

bool isAscii(QChar c)
{
    return c < u'\u0080';
}

/// What a window makes when it is first needed, so that it doesn't look like growth when that is late. The editor's
/// properties are made for one form after another, and go with it.
void makeLateParts(frmmain &window)
{
    const QList<QComboBox *> boxes = window.findChildren<QComboBox *>();
    for (const QComboBox *box : boxes)
        box->view();
    window.rt().executeCmd(EditorCommand::PropertiesDialog);
}

/// A field keeps everything that was ever typed into it for Undo, as a document does.
void forgetUndo(const frmmain &window)
{
    const QList<QLineEdit *> fields = window.findChildren<QLineEdit *>();
    for (QLineEdit *field : fields)
        field->setText(field->text());
}

QString nameOf(const QObject &object)
{
    return QString::fromLatin1(object.metaObject()->className()) + u' ' + object.objectName();
}

} // namespace

SoakUser::SoakUser(SoakDesk &desk, Plan plan) : m_desk(desk), m_plan(std::move(plan)), m_random(m_plan.seed)
{
    connect(&m_timer, &QTimer::timeout, this, &SoakUser::tick);
    for (const QString &name : leftOut) {
        QAction *action = desk.window().findChild<QAction *>(name);
        if (!action)
            qFatal("no command is named %s", qPrintable(name));
        // Its keys and its entry remain, and do nothing.
        action->blockSignals(true);
    }
}

void SoakUser::start()
{
    m_timer.start(0);
}

void SoakUser::tick()
{
    m_desk.forgetRecords();
    if (m_desk.hasEnded())
        m_fault = u"the program has ended itself"_s;
    if (!m_fault.isEmpty()) {
        m_timer.stop();
        Q_EMIT finished();
        return;
    }
    if (m_rests) {
        if (!comeToRest())
            return;
        m_rests = false;
        m_timer.setInterval(0);
        Q_EMIT resting(m_step);
        if (m_step == m_plan.steps) {
            m_timer.stop();
            Q_EMIT finished();
        }
        return;
    }
    ++m_step;
    const QString what = act();
    m_timer.setInterval(oneIn(10) ? pause : 0);
    if (m_plan.tell)
        m_plan.tell(m_step, what);
    m_rests = m_step % m_plan.between == 0 || m_step == m_plan.steps;
    m_isEmpty = false;
    m_stillFor = 0;
    m_closings = 0;
}

QString SoakUser::act()
{
    if (QWidget *popup = QApplication::activePopupWidget())
        return actInPopup(*popup);
    QWidget *dialog = QApplication::activeModalWidget();
    m_stepsInDialog = dialog && dialog == m_dialog ? m_stepsInDialog + 1 : 0;
    m_dialog = dialog;
    if (dialog)
        return actInDialog(*dialog);
    const QList<QWidget *> others = otherWindows();
    if (!others.isEmpty() && oneIn(6)) {
        QWidget &other = *others[below(static_cast<int>(others.size()))];
        if (oneIn(40)) {
            QMetaObject::invokeMethod(&other, &QWidget::close, Qt::QueuedConnection);
            return u"close "_s + nameOf(other);
        }
        return actInWindow(other);
    }
    return actInWindow(m_desk.window());
}

QString SoakUser::actInPopup(QWidget &popup)
{
    const int choice = below(100);
    if (choice < 40)
        press(popup, Qt::Key_Escape, {});
    else if (choice < 75)
        press(popup, movingKeys[static_cast<std::size_t>(below(4))], {});
    else if (choice < 88)
        press(popup, Qt::Key_Return, {});
    else
        return clickIn(popup, popup);
    return u"key in the pop-up "_s + nameOf(popup);
}

QString SoakUser::actInDialog(QWidget &dialog)
{
    if (m_stepsInDialog > endOfPatience) {
        m_fault = nameOf(dialog) + u" can't be left"_s;
        return {};
    }
    if (m_stepsInDialog > 2 * patienceInDialog) {
        QMetaObject::invokeMethod(&dialog, &QWidget::close, Qt::QueuedConnection);
        return u"close "_s + nameOf(dialog);
    }
    if (oneIn(14) || m_stepsInDialog > patienceInDialog) {
        press(dialog, Qt::Key_Escape, {});
        return u"Escape in "_s + nameOf(dialog);
    }
    const int choice = below(100);
    if (choice < 25)
        return type(dialog);
    if (choice < 50)
        return key(dialog);
    return clickSomewhere(dialog);
}

QString SoakUser::actInWindow(QWidget &window)
{
    const bool isMain = &window == &m_desk.window();
    CodeMax &text = m_desk.window().rt();
    const int choice = below(1000);
    if (isMain && (choice < 8 || text.textLength() > longestText))
        return openDocument();
    if (isMain && choice < 150)
        return command();
    if (isMain && choice < 170) {
        text.setFocus();
        return u"focus in the text"_s;
    }
    if (isMain && choice < 400 && text.isVisible()) {
        const int kind = below(10);
        return kind < 6 ? clickIn(window, text) : kind < 8 ? dragIn(window, text) : wheelIn(window, text);
    }
    if (choice < 600)
        return type(window);
    if (choice < 850)
        return key(window);
    return clickSomewhere(window);
}

QString SoakUser::openDocument()
{
    const QString file = m_desk.documents()[below(static_cast<int>(m_desk.documents().size()))];
    frmmain *window = &m_desk.window();
    // Half of the time as it is, with the question about changes.
    const bool forgets = oneIn(2) || window->rt().textLength() > longestText;
    QMetaObject::invokeMethod(
        window,
        [window, file, forgets] {
            if (forgets)
                window->document().setModified(false);
            window->document().openFileOrImage(file);
        },
        Qt::QueuedConnection);
    return u"open "_s + file;
}

bool SoakUser::mayBeChosen(const QAction &action) const
{
    if (!action.isEnabled() || action.isSeparator() || action.menu() || action.objectName().isEmpty()
        || leftOut.contains(action.objectName()))
        return false;
    const QList<QObject *> holders = action.associatedObjects();
    return std::ranges::any_of(holders, [](const QObject *holder) {
        if (const auto *menu = qobject_cast<const QMenu *>(holder))
            return menu->menuAction()->isEnabled();
        const auto *bar = qobject_cast<const QToolBar *>(holder);
        return bar && bar->isVisible();
    });
}

QString SoakUser::command()
{
    QList<QAction *> actions = m_desk.window().findChildren<QAction *>();
    actions.removeIf([this](const QAction *action) { return !mayBeChosen(*action); });
    if (actions.isEmpty())
        return u"no command"_s;
    // New ones first. What a command makes when it is first used, such as its form, isn't growth, and has to be there before
    // the growth is measured.
    QList<QAction *> unused = actions;
    unused.removeIf([this](const QAction *action) { return m_chosen.contains(action->objectName()); });
    const QList<QAction *> &choice = unused.isEmpty() ? actions : unused;
    QAction *action = choice[below(static_cast<int>(choice.size()))];
    m_chosen.insert(action->objectName());
    QMetaObject::invokeMethod(action, &QAction::trigger, Qt::QueuedConnection);
    return u"command "_s + action->objectName();
}

QString SoakUser::type(QWidget &window)
{
    const QString &text = snippets[below(static_cast<int>(snippets.size()))];
    QString written = oneIn(2) ? text : QString(QChar(u' ' + static_cast<char16_t>(below(95))));
    for (const QChar c : std::as_const(written))
        press(window, isAscii(c) ? c.toUpper().unicode() : static_cast<int>(Qt::Key_unknown), {}, c);
    return u"type \"%1\" in %2"_s.arg(written, nameOf(window));
}

QString SoakUser::key(QWidget &window)
{
    constexpr std::array modifiers = {
        Qt::KeyboardModifiers(Qt::ControlModifier), Qt::KeyboardModifiers(Qt::ShiftModifier),
        Qt::KeyboardModifiers(Qt::AltModifier),     Qt::ControlModifier | Qt::ShiftModifier,
        Qt::AltModifier | Qt::ShiftModifier,        Qt::ControlModifier | Qt::AltModifier};
    const Qt::KeyboardModifiers held =
        oneIn(2) ? Qt::KeyboardModifiers() : modifiers[static_cast<std::size_t>(below(modifiers.size()))];
    int key = 0;
    QString text;
    const int kind = below(10);
    if (kind < 4) {
        key = movingKeys[static_cast<std::size_t>(below(movingKeys.size()))];
    } else if (kind < 7) {
        key = editingKeys[static_cast<std::size_t>(below(editingKeys.size()))];
    } else if (kind < 8) {
        key = Qt::Key_F1 + below(12);
    } else {
        key = Qt::Key_A + below(26);
        if (!(held & (Qt::ControlModifier | Qt::AltModifier)))
            text = QChar(key);
    }
    press(window, key, held, text);
    return u"key %1 in %2"_s.arg(QKeySequence(QKeyCombination(held, static_cast<Qt::Key>(key))).toString(),
                                 nameOf(window));
}

QPoint SoakUser::pointIn(const QWidget &window, const QWidget &widget)
{
    return widget.mapTo(&window, QPoint(below(std::max(widget.width(), 1)), below(std::max(widget.height(), 1))));
}

QString SoakUser::clickIn(QWidget &window, QWidget &widget)
{
    const QPoint at = pointIn(window, widget);
    const Qt::MouseButton button = oneIn(8) ? Qt::RightButton : oneIn(20) ? Qt::MiddleButton : Qt::LeftButton;
    const Qt::KeyboardModifiers held = oneIn(10) ? Qt::KeyboardModifiers(Qt::ControlModifier)
        : oneIn(10)                              ? Qt::KeyboardModifiers(Qt::ShiftModifier)
        : oneIn(20)                              ? Qt::KeyboardModifiers(Qt::AltModifier)
                                                 : Qt::KeyboardModifiers();
    m_time += 1000;
    const int clicks = oneIn(6) ? 2 : 1;
    for (int click = 0; click < clicks; ++click) {
        mouse(window, at, QEvent::MouseButtonPress, button, held);
        mouse(window, at, QEvent::MouseButtonRelease, button, held);
    }
    return u"click on %1 at %2, %3"_s.arg(nameOf(widget)).arg(at.x()).arg(at.y());
}

QString SoakUser::dragIn(QWidget &window, QWidget &widget)
{
    const QPoint from = pointIn(window, widget);
    const QPoint to = pointIn(window, widget);
    const Qt::KeyboardModifiers held = oneIn(4) ? Qt::KeyboardModifiers(Qt::AltModifier) : Qt::KeyboardModifiers();
    m_time += 1000;
    mouse(window, from, QEvent::MouseButtonPress, Qt::LeftButton, held);
    for (int part = 1; part <= 4; ++part)
        mouse(window, from + (to - from) * part / 4, QEvent::MouseMove, Qt::LeftButton, held);
    mouse(window, to, QEvent::MouseButtonRelease, Qt::LeftButton, held);
    return u"drag on "_s + nameOf(widget);
}

QString SoakUser::wheelIn(QWidget &window, QWidget &widget)
{
    if (QWindow *target = window.windowHandle()) {
        const QPoint at = pointIn(window, widget);
        const Qt::KeyboardModifiers held =
            oneIn(4) ? Qt::KeyboardModifiers(Qt::ControlModifier) : Qt::KeyboardModifiers();
        QCoreApplication::postEvent(target,
                                    new QWheelEvent(at, window.mapToGlobal(at), {}, {0, oneIn(2) ? 120 : -120},
                                                    Qt::NoButton, held, Qt::NoScrollPhase, false));
    }
    return u"wheel on "_s + nameOf(widget);
}

QString SoakUser::clickSomewhere(QWidget &window)
{
    QList<QWidget *> widgets = window.findChildren<QWidget *>();
    widgets.removeIf([&window](const QWidget *widget) {
        return !widget->isVisible() || widget->window() != &window || widget->visibleRegion().isEmpty();
    });
    if (widgets.isEmpty())
        return clickIn(window, window);
    QWidget &widget = *widgets[below(static_cast<int>(widgets.size()))];
    const int kind = below(10);
    return kind < 8 ? clickIn(window, widget) : kind < 9 ? dragIn(window, widget) : wheelIn(window, widget);
}

void SoakUser::press(QWidget &window, int key, Qt::KeyboardModifiers modifiers, const QString &text)
{
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        deliver(window, [=](QWindow &target) { qt_handleKeyEvent(&target, type, key, modifiers, text); });
    }
}

void SoakUser::mouse(QWidget &window, QPoint at, QEvent::Type type, Qt::MouseButton button,
                     Qt::KeyboardModifiers modifiers)
{
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : button;
    const Qt::MouseButton changed = type == QEvent::MouseMove ? Qt::NoButton : button;
    const QPoint onScreen = window.mapToGlobal(at);
    m_time += 5;
    deliver(window, [=, time = m_time](QWindow &target) {
        qt_handleMouseEvent(&target, at, onScreen, held, changed, type, modifiers, time);
    });
}

/// Queued, because an event may open a form and return only when that is closed.
void SoakUser::deliver(QWidget &window, const std::function<void(QWindow &)> &event)
{
    const QPointer<QWindow> target = window.windowHandle();
    QMetaObject::invokeMethod(
        this,
        [target, event] {
            // A window system sends nothing to a window that it doesn't show.
            if (target && target->isVisible() && target->handle())
                event(*target);
        },
        Qt::QueuedConnection);
}

QList<QWidget *> SoakUser::otherWindows() const
{
    QList<QWidget *> windows = QApplication::topLevelWidgets();
    windows.removeIf([this](const QWidget *window) {
        return window == &m_desk.window() || !window->isVisible() || !window->windowHandle()
            || window->windowType() == Qt::ToolTip || window->windowType() == Qt::Popup;
    });
    return windows;
}

bool SoakUser::closeOne()
{
    if (QWidget *popup = QApplication::activePopupWidget()) {
        press(*popup, Qt::Key_Escape, {});
        return true;
    }
    if (QWidget *dialog = QApplication::activeModalWidget()) {
        auto *box = qobject_cast<QMessageBox *>(dialog);
        if (QAbstractButton *no = box ? box->button(QMessageBox::No) : nullptr)
            QMetaObject::invokeMethod(no, &QAbstractButton::click, Qt::QueuedConnection);
        else if (m_closings < patienceInDialog)
            press(*dialog, Qt::Key_Escape, {});
        else
            QMetaObject::invokeMethod(dialog, &QWidget::close, Qt::QueuedConnection);
        return true;
    }
    const QList<QWidget *> others = otherWindows();
    if (others.isEmpty())
        return false;
    QMetaObject::invokeMethod(others.front(), &QWidget::close, Qt::QueuedConnection);
    return true;
}

bool SoakUser::comeToRest()
{
    if (closeOne()) {
        if (++m_closings > endOfPatience)
            m_fault = u"the windows can't be closed"_s;
        m_stillFor = 0;
        return false;
    }
    if (!m_isEmpty) {
        m_isEmpty = true;
        frmmain *window = &m_desk.window();
        QMetaObject::invokeMethod(
            window,
            [window] {
                window->document().setModified(false);
                window->doNew();
                window->document().clearClipboard();
                forgetUndo(*window);
                makeLateParts(*window);
            },
            Qt::QueuedConnection);
    }
    m_timer.setInterval(restInterval);
    return ++m_stillFor >= restTicks;
}

} // namespace zephira
