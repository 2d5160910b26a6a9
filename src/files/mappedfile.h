// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>

#include <memory>

namespace zephira {

/// A file's bytes straight from the system's cache, without a copy. As long as it lives, whoever wants to write to the
/// file waits: the bytes can neither change nor vanish under the reader. So it should not live long.
class MappedFile
{
public:
    /// Takes over `file`, which was opened for reading only. Nothing, with the file still the caller's, where the system
    /// can't keep writers out: another program has the file open for writing, it isn't the user's own, or it lies on a
    /// file system without leases.
    static std::shared_ptr<const MappedFile> map(int file);

    ~MappedFile();
    MappedFile(const MappedFile &) = delete;
    MappedFile &operator=(const MappedFile &) = delete;

    QByteArrayView bytes() const { return {static_cast<const char *>(m_address), m_size}; }

private:
    MappedFile(int file, void *address, qsizetype size) : m_file(file), m_address(address), m_size(size) {}

    int m_file;
    void *m_address;
    qsizetype m_size;
};

} // namespace zephira
