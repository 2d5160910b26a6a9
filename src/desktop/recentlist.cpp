// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/recentlist.h"

#include <QList>
#include <QRegularExpression>
#include <QStringDecoder>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>
#include <deque>
#include <optional>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

const QString bookmarkSpace = u"http://www.freedesktop.org/standards/desktop-bookmarks"_s;
const QString mimeSpace = u"http://www.freedesktop.org/standards/shared-mime-info"_s;
const QString desktopOwner = u"http://freedesktop.org"_s;
const QByteArray byteOrderMark = "\xEF\xBB\xBF";

/// How a list calls the two namespaces.
struct Prefixes {
    QString bookmark = u"bookmark"_s;
    QString mime = u"mime"_s;
    bool declared = false;
};

/// An entry of the list, with its place in the text.
struct Bookmark {
    /// Where the blanks before the entry begin.
    qsizetype before = 0;
    qsizetype start = 0;
    qsizetype end = 0;
    QString address;
    QDateTime modified;
    QStringList programs;
};

struct List {
    Prefixes prefixes;
    QList<Bookmark> bookmarks;
    /// Where the root's end tag begins; the end of its only tag if it is empty.
    qsizetype end = 0;
    bool isEmptyTag = false;
};

QString attribute(const QXmlStreamAttributes &attributes, const QString &name)
{
    return attributes.value(name).toString();
}

Prefixes prefixesOf(const QXmlStreamAttributes &root)
{
    Prefixes prefixes;
    QString bookmark;
    QString mime;
    for (const QXmlStreamAttribute &each : root) {
        const QString name = each.qualifiedName().toString();
        if (!name.startsWith(u"xmlns:"))
            continue;
        if (each.value() == bookmarkSpace)
            bookmark = name.sliced(6);
        else if (each.value() == mimeSpace)
            mime = name.sliced(6);
    }
    if (!bookmark.isEmpty() && !mime.isEmpty())
        prefixes = {bookmark, mime, true};
    return prefixes;
}

/// A piece of markup in a text: a tag, a comment, a section, an instruction.
struct Piece {
    qsizetype start = 0;
    qsizetype end = 0;
};

/// The next piece from a position on, in a text that is well-formed; empty at the end of the text.
Piece nextPiece(QStringView text, qsizetype from)
{
    const qsizetype start = text.indexOf(u'<', from);
    if (start < 0)
        return {text.size(), text.size()};
    const QStringView rest = text.sliced(start);
    const auto upTo = [&](QStringView mark) {
        const qsizetype end = text.indexOf(mark, start);
        return Piece{start, end < 0 ? text.size() : end + mark.size()};
    };
    if (rest.startsWith(u"<!--"))
        return upTo(u"-->");
    if (rest.startsWith(u"<![CDATA["))
        return upTo(u"]]>");
    if (rest.startsWith(u"<?"))
        return upTo(u"?>");
    // A value in quotes may contain the sign that ends a tag.
    QChar quote;
    for (qsizetype i = start; i < text.size(); ++i) {
        if (text[i] == quote)
            quote = QChar();
        else if (quote.isNull() && (text[i] == u'"' || text[i] == u'\''))
            quote = text[i];
        else if (quote.isNull() && text[i] == u'>')
            return {start, i + 1};
    }
    return {start, text.size()};
}

/// Reads what the entry says of itself; false if it can't be read.
bool readEntry(Bookmark &bookmark, const QString &entry, const Prefixes &prefixes)
{
    QXmlStreamReader xml(entry);
    xml.setNamespaceProcessing(false);
    if (!xml.readNextStartElement())
        return false;
    bookmark.address = attribute(xml.attributes(), u"href"_s);
    bookmark.modified = QDateTime::fromString(attribute(xml.attributes(), u"modified"_s), Qt::ISODateWithMs);
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement
            && xml.qualifiedName() == prefixes.bookmark + u":application"_s)
            bookmark.programs.append(attribute(xml.attributes(), u"name"_s));
    }
    return !xml.hasError();
}

/// The attributes of the root; nothing if the text isn't a list.
std::optional<QXmlStreamAttributes> rootOf(const QString &text)
{
    std::optional<QXmlStreamAttributes> root;
    QXmlStreamReader xml(text);
    xml.setNamespaceProcessing(false); // Prefixes are wanted as they are written.
    while (!xml.atEnd()) {
        const QXmlStreamReader::TokenType token = xml.readNext();
        // What a document type declares could be anything.
        if (token == QXmlStreamReader::EntityReference || (token == QXmlStreamReader::DTD && xml.text().contains(u'[')))
            return {};
        if (token != QXmlStreamReader::StartElement || root)
            continue;
        if (xml.qualifiedName() != u"xbel"_s)
            return {};
        root = xml.attributes();
    }
    return xml.hasError() ? std::nullopt : root;
}

