// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "document/documentwindow.h"

#include <functional>

class QWidget;

namespace zephira {

class FilePane;
class FileStore;
class ModalFormOpener;
class RecoveryKeeper;
class StatusPanels;
class ViewTabs;

/// The parts of the window that show the document: caption, status bar, tabs, file list and quick view.
class DocumentSurface final : public DocumentWindow
{
public:
    struct Parts {
        QWidget &window;
        StatusPanels &panels;
        FilePane &files;
        FileStore &store;
        ModalFormOpener &forms;
        std::function<void(const QString &path)> fileUsed;
    };

    explicit DocumentSurface(const Parts &parts) : m_parts(parts) {}
    /// Sets the views and the recovery keeper, which depend on the document and so are created later; to be called
    /// before the document is first used.
    void attach(ViewTabs &views, RecoveryKeeper &recovery);

    // DocumentWindow
    void setCaption(const QString &caption) override;
    void setCountPanel(int characters) override;
    void setPathPanel(const QString &text) override;
    void showModified(bool modified) override;
    void notice(const QString &sentence) override;
    void selectCodeTab() override;
    void documentSettled() override;
    void keepUnsavedText() override;
    void showTemplateChooser() override;
    void fileUsed(const QString &path) override;
    QString listedFile() const override;
    QString listedFolder() const override;
    void selectListedFile(const QString &path) override;
    Result<QSize> pictureSize(const QString &path) const override;
    Result<void> showPicture(const QString &path) override;

private:
    const Parts m_parts;
    ViewTabs *m_views = nullptr;
    RecoveryKeeper *m_recovery = nullptr;
};

} // namespace zephira
