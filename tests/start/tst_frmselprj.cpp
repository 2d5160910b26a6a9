// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/recoverycopies.h"
#include "start/registerforms.h"
#include "start/templates.h"
#include "support/fakes.h"
#include "support/formkit.h"
#include "support/testregistry.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstFrmSelPrj : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void tabs();
    void captions();
    void pictures();
    void switchIsRead_data();
    void switchIsRead();
    void switchIsWrittenAtOnce();
    void cancel();
    void tabKey_data();
    void tabKey();
    void templateButton_data();
    void templateButton();
    void languageButtonKeepsTheText();
    void missingTemplate();
    void customTemplates();
    void customTemplate_data();
    void customTemplate();
    void customTemplateByKeyboard();
    void emptyCustomTemplateKeepsTheText();
    void customTemplateThatIsGone();
    void renaming();
    void renamingToTheOwnName();
    void refusedName_data();
    void refusedName();
    void renamingWithEscape();
    void unsavedTextIsKept();
    void unsavedTextThatCannotBeKeptStays();
    void pictureAsATemplate();
    void noTemplates();
    void tenThousandTemplates();
    void closingWhileALabelIsEdited();

private:
    void open();
    void addCustom(const QString &name, const QByteArray &content = "text");
    void doubleClick(const QString &row);
    void rename(const QString &row, const QString &name);
    QStringList rows() const;

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<TestContext> m_world;
    std::unique_ptr<RecoveryCopies> m_recovery;
    std::unique_ptr<LivingForm> m_form;
};

void TstFrmSelPrj::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_world = std::make_unique<TestContext>();
    m_world->context.appPath = m_folder->path();
    m_recovery = std::make_unique<RecoveryCopies>(m_folder->filePath(u"recovery"_s), m_world->files, m_world->clock);
    m_world->editor.setText(u"before"_s);
    m_world->document.row = 4;
}

void TstFrmSelPrj::cleanup()
{
    m_form.reset();
    m_recovery.reset();
    m_world.reset();
}

void TstFrmSelPrj::open()
{
    FormCatalogue catalogue;
    start::registerForms(catalogue, *m_recovery);
    m_form = std::make_unique<LivingForm>(catalogue, u"frmselprj"_s, *m_world);
}

/// Adds a file both to the disk, where the list finds it, and to the file store, from which the form reads it.
void TstFrmSelPrj::addCustom(const QString &name, const QByteArray &content)
{
    const QString folder = m_folder->filePath(u"templates/custom"_s);
    QVERIFY(QDir().mkpath(folder));
    QVERIFY(QFile(folder + u'/' + name).open(QIODevice::WriteOnly));
    m_world->files.contents[folder + u'/' + name] = content;
}

void TstFrmSelPrj::doubleClick(const QString &row)
{
    m_form->get<QTabWidget>(u"SSTab1"_s).setCurrentIndex(5);
    auto &list = m_form->get<QListWidget>(u"ListView2"_s);
    const auto items = list.findItems(row, Qt::MatchExactly);
    QCOMPARE(items.size(), 1);
    const QPoint place = list.visualItemRect(items.first()).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place);
}

void TstFrmSelPrj::rename(const QString &row, const QString &name)
{
    m_form->get<QTabWidget>(u"SSTab1"_s).setCurrentIndex(5);
    auto &list = m_form->get<QListWidget>(u"ListView2"_s);
    QListWidgetItem *item = list.findItems(row, Qt::MatchExactly).value(0);
    QVERIFY(item);
    list.setCurrentItem(item);
    list.editItem(item);
    auto *label = list.viewport()->findChild<QLineEdit *>();
    QVERIFY(label);
    label->setText(name);
    QTest::keyClick(label, Qt::Key_Return);
    QTRY_VERIFY(!list.isPersistentEditorOpen(item) && !list.viewport()->findChild<QLineEdit *>());
}

QStringList TstFrmSelPrj::rows() const
{
    const auto &list = m_form->get<QListWidget>(u"ListView2"_s);
    QStringList texts;
    for (int row = 0; row < list.count(); ++row)
        texts.append(list.item(row)->text());
    return texts;
}

