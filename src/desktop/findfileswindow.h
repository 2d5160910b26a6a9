// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QDirIterator>
#include <QTimer>

#include <memory>

class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace zephira {

/// Finds files by name on desktops without a file manager. It searches in short steps, so that the program stays
/// responsive; links to folders are not followed.
class FindFilesWindow final : public QDialog
{
    Q_OBJECT

public:
    FindFilesWindow(const QString &folder, QWidget *owner);

private:
    void toggle();
    void start();
    void stop(const QString &remark);
    void readOn();

    QLineEdit *m_pattern;
    QLineEdit *m_folder;
    QPushButton *m_find;
    QListWidget *m_found;
    QLabel *m_state;
    QTimer m_turn;
    std::unique_ptr<QDirIterator> m_entries;
};

} // namespace zephira
