// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>

#include <memory>

namespace zephira {

/// A file's bytes mapped from the system's cache, without a copy. During its lifetime writers of the file are blocked,
/// so the bytes can neither change nor vanish. It should therefore be short-lived.
class MappedFile
{
public:
    /// Takes ownership of `file`, a descriptor opened read-only. Returns nullptr and leaves the descriptor to the
    /// caller if writers can't be blocked: another program has the file open for writing, it belongs to another user,
    /// or its file system has no leases.
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
