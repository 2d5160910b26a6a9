// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/libraries.h"
#include "settings/registerforms.h"
#include "support/fakes.h"
#include "support/formkit.h"
#include "support/memoryfiletypes.h"
#include "support/testregistry.h"

#include <QApplication>
#include <QLabel>
#include <QPixmap>
#include <QScopeGuard>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstFrmAbout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void texts();
    void pictureOfTheProgram();
    void creditOpensItsAddress_data();
    void creditOpensItsAddress();
    void creditsNameTheirVersions();
    void copy();
    void tabKey();
    void creditThatCannotBeOpened();
    void systemInformation();
    void systemInformationIsMissing();
    void systemInformationDoesNotStart();
    void ok();

private:
    MemoryFileTypes m_fileTypes;
    std::unique_ptr<TestContext> m_world;
    std::unique_ptr<LivingForm> m_form;
};

void TstFrmAbout::init()
{
    FormCatalogue catalogue;
    settings::registerForms(catalogue, m_fileTypes, u"/app/zephira"_s);
    m_world = std::make_unique<TestContext>();
    m_form = std::make_unique<LivingForm>(catalogue, u"frmAbout"_s, *m_world);
}

void TstFrmAbout::cleanup()
{
    m_form.reset();
    m_world.reset();
}

void TstFrmAbout::texts()
{
    QCOMPARE(m_form->widget().windowTitle(), u"About Zephira"_s);
    QCOMPARE(m_form->value(u"lblVersion"_s), u"Version 2.1.0"_s);
    QCOMPARE(m_form->value(u"lblNameQuestion"_s), u"Where does the name come from?"_s);
    QCOMPARE(m_form->value(u"lblPurposeQuestion"_s), u"What does it do?"_s);
    QVERIFY(!m_form->value(u"lblNameAnswer"_s).isEmpty());
    QVERIFY(!m_form->value(u"lblPurposeAnswer"_s).isEmpty());
}

void TstFrmAbout::pictureOfTheProgram()
{
    QPixmap picture(96, 96);
    picture.fill(QColor(0x20, 0x80, 0xc0));
    const auto restore = qScopeGuard([before = QApplication::windowIcon()] { QApplication::setWindowIcon(before); });
    QApplication::setWindowIcon(picture);
    cleanup();
    init();
    const QPixmap shown = m_form->get<QLabel>(u"picIcon"_s).pixmap(Qt::ReturnByValue);
    QCOMPARE(shown.toImage().convertedTo(QImage::Format_RGB32), picture.toImage().convertedTo(QImage::Format_RGB32));
}

void TstFrmAbout::creditOpensItsAddress_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("address");
    QTest::newRow("licence") << u"lblLicence"_s << u"https://www.gnu.org/licenses/gpl-3.0.html"_s;
    QTest::newRow("Qt") << u"lblQt"_s << u"https://www.qt.io/"_s;
    QTest::newRow("QScintilla") << u"lblQScintilla"_s << u"https://www.riverbankcomputing.com/software/qscintilla/"_s;
    QTest::newRow("HTML Tidy") << u"lblTidy"_s << u"https://www.html-tidy.org/"_s;
    QTest::newRow("Qt WebEngine") << u"lblWebEngine"_s << u"https://doc.qt.io/qt-6/qtwebengine-index.html"_s;
    QTest::newRow("Hunspell") << u"lblHunspell"_s << u"https://hunspell.github.io/"_s;
    QTest::newRow("libcurl") << u"lblCurl"_s << u"https://curl.se/libcurl/"_s;
}

void TstFrmAbout::creditOpensItsAddress()
{
    QFETCH(QString, label);
    QFETCH(QString, address);
    auto &credit = m_form->get<QLabel>(label);
    credit.setFocus();
    // The first Tab focuses the link, Return follows it.
    QTest::keyClick(&credit, Qt::Key_Tab);
    QTest::keyClick(&credit, Qt::Key_Return);
    QCOMPARE(m_world->shell.opened, QStringList{address});
}

