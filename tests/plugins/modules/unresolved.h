// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

/// A function of another build of the program, which this one doesn't have.
QObject *functionOfAnotherBuild();

namespace citizen {

/// A module for another build: without care the process would end when it is asked for its object.
class Unresolved : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.zephira.tests.Unresolved")

public:
    Q_INVOKABLE QObject *create(const QString &) { return functionOfAnotherBuild(); }
};

} // namespace citizen
