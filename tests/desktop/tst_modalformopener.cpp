// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/formcatalogue.h"
#include "desktop/modalformopener.h"
#include "support/fakes.h"
#include "support/testregistry.h"

#include <QApplication>
#include <QDialog>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstModalFormOpener : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void nothingWithoutAContext();
    void unknownForms();
    void modalDialog();
    void modalWindow();
    void focusGoesBack();
    void modalFormOnAPage();
    void modalFormOverModalForm();
    void modalFormOverAnOwner();
    void modalFormIsNotMadeTwice();
    void modalFormOverAHiddenOne();
    void ownerDiesWhileAFormIsOpen();
    void modelessIsReused();
    void modelessIsDestroyedWhenClosed();
    void closeAll();

private:
    /// Calls the action while the next modal form is open.
    void whileOpen(std::function<void()> action) { QTimer::singleShot(0, this, std::move(action)); }
    void makeAvailable() { m_opener->setContext(m_world->context); }

    int m_made = 0;
    std::unique_ptr<TestContext> m_world;
    std::unique_ptr<FormCatalogue> m_catalogue;
    std::unique_ptr<QWidget> m_owner;
    std::unique_ptr<ModalFormOpener> m_opener;
};

void TstModalFormOpener::init()
{
    m_made = 0;
    m_world = std::make_unique<TestContext>();
    m_catalogue = std::make_unique<FormCatalogue>();
    m_owner = std::make_unique<QWidget>();
    m_opener = std::make_unique<ModalFormOpener>(*m_catalogue, m_owner.get());
    for (const QString &name : {u"frmOne"_s, u"frmTwo"_s}) {
        m_catalogue->add(name, [this, name](const AppContext &, QWidget *owner) {
            ++m_made;
            auto *form = new QDialog(owner);
            form->setObjectName(name);
            return form;
        });
    }
    m_catalogue->add(u"frmPlain"_s, [this](const AppContext &, QWidget *owner) {
        ++m_made;
        auto *form = new QWidget(owner);
        form->setObjectName(u"frmPlain"_s);
        return form;
    });
}

void TstModalFormOpener::nothingWithoutAContext()
{
    QVERIFY(!m_opener->isAvailable(u"frmOne"_s));
    m_opener->openModal(u"frmOne"_s);
    m_opener->openModeless(u"frmOne"_s);
    QCOMPARE(m_made, 0);
}

void TstModalFormOpener::unknownForms()
{
    makeAvailable();
    QVERIFY(m_opener->isAvailable(u"frmOne"_s));
    QVERIFY(!m_opener->isAvailable(u"frmNone"_s));
    m_opener->openModal(u"frmNone"_s);
    m_opener->openModeless(u"frmNone"_s);
    QCOMPARE(m_made, 0);
}

void TstModalFormOpener::modalDialog()
{
    makeAvailable();
    QPointer<QWidget> form;
    whileOpen([&] {
        form = QApplication::activeModalWidget();
        QVERIFY(form);
        QCOMPARE(form->objectName(), u"frmOne"_s);
        QCOMPARE(form->parentWidget(), m_owner.get());
        QCOMPARE(m_opener->openForm(u"frmOne"_s), form.data());
        form->close();
    });
    m_opener->openModal(u"frmOne"_s);
    QCOMPARE(m_made, 1);
    QVERIFY(form.isNull());
    QVERIFY(!m_opener->openForm(u"frmOne"_s));
}

/// Also if the form is closed together with a question, and if another window than the owner had the focus.
void TstModalFormOpener::focusGoesBack()
{
    makeAvailable();
    QWidget other;
    const QList<QWidget *> windows{m_owner.get(), &other};
    for (QWidget *window : windows)
        window->show();
    for (QWidget *window : windows) {
        window->activateWindow();
        QTRY_COMPARE(QApplication::activeWindow(), window);
        whileOpen([] {
            QWidget *form = QApplication::activeModalWidget();
            QDialog question(form);
            QTimer::singleShot(0, &question, &QDialog::accept);
            question.exec();
            form->close();
        });
        m_opener->openModal(u"frmOne"_s);
        QTRY_COMPARE(QApplication::activeWindow(), window);
    }
}

void TstModalFormOpener::modalWindow()
{
    makeAvailable();
    bool seen = false;
    whileOpen([&] {
        QWidget *form = QApplication::activeModalWidget();
        QVERIFY(form);
        seen = form->objectName() == u"frmPlain"_s && form->isWindow() && form->isVisible();
        form->close();
    });
    m_opener->openModal(u"frmPlain"_s);
    QVERIFY(seen);
    QVERIFY(!QApplication::activeModalWidget());
}

