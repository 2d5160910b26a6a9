// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/keptpictures.h"

#include "core/filestore.h"

#include <QDataStream>
#include <QDir>
#include <QFileInfo>
#include <QIODevice>
#include <QImage>

#include <utility>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr quint32 fileMark = 0x5a504931;
constexpr int mostPictures = 2000;
constexpr int largestSide = 512;
constexpr int millisecondsBeforeSaving = 3000;

/// The pixels of a picture, row by row.
QByteArray pixelsOf(const QPixmap &picture)
{
    const QImage image = picture.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
    return QByteArray(reinterpret_cast<const char *>(image.constBits()), image.sizeInBytes());
}

QPixmap pictureOf(QSize size, const QByteArray &pixels)
{
    if (size.width() <= 0 || size.height() <= 0 || size.width() > largestSide || size.height() > largestSide
        || pixels.size() != static_cast<qsizetype>(4) * size.width() * size.height())
        return {};
    // The image refers to the bytes, so the picture needs a copy of it.
    const QImage image(reinterpret_cast<const uchar *>(pixels.constData()), size.width(), size.height(),
                       QImage::Format_ARGB32_Premultiplied);
    return QPixmap::fromImage(image.copy());
}

QString fileOf(const QString &file, const QString &theme)
{
    return file + u'-' + theme;
}

QString stampOf(const FileSignature &signature)
{
    return u"%1/%2/%3"_s.arg(signature.inode).arg(signature.size).arg(signature.modifiedNs);
}

} // namespace

KeptPictures::KeptPictures(FileStore &files, QString file, QString program)
    : m_files(files), m_file(std::move(file)), m_program(std::move(program))
{
    m_saving.setSingleShot(true);
    m_saving.setInterval(millisecondsBeforeSaving);
    QObject::connect(&m_saving, &QTimer::timeout, &m_saving, [this] { save(); });
}

KeptPictures::~KeptPictures()
{
    save();
}

bool KeptPictures::knows(const QString &icon)
{
    return current().icons.contains(icon);
}

QPixmap KeptPictures::find(const QString &icon, QSize size, qreal scale)
{
    return current().pictures.value({icon, size, scale});
}

void KeptPictures::keep(const QString &icon, QSize size, qreal scale, const QPixmap &picture)
{
    Shelf &shelf = current();
    if (shelf.pictures.size() >= mostPictures || picture.width() > largestSide || picture.height() > largestSide)
        return;
    shelf.add({icon, size, scale}, picture);
    m_hasNew = true;
    m_saving.start();
}

void KeptPictures::Shelf::add(const Key &key, const QPixmap &picture)
{
    pictures.insert(key, picture);
    icons.insert(key.icon);
}

KeptPictures::Shelf &KeptPictures::current()
{
    const QString theme = QIcon::themeName();
    if (!m_isRead || theme != m_theme) {
        save();
        m_isRead = true;
        m_theme = theme;
        m_stamp = stamp();
        m_shelf = readShelf();
    }
    return m_shelf;
}

void KeptPictures::save()
{
    m_saving.stop();
    if (!std::exchange(m_hasNew, false))
        return;
    QByteArray content;
    QDataStream stream(&content, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_6_4);
    stream << fileMark << m_stamp;
    for (const auto &[key, picture] : m_shelf.pictures.asKeyValueRange())
        stream << key.icon << key.size << key.scale << picture.size() << pixelsOf(picture);
    QDir().mkpath(QFileInfo(m_file).path());
    const QByteArrayView piece = content;
    [[maybe_unused]] const Result<void> written = m_files.writeCopy(fileOf(m_file, m_theme), {&piece, 1});
}

/// There is one file per theme. It begins with the stamp for which its pictures are valid.
KeptPictures::Shelf KeptPictures::readShelf() const
{
    const Result<FileView> content = m_files.view(fileOf(m_file, m_theme));
    if (!content)
        return {};
    QDataStream stream(content.value().bytes);
    stream.setVersion(QDataStream::Qt_6_4);
    quint32 mark = 0;
    QString keptStamp;
    stream >> mark >> keptStamp;
    if (mark != fileMark || keptStamp != m_stamp)
        return {};
    Shelf shelf;
    while (!stream.atEnd()) {
        Key key;
        QSize size;
        QByteArray pixels;
        stream >> key.icon >> key.size >> key.scale >> size >> pixels;
        const QPixmap picture = pictureOf(size, pixels);
        if (stream.status() != QDataStream::Ok || picture.isNull())
            return {};
        shelf.add(key, picture);
    }
    return shelf;
}

QString KeptPictures::stamp() const
{
    QString stamp = stampOf(m_files.signature(m_program));
    const QStringList folders = QIcon::themeSearchPaths();
    for (const QString &folder : folders) {
        for (const QString &name : {u"index.theme"_s, u"icon-theme.cache"_s})
            stamp += u' ' + stampOf(m_files.signature(folder + u'/' + m_theme + u'/' + name));
    }
    return stamp;
}

} // namespace zephira
