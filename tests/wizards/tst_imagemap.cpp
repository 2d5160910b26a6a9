// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/goldencases.h"
#include "support/testregistry.h"
#include "wizards/imagemapbench.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QApplication>
#include <QDragEnterEvent>
#include <QImageReader>
#include <QImageWriter>
#include <QLayout>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QScreen>
#include <QUrl>
#include <QWheelEvent>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

constexpr int polygon = 1;
constexpr int rectangle = 2;
constexpr int circle = 3;
constexpr int clear = 5;
constexpr int acceptArea = 7;
constexpr int makeHtml = 9;
constexpr int back = 11;

/// The creator with fakes of its own.
struct Creator {
    TestContext world;
    LivingForm form;

    Creator() : form(imageMapCatalogue(world), u"ImageMap"_s, world) {}

    QWidget &picture() const { return form.get<QWidget>(u"Picture1"_s); }
    QVariant state(const char *name) const { return form.widget().property(name); }
    QVariant bar(const char *property, const QString &name = u"HScroll1"_s) const
    {
        return form.get<QWidget>(name).property(property);
    }
    void setBar(const QString &name, int value) const { form.get<QWidget>(name).setProperty("value", value); }
    bool shows(const QString &name) const { return form.get<QWidget>(name).isVisible(); }
    QString text(int area) const { return form.value(u"Text2_%1"_s.arg(area)); }
    bool isEnabled(int button) const { return toolbarButton(form, button).isEnabled(); }
    QString enabledButtons() const
    {
        QString text;
        for (int number = 1; number <= 11; ++number)
            text += isEnabled(number) ? u'1' : u'0';
        return text;
    }
    void open(QSize size, const QString &path = u"/p/map.png"_s)
    {
        world.files.contents[path] = pictureFile(size);
        openPicture(world, form, path);
    }
    void button(int number) const { pressButton(form, number); }
    void drag(QPoint from, QPoint to) const { dragMouse(form, from, to); }
    bool isVisible(const QString &object) const { return form.get<QObject>(object).property("Visible").toBool(); }
    void drop(QWidget &target, const QMimeData &data) const
    {
        const QPoint place(2, 2);
        QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, {});
        enter.ignore();
        QCoreApplication::sendEvent(&target, &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&target, &drop);
    }
};

} // namespace

