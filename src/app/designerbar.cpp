// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/designerbar.h"

#include "app/designercommands.h"

#include <QComboBox>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr const char16_t *fontNames[] = {u"Times New Roman", u"Arial", u"Tahoma", u"Courier", u"Verdana", u"Wingdings"};
constexpr int fontSizes = 7;

QComboBox *addBox(QToolBar *bar, const QString &name, const QString &tip)
{
    auto *box = new QComboBox(bar);
    box->setObjectName(name);
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->setToolTip(tip);
    box->setAccessibleName(tip);
    bar->addWidget(box);
    return box;
}

} // namespace

DesignerBar::DesignerBar(QWidget *parent) : QToolBar(u"Visual designer"_s, parent)
{
    setObjectName(u"Toolbar2"_s);
    m_font = addBox(this, u"FontCombo"_s, u"Font"_s);
    m_size = addBox(this, u"FontSizeCombo"_s, u"Font size"_s);
    for (const DesignerButton &button : designerButtons()) {
        QAction *action = addAction(QStringView(button.key).toString());
        action->setObjectName(QStringView(button.key).toString());
    }
    m_reset = new QPushButton(u"Reset"_s, this);
    m_reset->setObjectName(u"Command1"_s);
    m_reset->setToolTip(u"Reset Document to what it was before you entered Visual Mode"_s);
    addWidget(m_reset);
    hide();
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
    for (QAction *action : actions())
        action->setEnabled(false);
}

} // namespace zephira
