// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/actionwalk.h"
#include "support/fakes.h"
#include "support/formkit.h"
#include "support/testregistry.h"
#include "views/frmqv.h"
#include "views/registerforms.h"

#include <QAction>
#include <QBuffer>
#include <QImage>
#include <QLabel>
#include <QTest>
#include <QToolBar>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstFrmQv : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void toolBar();
    void picture();
    void pictureLargerThanTheScreen();
    void tinyPicture();
    void text();
    void kindByName_data();
    void kindByName();
    void secondFileReplacesTheFirst();
    void textFillsTheWindow();
    void aTextBehindATinyPictureCanBeRead();
    void escapeCloses();
    void copySelection();
    void copyNothing();
    void copyAll();
    void help();
    void failingFirstFile();
    void failingSecondFile();

private:
    frmqv &form() const { return static_cast<frmqv &>(m_form->widget()); }
    QWidget &editor() const { return m_form->get(u"CodeMax1"_s); }
    QLabel &pictureBox() const { return m_form->get<QLabel>(u"Picture1"_s); }
    void press(const QString &key) const { m_form->widget().findChild<QAction *>(key)->trigger(); }
    void putPicture(const QString &path, QSize size);

    std::unique_ptr<TestContext> m_world;
    std::unique_ptr<LivingForm> m_form;
};

void TstFrmQv::init()
{
    m_world = std::make_unique<TestContext>();
    FormCatalogue catalogue;
    views::registerForms(catalogue,
                         [this](QWidget *parent) {
                             return EditorView{new QWidget(parent), &m_world->editor};
                         },
                         {});
    m_form = std::make_unique<LivingForm>(catalogue, u"frmqv"_s, *m_world);
    m_world->files.contents[u"/a.txt"_s] = "alpha";
    m_world->files.contents[u"/b.txt"_s] = "beta";
    putPicture(u"/p.gif"_s, {320, 200});
}

void TstFrmQv::cleanup()
{
    m_form.reset();
    m_world.reset();
}

void TstFrmQv::putPicture(const QString &path, QSize size)
{
    QImage image(size, QImage::Format_Mono);
    image.fill(1);
    QBuffer buffer(&m_world->files.contents[path]);
    QVERIFY(image.save(&buffer, "BMP"));
}

void TstFrmQv::toolBar()
{
    QCOMPARE(form().windowTitle(), u"QuickView"_s);
    QVERIFY(form().isWindow());
    QVERIFY(!form().isModal());
    QStringList keys;
    QStringList captions;
    const QList<QAction *> all = m_form->get<QToolBar>(u"tBar"_s).actions();
    for (const QAction *each : all) {
        keys.append(each->objectName());
        captions.append(each->text());
    }
    QCOMPARE(keys, (QStringList{u"copy"_s, u"help"_s, u"cate"_s}));
    QCOMPARE(captions, (QStringList{u"Copy"_s, u"Help"_s, u"Copy All Text to clipboard"_s}));
    QCOMPARE(faultsOf(actionsOf(m_form->get<QToolBar>(u"tBar"_s))), QStringList());
    QVERIFY(m_form->get(u"CoolBar1"_s).isAncestorOf(&m_form->get(u"tBar"_s)));
}

void TstFrmQv::picture()
{
    form().showPicture(u"/p.gif"_s);
    QVERIFY(pictureBox().isVisible());
    QVERIFY(!editor().isVisible());
    QCOMPARE(pictureBox().size(), QSize(320, 200));
    QCOMPARE(form().size(), QSize(320, 253));
    QVERIFY(pictureBox().geometry().bottom() <= form().height());
}

void TstFrmQv::pictureLargerThanTheScreen()
{
    putPicture(u"/large.bmp"_s, {3000, 2500});
    form().showPicture(u"/large.bmp"_s);
    QCOMPARE(form().size(), QSize(3000, 2553));
}

void TstFrmQv::tinyPicture()
{
    putPicture(u"/tiny.bmp"_s, {16, 16});
    form().showPicture(u"/tiny.bmp"_s);
    QCOMPARE(form().size(), QSize(16, 69));
    QCOMPARE(pictureBox().size(), QSize(16, 16));
}

void TstFrmQv::text()
{
    form().showText(u"/a.txt"_s);
    QVERIFY(editor().isVisible());
    QVERIFY(!pictureBox().isVisible());
    QCOMPARE(m_world->editor.text(), u"alpha"_s);
}

