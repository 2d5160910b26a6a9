// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/selectonfocus.h"

#include <QFocusEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTimer>

namespace zephira {

namespace {

template<typename Box>
class Selector final : public QObject
{
public:
    explicit Selector(Box *box) : QObject(box), m_box(box) { box->installEventFilter(this); }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() != QEvent::FocusIn)
            return false;
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        if (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason)
            return false;
        m_box->selectAll();
        // The click that brings the focus then puts the caret under the pointer.
        if (reason == Qt::MouseFocusReason)
            QTimer::singleShot(0, m_box, &Box::selectAll);
        return false;
    }

private:
    Box *const m_box;
};

} // namespace

void selectOnFocus(QLineEdit *box)
{
    new Selector<QLineEdit>(box);
}

void selectOnFocus(QPlainTextEdit *box)
{
    new Selector<QPlainTextEdit>(box);
}

} // namespace zephira
