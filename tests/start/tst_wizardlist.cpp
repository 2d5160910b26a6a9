// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/itemroles.h"
#include "files/recoverycopies.h"
#include "plugins/modulebench.h"
#include "start/registerforms.h"
#include "support/fakes.h"
#include "support/formkit.h"
#include "support/testregistry.h"
#include "widgets/filelistbox.h"

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace zephira;

/// The wizards of the start dialog, as real modules.
class TstWizardList final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_bench = std::make_unique<ModuleBench>();
        m_world = std::make_unique<TestContext>();
        m_world->context.appPath = m_bench->path();
        m_recovery = std::make_unique<RecoveryCopies>(m_bench->path() + u"/recovery"_s, m_world->files, m_world->clock);
        m_world->editor.setText(u"before"_s);
        m_world->document.row = 4;
    }

    void cleanup()
    {
        m_form.reset();
        m_recovery.reset();
        m_world.reset();
    }

    /// The wizard that comes last is at the top; the search ends at the first bad one.
    void rows()
    {
        open({u"c-throwstitle.so"_s, u"b.2.so"_s, u"d.so"_s, u"a.so"_s});
        const auto &list = m_form->get<QListWidget>(u"ListView1"_s);
        QCOMPARE(list.count(), 2);
        QCOMPARE(list.item(0)->text(), u"b"_s);
        QCOMPARE(list.item(0)->data(KeyRole), u"b"_s);
        QCOMPARE(list.item(1)->text(), u"a"_s);
        QVERIFY(!list.item(0)->icon().isNull());
        const auto &files = m_form->get<FileListBox>(u"filePlugin"_s);
        QCOMPARE(files.path(), m_bench->path() + u"/wizards"_s);
        QCOMPARE(files.pattern(), u"*.so"_s);
        QVERIFY(m_form->get(u"lblNoWizards"_s).isVisible());
        QCOMPARE(m_form->value(u"lblNoWizards"_s),
                 u"The search ended at c-throwstitle.so. The module has raised an error: a bad citizen."_s);
    }

    void noNoteIfAllAreThere()
    {
        open({u"a.so"_s, u"b.so"_s});
        QVERIFY(!m_form->get(u"lblNoWizards"_s).isVisible());
    }

    void noWizards()
    {
        open({});
        QCOMPARE(m_form->get<QListWidget>(u"ListView1"_s).count(), 0);
        QVERIFY(m_form->get(u"lblNoWizards"_s).isVisible());
    }

    void run_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("language");
        QTest::addColumn<bool>("stays");
        QTest::newRow("done at once") << u"plain"_s << u"[plain]"_s << 8 << false;
        QTest::newRow("works a while") << u"works"_s << u"[works]"_s << 8 << false;
        QTest::newRow("nothing to say") << u"silent"_s << u"before"_s << 4 << true;
        QTest::newRow("throws") << u"throwsstart"_s << u"before"_s << 4 << true;
        QTest::newRow("throws its text") << u"throwstext"_s << u"before"_s << 4 << true;
        QTest::newRow("vanishes") << u"vanishes"_s << u"before"_s << 4 << true;
        QTest::newRow("throws its language") << u"throwslanguage"_s << u"[throwslanguage]"_s << 4 << true;
        QTest::newRow("a language too far") << u"farlanguage"_s << u"[farlanguage]"_s << 4 << true;
    }

    void run()
    {
        QFETCH(QString, name);
        open({name + u".so"_s});
        takeLog();
        doubleClick(name);
        QTEST(m_world->editor.text(), "text");
        QTEST(m_world->document.row, "language");
        QTEST(m_form->isOpen(), "stays");
        const QStringList log = takeLog();
        QCOMPARE(log.first(), u"new "_s + name);
        QCOMPARE(log.last(), u"delete "_s + name);
    }

    void byKeyboard()
    {
        open({u"a.so"_s, u"b.so"_s});
        auto &list = m_form->get<QListWidget>(u"ListView1"_s);
        list.setFocus();
        list.setCurrentRow(1);
        m_form->key(Qt::Key_Return);
        QCOMPARE(m_world->editor.text(), u"[a]"_s);
        QVERIFY(!m_form->isOpen());
    }

    void unsavedTextIsKept()
    {
        m_world->document.modified = true;
        open({u"a.so"_s});
        doubleClick(u"a"_s);
        QCOMPARE(m_world->editor.text(), u"[a]"_s);
        const auto isCopy = [](const auto &file) { return file.second == "before"; };
        QCOMPARE(std::ranges::count_if(m_world->files.contents, isCopy), 1);
    }

    void unsavedTextThatCannotBeKeptStays()
    {
        m_world->document.modified = true;
        QVERIFY(QFile(m_bench->path() + u"/file"_s).open(QIODevice::WriteOnly));
        const QString impossible = m_bench->path() + u"/file/recovery"_s;
        m_recovery = std::make_unique<RecoveryCopies>(impossible, m_world->files, m_world->clock);
        open({u"a.so"_s});
        m_world->prompts.expectTell(
            u"The document's text was not replaced, because its unsaved changes could not be backed up. The file \"%1\" could "
            "not be saved: a part of its path is not a folder."_s.arg(impossible),
            u"Select Template"_s, Question::Icon::Critical);
        doubleClick(u"a"_s);
        QCOMPARE(m_world->editor.text(), u"before"_s);
        QCOMPARE(m_world->document.row, 4);
        QVERIFY(m_form->isOpen());
    }

    /// The dialog is closed while the wizard works: nothing comes of it.
    void cancelledWhileOneWorks()
    {
        open({u"endless.so"_s});
        QTimer::singleShot(30, this, [this] { m_form->press(u"CancelButton"_s); });
        doubleClick(u"endless"_s);
        QVERIFY(!m_form->isOpen());
        QCOMPARE(m_world->editor.text(), u"before"_s);
        QVERIFY(takeLog().count(u"endless.start"_s) > 2);
    }

    void theShippedWizard()
    {
        const auto dialog = openModal();
        const auto fillIn = [](QDialog &form) {
            QVERIFY(QApplication::activeModalWidget() == &form);
            auto *ok = form.findChild<QPushButton *>(u"cmdOK"_s);
            QVERIFY(!ok->isEnabled());
            QTest::keyClicks(form.focusWidget(), u"Bees"_s);
            QVERIFY(ok->isEnabled());
            form.findChild<QPlainTextEdit *>(u"txtDescription"_s)->setPlainText(u"A year with bees"_s);
            QTest::keyClick(form.focusWidget(), Qt::Key_Return);
        };
        whenAsked(fillIn);
        doubleClick(*dialog->findChild<QListWidget *>(u"ListView1"_s), u"Article Page"_s);
        QVERIFY(!dialog->isVisible());
        QVERIFY(m_world->editor.text().startsWith(u"<!DOCTYPE html>\r\n<html lang=\"en\">\r\n"_s));
        QVERIFY(m_world->editor.text().contains(u"<h1>Bees</h1>\r\n      <p>A year with bees</p>\r\n"_s));
        QCOMPARE(m_world->document.row, 1);
    }

    void theShippedWizardCancelled()
    {
        const auto dialog = openModal();
        whenAsked([](QDialog &form) { QTest::keyClick(&form, Qt::Key_Escape); });
        doubleClick(*dialog->findChild<QListWidget *>(u"ListView1"_s), u"Article Page"_s);
        QVERIFY(dialog->isVisible());
        QCOMPARE(m_world->editor.text(), u"before"_s);
        QCOMPARE(QApplication::activeModalWidget(), dialog.get());
    }

    /// The start dialog is closed from outside, for example because the program ends; the wizard's form goes with it.
    void theShippedWizardLosesItsDialog()
    {
        const auto dialog = openModal();
        whenAsked([&dialog](QDialog &) { dialog->reject(); });
        doubleClick(*dialog->findChild<QListWidget *>(u"ListView1"_s), u"Article Page"_s);
        QVERIFY(!dialog->isVisible());
        QVERIFY(!QApplication::activeModalWidget());
        QCOMPARE(m_world->editor.text(), u"before"_s);
    }

