// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/live/livepane.h"

#include "views/live/livepace.h"
#include "views/remotebar.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QSpinBox>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr int narrowest = 200;
constexpr int widest = 4000;
constexpr int firstOther = 1024;

} // namespace

LivePane::LivePane(QWidget *parent) : QWidget(parent)
{
    setObjectName(u"livePane"_s);
    m_widths = new QComboBox(this);
    m_widths->setObjectName(u"liveWidths"_s);
    m_widths->setAccessibleName(tr("Width of the page"));
    m_widths->setToolTip(
        tr("How wide the page is, in its own pixels; a page that is wider than the panel is made smaller"));
    for (const LiveWidth &width : liveWidths)
        m_widths->addItem(translated("LivePace", width.caption));
    m_widths->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_widths->setMinimumContentsLength(14);
    m_width = new QSpinBox(this);
    m_width->setObjectName(u"liveWidth"_s);
    m_width->setAccessibleName(tr("Another width of the page"));
    m_width->setToolTip(tr("The page's width in its own pixels"));
    m_width->setRange(narrowest, widest);
    m_width->setValue(firstOther);
    m_width->setKeyboardTracking(false);
    m_width->hide();
    m_colours = new QComboBox(this);
    m_colours->setObjectName(u"liveColors"_s);
    m_colours->setAccessibleName(tr("Colors of the page"));
    m_colours->setToolTip(tr("The colors that the page's style sheets are asked for"));
    m_colours->addItems({tr("As desktop"), tr("Light"), tr("Dark")});
    m_colours->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_colours->setMinimumContentsLength(10);
    auto *reload = new QToolButton(this);
    reload->setObjectName(u"liveReload"_s);
    reload->setText(tr("Reload"));
    reload->setToolTip(tr("Load the page again"));
    reload->setFocusPolicy(Qt::TabFocus);
    m_notice = new QLabel(this);
    m_notice->setObjectName(u"liveNotice"_s);
    m_notice->setTextFormat(Qt::PlainText);
    m_notice->setWordWrap(true);
    m_notice->setMargin(3);
    m_notice->hide();
    m_remoteBar = new RemoteBar(this);
    m_frame = new QWidget(this);
    m_frame->setObjectName(u"liveFrame"_s);
    m_frame->setMinimumSize(100, 60);

    auto *tools = new QHBoxLayout;
    tools->setContentsMargins(2, 2, 2, 2);
    tools->addWidget(m_widths);
    tools->addWidget(m_width);
    tools->addWidget(m_colours);
    tools->addWidget(reload);
    tools->addStretch(1);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(tools);
    layout->addWidget(m_notice);
    layout->addWidget(m_remoteBar);
    layout->addWidget(m_frame, 1);
    setFocusProxy(m_widths);

    m_pause.setSingleShot(true);
    connect(&m_pause, &QTimer::timeout, this, [this] { update(false); });
    connect(m_widths, &QComboBox::activated, this, &LivePane::chooseWidth);
    connect(m_width, &QSpinBox::valueChanged, this, &LivePane::fit);
    connect(m_colours, &QComboBox::activated, this, &LivePane::setColours);
    connect(reload, &QToolButton::clicked, this, [this] { update(true); });
    connect(m_remoteBar, &RemoteBar::allowed, this, [this] {
        Q_EMIT remoteAllowed();
        update(true);
    });
}

void LivePane::makePage()
{
    if (m_page || !makeView)
        return;
    const LivePageView view = makeView(m_frame);
    if (!view.control)
        return;
    m_page = view.control;
    m_view = view.widget;
    LivePageEvents events;
    events.shown = [this] {
        say(livePace(size()).notice);
        Q_EMIT shown();
    };
    events.clicked = [this](qsizetype place, bool isUsed) { Q_EMIT clicked(place, isUsed); };
    events.scrolled = [this](qsizetype place, bool isAtEnd) { Q_EMIT scrolled(place, isAtEnd); };
    events.sheetsChanged = [this](const QStringList &files) { Q_EMIT sheetsChanged(files); };
    events.lost = [this] {
        say(tr("The page did not answer and was ended. It is shown again after the next change."));
    };
    events.remoteRefused = [this](const QStringList &hosts) { m_remoteBar->setHosts(hosts); };
    m_page->setEvents(std::move(events));
    setColours();
    m_view->show();
    fit();
}

/// The engine itself doesn't ask the desktop, so a page would be light on a dark one.
void LivePane::setColours()
{
    constexpr int middle = 128;
    auto scheme = static_cast<ColourScheme>(m_colours->currentIndex());
    if (scheme == ColourScheme::Desktop && palette().color(QPalette::Window).lightness() < middle)
        scheme = ColourScheme::Dark;
    if (m_page)
        m_page->setColourScheme(scheme);
}

void LivePane::say(const QString &notice)
{
    m_notice->setText(notice);
    m_notice->setVisible(!notice.isEmpty());
}

void LivePane::textChanged()
{
    m_isBehind = true;
    if (!isVisible())
        return;
    const LivePace pace = livePace(size());
    if (pace.pause)
        m_pause.start(*pace.pause);
    else
        m_pause.stop();
    if (!pace.notice.isEmpty())
        say(pace.notice);
}

void LivePane::showNow()
{
    if (isVisible() && m_isBehind)
        update(false);
}

/// Shows the text in the page; `anew` loads it whatever has changed.
void LivePane::update(bool anew)
{
    m_pause.stop();
    const std::optional<Source> text = source();
    if (!text && !m_page)
        say(tr("Only pages have a live page."));
    if (!text)
        return;
    makePage();
    if (!m_page)
        return;
    m_isBehind = false;
    const auto [project, isRemoteAllowed] = permissions();
    m_page->setProjectFolder(project);
    m_page->setRemoteAllowed(isRemoteAllowed);
    m_page->show(text->html, text->file);
    if (anew)
        m_page->reload();
}

void LivePane::chooseWidth(int choice)
{
    m_width->setVisible(liveWidths[static_cast<size_t>(choice)].width < 0);
    fit();
}

/// Puts the page into the middle of its frame.
void LivePane::fit()
{
    if (!m_page)
        return;
    const int chosen = liveWidths[static_cast<size_t>(m_widths->currentIndex())].width;
    const LiveFit fit = liveFit(m_frame->width(), chosen < 0 ? m_width->value() : chosen);
    m_view->setGeometry((m_frame->width() - fit.viewWidth) / 2, 0, fit.viewWidth, m_frame->height());
    m_page->setZoom(fit.zoom);
}

void LivePane::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (m_isBehind)
        m_pause.start(0);
}

void LivePane::hideEvent(QHideEvent *event)
{
    m_pause.stop();
    QWidget::hideEvent(event);
}

void LivePane::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    // The layout sets the frame's size behind this.
    QMetaObject::invokeMethod(this, &LivePane::fit, Qt::QueuedConnection);
}

/// A bar above the page has come or gone.
bool LivePane::event(QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest)
        QMetaObject::invokeMethod(this, &LivePane::fit, Qt::QueuedConnection);
    return QWidget::event(event);
}

void LivePane::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        setColours();
}

void LivePane::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && leave)
        leave();
    else
        QWidget::keyPressEvent(event);
}

} // namespace zephira
