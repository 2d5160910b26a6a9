// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/finddialog.h"

#include "ui_finddialog.h"

#include <QLineEdit>
#include <QShortcut>

namespace zephira {

using namespace Qt::StringLiterals;

namespace {

constexpr int longestHistory = 20;

} // namespace

FindDialog::FindDialog(EditorSearch &search, QWidget *owner)
    : QDialog(owner), m_search(search), m_ui(std::make_unique<Ui::FindDialog>())
{
    m_ui->setupUi(this);
    m_ui->cboFind->setCompleter(nullptr);
    m_ui->cboReplace->setCompleter(nullptr);
    connect(m_ui->cboFind, &QComboBox::editTextChanged, this, &FindDialog::updateButtons);
    connect(m_ui->chkInSelection, &QCheckBox::clicked, this, [this](bool on) {
        if (on)
            m_search.takeScope();
    });
    connect(m_ui->cmdFindNext, &QPushButton::clicked, this, &FindDialog::findNext);
    connect(m_ui->cmdReplace, &QPushButton::clicked, this, &FindDialog::replace);
    connect(m_ui->cmdReplaceAll, &QPushButton::clicked, this, &FindDialog::replaceAll);
    connect(m_ui->cmdClose, &QPushButton::clicked, this, &QDialog::reject);
    connect(new QShortcut(Qt::Key_F3, this), &QShortcut::activated, this, &FindDialog::findNext);
}

FindDialog::~FindDialog() = default;

void FindDialog::bring(bool replacing)
{
    m_replacing = replacing;
    setWindowTitle(replacing ? tr("Find and Replace") : tr("Find"));
    for (QWidget *widget : {static_cast<QWidget *>(m_ui->lblReplace), static_cast<QWidget *>(m_ui->cboReplace),
                            static_cast<QWidget *>(m_ui->cmdReplace), static_cast<QWidget *>(m_ui->cmdReplaceAll)})
        widget->setVisible(replacing);
    const bool lines = m_search.selectionSpansLines();
    if (lines)
        m_search.takeScope();
    m_ui->chkInSelection->setChecked(lines);
    if (const QString seed = m_search.seed(); !seed.isEmpty())
        m_ui->cboFind->setEditText(m_ui->chkRegularExpression->isChecked() ? QRegularExpression::escape(seed) : seed);
    updateButtons();
    say({});
    adjustSize();
    show();
    raise();
    activateWindow();
    m_ui->cboFind->setFocus();
    m_ui->cboFind->lineEdit()->selectAll();
}

void FindDialog::showOutcome(const SearchOutcome &outcome)
{
    if (!outcome.error.isEmpty())
        say(outcome.error, true);
    else if (!outcome.found)
        say(outcome.replaced > 0 ? tr("Replaced; there are no more matches.") : tr("Nothing found."),
            outcome.replaced == 0);
    else if (outcome.wrapped)
        say(m_search.options().backward ? tr("Continued from the end.") : tr("Continued from the beginning."));
    else
        say({});
}

void FindDialog::findNext()
{
    if (takeOptions())
        showOutcome(m_search.find());
}

void FindDialog::replace()
{
    if (takeOptions())
        showOutcome(m_search.replace());
}

void FindDialog::replaceAll()
{
    if (!takeOptions())
        return;
    const SearchOutcome outcome = m_search.replaceAll();
    if (outcome.replaced == 0)
        say(tr("Nothing found."), true);
    else
        say(outcome.replaced == 1 ? tr("1 replacement.") : tr("%1 replacements.").arg(outcome.replaced));
}

bool FindDialog::takeOptions()
{
    EditorSearch::Options options;
    options.request.pattern = m_ui->cboFind->currentText();
    options.request.matchCase = m_ui->chkMatchCase->isChecked();
    options.request.wholeWord = m_ui->chkWholeWord->isChecked();
    options.request.regularExpression = m_ui->chkRegularExpression->isChecked();
    options.replacement = m_replacing ? m_ui->cboReplace->currentText() : QString();
    options.inSelection = m_ui->chkInSelection->isChecked();
    options.wrap = m_ui->chkWrap->isChecked();
    options.backward = m_ui->optUp->isChecked();
    if (options.request.pattern.isEmpty())
        return false;
    const Result<void> taken = m_search.setOptions(options);
    if (!taken) {
        say(taken.error().sentence, true);
        return false;
    }
    remember(*m_ui->cboFind);
    if (m_replacing)
        remember(*m_ui->cboReplace);
    return true;
}

/// Moves the box's text to the top of its list.
void FindDialog::remember(QComboBox &box)
{
    const QString text = box.currentText();
    if (text.isEmpty())
        return;
    const QSignalBlocker quiet(box);
    if (const int known = box.findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive); known >= 0)
        box.removeItem(known);
    box.insertItem(0, text);
    while (box.count() > longestHistory)
        box.removeItem(box.count() - 1);
    box.setCurrentIndex(0);
}

void FindDialog::updateButtons()
{
    const bool some = !m_ui->cboFind->currentText().isEmpty();
    m_ui->cmdFindNext->setEnabled(some);
    m_ui->cmdReplace->setEnabled(some);
    m_ui->cmdReplaceAll->setEnabled(some);
}

void FindDialog::say(const QString &sentence, bool isError)
{
    m_ui->lblOutcome->setText(sentence);
    QFont font = this->font();
    font.setBold(isError);
    m_ui->lblOutcome->setFont(font);
}

} // namespace zephira
