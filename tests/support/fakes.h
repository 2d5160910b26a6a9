// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "controls/appcontext.h"
#include "controls/clipboard.h"
#include "controls/clock.h"
#include "controls/designer.h"
#include "controls/documenthost.h"
#include "controls/files/configuration.h"
#include "controls/files/filestore.h"
#include "controls/files/usersettings.h"
#include "controls/formopener.h"
#include "controls/inserter.h"
#include "controls/shell.h"
#include "support/fakeeditor.h"
#include "support/scriptedprompts.h"

#include <map>
#include <set>
#include <vector>

namespace zephira {

/// The outside world in memory. Each fake keeps what it was asked for and answers as its public members say.

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
    bool showing = false;
    bool dirty = false;
    QString html;
    QStringList pasted;
    QStringList loaded;
    std::vector<int> commands;

    bool isShowing() const override { return showing; }
    bool isDirty() const override { return dirty; }
    QString documentHtml() override { return html; }
    void setDocumentHtml(const QString &text) override { html = text; }
    void loadDocument(const QString &path) override { loaded.append(path); }
    void pasteHtml(const QString &text) override { pasted.append(text); }
    void execCommand(int command) override { commands.push_back(command); }
};

struct FakeShell final : Shell {
    struct Start {
        QString program;
        QStringList arguments;

        friend bool operator==(const Start &, const Start &) = default;
    };

    QStringList opened;
    std::vector<Start> started;
    /// When set, each operation is kept in the lists and fails so.
    std::optional<Error> failure;

    Result<void> open(const QString &pathOrUrl) override;
    Result<void> start(const QString &program, const QStringList &arguments) override;
};

struct FakeDocumentHost final : DocumentHost {
    int row = 0;
    QString language;
    QString project = QStringLiteral("Project Path");
    QString dialogFile;

    int languageRow() const override { return row; }
    QString languageText() const override { return language; }
    void setLanguageRow(int newRow) override { row = newRow; }
    QString projectPath() const override { return project; }
    void setProjectPath(const QString &path) override { project = path; }
    QString commonDialogFile() const override { return dialogFile; }
};

struct FakeFormOpener final : FormOpener {
    /// Forms that can't be opened yet; every other name can.
    std::set<QString> unavailable;
    QStringList modal;
    QStringList modeless;
    /// Is called in place of showing the form.
    std::function<void(const QString &form)> onOpen;

    bool isAvailable(const QString &form) const override { return !unavailable.contains(form); }
    void openModal(const QString &form) override { open(form, modal); }
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

/// Names without regard to case, as in the real store. A value that isn't there reads as "".
struct MemoryConfiguration final : Configuration {
    bool writable = true;
    /// Values written, in order: "[section] key=value".
    QStringList log;

    QString value(const QString &section, const QString &key) const override;
    bool setValue(const QString &section, const QString &key, const QString &value) override;
    /// Sets a value before the test, without an entry in the log.
    void put(const QString &section, const QString &key, const QString &value);

private:
    std::map<QString, QString> m_values;
};

struct MemoryUserSettings final : UserSettings {
    /// Values by "branch/section/key".
    std::map<QString, QString> values;

    QString GetSetting(const QString &branch, const QString &section, const QString &key,
                       const QString &fallback) const override;
    void SaveSetting(const QString &branch, const QString &section, const QString &key, const QString &value) override;
};

/// One of each, and the context made of them. The prompts come first, so that what they find left over is told last.
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
    AppContext context{editor,  inserter, designer, document,  configuration, settings,
                       files,   prompts,  shell,    clipboard, clock,         forms,
                       QStringLiteral("/app")};

    TestContext() = default;
    Q_DISABLE_COPY_MOVE(TestContext)
    operator const AppContext &() const { return context; }
};

} // namespace zephira
