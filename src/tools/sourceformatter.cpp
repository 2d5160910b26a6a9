// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/sourceformatter.h"

#include "core/errorstyles.h"
#include "core/vbtext.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr QChar noCharacter;

/// The number of blanks of a run that remain after the passes for five, four, three and two blanks.
qsizetype reducedRun(qsizetype blanks)
{
    for (const qsizetype width : {5, 4, 3, 2})
        blanks = blanks / width + blanks % width;
    return blanks;
}

/// The number of blanks that the steps of TrimAroundTags() leave of a run between two characters. Each step depends
/// only on a run and its two neighbours, so all steps can be done for one run at a time.
qsizetype trimmedRun(QChar before, qsizetype blanks, QChar after)
{
    const auto takeOneIf = [&blanks](bool applies) {
        if (applies && blanks > 0)
            --blanks;
    };
    takeOneIf(after == u'>');
    takeOneIf(before == u'<');
    takeOneIf(before == u'>' && after == u'<' && blanks == 1);
    takeOneIf(before == u'>');
    takeOneIf(after == u'<');
    return blanks;
}

/// Writes the text with the runs of blanks as TrimAroundTags() leaves them; the result is never longer than the text.
/// Returns the end of what was written.
QChar *putTrimmed(QStringView text, QChar *out)
{
    const QChar *const end = text.cend();
    for (const QChar *in = text.cbegin(); in != end;) {
        if (*in != u' ') {
            *out++ = *in++;
            continue;
        }
        const QChar *const run = in;
        while (in != end && *in == u' ')
            ++in;
        const QChar before = run == text.cbegin() ? noCharacter : run[-1];
        const QChar after = in == end ? noCharacter : *in;
        out = std::fill_n(out, trimmedRun(before, in - run, after), QChar(u' '));
    }
    return out;
}

/// Steps over the layout at `in`, which is line ends, tabs and blanks, and counts its blanks. A carriage return or a line
/// feed alone is text.
const QChar *skipLayout(const QChar *in, const QChar *end, qsizetype *blanks)
{
    for (; in != end; ++in) {
        if (*in == u' ' || *in == u'\t')
            ++*blanks;
        else if (*in == u'\r' && in + 1 != end && in[1] == u'\n')
            ++in;
        else
            break;
    }
    return in;
}

/// The text without layout, and with `divider` between a tag and one that directly follows it. Everything is done in
/// one pass, because allocating memory for another one would take longer than the work itself.
QString withoutLayout(QStringView text, QStringView divider)
{
    const qsizetype tags = divider.isEmpty() ? 0 : std::ranges::count(text, u'<');
    QString result(text.size() + tags * divider.size(), Qt::Uninitialized);
    QChar *out = result.data();
    const QChar *const end = text.cend();
    for (const QChar *in = text.cbegin(); in != end;) {
        // Letters and most other characters are above all those that need checking.
        while (in != end && *in > u'>')
            *out++ = *in++;
        if (in == end)
            break;
        const QChar before = in == text.cbegin() ? noCharacter : in[-1];
        qsizetype blanks = 0;
        in = skipLayout(in, end, &blanks);
        const QChar after = in == end ? noCharacter : *in;
        blanks = trimmedRun(before, reducedRun(blanks), after);
        out = std::fill_n(out, blanks, QChar(u' '));
        if (in == end)
            break;
        if (blanks == 0 && before == u'>' && after == u'<')
            out = std::ranges::copy(divider, out).out;
        *out++ = *in++;
    }
    result.truncate(out - result.cbegin());
    return result;
}

/// The text without line ends and tabs.
QString flattened(QStringView text)
{
    QString result(text.size(), Qt::Uninitialized);
    QChar *out = result.data();
    const QChar *const end = text.cend();
    for (const QChar *in = text.cbegin(); in != end; ++in) {
        if (*in > u'\r')
            *out++ = *in;
        else if (*in == u'\r' && in + 1 != end && in[1] == u'\n')
            ++in;
        else if (*in != u'\t')
            *out++ = *in;
    }
    result.truncate(out - result.cbegin());
    return result;
}

/// Whether a tag leaves the indentation level unchanged. `tag` begins with the tag, which is complete.
bool keepsLevel(QStringView tag)
{
    static constexpr QStringView names[] = {u"br", u"hr",    u"img",      u"meta", u"applet",
                                            u"p",  u"input", u"!doctype", u"area"};
    constexpr qsizetype longestName = 8;
    QStringView name = tag.sliced(1);
    if (name.startsWith(u"!--"))
        return true;
    name.truncate(std::min(longestName + 1, name.size()));
    const auto nameEnd = std::ranges::find_if(name, [](QChar c) { return c == u' ' || c == u'>'; });
    name.truncate(nameEnd - name.begin());
    return std::ranges::any_of(names, [name](QStringView known) {
        return std::ranges::equal(name, known, {}, [](QChar c) { return c.toLower(); });
    });
}

