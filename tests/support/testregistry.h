// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <functional>
#include <map>
#include <string>

namespace zephira {

using TestFactory = std::function<QObject *()>;

/// The test classes of this program, by name.
inline std::map<std::string, TestFactory> &testRegistry()
{
    static std::map<std::string, TestFactory> registry;
    return registry;
}

struct TestRegistration {
    TestRegistration(const char *name, TestFactory factory) { testRegistry().emplace(name, std::move(factory)); }
};

} // namespace zephira

/// Registers a test class with its program; CLASSES in CMakeLists.txt must name it, too.
#define ZEPHIRA_TEST(Class)                                                                                            \
    static const zephira::TestRegistration registerTest_##Class(#Class, [] { return new Class; });
