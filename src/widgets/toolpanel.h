// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QString>

#include <functional>
#include <vector>

class QDockWidget;
class QMainWindow;
class QTabWidget;
class QWidget;

namespace zephira {

/// The panel below the text, closed at first: a dock with a tab for each page. Nothing of it exists before a page is shown
/// for the first time. Escape in the panel goes back to the text and leaves it open.
class ToolPanel final : public QObject
{
    Q_OBJECT

public:
    /// The window must outlive the panel.
    explicit ToolPanel(QMainWindow &window);

    /// Announces a page.
    /// @param name     its object name
    /// @param caption  of its tab
    /// @param make     creates its widget when it is first shown
    void addPage(const QString &name, const QString &caption, std::function<QWidget *(QWidget *parent)> make);

    /// Opens the panel with this page and returns it; nullptr if none has that name. The focus stays where it is.
    QWidget *show(const QString &name);
    /// The same, and the page gets the focus.
    QWidget *enter(const QString &name);
    /// Whether the page is the visible one.
    bool isShown(const QString &name) const;
    /// Changes the caption of a page's tab, for example to tell a count.
    void setCaption(const QString &name, const QString &caption);
    void close();

    /// Called when the panel has been made: its window may want to reach it by keys.
    std::function<void(QWidget &)> made;
    /// Gives the focus back to the text.
    std::function<void()> leave;

Q_SIGNALS:
    /// A page has come to be seen, or is no longer seen.
    void shownChanged(const QString &name, bool shown);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Page {
        QString name;
        QString caption;
        std::function<QWidget *(QWidget *)> make;
        QPointer<QWidget> widget;
        bool wasShown = false;
    };

    Page *find(const QString &name);
    const Page *find(const QString &name) const;
    void makeDock();
    void tellShown();

    QMainWindow &m_window;
    QPointer<QDockWidget> m_dock;
    QPointer<QTabWidget> m_tabs;
    std::vector<Page> m_pages;
};

} // namespace zephira
