// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/searchreport.h"

#include "files/textfile.h"

#include <QLocale>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

QString counted(int count, const QString &one, const QString &many)
{
    return u"%1 %2"_s.arg(QLocale(QLocale::English).toString(count), count == 1 ? one : many);
}

QString files(int count)
{
    return counted(count, u"file"_s, u"files"_s);
}

QString folders(int count)
{
    return counted(count, u"folder"_s, u"folders"_s);
}

} // namespace

QString searchProgress(const SearchCounts &counts)
{
    return u"Searching: %1 in %2, %3 searched\u2026"_s.arg(counted(counts.matches, u"match"_s, u"matches"_s),
                                                           files(counts.filesWithMatches), files(counts.files));
}

QString searchSummary(const SearchCounts &counts)
{
    QStringList sentences;
    if (counts.isStopped)
        sentences.append(u"Stopped."_s);
    sentences.append(u"%1 in %2, %3 searched."_s.arg(counted(counts.matches, u"match"_s, u"matches"_s),
                                                     files(counts.filesWithMatches), files(counts.files)));
    if (counts.isCut)
        sentences.append(u"There are more: the search ended here."_s);
    if (counts.givenUp > 0)
        sentences.append(u"The expression needs too many steps in %1."_s.arg(files(counts.givenUp)));
    QStringList leftOut;
    if (counts.binaryFiles > 0)
        leftOut.append(u"%1 without text"_s.arg(files(counts.binaryFiles)));
    if (counts.tooLargeFiles > 0)
        leftOut.append(
            u"%1 larger than %2 MiB"_s.arg(files(counts.tooLargeFiles)).arg(maximumFileSize / (1024 * 1024)));
    if (counts.unreadableFiles > 0)
        leftOut.append(u"%1 that can't be read"_s.arg(files(counts.unreadableFiles)));
    if (counts.unreadableFolders > 0)
        leftOut.append(u"%1 that can't be read"_s.arg(folders(counts.unreadableFolders)));
    if (counts.otherFileSystems > 0)
        leftOut.append(u"%1 of other file systems"_s.arg(folders(counts.otherFileSystems)));
    if (counts.invalidNames > 0)
        leftOut.append(
            counted(counts.invalidNames, u"name that isn't valid text"_s, u"names that aren't valid text"_s));
    if (!leftOut.isEmpty())
        sentences.append(u"Left out: %1."_s.arg(leftOut.join(u", "_s)));
    return sentences.join(u' ');
}

} // namespace zephira
