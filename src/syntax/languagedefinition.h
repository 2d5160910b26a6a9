// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "syntax/codemaxlanguage.h"

#include <QByteArrayList>

namespace zephira {

/// Habits of a language that the fields of CodeMaxLanguage have no room for. A registered language has none of them.
enum class Dialect : unsigned {
    None = 0,
    Html = 1u << 0,                ///< tag-aware: scripts, style sheets, server blocks, server directives inside
    Preprocessor = 1u << 1,        ///< "#  include <x>" is the keyword "#include" and a file name
    RawStrings = 1u << 2,          ///< R"x( … )x"
    DigitQuotes = 1u << 3,         ///< 1'000'000
    AmpersandNumbers = 1u << 4,    ///< &HFF, &O17
    DateLiterals = 1u << 5,        ///< #12/31/1999#
    NumberSuffixSigns = 1u << 6,   ///< 10& 1.5!
    DollarNumbers = 1u << 7,       ///< $FF, and characters by number, #13
    DollarInWords = 1u << 8,       ///< $ is a letter
    Templates = 1u << 9,           ///< `text ${code} text`
    TextBlocks = 1u << 10,         ///< """ over several lines """
    RegularExpressions = 1u << 11, ///< /a"b/ where an operand may stand
    LongStrings = 1u << 12,        ///< strings go on over line ends
    HereDocuments = 1u << 13,      ///< <<<NAME … NAME
    PhpClosing = 1u << 14,         ///< ?> ends the code outside strings and long comments
};

constexpr Dialect operator|(Dialect a, Dialect b)
{
    return static_cast<Dialect>(static_cast<unsigned>(a) | static_cast<unsigned>(b));
}

constexpr bool has(Dialect set, Dialect one)
{
    return (static_cast<unsigned>(set) & static_cast<unsigned>(one)) != 0;
}

/// A language as the engine compiles it.
struct LanguageDefinition {
    CodeMaxLanguage language = {};
    Dialect dialect = Dialect::None;
};

/// The languages that the editing control brings.
LanguageDefinition htmlDefinition();
LanguageDefinition xmlDefinition();
LanguageDefinition cppDefinition();
LanguageDefinition basicDefinition();
LanguageDefinition pascalDefinition();
LanguageDefinition javaDefinition();

/// Those that appear only inside an HTML text.
LanguageDefinition javaScriptDefinition();
LanguageDefinition vbScriptDefinition();
LanguageDefinition phpDefinition();

/// Perl, which the program registers at start.
CodeMaxLanguage perlLanguage();

/// A list field from words that are separated by blanks or line ends.
QString wordList(QStringView words);
/// A list field from entries that are separated by "|", so that they may hold blanks.
QString entryList(QStringView entries);
/// The entries of a list field in UTF-8, without empty ones.
QByteArrayList entriesOf(const QString &list);

} // namespace zephira
