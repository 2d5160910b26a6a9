// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/itemroles.h"
#include "ftp/frmconnect.h"
#include "ftp/ftpbench.h"
#include "ftp/recordingdesk.h"
#include "support/testregistry.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

const QString anonymous = u"anonymous"_s;
const QString placeholder = u"anonymous@example.com"_s;

/// The form with a recording desk and some profiles in the program folder.
struct Bench : FtpBench {
    RecordingDesk desk;
    FormCatalogue forms;
    std::unique_ptr<LivingForm> form;

    Bench()
    {
        forms.add(u"FrmConnect"_s, [this](const AppContext &world, QWidget *owner) -> QWidget * {
            return new FrmConnect(*client, desk, world, owner);
        });
        write(u"home.ftp"_s,
              "[PROFIL]\r\nsname=My Home\r\nadresa=home.example.com\r\nID=me\r\npass=secret\r\nport=2121\r\n");
        write(u"mirror.ftp"_s, "[PROFIL]\r\nsname=mirror\r\nadresa=mirror.example.com\r\nID=anonymous\r\nport=21\r\n");
        write(u"readme.txt"_s, "no profile");
    }

    LivingForm &open()
    {
        form = std::make_unique<LivingForm>(forms, u"FrmConnect"_s, context);
        return *form;
    }
    QTreeWidget &tree() const { return form->get<QTreeWidget>(u"TView1"_s); }
    QStringList profiles() const
    {
        QStringList names;
        for (int i = 0; i < tree().topLevelItem(0)->childCount(); ++i)
            names.append(tree().topLevelItem(0)->child(i)->text(0));
        return names;
    }
    QTreeWidgetItem *node(const QString &text) const
    {
        return tree().findItems(text, Qt::MatchExactly | Qt::MatchRecursive).value(0);
    }
    void click(const QString &text) const
    {
        const QRect place = tree().visualItemRect(node(text));
        QTest::mouseClick(tree().viewport(), Qt::LeftButton, {}, place.center());
    }
    /// The texts of the five fields and the states of the two boxes.
    QStringList values() const
    {
        QStringList texts;
        for (const QString &name :
             {u"txtSiteName"_s, u"txtServer"_s, u"txtUser"_s, u"txtPass"_s, u"txtPort"_s, u"Check1"_s, u"Check2"_s})
            texts.append(form->value(name));
        return texts;
    }
    bool canDelete() const { return form->get<QPushButton>(u"Command5"_s).isEnabled(); }
    void expectSaved() { world.prompts.expectTell(u"Profil Saved"_s); }
};

} // namespace

class TstFrmConnect final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults();
    void load();
    void loadAnonymous();
    void loadWhatIsGone();
    void loadWithTheKeys();
    void root();
    void tickAnonymous();
    void typedUser_data();
    void typedUser();
    void typingWithoutTheTick();
    void startNew();
    void whatDisablesDelete_data();
    void whatDisablesDelete();
    void services();
    void save();
    void saveNeedsTwoFields_data();
    void saveNeedsTwoFields();
    void saveWithoutPassword();
    void saveUnderAnotherName();
    void saveWhereNothingCanBeWritten();
    void deleteProfile();
    void deleteNotSure();
    void deleteKey();
    void deleteKeyOnTheRoot();
    void cancel_data();
    void cancel();
    void shortServer();
    void connectToServer();
    void connectWithOtherRadios();
    void nameOfTheAgent();
    void wrongPort_data();
    void wrongPort();
    void failedConnection_data();
    void failedConnection();
    void withoutTheWindow();
};

void TstFrmConnect::defaults()
{
    Bench bench;
    bench.open();
    QCOMPARE(bench.values(), (QStringList{{}, {}, anonymous, placeholder, u"21"_s, u"on"_s, u"off"_s}));
    for (const QString &name : {u"Option1"_s, u"Option3"_s, u"Option6"_s})
        QCOMPARE(bench.form->value(name), u"on"_s);
    QVERIFY(!bench.form->get<QWidget>(u"Option7"_s).isEnabled());
    QVERIFY(!bench.canDelete());
    QCOMPARE(bench.tree().topLevelItemCount(), 1);
    QCOMPARE(bench.tree().topLevelItem(0)->text(0), u"Profiles"_s);
    QCOMPARE(bench.tree().topLevelItem(0)->data(0, KeyRole).toString(), u"r"_s);
    QVERIFY(bench.tree().topLevelItem(0)->isExpanded());
    QCOMPARE(bench.profiles(), (QStringList{u"home.ftp"_s, u"mirror.ftp"_s}));
    QVERIFY(!bench.node(u"home.ftp"_s)->data(0, KeyRole).isValid());
    QVERIFY(bench.form->get<QWidget>(u"File1"_s).isHidden());
    QCOMPARE(bench.form->get<QLineEdit>(u"txtPass"_s).echoMode(), QLineEdit::Password);
}