private:
    /// Opens the form with these wizards, on their tab.
    void open(const QStringList &modules)
    {
        for (const QString &name : modules)
            m_bench->wizard(name);
        m_form = std::make_unique<LivingForm>(catalogue(), u"frmselprj"_s, *m_world);
        m_form->get<QTabWidget>(u"SSTab1"_s).setCurrentIndex(6);
    }

    /// Opens the form with the shipped wizard, modally, as the program does; other modal windows may come.
    std::unique_ptr<QDialog> openModal() const
    {
        m_bench->wizard(u"article.so"_s, testmodule::article());
        std::unique_ptr<QDialog> dialog(
            qobject_cast<QDialog *>(catalogue().make(u"frmselprj"_s, m_world->context, nullptr)));
        dialog->findChild<QTabWidget *>(u"SSTab1"_s)->setCurrentIndex(6);
        dialog->open();
        return dialog;
    }

    FormCatalogue catalogue() const
    {
        FormCatalogue catalogue;
        start::registerForms(catalogue, *m_recovery);
        return catalogue;
    }

    void doubleClick(const QString &row) const { doubleClick(m_form->get<QListWidget>(u"ListView1"_s), row); }

    static void doubleClick(QListWidget &list, const QString &row)
    {
        const auto items = list.findItems(row, Qt::MatchExactly);
        QCOMPARE(items.size(), 1);
        const QPoint place = list.visualItemRect(items.first()).center();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place);
    }

    /// Calls the function as soon as the wizard's form is there and takes keys.
    void whenAsked(const std::function<void(QDialog &)> &act)
    {
        QTimer::singleShot(5, this, [this, act] {
            const QWidgetList windows = QApplication::topLevelWidgets();
            for (QWidget *window : windows) {
                if (window->objectName() == u"ArticleForm" && window->isVisible() && window->focusWidget())
                    return act(*static_cast<QDialog *>(window));
            }
            whenAsked(act);
        });
    }

    std::unique_ptr<ModuleBench> m_bench;
    std::unique_ptr<TestContext> m_world;
    std::unique_ptr<RecoveryCopies> m_recovery;
    std::unique_ptr<LivingForm> m_form;
};

ZEPHIRA_TEST(TstWizardList)
#include "tst_wizardlist.moc"
