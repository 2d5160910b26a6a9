// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/modalformopener.h"

#include "core/formcatalogue.h"
#include "widgets/formroom.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QEventLoop>

#include <algorithm>
#include <utility>

namespace zephira {

namespace {

/// Ends an event loop when the watched window is hidden or destroyed. Dialogs have their own loop; this is for plain
/// windows.
class HideWatcher final : public QObject
{
public:
    HideWatcher(QWidget *window, QEventLoop &loop) : m_loop(loop)
    {
        window->installEventFilter(this);
        connect(window, &QObject::destroyed, &m_loop, &QEventLoop::quit);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Hide && !event->spontaneous())
            m_loop.quit();
        return QObject::eventFilter(watched, event);
    }

private:
    QEventLoop &m_loop;
};

void bringToFront(QWidget *window)
{
    window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    window->show();
    window->raise();
    window->activateWindow();
}

/// The window that gets the focus back when a form over `owner` is closed.
QWidget *windowInFront(const QWidget *owner)
{
    if (QWidget *active = QApplication::activeWindow())
        return active;
    return owner ? owner->window() : nullptr;
}

/// Window managers do this themselves, but lose track if a form is closed together with the question that it asked.
void giveFocusBack(QWidget *window)
{
    // A program that isn't in front stays where it is.
    const bool isInFront = QGuiApplication::applicationState() == Qt::ApplicationActive;
    if (isInFront && window && window->isVisible() && !window->isMinimized())
        window->activateWindow();
}

void showPage(QWidget *form, std::optional<int> page)
{
    if (page)
        form->setProperty("page", *page);
}

void runModally(QWidget *form)
{
    if (auto *dialog = qobject_cast<QDialog *>(form)) {
        dialog->exec();
        return;
    }
    QEventLoop loop;
    const HideWatcher watcher(form, loop);
    form->setWindowModality(Qt::ApplicationModal);
    form->show();
    loop.exec();
}

} // namespace

ModalFormOpener::ModalFormOpener(const FormCatalogue &catalogue, QWidget *owner)
    : m_catalogue(catalogue), m_owner(owner)
{}

bool ModalFormOpener::isAvailable(const QString &form) const
{
    return m_context && m_catalogue.contains(form);
}

void ModalFormOpener::openModal(const QString &form, QWidget *owner)
{
    open(form, owner, {});
}

void ModalFormOpener::openModalOnPage(const QString &form, int page)
{
    open(form, nullptr, page);
}

void ModalFormOpener::open(const QString &form, QWidget *owner, std::optional<int> page)
{
    if (!isAvailable(form))
        return;
    QWidget *window = openForm(form);
    if (!window || window == m_waiting) {
        run(form, modalOwner(owner), page);
        return;
    }
    showPage(window, page);
    bringToFront(window);
}

void ModalFormOpener::openModalOver(const QString &form, const QString &hiddenForm)
{
    if (!isAvailable(form) || !isAvailable(hiddenForm) || openForm(form) || openForm(hiddenForm))
        return;
    m_waiting = make(hiddenForm, modalOwner(nullptr));
    run(form, m_waiting);
}

/// The topmost modal form, so that forms stack in the order in which they were opened; else the wanted owner.
QWidget *ModalFormOpener::modalOwner(QWidget *wanted) const
{
    if (QWidget *top = QApplication::activeModalWidget())
        return top;
    return wanted ? wanted : m_owner.data();
}

void ModalFormOpener::run(const QString &form, QWidget *owner, std::optional<int> page)
{
    const bool waiting = m_waiting && m_waiting->objectName() == form;
    // The form may be destroyed together with its owner while it is showing.
    const QPointer<QWidget> window = waiting ? m_waiting.data() : make(form, owner);
    if (waiting)
        m_waiting.clear();
    const QPointer<QWidget> before = windowInFront(owner);
    showPage(window, page);
    runModally(window);
    delete window;
    giveFocusBack(before);
}

void ModalFormOpener::openModeless(const QString &form)
{
    if (!isAvailable(form))
        return;
    QWidget *window = openForm(form);
    if (!window) {
        window = make(form, m_owner);
        window->setAttribute(Qt::WA_DeleteOnClose);
    }
    bringToFront(window);
}

QWidget *ModalFormOpener::openForm(const QString &form) const
{
    for (const QPointer<QWidget> &window : m_open) {
        if (window && window->objectName() == form)
            return window;
    }
    return nullptr;
}

void ModalFormOpener::closeAll()
{
    const auto open = std::exchange(m_open, {});
    std::for_each(open.rbegin(), open.rend(), [](const auto &window) {
        if (window)
            window->close();
    });
}

QWidget *ModalFormOpener::make(const QString &form, QWidget *owner)
{
    std::erase_if(m_open, [](const QPointer<QWidget> &window) { return window.isNull(); });
    QWidget *window = m_catalogue.make(form, *m_context, owner);
    // A form is a top-level window, even if its class is a plain widget.
    if (!window->isWindow())
        window->setWindowFlag(Qt::Window);
    giveRoom(*window);
    m_open.emplace_back(window);
    return window;
}

} // namespace zephira
