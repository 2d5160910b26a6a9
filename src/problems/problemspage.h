// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <functional>
#include <memory>

class QModelIndex;

namespace zephira {

class ProblemList;

namespace Ui {
class ProblemsPage;
}

/// The page of the panel that lists the problems of the document.
class ProblemsPage final : public QWidget
{
    Q_OBJECT

public:
    /// @param list  must outlive the page
    /// @param go    called with the number of the problem that the user chooses
    ProblemsPage(ProblemList &list, std::function<void(std::size_t)> go, QWidget *parent);
    ~ProblemsPage() override;

    void setState(const QString &sentence);
    /// Makes the row the current one.
    void show(const QModelIndex &row);

private:
    std::unique_ptr<Ui::ProblemsPage> m_ui;
};

} // namespace zephira
