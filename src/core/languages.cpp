// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/languages.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

using enum language::Row;
using enum TemplateRule;
using enum DocumentKind;

// clang-format off: a row a line
constexpr FileType types[] = {
    {u"vbs", Html, {}, AsDocument, PlainText},
    {.extension = u"asp", .row = Html, .isServerPage = true},
    {u"ini", Text, {}, AsDocument, PlainText},
    {u"log", Text, {}, AsDocument, PlainText},
    {u"txt", Text, {}, AsDocument, PlainText},
    {.extension = u"htm", .row = Html, .isPage = true},
    {.extension = u"html", .row = Html, .isPage = true},
    {.extension = u"java", .row = JavaScript, .byTemplate = Ignored, .kind = PlainText, .isListedLast = true},
    {u"css", StyleSheets, {}, AsDocument, PlainText},
    {u"js", JavaScript, {}, AsDocument, PlainText},
    {u"c", CCpp, {}, NamesLanguage, PlainText},
    {u"cpp", CCpp, {}, AsDocument, PlainText},
    {u"h", CCpp, u"c/c++", NamesLanguage, PlainText},
    {u"pl", Perl, {}, AsDocument, PlainText},
    {u"cgi", Perl, {}, AsDocument, PlainText},
    {u"xml", Xml, {}, AsDocument, PlainText},
    {u"pas", Pascal, {}, AsDocument, PlainText},
    {u"bas", Basic, {}, AsDocument, PlainText},
    {u"frm", Basic, {}, AsDocument, PlainText},
    {u"vbp", Basic, {}, AsDocument, PlainText},
    {.extension = u"sql", .row = Sql, .byTemplate = Ignored, .kind = PlainText, .isListedLast = true},
    {.extension = u"gif", .isImage = true, .isPicture = true},
    {.extension = u"bmp", .isImage = true, .isPicture = true},
    {.extension = u"jpg", .isImage = true, .isPicture = true},
    // File types without a language row.
    {.extension = u"png", .isPicture = true, .isAdded = true},
    {.extension = u"svg", .isPicture = true, .isAdded = true},
    {.extension = u"webp", .isPicture = true, .isAdded = true},
    {.extension = u"jpeg", .isPicture = true, .isAdded = true},
    {.extension = u"avif", .isPicture = true, .isAdded = true},
    {.extension = u"ico", .isPicture = true, .isAdded = true},
    {.extension = u"json", .kind = PlainText, .isAdded = true},
    {.extension = u"php", .isAdded = true},
    {.extension = u"xhtml", .isPage = true, .isAdded = true},
    {.extension = u"md", .kind = PlainText, .isAdded = true},
    {.extension = u"woff2", .isAdded = true},
    {.extension = u"mjs", .kind = PlainText, .isAdded = true},
    {.extension = u"ts", .kind = PlainText, .isAdded = true},
    {.extension = u"xht", .isPage = true},
    {.extension = u"shtml", .isPage = true},
    {.extension = u"conf", .kind = PlainText},
    {.extension = u"csv", .kind = PlainText},
    {.extension = u"py", .kind = PlainText},
    {.extension = u"sh", .kind = PlainText},
    {.extension = u"yaml", .kind = PlainText},
    {.extension = u"yml", .kind = PlainText},
};

/// A file group of the open dialog, whose extensions have an order of their own.
struct OpenGroup {
    QStringView caption;
    QStringView extensions; ///< separated by spaces
};

/// The pattern of the style sheet group doesn't match "css"; the list of all supported files does.
constexpr OpenGroup openGroups[] = {
    {u"Text / INI / LOG Files", u"txt ini log"},
    {u"Html Files", u"html htm"},
    {u"Java / Script Files", u"js java"},
    {u"Style Sheets", u"cs"},
    {u"C/C++ Files", u"c cpp h"},
    {u"Perl Files", u"pl"},
    {u"CGI/Perl Files", u"cgi"},
    {u"XML Files", u"xml"},
    {u"Pascal Files", u"pas"},
    {u"Basic Files", u"bas frm vbp"},
    {u"ASP / VBScript Files", u"asp vbs"},
    {u"SQL Files", u"sql"},
};
// clang-format on

/// The pattern of an extension in a list of all types. The one for style sheets has no dot.
QString patternOf(const FileType &type)
{
    return (type.extension == u"css" ? u"*"_s : u"*."_s) + type.extension.toString();
}

QString groupPatterns(const OpenGroup &group)
{
    return u"*."_s + group.extensions.toString().replace(u' ', u";*."_s);
}

} // namespace

