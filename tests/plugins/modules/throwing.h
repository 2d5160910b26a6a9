// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

namespace citizen {

/// A module whose own object can't be made.
class Throwing : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.zephira.tests.Throwing")

public:
    Throwing() { throw 1; }
};

} // namespace citizen
