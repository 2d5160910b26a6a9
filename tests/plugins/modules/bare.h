// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

namespace citizen {

/// A module that neither makes an object nor is one.
class Bare : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.zephira.tests.Bare")
};

} // namespace citizen
