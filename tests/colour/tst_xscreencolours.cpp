// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/frmzoom.h"
#include "colour/registerforms.h"
#include "colour/spyhandle.h"
#include "colour/xscreencolours.h"
#include "support/fakes.h"
#include "support/formkit.h"
#include "support/testregistry.h"

#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// A window that covers the upper left of the screen, with a colour of its own for each native pixel.
class Pattern final : public QWidget
{
public:
    Pattern() : QWidget(nullptr, Qt::FramelessWindowHint | Qt::BypassWindowManagerHint)
    {
        setGeometry(0, 0, 128, 128);
        show();
    }

    static QRgb colourAt(QPoint place) { return qRgb(place.x() % 256, place.y() % 256, 77); }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QImage picture(size() * devicePixelRatio(), QImage::Format_RGB32);
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x)
                picture.setPixel(x, y, colourAt({x, y}));
        }
        picture.setDevicePixelRatio(devicePixelRatioF());
        QPainter(this).drawImage(QPoint(), picture);
    }
};

} // namespace

/// The real screen, on a display of the test's own. Run with a scale factor as well.
class TstXScreenColours final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_pattern = std::make_unique<Pattern>();
        QVERIFY(QTest::qWaitForWindowExposed(m_pattern.get()));
        QTRY_COMPARE(m_screen.picture({100, 100, 1, 1}).pixel(0, 0), Pattern::colourAt({100, 100}));
    }

    void cleanup() { m_pattern.reset(); }

    void everyNativePixel()
    {
        QVERIFY(m_screen.isReadable());
        const QImage picture = m_screen.picture({3, 5, 90, 80});
        QCOMPARE(picture.size(), QSize(90, 80));
        for (int y = 0; y < 80; ++y) {
            for (int x = 0; x < 90; ++x)
                QCOMPARE(picture.pixel(x, y), Pattern::colourAt({x + 3, y + 5}));
        }
    }

    void whatLiesOutsideIsBlack()
    {
        const QImage picture = m_screen.picture({-4, -3, 10, 10});
        QCOMPARE(picture.size(), QSize(10, 10));
        QCOMPARE(picture.pixel(3, 5), qRgb(0, 0, 0));
        QCOMPARE(picture.pixel(5, 2), qRgb(0, 0, 0));
        QCOMPARE(picture.pixel(4, 3), Pattern::colourAt({0, 0}));
        QCOMPARE(picture.pixel(9, 9), Pattern::colourAt({5, 6}));
        QVERIFY(m_screen.picture({-100, -100, 10, 10}).isNull());
        QVERIFY(m_screen.picture({30'000, 30'000, 1, 1}).isNull());
    }

    void underWaylandTheScreenIsNotReadable()
    {
        qputenv("WAYLAND_DISPLAY", "wayland-0");
        const bool readable = m_screen.isReadable() || m_screen.pointer() || !m_screen.picture({0, 0, 1, 1}).isNull();
        qunsetenv("WAYLAND_DISPLAY");
        QVERIFY(!readable);
        QVERIFY(m_screen.isReadable());
    }

    void thePointerMovesByNativePixels()
    {
        m_screen.movePointer({41, 43});
        QTRY_COMPARE(m_screen.pointer(), QPoint(41, 43));
        m_screen.movePointer({42, 43});
        QTRY_COMPARE(m_screen.pointer(), QPoint(42, 43));
    }

    void theSpyStepsFromPixelToPixel()
    {
        TestContext world;
        FormCatalogue forms;
        colour::registerForms(forms);
        const LivingForm form(forms, u"frmColorSpy"_s, world);
        form.widget().move(300, 200);
        form.get(u"picCursor"_s).setFocus();
        m_screen.movePointer({41, 43});
        QTest::keyClick(&form.get(u"picCursor"_s), Qt::Key_Space);
        QTRY_COMPARE(form.value(u"txtRed"_s), u"41"_s);
        QTest::keyClick(&form.get(u"picCursor"_s), Qt::Key_Right);
        QTRY_COMPARE(form.value(u"txtRed"_s), u"42"_s);
        QTest::keyClick(&form.get(u"picCursor"_s), Qt::Key_Up);
        QTRY_COMPARE(form.value(u"txtGreen"_s), u"42"_s);
        QCOMPARE(form.value(u"txtHTML"_s), u"#2A2A4D"_s);
        QTest::keyClick(&form.get(u"picCursor"_s), Qt::Key_Return);
        QCOMPARE(form.value(u"txtBlue"_s), u"77"_s);
        // The magnified view has got out of the pointer's way.
        const auto *zoom = form.widget().findChild<frmZoom *>();
        QTRY_VERIFY(!zoom->frameGeometry().contains(QCursor::pos()));
    }

private:
    XScreenColours m_screen;
    std::unique_ptr<Pattern> m_pattern;
};

ZEPHIRA_TEST(TstXScreenColours)
#include "tst_xscreencolours.moc"
