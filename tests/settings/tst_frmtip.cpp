// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/frmtip.h"
#include "support/fakes.h"
#include "support/formkit.h"
#include "support/sourcefolder.h"
#include "support/testregistry.h"

#include <QFile>
#include <QLabel>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstFrmTip : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void caption();
    void switchIsRead_data();
    void switchIsRead();
    void switchIsWrittenAtOnce();
    void drawnTip();
    void nextTipDrawsAgain();
    void sameTipTwice();
    void oneLine();
    void shippedTipsFit();
    void missingFile();
    void emptyFile();
    void ok();

private:
    void open();
    void putTips(const QByteArray &content) { m_world->files.contents[u"/app/TIPOFDAY.TXT"_s] = content; }
    QString shown() const { return m_form->value(u"lblTipText"_s); }

    /// The random numbers, used one after the other.
    QList<double> m_random;
    std::unique_ptr<TestContext> m_world;
    std::unique_ptr<LivingForm> m_form;
};

void TstFrmTip::init()
{
    m_random.clear();
    m_world = std::make_unique<TestContext>();
    putTips("First\r\nSecond\r\nThird\r\n");
}

void TstFrmTip::cleanup()
{
    m_form.reset();
    m_world.reset();
}

void TstFrmTip::open()
{
    FormCatalogue catalogue;
    catalogue.add(u"frmTip"_s, [this](const AppContext &context, QWidget *owner) {
        return new frmTip(context, owner, [this] { return m_random.isEmpty() ? 0.0 : m_random.takeFirst(); });
    });
    m_form = std::make_unique<LivingForm>(catalogue, u"frmTip"_s, *m_world);
}

void TstFrmTip::caption()
{
    open();
    QCOMPARE(m_form->widget().windowTitle(), u"Tip of the Day"_s);
}

void TstFrmTip::switchIsRead_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("ticked");
    QTest::newRow("never set") << QString() << u"on"_s;
    QTest::newRow("1") << u"1"_s << u"on"_s;
    QTest::newRow("0") << u"0"_s << u"off"_s;
    QTest::newRow("any other number") << u"-1"_s << u"on"_s;
}

void TstFrmTip::switchIsRead()
{
    QFETCH(QString, stored);
    if (!stored.isNull())
        m_world->settings.values[u"zephira/Options/Show Tips at Startup"_s] = stored;
    open();
    QTEST(m_form->value(u"chkLoadTipsAtStartup"_s), "ticked");
}

void TstFrmTip::switchIsWrittenAtOnce()
{
    open();
    QVERIFY(m_world->settings.values.empty());
    m_form->press(u"chkLoadTipsAtStartup"_s);
    QCOMPARE(m_world->settings.values.at(u"zephira/Options/Show Tips at Startup"_s), u"0"_s);
    m_form->press(u"chkLoadTipsAtStartup"_s);
    QCOMPARE(m_world->settings.values.at(u"zephira/Options/Show Tips at Startup"_s), u"1"_s);
    QVERIFY(m_form->isOpen());
}

void TstFrmTip::drawnTip()
{
    m_random = {0.5};
    open();
    QCOMPARE(shown(), u"Second"_s);
}

void TstFrmTip::nextTipDrawsAgain()
{
    m_random = {0.0, 0.99, 0.4};
    open();
    QCOMPARE(shown(), u"First"_s);
    m_form->press(u"cmdNextTip"_s);
    QCOMPARE(shown(), u"Third"_s);
    m_form->press(u"cmdNextTip"_s);
    QCOMPARE(shown(), u"Second"_s);
}

void TstFrmTip::sameTipTwice()
{
    m_random = {0.7, 0.7};
    open();
    m_form->press(u"cmdNextTip"_s);
    QCOMPARE(shown(), u"Third"_s);
    QVERIFY(m_random.isEmpty());
}

void TstFrmTip::oneLine()
{
    putTips("Only <b>one</b>");
    m_random = {0.1, 0.5, 0.9};
    open();
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(shown(), u"Only <b>one</b>"_s);
        m_form->press(u"cmdNextTip"_s);
    }
}

/// None of the shipped tips is cut off.
void TstFrmTip::shippedTipsFit()
{
    QFile file(sourcePath(u"data/TIPOFDAY.TXT"_s));
    QVERIFY(file.open(QIODevice::ReadOnly));
    putTips(file.readAll());
    constexpr int count = 40;
    for (int i = 0; i < count; ++i)
        m_random.append((i + 0.5) / count);
    open();
    const auto &label = m_form->get<QLabel>(u"lblTipText"_s);
    QSet<QString> seen;
    for (int i = 0; i < count; ++i) {
        seen.insert(label.text());
        QVERIFY2(label.heightForWidth(label.width()) <= label.height(), qPrintable(label.text()));
        m_form->press(u"cmdNextTip"_s);
    }
    QCOMPARE(seen.size(), count);
}

void TstFrmTip::missingFile()
{
    m_world->files.contents.clear();
    open();
    const QString instructions =
        u"That the TIPOFDAY.TXT file was not found? \r\nCreate a text file named TIPOFDAY.TXT using NotePad with 1 tip "
        "per line. Then place it in the same directory as the application. "_s;
    QCOMPARE(shown(), instructions);
    m_form->press(u"cmdNextTip"_s);
    QCOMPARE(shown(), instructions);
}

void TstFrmTip::emptyFile()
{
    putTips("");
    open();
    QCOMPARE(shown(), u""_s);
    m_form->press(u"cmdNextTip"_s);
    QCOMPARE(shown(), u""_s);
}

void TstFrmTip::ok()
{
    open();
    m_form->press(u"cmdOK"_s);
    QVERIFY(!m_form->isOpen());
}

ZEPHIRA_TEST(TstFrmTip)
#include "tst_frmtip.moc"
