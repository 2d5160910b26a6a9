// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"
#include "wizards/framebars.h"

#include <QDialog>

#include <memory>

namespace zephira {

namespace Ui {
class frmFramesWiz;
}

class FileLookup;
struct FrameFields;
struct FramesFields;

/// The frames wizard: two bars divide the page into four frames, then each frame gets its fields. The frameset is
/// inserted after the selection, which is kept.
class frmFramesWiz final : public QDialog
{
    Q_OBJECT
    /// Whether a bar follows the mouse.
    Q_PROPERTY(bool TrackV READ trackV)
    Q_PROPERTY(bool TrackH READ trackH)
    /// The percentages that are written: those from when the second page was last opened.
    Q_PROPERTY(int RowPercent READ rowPercent)
    Q_PROPERTY(int ColPercent READ colPercent)

public:
    frmFramesWiz(const AppContext &context, QWidget *owner, const std::shared_ptr<FileLookup> &lookup);
    ~frmFramesWiz() override;

    bool trackV() const { return m_bars.TrackV(); }
    bool trackH() const { return m_bars.TrackH(); }
    int rowPercent() const { return m_rowPercent; }
    int colPercent() const { return m_colPercent; }

    /// Inserts the frameset that the fields describe.
    Q_INVOKABLE void BuildCode();

private:
    /// The fields of a group; `group` is 1-based.
    FrameFields frame(int group) const;
    FramesFields fields() const;
    void arm(FrameBars::Bar bar);
    void showBars();
    void next();
    void back();
    void choose(int group);
    void showGroup(int group);

    const std::unique_ptr<Ui::frmFramesWiz> m_ui;
    const AppContext m_context;
    FrameBars m_bars;
    qint16 m_rowPercent = 0;
    qint16 m_colPercent = 0;
};

} // namespace zephira
