// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/webbench.h"
#include "files/appfolder.h"
#include "support/eventwait.h"
#include "support/httpserver.h"
#include "support/testregistry.h"

#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QLineEdit>
#include <QScopeGuard>

using namespace zephira;
using namespace Qt::StringLiterals;

namespace {

const QByteArray pageOne("<!DOCTYPE html><title>one</title><p>text</p>\r\n");

QString serverText(const QString &end)
{
    return u"You must save your ASP document to your web servers root directory in order to continue, press OK to save this document to the directory you designated as your LOCAL web server's root directory, with the filename: "_s
        + end;
}

} // namespace

/// The preview with the real engine.
class TstWebPreview : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void kindsOfFiles_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("address"); // Below the bench's folder; with a leading "@" below the program's.
        QTest::newRow("html") << u"page.html"_s << pageOne << u"one"_s << u"/site/page.htmltemp.html"_s;
        QTest::newRow("htm with odd characters")
            << u"a b#1%.htm"_s << pageOne << u"one"_s << u"/site/a b#1%.htmtemp.htm"_s;
        QTest::newRow("htm with a question")
            << u"warum?ä.htm"_s << pageOne << u"one"_s << u"/site/warum?ä.htmtemp.htm"_s;
        QTest::newRow("script page") << u"page.vbs"_s << QByteArray("<title>vb</title>x = 1") << u"vb"_s
                                     << u"/site/page.vbstemp.vbs"_s;
        QTest::newRow("xml")
            << u"page.xml"_s
            << QByteArray("<html xmlns='http://www.w3.org/1999/xhtml'><head><title>two</title></head><body/></html>")
            << u"two"_s << u"/site/page.xmltemp.xml"_s;
        QTest::newRow("script") << u"code.js"_s << QByteArray("let x = 1;") << u"code.jstemp.js"_s
                                << u"/site/code.jstemp.js"_s;
        QTest::newRow("style sheet") << u"look.css"_s << QByteArray("p { color: red }") << u"Sample page"_s
                                     << u"@/deps/CSSpreview.html"_s;
        for (const char *extension : {"c", "cpp", "h", "pl", "cgi", "pas", "bas", "frm", "vbp", "txt", "ini", "log"}) {
            QTest::newRow(extension) << u"file."_s + QLatin1StringView(extension) << QByteArray("x") << u"No preview"_s
                                     << u"@/deps/filenoprev.htm"_s;
        }
    }

    void kindsOfFiles()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        QFETCH(QString, title);
        QFETCH(QString, address);
        WebBench bench(name, content);
        if (title.startsWith(name)) {
            // The title of a plain text is its address, and not every kind of text has a title.
            bench.select(2);
            QVERIFY(waitUntil([&] { return bench.browser().property("LocationURL").toString().endsWith(title); },
                              WebBench::patience));
        } else {
            QVERIFY2(bench.preview(title), qPrintable(bench.pageTitle()));
        }
        const QString path = address.startsWith(u'@') ? bench.appPath() + address.mid(1) : bench.folder() + address;
        const QString shown = bench.browser().property("LocationURL").toString();
        QCOMPARE(QUrl(shown), QUrl(QUrl::fromLocalFile(path).toString()));
        QTRY_COMPARE(bench.find<QLineEdit>(u"txturl"_s)->text(), shown);
        QVERIFY(!bench.window->docModified());
        bench.select(1);
        QVERIFY(waitUntil([&] { return bench.find<QLineEdit>(u"txturl"_s)->text() == u"about:blank"; },
                          WebBench::patience));
    }

    void sqlShowsWhatTheViewHeld()
    {
        WebBench bench(u"page.html"_s, pageOne);
        QVERIFY(bench.preview(u"one"_s));
        bench.find<QComboBox>(u"cboLang"_s)->setCurrentIndex(9);
        const QString address = bench.browser().property("LocationURL").toString();
        bench.click(u"Toolbar1"_s, u"preview"_s);
        QCOMPARE(bench.browser().property("LocationURL").toString(), address);
        QCOMPARE(bench.pageTitle(), u"one"_s);
    }

    void aNewDocumentShowsFromTheScratchFolder()
    {
        WebBench bench((QString()));
        // The scratch folder is in the user's home, and other tests may use it at the same time.
        const auto restore = qScopeGuard([home = qgetenv("HOME")] { qputenv("HOME", home); });
        qputenv("HOME", QFile::encodeName(bench.folder()));
        bench.find<QComboBox>(u"cboLang"_s)->setCurrentIndex(1);
        bench.window->context().document.setProjectPath(u"Project Path"_s);
        bench.window->rt().setText(u"<title>new</title>"_s);
        QVERIFY(bench.preview(u"new"_s));
        QVERIFY(bench.window->previewTarget().startsWith(bench.folder()));
        QCOMPARE(bench.window->previewTarget(), scratchFolder().value() + u"/temp.html"_s);
        QVERIFY(bench.window->docModified());
    }

    void aNewDocumentShowsFromTheProject()
    {
        WebBench bench((QString()));
        const QString project = bench.write(u"project/picture.svg"_s, "<svg/>").chopped(11);
        bench.find<QComboBox>(u"cboLang"_s)->setCurrentIndex(1);
        bench.window->context().document.setProjectPath(project);
        bench.window->rt().setText(u"<title>new</title>"_s);
        QVERIFY(bench.preview(u"new"_s));
        QCOMPARE(bench.window->previewTarget(), project + u"zephiratempfile.htm"_s);
    }

    void theSecondPreviewShowsTheChange()
    {
        WebBench bench(u"page.html"_s, pageOne);
        QVERIFY(bench.preview(u"one"_s));
        bench.select(1);
        bench.window->rt().setText(u"<title>two</title>"_s);
        QVERIFY(bench.preview(u"two"_s));
        bench.window->rt().setText(u"<title>three</title>"_s);
        bench.click(u"Toolbar1"_s, u"preview"_s);
        QVERIFY(bench.showsPage(u"three"_s));
    }

    void theAddressBarGoesElsewhereAndBack()
    {
        HttpServer server;
        server.put(u"/a"_s, "<title>served</title>");
        WebBench bench(u"page.html"_s, pageOne);
        QVERIFY(bench.preview(u"one"_s));
        auto *address = bench.find<QLineEdit>(u"txturl"_s);
        address->setText(server.address(u"/a"_s).mid(7)); // Without the scheme.
        QTest::keyClick(address, Qt::Key_Return);
        QVERIFY(bench.showsPage(u"served"_s));
        QTRY_COMPARE(address->text(), server.address(u"/a"_s));
        QToolBar *keys = bench.find<QToolBar>(u"toolbarnav"_s);
        keys->findChild<QAction *>(u"back"_s)->trigger();
        QVERIFY(bench.showsPage(u"one"_s));
        keys->findChild<QAction *>(u"forward"_s)->trigger();
        QVERIFY(bench.showsPage(u"served"_s));
        keys->findChild<QAction *>(u"home"_s)->trigger();
        QVERIFY(bench.showsPage(u"one"_s));
    }

    void editingKeysWorkOnThePage()
    {
        WebBench bench(u"page.html"_s, pageOne);
        QVERIFY(bench.preview(u"one"_s));
        bench.window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(bench.window.get()));
        bench.window->rt().executeCmd(EditorCommand::SelectAll);
        QWidget *page = bench.keyboardOf(u"ww1"_s);
        page->setFocus();
        QGuiApplication::clipboard()->setText(u"before"_s);
        QTest::keyClick(page, Qt::Key_A, Qt::ControlModifier);
        // The page handles its keys one after the other, and the selection changes a moment after the key.
        QVERIFY(waitUntil(
            [&] {
                QTest::keyClick(page, Qt::Key_C, Qt::ControlModifier);
                return QGuiApplication::clipboard()->text() == u"text";
            },
            WebBench::patience));
        for (const int key : {Qt::Key_X, Qt::Key_Z, Qt::Key_V})
            QTest::keyClick(page, Qt::Key(key), Qt::ControlModifier);
        QTest::keyClick(page, Qt::Key_Delete);
        QCOMPARE(bench.window->rt().text(), QString::fromLatin1(pageOne));
        QVERIFY(!bench.window->docModified());
    }

    void aKeyLoadsThePageAgain()
    {
        HttpServer server;
        server.put(u"/a"_s, "<title>served</title>");
        WebBench bench(u"page.html"_s, pageOne);
        QVERIFY(bench.preview(u"one"_s));
        bench.window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(bench.window.get()));
        auto *address = bench.find<QLineEdit>(u"txturl"_s);
        address->setText(server.address(u"/a"_s));
        QTest::keyClick(address, Qt::Key_Return);
        QVERIFY(bench.showsPage(u"served"_s));
        server.put(u"/a"_s, "<title>served again</title>");
        QTest::keyClick(bench.keyboardOf(u"ww1"_s), Qt::Key_F5);
        QVERIFY(bench.showsPage(u"served again"_s));
        QCOMPARE(bench.window->rt().text(), QString::fromLatin1(pageOne));
    }

    void aspGoesThroughTheServer_data()
    {
        QTest::addColumn<bool>("taken");
        QTest::newRow("free") << false;
        QTest::newRow("taken") << true;
    }

    void aspGoesThroughTheServer()
    {
        QFETCH(bool, taken);
        HttpServer server;
        WebBench bench(u"a.asp"_s, "<title>mine</title>");
        const QString root = bench.write(u"www/other.txt"_s, "x").chopped(9);
        server.serveFolder(root);
        QVERIFY(bench.configuration.setValue(Setting::ServerRoot, root));
        QVERIFY(bench.configuration.setValue(Setting::ServerAddress, server.address({})));
        if (taken)
            bench.write(u"www/a.asp"_s, "<title>theirs</title>");
        const QString copy = taken ? u"prevzephirafile.asp"_s : u"a.asp"_s;
        bench.prompts.expect(
            {serverText(
                 taken
                     ? copy + u" because a file with a name identical to yours already exists in your root directory"_s
                     : copy),
             {},
             Question::Icon::Question,
             Question::Buttons::OkCancel},
            Answer::Ok);
        QVERIFY(bench.preview(u"mine"_s));
        QCOMPARE(bench.browser().property("LocationURL").toString(), server.address(u'/' + copy));
        QCOMPARE(bench.window->previewTarget(), taken ? QString() : server.address(u"/a.asp"_s));
        bench.choose(u"mnunewdoc"_s);
        QCOMPARE(WindowBench::read(root + copy), QByteArray("<title>mine</title>")); // The file is never deleted.
        if (taken)
            QCOMPARE(WindowBench::read(root + u"a.asp"_s), QByteArray("<title>theirs</title>"));
    }

    void aRefusedServerPreviewStaysEmpty()
    {
        WebBench bench(u"a.asp"_s, "<title>mine</title>");
        bench.prompts.expect({serverText(u"a.asp"_s), {}, Question::Icon::Question, Question::Buttons::OkCancel},
                             Answer::Cancel);
        bench.select(2);
        QCOMPARE(bench.tabs().currentIndex(), 1);
        QCOMPARE(bench.pageTitle(), QString());
        QCOMPARE(bench.window->rt().text(), u"<title>mine</title>"_s);
    }
};

ZEPHIRA_TEST(TstWebPreview)
#include "tst_webpreview.moc"
