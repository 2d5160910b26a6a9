// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/documentsurface.h"

#include "app/quickview.h"
#include "app/statuspanels.h"
#include "commands/commandparts.h"
#include "core/paths.h"
#include "core/quickviewer.h"
#include "desktop/modalformopener.h"
#include "document/recoverykeeper.h"
#include "panes/filepane.h"
#include "views/workspaceviews.h"
#include "widgets/picturefile.h"

#include <QPixmap>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace zephira {

void DocumentSurface::attach(ViewTabs &views, RecoveryKeeper &recovery)
{
    m_views = &views;
    m_recovery = &recovery;
}

void DocumentSurface::setCaption(const QString &caption)
{
    m_parts.window.setWindowTitle(caption);
}

void DocumentSurface::setCountPanel(int characters)
{
    m_parts.panels.setText(StatusPanels::Count, QString::number(characters));
}

void DocumentSurface::setPathPanel(const QString &text)
{
    m_parts.panels.setText(StatusPanels::FileName, text);
}

void DocumentSurface::showModified(bool modified)
{
    m_parts.panels.setUnsaved(modified);
}

void DocumentSurface::notice(const QString &sentence)
{
    m_parts.panels.notice(sentence);
}

void DocumentSurface::selectCodeTab()
{
    m_views->selectTab(WorkspaceView::Code);
}

void DocumentSurface::documentSettled()
{
    m_recovery->discard();
}

void DocumentSurface::keepUnsavedText()
{
    m_recovery->keepForGood();
}

void DocumentSurface::showTemplateChooser()
{
    m_parts.forms.openModal(u"frmselprj"_s);
}

void DocumentSurface::fileUsed(const QString &path)
{
    if (m_parts.fileUsed)
        m_parts.fileUsed(path);
}

QString DocumentSurface::listedFile() const
{
    return m_parts.files.selectedFile();
}

QString DocumentSurface::listedFolder() const
{
    return m_parts.files.fileList().path();
}

void DocumentSurface::selectListedFile(const QString &path)
{
    if (withSlash(m_parts.files.fileList().path()) == folderOf(path))
        m_parts.files.selectFile(fileTitleOf(path));
}

Result<QSize> DocumentSurface::pictureSize(const QString &path) const
{
    // Decoded completely, because a truncated picture also has a size.
    const Result<QPixmap> picture = readPicture(m_parts.store, path);
    return picture ? Result<QSize>(picture.value().size()) : picture.error();
}

Result<void> DocumentSurface::showPicture(const QString &path)
{
    const Result<QSize> size = pictureSize(path);
    if (!size)
        return size.error();
    if (QuickViewer *viewer = quickViewer(m_parts.forms))
        viewer->showPicture(path);
    return {};
}

} // namespace zephira
