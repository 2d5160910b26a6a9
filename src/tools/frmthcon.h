// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"

#include <QDialog>

#include <memory>

namespace zephira {

namespace Ui {
class frmthcon;
}

struct TextPageLook;

/// Turns a text file into a page.
class frmthcon final : public QDialog
{
    Q_OBJECT

public:
    frmthcon(const AppContext &context, QWidget *owner);
    ~frmthcon() override;

    /// Writes the page in UTF-8, replacing an existing file. If that fails, a message says so and both files stay as
    /// they are.
    Q_INVOKABLE void TextFileToHtml(const QString &inputPath, const QString &outputPath, const QString &title,
                                    const QString &backColor, const QString &textColor);

private:
    bool write(const QString &inputPath, const QString &outputPath, const TextPageLook &look);
    void convert();
    void browseForText();
    void browseForPage();

    const std::unique_ptr<Ui::frmthcon> m_ui;
    const AppContext m_context;
};

} // namespace zephira
