// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/iniconfiguration.h"
#include "settings/frmfa.h"
#include "settings/registerforms.h"
#include "support/diskfiles.h"
#include "support/fakes.h"
#include "support/formkit.h"
#include "support/memoryfiletypes.h"
#include "support/testregistry.h"

#include <QCheckBox>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstFrmFa final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void captions();
    void whatIsLoaded();
    void okBinds();
    void okGivesBack();
    void tickedAndUntickedAgain();
    void untickedAndTickedAgain();
    void cancelWritesNothing_data();
    void cancelWritesNothing();
    void help();
    void aCustomType();
    void aCustomTypeBesideTheDefault();
    void aRefusedCustomType();
    void returnInAField();
    void aFailureIsToldAndTheWindowStays();
    void aRegIniThatCannotBeRead();

private:
    void open();
    QString iniFile() const { return m_folder->path() + u"/reg.ini"_s; }
    QString bound(const QString &category) const { return ReadIni(u"regdata"_s, category, iniFile()); }

    std::unique_ptr<QTemporaryDir> m_folder;
    MemoryFileTypes m_store;
    std::unique_ptr<TestContext> m_world;
    std::unique_ptr<LivingForm> m_form;
};

void TstFrmFa::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_store = {};
    m_world = std::make_unique<TestContext>();
    m_world->context.appPath = m_folder->path();
}

void TstFrmFa::cleanup()
{
    m_form.reset();
    m_world.reset();
    m_folder.reset();
}

void TstFrmFa::open()
{
    m_form.reset();
    FormCatalogue catalogue;
    settings::registerForms(catalogue, m_store, u"/opt/zephira/zephira"_s);
    m_form = std::make_unique<LivingForm>(catalogue, u"frmfa"_s, *m_world);
}

void TstFrmFa::captions()
{
    open();
    QCOMPARE(m_form->widget().windowTitle(), u"File Associations - Zephira."_s);
    QStringList captions;
    for (std::size_t i = 0; i < fileCategories().size(); ++i) {
        const auto &box = m_form->get<QCheckBox>(u"chk_%1"_s.arg(i));
        QCOMPARE(box.text(), fileCategories()[i].caption.toString());
        // The tip names the types.
        for (const CategoryType &type : fileCategories()[i].types)
            QVERIFY2(QString(box.toolTip() + u' ').contains(u'.' + type.extension.toString()), qPrintable(box.text()));
    }
    QCOMPARE(m_form->focus(), u"chk_0"_s);
}

void TstFrmFa::whatIsLoaded()
{
    putFile(iniFile(), "[regdata]\nHTML_Files=1\nText_Files=0\nC/C++_Files=1\nJava_/_Script_Files=2\n");
    open();
    QString ticked;
    for (int i = 0; i < 8; ++i)
        ticked += m_form->value(u"chk_%1"_s.arg(i)) == u"on"_s ? u'1' : u'0';
    QCOMPARE(ticked, u"10000010"_s);
    for (const QString &field : {u"Text1"_s, u"Text2"_s, u"Text3"_s})
        QCOMPARE(m_form->value(field), QString());
    QCOMPARE(m_form->value(u"Text4"_s), m_folder->path() + u"/zephira.ico"_s);
    QCOMPARE(m_form->value(u"Check1"_s), u"off"_s);
}

void TstFrmFa::okBinds()
{
    open();
    m_form->press(u"chk_1"_s);
    m_form->press(u"Command1"_s);
    QVERIFY(!m_form->isOpen());
    QCOMPARE(m_store.committed(u".txt"_s), u"txtfile"_s);
    QCOMPARE(m_store.committed(u"txtfile\\shell\\Open\\command"_s), u"/opt/zephira/zephira %1"_s);
    QCOMPARE(m_store.committed(u"txtfile\\DefaultIcon"_s), m_folder->path() + u"/zephira.ico"_s);
    QCOMPARE(bound(u"Text_Files"_s), u"1"_s);
    QCOMPARE(bound(u"HTML_Files"_s), u"0"_s);

    // A second time with the same boxes.
    const FileTypeKeys before = m_store.kept;
    open();
    m_form->press(u"Command1"_s);
    QVERIFY(m_store.kept == before);
}

