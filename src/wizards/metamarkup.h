// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

/// What the meta tags say about a site. Texts are inserted as typed: nothing is quoted or checked.
struct SiteFacts {
    QString description = {};
    QString keywords = {};
    QString author = {};
    QString copyright = {};

    friend bool operator==(const SiteFacts &, const SiteFacts &) = default;
};

/// One tag for each fact, even for an empty one, on a line each. The last line has no line end.
QString metaMarkup(const SiteFacts &facts);

} // namespace zephira
