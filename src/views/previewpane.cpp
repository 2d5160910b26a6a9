// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/previewpane.h"

#include "core/browser.h"
#include "views/remotebar.h"
#include "widgets/tipwithkeys.h"

#include <QAction>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QToolBar>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

struct NavigationButton {
    QStringView key;
    QStringView tip;
    QStringView icon;
    void (*go)(Browser &);
    /// What PreviewPane takes for it, or empty.
    QStringView keys = {};
};

constexpr NavigationButton navigationButtons[] = {
    {u"back", u"Back", u"go-previous", [](Browser &browser) { browser.goBack(); }},
    {u"forward", u"Forward", u"go-next", [](Browser &browser) { browser.goForward(); }},
    {u"stop", u"Stop loading", u"process-stop", [](Browser &browser) { browser.stop(); }},
    {u"refresh", u"Load the page again", u"view-refresh", [](Browser &browser) { browser.refresh(); }, u"F5"},
    {u"home", u"Back to the document", u"go-home", [](Browser &browser) { browser.goHome(); }},
};

constexpr QKeyCombination refreshKey = Qt::Key_F5;

/// The window uses these keys for the code view, which is hidden here, so the user wouldn't see their effect.
constexpr QKeyCombination editingKeys[] = {
    Qt::CTRL | Qt::Key_Z, Qt::CTRL | Qt::Key_Y, Qt::CTRL | Qt::Key_X, Qt::CTRL | Qt::Key_C,
    Qt::CTRL | Qt::Key_V, Qt::CTRL | Qt::Key_A, Qt::Key_Delete,
};

} // namespace

PreviewPane::PreviewPane(Browser &browser, QWidget *parent) : QWidget(parent), m_browser(browser)
{
    auto *bar = new QWidget(this);
    bar->setObjectName(u"cbtop"_s);
    m_buttons = new QToolBar(bar);
    m_buttons->setObjectName(u"toolbarnav"_s);
    m_buttons->setAccessibleName(u"Navigation"_s);
    addButtons();
    m_address = new QLineEdit(bar);
    m_address->setObjectName(u"txturl"_s);
    m_address->setToolTip(u"Address of the page"_s);
    m_address->setAccessibleName(u"Address of the page"_s);
    auto *goButton = new QPushButton(u"Go"_s, bar);
    goButton->setObjectName(u"cmdgo"_s);
    goButton->setToolTip(u"Show the page at this address"_s);
    m_forbid = new QPushButton(u"Block Others"_s, bar);
    m_forbid->setObjectName(u"remoteForbid"_s);
    m_forbid->setToolTip(
        u"Block what the page loads from other machines, which you have allowed, and load the page again"_s);
    m_forbid->hide();

    auto *barLayout = new QHBoxLayout(bar);
    barLayout->setContentsMargins(2, 2, 2, 2);
    barLayout->addWidget(m_buttons);
    barLayout->addWidget(m_address, 1);
    barLayout->addWidget(goButton);
    barLayout->addWidget(m_forbid);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(bar);
    m_remoteBar = new RemoteBar(this);
    layout->addWidget(m_remoteBar);

    connect(m_address, &QLineEdit::returnPressed, this, &PreviewPane::go);
    connect(goButton, &QPushButton::clicked, this, &PreviewPane::go);
    connect(m_remoteBar, &RemoteBar::allowed, this, &PreviewPane::remoteAllowed);
    connect(m_forbid, &QPushButton::clicked, this, &PreviewPane::remoteForbidden);
    m_browser.onRemoteRefused([this](const QStringList &hosts) { m_remoteBar->setHosts(hosts); });
    m_browser.onNavigateComplete([this] { m_address->setText(m_browser.locationUrl()); });
}

void PreviewPane::addButtons()
{
    for (const NavigationButton &button : navigationButtons) {
        QAction *action = m_buttons->addAction(button.tip.toString());
        action->setObjectName(button.key);
        action->setToolTip(tipWithKeys(button.tip, button.keys));
        connect(action, &QAction::triggered, this, [this, go = button.go] { go(m_browser); });
    }
}

void PreviewPane::setBrowserWidget(QWidget *widget)
{
    static_cast<QVBoxLayout *>(layout())->addWidget(widget, 1);
    setFocusProxy(widget);
}

void PreviewPane::setRemoteAllowed(bool allowed)
{
    if (!allowed && m_forbid->hasFocus())
        setFocus(); // It would go to whatever comes next.
    m_forbid->setVisible(allowed);
}

bool PreviewPane::isOwnKey(const QKeyEvent &event) const
{
    const QKeyCombination pressed(event.modifiers() & ~Qt::KeypadModifier, Qt::Key(event.key()));
    const auto answer = editsText ? editsText(QKeySequence(pressed)) : std::nullopt;
    return pressed == refreshKey || answer.value_or(std::ranges::find(editingKeys, pressed) != std::end(editingKeys));
}

/// Keys that no part of the pane handles arrive here before they become shortcuts of the window.
bool PreviewPane::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride && isOwnKey(*static_cast<QKeyEvent *>(event))) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void PreviewPane::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == refreshKey.key())
        m_browser.refresh();
    else
        QWidget::keyPressEvent(event);
}

/// Icons cost more than the rest of the bar, so they wait until it shows.
void PreviewPane::showEvent(QShowEvent *event)
{
    for (const NavigationButton &button : navigationButtons) {
        QAction *action = m_buttons->findChild<QAction *>(button.key.toString());
        if (action->icon().isNull())
            action->setIcon(QIcon::fromTheme(button.icon.toString()));
    }
    QWidget::showEvent(event);
}

void PreviewPane::go()
{
    m_browser.navigate(m_address->text());
}

} // namespace zephira