void TstFrmAbout::creditsNameTheirVersions()
{
    QCOMPARE(m_form->value(u"lblQt"_s),
             u"Windows and dialogs by <a href=\"https://www.qt.io/\">Qt</a> "_s + QString::fromLatin1(qVersion()));
    for (const Library &library : libraries()) {
        const auto &label = m_form->get<QLabel>(library.label.toString());
        QVERIFY(label.text().endsWith(u"</a> "_s + library.version));
        QCOMPARE(label.accessibleName(),
                 library.sentence.toString() + u' ' + library.name.toString() + u' ' + library.version);
    }
    QVERIFY(m_form->value(u"lblLicence"_s).endsWith(u"</a>"_s));
}

void TstFrmAbout::copy()
{
    m_form->press(u"cmdCopy"_s);
    const QStringList lines = m_world->clipboard.content.split(u'\n');
    QCOMPARE(lines.size(), static_cast<qsizetype>(libraries().size()) + 4);
    QCOMPARE(lines.first(), u"Zephira 2.1.0"_s);
    QCOMPARE(lines[1], u"Qt "_s + QString::fromLatin1(qVersion()));
    QCOMPARE(lines[lines.size() - 2],
             u"Desktop: %1 (offscreen)"_s.arg(qEnvironmentVariable("XDG_CURRENT_DESKTOP", u"unknown"_s)));
    QCOMPARE(lines.last(), u""_s);
    QVERIFY(m_form->isOpen());
}

void TstFrmAbout::tabKey()
{
    QCOMPARE(m_form->focus(), u"cmdOK"_s);
    QStringList reached;
    do {
        m_form->key(Qt::Key_Tab);
        // A label is reached first, and then its link.
        if (!reached.contains(m_form->focus()))
            reached.append(m_form->focus());
    } while (reached.last() != u"cmdOK"_s);
    QStringList expected{u"lblLicence"_s};
    for (const Library &library : libraries())
        expected.append(library.label.toString());
    expected.append({u"cmdSysInfo"_s, u"cmdCopy"_s, u"cmdOK"_s});
    QCOMPARE(reached, expected);
}

void TstFrmAbout::creditThatCannotBeOpened()
{
    m_world->shell.failure = Error{Error::Code::Failed, u"There is no browser."_s};
    m_world->prompts.expectTell(u"There is no browser."_s, u"About Zephira"_s, Question::Icon::Exclamation);
    auto &credit = m_form->get<QLabel>(u"lblQt"_s);
    credit.setFocus();
    QTest::keyClick(&credit, Qt::Key_Tab);
    QTest::keyClick(&credit, Qt::Key_Return);
}

void TstFrmAbout::systemInformation()
{
    m_world->files.contents[u"/usr/bin/hardinfo"_s] = {};
    m_form->press(u"cmdSysInfo"_s);
    QCOMPARE(m_world->shell.started.size(), 1U);
    QCOMPARE(m_world->shell.started.front(), (FakeShell::Start{u"/usr/bin/hardinfo"_s, {}}));
}

void TstFrmAbout::systemInformationIsMissing()
{
    m_world->prompts.expectTell(u"System Information Is Unavailable At This Time"_s, {}, Question::Icon::None);
    m_form->press(u"cmdSysInfo"_s);
    QVERIFY(m_world->shell.started.empty());
    QVERIFY(m_form->isOpen());
}

void TstFrmAbout::systemInformationDoesNotStart()
{
    m_world->files.contents[u"/usr/bin/hardinfo"_s] = {};
    m_world->shell.failure = Error{Error::Code::Failed, u"No."_s};
    m_world->prompts.expectTell(u"System Information Is Unavailable At This Time"_s, {}, Question::Icon::None);
    m_form->press(u"cmdSysInfo"_s);
}

void TstFrmAbout::ok()
{
    m_form->press(u"cmdOK"_s);
    QVERIFY(!m_form->isOpen());
}

ZEPHIRA_TEST(TstFrmAbout)
#include "tst_frmabout.moc"
