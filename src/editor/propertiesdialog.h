// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/editorappearance.h"
#include "editor/editoroptions.h"

#include <QDialog>

#include <memory>

class QAbstractButton;
class QPushButton;

namespace zephira {

class CodeMax;

namespace Ui {
class PropertiesDialog;
}

/// The control's properties: colours, font and editing options. Changes are previewed in a small editor inside the
/// dialog and applied to the control with OK or Apply. Cancel restores what the control had when the dialog was opened.
class PropertiesDialog : public QDialog
{
    Q_OBJECT
public:
    PropertiesDialog(CodeMax &editor, QWidget *owner);
    ~PropertiesDialog() override;

    /// Loads the control's settings and shows the dialog.
    void bring();
    void accept() override;
    void reject() override;

private:
    struct Settings {
        EditorLooks looks;
        EditorOptions options;
        bool whitespace = false;
        bool leftMargin = false;
        bool lineNumbers = true;
        bool caretLine = false;

        friend bool operator==(const Settings &, const Settings &) = default;
    };

    static Settings settingsOf(CodeMax &editor);
    static void apply(CodeMax &editor, const Settings &settings);
    void clicked(QAbstractButton *button);
    void fillControls();
    void showRow();
    void chooseColour(int item);
    void setAutomatic(bool on);
    void setStyle(int index);
    void takeFont();
    void takeOptions();
    void showPreview();
    static void paintSwatch(QPushButton &button, quint32 colour, bool known);
    const AppearanceRow &row() const;

    CodeMax &m_editor;
    std::unique_ptr<Ui::PropertiesDialog> m_ui;
    CodeMax *m_preview = nullptr;
    Settings m_original;
    Settings m_draft;
    bool m_filling = false;
};

} // namespace zephira
