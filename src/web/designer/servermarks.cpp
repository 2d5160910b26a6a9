// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/designer/servermarks.h"

#include <QRandomGenerator>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// What the engine appends to an attribute without a value.
constexpr QStringView emptyValue = u"=\"\"";
constexpr QStringView commentOpen = u"<!--";
constexpr QStringView commentClose = u"-->";

/// A mark in a text: its number, its kind, and the position after it.
struct Mark {
    qsizetype number = 0;
    QChar kind;
    qsizetype end = 0;
};

/// Reads the number and the kind at a position; kind 0 means that there is no mark.
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

/// The length of a tag's bracket and name if it begins such an element; else 0.
qsizetype beginOf(QStringView element, QStringView tag)
{
    bool isEnd = false;
    const QStringView name = tagNameOf(tag, &isEnd);
    return !isEnd && name.compare(element, Qt::CaseInsensitive) == 0 ? name.size() + 1 : 0;
}

/// Whether a tag already has a "nomodule" attribute.
bool tellsOfModules(QStringView source, std::vector<PagePiece>::const_iterator tag,
                    std::vector<PagePiece>::const_iterator end)
{
    for (auto piece = tag; piece != end; ++piece) {
        const QStringView text = piece->in(source);
        if (piece->kind == PieceKind::Markup && text.contains(u"nomodule", Qt::CaseInsensitive))
            return true;
        if (piece->kind == PieceKind::Markup && text.endsWith(u'>'))
            return false;
    }
    return false;
}

} // namespace

/// Makes the engine treat a script as meant for other browsers, so that it doesn't wait for anything on the script's
/// behalf.
QString ServerMarks::idleAttribute() const
{
    return u" nomodule=\"%1\""_s.arg(m_prefix);
}

/// Distinguishes what the author wrote from what the engine adds.
QString ServerMarks::writtenAttribute() const
{
    return u" %1t=\"\""_s.arg(m_prefix);
}

QString ServerMarks::mask(QStringView source)
{
    return mask(source, scanPage(source));
}

QString ServerMarks::mask(QStringView source, const std::vector<PagePiece> &pieces)
{
    QString masked;
    masked.reserve(source.size());
    for (auto place = pieces.begin(); place != pieces.end(); ++place) {
        const QStringView text = place->in(source);
        switch (place->kind) {
        case PieceKind::Markup:
            if (const qsizetype name = beginOf(u"script", text);
                name > 0 && !tellsOfModules(source, place, pieces.end()))
                masked.append(text.first(name)).append(idleAttribute()).append(text.sliced(name));
            else if (const qsizetype body = beginOf(u"tbody", text); body > 0)
                masked.append(text.first(body)).append(writtenAttribute()).append(text.sliced(body));
            else
                masked += text;
            break;
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
    return text.remove(idleAttribute()).remove(writtenAttribute());
}

QString ServerMarks::withoutNumbers(QStringView html) const
{
    const QString opening = m_prefix + u'x';
    QString text;
    text.reserve(html.size());
    qsizetype done = 0;
    for (qsizetype found = html.indexOf(opening); found >= 0; found = html.indexOf(opening, found)) {
        found += opening.size();
        const Mark mark = readMark(html, found);
        if (mark.kind.isNull())
            continue;
        text += html.sliced(done, found - done);
        text += mark.kind;
        // The engine gives it a value.
        const bool hasValue = mark.kind == u'a' && html.sliced(mark.end).startsWith(emptyValue);
        done = found = mark.end + (hasValue ? emptyValue.size() : 0);
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
