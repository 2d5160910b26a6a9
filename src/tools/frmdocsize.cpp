// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/frmdocsize.h"

#include "core/editingcontrol.h"
#include "core/errorstyles.h"
#include "core/filestore.h"
#include "tools/documentweight.h"
#include "tools/imagelinks.h"
#include "tools/linklistmodel.h"
#include "ui_frmdocsize.h"

#include <QLayout>
#include <QStyle>

using namespace Qt::StringLiterals;

namespace zephira {

frmDocSize::frmDocSize(const AppContext &context, QWidget *owner)
    : QDialog(owner)
    , m_ui(std::make_unique<Ui::frmDocSize>())
    , m_context(context)
    , m_links(new LinkListModel(
          u"Other Files"_s, QIcon::fromTheme(u"image-x-generic"_s, style()->standardIcon(QStyle::SP_FileIcon)), this))
{
    m_ui->setupUi(this);
    // A window's minimum height doesn't include the extra lines of wrapped notes.
    const int width = layout()->totalMinimumSize().width();
    setMinimumSize(width, layout()->totalMinimumHeightForWidth(width));
    m_ui->lstlinks->setModel(m_links);
    connect(m_ui->Command1, &QPushButton::clicked, this, &frmDocSize::accept);
    endingQuietly([this] { weigh(); });
}

frmDocSize::~frmDocSize() = default;

void frmDocSize::weigh()
{
    QStringList urls;
    LinksFromHTML(urls, m_context.editor.text());
    m_links->setStringList(urls.sliced(1));

    constexpr double kilobyte = 1024;
    const FileSignature copy = m_context.files.signature(m_context.appPath + u"/ldtemp.html"_s);
    if (!copy.exists)
        throw HandlerError{u"File not found"_s};
    m_kilobytes = static_cast<double>(copy.size) / kilobyte;
    Modem14Func();
    Modem28Func();
    Modem56Func();
    ModemLANFunc();
    if (const std::optional<QString> caption = sizeCaption(m_kilobytes))
        m_ui->DocSize->setText(*caption);
}

void frmDocSize::showTime(QLabel *caption, LineSpeed line) const
{
    caption->setText(timeCaption(m_kilobytes, line));
}

void frmDocSize::Modem14Func()
{
    showTime(m_ui->Modem14, modem14);
}

void frmDocSize::Modem28Func()
{
    showTime(m_ui->Modem28, modem28);
}

void frmDocSize::Modem56Func()
{
    showTime(m_ui->Modem56, modem56);
}

void frmDocSize::ModemLANFunc()
{
    showTime(m_ui->ModemLAN, modemLan);
}

} // namespace zephira
