// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/briefmessage.h"

#include <QMessageBox>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace zephira {

void showBriefMessage(const QString &text, int seconds)
{
    QMessageBox box(QMessageBox::Critical, u"Zephira"_s, text, QMessageBox::Ok);
    box.setTextFormat(Qt::PlainText);
    QTimer::singleShot(seconds * 1000, &box, &QMessageBox::accept);
    box.exec();
}

} // namespace zephira
