// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/leftcopies.h"

#include "core/paths.h"
#include "files/fileerror.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <algorithm>
#include <cerrno>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

const QString openMark = u"open-"_s;
const QString asideMark = u"kept-"_s;

/// The command name of a process; empty if there is no such process.
QByteArray commandOf(const QString &process)
{
    QFile file(u"/proc/%1/comm"_s.arg(process));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Process IDs are reused, so a process of another program is not the one that wrote the copy.
bool isLookedAfter(const QString &process)
{
    const QByteArray command = commandOf(process);
    return !command.isEmpty() && command == commandOf(u"self"_s);
}

} // namespace

QList<LeftCopy> leftCopies(const QString &folder)
{
    // A file's name may have line ends.
    static const QRegularExpression pattern(uR"(\Aopen-(\d{8}-\d{6}-\d{3})-(\d+)-(.+)\z)"_s,
                                            QRegularExpression::DotMatchesEverythingOption);
    QList<LeftCopy> copies;
    const QDir dir(folder);
    // Alphabetical order of the names is also the order of their age.
    QStringList names = dir.entryList({openMark + u'*'}, QDir::Files | QDir::Hidden, QDir::Name);
    std::ranges::reverse(names);
    for (const QString &name : std::as_const(names)) {
        const QRegularExpressionMatch match = pattern.match(name);
        if (!match.hasMatch() || isLookedAfter(match.captured(2)))
            continue;
        QDateTime began = QDateTime::fromString(match.captured(1), u"yyyyMMdd-HHmmss-zzz"_s);
        began.setTimeSpec(Qt::UTC);
        copies.append({dir.filePath(name), match.captured(3), began.toLocalTime()});
    }
    return copies;
}

Result<void> putAside(const LeftCopy &copy)
{
    const QString name = lastName(copy.path);
    const QString kept = copy.path.chopped(name.size()) + asideMark + name.mid(openMark.size());
    if (std::rename(QFile::encodeName(copy.path).constData(), QFile::encodeName(kept).constData()) != 0)
        return saveError(kept, errno);
    return {};
}

} // namespace zephira
