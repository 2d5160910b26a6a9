// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/webbench.h"
#include "colour/charactergrid.h"
#include "desktop/modalformopener.h"
#include "support/eventwait.h"
#include "support/testregistry.h"

#include <QApplication>
#include <QImage>
#include <QLineEdit>
#include <QPointer>
#include <QTimer>

#include <functional>

using namespace zephira;
using namespace Qt::StringLiterals;

namespace {

const QByteArray pageText(
    "<!DOCTYPE html>\r\n<html>\r\n<head><title>t</title></head>\r\n<body><p>old</p></body></html>\r\n");

using Work = std::function<void(QWidget &)>;

/// Clicks a button of a toolbar, works the form that it opens, and returns the form's name.
QString run(const WebBench &bench, const QString &toolBar, const QString &key, const Work &work)
{
    QString form;
    QTimer::singleShot(0, bench.window.get(), [&] {
        QWidget *wizard = QApplication::activeModalWidget();
        if (!wizard)
            return;
        form = wizard->objectName();
        work(*wizard);
    });
    bench.click(toolBar, key);
    return form;
}

template<typename T>
T &in(QWidget &form, const QString &name)
{
    return *form.findChild<T *>(name);
}

/// The page with a text in front of its first paragraph, where the caret is at first.
QString pageWith(const QString &text)
{
    return QString::fromLatin1(pageText).replace(u"<p>old"_s, text + u"<p>old"_s);
}

/// Takes back what a wizard inserted: one step for all of it, and nothing of it is left in the page.
void undoAll(const WebBench &bench)
{
    QCOMPARE(bench.status(DesignerCommand::Undo), static_cast<int>(DesignerStatus::Enabled));
    bench.choose(u"undo"_s);
    QCOMPARE(bench.html(), QString::fromLatin1(pageText));
    QVERIFY(
        waitUntil([&] { return bench.status(DesignerCommand::Undo) == DesignerStatus::Disabled; }, WebBench::patience));
    QCOMPARE(bench.window->rt().text(), QString::fromLatin1(pageText));
}

} // namespace

