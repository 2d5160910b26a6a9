// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/breadcrumb.h"

#include "assist/elementcaption.h"
#include "editor/codemax.h"

#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QStyle>
#include <QToolButton>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// How many of the innermost elements are shown at most.
constexpr int mostShown = 40;
/// How many bytes are read at a time, so that keys don't wait.
constexpr qsizetype portion = 1'000'000;
constexpr int margin = 2;
/// Between two elements.
constexpr QStringView separator = u"\u203A";

std::optional<MarkupRules> rulesOf(const QString &language)
{
    if (language.compare(u"HTML", Qt::CaseInsensitive) == 0)
        return MarkupRules::Html;
    if (language.compare(u"XML", Qt::CaseInsensitive) == 0)
        return MarkupRules::Xml;
    return {};
}

} // namespace

Breadcrumb::Breadcrumb(CodeMax &rt, QWidget *parent) : QWidget(parent), m_rt(rt), m_more(new QLabel(u"\u2026"_s, this))
{
    setObjectName(u"breadcrumb"_s);
    setAccessibleName(tr("Elements around the caret"));
    m_more->setObjectName(u"breadcrumbMore"_s);
    m_more->setToolTip(tr("There are more elements outside of these"));
    m_more->hide();
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_soon.setSingleShot(true);
    m_soon.setInterval(delay);
    connect(&m_soon, &QTimer::timeout, this, &Breadcrumb::read);
    const auto later = [this] {
        if (m_isOn && !m_soon.isActive())
            m_soon.start(delay);
    };
    connect(&m_rt, &CodeMax::SelChange, this, later);
    connect(&m_rt, &CodeMax::Change, this, later);
    connect(&m_rt, &QsciScintillaBase::SCN_MODIFIED, this, [this](int position, int type) {
        if (m_isOn && type & (QsciScintillaBase::SC_MOD_BEFOREINSERT | QsciScintillaBase::SC_MOD_BEFOREDELETE))
            m_reader.changedFrom(position);
    });
    m_rt.installEventFilter(this);
    hide();
}

void Breadcrumb::setOn(bool on)
{
    if (!on && isAncestorOf(window()->focusWidget()))
        m_rt.setFocus();
    m_isOn = on;
    m_rules = {};
    takeLanguage();
}

void Breadcrumb::takeLanguage()
{
    const std::optional<MarkupRules> rules = rulesOf(m_rt.language());
    if (rules != m_rules) {
        m_rules = rules;
        m_reader = OpenElements(rules.value_or(MarkupRules::Html));
        showElements({});
    }
    setVisible(m_isOn && m_rules && !m_rt.isHidden());
    if (isHidden())
        m_soon.stop();
    else
        m_soon.start(0);
}

void Breadcrumb::read()
{
    // A language may be set without a word.
    if (rulesOf(m_rt.language()) != m_rules) {
        takeLanguage();
        return;
    }
    if (isHidden())
        return;
    auto elements = m_reader.around(m_rt.utf8Pieces(), m_rt.engine().caret(), portion);
    if (elements)
        showElements(std::move(elements).value());
    else
        m_soon.start(1);
}

QToolButton *Breadcrumb::crumbAt(int crumb)
{
    while (static_cast<int>(m_crumbs.size()) <= crumb) {
        auto *button = new QToolButton(this);
        const int number = static_cast<int>(m_crumbs.size());
        button->setObjectName(u"crumb_%1"_s.arg(number + 1));
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::TabFocus);
        button->hide();
        button->installEventFilter(this);
        connect(button, &QToolButton::clicked, this, [this, number] { select(number); });
        m_crumbs.push_back(button);
    }
    return m_crumbs[static_cast<size_t>(crumb)];
}

void Breadcrumb::showElements(std::vector<ElementTag> elements)
{
    const auto superfluous = static_cast<std::ptrdiff_t>(elements.size()) - mostShown;
    m_hasMore = superfluous > 0;
    if (m_hasMore)
        elements.erase(elements.begin(), elements.begin() + superfluous);
    m_elements = std::move(elements);
    const int count = static_cast<int>(m_elements.size());
    for (int i = 0; i < count; ++i) {
        const ElementTag &element = m_elements[static_cast<size_t>(i)];
        const QByteArrayView tag = m_rt.engine().bytes(element.begin, element.tagEnd);
        const QString caption = elementCaption(tag, element.name);
        QToolButton *button = crumbAt(i);
        if (button->accessibleName() == caption)
            continue;
        button->setAccessibleName(caption);
        button->setText(QString(caption).replace(u'&', u"&&"_s));
        button->setToolTip(tr("Select this element: <code>&lt;%1&gt;</code>").arg(caption.toHtmlEscaped()));
    }
    arrange();
}

