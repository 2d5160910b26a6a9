// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/frmthcon.h"

#include "core/documenthost.h"
#include "core/errorstyles.h"
#include "core/prompts.h"
#include "tools/textpage.h"
#include "ui_frmthcon.h"

#include <QFileInfo>

#include <limits>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// What the two paths are at first.
const QString noInput = u"input"_s;
const QString noOutput = u"output"_s;

/// The path as it is for the rest of the program, whatever the user typed.
QString fullPath(const QString &path)
{
    return QFileInfo(path).absoluteFilePath();
}

} // namespace

frmthcon::frmthcon(const AppContext &context, QWidget *owner)
    : QDialog(owner), m_ui(std::make_unique<Ui::frmthcon>()), m_context(context)
{
    m_ui->setupUi(this);
    for (QLineEdit *box : {m_ui->Text1, m_ui->Text2, m_ui->Text3, m_ui->bgcolor, m_ui->textcolor})
        box->setMaxLength(std::numeric_limits<int>::max());
    m_ui->Text1->setText(noInput);
    m_ui->Text2->setText(noOutput);
    connect(m_ui->Command1, &QPushButton::clicked, this, &frmthcon::convert);
    connect(m_ui->Command2, &QPushButton::clicked, this, &frmthcon::browseForPage);
    connect(m_ui->Command3, &QPushButton::clicked, this, &frmthcon::browseForText);
}

frmthcon::~frmthcon() = default;

void frmthcon::TextFileToHtml(const QString &inputPath, const QString &outputPath, const QString &title,
                              const QString &backColor, const QString &textColor)
{
    write(fullPath(inputPath), fullPath(outputPath),
          {.title = title, .backColour = backColor, .textColour = textColor});
}

/// Returns whether the page was written.
bool frmthcon::write(const QString &inputPath, const QString &outputPath, const TextPageLook &look)
{
    const Result<void> written = writeTextPage(m_context.files, inputPath, outputPath, look);
    if (!written)
        tellError(m_context.prompts, written.error(), windowTitle());
    return written.ok();
}

void frmthcon::convert()
{
    const QString input = m_ui->Text1->text();
    const QString output = m_ui->Text2->text();
    if (input.isEmpty() || output.isEmpty() || input == noInput || output == noOutput) {
        m_context.prompts.tell(u"Woops, you didnt enter file names..."_s);
        return;
    }
    const QString page = fullPath(output);
    if (!write(
            fullPath(input), page,
            {.title = m_ui->Text3->text(), .backColour = m_ui->bgcolor->text(), .textColour = m_ui->textcolor->text()}))
        return;
    if (m_context.prompts.ask({u"Do you wish to open this file?"_s, {}, Question::Icon::None, Question::Buttons::YesNo})
        == Answer::Yes)
        m_context.document.openFile(page);
}

void frmthcon::browseForPage()
{
    const std::optional<QString> path = m_context.prompts.file({.title = u"Browse to Destination File"_s,
                                                                .filter = u"HTML Files (*.html)|*.html|All Files|*.*"_s,
                                                                .saving = true});
    if (path && !path->isEmpty())
        m_ui->Text2->setText(*path);
}

void frmthcon::browseForText()
{
    const std::optional<QString> path = m_context.prompts.file(
        {.title = u"Browse for Text File"_s, .filter = u"Text Files (*.txt)|*.txt|All Files|*.*"_s});
    if (path && !path->isEmpty())
        m_ui->Text1->setText(*path);
}

} // namespace zephira
