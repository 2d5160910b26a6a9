// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/windowbench.h"
#include "core/clock.h"
#include "desktop/desktopclipboard.h"
#include "desktop/desktopprompts.h"
#include "files/desktopusersettings.h"

namespace zephira {

/// The main window with real services as far as they stay within a folder: its own program folder, settings, recovery
/// copies and documents, and dialogs that events can reach. Server, other programs, types of files and the web engine
/// are fakes.
class SoakDesk
{
public:
    /// The folder is empty, and everything is written below it.
    explicit SoakDesk(const QString &folder);
    Q_DISABLE_COPY_MOVE(SoakDesk)

    /// Starts as the program does. The start may ask something, and returns when that is answered.
    void open();

    frmmain &window() { return *m_window; }
    /// The documents there were at first, by full path.
    const QStringList &documents() const { return m_documents; }
    /// Forgets what the fakes have recorded, which would grow without end.
    void forgetRecords();
    bool hasEnded() const { return m_ended; }

private:
    void copyData() const;
    void writeDocuments();
    void registerForms();

    QString m_folder;
    QStringList m_documents;
    DiskFileStore m_files;
    SystemClock m_clock;
    RecoveryCopies m_recovery;
    IniConfiguration m_configuration;
    DesktopUserSettings m_settings;
    DesktopPrompts m_prompts{nullptr, DesktopPrompts::Dialogs::OfQt};
    DesktopClipboard m_clipboard;
    FakeShell m_shell;
    RecordingOperations m_server;
    MemoryFileTypes m_fileTypes;
    SpellingBench m_spelling;
    FormCatalogue m_catalogue;
    FakeWebViews m_webViews;
    bool m_ended = false;
    std::unique_ptr<frmmain> m_window;
};

} // namespace zephira
