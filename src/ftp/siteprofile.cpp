// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/siteprofile.h"

#include "files/iniconfiguration.h"

#include <QFile>
#include <QFileInfo>

#include <vector>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// A value of the profile: its key, its member, and the size of its buffer for reading, including the terminating NUL.
struct ProfileKey {
    QStringView key;
    QString SiteProfile::*member;
    qsizetype buffer;
};

constexpr ProfileKey profileKeys[] = {
    {u"sname", &SiteProfile::siteName, 50}, {u"adresa", &SiteProfile::server, 75}, {u"ID", &SiteProfile::user, 50},
    {u"pass", &SiteProfile::password, 50},  {u"port", &SiteProfile::port, 50},
};

const QString section = u"PROFIL"_s;

constexpr int privateMode = 0600;

} // namespace

SiteProfile readSiteProfile(const QString &file)
{
    SiteProfile profile;
    for (const ProfileKey &row : profileKeys)
        profile.*row.member = ReadIni(section, row.key.toString(), file).left(row.buffer - 1);
    return profile;
}

bool writeSiteProfile(const SiteProfile &profile, const QString &file)
{
    // What a link leads to is no place for a password.
    if (QFileInfo(file).isSymLink() && !QFile::remove(file))
        return false;
    // If the file already exists with permissions for others, restrict them before a password is written.
    if (QFile::exists(file) && !QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner))
        return false;
    // In one go, so that no file ever mixes two sites.
    std::vector<ProfileEntry> entries;
    for (const ProfileKey &row : profileKeys)
        entries.push_back({section, row.key.toString(), profile.*row.member});
    return writeIniValues(entries, file, privateMode).ok();
}

QString siteProfilePath(const QString &appPath, const QString &siteName)
{
    return appPath + u'/' + siteName + u".ftp"_s;
}

} // namespace zephira
