// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/characters.h"

#include <iterator>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// Names and entities in the order of the codes; both are empty where a code has no character, and the entity where
/// there is none.
struct CharacterRow {
    const char16_t *name;
    const char16_t *entity;
};

// clang-format off: a row a line
constexpr CharacterRow rows[] = {
    {u"space", u""},
    {u"exclamation mark", u""},
    {u"quotation mark", u"quot"},
    {u"number sign", u""},
    {u"dollar sign", u""},
    {u"percent sign", u""},
    {u"ampersand", u"amp"},
    {u"apostrophe", u""},
    {u"left parenthesis", u""},
    {u"right parenthesis", u""},
    {u"asterisk", u""},
    {u"plus sign", u""},
    {u"comma", u""},
    {u"hyphen-minus", u""},
    {u"full stop", u""},
    {u"solidus", u""},
    {u"digit zero", u""},
    {u"digit one", u""},
    {u"digit two", u""},
    {u"digit three", u""},
    {u"digit four", u""},
    {u"digit five", u""},
    {u"digit six", u""},
    {u"digit seven", u""},
    {u"digit eight", u""},
    {u"digit nine", u""},
    {u"colon", u""},
    {u"semicolon", u""},
    {u"less-than sign", u"lt"},
    {u"equals sign", u""},
    {u"greater-than sign", u"gt"},
    {u"question mark", u""},
    {u"commercial at", u""},
    {u"latin capital letter a", u""},
    {u"latin capital letter b", u""},
    {u"latin capital letter c", u""},
    {u"latin capital letter d", u""},
    {u"latin capital letter e", u""},
    {u"latin capital letter f", u""},
    {u"latin capital letter g", u""},
    {u"latin capital letter h", u""},
    {u"latin capital letter i", u""},
    {u"latin capital letter j", u""},
    {u"latin capital letter k", u""},
    {u"latin capital letter l", u""},
    {u"latin capital letter m", u""},
    {u"latin capital letter n", u""},
    {u"latin capital letter o", u""},
    {u"latin capital letter p", u""},
    {u"latin capital letter q", u""},
    {u"latin capital letter r", u""},
    {u"latin capital letter s", u""},
    {u"latin capital letter t", u""},
    {u"latin capital letter u", u""},
    {u"latin capital letter v", u""},
    {u"latin capital letter w", u""},
    {u"latin capital letter x", u""},
    {u"latin capital letter y", u""},
    {u"latin capital letter z", u""},
    {u"left square bracket", u""},
    {u"reverse solidus", u""},
    {u"right square bracket", u""},
    {u"circumflex accent", u""},
    {u"low line", u""},
    {u"grave accent", u""},
    {u"latin small letter a", u""},
    {u"latin small letter b", u""},
    {u"latin small letter c", u""},
    {u"latin small letter d", u""},
    {u"latin small letter e", u""},
    {u"latin small letter f", u""},
    {u"latin small letter g", u""},
    {u"latin small letter h", u""},
    {u"latin small letter i", u""},
    {u"latin small letter j", u""},
    {u"latin small letter k", u""},
    {u"latin small letter l", u""},
    {u"latin small letter m", u""},
    {u"latin small letter n", u""},
    {u"latin small letter o", u""},
    {u"latin small letter p", u""},
    {u"latin small letter q", u""},
    {u"latin small letter r", u""},
    {u"latin small letter s", u""},
    {u"latin small letter t", u""},
    {u"latin small letter u", u""},
    {u"latin small letter v", u""},
    {u"latin small letter w", u""},
    {u"latin small letter x", u""},
    {u"latin small letter y", u""},
    {u"latin small letter z", u""},
    {u"left curly bracket", u""},
    {u"vertical line", u""},
    {u"right curly bracket", u""},
    {u"tilde", u""},
    {u"", u""},
    {u"euro sign", u"euro"},
    {u"", u""},
    {u"single low-9 quotation mark", u"sbquo"},
    {u"latin small letter f with hook", u"fnof"},
    {u"double low-9 quotation mark", u"bdquo"},
    {u"horizontal ellipsis", u"hellip"},
    {u"dagger", u"dagger"},
    {u"double dagger", u"Dagger"},
    {u"modifier letter circumflex accent", u"circ"},
    {u"per mille sign", u"permil"},
    {u"latin capital letter s with caron", u"Scaron"},
    {u"single left-pointing angle quotation mark", u"lsaquo"},
    {u"latin capital ligature oe", u"OElig"},
    {u"", u""},
    {u"latin capital letter z with caron", u""},
    {u"", u""},
    {u"", u""},
    {u"left single quotation mark", u"lsquo"},
    {u"right single quotation mark", u"rsquo"},
    {u"left double quotation mark", u"ldquo"},
    {u"right double quotation mark", u"rdquo"},
    {u"bullet", u"bull"},
    {u"en dash", u"ndash"},
    {u"em dash", u"mdash"},
    {u"small tilde", u"tilde"},
    {u"trade mark sign", u"trade"},
    {u"latin small letter s with caron", u"scaron"},
    {u"single right-pointing angle quotation mark", u"rsaquo"},
    {u"latin small ligature oe", u"oelig"},
    {u"", u""},
    {u"latin small letter z with caron", u""},
    {u"latin capital letter y with diaeresis", u"Yuml"},
    {u"no-break space", u"nbsp"},
    {u"inverted exclamation mark", u"iexcl"},
    {u"cent sign", u"cent"},
    {u"pound sign", u"pound"},
    {u"currency sign", u"curren"},
    {u"yen sign", u"yen"},
    {u"broken bar", u"brvbar"},
    {u"section sign", u"sect"},
    {u"diaeresis", u"uml"},
    {u"copyright sign", u"copy"},
    {u"feminine ordinal indicator", u"ordf"},
    {u"left-pointing double angle quotation mark", u"laquo"},
    {u"not sign", u"not"},
    {u"soft hyphen", u"shy"},
    {u"registered sign", u"reg"},
    {u"macron", u"macr"},
    {u"degree sign", u"deg"},
    {u"plus-minus sign", u"plusmn"},
    {u"superscript two", u"sup2"},
    {u"superscript three", u"sup3"},
    {u"acute accent", u"acute"},
    {u"micro sign", u"micro"},
    {u"pilcrow sign", u"para"},
    {u"middle dot", u"middot"},
    {u"cedilla", u"cedil"},
    {u"superscript one", u"sup1"},
    {u"masculine ordinal indicator", u"ordm"},
    {u"right-pointing double angle quotation mark", u"raquo"},
    {u"vulgar fraction one quarter", u"frac14"},
    {u"vulgar fraction one half", u"frac12"},
    {u"vulgar fraction three quarters", u"frac34"},
    {u"inverted question mark", u"iquest"},
    {u"latin capital letter a with grave", u"Agrave"},
    {u"latin capital letter a with acute", u"Aacute"},
    {u"latin capital letter a with circumflex", u"Acirc"},
    {u"latin capital letter a with tilde", u"Atilde"},
    {u"latin capital letter a with diaeresis", u"Auml"},
    {u"latin capital letter a with ring above", u"Aring"},
    {u"latin capital letter ae", u"AElig"},
    {u"latin capital letter c with cedilla", u"Ccedil"},
    {u"latin capital letter e with grave", u"Egrave"},
    {u"latin capital letter e with acute", u"Eacute"},
    {u"latin capital letter e with circumflex", u"Ecirc"},
    {u"latin capital letter e with diaeresis", u"Euml"},
    {u"latin capital letter i with grave", u"Igrave"},
    {u"latin capital letter i with acute", u"Iacute"},
    {u"latin capital letter i with circumflex", u"Icirc"},
    {u"latin capital letter i with diaeresis", u"Iuml"},
    {u"latin capital letter eth", u"ETH"},
    {u"latin capital letter n with tilde", u"Ntilde"},
    {u"latin capital letter o with grave", u"Ograve"},
    {u"latin capital letter o with acute", u"Oacute"},
    {u"latin capital letter o with circumflex", u"Ocirc"},
    {u"latin capital letter o with tilde", u"Otilde"},
    {u"latin capital letter o with diaeresis", u"Ouml"},
    {u"multiplication sign", u"times"},
    {u"latin capital letter o with stroke", u"Oslash"},
    {u"latin capital letter u with grave", u"Ugrave"},
    {u"latin capital letter u with acute", u"Uacute"},
    {u"latin capital letter u with circumflex", u"Ucirc"},
    {u"latin capital letter u with diaeresis", u"Uuml"},
    {u"latin capital letter y with acute", u"Yacute"},
    {u"latin capital letter thorn", u"THORN"},
    {u"latin small letter sharp s", u"szlig"},
    {u"latin small letter a with grave", u"agrave"},
    {u"latin small letter a with acute", u"aacute"},
    {u"latin small letter a with circumflex", u"acirc"},
    {u"latin small letter a with tilde", u"atilde"},
    {u"latin small letter a with diaeresis", u"auml"},
    {u"latin small letter a with ring above", u"aring"},
    {u"latin small letter ae", u"aelig"},
    {u"latin small letter c with cedilla", u"ccedil"},
    {u"latin small letter e with grave", u"egrave"},
    {u"latin small letter e with acute", u"eacute"},
    {u"latin small letter e with circumflex", u"ecirc"},
    {u"latin small letter e with diaeresis", u"euml"},
    {u"latin small letter i with grave", u"igrave"},
    {u"latin small letter i with acute", u"iacute"},
    {u"latin small letter i with circumflex", u"icirc"},
    {u"latin small letter i with diaeresis", u"iuml"},
    {u"latin small letter eth", u"eth"},
    {u"latin small letter n with tilde", u"ntilde"},
    {u"latin small letter o with grave", u"ograve"},
    {u"latin small letter o with acute", u"oacute"},
    {u"latin small letter o with circumflex", u"ocirc"},
    {u"latin small letter o with tilde", u"otilde"},
    {u"latin small letter o with diaeresis", u"ouml"},
    {u"division sign", u"divide"},
    {u"latin small letter o with stroke", u"oslash"},
    {u"latin small letter u with grave", u"ugrave"},
    {u"latin small letter u with acute", u"uacute"},
    {u"latin small letter u with circumflex", u"ucirc"},
    {u"latin small letter u with diaeresis", u"uuml"},
    {u"latin small letter y with acute", u"yacute"},
    {u"latin small letter thorn", u"thorn"},
    {u"latin small letter y with diaeresis", u"yuml"},
};

