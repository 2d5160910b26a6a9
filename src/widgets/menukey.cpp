// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/menukey.h"

#include <QAbstractItemView>
#include <QContextMenuEvent>
#include <QKeyEvent>

#include <utility>

namespace zephira {

namespace {

class MenuKey final : public QObject
{
public:
    MenuKey(QAbstractItemView &view, std::function<void(const QPoint &place)> open)
        : QObject(&view), m_view(view), m_open(std::move(open))
    {
        view.installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched != &m_view || !isMenuKey(*event))
            return QObject::eventFilter(watched, event);
        m_open(m_view.viewport()->mapToGlobal(m_view.visualRect(m_view.currentIndex()).center()));
        return true;
    }

private:
    /// Shift+F10 doesn't cause a context menu event here.
    static bool isMenuKey(const QEvent &event)
    {
        if (event.type() == QEvent::ContextMenu)
            return static_cast<const QContextMenuEvent &>(event).reason() == QContextMenuEvent::Keyboard;
        if (event.type() != QEvent::KeyPress)
            return false;
        const auto &key = static_cast<const QKeyEvent &>(event);
        return key.key() == Qt::Key_F10 && key.modifiers() == Qt::ShiftModifier;
    }

    QAbstractItemView &m_view;
    std::function<void(const QPoint &place)> m_open;
};

} // namespace

void onMenuKey(QAbstractItemView &view, std::function<void(const QPoint &place)> open)
{
    new MenuKey(view, std::move(open));
}

} // namespace zephira
