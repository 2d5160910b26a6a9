// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/webbench.h"
#include "support/eventwait.h"
#include "support/testregistry.h"
#include "views/designercommands.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTimer>

using namespace zephira;
using namespace Qt::StringLiterals;

namespace {

const QByteArray pageText(
    "<!DOCTYPE html>\r\n<html><head><title>t</title></head>\r\n<body><p>old</p></body></html>\r\n");

const Question saveQuestion{
    u"You must save your document in order to use the visual editor, please click OK to continue, or cancel to go back to code view"_s,
    u"Save Work"_s, Question::Icon::Question, Question::Buttons::OkCancel};

// A point of the page inside the elements below.
constexpr QPoint place{30, 40};
const QByteArray text("<p>text</p>");
const QByteArray cell("<table><tr><td>cell</td></tr></table>");
const QByteArray picture("<img src=\"none.png\" alt=\"\">");
const QByteArray positioned("<div style=\"position: absolute\">2D</div>");
const QByteArray locked("<div style=\"position: absolute\" design_time_lock=\"true\">2D</div>");

QByteArray pageWith(const QByteArray &content)
{
    return "<!DOCTYPE html><html><head><style>body, p, table, td, img, div { margin: 0; padding: 0; width: 200px; height: 90px }"
           "</style></head><body>"
        + content + "</body></html>";
}

struct MenuCloser {
    void operator()(QMenu *menu) const { menu->close(); }
};

/// Right-clicks at `place` and returns the menu; nullptr if none opens.
QMenu *openContextMenu(const WebBench &bench)
{
    QTest::mouseClick(bench.keyboardOf(u"DHTMLEdit1"_s), Qt::RightButton, {}, place);
    waitUntil([] { return QApplication::activePopupWidget() != nullptr; }, WebBench::patience);
    return qobject_cast<QMenu *>(QApplication::activePopupWidget());
}

/// Calls a function with the modal form as soon as it is shown.
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

/// Visual mode with the real engine: how the text gets there and back, and that toolbar, menus and dialogs reach the
/// page.
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

    void otherFilesAreEditedAsText_data()
    {
        QTest::addColumn<QString>("name");
        for (const char *extension : {"vbs", "js", "java", "xml", "css", "c", "cpp", "h", "pl", "cgi", "pas", "bas",
                                      "frm", "vbp", "txt", "ini", "log", "sql"})
            QTest::newRow(extension) << u"a."_s + QLatin1StringView(extension);
    }

