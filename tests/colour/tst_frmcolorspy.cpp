// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/colourportal.h"
#include "colour/colourshape.h"
#include "colour/fakescreen.h"
#include "colour/frmcolorspy.h"
#include "colour/frmzoom.h"
#include "colour/registerforms.h"
#include "colour/spyhandle.h"
#include "colour/zoompicture.h"
#include "support/fakes.h"
#include "support/formkit.h"
#include "support/testregistry.h"

#include <QKeyEvent>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <ctime>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// The spy over a screen in memory, with a portal on a bus that isn't there.
struct Spy {
    TestContext world;
    std::shared_ptr<FakeScreen> screen = std::make_shared<FakeScreen>();
    std::unique_ptr<LivingForm> form;

    Spy()
    {
        FormCatalogue forms;
        colour::registerForms(forms,
                              {screen, [] { return std::make_unique<ColourPortal>(QDBusConnection(u"none"_s)); }});
        form = std::make_unique<LivingForm>(forms, u"frmColorSpy"_s, world);
    }

    QStringList shown() const
    {
        QStringList values;
        for (const QString &name : {u"txtColor"_s, u"txtHTML"_s, u"txtRed"_s, u"txtGreen"_s, u"txtBlue"_s})
            values.append(form->value(name));
        return values;
    }
    SpyHandle &handle() const { return form->get<SpyHandle>(u"picCursor"_s); }
    QTimer &timer() const { return *form->widget().findChild<QTimer *>(u"timSpy"_s); }
    frmZoom *zoom() const { return form->widget().findChild<frmZoom *>(); }
    void press() const { QTest::mousePress(&handle(), Qt::LeftButton); }
    void release() const { QTest::mouseRelease(&handle(), Qt::LeftButton); }
};

const QStringList nothing{{}, {}, {}, {}, {}};

/// Processor time of this thread, in milliseconds.
double processorTime()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

} // namespace

