// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/frmcolorspy.h"

#include "colour/colourportal.h"
#include "colour/frmzoom.h"
#include "colour/screencolours.h"
#include "colour/spynotations.h"
#include "core/prompts.h"
#include "ui_frmcolorspy.h"

#include <QKeyEvent>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace zephira {

frmColorSpy::frmColorSpy(const AppContext &context, const SpySources &sources, QWidget *owner)
    : QDialog(owner)
    , m_ui(std::make_unique<Ui::frmColorSpy>())
    , m_context(context)
    , m_sources(sources)
    , m_timer(new QTimer(this))
{
    m_ui->setupUi(this);
    m_timer->setObjectName(u"timSpy"_s);
    m_timer->setInterval(1);
    connect(m_timer, &QTimer::timeout, this, &frmColorSpy::tick);
    connect(m_ui->picCursor, &SpyHandle::pressed, this, &frmColorSpy::start);
    connect(m_ui->picCursor, &SpyHandle::released, this, &frmColorSpy::take);
    connect(m_ui->picCursor, &SpyHandle::activated, this, [this] { m_timer->isActive() ? take() : start(); });
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &frmColorSpy::giveUp);
    connect(m_ui->cmdAbout, &QPushButton::clicked, this, [this] {
        m_context.prompts.tell(u"Color Spy\nReads the color of any pixel on the screen."_s, windowTitle());
    });
    waitForPortal(false, {});
}

frmColorSpy::~frmColorSpy() = default;

void frmColorSpy::keyPressEvent(QKeyEvent *event)
{
    const bool waiting = m_timer->isActive() || (m_portal && m_portal->isWaiting());
    if (waiting && event->key() == Qt::Key_Escape)
        giveUp();
    else if (m_timer->isActive() && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter))
        take();
    else if (!m_timer->isActive() || !movePointer(event->key()))
        QDialog::keyPressEvent(event);
}

void frmColorSpy::hideEvent(QHideEvent *event)
{
    if (!event->spontaneous())
        giveUp();
    QDialog::hideEvent(event);
}

bool frmColorSpy::focusNextPrevChild(bool next)
{
    // In a text box the arrow keys would move the caret and no longer the pointer.
    return !m_timer->isActive() && QDialog::focusNextPrevChild(next);
}

void frmColorSpy::start()
{
    if (!m_sources.screen->isReadable()) {
        askPortal();
        return;
    }
    m_before = m_colour;
    m_ui->lblStatus->clear();
    m_ui->picCursor->setPictureShown(false);
    m_ui->picCursor->setFocus();
    if (!m_zoom)
        m_zoom = new frmZoom(*m_sources.screen, this);
    m_zoom->show();
    m_timer->start();
}

void frmColorSpy::take()
{
    if (!m_timer->isActive())
        return;
    tick();
    stop();
}

void frmColorSpy::giveUp()
{
    if (m_portal && m_portal->isWaiting()) {
        m_portal->cancel();
        waitForPortal(false, {});
    }
    if (!m_timer->isActive())
        return;
    stop();
    if (m_before)
        showColour(*m_before);
    else
        clearColour();
}

void frmColorSpy::stop()
{
    m_timer->stop();
    m_ui->picCursor->setPictureShown(true);
}

void frmColorSpy::tick()
{
    const std::optional<QPoint> pointer = m_sources.screen->pointer();
    const QImage pixel = pointer ? m_sources.screen->picture(QRect(*pointer, QSize(1, 1))) : QImage();
    if (pixel.isNull()) {
        stop();
        if (m_zoom)
            m_zoom->hide();
        m_ui->lblStatus->setText(tr("The screen can't be read."));
        return;
    }
    const QColor colour = pixel.pixelColor(0, 0);
    showColour(colourOf(
        {static_cast<quint8>(colour.red()), static_cast<quint8>(colour.green()), static_cast<quint8>(colour.blue())}));
}

void frmColorSpy::askPortal()
{
    if (!m_portal) {
        m_portal = m_sources.makePortal();
        connect(m_portal.get(), &ColourPortal::picked, this, [this](quint32 colour) {
            waitForPortal(false, {});
            showColour(colour);
        });
        connect(m_portal.get(), &ColourPortal::dismissed, this, [this] { waitForPortal(false, {}); });
        connect(m_portal.get(), &ColourPortal::failed, this,
                [this](const QString &sentence) { waitForPortal(false, sentence); });
    }
    if (m_portal->isWaiting())
        return;
    waitForPortal(true, tr("Click a pixel on the screen."));
    m_portal->pick();
}

void frmColorSpy::waitForPortal(bool waiting, const QString &status)
{
    m_ui->cmdCancel->setEnabled(waiting);
    m_ui->lblStatus->setText(status);
}

void frmColorSpy::showColour(quint32 colour)
{
    if (m_colour == colour)
        return;
    m_colour = colour;
    const Channels channels = channelsOf(colour);
    m_ui->picColor->setFillColour({channels[0], channels[1], channels[2]});
    m_ui->txtColor->setText(QString::number(colour));
    m_ui->txtRed->setText(QString::number(channels[0]));
    m_ui->txtGreen->setText(QString::number(channels[1]));
    m_ui->txtBlue->setText(QString::number(channels[2]));
    m_ui->txtHTML->setText(spyNotation(channels));
}

void frmColorSpy::clearColour()
{
    m_colour.reset();
    m_ui->picColor->setFillColour({});
    for (QLineEdit *box : {m_ui->txtColor, m_ui->txtRed, m_ui->txtGreen, m_ui->txtBlue, m_ui->txtHTML})
        box->clear();
}

bool frmColorSpy::movePointer(int key)
{
    const std::optional<QPoint> pointer = m_sources.screen->pointer();
    QPoint step;
    switch (key) {
    case Qt::Key_Left:
        step = {-1, 0};
        break;
    case Qt::Key_Right:
        step = {1, 0};
        break;
    case Qt::Key_Up:
        step = {0, -1};
        break;
    case Qt::Key_Down:
        step = {0, 1};
        break;
    default:
        return false;
    }
    if (pointer)
        m_sources.screen->movePointer(*pointer + step);
    return true;
}

} // namespace zephira
