// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

namespace zephira {

class FileTypeKeys;

// What the keys of a FileTypeStore mean to a freedesktop desktop, and the texts of the files that tell it.

/// A type of files that the keys make known.
struct DesktopFileType {
    QString extension;
    QString description;
    /// Whether this program opens files of the type unless the user chooses another one.
    bool isDefault = false;

    friend bool operator==(const DesktopFileType &, const DesktopFileType &) = default;
};

/// The types that this program opens. A command is this program's if the name of its program is `programName`, so that
/// another copy of the program counts too. A type whose default action is empty was given back; what else its keys hold
/// is a remainder and doesn't count, unless new files of the type can be made, as of a type of the user's own.
std::vector<DesktopFileType> desktopFileTypes(const FileTypeKeys &keys, const QString &programName);

/// The MIME type of our own for an extension that the system doesn't know.
QString ownMimeType(const QString &extension);

/// The MIME types of an extension, by all of their names.
using MimeTypesOf = std::function<QStringList(const QString &extension)>;

/// The names that the system has for the MIME type of an extension; our own if it knows none.
QStringList systemMimeTypes(const QString &extension);

/// What the desktop is told: names of MIME types in alphabetical order.
struct DesktopTypes {
    /// Those that this program opens by default. Of extensions that share a MIME type each must want that.
    QStringList defaults;
    /// All that it opens.
    QStringList all;

    friend bool operator==(const DesktopTypes &, const DesktopTypes &) = default;
};
DesktopTypes desktopTypes(const std::vector<DesktopFileType> &types, const MimeTypesOf &mimeTypesOf);

/// The MIME package with our own types among them; empty if there is none.
QByteArray mimePackage(const std::vector<DesktopFileType> &types, const MimeTypesOf &mimeTypesOf);

/// The desktop entry of this program for the types; empty if there is none. It doesn't show in menus.
QByteArray desktopEntry(const DesktopTypes &types, const QString &executable, const QString &icon);

} // namespace zephira
