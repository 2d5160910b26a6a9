// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "widgets/filerow.h"

#include <QStringList>

#include <optional>

namespace zephira {

constexpr QStringView remoteRootKey = u"/";
constexpr QStringView remoteRootText = u"..";

/// A folder in the server's tree. Its key is its full path, which ends in "/".
struct RemoteNode {
    QString key;
    QString text;

    friend bool operator==(const RemoteNode &, const RemoteNode &) = default;
};

/// The server's side of the FTP window as its commands see it: the tree of folders, the list of files and the controls
/// around them.
class RemoteView
{
public:
    virtual ~RemoteView() = default;

    virtual FileRows &files() = 0;

    virtual void clearTree() = 0;
    virtual void addRoot() = 0;
    virtual std::optional<RemoteNode> selectedNode() const = 0;
    /// Selects a folder and makes it visible. Does nothing when the tree has no such key.
    virtual void selectNode(const QString &key) = 0;
    /// Expands a folder and removes everything below it.
    virtual void rebuildNode(const QString &key) = 0;
    /// Adds folders below another one and expands the root. Existing names are not added again.
    virtual void addFolders(const QString &parentKey, const QStringList &names) = 0;

    /// Shows the search path above the pane.
    virtual void setPathText(const QString &text) = 0;
    /// Sets the check marks of the pattern menu.
    virtual void markPattern(bool all) = 0;
};

} // namespace zephira
