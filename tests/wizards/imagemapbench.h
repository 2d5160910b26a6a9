// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/fakes.h"
#include "support/formkit.h"
#include "wizards/registerforms.h"

#include <QAction>
#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QTest>
#include <QToolBar>

namespace zephira {

/// The image map creator alone. Its editor is the world's.
inline FormCatalogue imageMapCatalogue(TestContext &world)
{
    FormCatalogue forms;
    wizards::registerImageMap(forms, [&world](QWidget *parent) {
        auto *widget = new QWidget(parent);
        widget->setFocusPolicy(Qt::StrongFocus);
        return EditorView{widget, &world.editor};
    });
    return forms;
}

/// A picture of one colour as a file.
inline QByteArray pictureFile(QSize size, const char *format = "PNG", QColor colour = Qt::white)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    if (!image.save(&buffer, format))
        qFatal("a picture can't be written as %s", format);
    return bytes;
}

// What the user does in the form.

inline QAction &toolbarButton(const LivingForm &form, int number)
{
    return *form.get<QToolBar>(QStringLiteral("Toolbar1")).actions().at(number - 1);
}

/// Presses a toolbar button with the mouse.
inline void pressButton(const LivingForm &form, int number)
{
    auto &bar = form.get<QToolBar>(QStringLiteral("Toolbar1"));
    QTest::mouseClick(bar.widgetForAction(&toolbarButton(form, number)), Qt::LeftButton);
}

/// Opens a file that the user chooses in a dialog, which starts in a folder.
inline void openPicture(TestContext &world, const LivingForm &form, const std::optional<QString> &path,
                        const QString &folder = {})
{
    world.prompts.expectFile(
        {.filter = QStringLiteral("JPEG files|*.jpg|GIF files|*.GIF|Bitmap files|*.BMP|All Files|*.*"),
         .initialFolder = folder},
        path);
    form.get<QAction>(QStringLiteral("SubMenuOpen")).trigger();
}

/// Moves the mouse over the picture with these buttons held; QTest's own moves hold none.
inline void moveMouse(const LivingForm &form, QPointF place, Qt::MouseButtons held = Qt::LeftButton)
{
    auto &picture = form.get<QWidget>(QStringLiteral("Picture1"));
    QMouseEvent move(QEvent::MouseMove, place, picture.mapToGlobal(place), Qt::NoButton, held, {});
    QCoreApplication::sendEvent(&picture, &move);
}

inline void pressMouse(const LivingForm &form, QPoint place)
{
    QTest::mousePress(&form.get<QWidget>(QStringLiteral("Picture1")), Qt::LeftButton, {}, place);
}

inline void releaseMouse(const LivingForm &form, QPoint place)
{
    QTest::mouseRelease(&form.get<QWidget>(QStringLiteral("Picture1")), Qt::LeftButton, {}, place);
}

inline void dragMouse(const LivingForm &form, QPoint from, QPoint to)
{
    pressMouse(form, from);
    moveMouse(form, to);
    releaseMouse(form, to);
}

} // namespace zephira
