// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/textfile.h"

#include "files/utf8.h"

#include <QCoreApplication>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <optional>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr char utf8Mark[] = "\xEF\xBB\xBF";
constexpr char littleMark[] = "\xFF\xFE";
constexpr char bigMark[] = "\xFE\xFF";

/// The characters for the bytes 0x80 to 0x9F in Windows-1252; the five undefined bytes map to themselves.
constexpr std::array<char16_t, 32> windowsLetters{0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                  0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                  0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                  0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

std::optional<char> toWindows1252(char32_t codePoint)
{
    if (codePoint < 0x80 || (codePoint >= 0xA0 && codePoint < 0x100))
        return static_cast<char>(codePoint);
    const auto letter = std::ranges::find(windowsLetters, codePoint);
    if (letter == windowsLetters.end())
        return {};
    return static_cast<char>(0x80 + (letter - windowsLetters.begin()));
}

/// Converts UTF-16 without its byte order mark to UTF-8; nothing for an odd number of bytes or unpaired surrogates.
template<typename ToHost>
std::optional<QByteArray> fromUtf16(QByteArrayView bytes, ToHost toHost)
{
    if (bytes.size() % 2 != 0)
        return {};
    QByteArray utf8(bytes.size() / 2 * 3, Qt::Uninitialized);
    char *out = utf8.data();
    const auto unitAt = [&](qsizetype i) -> char32_t { return toHost(bytes.data() + i); };
    for (qsizetype i = 0; i < bytes.size(); i += 2) {
        char32_t unit = unitAt(i);
        if (QChar::isSurrogate(unit)) {
            const char32_t low = i + 2 < bytes.size() ? unitAt(i + 2) : 0;
            if (!QChar::isHighSurrogate(unit) || !QChar::isLowSurrogate(low))
                return {};
            unit = QChar::surrogateToUcs4(static_cast<char16_t>(unit), static_cast<char16_t>(low));
            i += 2;
        }
        out = putUtf8(out, unit);
    }
    utf8.truncate(out - utf8.constData());
    return utf8;
}

char16_t littleUnit(const char *bytes)
{
    return qFromLittleEndian<char16_t>(bytes);
}

char16_t bigUnit(const char *bytes)
{
    return qFromBigEndian<char16_t>(bytes);
}

std::optional<DecodedText> fromMarkedUtf16(QByteArrayView bytes)
{
    const bool little = bytes.startsWith(littleMark);
    if (!little && !bytes.startsWith(bigMark))
        return {};
    std::optional<QByteArray> utf8 =
        little ? fromUtf16(bytes.sliced(2), littleUnit) : fromUtf16(bytes.sliced(2), bigUnit);
    if (!utf8)
        return {};
    return DecodedText{std::move(*utf8), {little ? Encoding::Utf16LE : Encoding::Utf16BE, true}};
}

DecodedText decodeCharacters(QByteArray bytes)
{
    if (std::optional<DecodedText> text = fromMarkedUtf16(bytes))
        return std::move(*text);
    if (!isValidUtf8(bytes))
        return {windows1252ToUtf8(bytes), {Encoding::Windows1252}};
    const bool marked = bytes.startsWith(utf8Mark);
    if (marked)
        bytes.remove(0, sizeof utf8Mark - 1);
    return {std::move(bytes), {Encoding::Utf8, marked}};
}

/// 1-based line of the byte at the end of `before`.
qsizetype lineBehind(QByteArrayView before)
{
    qsizetype line = 1;
    for (qsizetype i = 0; i < before.size(); ++i) {
        if (before[i] == '\n' || (before[i] == '\r' && (i + 1 == before.size() || before[i + 1] != '\n')))
            ++line;
    }
    return line;
}

Error unencodable(QByteArrayView utf8, QByteArrayView rest, Encoding encoding)
{
    const QString line = QString::number(lineBehind(utf8.first(utf8.size() - rest.size())));
    const QString name = encodingName(encoding);
    const std::optional<char32_t> codePoint = Utf8Reader(rest).next();
    if (!codePoint)
        return {Error::Code::Unencodable,
                QCoreApplication::translate("FileErrors",
                                            "A byte that is not valid UTF-8 in line %1 can't be stored as %2.")
                    .arg(line, name)};
    const QString number = u"(U+%1)"_s.arg(QString::number(*codePoint, 16).toUpper().rightJustified(4, u'0'));
    const QString shown =
        QChar::isPrint(*codePoint) ? u"\u201C"_s + QString::fromUcs4(&*codePoint, 1) + u"\u201D "_s : QString();
    return {Error::Code::Unencodable,
            QCoreApplication::translate("FileErrors", "The character %1 in line %2 can't be stored as %3.")
                .arg(shown + number, line, name)};
}

/// Writes each code point through `put`, which returns the position after it, or nullptr if it can't be encoded.
template<typename Put>
Result<QByteArray> encodeWith(QByteArrayView utf8, const TextFormat &format, qsizetype largest, Put put)
{
    const QByteArrayView mark = byteOrderMark(format);
    QByteArray bytes(mark.size() + largest, Qt::Uninitialized);
    char *out = std::ranges::copy(mark, bytes.data()).out;
    Utf8Reader reader(utf8);
    while (!reader.atEnd()) {
        const QByteArrayView rest = reader.rest();
        const std::optional<char32_t> codePoint = reader.next();
        out = codePoint ? put(out, *codePoint) : nullptr;
        if (!out)
            return unencodable(utf8, rest, format.encoding);
    }
    bytes.truncate(out - bytes.constData());
    return bytes;
}

char *putWindows1252(char *out, char32_t codePoint)
{
    const std::optional<char> byte = toWindows1252(codePoint);
    if (!byte)
        return nullptr;
    *out = *byte;
    return out + 1;
}

char *putUtf16Little(char *out, char32_t codePoint)
{
    for (const char16_t unit : QChar::fromUcs4(codePoint)) {
        qToLittleEndian(unit, out);
        out += sizeof unit;
    }
    return out;
}

char *putUtf16Big(char *out, char32_t codePoint)
{
    for (const char16_t unit : QChar::fromUcs4(codePoint)) {
        qToBigEndian(unit, out);
        out += sizeof unit;
    }
    return out;
}

Result<QByteArray> encodeWindows1252(QByteArrayView utf8, const TextFormat &format)
{
    Result<QByteArray> bytes = encodeWith(utf8, format, utf8.size(), putWindows1252);
    if (!bytes)
        return bytes;
    const bool plain = bytes.value().size() == utf8.size();
    const QString other = fromMarkedUtf16(bytes.value()) ? u"UTF-16"_s
        : !plain && isValidUtf8(bytes.value())           ? u"UTF-8"_s
                                                         : QString();
    if (other.isEmpty())
        return bytes;
    return Error{Error::Code::Unencodable,
                 QCoreApplication::translate(
                     "FileErrors", "The text can't be stored as Windows-1252, because it would be read back as %1.")
                     .arg(other)};
}

} // namespace

