// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary pages: tokens follow one another without a gap and have keys that were given, and the parts of each tag
// lie within it, in their order.
#include "fuzz/fuzztarget.h"
#include "web/designer/pagetokens.h"
#include "web/designer/tagparts.h"

using namespace zephira;

namespace {

void checkParts(QStringView page, const PageToken &token)
{
    const TagParts tag = readTag(page, token.begin);
    check(tag.isEnd == (token.kind == TokenKind::EndTag) && tag.end == token.end);
    qsizetype at = tag.nameEnd;
    check(tag.nameBegin > token.begin && tag.nameEnd >= tag.nameBegin);
    for (const TagAttribute &attribute : tag.attributes) {
        check(attribute.begin >= at && attribute.nameBegin >= attribute.begin);
        check(attribute.nameEnd >= attribute.nameBegin && attribute.end >= attribute.nameEnd);
        if (attribute.hasValue())
            check(attribute.valueBegin >= attribute.nameEnd && attribute.valueEnd >= attribute.valueBegin
                  && attribute.end >= attribute.valueEnd);
        at = attribute.end;
    }
    check(at <= tag.end);
}

} // namespace

FUZZ_TARGET(pagetokens)
{
    const QString page = zephira::fuzz::inputText(data, size);
    TokenKeys keys;
    qsizetype end = 0;
    for (const PageToken &token : pageTokens(page, keys)) {
        check(token.begin == end && token.end > token.begin && token.key >= 0 && token.key < keys.count());
        end = token.end;
        if (token.kind == TokenKind::StartTag || token.kind == TokenKind::EndTag)
            checkParts(page, token);
    }
    check(end == page.size());
    return 0;
}
