// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/entitynames.h"

#include <QString>

#include <algorithm>
#include <iterator>

namespace zephira {

namespace {

/// Sorted for binary search.
constexpr EntityName names[] = {
    {u"AElig", 0xc6},     {u"Aacute", 0xc1},   {u"Acirc", 0xc2},    {u"Agrave", 0xc0},   {u"Alpha", 0x391},
    {u"Aring", 0xc5},     {u"Atilde", 0xc3},   {u"Auml", 0xc4},     {u"Beta", 0x392},    {u"Ccedil", 0xc7},
    {u"Chi", 0x3a7},      {u"Dagger", 0x2021}, {u"Delta", 0x394},   {u"ETH", 0xd0},      {u"Eacute", 0xc9},
    {u"Ecirc", 0xca},     {u"Egrave", 0xc8},   {u"Epsilon", 0x395}, {u"Eta", 0x397},     {u"Euml", 0xcb},
    {u"Gamma", 0x393},    {u"Iacute", 0xcd},   {u"Icirc", 0xce},    {u"Igrave", 0xcc},   {u"Iota", 0x399},
    {u"Iuml", 0xcf},      {u"Kappa", 0x39a},   {u"Lambda", 0x39b},  {u"Mu", 0x39c},      {u"Ntilde", 0xd1},
    {u"Nu", 0x39d},       {u"OElig", 0x152},   {u"Oacute", 0xd3},   {u"Ocirc", 0xd4},    {u"Ograve", 0xd2},
    {u"Omega", 0x3a9},    {u"Omicron", 0x39f}, {u"Oslash", 0xd8},   {u"Otilde", 0xd5},   {u"Ouml", 0xd6},
    {u"Phi", 0x3a6},      {u"Pi", 0x3a0},      {u"Prime", 0x2033},  {u"Psi", 0x3a8},     {u"Rho", 0x3a1},
    {u"Scaron", 0x160},   {u"Sigma", 0x3a3},   {u"THORN", 0xde},    {u"Tau", 0x3a4},     {u"Theta", 0x398},
    {u"Uacute", 0xda},    {u"Ucirc", 0xdb},    {u"Ugrave", 0xd9},   {u"Upsilon", 0x3a5}, {u"Uuml", 0xdc},
    {u"Xi", 0x39e},       {u"Yacute", 0xdd},   {u"Yuml", 0x178},    {u"Zeta", 0x396},    {u"aacute", 0xe1},
    {u"acirc", 0xe2},     {u"acute", 0xb4},    {u"aelig", 0xe6},    {u"agrave", 0xe0},   {u"alefsym", 0x2135},
    {u"alpha", 0x3b1},    {u"amp", 0x26},      {u"and", 0x2227},    {u"ang", 0x2220},    {u"apos", 0x27},
    {u"aring", 0xe5},     {u"asymp", 0x2248},  {u"atilde", 0xe3},   {u"auml", 0xe4},     {u"bdquo", 0x201e},
    {u"beta", 0x3b2},     {u"brvbar", 0xa6},   {u"bull", 0x2022},   {u"cap", 0x2229},    {u"ccedil", 0xe7},
    {u"cedil", 0xb8},     {u"cent", 0xa2},     {u"chi", 0x3c7},     {u"circ", 0x2c6},    {u"clubs", 0x2663},
    {u"cong", 0x2245},    {u"copy", 0xa9},     {u"crarr", 0x21b5},  {u"cup", 0x222a},    {u"curren", 0xa4},
    {u"dArr", 0x21d3},    {u"dagger", 0x2020}, {u"darr", 0x2193},   {u"deg", 0xb0},      {u"delta", 0x3b4},
    {u"diams", 0x2666},   {u"divide", 0xf7},   {u"eacute", 0xe9},   {u"ecirc", 0xea},    {u"egrave", 0xe8},
    {u"empty", 0x2205},   {u"emsp", 0x2003},   {u"ensp", 0x2002},   {u"epsilon", 0x3b5}, {u"equiv", 0x2261},
    {u"eta", 0x3b7},      {u"eth", 0xf0},      {u"euml", 0xeb},     {u"euro", 0x20ac},   {u"exist", 0x2203},
    {u"fnof", 0x192},     {u"forall", 0x2200}, {u"frac12", 0xbd},   {u"frac14", 0xbc},   {u"frac34", 0xbe},
    {u"frasl", 0x2044},   {u"gamma", 0x3b3},   {u"ge", 0x2265},     {u"gt", 0x3e},       {u"hArr", 0x21d4},
    {u"harr", 0x2194},    {u"hearts", 0x2665}, {u"hellip", 0x2026}, {u"iacute", 0xed},   {u"icirc", 0xee},
    {u"iexcl", 0xa1},     {u"igrave", 0xec},   {u"image", 0x2111},  {u"infin", 0x221e},  {u"int", 0x222b},
    {u"iota", 0x3b9},     {u"iquest", 0xbf},   {u"isin", 0x2208},   {u"iuml", 0xef},     {u"kappa", 0x3ba},
    {u"lArr", 0x21d0},    {u"lambda", 0x3bb},  {u"lang", 0x2329},   {u"laquo", 0xab},    {u"larr", 0x2190},
    {u"lceil", 0x2308},   {u"ldquo", 0x201c},  {u"le", 0x2264},     {u"lfloor", 0x230a}, {u"lowast", 0x2217},
    {u"loz", 0x25ca},     {u"lrm", 0x200e},    {u"lsaquo", 0x2039}, {u"lsquo", 0x2018},  {u"lt", 0x3c},
    {u"macr", 0xaf},      {u"mdash", 0x2014},  {u"micro", 0xb5},    {u"middot", 0xb7},   {u"minus", 0x2212},
    {u"mu", 0x3bc},       {u"nabla", 0x2207},  {u"nbsp", 0xa0},     {u"ndash", 0x2013},  {u"ne", 0x2260},
    {u"ni", 0x220b},      {u"not", 0xac},      {u"notin", 0x2209},  {u"nsub", 0x2284},   {u"ntilde", 0xf1},
    {u"nu", 0x3bd},       {u"oacute", 0xf3},   {u"ocirc", 0xf4},    {u"oelig", 0x153},   {u"ograve", 0xf2},
    {u"oline", 0x203e},   {u"omega", 0x3c9},   {u"omicron", 0x3bf}, {u"oplus", 0x2295},  {u"or", 0x2228},
    {u"ordf", 0xaa},      {u"ordm", 0xba},     {u"oslash", 0xf8},   {u"otilde", 0xf5},   {u"otimes", 0x2297},
    {u"ouml", 0xf6},      {u"para", 0xb6},     {u"part", 0x2202},   {u"permil", 0x2030}, {u"perp", 0x22a5},
    {u"phi", 0x3c6},      {u"pi", 0x3c0},      {u"piv", 0x3d6},     {u"plusmn", 0xb1},   {u"pound", 0xa3},
    {u"prime", 0x2032},   {u"prod", 0x220f},   {u"prop", 0x221d},   {u"psi", 0x3c8},     {u"quot", 0x22},
    {u"rArr", 0x21d2},    {u"radic", 0x221a},  {u"rang", 0x232a},   {u"raquo", 0xbb},    {u"rarr", 0x2192},
    {u"rceil", 0x2309},   {u"rdquo", 0x201d},  {u"real", 0x211c},   {u"reg", 0xae},      {u"rfloor", 0x230b},
    {u"rho", 0x3c1},      {u"rlm", 0x200f},    {u"rsaquo", 0x203a}, {u"rsquo", 0x2019},  {u"sbquo", 0x201a},
    {u"scaron", 0x161},   {u"sdot", 0x22c5},   {u"sect", 0xa7},     {u"shy", 0xad},      {u"sigma", 0x3c3},
    {u"sigmaf", 0x3c2},   {u"sim", 0x223c},    {u"spades", 0x2660}, {u"sub", 0x2282},    {u"sube", 0x2286},
    {u"sum", 0x2211},     {u"sup", 0x2283},    {u"sup1", 0xb9},     {u"sup2", 0xb2},     {u"sup3", 0xb3},
    {u"supe", 0x2287},    {u"szlig", 0xdf},    {u"tau", 0x3c4},     {u"there4", 0x2234}, {u"theta", 0x3b8},
    {u"thetasym", 0x3d1}, {u"thinsp", 0x2009}, {u"thorn", 0xfe},    {u"tilde", 0x2dc},   {u"times", 0xd7},
    {u"trade", 0x2122},   {u"uArr", 0x21d1},   {u"uacute", 0xfa},   {u"uarr", 0x2191},   {u"ucirc", 0xfb},
    {u"ugrave", 0xf9},    {u"uml", 0xa8},      {u"upsih", 0x3d2},   {u"upsilon", 0x3c5}, {u"uuml", 0xfc},
    {u"weierp", 0x2118},  {u"xi", 0x3be},      {u"yacute", 0xfd},   {u"yen", 0xa5},      {u"yuml", 0xff},
    {u"zeta", 0x3b6},     {u"zwj", 0x200d},    {u"zwnj", 0x200c},
};

/// The characters that browsers use for the references 128 to 159, which are no Unicode characters; 0 where they use
/// the number itself.
constexpr char16_t windowsCharacters[] = {
    0x20ac, 0,      0x201a, 0x0192, 0x201e, 0x2026, 0x2020, 0x2021, 0x02c6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017d, 0,      0,      0x2018, 0x2019, 0x201c, 0x201d, 0x2022,
    0x2013, 0x2014, 0x02dc, 0x2122, 0x0161, 0x203a, 0x0153, 0,      0x017e, 0x0178,
};
constexpr char32_t firstWindowsCharacter = 0x80;

char32_t numbered(QStringView digits)
{
    bool ok = false;
    const bool isHexadecimal = digits.startsWith(u'x', Qt::CaseInsensitive);
    const uint number = isHexadecimal ? digits.sliced(1).toUInt(&ok, 16) : digits.toUInt(&ok, 10);
    if (!ok || number == 0 || number > 0x10ffff || (number >= 0xd800 && number <= 0xdfff))
        return 0;
    const char32_t row = number - firstWindowsCharacter;
    const bool isWindows = number >= firstWindowsCharacter && row < std::size(windowsCharacters);
    return isWindows && windowsCharacters[row] ? windowsCharacters[row] : number;
}

} // namespace

std::span<const EntityName> entityNames()
{
    return names;
}

char32_t entityCharacter(QStringView reference)
{
    if (reference.startsWith(u'#'))
        return numbered(reference.sliced(1));
    const auto row = std::ranges::lower_bound(names, reference, std::ranges::less(), &EntityName::name);
    return row != std::end(names) && row->name == reference ? row->character : 0;
}

} // namespace zephira
