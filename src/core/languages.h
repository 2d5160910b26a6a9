// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <array>
#include <optional>
#include <span>

namespace zephira {

/// How the preview shows a document.
enum class PreviewKind {
    None,       ///< a page saying that there is no preview
    Page,       ///< the document itself, as a page whatever its name
    File,       ///< the document itself, as a browser shows that type of file
    StyleSheet, ///< a sample page styled by the document
    Unchanged,  ///< the preview keeps its content
};

/// How the designer treats a document.
enum class DocumentKind {
    Markup,
    PlainText, ///< a program, a style sheet or notes: shown and edited as plain text
};

/// One row of the language list `cboLang`, with the properties of the language.
struct LanguageRow {
    QStringView text;           ///< as shown in the list
    QStringView editorLanguage; ///< name in the editing control; "" for no colouring
    bool markupTools;           ///< whether the formatting buttons and the Tags menu are enabled
    /// The text of the list under which an image from the file pane is inserted as a link; "" for never. Scripts have
    /// one that the list never shows, so there images are never inserted.
    QStringView imageLinkText;
    PreviewKind preview;
    QStringView saveFilter; ///< filter of the save dialog
};

/// Row numbers, shared with the start dialog, plug-ins and wizards.
namespace language {
enum Row : int { Text, Html, CCpp, Perl, Xml, Basic, Pascal, JavaScript, StyleSheets, Sql };
}

constexpr int languageCount = 10;

const std::array<LanguageRow, languageCount> &languageRows();

/// The row with this 0-based number, or nullptr if there is none.
const LanguageRow *languageRow(int row);

/// Whether an image is inserted as a link in documents of the language that the list shows as `text`.
bool linksImages(const QString &text);

/// How the file name of a custom template chooses the language.
enum class TemplateRule {
    AsDocument,    ///< like a document of that name
    NamesLanguage, ///< the same, and then the editing control's language is set to "c/c++"
    Ignored,       ///< the language is not changed
};

/// A file name extension and what it implies. A file with an unlisted extension is text in the currently selected
/// language, and markup for the designer.
struct FileType {
    QStringView extension; ///< without its dot, in lower case
    std::optional<language::Row> row = {};
    QStringView editorLanguage = {}; ///< language set in the editing control after the row is selected, or ""
    TemplateRule byTemplate = TemplateRule::AsDocument;
    DocumentKind kind = DocumentKind::Markup;
    bool isImage = false;      ///< shown as a picture or linked, never opened as the document
    bool isPicture = false;    ///< a picture on a web page, whatever opening it does; each image is one
    bool isPage = false;       ///< shown by a browser as a page
    bool isServerPage = false; ///< can be viewed only through a web server
    bool isListedLast = false; ///< comes after the pictures in the file pane's patterns
    bool isAdded = false;      ///< missing from defaultFilters(), included in shippedFilters()
};

/// In the order in which the open dialog lists them.
std::span<const FileType> fileTypes();

/// The type by the part after the last dot of a name or path, not case-sensitive; nullptr for an unknown extension.
const FileType *fileTypeOf(QStringView name);

/// Whether the name is that of a picture, or of a page.
bool isPicture(QStringView name);
bool isPage(QStringView name);

/// Whether the name is that of a page that can be viewed only through a web server.
bool isServerPage(QStringView name);

/// The language implied by a file name: the row to select, and the language to set in the editing control directly
/// afterwards, "" to keep the row's own.
struct LanguageChoice {
    int row;
    QString editorLanguage = {};

    friend bool operator==(const LanguageChoice &, const LanguageChoice &) = default;
};

/// Nothing for an unknown extension: the language is not changed.
std::optional<LanguageChoice> languageOfFile(QStringView name);
/// The same for the file of a custom template, which knows fewer extensions.
std::optional<LanguageChoice> languageOfTemplate(QStringView name);

/// Filter of the open dialog: "caption|patterns|caption|patterns…".
QString openFilter();

/// The pictures' patterns in a filter, separated by semicolons.
QString picturePatterns();

/// The file pane's patterns after a reset to the program's defaults.
QString defaultFilters();

/// The file pane's patterns as installed: the defaults, and further file types used on web pages.
QString shippedFilters();

} // namespace zephira
