// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/bytefilter.h"

#include "files/textfile.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

bool isAscii(QChar c)
{
    return c < QChar(0x80);
}

bool hasCase(QChar c)
{
    // The halves of a surrogate pair say nothing about their letter.
    return c.isSurrogate() || c.toLower() != c || c.toUpper() != c || c.toTitleCase() != c;
}

/// The parts of a text that are found in its bytes without regard to the encoding, or whose letters have no case.
QStringList plainParts(const QString &text, bool matchCase)
{
    QStringList parts;
    qsizetype begin = 0;
    const auto kindOf = [&](QChar c) {
        return c == u'\n' || c == u'\r' ? 0 : isAscii(c) ? 1 : !matchCase && hasCase(c) ? 0 : 2;
    };
    for (qsizetype i = 0; i <= text.size(); ++i) {
        if (i < text.size() && kindOf(text[i]) == kindOf(text[begin]))
            continue;
        if (i > begin && kindOf(text[begin]) != 0)
            parts.append(text.sliced(begin, i - begin));
        begin = i;
    }
    return parts;
}

/// The bytes of a text in Windows-1252; empty if that has no such characters.
QByteArray inWindows1252(const QString &text)
{
    QByteArray bytes;
    for (const QChar c : text) {
        const Result<QByteArray> byte = encodeText(QString(c).toUtf8(), {Encoding::Windows1252});
        if (!byte)
            return {};
        bytes += byte.value();
    }
    return bytes;
}

/// What pages hold, the most frequent first; everything else is rarer.
constexpr QByteArrayView frequentBytes = " etaoinsrldhc<>/\"=mupg-fbw.yk\nv:;1023,_x";

/// The bit that makes a letter lower case, for a byte that is looked for in either case.
unsigned char caseBit(char byte, bool matchCase)
{
    return !matchCase && byte >= 'a' && byte <= 'z' ? 0x20 : 0;
}

qsizetype rarityOf(char byte)
{
    const qsizetype at = frequentBytes.indexOf(byte);
    return at < 0 ? frequentBytes.size() : at;
}

/// The place of the needle's rarest byte, but not `except`.
qsizetype rarestByte(QByteArrayView needle, qsizetype except)
{
    qsizetype best = except == 0 ? needle.size() - 1 : 0;
    for (qsizetype i = 0; i < needle.size(); ++i) {
        if (i != except && rarityOf(needle[i]) > rarityOf(needle[best]))
            best = i;
    }
    return best;
}

bool isAt(const char *bytes, QByteArrayView needle, bool matchCase)
{
    for (qsizetype i = 0; i < needle.size(); ++i) {
        if ((static_cast<unsigned char>(bytes[i]) | caseBit(needle[i], matchCase))
            != static_cast<unsigned char>(needle[i]))
            return false;
    }
    return true;
}

/// Whether the needle is in the bytes. Its two rarest bytes are compared at many places at once, in loops that the
/// compiler turns into vector instructions.
bool holds(QByteArrayView bytes, QByteArrayView needle, bool matchCase)
{
    const qsizetype places = bytes.size() - needle.size() + 1;
    const qsizetype first = rarestByte(needle, -1);
    const qsizetype second = rarestByte(needle, first);
    const auto firstByte = static_cast<unsigned char>(needle[first]);
    const auto secondByte = static_cast<unsigned char>(needle[second]);
    const unsigned char firstBit = caseBit(needle[first], matchCase);
    const unsigned char secondBit = caseBit(needle[second], matchCase);
    constexpr qsizetype block = 64;
    qsizetype at = 0;
    for (; at + block <= places; at += block) {
        const auto *firsts = reinterpret_cast<const unsigned char *>(bytes.data()) + at + first;
        const auto *seconds = reinterpret_cast<const unsigned char *>(bytes.data()) + at + second;
        unsigned char any = 0;
        for (qsizetype i = 0; i < block; ++i) {
            any |= static_cast<unsigned char>(static_cast<unsigned char>((firsts[i] | firstBit) == firstByte)
                                              & static_cast<unsigned char>((seconds[i] | secondBit) == secondByte));
        }
        for (qsizetype i = 0; any != 0 && i < block; ++i) {
            if (isAt(bytes.data() + at + i, needle, matchCase))
                return true;
        }
    }
    for (; at < places; ++at) {
        if (isAt(bytes.data() + at, needle, matchCase))
            return true;
    }
    return false;
}

/// The place behind a character class that begins at `at`; -1 if it doesn't end.
qsizetype behindClass(const QString &expression, qsizetype at)
{
    qsizetype i = at + 1;
    if (i < expression.size() && expression[i] == u'^')
        ++i;
    for (bool first = true; i < expression.size(); ++i, first = false) {
        if (expression[i] == u'\\')
            ++i;
        else if (QStringView(expression).sliced(i).startsWith(u"[:"))
            i = std::max(i, expression.indexOf(u":]"_s, i) + 1);
        else if (expression[i] == u']' && !first)
            return i + 1;
    }
    return -1;
}

