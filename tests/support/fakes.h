// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"
#include "core/browser.h"
#include "core/clipboard.h"
#include "core/clock.h"
#include "core/commandkeys.h"
#include "core/configuration.h"
#include "core/designer.h"
#include "core/documenthost.h"
#include "core/filestore.h"
#include "core/formopener.h"
#include "core/inserter.h"
#include "core/shell.h"
#include "core/usersettings.h"
#include "support/fakeeditor.h"
#include "support/scriptedprompts.h"

#include <map>
#include <set>
#include <vector>

namespace zephira {

/// The outside world in memory. Each fake records its calls and answers as its public members say.

struct FakeClipboard final : Clipboard {
    QString content;

    QString text() const override { return content; }
    void setText(const QString &text) override { content = text; }
};

struct FakeClock final : Clock {
    QDateTime time{QDate(2024, 2, 29), QTime(13, 5, 9)};

    QDateTime now() const override { return time; }
};

struct FakeDesigner final : Designer {
    struct Run {
        DesignerCommand command = DesignerCommand::None;
        DesignerPrompting prompting = DesignerPrompting::Default;
        QVariant argument;

        friend bool operator==(const Run &, const Run &) = default;
    };

    bool showing = false;
    bool dirty = false;
    QString html;
    WholePage whole = WholePage::No;
    QString base;
    QStringList pasted;
    QStringList loaded;
    /// Whether loading a file fails.
    bool unreadable = false;
    /// The commands that were run, as numbers; `runs` has them with their arguments.
    std::vector<int> commands;
    std::vector<Run> runs;
    /// Statuses and results; other commands are Enabled and have no result.
    std::map<DesignerCommand, int> statuses;
    std::map<DesignerCommand, QVariant> results;
    QString selected = QStringLiteral("None");
    bool borders = false;
    bool details = false;
    bool browsing = false;
    bool snapping = false;
    QStringList menuEntries;
    QList<DesignerMenuState> menuStates;
    DesignerEvents events;
    /// What finishLeaving() does.
    std::function<void()> leaving;
    QString projectFolder;
    bool isRemoteAllowed = false;
    /// Called while the text is being transferred.
    std::function<void()> meanwhile;

    bool isShowing() const override { return showing; }
    bool isDirty() const override { return dirty; }
    WholePage wholePage() const override { return whole; }
    QString documentHtml() override
    {
        const QString text = html;
        if (const auto act = std::exchange(meanwhile, {}))
            act();
        return text;
    }
    TextChanges changes;
    TextChanges documentChanges() const override { return changes; }
    /// The places that were shown; `caret` is told as that of the designer.
    std::vector<std::pair<qsizetype, DesignerPlace>> places;
    std::optional<qsizetype> caret;
    bool showPlace(qsizetype position, DesignerPlace what) override
    {
        places.emplace_back(position, what);
        return true;
    }
    std::optional<qsizetype> caretPlace() override { return caret; }
    void setDocumentHtml(const QString &text) override { html = text; }
    void loadDocument(const QString &path) override;
    QString baseFile() const override { return base; }
    void setBaseFile(const QString &path) override { base = path; }
    void pasteHtml(const QString &text) override { pasted.append(text); }
    QVariant execCommand(DesignerCommand command, DesignerPrompting prompting, const QVariant &argument) override;
    int queryStatus(DesignerCommand command) const override;
    QString selectionType() const override { return selected; }
    bool showBorders() const override { return borders; }
    void setShowBorders(bool on) override { borders = on; }
    bool showDetails() const override { return details; }
    void setShowDetails(bool on) override { details = on; }
    bool browseMode() const override { return browsing; }
    void setBrowseMode(bool on) override { browsing = on; }
    bool snapToGrid() const override { return snapping; }
    void setSnapToGrid(bool on) override { snapping = on; }
    void setContextMenu(const QStringList &entries, const QList<DesignerMenuState> &states) override;
    void setEvents(DesignerEvents handlers) override { events = std::move(handlers); }
    void finishLeaving() override
    {
        if (leaving)
            leaving();
    }
    void setProjectFolder(const QString &folder) override { projectFolder = folder; }
    void setRemoteAllowed(bool allowed) override { isRemoteAllowed = allowed; }
};

struct FakeBrowser final : Browser {
    /// The addresses that were opened, and the operations without arguments: "back", "forward", "home", "refresh",
    /// "stop".
    QStringList calls;
    QString location;
    QString home;
    FileKind homeKind = FileKind::ByName;
    std::function<void()> navigateComplete;
    std::function<void()> processLost;
    QString projectFolder;
    bool isRemoteAllowed = false;
    std::function<void(const QStringList &)> remoteRefused;