void TstFrmConnect::load()
{
    Bench bench;
    bench.open();
    bench.click(u"home.ftp"_s);
    QCOMPARE(bench.values(),
             (QStringList{u"My Home"_s, u"home.example.com"_s, u"me"_s, u"secret"_s, u"2121"_s, u"off"_s, u"on"_s}));
    QVERIFY(bench.canDelete());
}

void TstFrmConnect::loadAnonymous()
{
    Bench bench;
    bench.open();
    bench.click(u"home.ftp"_s);
    bench.click(u"mirror.ftp"_s);
    QCOMPARE(bench.values(),
             (QStringList{u"mirror"_s, u"mirror.example.com"_s, anonymous, {}, u"21"_s, u"on"_s, u"off"_s}));
    QVERIFY(bench.canDelete());
}

void TstFrmConnect::loadWhatIsGone()
{
    Bench bench;
    bench.open();
    QVERIFY(QFile::remove(bench.path(u"home.ftp"_s)));
    bench.click(u"home.ftp"_s);
    QCOMPARE(bench.values(), (QStringList{{}, {}, {}, {}, {}, u"off"_s, u"off"_s}));
}

void TstFrmConnect::loadWithTheKeys()
{
    Bench bench;
    bench.open();
    bench.click(u"Profiles"_s);
    bench.form->key(Qt::Key_Down);
    QCOMPARE(bench.form->value(u"txtSiteName"_s), u"My Home"_s);
    QVERIFY(bench.canDelete());
}

void TstFrmConnect::root()
{
    Bench bench;
    bench.open();
    bench.click(u"home.ftp"_s);
    bench.click(u"Profiles"_s);
    QVERIFY(!bench.canDelete());
    QCOMPARE(bench.form->value(u"txtSiteName"_s), u"My Home"_s);
}

void TstFrmConnect::tickAnonymous()
{
    Bench bench;
    bench.open();
    bench.form->press(u"Check1"_s);
    QCOMPARE(bench.values(), (QStringList{{}, {}, {}, {}, u"21"_s, u"off"_s, u"off"_s}));
    bench.form->press(u"Check1"_s);
    QCOMPARE(bench.values(), (QStringList{{}, {}, anonymous, placeholder, u"21"_s, u"on"_s, u"off"_s}));
}

void TstFrmConnect::typedUser_data()
{
    QTest::addColumn<QString>("box");
    QTest::newRow("user") << u"txtUser"_s;
    QTest::newRow("password") << u"txtPass"_s;
}

void TstFrmConnect::typedUser()
{
    QFETCH(QString, box);
    Bench bench;
    bench.open();
    auto &line = bench.form->get<QLineEdit>(box);
    QTest::keyClicks(&line, u"b"_s);
    QCOMPARE(bench.values(), (QStringList{{}, {}, {}, {}, u"21"_s, u"off"_s, u"off"_s}));
    QTest::keyClicks(&line, u"ob"_s);
    QCOMPARE(line.text(), u"ob"_s);
}

void TstFrmConnect::typingWithoutTheTick()
{
    Bench bench;
    bench.open();
    bench.click(u"home.ftp"_s);
    QTest::keyClicks(&bench.form->get<QLineEdit>(u"txtUser"_s), u"x"_s);
    QCOMPARE(bench.form->value(u"txtUser"_s), u"mex"_s);
    QCOMPARE(bench.form->value(u"txtPass"_s), u"secret"_s);
}

void TstFrmConnect::startNew()
{
    Bench bench;
    bench.open();
    bench.click(u"mirror.ftp"_s);
    bench.form->set(u"txtPort"_s, u"99"_s);
    bench.form->press(u"Command2"_s);
    QCOMPARE(bench.values(), (QStringList{{}, {}, anonymous, placeholder, u"21"_s, u"on"_s, u"off"_s}));
    QVERIFY(!bench.canDelete());
    bench.click(u"home.ftp"_s);
    bench.form->press(u"Command2"_s);
    QCOMPARE(bench.values(), (QStringList{{}, {}, {}, {}, u"21"_s, u"off"_s, u"on"_s}));
}

void TstFrmConnect::whatDisablesDelete_data()
{
    QTest::addColumn<QString>("control");
    for (const QString &name : {u"Check1"_s, u"Check2"_s, u"Option2"_s, u"Command2"_s})
        QTest::newRow(qPrintable(name)) << name;
}

