// SPDX-License-Identifier: GPL-3.0-or-later
#include "document/languages.h"

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

struct ExtensionRow {
    const char16_t *tail;
    int row;
    const char16_t *editorLanguage = nullptr;
};

/// In the order of the passes: shorter tails first.
// clang-format off: a row a line
constexpr ExtensionRow extensionRows[] = {
    {u".c", CCpp},          {u".h", CCpp, u"c/c++"}, {u".pl", Perl},         {u".js", JavaScript}, {u".txt", Text},
    {u".ini", Text},        {u".log", Text},         {u".htm", Html},        {u".asp", Html},      {u".vbs", Html},
    {u".cpp", CCpp},        {u".cgi", Perl},         {u".xml", Xml},         {u".bas", Basic},     {u".frm", Basic},
    {u".vbp", Basic},       {u".pas", Pascal},       {u".css", StyleSheets}, {u".sql", Sql},       {u".html", Html},
    {u".java", JavaScript},
};
// clang-format on

} // namespace

const std::array<LanguageRow, languageCount> &languageRows()
{
    // Style sheets and SQL are coloured as Java on purpose.
    static constexpr std::array<LanguageRow, languageCount> rows = {{
        {u"Text", u"", false, u"Text Files|*.txt|All Files|*.*"},
        {u"HTML", u"HTML", true, u"HTML Files|*.html|ASP File|*.asp|VBScript File|*.vbs|All Files|*.*"},
        {u"C/C++", u"C/C++", false, u"C++ File|*.cpp|All Files|*.*"},
        {u"Perl", u"Perl", true, u"CGI Files|*.cgi|All Files|*.*"},
        {u"XML", u"XML", true, u"XML Files|*.xml|All Files|*.*"},
        {u"Basic", u"Basic", false,
         u"Module (BAS) Files|*.bas|Basic Project File|*.vbp|Visual Basic Form File|*.frm|All Files|*.*"},
        {u"Pascal", u"Pascal", false, u"Pascal Files|*.pas|All Files|*.*"},
        {u"Java / Script", u"java", true,
         u"Java Script|*.js|Java|*.java|All Files|*.*|Text Files|*.txt|Html Files|*.html;*.htm|Style Sheets|*.css|"
         u"C Files|*.c|C++ Files|*.cpp|C/C++ H Files|*.h|Perl Files|*.pl|CGI/Perl Files|*.cgi|XML Files|*.xml|"
         u"Pascal Files|*.pas|Basic Module Files|*.bas|Basic Form Files|*.frm|Basic Project Files|*.vbp"},
        {u"Style Sheets", u"java", true, u"CSS Files|*.css|All Files|*.*"},
        {u"SQL", u"java", true, u"SQL Files|*.sql|All Files|*.*"},
    }};
    return rows;
}

std::vector<SyntaxStep> syntaxSteps(const QString &fileName)
{
    std::vector<SyntaxStep> steps;
    for (const ExtensionRow &row : extensionRows) {
        if (!fileName.endsWith(QStringView(row.tail), Qt::CaseInsensitive))
            continue;
        steps.push_back({row.row});
        if (row.editorLanguage)
            steps.back().editorLanguage = QStringView(row.editorLanguage).toString();
    }
    return steps;
}

} // namespace zephira
