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

/// Closes any modal window that nobody expected, and fails the test with the window's title and text. Without it a
/// forgotten message box would stop the test program for good.
class ModalGuard final : public QObject
{
    Q_OBJECT

public:
    /// `allowed` may be modal.
    explicit ModalGuard(const QWidget *allowed = nullptr);

    /// Takes failures instead of QTest.
    std::function<void(const QString &)> onFailure;

private:
    void look();

    const QPointer<const QWidget> m_allowed;
    QTimer m_timer;
};

/// A form on the screen, driven by the names of its controls as a user would: made from the catalogue, shown, closed at
/// the end. A name that the form doesn't have ends the test program with a message: no test can go on from there.
class LivingForm final
{
public:
    LivingForm(const FormCatalogue &catalogue, const QString &name, const AppContext &context);
    ~LivingForm();
    Q_DISABLE_COPY_MOVE(LivingForm)

    QWidget &widget() const { return *m_form; }
    bool isOpen() const { return m_form && m_form->isVisible(); }

    /// The control of that name and class.
    template<typename T = QWidget>
    T &get(const QString &name) const
    {
        T *control = qobject_cast<T *>(find(name));
        if (!control)
            missing(name, T::staticMetaObject.className());
        return *control;
    }

    /// What a control holds, as text: of a box its text, of a check box or radio button "on" or "off", of a list its
    /// current text, of anything else its caption.
    QString value(const QString &name) const;
    /// Gives a control a value in the same form.
    void set(const QString &name, const QString &value) const;
    /// Clicks a control with the mouse.
    void press(const QString &name) const;
    /// Replaces a control's text through the keyboard.
    void type(const QString &name, const QString &text) const;
    /// Presses a key in the control that has the focus.
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    /// Name of the control that has the focus; that of a list for its line of text.
    QString focus() const;

private:
    QObject *find(const QString &name) const;
    [[noreturn]] void missing(const QString &name, const char *className) const;

    const QPointer<QWidget> m_form;
    ModalGuard m_guard;
};

} // namespace zephira
