// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/tidyoptions.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

using enum TidyCheck::HowSet;

constexpr TidyCheck checks[] = {
    {u"Check1", u"Enclose Text in BODY within <P>'s", {"enclose-text"}},
    {u"Check2", u"Enclose Text in blocks within <P>'s", {"enclose-block-text"}},
    {u"Check8", u"Replace presentational tags and attrs by style rules", {"clean"}},
    {fontTagsCheck, u"Discard <font> and <center> tags", {}, ByOurselves},
    {u"Check3", u"Replace <i> with <em> and <b> with <strong>", {"logical-emphasis"}},
    {u"Check4", u"Discard Empty Paragraphs", {"drop-empty-paras"}},
    {u"Check5", u"Fix Bad Comments", {"fix-bad-comments"}},
    {u"Check6", u"Replace '\\' in urls with '/'", {"fix-backslash"}},
    {u"Check9", u"Output as XML", {"output-xml"}},
    {u"Check10", u"Output as XHTML 1.0", {"output-xhtml"}},
    {u"Check11", u"Add XML Declaration", {"add-xml-decl"}},
    {u"Check12", u"Add xml:space as needed", {"add-xml-space"}},
    {u"Check13", u"Output Numeric character entities", {"numeric-entities"}},
    {u"Check14", u"Output \" as quot;", {"quote-marks"}},
    // Without this option Tidy writes the bare byte 160, which isn't ASCII.
    {u"Check15", u"Output non breaking spaces as entities", {"quote-nbsp"}, ByStateOrAscii},
    {u"Check16", u"Output unadorned chars as amp;", {"quote-ampersand"}},
    {u"Check17", u"Indent block tags", {"indent-attributes"}},
    {u"Check19", u"Wrap attr's.", {"wrap-attributes"}},
    {u"Check18", u"Wrap lines which are in pseudo elements", {"wrap-asp", "wrap-jste", "wrap-php"}},
};

/// The first box whose option is set after the width of the indentation.
constexpr QStringView indentCheck = u"Check17";

constexpr QStringView documentTypes[] = {u"auto", u"omit", u"strict", u"loose", u"<fpi>"};
/// Stands for a public identifier that the user hasn't entered yet, and leaves the document type alone.
constexpr QStringView noIdentifier = u"<fpi>";

/// A character encoding. The text is always read as it is stored in its file; the encoding says what becomes of the
/// characters in the output.
struct CharEncoding {
    QStringView name;
    const char *input;
    const char *output;
    /// Whether bytes pass through Tidy as they are. Then entities have to stay entities, because Tidy would replace
    /// them by single bytes, which aren't UTF-8.
    bool keepsBytes = false;
};

constexpr QStringView ascii = u"ascii";
constexpr QStringView latin1 = u"latin1";

constexpr CharEncoding charEncodings[] = {
    {ascii, "utf8", "ascii"},   {u"raw", "raw", "raw", true}, {u"iso2022", "iso2022", "iso2022", true},
    {latin1, "utf8", "latin1"}, {u"utf8", "utf8", "utf8"},
};

/// An unknown name counts as the first one.
const CharEncoding &encodingNamed(const QString &name)
{
    const auto row = std::ranges::find(charEncodings, QStringView(name), &CharEncoding::name);
    return row == std::end(charEncodings) ? charEncodings[0] : *row;
}

QByteArray yesOrNo(bool on)
{
    return on ? "yes" : "no";
}

/// The value for the option doctype. A public identifier has to be quoted.
QByteArray documentTypeValue(const QString &choice)
{
    const QString type = choice.trimmed();
    return (type.contains(u"//") && !type.startsWith(u'"') ? u'"' + type + u'"' : type).toUtf8();
}

/// What each run needs, whatever was chosen. Without the last three a page with errors would have no output, and the
/// messages would end after the sixth error.
void addFixed(std::vector<TidySetting> &settings)
{
    settings.push_back({"newline", "CRLF"});
    settings.push_back({"force-output", "yes"});
    settings.push_back({"show-errors", QByteArray::number(0x7FFFFFFF)});
    settings.push_back({"show-warnings", "yes"});
}

} // namespace

std::span<const TidyCheck> tidyChecks()
{
    return checks;
}

QStringList tidyDocumentTypes()
{
    QStringList names;
    for (const QStringView type : documentTypes)
        names.append(type.toString());
    return names;
}

QStringList tidyCharEncodings()
{
    QStringList names;
    for (const CharEncoding &encoding : charEncodings)
        names.append(encoding.name.toString());
    return names;
}

std::vector<TidySetting> tidySettings(const TidyChoices &choices)
{
    const CharEncoding &encoding = encodingNamed(choices.charEncoding);
    std::vector<TidySetting> settings{{"input-encoding", encoding.input}, {"output-encoding", encoding.output}};
    if (encoding.keepsBytes)
        settings.push_back({"preserve-entities", "yes"});
    if (choices.isXml)
        settings.push_back({"input-xml", "yes"});
    if (choices.ticked.contains(indentCheck.toString())) {
        settings.push_back({"indent", "yes"});
        settings.push_back({"indent-attributes", "yes"});
    }
    if (choices.documentType != noIdentifier)
        settings.push_back({"doctype", documentTypeValue(choices.documentType)});
    settings.push_back({"tidy-mark", "yes"});
    for (const TidyCheck &check : checks) {
        if (check.control == indentCheck)
            settings.push_back({"indent-spaces", "2"});
        const bool isTicked = choices.ticked.contains(check.control.toString())
            || (check.howSet == ByStateOrAscii && encoding.name == ascii);
        for (const char *option : check.options) {
            if (option)
                settings.push_back({option, yesOrNo(isTicked)});
        }
    }
    settings.push_back({"uppercase-tags", "yes"});
    settings.push_back({"uppercase-attributes", "yes"});
    addFixed(settings);
    return settings;
}

std::vector<TidySetting> parsingSettings(const TidyChoices &choices)
{
    const CharEncoding &encoding = encodingNamed(choices.charEncoding);
    std::vector<TidySetting> settings{
        {"input-encoding", encoding.input},
        {"output-encoding", encoding.keepsBytes ? encoding.output : "utf8"},
        {"input-xml", yesOrNo(choices.isXml)},
        {"preserve-entities", "yes"},
        {"literal-attributes", "yes"},
        {"uppercase-attributes", "preserve"},
        {"wrap", "0"},
        {"tidy-mark", "no"},
    };
    for (const char *option : {"drop-empty-elements", "drop-empty-paras", "fix-backslash", "fix-uri", "lower-literals",
                               "quote-ampersand", "join-styles"})
        settings.push_back({option, "no"});
    addFixed(settings);
    return settings;
}

QString decodeTidied(const QByteArray &bytes, const QString &charEncoding)
{
    return encodingNamed(charEncoding).name == latin1 ? QString::fromLatin1(bytes) : QString::fromUtf8(bytes);
}

bool countsBytes(const QString &charEncoding)
{
    return encodingNamed(charEncoding).keepsBytes;
}

} // namespace zephira
