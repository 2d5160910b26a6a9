// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/formcatalogue.h"

#include <QObject>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <QWidget>

#include <functional>

namespace zephira {

/// Closes any unexpected modal window, and fails the test with the window's title and text. Without it a forgotten
/// message box would block the test program forever.
class ModalGuard final : public QObject
{
    Q_OBJECT

public:
    /// The window `allowed` may be modal.
    explicit ModalGuard(const QWidget *allowed = nullptr);

    /// Called on failures instead of QTest.
    std::function<void(const QString &)> onFailure;

private:
    void look();

    const QPointer<const QWidget> m_allowed;
    QTimer m_timer;
};

/// A visible form that is driven as by a user, with its controls given by name. It is created from the catalogue,
/// shown, and closed at the end. A name that the form doesn't have ends the test program with a message.
class LivingForm final
{
public:
    LivingForm(const FormCatalogue &catalogue, const QString &name, const AppContext &context);
    ~LivingForm();
    Q_DISABLE_COPY_MOVE(LivingForm)

    QWidget &widget() const { return *m_form; }
    bool isOpen() const { return m_form && m_form->isVisible(); }

    /// The control with that name and class.
    template<typename T = QWidget>
    T &get(const QString &name) const
    {
        T *control = qobject_cast<T *>(find(name));
        if (!control)
            missing(name, T::staticMetaObject.className());
        return *control;
    }

    /// The value of a control as text: the text of a text box, "on" or "off" for a check box or radio button, the
    /// current text of a list, the caption of the tab in front, the caption of anything else.
    QString value(const QString &name) const;
    /// Sets the value of a control, given in the same form.
    void set(const QString &name, const QString &value) const;
    /// Clicks a control with the mouse.
    void press(const QString &name) const;
    /// Replaces a control's text through the keyboard.
    void type(const QString &name, const QString &text) const;
    /// Presses a key in the control that has the focus.
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    /// The name of the control that has the focus; for the line edit of a combo box the name of the combo box.
    QString focus() const;

private:
    QObject *find(const QString &name) const;
    [[noreturn]] void missing(const QString &name, const char *className) const;

    const QPointer<QWidget> m_form;
    ModalGuard m_guard;
};

} // namespace zephira
