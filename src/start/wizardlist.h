// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plugins/extensionfolder.h"
#include "plugins/extensionrun.h"

#include <QObject>

class QDialog;
class QListWidget;
class QListWidgetItem;

namespace zephira {

struct AppContext;
class FileListBox;
class RecoveryCopies;

/// The list of start wizards. A double click or the Return key runs one: its text replaces the document, then the
/// dialog closes. When the dialog closes during a run, the run ends without a result.
class WizardList final : public QObject
{
    Q_OBJECT

public:
    /// All parameters must outlive this. `files` gets the wizards' folder and pattern.
    WizardList(const AppContext &context, RecoveryCopies &recovery, FileListBox &files, QListWidget &list,
               QDialog &dialog);

    /// Why the search for wizards ended early; empty if it didn't.
    QString whyIncomplete() const { return m_reason; }

private:
    void fill(FileListBox &files);
    void run(const QListWidgetItem *row);
    void useText(const QString &text);

    const AppContext &m_context;
    RecoveryCopies &m_recovery;
    QListWidget &m_list;
    QDialog &m_dialog;
    ExtensionFolder m_folder;
    ExtensionRun m_run;
    QString m_reason;
};

} // namespace zephira