/// Iterates over the pieces of a text, each from one `<` up to the next, and tracks the indentation level.
class PieceWalk
{
public:
    explicit PieceWalk(QStringView text)
        : m_text(text), m_next(text.indexOf(u'<')), m_lastTagEnd(text.lastIndexOf(u'>'))
    {}

    /// Moves to the next piece; returns false at the end of the text.
    bool advance()
    {
        if (m_next < 0)
            return false;
        const qsizetype begin = m_next;
        m_next = m_text.indexOf(u'<', begin + 1);
        m_piece = m_text.sliced(begin, (m_next < 0 ? m_text.size() : m_next) - begin);
        const bool isClosing = m_piece.startsWith(u"</");
        m_level = m_levelBehind - (isClosing ? 1 : 0);
        // A tag without a closing `>` has no name; it leaves the level unchanged.
        const bool raises = !isClosing && m_next >= 0 && m_next < m_lastTagEnd && !keepsLevel(m_text.sliced(m_next));
        m_levelBehind = m_level + (raises ? 1 : 0);
        return true;
    }

    QStringView piece() const { return m_piece; }
    /// A piece below level 0 is dropped.
    bool isLost() const { return m_level < 0; }
    qsizetype level() const { return m_level; }
    qsizetype lineLength() const { return isLost() ? 0 : 2 + m_level + m_piece.size(); }

private:
    const QStringView m_text;
    qsizetype m_next;
    const qsizetype m_lastTagEnd;
    QStringView m_piece;
    qsizetype m_level = 0;
    qsizetype m_levelBehind = 0;
};

/// The text before the first piece: everything up to and including the first `<`. Empty if the text begins with a tag.
QStringView openingOf(QStringView text)
{
    const qsizetype first = text.indexOf(u'<');
    return first < 0 ? text : text.first(first == 0 ? 0 : first + 1);
}

enum class Blanks { Kept, TrimmedAroundTags };

/// IndentTags(), and TrimAroundTags() of its result if requested. Both can be done piece by piece, because no run of
/// blanks extends beyond a piece, and what is inserted between pieces contains no tags.
QString indented(QStringView text, Blanks blanks, const FormatterYield &yield)
{
    const QStringView opening = openingOf(text);
    qsizetype length = opening.size();
    for (PieceWalk walk(text); walk.advance();)
        length += walk.lineLength();
    if (length > maximumFormattedLength)
        throw HandlerError{u"Out of string space"_s};

    QString result(length, Qt::Uninitialized);
    QChar *out = result.data();
    const auto put = [&out, blanks](QStringView piece) {
        out = blanks == Blanks::Kept ? std::ranges::copy(piece, out).out : putTrimmed(piece, out);
    };
    put(opening);
    PieceWalk walk(text);
    while ((!yield || yield()) && walk.advance()) {
        if (walk.isLost())
            continue;
        out = std::ranges::copy(QStringView(u"\r\n"), out).out;
        out = std::fill_n(out, walk.level(), QChar(u'\t'));
        put(walk.piece());
    }
    result.truncate(out - result.cbegin());
    return result;
}

} // namespace

QString ReplaceAll(const QString &text, const QString &find, const QString &replacement)
{
    qsizetype at = find.isEmpty() ? -1 : text.indexOf(find);
    if (at < 0)
        return text;
    const QStringView view(text);
    QString result;
    result.reserve(text.size());
    qsizetype behind = 0;
    for (; at >= 0; at = text.indexOf(find, behind)) {
        result += view.sliced(behind, at - behind);
        result += replacement;
        behind = at + find.size();
    }
    return result += view.sliced(behind);
}

QString TrimAroundTags(const QString &text)
{
    QString result(text.size(), Qt::Uninitialized);
    result.truncate(putTrimmed(text, result.data()) - result.cbegin());
    return result;
}

QString Compact(const QString &text)
{
    return withoutLayout(text, {});
}

QString Simple(const QString &text)
{
    return withoutLayout(text, u"\r\n");
}

QString Hierarchical(const QString &text, const FormatterYield &yield)
{
    return indented(flattened(text), Blanks::TrimmedAroundTags, yield);
}

QString IndentTags(const QString &text, const FormatterYield &yield)
{
    return indented(text, Blanks::Kept, yield);
}

QString NextTagText(const QString &text, qsizetype position)
{
    const qsizetype begin = InStr(position + 1, text, u"<"_s);
    const qsizetype end = InStr(begin + 1, text, u">"_s);
    return Mid(text, begin, end - begin + 1);
}

QString TagNameOf(const QString &tagText)
{
    const QString commentMark = u"!--"_s;
    if (Mid(tagText, 2, 3) == commentMark)
        return commentMark;
    qsizetype end = InStr(tagText, u" "_s);
    if (end == 0)
        end = InStr(tagText, u">"_s);
    return Mid(tagText, 2, end - 2);
}

} // namespace zephira
