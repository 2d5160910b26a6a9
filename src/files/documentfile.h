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

/// Opens and saves the document's text, and makes sure that a save never destroys a version that this program has not
/// seen. It remembers the state of each file that it read or wrote. If the file on disk has another state when it is
/// saved, or could not be read when it was opened, its bytes are kept as a recovery copy first. A path that was never
/// opened or saved here is overwritten without a copy.
///
/// A file with several hard links, or in a folder that allows no new files, is written in place after its bytes were
/// kept in a recovery copy, so that neither a kill nor a disk failure can lose them.
class DocumentFile
{
public:
    /// Both must outlive this object.
    DocumentFile(FileStore &files, RecoveryCopies &recovery) : m_files(files), m_recovery(recovery) {}

    Result<DecodedText> open(const QString &path);

    /// Replaces the file with the concatenated pieces, encoded in the given format; UTF-8 is written without a copy.
    /// Fails with Code::Unencodable before anything is changed; also fails if a version that must be kept can't be
    /// copied.
    Result<void> save(const QString &path, std::span<const QByteArrayView> utf8Pieces, const TextFormat &format);

private:
    bool isUnseen(const QString &path) const;
    Result<QString> keepVersion(const QString &path);

    FileStore &m_files;
    RecoveryCopies &m_recovery;
    /// By cleaned path. Nothing for a file that could not be read.
    QHash<QString, std::optional<FileSignature>> m_seen;
};

} // namespace zephira
