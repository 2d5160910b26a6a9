// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/designer/servermarks.h"

#include <QRandomGenerator>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// What an attribute without a value gets from the engine.
constexpr QStringView emptyValue = u"=\"\"";
constexpr QStringView commentOpen = u"<!--";
constexpr QStringView commentClose = u"-->";

/// A mark in a text: its number, its kind, and the place behind it.
struct Mark {
    qsizetype number = 0;
    QChar kind;
    qsizetype end = 0;
};

/// Reads the number and the kind at a place; a kind of 0 says that no mark is there.
Mark readMark(QStringView html, qsizetype place)
{
    constexpr qsizetype mostDigits = 9;
    Mark mark;
    const qsizetype first = place;
    while (place < html.size() && html[place] >= u'0' && html[place] <= u'9' && place - first < mostDigits)
        mark.number = mark.number * 10 + (html[place++].unicode() - u'0');
    if (place > first && place < html.size() && QStringView(u"scav").contains(html[place])) {
        mark.kind = html[place];
        mark.end = place + 1;
    }
    return mark;
}

} // namespace

QString ServerMarks::mask(QStringView source)
{
    return mask(source, scanPage(source));
}

QString ServerMarks::mask(QStringView source, const std::vector<PagePiece> &pieces)
{
    QString masked;
    masked.reserve(source.size());
    for (const PagePiece &piece : pieces) {
        const QStringView text = piece.in(source);
        switch (piece.kind) {
        case PieceKind::ServerText:
            masked += u"<!--%1-->"_s.arg(markFor(text, u's'));
            break;
        case PieceKind::Comment:
            masked += u"<!--%1-->"_s.arg(markFor(text, u'c'));
            break;
        case PieceKind::ServerTag:
            masked += markFor(text, u'a');
            break;
        case PieceKind::ServerPlain:
            masked += markFor(text, u'v');
            break;
        default:
            masked += text;
        }
    }
    return masked;
}

QString ServerMarks::markFor(QStringView block, char16_t kind)
{
    m_blocks.append(block.toString());
    return m_prefix + u'x' + QString::number(m_blocks.size() - 1) + QChar(kind);
}

QString ServerMarks::unmask(QStringView html) const
{
    const QString opening = m_prefix + u'x';
    QString text;
    text.reserve(html.size());
    qsizetype done = 0;
    for (qsizetype found = html.indexOf(opening); found >= 0; found = html.indexOf(opening, found)) {
        const Mark mark = readMark(html, found + opening.size());
        if (mark.kind.isNull() || mark.number >= m_blocks.size()) {
            found += opening.size();
            continue;
        }
        qsizetype begin = found;
        qsizetype end = mark.end;
        const bool isComment = mark.kind == u's' || mark.kind == u'c';
        if (isComment && html.first(begin).endsWith(commentOpen) && html.sliced(end).startsWith(commentClose)) {
            begin -= commentOpen.size();
            end += commentClose.size();
        } else if (mark.kind == u'a' && html.sliced(end).startsWith(emptyValue)) {
            end += emptyValue.size();
        }
        text += html.sliced(done, begin - done);
        text += m_blocks[mark.number];
        done = found = end;
    }
    text += html.sliced(done);
    return text;
}

QString freshMarkPrefix(const QString &source)
{
    QString prefix;
    do {
        prefix = u"zs"_s + QString::number(QRandomGenerator::global()->generate(), 16);
    } while (source.contains(prefix, Qt::CaseInsensitive));
    return prefix;
}

} // namespace zephira