    void navigate(const QString &address) override { calls.append(address); }
    void goBack() override { calls.append(QStringLiteral("back")); }
    void goForward() override { calls.append(QStringLiteral("forward")); }
    void goHome() override { calls.append(QStringLiteral("home")); }
    void refresh() override { calls.append(QStringLiteral("refresh")); }
    void stop() override { calls.append(QStringLiteral("stop")); }
    QString locationUrl() const override { return location; }
    void setHome(const QString &address, FileKind kind) override
    {
        home = address;
        homeKind = kind;
    }
    void onProcessLost(std::function<void()> handler) override { processLost = std::move(handler); }
    void setProjectFolder(const QString &folder) override { projectFolder = folder; }
    void setRemoteAllowed(bool allowed) override { isRemoteAllowed = allowed; }
    void onRemoteRefused(std::function<void(const QStringList &)> handler) override
    {
        remoteRefused = std::move(handler);
    }
    void onNavigateComplete(std::function<void()> handler) override { navigateComplete = std::move(handler); }
};

struct FakeShell final : Shell {
    struct Start {
        QString program;
        QStringList arguments;

        friend bool operator==(const Start &, const Start &) = default;
    };

    QStringList opened;
    std::vector<Start> started;
    /// The files whose properties were shown, and how often the search for files was opened.
    QStringList properties;
    int searches = 0;
    /// If set, each operation is recorded in the lists and fails with this error.
    std::optional<Error> failure;

    Result<void> open(const QString &pathOrUrl) override;
    Result<void> start(const QString &program, const QStringList &arguments) override;
    Result<void> showProperties(const QString &path) override;
    Result<void> findFiles() override;

private:
    Result<void> outcome() const { return failure ? Result<void>(*failure) : Result<void>(); }
};

struct FakeDocumentHost final : DocumentHost {
    int row = 0;
    QString language;
    QString project = QStringLiteral("Project Path");
    QString dialogFile;
    bool modified = false;
    /// The files that were opened.
    QStringList opened;

    int languageRow() const override { return row; }
    QString languageText() const override { return language; }
    void setLanguageRow(int newRow) override { row = newRow; }
    QString projectPath() const override { return project; }
    void setProjectPath(const QString &path) override { project = path; }
    QString commonDialogFile() const override { return dialogFile; }
    bool isModified() const override { return modified; }
    void openFile(const QString &path) override { opened.append(path); }
};

struct FakeFormOpener final : FormOpener {
    /// Forms that can't be opened yet; all others can.
    std::set<QString> unavailable;
    QStringList modal;
    QStringList modeless;
    /// The pages that were asked for, of forms that are in `modal`.
    QList<int> pages;
    /// Called instead of showing the form.
    std::function<void(const QString &form)> onOpen;

    bool isAvailable(const QString &form) const override { return !unavailable.contains(form); }
    using FormOpener::openModal;
    void openModal(const QString &form, QWidget *) override { open(form, modal); }
    void openModalOnPage(const QString &form, int page) override
    {
        if (isAvailable(form))
            pages.append(page);
        open(form, modal);
    }
    void openModeless(const QString &form) override { open(form, modeless); }

private:
    void open(const QString &form, QStringList &list);
};

struct RecordingInserter final : Inserter {
    QStringList inserted;

