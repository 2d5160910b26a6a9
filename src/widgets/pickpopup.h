// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>
#include <QList>
#include <QPointer>
#include <QString>

#include <functional>
#include <vector>

class QLineEdit;
class QListView;

namespace zephira {

class PickModel;

/// A row to pick. A disabled one can be moved to, but not chosen.
struct PickRow {
    QString caption;
    /// Where the caption has the characters that were searched for.
    QList<qsizetype> marks = {};
    /// Stands below the caption.
    QString detail = {};
    /// Stands at the end of the row.
    QString keys = {};
    bool enabled = true;

    friend bool operator==(const PickRow &, const PickRow &) = default;
};

/// What a PickPopup offers. The numbers are those of the rows that were found last, from 0.
struct PickList {
    /// What the window is called for who can't see it.
    QString title;
    /// Stands in the empty field.
    QString hint;
    /// Stands in the list when nothing was found.
    QString nothing;
    std::function<std::vector<PickRow>(const QString &typed)> search;
    /// A row has been chosen. The window has gone, and the focus is where it was before.
    std::function<void(int row)> choose;
    /// The user has moved to a row; optional.
    std::function<void(int row)> look = {};
    /// The window has gone without a choice; optional.
    std::function<void()> cancel = {};
};

/// A field and a list over a window. What is typed goes into the field and says what the list has; the arrow keys, the Tab
/// key and the page keys move in the list, Return chooses, Escape leaves. The focus goes back to where it was. While it is
/// open, the window's own keys do nothing.
class PickPopup final : public QFrame
{
    Q_OBJECT

public:
    /// The popup of a window, which is made when it is first wanted. The window owns it.
    static PickPopup &of(QWidget &window);

    /// Opens, or begins anew with another list.
    void open(const PickList &list);
    /// Leaves without a choice, as Escape does.
    void leave();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    explicit PickPopup(QWidget &window);

    void search();
    void place();
    bool takesKey(int key);
    void move(int by, bool round);
    void select(int row);
    void choose(int row);
    void hideAndFocus(bool back);
    void announce(int row) const;

    QWidget &m_window;
    PickModel *m_model;
    QLineEdit *m_field;
    QListView *m_list;
    PickList m_offer;
    QPointer<QWidget> m_before;
};

} // namespace zephira
