// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/commandkeys.h"
#include "core/editorcommand.h"

#include <QHash>
#include <QKeySequence>
#include <QObject>
#include <QPointer>

#include <optional>
#include <vector>

class QAction;

namespace zephira {

class CodeMax;
class CommandToolBar;
class Menus;
class UserSettings;

/// The keys of the window's menus: those that ship, unless the user has chosen others, which the per-user store keeps.
/// A kept text that isn't usable counts as none.
class WindowKeys final : public QObject, public CommandKeys
{
    Q_OBJECT

public:
    explicit WindowKeys(UserSettings &settings) : m_settings(settings) {}

    /// Sets the keys that the user has chosen. All must outlive the keys.
    void attach(Menus &menus, CommandToolBar &bar, CodeMax &rt);
    /// Adds the entry of a plug-in. Its keys are kept under the plug-in's name, since the entries' numbers change with the
    /// plug-ins that are installed.
    void addPlugin(QAction *entry, const QString &plugin);

    /// The menus of the text have been made: gives their entries the keys that the user has chosen.
    void addTextMenus();

    /// The keys that the context menu of the text names for a command, which has these at first.
    QKeySequence namedKeys(EditorCommand command, const QKeySequence &first) const;
    /// Whether keys run an entry that edits the text in the code view; no value if they run none.
    std::optional<bool> editsText(const QKeySequence &keys) const;

    // CommandKeys
    std::vector<CommandKey> commands() const override;
    std::vector<OtherKey> others() const override;
    Result<void> save(std::span<const KeyChange> changes) override;

private:
    struct Plugin {
        QPointer<QAction> entry;
        QString name;
    };

    void readKept();
    void take(std::span<const KeyChange> changes);
    bool write(std::span<const KeyChange> changes);
    void apply();
    QAction *entryOf(const CommandKey &command) const;
    /// The entry that keys run, or nullptr.
    QAction *entryWith(const QKeySequence &keys) const;

    UserSettings &m_settings;
    Menus *m_menus = nullptr;
    CommandToolBar *m_bar = nullptr;
    CodeMax *m_rt = nullptr;
    std::vector<Plugin> m_plugins;
    /// The user's keys by the name of the command.
    QHash<QString, QString> m_kept;
};

} // namespace zephira
