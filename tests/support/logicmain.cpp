// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/runtests.h"

#include <QCoreApplication>
#include <QStandardPaths>

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    QStandardPaths::setTestModeEnabled(true);
    return zephira::runTests(argc, argv);
}
