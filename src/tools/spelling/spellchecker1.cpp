// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/spelling/spellchecker1.h"

#include "core/errorstyles.h"
#include "tools/spelling/customdictionary.h"
#include "tools/spelling/spellcheck.h"
#include "ui_spellchecker1.h"

#include <QCursor>
#include <QGuiApplication>
#include <QSignalBlocker>

#include <limits>

namespace zephira {

namespace {

/// A longer word isn't offered for editing: it is data, and the field would show only a small part of it.
constexpr qsizetype longestEdited = 100;

} // namespace

SpellChecker1::SpellChecker1(const AppContext &context, SpellCheck &check, QWidget *owner)
    : QDialog(owner), m_ui(std::make_unique<Ui::SpellChecker1>()), m_context(context), m_check(check)
{
    m_ui->setupUi(this);
    m_ui->txtChange->setMaxLength(std::numeric_limits<int>::max());
    const auto on = [this](QPushButton *button, const std::function<void()> &give) {
        connect(button, &QPushButton::clicked, this, [this, give] {
            answer([&give]() -> Result<void> {
                give();
                return {};
            });
        });
    };
    on(m_ui->cmdIgnore, [this] { m_check.ignore(); });
    on(m_ui->cmdIgnoreAll, [this] { m_check.ignoreAll(); });
    on(m_ui->cmdChange, [this] { m_check.change(m_ui->txtChange->text()); });
    on(m_ui->cmdChangeAll, [this] { m_check.changeAll(m_ui->txtChange->text()); });
    connect(m_ui->cmdAdd, &QPushButton::clicked, this, [this] { answer([this] { return m_check.add(); }); });
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &SpellChecker1::reject);
    connect(m_ui->txtChange, &QLineEdit::textChanged, this, &SpellChecker1::updateChanges);
    connect(m_ui->lstSuggestions, &QListWidget::currentTextChanged, this, [this](const QString &word) {
        if (!word.isEmpty())
            m_ui->txtChange->setText(word);
    });
    connect(m_ui->lstSuggestions, &QListWidget::itemDoubleClicked, m_ui->cmdChange, &QPushButton::click);
    connect(m_ui->cboDictionary, &QComboBox::activated, this, &SpellChecker1::chooseDictionary);
    listDictionaries();
    showQuestion();
}

SpellChecker1::~SpellChecker1() = default;

void SpellChecker1::listDictionaries()
{
    QComboBox *list = m_ui->cboDictionary;
    for (const Dictionary &dictionary : m_check.lexicon().dictionaries())
        list->addItem(dictionaryTitle(dictionary.name), dictionary.name);
    list->setCurrentIndex(list->findData(m_check.lexicon().dictionary()));
    list->setEnabled(list->count() > 1);
}

void SpellChecker1::chooseDictionary(int row)
{
    QComboBox *list = m_ui->cboDictionary;
    answer([&] { return m_check.choose(list->itemData(row).toString()); });
    list->setCurrentIndex(list->findData(m_check.lexicon().dictionary()));
}

/// Gives an answer and shows the next question, or closes after the last one. An answer that can't be given leaves the
/// question, and what was typed, as they are.
void SpellChecker1::answer(const std::function<Result<void>()> &give)
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const Result<void> given = give();
    if (given && m_check.isAsking())
        showQuestion();
    QGuiApplication::restoreOverrideCursor();
    if (!given)
        tellError(m_context.prompts, given.error(), windowTitle());
    else if (!m_check.isAsking())
        accept();
}

void SpellChecker1::showQuestion()
{
    if (!m_check.isAsking()) {
        updateChanges();
        return;
    }
    showSentence();
    const QString word = m_check.word();
    const QStringList suggestions = m_check.lexicon().suggestions(word);
    {
        const QSignalBlocker quiet(m_ui->lstSuggestions);
        m_ui->lstSuggestions->clear();
        m_ui->lstSuggestions->addItems(suggestions);
        m_ui->lstSuggestions->setCurrentRow(suggestions.isEmpty() ? -1 : 0);
    }
    m_ui->txtChange->setText(suggestions.value(0, word.size() > longestEdited ? QString() : word));
    updateChanges();
    m_ui->txtChange->selectAll();
    m_ui->txtChange->setFocus();
}

void SpellChecker1::showSentence()
{
    const Excerpt sentence = m_check.sentence();
    QTextEdit *box = m_ui->txtSentence;
    box->setPlainText(sentence.text);
    QTextEdit::ExtraSelection marked{QTextCursor(box->document()), {}};
    marked.cursor.setPosition(static_cast<int>(sentence.word.start));
    box->setTextCursor(marked.cursor);
    marked.cursor.setPosition(static_cast<int>(sentence.word.end()), QTextCursor::KeepAnchor);
    marked.format.setBackground(palette().highlight());
    marked.format.setForeground(palette().highlightedText());
    box->setExtraSelections({marked});
    box->ensureCursorVisible();
}

/// Nothing can be answered without a question, a change needs another word, and not every word can be added.
void SpellChecker1::updateChanges()
{
    const bool isAsking = m_check.isAsking();
    const QString replacement = m_ui->txtChange->text();
    const bool isChange = isAsking && !replacement.isEmpty() && replacement != m_check.word();
    m_ui->cmdChange->setEnabled(isChange);
    m_ui->cmdChangeAll->setEnabled(isChange);
    for (QPushButton *button : {m_ui->cmdIgnore, m_ui->cmdIgnoreAll})
        button->setEnabled(isAsking);
    m_ui->cmdAdd->setEnabled(isAsking && isCustomWord(m_check.word()));
}

} // namespace zephira
