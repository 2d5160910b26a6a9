// SPDX-License-Identifier: GPL-3.0-or-later
#include "parsers.h"

#include "controls/files/privateprofile.h"
#include "controls/files/textfile.h"
#include "controls/syntax/describestyles.h"

namespace zephira {

namespace {

/// One line for each value: section, key and value, divided by tabs.
QByteArray printProfile(const QByteArray &input)
{
    QByteArray out;
    for (const ProfileEntry &entry : profileEntries(input))
        out += entry.section.toUtf8() + '\t' + entry.key.toUtf8() + '\t' + entry.value.toUtf8() + '\n';
    return out;
}

const char *lineEndsName(LineEnds ends)
{
    switch (ends) {
    case LineEnds::CrLf:
        return "CRLF";
    case LineEnds::Lf:
        return "LF";
    case LineEnds::Cr:
        return "CR";
    case LineEnds::Mixed:
        break;
    }
    return "mixed";
}

/// A line with encoding, mark and line ends, then the text.
QByteArray printTextFile(const QByteArray &input)
{
    const DecodedText text = decodeText(input);
    return encodingName(text.format.encoding).toUtf8() + (text.format.byteOrderMark ? " mark " : " plain ")
           + lineEndsName(text.format.lineEnds) + '\n' + text.utf8;
}

/// The runs of colours in a language.
template<const char16_t *language>
QByteArray printStyles(const QByteArray &input)
{
    return describeStyles(input, QString::fromUtf16(language));
}

constexpr char16_t html[] = u"HTML";
constexpr char16_t xml[] = u"XML";
constexpr char16_t cpp[] = u"C/C++";
constexpr char16_t java[] = u"Java";
constexpr char16_t basic[] = u"Basic";
constexpr char16_t pascal[] = u"Pascal";
constexpr char16_t perl[] = u"Perl";

constexpr Parser table[] = {
    {"ini", printProfile},
    {"textfile", printTextFile},
    {"syntax-html", printStyles<html>},
    {"syntax-xml", printStyles<xml>},
    {"syntax-c/c++", printStyles<cpp>},
    {"syntax-java", printStyles<java>},
    {"syntax-basic", printStyles<basic>},
    {"syntax-pascal", printStyles<pascal>},
    {"syntax-perl", printStyles<perl>},
};

} // namespace

std::span<const Parser> parsers()
{
    return table;
}

} // namespace zephira
