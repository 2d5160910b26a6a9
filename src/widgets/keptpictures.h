// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "widgets/themeicon.h"

#include <QHash>
#include <QSet>
#include <QTimer>

namespace zephira {

class FileStore;

/// Pictures of icons in a file that outlives the program, which may be deleted at any time. A picture counts as long as the
/// theme that it is from stays as it was on the disk, and this program too.
class KeptPictures final : public IconPictures
{
public:
    /// Reads the file when the first picture is asked for; one that is missing or damaged holds nothing. The store must
    /// outlive this object. `program` is the file whose change makes all pictures old.
    KeptPictures(FileStore &files, QString file, QString program);
    /// Writes what is new.
    ~KeptPictures() override;
    KeptPictures(const KeptPictures &) = delete;
    KeptPictures &operator=(const KeptPictures &) = delete;

    bool knows(const QString &icon) override;
    QPixmap find(const QString &icon, QSize size, qreal scale) override;
    /// The file is written some seconds later, when a start has come to rest.
    void keep(const QString &icon, QSize size, qreal scale, const QPixmap &picture) override;
    /// Writes the file if something is new. A folder that can't be written keeps nothing, and nobody misses it.
    void save();

private:
    struct Picture {
        QString icon;
        QSize size;
        qreal scale = 1;
        QPixmap pixmap;
    };
    /// The pictures of one theme, and the names of the icons that they show.
    struct Shelf {
        QHash<QString, Picture> pictures;
        QSet<QString> icons;

        void add(const Picture &picture);
    };

    /// What is kept of the theme that is in use.
    Shelf &current();
    Shelf readShelf() const;
    QString stamp() const;

    FileStore &m_files;
    const QString m_file;
    const QString m_program;
    QString m_theme;
    /// What the theme and the program are like on the disk.
    QString m_stamp;
    Shelf m_shelf;
    bool m_isRead = false;
    bool m_hasNew = false;
    QTimer m_saving;
};

} // namespace zephira
