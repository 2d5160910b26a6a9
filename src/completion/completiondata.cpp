// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/completiondata.h"

#include "completion/oldtags.h"

#include <algorithm>

namespace zephira {

namespace {

/// The text up to the next divider, which is taken from the front of `rest`.
QByteArrayView takeField(QByteArrayView &rest, char divider)
{
    const qsizetype end = rest.indexOf(divider);
    const QByteArrayView field = end < 0 ? rest : rest.first(end);
    rest = end < 0 ? QByteArrayView() : rest.sliced(end + 1);
    return field;
}

constexpr bool isChild(char kind)
{
    return kind == 'A' || kind == 'V';
}

/// Attributes belong to tags, values to sets and properties.
constexpr bool belongsTo(char kind, char owner)
{
    return kind == 'A' ? owner == 'T' : owner == 'S' || owner == 'P';
}

} // namespace

CompletionData::CompletionData(QByteArray file) : m_file(std::move(file))
{
    constexpr std::size_t expected = 4500;
    m_rows.reserve(expected);
    read(m_file);
    m_firstOld = m_rows.size();
    read(oldTagLines());
}

void CompletionData::read(QByteArrayView lines)
{
    // The attributes before the first tag have no owner.
    std::size_t owner = m_rows.size();
    bool hasOwner = false;
    while (!lines.isEmpty()) {
        QByteArrayView line = takeField(lines, '\n');
        const QByteArrayView kind = takeField(line, '\t');
        if (kind.size() != 1 || !QByteArrayView("ATSVP@:").contains(kind.front()) || line.isEmpty())
            continue;
        DataRow row{.kind = kind.front()};
        for (QByteArrayView *field : {&row.name, &row.flags, &row.since, &row.text})
            *field = takeField(line, '\t');
        if (!isChild(row.kind)) {
            owner = m_rows.size();
            hasOwner = true;
        } else if (hasOwner) {
            if (!belongsTo(row.kind, m_rows[owner].kind))
                continue;
            ++m_rows[owner].children;
        } else if (row.kind == 'V') {
            continue;
        }
        m_rows.push_back(row);
    }
}

std::vector<const DataRow *> CompletionData::rows(char kind) const
{
    std::vector<const DataRow *> found;
    for (const DataRow &row : m_rows) {
        if (row.kind == kind)
            found.push_back(&row);
    }
    return found;
}

std::vector<const DataRow *> CompletionData::attributesOf(QByteArrayView tag) const
{
    std::vector<const DataRow *> found;
    const auto add = [&](const DataRow &row) {
        if (row.kind == 'A'
            && std::ranges::find(found, row.name, [](const DataRow *each) { return each->name; }) == found.end())
            found.push_back(&row);
    };
    for (const DataRow &row : m_rows) {
        if (row.kind == 'T' && row.name == tag)
            std::ranges::for_each(childrenOf(row), add);
    }
    for (const DataRow &row : m_rows) {
        if (row.kind != 'A')
            break;
        add(row);
    }
    return found;
}

std::span<const DataRow> CompletionData::valuesOfAttribute(QByteArrayView tag, QByteArrayView attribute) const
{
    const std::vector<const DataRow *> attributes = attributesOf(tag);
    const auto found = std::ranges::find(attributes, attribute, [](const DataRow *row) { return row->name; });
    if (found == attributes.end() || (*found)->flags.isEmpty())
        return {};
    const DataRow *set = find('S', (*found)->flags);
    return set ? childrenOf(*set) : std::span<const DataRow>();
}

std::span<const DataRow> CompletionData::valuesOfProperty(QByteArrayView property) const
{
    const DataRow *row = find('P', property);
    return row ? childrenOf(*row) : std::span<const DataRow>();
}

const DataRow *CompletionData::find(char kind, QByteArrayView name) const
{
    const auto row =
        std::ranges::find_if(m_rows, [&](const DataRow &each) { return each.kind == kind && each.name == name; });
    return row == m_rows.end() ? nullptr : &*row;
}

bool CompletionData::isOld(const DataRow &row) const
{
    return &row >= m_rows.data() + m_firstOld;
}

} // namespace zephira
