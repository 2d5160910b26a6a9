// SPDX-License-Identifier: GPL-3.0-or-later
#include "problems/pagecheck.h"

#include "completion/completiontext.h"
#include "problems/balance.h"
#include "problems/labels.h"
#include "problems/markupreader.h"
#include "problems/stylecheck.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <optional>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// How often it is asked whether the result is still wanted, in tags.
constexpr int watchStep = 512;

struct LinkAttribute {
    QByteArrayView tag;
    QByteArrayView attribute;
};

// clang-format off: a row a line
constexpr LinkAttribute linkAttributes[] = {
    {"a", "href"},        {"area", "href"},     {"audio", "src"},  {"bgsound", "src"},  {"body", "background"},
    {"embed", "src"},     {"frame", "src"},     {"iframe", "src"}, {"img", "src"},      {"input", "src"},
    {"link", "href"},     {"object", "data"},   {"script", "src"}, {"source", "src"},   {"table", "background"},
    {"td", "background"}, {"th", "background"}, {"track", "src"},  {"video", "poster"}, {"video", "src"},
};
// clang-format on

/// Links that name a page's address and not something to be loaded.
constexpr std::array<QByteArrayView, 5> addressRelations{"canonical", "dns-prefetch", "pingback", "preconnect",
                                                         "shortlink"};

QString shown(QByteArrayView bytes)
{
    constexpr qsizetype longest = 80;
    const QString text = QString::fromUtf8(bytes.first(std::min(bytes.size(), longest * 4)));
    return text.size() > longest ? text.left(longest) + u'\u2026' : text;
}

/// Elements that follow rules of their own, or that are younger than Tidy: it doesn't see what is in them.
bool isOpaque(QByteArrayView key)
{
    constexpr std::array<QByteArrayView, 11> names{"fencedframe", "geolocation", "hgroup",  "math",
                                                   "permission",  "portal",      "search",  "selectedcontent",
                                                   "slot",        "svg",         "template"};
    return key.contains('-') || std::ranges::find(names, key) != names.end();
}

bool isForeign(QByteArrayView key)
{
    return key == "svg" || key == "math";
}

/// Whether an attribute is of a kind that anybody may add, or that a script library reads.
bool isFreeAttribute(QByteArrayView name)
{
    constexpr QByteArrayView marks("-:.@#[](){}*$_");
    return standsAt(name, 0, "on") || std::ranges::any_of(name, [&](char c) { return marks.contains(c); });
}

class PageReader
{
public:
    PageReader(const CoveredText &page, const KnownNames &names, ProblemSink &sink, const TidyWatch &watch)
        : m_page(page), m_names(names), m_sink(sink), m_watch(watch), m_reader(page.text), m_balance(m_unbalanced)
    {}

    PageFacts read(const LinkPlaces &places);

private:
    void passBlocks(qsizetype until);
    void take(const MarkupTag &tag);
    bool tellBroken(const MarkupTag &tag);
    void checkNames(const MarkupTag &tag);
    void checkAttribute(const MarkupTag &tag, const MarkupAttribute &attribute);
    void checkTexts(const MarkupTag &tag);
    void noteId(const MarkupTag &tag);
    void noteLinks(const MarkupTag &tag);
    void checkLinks(const LinkPlaces &places);
    void checkAnchors();
    void checkHead(const MarkupTag &tag);
    void finish(const LinkPlaces &places);
    void followOpaque(const MarkupTag &tag);
    void leaveOut(const MarkupTag &tag) { m_facts.leftOut.push_back(tag.start); }
    void blank(qsizetype from, qsizetype to);
    void coverValues(const MarkupTag &tag);
    qsizetype at(QByteArrayView part) const { return m_reader.positionOf(part); }
    void warn(QByteArrayView part, const QString &text) { m_sink.warning(at(part), at(part) + part.size(), text); }
    void fail(QByteArrayView part, const QString &text) { m_sink.error(at(part), at(part) + part.size(), text); }

    const CoveredText &m_page;
    const KnownNames &m_names;
    ProblemSink &m_sink;
    const TidyWatch &m_watch;
    MarkupReader m_reader;
    ProblemSink m_unbalanced;
    Balance m_balance;
    PageFacts m_facts;
    Labels m_labels;

    std::size_t m_block = 0;
    qsizetype m_rawEnd = 0;
    int m_programs = 0;
    bool m_isWhole = false;
    bool m_hasBase = false;
    bool m_hasDynamicIds = false;
    int m_templates = 0;

