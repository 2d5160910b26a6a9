// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary pages that are changed in the designer: a change of what the engine got becomes changes within the
// source, and makes a page that the engine would be given with that change.
#include "files/textfile.h"
#include "fuzz/fuzztarget.h"
#include "web/designer/pageroundtrip.h"
#include "web/designer/servermarks.h"

using namespace Qt::StringLiterals;
using namespace zephira;

FUZZ_TARGET(pageroundtrip)
{
    // Three bytes choose a place, a length and what is inserted there.
    if (size < 3)
        return 0;
    const QString text = QString::fromUtf8(
        decodeText(QByteArray(reinterpret_cast<const char *>(data) + 3, static_cast<qsizetype>(size) - 3)).utf8);
    const QString prefix = freshMarkPrefix(text);
    const PageRoundTrip page(text, prefix);
    const QStringView masked = page.masked();
    const qsizetype begin = data[0] * masked.size() / 255;
    const qsizetype end = std::min(begin + data[1] % 8, masked.size());
    static const QStringList inserted{{}, u"x"_s, u"<b>x</b>"_s, u"\n<p>"_s, u"<%"_s, u"\""_s};
    const TextChanges edit{{begin, end, inserted[data[2] % inserted.size()]}};
    page.spelled(masked);
    const std::optional<TextChanges> changes = page.changesOfSource(edit);
    if (!changes)
        return 0;
    check(areInOrder(*changes, text.size()));
    const PageRoundTrip changed(withChanges(text, *changes), prefix);
    const ServerMarks marks(prefix);
    // A change may move the border between the doctype and the rest.
    const QString doctype = page.forEngine().chopped(masked.size());
    check(marks.withoutNumbers(changed.forEngine()) == marks.withoutNumbers(doctype + withChanges(masked, edit)));
    return 0;
}