int Breadcrumb::gap() const
{
    return fontMetrics().horizontalAdvance(separator.toString());
}

void Breadcrumb::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    bool isFirst = m_more->isHidden();
    for (const QToolButton *crumb : m_crumbs) {
        if (crumb->isHidden() || std::exchange(isFirst, false))
            continue;
        const int left = isMirrored ? crumb->geometry().right() + 1 : crumb->x() - gap();
        painter.drawText(QRect(left, 0, gap(), height()), Qt::AlignCenter,
                         isMirrored ? u"\u2039"_s : separator.toString());
    }
}

/// The innermost elements stay in sight where there isn't room for all.
void Breadcrumb::arrange()
{
    const int count = static_cast<int>(m_elements.size());
    int room = width() - 2 * margin - m_more->sizeHint().width();
    int first = count;
    while (first > 0) {
        const int wanted = m_crumbs[static_cast<size_t>(first) - 1]->sizeHint().width() + gap();
        if (wanted > room && first < count)
            break;
        room -= wanted;
        --first;
    }
    int x = margin;
    const auto place = [this](QWidget &widget, const QRect &where) {
        widget.setGeometry(QStyle::visualRect(layoutDirection(), rect(), where));
    };
    m_more->setVisible(first > 0 || m_hasMore);
    if (!m_more->isHidden()) {
        place(*m_more, {x, 0, m_more->sizeHint().width(), height()});
        x += m_more->width() + gap();
    }
    for (int i = 0; i < static_cast<int>(m_crumbs.size()); ++i) {
        QToolButton *button = m_crumbs[static_cast<size_t>(i)];
        const bool shown = i >= first && i < count;
        if (shown) {
            const QSize wanted = button->sizeHint();
            place(*button, {x, (height() - wanted.height()) / 2, wanted.width(), wanted.height()});
            x += wanted.width() + gap();
        } else if (button->hasFocus()) {
            m_rt.setFocus();
        }
        button->setVisible(shown);
    }
    update();
}

QStringList Breadcrumb::captions() const
{
    QStringList captions;
    for (const QToolButton *crumb : m_crumbs) {
        if (!crumb->isHidden())
            captions.append(crumb->accessibleName());
    }
    return captions;
}

/// The text may have changed since the elements were read, so they are read once more.
void Breadcrumb::select(int crumb)
{
    if (crumb >= static_cast<int>(m_elements.size()))
        return;
    const ElementTag element = m_elements[static_cast<size_t>(crumb)];
    const OpenElements::Text text = m_rt.utf8Pieces();
    const auto now = m_reader.around(text, element.begin + 1, m_rt.engine().length() + 1);
    if (now && !now->empty() && now->back() == element) {
        const qsizetype end = m_reader.endOf(text, element);
        m_rt.perform([&] {
            // The beginning is in sight, and the caret in the element.
            m_rt.engine().send(QsciScintillaBase::SCI_SETSEL, end, element.begin);
            m_rt.engine().send(QsciScintillaBase::SCI_SCROLLCARET);
        });
    }
    m_rt.setFocus();
}

void Breadcrumb::focusBeside(const QToolButton *crumb, int step)
{
    const auto at = std::ranges::find(m_crumbs, crumb) - m_crumbs.begin() + step;
    if (at >= 0 && at < static_cast<std::ptrdiff_t>(m_elements.size())
        && !m_crumbs[static_cast<size_t>(at)]->isHidden())
        m_crumbs[static_cast<size_t>(at)]->setFocus(Qt::OtherFocusReason);
}

bool Breadcrumb::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == &m_rt) {
        if (event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent)
            takeLanguage();
        return QWidget::eventFilter(watched, event);
    }
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const auto *button = static_cast<QToolButton *>(watched);
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    switch (static_cast<QKeyEvent *>(event)->key()) {
    case Qt::Key_Left:
        focusBeside(button, isMirrored ? 1 : -1);
        return true;
    case Qt::Key_Right:
        focusBeside(button, isMirrored ? -1 : 1);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        select(static_cast<int>(std::ranges::find(m_crumbs, button) - m_crumbs.begin()));
        return true;
    case Qt::Key_Escape:
        m_rt.setFocus();
        return true;
    default:
        return QWidget::eventFilter(watched, event);
    }
}

void Breadcrumb::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    arrange();
}

QSize Breadcrumb::sizeHint() const
{
    QToolButton sample;
    sample.setAutoRaise(true);
    sample.setText(u"div"_s);
    sample.setFont(font());
    return {0, sample.sizeHint().height() + 2};
}

QSize Breadcrumb::minimumSizeHint() const
{
    return sizeHint();
}

} // namespace zephira
