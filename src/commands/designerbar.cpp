// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/designerbar.h"

#include "commands/icons.h"
#include "views/designerbarstate.h"
#include "views/designercommands.h"
#include "widgets/tipwithkeys.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr const char16_t *fontNames[] = {u"Times New Roman", u"Arial", u"Tahoma", u"Courier", u"Verdana", u"Wingdings"};
constexpr int fontSizes = 7;

/// Shows a text in the box, whether or not its list has it.
void showText(QComboBox &box, const QString &text)
{
    if (box.currentText() == text)
        return;
    box.setCurrentIndex(box.findText(text));
    box.setEditText(text);
}

} // namespace

DesignerBar::DesignerBar(QWidget *parent, Contents contents) : QToolBar(u"Visual designer"_s, parent)
{
    setObjectName(u"Toolbar2"_s);
    setIconSize({22, 22});
    if (contents == Contents::AtOnce)
        build();
    hide();
}

void DesignerBar::build()
{
    m_font = addBox(u"FontCombo"_s, u"Font"_s);
    m_size = addBox(u"FontSizeCombo"_s, u"Font size"_s);
    connect(m_font, &QComboBox::textActivated, this, &DesignerBar::fontChosen);
    connect(m_size, &QComboBox::activated, this, [this](int row) { Q_EMIT fontSizeChosen(row + 1); });
    for (const DesignerButton &button : designerButtons()) {
        QAction *action = addAction(button.tip.toString());
        action->setObjectName(button.key);
        action->setToolTip(tipWithKeys(button.tip, button.keys));
        action->setCheckable(true);
        connect(action, &QAction::triggered, this, [this, &button] { Q_EMIT buttonClicked(button.command); });
    }
    m_reset = new QPushButton(u"Reset"_s, this);
    m_reset->setObjectName(u"Command1"_s);
    m_reset->setToolTip(u"Reset Document to what it was before you entered Visual Mode"_s);
    connect(m_reset, &QPushButton::clicked, this, &DesignerBar::resetClicked);
    addWidget(m_reset);
}

QComboBox *DesignerBar::addBox(const QString &name, const QString &tip)
{
    auto *box = new QComboBox(this);
    box->setObjectName(name);
    // Unlike setEditable(), this leaves the list to be made when it is first opened.
    box->setLineEdit(new QLineEdit(box));
    box->setInsertPolicy(QComboBox::NoInsert);
    // What is typed is taken literally, so nothing may be completed.
    box->setCompleter(nullptr);
    box->setToolTip(tip);
    box->setAccessibleName(tip);
    // The box receives the keys and forwards them to its line edit itself, which therefore never sees them as events.
    box->installEventFilter(this);
    addWidget(box);
    return box;
}

void DesignerBar::fillFonts()
{
    for (const char16_t *name : fontNames)
        m_font->addItem(QStringView(name).toString());
    for (int size = 1; size <= fontSizes; ++size)
        m_size->addItem(QString::number(size));
    m_font->setCurrentIndex(0);
    m_size->setCurrentIndex(0);
}

void DesignerBar::disableAll()
{
    m_font->setEditText({});
    m_size->setEditText({});
    const QList<QAction *> all = actions();
    for (QAction *action : all)
        action->setEnabled(false);
}

void DesignerBar::showState(const DesignerBarState &state)
{
    qsizetype row = 0;
    for (const DesignerButton &button : designerButtons()) {
        QAction *action = findChild<QAction *>(button.key.toString(), Qt::FindDirectChildrenOnly);
        action->setEnabled(state.buttons[row].enabled);
        action->setChecked(state.buttons[row++].pressed);
    }
    showText(*m_font, state.font.text);
    showText(*m_size, state.size.text);
    m_font->setEnabled(state.font.enabled);
    m_size->setEnabled(state.size.enabled);
    m_reset->setEnabled(true);
}

void DesignerBar::showFontSize(const QString &text)
{
    showText(*m_size, text);
}

/// Return accepts the typed text. The box itself would report a choice from its list if the list has the text.
bool DesignerBar::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QToolBar::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter)
        return QToolBar::eventFilter(watched, event);
    if (watched == m_font)
        Q_EMIT fontChosen(m_font->currentText());
    else
        Q_EMIT fontSizeTyped(m_size->currentText());
    return true;
}

/// Icons cost more than the rest of the bar, so they wait until it shows.
void DesignerBar::showEvent(QShowEvent *event)
{
    for (const DesignerButton &button : designerButtons()) {
        QAction *action = findChild<QAction *>(button.key.toString(), Qt::FindDirectChildrenOnly);
        if (action->icon().isNull())
            setCommandIcon(action, button.icon);
    }
    QToolBar::showEvent(event);
}

} // namespace zephira
