// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary pages in the designer: the pieces have no gaps, server code comes back unchanged, and nothing that the
// engine may do to a page causes harm.
#include "files/textfile.h"
#include "fuzz/fuzztarget.h"
#include "web/designer/pageroundtrip.h"

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

void checkPieces(const QString &text)
{
    qsizetype end = 0;
    for (const PagePiece &piece : scanPage(text)) {
        check(piece.begin == end && (piece.end > piece.begin || piece.kind == PieceKind::Value));
        end = piece.end;
    }
    check(end == text.size());
}

} // namespace

FUZZ_TARGET(servermarks)
{
    const QByteArray bytes = zephira::fuzz::inputBytes(data, size);
    const QString text = QString::fromUtf8(decodeText(bytes).utf8);
    checkPieces(text);
    const QString prefix = freshMarkPrefix(text);
    ServerMarks marks(prefix);
    check(marks.unmask(marks.mask(text)) == text);
    PageRoundTrip page(text, prefix);
    page.fromEngine(text);
    page.fromEngine(page.forEngine());
    page.fragmentFromEngine(page.fragmentForEngine(text));
    return 0;
}