/// The wizards and tools that write into visual mode, with the real engine: the written text, and that one undo takes it
/// back.
class TstWebWizards final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aLink_data()
    {
        QTest::addColumn<QString>("toolBar");
        QTest::addColumn<QString>("key");
        QTest::newRow("formatting toolbar") << u"Toolbar1"_s << u"links"_s;
        QTest::newRow("palette, tools") << u"Toolbar_0"_s << u"link"_s;
        QTest::newRow("palette, common") << u"Toolbar_1"_s << u"link"_s;
    }

    void aLink()
    {
        QFETCH(QString, toolBar);
        QFETCH(QString, key);
        WebBench bench(u"page.html"_s, pageText);
        QVERIFY(bench.design());
        const QString form = run(bench, toolBar, key, [](QWidget &wizard) {
            in<QLineEdit>(wizard, u"text5"_s).setText(u"a.htm"_s);
            in<QLineEdit>(wizard, u"Text4"_s).setText(u"Größe"_s);
            in<QPushButton>(wizard, u"OKButton"_s).click();
        });
        QCOMPARE(form, u"frmlinkwiz"_s);
        QCOMPARE(bench.html(), pageWith(u"<a href=\"a.htm\" target=\"_self\" name=\"\" title=\"\">Größe</a>"_s));
        QVERIFY(bench.designer().property("IsDirty").toBool());
        QVERIFY(!bench.window->docModified());
        undoAll(bench);
    }

    /// The selection that the code view has kept goes to the page, and a status text doesn't run there.
    void aLinkBehindTheCodeViewsSelection()
    {
        WebBench bench(u"page.html"_s, pageText);
        bench.window->rt().select({3, 9, 3, 12});
        QCOMPARE(bench.window->rt().selText(), u"old"_s);
        QVERIFY(bench.design());
        run(bench, u"Toolbar1"_s, u"links"_s, [](QWidget &wizard) {
            in<QLineEdit>(wizard, u"text5"_s).setText(u"a.htm"_s);
            in<QLineEdit>(wizard, u"Text1"_s).setText(u"here"_s);
            in<QLineEdit>(wizard, u"Text4"_s).setText(u"A"_s);
            in<QPushButton>(wizard, u"OKButton"_s).click();
        });
        QCOMPARE(
            bench.html(),
            QString::fromLatin1(pageText).replace(
                u"<p>old"_s,
                u"<p>oldold<a href=\"a.htm\" target=\"_self\" name=\"\" onmouseover=\"window.status='here'; return "
                "true;\" onmouseout=\"window.status=''; return true;\" title=\"\">A</a>"_s));
        undoAll(bench);
    }

    void aPicture()
    {
        WebBench bench(u"page.html"_s, pageText);
        QImage picture(30, 20, QImage::Format_RGB32);
        picture.fill(Qt::red);
        const QString file = QFileInfo(bench.file).path() + u"/a b.png"_s;
        QVERIFY(picture.save(file));
        QVERIFY(bench.design());
        bench.window->context().document.setProjectPath(QFileInfo(bench.file).path() + u'/');
        bench.prompts.expectFile(
            {.title = u"Select an Image..."_s,
             .filter = u"All Image Files...|*.jpg;*.jpeg;*.bmp;*.gif;*.png|JPEG Files (*.jpeg,*.jpg)|*.jpg;*.jpeg|"
                       "GIF Files (*.gif)|*.gif|Windows BMP Files (*.bmp)|*.bmp|PNG Files (*.png)|*.png"_s,
             .initialFolder = QFileInfo(bench.file).path() + u'/'},
            file);
        const QString form = run(bench, u"Toolbar_1"_s, u"picture"_s, [](QWidget &wizard) {
            in<QPushButton>(wizard, u"Command1"_s).click();
            in<QLineEdit>(wizard, u"Text2"_s).setText(u"red"_s);
            in<QPushButton>(wizard, u"OKButton"_s).click();
        });
        QCOMPARE(form, u"ImageWizard"_s);
        QVERIFY(bench.prompts.verify());
        QCOMPARE(bench.html(),
                 pageWith(u"<img src=\"a b.png\" width=\"30\" height=\"20\" alt=\"red\" border=\"0\">\r\n"_s));
        undoAll(bench);
    }

    /// A picture elsewhere is named in full, in the code view, and the page stays as it is.
    void aPictureElsewhereGoesToTheCodeView()
    {
        WebBench bench(u"page.html"_s, pageText);
        QVERIFY(bench.design());
        run(bench, u"Toolbar_1"_s, u"picture"_s, [](QWidget &wizard) {
            in<QLineEdit>(wizard, u"Text1"_s).setText(u"D:\\a.png"_s);
            in<QLabel>(wizard, u"lblrel"_s).setText(u":/a.png"_s);
            in<QPushButton>(wizard, u"OKButton"_s).click();
        });
        QCOMPARE(bench.html(), QString::fromLatin1(pageText));
        QVERIFY(bench.window->rt().text().contains(
            u"\r\n<img src=\"D:\\a.png\" width=\"\" height=\"\" alt=\"\" border=\"0\">\r\n"_s));
    }

    void anInlineFrame()
    {
        WebBench bench(u"page.html"_s, pageText);
        QVERIFY(bench.design());
        const QString form = run(bench, u"Toolbar_5"_s, u"iframe"_s, [](QWidget &wizard) {
            in<QLineEdit>(wizard, u"frname"_s).setText(u"f"_s);
            in<QPushButton>(wizard, u"Command2"_s).click();
        });
        QCOMPARE(form, u"frmiframe"_s);
        QCOMPARE(bench.html(),
                 pageWith(u"<iframe src=\"\" name=\"f\" id=\"f\" width=\"\" height=\"\" marginwidth=\"\" "
                          "marginheight=\"\" align=\"\"></iframe>"_s));
        undoAll(bench);
    }

    void aCharacter()
    {
        WebBench bench(u"page.html"_s, pageText);
        QVERIFY(bench.design());
        bench.click(u"Toolbar1"_s, u"specchars"_s);
        const QPointer<QWidget> map = bench.window->forms().openForm(u"frmChar"_s);
        QVERIFY(map);
        auto &grid = in<CharacterGrid>(*map, u"Picture1"_s);
        grid.setIndex(0xe9 - 31);
        QTest::keyClick(&grid, Qt::Key_Return);
        in<QPushButton>(*map, u"Command1"_s).click();
        QCOMPARE(bench.html(), pageWith(u"\u00e9"_s));
        QVERIFY(bench.designer().property("IsDirty").toBool());
        undoAll(bench);
    }

    void whatIsInsertedComesHome()
    {
        WebBench bench(u"page.html"_s, pageText);
        QVERIFY(bench.design());
        run(bench, u"Toolbar1"_s, u"links"_s, [](QWidget &wizard) {
            in<QLineEdit>(wizard, u"text5"_s).setText(u"a.htm"_s);
            in<QLineEdit>(wizard, u"Text4"_s).setText(u"A"_s);
            in<QPushButton>(wizard, u"OKButton"_s).click();
        });
        bench.select(1);
        QCOMPARE(bench.window->rt().text(),
                 pageWith(u"<a href=\"a.htm\" target=\"_self\" name=\"\" title=\"\">A</a>"_s));
        QVERIFY(bench.window->docModified());
    }
};

ZEPHIRA_TEST(TstWebWizards)
#include "tst_webwizards.moc"
