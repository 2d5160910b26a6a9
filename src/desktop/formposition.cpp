// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/formposition.h"

#include "core/twips.h"
#include "core/usersettings.h"

#include <QGuiApplication>
#include <QLayout>
#include <QScreen>
#include <QWidget>

#include <algorithm>
#include <array>

namespace zephira {

namespace {

/// The size of the frame that the window manager adds, which isn't known before the window shows.
constexpr QSize frame(16, 48);

/// Indexed by the stored number; the system's other states count as normal.
constexpr std::array windowStates = {Qt::WindowNoState, Qt::WindowMinimized, Qt::WindowMaximized};

int stateNumber(const QWidget &form)
{
    if (form.isMinimized())
        return 1;
    return form.isMaximized() ? 2 : 0;
}

class Placement
{
public:
    Placement(UserSettings &settings, QString form) : m_settings(settings), m_form(std::move(form)) {}

    void save(UserSetting setting, int number) const { writeNumber(m_settings, setting, m_form, number); }

    void savePixels(UserSetting setting, int pixels) const { save(setting, toTwips(pixels)); }

    int number(UserSetting setting, int fallback) const { return wholeNumber(m_settings, setting, m_form, fallback); }

    int pixels(UserSetting setting, int fallback) const { return toPixels(number(setting, toTwips(fallback))); }

private:
    UserSettings &m_settings;
    QString m_form;
};

void save(QWidget &form, const Placement &placement)
{
    const int state = stateNumber(form);
    // The window manager restores the normal state with a delay, but the normal geometry is already known.
    const QRect place = state == 0 ? QRect(form.pos(), form.size()) : form.normalGeometry();
    placement.save(UserSetting::WindowShowState, state);
    if (state != 0)
        form.setWindowState(Qt::WindowNoState);
    placement.savePixels(UserSetting::WindowTop, place.y());
    placement.savePixels(UserSetting::WindowLeft, place.x());
    placement.savePixels(UserSetting::WindowHeight, place.height());
    placement.savePixels(UserSetting::WindowWidth, place.width());
}

void restore(QWidget &form, const Placement &placement)
{
    // A window that is smaller than its contents allow is enlarged when it shows, which loses the place of its frame:
    // its title would be above the screen. So its least size is settled first.
    if (QLayout *contents = form.layout())
        contents->activate();
    QRect place(form.pos(), form.size());
    const QScreen *screen = form.screen();
    // A size that isn't stored yet is limited to the screen.
    const QSize fitting = screen ? place.size().boundedTo(screen->availableSize() - frame) : place.size();
    place.moveTop(placement.pixels(UserSetting::WindowTop, place.y()));
    place.moveLeft(placement.pixels(UserSetting::WindowLeft, place.x()));
    place.setHeight(placement.pixels(UserSetting::WindowHeight, fitting.height()));
    place.setWidth(placement.pixels(UserSetting::WindowWidth, fitting.width()));

    QList<QRect> areas;
    const QList<QScreen *> screens = QGuiApplication::screens();
    for (const QScreen *each : screens)
        areas.append(each->availableGeometry());
    place = placeOnScreens(place, form.minimumSize(), areas);
    form.move(place.topLeft());
    form.resize(place.size());

    const int state = placement.number(UserSetting::WindowShowState, stateNumber(form));
    if (state >= 0 && state < static_cast<int>(windowStates.size()))
        form.setWindowState(windowStates[static_cast<std::size_t>(state)]);
}

} // namespace

QRect placeOnScreens(const QRect &wanted, const QSize &least, const QList<QRect> &screens)
{
    constexpr QSize grip(80, 24);
    QRect all;
    for (const QRect &screen : screens)
        all |= screen;
    if (all.isEmpty())
        return wanted;
    QRect place(wanted.topLeft(), wanted.size().boundedTo(all.size()).expandedTo(grip).expandedTo(least));
    const QRect upperEdge(place.topLeft(), QSize(place.width(), grip.height()));
    const bool reachable = std::ranges::any_of(screens, [&](const QRect &screen) {
        const QRect shown = screen & upperEdge;
        return shown.width() >= grip.width() && shown.height() >= grip.height() / 2;
    });
    if (reachable)
        return place;
    const QRect &screen = screens.first();
    place.setSize(place.size().boundedTo(screen.size()).expandedTo(least));
    // The upper left corner is what must be visible of a window that is larger than the screen.
    place.moveLeft(qMax(qMin(place.x(), screen.x() + screen.width() - place.width()), screen.x()));
    place.moveTop(qMax(qMin(place.y(), screen.y() + screen.height() - place.height()), screen.y()));
    return place;
}

void FormPosition(QWidget &form, bool saving, UserSettings &settings)
{
    const Placement placement(settings, form.objectName());
    if (saving)
        save(form, placement);
    else
        restore(form, placement);
}

} // namespace zephira
