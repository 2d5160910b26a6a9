// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/installedpages.h"

#include <QDirIterator>
#include <QFile>
#include <QMap>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr qint64 largestPage = 200000;

QByteArray content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

QStringList installedPages(qsizetype most, const std::function<bool(const QByteArray &page)> &wanted)
{
    QMap<QString, QStringList> packages;
    QDirIterator files(u"/usr/share/doc"_s, {u"*.html"_s, u"*.xhtml"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        if (files.fileInfo().size() <= largestPage && wanted(content(path)))
            packages[packageFolder(path)].append(path);
    }
    for (QStringList &pages : packages)
        pages.sort();
    QStringList chosen;
    bool isMore = true;
    for (qsizetype place = 0; isMore && chosen.size() < most; ++place) {
        isMore = false;
        for (const QStringList &pages : std::as_const(packages)) {
            if (place >= pages.size() || chosen.size() == most)
                continue;
            chosen.append(pages[place]);
            isMore = true;
        }
    }
    return chosen;
}

QString packageFolder(const QString &page)
{
    return page.section(u'/', 0, 4);
}

bool isDressed(const QByteArray &page)
{
    return page.contains("stylesheet") && page.contains("<script");
}

} // namespace zephira
