// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ftp/net/ftpconversation.h"

namespace zephira {

/// Reads what a transfer brings, in blocks of the caller's size, whatever the sizes are in which it arrives. The transfer
/// ends when this goes.
class FileReader
{
public:
    /// A block that the limit on waiting always suffices for.
    static constexpr quint32 blockSize = 1024;

    /// `conversation` has begun the transfer, and must outlive this.
    explicit FileReader(FtpConversation &conversation);
    Q_DISABLE_COPY_MOVE(FileReader)
    ~FileReader() { close(); }

    /// Fills the block, unless the transfer ends before. False after a failure, also one that the server tells at the
    /// end; `count` is then the number of bytes that came before it.
    bool read(char *block, quint32 size, quint32 &count);
    /// Tells the server to stop, if it hasn't.
    void close();

private:
    enum class State { Running, AtEnd, Failed };

    void takeReceived(char *block, quint32 size, quint32 &count);
    bool receiveMore(Deadline deadline);

    FtpConversation &m_conversation;
    QByteArray m_buffer;
    qsizetype m_begin = 0;
    qsizetype m_end = 0;
    /// In bytes, since the beginning.
    qint64 m_received = 0;
    State m_state = State::Running;
};

/// Gathers small blocks, and sends them together. The transfer ends when this goes.
class FileWriter
{
public:
    explicit FileWriter(FtpConversation &conversation);
    Q_DISABLE_COPY_MOVE(FileWriter)
    ~FileWriter() { close(); }

    bool write(const char *block, quint32 size);
    /// Sends the rest and the end. True if every block was sent and the server says that it has the file.
    bool close();

private:
    bool flush();

    FtpConversation &m_conversation;
    QByteArray m_buffer;
    bool m_failed = false;
};

} // namespace zephira
