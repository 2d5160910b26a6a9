// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "wizards/wizardbench.h"

#include <QBuffer>
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

const QString pictureFilter =
    u"All Image Files...|*.jpg;*.jpeg;*.bmp;*.gif;*.png|JPEG Files (*.jpeg,*.jpg)|*.jpg;*.jpeg|"
    "GIF Files (*.gif)|*.gif|Windows BMP Files (*.bmp)|*.bmp|PNG Files (*.png)|*.png"_s;

QByteArray picture(int width, int height, const char *format = "PNG")
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::red);
    QBuffer buffer;
    image.save(&buffer, format);
    return buffer.data();
}

/// A photo that says that it is to be turned by a quarter to be upright.
QByteArray turnedPhoto(int width, int height)
{
    // Behind the start of the file: the marker, its length, the kind, and a list of one entry, the orientation 6.
    const QByteArray orientation = QByteArray::fromHex("ffe10022457869660000"
                                                       "4d4d002a00000008"
                                                       "0001"
                                                       "011200030000000100060000"
                                                       "00000000");
    return picture(width, height, "JPG").insert(2, orientation);
}

/// Chooses a file in the dialog, which starts in `folder`.
void browse(WizardBench &wizard, const QString &folder, const std::optional<QString> &file)
{
    const bool isPicture = wizard.form.widget().objectName() == u"ImageWizard";
    const FileRequest request{.title = isPicture ? u"Select an Image..."_s : u"Browse for file"_s,
                              .filter = isPicture ? pictureFilter : u"All Files (*.*)|*.*"_s,
                              .initialFolder = folder};
    wizard.world.prompts.expectFile(request, file);
    wizard.form.press(u"Command1"_s);
    QVERIFY(wizard.world.prompts.verify());
}

} // namespace