/// The entries directly below the root; those in folders of bookmarks are left alone. Nothing if the text isn't a list.
std::optional<List> listOf(const QString &text)
{
    static const QRegularExpression bookmark(uR"(^<bookmark[\s/>])"_s);
    const std::optional<QXmlStreamAttributes> root = rootOf(text);
    if (!root)
        return {};
    List list;
    list.prefixes = prefixesOf(*root);
    int depth = 0;
    qsizetype start = 0;
    for (Piece piece = nextPiece(text, 0); piece.start < text.size(); piece = nextPiece(text, piece.end)) {
        const QStringView tag = QStringView(text).sliced(piece.start, piece.end - piece.start);
        if (tag.startsWith(u"<!") || tag.startsWith(u"<?"))
            continue;
        const bool isEmpty = tag.endsWith(u"/>");
        const bool begins = !tag.startsWith(u"</");
        const bool ends = isEmpty || !begins;
        if (!begins)
            --depth;
        if (depth == 1 && begins)
            start = piece.start;
        const QString entry = depth == 1 && ends ? text.sliced(start, piece.end - start) : QString();
        if (bookmark.match(entry).hasMatch()) {
            qsizetype before = start;
            while (text[before - 1].isSpace())
                --before;
            list.bookmarks.append({before, start, piece.end, {}, {}, {}});
            if (!readEntry(list.bookmarks.last(), entry, list.prefixes))
                return {};
        }
        if (depth == 0 && ends) {
            list.isEmptyTag = isEmpty;
            list.end = isEmpty ? piece.end : piece.start;
        }
        if (!ends)
            ++depth;
    }
    return list;
}

/// An element of an entry, or what stands between two.
struct Node {
    QXmlStreamReader::TokenType kind = QXmlStreamReader::StartElement;
    /// The element's name, or the target of a processing instruction.
    QString name;
    QXmlStreamAttributes attributes;
    QString text;
    /// A deque, so that references to the others stay when one is added.
    std::deque<Node> children;
};

/// The element that has just begun.
Node elementOf(QXmlStreamReader &xml)
{
    Node element{QXmlStreamReader::StartElement, xml.qualifiedName().toString(), xml.attributes(), {}, {}};
    while (!xml.atEnd()) {
        const QXmlStreamReader::TokenType token = xml.readNext();
        if (token == QXmlStreamReader::EndElement)
            break;
        if (token == QXmlStreamReader::StartElement)
            element.children.push_back(elementOf(xml));
        else if (token == QXmlStreamReader::ProcessingInstruction)
            element.children.push_back({token,
                                        xml.processingInstructionTarget().toString(),
                                        {},
                                        xml.processingInstructionData().toString(),
                                        {}});
        else
            element.children.push_back({token, {}, {}, xml.text().toString(), {}});
    }
    return element;
}

void write(QXmlStreamWriter &xml, const Node &node)
{
    switch (node.kind) {
    case QXmlStreamReader::StartElement:
        xml.writeStartElement(node.name);
        xml.writeAttributes(node.attributes);
        for (const Node &child : node.children)
            write(xml, child);
        xml.writeEndElement();
        break;
    case QXmlStreamReader::Comment:
        xml.writeComment(node.text);
        break;
    case QXmlStreamReader::ProcessingInstruction:
        xml.writeProcessingInstruction(node.name, node.text);
        break;
    default:
        xml.writeCharacters(node.text);
    }
}

QString textOf(const Node &node)
{
    QString text;
    QXmlStreamWriter xml(&text);
    write(xml, node);
    return text;
}

void setAttribute(Node &element, const QString &name, const QString &value)
{
    for (QXmlStreamAttribute &each : element.attributes) {
        if (each.qualifiedName() == name) {
            each = QXmlStreamAttribute(name, value);
            return;
        }
    }
    element.attributes.append(name, value);
}

/// The child of that name, which is added if there is none. With an attribute it is the child that has this value of it.
Node &childOf(Node &parent, const QString &name, const QString &key = {}, const QString &value = {})
{
    for (Node &child : parent.children) {
        if (child.kind == QXmlStreamReader::StartElement && child.name == name
            && (key.isEmpty() || attribute(child.attributes, key) == value))
            return child;
    }
    Node child{QXmlStreamReader::StartElement, name, {}, {}, {}};
    if (!key.isEmpty())
        child.attributes.append(key, value);
    return parent.children.emplace_back(std::move(child));
}

