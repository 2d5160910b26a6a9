// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/colourportal.h"
#include "colour/fakescreen.h"
#include "colour/frmcolorspy.h"
#include "colour/frmzoom.h"
#include "colour/registerforms.h"
#include "colour/zoompicture.h"
#include "support/fakes.h"
#include "support/formkit.h"
#include "support/testregistry.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <QTest>
#include <QWindow>

using namespace Qt::StringLiterals;
using namespace zephira;

/// The spy on a desktop with two screens side by side, which screens.json describes. The second one has twice the scale
/// and reaches higher up.
class TstSpyScreens final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        const QList<QScreen *> screens = QGuiApplication::screens();
        QCOMPARE(screens.size(), 2);
        QCOMPARE(screens.at(0)->devicePixelRatio(), 1.0);
        QCOMPARE(screens.at(1)->devicePixelRatio(), 2.0);
        FormCatalogue forms;
        colour::registerForms(forms,
                              {m_screen, [] { return std::make_unique<ColourPortal>(QDBusConnection(u"none"_s)); }});
        m_form = std::make_unique<LivingForm>(forms, u"frmColorSpy"_s, m_world);
        m_form->get(u"picCursor"_s).setFocus();
    }

    void cleanup() { m_form.reset(); }

    void theZoomDodgesOnThePointersScreen()
    {
        movePointer({100, 100});
        m_form->key(Qt::Key_Space);
        // To and fro, near the edge between the screens and in their corners.
        for (const QPoint place : {QPoint(10, 10), QPoint(795, 590), QPoint(805, -160), QPoint(1300, 10),
                                   QPoint(1800, 590), QPoint(799, 300), QPoint(800, 300), QPoint(1, 599)}) {
            movePointer(place);
            const QScreen *screen = QGuiApplication::screenAt(place);
            QVERIFY(screen);
            zoom()->move(place - QPoint(50, 50));
            QTRY_VERIFY(!zoom()->frameGeometry().contains(place));
            QVERIFY(screen->availableGeometry().contains(zoom()->frameGeometry()));
        }
    }

    void thePictureHasNativePixels()
    {
        m_screen->place = {100, 100};
        m_form->key(Qt::Key_Space);
        const QList<QScreen *> screens = QGuiApplication::screens();
        for (const QScreen *screen : screens) {
            zoom()->hide();
            zoom()->move(screen->geometry().center());
            zoom()->show();
            QTRY_COMPARE(zoom()->screen(), screen);
            QTRY_COMPARE(picture().devicePixelRatio(), screen->devicePixelRatio());
            zoom()->resize(200, 100);
            const QSize native = QSize(200, 100) * screen->devicePixelRatio();
            QTRY_COMPARE(picture().size(), native);
            // A tenth of the native pixels of the screen, each ten pixels wide, with the pointer's in the middle.
            QCOMPARE(picture().pixel(native.width() / 2 + 5, native.height() / 2 + 3), qRgb(100, 100, 0));
            QCOMPARE(picture().pixel(5, 5), qRgb(100 - native.width() / 20, 100 - native.height() / 20, 0));
        }
    }

private:
    void movePointer(QPoint place)
    {
        QCursor::setPos(place);
        // The pixels don't matter for the window's place, but the spy has to see a move.
        m_screen->place = m_screen->place == QPoint(100, 100) ? QPoint(101, 100) : QPoint(100, 100);
    }
    frmZoom *zoom() const { return m_form->widget().findChild<frmZoom *>(); }
    QImage picture() const { return zoom()->findChild<ZoomPicture *>(u"picZoom"_s)->picture(); }

    TestContext m_world;
    std::shared_ptr<FakeScreen> m_screen = std::make_shared<FakeScreen>();
    std::unique_ptr<LivingForm> m_form;
};

ZEPHIRA_TEST(TstSpyScreens)
#include "tst_spyscreens.moc"