/// The codes 128 to 159, which differ from Latin-1; 0 for a code without a character.
constexpr char16_t upperControls[] = {
    0x20ac, 0,      0x201a, 0x0192, 0x201e, 0x2026, 0x2020, 0x2021, 0x02c6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017d, 0,      0,      0x2018, 0x2019, 0x201c, 0x201d, 0x2022,
    0x2013, 0x2014, 0x02dc, 0x2122, 0x0161, 0x203a, 0x0153, 0,      0x017e, 0x0178,
};
// clang-format on

constexpr int firstUpperControl = 128;
constexpr int deleteCode = 127;

static_assert(std::size(rows) == lastCharacterCode - firstCharacterCode + 1);
static_assert(std::size(upperControls) == 32);

bool isCharacterCode(int code)
{
    return code >= firstCharacterCode && code <= lastCharacterCode;
}

} // namespace

QString characterOfCode(int code)
{
    if (!isCharacterCode(code) || code == deleteCode)
        return {};
    const int control = code - firstUpperControl;
    if (control < 0 || control >= static_cast<int>(std::size(upperControls)))
        return QChar(code);
    const char16_t character = upperControls[control];
    return character ? QString(QChar(character)) : QString();
}

QString characterCaption(int code)
{
    if (characterOfCode(code).isEmpty())
        return u"%1: no character"_s.arg(code);
    const CharacterRow &row = rows[code - firstCharacterCode];
    const QString caption = u"%1: %2"_s.arg(QString::number(code), QString::fromUtf16(row.name));
    const QString entity = QString::fromUtf16(row.entity);
    return entity.isEmpty() ? caption : caption + u", &"_s + entity + u';';
}

} // namespace zephira
