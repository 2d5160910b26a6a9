// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/editorsearch.h"

#include <QDialog>

#include <memory>

class QComboBox;

namespace zephira {

namespace Ui {
class FindDialog;
}

/// The control's modeless dialog for finding and replacing.
class FindDialog : public QDialog
{
    Q_OBJECT
public:
    FindDialog(EditorSearch &search, QWidget *owner);
    ~FindDialog() override;

    /// Shows the dialog for finding or replacing, with the selected text as the pattern.
    void bring(bool replacing);
    /// Shows the result of a search in the dialog's message line.
    void showOutcome(const SearchOutcome &outcome);

private:
    void findNext();
    void replace();
    void replaceAll();
    bool takeOptions();
    void updateButtons();
    void say(const QString &sentence, bool isError = false);
    static void remember(QComboBox &box);

    EditorSearch &m_search;
    std::unique_ptr<Ui::FindDialog> m_ui;
    bool m_replacing = false;
};

} // namespace zephira
