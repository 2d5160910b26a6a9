// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/frmzoom.h"
#include "colour/registerforms.h"
#include "colour/spyhandle.h"
#include "colour/xscreencolours.h"
#include "colour/zoompicture.h"
#include "support/fakes.h"
#include "support/formkit.h"
#include "support/testregistry.h"

#include <QApplication>
#include <QPainter>
#include <QScreen>
#include <QTest>

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <memory>

#include <xcb/xcb.h>

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

struct Free {
    void operator()(void *memory) const { std::free(memory); }
};

template<typename T>
using Reply = std::unique_ptr<T, Free>;

xcb_connection_t *server()
{
    return qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
}

xcb_atom_t atomOf(QByteArrayView name)
{
    const Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(
        server(), xcb_intern_atom(server(), 0, static_cast<uint16_t>(name.size()), name.data()), nullptr));
    return reply->atom;
}

/// The values of a window's property, which are window ids or atoms.
QList<quint32> propertyOf(const QWidget &window, QByteArrayView name)
{
    constexpr uint32_t longest = 64;
    const auto request = xcb_get_property(server(), 0, static_cast<xcb_window_t>(window.winId()), atomOf(name),
                                          XCB_GET_PROPERTY_TYPE_ANY, 0, longest);
    const Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(server(), request, nullptr));
    const auto *values = static_cast<const quint32 *>(xcb_get_property_value(reply.get()));
    return {values, values + xcb_get_property_value_length(reply.get()) / 4};
}

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
        // The magnified view lies above, and the keys stay with the spy.
        auto *zoom = form.widget().findChild<frmZoom *>();
        QVERIFY(QTest::qWaitForWindowExposed(zoom));
        QTRY_VERIFY(propertyOf(*zoom, "_NET_WM_STATE").contains(atomOf("_NET_WM_STATE_ABOVE")));
        QTest::qWait(300);
        QCOMPARE(QApplication::activeWindow(), &form.widget());
        QTRY_COMPARE(form.value(u"txtRed"_s), u"41"_s);
        QTest::keyClick(&form.get(u"picCursor"_s), Qt::Key_Right);
        QTRY_COMPARE(form.value(u"txtRed"_s), u"42"_s);
        QTest::keyClick(&form.get(u"picCursor"_s), Qt::Key_Up);
        QTRY_COMPARE(form.value(u"txtGreen"_s), u"42"_s);
        QCOMPARE(form.value(u"txtHTML"_s), u"#2A2A4D"_s);
        QTest::keyClick(&form.get(u"picCursor"_s), Qt::Key_Return);
        QCOMPARE(form.value(u"txtBlue"_s), u"77"_s);
        // The magnified view has got out of the pointer's way.
        QTRY_VERIFY(!zoom->frameGeometry().contains(QCursor::pos()));
    }

    void theMapHasNoOwner()
    {
        TestContext world;
        FormCatalogue forms;
        colour::registerForms(forms);
        QWidget owner;
        owner.show();
        const std::unique_ptr<QWidget> map(forms.make(u"frmChar"_s, world, &owner));
        map->show();
        QVERIFY(QTest::qWaitForWindowExposed(map.get()));
        // Nothing tells the window manager to keep it above another window.
        QCOMPARE(propertyOf(*map, "WM_TRANSIENT_FOR"), QList<quint32>());
        QCOMPARE(propertyOf(*map, "_NET_WM_WINDOW_TYPE"), QList<quint32>{atomOf("_NET_WM_WINDOW_TYPE_NORMAL")});
    }

    /// As in the window, with the screen read from the server.
    void theZoomIsDrawnFast()
    {
        const QSize size(400, 400);
        double best = 1000;
        for (int i = 0; i < 20; ++i) {
            const std::clock_t before = std::clock();
            const ZoomView view = zoomView({100, 100}, size);
            const QImage picture = zoomPicture(m_screen.picture(view.area), view, size);
            best = std::min(best, 1e3 * static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC);
            QCOMPARE(picture.size(), size);
        }
        qInfo("a redraw takes %.2f ms", best);
        QVERIFY2(best < 4, qPrintable(u"%1 ms"_s.arg(best)));
    }

private:
    XScreenColours m_screen;
    std::unique_ptr<Pattern> m_pattern;
};

ZEPHIRA_TEST(TstXScreenColours)
#include "tst_xscreencolours.moc"
