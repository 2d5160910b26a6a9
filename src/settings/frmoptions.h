// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"
#include "settings/colourpresets.h"
#include "settings/options.h"

#include <QDialog>

#include <array>
#include <memory>
#include <optional>

class QLineEdit;

namespace zephira {

namespace Ui {
class frmOptions;
}
class KeyPage;

/// Edits the settings of the installation. What it saves of colours, fonts and font styles it takes from the editing
/// control, whose own dialog sets them.
class frmOptions final : public QDialog
{
    Q_OBJECT

public:
    frmOptions(const AppContext &context, QWidget *owner);
    ~frmOptions() override;

    void reject() override;

private:
    void addPages();
    void addPresets();
    void showPreset();
    void usePreset();
    void showPage(const QString &key);
    std::array<QLineEdit *, 6> customTabFields() const;
    void show(const Options &options);
    Options shown() const;
    /// Returns false, after a message, if the settings can't be written.
    bool save();
    void chooseBrowser();
    void chooseServerRoot();

    const std::unique_ptr<Ui::frmOptions> m_ui;
    const AppContext m_context;
    /// It uses the controls, and the box of keys speaks to it while the window is destroyed.
    std::unique_ptr<KeyPage> m_keys;

    /// A preset that the editing control shows although it isn't saved, and the colours before the first such one.
    struct UnsavedPreset {
        EditorColours before;
        const ColourPreset *preset;
    };
    std::optional<UnsavedPreset> m_unsaved;
};

} // namespace zephira
