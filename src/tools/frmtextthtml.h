// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"

#include <QDialog>
#include <QTextEdit>

#include <memory>

class QTextCharFormat;

namespace zephira {

namespace Ui {
class frmtextthtml;
}

struct FontChoice;

/// A rich text box, buttons that format its selection, and the markup that the text is converted to.
class frmtextthtml final : public QDialog
{
    Q_OBJECT

public:
    frmtextthtml(const AppContext &context, QWidget *owner);
    ~frmtextthtml() override;

    /// The markup for the characters from `startIndex` up to, not including, `endIndex`; -1 is the end of the text. A
    /// line end counts as one character.
    Q_INVOKABLE QString RichToHTML(QTextEdit *richControl, int startIndex = 0, int endIndex = -1) const;

private:
    void showDemonstration();
    void chooseFont();
    void format(const QTextCharFormat &format);

    const std::unique_ptr<Ui::frmtextthtml> m_ui;
    const AppContext m_context;
};

} // namespace zephira
