// SPDX-License-Identifier: GPL-3.0-or-later
#include "problems/problemspage.h"

#include "problems/problemlist.h"
#include "ui_problemspage.h"
#include "widgets/itemchoice.h"

#include <QHeaderView>

namespace zephira {

ProblemsPage::ProblemsPage(ProblemList &list, std::function<void(std::size_t)> go, QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::ProblemsPage>())
{
    m_ui->setupUi(this);
    list.loadPictures();
    setFocusProxy(m_ui->treProblems);
    m_ui->treProblems->setModel(&list);
    const int width = m_ui->treProblems->fontMetrics().horizontalAdvance(u'0') * 9;
    m_ui->treProblems->header()->resizeSection(ProblemList::LineColumn, width);
    onItemChosen(*m_ui->treProblems, this, [&list, go = std::move(go)](const QModelIndex &index) {
        if (const int problem = list.problemOf(index); problem >= 0)
            go(static_cast<std::size_t>(problem));
    });
    const auto showFirst = [this, &list] {
        if (list.rowCount() > 0)
            m_ui->treProblems->setCurrentIndex(list.index(0, 0));
    };
    connect(&list, &QAbstractItemModel::modelReset, this, showFirst);
    showFirst();
}

ProblemsPage::~ProblemsPage() = default;

void ProblemsPage::setState(const QString &sentence)
{
    m_ui->lblState->setText(sentence);
}

void ProblemsPage::show(const QModelIndex &row)
{
    m_ui->treProblems->setCurrentIndex(row);
}

} // namespace zephira
