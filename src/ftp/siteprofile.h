// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

/// A saved site: one small profile file with the ending ".ftp" in the program folder.
struct SiteProfile {
    QString siteName;
    QString server;
    QString user;
    /// In plain text, and empty if it isn't to be kept.
    QString password;
    /// Decimal, or empty.
    QString port;

    friend bool operator==(const SiteProfile &, const SiteProfile &) = default;
};

/// Reads a profile. What is missing reads as empty, also a whole file; a value that is longer than its field's buffer,
/// 49 characters and for the server 74, is cut.
SiteProfile readSiteProfile(const QString &file);

/// Writes all values over those of the file, which is the user's alone. Returns whether that could be done.
bool writeSiteProfile(const SiteProfile &profile, const QString &file);

/// Path of the profile of that name. The name is taken as it is.
QString siteProfilePath(const QString &appPath, const QString &siteName);

} // namespace zephira
