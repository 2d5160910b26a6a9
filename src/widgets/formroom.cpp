// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/formroom.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLayout>
#include <QMainWindow>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// The size of the frame that the window manager adds, which isn't known before the window shows.
constexpr QSize frame(16, 48);

/// The layout's size for lines that wrap at this width.
QSize wrapped(const QLayout &layout, QSize size)
{
    if (layout.hasHeightForWidth())
        size.setHeight(qMax(size.height(), layout.totalHeightForWidth(size.width())));
    return size;
}

/// Moves what the form shows onto a surface in a scroll area. The controls keep their order for the Tab key, and the area
/// follows the keyboard.
void makeScrollable(QWidget &form)
{
    QLayout *contents = form.layout();
    contents->setSizeConstraint(QLayout::SetDefaultConstraint);
    auto *surface = new QWidget;
    surface->setObjectName(u"surface"_s);
    surface->setLayout(contents);
    auto *area = new QScrollArea;
    area->setObjectName(u"scroller"_s);
    area->setFrameShape(QFrame::NoFrame);
    // It's no stop of the Tab key: what lies in it is.
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidgetResizable(true);
    area->setWidget(surface);
    auto *around = new QVBoxLayout(&form);
    around->setContentsMargins(0, 0, 0, 0);
    around->addWidget(area);
}

} // namespace

void giveRoom(QWidget &form)
{
    // What has changed since the form was drawn isn't known yet to each layout around it, as the form is still hidden.
    form.ensurePolished();
    const QList<QWidget *> widgets = form.findChildren<QWidget *>();
    for (QWidget *widget : widgets)
        widget->updateGeometry();
    const QList<QLayout *> layouts = form.findChildren<QLayout *>();
    for (QLayout *layout : layouts)
        layout->invalidate();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    const QScreen *screen = form.screen();
    if (!screen)
        return;
    const QSize most = screen->availableSize() - frame;
    QLayout *contents = form.layout();
    if (!contents || qobject_cast<QMainWindow *>(&form)) {
        form.resize(form.size().boundedTo(most));
        return;
    }
    const QSize least = contents->totalMinimumSize().expandedTo(form.minimumSize());
    const QSize wanted = form.testAttribute(Qt::WA_Resized) ? form.size() : contents->totalSizeHint();
    const QSize size = wrapped(*contents, wanted.boundedTo(most).expandedTo(least));
    if (size.width() <= most.width() && size.height() <= most.height()) {
        form.resize(size);
        return;
    }
    makeScrollable(form);
    const int bar = form.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &form);
    form.setMinimumSize(0, 0);
    form.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    form.resize(
        (size + QSize(size.height() > most.height() ? bar : 0, size.width() > most.width() ? bar : 0)).boundedTo(most));
}

} // namespace zephira
