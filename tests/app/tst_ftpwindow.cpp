// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/windowbench.h"
#include "desktop/modalformopener.h"
#include "support/testregistry.h"

#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

using namespace zephira;
using namespace Qt::StringLiterals;

/// The FTP window as the main window opens it, with its dialogs on top of it.
class TstFtpWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void menuEntryStartsInTheProgramFolder();
    void buttonPresetsTheProjectFolder();
    void buttonWithoutAProject();
    void connectAndDownload();
    void closesWithTheMainWindow();

private:
    static QWidget *ftpWindow(const WindowBench &bench) { return bench.window->forms().openForm(u"frmmainftp"_s); }
    /// Runs the action as soon as the form of that name is the active modal window.
    void whenOpen(const QString &form, std::function<void(QWidget &)> action)
    {
        auto *timer = new QTimer(this);
        connect(timer, &QTimer::timeout, this, [timer, form, action = std::move(action)] {
            QWidget *modal = QApplication::activeModalWidget();
            if (!modal || modal->objectName() != form)
                return;
            timer->deleteLater();
            timer->stop();
            action(*modal);
        });
        timer->start(5);
    }
};

void TstFtpWindow::menuEntryStartsInTheProgramFolder()
{
    WindowBench bench;
    bench.start();
    bench.window->context().document.setProjectPath(bench.folder());
    bench.choose(u"mnuftpclient"_s);
    QVERIFY(ftpWindow(bench));
    QVERIFY(ftpWindow(bench)->isVisible());
    QCOMPARE(ftpWindow(bench)->property("LocalFolder").toString(), bench.appPath() + u'/');
}

void TstFtpWindow::buttonPresetsTheProjectFolder()
{
    WindowBench bench;
    const QString project = QFileInfo(bench.write(u"project/index.htm"_s, "x")).path();
    bench.start();
    bench.window->context().document.setProjectPath(project + u'/');
    bench.click(u"Toolbar1"_s, u"ftp"_s);
    QCOMPARE(ftpWindow(bench)->property("LocalFolder").toString(), project + u'/');
    // The window that is open already goes back to the project folder, wherever it has moved to since.
    ftpWindow(bench)->setProperty("LocalFolder", bench.appPath());
    bench.click(u"Toolbar1"_s, u"ftp"_s);
    QCOMPARE(ftpWindow(bench)->property("LocalFolder").toString(), project + u'/');
    bench.window->context().document.setProjectPath(u"/no/such/folder/"_s);
    bench.click(u"Toolbar1"_s, u"ftp"_s);
    QCOMPARE(ftpWindow(bench)->property("LocalFolder").toString(), project + u'/');
}

void TstFtpWindow::buttonWithoutAProject()
{
    WindowBench bench;
    bench.start();
    QCOMPARE(bench.window->context().document.projectPath(), u"Project Path"_s);
    bench.click(u"Toolbar1"_s, u"ftp"_s);
    QCOMPARE(ftpWindow(bench)->property("LocalFolder").toString(), bench.appPath() + u'/');
    bench.window->context().document.setProjectPath({});
    bench.click(u"Toolbar1"_s, u"ftp"_s);
    QCOMPARE(ftpWindow(bench)->property("LocalFolder").toString(), bench.appPath() + u'/');
}

void TstFtpWindow::connectAndDownload()
{
    WindowBench bench;
    bench.ftpOperations.folders[u"/home/me/*.*"_s] = {foundFile(u"page.htm"_s, 3)};
    bench.ftpOperations.loginFolder = u"/home/me"_s;
    bench.start().show();
    bench.choose(u"mnuftpclient"_s);
    QWidget *window = ftpWindow(bench);
    QVERIFY(QTest::qWaitForWindowActive(window));

    QWidget *owner = nullptr;
    whenOpen(u"FrmConnect"_s, [&](QWidget &dialog) {
        owner = dialog.parentWidget();
        dialog.findChild<QLineEdit *>(u"txtServer"_s)->setText(u"ftp.example.com"_s);
        dialog.findChild<QPushButton *>(u"Command3"_s)->click();
    });
    window->findChild<QAction *>(u"zConnect"_s)->trigger();
    QCOMPARE(owner, window);
    QVERIFY(!bench.window->forms().openForm(u"FrmConnect"_s));
    QCOMPARE(window->findChild<QLabel *>(u"stBar_3"_s)->text(), u"Online"_s);
    QCOMPARE(window->findChild<QLabel *>(u"stBar_2"_s)->text(), u"Server: 1 Files in folder: /home/me/*.*"_s);
    QCOMPARE(window->findChild<QLabel *>(u"Label3"_s)->text(), u"/home/me/*.*"_s);
    auto *tree = window->findChild<QTreeWidget *>(u"TView1"_s);
    QCOMPARE(tree->topLevelItemCount(), 1);
    QVERIFY(window->findChild<QPlainTextEdit *>(u"txtInfo"_s)
                ->toPlainText()
                .endsWith(u" > Data transfer completed succesfully.\n"_s));

    // Until a folder is clicked, the commands' paths are relative to the root.
    auto *list = window->findChild<QAbstractItemView *>(u"ListView2"_s);
    list->selectAll();
    QString queue;
    whenOpen(u"frmProg"_s, [&](QWidget &dialog) {
        owner = dialog.parentWidget();
        queue = dialog.findChild<QLabel *>(u"Label2"_s)->text();
        dialog.close();
    });
    window->findChild<QAction *>(u"zRemDown"_s)->trigger();
    QCOMPARE(owner, window);
    QCOMPARE(queue, u"File:             /1"_s);
    QVERIFY(window->findChild<QPlainTextEdit *>(u"txtInfo"_s)->toPlainText().endsWith(u"1.) /page.htm\n"_s));
}

void TstFtpWindow::closesWithTheMainWindow()
{
    WindowBench bench;
    bench.start().show();
    bench.choose(u"mnuftpclient"_s);
    const QPointer<QWidget> window = ftpWindow(bench);
    bench.window->close();
    QTRY_VERIFY(!window || !window->isVisible());
    QCOMPARE(bench.ftpOperations.log, (QStringList{u"InternetCloseHandle(0)"_s, u"InternetCloseHandle(0)"_s}));
}

ZEPHIRA_TEST(TstFtpWindow)
#include "tst_ftpwindow.moc"
