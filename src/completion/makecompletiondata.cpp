// SPDX-License-Identifier: GPL-3.0-or-later
// makecompletiondata < FILE    writes the lines of the completion's data file that are made from one file of the package.
//                              The build runs it.
#include "completion/datamaker.h"

#include <cstdlib>
#include <iostream>
#include <iterator>
#include <string>

using namespace zephira;

int main()
{
    const std::string json(std::istreambuf_iterator<char>(std::cin), {});
    const Result<QByteArray> lines = completionLines(QByteArray::fromStdString(json));
    if (!lines) {
        std::cerr << lines.error().sentence.toStdString() << '\n';
        return EXIT_FAILURE;
    }
    std::cout << lines.value().toStdString();
    return std::cout.flush() ? EXIT_SUCCESS : EXIT_FAILURE;
}
