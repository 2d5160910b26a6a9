// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/pickpopup.h"

#include "widgets/pickmodel.h"

#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QMainWindow>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr QStringView popupName = u"pickPopup";
constexpr int mostRows = 10;
constexpr int widest = 720;
constexpr int margin = 8;

} // namespace

PickPopup &PickPopup::of(QWidget &window)
{
    auto *made = window.findChild<PickPopup *>(popupName.toString(), Qt::FindDirectChildrenOnly);
    return made ? *made : *new PickPopup(window);
}

PickPopup::PickPopup(QWidget &window)
    : QFrame(&window)
    , m_window(window)
    , m_model(new PickModel(this))
    , m_field(new QLineEdit(this))
    , m_list(new QListView(this))
{
    setObjectName(popupName.toString());
    setFrameShape(QFrame::StyledPanel);
    setFrameShadow(QFrame::Raised);
    setAutoFillBackground(true);
    m_field->setObjectName(u"txtpick"_s);
    m_field->setClearButtonEnabled(true);
    m_list->setObjectName(u"lstpick"_s);
    m_list->setModel(m_model);
    m_list->setItemDelegate(new PickDelegate(*m_model, m_list));
    m_list->setFocusPolicy(Qt::NoFocus);
    m_list->setUniformItemSizes(true);
    m_list->setEditTriggers(QListView::NoEditTriggers);
    m_list->setSelectionMode(QListView::SingleSelection);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setFrameShape(QFrame::NoFrame);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->addWidget(m_field);
    layout->addWidget(m_list);
    hide();

    m_field->installEventFilter(this);
    m_window.installEventFilter(this);
    connect(m_field, &QLineEdit::textChanged, this, &PickPopup::search);
    connect(m_list, &QListView::clicked, this, [this](const QModelIndex &index) { choose(index.row()); });
}

void PickPopup::open(const PickList &list)
{
    if (!isVisible())
        m_before = m_window.focusWidget();
    m_offer = list;
    setAccessibleName(list.title);
    m_field->setAccessibleName(list.title);
    m_field->setPlaceholderText(list.hint);
    m_list->setAccessibleName(list.title);
    {
        const QSignalBlocker quiet(m_field);
        m_field->clear();
    }
    show();
    raise();
    m_field->setFocus(Qt::PopupFocusReason);
    search();
}

void PickPopup::leave()
{
    if (!isVisible())
        return;
    hideAndFocus(true);
    if (m_offer.cancel)
        m_offer.cancel();
}

void PickPopup::search()
{
    std::vector<PickRow> rows = m_offer.search(m_field->text());
    if (rows.empty())
        rows.push_back({m_offer.nothing, {}, {}, {}, false});
    m_model->setRows(std::move(rows));
    place();
    select(0);
}

void PickPopup::place()
{
    const auto *main = qobject_cast<const QMainWindow *>(&m_window);
    const QRect area = main && main->centralWidget() ? main->centralWidget()->geometry() : m_window.rect();
    const int row = std::max(m_list->sizeHintForRow(0), 1);
    const int frame = 2 * m_list->frameWidth();
    const int around = 2 * margin + 2 * frameWidth() + layout()->spacing() + m_field->sizeHint().height();
    const int room = std::max((m_window.height() - area.top() - around - margin - frame) / row, 1);
    m_list->setFixedHeight(std::min({m_model->rowCount(), mostRows, room}) * row + frame);
    const int width = std::min(widest, m_window.width() - 2 * margin);
    setGeometry((m_window.width() - width) / 2, area.top() + margin / 2, width, around + m_list->height());
}

void PickPopup::select(int row)
{
    const QModelIndex index = m_model->index(row);
    m_list->setCurrentIndex(index);
    m_list->selectionModel()->select(index, QItemSelectionModel::ClearAndSelect);
    m_list->scrollTo(index);
    announce(row);
    if (m_offer.look && m_model->row(row).enabled)
        m_offer.look(row);
}

/// The list tells assistive technology about its current row only while it has the focus.
void PickPopup::announce(int row) const
{
    if (!QAccessible::isActive())
        return;
    QAccessibleEvent event(m_list, QAccessible::Focus);
    event.setChild(row);
    QAccessible::updateAccessibility(&event);
}

void PickPopup::move(int by, bool round)
{
    const int count = m_model->rowCount();
    const int next = m_list->currentIndex().row() + by;
    select(round ? (next + count) % count : std::clamp(next, 0, count - 1));
}

bool PickPopup::takesKey(int key)
{
    const int page = std::max(m_list->viewport()->height() / std::max(m_list->sizeHintForRow(0), 1) - 1, 1);
    switch (key) {
    case Qt::Key_Up:
    case Qt::Key_Backtab:
        move(-1, true);
        return true;
    case Qt::Key_Down:
    case Qt::Key_Tab:
        move(1, true);
        return true;
    case Qt::Key_PageUp:
        move(-page, false);
        return true;
    case Qt::Key_PageDown:
        move(page, false);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        choose(m_list->currentIndex().row());
        return true;
    case Qt::Key_Escape:
        leave();
        return true;
    default:
        return false;
    }
}

void PickPopup::choose(int row)
{
    if (row < 0 || !m_model->row(row).enabled)
        return;
    hideAndFocus(true);
    m_offer.choose(row);
}

void PickPopup::hideAndFocus(bool back)
{
    // Hiding the field would give the focus to whatever comes next.
    if (back && m_before)
        m_before->setFocus(Qt::PopupFocusReason);
    hide();
    m_before.clear();
}

bool PickPopup::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == &m_window) {
        if (event->type() == QEvent::Resize && isVisible())
            place();
        return QFrame::eventFilter(watched, event);
    }
    if (event->type() == QEvent::ShortcutOverride) {
        event->accept();
        return true;
    }
    if (event->type() == QEvent::KeyPress)
        return takesKey(static_cast<QKeyEvent *>(event)->key());
    if (event->type() == QEvent::FocusOut && isVisible()) {
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        // The menu of the field and another window don't end the search.
        if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason) {
            hideAndFocus(false);
            if (m_offer.cancel)
                m_offer.cancel();
        }
    }
    return QFrame::eventFilter(watched, event);
}

/// What the field leaves isn't for the window either.
void PickPopup::keyPressEvent(QKeyEvent *event)
{
    event->accept();
}

} // namespace zephira
