// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/itemroles.h"
#include "ftp/ftpbench.h"
#include "ftp/ftpdesk.h"
#include "widgets/dirlistbox.h"
#include "widgets/filelistview.h"
#include "widgets/filerowsmodel.h"

#include <QAction>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSplitter>
#include <QTest>
#include <QTextDocument>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidget>

namespace zephira {

/// The FTP window with some files in the program folder and on the server.
struct FtpWindowBench : FtpBench {
    std::unique_ptr<LivingForm> form;

    FtpWindowBench()
    {
        write(QStringLiteral("b.htm"), QByteArray(1024, 'x'));
        write(QStringLiteral("A.gif"), QByteArray(500, 'x'));
        write(QStringLiteral("c"), QByteArray(30, 'x'));
        write(QStringLiteral("Logon/old.txt"), "old");
        operations.folders[QStringLiteral("/*.*")] = {
            foundFolder(QStringLiteral("pub")), foundFolder(QStringLiteral("home")),
            foundFile(QStringLiteral("z.txt"), 1024), foundFile(QStringLiteral("a.zip"), 2048)};
        operations.folders[QStringLiteral("/pub/*.*")] = {foundFolder(QStringLiteral("docs")),
                                                          foundFile(QStringLiteral("inner.css"), 1)};
    }

    LivingForm &open()
    {
        form = std::make_unique<LivingForm>(catalogue, QStringLiteral("frmmainftp"), context);
        return *form;
    }
    /// Opens the window with a connected session and the server's root in its tree.
    LivingForm &openConnected()
    {
        open();
        connectSession();
        desk().addRemoteRoot();
        desk().List();
        operations.log.clear();
        form->get<QPlainTextEdit>(QStringLiteral("txtInfo")).clear();
        return *form;
    }
    FtpDesk &desk() const { return dynamic_cast<FtpDesk &>(form->widget()); }
    void choose(const QString &entry) const { form->get<QAction>(entry).trigger(); }
    QString panel(int number) const { return form->value(QStringLiteral("stBar_%1").arg(number)); }
    QString log() const { return form->get<QPlainTextEdit>(QStringLiteral("txtInfo")).toPlainText(); }
    QTreeWidget &tree() const { return form->get<QTreeWidget>(QStringLiteral("TView1")); }
    FileListView &local() const { return form->get<FileListView>(QStringLiteral("ListView1")); }
    FileListView &remote() const { return form->get<FileListView>(QStringLiteral("ListView2")); }
    DirListBox &folders() const { return form->get<DirListBox>(QStringLiteral("Dir1")); }
    QString here() const { return folder.path() + u'/'; }

    static QStringList names(const FileListView &list)
    {
        QStringList result;
        for (int row = 0; row < list.model()->rowCount(); ++row)
            result.append(list.model()->index(row, FileRowsModel::Name).data().toString());
        return result;
    }
    static void click(const FileListView &list, int row, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, modifiers,
                          list.visualRect(list.model()->index(row, FileRowsModel::Name)).center());
    }
    static void clickHead(const FileListView &list, int column)
    {
        QHeaderView *head = list.header();
        QTest::mouseClick(
            head->viewport(), Qt::LeftButton, {},
            QPoint(head->sectionViewportPosition(column) + head->sectionSize(column) / 2, head->height() / 2));
    }
    QTreeWidgetItem *node(const QString &key) const
    {
        const QList<QTreeWidgetItem *> all =
            tree().findItems(QStringLiteral("*"), Qt::MatchWildcard | Qt::MatchRecursive);
        const auto found =
            std::ranges::find_if(all, [&](QTreeWidgetItem *item) { return item->data(0, KeyRole) == key; });
        return found == all.end() ? nullptr : *found;
    }
    QStringList keys() const
    {
        QStringList result;
        const QList<QTreeWidgetItem *> items =
            tree().findItems(QStringLiteral("*"), Qt::MatchWildcard | Qt::MatchRecursive);
        for (const QTreeWidgetItem *item : items)
            result.append(item->data(0, KeyRole).toString());
        result.sort();
        return result;
    }
    void clickNode(const QString &key) const
    {
        QTest::mouseClick(tree().viewport(), Qt::LeftButton, {}, tree().visualItemRect(node(key)).center());
    }
    /// Types a new name for the row that is being edited.
    void typeName(const FileListView &list, const QString &name) const
    {
        auto *editor = list.findChild<QLineEdit *>();
        QVERIFY(editor);
        editor->setText(name);
        QTest::keyClick(editor, Qt::Key_Return);
    }
    QTreeWidgetItem *localFolder(const QString &name) const
    {
        return folders().findItems(name, Qt::MatchExactly | Qt::MatchRecursive).value(0);
    }
};

} // namespace zephira