void TstFrmSelPrj::tabs()
{
    open();
    const auto &tabs = m_form->get<QTabWidget>(u"SSTab1"_s);
    QStringList captions;
    for (int i = 0; i < tabs.count(); ++i)
        captions.append(tabs.tabText(i));
    QCOMPARE(captions,
             (QStringList{u"HTML"_s, u"Frames"_s, u"CSS"_s, u"Web"_s, u"Win32"_s, u"User Templates"_s, u"Wizards"_s}));
    QCOMPARE(tabs.currentIndex(), 0);
    QCOMPARE(m_form->widget().windowTitle(), u"Select Template"_s);
    QCOMPARE(m_form->value(u"CancelButton"_s), u"Cancel"_s);
    QCOMPARE(m_form->get<QAbstractButton>(u"Check1"_s).text(), u"Show this dialog every time this program loads"_s);
}

void TstFrmSelPrj::captions()
{
    open();
    auto &tabs = m_form->get<QTabWidget>(u"SSTab1"_s);
    for (const TemplateButton &row : templateButtons()) {
        const auto &button = m_form->get<QPushButton>(row.name.toString());
        QCOMPARE(button.text(), row.caption.toString());
        QCOMPARE(button.parentWidget(), tabs.widget(static_cast<int>(row.page)));
    }
}

void TstFrmSelPrj::pictures()
{
    open();
    QSet<QByteArray> seen;
    for (const TemplateButton &row : templateButtons()) {
        if (row.page != TemplatePage::Frames)
            continue;
        const auto &button = m_form->get<QPushButton>(row.name.toString());
        QVERIFY(!button.icon().isNull());
        QVERIFY(!button.accessibleName().isEmpty());
        const QImage image = button.icon().pixmap(button.iconSize()).toImage();
        seen.insert(QByteArray(reinterpret_cast<const char *>(image.constBits()), image.sizeInBytes()));
    }
    QCOMPARE(seen.size(), 8);
}

void TstFrmSelPrj::switchIsRead_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("ticked");
    QTest::newRow("1") << u"1"_s << u"on"_s;
    QTest::newRow("0") << u"0"_s << u"off"_s;
    QTest::newRow("missing") << u""_s << u"off"_s;
    QTest::newRow("other") << u"01"_s << u"off"_s;
}

void TstFrmSelPrj::switchIsRead()
{
    QFETCH(QString, value);
    m_world->configuration.put(u"startup"_s, u"selprj"_s, value);
    open();
    QTEST(m_form->value(u"Check1"_s), "ticked");
    QVERIFY(m_world->configuration.log.isEmpty());
}

void TstFrmSelPrj::switchIsWrittenAtOnce()
{
    m_world->configuration.put(u"Startup"_s, u"selprj"_s, u"1"_s);
    open();
    m_form->press(u"Check1"_s);
    QCOMPARE(m_world->configuration.log, QStringList{u"[Startup] selprj=0"_s});
    QVERIFY(m_form->isOpen());
    m_form->press(u"Check1"_s);
    QCOMPARE(m_world->configuration.log.value(1), u"[Startup] selprj=1"_s);
}

void TstFrmSelPrj::cancel()
{
    open();
    m_form->press(u"CancelButton"_s);
    QVERIFY(!m_form->isOpen());
    QCOMPARE(m_world->editor.text(), u"before"_s);
    QCOMPARE(m_world->document.row, 4);
    QVERIFY(m_world->configuration.log.isEmpty());
}

void TstFrmSelPrj::tabKey_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<QStringList>("controls");
    QStringList buttons[5];
    for (const TemplateButton &row : templateButtons())
        buttons[static_cast<int>(row.page)].append(row.name.toString());
    for (int page = 0; page < 5; ++page)
        QTest::addRow("page %d", page) << page << buttons[page];
    QTest::newRow("user templates") << 5 << QStringList{u"ListView2"_s};
    QTest::newRow("wizards") << 6 << QStringList{u"ListView1"_s};
}

