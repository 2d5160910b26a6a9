// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <vector>

namespace zephira {

/// What is to be moved: filled by the command that asks for it, in the order of its list, and taken over by the transfer
/// form when that opens.
struct TransferQueue {
    enum class Direction { Download, Upload };

    struct File {
        QString name;
        /// In bytes, as known when the file was chosen.
        qint64 size = 0;

        friend bool operator==(const File &, const File &) = default;
    };

    Direction direction = Direction::Download;
    std::vector<File> files;

    /// In bytes.
    qint64 total() const;

    // The texts that the transfer form shows for the queue: the number of its files behind a slash, the caption of the
    // start button, which also tells the direction, and the caption of the bytes that were moved.
    QString countText() const;
    QString startCaption() const;
    QString movedCaption() const;
};

} // namespace zephira