DecodedText decodeText(QByteArray bytes)
{
    DecodedText text = decodeCharacters(std::move(bytes));
    text.format.lineEnds = lineEndsOf(text.utf8);
    return text;
}

Result<QByteArray> encodeText(QByteArrayView utf8, const TextFormat &format)
{
    switch (format.encoding) {
    case Encoding::Utf8:
        break;
    case Encoding::Utf16LE:
        return encodeWith(utf8, format, 2 * utf8.size(), putUtf16Little);
    case Encoding::Utf16BE:
        return encodeWith(utf8, format, 2 * utf8.size(), putUtf16Big);
    case Encoding::Windows1252:
        return encodeWindows1252(utf8, format);
    }
    return byteOrderMark(format).toByteArray().append(utf8);
}

QByteArray windows1252ToUtf8(QByteArrayView bytes)
{
    const auto foreign = std::ranges::count_if(bytes, [](char c) { return static_cast<unsigned char>(c) >= 0x80; });
    QByteArray utf8(bytes.size() + 2 * foreign, Qt::Uninitialized);
    char *out = utf8.data();
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        out = putUtf8(out, byte >= 0x80 && byte < 0xA0 ? windowsLetters[byte - 0x80] : byte);
    }
    utf8.truncate(out - utf8.constData());
    return utf8;
}

QByteArrayView byteOrderMark(const TextFormat &format)
{
    if (!format.byteOrderMark)
        return {};
    switch (format.encoding) {
    case Encoding::Utf8:
        return utf8Mark;
    case Encoding::Utf16LE:
        return littleMark;
    case Encoding::Utf16BE:
        return bigMark;
    case Encoding::Windows1252:
        break;
    }
    return {};
}

QString encodingName(Encoding encoding)
{
    switch (encoding) {
    case Encoding::Utf8:
        return u"UTF-8"_s;
    case Encoding::Utf16LE:
        return u"UTF-16LE"_s;
    case Encoding::Utf16BE:
        return u"UTF-16BE"_s;
    case Encoding::Windows1252:
        break;
    }
    return u"Windows-1252"_s;
}

} // namespace zephira
