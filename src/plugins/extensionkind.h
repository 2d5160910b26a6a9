// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringView>

namespace zephira {

/// A kind of extension: the folder of its modules below the program folder, and the names of the members that are read.
struct ExtensionKind {
    QStringView folder;
    const char *title;
    /// Must be there, but nothing shows them; nullptr if the kind has none.
    const char *version;
    const char *description;
    /// Answers 1 as long as the extension is to be asked again.
    const char *start;
    const char *text;
    const char *language;
};

inline constexpr ExtensionKind pluginKind{u"plugins",    "pluginId",  "pluginversion", "plugindescription",
                                          "PluginStart", "strReturn", "Pluginlang"};
inline constexpr ExtensionKind wizardKind{u"wizards",    "wizardid",  nullptr,     nullptr,
                                          "WizardStart", "strReturn", "wizardlang"};

/// The pattern of the modules' file names.
#ifdef Q_OS_WIN
inline constexpr QStringView modulePattern = u"*.dll";
#else
inline constexpr QStringView modulePattern = u"*.so";
#endif

} // namespace zephira