void TstFrmFa::okGivesBack()
{
    m_store.kept.setValue(u"txtfile\\shell"_s, {}, {}, u"Read"_s);
    open();
    m_form->press(u"chk_1"_s);
    m_form->press(u"Command1"_s);
    QCOMPARE(m_store.committed(u"txtfile\\shell"_s), u"Open"_s);
    open();
    QCOMPARE(m_form->value(u"chk_1"_s), u"on"_s);
    m_form->press(u"chk_1"_s);
    m_form->press(u"Command1"_s);
    QCOMPARE(m_store.committed(u"txtfile\\shell"_s), u"Read"_s);
    QCOMPARE(bound(u"Text_Files"_s), u"0"_s);
}

void TstFrmFa::tickedAndUntickedAgain()
{
    open();
    m_form->press(u"chk_2"_s);
    m_form->press(u"chk_2"_s);
    m_form->press(u"Command1"_s);
    QCOMPARE(m_store.log, QStringList{u"commit"_s});
    QVERIFY(m_store.kept == FileTypeKeys());
    QCOMPARE(bound(u"Basic_Files"_s), u"0"_s);
}

void TstFrmFa::untickedAndTickedAgain()
{
    putFile(iniFile(), "[regdata]\nBasic_Files=1\n");
    open();
    m_form->press(u"chk_2"_s);
    m_form->press(u"chk_2"_s);
    m_form->press(u"Command1"_s);
    QCOMPARE(m_store.log, QStringList{u"commit"_s});
    QCOMPARE(bound(u"Basic_Files"_s), u"1"_s);
}

void TstFrmFa::cancelWritesNothing_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("button") << false;
    QTest::newRow("Escape") << true;
}

void TstFrmFa::cancelWritesNothing()
{
    QFETCH(bool, byKey);
    open();
    m_form->press(u"chk_0"_s);
    if (byKey)
        m_form->key(Qt::Key_Escape);
    else
        m_form->press(u"Command2"_s);
    QVERIFY(!m_form->isOpen());
    QVERIFY(m_store.log.isEmpty());
    QVERIFY(!QFile::exists(iniFile()));
}

void TstFrmFa::help()
{
    open();
    m_world->prompts.expectTell(
        u"This will setup your File associations\nWith it you can choose which files will be opened by this program. "
        "PLEASE NOTE: IT IS SUGGESTED THAT YOU CUSTOMIZE YOUR EXTENSIONS BELOW TO ENSURE THAT Zephira DOES NOT STOP YOUR "
        "WEB BROWSER FROM OPENING!!"_s,
        u"Help.."_s, Question::Icon::Question);
    m_form->press(u"Command3"_s);
    QVERIFY(m_form->isOpen());
}

void TstFrmFa::aCustomType()
{
    open();
    m_form->type(u"Text1"_s, u"zzz"_s);
    m_form->type(u"Text2"_s, u"Sleepy file"_s);
    m_form->type(u"Text3"_s, u"Wake it up"_s);
    m_form->type(u"Text4"_s, u"/i/zzz.ico"_s);
    m_form->press(u"Check1"_s);
    m_world->prompts.expectTell(u"The extension 'zzz' will now be opened by Zephira"_s, {},
                                Question::Icon::Information);
    m_form->press(u"Command4"_s);
    QVERIFY(m_form->isOpen());
    QCOMPARE(m_store.committed(u".zzz"_s), u"zzzfile"_s);
    QCOMPARE(m_store.committed(u"zzzfile"_s), u"Sleepy file"_s);
    QCOMPARE(m_store.committed(u"zzzfile\\DefaultIcon"_s), u"/i/zzz.ico"_s);
    QCOMPARE(m_store.committed(u"zzzfile\\shell"_s), u"Wake_it_up"_s);
    QCOMPARE(m_store.committed(u"zzzfile\\shell\\Wake_it_up\\command"_s), u"/opt/zephira/zephira %1"_s);
    QVERIFY(m_store.kept.contains(u".zzz\\ShellNew"_s));
    QVERIFY(!m_store.kept.contains(u"zzzfile\\QuickView"_s));
}

