// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/live/livetext.h"

#include "web/designer/pagescan.h"

namespace zephira {

LiveText liveText(const QString &source, const QString &mark)
{
    LiveText text;
    text.shown.reserve(source.size());
    text.marked.reserve(source.size() + source.size() / 2);
    bool isInNoscript = false;
    const std::vector<PagePiece> pieces = scanPage(source);
    for (const PagePiece &piece : pieces) {
        const bool isServerCode = piece.kind == PieceKind::ServerText || piece.kind == PieceKind::ServerTag
            || piece.kind == PieceKind::ServerPlain;
        if (isServerCode)
            continue;
        const QStringView content = piece.in(source);
        text.shown += content;
        bool isEnd = false;
        const QStringView name = piece.kind == PieceKind::Markup ? tagNameOf(content, &isEnd) : QStringView();
        const bool isNoscript = name.compare(u"noscript", Qt::CaseInsensitive) == 0;
        if (isNoscript && isEnd)
            isInNoscript = false;
        if (isInNoscript)
            continue;
        if (name.isEmpty() || isEnd) {
            text.marked += content;
        } else {
            const qsizetype behindName = name.size() + 1;
            text.marked += content.first(behindName);
            text.marked += u' ' + mark + u'=' + QString::number(piece.begin) + u' ';
            text.marked += content.sliced(behindName);
        }
        isInNoscript = isInNoscript || (isNoscript && !isEnd);
    }
    return text;
}

} // namespace zephira
