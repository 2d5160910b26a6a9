// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"

#include <QDialog>

#include <functional>
#include <memory>
#include <optional>

class QTimer;

namespace zephira {

namespace Ui {
class frmColorSpy;
}

class ColourPortal;
class frmZoom;
class ScreenColours;

/// What the spy reads colours from.
struct SpySources {
    std::shared_ptr<ScreenColours> screen;
    /// Creates the connection to the desktop's portal, used when the screen can't be read.
    std::function<std::unique_ptr<ColourPortal>()> makePortal;
};

/// Reads the colour of the pixel under the pointer, anywhere on the desktop. It writes nothing to the document.
class frmColorSpy final : public QDialog
{
    Q_OBJECT

public:
    frmColorSpy(const AppContext &context, const SpySources &sources, QWidget *owner);
    ~frmColorSpy() override;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void start();
    /// Ends the spying and keeps the colour, or restores the previous one.
    void take();
    void giveUp();
    void stop();
    void tick();
    void askPortal();
    void waitForPortal(bool waiting, const QString &status);
    void showColour(quint32 colour);
    void clearColour();
    /// Moves the pointer if the key is an arrow key; returns false for any other key.
    bool movePointer(int key);

    const std::unique_ptr<Ui::frmColorSpy> m_ui;
    const AppContext m_context;
    const SpySources m_sources;
    QTimer *const m_timer;
    frmZoom *m_zoom = nullptr;
    std::unique_ptr<ColourPortal> m_portal;
    /// Red in the lowest byte.
    std::optional<quint32> m_colour;
    std::optional<quint32> m_before;
};

} // namespace zephira
