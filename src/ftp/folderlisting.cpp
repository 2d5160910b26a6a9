// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/folderlisting.h"

#include "ftp/finddata.h"
#include "ftp/listline.h"
#include "ftp/safenames.h"

#include <QSet>

namespace zephira {

namespace {

/// Calls `read` for each line and collects the entries that it returns.
template<typename Read>
std::vector<ListedEntry> readEntries(QByteArrayView listing, Read read)
{
    std::vector<ListedEntry> entries;
    QSet<QByteArray> names;
    while (!listing.isEmpty()) {
        const qsizetype end = listing.indexOf('\n');
        QByteArrayView line = end < 0 ? listing : listing.first(end);
        listing = end < 0 ? QByteArrayView() : listing.sliced(end + 1);
        if (line.endsWith('\r'))
            line.chop(1);
        std::optional<ListedEntry> entry = read(line);
        if (!entry || !isSafeRemoteName(QByteArrayView(entry->name)) || names.contains(entry->name))
            continue;
        names.insert(entry->name);
        entries.push_back(std::move(*entry));
    }
    return entries;
}

/// The parts of "20010305090700" or "20010305090700.123".
quint64 mlsdTime(QByteArrayView text)
{
    constexpr qsizetype length = 14;
    if (text.size() < length)
        return 0;
    const auto number = [&](qsizetype at, qsizetype digits) { return text.sliced(at, digits).toInt(); };
    return systemTimeToFileTime({number(0, 4), number(4, 2), number(6, 2), number(8, 2), number(10, 2), number(12, 2)})
        .value_or(0);
}

/// Compares without regard to case, as is required for all facts.
bool isWord(QByteArrayView text, QByteArrayView word)
{
    return text.compare(word, Qt::CaseInsensitive) == 0;
}

/// False for an entry that is left out.
bool takeMlsdType(QByteArrayView type, ListedEntry &entry)
{
    // The target of a link may follow: "OS.unix=slink:/var/www".
    const QByteArrayView kind = type.first(std::min(type.size(), static_cast<qsizetype>(qstrlen("OS.unix=slink"))));
    entry.isFolder = isWord(type, "dir");
    entry.isLink = isWord(kind, "OS.unix=slink") || isWord(type, "OS.unix=symlink");
    return entry.isFolder || entry.isLink || isWord(type, "file");
}

std::optional<ListedEntry> readMlsdLine(QByteArrayView line)
{
    // The facts contain no blank, so the first one ends them; the name may contain any character.
    const qsizetype blank = line.indexOf(' ');
    if (blank < 0)
        return {};
    ListedEntry entry{line.sliced(blank + 1).toByteArray()};
    QByteArrayView facts = line.first(blank);
    while (!facts.isEmpty()) {
        const qsizetype semicolon = facts.indexOf(';');
        const QByteArrayView fact = semicolon < 0 ? facts : facts.first(semicolon);
        facts = semicolon < 0 ? QByteArrayView() : facts.sliced(semicolon + 1);
        const qsizetype equals = fact.indexOf('=');
        if (equals < 0)
            return {};
        const QByteArrayView key = fact.first(equals);
        const QByteArrayView value = fact.sliced(equals + 1);
        if (isWord(key, "type") && !takeMlsdType(value, entry))
            return {};
        if (isWord(key, "size"))
            entry.size = value.toULongLong();
        if (isWord(key, "modify"))
            entry.lastWriteTime = mlsdTime(value);
    }
    if (entry.isFolder)
        entry.size = 0;
    return entry;
}

} // namespace

std::vector<ListedEntry> readMlsd(QByteArrayView listing)
{
    return readEntries(listing, readMlsdLine);
}

std::vector<ListedEntry> readList(QByteArrayView listing, QDate today)
{
    return readEntries(listing, [today](QByteArrayView line) { return readListLine(line, today); });
}

} // namespace zephira
