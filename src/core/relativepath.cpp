// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/relativepath.h"

#include "core/errorstyles.h"

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

bool isSeparator(QChar c)
{
    return c == u'\\' || c == u'/';
}

/// 1-based index of the last separator at or before the 1-based index `from`; 0 when there is none.
qsizetype lastSeparator(QStringView path, qsizetype from)
{
    for (qsizetype i = from; i > 0; --i) {
        if (isSeparator(path[i - 1]))
            return i;
    }
    return 0;
}

QString fromIndex(const QString &path, qsizetype index)
{
    return path.mid(index - 1).replace(u'\\', u'/');
}

} // namespace

QString MakeRelativePath(const QString &basePath, const QString &targetPath)
{
    if (basePath.isEmpty())
        throw HandlerError{u"Invalid procedure call or argument"_s};
    // A base without a drive is compared with the target after the three characters of its drive.
    if (QStringView(targetPath).mid(3, basePath.size()) == basePath)
        return fromIndex(targetPath, basePath.size());

    qsizetype i = basePath.size();
    qsizetype ups = 0;
    bool found = false;
    do {
        i = lastSeparator(basePath, i);
        if (i == 0)
            break;
        if (QStringView(basePath).left(i) == QStringView(targetPath).left(i))
            found = true;
        else
            ++ups;
        --i;
    } while (i != 0 && !found);
    return u"../"_s.repeated(ups) + fromIndex(targetPath, i + 2);
}

} // namespace zephira
