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

/// The text with the length of each run of blanks changed to `newLength`, which never makes it longer.
template<typename NewLength>
QString withBlankRuns(const QString &text, NewLength newLength)
{
    QString result(text.size(), Qt::Uninitialized);
    QChar *out = result.data();
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
        out = std::fill_n(out, newLength(before, in - run, after), QChar(u' '));
    }
    result.truncate(out - result.cbegin());
    return result;
}

QString withoutLineEnds(const QString &text)
{
    return ReplaceAll(text, u"\r\n"_s, {});
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
    return withBlankRuns(text, trimmedRun);
}

QString Compact(const QString &text)
{
    QString result = withoutLineEnds(text);
    result.replace(u'\t', u' ');
    return withBlankRuns(result, [](QChar before, qsizetype blanks, QChar after) {
        return trimmedRun(before, reducedRun(blanks), after);
    });
}

QString Simple(const QString &text)
{
    return ReplaceAll(Compact(text), u"><"_s, u">\r\n<"_s);
}

QString Hierarchical(const QString &text, const FormatterYield &yield)
{
    QString flat = withoutLineEnds(text);
    flat.remove(u'\t');
    return TrimAroundTags(IndentTags(flat, yield));
}

QString IndentTags(const QString &text, const FormatterYield &yield)
{
    const QStringView opening = openingOf(text);
    qsizetype length = opening.size();
    for (PieceWalk walk(text); walk.advance();)
        length += walk.lineLength();
    if (length > maximumFormattedLength)
        throw HandlerError{u"Out of string space"_s};

    QString result;
    result.reserve(length);
    result += opening;
    PieceWalk walk(text);
    while ((!yield || yield()) && walk.advance()) {
        if (walk.isLost())
            continue;
        result += u"\r\n";
        result.resize(result.size() + walk.level(), u'\t');
        result += walk.piece();
    }
    return result;
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