    /// The outermost opaque element that is open, and how many of that name are within one another.
    QByteArray m_opaque;
    int m_opaqueDepth = 0;
    qsizetype m_opaqueStart = 0;

    /// The head while it is open.
    std::optional<qsizetype> m_head;
    bool m_hasTitle = false;

    struct Id {
        int programs = 0;
    };
    QHash<QByteArrayView, Id> m_ids;
    QSet<QByteArrayView> m_anchorNames;
    std::vector<QByteArrayView> m_links;
};

/// Takes note of the server code before a place.
void PageReader::passBlocks(qsizetype until)
{
    for (; m_block < m_page.blocks.size() && m_page.blocks[m_block].start < until; ++m_block) {
        const ServerBlock &block = m_page.blocks[m_block];
        if (block.start < m_rawEnd)
            continue;
        m_facts.isMadeByServer = true;
        m_programs += block.isProgram ? 1 : 0;
        m_balance.interrupt();
        m_hasTitle = m_hasTitle || m_head;
    }
}

void PageReader::blank(qsizetype from, qsizetype to)
{
    char *const bytes = m_facts.structure.data();
    std::replace_if(
        bytes + from, bytes + to, [](char c) { return c != '\n' && c != '\r'; }, ' ');
}

/// What a server puts into a value is some text.
void PageReader::coverValues(const MarkupTag &tag)
{
    for (const MarkupAttribute &attribute : tag.attributes) {
        if (!isDynamic(attribute.value))
            continue;
        char *const start = m_facts.structure.data() + at(attribute.value);
        std::replace(start, start + attribute.value.size(), CoveredText::cover, 'x');
    }
}

void PageReader::followOpaque(const MarkupTag &tag)
{
    if (m_opaqueDepth == 0) {
        if (!isOpaque(tag.key))
            return;
        blank(tag.start, tag.end);
        m_opaque = tag.key;
        m_opaqueStart = tag.end;
        m_opaqueDepth = tag.isEnd || tag.endsItself ? 0 : 1;
        return;
    }
    if (tag.key != m_opaque || tag.endsItself)
        return;
    m_opaqueDepth += tag.isEnd ? -1 : 1;
    if (m_opaqueDepth == 0)
        blank(m_opaqueStart, tag.end);
}

/// Tells a tag that isn't complete. Its attributes may be anything.
bool PageReader::tellBroken(const MarkupTag &tag)
{
    const auto isMisplaced = [](const MarkupAttribute &each) {
        return each.name.contains('"') || each.name.contains('\'') || each.name.contains('<');
    };
    const auto misplaced = std::ranges::find_if(tag.attributes, isMisplaced);
    if (!tag.isOpen && (misplaced == tag.attributes.end() || tag.isDynamic))
        return false;
    const bool endsInValue =
        tag.isOpen && !tag.attributes.empty() && tag.attributes.back().quote && tag.end == m_page.text.size();
    if (misplaced != tag.attributes.end() && misplaced != tag.attributes.begin() && (misplaced - 1)->quote) {
        const qsizetype place = at((misplaced - 1)->value) - 1;
        m_sink.error(place, place + 1,
                     QCoreApplication::translate("Problems", "A quotation mark seems to be missing behind this one."));
    } else if (misplaced != tag.attributes.end()) {
        fail(misplaced->name, QCoreApplication::translate("Problems", "This quotation mark doesn't belong here."));
    } else if (endsInValue) {
        const qsizetype place = at(tag.attributes.back().value) - 1;
        m_sink.error(place, place + 1, QCoreApplication::translate("Problems", "This quotation mark has no partner."));
    } else if (!tag.isDynamic) {
        m_sink.error(tag.start, at(tag.name) + tag.name.size(),
                     QCoreApplication::translate("Problems", "The tag has no > at its end."));
    }
    return true;
}

void PageReader::checkAttribute(const MarkupTag &tag, const MarkupAttribute &attribute)
{
    const QByteArray name = lowered(attribute.name);
    if (name == "style" && attribute.hasValue)
        checkDeclarations({attribute.value, at(attribute.value)}, m_names, m_sink);
    const bool isJudged = m_names.hasTags() && m_names.isTag(tag.key) && !isDynamic(name) && !isFreeAttribute(name);
    if (isJudged && !m_names.isAttribute(tag.key, name))
        warn(attribute.name,
             QCoreApplication::translate("Problems", "<%1> has no attribute %2.")
                 .arg(shown(tag.key), shown(attribute.name)));
}