void TstFrmConnect::whatDisablesDelete()
{
    QFETCH(QString, control);
    Bench bench;
    bench.open();
    bench.click(u"home.ftp"_s);
    QVERIFY(bench.canDelete());
    bench.form->press(control);
    QVERIFY(!bench.canDelete());
}

void TstFrmConnect::services()
{
    Bench bench;
    bench.open();
    bench.form->press(u"Option5"_s);
    QCOMPARE(bench.form->value(u"txtPort"_s), u"80"_s);
    QCOMPARE(bench.form->value(u"Label2"_s), u"HTTP://"_s);
    bench.form->press(u"Option6"_s);
    QCOMPARE(bench.form->value(u"txtPort"_s), u"21"_s);
    QCOMPARE(bench.form->value(u"Label2"_s), u"FTP://"_s);
}

void TstFrmConnect::save()
{
    Bench bench;
    bench.open();
    bench.form->press(u"Check1"_s);
    bench.form->set(u"txtSiteName"_s, u"Größe"_s);
    bench.form->type(u"txtServer"_s, u"ftp.example.com"_s);
    bench.form->type(u"txtUser"_s, u"you"_s);
    bench.form->type(u"txtPass"_s, u"pass word"_s);
    bench.form->press(u"Check2"_s);
    bench.expectSaved();
    bench.form->press(u"Command1"_s);
    QCOMPARE(bench.read(u"Größe.ftp"_s),
             QByteArray("[PROFIL]\r\nsname=Größe\r\nadresa=ftp.example.com\r\nID=you\r\n"
                        "pass=pass word\r\nport=21\r\n"));
    QCOMPARE(bench.profiles(), (QStringList{u"Größe.ftp"_s, u"home.ftp"_s, u"mirror.ftp"_s}));
    QVERIFY(!bench.canDelete());
    QVERIFY(bench.form->isOpen());
}

void TstFrmConnect::saveNeedsTwoFields_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("server");
    QTest::newRow("none") << QString() << QString();
    QTest::newRow("no server") << u"x"_s << QString();
    QTest::newRow("no name") << QString() << u"ftp.example.com"_s;
}

void TstFrmConnect::saveNeedsTwoFields()
{
    QFETCH(QString, name);
    QFETCH(QString, server);
    Bench bench;
    bench.open();
    bench.form->set(u"txtSiteName"_s, name);
    bench.form->set(u"txtServer"_s, server);
    bench.world.prompts.expectTell(u"Fill something in the first two text boxes!"_s, {}, Question::Icon::Exclamation);
    bench.form->press(u"Command1"_s);
    QCOMPARE(QDir(bench.folder.path()).entryList({u"*.ftp"_s}).size(), 2);
}

void TstFrmConnect::saveWithoutPassword()
{
    Bench bench;
    bench.write(u"My Home.ftp"_s, bench.read(u"home.ftp"_s));
    bench.open();
    bench.click(u"My Home.ftp"_s);
    bench.form->press(u"Check2"_s);
    bench.expectSaved();
    bench.form->press(u"Command1"_s);
    QVERIFY(bench.read(u"My Home.ftp"_s).contains("\r\npass=\r\n"));
    bench.click(u"My Home.ftp"_s);
    QCOMPARE(bench.form->value(u"txtPass"_s), QString());
    QCOMPARE(bench.form->value(u"Check2"_s), u"off"_s);
}

void TstFrmConnect::saveUnderAnotherName()
{
    Bench bench;
    const QByteArray before = bench.read(u"home.ftp"_s);
    bench.open();
    bench.click(u"home.ftp"_s);
    bench.form->set(u"txtSiteName"_s, u"other"_s);
    bench.expectSaved();
    bench.form->press(u"Command1"_s);
    QCOMPARE(bench.profiles(), (QStringList{u"home.ftp"_s, u"mirror.ftp"_s, u"other.ftp"_s}));
    QCOMPARE(bench.read(u"home.ftp"_s), before);
}

void TstFrmConnect::saveWhereNothingCanBeWritten()
{
    Bench bench;
    bench.open();
    bench.form->set(u"txtSiteName"_s, u"no/such/folder"_s);
    bench.form->set(u"txtServer"_s, u"ftp.example.com"_s);
    bench.expectSaved();
    bench.form->press(u"Command1"_s);
    QCOMPARE(bench.profiles(), (QStringList{u"home.ftp"_s, u"mirror.ftp"_s}));
}

