// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/finddialog.h"

#include "ui_finddialog.h"

#include <QHideEvent>
#include <QLineEdit>
#include <QLocale>
#include <QShortcut>

namespace zephira {

using namespace Qt::StringLiterals;

namespace {

constexpr int longestHistory = static_cast<int>(SearchHistory::longest);

} // namespace

FindDialog::FindDialog(EditorSearch &search, QWidget *owner)
    : QDialog(owner), m_search(search), m_marks(search), m_ui(std::make_unique<Ui::FindDialog>())
{
    m_ui->setupUi(this);
    m_ui->cboFind->setCompleter(nullptr);
    m_ui->cboReplace->setCompleter(nullptr);
    connect(m_ui->cboFind, &QComboBox::editTextChanged, this, &FindDialog::updateButtons);
    connect(m_ui->cboFind, &QComboBox::editTextChanged, this, &FindDialog::updateMarks);
    connect(m_ui->chkInSelection, &QCheckBox::clicked, this, [this](bool on) {
        if (on)
            m_search.takeScope();
        updateMarks();
    });
    for (QCheckBox *box : {m_ui->chkMatchCase, m_ui->chkWholeWord, m_ui->chkRegularExpression})
        connect(box, &QCheckBox::toggled, this, &FindDialog::updateMarks);
    connect(&m_marks, &SearchMarks::counted, this, &FindDialog::showCount);
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
    readHistory();
    updateButtons();
    say({});
    adjustSize();
    show();
    updateMarks();
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
    options.request = request();
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
    remember(*m_ui->cboFind, SearchHistory::Kind::Searches);
    if (m_replacing)
        remember(*m_ui->cboReplace, SearchHistory::Kind::Replacements);
    return true;
}

SearchRequest FindDialog::request() const
{
    return {m_ui->cboFind->currentText(), m_ui->chkMatchCase->isChecked(), m_ui->chkWholeWord->isChecked(),
            m_ui->chkRegularExpression->isChecked()};
}

/// Marks and counts the matches of what the field has so far.
void FindDialog::updateMarks()
{
    if (!isVisible())
        return;
    m_marks.show(request(), m_ui->chkInSelection->isChecked());
    if (!m_marks.isShown())
        m_ui->lblCount->clear();
}

void FindDialog::showCount(const SearchMarks::Count &count)
{
    const QString number = QLocale(QLocale::English).toString(count.matches);
    QString text = count.matches == 1 ? tr("1 match") : tr("%1 matches").arg(number);
    if (!count.isComplete)
        text += u'\u2026';
    m_ui->lblCount->setText(count.gaveUp ? tr("The expression needs too many steps") : text);
}

void FindDialog::hideEvent(QHideEvent *event)
{
    m_marks.hide();
    m_ui->lblCount->clear();
    QDialog::hideEvent(event);
}

/// Offers what was searched for in this window or another.
void FindDialog::readHistory()
{
    const auto fill = [this](QComboBox &box, SearchHistory::Kind kind) {
        const QStringList words = m_search.words(kind);
        if (words.isEmpty())
            return;
        const QSignalBlocker quiet(box);
        const QString text = box.currentText();
        box.clear();
        box.addItems(words);
        box.setEditText(text);
    };
    fill(*m_ui->cboFind, SearchHistory::Kind::Searches);
    fill(*m_ui->cboReplace, SearchHistory::Kind::Replacements);
}

/// Moves the box's text to the top of its list.
void FindDialog::remember(QComboBox &box, SearchHistory::Kind kind)
{
    const QString text = box.currentText();
    if (text.isEmpty())
        return;
    m_search.remember(kind, text);
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