    void otherFilesAreEditedAsText()
    {
        QFETCH(QString, name);
        const QByteArray content = "#include <a>\r\nif (1 < 2 && b) <b>x</b>\r\n";
        WebBench bench(name, content);
        QVERIFY(bench.design());
        QCOMPARE(bench.html(), QString::fromLatin1(content));
        bench.paste(u"3 < 4"_s);
        bench.choose(u"save"_s);
        QCOMPARE(WindowBench::read(bench.file), "3 < 4" + content);
        QVERIFY(bench.design());
        bench.select(1);
        QCOMPARE(bench.window->rt().text(), QString::fromLatin1("3 < 4" + content));
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
        bench.prompts.expectFile({u"Save a document..."_s,
                                  u"Text Files|*.txt|All Files|*.*"_s,
                                  bench.window->context().document.projectPath(),
                                  true,
                                  {}},
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
        bench.prompts.expect(
            {u"Are you sure you wish to discard changes and revert to last saved copy of this document?"_s,
             {},
             Question::Icon::Question,
             Question::Buttons::YesNo},
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
        QVERIFY(outdented.count(u"<ul"_s) + outdented.count(u"<blockquote"_s)
                < indented.count(u"<ul"_s) + indented.count(u"<blockquote"_s));
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
        QTest::keyClick(font, Qt::Key_Return);
        QVERIFY2(bench.html().contains(u"Courier New"_s), qPrintable(bench.html()));
        QVERIFY(waitUntil([&] { return font->currentText() == u"Courier New"; }, WebBench::patience));
        size->setEditText(u"5"_s);
        QTest::keyClick(size, Qt::Key_Return);
        QVERIFY2(bench.html().contains(u"size=\"5\""_s), qPrintable(bench.html()));
        const QString before = bench.html();
        for (const char16_t *text : {u"9", u"0", u"-1", u"x", u"", u"nan", u"1.5"}) {
            size->setEditText(QString::fromUtf16(text));
            QTest::keyClick(size, Qt::Key_Return);
            QVERIFY(waitUntil([&] { return size->currentText() == u"5"; }, WebBench::patience));
            QCOMPARE(bench.html(), before);
        }
        font->setEditText(QString());
        QTest::keyClick(font, Qt::Key_Return);
        QVERIFY(waitUntil([&] { return font->currentText() == u"Courier New"; }, WebBench::patience));
        QCOMPARE(bench.html(), before);
        size->setEditText(u" 3 "_s);
        QTest::keyClick(size, Qt::Key_Return);
        QVERIFY(waitUntil([&] { return size->currentText() == u"3"; }, WebBench::patience));
    }

    void blockFormats()
    {
        WebBench bench(u"page.html"_s, pageText);
        QVERIFY(bench.design());
        QVERIFY(
            waitUntil([&] { return !bench.find<QAction>(u"FormatSub_0"_s)->text().isEmpty(); }, WebBench::patience));
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

    /// Of the formats that the menu offers the one that was chosen is ticked, and no other.
    void theFormatMenuTicksEachFormat()
    {
        WebBench bench(u"page.html"_s, pageText);
        QVERIFY(bench.design());
        const auto entry = [&](int i) { return bench.find<QAction>(u"FormatSub_%1"_s.arg(i)); };
        QVERIFY(waitUntil([&] { return !entry(0)->text().isEmpty(); }, WebBench::patience));
        const auto ticked = [&] {
            Q_EMIT bench.find<QMenu>(u"Format"_s)->aboutToShow();
            QStringList names;
            for (int i = 0; i < 16; ++i) {
                if (entry(i)->isChecked())
                    names.append(entry(i)->text());
            }
            return names;
        };
        QStringList chosen;
        for (int i = 0; i < 16 && entry(i)->isVisible(); ++i) {
            const QString name = entry(i)->text();
            chosen.append(name);
            bench.run(DesignerCommand::SelectAll);
            Q_EMIT bench.find<QMenu>(u"Format"_s)->aboutToShow();
            QVERIFY2(entry(i)->isEnabled(), qPrintable(name));
            entry(i)->trigger();
            // Both names stand for the element p.
            const QStringList expected{name == u"Paragraph" ? u"Normal"_s : name};
            QVERIFY2(waitUntil([&] { return ticked() == expected; }, WebBench::patience),
                     qPrintable(name + u" chosen, ticked: "_s + ticked().join(u", ") + u"\n"_s + bench.html()));
        }
        QVERIFY2(chosen.size() > 8, qPrintable(chosen.join(u", ")));
    }

    /// The keys that the tips of the tool bar name.
    void theKeysOfTheToolBar()
    {
        WebBench bench(u"page.html"_s, pageText);
        QVERIFY(bench.design());
        int keys = 0;
        for (const DesignerButton &button : designerButtons()) {
            if (button.keys.isEmpty())
                continue;
            ++keys;
            bench.run(DesignerCommand::SelectAll);
            QCOMPARE(bench.status(button.command), static_cast<int>(DesignerStatus::Enabled));
            const QKeySequence pressed(button.keys.toString(), QKeySequence::PortableText);
            QTest::keyClick(bench.keyboardOf(u"DHTMLEdit1"_s), pressed[0].key(), pressed[0].keyboardModifiers());
            QVERIFY2(waitUntil([&] { return bench.status(button.command) == DesignerStatus::On; }, WebBench::patience),
                     qPrintable(button.keys.toString()));
        }
        QCOMPARE(keys, 3);
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

    void scriptsComeInAndDoNotRun()
    {
        WebBench bench(u"page.html"_s, pageText);
        QVERIFY(bench.design());
        const QString markup =
            u"<script>document.body.textContent = 'run'</script><?php echo 1 < 2; ?><img src=x onerror=\"document.body.textContent = 'run'\">"_s;
        whenModal([markup](QWidget &form) {
            form.findChild<QPlainTextEdit *>(u"HTMLText"_s)->setPlainText(markup);
            form.findChild<QPushButton *>(u"CmdOK"_s)->click();
        });
        bench.choose(u"InsertHTML"_s);
        bench.paste(u"<i>after</i>"_s); // By now a script would have run.
        for (const QString &part : {u"<script>document.body.textContent = 'run'</script>"_s, u"<?php echo 1 < 2; ?>"_s,
                                    u"onerror=\"document.body.textContent = 'run'\""_s, u"<i>after</i>"_s, u"old"_s})
            QVERIFY2(bench.html().contains(part), qPrintable(bench.html()));
    }

    void menusFollowThePlace_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QStringList>("closed"); // The disabled entries.
        QTest::addColumn<QString>("position");
        QTest::addColumn<bool>("isLocked");
        const QStringList table{u"TableSub_2"_s, u"TableSub_3"_s, u"TableSub_4"_s, u"TableSub_6"_s,
                                u"TableSub_7"_s, u"TableSub_8"_s, u"TableSub_10"_s};
        const QStringList split{u"TableSub_11"_s};
        const QStringList depth{u"D2DSub_1"_s, u"D2DSub_2"_s, u"D2DSub_3"_s, u"D2DSub_4"_s,
                                u"D2DSub_5"_s, u"D2DSub_6"_s, u"D2DSub_8"_s};
        const QStringList absolute{u"D2DSub_0"_s};
        const QStringList markup{u"InsertButton"_s, u"InsertHTML"_s};
        const QString off = u"Set Position Attribute To Absolute"_s;
        const QString on = u"Set Position Attribute To 1D"_s;
        QTest::newRow("text") << pageWith(text) << table + split + absolute + depth << off << false;
        QTest::newRow("cell") << pageWith(cell) << QStringList{u"TableSub_10"_s} + absolute + depth << off << false;
        QTest::newRow("picture") << pageWith(picture) << markup + table + split + depth << off << false;
        QTest::newRow("positioned") << pageWith(positioned) << markup + table + split << on << false;
        QTest::newRow("locked") << pageWith(locked) << markup + table + split << on << true;
    }

    void menusFollowThePlace()
    {
        QFETCH(QByteArray, content);
        QFETCH(QStringList, closed);
        QFETCH(QString, position);
        QFETCH(bool, isLocked);
        WebBench bench(u"page.html"_s, content);
        QVERIFY(bench.design());
        QTest::mouseClick(bench.keyboardOf(u"DHTMLEdit1"_s), Qt::LeftButton, {}, place);
        const auto disabled = [&] {
            QStringList names;
            for (const QString &menu : {u"Insert"_s, u"Table"_s, u"d2d"_s}) {
                Q_EMIT bench.find<QMenu>(menu)->aboutToShow();
                const QList<QAction *> all = bench.find<QMenu>(menu)->actions();
                for (const QAction *entry : all) {
                    if (!entry->isSeparator() && !entry->isEnabled())
                        names.append(entry->objectName());
                }
            }
            names.sort();
            return names;
        };
        closed.sort();
        waitUntil([&] { return disabled() == closed; }, WebBench::patience);
        QCOMPARE(disabled(), closed);
        QCOMPARE(bench.find<QAction>(u"D2DSub_0"_s)->text(), position);
        QCOMPARE(bench.find<QAction>(u"D2DSub_8"_s)->isChecked(), isLocked);
    }

    void theContextMenu_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QStringList>("more"); // After the entries that are always there.
        const QStringList table{QString(), u"Insert Row"_s, u"Insert Column"_s,
                                QString(), u"Delete Row"_s, u"Delete Column"_s};
        QTest::newRow("text") << pageWith(text) << QStringList();
        QTest::newRow("cell") << pageWith(cell) << table;
        QTest::newRow("picture") << pageWith(picture) << QStringList{QString(), u"Make 2D"_s};
        QTest::newRow("positioned") << pageWith(positioned) << QStringList{QString(), u"Make 1D"_s};
        QTest::newRow("picture in a cell") << pageWith("<table><tr><td>" + picture + "</td></tr></table>")
                                           << QStringList{QString(), u"Make 2D"_s} + table;
    }

    void theContextMenu()
    {
        QFETCH(QByteArray, content);
        QFETCH(QStringList, more);
        WebBench bench(u"page.html"_s, content);
        QVERIFY(bench.design());
        const std::unique_ptr<QMenu, MenuCloser> menu(openContextMenu(bench));
        QVERIFY(menu);
        QStringList entries;
        const QList<QAction *> all = menu->actions();
        for (const QAction *entry : all)
            entries.append(entry->text());
        const QStringList always{u"Cut"_s, u"Copy"_s, u"Paste"_s, {}, u"Select All"_s, {}, u"Font..."_s};
        QCOMPARE(entries, always + more);
    }

    void theContextMenuActs_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("tag"); // Counted in the page afterwards.
        QTest::addColumn<int>("count");
        QTest::newRow("cut") << pageWith(picture) << 0 << u"<img"_s << 0;
        QTest::newRow("make 2D") << pageWith(picture) << 8 << u"absolute"_s << 1;
        QTest::newRow("make 1D") << pageWith(positioned) << 8 << u"absolute"_s << 0;
        QTest::newRow("insert row") << pageWith(cell) << 8 << u"<tr"_s << 2;
        QTest::newRow("insert column") << pageWith(cell) << 9 << u"<td"_s << 2;
        QTest::newRow("delete row") << pageWith(cell) << 11 << u"<tr"_s << 0;
        QTest::newRow("delete column") << pageWith(cell) << 12 << u"<td"_s << 0;
        const QByteArray both = pageWith("<table><tr><td>" + picture + "</td></tr></table>");
        QTest::newRow("make 2D in a cell") << both << 8 << u"absolute"_s << 1;
        QTest::newRow("insert row after the position") << both << 10 << u"<tr"_s << 2;
        QTest::newRow("delete column after the position") << both << 14 << u"<td"_s << 0;
    }

    void theContextMenuActs()
    {
        QFETCH(QByteArray, content);
        QFETCH(int, index);
        QFETCH(QString, tag);
        QFETCH(int, count);
        WebBench bench(u"page.html"_s, content);
        QVERIFY(bench.design());
        const std::unique_ptr<QMenu, MenuCloser> menu(openContextMenu(bench));
        QVERIFY(menu);
        QVERIFY(menu->actions().value(index));
        menu->actions()[index]->trigger();
        QVERIFY2(waitUntil([&] { return bench.html().count(tag) == count; }, WebBench::patience),
                 qPrintable(bench.html()));
        QVERIFY(bench.designer().property("IsDirty").toBool());
        bench.choose(u"undo"_s);
        QCOMPARE(bench.html(), QString::fromLatin1(content));
    }

    void selectingAllAndCopying()
    {
        WebBench bench(u"page.html"_s, pageWith(text));
        QVERIFY(bench.design());
        for (const int index : {4, 1}) {
            const std::unique_ptr<QMenu, MenuCloser> menu(openContextMenu(bench));
            QVERIFY(menu);
            QVERIFY(menu->actions()[index]->isEnabled());
            menu->actions()[index]->trigger();
        }
        QCOMPARE(QGuiApplication::clipboard()->text().trimmed(), u"text"_s);
    }

    void shortcutsInVisualMode()
    {
        WebBench bench(u"page.html"_s, "<p>old</p>");
        QVERIFY(bench.design());
        bench.window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(bench.window.get()));
        QWidget *page = bench.keyboardOf(u"DHTMLEdit1"_s);
        page->setFocus();
        const auto becomes = [&](const QString &html) {
            return waitUntil([&] { return bench.html() == html; }, WebBench::patience);
        };
        QTest::keyClick(page, Qt::Key_Delete);
        QVERIFY2(becomes(u"<p>ld</p>"_s), qPrintable(bench.html()));
        QTest::keyClick(page, Qt::Key_Delete);
        QVERIFY2(becomes(u"<p>d</p>"_s), qPrintable(bench.html()));
        QTest::keyClick(page, Qt::Key_Z, Qt::ControlModifier);
        QTest::keyClick(page, Qt::Key_Z, Qt::ControlModifier);
        QVERIFY2(becomes(u"<p>old</p>"_s), qPrintable(bench.html()));
        bench.run(DesignerCommand::SelectAll);
        QTest::keyClick(page, Qt::Key_B, Qt::ControlModifier);
        QVERIFY2(becomes(u"<p><b>old</b></p>"_s), qPrintable(bench.html()));
        for (const int key : {Qt::Key_F, Qt::Key_R, Qt::Key_G}) {
            bench.prompts.expect({u"Sorry, these tools can only be used in Code View"_s, u"Feature Limitation"_s,
                                  Question::Icon::Information, Question::Buttons::Ok},
                                 Answer::Ok);
            QTest::keyClick(page, Qt::Key(key), Qt::ControlModifier);
        }
        QCOMPARE(bench.window->rt().text(), u"<p>old</p>"_s);
        QTest::keyClick(page, Qt::Key_S, Qt::ControlModifier);
        QVERIFY(waitUntil([&] { return WindowBench::read(bench.file) == "<p><b>old</b></p>"; }, WebBench::patience));
        QCOMPARE(bench.tabs().currentIndex(), 0);
        QVERIFY(bench.window->rt().hasFocus());
    }

