// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary lists of numbers: partners are equal, and ascend.
#include "fuzz/fuzztarget.h"
#include "web/designer/tokenmatch.h"

#include <vector>

using namespace zephira;

FUZZ_TARGET(tokenmatch)
{
    if (size < 1)
        return 0;
    const std::size_t border = 1 + data[0] % size;
    const std::vector<int> first(data + 1, data + border);
    const std::vector<int> second(data + border, data + size);
    const std::vector<int> partners = partnersIn(first, second, 256);
    check(partners.size() == second.size());
    int last = -1;
    for (std::size_t i = 0; i < second.size(); ++i) {
        if (partners[i] < 0)
            continue;
        check(partners[i] > last && static_cast<std::size_t>(partners[i]) < first.size());
        last = partners[i];
        check(first[static_cast<std::size_t>(last)] == second[i]);
    }
    if (first == second)
        check(first.empty() || last + 1 == static_cast<int>(first.size()));
    return 0;
}
