// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <vector>

namespace zephira {

/// The files to transfer. The command that requests the transfer fills it in the order of its list, and the transfer
/// form takes it over when it opens.
struct TransferQueue {
    enum class Direction { Download, Upload };

    struct File {
        QString name;
        /// In bytes, as known when the file was queued.
        qint64 size = 0;

        friend bool operator==(const File &, const File &) = default;
    };

    Direction direction = Direction::Download;
    std::vector<File> files;

    /// In bytes.
    qint64 total() const;

    // The texts that the transfer form shows for the queue: the number of its files after a slash, the caption of the
    // start button, which also tells the direction, and the caption of the transferred bytes.
    QString countText() const;
    QString startCaption() const;
    QString movedCaption() const;
};

} // namespace zephira
