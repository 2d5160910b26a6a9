// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/settings.h"

#include <QString>

namespace zephira {

class CodeMaxGlobals;
class frmmain;

/// Initialises the main window before it is shown, in a fixed order of named steps. A step that fails raises
/// HandlerError, which ends the start.
class LoadHandler
{
public:
    LoadHandler(frmmain &window, const QString &argument);

    /// Runs all steps, recording the name of each in the window's list as it begins.
    void run();

private:
    struct Step {
        const char16_t *name;
        void (LoadHandler::*run)();
    };
    static const Step steps[];

    void restorePlacement();
    void setHelpFile();
    void setFilePattern();
    void recordProgramFolder();
    void fetchSelection();
    void fillDesignerFonts();
    void disableDesigner();
    void readRootSelect();
    void createEditorGlobals();
    void readDisplayModes();
    void applyFont();
    void applyDisplayModes();
    void applyColourTable();
    void registerLanguages();
    void removeHotKeys();
    void readStyleSelectors();
    void rootScriptFolder();
    void fillTagTree();
    void scanPlugins();
    void clearModified();
    void readAspTags();
    void openArgument();

    int number(Setting setting) const;
    QStringList dataLines(const QString &name) const;

    frmmain &m_window;
    const QString m_argument;
};

} // namespace zephira
