// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/searchhistory.h"
#include "search/filereplacement.h"
#include "search/searchresults.h"
#include "search/searchrun.h"

#include <QTimer>
#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

class QComboBox;

namespace zephira {

struct AppContext;
class CodeMax;

namespace Ui {
class SearchPage;
}

/// The page of the panel that searches the files of the project, lists the matches, and replaces those that the user
/// leaves checked.
class SearchPage final : public QWidget
{
    Q_OBJECT

public:
    struct Parts {
        CodeMax &rt;
        const AppContext &context;
        /// Brings the code view to the front, with the designer's work written to it.
        std::function<void()> showCode;
    };

    SearchPage(const Parts &parts, QWidget *parent);
    ~SearchPage() override;

    /// Takes the selection over as the pattern, and the focus goes to the field.
    void bring();

private:
    ProjectSearch wanted() const;
    QString openPath() const;
    void search();
    void look();
    void showFound();
    void endSearch();
    void stop();
    void go(const QModelIndex &index);
    void goIn(const FoundFile &file, const FoundMatch &match);
    void startReplacing();
    void replaceNext();
    Result<void> replaceInDocument(const FoundFile &file, const std::vector<bool> &chosen);
    void endReplacing();
    void updateControls();
    void readHistory();
    void say(const QString &sentence);

    const Parts m_parts;
    SearchHistory m_history;
    std::unique_ptr<Ui::SearchPage> m_ui;
    SearchResults *m_results;
    QTimer m_clock;

    /// What the listed results were searched for; `m_isReplaceable` while they can still be replaced.
    ProjectSearch m_search;
    std::unique_ptr<SearchRun> m_run;
    /// Stopped runs whose threads haven't ended yet.
    std::vector<std::unique_ptr<SearchRun>> m_ending;
    bool m_isReplaceable = false;

    struct Replacing {
        QString run;
        int next = 0;
        int files = 0;
        int matches = 0;
        int failures = 0;
    };
    std::unique_ptr<Replacing> m_replacing;
};

} // namespace zephira
