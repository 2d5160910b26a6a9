// SPDX-License-Identifier: GPL-3.0-or-later
// What the document and the commands ask of the main window.
#include "app/frmmain.h"

#include "app/statuspanels.h"
#include "app/viewswitch.h"
#include "app/visualtools.h"
#include "commands/commandrouter.h"
#include "commands/menus.h"
#include "commands/palette.h"
#include "core/errorstyles.h"
#include "core/inserttext.h"
#include "core/quickviewer.h"
#include "core/settingsnames.h"
#include "core/shell.h"
#include "desktop/formposition.h"
#include "desktop/modalformopener.h"
#include "document/recoverykeeper.h"
#include "editor/codemax.h"
#include "panes/filepane.h"
#include "panes/selectorlist.h"
#include "panes/sidepane.h"
#include "ui_frmmain.h"
#include "views/picturefile.h"

#include <QAction>
#include <QComboBox>

using namespace Qt::StringLiterals;

namespace zephira {

void frmmain::InsertAtCaret(const QString &text)
{
    m_inserter->InsertAtCaret(text);
}

int frmmain::languageRow() const
{
    return m_languages->currentIndex();
}

QString frmmain::languageText() const
{
    return m_languages->currentText();
}

void frmmain::setLanguageRow(int row)
{
    if (row == m_languages->currentIndex())
        languageChanged(row); // The handler runs at each setting, also of the same row.
    else
        m_languages->setCurrentIndex(row);
}

QString frmmain::projectPath() const
{
    return m_filePane->projectPath();
}

void frmmain::setProjectPath(const QString &path)
{
    m_filePane->setProjectPath(path);
}

void frmmain::setCaption(const QString &caption)
{
    setWindowTitle(caption);
}

void frmmain::setCountPanel(int characters)
{
    m_panels->setText(StatusPanels::Count, QString::number(characters));
}

void frmmain::setPathPanel(const QString &text)
{
    m_panels->setText(StatusPanels::FileName, text);
}

void frmmain::notice(const QString &sentence)
{
    m_panels->notice(sentence);
}

void frmmain::selectCodeTab()
{
    selectView(1);
}

void frmmain::documentSettled()
{
    m_recoveryKeeper->discard();
}

void frmmain::keepUnsavedText()
{
    m_recoveryKeeper->keepForGood();
}

void frmmain::showTemplateChooser()
{
    m_forms->openModal(u"frmselprj"_s);
}

QString frmmain::listedFile() const
{
    return m_filePane->selectedFile();
}

QString frmmain::listedFolder() const
{
    return m_filePane->fileList().path();
}

Result<QSize> frmmain::pictureSize(const QString &path) const
{
    // Read whole, because a picture that is cut short has a size all the same.
    const Result<QPixmap> picture = readPicture(m_services.files, path);
    return picture ? Result<QSize>(picture.value().size()) : picture.error();
}

Result<void> frmmain::showPicture(const QString &path)
{
    const Result<QSize> size = pictureSize(path);
    if (!size)
        return size.error();
    if (QuickViewer *viewer = quickViewer())
        viewer->showPicture(path);
    return {};
}

/// The quick view, made at its first use and kept for the next file.
QuickViewer *frmmain::quickViewer()
{
    const QString name = u"frmqv"_s;
    m_forms->openModeless(name);
    return dynamic_cast<QuickViewer *>(m_forms->openForm(name));
}

void frmmain::newWindow()
{
    const Result<void> started = m_services.shell.start(m_services.executable, {u"/nodialog"_s});
    if (!started)
        tellError(m_services.prompts, started.error());
}

void frmmain::exitNow()
{
    m_recoveryKeeper->discard();
    endProcess();
}

void frmmain::updateProgram()
{
    const Result<void> started = m_services.shell.start(m_services.appPath + u"/update.exe"_s, {});
    if (!started)
        tellError(m_services.prompts, started.error());
    if (!close()) {
        // The process ends in any case; what wasn't saved stays as a recovery copy.
        m_recoveryKeeper->writeNow();
        endProcess();
    }
}

void frmmain::nextView()
{
    m_viewSwitch->selectNext();
}

void frmmain::selectView(int tab)
{
    m_viewSwitch->selectTab(WorkspaceView(tab - 1));
}

QString frmmain::designerBase() const
{
    return m_viewSwitch->designerBase();
}

bool frmmain::designerReady() const
{
    return m_visualTools->designerReady();
}

void frmmain::selectSideTab(int tab)
{
    m_sidePane->click(tab - 1);
}

void frmmain::setSelectorListVisible(bool visible)
{
    if (visible) {
        const int width = m_selectorList->sizeHintForColumn(0) + 40;
        m_selectorList->setGeometry(0, 0, qBound(160, width, m_ui->centralwidget->width()),
                                    qMin(240, m_ui->centralwidget->height()));
        m_selectorList->raise();
    } else if (m_selectorList->hasFocus()) {
        m_rt->setFocus();
    }
    m_selectorList->setVisible(visible);
    if (visible)
        m_selectorList->setFocus();
    m_palette->setSelectorPressed(visible);
}

bool frmmain::isChecked(const QString &name) const
{
    if (name == u"selector"_s)
        return m_palette->isSelectorPressed();
    const QAction *action = m_menus->action(name);
    return action && action->isChecked();
}

void frmmain::setChecked(const QString &name, bool checked)
{
    if (name == u"selector"_s) {
        m_palette->setSelectorPressed(checked);
        return;
    }
    if (QAction *action = m_menus->action(name)) {
        action->setChecked(checked);
    }
}

void frmmain::showReadme()
{
    if (QuickViewer *viewer = quickViewer())
        viewer->showText(m_services.appPath + u"/readme.txt"_s);
}

void frmmain::showFtp()
{
    const QString form = u"frmmainftp"_s;
    m_forms->openModeless(form);
    QWidget *window = m_forms->openForm(form);
    if (window && hasProject(*this))
        window->setProperty("LocalFolder", projectPath());
}

void frmmain::openTagEditor(int)
{
    m_forms->openModal(u"frmTagEdit"_s);
}

void frmmain::checkSpelling()
{
    m_forms->openModal(u"SpellChecker1"_s);
}

/// Ends the process as soon as the commands that run have come to their end.
void frmmain::endProcess()
{
    m_router->abandon();
    m_services.endProcess();
}

/// What is done once the window may close, each step whatever became of the one before.
void frmmain::unload()
{
    ignoringErrors({
        [this] { FormPosition(*this, true, m_services.settings, executableBranch()); },
        [this] { m_forms->closeAll(); },
        [this] { m_document->discardPreview(); },
        [this] {
            // A text that was to be saved and isn't stays as a recovery copy.
            if (m_document->saveFailedAtClose())
                m_recoveryKeeper->writeNow();
            else
                m_recoveryKeeper->discard();
        },
    });
}

} // namespace zephira
