// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/testregistry.h"

#include <QTest>

#include <memory>

namespace zephira {

/// Runs the class named by the first argument, or every class if there is no argument. Returns the number of failures.
/// An unknown name is a failure: a test that is listed but does not exist must not pass.
inline int runTests(int argc, char **argv)
{
    const bool named = argc > 1 && argv[1][0] != '-';
    if (named && !testRegistry().contains(argv[1])) {
        qCritical("no test class %s in this program", argv[1]);
        return 1;
    }
    int failures = 0;
    for (const auto &[name, make] : testRegistry()) {
        if (named && name != argv[1])
            continue;
        std::vector<char *> arguments{argv[0]};
        for (int i = named ? 2 : 1; i < argc; ++i)
            arguments.push_back(argv[i]);
        const std::unique_ptr<QObject> test(make());
        failures += QTest::qExec(test.get(), static_cast<int>(arguments.size()), arguments.data());
    }
    return failures;
}

} // namespace zephira
