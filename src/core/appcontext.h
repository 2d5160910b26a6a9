// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

class Clipboard;
class Clock;
class Configuration;
class Designer;
class DocumentHost;
class EditingControl;
class FileStore;
class FormOpener;
class Inserter;
class Prompts;
class Shell;
class UserSettings;

/// What a form or service is given instead of reaching for it. The main window makes one for the program, a test makes
/// one of fakes. All references outlive whatever takes the context.
struct AppContext {
    EditingControl &editor;
    Inserter &inserter;
    Designer &designer;
    DocumentHost &document;
    Configuration &configuration;
    UserSettings &settings;
    FileStore &files;
    Prompts &prompts;
    Shell &shell;
    Clipboard &clipboard;
    Clock &clock;
    FormOpener &forms;
    /// The program folder, the root of all data files; no separator at its end.
    QString appPath;
};

} // namespace zephira
