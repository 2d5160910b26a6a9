// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/editorsearch.h"
#include "editor/searchmarks.h"

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

protected:
    void hideEvent(QHideEvent *event) override;

private:
    SearchRequest request() const;
    void updateMarks();
    void showCount(const SearchMarks::Count &count);
    void readHistory();
    void findNext();
    void replace();
    void replaceAll();
    bool takeOptions();
    void updateButtons();
    void say(const QString &sentence, bool isError = false);
    void remember(QComboBox &box, SearchHistory::Kind kind);

    EditorSearch &m_search;
    SearchMarks m_marks;
    std::unique_ptr<Ui::FindDialog> m_ui;
    bool m_replacing = false;
};

} // namespace zephira