    void switchingQuicklyLosesNothing()
    {
        WebBench bench(u"page.html"_s, pageText);
        for (int i = 0; i < 10; ++i) {
            for (const int tab : {3, 2, 1, 2, 3, 1})
                bench.select(tab);
        }
        QCOMPARE(bench.window->rt().text(), QString::fromLatin1(pageText));
        QVERIFY(!bench.window->docModified());
        QVERIFY(bench.design());
        QCOMPARE(bench.html(), QString::fromLatin1(pageText));
        bench.paste(u"<b>new</b>"_s);
        for (const int tab : {1, 2, 1})
            bench.select(tab);
        QVERIFY(bench.window->rt().text().contains(u"<b>new</b><p>old"_s));
        QCOMPARE(WindowBench::read(bench.file), pageText);
    }

    void namesWithOddCharacters_data()
    {
        QTest::addColumn<QString>("name");
        for (const char16_t *name :
             {u"a b.html", u"\u00e4\u00f6\u00fc.html", u"a#1.html", u"50%.html", u"why?.html", u"a&b'c.html"})
            QTest::newRow(qPrintable(QString::fromUtf16(name))) << QString::fromUtf16(name);
    }

    void namesWithOddCharacters()
    {
        QFETCH(QString, name);
        WebBench bench(name, pageText);
        QVERIFY(bench.design());
        QCOMPARE(bench.html(), QString::fromLatin1(pageText));
        QCOMPARE(bench.designer().property("BaseFile").toString(), bench.file);
        bench.paste(u"<b>new</b>"_s);
        bench.choose(u"save"_s);
        QVERIFY(WindowBench::read(bench.file).contains("<b>new</b><p>old"));
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
        for (const auto &[entry, property] : {std::pair{"ViewSub_0", "ShowBorders"},
                                              {"ViewSub_1", "ShowDetails"},
                                              {"ViewSub_2", "BrowseMode"},
                                              {"ViewSub_10", "SnapToGrid"}}) {
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
        bench.prompts.expect(
            {u"Document: "_s + bench.file + u"\n\nThis document has been modified.\nDo you wish to save?"_s,
             u"Document Modified."_s, Question::Icon::Question, Question::Buttons::YesNoCancel},
            Answer::Yes);
        QVERIFY(bench.window->close());
        QVERIFY(WindowBench::read(bench.file).contains("<b>new</b><p>old"));
    }
};

ZEPHIRA_TEST(TstWebDesigner)
#include "tst_webdesigner.moc"
