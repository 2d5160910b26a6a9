// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "problems/checktask.h"
#include "problems/problemmarks.h"
#include "tools/tidyengine.h"

#include <QPointer>
#include <QTimer>

namespace zephira {

struct AppContext;
class CodeMax;
class ProblemList;
class ProblemsPage;
class ToolPanel;

/// Checks the document of a code view a second after each change, in a thread of its own, marks what is wrong and lists it
/// in the panel. A document that it can't keep up with isn't checked, and the list says so.
class Problems final : public QObject
{
    Q_OBJECT

public:
    struct Parts {
        CodeMax &rt;
        const AppContext &context;
        ToolPanel &panel;
        std::function<std::shared_ptr<const CompletionData>()> data;
        TidyEngineLoader loadTidy;
        std::function<void(const QString &)> notice;
        std::function<void()> showCode;
    };

    /// All parts must outlive this.
    explicit Problems(Parts parts);
    ~Problems() override;

    /// Begins to check, if the user wants it.
    void start();

    /// Whether documents are checked; kept for the user.
    bool isOn() const { return m_isOn; }
    void setOn(bool on);

    /// Goes to the next marked place, or the one before, and tells what is wrong there.
    void goToNext() { goTo(true); }
    void goToPrevious() { goTo(false); }
    /// Opens the list.
    void list();
    /// The text is in another language now.
    void languageChanged();

    /// What is told for a position of the text, as plain text; empty if nothing is wrong there.
    QString textAt(qsizetype position) const;

    /// How long it waits behind a change, in milliseconds.
    static constexpr int delay = 1000;
    /// After so many milliseconds a check is given up.
    static constexpr int patience = 10'000;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void noteChange();
    void check();
    CheckOrder order();
    PlaceLanguage language() const;
    QString reasonAgainst() const;
    void show(const CheckReport &report);
    void giveUp();
    void forget();
    /// Makes these the rows of the list.
    void fill(const QStringList &notes, std::vector<Problem> problems, const QString &state);
    void goTo(bool forward);
    void goToProblem(std::size_t problem);
    void goToPlace(qsizetype position);
    void tell(const QString &sentence);
    bool isChecking() const;

    const Parts m_parts;
    ProblemMarks m_marks;
    CheckTask m_task;
    QTimer m_soon;
    QTimer m_patience;
    ProblemList *m_list;
    QPointer<ProblemsPage> m_page;
    QString m_state;
    std::shared_ptr<const KnownNames> m_names;

    std::vector<Problem> m_problems;
    /// Why the document isn't checked; empty if it is.
    QString m_reason;
    QString m_path;
    /// The version of the text that is being checked.
    quint64 m_version = 0;
    bool m_isStarted = false;
    bool m_isOn;
    /// The check of this document took too long.
    bool m_isTooSlow = false;
};

} // namespace zephira
