// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "assist/textservices.h"
#include "core/webviews.h"

#include <QString>

#include <functional>

namespace zephira {

class Clipboard;
class Clock;
class Configuration;
class FileStore;
class FormCatalogue;
class Prompts;
class RecoveryCopies;
class Shell;
class SpellCheck;
class UserSettings;

/// When the window creates the parts that aren't visible at first.
enum class HiddenParts { AtOnce, AfterPicture };

/// The services that the main window depends on. runProgram() builds it from the real ones, tests from real and fake
/// ones.
struct WindowServices {
    FileStore &files;
    RecoveryCopies &recovery;
    Configuration &configuration;
    UserSettings &settings;
    Prompts &prompts;
    Shell &shell;
    Clipboard &clipboard;
    Clock &clock;
    const FormCatalogue &catalogue;
    WebViewsLoader webViews;
    SpellCheck &spelling;
    /// The program folder, without a trailing separator.
    QString appPath;
    /// Full path of the configuration's file, for messages.
    QString iniFile;
    /// Full path of this program.
    QString executable;
    /// Ends the process at once, without asking anything.
    std::function<void()> endProcess;
    /// Is told of each file that was opened or saved under a name.
    std::function<void(const QString &path)> fileUsed = {};
    HiddenParts hiddenParts = HiddenParts::AtOnce;
    /// What the helpers of the code view load. The window itself shows their notices.
    TextServices text = {};
};

} // namespace zephira
