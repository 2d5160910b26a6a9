// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/proposals.h"

#include "completion/completiontext.h"
#include "completion/markupplace.h"
#include "core/entitynames.h"

#include <QCoreApplication>
#include <QSet>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr int usual = 50;
constexpr int rare = 10;
constexpr int obsolete = 0;

/// Attributes that most tags have, and that are typed most.
constexpr std::array<QByteArrayView, 8> frequentAttributes{"class", "id",  "style", "href",
                                                           "src",   "alt", "title", "type"};
/// The values that each property can have.
constexpr std::array<QByteArrayView, 6> commonValues{"inherit", "initial",      "unset",
                                                     "revert",  "revert-layer", "!important"};
constexpr std::array<QStringView, 2> commonColours{u"currentcolor", u"transparent"};

class Collector
{
public:
    Collector(const CompletionPlace &place, PlaceLanguage language, const ProposalSources &sources)
        : m_place(place), m_isXml(language == PlaceLanguage::Xml), m_sources(sources)
    {}

    QList<Proposal> collect()
    {
        using enum PlaceKind;
        switch (m_place.kind) {
        case None:
            break;
        case Words:
            addNames(m_sources.words ? m_sources.words() : QStringList());
            sort();
            break;
        case Tag:
            addTags();
            sort();
            break;
        case ClosingTag:
            for (const QByteArray &name : m_place.open)
                add({.text = QString::fromUtf8(name)});
            break;
        case Attribute:
            addAttributes();
            sort();
            // What is typed most comes first, and events and the like last.
            std::ranges::stable_sort(m_list, std::ranges::greater(), &Proposal::weight);
            break;
        case Value:
            addValues();
            break;
        case File:
            addNames(m_sources.files ? m_sources.files(m_place.folder) : QStringList());
            break;
        case Entity:
            addEntities();
            break;
        case Id:
            addNames(names().ids);
            break;
        case Class:
            addNames(names().classes);
            break;
        case Property:
            addRows('P');
            sort();
            break;
        case PropertyValue:
            addPropertyValues();
            break;
        case AtRule:
            addRows('@');
            sort();
            break;
        case Pseudo:
            addRows(':');
            sort();
            break;
        case Selector:
            addTags();
            sort();
            break;
        }
        return std::move(m_list);
    }

private:
    void add(Proposal proposal)
    {
        if (!proposal.text.isEmpty() && !m_seen.contains(proposal.text)) {
            m_seen.insert(proposal.text);
            m_list.append(std::move(proposal));
        }
    }
    void sort()
    {
        std::ranges::stable_sort(m_list, [](const Proposal &a, const Proposal &b) {
            return std::pair(a.weight == obsolete, QStringView(a.text))
                < std::pair(b.weight == obsolete, QStringView(b.text));
        });
    }
    DocumentNames names() const { return m_sources.names ? m_sources.names() : DocumentNames(); }
    void addNames(const QStringList &names)
    {
        for (const QString &name : names)
            add({.text = name, .weight = usual});
    }
    void addNames(const QSet<QByteArray> &names)
    {
        QStringList sorted;
        for (const QByteArray &name : names) {
            if (!m_place.taken.contains(name))
                sorted.append(QString::fromUtf8(name));
        }
        sorted.sort(Qt::CaseInsensitive);
        addNames(sorted);
    }
    void addRow(const DataRow &row)
    {
        const bool isOld = m_sources.data.isOld(row) || (row.kind == 'P' && row.flags.contains('o'));
        Proposal proposal{.text = QString::fromUtf8(row.name), .row = &row, .weight = usual};
        if (row.kind == 'P')
            proposal.weight = std::max(1, row.flags.toByteArray().replace("c", "").replace("o", "").toInt());
        const bool isPrefixed = row.name.startsWith('-') || row.name.startsWith("@-") || row.name.startsWith(":-")
            || row.name.startsWith("::-");
        if (isOld || isPrefixed) {
            proposal.weight = obsolete;
            proposal.note = isOld ? u"obsolete"_s : QString();
        }
        add(std::move(proposal));
    }
    void addRows(char kind)
    {
        const std::vector<const DataRow *> rows = m_sources.data.rows(kind);
        for (const DataRow *row : rows)
            addRow(*row);
    }
    void addTags()
    {
        if (m_isXml) {
            addNames(names().tags);
            return;
        }
        const std::vector<const DataRow *> rows = m_sources.data.rows('T');
        for (const DataRow *row : rows) {
            // Of a tag that HTML still has, the table of old tags has only attributes.
            if (!m_sources.data.isOld(*row) || !row->text.isEmpty())
                addRow(*row);
        }
    }
    void addAttributes()
    {
        if (m_isXml) {
            addNames(names().attributes);
            return;
        }
        const std::vector<const DataRow *> rows = m_sources.data.attributesOf(m_place.tag);
        for (const DataRow *row : rows) {
            if (m_place.taken.contains(row->name))
                continue;
            addRow(*row);
            Proposal &last = m_list.last();
            if (last.row != row)
                continue;
            if (std::ranges::find(frequentAttributes, row->name) != frequentAttributes.end())
                ++last.weight;
            else if (row->name.startsWith("on") || row->name.startsWith("aria-"))
                last.weight = std::min(last.weight, rare);
        }
    }
    void addValues()
    {
        const std::span<const DataRow> rows = m_sources.data.valuesOfAttribute(m_place.tag, m_place.attribute);
        for (const DataRow &row : rows) {
            if (!m_place.taken.contains(row.name))
                addRow(row);
        }
    }
    void addPropertyValues()
    {
        const std::span<const DataRow> rows = m_sources.data.valuesOfProperty(m_place.attribute);
        for (const DataRow &row : rows)
            addRow(row);
        const DataRow *property = m_sources.data.find('P', m_place.attribute);
        // Own properties may hold anything.
        if ((property && property->flags.contains('c')) || m_place.attribute.startsWith("--")) {
            for (const QStringView colour : commonColours)
                add({.text = colour.toString(), .weight = usual});
            for (const QString &colour : m_sources.colours)
                add({.text = colour, .note = u"■"_s, .weight = usual});
        }
        for (const QByteArrayView value : commonValues)
            add({.text = QString::fromLatin1(value), .weight = rare});
    }
    void addEntities()
    {
        for (const EntityName &entity : entityNames()) {
            const bool isBlank = entity.character == 0xa0 || QChar::isSpace(entity.character)
                || QChar::category(entity.character) == QChar::Other_Format;
            if (!m_isXml || isXmlEntity(entity.name))
                add({.text = entity.name.toString(),
                     .note = isBlank ? QString() : QString::fromUcs4(&entity.character, 1),
                     .weight = usual});
        }
        std::ranges::stable_sort(m_list, [](const Proposal &a, const Proposal &b) {
            return a.text.compare(b.text, Qt::CaseInsensitive) < 0;
        });
    }
    static bool isXmlEntity(QStringView name)
    {
        constexpr std::array<QStringView, 5> known{u"amp", u"lt", u"gt", u"quot", u"apos"};
        return std::ranges::find(known, name) != known.end();
    }

