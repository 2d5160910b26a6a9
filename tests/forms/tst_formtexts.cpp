// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/modalformopener.h"
#include "forms/allforms.h"
#include "forms/textfit.h"
#include "support/fakes.h"
#include "support/testregistry.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QScreen>
#include <QSpinBox>
#include <QTabWidget>
#include <QTest>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <functional>
#include <memory>

using namespace Qt::StringLiterals;
using namespace zephira;

/// Walks all forms with small and large letters. The scale of the screen is the process's own, so each scale has a run
/// of its own.
class TstFormTexts final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QApplication::setFont(m_font); }

    /// The measure finds what it is to find; otherwise every form would pass.
    void faultsAreFound_data()
    {
        QTest::addColumn<std::function<void(QWidget &)>>("spoil");
        QTest::addColumn<QString>("fault");
        using Spoil = std::function<void(QWidget &)>;
        QTest::newRow("nothing") << Spoil([](QWidget &) {}) << QString();
        const auto narrow = [](const char *name) {
            return Spoil(
                [name](QWidget &form) { form.findChild<QWidget *>(QString::fromLatin1(name))->setFixedWidth(24); });
        };
        QTest::newRow("label") << narrow("label") << u"QLabel label cuts \"A label\": it needs"_s;
        QTest::newRow("button") << narrow("button") << u"QPushButton button cuts \"&Press me\": it needs"_s;
        QTest::newRow("check box") << narrow("check") << u"QCheckBox check cuts \"Tick me\": it needs"_s;
        QTest::newRow("list") << narrow("list") << u"QComboBox list cuts \"An entry\": it needs"_s;
        QTest::newRow("number") << narrow("number") << u"QSpinBox number cuts \"100000\": it needs"_s;
        QTest::newRow("group") << narrow("group") << u"QGroupBox group cuts \"A title\": it needs"_s;
        QTest::newRow("lines") << Spoil([](QWidget &form) {
            auto *label = form.findChild<QLabel *>(u"label"_s);
            label->setText(u"some words that need more than one line"_s);
            label->setWordWrap(true);
            label->setFixedSize(60, 20);
        }) << u"QLabel label cuts \"some words"_s;
        QTest::newRow("heading") << Spoil([](QWidget &form) {
            form.findChild<QTreeWidget *>(u"tree"_s)->setColumnWidth(0, 10);
        }) << u"QHeaderView cuts \"Heading\": it needs"_s;
        QTest::newRow("tab") << Spoil([](QWidget &form) {
            auto *tabs = form.findChild<QTabWidget *>(u"tabs"_s);
            tabs->setUsesScrollButtons(false);
            tabs->setTabText(0, QString(200, u'x'));
            tabs->setFixedWidth(100);
        }) << u"QTabBar qt_tabwidget_tabbar has no room for the tab \"xxxx"_s;
        QTest::newRow("covered") << Spoil([](QWidget &form) {
            auto *over = new QLabel(&form);
            over->setObjectName(u"over"_s);
            over->setGeometry(form.findChild<QWidget *>(u"button"_s)->geometry());
            over->show();
        }) << u"QLabel over and QPushButton button cover each other"_s;
        QTest::newRow("outside") << Spoil([](QWidget &form) {
            auto *out = new QLabel(&form);
            out->setObjectName(u"out"_s);
            out->setGeometry(form.width() - 4, 0, 20, 4);
            out->show();
        }) << u"QLabel out reaches beyond QWidget form"_s;
    }

    void faultsAreFound()
    {
        QFETCH(std::function<void(QWidget &)>, spoil);
        QFETCH(QString, fault);
        QWidget form;
        form.setObjectName(u"form"_s);
        auto *layout = new QVBoxLayout(&form);
        const auto add = [&]<typename Control>(Control *control, const char *name) {
            control->setObjectName(QString::fromLatin1(name));
            layout->addWidget(control);
            return control;
        };
        add(new QLabel(u"A label"_s), "label");
        add(new QPushButton(u"&Press me"_s), "button");
        add(new QCheckBox(u"Tick me"_s), "check");
        add(new QComboBox, "list")->addItem(u"An entry"_s);
        add(new QSpinBox, "number")->setMaximum(100000);
        add(new QGroupBox(u"A title"_s), "group");
        add(new QTreeWidget, "tree")->setHeaderLabels({u"Heading"_s, u"Other"_s});
        add(new QTabWidget, "tabs")->addTab(new QWidget, u"Tab"_s);
        form.show();
        spoil(form);
        QVERIFY(QTest::qWaitForWindowExposed(&form));
        QApplication::processEvents();
        const QString faults = cutTexts(form).faults.join(u'\n');
        QVERIFY2(fault.isEmpty() ? faults.isEmpty() : faults.contains(fault), qPrintable(faults));
    }

    void areNotCut_data()
    {
        QTest::addColumn<QString>("form");
        QTest::addColumn<int>("points");
        const QStringList names = allForms().names();
        for (const int points : {8, 10, 13, 18, 24}) {
            for (const QString &name : names)
                QTest::addRow("%s, %d points", qPrintable(name), points) << name << points;
        }
    }

    void areNotCut()
    {
        QFETCH(QString, form);
        QFETCH(int, points);
        QFont font = m_font;
        font.setPointSize(points);
        QApplication::setFont(font);
        TestContext world;
        const FormCatalogue catalogue = allForms();
        // Like the program opens it.
        ModalFormOpener opener(catalogue, nullptr);
        opener.setContext(world);
        opener.openModeless(form);
        const std::unique_ptr<QWidget> living(opener.openForm(form));
        QVERIFY(living);
        QVERIFY(QTest::qWaitForWindowExposed(living.get()));
        // A main window's bars need what they need, however small the screen.
        const QSize screen = living->screen()->availableSize().expandedTo(
            qobject_cast<QMainWindow *>(living.get()) ? living->minimumSizeHint() : QSize());
        FormFindings all;
        if (living->width() > screen.width() || living->height() > screen.height())
            all.faults.append(
                u"%1 x %2 pixels are more than the screen has"_s.arg(living->width()).arg(living->height()));
        withEachPage(*living, [&] {
            const FormFindings found = cutTexts(*living);
            all.looks += found.looks;
            all.faults += found.faults;
        });
        m_looks += all.looks;
        QVERIFY(all.looks > 0);
        all.faults.removeDuplicates();
        QVERIFY2(all.faults.isEmpty(), qPrintable(all.faults.join(u'\n')));
    }

    void cleanupTestCase() { qInfo("%d looks at scale %g", m_looks, qApp->devicePixelRatio()); }

private:
    const QFont m_font = QApplication::font();
    int m_looks = 0;
};

ZEPHIRA_TEST(TstFormTexts)

#include "tst_formtexts.moc"
