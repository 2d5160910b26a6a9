// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"
#include "core/result.h"

#include <QDialog>

#include <functional>
#include <memory>

namespace zephira {

namespace Ui {
class SpellChecker1;
}

class SpellCheck;

/// Asks about one word after another: shows it in its sentence and offers what may have been meant. It closes with the
/// last question; Cancel and Escape leave the remaining ones unanswered.
class SpellChecker1 final : public QDialog
{
    Q_OBJECT

public:
    /// The check must have been started and must outlive the form.
    SpellChecker1(const AppContext &context, SpellCheck &check, QWidget *owner);
    ~SpellChecker1() override;

private:
    void listDictionaries();
    void chooseDictionary(int row);
    void answer(const std::function<Result<void>()> &give);
    void showQuestion();
    void showSentence();
    void updateChanges();

    const std::unique_ptr<Ui::SpellChecker1> m_ui;
    const AppContext m_context;
    SpellCheck &m_check;
};

} // namespace zephira
