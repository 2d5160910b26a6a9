// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"
#include "core/editorfactory.h"
#include "views/pagefetcher.h"

#include <QDialog>

#include <memory>

namespace zephira {

namespace Ui {
class frmwebdisp;
}

/// Fetches the source of a page on the web and shows it as text. The form waits for the page; if it can't be fetched,
/// the previous text stays.
class frmwebdisp final : public QDialog
{
    Q_OBJECT

public:
    frmwebdisp(const AppContext &context, const ViewerFactory &makeViewer, const PageFetcherLoader &loadFetcher,
               QWidget *owner);
    ~frmwebdisp() override;

private:
    void grabSource();
    void viewPage();
    void copySource();
    void saveAs();
    Result<QString> sourceOf(const QString &address) const;

    const AppContext m_context;
    const std::unique_ptr<Ui::frmwebdisp> m_ui;
    const PageFetcherLoader m_loadFetcher;
    EditorView m_source;
};

} // namespace zephira
