// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "wizards/wizardbench.h"

#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <functional>
#include <memory>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

using Work = std::function<void(QWidget &)>;

template<typename T>
T &in(QWidget &form, const QString &name)
{
    return *form.findChild<T *>(name);
}

/// The meta tag wizard over a program folder of its own, which has an empty folder for saved tags.
struct MetaBench {
    QTemporaryDir program;
    WizardBench wizard{u"frmMeta"_s, [this](TestContext &world) { world.context.appPath = program.path(); }};

    MetaBench() { QDir(program.path()).mkdir(u"Tags"_s); }

    QString tags() const { return program.filePath(u"Tags"_s); }
    void put(const QString &name, const QByteArray &content) const
    {
        QFile file(tags() + u'/' + name);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(content), content.size());
    }
    QByteArray get(const QString &name) const
    {
        QFile file(tags() + u'/' + name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
    }

    /// Presses a button of the wizard and works the companion that it opens, which is destroyed afterwards.
    void workOn(const QString &button, const QString &companion, const Work &work)
    {
        QString opened;
        wizard.world.forms.onOpen = [&](const QString &form) {
            opened = form;
            const std::unique_ptr<QWidget> shown(
                wizardCatalogue().make(form, wizard.world.context, &wizard.form.widget()));
            shown->show();
            work(*shown);
        };
        wizard.form.press(button);
        wizard.world.forms.onOpen = {};
        QCOMPARE(opened, companion);
    }
    void workOnSaving(const Work &work) { workOn(u"Command1"_s, u"frmsavetags"_s, work); }
    void workOnLoading(const Work &work) { workOn(u"Command2"_s, u"frmloadtags"_s, work); }

    void fill(const QStringList &texts) const
    {
        const QStringList boxes{u"txtDesc"_s, u"txtKeyWords"_s, u"txtAuthor"_s, u"txtCopy"_s};
        for (qsizetype i = 0; i < boxes.size(); ++i)
            wizard.form.set(boxes[i], texts[i]);
    }
    QStringList texts() const
    {
        return {wizard.form.value(u"txtDesc"_s), wizard.form.value(u"txtKeyWords"_s), wizard.form.value(u"txtAuthor"_s),
                wizard.form.value(u"txtCopy"_s)};
    }
};

const QStringList typed{u"d"_s, u"k"_s, u"a"_s, u"c"_s};
const QStringList nothing{{}, {}, {}, {}};
constexpr auto savedFile = "[Saved Tags]\r\nDesc=d\r\nKeywords=k\r\nAuthor=a\r\ncright=c\r\n";

QStringList entries(QWidget &form)
{
    const auto &list = in<QListWidget>(form, u"File1"_s);
    QStringList names;
    for (int row = 0; row < list.count(); ++row)
        names.append(list.item(row)->text());
    return names;
}

} // namespace

