// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <array>
#include <optional>
#include <vector>

namespace zephira {

/// One row of the language list `cboLang`.
struct LanguageRow {
    const char16_t *text;           ///< as shown in the list
    const char16_t *editorLanguage; ///< what the editing control calls it; "" for no colouring
    bool markupTools;               ///< whether the formatting buttons and the menu of tags are open
    const char16_t *saveFilter;     ///< what the save dialog offers
};

constexpr int languageCount = 10;

enum LanguageIndex : int { Text, Html, CCpp, Perl, Xml, Basic, Pascal, JavaScript, StyleSheets, Sql };

/// The rows in their order, which is shared by the start dialog, plug-ins and wizards.
const std::array<LanguageRow, languageCount> &languageRows();

/// One step of choosing the language by a file's name: the row to select, and the name that the editing control is given
/// directly afterwards where the row's own isn't wanted.
struct SyntaxStep {
    int row;
    std::optional<QString> editorLanguage = {};

    friend bool operator==(const SyntaxStep &, const SyntaxStep &) = default;
};

/// The steps for a file name, in order; a later one overrides an earlier one. The name's last two, three, four and five
/// characters are looked at in turn, without regard to case. No step for an unknown extension: the language stays.
std::vector<SyntaxStep> syntaxSteps(const QString &fileName);

} // namespace zephira
