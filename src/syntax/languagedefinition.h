// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "syntax/codemaxlanguage.h"

#include <QByteArrayList>

namespace zephira {

/// Features of a language that CodeMaxLanguage can't express. Registered languages have none of them.
enum class Dialect : unsigned {
    None = 0,
    Html = 1u << 0,                ///< tag-aware: scripts, style sheets, server blocks, server directives inside
    Preprocessor = 1u << 1,        ///< "#  include <x>" is the keyword "#include" and a file name
    RawStrings = 1u << 2,          ///< R"x( … )x"
    DigitQuotes = 1u << 3,         ///< 1'000'000
    AmpersandNumbers = 1u << 4,    ///< &HFF, &O17
    DateLiterals = 1u << 5,        ///< #12/31/1999#
    NumberSuffixSigns = 1u << 6,   ///< 10& 1.5!
    DollarNumbers = 1u << 7,       ///< $FF, and character codes, #13
    DollarInWords = 1u << 8,       ///< $ is a letter
    Templates = 1u << 9,           ///< `text ${code} text`
    TextBlocks = 1u << 10,         ///< """ over several lines """
    RegularExpressions = 1u << 11, ///< /a"b/ where an operand may stand
    LongStrings = 1u << 12,        ///< strings may span lines
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

/// A language as compiled by the engine.
struct LanguageDefinition {
    CodeMaxLanguage language = {};
    Dialect dialect = Dialect::None;
};

/// The built-in languages of the editing control.
LanguageDefinition htmlDefinition();
LanguageDefinition xmlDefinition();
LanguageDefinition cppDefinition();
LanguageDefinition basicDefinition();
LanguageDefinition pascalDefinition();
LanguageDefinition javaDefinition();

/// Languages that occur only inside HTML text.
LanguageDefinition javaScriptDefinition();
LanguageDefinition vbScriptDefinition();
LanguageDefinition phpDefinition();

/// Perl, which the program registers when it starts.
CodeMaxLanguage perlLanguage();

/// Makes a list field from words separated by spaces or line ends.
QString wordList(QStringView words);
/// Makes a list field from entries separated by "|", so that they may contain spaces.
QString entryList(QStringView entries);
/// The non-empty entries of a list field, in UTF-8.
QByteArrayList entriesOf(const QString &list);

} // namespace zephira
