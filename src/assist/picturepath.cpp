// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/picturepath.h"

#include <QByteArray>
#include <QDir>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// Only as much of a line is looked at around the byte.
constexpr qsizetype widest = 2000;

constexpr bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

bool isLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '-' || c == '_';
}

} // namespace

QByteArrayView sourceAt(QByteArrayView line, qsizetype offset)
{
    if (offset < 0 || offset >= line.size())
        return {};
    const qsizetype first = std::max<qsizetype>(offset - widest, 0);
    // The start of the value: a quote, or the sign of equality.
    for (qsizetype at = offset; at >= first; --at) {
        const char c = line[at];
        if (c == '<' || (c == '>' && at < offset))
            return {};
        if (c != '=')
            continue;
        qsizetype name = at;
        while (name > 0 && isBlank(line[name - 1]))
            --name;
        if (name < 3 || line.sliced(name - 3, 3).compare("src", Qt::CaseInsensitive) != 0
            || (name > 3 && isLetter(line[name - 4])))
            continue;
        qsizetype start = at + 1;
        while (start < line.size() && isBlank(line[start]))
            ++start;
        if (start >= line.size())
            return {};
        const char quote = line[start];
        const bool isQuoted = quote == '"' || quote == '\'';
        start += isQuoted;
        qsizetype end = start;
        const qsizetype last = std::min(line.size(), start + widest);
        while (end < last && (isQuoted ? line[end] != quote : !isBlank(line[end]) && line[end] != '>'))
            ++end;
        return offset >= start && offset < end ? line.sliced(start, end - start) : QByteArrayView();
    }
    return {};
}

QString pictureFile(const QString &address, const QString &pageFolder, const QString &projectFolder)
{
    if (address.contains(u"<?") || address.contains(u"<%"))
        return {}; // The server makes it.
    QString path = address.trimmed();
    path = path.left(path.indexOf(u'#')).left(path.indexOf(u'?'));
    const qsizetype colon = path.indexOf(u':');
    const qsizetype slash = path.indexOf(u'/');
    const bool isElsewhere = path.startsWith(u"//") || (colon >= 0 && (slash < 0 || colon < slash));
    const QString &base = path.startsWith(u'/') ? projectFolder : pageFolder;
    if (path.isEmpty() || isElsewhere || base.isEmpty())
        return {};
    path = QString::fromUtf8(QByteArray::fromPercentEncoding(path.toUtf8()));
    return path.contains(QChar(0)) ? QString() : QDir::cleanPath(base + u'/' + path);
}

} // namespace zephira
