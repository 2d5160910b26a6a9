// SPDX-License-Identifier: GPL-3.0-or-later
#include "syntax/tagnames.h"

#include "syntax/bytescan.h"

#include <algorithm>

namespace zephira {

namespace {

using Code = TagState::Code;

/// A part of the value and the language it implies; the first matching row counts.
constexpr struct {
    QByteArrayView part;
    Code code;
} scriptTypes[] = {
    {"vbs", Code::VbScript},
    {"javascript", Code::JavaScript},
    {"ecmascript", Code::JavaScript},
    {"jscript", Code::JavaScript},
    {"livescript", Code::JavaScript},
    {"typescript", Code::JavaScript},
    {"module", Code::JavaScript},
    {"json", Code::JavaScript},
    {"importmap", Code::JavaScript},
    {"babel", Code::JavaScript},
    {"jsx", Code::JavaScript},
    {"speculationrules", Code::JavaScript},
    {"php", Code::Php},
    {"html", Code::None},
    {"template", Code::None},
    {"tmpl", Code::None},
    {"handlebars", Code::None},
    {"mustache", Code::None},
};

constexpr QByteArrayView serverDirectives[] = {"include", "exec",     "echo", "config", "flastmod", "fsize",
                                               "set",     "printenv", "if",   "elif",   "else",     "endif"};

constexpr QByteArrayView declarationWords[] = {
    "PUBLIC",   "SYSTEM",  "EMPTY",    "ANY",      "CDATA",   "NDATA",     "ID",       "IDREF",  "IDREFS",  "ENTITY",
    "ENTITIES", "NMTOKEN", "NMTOKENS", "NOTATION", "#PCDATA", "#REQUIRED", "#IMPLIED", "#FIXED", "INCLUDE", "IGNORE"};

/// The offset of `part`, given in lower case, in `text` in upper or lower case; -1 if it doesn't occur.
qsizetype findFolded(QByteArrayView text, QByteArrayView part)
{
    const auto hit = std::search(text.begin(), text.end(), part.begin(), part.end(), [](char a, char b) {
        return lowerCase(static_cast<Byte>(a)) == static_cast<Byte>(b);
    });
    return hit == text.end() ? -1 : hit - text.begin();
}

} // namespace

Code scriptCode(QByteArrayView value)
{
    if (value.trimmed().isEmpty())
        return Code::JavaScript;
    const auto row =
        std::ranges::find_if(scriptTypes, [value](const auto &type) { return findFolded(value, type.part) >= 0; });
    return row == std::end(scriptTypes) ? Code::Plain : row->code;
}

bool isServerDirective(QByteArrayView word)
{
    return std::ranges::any_of(serverDirectives, [word](QByteArrayView directive) {
        return word.size() == directive.size() && findFolded(word, directive) == 0;
    });
}

bool isDeclarationWord(QByteArrayView word)
{
    return std::ranges::any_of(declarationWords,
                               [word](QByteArrayView known) { return word.compare(known, Qt::CaseInsensitive) == 0; });
}

bool saysServerScript(QByteArrayView directive, bool current)
{
    const qsizetype at = findFolded(directive, "language");
    if (at < 0)
        return current;
    QByteArrayView value = directive.sliced(at + 8).trimmed();
    if (!value.startsWith('='))
        return current;
    value = value.sliced(1).trimmed();
    if (value.startsWith('"') || value.startsWith('\''))
        value = value.sliced(1);
    return findFolded(value, "vb") != 0;
}

} // namespace zephira