/// The wizards for links and pictures, which work in both views.
class TstLinkWizards final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void linkDefaults()
    {
        const WizardBench wizard(u"frmlinkwiz"_s);
        QStringList values;
        for (const auto &name : {u"Combo3"_s, u"text5"_s, u"Text4"_s, u"Combo1"_s, u"Text1"_s, u"Text2"_s, u"Text3"_s})
            values.append(wizard.form.value(name));
        QCOMPARE(values, (QStringList{{}, {}, {}, u"_self"_s, {}, {}, {}}));
        const auto &targets = wizard.form.get<QComboBox>(u"Combo1"_s);
        QVERIFY(targets.isEditable());
        QStringList entries;
        for (int i = 0; i < targets.count(); ++i)
            entries.append(targets.itemText(i));
        QCOMPARE(entries.join(u' '), u"_blank _parent _self _top"_s);
        QCOMPARE(wizard.form.get<QComboBox>(u"Combo3"_s).count(), 10);
        QVERIFY(!wizard.form.get<QComboBox>(u"Combo3"_s).isEditable());
    }

    void aPrefixGoesInFrontOrReplacesOne()
    {
        const WizardBench wizard(u"frmlinkwiz"_s);
        wizard.form.set(u"text5"_s, u"ftp://"_s);
        wizard.form.set(u"Combo3"_s, u"news:"_s);
        QCOMPARE(wizard.form.value(u"text5"_s), u"news:"_s);
        wizard.form.set(u"text5"_s, u"a.htm"_s);
        wizard.form.set(u"Combo3"_s, u"https://"_s);
        QCOMPARE(wizard.form.value(u"text5"_s), u"https://a.htm"_s);
    }

    void theSamePrefixCanBeChosenAgain()
    {
        const WizardBench wizard(u"frmlinkwiz"_s);
        wizard.form.get(u"Combo3"_s).setFocus();
        wizard.form.key(Qt::Key_Down);
        QCOMPARE(wizard.form.value(u"text5"_s), u"Http://"_s);
        wizard.form.set(u"text5"_s, QString());
        auto &list = wizard.form.get<QComboBox>(u"Combo3"_s);
        Q_EMIT list.activated(list.currentIndex());
        QCOMPARE(wizard.form.value(u"text5"_s), u"Http://"_s);
        wizard.form.key(Qt::Key_Down);
        QCOMPARE(wizard.form.value(u"text5"_s), u"ftp://"_s);
    }

    void aFileIsNamedRelativeToTheProject()
    {
        WizardBench wizard(u"frmlinkwiz"_s);
        browse(wizard, {}, u"/site/b/c.htm"_s);
        QCOMPARE(wizard.form.value(u"text5"_s), u"/site/b/c.htm"_s);
        wizard.world.document.project = u"/site/a/"_s;
        browse(wizard, u"/site/b"_s, std::nullopt);
        QCOMPARE(wizard.form.value(u"text5"_s), u"/site/b/c.htm"_s);
        browse(wizard, u"/site/b"_s, u"/site/b/c.htm"_s);
        QCOMPARE(wizard.form.value(u"text5"_s), u"../b/c.htm"_s);
    }

    void aLinkFollowsTheSelection_data()
    {
        QTest::addColumn<bool>("designer");
        QTest::newRow("code view") << false;
        QTest::newRow("visual view") << true;
    }

    void aLinkFollowsTheSelection()
    {
        QFETCH(bool, designer);
        WizardBench wizard(u"frmlinkwiz"_s);
        wizard.world.designer.showing = designer;
        wizard.form.type(u"text5"_s, u"a.htm"_s);
        wizard.form.type(u"Text4"_s, u"A"_s);
        wizard.form.type(u"Combo1"_s, u"_Blank"_s);
        wizard.form.key(Qt::Key_Return);
        QVERIFY(!wizard.form.isOpen());
        QCOMPARE(wizard.inserted(),
                 QStringList{u"chosen<a href=\"a.htm\" target=\"_Blank\" name=\"\" title=\"\">A</a>"_s});
    }

    void cancelInsertsNothing_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("escape");
        QTest::newRow("link") << u"frmlinkwiz"_s << false;
        QTest::newRow("link, Escape") << u"frmlinkwiz"_s << true;
        QTest::newRow("image") << u"ImageWizard"_s << false;
        QTest::newRow("image, Escape") << u"ImageWizard"_s << true;
    }

    void cancelInsertsNothing()
    {
        QFETCH(QString, name);
        QFETCH(bool, escape);
        const WizardBench wizard(name);
        if (escape)
            wizard.form.key(Qt::Key_Escape);
        else
            wizard.form.press(u"CancelButton"_s);
        QVERIFY(!wizard.form.isOpen());
        QCOMPARE(wizard.inserted(), QStringList());
        QCOMPARE(wizard.world.editor.text(), u"<p>chosen</p>"_s);
    }

    void imageDefaults()
    {
        const WizardBench wizard(u"ImageWizard"_s);
        QStringList values;
        for (const auto &name : {u"Text1"_s, u"lblrel"_s, u"txtheight"_s, u"txtwidth"_s, u"Text3"_s, u"Text2"_s})
            values.append(wizard.form.value(name));
        QCOMPARE(values, (QStringList{{}, {}, {}, {}, u"0"_s, {}}));
        QVERIFY(!wizard.form.get<QLabel>(u"Sizer"_s).isVisible());
    }

    void aPictureIsMeasured()
    {
        WizardBench wizard(u"ImageWizard"_s);
        wizard.world.document.project = u"/site/"_s;
        wizard.world.files.contents[u"/site/img/a.png"_s] = picture(30, 20);
        browse(wizard, u"/site/"_s, u"/site/img/a.png"_s);
        QCOMPARE(wizard.form.value(u"Text1"_s), u"/site/img/a.png"_s);
        QCOMPARE(wizard.form.value(u"lblrel"_s), u"img/a.png"_s);
        QCOMPARE(wizard.form.value(u"txtwidth"_s), u"30"_s);
        QCOMPARE(wizard.form.value(u"txtheight"_s), u"20"_s);
        QCOMPARE(wizard.form.get(u"Sizer"_s).size(), QSize(30, 20));
        browse(wizard, u"/site/img"_s, std::nullopt);
        QCOMPARE(wizard.form.value(u"Text1"_s), u"/site/img/a.png"_s);
    }

    void aTurnedPhotoHasTheSizeThatIsShown()
    {
        WizardBench wizard(u"ImageWizard"_s);
        wizard.world.files.contents[u"/photo.jpg"_s] = turnedPhoto(30, 20);
        browse(wizard, {}, u"/photo.jpg"_s);
        QCOMPARE(wizard.form.value(u"txtwidth"_s), u"20"_s);
        QCOMPARE(wizard.form.value(u"txtheight"_s), u"30"_s);
        QCOMPARE(wizard.form.get(u"Sizer"_s).size(), QSize(20, 30));
    }

    void whatIsNoPictureHasNoSize_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("missing") << QByteArray();
        QTest::newRow("a text") << QByteArray("no picture");
        QTest::newRow("a torn picture") << picture(30, 20).first(12);
    }

    void whatIsNoPictureHasNoSize()
    {
        QFETCH(QByteArray, content);
        WizardBench wizard(u"ImageWizard"_s);
        if (!content.isEmpty())
            wizard.world.files.contents[u"/a.png"_s] = content;
        wizard.form.set(u"txtwidth"_s, u"5"_s);
        browse(wizard, {}, u"/a.png"_s);
        QCOMPARE(wizard.form.value(u"Text1"_s), u"/a.png"_s);
        QCOMPARE(wizard.form.value(u"lblrel"_s), u"/a.png"_s);
        QCOMPARE(wizard.form.value(u"txtwidth"_s), u"5"_s);
        QCOMPARE(wizard.form.value(u"txtheight"_s), QString());
        // Without a project the full name is what is inserted.
        wizard.form.press(u"OKButton"_s);
        QCOMPARE(wizard.inserted(),
                 QStringList{u"chosen\r\n<img src=\"/a.png\" width=\"5\" height=\"\" alt=\"\" border=\"0\">\r\n"_s});
    }

    void aPictureFollowsTheSelection_data()
    {
        QTest::addColumn<bool>("designer");
        QTest::addColumn<QString>("text");
        const QString tag = u"<img src=\"img/a.png\" width=\"30\" height=\"20\" alt=\"\" border=\"0\">\r\n"_s;
        QTest::newRow("code view, on a line of its own") << false << u"chosen\r\n"_s + tag;
        QTest::newRow("visual view") << true << u"chosen"_s + tag;
    }

    void aPictureFollowsTheSelection()
    {
        QFETCH(bool, designer);
        QFETCH(QString, text);
        WizardBench wizard(u"ImageWizard"_s);
        wizard.world.designer.showing = designer;
        wizard.world.document.project = u"/site/"_s;
        wizard.world.files.contents[u"/site/img/a.png"_s] = picture(30, 20);
        browse(wizard, u"/site/"_s, u"/site/img/a.png"_s);
        wizard.form.press(u"OKButton"_s);
        QVERIFY(!wizard.form.isOpen());
        QCOMPARE(wizard.inserted(), QStringList{text});
    }

    /// Between two drives there is no relative name.
    void aPictureOnAnotherDriveIsNamedInFull()
    {
        WizardBench wizard(u"ImageWizard"_s);
        wizard.world.document.project = u"C:"_s;
        browse(wizard, u"C:"_s, u"D:/a.png"_s);
        QCOMPARE(wizard.form.value(u"lblrel"_s), u":/a.png"_s);
        wizard.form.press(u"OKButton"_s);
        QCOMPARE(wizard.world.editor.text(),
                 u"<p>chosen\r\n<img src=\"D:/a.png\" width=\"\" height=\"\" alt=\"\" border=\"0\">\r\n</p>"_s);
    }

    /// The full name goes to the code view, whichever view shows.
    void theFullNameNeverGoesToTheDesigner()
    {
        WizardBench wizard(u"ImageWizard"_s);
        wizard.world.designer.showing = true;
        wizard.form.set(u"Text1"_s, u"D:\\a.png"_s);
        wizard.form.get<QLabel>(u"lblrel"_s).setText(u":/a.png"_s);
        wizard.form.press(u"OKButton"_s);
        QVERIFY(!wizard.form.isOpen());
        QCOMPARE(wizard.inserted(), QStringList());
        QCOMPARE(wizard.world.editor.text(),
                 u"<p>chosen\r\n<img src=\"D:\\a.png\" width=\"\" height=\"\" alt=\"\" border=\"0\">\r\n</p>"_s);
    }
};

ZEPHIRA_TEST(TstLinkWizards)

#include "tst_linkwizards.moc"
