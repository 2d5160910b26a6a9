// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/windowbench.h"
#include "core/documenthost.h"
#include "core/languages.h"
#include "support/testregistry.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTest>
#include <QTreeView>
#include <QWindow>

using namespace Qt::StringLiterals;
using namespace zephira;

/// What helps with writing, with the keys of the real window.
class TstTextTools : public QObject
{
    Q_OBJECT

private:
    /// Starts the window and waits for the menus of the text.
    static CodeMax &begin(WindowBench &bench, const QString &text)
    {
        frmmain &window = bench.start();
        window.show();
        [&] { QVERIFY(QTest::qWaitForWindowExposed(&window)); }();
        window.activateWindow();
        [&] { QTRY_VERIFY(window.findChild<QAction *>(u"textJoinLines"_s)); }();
        window.rt().setText(text);
        window.rt().setFocus();
        [&] { QTRY_VERIFY(window.rt().hasFocus()); }();
        return window.rt();
    }

    static void press(WindowBench &bench, const QString &keys)
    {
        const QKeyCombination key = QKeySequence::fromString(keys, QKeySequence::PortableText)[0];
        QTest::keyClick(bench.window->windowHandle(), key.key(), key.keyboardModifiers());
    }

private Q_SLOTS:
    void keysOfTheText_data()
    {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("text");
        QTest::newRow("join") << u"Ctrl+J"_s << u"one\r\ntwo One"_s;
        QTest::newRow("up") << u"Alt+Up"_s << u"two\r\none\r\nOne"_s;
        QTest::newRow("down") << u"Alt+Down"_s << u"one\r\nOne\r\ntwo"_s;
        QTest::newRow("duplicate") << u"Ctrl+Shift+D"_s << u"one\r\ntwo\r\ntwo\r\nOne"_s;
        QTest::newRow("delete") << u"Ctrl+Shift+K"_s << u"one\r\nOne"_s;
        QTest::newRow("upper case") << u"Ctrl+Shift+U"_s << u"one\r\nTWO\r\nOne"_s;
        QTest::newRow("copy and paste a line") << u"Ctrl+C,Ctrl+V"_s << u"one\r\ntwo\r\ntwo\r\nOne"_s;
        QTest::newRow("cut a line") << u"Ctrl+X"_s << u"one\r\nOne"_s;
        QTest::newRow("comment") << u"Ctrl+/"_s << u"one\r\n<!-- two -->\r\nOne"_s;
        QTest::newRow("all occurrences") << u"Ctrl+Shift+L,Ctrl+Shift+U"_s << u"one\r\nTWO\r\nOne"_s;
    }

    void keysOfTheText()
    {
        QFETCH(QString, keys);
        WindowBench bench;
        CodeMax &rt = begin(bench, u"one\r\ntwo\r\nOne"_s);
        bench.window->context().document.setLanguageRow(language::Html);
        rt.select({1, 1, 1, 1});
        const QStringList each = keys.split(u',');
        for (const QString &key : each)
            press(bench, key);
        QTEST(rt.text(), "text");
        press(bench, u"Ctrl+Z"_s);
        QCOMPARE(rt.text(), u"one\r\ntwo\r\nOne"_s);
    }

    /// End tags, indentation and pairs with real keys, and the entry that closes pairs.
    void pairsWhileTyping()
    {
        WindowBench bench;
        CodeMax &rt = begin(bench, {});
        bench.window->context().document.setLanguageRow(language::Html);
        QTest::keyClicks(&rt, u"<div>"_s);
        QTest::keyClick(&rt, Qt::Key_Return);
        QTest::keyClicks(&rt, u"<b>x</ y"_s);
        QTest::keyClick(&rt, Qt::Key_Return);
        QTest::keyClicks(&rt, u"</"_s);
        QCOMPARE(rt.text(), u"<div>\r\n\t<b>x</b> y\r\n</div>"_s);
        press(bench, u"Ctrl+Z"_s);
        QCOMPARE(rt.text(), u"<div>\r\n\t<b>x</b> y\r\n\t</"_s);
        QTest::keyClicks(&rt, u"div>"_s);
        QCOMPARE(rt.text(), u"<div>\r\n\t<b>x</b> y\r\n</div>"_s);
        rt.select({1, 1, 1, 5});
        QTest::keyClicks(&rt, u"(\""_s);
        QCOMPARE(rt.text(), u"<div>\r\n\t(\"<b>x\")</b> y\r\n</div>"_s);
        QCOMPARE(rt.selText(), u"<b>x"_s);

        auto *entry = bench.window->findChild<QAction *>(u"textAutoClose"_s);
        QVERIFY(entry && entry->isCheckable() && !entry->isChecked());
        rt.setText({});
        QTest::keyClicks(&rt, u"<p>"_s);
        QCOMPARE(rt.text(), u"<p>"_s);
        entry->trigger();
        QVERIFY(entry->isChecked());
        QCOMPARE(bench.settings.GetSetting(UserSetting::AutoClose), u"1"_s);
        rt.setText({});
        QTest::keyClicks(&rt, u"<p class=\"a\">x</p>"_s);
        QCOMPARE(rt.text(), u"<p class=\"a\">x</p>"_s);
    }

    void squaresOfColors()
    {
        WindowBench bench;
        begin(bench, u"color: #ff8800"_s);
        auto *entry = bench.window->findChild<QAction *>(u"textSwatches"_s);
        QVERIFY(entry && entry->isCheckable() && entry->isChecked());
        entry->trigger();
        QVERIFY(!entry->isChecked());
        QCOMPARE(bench.settings.GetSetting(UserSetting::ColourSwatches), u"0"_s);
    }

