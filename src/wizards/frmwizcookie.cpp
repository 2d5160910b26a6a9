// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/frmwizcookie.h"

#include "core/clock.h"
#include "core/pasteitem.h"
#include "ui_frmwizcookie.h"
#include "widgets/themeicon.h"
#include "wizards/longfields.h"
#include "wizards/scriptmarkup.h"

#include <QCalendarWidget>
#include <QMenu>
#include <QWidgetAction>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// The format of the date with which the form opens.
constexpr QStringView dayFormat = u"MM/dd/yyyy";

} // namespace

frmwizcookie::frmwizcookie(const AppContext &context, QWidget *owner)
    : QDialog(owner), m_ui(std::make_unique<Ui::frmwizcookie>()), m_context(context)
{
    m_ui->setupUi(this);
    acceptAnyText(*this);
    addCalendar();
    connect(m_ui->Command1, &QPushButton::clicked, this, &frmwizcookie::insertCookie);
    connect(m_ui->Command2, &QPushButton::clicked, this, &frmwizcookie::reject);
}

frmwizcookie::~frmwizcookie() = default;

void frmwizcookie::addCalendar()
{
    m_ui->calendar->setIcon(themeIcon(u"view-calendar"_s));
    auto *menu = new QMenu(m_ui->calendar);
    auto *entry = new QWidgetAction(menu);
    auto *calendar = new QCalendarWidget(menu);
    entry->setDefaultWidget(calendar);
    menu->addAction(entry);
    m_ui->calendar->setMenu(menu);
    connect(menu, &QMenu::aboutToShow, this, [this, calendar] {
        calendar->setSelectedDate(typedDay());
        calendar->setFocus();
    });
    const auto take = [this, menu](QDate day) {
        m_ui->dtpicker1->setText(day.toString(dayFormat));
        menu->close();
    };
    connect(calendar, &QCalendarWidget::clicked, this, take);
    connect(calendar, &QCalendarWidget::activated, this, take);
}

QDate frmwizcookie::typedDay() const
{
    const QDate day = QDate::fromString(m_ui->dtpicker1->text(), dayFormat);
    return day.isValid() ? day : m_context.clock.now().date();
}

void frmwizcookie::insertCookie()
{
    pasteBehindSelection(m_context,
                         cookieMarkup({
                             .value = m_ui->Text1->text(),
                             .expires = m_ui->dtpicker1->text(),
                             .path = m_ui->Text3->text(),
                         }));
    accept();
}

} // namespace zephira
