// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/icons.h"

#include "commands/glyphs.h"
#include "commands/menukeys.h"
#include "widgets/themeicon.h"

#include <QAction>
#include <QEvent>
#include <QGuiApplication>
#include <QPalette>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace zephira {

QIcon iconFor(QStringView icon)
{
    if (icon.isEmpty() || icon.startsWith(u':'))
        return {};
    return icon.startsWith(u'#') ? shapeGlyph(icon.mid(1)) : themeIcon(icon.toString());
}

void setCommandIcon(QAction *action, QStringView icon)
{
    if (icon.startsWith(u':'))
        action->setIconText(icon.mid(1).toString());
    else
        action->setIcon(iconFor(icon));
}

IconTheme::IconTheme(QGuiApplication &application) : QObject(&application)
{
    QStringList folders = QIcon::themeSearchPaths();
    const QStringList installed =
        QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, u"icons"_s, QStandardPaths::LocateDirectory);
    for (const QString &folder : installed) {
        if (!folders.contains(folder))
            folders.append(folder);
    }
    QIcon::setThemeSearchPaths(folders);
    followPalette();
    application.installEventFilter(this);
}

bool IconTheme::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ApplicationPaletteChange)
        followPalette();
    return QObject::eventFilter(watched, event);
}

void IconTheme::followPalette()
{
    const bool dark = QGuiApplication::palette().color(QPalette::Window).lightness() < 128;
    const QString theme = dark ? u"breeze-dark"_s : u"breeze"_s;
    if (QIcon::themeName() != theme)
        QIcon::setThemeName(theme);
}

void markUnsupported(QAction *action)
{
    const QString note = u"%1 (not on this system)"_s.arg(plainCaption(action->text()));
    action->setEnabled(false);
    action->setToolTip(note);
    action->setStatusTip(note);
}

} // namespace zephira
