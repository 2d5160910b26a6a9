// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>

#include <memory>

namespace zephira {

/// Makes the application so that a web engine can be loaded into it later, at the cost of a start without one: nothing is
/// painted through OpenGL, neither here nor by the engine, so no OpenGL context is made. Where there is no display, the
/// process says so in one sentence and ends with 1.
std::unique_ptr<QApplication> makeApplication(int &argc, char **argv);

} // namespace zephira
