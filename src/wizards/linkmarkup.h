// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace zephira {

// Links and pictures. Fields are inserted as typed: nothing is quoted or checked.

/// The ways in which an address can begin, in the order of the list.
QStringList linkPrefixes();

/// The address after a prefix was chosen: it replaces an address that is only a prefix, in any case, and comes before
/// any other.
QString withPrefix(const QString &prefix, const QString &address);

struct LinkFields {
    QString address = {};
    QString text = {};
    QString target = {};
    /// If empty, the link leaves the status bar alone.
    QString statusText = {};
    QString title = {};
    QString name = {};
};

QString linkMarkup(const LinkFields &fields);

struct ImageFields {
    /// The picture's full name, and what projectReference() makes of it.
    QString file = {};
    QString reference = {};
    QString width = {};
    QString height = {};
    QString alternative = {};
    QString border = {};

    /// Whether the full name is written. A reference that begins with a colon is to another drive, and no page can
    /// follow it.
    bool usesFullName() const { return reference.startsWith(u':'); }
};

/// The tag and a line end.
QString imageMarkup(const ImageFields &fields);

} // namespace zephira
