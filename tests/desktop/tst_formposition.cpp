// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/formposition.h"
#include "support/fakes.h"
#include "support/testregistry.h"

#include <QScreen>
#include <QTest>
#include <QVBoxLayout>
#include <QWidget>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// Records the order in which the keys were read and written.
struct OrderedSettings final : UserSettings {
    MemoryUserSettings store;
    mutable QStringList log;

private:
    QString read(const QString &branch, const QString &section, const QString &key,
                 const QString &fallback) const override
    {
        log.append(key);
        const auto entry = store.values.find(branch + u'/' + section + u'/' + key);
        return entry == store.values.end() ? fallback : entry->second;
    }
    bool write(const QString &branch, const QString &section, const QString &key, const QString &value) override
    {
        log.append(key);
        store.values[branch + u'/' + section + u'/' + key] = value;
        return true;
    }
    bool remove(const QString &, const QString &, const QString &) override { return false; }
    QStringList keys(const QString &, const QString &) const override { return {}; }
};

} // namespace

class TstFormPosition : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void saving();
    void savingMaximised();
    void savingMinimised();
    void restoring();
    void restoringNothing();
    void restoringNonsense();
    void maximisedAndBack();
    void stateIsUsedAsItStands();
    void aFirstSizeFitsTheScreen();
    void screens_data();
    void screens();
    void contentsNeedTheirRoom_data();
    void contentsNeedTheirRoom();
    void theSizeIsSettledBeforeTheWindowShows();

private:
    QString stored(const char *key) const
    {
        return m_settings->store.values.at(u"zephira/frmmain/"_s + QLatin1StringView(key));
    }
    void put(const char *key, const QString &value)
    {
        m_settings->store.values[u"zephira/frmmain/"_s + QLatin1StringView(key)] = value;
    }
    void position(bool saving) { FormPosition(*m_form, saving, *m_settings); }

    std::unique_ptr<OrderedSettings> m_settings;
    std::unique_ptr<QWidget> m_form;
};

void TstFormPosition::init()
{
    m_settings = std::make_unique<OrderedSettings>();
    m_form = std::make_unique<QWidget>();
    m_form->setObjectName(u"frmmain"_s);
    m_form->setGeometry(40, 30, 400, 300);
}

void TstFormPosition::saving()
{
    position(true);
    QCOMPARE(m_settings->log, (QStringList{u"WindowState"_s, u"Top"_s, u"Left"_s, u"Height"_s, u"Width"_s}));
    QCOMPARE(stored("WindowState"), u"0"_s);
    QCOMPARE(stored("Top"), u"450"_s);
    QCOMPARE(stored("Left"), u"600"_s);
    QCOMPARE(stored("Height"), u"4500"_s);
    QCOMPARE(stored("Width"), u"6000"_s);
}

void TstFormPosition::savingMaximised()
{
    m_form->show();
    m_form->setWindowState(Qt::WindowMaximized);
    QTRY_VERIFY(m_form->isMaximized() && m_form->width() != 400);
    position(true);
    QVERIFY(!m_form->isMaximized());
    QCOMPARE(stored("WindowState"), u"2"_s);
    QCOMPARE(stored("Height"), u"4500"_s);
    QCOMPARE(stored("Width"), u"6000"_s);
}

void TstFormPosition::savingMinimised()
{
    m_form->show();
    m_form->setWindowState(Qt::WindowMinimized);
    position(true);
    QVERIFY(!m_form->isMinimized());
    QCOMPARE(stored("WindowState"), u"1"_s);
    QCOMPARE(stored("Width"), u"6000"_s);
}

void TstFormPosition::restoring()
{
    put("Top", u"750"_s);
    put("Left", u"1500"_s);
    put("Height", u"3000"_s);
    put("Width", u"4500"_s);
    put("WindowState", u"0"_s);
    position(false);
    QCOMPARE(m_settings->log, (QStringList{u"Top"_s, u"Left"_s, u"Height"_s, u"Width"_s, u"WindowState"_s}));
    QCOMPARE(m_form->geometry(), QRect(100, 50, 300, 200));
    QVERIFY(!m_form->isMaximized());
}

void TstFormPosition::restoringNothing()
{
    position(false);
    QCOMPARE(m_form->geometry(), QRect(40, 30, 400, 300));
    QVERIFY(!m_form->isMaximized());
}

void TstFormPosition::restoringNonsense()
{
    for (const char *key : {"Top", "Left", "Height", "Width", "WindowState"})
        put(key, u"12 o'clock"_s);
    position(false);
    QCOMPARE(m_form->geometry(), QRect(40, 30, 400, 300));
    put("WindowState", u"7"_s);
    position(false);
    QVERIFY(!m_form->isMaximized() && !m_form->isMinimized());
}

void TstFormPosition::maximisedAndBack()
{
    m_form->showMaximized();
    QTRY_VERIFY(m_form->isMaximized());
    position(true);

    QWidget next;
    next.setObjectName(u"frmmain"_s);
    FormPosition(next, false, *m_settings);
    QVERIFY(next.isMaximized());
    next.show();
    next.setWindowState(Qt::WindowNoState);
    QTRY_COMPARE(next.size(), QSize(400, 300));
}

