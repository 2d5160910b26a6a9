// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary text of pages: its characters follow one another without a gap, and reading it as a whole gives the same.
#include "core/entitynames.h"
#include "fuzz/fuzztarget.h"
#include "web/designer/characterspans.h"

using namespace zephira;

FUZZ_TARGET(characterspans)
{
    const QString text = zephira::fuzz::inputText(data, size);
    for (const References references : {References::None, References::InText, References::InValue}) {
        QString read;
        qsizetype end = 0;
        for (const CharacterSpan &span : characterSpans(text, references)) {
            check(span.begin == end && span.end > span.begin && span.character <= 0x10ffff);
            end = span.end;
            read += QStringView(QChar::fromUcs4(span.character));
        }
        check(end == text.size());
        QString whole;
        appendRead(text, references, whole);
        check(whole == read);
    }
    check(entityCharacter(text) <= 0x10ffff);
    return 0;
}
