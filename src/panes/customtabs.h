// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <array>

class QListWidget;
class QMenu;
class QTreeWidget;

namespace zephira {

struct AppContext;
class FileNumber;

/// The six tabs of the side pane that show the user's own snippets. A double click pastes one behind the selection; a
/// pop-up menu adds one to the tab's file.
class CustomTabs final : public QObject
{
    Q_OBJECT

public:
    static constexpr int count = 6;

    /// Makes the lists `c1` to `c6`, which belong to whoever takes them, or else to `owner`. A right click opens `menu`.
    CustomTabs(const AppContext &context, FileNumber &fileNumber, QMenu &menu, QWidget *owner);

    /// The list of tab 1 to 6.
    QTreeWidget *list(int tab) const { return m_lists[static_cast<std::size_t>(tab - 1)]; }

    /// The header of the file of tab 1 to 6, as it stands there now; empty where it can't be read.
    QString title(int tab) const;
    /// Reads tab 1 to 6 from the file that the settings name for it.
    void load(int tab);
    /// Fills a list from a file, whose lines stand in `lineBuffer` meanwhile. Where the file can't be read or is empty,
    /// the user is told, and the list stays empty.
    Q_INVOKABLE void LoadCustomTab(const QString &filePath, QTreeWidget *listView, QListWidget *lineBuffer);
    /// Asks for a snippet and its title and adds them to the file of the tab that was right-clicked last. The list shows
    /// them when it is read again.
    void addEntry();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QTreeWidget *makeList(int tab, QWidget *owner);
    QString filePath(int tab) const;
    void openMenu(int tab, const QPoint &position);

    const AppContext &m_context;
    FileNumber &m_fileNumber;
    QMenu &m_menu;
    QListWidget *m_lineBuffer;
    std::array<QTreeWidget *, count> m_lists;
    /// The tab that was right-clicked last, 1 to 6.
    qint16 m_menuTab = 1;
};

} // namespace zephira
