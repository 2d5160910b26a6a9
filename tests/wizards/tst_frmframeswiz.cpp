// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/fakes.h"
#include "support/formkit.h"
#include "support/testregistry.h"
#include "wizards/registerforms.h"

#include <QComboBox>
#include <QImage>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// The wizard with fakes of its own.
struct Wizard {
    TestContext world;
    LivingForm form;

    Wizard() : form(catalogue(), u"frmFramesWiz"_s, world) {}

    static FormCatalogue catalogue()
    {
        FormCatalogue forms;
        wizards::registerForms(forms);
        return forms;
    }

    QWidget &canvas() const { return form.get<QWidget>(u"M"_s); }
    double left() const { return form.get<QWidget>(u"V"_s).property("Left").toDouble(); }
    double top() const { return form.get<QWidget>(u"H"_s).property("Top").toDouble(); }
    QVariant flag(const char *name) const { return form.widget().property(name); }
    quint32 colour(const QString &pane) const { return form.get<QWidget>(pane).property("BackColor").toUInt(); }
    bool shows(const QString &control) const { return form.get<QWidget>(control).isVisible(); }

    /// Moves the mouse to a place in units of the canvas, with no button held.
    void moveTo(double x, double y) const
    {
        const QPointF place(x * canvas().width() / 100, y * canvas().height() / 100);
        QMouseEvent move(QEvent::MouseMove, place, canvas().mapToGlobal(place), Qt::NoButton, Qt::NoButton, {});
        QCoreApplication::sendEvent(&canvas(), &move);
    }
    void click() const { QTest::mouseClick(&canvas(), Qt::LeftButton); }
};

constexpr quint32 white = 0xffffff;
constexpr quint32 red = 255;

} // namespace