void TstModalFormOpener::modalFormOnAPage()
{
    m_opener->openModalOnPage(u"frmOne"_s, 6);
    QCOMPARE(m_made, 0);
    makeAvailable();
    QList<QVariant> pages;
    whileOpen([&] {
        QWidget *form = m_opener->openForm(u"frmOne"_s);
        pages.append(form->property("page"));
        // A form that is open turns to the page, and isn't made again.
        m_opener->openModalOnPage(u"frmOne"_s, 2);
        pages.append(form->property("page"));
        form->close();
    });
    m_opener->openModalOnPage(u"frmOne"_s, 6);
    QCOMPARE(pages, (QList<QVariant>{6, 2}));
    QCOMPARE(m_made, 1);
    whileOpen([&] {
        pages.append(m_opener->openForm(u"frmOne"_s)->property("page"));
        m_opener->closeAll();
    });
    m_opener->openModal(u"frmOne"_s);
    QVERIFY(!pages.last().isValid());
}

void TstModalFormOpener::modalFormOverModalForm()
{
    makeAvailable();
    QStringList owners;
    whileOpen([&] {
        QWidget *first = QApplication::activeModalWidget();
        QVERIFY(first);
        whileOpen([&] {
            QWidget *second = QApplication::activeModalWidget();
            QVERIFY(second);
            owners = {second->objectName(), second->parentWidget()->objectName()};
            second->close();
        });
        m_opener->openModal(u"frmTwo"_s);
        first->close();
    });
    m_opener->openModal(u"frmOne"_s);
    QCOMPARE(owners, (QStringList{u"frmTwo"_s, u"frmOne"_s}));
}

void TstModalFormOpener::modalFormOverAnOwner()
{
    makeAvailable();
    m_opener->openModeless(u"frmPlain"_s);
    QWidget *wanted = m_opener->openForm(u"frmPlain"_s);
    for (QWidget *asked : {wanted, static_cast<QWidget *>(nullptr)}) {
        const QWidget *owner = nullptr;
        whileOpen([&] {
            QWidget *form = QApplication::activeModalWidget();
            QVERIFY(form);
            owner = form->parentWidget();
            form->close();
        });
        m_opener->openModal(u"frmOne"_s, asked);
        QCOMPARE(owner, asked ? asked : m_owner.get());
    }
}

void TstModalFormOpener::modalFormIsNotMadeTwice()
{
    makeAvailable();
    whileOpen([&] {
        QWidget *form = QApplication::activeModalWidget();
        QVERIFY(form);
        m_opener->openModal(u"frmOne"_s);
        m_opener->openModeless(u"frmOne"_s);
        QCOMPARE(QApplication::activeModalWidget(), form);
        form->close();
    });
    m_opener->openModal(u"frmOne"_s);
    QCOMPARE(m_made, 1);
}

void TstModalFormOpener::modalFormOverAHiddenOne()
{
    makeAvailable();
    QPointer<QWidget> waiting;
    whileOpen([&] {
        QWidget *form = QApplication::activeModalWidget();
        QVERIFY(form);
        QCOMPARE(form->objectName(), u"frmTwo"_s);
        waiting = form->parentWidget();
        QCOMPARE(waiting->objectName(), u"frmOne"_s);
        QVERIFY(!waiting->isVisible());
        form->close();
    });
    m_opener->openModalOver(u"frmTwo"_s, u"frmOne"_s);
    QVERIFY(waiting);

    QWidget *shown = nullptr;
    whileOpen([&] {
        shown = QApplication::activeModalWidget();
        QVERIFY(shown);
        shown->close();
    });
    m_opener->openModal(u"frmOne"_s);
    QCOMPARE(m_made, 2);
    QVERIFY(shown && waiting.isNull());
}

void TstModalFormOpener::ownerDiesWhileAFormIsOpen()
{
    makeAvailable();
    for (const QString &name : {u"frmOne"_s, u"frmPlain"_s}) {
        if (!m_owner)
            init(), makeAvailable();
        whileOpen([&] { m_owner.reset(); });
        m_opener->openModal(name);
        QVERIFY(!m_opener->openForm(name));
    }
}

void TstModalFormOpener::modelessIsReused()
{
    makeAvailable();
    m_opener->openModeless(u"frmOne"_s);
    const QPointer<QWidget> form = m_opener->openForm(u"frmOne"_s);
    QVERIFY(form && form->isVisible() && !form->isModal());
    m_opener->openModeless(u"frmOne"_s);
    QCOMPARE(m_opener->openForm(u"frmOne"_s), form.data());
    form->hide();
    m_opener->openModeless(u"frmOne"_s);
    QCOMPARE(m_made, 1);
    QVERIFY(form->isVisible());
}

void TstModalFormOpener::modelessIsDestroyedWhenClosed()
{
    makeAvailable();
    m_opener->openModeless(u"frmPlain"_s);
    const QPointer<QWidget> form = m_opener->openForm(u"frmPlain"_s);
    QVERIFY(form && form->isWindow());
    form->close();
    QTRY_VERIFY(form.isNull());
    m_opener->openModeless(u"frmPlain"_s);
    QCOMPARE(m_made, 2);
}

void TstModalFormOpener::closeAll()
{
    makeAvailable();
    m_opener->openModeless(u"frmOne"_s);
    m_opener->openModeless(u"frmTwo"_s);
    m_opener->closeAll();
    QTRY_VERIFY(m_owner->findChildren<QDialog *>().isEmpty());
}

ZEPHIRA_TEST(TstModalFormOpener)
#include "tst_modalformopener.moc"
