// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ftp/ftpcommandtables.h"

#include <QHash>
#include <QObject>

class QAction;
class QMenu;
class QMenuBar;
class QToolBar;

namespace zephira {

/// The menus and the tool bar of the FTP window, made from their tables.
class FtpMenus final : public QObject
{
    Q_OBJECT

public:
    FtpMenus(QMenuBar &menuBar, QToolBar &toolBar, QObject *parent = nullptr);

    /// The entry of that name, which must exist in the table.
    QAction &entry(QStringView name) const;
    QMenu &menu(QStringView name) const;

Q_SIGNALS:
    /// An entry was chosen, or its tool button was clicked. Its check mark is unchanged: the command sets it.
    void chosen(const zephira::FtpMenuItem &item);

private:
    QMenu *makeMenu(const FtpMenuItem &item, QWidget *parent);
    void addEntry(QMenu *menu, const FtpMenuItem &item);
    void addKeys(QToolBar &toolBar, std::span<const FtpToolKey> keys);

    QHash<QString, QAction *> m_entries;
    QHash<QString, QMenu *> m_menus;
};

} // namespace zephira
