// SPDX-License-Identifier: GPL-3.0-or-later
// The fuzzer: fuzzer TARGET [option of libFuzzer | folder] ...; `fuzzer --list` prints the names of the targets.
#include "fuzz/fuzztarget.h"

#include <algorithm>
#include <cstdio>

namespace {

zephira::fuzz::FuzzTarget chosen;

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    auto &targets = zephira::fuzz::fuzzTargets();
    std::ranges::sort(targets, {}, &zephira::fuzz::FuzzTarget::name);
    const std::string_view name = *argc > 1 ? (*argv)[1] : "";
    if (name == "--list") {
        for (const zephira::fuzz::FuzzTarget &target : targets)
            std::printf("%s\n", target.name.data());
        std::exit(0);
    }
    const auto found = std::ranges::find(targets, name, &zephira::fuzz::FuzzTarget::name);
    if (found == targets.end()) {
        std::fprintf(stderr, "usage: fuzzer TARGET [option of libFuzzer | folder] ...; fuzzer --list\n");
        std::exit(2);
    }
    chosen = *found;
    // libFuzzer takes what is left for its own.
    (*argv)[1] = (*argv)[0];
    ++*argv;
    --*argc;
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    return chosen.run(data, size);
}
