// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/itemroles.h"
#include "ftp/ftpbench.h"
#include "ftp/net/ftpserver.h"
#include "ftp/net/netoperations.h"
#include "support/testregistry.h"
#include "widgets/filelistview.h"

#include <QAction>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>
#include <QTreeWidget>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// The window, its dialogs and the real operations with a real server.
struct Bench {
    explicit Bench(FtpServer::Kind kind) : server(kind)
    {
        ftp.world.forms.onOpen = [this](const QString &form) { fill(form); };
        window = std::make_unique<LivingForm>(ftp.catalogue, u"frmmainftp"_s, ftp.context);
    }

    /// Fills in the two dialogs as a user would.
    void fill(const QString &form)
    {
        FormCatalogue overTheWindow;
        overTheWindow.add(form, [&](const AppContext &context, QWidget *) {
            return ftp.catalogue.make(form, context, &window->widget());
        });
        const LivingForm dialog(overTheWindow, form, ftp.context);
        if (form == u"FrmConnect") {
            dialog.set(u"Check1"_s, u"off"_s);
            dialog.set(u"txtServer"_s, server.host());
            dialog.set(u"txtPort"_s, QString::number(server.port()));
            dialog.set(u"txtUser"_s, server.user());
            dialog.set(u"txtPass"_s, password);
            dialog.set(passive ? u"Option3"_s : u"Option4"_s, u"on"_s);
        } else {
            ftp.world.prompts.expectTell(u"Data transfer completed."_s);
        }
        dialog.press(u"Command3"_s);
    }
    void choose(const QString &entry) const { window->get<QAction>(entry).trigger(); }
    QString panel(int number) const { return window->value(u"stBar_%1"_s.arg(number)); }
    FileListView &files(const QString &list) const { return window->get<FileListView>(list); }
    QStringList names() const
    {
        QStringList result;
        const QAbstractItemModel &rows = *files(u"ListView2"_s).model();
        for (int row = 0; row < rows.rowCount(); ++row)
            result.append(rows.index(row, 0).data().toString());
        result.sort();
        return result;
    }
    void select(const QString &list, const QString &name) const
    {
        const FileListView &view = files(list);
        const QModelIndexList found = view.model()->match(view.model()->index(0, 0), Qt::DisplayRole, name, 1,
                                                          Qt::MatchExactly | Qt::MatchCaseSensitive);
        QVERIFY2(!found.isEmpty(), qPrintable(name));
        view.selectionModel()->setCurrentIndex(found.first(),
                                               QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }
    void clickFolder(const QString &key) const
    {
        auto &tree = window->get<QTreeWidget>(u"TView1"_s);
        const QList<QTreeWidgetItem *> items = tree.findItems(u"*"_s, Qt::MatchWildcard | Qt::MatchRecursive);
        for (QTreeWidgetItem *item : items) {
            if (item->data(0, KeyRole) == key) {
                tree.scrollToItem(item);
                QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualItemRect(item).center());
                return;
            }
        }
        QFAIL(qPrintable(u"there is no folder "_s + key));
    }
    /// Opens each folder on the way down to the writable one.
    void enterFolder() const
    {
        clickFolder(u"/"_s);
        QString key = u"/"_s;
        const QStringList steps = server.folder().split(u'/', Qt::SkipEmptyParts);
        for (const QString &step : steps)
            clickFolder(key += step + u'/');
    }

    FtpServer server;
    SystemClock clock;
    NetOperations operations{clock};
    FtpBench ftp{&operations};
    QString password = server.password();
    bool passive = true;
    std::unique_ptr<LivingForm> window;
};

} // namespace

/// A whole session with the FTP client: everything is real except the prompts.
class TstFtpSession final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wholeSession_data();
    void wholeSession();
    void wrongPassword();
    void serverGoesAway();
};

void TstFtpSession::wholeSession_data()
{
    QTest::addColumn<FtpServer::Kind>("kind");
    QTest::addColumn<bool>("passive");
    QTest::newRow("vsftpd, passive") << FtpServer::Kind::Vsftpd << true;
    QTest::newRow("vsftpd, active") << FtpServer::Kind::Vsftpd << false;
    QTest::newRow("pyftpdlib, passive") << FtpServer::Kind::Pyftpdlib << true;
    QTest::newRow("pyftpdlib, active") << FtpServer::Kind::Pyftpdlib << false;
}

