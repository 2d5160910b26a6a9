// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "completion/completionlist.h"

#include <QFrame>

class QLabel;
class QListView;

namespace zephira {

/// The list below the caret, with the description of its current entry beside it. It never gets the focus.
class CompletionPopup final : public QFrame
{
    Q_OBJECT

public:
    /// @param editor  has the focus while the list is shown; its window is the popup's parent
    explicit CompletionPopup(QWidget &editor);

    void setProposals(const QList<Proposal> &proposals);
    /// Shows what fits, with the first entry as the current one, and forgets that the user moved. Returns whether anything
    /// fits.
    bool filter(const QString &typed);
    /// Shows the popup at a line: below it, or above where there is no room.
    /// @param line  the line's part from the beginning of what is typed, in global coordinates
    void showAt(const QRect &line);

    /// Moves by so many entries; around the ends by one.
    void moveBy(int rows);
    void movePage(bool down);
    /// Whether the user has moved since the list was last filtered.
    bool hasMoved() const { return m_hasMoved; }
    /// The current entry, or nullptr.
    const Proposal *current() const;

Q_SIGNALS:
    /// An entry was clicked; it is the current one.
    void clicked();

private:
    void setCurrentRow(int row);
    void showDescription();
    int rowsShown() const;

    CompletionList m_model;
    QListView *m_list;
    QLabel *m_description;
    bool m_hasMoved = false;
};

} // namespace zephira
