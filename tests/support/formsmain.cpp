// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/runtests.h"

#include <QApplication>
#include <QStandardPaths>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QStandardPaths::setTestModeEnabled(true);
    return zephira::runTests(argc, argv);
}
