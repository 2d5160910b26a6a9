// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary texts for keys: the usual spelling of keys is its own usual spelling.
#include "fuzz/fuzztarget.h"
#include "widgets/keytext.h"

using namespace zephira;

FUZZ_TARGET(keytext)
{
    const QString text = zephira::fuzz::inputText(data, size);
    const std::optional<QString> keys = normalKeys(text);
    keysRefusal(text);
    shownKeys(text);
    if (!keys)
        return 0;
    check(normalKeys(*keys) == keys && keysRefusal(*keys) == keysRefusal(text));
    check(keys->isEmpty() == shownKeys(*keys).isEmpty());
    return 0;
}