void addUse(Node &bookmark, const RecentUse &use, const Prefixes &prefixes)
{
    const QString time = use.time.toUTC().toString(Qt::ISODateWithMs);
    setAttribute(bookmark, u"href"_s, use.address);
    if (attribute(bookmark.attributes, u"added"_s).isEmpty())
        setAttribute(bookmark, u"added"_s, time);
    setAttribute(bookmark, u"modified"_s, time);
    setAttribute(bookmark, u"visited"_s, time);
    if (!prefixes.declared) {
        setAttribute(bookmark, u"xmlns:"_s + prefixes.bookmark, bookmarkSpace);
        setAttribute(bookmark, u"xmlns:"_s + prefixes.mime, mimeSpace);
    }
    Node &metadata = childOf(childOf(bookmark, u"info"_s), u"metadata"_s, u"owner"_s, desktopOwner);
    Node &type = childOf(metadata, prefixes.mime + u":mime-type"_s);
    if (attribute(type.attributes, u"type"_s).isEmpty())
        setAttribute(type, u"type"_s, use.mimeType);
    Node &programs = childOf(metadata, prefixes.bookmark + u":applications"_s);
    Node &program = childOf(programs, prefixes.bookmark + u":application"_s, u"name"_s, use.program);
    const int count = attribute(program.attributes, u"count"_s).toInt();
    setAttribute(program, u"exec"_s, use.command);
    setAttribute(program, u"modified"_s, time);
    setAttribute(program, u"count"_s, QString::number(std::clamp(count, 0, 999'999) + 1));
}

QString emptyList()
{
    return u"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<xbel version=\"1.0\"\n"
           "      xmlns:bookmark=\""_s
        + bookmarkSpace + u"\"\n      xmlns:mime=\""_s + mimeSpace + u"\">\n</xbel>\n"_s;
}

/// The places of the oldest entries that are only the program's, when there are more than `maximum` of them with one
/// that is about to be added.
QList<const Bookmark *> superfluous(const List &list, const RecentUse &use, qsizetype maximum)
{
    QList<const Bookmark *> own;
    for (const Bookmark &each : list.bookmarks) {
        if (each.address != use.address && each.programs == QStringList(use.program))
            own.append(&each);
    }
    std::ranges::stable_sort(own, {}, [](const Bookmark *each) { return each->modified; });
    own.resize(std::max<qsizetype>(own.size() + 1 - maximum, 0));
    return own;
}

Error malformed()
{
    return {Error::Code::Malformed, u"The list of recent files can't be read: it is damaged."_s};
}

} // namespace

Result<QByteArray> withRecentUse(const QByteArray &list, const RecentUse &use, qsizetype maximum)
{
    const bool hasMark = list.startsWith(byteOrderMark);
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = decoder.decode(hasMark ? list.sliced(byteOrderMark.size()) : list);
    if (decoder.hasError())
        return malformed();
    if (list.isEmpty())
        text = emptyList();
    const std::optional<List> parsed = listOf(text);
    if (!parsed)
        return malformed();

    struct Change {
        qsizetype start;
        qsizetype end;
        QString text;
    };
    QList<Change> changes;
    const QList<const Bookmark *> old = superfluous(*parsed, use, maximum);
    for (const Bookmark *each : old)
        changes.append({each->before, each->end, {}});

    Node bookmark{QXmlStreamReader::StartElement, u"bookmark"_s, {}, {}, {}};
    const auto known = std::ranges::find(parsed->bookmarks, use.address, &Bookmark::address);
    const bool isKnown = known != parsed->bookmarks.end();
    if (isKnown) {
        const QString entry = text.sliced(known->start, known->end - known->start);
        QXmlStreamReader xml(entry);
        xml.setNamespaceProcessing(false);
        if (!xml.readNextStartElement())
            return malformed();
        bookmark = elementOf(xml);
        if (xml.hasError())
            return malformed();
    }
    addUse(bookmark, use, parsed->prefixes);
    const QString entry = textOf(bookmark);
    if (isKnown)
        changes.append({known->start, known->end, entry});
    else if (parsed->isEmptyTag)
        changes.append({parsed->end - 2, parsed->end, u">\n  "_s + entry + u"\n</xbel>"_s});
    else
        changes.append({parsed->end, parsed->end, u"  "_s + entry + u'\n'});

    std::ranges::sort(changes, std::ranges::greater(), &Change::start);
    for (const Change &change : std::as_const(changes))
        text.replace(change.start, change.end - change.start, change.text);
    // Everybody's list is at stake, so it is read once more.
    const std::optional<List> result = listOf(text);
    if (!result || result->bookmarks.size() != parsed->bookmarks.size() - old.size() + (isKnown ? 0 : 1))
        return malformed();
    return (hasMark ? byteOrderMark : QByteArray()) + text.toUtf8();
}

} // namespace zephira