/// The meta tag wizard with its two companions, worked as by a user.
class TstMetaWizard final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults()
    {
        const MetaBench bench;
        QCOMPARE(bench.texts(), nothing);
        QCOMPARE(bench.wizard.form.focus(), u"txtDesc"_s);
    }

    void theTagsReplaceTheSelection()
    {
        const MetaBench bench;
        bench.fill({u"A shop"_s, u"tea"_s, u"me"_s, u"2002"_s});
        bench.wizard.form.press(u"Command4"_s);
        QVERIFY(!bench.wizard.form.isOpen());
        QCOMPARE(bench.wizard.inserted(),
                 QStringList{u"<META NAME=\"description\" content=\"A shop\"> \r\n"
                             "<META NAME=\"keywords\" content=\"tea\">\r\n<META NAME=\"author\" content=\"me\">\r\n"
                             "<META NAME=\"Copyright\" content=\"2002\">"_s});
    }

    void byKeyboard()
    {
        const MetaBench bench;
        const LivingForm &form = bench.wizard.form;
        QTest::keyClicks(&form.get(u"txtDesc"_s), u"one"_s);
        form.key(Qt::Key_Return);
        QTest::keyClicks(&form.get(u"txtDesc"_s), u"two"_s);
        form.key(Qt::Key_Tab);
        QCOMPARE(form.focus(), u"txtKeyWords"_s);
        form.key(Qt::Key_Tab);
        QCOMPARE(form.focus(), u"txtAuthor"_s);
        form.key(Qt::Key_Return);
        QVERIFY(!form.isOpen());
        QCOMPARE(bench.wizard.inserted().size(), 1);
        QVERIFY(bench.wizard.inserted().first().startsWith(u"<META NAME=\"description\" content=\"one\r\ntwo\"> \r\n"));
    }

    void cancelInsertsNothing()
    {
        for (const bool escape : {false, true}) {
            const MetaBench bench;
            bench.fill(typed);
            if (escape)
                bench.wizard.form.key(Qt::Key_Escape);
            else
                bench.wizard.form.press(u"Command3"_s);
            QVERIFY(!bench.wizard.form.isOpen());
            QCOMPARE(bench.wizard.inserted(), QStringList());
            QCOMPARE(bench.wizard.world.editor.text(), u"<p>chosen</p>"_s);
        }
    }

    void aBoxThatTakesTheFocusIsSelected()
    {
        const MetaBench bench;
        const LivingForm &form = bench.wizard.form;
        bench.fill({u"one\r\ntwo"_s, u"key words"_s, u"the author"_s, u"the owner"_s});
        const auto selected = [&](const QString &box) {
            if (const auto *lines = qobject_cast<QPlainTextEdit *>(&form.get(box)))
                return lines->textCursor().selectedText().size();
            return form.get<QLineEdit>(box).selectedText().size();
        };
        const QStringList boxes{u"txtKeyWords"_s, u"txtAuthor"_s, u"txtCopy"_s, u"txtDesc"_s};
        const QList<qsizetype> lengths{9, 10, 9, 7};
        for (qsizetype i = 0; i < boxes.size(); ++i) {
            form.get(boxes[i]).setFocus(i % 2 ? Qt::TabFocusReason : Qt::ShortcutFocusReason);
            QCOMPARE(selected(boxes[i]), lengths[i]);
        }
        for (qsizetype i = 0; i < boxes.size(); ++i) {
            QWidget *target = &form.get(boxes[i]);
            if (auto *lines = qobject_cast<QPlainTextEdit *>(target))
                target = lines->viewport();
            QTest::mouseClick(target, Qt::LeftButton, {}, QPoint(10, 8));
            QTRY_COMPARE(selected(boxes[i]), lengths[i]);
            // A second click puts the caret.
            QTest::qWait(QApplication::doubleClickInterval() + 50);
            QTest::mouseClick(target, Qt::LeftButton, {}, QPoint(10, 8));
            QCoreApplication::processEvents();
            QCOMPARE(selected(boxes[i]), 0);
        }
    }

    void aSelectionOutlivesAMenu()
    {
        const MetaBench bench;
        bench.fill({u"one two"_s, {}, {}, {}});
        auto &box = bench.wizard.form.get<QPlainTextEdit>(u"txtDesc"_s);
        box.setFocus();
        QTextCursor caret = box.textCursor();
        caret.setPosition(3);
        box.setTextCursor(caret);
        for (const Qt::FocusReason reason : {Qt::PopupFocusReason, Qt::ActiveWindowFocusReason}) {
            QFocusEvent back(QEvent::FocusIn, reason);
            QCoreApplication::sendEvent(&box, &back);
            QVERIFY(!box.textCursor().hasSelection());
            QCOMPARE(box.textCursor().position(), 3);
        }
    }

    void anyTextFits()
    {
        const MetaBench bench;
        const QString text = QString(100'000, u'x') + u"\0\x01\"\u00a0\U0001F600"_s;
        for (const QString &box : {u"txtDesc"_s, u"txtKeyWords"_s})
            bench.wizard.form.get<QPlainTextEdit>(box).insertPlainText(text);
        for (const QString &box : {u"txtAuthor"_s, u"txtCopy"_s})
            bench.wizard.form.get<QLineEdit>(box).insert(text);
        bench.wizard.form.press(u"Command4"_s);
        QCOMPARE(bench.wizard.inserted().size(), 1);
        QCOMPARE(bench.wizard.inserted().first().count(u'"' + text + u'"'), 4);
    }

    void tagsAreSavedUnderAName()
    {
        MetaBench bench;
        bench.fill(typed);
        bench.workOnSaving([&](QWidget &form) {
            QCOMPARE(form.windowTitle(), u"Save Tags"_s);
            QTest::keyClicks(&in<QLineEdit>(form, u"Text1"_s), u"my shop"_s);
            QTest::keyClick(&in<QLineEdit>(form, u"Text1"_s), Qt::Key_Return);
            QVERIFY(!form.isVisible());
        });
        QCOMPARE(bench.get(u"my shop.smt"_s), savedFile);
        QVERIFY(bench.wizard.form.isOpen());
        // Without a question a file of that name gets the new values.
        bench.wizard.form.set(u"txtAuthor"_s, u"other"_s);
        bench.workOnSaving([&](QWidget &form) {
            in<QLineEdit>(form, u"Text1"_s).setText(u"my shop"_s);
            in<QPushButton>(form, u"Command2"_s).click();
        });
        QCOMPARE(bench.get(u"my shop.smt"_s), QByteArray(savedFile).replace("Author=a", "Author=other"));
        // An empty name is a name.
        bench.workOnSaving([](QWidget &form) { in<QPushButton>(form, u"Command2"_s).click(); });
        QVERIFY(bench.get(u".smt"_s).contains("Author=other"));
    }

    void closedWithoutSaving()
    {
        MetaBench bench;
        bench.fill(typed);
        bench.workOnSaving([](QWidget &form) {
            QTest::keyClicks(&in<QLineEdit>(form, u"Text1"_s), u"x"_s);
            QTest::keyClick(&form, Qt::Key_Escape);
            QVERIFY(!form.isVisible());
        });
        QCOMPARE(QDir(bench.tags()).entryList(QDir::Files | QDir::Hidden), QStringList());
    }

    void savingWithoutTheFolderIsSilent()
    {
        MetaBench bench;
        QVERIFY(QDir().rmdir(bench.tags()));
        bench.workOnSaving([](QWidget &form) {
            in<QPushButton>(form, u"Command2"_s).click();
            QVERIFY(!form.isVisible());
        });
        QVERIFY(!QFileInfo::exists(bench.tags()));
    }

    void aFailedSaveIsToldAndCanBeRepeated()
    {
        MetaBench bench;
        bench.fill(typed);
        bench.workOnSaving([&](QWidget &form) {
            auto &name = in<QLineEdit>(form, u"Text1"_s);
            name.setText(u"a/b"_s);
            bench.wizard.world.prompts.expectTell(u"\"a/b.smt\" can't be the name of a file."_s, u"Save Tags"_s,
                                                  Question::Icon::Exclamation);
            in<QPushButton>(form, u"Command2"_s).click();
            QVERIFY(form.isVisible());
            QCOMPARE(name.text(), u"a/b"_s);
            name.setText(u"a-b"_s);
            in<QPushButton>(form, u"Command2"_s).click();
            QVERIFY(!form.isVisible());
        });
        QVERIFY(bench.wizard.world.prompts.verify());
        QCOMPARE(bench.get(u"a-b.smt"_s), savedFile);
        QCOMPARE(bench.texts(), typed);
    }

    void aFileInsteadOfTheFolderIsTold()
    {
        MetaBench bench;
        bench.fill(typed);
        QVERIFY(QDir().rmdir(bench.tags()));
        QFile file(bench.tags());
        QVERIFY(file.open(QIODevice::WriteOnly));
        ScriptedPrompts &prompts = bench.wizard.world.prompts;
        bench.workOnSaving([&](QWidget &form) {
            prompts.expectTell(
                u"The file \"%1/.smt\" could not be saved: a part of its path is not a folder."_s.arg(bench.tags()),
                u"Save Tags"_s, Question::Icon::Exclamation);
            in<QPushButton>(form, u"Command2"_s).click();
            QVERIFY(form.isVisible());
        });
        bench.workOnLoading([&](QWidget &form) {
            QCOMPARE(entries(form), QStringList());
            prompts.expectTell(
                u"The file \"%1/Text1\" could not be read: a part of its path is not a folder."_s.arg(bench.tags()),
                u"Load Tags"_s, Question::Icon::Exclamation);
            in<QPushButton>(form, u"Command1"_s).click();
            QVERIFY(form.isVisible());
        });
        QVERIFY(prompts.verify());
        QCOMPARE(bench.texts(), typed);
    }

    void theListShowsTheFolder()
    {
        MetaBench bench;
        for (const QString &name :
             {u"b.smt"_s, u"A.SMT"_s, u".smt"_s, u".hidden.smt"_s, u"c.smt.txt"_s, u"smt"_s, u"ü ö.smt"_s})
            bench.put(name, savedFile);
        QVERIFY(QDir(bench.tags()).mkdir(u"folder.smt"_s));
        bench.workOnLoading([&](QWidget &form) {
            QCOMPARE(entries(form), (QStringList{u".hidden.smt"_s, u".smt"_s, u"A.SMT"_s, u"b.smt"_s, u"ü ö.smt"_s}));
            const auto &list = in<QListWidget>(form, u"File1"_s);
            QVERIFY(list.selectedItems().isEmpty());
            QCOMPARE(list.property("Path").toString(), bench.tags());
            QCOMPARE(list.property("Pattern").toString(), u"*.smt"_s);
            QCOMPARE(list.property("FileName").toString(), QString());
            QVERIFY(!in<QLineEdit>(form, u"Text1"_s).isVisible());
            QCOMPARE(in<QLineEdit>(form, u"Text1"_s).text(), u"Text1"_s);
        });
    }

    void aClickPicksAndTheButtonLoads()
    {
        MetaBench bench;
        bench.put(u"a.smt"_s, "[Saved Tags]\r\nDesc=x\r\n");
        bench.put(u"b.smt"_s, savedFile);
        bench.fill({u"1"_s, u"2"_s, u"3"_s, u"4"_s});
        bench.workOnLoading([&](QWidget &form) {
            auto &list = in<QListWidget>(form, u"File1"_s);
            QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(1)).center());
            QCOMPARE(in<QLineEdit>(form, u"Text1"_s).text(), u"b.smt"_s);
            QCOMPARE(list.property("FileName").toString(), u"b.smt"_s);
            in<QPushButton>(form, u"Command1"_s).click();
            QVERIFY(!form.isVisible());
        });
        QCOMPARE(bench.texts(), typed);
        QVERIFY(bench.wizard.form.isOpen());
    }

    void pickedAndLoadedByKeyboard()
    {
        MetaBench bench;
        bench.put(u"a.smt"_s, savedFile);
        bench.put(u"b.smt"_s, "[Saved Tags]\r\nDesc=second\r\n");
        bench.workOnLoading([&](QWidget &form) {
            auto &list = in<QListWidget>(form, u"File1"_s);
            list.setFocus(Qt::TabFocusReason);
            QTest::keyClick(&list, Qt::Key_Down);
            QCOMPARE(in<QLineEdit>(form, u"Text1"_s).text(), u"a.smt"_s);
            QTest::keyClick(&list, Qt::Key_Down);
            QCOMPARE(in<QLineEdit>(form, u"Text1"_s).text(), u"b.smt"_s);
            QTest::keyClick(&list, Qt::Key_Up);
            QTest::keyClick(&list, Qt::Key_Return);
            QVERIFY(!form.isVisible());
        });
        QCOMPARE(bench.texts(), typed);
    }

    void withoutAChoiceAllBoxesAreEmptied()
    {
        MetaBench bench;
        bench.put(u"a.smt"_s, savedFile);
        bench.fill({u"1"_s, u"2"_s, u"3"_s, u"4"_s});
        bench.workOnLoading([&](QWidget &form) {
            QTest::keyClick(&form, Qt::Key_Return);
            QVERIFY(!form.isVisible());
        });
        QCOMPARE(bench.texts(), nothing);
        // A file that has this name is read.
        bench.put(u"Text1"_s, savedFile);
        bench.workOnLoading([](QWidget &form) { in<QPushButton>(form, u"Command1"_s).click(); });
        QCOMPARE(bench.texts(), typed);
        QVERIFY(QFile::remove(bench.tags() + u"/Text1"_s));
        QVERIFY(QFile::remove(bench.tags() + u"/a.smt"_s));
        QVERIFY(QDir().rmdir(bench.tags()));
        bench.workOnLoading([](QWidget &form) { in<QPushButton>(form, u"Command1"_s).click(); });
        QCOMPARE(bench.texts(), nothing);
    }

    void aFileWithoutTheSectionEmptiesAllBoxes()
    {
        MetaBench bench;
        bench.put(u"a.smt"_s, "Desc=x\r\n");
        bench.fill(typed);
        bench.workOnLoading([](QWidget &form) {
            in<QListWidget>(form, u"File1"_s).setCurrentRow(0);
            in<QPushButton>(form, u"Command1"_s).click();
        });
        QCOMPARE(bench.texts(), nothing);
    }

    void closedWithoutLoading()
    {
        MetaBench bench;
        bench.put(u"a.smt"_s, "[Saved Tags]\r\nDesc=x\r\n");
        bench.fill(typed);
        bench.workOnLoading([](QWidget &form) {
            in<QListWidget>(form, u"File1"_s).setCurrentRow(0);
            QTest::keyClick(&form, Qt::Key_Escape);
            QVERIFY(!form.isVisible());
        });
        QCOMPARE(bench.texts(), typed);
    }

    void aFileThatCantBeReadIsTold()
    {
        MetaBench bench;
        bench.put(u"a.smt"_s, savedFile);
        bench.put(u"b.smt"_s, savedFile);
        bench.fill({u"1"_s, u"2"_s, u"3"_s, u"4"_s});
        const auto refused = [&](const QString &reason) {
            bench.wizard.world.prompts.expectTell(
                u"The file \"%1/a.smt\" could not be read: %2."_s.arg(bench.tags(), reason), u"Load Tags"_s,
                Question::Icon::Exclamation);
        };
        bench.workOnLoading([&](QWidget &form) {
            in<QListWidget>(form, u"File1"_s).setCurrentRow(0);
            QVERIFY(QFile::remove(bench.tags() + u"/a.smt"_s));
            refused(u"it does not exist"_s);
            in<QPushButton>(form, u"Command1"_s).click();
            QVERIFY(form.isVisible());
            QVERIFY(QDir(bench.tags()).mkdir(u"a.smt"_s));
            refused(u"it is a folder"_s);
            in<QPushButton>(form, u"Command1"_s).click();
            QVERIFY(form.isVisible());
            QCOMPARE(bench.texts(), (QStringList{u"1"_s, u"2"_s, u"3"_s, u"4"_s}));
            // Another one can still be loaded.
            QTRY_COMPARE(entries(form), QStringList{u"b.smt"_s});
            in<QListWidget>(form, u"File1"_s).setCurrentRow(0);
            in<QPushButton>(form, u"Command1"_s).click();
            QVERIFY(!form.isVisible());
        });
        QVERIFY(bench.wizard.world.prompts.verify());
        QCOMPARE(bench.texts(), typed);
    }

    void theListFollowsTheFolder()
    {
        MetaBench bench;
        QVERIFY(QDir().rmdir(bench.tags()));
        bench.workOnLoading([&](QWidget &form) {
            QCOMPARE(entries(form), QStringList());
            QVERIFY(QDir(bench.program.path()).mkdir(u"Tags"_s));
            bench.put(u"b.smt"_s, savedFile);
            QTRY_COMPARE(entries(form), QStringList{u"b.smt"_s});
            auto &list = in<QListWidget>(form, u"File1"_s);
            QVERIFY(list.selectedItems().isEmpty());
            list.setCurrentRow(0);
            bench.put(u"a.smt"_s, savedFile);
            QTRY_COMPARE(entries(form), (QStringList{u"a.smt"_s, u"b.smt"_s}));
            QCOMPARE(list.property("FileName").toString(), u"b.smt"_s);
            QCOMPARE(in<QLineEdit>(form, u"Text1"_s).text(), u"b.smt"_s);
            QVERIFY(QFile::remove(bench.tags() + u"/b.smt"_s));
            QTRY_COMPARE(entries(form), QStringList{u"a.smt"_s});
            QCOMPARE(list.property("FileName").toString(), QString());
        });
    }

    void savedTextsComeBackIntoTheBoxes()
    {
        MetaBench bench;
        bench.wizard.form.get<QPlainTextEdit>(u"txtDesc"_s).setPlainText(u"two\nlines"_s);
        bench.wizard.form.set(u"txtKeyWords"_s, u"\"quoted\""_s);
        bench.wizard.form.set(u"txtAuthor"_s, u" blanks "_s);
        bench.wizard.form.set(u"txtCopy"_s, u"a=b;[c]"_s);
        bench.workOnSaving([](QWidget &form) {
            in<QLineEdit>(form, u"Text1"_s).setText(u"a"_s);
            in<QPushButton>(form, u"Command2"_s).click();
        });
        bench.fill(nothing);
        bench.workOnLoading([](QWidget &form) {
            in<QListWidget>(form, u"File1"_s).setCurrentRow(0);
            in<QPushButton>(form, u"Command1"_s).click();
        });
        QCOMPARE(bench.texts(), (QStringList{u"two lines"_s, u"\"quoted\""_s, u" blanks "_s, u"a=b;[c]"_s}));
    }
};

ZEPHIRA_TEST(TstMetaWizard)

#include "tst_metawizard.moc"
