// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"
#include "core/editorfactory.h"
#include "core/quickviewer.h"
#include "core/result.h"

#include <QWidget>

#include <memory>

namespace zephira {

namespace Ui {
class frmqv;
}

/// A window beside the main window that shows a picture or a text. If a file can't be shown, the user is told; the
/// window keeps its content, or closes if it has none yet.
class frmqv : public QWidget, public QuickViewer
{
    Q_OBJECT

public:
    frmqv(const AppContext &context, const ViewerFactory &makeViewer, QWidget *owner);
    ~frmqv() override;

    void showFile(const QString &path) override;
    /// Resizes the window to the picture's width, and its height plus 800 twips.
    void showPicture(const QString &path) override;
    /// Enlarges the window to a readable size; a larger one stays as it is.
    void showText(const QString &path) override;

protected:
    /// The Escape key closes the window.
    void keyPressEvent(QKeyEvent *event) override;

private:
    void addButtons();
    void copySelection();
    void explain();
    void copyAll();
    void present();
    void tellFailure(const Error &error);

    const AppContext &m_context;
    std::unique_ptr<Ui::frmqv> m_ui;
    EditorView m_viewer;
    QSize m_roomForText;
    bool m_hasContent = false;
};

} // namespace zephira
