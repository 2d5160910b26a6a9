// SPDX-License-Identifier: GPL-3.0-or-later
// parseprobe NAME < input: prints the result of the parser of that name. Without a name it prints all names.
#include "probes/parsers.h"

#include <QFile>

#include <cstdio>
#include <cstring>

int main(int argc, char **argv)
{
    const bool named = argc == 2;
    for (const zephira::Parser &parser : zephira::parsers()) {
        if (!named) {
            std::printf("%s\n", parser.name);
            continue;
        }
        if (std::strcmp(parser.name, argv[1]) != 0)
            continue;
        QFile input;
        if (!input.open(stdin, QIODevice::ReadOnly))
            return 1;
        const QByteArray printed = parser.print(input.readAll());
        const bool written = std::fwrite(printed.constData(), 1, static_cast<std::size_t>(printed.size()), stdout)
            == static_cast<std::size_t>(printed.size());
        return written && std::fflush(stdout) == 0 ? 0 : 1;
    }
    if (named)
        std::fprintf(stderr, "no parser named %s\n", argv[1]);
    return named ? 1 : 0;
}
