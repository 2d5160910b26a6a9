// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary files: decoding gives valid UTF-8, and encoding restores the same bytes.
#include "files/textfile.h"
#include "files/utf8.h"
#include "fuzz/fuzztarget.h"

#include <cstdlib>

FUZZ_TARGET(textfile)
{
    using namespace zephira;
    const QByteArray bytes = zephira::fuzz::inputBytes(data, size);
    const DecodedText text = decodeText(bytes);
    if (!isValidUtf8(text.utf8))
        std::abort();
    const Result<QByteArray> encoded = encodeText(text.utf8, text.format);
    if (!encoded || encoded.value() != bytes)
        std::abort();
    if (toLineEnds(text.utf8, text.format.lineEnds) != text.utf8)
        std::abort();
    if (toLineEnds(toLineEnds(text.utf8, LineEnds::Lf), LineEnds::CrLf) != toLineEnds(text.utf8, LineEnds::CrLf))
        std::abort();
    return 0;
}