    const CompletionPlace &m_place;
    bool m_isXml;
    const ProposalSources &m_sources;
    QList<Proposal> m_list;
    QSet<QString> m_seen;
};

bool isUpperCase(QByteArrayView typed)
{
    return std::ranges::any_of(typed, isAsciiLetter)
        && std::ranges::none_of(typed, [](char c) { return c >= 'a' && c <= 'z'; });
}

/// The first byte behind the caret that isn't blank, or 0.
char nextByte(QByteArrayView behind)
{
    const auto *const next = std::ranges::find_if_not(behind, isBlankOrBreak);
    return next == behind.end() ? '\0' : *next;
}

/// The text as a part of an address.
QByteArray addressOf(const QString &name)
{
    // Letters beyond ASCII are written as they are, which every browser understands and every author can read.
    QByteArray address;
    const QByteArray utf8 = name.toUtf8();
    for (const char c : utf8) {
        if (static_cast<unsigned char>(c) <= ' ' || QByteArrayView("%#?\"'<>\\").contains(c))
            address += '%' + QByteArray(1, c).toHex().toUpper();
        else
            address += c;
    }
    return address;
}

} // namespace

QList<Proposal> proposals(const CompletionPlace &place, PlaceLanguage language, const ProposalSources &sources)
{
    return Collector(place, language, sources).collect();
}

ProposalText proposalText(const Proposal &proposal, const CompletionPlace &place, QByteArrayView typed,
                          QByteArrayView behind)
{
    using enum PlaceKind;
    QByteArray text = proposal.text.toUtf8();
    const char next = behind.isEmpty() ? '\0' : behind.front();
    if ((place.kind == Tag || place.kind == Attribute) && isUpperCase(typed))
        text = text.toUpper();
    const auto plain = [](const QByteArray &whole, bool goesOn = false) {
        return ProposalText{whole, whole.size(), goesOn};
    };
    switch (place.kind) {
    case ClosingTag:
        return plain(nextByte(behind) == '>' ? text : text + '>');
    case Attribute: {
        const bool hasNoValue = proposal.row && proposal.row->flags == "v";
        if (hasNoValue || nextByte(behind) == '=')
            return plain(text);
        return {text + "=\"\"", text.size() + 2, true};
    }
    case Value:
    case Class:
    case Id:
        if (!place.attribute.isEmpty() && !place.quoted)
            return plain('"' + text + '"');
        return plain(text);
    case File:
        text = addressOf(proposal.text);
        // Quotes would stand between a folder and what is in it.
        return plain(text, text.endsWith('/'));
    case Entity:
        return plain(next == ';' ? text : text + ';');
    case Property:
        return nextByte(behind) == ':' ? plain(text) : plain(text + ": ", true);
    default:
        return plain(text);
    }
}

QString sinceText(QByteArrayView since)
{
    constexpr std::array<std::pair<QByteArrayView, QStringView>, 4> browsers{
        {{"FF", u"Firefox"}, {"C", u"Chrome"}, {"E", u"Edge"}, {"S", u"Safari"}}};
    QString all;
    QStringList each;
    const QByteArrayList words = completeWords(since.toByteArray() + ' ');
    for (const QByteArray &word : words) {
        if (isAsciiDigit(word.front())) {
            all = QCoreApplication::translate("Completion", "In all browsers since %1").arg(QString::fromLatin1(word));
            continue;
        }
        const auto browser =
            std::ranges::find_if(browsers, [&](const auto &known) { return word.startsWith(known.first); });
        if (browser != browsers.end())
            each.append(browser->second.toString() + u' ' + QString::fromLatin1(word.sliced(browser->first.size())));
    }
    each.sort();
    const QString versions = each.join(u", ");
    if (all.isEmpty() || versions.isEmpty())
        return all + versions;
    return all + u": "_s + versions;
}

} // namespace zephira
