// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary files of saved sites: no value is longer than its field.
#include "ftp/siteprofile.h"
#include "fuzz/fuzztarget.h"

#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace zephira;

FUZZ_TARGET(siteprofile)
{
    static const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.ftp"_s);
    QFile file(path);
    check(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    check(file.write(reinterpret_cast<const char *>(data), static_cast<qint64>(size)) == static_cast<qint64>(size));
    file.close();
    const SiteProfile profile = readSiteProfile(path);
    check(profile.server.size() <= 74);
    for (const QString &value : {profile.siteName, profile.user, profile.password, profile.port})
        check(value.size() <= 49 && !value.contains(u'\n') && !value.contains(u'\r'));
    return 0;
}