void TstFtpSession::wholeSession()
{
    QFETCH(FtpServer::Kind, kind);
    QFETCH(bool, passive);
    Bench bench(kind);
    bench.passive = passive;
    bench.server.addFile("a b#c%20;.htm", "<p>one</p>");
    bench.server.addFile("Größe.gif", QByteArray(2048, 'g'));
    bench.choose(u"zConnect"_s);
    QCOMPARE(bench.panel(3), u"Online"_s);
    QCOMPARE(bench.ftp.client->session.ftpRemoteFolder, u"/"_s);
    bench.enterFolder();
    QCOMPARE(bench.names(), (QStringList{u"Größe.gif"_s, u"a b#c%20;.htm"_s}));
    QCOMPARE(bench.panel(2), u"Server: 2 Files in folder: "_s + bench.server.folder() + u"*.*"_s);

    // Downloaded and uploaded again, byte for byte.
    bench.select(u"ListView2"_s, u"a b#c%20;.htm"_s);
    bench.choose(u"zRemDown"_s);
    QCOMPARE(bench.ftp.read(u"a b#c%20;.htm"_s), QByteArray("<p>one</p>"));
    QByteArray bytes;
    for (int i = 0; i < 5000; ++i)
        bytes.append(static_cast<char>(i * 7));
    bench.ftp.write(u"up load.bin"_s, bytes);
    bench.choose(u"zLokRef"_s);
    bench.select(u"ListView1"_s, u"up load.bin"_s);
    bench.choose(u"zLokUp"_s);
    QVERIFY(bench.names().contains(u"up load.bin"_s));
    QFile stored(bench.server.localFolder() + u"up load.bin"_s);
    QVERIFY(stored.open(QIODevice::ReadOnly));
    QCOMPARE(stored.readAll(), bytes);

    // Rename, a pattern, delete.
    bench.select(u"ListView2"_s, u"up load.bin"_s);
    bench.choose(u"zRemRS"_s);
    auto *editor = bench.files(u"ListView2"_s).findChild<QLineEdit *>();
    QVERIFY(editor);
    editor->setText(u"renamed.bin"_s);
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_VERIFY(bench.names().contains(u"renamed.bin"_s));
    QVERIFY(!bench.names().contains(u"up load.bin"_s));
    bench.ftp.world.prompts.expectInput({u"Define file type extension (*.?):"_s, u"Pattern"_s}, u"*.bin"_s);
    bench.choose(u"zDefine2"_s);
    QCOMPARE(bench.names(), QStringList{u"renamed.bin"_s});
    bench.choose(u"zAll2"_s);
    bench.select(u"ListView2"_s, u"renamed.bin"_s);
    bench.ftp.world.prompts.expect(
        {u"Are you sure to delete all of these files?"_s, {}, Question::Icon::Question, Question::Buttons::YesNo},
        Answer::Yes);
    bench.choose(u"zRemDS"_s);
    QCOMPARE(bench.names(), (QStringList{u"Größe.gif"_s, u"a b#c%20;.htm"_s}));
    QVERIFY(!QFile::exists(bench.server.localFolder() + u"renamed.bin"_s));

    // A folder is created and removed.
    bench.ftp.world.prompts.expectInput({u"Type name for the new folder"_s, u"New Folder"_s}, u"new folder"_s);
    bench.choose(u"zRemNF"_s);
    QVERIFY(QFileInfo(bench.server.localFolder() + u"new folder"_s).isDir());
    bench.clickFolder(bench.server.folder() + u"new folder/"_s);
    QCOMPARE(bench.names(), QStringList());
    bench.ftp.world.prompts.expect(
        {u"Are you sure to remove this folder: new folder?"_s, {}, Question::Icon::Question, Question::Buttons::YesNo},
        Answer::Yes);
    bench.choose(u"zRemDF"_s);
    QVERIFY(!QFileInfo::exists(bench.server.localFolder() + u"new folder"_s));
    QCOMPARE(bench.ftp.client->session.ftpRemoteFolder, bench.server.folder());
    QCOMPARE(bench.names().size(), 2);

    bench.choose(u"zDisconnect"_s);
    bench.ftp.world.prompts.expectTell(u"Not connected to any server!"_s);
    bench.choose(u"zRemRef"_s);
    QVERIFY(bench.ftp.world.prompts.verify());
    const QString log = bench.window->get<QPlainTextEdit>(u"txtInfo"_s).toPlainText();
    QVERIFY(log.endsWith(u" > Server disconnected.\n"_s));
    QVERIFY2(!log.contains(bench.password), "a password must not stand in the log");
}

void TstFtpSession::wrongPassword()
{
    Bench bench(FtpServer::Kind::Pyftpdlib);
    bench.password = u"something else"_s;
    bench.ftp.world.prompts.expectTell(u"Connection to server failed!"_s, {}, Question::Icon::Exclamation);
    bench.choose(u"zConnect"_s);
    QVERIFY(!bench.ftp.client->session.isConnected());
    QCOMPARE(bench.panel(3), QString());
    QVERIFY(!bench.window->get<QPlainTextEdit>(u"txtInfo"_s).toPlainText().contains(bench.password));
}

void TstFtpSession::serverGoesAway()
{
    Bench bench(FtpServer::Kind::Pyftpdlib);
    bench.server.addFile("a.htm", "x");
    bench.choose(u"zConnect"_s);
    bench.enterFolder();
    QCOMPARE(bench.names(), QStringList{u"a.htm"_s});
    bench.server.kill();
    bench.select(u"ListView2"_s, u"a.htm"_s);
    bench.ftp.world.prompts.expect(
        {u"Are you sure to delete all of these files?"_s, {}, Question::Icon::Question, Question::Buttons::YesNo},
        Answer::Yes);
    bench.ftp.world.prompts.expectTell(u"An error occured while deleting file!"_s, {}, Question::Icon::Exclamation);
    bench.choose(u"zRemDS"_s);
    QCOMPARE(bench.names(), QStringList{u"a.htm"_s});
    bench.choose(u"zRemRef"_s);
    QCOMPARE(bench.names(), QStringList());
    QVERIFY(bench.panel(2).startsWith(u"Server: 0 Files in folder: "_s));
}

ZEPHIRA_TEST(TstFtpSession)

#include "tst_ftpsession.moc"