void TstFrmFa::aCustomTypeBesideTheDefault()
{
    m_store.kept.setValue(u"zzzfile\\shell"_s, {}, {}, u"Sleep"_s);
    open();
    m_form->type(u"Text1"_s, u"zzz"_s);
    m_form->type(u"Text3"_s, u"Wake"_s);
    m_world->prompts.expectTell(u"The extension 'zzz' will now be opened by Zephira"_s, {},
                                Question::Icon::Information);
    m_form->press(u"Command4"_s);
    QCOMPARE(m_store.committed(u"zzzfile\\shell"_s), u"Sleep"_s);
    QCOMPARE(m_store.committed(u"zzzfile\\shell\\Wake\\command"_s), u"/opt/zephira/zephira %1"_s);
    QCOMPARE(m_store.committed(u"zzzfile\\DefaultIcon"_s), m_folder->path() + u"/zephira.ico"_s);
}

void TstFrmFa::aRefusedCustomType()
{
    open();
    m_form->type(u"Text1"_s, u"a/b"_s);
    m_form->type(u"Text3"_s, u"Open"_s);
    m_world->prompts.expectTell(u"An error has occured"_s, {}, Question::Icon::Critical);
    m_world->prompts.expectTell(u"\"a/b\" can't be an extension. Please enter one without a period, such as htm."_s,
                                u"File Associations - Zephira."_s, Question::Icon::Exclamation);
    m_form->press(u"Command4"_s);
    QVERIFY(m_form->isOpen());
    QVERIFY(m_store.kept == FileTypeKeys());
    QCOMPARE(m_form->value(u"Text1"_s), u"a/b"_s);
}

void TstFrmFa::returnInAField()
{
    open();
    m_form->type(u"Text3"_s, u"Open"_s);
    m_form->type(u"Text1"_s, u"zzz"_s);
    m_world->prompts.expectTell(u"The extension 'zzz' will now be opened by Zephira"_s, {},
                                Question::Icon::Information);
    m_form->key(Qt::Key_Return);
    QVERIFY(m_form->isOpen());
    m_form->get(u"chk_0"_s).setFocus();
    m_form->key(Qt::Key_Return);
    QVERIFY(!m_form->isOpen());
    QCOMPARE(bound(u"HTML_Files"_s), u"0"_s);
}

void TstFrmFa::aFailureIsToldAndTheWindowStays()
{
    m_store.unwritable = Error{Error::Code::Unwritable, u"The disk is full."_s};
    open();
    m_form->press(u"chk_1"_s);
    m_world->prompts.expectTell(u"The disk is full."_s, u"File Associations - Zephira."_s, Question::Icon::Exclamation);
    m_form->press(u"Command1"_s);
    QVERIFY(m_form->isOpen());
    QCOMPARE(m_form->value(u"chk_1"_s), u"on"_s);
    QCOMPARE(bound(u"Text_Files"_s), QString());
    m_store.unwritable.reset();
    m_form->press(u"Command1"_s);
    QVERIFY(!m_form->isOpen());
    QCOMPARE(bound(u"Text_Files"_s), u"1"_s);
}

void TstFrmFa::aRegIniThatCannotBeRead()
{
    QVERIFY(QDir().mkpath(iniFile()));
    const QString sentence = boundCategories({m_folder->path(), {}}).error().sentence;
    for (int i = 0; i < 2; ++i)
        m_world->prompts.expectTell(sentence, u"File Associations - Zephira."_s, Question::Icon::Exclamation);
    open();
    m_form->press(u"chk_1"_s);
    m_form->press(u"Command1"_s);
    QVERIFY(m_form->isOpen());
    QVERIFY(m_store.log.isEmpty());
}

ZEPHIRA_TEST(TstFrmFa)
#include "tst_frmfa.moc"
