// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

class Clipboard;
class Clock;
class CommandKeys;
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

/// The services that forms depend on, passed to them explicitly. The main window builds one for the program; a test
/// builds one from fakes. All references outlive whatever takes the context.
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
    CommandKeys &keys;
    /// The program folder, the root of all data files; without a trailing separator.
    QString appPath;
};

} // namespace zephira