void TstFrmConnect::deleteProfile()
{
    Bench bench;
    bench.open();
    bench.click(u"home.ftp"_s);
    bench.world.prompts.expect({u"Are you sure you want to delete this profile: home.ftp?"_s,
                                {},
                                Question::Icon::None,
                                Question::Buttons::YesNo},
                               Answer::Yes);
    bench.form->press(u"Command5"_s);
    QCOMPARE(bench.profiles(), QStringList{u"mirror.ftp"_s});
    QVERIFY(!QFile::exists(bench.path(u"home.ftp"_s)));
    QVERIFY(!bench.canDelete());
}

void TstFrmConnect::deleteNotSure()
{
    Bench bench;
    bench.open();
    bench.click(u"home.ftp"_s);
    bench.world.prompts.expect({u"Are you sure you want to delete this profile: home.ftp?"_s,
                                {},
                                Question::Icon::None,
                                Question::Buttons::YesNo},
                               Answer::No);
    bench.form->press(u"Command5"_s);
    QVERIFY(QFile::exists(bench.path(u"home.ftp"_s)));
    QVERIFY(bench.canDelete());
}

void TstFrmConnect::deleteKey()
{
    Bench bench;
    bench.open();
    bench.click(u"mirror.ftp"_s);
    bench.form->press(u"Option2"_s);
    QVERIFY(!bench.canDelete());
    bench.world.prompts.expect({u"Are you sure you want to delete this profile: mirror.ftp?"_s,
                                {},
                                Question::Icon::None,
                                Question::Buttons::YesNo},
                               Answer::Yes);
    QTest::keyClick(&bench.tree(), Qt::Key_Delete);
    QCOMPARE(bench.profiles(), QStringList{u"home.ftp"_s});
}

void TstFrmConnect::deleteKeyOnTheRoot()
{
    Bench bench;
    bench.open();
    QTest::keyClick(&bench.tree(), Qt::Key_Delete); // Nothing is selected yet.
    bench.click(u"Profiles"_s);
    bench.world.prompts.expect({u"Are you sure you want to delete this profile: Profiles?"_s,
                                {},
                                Question::Icon::None,
                                Question::Buttons::YesNo},
                               Answer::Yes);
    const Result<void> removed = bench.files.remove(bench.path(u"Profiles"_s));
    bench.world.prompts.expect({u"An error has occured at: FrmConnect in Procedure: Command5_Click\r\n"
                                "The error is as follows: "_s
                                    + removed.error().sentence
                                    + u"\r\nPlease Report this to the Zephira. team\r\n"
                                      "Click OK to continue, Cancel to Exit the current SUB"_s,
                                {},
                                Question::Icon::Critical,
                                Question::Buttons::OkCancel},
                               Answer::Ok);
    QTest::keyClick(&bench.tree(), Qt::Key_Delete);
    QCOMPARE(bench.profiles().size(), 2);
    QVERIFY(bench.form->isOpen());
}

void TstFrmConnect::cancel_data()
{
    QTest::addColumn<bool>("escape");
    QTest::newRow("button") << false;
    QTest::newRow("Escape") << true;
}

void TstFrmConnect::cancel()
{
    QFETCH(bool, escape);
    Bench bench;
    bench.open();
    if (escape)
        bench.form->key(Qt::Key_Escape);
    else
        bench.form->press(u"Command4"_s);
    QVERIFY(!bench.form->isOpen());
    QVERIFY(bench.operations.log.isEmpty());
}

void TstFrmConnect::shortServer()
{
    Bench bench;
    bench.open();
    bench.form->set(u"txtServer"_s, u"abc.de"_s);
    bench.world.prompts.expectTell(u"Wrong adress!"_s, {}, Question::Icon::None);
    bench.form->press(u"Command3"_s);
    QVERIFY(bench.form->isOpen());
    QVERIFY(bench.desk.calls.isEmpty());
    QVERIFY(bench.operations.log.isEmpty());
    bench.form->set(u"txtServer"_s, u"ab c ??"_s);
    bench.form->press(u"Command3"_s);
    QVERIFY(!bench.form->isOpen());
    QCOMPARE(bench.client->session.ftpServer, u"ab c ??"_s);
}

