// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/imagewizard.h"

#include "core/designer.h"
#include "core/editingcontrol.h"
#include "core/filelookup.h"
#include "core/filestore.h"
#include "core/pasteitem.h"
#include "ui_imagewizard.h"
#include "wizards/linkmarkup.h"
#include "wizards/longfields.h"

#include <QBuffer>
#include <QImageIOHandler>
#include <QImageReader>

#include <utility>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr QStringView pictureFilter =
    u"All Image Files...|*.jpg;*.jpeg;*.bmp;*.gif;*.png|JPEG Files (*.jpeg,*.jpg)|*.jpg;*.jpeg|GIF Files (*.gif)|*.gif|"
    "Windows BMP Files (*.bmp)|*.bmp|PNG Files (*.png)|*.png";

} // namespace

ImageWizard::ImageWizard(const AppContext &context, QWidget *owner, std::shared_ptr<FileLookup> lookup)
    : QDialog(owner), m_ui(std::make_unique<Ui::ImageWizard>()), m_context(context), m_lookup(std::move(lookup))
{
    m_ui->setupUi(this);
    acceptAnyText(*this);
    // A long name must not widen the form.
    m_ui->lblrel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    connect(m_ui->Command1, &QPushButton::clicked, this, &ImageWizard::browse);
    connect(m_ui->OKButton, &QPushButton::clicked, this, &ImageWizard::insertImage);
    connect(m_ui->CancelButton, &QPushButton::clicked, this, &ImageWizard::reject);
}

ImageWizard::~ImageWizard() = default;

ImageFields ImageWizard::fields() const
{
    return {
        .file = m_ui->Text1->text(),
        .reference = m_ui->lblrel->text(),
        .width = m_ui->txtwidth->text(),
        .height = m_ui->txtheight->text(),
        .alternative = m_ui->Text2->text(),
        .border = m_ui->Text3->text(),
    };
}

void ImageWizard::browse()
{
    const auto file = m_lookup->choose(m_context, u"Select an Image..."_s, pictureFilter.toString());
    if (!file)
        return;
    m_ui->Text1->setText(*file);
    m_ui->lblrel->setText(projectReference(m_context.document, *file));
    measure(*file);
}

void ImageWizard::measure(const QString &file)
{
    Result<QByteArray> content = m_context.files.read(file);
    if (!content)
        return;
    QByteArray bytes = std::move(content).value();
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer);
    // Browsers turn a photo that was taken upright, too.
    reader.setAutoTransform(true);
    // The size comes from the file's head, so that the picture needn't fit into memory.
    QSize size = reader.size();
    if (reader.transformation().testFlag(QImageIOHandler::TransformationRotate90))
        size.transpose();
    m_ui->Sizer->setPixmap(QPixmap::fromImage(reader.read()));
    m_ui->Sizer->adjustSize();
    if (!size.isValid())
        size = m_ui->Sizer->pixmap(Qt::ReturnByValue).size();
    if (size.isEmpty())
        return;
    m_ui->txtheight->setText(QString::number(size.height()));
    m_ui->txtwidth->setText(QString::number(size.width()));
}

void ImageWizard::insertImage()
{
    const ImageFields image = fields();
    const QString markup = imageMarkup(image);
    if (image.usesFullName())
        m_context.editor.setSelText(m_context.editor.selText() + u"\r\n"_s + markup);
    else if (m_context.designer.isShowing())
        pasteBehindSelection(m_context, markup);
    else
        pasteBehindSelection(m_context, u"\r\n"_s + markup);
    accept();
}

} // namespace zephira
