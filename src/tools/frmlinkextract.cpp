// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/frmlinkextract.h"

#include "core/clipboard.h"
#include "core/errorstyles.h"
#include "core/filestore.h"
#include "core/paths.h"
#include "core/prompts.h"
#include "core/shell.h"
#include "core/twips.h"
#include "core/usersettings.h"
#include "files/textfile.h"
#include "tools/linktargets.h"
#include "ui_frmlinkextract.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QPointer>
#include <QShortcut>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// The section of the user's settings that holds the form's place, in its keys Top and Left.
const QString section = u"Settings"_s;

constexpr int scrollExtent = 800;

/// Pending events are processed this often while a text is searched, in milliseconds.
constexpr qint64 pauseInterval = 50;

} // namespace

frmlinkextract::frmlinkextract(const AppContext &context, QWidget *owner)
    : QDialog(owner), m_ui(std::make_unique<Ui::frmlinkextract>()), m_context(context)
{
    m_ui->setupUi(this);
    connect(m_ui->cmdOnE, &QPushButton::clicked, this, &frmlinkextract::extractFromFile);
    connect(m_ui->cmdSave, &QPushButton::clicked, this, &frmlinkextract::save);
    connect(m_ui->lstURL, &QListView::clicked, this, &frmlinkextract::copy);
    connect(m_ui->lstURL, &QListView::doubleClicked, this, &frmlinkextract::open);
    const auto onKey = [this](const QKeySequence &key, void (frmlinkextract::*handler)(const QModelIndex &)) {
        auto *shortcut = new QShortcut(key, m_ui->lstURL);
        shortcut->setContext(Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, this,
                [this, handler] { (this->*handler)(m_ui->lstURL->currentIndex()); });
    };
    onKey(QKeySequence::Copy, &frmlinkextract::copy);
    onKey(Qt::Key_Return, &frmlinkextract::open);
    onKey(Qt::Key_Enter, &frmlinkextract::open);
    restorePlace();
}

frmlinkextract::~frmlinkextract() = default;

void frmlinkextract::restorePlace()
{
    bool hasTop = false;
    bool hasLeft = false;
    const int top = m_context.settings.GetSetting(UserSetting::WindowTop, section, {}).toInt(&hasTop);
    const int left = m_context.settings.GetSetting(UserSetting::WindowLeft, section, {}).toInt(&hasLeft);
    const QPoint place(toPixels(left), toPixels(top));
    // A saved position on a screen that no longer exists would hide the window.
    if (hasTop && hasLeft && QGuiApplication::screenAt(place))
        move(place);
}

void frmlinkextract::done(int result)
{
    m_context.settings.SaveSetting(UserSetting::WindowTop, section, QString::number(toTwips(y())));
    m_context.settings.SaveSetting(UserSetting::WindowLeft, section, QString::number(toTwips(x())));
    QDialog::done(result);
}

Result<QString> frmlinkextract::read(const QString &path) const
{
    Result<QByteArray> bytes = m_context.files.read(path);
    if (!bytes)
        return bytes.error();
    return QString::fromUtf8(decodeText(std::move(bytes).value()).utf8);
}

bool frmlinkextract::ExtractURL(SearchText *richText, LinkList *list, const QString &filePath, bool clearList,
                                int extent)
{
    if (clearList)
        list->setRows({});
    if (extent != 0)
        list->setHorizontalExtent(extent);
    if (!filePath.trimmed().isEmpty()) {
        Result<QString> text = read(filePath);
        if (!text) {
            tellError(m_context.prompts, text.error(), windowTitle());
            return false;
        }
        richText->setText(std::move(text).value());
    }

    // Otherwise the events processed during a search could start another one. A control that is closed loses the focus.
    const QPointer<QWidget> focus = focusWidget();
    setEnabled(false);
    QElapsedTimer sincePause;
    sincePause.start();
    const QPointer<frmlinkextract> self(this);
    const QString text = richText->text();
    const LinkTargets found = linkTargets(text, [&] {
        if (sincePause.elapsed() < pauseInterval)
            return true;
        QCoreApplication::processEvents();
        sincePause.start();
        return self && self->isVisible();
    });
    if (!self)
        return false;
    setEnabled(true);
    if (focus)
        focus->setFocus();
    if (found.stopped)
        return false;
    list->append(found.targets);
    if (found.truncated) {
        m_context.prompts.tell(
            u"There are too many links to list. Only the first %1 are shown."_s.arg(found.targets.size()),
            windowTitle(), Question::Icon::Exclamation);
    }
    return true;
}

void frmlinkextract::extractFromFile()
{
    FileRequest request;
    request.title = u"Select File"_s;
    request.filter = u"HTML Pages (*.html, *.htm)|*.html;*.htm|All Files|*.*"_s;
    request.fileName = m_ui->txtFile->text();
    const std::optional<QString> path = m_context.prompts.file(request);
    if (path && !path->isEmpty() && ExtractURL(m_ui->rtf, m_ui->lstURL, *path, true, scrollExtent))
        m_ui->txtFile->setText(*path);
}

Result<void> frmlinkextract::write(const QString &path)
{
    return m_context.files.write(path, linksPage(m_ui->lstURL->rows()).toUtf8());
}

bool frmlinkextract::SaveLinksPage(const QString &filePath)
{
    return write(filePath).ok();
}

void frmlinkextract::save()
{
    FileRequest request;
    request.title = u"Save File"_s;
    request.filter = u"HTML File|*.html|HTM File|*.htm|All Files|*.*"_s;
    request.initialFolder = folderOf(m_ui->txtFile->text());
    request.saving = true;
    const std::optional<QString> path = m_context.prompts.file(request);
    if (!path || path->isEmpty())
        return;
    if (const Result<void> written = write(*path); !written)
        tellError(m_context.prompts, written.error(), windowTitle());
}

void frmlinkextract::copy(const QModelIndex &row)
{
    if (row.isValid())
        m_context.clipboard.setText(row.data().toString());
}

void frmlinkextract::open(const QModelIndex &row)
{
    if (!row.isValid())
        return;
    const Result<void> opened = m_context.shell.open(targetToOpen(row.data().toString(), QDir::homePath()));
    if (!opened)
        tellError(m_context.prompts, opened.error(), windowTitle());
}

} // namespace zephira
