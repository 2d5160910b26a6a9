// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary pages on their way to the live page: one without server code is shown as it is, and each number that a
// tag gets is the place of a tag in the source.
#include "fuzz/fuzztarget.h"
#include "web/designer/pagescan.h"
#include "web/live/livetext.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;
using namespace zephira;

FUZZ_TARGET(livetext)
{
    const QString source = zephira::fuzz::inputText(data, size);
    if (source.contains(u"zq9x"))
        return 0;
    const LiveText live = liveText(source, u"zq9x"_s);
    bool hasServerCode = false;
    for (const PagePiece &piece : scanPage(source))
        hasServerCode |= piece.kind >= PieceKind::ServerText;
    check(hasServerCode || live.shown == source);
    check(live.shown.size() <= source.size());
    static const QRegularExpression marks(u" zq9x=(\\d+) "_s);
    for (auto found = marks.globalMatch(live.marked); found.hasNext();) {
        const qsizetype place = found.next().captured(1).toLongLong();
        check(place < source.size() && source[place] == u'<');
    }
    return 0;
}
