// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

/// The user name that servers accept for guests.
constexpr QStringView anonymousUser = u"anonymous";

/// A saved site: one small profile file with the extension ".ftp" in the program folder.
struct SiteProfile {
    QString siteName;
    QString server;
    QString user;
    /// In plain text; empty if it isn't to be saved.
    QString password;
    /// A decimal number, or empty.
    QString port;

    friend bool operator==(const SiteProfile &, const SiteProfile &) = default;
};

/// Reads a profile. Missing values, or a missing file, read as empty; a value longer than its field's buffer, 49
/// characters and 74 for the server, is cut.
SiteProfile readSiteProfile(const QString &file);

/// Writes all values into the file, which only the user may read. Returns whether that succeeded.
bool writeSiteProfile(const SiteProfile &profile, const QString &file);

/// Path of the profile with that name, which is used unchanged.
QString siteProfilePath(const QString &appPath, const QString &siteName);

} // namespace zephira
