// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/mappedfile.h"

#include <csignal>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zephira {

std::shared_ptr<const MappedFile> MappedFile::map(int file)
{
    // The lease holder is sent a signal when another process wants to write. The default signal would end the program;
    // this one is ignored, and the writer waits until the lease is released.
    if (::fcntl(file, F_SETSIG, SIGURG) != 0 || ::fcntl(file, F_SETLEASE, F_RDLCK) != 0)
        return nullptr;
    // From here on the size can't change.
    struct stat status = {};
    void *address = MAP_FAILED;
    if (::fstat(file, &status) == 0 && status.st_size > 0)
        address =
            ::mmap(nullptr, static_cast<std::size_t>(status.st_size), PROT_READ, MAP_PRIVATE | MAP_POPULATE, file, 0);
    if (address == MAP_FAILED) {
        ::fcntl(file, F_SETLEASE, F_UNLCK);
        return nullptr;
    }
    return std::shared_ptr<const MappedFile>(new MappedFile(file, address, status.st_size));
}

MappedFile::~MappedFile()
{
    ::munmap(m_address, static_cast<std::size_t>(m_size));
    ::close(m_file); // Also releases the lease.
}

} // namespace zephira
