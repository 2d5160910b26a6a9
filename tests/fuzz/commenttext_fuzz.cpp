// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary texts: a comment made of a text gives back that text, and marks lie around the place they are found for.
#include "assist/pairs/commenttext.h"
#include "fuzz/fuzztarget.h"

#include <array>

using namespace zephira;

FUZZ_TARGET(commenttext)
{
    static const std::array<CommentMarks, 3> all{CommentMarks{{}, "<!--", "-->"}, {"//", "/*", "*/"}, {"'", {}, {}}};
    const QByteArray text = zephira::fuzz::inputBytes(data, size);
    const qsizetype place = size ? text.size() * data[0] / 255 : 0;
    for (const CommentMarks &marks : all) {
        if (!marks.line.isEmpty()) {
            const QByteArray toggled = changedText(text, toggledLines(text, marks.line));
            // Marks that were put there go again.
            if (toggled.size() > text.size())
                check(changedText(toggled, toggledLines(toggled, marks.line)) == text);
        }
        if (marks.open.isEmpty())
            continue;
        const QByteArray comment = changedText(text, intoComment(text, marks));
        check(comment.startsWith(marks.open) && comment.endsWith(marks.close));
        check(comment.indexOf(marks.close, marks.open.size()) == comment.size() - marks.close.size());
        const auto changes = withoutComment(comment, marks);
        check(changes && changedText(comment, *changes) == text);
        if (const auto range = commentAround(text, place, marks))
            check(range->start >= 0 && range->start <= place && range->end >= place && range->end <= text.size());
    }
    return 0;
}
