// SPDX-License-Identifier: GPL-3.0-or-later
#include "probes/parsers.h"

#include "core/errorstyles.h"
#include "files/privateprofile.h"
#include "files/textfile.h"
#include "files/textlines.h"
#include "ftp/folderlisting.h"
#include "ftp/ftpreply.h"
#include "panes/customtabfile.h"
#include "panes/outline.h"
#include "panes/sottree.h"
#include "syntax/describestyles.h"
#include "tags/tagfile.h"
#include "tools/fonttags.h"
#include "tools/imagelinks.h"
#include "tools/linktargets.h"
#include "tools/sourceformatter.h"
#include "views/fetchedtext.h"
#include "views/pagefetcher.h"
#include "web/designer/pageroundtrip.h"
#include "web/designer/servermarks.h"
#include "wizards/savedtags.h"

#include <algorithm>
#include <utility>

namespace zephira {

namespace {

/// One line for each value: section, key and value, separated by tabs.
QByteArray printProfile(const QByteArray &input)
{
    QByteArray out;
    for (const ProfileEntry &entry : profileEntries(input))
        out += entry.section.toUtf8() + '\t' + entry.key.toUtf8() + '\t' + entry.value.toUtf8() + '\n';
    return out;
}

/// One line for each fact that saved meta tags hold.
QByteArray printSavedTags(const QByteArray &input)
{
    const SiteFacts facts = savedTags(input);
    return facts.description.toUtf8() + '\n' + facts.keywords.toUtf8() + '\n' + facts.author.toUtf8() + '\n'
        + facts.copyright.toUtf8() + '\n';
}

const char *lineEndsName(LineEnds ends)
{
    switch (ends) {
    case LineEnds::CrLf:
        return "CRLF";
    case LineEnds::Lf:
        return "LF";
    case LineEnds::Cr:
        return "CR";
    case LineEnds::Mixed:
        break;
    }
    return "mixed";
}

/// A line with encoding, byte order mark and line ends, then the text.
QByteArray printTextFile(const QByteArray &input)
{
    const DecodedText text = decodeText(input);
    return encodingName(text.format.encoding).toUtf8() + (text.format.byteOrderMark ? " mark " : " plain ")
        + lineEndsName(text.format.lineEnds) + '\n' + text.utf8;
}

QStringList linesOf(const QByteArray &input)
{
    return textLines(QString::fromUtf8(decodeText(input).utf8));
}

/// One line for each node of the tag tree that is read from a file.
QByteArray printTags(const QByteArray &input)
{
    return tagCaptions(linesOf(input)).join(u'\n').toUtf8() + '\n';
}

/// The header, then one line for each entry: title and code, separated by a tab.
QByteArray printCustomTab(const QByteArray &input)
{
    const CustomTabFile tab = parseCustomTab(linesOf(input));
    QByteArray out = tab.header.toUtf8() + '\n';
    for (const CustomTabFile::Entry &entry : tab.entries)
        out += entry.title.toUtf8() + '\t' + entry.code.toUtf8() + '\n';
    return out;
}

/// One line for each node: the line number of its parent, from 1, or 0, and the caption, separated by a tab. After them
/// the line number that is indented too far, if there is one.
QByteArray printSotTree(const QByteArray &input)
{
    const SotTree tree = parseSotTree(linesOf(input));
    QByteArray out;
    for (const SotTree::Node &node : tree.nodes)
        out += QByteArray::number(node.parent + 1) + '\t' + node.caption.toUtf8() + '\n';
    if (tree.faultyLine > 0)
        out += "fault\t" + QByteArray::number(tree.faultyLine) + '\n';
    return out;
}

/// The style runs of a text in a language.
template<const char16_t *language>
QByteArray printStyles(const QByteArray &input)
{
    return describeStyles(input, QString::fromUtf16(language));
}

QString textOf(const QByteArray &input)
{
    return QString::fromUtf8(decodeText(input).utf8);
}

/// The letter that stands for a sign behind a backslash, or 0 for one that stands for itself.
char escapeOf(QChar sign)
{
    return sign == u'\\' ? '\\' : sign == u'\r' ? 'r' : sign == u'\n' ? 'n' : sign == u'\t' ? 't' : 0;
}

/// Adds a text on one line, without tabs. A letter of UTF-16 takes three bytes at most.
void addEscaped(QByteArray &out, QStringView text)
{
    constexpr qsizetype longestLetter = 3;
    const auto isAscii = [](QChar c) { return c < QChar(0x80); };
    const qsizetype before = out.size();
    out.resize(before + longestLetter * text.size());
    char *to = out.data() + before;
    for (const QChar *next = text.begin(); next != text.end();) {
        if (!isAscii(*next)) {
            const QChar *const foreign = std::exchange(next, std::find_if(next, text.end(), isAscii));
            to = std::ranges::copy(QStringView(foreign, next).toUtf8(), to).out;
            continue;
        }
        const char escape = escapeOf(*next);
        if (escape)
            *to++ = '\\';
        *to++ = escape ? escape : static_cast<char>(next->unicode());
        ++next;
    }
    out.truncate(to - out.constData());
}

/// One line for each leaf: key of its group, index of its `<`, caption and tag text, separated by tabs. An error
/// follows the leaves found before it.
QByteArray printOutline(const QByteArray &input)
{
    QByteArray out;
    out.reserve(input.size());
    try {
        scanOutline(textOf(input), [&out](OutlineLeaf &&leaf) {
            addEscaped(out, outlineRoots()[static_cast<std::size_t>(leaf.group)].key);
            out.append('\t').append(QByteArray::number(leaf.position)).append('\t');
            addEscaped(out, leaf.caption);
            out.append('\t');
            addEscaped(out, leaf.tagText);
            out.append('\n');
        });
    } catch (const HandlerError &error) {
        out += "error\t" + error.description.toUtf8() + '\n';
    }
    return out;
}

template<QString (*format)(const QString &)>
QByteArray printFormatted(const QByteArray &input)
{
    return format(textOf(input)).toUtf8();
}

QByteArray printHierarchical(const QByteArray &input)
{
    try {
        return Hierarchical(textOf(input)).toUtf8();
    } catch (const HandlerError &error) {
        return "error\t" + error.description.toUtf8() + '\n';
    }
}

/// One line for each image that a page names, or an error.
QByteArray printImageLinks(const QByteArray &input)
{
    QByteArray out;
    QStringList urls;
    const auto tell = [&out](const QString &description) { out = "error\t" + description.toUtf8() + '\n'; };
    if (!endingWith(tell, [&] { LinksFromHTML(urls, textOf(input)); }))
        return out;
    const QStringList links = urls.sliced(1);
    for (const QString &url : links) {
        addEscaped(out, url);
        out.append('\n');
    }
    return out;
}

/// One line for each link target of a page.
QByteArray printLinkTargets(const QByteArray &input)
{
    QByteArray out;
    const QStringList targets = linkTargets(textOf(input)).targets;
    for (const QString &target : targets) {
        addEscaped(out, target);
        out.append('\n');
    }
    return out;
}

/// The page without font and center tags.
QByteArray printWithoutFontTags(const QByteArray &input)
{
    return withoutFontTags(decodeText(input).utf8);
}

/// The page with marks instead of server code and comments.
QByteArray printServerMarks(const QByteArray &input)
{
    return ServerMarks(QStringLiteral("mark")).mask(textOf(input)).toUtf8();
}

/// The text that the designer returns for a page if its engine returns the page unchanged.
QByteArray printDesignerText(const QByteArray &input)
{
    const PageRoundTrip page(textOf(input), QStringLiteral("mark"));
    return page.fromEngine(page.forEngine()).toUtf8();
}

/// One line for each entry of a server's folder: kind, size, time and name, separated by tabs.
QByteArray printEntries(const std::vector<ListedEntry> &entries)
{
    QByteArray out;
    for (const ListedEntry &entry : entries) {
        out += entry.isFolder ? "folder" : entry.isLink ? "link" : "file";
        out += '\t' + QByteArray::number(entry.size) + '\t' + QByteArray::number(entry.lastWriteTime) + '\t'
            + entry.name + '\n';
    }
    return out;
}

/// The date is fixed, so that the same bytes always give the same result.
QByteArray printList(const QByteArray &input)
{
    return printEntries(readList(input, QDate(2024, 3, 10)));
}

QByteArray printMlsd(const QByteArray &input)
{
    return printEntries(readMlsd(input));
}

/// The code of a reply to a command, and the values that replies to some commands contain.
QByteArray printReply(const QByteArray &input)
{
    FtpReplyReader reader;
    const QByteArrayList lines = input.split('\n');
    for (const QByteArray &line : lines) {
        if (!reader.take(line) || reader.isComplete())
            break;
    }
    if (!reader.isComplete())
        return "none\n";
    const FtpReply &reply = reader.reply();
    return QByteArray::number(reply.code) + '\t' + QByteArray::number(extendedPassivePort(reply).value_or(0)) + '\t'
        + QByteArray::number(passivePort(reply).value_or(0)) + '\t' + quotedFolder(reply).value_or(QByteArray()) + '\n';
}

/// The character set that a page declares, then its text.
QByteArray printWebPage(const QByteArray &input)
{
    return declaredCharset(input).toUtf8() + '\n' + fetchedText({input, {}}).toUtf8();
}

constexpr char16_t html[] = u"HTML";
constexpr char16_t xml[] = u"XML";
constexpr char16_t cpp[] = u"C/C++";
constexpr char16_t java[] = u"Java";
constexpr char16_t basic[] = u"Basic";
constexpr char16_t pascal[] = u"Pascal";
constexpr char16_t perl[] = u"Perl";

constexpr Parser table[] = {
    {"ini", printProfile},
    {"smt", printSavedTags},
    {"textfile", printTextFile},
    {"servermarks", printServerMarks},
    {"designertext", printDesignerText},
    {"tags", printTags},
    {"customtab", printCustomTab},
    {"sot", printSotTree},
    {"syntax-html", printStyles<html>},
    {"syntax-xml", printStyles<xml>},
    {"syntax-c/c++", printStyles<cpp>},
    {"syntax-java", printStyles<java>},
    {"syntax-basic", printStyles<basic>},
    {"syntax-pascal", printStyles<pascal>},
    {"syntax-perl", printStyles<perl>},
    {"outline", printOutline},
    {"compact", printFormatted<Compact>},
    {"simple", printFormatted<Simple>},
    {"hierarchical", printHierarchical},
    {"imagelinks", printImageLinks},
    {"linktargets", printLinkTargets},
    {"fonttags", printWithoutFontTags},
    {"listing", printList},
    {"listing-mlsd", printMlsd},
    {"ftpreply", printReply},
    {"webpage", printWebPage},
};

} // namespace

std::span<const Parser> parsers()
{
    return table;
}

} // namespace zephira
