// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/prompts.h"
#include "ftp/internetoperations.h"
#include "ftp/transferprogress.h"
#include "ftp/transferqueue.h"

#include <QString>

#include <functional>

class QFile;

namespace zephira {

struct FtpClient;
class FileStore;
class LogDisplay;
class PanelDisplay;
template<typename T>
class Result;

/// Where a run shows how far it has come. It must stay alive while a run lasts.
class TransferDisplay
{
public:
    virtual ~TransferDisplay() = default;

    /// A run begins: the bytes of the whole queue, and the upper end of its bar.
    virtual void beginRun(qint64 total, double barMaximum) = 0;
    /// A file begins: its number from 1, the line that names it, and the upper end of its bar.
    virtual void beginFile(int number, const QString &line, double barMaximum) = 0;
    /// A block was moved. It comes a million times with a gigabyte, so that it has to be cheap.
    virtual void moved(const TransferProgress &progress) = 0;
    /// A file has ended, well or not.
    virtual void endFile(const TransferProgress &progress) = 0;
    /// The user is about to be asked or told something: all that was told before has to be seen now.
    virtual void showAll() = 0;
};

/// Moves the files of a queue between the session's local and server folders, in blocks of 1024 bytes and always
/// unchanged, while the caller waits. A file that comes down stands apart until it is complete and then is laid over the
/// local one from its start; of a longer local file the rest stays behind it.
class TransferEngine
{
public:
    /// The size of a block in bytes. A shorter one ends a file that comes down.
    static constexpr quint32 blockSize = 1024;

    enum class Outcome {
        /// The queue has come to its end, and the user was told.
        Completed,
        /// A file could not be opened or stored, and the user was told; the rest of the queue was left undone.
        Stopped,
    };

    /// What a run is seen in.
    struct Displays {
        LogDisplay &log;
        PanelDisplay &panels;
        TransferDisplay &progress;
    };

    /// `ticks` gives a time in milliseconds from any beginning, which may wrap around. All references outlive the engine.
    TransferEngine(FtpClient &client, FileStore &files, Prompts &prompts, const Displays &displays,
                   std::function<quint32()> ticks);
    ~TransferEngine();
    Q_DISABLE_COPY_MOVE(TransferEngine)

    /// Runs the whole queue. Nothing waits in between but for the messages.
    Outcome run(const TransferQueue &queue);

    /// What a file is moved through while it is open, else 0.
    InternetHandle handle() const { return m_handle; }

private:
    class Received;
    enum class Sending { Complete, Refused, Unreadable };

    bool download(const TransferQueue::File &file);
    bool upload(const TransferQueue::File &file);
    Sending send(QFile &local);
    void receive(Received &received);
    Result<void> store(const QString &path, Received &received);

    void beginFile(const QString &line, double barMaximum);
    /// Opens the current file on the server; false if that refuses it.
    bool open(const QString &remote, quint32 access);
    void countBlock(qint64 bytes);
    bool close();
    void tellUploadFailure();
    void tell(const QString &text, const QString &title, Question::Icon icon);
    /// Tells why a run can't go on.
    bool refuse(const QString &sentence);

    FtpClient &m_client;
    FileStore &m_files;
    Prompts &m_prompts;
    const Displays m_displays;
    const std::function<quint32()> m_ticks;
    TransferProgress m_progress;
    InternetHandle m_handle = 0;
    quint32 m_startTicks = 0;
    /// Of the current file, from 1, and how many there are.
    int m_number = 0;
    int m_count = 0;
    /// For what has come and isn't stored yet.
    QByteArray m_gathered;
};

} // namespace zephira