void TstFormPosition::stateIsUsedAsItStands()
{
    put("WindowState", u"1"_s);
    position(false);
    QVERIFY(m_form->isMinimized());
}

/// The first start: nothing is stored, and the form would be larger than the screen.
void TstFormPosition::aFirstSizeFitsTheScreen()
{
    const QSize screen = m_form->screen()->availableSize();
    m_form->resize(screen * 2);
    position(false);
    QVERIFY(m_form->width() < screen.width());
    QVERIFY(m_form->height() <= screen.height() - 40); // Room for the frame.
    m_form->resize(300, 200);
    position(false);
    QCOMPARE(m_form->size(), QSize(300, 200));
}

void TstFormPosition::screens_data()
{
    QTest::addColumn<QRect>("wanted");
    QTest::addColumn<QList<QRect>>("screens");
    QTest::addColumn<QRect>("expected");
    const QRect wide(0, 0, 1600, 1000);
    const QRect right(1600, 200, 1000, 800);
    QTest::newRow("inside") << QRect(10, 20, 300, 200) << QList<QRect>{wide} << QRect(10, 20, 300, 200);
    QTest::newRow("partly outside") << QRect(1500, 900, 300, 200) << QList<QRect>{wide} << QRect(1500, 900, 300, 200);
    QTest::newRow("on the second screen")
        << QRect(1700, 300, 300, 200) << QList<QRect>{wide, right} << QRect(1700, 300, 300, 200);
    QTest::newRow("second screen is gone")
        << QRect(1700, 300, 300, 200) << QList<QRect>{wide} << QRect(1300, 300, 300, 200);
    QTest::newRow("above") << QRect(10, -500, 300, 200) << QList<QRect>{wide} << QRect(10, 0, 300, 200);
    QTest::newRow("title bar above") << QRect(10, -30, 300, 200) << QList<QRect>{wide} << QRect(10, 0, 300, 200);
    QTest::newRow("a sliver is left") << QRect(1590, 0, 300, 200) << QList<QRect>{wide} << QRect(1300, 0, 300, 200);
    QTest::newRow("too large and outside") << QRect(5000, 5000, 3000, 2000) << QList<QRect>{wide} << wide;
    QTest::newRow("larger than the screen")
        << QRect(10, 20, 9000, 7000) << QList<QRect>{wide} << QRect(10, 20, 1600, 1000);
    QTest::newRow("over two screens") << QRect(10, 20, 2400, 900) << QList<QRect>{wide, right}
                                      << QRect(10, 20, 2400, 900);
    QTest::newRow("no size") << QRect(10, 20, 0, -5) << QList<QRect>{wide} << QRect(10, 20, 80, 24);
    QTest::newRow("no screen") << QRect(5000, 5000, 30, 20) << QList<QRect>{} << QRect(5000, 5000, 30, 20);
}

void TstFormPosition::screens()
{
    QFETCH(QRect, wanted);
    QFETCH(QList<QRect>, screens);
    QFETCH(QRect, expected);
    QCOMPARE(placeOnScreens(wanted, {}, screens), expected);
}

/// What the contents need comes before what fits, and the title is visible in any case. On a screen of 1366 × 768 at
/// scale 3 there is hardly more room than a window needs.
void TstFormPosition::contentsNeedTheirRoom_data()
{
    QTest::addColumn<QRect>("wanted");
    QTest::addColumn<QSize>("least");
    QTest::addColumn<QRect>("expected");
    QTest::newRow("enough") << QRect(10, 20, 400, 208) << QSize(300, 200) << QRect(10, 20, 400, 208);
    QTest::newRow("too low") << QRect(0, 0, 439, 208) << QSize(416, 240) << QRect(0, 0, 439, 240);
    QTest::newRow("too narrow") << QRect(5, 6, 300, 240) << QSize(416, 200) << QRect(5, 6, 416, 240);
    QTest::newRow("larger than the screen") << QRect(0, 0, 300, 200) << QSize(500, 300) << QRect(0, 0, 500, 300);
    QTest::newRow("outside") << QRect(600, 300, 300, 200) << QSize(416, 240) << QRect(39, 16, 416, 240);
    QTest::newRow("outside and larger") << QRect(600, 300, 300, 200) << QSize(500, 300) << QRect(0, 0, 500, 300);
}

void TstFormPosition::contentsNeedTheirRoom()
{
    QFETCH(QRect, wanted);
    QFETCH(QSize, least);
    QTEST(placeOnScreens(wanted, least, {QRect(0, 0, 1366 / 3, 768 / 3)}), "expected");
}

/// A window that the layout enlarges when it shows loses the place of its frame, and its title with it.
void TstFormPosition::theSizeIsSettledBeforeTheWindowShows()
{
    QWidget contents;
    contents.setMinimumSize(500, 400);
    auto *layout = new QVBoxLayout(m_form.get());
    layout->addWidget(&contents);
    put("Height", u"3000"_s);
    put("Width", u"4500"_s);
    position(false);
    const QSize settled = m_form->size();
    QVERIFY(settled.width() >= 500 && settled.height() >= 400);
    m_form->show();
    QCOMPARE(m_form->size(), settled);
    contents.setParent(nullptr);
}

ZEPHIRA_TEST(TstFormPosition)
#include "tst_formposition.moc"
