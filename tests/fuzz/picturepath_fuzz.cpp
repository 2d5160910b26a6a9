// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary lines of a page: an address that is found at a byte stands around it, and its file is a full path.
#include "assist/picturepath.h"
#include "core/errorstyles.h"
#include "core/relativepath.h"
#include "fuzz/fuzztarget.h"

using namespace Qt::StringLiterals;
using namespace zephira;

FUZZ_TARGET(picturepath)
{
    const QByteArray line = zephira::fuzz::inputBytes(data, size);
    const qsizetype place = size ? line.size() * data[0] / 256 : 0;
    const QByteArrayView source = sourceAt(line, place);
    if (!source.isEmpty()) {
        check(source.begin() >= QByteArrayView(line).begin() && source.end() <= QByteArrayView(line).end());
        const QString path = pictureFile(QString::fromUtf8(source), u"/site/a"_s, u"/site"_s);
        check(path.isEmpty() || path.startsWith(u'/'));
    }
    const QString target = u"/site/"_s + QString::fromUtf8(line);
    QString relative;
    check(endingQuietly([&] { relative = MakeRelativePath(u"/site/"_s, target); }));
    check(target.contains(u'\\') || relative == target.mid(6));
    return 0;
}