class TstFrmColorSpy final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void atLoad()
    {
        const Spy spy;
        QCOMPARE(spy.form->widget().windowTitle(), u"Color Spy - Zephira"_s);
        QCOMPARE(spy.shown(), nothing);
        QCOMPARE(spy.timer().interval(), 1);
        QVERIFY(!spy.timer().isActive());
        QVERIFY(!spy.zoom());
        QVERIFY(!spy.form->get(u"cmdCancel"_s).isEnabled());
        QCOMPARE(spy.form->value(u"cmdAbout"_s), u"&About"_s);
    }

    void draggingReadsThePixelUnderThePointer()
    {
        const Spy spy;
        spy.press();
        QVERIFY(spy.timer().isActive());
        QVERIFY(!spy.handle().isPictureShown());
        QVERIFY(spy.zoom() && spy.zoom()->isVisible());
        QTRY_COMPARE(spy.shown(), (QStringList{u"1797"_s, u"#5700"_s, u"5"_s, u"7"_s, u"0"_s}));
        spy.screen->place = {0, 200};
        QTRY_COMPARE(spy.shown(), (QStringList{u"51200"_s, u"#00C800"_s, u"0"_s, u"200"_s, u"0"_s}));
        QCOMPARE(spy.form->get<ColourShape>(u"picColor"_s).fillColour(), QColor(0, 200, 0));
        spy.screen->place = {16, 255};
        spy.release();
        QVERIFY(!spy.timer().isActive());
        QVERIFY(spy.handle().isPictureShown());
        QCOMPARE(spy.shown(), (QStringList{u"65296"_s, u"#10FF00"_s, u"16"_s, u"255"_s, u"0"_s}));
    }

    void nothingIsReadAfterwards()
    {
        const Spy spy;
        spy.press();
        spy.release();
        spy.zoom()->hide();
        const int reads = spy.screen->reads;
        QTest::qWait(300);
        QCOMPARE(spy.screen->reads, reads);
    }

    void byKeyboard()
    {
        const Spy spy;
        QCOMPARE(spy.form->focus(), u"picCursor"_s);
        spy.form->key(Qt::Key_Space);
        QVERIFY(spy.timer().isActive());
        for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Right, Qt::Key_Down, Qt::Key_Left, Qt::Key_Up, Qt::Key_Up})
            spy.form->key(key);
        QCOMPARE(spy.screen->place, QPoint(6, 6));
        spy.form->key(Qt::Key_Return);
        QVERIFY(!spy.timer().isActive());
        QCOMPARE(spy.shown(), (QStringList{u"1542"_s, u"#6600"_s, u"6"_s, u"6"_s, u"0"_s}));
        // A key that is held down doesn't start again.
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, {}, u"\r"_s, true);
        QApplication::sendEvent(&spy.form->get(u"picCursor"_s), &held);
        QVERIFY(!spy.timer().isActive());
        spy.form->key(Qt::Key_Right);
        QCOMPARE(spy.screen->place, QPoint(6, 6));
    }

    void escapeEndsTheSpyingFirst()
    {
        const Spy spy;
        spy.form->key(Qt::Key_Space);
        QTRY_COMPARE(spy.form->value(u"txtRed"_s), u"5"_s);
        spy.form->key(Qt::Key_Escape);
        QVERIFY(!spy.timer().isActive());
        QVERIFY(spy.form->isOpen());
        QCOMPARE(spy.shown(), nothing);
        spy.form->key(Qt::Key_Space);
        spy.form->key(Qt::Key_Return);
        spy.screen->place = {99, 98};
        spy.form->key(Qt::Key_Space);
        QTRY_COMPARE(spy.form->value(u"txtRed"_s), u"99"_s);
        spy.form->key(Qt::Key_Escape);
        QCOMPARE(spy.form->value(u"txtRed"_s), u"5"_s);
        spy.form->key(Qt::Key_Escape);
        QVERIFY(!spy.form->isOpen());
    }

    void aScreenThatGoesAway()
    {
        const Spy spy;
        spy.press();
        QTRY_COMPARE(spy.form->value(u"txtRed"_s), u"5"_s);
        spy.screen->readable = false;
        QTRY_VERIFY(!spy.timer().isActive());
        QCOMPARE(spy.form->value(u"lblStatus"_s), u"The screen can't be read."_s);
        QVERIFY(spy.handle().isPictureShown());
        spy.release();
        QCOMPARE(spy.form->value(u"txtRed"_s), u"5"_s);
    }

    void neitherScreenNorPortal()
    {
        const Spy spy;
        spy.screen->readable = false;
        spy.press();
        QCOMPARE(spy.form->value(u"lblStatus"_s), u"This desktop doesn't let programs read the screen."_s);
        QVERIFY(!spy.form->get(u"cmdCancel"_s).isEnabled());
        QVERIFY(!spy.timer().isActive());
        QCOMPARE(spy.shown(), nothing);
    }

    void about()
    {
        Spy spy;
        spy.world.prompts.expectTell(u"Color Spy\nReads the color of any pixel on the screen."_s,
                                     u"Color Spy - Zephira"_s);
        spy.form->press(u"cmdAbout"_s);
    }

    void theZoomShowsThePixelsAroundThePointer()
    {
        const Spy spy;
        spy.screen->place = {100, 120};
        spy.press();
        auto *timer = spy.zoom()->findChild<QTimer *>(u"tmrZoom"_s);
        QCOMPARE(timer->interval(), 50);
        QVERIFY(timer->isActive());
        auto *picture = spy.zoom()->findChild<ZoomPicture *>(u"picZoom"_s);
        spy.zoom()->resize(200, 200);
        QTRY_COMPARE(picture->picture().size(), QSize(200, 200));
        // Inside a cell, on a line of the grid, and in the frame.
        QCOMPARE(picture->picture().pixel(5, 5), qRgb(90, 110, 0));
        QCOMPARE(picture->picture().pixel(105, 103), qRgb(100, 120, 0));
        QCOMPARE(picture->picture().pixel(196, 187), qRgb(109, 128, 0));
        const QList<QRgb> greys{qRgb(0x80, 0x80, 0x80), qRgb(0xc0, 0xc0, 0xc0)};
        for (const QPoint point : {QPoint(10, 5), QPoint(55, 150), QPoint(93, 93), QPoint(108, 93), QPoint(93, 107)})
            QVERIFY(greys.contains(picture->picture().pixel(point)));
        QVERIFY(picture->picture().pixel(20, 5) != picture->picture().pixel(20, 6));
        spy.screen->place = {50, 60};
        QTRY_COMPARE(picture->picture().pixel(105, 103), qRgb(50, 60, 0));
        spy.zoom()->hide();
        QVERIFY(!timer->isActive());
    }

    void theZoomStaysOnTopAndTakesNoActivation()
    {
        const Spy spy;
        spy.press();
        const frmZoom *zoom = spy.zoom();
        QVERIFY(QTest::qWaitForWindowExposed(zoom->windowHandle()));
        QVERIFY(zoom->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        QVERIFY(zoom->testAttribute(Qt::WA_ShowWithoutActivating));
        QCOMPARE(zoom->toolTip(), u"made to make picking exact colors easy"_s);
        QCOMPARE(spy.form->focus(), u"picCursor"_s);
        // The picture fills the window.
        QCOMPARE(zoom->findChild<ZoomPicture *>(u"picZoom"_s)->geometry(), zoom->rect());
    }

    void theTimersRunOnlyWhileTheyAreNeeded()
    {
        const Spy spy;
        spy.press();
        const auto *timer = spy.zoom()->findChild<QTimer *>(u"tmrZoom"_s);
        // The view stays after the release, and stays fresh; the spy's timer is off.
        spy.release();
        QVERIFY(!spy.timer().isActive());
        QVERIFY(spy.zoom()->isVisible());
        QVERIFY(timer->isActive());
        // While nothing moves, the screen is read at the told refresh only, every 250 ms.
        QTest::qWait(300);
        const int before = spy.screen->reads;
        QTest::qWait(1100);
        const int reads = spy.screen->reads - before;
        QVERIFY2(reads >= 1 && reads <= 5, qPrintable(QString::number(reads)));
        // A minimised view needs no timer.
        spy.zoom()->showMinimized();
        QTRY_VERIFY(spy.zoom()->isMinimized());
        QVERIFY(!timer->isActive());
        spy.zoom()->showNormal();
        QTRY_VERIFY(timer->isActive());
        spy.zoom()->hide();
        QVERIFY(!timer->isActive());
    }

    void theZoomIsFreshWhenItIsShownAgain()
    {
        const Spy spy;
        spy.screen->place = {100, 100};
        spy.press();
        spy.release();
        spy.zoom()->hide();
        spy.screen->pixels.fill(Qt::red);
        spy.press();
        const auto *picture = spy.zoom()->findChild<ZoomPicture *>(u"picZoom"_s);
        QCOMPARE(picture->picture().pixel(5, 5), qRgb(255, 0, 0));
    }

    void tabKeepsTheArrowKeysWithTheSpy()
    {
        const Spy spy;
        spy.form->key(Qt::Key_Space);
        spy.form->key(Qt::Key_Tab);
        QCOMPARE(spy.form->focus(), u"picCursor"_s);
        spy.form->key(Qt::Key_Right);
        QCOMPARE(spy.screen->place, QPoint(6, 7));
        spy.form->key(Qt::Key_Return);
        spy.form->key(Qt::Key_Tab);
        QCOMPARE(spy.form->focus(), u"txtColor"_s);
    }

    /// Geometry, reading the pixels, drawing, and painting in the window.
    void theZoomIsDrawnFast()
    {
        const Spy spy;
        spy.press();
        frmZoom *zoom = spy.zoom();
        auto *timer = zoom->findChild<QTimer *>(u"tmrZoom"_s);
        zoom->resize(400, 400);
        const auto *picture = zoom->findChild<ZoomPicture *>(u"picZoom"_s);
        QTRY_COMPARE(picture->picture().size(), QSize(400, 400));
        double best = 1000;
        for (int i = 0; i < 20; ++i) {
            spy.screen->place = {100 + i, 100};
            const int reads = spy.screen->reads;
            const double before = processorTime();
            QVERIFY(QMetaObject::invokeMethod(timer, "timeout"));
            zoom->repaint();
            best = std::min(best, processorTime() - before);
            QCOMPARE(spy.screen->reads, reads + 1);
        }
        qInfo("a redraw takes %.2f ms", best);
        QVERIFY2(best < 4, qPrintable(u"%1 ms"_s.arg(best)));
    }
};

ZEPHIRA_TEST(TstFrmColorSpy)
#include "tst_frmcolorspy.moc"