    void InsertAtCaret(const QString &text) override { inserted.append(text); }
};

/// Files by full path, without folders. A changed file has a new signature.
struct MemoryFileStore final : FileStore {
    std::map<QString, QByteArray> contents;
    /// Paths at which reading (and FileExists), writing or removing fails, and how.
    std::map<QString, Error> unreadable;
    std::map<QString, Error> unwritable;
    /// Paths written and removed, in order: "write /a", "remove /a".
    QStringList log;

    using FileStore::write;
    Result<QByteArray> read(const QString &path) const override;
    Result<void> write(const QString &path, std::span<const QByteArrayView> pieces, int mode) override;
    Result<void> remove(const QString &path) override;
    bool FileExists(const QString &path) const override;
    FileSignature signature(const QString &path) const override;
};

/// Names are case-insensitive, as in the real store. A missing value reads as "".
struct MemoryConfiguration final : Configuration {
    bool writable = true;
    /// Values written, in order: "[section] key=value".
    QStringList log;

    using Configuration::value;
    /// A value by its section and key.
    QString value(const QString &section, const QString &key) const { return read(section, key); }
    /// Sets a value before the test, without an entry in the log.
    void put(const QString &section, const QString &key, const QString &value);

private:
    QString read(const QString &section, const QString &key) const override;
    Result<void> write(std::span<const SettingChange> changes) override;

    std::map<QString, QString> m_values;
};

struct MemoryUserSettings final : UserSettings {
    /// Values by "branch/section/key".
    std::map<QString, QString> values;
    bool writable = true;

private:
    QString read(const QString &branch, const QString &section, const QString &key,
                 const QString &fallback) const override;
    bool write(const QString &branch, const QString &section, const QString &key, const QString &value) override;
    bool remove(const QString &branch, const QString &section, const QString &key) override;
    QStringList keys(const QString &branch, const QString &section) const override;
};

/// Three commands, one without keys, and two uses of keys beside them.
struct FakeCommandKeys final : CommandKeys {
    std::vector<CommandKey> rows = {
        {QStringLiteral("save"), QStringLiteral("File > Save"), QStringLiteral("Ctrl+S"), QStringLiteral("Ctrl+S")},
        {QStringLiteral("font"), QStringLiteral("Options > Font"), QStringLiteral("F7"), QStringLiteral("F7")},
        {QStringLiteral("table"), QStringLiteral("Tools > Table Wizard"), {}, {}},
    };
    std::vector<OtherKey> uses = {
        {QStringLiteral("Ctrl+M"), QStringLiteral("is \"Go to the matching bracket\" in the text"), true},
        {QStringLiteral("Alt+F"), QStringLiteral("opens the menu File"), false},
    };
    /// What was saved, in order; if `failure` is set, nothing.
    std::vector<KeyChange> saved;
    std::optional<Error> failure;

    std::vector<CommandKey> commands() const override { return rows; }
    std::vector<OtherKey> others() const override { return uses; }
    Result<void> save(std::span<const KeyChange> changes) override;
};

/// One of each fake, and the context made of them. The prompts come first, so that they are destroyed last and report
/// expected questions that were never asked.
struct TestContext {
    ScriptedPrompts prompts;
    FakeClipboard clipboard;
    MemoryFileStore files;
    FakeEditor editor{clipboard, files};
    RecordingInserter inserter;
    FakeDesigner designer;
    FakeDocumentHost document;
    MemoryConfiguration configuration;
    MemoryUserSettings settings;
    FakeShell shell;
    FakeClock clock;
    FakeFormOpener forms;
    FakeCommandKeys keys;
    AppContext context{editor,  inserter, designer,  document, configuration, settings, files,
                       prompts, shell,    clipboard, clock,    forms,         keys,     QStringLiteral("/app")};

    TestContext() = default;
    Q_DISABLE_COPY_MOVE(TestContext)
    operator const AppContext &() const { return context; }
};

} // namespace zephira
