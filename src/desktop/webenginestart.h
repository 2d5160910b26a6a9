// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>

#include <memory>

namespace zephira {

/// Creates the application so that a web engine can be loaded later, while starting as fast as without one: nothing is
/// painted through OpenGL, neither here nor by the engine, so no OpenGL context is created, and the configuration of the
/// fonts is loaded at the same time. If there is no display, the
/// process prints one sentence and exits with 1.
std::unique_ptr<QApplication> makeApplication(int &argc, char **argv);

} // namespace zephira
