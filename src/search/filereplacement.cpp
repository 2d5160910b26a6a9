// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/filereplacement.h"

#include "files/buffertext.h"
#include "files/recoverycopies.h"
#include "files/textfile.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

Error changedMeanwhile()
{
    return {Error::Code::Refused,
            QCoreApplication::translate("SearchReport", "It has changed since the search and was left as it is.")};
}

/// Goes from places in a text with line feeds to those in the same text with any line ends.
class RawPlaces
{
public:
    explicit RawPlaces(const QString &raw) : m_raw(raw) {}

    /// Places must be asked for in ascending order.
    qsizetype of(qsizetype place)
    {
        for (; m_place < place; ++m_place, ++m_rawPlace) {
            if (m_raw[m_rawPlace] == u'\r' && m_rawPlace + 1 < m_raw.size() && m_raw[m_rawPlace + 1] == u'\n')
                ++m_rawPlace;
        }
        return m_rawPlace;
    }

private:
    const QString &m_raw;
    qsizetype m_place = 0;
    qsizetype m_rawPlace = 0;
};

} // namespace

QString withLineEnds(QString text, LineEnds lineEnds)
{
    if (lineEnds == LineEnds::CrLf)
        text.replace(u'\n', u"\r\n"_s);
    else if (lineEnds == LineEnds::Cr)
        text.replace(u'\n', u'\r');
    return text;
}

Result<TextChanges> replacementsIn(const QString &text, const ReplaceOrder &order,
                                   const std::vector<FoundMatch> &matches, const std::vector<bool> &chosen)
{
    const Result<PatternSearch> search = PatternSearch::make(order.request);
    if (!search)
        return search.error();
    const QString plain = withLineFeeds(text);
    const auto goOn = [] { return true; };
    const auto most = static_cast<qsizetype>(matches.size());
    if (findMatches(search.value(), plain, order.replacement, most, goOn).matches != matches)
        return changedMeanwhile();
    TextChanges changes;
    RawPlaces places(text);
    std::size_t number = 0;
    search.value().each(plain, 0, plain.size(), order.replacement, [&](TextMatch match) {
        if (number < chosen.size() && chosen[number]) {
            const qsizetype begin = places.of(match.start);
            changes.push_back({begin, places.of(match.end), std::move(match.replacement)});
        }
        return ++number < matches.size();
    });
    return changes;
}

Result<void> replaceInFile(FileStore &files, RecoveryCopies &recovery, const QString &run, const ReplaceOrder &order,
                           const FoundFile &file, const std::vector<bool> &chosen)
{
    if (files.signature(file.path) != file.signature)
        return changedMeanwhile();
    const Result<QByteArray> bytes = files.read(file.path);
    if (!bytes)
        return bytes.error();
    const DecodedText decoded = decodeText(bytes.value());
    const QString text = fromBuffer(decoded.utf8, LineEnds::Mixed);
    Result<TextChanges> found = replacementsIn(text, order, file.matches, chosen);
    if (!found)
        return found.error();
    TextChanges changes = std::move(found).value();
    LineEnds lineEnds = decoded.format.lineEnds;
    if (lineEnds == LineEnds::Mixed)
        lineEnds = mostFrequentLineEnd(decoded.utf8);
    for (TextChange &change : changes)
        change.text = withLineEnds(std::move(change.text), lineEnds);
    const Result<QByteArray> replaced = encodeText(withChanges(text, changes).toUtf8(), decoded.format);
    if (!replaced)
        return replaced.error();
    if (replaced.value() == bytes.value())
        return {};
    if (const Result<void> kept = recovery.keepReplaced(run, file.path, bytes.value()); !kept) {
        return Error{
            kept.error().code,
            QCoreApplication::translate("SearchReport", "It was not changed, because no copy of it could be kept.")
                + u' ' + kept.error().sentence};
    }
    // Looked at once more, because reading and searching take a while.
    if (files.signature(file.path) != file.signature)
        return changedMeanwhile();
    const QByteArrayView content = replaced.value();
    return files.mustBeWrittenInPlace(file.path) ? files.writeInPlace(file.path, std::span(&content, 1))
                                                 : files.write(file.path, content);
}

} // namespace zephira
