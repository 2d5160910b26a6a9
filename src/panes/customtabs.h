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

/// The six tabs of the side pane with the user's own snippets. A double click inserts one after the selection; a pop-up
/// menu adds one to the tab's file.
class CustomTabs final : public QObject
{
    Q_OBJECT

public:
    static constexpr int count = 6;

    /// Makes the lists `c1` to `c6`. They belong to `owner` until another widget takes them. A right click opens
    /// `menu`.
    CustomTabs(const AppContext &context, FileNumber &fileNumber, QMenu &menu, QWidget *owner);

    /// The list of tab 1 to 6.
    QTreeWidget *list(int tab) const { return m_lists[static_cast<std::size_t>(tab - 1)]; }

    /// The current header in the file of tab 1 to 6; empty if the file can't be read.
    QString title(int tab) const;
    /// Reads tab 1 to 6 from the file that is configured for it.
    void load(int tab);
    /// Fills a list from a file, using `lineBuffer` for its lines. If the file can't be read or is empty, the user is
    /// told, and the list stays empty.
    Q_INVOKABLE void LoadCustomTab(const QString &filePath, QTreeWidget *listView, QListWidget *lineBuffer);
    /// Asks for a snippet and its title and adds them to the file of the tab that was right-clicked last. The list
    /// shows them after it is read again.
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