/// The tab key goes from the tabs through the page in front to what stands below it, and around; Shift+Tab goes back.
void TstFrmSelPrj::tabKey()
{
    QFETCH(int, page);
    QFETCH(QStringList, controls);
    open();
    auto &tabs = m_form->get<QTabWidget>(u"SSTab1"_s);
    tabs.setCurrentIndex(page);
    tabs.tabBar()->setFocus();
    controls.append({u"Check1"_s, u"CancelButton"_s});
    for (const QString &control : std::as_const(controls)) {
        m_form->key(Qt::Key_Tab);
        QCOMPARE(m_form->focus(), control);
    }
    m_form->key(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), tabs.tabBar());
    m_form->key(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(m_form->focus(), u"CancelButton"_s);
}

void TstFrmSelPrj::templateButton_data()
{
    QTest::addColumn<int>("index");
    const auto buttons = templateButtons();
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        if (!buttons[i].file.isEmpty())
            QTest::newRow(qPrintable(buttons[i].name.toString())) << static_cast<int>(i);
    }
}

void TstFrmSelPrj::templateButton()
{
    QFETCH(int, index);
    const TemplateButton &row = templateButtons()[static_cast<std::size_t>(index)];
    m_world->files.contents[m_folder->filePath(u"templates/"_s + row.file.toString())] = "one\ntwo";
    open();
    m_form->get<QTabWidget>(u"SSTab1"_s).setCurrentIndex(static_cast<int>(row.page));
    m_form->press(row.name.toString());
    QCOMPARE(m_world->editor.text(), u"one\r\ntwo"_s);
    QCOMPARE(m_form->get(u"temp"_s).property("Text").toString(), u"one\r\ntwo"_s);
    QCOMPARE(m_world->document.row, row.language);
    QVERIFY(!m_form->isOpen());
}

void TstFrmSelPrj::languageButtonKeepsTheText()
{
    for (const auto &[name, language] : {std::pair(u"Command28"_s, 2), {u"Command34"_s, 5}, {u"Command35"_s, 6}}) {
        open();
        m_form->get<QTabWidget>(u"SSTab1"_s).setCurrentIndex(4);
        m_form->press(name);
        QCOMPARE(m_world->editor.text(), u"before"_s);
        QCOMPARE(m_world->document.row, language);
        QVERIFY(!m_form->isOpen());
    }
}

void TstFrmSelPrj::missingTemplate()
{
    open();
    m_world->prompts.expectTell(u"The template file \"faq.html\" was not found in the folder\r\n"_s
                                    + m_folder->filePath(u"templates"_s),
                                u"Select Template"_s, Question::Icon::Critical);
    m_form->press(u"Command3"_s);
    QVERIFY(m_form->isOpen());
    QCOMPARE(m_world->editor.text(), u"before"_s);
    QCOMPARE(m_world->document.row, 4);
}

void TstFrmSelPrj::customTemplates()
{
    addCustom(u"letter.html"_s);
    addCustom(u"Notes.txt"_s);
    open();
    const auto &list = m_form->get<QListWidget>(u"ListView2"_s);
    QCOMPARE(list.count(), 2);
    QCOMPARE(list.item(0)->text(), u"letter.html"_s);
    QCOMPARE(list.item(1)->text(), u"Notes.txt"_s);
    QVERIFY(!list.item(0)->icon().isNull());
}

void TstFrmSelPrj::customTemplate_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("editorLanguage");
    QTest::newRow("page") << u"letter.html"_s << 1 << u"none"_s;
    QTest::newRow("C") << u"main.c"_s << 2 << u"c/c++"_s;
    QTest::newRow("header") << u"main.h"_s << 2 << u"c/c++"_s;
    QTest::newRow("unknown") << u"letter.xyz"_s << 4 << u"none"_s;
    QTest::newRow("SQL isn't among them") << u"query.sql"_s << 4 << u"none"_s;
}

void TstFrmSelPrj::customTemplate()
{
    QFETCH(QString, name);
    addCustom(name);
    m_world->editor.languageName = u"none"_s;
    open();
    doubleClick(name);
    QCOMPARE(m_world->editor.text(), u"text"_s);
    QTEST(m_world->document.row, "row");
    QTEST(m_world->editor.languageName, "editorLanguage");
    QVERIFY(!m_form->isOpen());
}