void PageReader::checkNames(const MarkupTag &tag)
{
    const bool isFree = tag.key.contains('-') || tag.key.contains(':') || isForeign(tag.key) || isDynamic(tag.key);
    if (m_names.hasTags() && !isFree && !m_names.isTag(tag.key)) {
        if (!tag.isEnd)
            m_sink.error(tag.start, tag.start + 1 + tag.name.size(),
                         QCoreApplication::translate("Problems", "The tag <%1> isn't known.").arg(shown(tag.name)));
        leaveOut(tag);
        return;
    }
    if (tag.isEnd || isFree || tag.attribute("runat"))
        return;
    QSet<QByteArray> seen;
    for (const MarkupAttribute &attribute : tag.attributes) {
        checkAttribute(tag, attribute);
        if (tag.attributes.size() < 2 || tag.isDynamic)
            continue;
        const QByteArray name = lowered(attribute.name);
        if (seen.contains(name))
            fail(attribute.name,
                 QCoreApplication::translate("Problems", "The attribute %1 stands here twice.")
                     .arg(shown(attribute.name)));
        seen.insert(name);
    }
}

/// What is missing for those who don't see the page.
void PageReader::checkTexts(const MarkupTag &tag)
{
    if (tag.isEnd || tag.isDynamic)
        return;
    const QString name = shown(tag.name);
    const qsizetype nameEnd = tag.start + 1 + tag.name.size();
    if (lacksAlternative(tag))
        m_sink.warning(
            tag.start, nameEnd,
            QCoreApplication::translate("Problems", "<%1> has no alt: a text in place of the picture.").arg(name));
    const bool lacksLanguage = tag.key == "html" && !hasAttribute(tag, "lang") && !hasAttribute(tag, "xml:lang");
    if (lacksLanguage)
        m_sink.warning(
            tag.start, nameEnd,
            QCoreApplication::translate("Problems", "<%1> has no lang: the language of the page.").arg(name));
}

void PageReader::noteId(const MarkupTag &tag)
{
    if (tag.isEnd || m_templates > 0)
        return;
    if (const MarkupAttribute *name = tag.attribute("name"); name && tag.key == "a")
        m_anchorNames.insert(name->value);
    const MarkupAttribute *id = tag.attribute("id");
    m_hasDynamicIds = m_hasDynamicIds || tag.isDynamic || (id && isDynamic(id->value));
    if (!id || id->value.isEmpty() || isDynamic(id->value) || tag.isDynamic)
        return;
    const auto known = m_ids.constFind(id->value);
    // A program of the server may leave one of them out.
    if (known != m_ids.cend() && known->programs == m_programs)
        fail(id->value,
             QCoreApplication::translate("Problems", "The id %1 stands in this page before.").arg(shown(id->value)));
    m_ids.insert(id->value, {m_programs});
}

void PageReader::noteLinks(const MarkupTag &tag)
{
    m_hasBase = m_hasBase || tag.key == "base";
    if (tag.isEnd)
        return;
    if (tag.key == "link") {
        const MarkupAttribute *relation = tag.attribute("rel");
        const QByteArray value = relation ? lowered(relation->value) : QByteArray();
        if (std::ranges::find(addressRelations, QByteArrayView(value)) != addressRelations.end())
            return;
    }
    for (const LinkAttribute &row : linkAttributes) {
        const MarkupAttribute *attribute = row.tag == tag.key ? tag.attribute(row.attribute) : nullptr;
        if (attribute && !attribute->value.isEmpty() && !isDynamic(attribute->value))
            m_links.push_back(attribute->value);
    }
}

void PageReader::checkHead(const MarkupTag &tag)
{
    if (tag.key == "title" && !tag.isEnd && m_head)
        m_hasTitle = m_hasTitle || !tag.rawText.trimmed().isEmpty();
    if (tag.key == "head" && !tag.isEnd) {
        m_head = tag.start;
        m_hasTitle = false;
    }
    const bool ends = (tag.key == "head" && tag.isEnd) || tag.key == "body" || tag.key == "frameset";
    if (!ends || !m_head)
        return;
    if (!m_hasTitle)
        m_sink.warning(*m_head, *m_head + qstrlen("<head"),
                       QCoreApplication::translate("Problems", "The page has no title."));
    m_head.reset();
}

