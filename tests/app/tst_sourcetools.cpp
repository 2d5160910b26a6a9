// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/windowbench.h"
#include "app/windowend.h"
#include "support/eventwait.h"
#include "support/testregistry.h"

#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QTreeView>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// What the next modal form shows before it is closed with Escape.
class NextForm
{
public:
    explicit NextForm(QObject &window, std::function<void(QWidget &)> look = {})
    {
        QTimer::singleShot(0, &window, [this, look = std::move(look)] {
            QWidget *form = QApplication::activeModalWidget();
            QVERIFY(form);
            name = form->objectName();
            if (look)
                look(*form);
            QTest::keyClick(form, Qt::Key_Escape);
        });
    }
    Q_DISABLE_COPY_MOVE(NextForm)

    QString name;
};

} // namespace

/// The forms for the source of a page, opened from the real window.
class TstSourceTools final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theWeightIsThatOfTheCodeView()
    {
        WindowBench bench;
        frmmain &window = bench.start(bench.write(u"page.html"_s, "<p>"));
        window.show();
        window.rt().setText(u"<img src=a.gif>"_s + QString(1009, u'\u00e4'));
        QString size;
        QString image;
        const NextForm weight(window, [&](QWidget &form) {
            size = form.findChild<QLabel *>(u"DocSize"_s)->text();
            image = form.findChild<QTreeView *>(u"lstlinks"_s)->model()->index(0, 0).data().toString();
        });
        bench.click(u"Toolbar1"_s, u"loadtime"_s);
        QCOMPARE(weight.name, u"frmDocSize"_s);
        QCOMPARE(size, u"1.98 KB"_s);
        QCOMPARE(image, u"a.gif"_s);
        QCOMPARE(bench.read(bench.appPath() + u"/ldtemp.html"_s), window.rt().text().toUtf8());
    }

    void linksFromTheDisk_data()
    {
        QTest::addColumn<QString>("command");
        QTest::newRow("menu") << u"mnule"_s;
        QTest::newRow("pull-down") << u"linkextract"_s;
    }

    void linksFromTheDisk()
    {
        QFETCH(QString, command);
        WindowBench bench;
        const QString page = bench.write(u"page.html"_s, "<a href=x.htm><a href=\"y.htm\">");
        const QString saved = bench.folder() + u"/links.html"_s;
        frmmain &window = bench.start(page);
        window.show();
        bench.prompts.expectFile(
            {u"Select File"_s, u"HTML Pages (*.html, *.htm)|*.html;*.htm|All Files|*.*"_s, {}, false, {}}, page);
        bench.prompts.expectFile(
            {u"Save File"_s, u"HTML File|*.html|HTM File|*.htm|All Files|*.*"_s, bench.folder() + u'/', true, {}},
            saved);
        const NextForm links(window, [](QWidget &form) {
            for (const QString &button : {u"cmdOnE"_s, u"cmdSave"_s})
                QTest::mouseClick(form.findChild<QPushButton *>(button), Qt::LeftButton);
        });
        bench.choose(command);
        QCOMPARE(links.name, u"frmlinkextract"_s);
        QVERIFY(bench.prompts.verify());
        QCOMPARE(bench.read(saved),
                 QByteArray("<HTML>\r\n<BODY>\r\n<A HREF=\"y.htm\">y.htm</A><BR>\r\n"
                            "<A HREF=\"x.htm\">x.htm</A><BR>\r\n"
                            "<A HREF=\"\"y.htm\"\">\"y.htm\"</A><BR>"));
        QCOMPARE(window.rt().text(), u"<a href=x.htm><a href=\"y.htm\">"_s);
    }

    void theValidatorSendsItsText()
    {
        WindowBench bench;
        frmmain &window = bench.start(bench.write(u"page.html"_s, "<title>x</title>\n<p>a <foo>b\n"));
        window.show();
        const QString before = window.rt().text();
        bench.prompts.expectTell(u"Note: This will only tidy the last saved copy of this document!"_s);
        bench.prompts.expect({u"Are you sure you want to send changes to the main Zephira window?"_s,
                              {},
                              Question::Icon::Question,
                              Question::Buttons::YesNo},
                             Answer::Yes);
        QString language;
        QString shown;
        QString selected;
        const NextForm validator(window, [&](QWidget &form) {
            language = form.findChild<QLabel *>(u"lblinput"_s)->text();
            const auto press = [&form](const QString &button) {
                QTest::mouseClick(form.findChild<QPushButton *>(button), Qt::LeftButton);
            };
            const auto *cancel = form.findChild<QPushButton *>(u"cmdCancel"_s);
            press(u"Command1"_s);
            QVERIFY(waitUntil([cancel] { return !cancel->isVisible(); }, 10'000));
            auto *list = form.findChild<QTreeView *>(u"ListView1"_s);
            list->setFocus();
            list->setCurrentIndex(list->model()->index(list->model()->rowCount() - 1, 0));
            QTest::keyClick(list, Qt::Key_Return);
            selected = window.rt().selText();
            const NextForm output(
                form, [&shown](QWidget &text) { shown = text.findChild<QPlainTextEdit *>(u"text1"_s)->toPlainText(); });
            press(u"Command2"_s);
            QCOMPARE(output.name, u"output"_s);
            press(u"Command3"_s);
            QVERIFY(waitUntil([&form] { return !form.isVisible(); }, 10'000));
        });
        bench.click(u"Toolbar_0"_s, u"tidy"_s);
        QCOMPARE(validator.name, u"frmvalidate"_s);
        QVERIFY(bench.prompts.verify());
        QCOMPARE(language, u"HTML"_s);
        QCOMPARE(selected, u"<foo>"_s);
        QVERIFY2(window.rt().text().endsWith(u"<P>a b</P>\r\n</BODY>\r\n</HTML>\r\n"), qPrintable(window.rt().text()));
        QCOMPARE(window.rt().text(), QString(shown).replace(u"\n"_s, u"\r\n"_s));
        QVERIFY(window.docModified());
        // One undo step takes all of it back.
        window.rt().undo();
        QCOMPARE(window.rt().text(), before);
    }

    void theProgramEndsInTheMiddleOfACheck()
    {
        for (int round = 0; round < 6; ++round) {
            WindowBench bench;
            const QByteArray page = QByteArray("<p>text <foo> <b>bold</b>\n").repeated(200'000);
            frmmain &window = bench.start(bench.write(u"page.html"_s, page));
            window.show();
            bench.prompts.expectTell(u"Note: This will only tidy the last saved copy of this document!"_s);
            bool isWorking = false;
            const NextForm validator(window, [&](QWidget &form) {
                QTest::mouseClick(form.findChild<QPushButton *>(u"Command1"_s), Qt::LeftButton);
                isWorking = form.findChild<QPushButton *>(u"cmdCancel"_s)->isVisible();
                QTest::qWait(round * 30);
                window.windowEnd().endNow();
            });
            bench.click(u"Toolbar_0"_s, u"tidy"_s);
            QCOMPARE(validator.name, u"frmvalidate"_s);
            QVERIFY(isWorking);
            QCOMPARE(bench.ended, 1);
        }
    }

    void aTextFileBecomesTheDocument()
    {
        WindowBench bench;
        const QString page = bench.folder() + u"/page.html"_s;
        const QString text = bench.write(u"text.txt"_s, "caf\xe9\nsecond line\n");
        frmmain &window = bench.start(bench.write(u"old.txt"_s, "old"));
        window.show();
        window.rt().setSelText(u"typed "_s);
        const QString old = bench.folder() + u"/old.txt"_s;
        bench.prompts.expect({u"Do you wish to open this file?"_s, {}, Question::Icon::None, Question::Buttons::YesNo},
                             Answer::Yes);
        bench.prompts.expect({u"Document: "_s + old + u"\n\nThis document has been modified.\nDo you wish to save?"_s,
                              u"Document Modified."_s, Question::Icon::Question, Question::Buttons::YesNoCancel},
                             Answer::Yes);
        const NextForm wizard(window, [&](QWidget &form) {
            form.findChild<QLineEdit *>(u"Text1"_s)->setText(text);
            form.findChild<QLineEdit *>(u"Text2"_s)->setText(page);
            QTest::mouseClick(form.findChild<QPushButton *>(u"Command1"_s), Qt::LeftButton);
        });
        bench.choose(u"mnuthw"_s);
        QCOMPARE(wizard.name, u"frmthcon"_s);
        QVERIFY(bench.prompts.verify());
        // What was typed before has been saved, and the page is the document now.
        QCOMPARE(WindowBench::read(old), QByteArray("typed old"));
        QCOMPARE(window.document().docPath(), page);
        QVERIFY(window.rt().text().contains(u"caf\u00e9<BR>\r\nsecond line<BR>\r\n"));
        QCOMPARE(window.context().document.languageText().toUpper(), u"HTML"_s);
        QVERIFY(!window.docModified());
    }

    void theConverterOpens_data()
    {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<int>("position");
        QTest::newRow("menu") << u"mnutextwiz"_s << 0;
        QTest::newRow("palette") << QString() << 7;
    }

    void theConverterOpens()
    {
        QFETCH(QString, entry);
        QFETCH(int, position);
        WindowBench bench;
        frmmain &window = bench.start();
        window.show();
        QString html;
        const NextForm converter(window, [&html](QWidget &form) {
            QTest::mouseClick(form.findChild<QPushButton *>(u"cmdConvert"_s), Qt::LeftButton);
            html = form.findChild<QPlainTextEdit *>(u"txtHTML"_s)->toPlainText();
        });
        if (position == 0)
            bench.choose(entry);
        else
            bench.click(u"Toolbar_2"_s, position);
        QCOMPARE(converter.name, u"frmtextthtml"_s);
        QVERIFY(html.startsWith(u"<p align=center>"));
        QVERIFY(!window.docModified());
    }
};

ZEPHIRA_TEST(TstSourceTools)

#include "tst_sourcetools.moc"