void TstFrmQv::kindByName_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("picture");
    QTest::newRow("gif") << u"/x.GIF"_s << true;
    QTest::newRow("jpeg is a text") << u"/x.jpeg"_s << false;
    QTest::newRow("text") << u"/x.txt"_s << false;
}

void TstFrmQv::kindByName()
{
    QFETCH(QString, path);
    QFETCH(bool, picture);
    putPicture(path, {100, 100});
    form().showFile(path);
    QCOMPARE(pictureBox().isVisible(), picture);
    QCOMPARE(editor().isVisible(), !picture);
}

void TstFrmQv::secondFileReplacesTheFirst()
{
    form().showText(u"/a.txt"_s);
    form().showText(u"/b.txt"_s);
    QCOMPARE(m_world->editor.text(), u"beta"_s);
    form().showPicture(u"/p.gif"_s);
    QVERIFY(!editor().isVisible());
    form().showText(u"/a.txt"_s);
    QVERIFY(!pictureBox().isVisible());
    QCOMPARE(m_world->editor.text(), u"alpha"_s);
}

void TstFrmQv::textFillsTheWindow()
{
    form().showText(u"/a.txt"_s);
    form().resize(700, 500);
    QTest::qWait(0);
    const QRect bar = m_form->get(u"CoolBar1"_s).geometry();
    QCOMPARE(bar.topLeft(), QPoint(0, 0));
    QCOMPARE(bar.width(), 700);
    QCOMPARE(editor().geometry(), QRect(0, bar.height(), 700, 500 - bar.height()));
}

void TstFrmQv::aTextBehindATinyPictureCanBeRead()
{
    form().showPicture(u"/p.gif"_s);
    QVERIFY(form().width() < 400 || form().height() < 300);
    form().showText(u"/a.txt"_s);
    QVERIFY(form().width() >= 600 && form().height() >= 400);
    // A window that the user has enlarged keeps its size.
    form().resize(900, 700);
    form().showText(u"/b.txt"_s);
    QCOMPARE(form().size(), QSize(900, 700));
}

void TstFrmQv::escapeCloses()
{
    form().showText(u"/a.txt"_s);
    QVERIFY(form().isVisible());
    QTest::keyClick(&form(), Qt::Key_Escape);
    QVERIFY(!form().isVisible());
}

void TstFrmQv::copySelection()
{
    form().showText(u"/a.txt"_s);
    m_world->editor.selectOffsets(1, 3);
    press(u"copy"_s);
    QCOMPARE(m_world->clipboard.content, u"lp"_s);
}

void TstFrmQv::copyNothing()
{
    form().showText(u"/a.txt"_s);
    m_world->clipboard.content = u"old"_s;
    m_world->prompts.expectTell(u"Please select something to copy"_s, {}, Question::Icon::Critical);
    press(u"copy"_s);
    QCOMPARE(m_world->clipboard.content, u"old"_s);
}

void TstFrmQv::copyAll()
{
    form().showText(u"/a.txt"_s);
    press(u"cate"_s);
    QCOMPARE(m_world->editor.commands,
             (std::vector<FakeEditor::ExecutedCommand>{{numberOf(EditorCommand::SelectAll), -1}}));
    QCOMPARE(m_world->clipboard.content, u"alpha"_s);
}

void TstFrmQv::help()
{
    m_world->prompts.expectTell(
        u"Press the copy button to copy the SELECTED text, OR Select the Zephira button to copy "
        "everything displayed to the clipboard"_s,
        {}, Question::Icon::None);
    press(u"help"_s);
}

void TstFrmQv::failingFirstFile()
{
    m_world->prompts.expectTell(u"/none.gif doesn't exist."_s, u"QuickView"_s, Question::Icon::Critical);
    form().showFile(u"/none.gif"_s);
    QVERIFY(!m_form->isOpen());
}

void TstFrmQv::failingSecondFile()
{
    form().showPicture(u"/p.gif"_s);
    m_world->editor.openError = Error{Error::Code::TooLarge, u"Too large."_s};
    m_world->prompts.expectTell(u"Too large."_s, u"QuickView"_s, Question::Icon::Critical);
    form().showFile(u"/a.txt"_s);
    QVERIFY(m_form->isOpen());
    QVERIFY(pictureBox().isVisible());
}

ZEPHIRA_TEST(TstFrmQv)
#include "tst_frmqv.moc"
