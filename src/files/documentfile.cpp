// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/documentfile.h"

#include "files/recoverycopies.h"

#include <QCoreApplication>
#include <QDir>

#include <vector>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

QByteArray joined(std::span<const QByteArrayView> pieces)
{
    qsizetype size = 0;
    for (const QByteArrayView piece : pieces)
        size += piece.size();
    QByteArray whole;
    whole.reserve(size);
    for (const QByteArrayView piece : pieces)
        whole.append(piece);
    return whole;
}

} // namespace

Result<DecodedText> DocumentFile::open(const QString &path)
{
    // Taken before reading, so that a change made in between is detected.
    const FileSignature signature = m_files.signature(path);
    Result<FileView> file = m_files.view(path);
    std::optional<FileSignature> &seen = m_seen[QDir::cleanPath(path)];
    if (!file) {
        seen.reset();
        return file.error();
    }
    seen = signature;
    FileView content = std::move(file).value();
    DecodedText text = decodeText(std::move(content.bytes));
    text.owner = std::move(content.owner);
    return text;
}

Result<void> DocumentFile::save(const QString &path, std::span<const QByteArrayView> utf8Pieces,
                                const TextFormat &format)
{
    std::vector<QByteArrayView> pieces;
    QByteArray encoded;
    if (format.encoding == Encoding::Utf8) {
        pieces.push_back(byteOrderMark(format));
        pieces.insert(pieces.end(), utf8Pieces.begin(), utf8Pieces.end());
    } else {
        Result<QByteArray> bytes = encodeText(joined(utf8Pieces), format);
        if (!bytes)
            return bytes.error();
        encoded = std::move(bytes).value();
        pieces.push_back(encoded);
    }
    const bool isInPlace = m_files.mustBeWrittenInPlace(path);
    const bool isUnknown = isUnseen(path);
    QString copy;
    if (isUnknown || isInPlace) {
        Result<QString> kept = keepVersion(path);
        if (!kept)
            return kept.error();
        copy = std::move(kept).value();
    }
    Result<void> written = isInPlace ? m_files.writeInPlace(path, pieces) : m_files.write(path, pieces);
    if (written)
        m_seen[QDir::cleanPath(path)] = m_files.signature(path);
    // A version that was read or written here needs its copy only while it is being overwritten.
    if (written && !isUnknown && !copy.isEmpty())
        static_cast<void>(m_files.remove(copy));
    return written;
}

/// Whether the version on disk is not the one last read or written here.
bool DocumentFile::isUnseen(const QString &path) const
{
    const auto seen = m_seen.constFind(QDir::cleanPath(path));
    if (seen == m_seen.constEnd())
        return false;
    // What can't be looked at may be another version as well. Keeping it shows whether it exists at all.
    return *seen != m_files.signature(path);
}

/// Keeps a copy of the version on disk and returns the copy's path, "" if there is no such version.
Result<QString> DocumentFile::keepVersion(const QString &path)
{
    const auto refused = [&](const Error &error) {
        const QString sentence = isUnseen(path)
            ? QCoreApplication::translate(
                "FileErrors",
                "The file \"%1\" was not saved, because the version on disk, which is not the "
                "one that was opened, could not be backed up.")
            : QCoreApplication::translate("FileErrors",
                                          "The file \"%1\" was not saved, because the version on disk, which would be "
                                          "overwritten, could not be backed up.");
        return Error{error.code, sentence.arg(path) + u' ' + error.sentence};
    };
    Result<QByteArray> bytes = m_files.read(path);
    if (!bytes && bytes.error().code == Error::Code::NotFound)
        return QString();
    if (!bytes)
        return refused(bytes.error());
    Result<QString> copy = m_recovery.keepDisk(path, bytes.value());
    return copy ? copy : refused(copy.error());
}

} // namespace zephira
