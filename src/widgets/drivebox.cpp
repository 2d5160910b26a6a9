// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/drivebox.h"

#include "widgets/drives.h"
#include "widgets/themeicon.h"

#include <QIcon>
#include <QSignalBlocker>
#include <QStyleOptionComboBox>

using namespace Qt::StringLiterals;

namespace zephira {

DriveBox::DriveBox(QWidget *parent) : QComboBox(parent)
{
    refill();
}

QSize DriveBox::sizeHint() const
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const int height = qMax(fontMetrics().height(), iconSize().height()) + 2;
    return style()->sizeFromContents(QStyle::CT_ComboBox, &option, {0, height}, this);
}

void DriveBox::refill()
{
    const QSignalBlocker quiet(this);
    const QString current = currentText();
    const QIcon picture = themeIcon(u"drive-harddisk"_s);
    clear();
    const QStringList drives = mountedDrives();
    for (const QString &drive : drives)
        addItem(picture, drive);
    setCurrentIndex(qMax(0, findText(current)));
}

void DriveBox::showPopup()
{
    refill();
    QComboBox::showPopup();
}

} // namespace zephira
