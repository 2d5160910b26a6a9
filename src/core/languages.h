// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <array>
#include <optional>
#include <span>

namespace zephira {

/// What the preview makes of a document.
enum class PreviewKind {
    None,       ///< a page that says that there is no preview
    Page,       ///< the document itself, which is a page whatever its name says
    File,       ///< the document itself, as a browser shows such a file
    StyleSheet, ///< a sample page that the document styles
    Unchanged,  ///< the view goes on showing what it held
};

/// What the designer takes a document for.
enum class DocumentKind {
    Markup,
    PlainText, ///< a program, a style sheet or notes: shown as they stand, and edited as text
};

/// One row of the language list `cboLang`, with all that is true of the language.
struct LanguageRow {
    QStringView text;           ///< as shown in the list
    QStringView editorLanguage; ///< what the editing control calls it; "" for no colouring
    bool markupTools;           ///< whether the formatting buttons and the menu of tags are open
    bool imageLinks;            ///< whether an image of the file pane becomes a link in the text
    PreviewKind preview;
    QStringView saveFilter; ///< what the save dialog offers
};

/// The numbers of the rows, which the start dialog, plug-ins and wizards share.
namespace language {
enum Row : int { Text, Html, CCpp, Perl, Xml, Basic, Pascal, JavaScript, StyleSheets, Sql };
}

constexpr int languageCount = 10;

const std::array<LanguageRow, languageCount> &languageRows();

/// The row of a number, or nullptr for one outside the list.
const LanguageRow *languageRow(int row);

/// Whether an image becomes a link in a document of the language that the list shows as `text`.
bool linksImages(const QString &text);

/// How a custom template chooses the language by its name.
enum class TemplateRule {
    AsDocument,    ///< as the document of that name does
    NamesLanguage, ///< the same, and the editing control is given "c/c++" directly afterwards
    Ignored,       ///< the language stays what it is
};

/// One extension of a file's name, and what the program knows by it. An extension that isn't here is text, of whatever
/// language is chosen, and markup for the designer.
struct FileType {
    QStringView extension; ///< without its dot, in lower case
    std::optional<language::Row> row = {};
    QStringView editorLanguage = {}; ///< what the editing control is given after the row is chosen, or ""
    TemplateRule byTemplate = TemplateRule::AsDocument;
    DocumentKind kind = DocumentKind::Markup;
    bool isImage = false;      ///< shown as a picture, or linked, and never the document
    bool isServerPage = false; ///< has to be seen through a web server
    bool isListedLast = false; ///< stands behind the pictures in the patterns of the file pane
    bool isAdded = false;      ///< not among the program's own patterns, but among those that are installed
};

/// In the order in which the open dialog lists them.
std::span<const FileType> fileTypes();

/// By what follows the last dot of a name or path, without regard to case; nullptr for an unknown extension.
const FileType *fileTypeOf(QStringView name);

/// Whether the name is that of a page which only a web server can show.
bool isServerPage(QStringView name);

/// The language that a file's name stands for: the row to select, and the name that the editing control is given directly
/// afterwards, "" where the row's own is wanted.
struct LanguageChoice {
    int row;
    QString editorLanguage = {};

    friend bool operator==(const LanguageChoice &, const LanguageChoice &) = default;
};

/// Nothing for an unknown extension: the language stays.
std::optional<LanguageChoice> languageOfFile(QStringView name);
/// The same for the file of a custom template, which knows fewer extensions.
std::optional<LanguageChoice> languageOfTemplate(QStringView name);

/// What the open dialog offers: "caption|patterns|caption|patterns…".
QString openFilter();

/// The patterns of the file pane when they are put back to the program's own.
QString defaultFilters();

/// The patterns of the file pane that are installed: the program's own, and what people make pages of besides.
QString shippedFilters();

} // namespace zephira