void TstFrmSelPrj::customTemplateByKeyboard()
{
    addCustom(u"letter.html"_s);
    open();
    m_form->get<QTabWidget>(u"SSTab1"_s).setCurrentIndex(5);
    auto &list = m_form->get<QListWidget>(u"ListView2"_s);
    list.setFocus();
    list.setCurrentRow(0);
    QTest::keyClick(&list, Qt::Key_Return);
    QCOMPARE(m_world->editor.text(), u"text"_s);
    QVERIFY(!m_form->isOpen());
}

void TstFrmSelPrj::emptyCustomTemplateKeepsTheText()
{
    addCustom(u"empty.css"_s, "");
    open();
    doubleClick(u"empty.css"_s);
    QCOMPARE(m_world->editor.text(), u"before"_s);
    QCOMPARE(m_world->document.row, 8);
    QVERIFY(!m_form->isOpen());
}

void TstFrmSelPrj::customTemplateThatIsGone()
{
    addCustom(u"letter.html"_s);
    open();
    m_world->files.contents.clear();
    m_world->prompts.expectTell(u"The template file \"letter.html\" was not found in the folder\r\n"_s
                                    + m_folder->filePath(u"templates/custom"_s),
                                u"Select Template"_s, Question::Icon::Critical);
    doubleClick(u"letter.html"_s);
    QVERIFY(m_form->isOpen());
}

void TstFrmSelPrj::renaming()
{
    addCustom(u"letter.html"_s);
    open();
    rename(u"letter.html"_s, u"mail.html"_s);
    const QString folder = m_folder->filePath(u"templates/custom/"_s);
    QTRY_COMPARE(m_world->files.log,
                 (QStringList{u"write "_s + folder + u"mail.html"_s, u"remove "_s + folder + u"letter.html"_s}));
    QCOMPARE(rows(), QStringList{u"mail.html"_s});
    QVERIFY(m_form->isOpen());
    doubleClick(u"mail.html"_s);
    QCOMPARE(m_world->editor.text(), u"text"_s);
}

void TstFrmSelPrj::renamingToTheOwnName()
{
    addCustom(u"letter.html"_s);
    open();
    rename(u"letter.html"_s, u"letter.html"_s);
    // What is left is the recovery copy.
    QTRY_COMPARE(m_world->files.contents.size(), 1U);
    QTRY_VERIFY(m_world->files.contents.begin()->first.startsWith(m_folder->filePath(u"recovery/disk-"_s)));
    QCOMPARE(m_world->files.contents.begin()->second, "text");
    QCOMPARE(m_world->files.log.size(), 3);
}

void TstFrmSelPrj::refusedName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("message");
    const QString folder = u"A template's name can't contain a folder: "_s;
    QTest::newRow("out of the folder") << u"../up.html"_s << folder + u"../up.html"_s;
    QTest::newRow("backslash") << u"a\\b.html"_s << folder + u"a\\b.html"_s;
    QTest::newRow("tab") << u"a\tb.html"_s
                         << u"A template's name can't contain a line end, a tab or any other control character."_s;
    QTest::newRow("no name") << u""_s << u"A template must have a name."_s;
}

void TstFrmSelPrj::refusedName()
{
    QFETCH(QString, name);
    QFETCH(QString, message);
    addCustom(u"letter.html"_s);
    open();
    bool told = false;
    m_world->prompts.expect({message, u"Select Template"_s, Question::Icon::Critical, Question::Buttons::Ok},
                            Answer::Ok, [&told] { told = true; });
    rename(u"letter.html"_s, name);
    QTRY_VERIFY(told);
    QVERIFY(m_world->files.log.isEmpty());
    QCOMPARE(rows(), QStringList{u"letter.html"_s});
}

void TstFrmSelPrj::renamingWithEscape()
{
    addCustom(u"letter.html"_s);
    open();
    m_form->get<QTabWidget>(u"SSTab1"_s).setCurrentIndex(5);
    auto &list = m_form->get<QListWidget>(u"ListView2"_s);
    list.setCurrentRow(0);
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_F2);
    auto *label = list.viewport()->findChild<QLineEdit *>();
    QVERIFY(label);
    QTest::keyClicks(label, u"other"_s);
    QTest::keyClick(label, Qt::Key_Escape);
    QTRY_VERIFY(!list.viewport()->findChild<QLineEdit *>());
    QCoreApplication::processEvents();
    QVERIFY(m_world->files.log.isEmpty());
    QCOMPARE(rows(), QStringList{u"letter.html"_s});
    QVERIFY(m_form->isOpen());
}

