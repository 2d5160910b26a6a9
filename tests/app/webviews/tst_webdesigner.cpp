// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/webviews/webbench.h"
#include "support/eventwait.h"
#include "support/testregistry.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTimer>

using namespace zephira;
using namespace Qt::StringLiterals;

namespace {

const QByteArray pageText("<!DOCTYPE html>\r\n<html><head><title>t</title></head>\r\n<body><p>old</p></body></html>\r\n");

const Question saveQuestion{
    u"You must save your document in order to use the visual editor, please click OK to continue, or cancel to go back to code view"_s,
    u"Save Work"_s, Question::Icon::Question, Question::Buttons::OkCancel};

/// Does something with the modal form as soon as it shows.
void whenModal(const std::function<void(QWidget &)> &act)
{
    auto *timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, act] {
        QWidget *form = QApplication::activeModalWidget();
        if (!form)
            return;
        timer->deleteLater();
        act(*form);
    });
    timer->start(10);
}

} // namespace

/// Visual mode with the real engine: how text comes and goes, and that toolbar, menus and dialogs reach the page.
class TstWebDesigner : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPageThatIsNotTouchedStaysAsItWas()
    {
        WebBench bench(u"page.html"_s, pageText);
        QVERIFY(bench.design());
        QCOMPARE(bench.html(), QString::fromLatin1(pageText));
        bench.select(1);
        QCOMPARE(bench.window->rt().text(), QString::fromLatin1(pageText));
        QVERIFY(!bench.window->docModified());
    }

    void anEditComesBack_data()
    {
        QTest::addColumn<int>("tab");
        QTest::newRow("to code") << 1;
        QTest::newRow("to preview") << 2;
    }

    void anEditComesBack()
    {
        QFETCH(int, tab);
        WebBench bench(u"page.html"_s, pageText);
        QVERIFY(bench.design());
        bench.paste(u"<b>new</b>"_s);
        QVERIFY(bench.designer().property("IsDirty").toBool());
        QVERIFY(!bench.window->docModified());
        bench.select(tab);
        QVERIFY2(bench.window->rt().text().contains(u"<b>new</b><p>old"_s), qPrintable(bench.window->rt().text()));
        QVERIFY(bench.window->rt().text().startsWith(u"<!DOCTYPE html>"_s));
        QVERIFY(bench.window->docModified());
        QCOMPARE(WindowBench::read(bench.file), pageText);
        if (tab == 2)
            QVERIFY(bench.showsPage(u"t"_s));
    }

    void savingBringsTheTextHome()
    {
        WebBench bench(u"page.html"_s, pageText);
        QVERIFY(bench.design());
        bench.paste(u"<b>new</b>"_s);
        bench.choose(u"save"_s);
        QCOMPARE(bench.tabs().currentIndex(), 0);
        QVERIFY(WindowBench::read(bench.file).contains("<b>new</b><p>old"));
        QVERIFY(!bench.window->docModified());
    }

    void aModifiedDocument_data()
    {
        QTest::addColumn<bool>("ok");
        QTest::newRow("saved") << true;
        QTest::newRow("refused") << false;
    }

    void aModifiedDocument()
    {
        QFETCH(bool, ok);
        WebBench bench(u"page.html"_s, pageText);
        bench.window->rt().setText(u"<p>changed</p>"_s);
        bench.prompts.expect(saveQuestion, ok ? Answer::Ok : Answer::Cancel);
        if (ok) {
            QVERIFY(bench.design());
            QCOMPARE(bench.html(), u"<p>changed</p>"_s);
        } else {
            bench.select(3);
            QCOMPARE(bench.tabs().currentIndex(), 0);
        }
        QCOMPARE(bench.window->rt().text(), u"<p>changed</p>"_s);
        QCOMPARE(bench.window->docModified(), !ok);
    }

    void aNewDocumentComesByValue()
    {
        WebBench bench((QString()));
        bench.window->rt().setText(u"<p>never saved</p>"_s);
        bench.prompts.expect(saveQuestion, Answer::Ok);
        bench.prompts.expectFile({u"Save a document..."_s, u"Text Files|*.txt|All Files|*.*"_s, bench.window->projectPath(), true, {}},
                                 std::nullopt);
        QVERIFY(bench.design());
        QCOMPARE(bench.html(), u"<p>never saved</p>"_s);
        bench.paste(u"<i>x</i>"_s);
        bench.select(1);
        QVERIFY(bench.window->rt().text().contains(u"<i>x</i><p>never saved"_s));
    }

    void resetIsTheTextFromBefore()
    {
        WebBench bench(u"page.html"_s, pageText);
        QVERIFY(bench.design());
        bench.paste(u"<b>new</b>"_s);
        bench.write(u"site/page.html"_s, "<p>changed on the disk</p>");
        bench.find<QPushButton>(u"Command1"_s)->click();
        QCOMPARE(bench.html(), QString::fromLatin1(pageText));
        QCOMPARE(bench.tabs().currentIndex(), 2);
    }

    void revertReloadsBothViews()
    {
        WebBench bench(u"page.html"_s, pageText);
        QVERIFY(bench.design());
        bench.paste(u"<b>new</b>"_s);
        bench.write(u"site/page.html"_s, "<p>changed on the disk</p>");
        bench.prompts.expect({u"Are you sure you wish to discard changes and revert to last saved copy of this document?"_s, {},
                              Question::Icon::Question, Question::Buttons::YesNo},
                             Answer::Yes);
        bench.click(u"Toolbar1"_s, u"reset"_s);
        QCOMPARE(bench.html(), u"<p>changed on the disk</p>"_s);
        QCOMPARE(bench.window->rt().text(), u"<p>changed on the disk</p>"_s);
        QCOMPARE(bench.tabs().currentIndex(), 2);
    }

    void anotherDocumentDoesNotShowTheFirst()
    {
        WebBench bench(u"page.html"_s, pageText);
        QVERIFY(bench.design());
        bench.choose(u"mnunewdoc"_s);
        QCOMPARE(bench.tabs().currentIndex(), 0);
        QVERIFY(bench.design());
        QCOMPARE(bench.html(), QString());
    }

    void theToolbarFormatsTheSelection()
    {
        WebBench bench(u"page.html"_s, pageText);
        QVERIFY(bench.design());
        bench.run(DesignerCommand::SelectAll);
        bench.click(u"Toolbar2"_s, u"Bold"_s);
        QVERIFY2(bench.html().contains(u"<b>old</b>"_s), qPrintable(bench.html()));
        QVERIFY(bench.find<QToolBar>(u"Toolbar2"_s)->findChild<QAction *>(u"Bold"_s)->isChecked());
        bench.click(u"Toolbar2"_s, u"Bold"_s);
        QVERIFY(!bench.html().contains(u"<b>"_s));
        QVERIFY(!bench.find<QToolBar>(u"Toolbar2"_s)->findChild<QAction *>(u"Bold"_s)->isChecked());
        bench.click(u"Toolbar2"_s, u"Center"_s);
        QVERIFY(bench.find<QToolBar>(u"Toolbar2"_s)->findChild<QAction *>(u"Center"_s)->isChecked());
        bench.prompts.expectColour(0, 0x0000ff);
        bench.click(u"Toolbar2"_s, u"Color"_s);
        QVERIFY2(bench.html().contains(u"#ff0000"_s, Qt::CaseInsensitive), qPrintable(bench.html()));
    }

    void theIndentButtonOutdents()
    {
        WebBench bench(u"page.html"_s, "<ul><li>a<ul><li>b</li></ul></li></ul>");
        QVERIFY(bench.design());
        const QString before = bench.html();
        bench.run(DesignerCommand::SelectAll);
        bench.click(u"Toolbar2"_s, u"Outdent"_s); // Which indents.
        const QString indented = bench.html();
        QVERIFY(indented.count(u"<ul"_s) + indented.count(u"<blockquote"_s) > before.count(u"<ul"_s));
        bench.click(u"Toolbar2"_s, u"Indent"_s);
        const QString outdented = bench.html();
        QVERIFY(outdented.count(u"<ul"_s) + outdented.count(u"<blockquote"_s) < indented.count(u"<ul"_s) + indented.count(u"<blockquote"_s));
    }

    void fontsAndSizes()
    {
        WebBench bench(u"page.html"_s, pageText);
        QVERIFY(bench.design());
        bench.run(DesignerCommand::SelectAll);
        auto *font = bench.find<QComboBox>(u"FontCombo"_s);
        auto *size = bench.find<QComboBox>(u"FontSizeCombo"_s);
        QVERIFY(waitUntil([&] { return font->isEnabled() && size->isEnabled(); }, WebBench::patience));
        QCOMPARE(size->currentText(), u"3"_s);
        font->setEditText(u"Courier New"_s);
        QTest::keyClick(font->lineEdit(), Qt::Key_Return);
        QVERIFY2(bench.html().contains(u"Courier New"_s), qPrintable(bench.html()));
        QVERIFY(waitUntil([&] { return font->currentText() == u"Courier New"; }, WebBench::patience));
        size->setEditText(u"5"_s);
        QTest::keyClick(size->lineEdit(), Qt::Key_Return);
        QVERIFY2(bench.html().contains(u"size=\"5\""_s), qPrintable(bench.html()));
        const QString before = bench.html();
        size->setEditText(u"9"_s);
        QTest::keyClick(size->lineEdit(), Qt::Key_Return);
        QCOMPARE(size->currentText(), u"5"_s);
        QCOMPARE(bench.html(), before);
    }

    void blockFormats()
    {
        WebBench bench(u"page.html"_s, pageText);
        QVERIFY(bench.design());
        QVERIFY(waitUntil([&] { return !bench.find<QAction>(u"FormatSub_0"_s)->text().isEmpty(); }, WebBench::patience));
        QAction *heading = nullptr;
        for (int i = 0; i < 16; ++i) {
            if (QAction *entry = bench.find<QAction>(u"FormatSub_%1"_s.arg(i)); entry->text() == u"Heading 2")
                heading = entry;
        }
        QVERIFY(heading);
        bench.run(DesignerCommand::SelectAll);
        Q_EMIT bench.find<QMenu>(u"Format"_s)->aboutToShow();
        QVERIFY(heading->isEnabled() && !heading->isChecked());
        heading->trigger();
        QVERIFY2(bench.html().contains(u"<h2>old</h2>"_s), qPrintable(bench.html()));
        Q_EMIT bench.find<QMenu>(u"Format"_s)->aboutToShow();
        QVERIFY(heading->isChecked());
    }

    void theTableDialog()
    {
        WebBench bench(u"page.html"_s, pageText);
        QVERIFY(bench.design());
        whenModal([](QWidget &form) {
            form.findChild<QLineEdit *>(u"Rows"_s)->setText(u"2"_s);
            form.findChild<QLineEdit *>(u"Cols"_s)->setText(u"4"_s);
            form.findChild<QLineEdit *>(u"TableCaption"_s)->setText(u"Figures"_s);
            form.findChild<QPushButton *>(u"OkCmd"_s)->click();
        });
        bench.choose(u"TableSub_0"_s);
        QCOMPARE(bench.html().count(u"<tr"_s), 2);
        QCOMPARE(bench.html().count(u"<td"_s), 8);
        QVERIFY(bench.html().contains(u"<caption>Figures</caption>"_s, Qt::CaseInsensitive));
    }

    void theMarkupDialog()
    {
        WebBench bench(u"page.html"_s, pageText);
        QVERIFY(bench.design());
        whenModal([](QWidget &form) { form.findChild<QPushButton *>(u"CmdOK"_s)->click(); });
        bench.choose(u"InsertHTML"_s);
        QVERIFY2(bench.html().contains(u"<i>HTML</i></b>"_s, Qt::CaseInsensitive), qPrintable(bench.html()));
        bench.choose(u"InsertButton"_s);
        QVERIFY(bench.html().contains(u"<button title=\"Button\">Button!</button>"_s, Qt::CaseInsensitive));
    }

    void theContextMenuKnowsTables_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<bool>("table");
        const QByteArray style("<!DOCTYPE html><style>body, p, table, td { margin: 0; padding: 0; width: 100%; height: 90px }</style>");
        QTest::newRow("text") << style + "<p>text</p>" << false;
        QTest::newRow("cell") << style + "<table><tr><td>cell</td></tr></table>" << true;
    }

    void theContextMenuKnowsTables()
    {
        QFETCH(QByteArray, content);
        QFETCH(bool, table);
        WebBench bench(u"page.html"_s, content);
        QVERIFY(bench.design());
        QWidget *target = bench.find<QWidget>(u"DHTMLEdit1"_s)->focusProxy();
        while (target->focusProxy())
            target = target->focusProxy();
        QTest::mouseClick(target, Qt::LeftButton, {}, {30, 40});
        QVERIFY(waitUntil([&] { return bench.status(DesignerCommand::Bold) >= DesignerStatus::Enabled
                                        && (bench.status(DesignerCommand::InsertRow) >= DesignerStatus::Enabled) == table; },
                          WebBench::patience));
        QTest::mouseClick(target, Qt::RightButton, {}, {30, 40});
        QVERIFY(waitUntil([] { return QApplication::activePopupWidget() != nullptr; }, WebBench::patience));
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QVERIFY(menu);
        QStringList entries;
        for (const QAction *entry : menu->actions())
            entries.append(entry->text());
        QStringList expected{u"Cut"_s, u"Copy"_s, u"Paste"_s, {}, u"Select All"_s, {}, u"Font..."_s};
        if (table)
            expected += {QString(), u"Insert Row"_s, u"Insert Column"_s, QString(), u"Delete Row"_s, u"Delete Column"_s};
        QCOMPARE(entries, expected);
        if (table) {
            menu->actions()[8]->trigger();
            QVERIFY(waitUntil([&] { return bench.html().count(u"<tr"_s) == 2; }, WebBench::patience));
        }
        menu->close();
    }

    void thePaletteInsertsIntoThePage()
    {
        WebBench bench(u"page.html"_s, pageText);
        QVERIFY(bench.design());
        bench.click(u"Toolbar_7"_s, 18);
        QVERIFY2(bench.html().contains(u"<input type=\"reset\">"_s), qPrintable(bench.html()));
        QCOMPARE(bench.window->rt().text(), QString::fromLatin1(pageText));
    }

    void undoAndRedoAreTheDesigners()
    {
        WebBench bench(u"page.html"_s, pageText);
        QVERIFY(bench.design());
        bench.paste(u"<b>new</b>"_s);
        bench.choose(u"undo"_s);
        QVERIFY(!bench.html().contains(u"<b>"_s));
        bench.choose(u"redo"_s);
        QVERIFY(bench.html().contains(u"<b>new</b>"_s));
        bench.click(u"tBar"_s, u"redo"_s); // The button undoes.
        QVERIFY(!bench.html().contains(u"<b>"_s));
    }

    void theSwitchesReachThePage()
    {
        WebBench bench(u"page.html"_s, pageText);
        QVERIFY(bench.design());
        for (const auto &[entry, property] : {std::pair{"ViewSub_0", "ShowBorders"}, {"ViewSub_1", "ShowDetails"},
                                              {"ViewSub_2", "BrowseMode"}, {"ViewSub_10", "SnapToGrid"}}) {
            bench.choose(QString::fromLatin1(entry));
            QVERIFY2(bench.designer().property(property).toBool(), entry);
            QVERIFY2(bench.find<QAction>(QString::fromLatin1(entry))->isChecked(), entry);
            bench.choose(QString::fromLatin1(entry));
            QVERIFY2(!bench.designer().property(property).toBool(), entry);
        }
    }

    void closingAsksForTheDesignersWork()
    {
        WebBench bench(u"page.html"_s, pageText);
        QVERIFY(bench.design());
        bench.paste(u"<b>new</b>"_s);
        bench.prompts.expect({u"Document: "_s + bench.file + u"\n\nThis document has been modified.\nDo you wish to save?"_s,
                              u"Document Modified."_s, Question::Icon::Question, Question::Buttons::YesNoCancel},
                             Answer::Yes);
        QVERIFY(bench.window->close());
        QVERIFY(WindowBench::read(bench.file).contains("<b>new</b><p>old"));
    }
};

ZEPHIRA_TEST(TstWebDesigner)
#include "tst_webdesigner.moc"
