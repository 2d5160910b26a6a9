// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugins/latebound.h"

#include "core/errorstyles.h"

#include <QMetaMethod>
#include <QMetaProperty>

#include <exception>
#include <optional>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

HandlerError failed(const char *member, const QString &reason)
{
    return {u"The member %1 %2."_s.arg(QString::fromLatin1(member), reason)};
}

std::optional<QMetaMethod> functionOf(const QObject &object, const char *name)
{
    const int index = object.metaObject()->indexOfMethod(QByteArray(name) + "()");
    return index < 0 ? std::nullopt : std::optional(object.metaObject()->method(index));
}

/// Nothing if the function could not be called. A function without a result gives an empty value.
std::optional<QVariant> call(QObject &object, const QMetaMethod &function)
{
    const QMetaType type = function.returnMetaType();
    if (type.id() == QMetaType::Void) {
        if (!function.invoke(&object, Qt::DirectConnection))
            return {};
        return QVariant();
    }
    if (type.id() == QMetaType::QVariant) {
        QVariant value;
        if (!function.invoke(&object, Qt::DirectConnection, Q_RETURN_ARG(QVariant, value)))
            return {};
        return value;
    }
    QVariant value(type, nullptr);
    if (!value.isValid()
        || !function.invoke(&object, Qt::DirectConnection, QGenericReturnArgument(type.name(), value.data())))
        return {};
    return value;
}

} // namespace

void runForeign(const std::function<void()> &code)
{
    // The code is compiled elsewhere and may throw anything.
    try {
        code();
    } catch (const std::exception &error) {
        throw HandlerError{u"The module has raised an error: %1."_s.arg(QString::fromUtf8(error.what()))};
    } catch (...) {
        throw HandlerError{u"The module has raised an error."_s};
    }
}

LateBound::~LateBound()
{
    if (m_object && !m_object->parent())
        delete m_object.data();
}

QVariant LateBound::read(const char *member) const
{
    if (!m_object)
        throw failed(member, u"has no object any more"_s);
    QObject &object = *m_object;
    std::optional<QVariant> value;
    runForeign([&] {
        if (const int index = object.metaObject()->indexOfProperty(member); index >= 0) {
            value = object.metaObject()->property(index).read(&object);
        } else if (object.dynamicPropertyNames().contains(member)) {
            value = object.property(member);
        } else if (const std::optional<QMetaMethod> function = functionOf(object, member)) {
            value = call(object, *function);
        }
    });
    if (!value)
        throw failed(member, u"can't be read"_s);
    return *value;
}

QString LateBound::text(const char *member) const
{
    const QVariant value = read(member);
    if (value.isValid() && !value.canConvert<QString>())
        throw failed(member, u"isn't a text"_s);
    return value.toString();
}

int LateBound::number(const char *member) const
{
    const QVariant value = read(member);
    if (!value.isValid())
        return 0;
    bool isNumber = false;
    const int number = value.toInt(&isNumber);
    if (!isNumber)
        throw failed(member, u"isn't a number"_s);
    return number;
}

} // namespace zephira