void PageReader::take(const MarkupTag &tag)
{
    passBlocks(tag.start);
    // Those in the tag itself don't change what is open.
    while (m_block < m_page.blocks.size() && m_page.blocks[m_block].start < tag.end)
        ++m_block;
    m_isWhole = m_isWhole || tag.key == "html" || tag.key == "head" || tag.key == "body";
    coverValues(tag);
    if (tag.isDynamic)
        leaveOut(tag);
    if (tellBroken(tag)) {
        m_facts.isBroken = true;
        m_balance.interrupt();
        return;
    }
    noteId(tag);
    const bool isInForeign = m_opaqueDepth > 0 && isForeign(m_opaque);
    followOpaque(tag);
    if (isInForeign && m_opaqueDepth > 0)
        return;
    m_balance.take(tag);
    if (tag.key == "template")
        m_templates = std::max(0, m_templates + (tag.isEnd ? -1 : 1));
    checkNames(tag);
    checkTexts(tag);
    checkHead(tag);
    noteLinks(tag);
    m_labels.take(tag, m_page.text);
    if (tag.isEnd || tag.rawText.isEmpty())
        return;
    const qsizetype start = at(tag.rawText);
    m_rawEnd = start + tag.rawText.size();
    const MarkupAttribute *type = tag.attribute("type");
    const bool isStyle = tag.key == "style" && (!type || type->value.isEmpty() || lowered(type->value) == "text/css");
    if (isStyle)
        checkStyleSheet({tag.rawText, start}, m_names, m_sink, m_watch);
    blank(start, m_rawEnd);
}

void PageReader::checkLinks(const LinkPlaces &places)
{
    PageLinks links(places, !m_isWhole);
    int count = 0;
    for (const QByteArrayView link : m_links) {
        if (++count % watchStep == 0 && m_watch.isCancelled())
            return;
        if (links.isBroken(link))
            fail(link, QCoreApplication::translate("Problems", "The file %1 doesn't exist.").arg(shown(link)));
    }
}

void PageReader::checkAnchors()
{
    if (m_facts.isMadeByServer || m_hasDynamicIds)
        return;
    for (const QByteArrayView link : m_links) {
        if (link.trimmed().size() < 2 || !link.trimmed().startsWith('#'))
            continue;
        const QByteArray written = plainAddress(link).sliced(1);
        const QByteArray name = QByteArray::fromPercentEncoding(written);
        const bool isOfScript = name.startsWith('!') || name.startsWith('/') || name.startsWith(":~:");
        const bool isThere = m_ids.contains(name) || m_ids.contains(written) || m_anchorNames.contains(name)
            || m_anchorNames.contains(written) || name.compare("top", Qt::CaseInsensitive) == 0;
        if (!isOfScript && !isThere)
            fail(link, QCoreApplication::translate("Problems", "Nothing in this page has the id %1.").arg(shown(name)));
    }
}

void PageReader::finish(const LinkPlaces &places)
{
    passBlocks(m_page.text.size() + 1);
    if (m_opaqueDepth > 0)
        blank(m_opaqueStart, m_page.text.size());
    if (m_reader.openComment() >= 0) {
        const qsizetype start = m_reader.openComment();
        m_sink.error(start, start + 4, QCoreApplication::translate("Problems", "The comment has no --> at its end."));
        m_balance.interrupt();
    }
    m_balance.finish();
    m_labels.tell(m_facts.isMadeByServer, m_sink);
    if (!m_hasBase) {
        checkLinks(places);
        checkAnchors();
    }
    std::replace(m_facts.structure.begin(), m_facts.structure.end(), CoveredText::cover, ' ');
    // Each line end becomes a line feed at its end.
    char *const bytes = m_facts.structure.data();
    const qsizetype size = m_facts.structure.size();
    for (qsizetype i = 0; i < size; ++i) {
        if (bytes[i] == '\r')
            bytes[i] = i + 1 < size && bytes[i + 1] == '\n' ? ' ' : '\n';
    }
}

PageFacts PageReader::read(const LinkPlaces &places)
{
    m_facts.structure = QByteArray(m_page.text.constData(), m_page.text.size());
    MarkupTag tag;
    for (int count = 1; m_reader.next(tag); ++count) {
        if (count % watchStep == 0 && m_watch.isCancelled())
            return {};
        take(tag);
    }
    finish(places);
    m_facts.unbalanced = m_unbalanced.taken();
    return std::move(m_facts);
}

} // namespace

PageFacts checkPage(const CoveredText &page, const KnownNames &names, const LinkPlaces &places, ProblemSink &sink,
                    const TidyWatch &watch)
{
    return PageReader(page, names, sink, watch).read(places);
}

} // namespace zephira
