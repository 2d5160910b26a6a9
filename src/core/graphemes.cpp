// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/graphemes.h"

#include <QString>
#include <QTextBoundaryFinder>

#include <algorithm>

namespace zephira {

namespace {

/// How far around an offset to look, in bytes; user-perceived characters are shorter.
constexpr qsizetype reach = 160;
constexpr char16_t joiner = 0x200d;

bool isPlain(QByteArrayView line, qsizetype offset)
{
    return offset < 0 || offset >= line.size() || static_cast<unsigned char>(line[offset]) < 0x80;
}

bool startsCodePoint(QByteArrayView line, qsizetype offset)
{
    return offset >= line.size() || (static_cast<unsigned char>(line[offset]) & 0xc0) != 0x80;
}

/// The text around an offset in UTF-16, with a mapping back to bytes.
class Surroundings
{
public:
    Surroundings(QByteArrayView line, qsizetype offset)
    {
        m_start = std::max<qsizetype>(offset - reach, 0);
        while (!startsCodePoint(line, m_start))
            ++m_start;
        qsizetype end = std::min(offset + reach, line.size());
        while (!startsCodePoint(line, end))
            --end;
        m_text = QString::fromUtf8(line.sliced(m_start, end - m_start));
        m_at = QString::fromUtf8(line.sliced(m_start, offset - m_start)).size();
    }

    qsizetype at() const { return m_at; }
    qsizetype size() const { return m_text.size(); }
    qsizetype toBytes(qsizetype index) const { return m_start + QStringView(m_text).first(index).toUtf8().size(); }

    bool isBoundary(qsizetype index) const
    {
        if (index <= 0 || index >= m_text.size())
            return true;
        // A zero-width joiner joins two emoji, which not every release of the boundary finder knows.
        if (m_text[index - 1] == joiner && index > 1 && m_text[index].unicode() >= 0x2190)
            return false;
        QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, m_text);
        finder.setPosition(index);
        return finder.isAtBoundary();
    }

private:
    QString m_text;
    qsizetype m_start = 0;
    qsizetype m_at = 0;
};

qsizetype walk(QByteArrayView line, qsizetype offset, qsizetype step, bool stayAtBoundary)
{
    const Surroundings around(line, offset);
    qsizetype index = around.at();
    if (!stayAtBoundary)
        index = std::clamp<qsizetype>(index + step, 0, around.size());
    while (!around.isBoundary(index))
        index += step;
    return around.toBytes(index);
}

/// Most text is ASCII, where each character is a grapheme of its own.
bool isBetweenPlain(QByteArrayView line, qsizetype offset)
{
    return isPlain(line, offset) && isPlain(line, offset - 1);
}

} // namespace

qsizetype graphemeStart(QByteArrayView line, qsizetype offset)
{
    return isBetweenPlain(line, offset) ? offset : walk(line, offset, -1, true);
}

qsizetype graphemeEnd(QByteArrayView line, qsizetype offset)
{
    return isBetweenPlain(line, offset) ? offset : walk(line, offset, 1, true);
}

qsizetype graphemeBefore(QByteArrayView line, qsizetype offset)
{
    if (offset <= 0)
        return 0;
    return isPlain(line, offset - 1) && isPlain(line, offset - 2) ? offset - 1 : walk(line, offset, -1, false);
}

qsizetype graphemeBehind(QByteArrayView line, qsizetype offset)
{
    if (offset >= line.size())
        return line.size();
    return isPlain(line, offset) && isPlain(line, offset + 1) ? offset + 1 : walk(line, offset, 1, false);
}

} // namespace zephira
