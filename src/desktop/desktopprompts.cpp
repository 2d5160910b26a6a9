// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/desktopprompts.h"

#include "desktop/filedialog.h"
#include "desktop/filefilter.h"
#include "widgets/qtvalues.h"

#include <QAbstractButton>
#include <QApplication>
#include <QColorDialog>
#include <QFileInfo>
#include <QFontDialog>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>

#include <memory>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

const QString programName = u"Zephira"_s;

struct ButtonSet {
    QMessageBox::StandardButtons buttons;
    QMessageBox::StandardButton first;
    QMessageBox::StandardButton escape;
};

/// Indexed by Question::Buttons.
const ButtonSet buttonSets[] = {
    {QMessageBox::Ok, QMessageBox::Ok, QMessageBox::Ok},
    {QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Ok, QMessageBox::Cancel},
    {QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes, QMessageBox::No},
    {QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes, QMessageBox::Cancel},
};

/// Indexed by Question::Icon.
constexpr QMessageBox::Icon icons[] = {QMessageBox::NoIcon, QMessageBox::Information, QMessageBox::Question,
                                       QMessageBox::Warning, QMessageBox::Critical};

Answer answerOf(int button)
{
    switch (button) {
    case QMessageBox::Yes:
        return Answer::Yes;
    case QMessageBox::No:
        return Answer::No;
    case QMessageBox::Ok:
        return Answer::Ok;
    default:
        return Answer::Cancel;
    }
}

QString titleOr(const QString &title, const QString &fallback)
{
    return title.isEmpty() ? fallback : title;
}

/// A dialog is destroyed with its parent, possibly while it is open. `read` is called only with a dialog that was
/// accepted and still exists.
template<typename Dialog, typename Read>
auto answerFrom(std::unique_ptr<Dialog> owned, Read read) -> std::optional<decltype(read(*owned))>
{
    const QPointer<Dialog> dialog = owned.release();
    const bool accepted = dialog->exec() == QDialog::Accepted;
    std::optional<decltype(read(*dialog))> answer;
    if (dialog && accepted)
        answer = read(*dialog);
    delete dialog;
    return answer;
}

std::unique_ptr<FileDialog> fileDialog(QWidget *parent, const QString &title, const QString &folder, bool ofQt)
{
    auto dialog = std::make_unique<FileDialog>(parent, title, ofQt);
    if (!folder.isEmpty() && QDir(folder).exists())
        dialog->setDirectory(folder);
    return dialog;
}

} // namespace

DesktopPrompts::DesktopPrompts(QWidget *owner, Dialogs dialogs) : m_owner(owner), m_dialogs(dialogs) {}

QWidget *DesktopPrompts::parent() const
{
    if (QWidget *modal = QApplication::activeModalWidget())
        return modal;
    QWidget *active = QApplication::activeWindow();
    return active ? active : m_owner.data();
}

Answer DesktopPrompts::ask(const Question &question)
{
    const ButtonSet &row = buttonSets[static_cast<int>(question.buttons)];
    const QPointer<QMessageBox> box =
        new QMessageBox(icons[static_cast<int>(question.icon)], titleOr(question.title, programName), question.text,
                        row.buttons, parent());
    box->setTextFormat(Qt::PlainText);
    box->setDefaultButton(row.first);
    box->setEscapeButton(row.escape);
    // The style uses the same picture for both.
    const QIcon refusal = QIcon::fromTheme(u"window-close"_s);
    if (QAbstractButton *no = box->button(QMessageBox::No); no && !refusal.isNull())
        no->setIcon(refusal);
    box->exec();
    const Answer answer =
        answerOf(box && box->clickedButton() ? box->standardButton(box->clickedButton()) : row.escape);
    delete box;
    return answer;
}

std::optional<QString> DesktopPrompts::input(const InputRequest &request)
{
    auto dialog = std::make_unique<QInputDialog>(parent());
    dialog->setWindowTitle(titleOr(request.title, programName));
    dialog->setInputMode(QInputDialog::TextInput);
    dialog->setLabelText(request.text);
    dialog->setTextValue(request.initial);
    // By default labels interpret text that looks like markup, and the questions here are about markup.
    const QList<QLabel *> labels = dialog->findChildren<QLabel *>();
    for (QLabel *label : labels)
        label->setTextFormat(Qt::PlainText);
    if (auto *line = dialog->findChild<QLineEdit *>())
        line->selectAll();
    return answerFrom(std::move(dialog), [](const QInputDialog &done) { return done.textValue(); });
}

std::optional<QString> DesktopPrompts::file(const FileRequest &request)
{
    const QString fallback = request.saving ? u"Save As"_s : u"Open"_s;
    const QFileInfo current(request.fileName);
    const bool hasFolder = !request.initialFolder.isEmpty() && QFileInfo(request.initialFolder).isDir();
    const QString folder = hasFolder || request.fileName.isEmpty() ? request.initialFolder : current.path();
    auto dialog = fileDialog(parent(), titleOr(request.title, fallback), folder, m_dialogs == Dialogs::OfQt);
    dialog->setAcceptMode(request.saving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog->setFileMode(request.saving ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog->setOption(QFileDialog::DontConfirmOverwrite);
    dialog->setNameFilters(nameFilters(request.filter));
    if (request.saving && !request.fileName.isEmpty())
        dialog->selectFile(current.fileName());
    return answerFrom(std::move(dialog), [&](const FileDialog &done) {
        const QString path = done.selectedFiles().value(0);
        // The document's current name and the name of an existing file are kept, even without a dot.
        const bool isNewName =
            request.saving && QFileInfo(path).fileName() != current.fileName() && !QFileInfo::exists(path);
        return QDir::toNativeSeparators(isNewName ? withSuffixOf(done.selectedNameFilter(), path) : path);
    });
}

std::optional<QString> DesktopPrompts::folder(const QString &title, const QString &initialFolder)
{
    auto dialog = fileDialog(parent(), titleOr(title, u"Choose a folder"_s), initialFolder, m_dialogs == Dialogs::OfQt);
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    return answerFrom(std::move(dialog),
                      [](const FileDialog &done) { return QDir::toNativeSeparators(done.selectedFiles().value(0)); });
}

std::optional<quint32> DesktopPrompts::colour(quint32 initial)
{
    auto dialog = std::make_unique<QColorDialog>(toQColor(initial), parent());
    dialog->setOption(QColorDialog::DontUseNativeDialog, m_dialogs == Dialogs::OfQt);
    return answerFrom(std::move(dialog), [](const QColorDialog &done) { return toColourNumber(done.selectedColor()); });
}

std::optional<FontChoice> DesktopPrompts::font(const FontChoice &initial)
{
    auto dialog = std::make_unique<QFontDialog>(toQFont(initial), parent());
    dialog->setOption(QFontDialog::DontUseNativeDialog, m_dialogs == Dialogs::OfQt);
    return answerFrom(std::move(dialog), [](const QFontDialog &done) { return toFontChoice(done.selectedFont()); });
}

} // namespace zephira
