// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/webenginestart.h"

#include "core/quietmessages.h"

namespace zephira {

std::unique_ptr<QApplication> makeApplication(int &argc, char **argv)
{
    // The two belong together: without OpenGL the engine can only paint by software.
    qputenv("QT_XCB_GL_INTEGRATION", "none");
    qputenv("QT_QUICK_BACKEND", "software");
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    const QuietMessages quiet;
    return std::make_unique<QApplication>(argc, argv);
}

} // namespace zephira
