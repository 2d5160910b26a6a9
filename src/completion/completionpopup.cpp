// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/completionpopup.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QListView>
#include <QPainter>
#include <QScreen>
#include <QStyledItemDelegate>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr int mostRows = 10;
constexpr int listLetters = 30;
constexpr int descriptionLetters = 44;
constexpr int descriptionLines = 9;
constexpr int padding = 6;

/// Paints an entry with its note at the right end.
class EntryDelegate final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::paint(painter, option, index);
        const QString text = index.data(Qt::DisplayRole).toString();
        const QString note = index.data(Qt::ToolTipRole).toString();
        const int right = option.rect.right() - padding;
        const int left = option.rect.left() + 2 * padding + option.fontMetrics.horizontalAdvance(text);
        if (note.isEmpty() || right - left < option.fontMetrics.horizontalAdvance(note))
            return;
        const bool isSelected = option.state & QStyle::State_Selected;
        QColor colour = option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::PlaceholderText);
        // The square stands for a color of this name.
        if (note == u"■")
            colour = text == u"rebeccapurple" ? QColor(0x66, 0x33, 0x99) : QColor(text);
        painter->save();
        painter->setPen(colour);
        painter->drawText(QRect(QPoint(left, option.rect.top()), QPoint(right, option.rect.bottom())),
                          Qt::AlignRight | Qt::AlignVCenter, note);
        painter->restore();
    }

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const override
    {
        return {option.fontMetrics.averageCharWidth() * listLetters, option.fontMetrics.height() + padding};
    }
};

} // namespace

CompletionPopup::CompletionPopup(QWidget &editor)
    : QFrame(editor.window(), Qt::ToolTip | Qt::FramelessWindowHint)
    , m_list(new QListView(this))
    , m_description(new QLabel(this))
{
    setObjectName(u"completionPopup"_s);
    setAccessibleName(tr("Completion"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFocusPolicy(Qt::NoFocus);
    setFocusProxy(&editor);
    setFrameShape(QFrame::Box);
    setForegroundRole(QPalette::Mid);
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);

    m_list->setObjectName(u"completionList"_s);
    m_list->setAccessibleName(tr("Completion"));
    m_list->setModel(&m_model);
    m_list->setItemDelegate(new EntryDelegate(m_list));
    m_list->setUniformItemSizes(true);
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setFocusPolicy(Qt::NoFocus);
    m_list->setFocusProxy(&editor);
    m_list->viewport()->setFocusProxy(&editor);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setTextElideMode(Qt::ElideRight);
    connect(m_list, &QListView::clicked, this, [this] { Q_EMIT clicked(); });
    connect(m_list->selectionModel(), &QItemSelectionModel::currentChanged, this, [this] { showDescription(); });

    m_description->setObjectName(u"completionDescription"_s);
    m_description->setTextFormat(Qt::PlainText);
    m_description->setWordWrap(true);
    m_description->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_description->setForegroundRole(QPalette::Text);
    m_description->setMargin(padding);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_list, 0, Qt::AlignTop);
    layout->addWidget(m_description, 0, Qt::AlignTop);
}

void CompletionPopup::setProposals(const QList<Proposal> &proposals)
{
    m_model.setProposals(proposals);
}

bool CompletionPopup::filter(const QString &typed)
{
    m_hasMoved = false;
    m_model.filter(typed);
    if (m_model.rowCount() == 0)
        return false;
    setCurrentRow(0);
    m_list->scrollToTop();
    showDescription();
    return true;
}

int CompletionPopup::rowsShown() const
{
    return std::clamp(m_model.rowCount(), 1, mostRows);
}

void CompletionPopup::showAt(const QRect &line)
{
    const QFontMetrics metrics = m_list->fontMetrics();
    const int rowHeight = metrics.height() + padding;
    const int listWidth = metrics.averageCharWidth() * listLetters;
    const bool hasDescription = !m_description->text().isEmpty();
    const int textWidth = hasDescription ? metrics.averageCharWidth() * descriptionLetters : 0;
    const int textHeight = descriptionLines * metrics.lineSpacing() + 2 * padding;
    m_list->setFixedSize(listWidth, rowHeight * rowsShown());
    m_description->setVisible(hasDescription);
    m_description->setFixedWidth(std::max(1, textWidth));
    m_description->setMaximumHeight(textHeight);
    const int needed = hasDescription ? std::min(m_description->heightForWidth(textWidth), textHeight) : 0;
    m_description->setFixedHeight(std::max(1, needed));
    const QSize size(listWidth + textWidth + 2, std::max(rowHeight * rowsShown(), needed) + 2);

    // Otherwise the window could not become smaller than it was for a longer list.
    layout()->activate();

    const QScreen *screen = QApplication::screenAt(line.center());
    const QRect room = (screen ? screen : this->screen())->availableGeometry();
    const int below = line.bottom() + 1;
    const bool fitsBelow = below + size.height() <= room.bottom() + 1;
    const bool fitsAbove = line.top() - size.height() >= room.top();
    const int top = fitsBelow || !fitsAbove ? below : line.top() - size.height();
    const int left = std::max(room.left(), std::min(line.left() - padding, room.right() + 1 - size.width()));
    setGeometry(QRect(QPoint(left, top), size));
    if (!isVisible())
        show();
}

void CompletionPopup::setCurrentRow(int row)
{
    m_list->setCurrentIndex(m_model.index(row, 0));
}

void CompletionPopup::moveBy(int rows)
{
    const int count = m_model.rowCount();
    if (count == 0)
        return;
    const int row = m_list->currentIndex().row();
    const bool byOne = rows == 1 || rows == -1;
    // The first key in the list selects what is already the current entry's neighbour.
    setCurrentRow(byOne ? (row + rows + count) % count : std::clamp(row + rows, 0, count - 1));
    m_hasMoved = true;
}

void CompletionPopup::movePage(bool down)
{
    moveBy((down ? 1 : -1) * std::max(2, rowsShown() - 1));
}

const Proposal *CompletionPopup::current() const
{
    const QModelIndex index = m_list->currentIndex();
    return index.isValid() ? &m_model.at(index.row()) : nullptr;
}

void CompletionPopup::showDescription()
{
    const Proposal *entry = current();
    QStringList parts;
    if (entry && entry->row) {
        parts = {QString::fromUtf8(entry->row->text), sinceText(entry->row->since)};
        parts.removeAll(QString());
    }
    m_description->setText(parts.join(u"\n\n"));
    if (isVisible())
        m_description->setVisible(!parts.isEmpty());
}

} // namespace zephira
