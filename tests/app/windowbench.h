// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/frmmain.h"
#include "core/documenthost.h"
#include "core/formcatalogue.h"
#include "core/webviews.h"
#include "editor/codemax.h"
#include "files/diskfilestore.h"
#include "files/faultycalls.h"
#include "files/iniconfiguration.h"
#include "files/recoverycopies.h"
#include "ftp/ftpclient.h"
#include "ftp/recordingoperations.h"
#include "support/fakelivepage.h"
#include "support/fakes.h"
#include "support/memoryfiletypes.h"
#include "tools/spelling/fakespeller.h"

#include <QAction>
#include <QLabel>
#include <QTabBar>
#include <QTemporaryDir>

namespace zephira {

/// Plain widgets instead of browser and designer, and the fakes that stand behind them.
struct FakeWebViews final : WebViews {
    FakeBrowser browser;
    FakeDesigner designer;
    FakeLivePage livePage;
    /// The views made so far, in order: "browser", "designer", "live".
    QStringList made;

    BrowserView makeBrowser(const FileStore &files, QWidget *parent) override;
    DesignerView makeDesigner(const FileStore &files, Prompts &prompts, QWidget *parent) override;
    LivePageView makeLivePage(const FileStore &files, QWidget *parent) override;
};

/// The main window with a program folder of its own, the shipped data and real files. Prompts, per-user settings,
/// shell, clipboard, clock and web views are fakes.
class WindowBench
{
public:
    WindowBench();
    ~WindowBench();

    /// Creates the window and runs its load handler.
    frmmain &start(const QString &argument = QStringLiteral("/nodialog"));

    /// Writes a file below the bench's folder and returns its full path.
    QString write(const QString &name, const QByteArray &content) const;
    static QByteArray read(const QString &path);
    QString folder() const { return m_folder.path(); }
    QString appPath() const { return m_folder.path() + QStringLiteral("/app"); }

    /// A child by objectName; fails the test if there is none.
    template<typename T>
    T *find(const QString &name) const
    {
        T *child = window->findChild<T *>(name);
        if (!child)
            qFatal("no control is named %s", qPrintable(name));
        return child;
    }

    /// Chooses a menu entry.
    void choose(const QString &entry) const { find<QAction>(entry)->trigger(); }
    /// Clicks a toolbar's button, given by its key or by its position (from 1, including separators).
    void click(const QString &toolBar, const QString &key) const;
    void click(const QString &toolBar, int position) const;
    QString panel(int number) const { return find<QLabel>(QStringLiteral("stBar_%1").arg(number))->text(); }

    QTemporaryDir m_folder;
    ScriptedPrompts prompts;
    MemoryUserSettings settings;
    FakeShell shell;
    FakeClipboard clipboard;
    FakeClock clock;
    /// The system calls of everything that `files` does.
    FaultyCalls calls;
    DiskFileStore files{calls};
    RecoveryCopies recovery;
    /// The system calls of the configuration.
    FaultyCalls configurationCalls;
    IniConfiguration configuration;
    RecordingOperations ftpOperations;
    SpellingBench spelling{files, settings, appPath()};
    MemoryFileTypes fileTypes;
    /// What the program calls its own path.
    const QString executable = QStringLiteral("/opt/zephira/zephira");
    FormCatalogue catalogue;
    FakeWebViews webViews;
    /// What the helpers of the text load; nothing at first.
    TextServices text;
    /// Returns the fakes, unless a test sets something else before the start.
    WebViewsLoader loadWebViews = [this]() -> Result<WebViews *> { return &webViews; };
    HiddenParts hiddenParts = HiddenParts::AtOnce;
    int ended = 0;
    std::unique_ptr<frmmain> window;
};

} // namespace zephira