/// The place behind a group that begins at `at`; -1 if it doesn't end.
qsizetype behindGroup(const QString &expression, qsizetype at)
{
    int depth = 0;
    for (qsizetype i = at; i >= 0 && i < expression.size();) {
        const QChar c = expression[i];
        if (c == u'[') {
            i = behindClass(expression, i);
            continue;
        }
        i += c == u'\\' ? 2 : 1;
        depth += c == u'(' ? 1 : c == u')' ? -1 : 0;
        if (depth == 0)
            return i;
    }
    return -1;
}

/// The place behind a count of repetitions, such as "{2,3}", that begins at `at`; -1 if the brace begins none.
qsizetype behindCount(const QString &expression, qsizetype at)
{
    qsizetype i = at + 1;
    while (i < expression.size() && QStringView(u"0123456789, ").contains(expression[i]))
        ++i;
    return i < expression.size() && expression[i] == u'}' ? i + 1 : -1;
}

/// Whether a group is an ordinary or a named one, or looks around; others change what the rest means.
bool isHarmlessGroup(const QString &expression, qsizetype at)
{
    const QStringView rest = QStringView(expression).sliced(at + 1);
    if (rest.startsWith(u'*'))
        return false;
    return !rest.startsWith(u'?') || (rest.size() > 1 && QStringView(u":=!<>|P'").contains(rest[1]));
}

/// Escapes that stand for something else than themselves, and for one letter each.
constexpr QStringView shortEscapes = u"dDwWsSbBAZzGnrtfveahHVRXK";

} // namespace

QStringList certainParts(const QString &expression)
{
    QStringList parts;
    QString part;
    const auto end = [&] {
        if (!part.isEmpty())
            parts.append(std::exchange(part, QString()));
    };
    const auto endWithoutLast = [&] {
        const bool pair = part.size() > 1 && part.back().isLowSurrogate();
        part.chop(pair ? 2 : 1);
        end();
    };
    for (qsizetype i = 0; i < expression.size();) {
        const QChar c = expression[i];
        if (c == u'|' || c == u')')
            return {};
        if (c == u'(' || c == u'[') {
            if (c == u'(' && !isHarmlessGroup(expression, i))
                return {};
            end();
            i = c == u'(' ? behindGroup(expression, i) : behindClass(expression, i);
            if (i < 0)
                return {};
        } else if (c == u'{' && behindCount(expression, i) < 0) {
            // It stands for itself.
            end();
            ++i;
        } else if (c == u'?' || c == u'*' || c == u'{') {
            endWithoutLast();
            i = c == u'{' ? behindCount(expression, i) : i + 1;
        } else if (c == u'+' || c == u'^' || c == u'$' || c == u'.') {
            end();
            ++i;
        } else if (c == u'\\') {
            const QChar code = i + 1 < expression.size() ? expression[i + 1] : QChar();
            if (shortEscapes.contains(code))
                end();
            else if (code.isLetterOrNumber() || code.isNull() || !isAscii(code))
                return {};
            else
                part += code;
            i += 2;
        } else {
            part += c;
            ++i;
        }
    }
    end();
    return parts;
}

ByteFilter::ByteFilter(const SearchRequest &request)
{
    const QStringList certain =
        request.regularExpression ? certainParts(request.pattern) : QStringList{request.pattern};
    QString best;
    for (const QString &part : certain) {
        const QStringList plain = plainParts(part, request.matchCase);
        for (const QString &candidate : plain) {
            if (candidate.toUtf8().size() > best.toUtf8().size())
                best = candidate;
        }
    }
    if (best.isEmpty())
        return;
    if (!isAscii(best.front())) {
        m_needles.push_back({best.toUtf8()});
        if (const QByteArray bytes = inWindows1252(best); !bytes.isEmpty())
            m_needles.push_back({bytes});
        return;
    }
    const bool letters = std::ranges::any_of(std::as_const(best), [](QChar c) { return c.isLetter(); });
    if (request.matchCase || !letters) {
        m_needles.push_back({best.toUtf8()});
        return;
    }
    const QByteArray folded = best.toLower().toUtf8();
    m_needles.push_back({folded, false});
    // Two letters have a third form outside ASCII: the long s and the sign of the kelvin.
    if (folded.contains('s'))
        m_needles.push_back({"\xC5\xBF"});
    if (folded.contains('k'))
        m_needles.push_back({"\xE2\x84\xAA"});
}

bool ByteFilter::mayHold(QByteArrayView bytes) const
{
    if (m_needles.empty() || bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF"))
        return true;
    return std::ranges::any_of(m_needles,
                               [bytes](const Needle &needle) { return holds(bytes, needle.bytes, needle.matchCase); });
}

qsizetype ByteFilter::overlap() const
{
    qsizetype longest = 1;
    for (const Needle &needle : m_needles)
        longest = std::max(longest, needle.bytes.size());
    return longest - 1;
}

} // namespace zephira