class TstImageMap final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults()
    {
        const Creator c;
        QCOMPARE(c.form.widget().windowTitle(), u"Zephira - Image Map Creator"_s);
        QVERIFY(!c.shows(u"Text6"_s) && c.shows(u"Picture1"_s) && c.shows(u"MainPic"_s));
        QCOMPARE(c.form.get<QWidget>(u"MainPic"_s).cursor().shape(), Qt::CrossCursor);
        QCOMPARE(c.form.widget().pos(), c.form.widget().screen()->geometry().topLeft() + QPoint(1, 1));
        for (int area = 0; area < 6; ++area) {
            const QString number = u"_%1"_s.arg(area);
            QVERIFY(!c.form.get<QWidget>(u"Check1"_s + number).isEnabled());
            QCOMPARE(c.form.value(u"Check1"_s + number), u"off"_s);
            QCOMPARE(c.form.value(u"Option1"_s + number), area == 0 ? u"on"_s : u"off"_s);
            QCOMPARE(c.form.value(u"Text2"_s + number), area == 0 ? u" "_s : QString());
            QCOMPARE(c.form.value(u"Text3"_s + number) + c.form.value(u"Text5"_s + number), QString());
        }
        QCOMPARE(c.form.value(u"Text4"_s) + c.form.value(u"Text1"_s), QString());
        QCOMPARE(c.world.editor.text(), QString());
    }

    void stateByName()
    {
        const Creator c;
        for (const char *zero : {"CurrentArea", "FirstLine", "CurrentLine", "Moved", "StartX", "StartY", "AnchorX",
                                 "AnchorY", "CircleX", "CircleY", "CircleR"})
            QCOMPARE(c.state(zero), QVariant(0));
        QCOMPARE(c.state("LastLine"), QVariant(6));
        QCOMPARE(c.state("Tool"), QVariant(1));
        QCOMPARE(c.state("Quote"), QVariant(u"\""_s));
        QCOMPARE(c.state("LineUsed").value<QList<bool>>(), QList<bool>(61, false));
        c.drag({1, 2}, {3, 4});
        QCOMPARE(c.state("CurrentLine"), QVariant(1));
        QVERIFY(c.state("LineUsed").value<QList<bool>>().first());
        c.form.press(u"Option1_2"_s);
        QCOMPARE(c.state("CurrentArea"), QVariant(2));
        QCOMPARE(c.state("FirstLine"), QVariant(14));
        QCOMPARE(c.state("CurrentLine"), QVariant(14));
        QCOMPARE(c.state("LastLine"), QVariant(20));
        c.button(circle);
        QCOMPARE(c.state("Tool"), QVariant(3));
        c.drag({10, 20}, {15, 90});
        QCOMPARE(c.state("Moved"), QVariant(1));
        QCOMPARE(c.state("StartX"), QVariant(10));
        QCOMPARE(c.state("StartY"), QVariant(20));
        QCOMPARE(c.state("AnchorX"), QVariant(10));
        QCOMPARE(c.state("AnchorY"), QVariant(20));
        QCOMPARE(c.state("CircleX"), QVariant(10));
        QCOMPARE(c.state("CircleY"), QVariant(20));
        QCOMPARE(c.state("CircleR"), QVariant(5));
    }

    void tips_data()
    {
        QTest::addColumn<QString>("tip");
        QTest::newRow("Check1_3") << u"If checked, your mapped area will appear above."_s;
        QTest::newRow("Option1_3") << u"This is the current area you are working on."_s;
        QTest::newRow("Text2_3") << u"This is what the HTML code looks like for your mapped area."_s;
        QTest::newRow("Text3_3") << u"The URL (link) you want in which to link the graphic area."_s;
        QTest::newRow("Text5_3")
            << u"The text box (like this one) that will appear when the mouse is over your graphic area."_s;
        QTest::newRow("Text4") << u"The filename of your graphics image."_s;
        QTest::newRow("Text1")
            << u"A unique name to give this map in the event you have more than one map on your webpage."_s;
        QTest::newRow("Command1") << u"Move the image to the upper left of this screen."_s;
    }
    void tips()
    {
        const Creator c;
        QTEST(c.form.get<QWidget>(QString::fromLatin1(QTest::currentDataTag())).toolTip(), "tip");
    }

    void toolbar()
    {
        const Creator c;
        QStringList labels;
        const QList<QAction *> actions = c.form.get<QToolBar>(u"Toolbar1"_s).actions();
        for (const QAction *action : actions) {
            labels.append(action->isSeparator() ? u"-"_s : action->text());
            QVERIFY(action->isSeparator() || (action->isCheckable() && !action->toolTip().isEmpty()));
            QCOMPARE(action->isChecked(), labels.size() == polygon);
        }
        QCOMPARE(labels.join(u' '), u"Polygon Rectangle Circle - Clear - Accept - Make HTML - Back"_s);
        QCOMPARE(c.enabledButtons(), u"11111111110"_s);
        // One of the three is always down.
        c.button(rectangle);
        QVERIFY(toolbarButton(c.form, rectangle).isChecked() && !toolbarButton(c.form, polygon).isChecked());
        c.button(rectangle);
        QVERIFY(toolbarButton(c.form, rectangle).isChecked());
        QCOMPARE(c.state("Tool"), QVariant(2));
        // The tool stays across the other commands, which release themselves.
        for (const int number : {acceptArea, clear, makeHtml, back}) {
            c.button(number);
            QVERIFY(!toolbarButton(c.form, number).isChecked());
            QCOMPARE(c.state("Tool"), QVariant(2));
        }
    }

    void menus()
    {
        const Creator c;
        const auto entries = [&c](const QString &menu) {
            QStringList found{c.form.get<QMenu>(menu).title()};
            const QList<QAction *> actions = c.form.get<QMenu>(menu).actions();
            for (const QAction *action : actions)
                found.append(action->objectName() + u' ' + action->text() + u' '
                             + action->shortcut().toString(QKeySequence::PortableText));
            return found;
        };
        QCOMPARE(entries(u"MenuFile"_s),
                 (QStringList{u"File"_s, u"SubMenuOpen Open... Ctrl+O"_s, u"Separator1  "_s, u"SubMenuExit Exit "_s}));
        QCOMPARE(entries(u"MenuEdit"_s),
                 (QStringList{u"Edit"_s, u"mnucopy Copy Ctrl+C"_s, u"mnuCut Cut Ctrl+X"_s, u"mnusa Select All Ctrl+A"_s,
                              u"mnupaste Paste Ctrl+V"_s}));
        for (const QString &entry : {u"mnucopy"_s, u"mnuCut"_s, u"mnusa"_s, u"mnupaste"_s})
            c.form.get<QAction>(entry).trigger();
        QList<int> numbers;
        for (const FakeEditor::ExecutedCommand &command : c.world.editor.commands)
            numbers.append(command.command);
        QCOMPARE(numbers, (QList<int>{198, 197, 137, 140}));
    }

    void theKeysOfTheTextBoxesStayTheirs()
    {
        const Creator c;
        c.form.type(u"Text1"_s, u"name"_s);
        c.form.key(Qt::Key_A, Qt::ControlModifier);
        c.form.key(Qt::Key_X, Qt::ControlModifier);
        QCOMPARE(c.form.value(u"Text1"_s), QString());
        c.form.key(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(c.form.value(u"Text1"_s), u"name"_s);
        QVERIFY(c.world.editor.commands.empty());
    }

    void opening()
    {
        Creator c;
        c.drag({1, 2}, {3, 4});
        c.setBar(u"HScroll1"_s, -30);
        c.setBar(u"VScroll1"_s, -40);
        c.open({320, 200});
        QCOMPARE(c.form.value(u"Text4"_s), u"/p/map.png"_s);
        QCOMPARE(c.form.value(u"Text1"_s), u"/p/map.png"_s);
        QCOMPARE(c.picture().geometry(), QRect(0, 0, 320, 200));
        QCOMPARE(c.bar("value"), QVariant(0));
        QCOMPARE(c.bar("value", u"VScroll1"_s), QVariant(0));
        QVERIFY(c.isVisible(u"Line1_0"_s));
        // The name is the author's from now on.
        c.form.type(u"Text1"_s, u"map1"_s);
        QCOMPARE(c.form.value(u"Text4"_s), u"/p/map.png"_s);
    }

    void linksAreLookedUp()
    {
        Creator c;
        c.world.document.project = u"/site/"_s;
        c.world.prompts.expectFile(
            {.title = u"Browse for file"_s, .filter = u"All Files (*.*)|*.*"_s, .initialFolder = u"/site/"_s},
            u"/site/pages/a.html"_s);
        c.form.press(u"browseText3_4"_s);
        QCOMPARE(c.form.value(u"Text3_4"_s), u"pages/a.html"_s);
        // The picture is looked for in the same folder.
        openPicture(c.world, c.form, {}, u"/site/pages"_s);
    }

    void openingByKeyboard()
    {
        Creator c;
        c.world.files.contents[u"/a.bmp"_s] = pictureFile({5, 6}, "BMP");
        c.world.prompts.expectFile({.filter = u"JPEG files|*.jpg|GIF files|*.GIF|Bitmap files|*.BMP|All Files|*.*"_s},
                                   u"/a.bmp"_s);
        c.form.key(Qt::Key_O, Qt::ControlModifier);
        QCOMPARE(c.picture().size(), QSize(5, 6));
    }

    void everyFormatThatCanBeRead()
    {
        Creator c;
        int opened = 0;
        const QList<QByteArray> formats = QImageReader::supportedImageFormats();
        const auto check = [&](const QByteArray &format, const QByteArray &content, QSize size) {
            c.world.files.contents[u"/p/picture"_s] = content;
            openPicture(c.world, c.form, u"/p/picture"_s, opened > 0 ? u"/p"_s : QString());
            if (c.picture().size() == size)
                ++opened;
            else
                QTest::qFail(format.constData(), __FILE__, __LINE__);
        };
        int side = 10;
        const QList<QByteArray> written = QImageWriter::supportedImageFormats();
        for (const QByteArray &format : written) {
            // Icons are written in many sizes.
            if (!formats.contains(format) || format == "ico" || format == "cur" || format == "icns")
                continue;
            ++side;
            check(format, pictureFile({2 * side, side}, format), {2 * side, side});
        }
        QVERIFY(opened >= 6);
        check("gif", QByteArray::fromBase64("R0lGODlhAwACAIAAAAAAAP///yH5BAEAAAAALAAAAAADAAIAAAIChF8AOw=="), {3, 2});
        if (formats.contains("svg"))
            check("svg", "<svg xmlns='http://www.w3.org/2000/svg' width='40' height='30'/>", {40, 30});
    }

    void whatCantBeReadChangesNothing_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("text") << QByteArray("This is no picture.");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("zeros") << QByteArray(100000, '\0');
        QTest::newRow("cut off") << pictureFile({50, 50}).first(60);
        QByteArray huge = pictureFile({2, 2}, "BMP");
        const qint32 width = 10001;
        const qint32 height = 10000;
        memcpy(huge.data() + 18, &width, 4);
        memcpy(huge.data() + 22, &height, 4);
        QTest::newRow("above 100 megapixels") << huge;
    }
    void whatCantBeReadChangesNothing()
    {
        QFETCH(QByteArray, content);
        Creator c;
        c.open({320, 200});
        c.drag({1, 2}, {3, 4});
        c.form.set(u"Text1"_s, u"typed"_s);
        c.form.set(u"Text3_0"_s, u"link"_s);
        c.setBar(u"VScroll1"_s, -7);
        c.world.files.contents[u"/bad"_s] = content;
        openPicture(c.world, c.form, u"/bad"_s, u"/p"_s);
        QCOMPARE(c.picture().size(), QSize(320, 200));
        QCOMPARE(c.form.value(u"Text4"_s), u"/p/map.png"_s);
        QCOMPARE(c.form.value(u"Text1"_s), u"typed"_s);
        QCOMPARE(c.form.value(u"Text3_0"_s), u"link"_s);
        QCOMPARE(c.bar("value", u"VScroll1"_s), QVariant(-7));
        QVERIFY(c.isVisible(u"Line1_0"_s));
    }

    void missingAndCancelled()
    {
        Creator c;
        c.open({320, 200});
        openPicture(c.world, c.form, u"/none.png"_s, u"/p"_s);
        openPicture(c.world, c.form, {}, u"/"_s);
        QCOMPARE(c.form.value(u"Text4"_s), u"/p/map.png"_s);
        QCOMPARE(c.picture().size(), QSize(320, 200));
    }

    void thePictureMayChangeOnTheDisk()
    {
        Creator c;
        c.open({320, 200});
        c.form.get<QWidget>(u"Text1"_s).setFocus();
        const QImage before = c.picture().grab().toImage();
        c.world.files.contents[u"/p/map.png"_s] = "gone";
        c.drag({10, 10}, {20, 20});
        c.button(clear);
        QCOMPARE(c.picture().grab().toImage(), before);
        c.world.files.contents.clear();
        c.button(makeHtml);
        QVERIFY(c.world.editor.text().contains(u"WIDTH=320 HEIGHT=200"_s));
    }

    void drawing()
    {
        Creator c;
        c.open({320, 200});
        c.drag({10, 10}, {50, 20});
        c.drag({50, 20}, {30, 60});
        QVERIFY(c.isVisible(u"Line1_0"_s) && c.isVisible(u"Line1_1"_s) && c.isVisible(u"Line1_6"_s));
        QVERIFY(!c.isVisible(u"Line1_2"_s));
        c.button(acceptArea);
        QCOMPARE(c.text(0), u"<AREA SHAPE=POLY COORDS=\"10,10,50,20,30,60\""_s);
        QCOMPARE(c.form.value(u"Check1_0"_s), u"on"_s);
        QVERIFY(c.form.get<QWidget>(u"Check1_0"_s).isEnabled());
        QCOMPARE(c.form.value(u"Option1_1"_s), u"on"_s);
        QCOMPARE(c.form.value(u"Option1_0"_s), u"off"_s);
        QVERIFY(c.isVisible(u"Line1_0"_s));
        c.form.press(u"Check1_0"_s);
        QVERIFY(!c.isVisible(u"Line1_0"_s) && !c.isVisible(u"Line1_6"_s));
        c.form.press(u"Check1_0"_s);
        QVERIFY(c.isVisible(u"Line1_0"_s) && c.isVisible(u"Line1_6"_s));
        c.button(rectangle);
        c.drag({100, 90}, {40, 30});
        c.button(acceptArea);
        QCOMPARE(c.text(1), u"<AREA SHAPE=RECT COORDS=\"40,30,100,90\""_s);
        c.button(circle);
        c.drag({100, 90}, {70, 300});
        c.button(acceptArea);
        QCOMPARE(c.text(2), u"<AREA SHAPE=CIRCLE COORDS=\"100,90,30\""_s);
        QVERIFY(c.world.inserter.inserted.isEmpty());
    }

    void outsideThePicture()
    {
        Creator c;
        c.open({320, 200});
        c.button(rectangle);
        c.drag({100, 90}, {-40, -30});
        c.button(acceptArea);
        QCOMPARE(c.text(0), u"<AREA SHAPE=RECT COORDS=\"-40,-30,100,90\""_s);
        c.drag({300, 190}, {400, 900});
        c.button(acceptArea);
        QCOMPARE(c.text(1), u"<AREA SHAPE=RECT COORDS=\"300,190,400,900\""_s);
        // A press beside the picture is none on it.
        QTest::mouseClick(&c.form.get<QWidget>(u"MainPic"_s), Qt::LeftButton, {}, {500, 250});
        QVERIFY(!c.isVisible(u"Shape2_2"_s));
    }

    void otherButtonsDrawNothing()
    {
        Creator c;
        c.open({320, 200});
        c.button(rectangle);
        QTest::mousePress(&c.picture(), Qt::RightButton, {}, {10, 10});
        moveMouse(c.form, {20, 20}, Qt::RightButton);
        QTest::mouseRelease(&c.picture(), Qt::RightButton, {}, {20, 20});
        QVERIFY(!c.isVisible(u"Shape2_0"_s));
        moveMouse(c.form, {20, 20}, Qt::NoButton);
        QCOMPARE(c.form.value(u"lblPlace"_s), u"20, 20"_s);
        QCOMPARE(c.state("Moved"), QVariant(0));
    }

    void aPartOfAUnitIsTheSamePixel()
    {
        Creator c;
        c.open({320, 200});
        c.button(rectangle);
        pressMouse(c.form, {10, 10});
        moveMouse(c.form, {20.5, 30.9});
        QCOMPARE(c.form.get<QObject>(u"Shape2_0"_s).property("Width"), QVariant(10.0F));
        QCOMPARE(c.form.get<QObject>(u"Shape2_0"_s).property("Height"), QVariant(20.0F));
        moveMouse(c.form, {-0.5, -1.5});
        QCOMPARE(c.form.get<QObject>(u"Shape2_0"_s).property("Left"), QVariant(-1.0F));
        QCOMPARE(c.form.get<QObject>(u"Shape2_0"_s).property("Top"), QVariant(-2.0F));
    }

    void acceptingASecondTimeHidesTheArea()
    {
        Creator c;
        c.button(rectangle);
        c.drag({1, 2}, {30, 40});
        c.button(acceptArea);
        QVERIFY(c.isVisible(u"Shape2_0"_s));
        c.form.press(u"Option1_0"_s);
        c.button(acceptArea);
        QCOMPARE(c.form.value(u"Check1_0"_s), u"on"_s);
        QVERIFY(!c.isVisible(u"Shape2_0"_s));
        c.form.press(u"Check1_0"_s);
        c.form.press(u"Check1_0"_s);
        QVERIFY(c.isVisible(u"Shape2_0"_s));
    }

    void theLastAreaStaysPicked()
    {
        const Creator c;
        c.form.press(u"Option1_5"_s);
        c.button(acceptArea);
        QCOMPARE(c.form.value(u"Option1_5"_s), u"on"_s);
        QCOMPARE(c.state("CurrentArea"), QVariant(5));
        QCOMPARE(c.text(5), u"<AREA SHAPE=POLY COORDS=\"0,0\""_s);
    }

    void pickingAgainStartsOver()
    {
        const Creator c;
        c.drag({1, 2}, {3, 4});
        QCOMPARE(c.state("CurrentLine"), QVariant(1));
        c.form.press(u"Option1_0"_s);
        QCOMPARE(c.state("CurrentLine"), QVariant(0));
        c.form.get<QWidget>(u"Option1_0"_s).setFocus();
        c.form.key(Qt::Key_Down);
        QCOMPARE(c.state("CurrentArea"), QVariant(1));
        // From outside, too.
        c.form.get<QAbstractButton>(u"Option1_4"_s).setChecked(true);
        QCOMPARE(c.state("CurrentArea"), QVariant(4));
    }

    void theEditedTextChoosesWhatIsShown()
    {
        const Creator c;
        c.drag({1, 2}, {3, 4});
        c.button(acceptArea);
        c.form.set(u"Text2_0"_s, u"<AREA SHAPE=RECT"_s);
        c.form.press(u"Check1_0"_s);
        QVERIFY(c.isVisible(u"Line1_0"_s));
        c.form.press(u"Check1_0"_s);
        QVERIFY(c.isVisible(u"Shape2_0"_s));
        c.form.press(u"Option1_0"_s);
        c.button(clear);
        QCOMPARE(c.text(0), QString());
        QVERIFY(!c.isVisible(u"Line1_0"_s) && !c.isVisible(u"Shape2_0"_s));
        QCOMPARE(c.form.value(u"Check1_0"_s), u"off"_s);
        QVERIFY(!c.form.get<QWidget>(u"Check1_0"_s).isEnabled());
    }

    void clearingKeepsLinkAndAlternative()
    {
        const Creator c;
        c.form.set(u"Text3_0"_s, u"link"_s);
        c.form.set(u"Text5_0"_s, u"alternative"_s);
        c.button(clear);
        QCOMPARE(c.form.value(u"Text3_0"_s) + c.form.value(u"Text5_0"_s), u"linkalternative"_s);
    }

    void makingAndBack()
    {
        Creator c;
        c.open({320, 200});
        c.drag({10, 10}, {50, 20});
        c.button(acceptArea);
        const int width = c.form.widget().width();
        const int height = c.form.get<QWidget>(u"MainPic"_s).height();
        c.world.editor.setText(u"earlier text"_s);
        c.button(makeHtml);
        QVERIFY(c.shows(u"Text6"_s));
        for (const QString &hidden : {u"Picture1"_s, u"HScroll1"_s, u"VScroll1"_s, u"Command1"_s, u"MainPic"_s})
            QVERIFY2(!c.shows(hidden), qPrintable(hidden));
        QCOMPARE(c.form.focus(), u"Text6"_s);
        QCOMPARE(c.enabledButtons(), u"00000000001"_s);
        QVERIFY(c.world.editor.text().startsWith(u"<!-- Created by Zephira -->\r\n<!-- Start"_s));
        QCOMPARE(c.world.editor.language(), u"HTML"_s);
        // 100 and 400 twips.
        c.form.widget().layout()->activate();
        QCOMPARE(c.form.get<QWidget>(u"Text6"_s).size(), QSize(width - 7, height + 27));

        c.world.editor.setText(u"edited"_s);
        c.button(back);
        QVERIFY(!c.shows(u"Text6"_s));
        for (const QString &shown : {u"Picture1"_s, u"HScroll1"_s, u"VScroll1"_s, u"Command1"_s, u"MainPic"_s})
            QVERIFY2(c.shows(shown), qPrintable(shown));
        QCOMPARE(c.enabledButtons(), u"11111111110"_s);
        QCOMPARE(c.text(0), u"<AREA SHAPE=POLY COORDS=\"10,10,50,20\""_s);
        QVERIFY(c.isVisible(u"Line1_0"_s));
        QCOMPARE(c.form.get<QWidget>(u"MainPic"_s).height(), height);
        c.button(makeHtml);
        QVERIFY(!c.world.editor.text().contains(u"edited"_s));
    }

    void toolsAndCommandsByKeyboard()
    {
        const Creator c;
        const auto focusedButton = [&c] {
            auto &bar = c.form.get<QToolBar>(u"Toolbar1"_s);
            const QList<QAction *> actions = bar.actions();
            const auto found = std::ranges::find(actions, QApplication::focusWidget(),
                                                 [&bar](QAction *action) { return bar.widgetForAction(action); });
            return found == actions.end() ? c.form.focus() : (*found)->text();
        };
        const auto walkBack = [&](const QStringList &labels) {
            for (const QString &label : labels) {
                c.form.key(Qt::Key_Backtab, Qt::ShiftModifier);
                QCOMPARE(focusedButton(), label);
            }
        };
        c.picture().setFocus();
        walkBack({u"Make HTML"_s, u"Accept"_s, u"Clear"_s, u"Circle"_s, u"Rectangle"_s});
        c.form.key(Qt::Key_Space);
        QCOMPARE(c.state("Tool"), QVariant(2));
        walkBack({u"Polygon"_s, u"Text5_5"_s});
        c.picture().setFocus();
        c.form.key(Qt::Key_Space);
        c.form.key(Qt::Key_Right);
        c.form.key(Qt::Key_Space);
        walkBack({u"Make HTML"_s, u"Accept"_s});
        c.form.key(Qt::Key_Space);
        QCOMPARE(c.text(0), u"<AREA SHAPE=RECT COORDS=\"0,0,1,0\""_s);
        c.form.key(Qt::Key_Tab);
        c.form.key(Qt::Key_Space);
        QCOMPARE(c.form.focus(), u"Text6"_s);
        c.form.key(Qt::Key_F6, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(focusedButton(), u"Back"_s);
        c.form.key(Qt::Key_Space);
        QVERIFY(!c.shows(u"Text6"_s));
        QCOMPARE(c.form.focus(), u"Picture1"_s);
    }

    void theTextCanBeLeftByKeyboard()
    {
        const Creator c;
        c.button(makeHtml);
        c.form.key(Qt::Key_F6, Qt::ControlModifier);
        QVERIFY(c.form.focus() != u"Text6");
        c.form.key(Qt::Key_F6, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(c.form.focus(), u"Text6"_s);
    }

    void scrollBars_data()
    {
        QTest::addColumn<bool>("vertical");
        QTest::newRow("HScroll1") << false;
        QTest::newRow("VScroll1") << true;
    }
    void scrollBars()
    {
        QFETCH(bool, vertical);
        const QString name = QString::fromLatin1(QTest::currentDataTag());
        Creator c;
        c.open({3000, 2000});
        auto &bar = c.form.get<QAbstractSlider>(name);
        const auto place = [&] { return vertical ? c.picture().y() : c.picture().x(); };
        QCOMPARE(c.bar("minimum", name), QVariant(0));
        QCOMPARE(c.bar("maximum", name), QVariant(-1000));
        QCOMPARE(bar.singleStep(), 1);
        const QWidget &view = c.form.get<QWidget>(u"MainPic"_s);
        QCOMPARE(bar.pageStep(), (vertical ? view.height() : view.width()) / 4);
        c.setBar(name, -250);
        QCOMPARE(place(), -250);
        QCOMPARE(c.bar("value", name), QVariant(-250));
        c.setBar(name, -5000);
        QCOMPARE(place(), -1000);
        bar.setSliderDown(true);
        bar.setSliderPosition(300);
        QCOMPARE(place(), -300);
        bar.setSliderDown(false);
        bar.triggerAction(QAbstractSlider::SliderSingleStepAdd);
        QCOMPARE(place(), -301);
        c.form.press(u"Command1"_s);
        QCOMPARE(place(), 0);
        QCOMPARE(c.bar("value", name), QVariant(0));
    }

    void positionsDontScroll()
    {
        Creator c;
        c.open({3000, 2000});
        c.setBar(u"HScroll1"_s, -700);
        c.setBar(u"VScroll1"_s, -600);
        c.button(rectangle);
        c.drag({800, 700}, {900, 750});
        c.button(acceptArea);
        QCOMPARE(c.text(0), u"<AREA SHAPE=RECT COORDS=\"800,700,900,750\""_s);
        // The picture under the mouse is the one at that place of the window.
        QCOMPARE(c.form.widget().childAt(c.picture().mapTo(&c.form.widget(), QPoint(800, 700))), &c.picture());
    }

    void theWheelScrolls()
    {
        Creator c;
        c.open({3000, 2000});
        const auto turn = [&c](QPoint units, Qt::KeyboardModifiers modifiers) {
            // Qt passes events of its own making to no parent, unlike those of the mouse.
            auto &view = c.form.get<QWidget>(u"MainPic"_s);
            QWheelEvent event({5, 5}, view.mapToGlobal(QPointF(5, 5)), {}, units, Qt::NoButton, modifiers,
                              Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(&view, &event);
        };
        turn({0, -240}, {});
        QCOMPARE(c.picture().pos(), QPoint(0, -96));
        turn({0, 120}, {});
        QCOMPARE(c.picture().pos(), QPoint(0, -48));
        turn({0, -120}, Qt::ShiftModifier);
        QCOMPARE(c.picture().pos(), QPoint(-48, -48));
        turn({0, 1200}, {});
        QCOMPARE(c.picture().pos(), QPoint(-48, 0));
    }

    void byKeyboard()
    {
        Creator c;
        c.open({320, 200});
        c.picture().setFocus();
        const auto arrows = [&c](Qt::Key key, int times, Qt::KeyboardModifiers modifiers = {}) {
            for (int i = 0; i < times; ++i)
                c.form.key(key, modifiers);
        };
        arrows(Qt::Key_Right, 2, Qt::ShiftModifier);
        arrows(Qt::Key_Down, 5);
        QCOMPARE(c.form.value(u"lblPlace"_s), u"20, 5"_s);
        c.form.key(Qt::Key_Space);
        arrows(Qt::Key_Right, 1);
        arrows(Qt::Key_Down, 3, Qt::ShiftModifier);
        QVERIFY(c.isVisible(u"Line1_0"_s));
        c.form.key(Qt::Key_Space);
        QCOMPARE(c.state("CurrentLine"), QVariant(1));
        // Held during the moves.
        QTest::keyPress(&c.picture(), Qt::Key_Space);
        arrows(Qt::Key_Left, 4);
        QTest::keyRelease(&c.picture(), Qt::Key_Space);
        QCOMPARE(c.state("CurrentLine"), QVariant(2));
        // Pressed and released without a move.
        c.form.key(Qt::Key_Space);
        c.form.key(Qt::Key_Space);
        QCOMPARE(c.state("CurrentLine"), QVariant(2));
        c.button(acceptArea);
        QCOMPARE(c.text(0), u"<AREA SHAPE=POLY COORDS=\"20,5,21,35,17,35\""_s);
    }

    void theCrossHairStaysInSight()
    {
        Creator c;
        c.open({1800, 1700});
        c.picture().setFocus();
        const QWidget &view = c.form.get<QWidget>(u"MainPic"_s);
        const auto isInSight = [&](QPoint place) { return view.rect().contains(c.picture().pos() + place); };
        for (int i = 0; i < 160; ++i)
            c.form.key(Qt::Key_Right, Qt::ShiftModifier);
        for (int i = 0; i < 120; ++i)
            c.form.key(Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(c.form.value(u"lblPlace"_s), u"1600, 1200"_s);
        QVERIFY(isInSight({1600, 1200}));
        for (int i = 0; i < 155; ++i)
            c.form.key(Qt::Key_Left, Qt::ShiftModifier);
        QVERIFY(isInSight({50, 1200}));
        QVERIFY(c.picture().x() > -50 && c.picture().x() <= 0);
    }

    void whatIsDrawnIsVisibleOnAnyPicture_data()
    {
        QTest::addColumn<QColor>("colour");
        QTest::addColumn<int>("tool");
        for (const QColor &colour : {QColor(Qt::white), QColor(Qt::black), QColor(Qt::gray)}) {
            for (const int tool : {polygon, rectangle, circle})
                QTest::addRow("%s %d", qPrintable(colour.name()), tool) << colour << tool;
        }
    }
    void whatIsDrawnIsVisibleOnAnyPicture()
    {
        QFETCH(QColor, colour);
        QFETCH(int, tool);
        Creator c;
        c.world.files.contents[u"/p.png"_s] = pictureFile({200, 200}, "PNG", colour);
        openPicture(c.world, c.form, u"/p.png"_s);
        c.button(tool);
        c.drag({50, 50}, {150, 50});
        const QImage image = c.picture().grab().toImage();
        int dark = 0;
        int light = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QColor pixel = image.pixelColor(x, y);
                dark += pixel != colour && pixel.lightness() < 60;
                light += pixel != colour && pixel.lightness() > 200;
            }
        }
        if (colour != Qt::black)
            QVERIFY(dark > 80);
        if (colour != Qt::white)
            QVERIFY(light > 80);
    }

    void thePicturesPixelsAreShownAsTheyAre()
    {
        Creator c;
        QImage image(20, 10, QImage::Format_RGB32);
        for (int y = 0; y < 10; ++y) {
            for (int x = 0; x < 20; ++x)
                image.setPixelColor(x, y, QColor(x * 10, y * 20, 77));
        }
        QByteArray bytes;
        QBuffer buffer(&bytes);
        QVERIFY(image.save(&buffer, "PNG"));
        c.world.files.contents[u"/p.png"_s] = bytes;
        openPicture(c.world, c.form, u"/p.png"_s);
        c.form.get<QWidget>(u"Text1"_s).setFocus();
        QCOMPARE(c.picture().grab().toImage().convertToFormat(QImage::Format_RGB32), image);
    }

    void dropping_data()
    {
        QTest::addColumn<QString>("target");
        for (const char *target : {"ImageMap", "Text4", "Text2_3", "Text3_0"})
            QTest::newRow(target) << QString::fromLatin1(target);
    }
    void dropping()
    {
        QFETCH(QString, target);
        Creator c;
        c.world.files.contents[u"/dropped.png"_s] = pictureFile({33, 44});
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(u"/dropped.png"_s)});
        c.drop(c.form.get<QWidget>(target), data);
        QCOMPARE(c.picture().size(), QSize(33, 44));
        QCOMPARE(c.form.value(u"Text4"_s), u"/dropped.png"_s);
        QCOMPARE(c.form.value(u"Text1"_s), u"/dropped.png"_s);
        QCOMPARE(c.text(3), QString());
        // Something else doesn't open, and text can still be dropped on a box.
        data.setUrls({QUrl::fromLocalFile(u"/none.txt"_s)});
        c.drop(c.form.get<QWidget>(target), data);
        QCOMPARE(c.form.value(u"Text4"_s), u"/dropped.png"_s);
        QMimeData text;
        text.setText(u"words"_s);
        c.drop(c.form.get<QWidget>(u"Text5_0"_s), text);
        QCOMPARE(c.form.value(u"Text5_0"_s), u"words"_s);
    }

    /// A text box by itself takes drags of text alone.
    void draggingAFileOverATextBox()
    {
        const Creator c;
        auto &box = c.form.get<QWidget>(u"Text3_0"_s);
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(u"/dragged.png"_s)});
        QDragEnterEvent enter({2, 2}, Qt::CopyAction, &data, Qt::LeftButton, {});
        enter.ignore();
        QCoreApplication::sendEvent(&box, &enter);
        QVERIFY(enter.isAccepted());
        QDragMoveEvent move({3, 3}, Qt::CopyAction, &data, Qt::LeftButton, {});
        move.ignore();
        QCoreApplication::sendEvent(&box, &move);
        QVERIFY(move.isAccepted());
        QDragLeaveEvent leave;
        QCoreApplication::sendEvent(&box, &leave);
    }

    void draggingAnAddressOpensNothing()
    {
        const Creator c;
        QMimeData data;
        data.setUrls({QUrl(u"http://localhost/a.png"_s)});
        QDragEnterEvent enter({2, 2}, Qt::CopyAction, &data, Qt::LeftButton, {});
        enter.ignore();
        QCoreApplication::sendEvent(&c.form.widget(), &enter);
        QVERIFY(!enter.isAccepted());
    }

    void droppingWhileTheTextIsShown()
    {
        Creator c;
        c.button(makeHtml);
        c.world.files.contents[u"/dropped.png"_s] = pictureFile({33, 44});
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(u"/dropped.png"_s)});
        c.drop(c.form.widget(), data);
        c.button(back);
        QCOMPARE(c.picture().size(), QSize(33, 44));
    }

    void longAndStrangeTexts()
    {
        const Creator c;
        const QString longText = u"\"<ü"_s.repeated(50000);
        c.form.set(u"Text2_0"_s, longText);
        c.form.set(u"Text3_0"_s, u"a\0\x01\r\nb"_s);
        c.form.set(u"Text5_0"_s, u"😀&"_s);
        c.form.set(u"Text4"_s, longText);
        c.button(makeHtml);
        QVERIFY(c.world.editor.text().contains(u"<IMG SRC=\""_s + longText
                                               + u"\" USEMAP=\"#\" WIDTH=0 HEIGHT=0 BORDER=0>"_s));
        QVERIFY(c.world.editor.text().contains(longText + u" HREF = \"a\0\x01\r\nb\" ALT = \"😀&\">\r\n"_s));
    }

    void closing()
    {
        const Creator byMenu;
        byMenu.form.get<QAction>(u"SubMenuExit"_s).trigger();
        QVERIFY(!byMenu.form.isOpen());
        const Creator byKey;
        byKey.form.key(Qt::Key_Escape);
        QVERIFY(!byKey.form.isOpen());
        QVERIFY(byKey.world.inserter.inserted.isEmpty());
    }

    void escapeInADragClosesNothing()
    {
        const Creator c;
        pressMouse(c.form, {10, 10});
        c.form.key(Qt::Key_Escape);
        QVERIFY(c.form.isOpen());
        releaseMouse(c.form, {10, 10});
        c.form.key(Qt::Key_Space);
        c.form.key(Qt::Key_Escape);
        QVERIFY(c.form.isOpen());
        c.form.key(Qt::Key_Space);
        c.form.key(Qt::Key_Escape);
        QVERIFY(!c.form.isOpen());
    }

    void returnDoesNothing()
    {
        const Creator c;
        c.form.get<QWidget>(u"Text1"_s).setFocus();
        c.form.key(Qt::Key_Return);
        QVERIFY(c.form.isOpen());
        QCOMPARE(c.enabledButtons(), u"11111111110"_s);
    }

    void golden_data() { addGoldenCases(u"imagemap"_s); }
    /// Besides the usual steps there are "open 320x200 /p/map.gif", "drag 1,2 3,4" and "click 1,2" on the picture,
    /// and "button 7".
    void golden()
    {
        QFETCH(QString, folder);
        playGoldenCase(imageMapCatalogue, folder, [](TestContext &world, const LivingForm &form, const QString &step) {
            const auto point = [](const QString &numbers) {
                return QPoint(numbers.section(u',', 0, 0).toInt(), numbers.section(u',', 1, 1).toInt());
            };
            const QStringList words = step.split(u' ');
            if (words[0] == u"open") {
                const QSize size(words[1].section(u'x', 0, 0).toInt(), words[1].section(u'x', 1, 1).toInt());
                const QString path = step.section(u' ', 2);
                world.files.contents[path] = pictureFile(size);
                openPicture(world, form, path);
            } else if (words[0] == u"drag") {
                dragMouse(form, point(words[1]), point(words[2]));
            } else if (words[0] == u"click") {
                pressMouse(form, point(words[1]));
                releaseMouse(form, point(words[1]));
            } else if (words[0] == u"button") {
                pressButton(form, words[1].toInt());
            } else {
                return false;
            }
            return true;
        });
    }
};

ZEPHIRA_TEST(TstImageMap)

#include "tst_imagemap.moc"
