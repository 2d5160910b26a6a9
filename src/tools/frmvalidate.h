// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"
#include "tools/tidyengine.h"
#include "tools/tidytask.h"

#include <QDialog>
#include <QPointer>
#include <QTimer>

#include <functional>
#include <memory>

namespace zephira {

namespace Ui {
class frmvalidate;
}

class TidyMessageModel;

/// Checks and cleans the last saved copy of the document with Tidy, lists what Tidy says, shows the cleaned text, and
/// can make it the text of the code view, and in visual mode the designer's page as well. The work is done in a thread;
/// the form can be closed meanwhile.
class frmvalidate final : public QDialog
{
    Q_OBJECT
    /// The result of the last clean-up.
    Q_PROPERTY(QString cleanedText READ cleanedText)

public:
    frmvalidate(const AppContext &context, const TidyEngineLoader &loadTidy, QWidget *owner);
    ~frmvalidate() override;

    QString cleanedText() const { return m_cleanedText; }

    void done(int result) override;

private:
    using Continuation = std::function<void()>;

    void cleanUp(Continuation then);
    Result<void> startCleaning(const QString &path);
    void look();
    void finish(const TidyOutcome &outcome);
    void cancel();
    void showOutput();
    void sendChanges();
    void setWorking(bool working);
    void selectPlace(const QModelIndex &row);
    TidyChoices choices() const;

    const AppContext m_context;
    const TidyEngineLoader m_loadTidy;
    const std::unique_ptr<Ui::frmvalidate> m_ui;
    TidyMessageModel *const m_messages;
    QString m_cleanedText;
    TidyTask m_task;
    QTimer m_looking;
    /// What follows when the clean-up is done.
    Continuation m_then;
    /// The control that had the focus before the clean-up.
    QPointer<QWidget> m_focus;
};

} // namespace zephira