void TstFrmSelPrj::unsavedTextIsKept()
{
    m_world->files.contents[m_folder->filePath(u"templates/blank.html"_s)] = "page";
    m_world->document.modified = true;
    open();
    m_form->press(u"Command2"_s);
    QCOMPARE(m_world->editor.text(), u"page"_s);
    QVERIFY(!m_form->isOpen());
    const QStringList log = m_world->files.log;
    QCOMPARE(log.size(), 1);
    QVERIFY2(log.first().startsWith(u"write "_s + m_folder->filePath(u"recovery/open-"_s)), qPrintable(log.first()));
    QCOMPARE(m_world->files.contents.at(log.first().sliced(6)), "before");
}

void TstFrmSelPrj::unsavedTextThatCannotBeKeptStays()
{
    addCustom(u"letter.html"_s);
    m_world->document.modified = true;
    QVERIFY(QFile(m_folder->filePath(u"file"_s)).open(QIODevice::WriteOnly));
    const QString impossible = m_folder->filePath(u"file/recovery"_s);
    m_recovery = std::make_unique<RecoveryCopies>(impossible, m_world->files, m_world->clock);
    open();
    m_world->prompts.expectTell(
        u"The document's text was not replaced, because its unsaved changes could not be backed up. The file \"%1\" could "
        "not be saved: a part of its path is not a folder."_s.arg(impossible),
        u"Select Template"_s, Question::Icon::Critical);
    doubleClick(u"letter.html"_s);
    QCOMPARE(m_world->editor.text(), u"before"_s);
    QCOMPARE(m_world->document.row, 4);
    QVERIFY(m_form->isOpen());
}

void TstFrmSelPrj::pictureAsATemplate()
{
    addCustom(u"logo.png"_s, QByteArray("\x89PNG\0", 5));
    open();
    m_world->prompts.expectTell(u"The template file \"logo.png\" is not a text file."_s, u"Select Template"_s,
                                Question::Icon::Critical);
    doubleClick(u"logo.png"_s);
    QCOMPARE(m_world->editor.text(), u"before"_s);
    QVERIFY(m_form->isOpen());
}

void TstFrmSelPrj::noTemplates()
{
    open();
    m_form->get<QTabWidget>(u"SSTab1"_s).setCurrentIndex(5);
    QVERIFY(m_form->get(u"lblNoTemplates"_s).isVisible());
    m_form.reset();
    addCustom(u"letter.html"_s);
    open();
    m_form->get<QTabWidget>(u"SSTab1"_s).setCurrentIndex(5);
    QVERIFY(!m_form->get(u"lblNoTemplates"_s).isVisible());
}

void TstFrmSelPrj::tenThousandTemplates()
{
    for (int i = 0; i < 10'000; ++i)
        addCustom(u"page%1.html"_s.arg(i, 5, 10, QChar(u'0')));
    QElapsedTimer time;
    time.start();
    open();
    m_form->get<QTabWidget>(u"SSTab1"_s).setCurrentIndex(5);
    auto &list = m_form->get<QListWidget>(u"ListView2"_s);
    list.setFocus();
    m_form->key(Qt::Key_End);
    QCOMPARE(list.currentRow(), 9999);
    QVERIFY2(time.elapsed() < 5000, qPrintable(QString::number(time.elapsed())));
    rename(u"page09999.html"_s, u"last.html"_s);
    QTRY_COMPARE(list.item(9999)->text(), u"last.html"_s);
    doubleClick(u"page00000.html"_s);
    QCOMPARE(m_world->document.row, 1);
}

void TstFrmSelPrj::closingWhileALabelIsEdited()
{
    addCustom(u"letter.html"_s);
    open();
    m_form->get<QTabWidget>(u"SSTab1"_s).setCurrentIndex(5);
    auto &list = m_form->get<QListWidget>(u"ListView2"_s);
    list.editItem(list.item(0));
    m_form.reset();
    QVERIFY(m_world->files.log.isEmpty());
}

ZEPHIRA_TEST(TstFrmSelPrj)
#include "tst_frmselprj.moc"
