// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/picturetip.h"

#include "assist/picturepath.h"
#include "core/appcontext.h"
#include "core/documenthost.h"
#include "core/filestore.h"
#include "editor/codemax.h"
#include "widgets/picturefile.h"

#include <QBuffer>
#include <QFileInfo>
#include <QHelpEvent>
#include <QToolTip>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

using Sci = QsciScintillaBase;

constexpr QSize largest(240, 180);

} // namespace

PictureTip::PictureTip(CodeMax &rt, const AppContext &context) : QObject(&rt), m_rt(rt), m_context(context)
{
    rt.viewport()->installEventFilter(this);
}

QString PictureTip::tipAt(qsizetype position) const
{
    const SciEngine &engine = m_rt.engine();
    const qsizetype line = engine.lineOf(position);
    const qsizetype start = engine.lineStart(line);
    const QByteArrayView source = sourceAt(engine.bytes(start, engine.lineEnd(line)), position - start);
    const QString folder = m_rt.path().isEmpty() ? QString() : QFileInfo(m_rt.path()).path();
    const QString path = pictureFile(QString::fromUtf8(source), folder, m_context.document.projectPath());
    if (path.isEmpty() || !m_context.files.FileExists(path))
        return {};
    const Result<QPixmap> picture = readPicture(m_context.files, path);
    if (!picture)
        return {};
    const QSize size = picture.value().size();
    const bool isLarge = size.width() > largest.width() || size.height() > largest.height();
    const QPixmap shown =
        isLarge ? picture.value().scaled(largest, Qt::KeepAspectRatio, Qt::SmoothTransformation) : picture.value();
    QByteArray data;
    QBuffer buffer(&data);
    buffer.open(QIODevice::WriteOnly);
    shown.save(&buffer, "PNG");
    return u"<img src=\"data:image/png;base64,%1\"><br>%2"_s.arg(
        QString::fromLatin1(data.toBase64()), tr("%1 \u00d7 %2 pixels").arg(size.width()).arg(size.height()));
}

bool PictureTip::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QObject::eventFilter(watched, event);
    const auto *help = static_cast<QHelpEvent *>(event);
    const qsizetype position = m_rt.engine().send(Sci::SCI_POSITIONFROMPOINTCLOSE, help->pos().x(), help->pos().y());
    const QString tip = position < 0 ? QString() : tipAt(position);
    if (tip.isEmpty())
        return QObject::eventFilter(watched, event);
    QToolTip::showText(help->globalPos(), tip, m_rt.viewport());
    return true;
}

} // namespace zephira
