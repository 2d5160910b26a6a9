// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/filestore.h"
#include "files/textfile.h"

#include <QHash>
#include <QString>

#include <optional>
#include <span>

namespace zephira {

class RecoveryCopies;

/// Opens and saves the document's text, and sees to it that a save never destroys a version that this program has not
/// seen. It remembers the state of each file that it read or wrote; where the disk holds another state when that file is
/// saved, or the file could not be read when it was opened, the bytes on the disk are kept as a recovery copy first.
/// A path that was never opened or saved here is overwritten as asked.
///
/// A file with several names (hard links), or in a folder that allows no new files, is written in place, once the bytes on
/// the disk are kept: then neither a kill nor a failing disk can take them.
class DocumentFile
{
public:
    /// Both outlive this.
    DocumentFile(FileStore &files, RecoveryCopies &recovery) : m_files(files), m_recovery(recovery) {}

    Result<DecodedText> open(const QString &path);

    /// Replaces the file with the pieces, joined, in the format; UTF-8 goes to the disk without a copy. Fails with
    /// Code::Unencodable before anything is touched; also fails when a version that must be kept can't be.
    Result<void> save(const QString &path, std::span<const QByteArrayView> utf8Pieces, const TextFormat &format);

private:
    bool isUnseen(const QString &path) const;
    Result<QString> keepVersion(const QString &path);

    FileStore &m_files;
    RecoveryCopies &m_recovery;
    /// By cleaned path. Nothing for a file whose reading failed.
    QHash<QString, std::optional<FileSignature>> m_seen;
};

} // namespace zephira
