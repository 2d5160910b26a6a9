// SPDX-License-Identifier: GPL-3.0-or-later
#include "syntax/languagewords.h"

#include "syntax/languagedefinition.h"

namespace zephira {

namespace {

constexpr LanguageDefinition (*definitions[])() = {
    htmlDefinition, xmlDefinition,        cppDefinition,      basicDefinition, pascalDefinition,
    javaDefinition, javaScriptDefinition, vbScriptDefinition, phpDefinition,
};

QStringList listedWords(const CodeMaxLanguage &language)
{
    QStringList words;
    for (const QString &list : {language.Keywords, language.Operators, language.ScopeKeywords1, language.ScopeKeywords2,
                                language.TagElementNames, language.TagAttributeNames, language.TagEntities})
        words += list.split(u'\n', Qt::SkipEmptyParts);
    return words;
}

} // namespace

QStringList languageWords()
{
    QStringList words = listedWords(perlLanguage());
    for (const auto &define : definitions)
        words += listedWords(define().language);
    return words;
}

} // namespace zephira