void TstFrmConnect::connectToServer()
{
    Bench bench;
    bench.desk.logged = u"older"_s;
    bench.client->session.ftpRemoteFolder = u"/old/"_s;
    bench.open();
    bench.click(u"home.ftp"_s);
    bool wasHidden = false;
    bench.operations.onCall = [&](const QString &call) {
        if (call.startsWith(u"InternetConnectA"))
            wasHidden = !bench.form->isOpen();
    };
    bench.form->press(u"Command3"_s);
    QVERIFY(wasHidden);
    QVERIFY(!bench.form->isOpen());
    QCOMPARE(bench.operations.log,
             (QStringList{u"InternetOpenA(\"My Home\", 1, \"\", \"\", 0x4000000)"_s,
                          u"InternetConnectA(1, \"home.example.com\", 2121, \"me\", \"secret\", 1, 0x8000000, 0)"_s,
                          u"FtpGetCurrentDirectoryA(2, 260)"_s}));
    QCOMPARE(bench.desk.calls, (QStringList{u"clearRemoteTree"_s, u"addRemoteRoot"_s, u"List"_s}));
    QVERIFY(!bench.desk.logged.contains(u"older"_s));
    QCOMPARE(bench.client->session.ftpPort, qint16(2121));
    QCOMPARE(bench.client->session.ftpRemoteFolder, u"/"_s);
}

void TstFrmConnect::connectWithOtherRadios()
{
    Bench bench;
    bench.open();
    bench.form->set(u"txtServer"_s, u"www.example.com"_s);
    bench.form->press(u"Option2"_s);
    bench.form->press(u"Option4"_s);
    bench.form->press(u"Option5"_s);
    bench.form->press(u"Command3"_s);
    QCOMPARE(bench.operations.log[1],
             u"InternetConnectA(1, \"www.example.com\", 80, \"anonymous\", "
             "\"anonymous@example.com\", 1, 0x20000000, 0)"_s);
    QCOMPARE(bench.client->session.ftpTransferType, 1);
}

void TstFrmConnect::nameOfTheAgent()
{
    Bench bench;
    bench.open();
    bench.form->set(u"txtServer"_s, u"ftp.example.com"_s);
    bench.form->press(u"Command3"_s);
    QCOMPARE(bench.operations.log[0], u"InternetOpenA(\"Zephira\", 1, \"\", \"\", 0x4000000)"_s);
    QVERIFY(bench.desk.logged.contains(u" *** ZEPHIRA ***\r\n"_s));
}

void TstFrmConnect::wrongPort_data()
{
    QTest::addColumn<QString>("port");
    QTest::addColumn<QString>("error");
    QTest::newRow("word") << u"ftp"_s << u"Type mismatch"_s;
    QTest::newRow("empty") << QString() << u"Type mismatch"_s;
    QTest::newRow("too large") << u"32768"_s << u"Overflow"_s;
}

void TstFrmConnect::wrongPort()
{
    QFETCH(QString, port);
    QFETCH(QString, error);
    Bench bench;
    bench.open();
    bench.form->set(u"txtServer"_s, u"ftp.example.com"_s);
    bench.form->set(u"txtPort"_s, port);
    bench.world.prompts.expect({u"An error has occured at: FrmConnect in Procedure: Command3_Click\r\n"
                                "The error is as follows: "_s
                                    + error
                                    + u"\r\nPlease Report this to the Zephira. team\r\n"
                                      "Click OK to continue, Cancel to Exit the current SUB"_s,
                                {},
                                Question::Icon::Critical,
                                Question::Buttons::OkCancel},
                               Answer::Ok);
    bench.form->press(u"Command3"_s);
    QVERIFY(bench.form->isOpen());
    QVERIFY(bench.operations.log.isEmpty());
}

void TstFrmConnect::failedConnection_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QString>("message");
    QTest::newRow("service") << u"InternetOpenA"_s << u"Connection to service failed!"_s;
    QTest::newRow("server") << u"InternetConnectA"_s << u"Connection to server failed!"_s;
}

void TstFrmConnect::failedConnection()
{
    QFETCH(QString, operation);
    QFETCH(QString, message);
    Bench bench;
    bench.operations.failures[operation] = 1;
    bench.open();
    bench.form->set(u"txtServer"_s, u"ftp.example.com"_s);
    bench.world.prompts.expectTell(message, {}, Question::Icon::Exclamation);
    bench.form->press(u"Command3"_s);
    QVERIFY2(!bench.form->isOpen(), "the dialog stays hidden");
    QVERIFY(!bench.client->session.isConnected());
}

void TstFrmConnect::withoutTheWindow()
{
    Bench bench;
    bench.form = std::make_unique<LivingForm>(bench.catalogue, u"FrmConnect"_s, bench.context);
    QVERIFY(!bench.form->get<QPushButton>(u"Command3"_s).isEnabled());
}

ZEPHIRA_TEST(TstFrmConnect)

#include "tst_frmconnect.moc"
