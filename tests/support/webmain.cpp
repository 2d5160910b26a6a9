// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/webenginestart.h"
#include "support/runtests.h"

#include <QStandardPaths>

int main(int argc, char **argv)
{
    const std::unique_ptr<QApplication> application = zephira::makeApplication(argc, argv);
    QStandardPaths::setTestModeEnabled(true);
    return zephira::runTests(argc, argv);
}
