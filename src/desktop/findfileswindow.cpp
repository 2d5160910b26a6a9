// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/findfileswindow.h"

#include <QDesktopServices>
#include <QElapsedTimer>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr int turnLength = 15; // milliseconds
constexpr int mostFound = 10000;

} // namespace

FindFilesWindow::FindFilesWindow(const QString &folder, QWidget *owner)
    : QDialog(owner)
    , m_pattern(new QLineEdit(u"*"_s, this))
    , m_folder(new QLineEdit(folder, this))
    , m_find(new QPushButton(u"&Find"_s, this))
    , m_found(new QListWidget(this))
    , m_state(new QLabel(this))
{
    setObjectName(u"findFiles"_s);
    setWindowTitle(u"Find Files"_s);
    resize(560, 380);
    m_pattern->setObjectName(u"pattern"_s);
    m_folder->setObjectName(u"folder"_s);
    m_find->setObjectName(u"find"_s);
    m_find->setDefault(true);
    m_found->setObjectName(u"found"_s);
    m_found->setUniformItemSizes(true);
    m_found->setAccessibleName(u"Files found"_s);
    m_found->setToolTip(u"Double-click a file to open it"_s);
    m_state->setObjectName(u"state"_s);
    m_state->setTextFormat(Qt::PlainText);

    auto *fields = new QFormLayout;
    fields->addRow(u"&Name:"_s, m_pattern);
    fields->addRow(u"&Look in:"_s, m_folder);
    auto *bottom = new QHBoxLayout;
    bottom->addWidget(m_state, 1);
    bottom->addWidget(m_find);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(fields);
    layout->addWidget(m_found, 1);
    layout->addLayout(bottom);

    connect(m_find, &QPushButton::clicked, this, &FindFilesWindow::toggle);
    connect(&m_turn, &QTimer::timeout, this, &FindFilesWindow::readOn);
    connect(m_found, &QListWidget::itemDoubleClicked, this,
            [](const QListWidgetItem *item) { QDesktopServices::openUrl(QUrl::fromLocalFile(item->text())); });
    m_pattern->selectAll();
}

void FindFilesWindow::toggle()
{
    if (m_entries)
        stop(u"Stopped"_s);
    else
        start();
}

void FindFilesWindow::start()
{
    m_found->clear();
    m_entries = std::make_unique<QDirIterator>(m_folder->text(), QStringList{m_pattern->text()},
                                               QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    m_find->setText(u"&Stop"_s);
    m_state->setText(u"Looking …"_s);
    m_turn.start(0);
}

void FindFilesWindow::stop(const QString &remark)
{
    m_turn.stop();
    m_entries.reset();
    m_find->setText(u"&Find"_s);
    m_state->setText(u"%1: %2 files"_s.arg(remark).arg(m_found->count()));
}

void FindFilesWindow::readOn()
{
    QElapsedTimer turn;
    turn.start();
    while (!turn.hasExpired(turnLength)) {
        if (!m_entries->hasNext()) {
            stop(u"Done"_s);
            return;
        }
        m_found->addItem(m_entries->next());
        if (m_found->count() == mostFound) {
            stop(u"Only the first"_s);
            return;
        }
    }
}

} // namespace zephira