const std::array<LanguageRow, languageCount> &languageRows()
{
    // Style sheets and SQL are coloured as Java on purpose.
    static constexpr std::array<LanguageRow, languageCount> rows = {{
        {u"Text", u"", false, u"", PreviewKind::None, u"Text Files|*.txt|All Files|*.*"},
        {u"HTML", u"HTML", true, u"HTML", PreviewKind::Page,
         u"HTML Files|*.html|ASP File|*.asp|VBScript File|*.vbs|All Files|*.*"},
        {u"C/C++", u"C/C++", false, u"", PreviewKind::None, u"C++ File|*.cpp|All Files|*.*"},
        {u"Perl", u"Perl", true, u"Perl", PreviewKind::None, u"CGI Files|*.cgi|All Files|*.*"},
        {u"XML", u"XML", true, u"XML", PreviewKind::File, u"XML Files|*.xml|All Files|*.*"},
        {u"Basic", u"Basic", false, u"", PreviewKind::None,
         u"Module (BAS) Files|*.bas|Basic Project File|*.vbp|Visual Basic Form File|*.frm|All Files|*.*"},
        {u"Pascal", u"Pascal", false, u"", PreviewKind::None, u"Pascal Files|*.pas|All Files|*.*"},
        {u"Java / Script", u"java", true, u"Java Script", PreviewKind::File,
         u"Java Script|*.js|Java|*.java|All Files|*.*|Text Files|*.txt|Html Files|*.html;*.htm|Style Sheets|*.css|"
         u"C Files|*.c|C++ Files|*.cpp|C/C++ H Files|*.h|Perl Files|*.pl|CGI/Perl Files|*.cgi|XML Files|*.xml|"
         u"Pascal Files|*.pas|Basic Module Files|*.bas|Basic Form Files|*.frm|Basic Project Files|*.vbp"},
        {u"Style Sheets", u"java", true, u"", PreviewKind::StyleSheet, u"CSS Files|*.css|All Files|*.*"},
        {u"SQL", u"java", true, u"", PreviewKind::Unchanged, u"SQL Files|*.sql|All Files|*.*"},
    }};
    return rows;
}

const LanguageRow *languageRow(int row)
{
    return row >= 0 && row < languageCount ? &languageRows()[static_cast<std::size_t>(row)] : nullptr;
}

bool linksImages(const QString &text)
{
    return !text.isEmpty()
        && std::ranges::any_of(languageRows(), [&](const LanguageRow &row) { return row.imageLinkText == text; });
}

std::span<const FileType> fileTypes()
{
    return types;
}

const FileType *fileTypeOf(QStringView name)
{
    const qsizetype dot = name.lastIndexOf(u'.');
    if (dot < 0)
        return nullptr;
    const QStringView extension = name.sliced(dot + 1);
    const auto type = std::ranges::find_if(types, [&](const FileType &candidate) {
        return candidate.extension.compare(extension, Qt::CaseInsensitive) == 0;
    });
    return type == std::end(types) ? nullptr : type;
}

bool isPicture(QStringView name)
{
    const FileType *type = fileTypeOf(name);
    return type && type->isPicture;
}

bool isPage(QStringView name)
{
    const FileType *type = fileTypeOf(name);
    return type && type->isPage;
}

bool isServerPage(QStringView name)
{
    const FileType *type = fileTypeOf(name);
    return type && type->isServerPage;
}

std::optional<LanguageChoice> languageOfFile(QStringView name)
{
    const FileType *type = fileTypeOf(name);
    if (!type || !type->row)
        return {};
    return LanguageChoice{*type->row, type->editorLanguage.toString()};
}

std::optional<LanguageChoice> languageOfTemplate(QStringView name)
{
    const FileType *type = fileTypeOf(name);
    if (!type || !type->row || type->byTemplate == Ignored)
        return {};
    return LanguageChoice{*type->row, type->byTemplate == NamesLanguage ? u"c/c++"_s : QString()};
}

QString openFilter()
{
    QStringList all;
    for (const FileType &type : types) {
        if (type.row)
            all.append(patternOf(type));
    }
    QStringList parts = {u"All Supported Files"_s, all.join(u';'), u"All Files"_s, u"*.*"_s};
    for (const OpenGroup &group : openGroups)
        parts << group.caption.toString() << groupPatterns(group);
    return parts.join(u'|');
}

QString picturePatterns()
{
    QStringList patterns;
    for (const FileType &type : types) {
        if (type.isPicture)
            patterns.append(patternOf(type));
    }
    return patterns.join(u';');
}

QString defaultFilters()
{
    QStringList texts;
    QStringList pictures;
    QStringList last;
    for (const FileType &type : types) {
        if (type.isImage)
            pictures.append(patternOf(type));
        else if (type.row)
            (type.isListedLast ? last : texts).append(patternOf(type));
    }
    return (texts + pictures + last).join(u';');
}

QString shippedFilters()
{
    QString filters = defaultFilters();
    for (const FileType &type : types) {
        if (type.isAdded)
            filters += u';' + patternOf(type);
    }
    return filters;
}

} // namespace zephira
