// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"

#include <QDialog>

#include <memory>

class QLabel;

namespace zephira {

namespace Ui {
class frmDocSize;
}

class LinkListModel;
struct LineSpeed;

/// The size of the document, the time to download it over four lines, and the images that it names. The size is that of
/// its temporary copy, ldtemp.html in the program folder; the images are those of the code view's text. If a tag never
/// ends or there is no copy, the captions stay as they were designed.
class frmDocSize final : public QDialog
{
    Q_OBJECT

public:
    frmDocSize(const AppContext &context, QWidget *owner);
    ~frmDocSize() override;

    /// Each shows the time over one line, for the size found at the start.
    Q_INVOKABLE void Modem14Func();
    Q_INVOKABLE void Modem28Func();
    Q_INVOKABLE void Modem56Func();
    Q_INVOKABLE void ModemLANFunc();

private:
    void weigh();
    void showTime(QLabel *caption, LineSpeed line) const;

    const std::unique_ptr<Ui::frmDocSize> m_ui;
    const AppContext m_context;
    LinkListModel *const m_links;
    double m_kilobytes = 0;
};

} // namespace zephira