    /// Nothing that the window does while one types ends the step.
    void undoGoesByWords()
    {
        WindowBench bench;
        CodeMax &rt = begin(bench, {});
        QTest::keyClicks(&rt, u"one two Three"_s);
        QCOMPARE(rt.text(), u"one two Three"_s);
        for (const QString &text : {u"one two"_s, u"one"_s, QString()}) {
            press(bench, u"Ctrl+Z"_s);
            QCOMPARE(rt.text(), text);
        }
        press(bench, u"Ctrl+Y"_s);
        QCOMPARE(rt.text(), u"one"_s);
    }

    void completion()
    {
        WindowBench bench;
        bench.write(u"app/deps/completion.dat"_s,
                    "A\tclass\t\t\tIts classes.\nT\tdiv\t\t2015 C1\tA division.\nT\tdl\n");
        CodeMax &rt = begin(bench, {});
        bench.window->context().document.setLanguageRow(language::Html);
        const auto isShown = [&bench] {
            const auto *popup = bench.window->findChild<QWidget *>(u"completionPopup"_s);
            return popup && popup->isVisible();
        };
        QTest::keyClicks(&rt, u"<"_s);
        QVERIFY(isShown());
        QTest::keyClicks(&rt, u"di"_s);
        press(bench, u"Tab"_s);
        QVERIFY(!isShown());
        QTest::keyClicks(&rt, u" cl"_s);
        press(bench, u"Down"_s);
        press(bench, u"Return"_s);
        QTest::keyClicks(&rt, u"x"_s);
        QCOMPARE(rt.text(), u"<div class=\"x\""_s);
        QVERIFY(rt.hasFocus());

        // Escape is for the list while it is shown.
        press(bench, u"Ctrl+A"_s);
        QTest::keyClicks(&rt, u"<d"_s);
        press(bench, u"Escape"_s);
        QVERIFY(!isShown());
        press(bench, u"Ctrl+Space"_s);
        QVERIFY(isShown());

        // Another view closes it.
        auto *tabs = bench.window->findChild<QTabBar *>(u"workspace"_s);
        tabs->setCurrentIndex(1);
        QTRY_VERIFY(!isShown());
        tabs->setCurrentIndex(0);

        // Switched off, it is there on request.
        auto *entry = bench.window->findChild<QAction *>(u"textCompleteWhileTyping"_s);
        QVERIFY(entry->isChecked());
        entry->trigger();
        QVERIFY(!entry->isChecked());
        QCOMPARE(bench.settings.GetSetting(UserSetting::CompleteWhileTyping), u"0"_s);
        rt.setFocus();
        rt.setText({});
        QTest::keyClicks(&rt, u"<"_s);
        QVERIFY(!isShown());
        press(bench, u"Ctrl+Space"_s);
        QVERIFY(isShown());
        press(bench, u"Escape"_s);
        entry->trigger();
        QVERIFY(entry->isChecked());
    }

    void lastEdit()
    {
        WindowBench bench;
        CodeMax &rt = begin(bench, u"one\r\ntwo\r\nthree"_s);
        rt.select({1, 3, 1, 3});
        QTest::keyClicks(&rt, u"x"_s);
        rt.select({0, 0, 0, 0});
        press(bench, u"Ctrl+Shift+Y"_s);
        QCOMPARE(rt.selection(true), (CodeMaxRange{1, 4, 1, 4}));
    }

    /// From the key over the list to the place in another file; the project stays the project.
    void findInProject()
    {
        WindowBench bench;
        CodeMax &rt = begin(bench, u"one needle"_s);
        const QString page = bench.write(u"site/sub/page.htm"_s, "<p>\n a needle</p>\n");
        auto *project = bench.find<QLineEdit>(u"PrjPath"_s);
        project->setText(bench.folder() + u"/site"_s);
        rt.select({0, 4, 0, 10});
        press(bench, u"Ctrl+Shift+F"_s);
        QTRY_VERIFY(bench.find<QComboBox>(u"cboSought"_s)->hasFocus());
        QCOMPARE(bench.find<QComboBox>(u"cboSought"_s)->currentText(), u"needle"_s);
        press(bench, u"Return"_s);
        auto *tree = bench.find<QTreeView>(u"treFound"_s);
        QTRY_COMPARE(tree->model()->rowCount(), 1);
        QTRY_VERIFY(!bench.find<QPushButton>(u"cmdStop"_s)->isEnabled());
        // The document has unsaved changes, about which the window asks.
        bench.prompts.expect({u"Document: \n\nThis document has been modified.\nDo you wish to save?"_s,
                              u"Document Modified."_s, Question::Icon::Question, Question::Buttons::YesNoCancel},
                             Answer::No);
        tree->setFocus();
        tree->setCurrentIndex(tree->model()->index(0, 0, tree->model()->index(0, 0)));
        press(bench, u"Return"_s);
        QTRY_COMPARE(bench.window->context().document.commonDialogFile(), page);
        QCOMPARE(rt.selection(false), (CodeMaxRange{1, 3, 1, 9}));
        QVERIFY(rt.hasFocus());
        QCOMPARE(project->text(), bench.folder() + u"/site"_s);
    }

    void caretsInLines()
    {
        WindowBench bench;
        CodeMax &rt = begin(bench, u"one\r\ntwo\r\nthree"_s);
        rt.executeCmd(EditorCommand::SelectAll);
        press(bench, u"Ctrl+Shift+I"_s);
        QTest::keyClicks(&rt, u";"_s);
        QCOMPARE(rt.text(), u"one;\r\ntwo;\r\nthree;"_s);
    }
};

ZEPHIRA_TEST(TstTextTools)

#include "tst_texttools.moc"
