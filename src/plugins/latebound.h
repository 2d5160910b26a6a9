// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointer>
#include <QString>
#include <QVariant>

#include <functional>
#include <memory>

namespace zephira {

/// Runs code of a module. Whatever it throws becomes a HandlerError.
void runForeign(const std::function<void()> &code);

/// An object of a module whose members are read by name. A member is a property, or an invokable function without
/// arguments. A read raises HandlerError if there is no such member, if it throws, if its value can't be converted, or
/// if the object is gone. A function that returns nothing reads as an empty text or 0.
class LateBound
{
public:
    /// Takes the object, unless it has a parent.
    explicit LateBound(QObject *object) : m_object(object) {}
    ~LateBound();
    Q_DISABLE_COPY_MOVE(LateBound)

    bool isAlive() const { return m_object; }
    QString text(const char *member) const;
    int number(const char *member) const;

private:
    QVariant read(const char *member) const;

    const QPointer<QObject> m_object;
};

} // namespace zephira
