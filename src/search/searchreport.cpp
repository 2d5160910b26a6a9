// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/searchreport.h"

#include "files/textfile.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// A text of this file in the language of the desktop.
QString said(const char *text)
{
    return QCoreApplication::translate("SearchReport", text);
}

/// How many there are: one text for a single one, and one with the number for more.
QString counted(int count, const char *one, const char *many)
{
    return count == 1 ? said(one)
                      : said(many).arg(QLocale(said(QT_TRANSLATE_NOOP("SearchReport", "en"))).toString(count));
}

QString matches(int count)
{
    return counted(count, QT_TRANSLATE_NOOP("SearchReport", "1 match"),
                   QT_TRANSLATE_NOOP("SearchReport", "%1 matches"));
}

QString files(int count)
{
    return counted(count, QT_TRANSLATE_NOOP("SearchReport", "1 file"), QT_TRANSLATE_NOOP("SearchReport", "%1 files"));
}

QString folders(int count)
{
    return counted(count, QT_TRANSLATE_NOOP("SearchReport", "1 folder"),
                   QT_TRANSLATE_NOOP("SearchReport", "%1 folders"));
}

} // namespace

QString searchProgress(const SearchCounts &counts)
{
    return said(QT_TRANSLATE_NOOP("SearchReport", "Searching: %1 in %2, %3 searched\u2026"))
        .arg(matches(counts.matches), files(counts.filesWithMatches), files(counts.files));
}

QString searchSummary(const SearchCounts &counts)
{
    QStringList sentences;
    if (counts.isStopped)
        sentences.append(said(QT_TRANSLATE_NOOP("SearchReport", "Stopped.")));
    sentences.append(said(QT_TRANSLATE_NOOP("SearchReport", "%1 in %2, %3 searched."))
                         .arg(matches(counts.matches), files(counts.filesWithMatches), files(counts.files)));
    if (counts.isCut)
        sentences.append(said(QT_TRANSLATE_NOOP("SearchReport", "There are more: the search ended here.")));
    if (counts.givenUp > 0)
        sentences.append(said(QT_TRANSLATE_NOOP("SearchReport", "The expression needs too many steps in %1."))
                             .arg(files(counts.givenUp)));
    QStringList leftOut;
    if (counts.binaryFiles > 0)
        leftOut.append(said(QT_TRANSLATE_NOOP("SearchReport", "%1 without text")).arg(files(counts.binaryFiles)));
    if (counts.tooLargeFiles > 0)
        leftOut.append(said(QT_TRANSLATE_NOOP("SearchReport", "%1 larger than %2 MiB"))
                           .arg(files(counts.tooLargeFiles))
                           .arg(maximumFileSize / (1024 * 1024)));
    if (counts.unreadableFiles > 0)
        leftOut.append(
            said(QT_TRANSLATE_NOOP("SearchReport", "%1 that can't be read")).arg(files(counts.unreadableFiles)));
    if (counts.unreadableFolders > 0)
        leftOut.append(
            said(QT_TRANSLATE_NOOP("SearchReport", "%1 that can't be read")).arg(folders(counts.unreadableFolders)));
    if (counts.otherFileSystems > 0)
        leftOut.append(
            said(QT_TRANSLATE_NOOP("SearchReport", "%1 of other file systems")).arg(folders(counts.otherFileSystems)));
    if (counts.invalidNames > 0)
        leftOut.append(counted(counts.invalidNames, QT_TRANSLATE_NOOP("SearchReport", "1 name that isn't valid text"),
                               QT_TRANSLATE_NOOP("SearchReport", "%1 names that aren't valid text")));
    if (!leftOut.isEmpty())
        sentences.append(said(QT_TRANSLATE_NOOP("SearchReport", "Left out: %1.")).arg(leftOut.join(u", "_s)));
    return sentences.join(u' ');
}

} // namespace zephira