class TstFrmFramesWiz final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults()
    {
        const Wizard wizard;
        const LivingForm &form = wizard.form;
        QCOMPARE(form.widget().windowTitle(), u"Frame Wizard ... - Zephira"_s);
        QVERIFY(wizard.shows(u"FrameOne"_s) && !wizard.shows(u"FrameTwo"_s));
        QCOMPARE(wizard.left(), 50.0);
        QCOMPARE(wizard.top(), 50.0);
        QCOMPARE(form.value(u"optV"_s) + form.value(u"optH"_s), u"offoff"_s);
        QCOMPARE(form.value(u"LBLv"_s) + form.value(u"LBLh"_s), u"50 %50 %"_s);
        QCOMPARE(form.value(u"cmdBack"_s), u"&Cancel"_s);
        QVERIFY(!form.get<QPushButton>(u"cmdFinish"_s).isEnabled());
        QVERIFY(form.get<QPushButton>(u"Command1"_s).isDefault());
        for (const QString &number : {u"1"_s, u"2"_s, u"3"_s, u"4"_s}) {
            for (const QString &field : {u"Name"_s, u"Source"_s, u"MW"_s, u"MH"_s})
                QCOMPARE(form.value(field + number), QString());
            QCOMPARE(form.value(u"Border"_s + number) + form.value(u"Resize"_s + number), u"offoff"_s);
            const auto &list = form.get<QComboBox>(u"CoS"_s + number);
            QCOMPARE(list.count(), 3);
            QCOMPARE(list.itemText(0) + list.itemText(1) + list.itemText(2), u"AutoYesNo"_s);
            QCOMPARE(list.currentText(), u"Auto"_s);
        }
    }

    void theBarFollowsTheMouse()
    {
        const Wizard wizard;
        wizard.moveTo(10, 10);
        QCOMPARE(wizard.left(), 50.0);
        wizard.form.press(u"optV"_s);
        QCOMPARE(wizard.flag("TrackV"), QVariant(true));
        wizard.moveTo(30, 10);
        QCOMPARE(wizard.left(), 31.0);
        QCOMPARE(wizard.top(), 50.0);
        QCOMPARE(wizard.form.value(u"LBLv"_s), u"30 %"_s);
        QCOMPARE(wizard.form.value(u"LBLh"_s), u"50 %"_s);
        // The bar stands where its number says.
        const QWidget &bar = wizard.form.get<QWidget>(u"V"_s);
        QVERIFY(qAbs(bar.geometry().center().x() - 0.31 * wizard.canvas().width()) <= 1);
        wizard.click();
        QCOMPARE(wizard.flag("TrackV"), QVariant(false));
        const double dropped = wizard.left();
        wizard.moveTo(80, 80);
        QCOMPARE(wizard.left(), dropped);
        wizard.form.press(u"optH"_s);
        wizard.moveTo(80, 120);
        QCOMPARE(wizard.top(), 121.0);
        QCOMPARE(wizard.form.value(u"LBLh"_s), u"100 %"_s);
        QCOMPARE(wizard.left(), dropped);
    }

    void theBarByKeyboard()
    {
        const Wizard wizard;
        wizard.form.get<QWidget>(u"optV"_s).setFocus();
        wizard.form.key(Qt::Key_Space);
        // The arrow keys now move the bar.
        QCOMPARE(wizard.form.focus(), u"M"_s);
        wizard.form.key(Qt::Key_Right);
        wizard.form.key(Qt::Key_Right);
        wizard.form.key(Qt::Key_Left);
        wizard.form.key(Qt::Key_Up);
        QCOMPARE(wizard.left(), 51.0);
        QCOMPARE(wizard.top(), 50.0);
        wizard.form.key(Qt::Key_Space);
        wizard.form.key(Qt::Key_Right);
        QCOMPARE(wizard.left(), 51.0);
        wizard.form.key(Qt::Key_Space);
        wizard.form.key(Qt::Key_Right);
        QCOMPARE(wizard.left(), 52.0);
        wizard.form.get<QWidget>(u"optV"_s).setFocus();
        wizard.form.key(Qt::Key_Right);
        QCOMPARE(wizard.form.value(u"optH"_s), u"on"_s);
        QCOMPARE(wizard.flag("TrackH"), QVariant(true));
        wizard.canvas().setFocus();
        wizard.form.key(Qt::Key_Down);
        QCOMPARE(wizard.top(), 51.0);
        wizard.form.key(Qt::Key_Return);
        QVERIFY(wizard.shows(u"FrameTwo"_s));
    }

    void theFocusOfTheCanvasIsShown()
    {
        const Wizard wizard;
        wizard.form.get<QWidget>(u"optV"_s).setFocus();
        const QImage without = wizard.canvas().grab().toImage();
        wizard.canvas().setFocus();
        QVERIFY(wizard.canvas().hasFocus());
        QVERIFY(wizard.canvas().grab().toImage() != without);
    }

    void theSecondPage()
    {
        const Wizard wizard;
        wizard.form.press(u"Command1"_s);
        QVERIFY(wizard.shows(u"FrameTwo"_s) && !wizard.shows(u"FrameOne"_s));
        QCOMPARE(wizard.form.value(u"cmdBack"_s), u"&Back"_s);
        QVERIFY(!wizard.form.get<QPushButton>(u"Command1"_s).isEnabled());
        QVERIFY(wizard.form.get<QPushButton>(u"cmdFinish"_s).isEnabled());
        QVERIFY(wizard.shows(u"F1"_s) && !wizard.shows(u"F2"_s) && !wizard.shows(u"F3"_s) && !wizard.shows(u"F4"_s));
        QCOMPARE(wizard.flag("ColPercent"), QVariant(51));
        QCOMPARE(wizard.flag("RowPercent"), QVariant(51));
        QCOMPARE(wizard.form.focus(), u"Name1"_s);
    }

    void panes_data()
    {
        QTest::addColumn<QString>("pane");
        QTest::addColumn<QString>("group");
        QTest::addColumn<bool>("right");
        QTest::addColumn<bool>("lower");
        QTest::newRow("top left") << u"P2"_s << u"F1"_s << false << false;
        QTest::newRow("top right") << u"P5"_s << u"F3"_s << true << false;
        QTest::newRow("bottom left") << u"P3"_s << u"F2"_s << false << true;
        QTest::newRow("bottom right") << u"P4"_s << u"F4"_s << true << true;
    }

    void panes()
    {
        QFETCH(QString, pane);
        QFETCH(QString, group);
        const Wizard wizard;
        wizard.form.press(u"optV"_s);
        wizard.moveTo(29, 0);
        wizard.form.press(u"optH"_s);
        wizard.moveTo(0, 69);
        wizard.form.press(u"Command1"_s);
        for (const bool byKeyboard : {false, true}) {
            wizard.form.press(pane == u"P2" ? u"P4"_s : u"P2"_s);
            QVERIFY(!wizard.shows(group));
            if (byKeyboard) {
                wizard.form.get<QWidget>(pane).setFocus();
                wizard.form.key(Qt::Key_Space);
            } else {
                wizard.form.press(pane);
            }
            for (const QString &name : {u"P2"_s, u"P3"_s, u"P4"_s, u"P5"_s})
                QCOMPARE(wizard.colour(name), name == pane ? red : white);
            for (const QString &name : {u"F1"_s, u"F2"_s, u"F3"_s, u"F4"_s})
                QCOMPARE(wizard.shows(name), name == group);
            wizard.form.press(pane);
            QCOMPARE(wizard.colour(pane), red);
            QVERIFY(wizard.shows(group));
        }
        // The grid is divided as it was drawn.
        const QWidget &preview = wizard.form.get<QWidget>(u"MSapmle"_s);
        const QRect place = wizard.form.get<QWidget>(pane).geometry();
        const int x = preview.width() * 30 / 100;
        const int y = preview.height() * 70 / 100;
        QFETCH(bool, right);
        QFETCH(bool, lower);
        QCOMPARE(place,
                 QRect(QPoint(right ? x : 0, lower ? y : 0),
                       QSize(right ? preview.width() - x : x, lower ? preview.height() - y : y)));
        QVERIFY(!wizard.form.get<QWidget>(pane).accessibleDescription().isEmpty());
    }

    void aPaneCanAlwaysBeClicked()
    {
        const Wizard wizard;
        wizard.form.press(u"optV"_s);
        wizard.moveTo(500, 0);
        wizard.form.press(u"Command1"_s);
        QVERIFY(wizard.form.get<QWidget>(u"P4"_s).width() > 10);
        wizard.form.press(u"P4"_s);
        QVERIFY(wizard.shows(u"F4"_s));
        QCOMPARE(wizard.flag("ColPercent"), QVariant(-400));
    }

    void backKeepsTheFields()
    {
        const Wizard wizard;
        wizard.form.press(u"Command1"_s);
        wizard.form.press(u"P4"_s);
        wizard.form.type(u"Name4"_s, u"four"_s);
        wizard.form.press(u"cmdBack"_s);
        QVERIFY(wizard.shows(u"FrameOne"_s));
        QCOMPARE(wizard.form.value(u"cmdBack"_s), u"&Cancel"_s);
        QVERIFY(!wizard.form.get<QPushButton>(u"cmdFinish"_s).isEnabled());
        QVERIFY(wizard.form.get<QPushButton>(u"Command1"_s).isEnabled());
        QCOMPARE(wizard.form.focus(), u"M"_s);
        wizard.form.press(u"optV"_s);
        wizard.moveTo(79, 0);
        QCOMPARE(wizard.flag("ColPercent"), QVariant(51));
        wizard.form.press(u"Command1"_s);
        QCOMPARE(wizard.flag("ColPercent"), QVariant(21));
        QVERIFY(wizard.shows(u"F1"_s));
        QCOMPARE(wizard.colour(u"P2"_s), red);
        QCOMPARE(wizard.form.value(u"Name4"_s), u"four"_s);
        wizard.form.press(u"cmdBack"_s);
        wizard.form.press(u"cmdBack"_s);
        QVERIFY(!wizard.form.isOpen());
        QVERIFY(wizard.world.inserter.inserted.isEmpty());
    }

    /// The button that goes back closes the wizard on the first page, and what was typed would be lost.
    void returnAfterBackGoesOn()
    {
        const Wizard wizard;
        wizard.form.press(u"Command1"_s);
        wizard.form.type(u"Name1"_s, u"one"_s);
        wizard.form.get<QWidget>(u"cmdBack"_s).setFocus();
        wizard.form.key(Qt::Key_Space);
        QVERIFY(wizard.shows(u"FrameOne"_s));
        wizard.form.key(Qt::Key_Return);
        QVERIFY(wizard.shows(u"FrameTwo"_s));
        QCOMPARE(wizard.form.value(u"Name1"_s), u"one"_s);
    }

    void theOrderIsThatOfTheGrid()
    {
        const Wizard wizard;
        wizard.form.press(u"Command1"_s);
        for (const QString &number : {u"4"_s, u"2"_s, u"3"_s, u"1"_s})
            wizard.form.set(u"Name"_s + number, u"n"_s + number);
        wizard.form.press(u"cmdFinish"_s);
        QVERIFY(!wizard.form.isOpen());
        const QStringList lines = wizard.world.inserter.inserted.value(0).split(u"\r\n"_s);
        QStringList names;
        for (const QString &line : lines) {
            if (line.startsWith(u"    <frame name"))
                names.append(line.section(u'"', 1, 1));
        }
        QCOMPARE(names, (QStringList{u"n1"_s, u"n3"_s, u"n2"_s, u"n4"_s}));
    }

    void theSelectionStaysInFront()
    {
        Wizard wizard;
        wizard.world.editor.setText(u"chosen"_s);
        QVERIFY(wizard.world.editor.selectPart(u"chosen"_s));
        wizard.form.press(u"Command1"_s);
        wizard.form.key(Qt::Key_Return);
        QVERIFY(!wizard.form.isOpen());
        QVERIFY(wizard.world.inserter.inserted.value(0).startsWith(u"chosen<!--- Frames --->\r\n"_s));
    }

    void longAndStrangeTexts()
    {
        const Wizard wizard;
        const QString longText = u"\"<ü"_s.repeated(50000);
        wizard.form.press(u"Command1"_s);
        wizard.form.set(u"Name1"_s, longText);
        wizard.form.set(u"Source1"_s, u"a\0\x01\r\nb"_s);
        wizard.form.press(u"cmdFinish"_s);
        QVERIFY(wizard.world.inserter.inserted.value(0).contains(u"<frame name=\""_s + longText
                                                                 + u"\" src=\"a\0\x01\r\nb\" marginwidth=\"\""_s));
    }

    void eachSourceIsAFileOfTheProject()
    {
        Wizard wizard;
        wizard.world.document.project = u"/site/"_s;
        wizard.form.press(u"Command1"_s);
        const QStringList panes{u"P2"_s, u"P3"_s, u"P5"_s, u"P4"_s};
        QString folder = u"/site/"_s;
        for (int group = 1; group <= 4; ++group) {
            const QString number = QString::number(group);
            wizard.form.press(panes[group - 1]);
            wizard.world.prompts.expectFile(
                {.title = u"Browse for file"_s, .filter = u"All Files (*.*)|*.*"_s, .initialFolder = folder},
                u"/site/a/%1.htm"_s.arg(number));
            wizard.form.press(u"browseSource"_s + number);
            QCOMPARE(wizard.form.value(u"Source"_s + number), u"a/%1.htm"_s.arg(number));
            folder = u"/site/a"_s;
        }
        QVERIFY(wizard.world.prompts.verify());
    }

    void closesWithoutText_data()
    {
        QTest::addColumn<bool>("second");
        QTest::newRow("first page") << false;
        QTest::newRow("second page") << true;
    }

    void closesWithoutText()
    {
        QFETCH(bool, second);
        const Wizard wizard;
        if (second)
            wizard.form.press(u"Command1"_s);
        wizard.form.key(Qt::Key_Escape);
        QVERIFY(!wizard.form.isOpen());
        QVERIFY(wizard.world.inserter.inserted.isEmpty());
    }

    void calledByName()
    {
        const Wizard wizard;
        QVERIFY(QMetaObject::invokeMethod(&wizard.form.widget(), "BuildCode"));
        QCOMPARE(wizard.world.inserter.inserted.size(), 1);
        QVERIFY(wizard.form.isOpen());
    }
};

ZEPHIRA_TEST(TstFrmFramesWiz)

#include "tst_frmframeswiz.moc"
