// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "widgets/themeicon.h"

#include <QHash>
#include <QSet>
#include <QTimer>

namespace zephira {

class FileStore;

/// A cache of icon pictures in a file, which may be deleted at any time. A picture is valid as long as neither its
/// theme nor this program changes on disk.
class KeptPictures final : public IconPictures
{
public:
    /// The file is read when the first picture is requested; a missing or damaged one counts as empty. The store must
    /// outlive this object. `program` is the executable, whose change invalidates all pictures.
    KeptPictures(FileStore &files, QString file, QString program);
    /// Saves new pictures.
    ~KeptPictures() override;
    KeptPictures(const KeptPictures &) = delete;
    KeptPictures &operator=(const KeptPictures &) = delete;

    bool knows(const QString &icon) override;
    QPixmap find(const QString &icon, QSize size, qreal scale) override;
    /// The file is written some seconds later, after the program has started.
    void keep(const QString &icon, QSize size, qreal scale, const QPixmap &picture) override;
    /// Writes the file if there are new pictures. Failures are ignored.
    void save();

private:
    struct Key {
        QString icon;
        QSize size;
        qreal scale = 1;

        friend bool operator==(const Key &, const Key &) = default;
        friend std::size_t qHash(const Key &key, std::size_t seed)
        {
            return qHashMulti(seed, key.icon, key.size.width(), key.size.height(), key.scale);
        }
    };
    /// The pictures of one theme, and the names of their icons.
    struct Shelf {
        QHash<Key, QPixmap> pictures;
        QSet<QString> icons;

        void add(const Key &key, const QPixmap &picture);
    };

    /// The pictures of the current theme.
    Shelf &current();
    Shelf readShelf() const;
    QString stamp() const;

    FileStore &m_files;
    const QString m_file;
    const QString m_program;
    QString m_theme;
    /// Identifies the state of the theme and the program on disk.
    QString m_stamp;
    Shelf m_shelf;
    bool m_isRead = false;
    bool m_hasNew = false;
    QTimer m_saving;
};

} // namespace zephira
