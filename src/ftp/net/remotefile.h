// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ftp/net/ftpconversation.h"

namespace zephira {

/// Reads a transfer in blocks of the caller's size, whatever sizes arrive. Destroying the reader ends the transfer.
class FileReader
{
public:
    /// A block size that can always arrive within the time limit.
    static constexpr quint32 blockSize = 1024;

    /// `conversation` has started the transfer, and must outlive the reader.
    explicit FileReader(FtpConversation &conversation);
    Q_DISABLE_COPY_MOVE(FileReader)
    ~FileReader() { close(); }

    /// Fills the block unless the transfer ends first. Returns false after a failure, even if the server reports it
    /// only at the end; `count` is then the number of bytes that arrived before it.
    bool read(char *block, quint32 size, quint32 &count);
    /// Tells the server to stop if the transfer is still running.
    void close();

private:
    enum class State { Running, AtEnd, Failed };

    void takeReceived(char *block, quint32 size, quint32 &count);
    bool receiveMore(Deadline deadline);

    FtpConversation &m_conversation;
    QByteArray m_buffer;
    qsizetype m_begin = 0;
    qsizetype m_end = 0;
    /// In bytes, since the start.
    qint64 m_received = 0;
    State m_state = State::Running;
};

/// Collects small blocks and sends them together. Destroying the writer ends the transfer.
class FileWriter
{
public:
    explicit FileWriter(FtpConversation &conversation);
    Q_DISABLE_COPY_MOVE(FileWriter)
    ~FileWriter() { close(); }

    bool write(const char *block, quint32 size);
    /// Sends the rest and ends the transfer. Returns true if every block was sent and the server confirms the file.
    bool close();

private:
    bool flush();

    FtpConversation &m_conversation;
    QByteArray m_buffer;
    bool m_failed = false;
};

} // namespace zephira
