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

/// Displays the progress of a run. It must outlive the run.
class TransferDisplay
{
public:
    virtual ~TransferDisplay() = default;

    /// A run begins: the size of the whole queue in bytes, and the maximum of its bar.
    virtual void beginRun(qint64 total, double barMaximum) = 0;
    /// A file begins: its number from 1, the line that names it, and the maximum of its bar.
    virtual void beginFile(int number, const QString &line, double barMaximum) = 0;
    /// A block was moved. Called about a million times per gigabyte, so it must be cheap.
    virtual void moved(const TransferProgress &progress) = 0;
    /// A file has ended, successfully or not.
    virtual void endFile(const TransferProgress &progress) = 0;
    /// A message is about to be shown to the user: everything reported so far must be visible now.
    virtual void showAll() = 0;
};

/// Transfers the files of a queue between the session's local and server folders, in blocks of 1024 bytes and always
/// unchanged, while the caller waits. A download is kept apart until it is complete and then written over the local
/// file from its start; the rest of a longer local file remains.
class TransferEngine
{
public:
    /// The size of a block in bytes. A shorter block ends a download.
    static constexpr quint32 blockSize = 1024;

    enum class Outcome {
        /// The queue was processed to its end, and the user was told.
        Completed,
        /// A file could not be opened or stored, and the user was told; the rest of the queue was skipped.
        Stopped,
    };

    /// Where a run is displayed.
    struct Displays {
        LogDisplay &log;
        PanelDisplay &panels;
        TransferDisplay &progress;
    };

    /// `ticks` returns a time in milliseconds since any origin, and may wrap around. All references must outlive the
    /// engine.
    TransferEngine(FtpClient &client, FileStore &files, Prompts &prompts, const Displays &displays,
                   std::function<quint32()> ticks);
    ~TransferEngine();
    Q_DISABLE_COPY_MOVE(TransferEngine)

    /// Runs the whole queue. It blocks, and shows messages in between.
    Outcome run(const TransferQueue &queue);

    /// The handle of the open server file, or 0.
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
    /// Opens the current file on the server; returns false if the server refuses.
    bool open(const QString &remote, quint32 access);
    void countBlock(qint64 bytes);
    bool close();
    void tellUploadFailure();
    void tell(const QString &text, const QString &title, Question::Icon icon);
    /// Reports why a run can't continue.
    bool refuse(const QString &sentence);

    FtpClient &m_client;
    FileStore &m_files;
    Prompts &m_prompts;
    const Displays m_displays;
    const std::function<quint32()> m_ticks;
    TransferProgress m_progress;
    InternetHandle m_handle = 0;
    quint32 m_startTicks = 0;
    /// The number of the current file, from 1, and the number of files.
    int m_number = 0;
    int m_count = 0;
    /// Data that was received and isn't stored yet.
    QByteArray m_gathered;
};

} // namespace zephira
