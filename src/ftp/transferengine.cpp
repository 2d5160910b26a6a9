// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/transferengine.h"

#include "core/filestore.h"
#include "ftp/ftpclient.h"
#include "ftp/safenames.h"
#include "ftp/sessiondisplay.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// The bars of a download have room for slightly more bytes than announced.
constexpr double downloadSlack = 1.024;

} // namespace

/// The bytes of a file being downloaded. They are passed on in pieces that still fit the processor's cache.
class TransferEngine::Received
{
public:
    Received(std::unique_ptr<IncomingFile> file, QByteArray &gathered) : m_file(std::move(file)), m_gathered(gathered)
    {
        m_gathered.resize(gatheredSize);
    }

    /// Space for one more block.
    char *next()
    {
        if (m_used + blockSize > gatheredSize)
            handOn();
        return m_gathered.data() + m_used;
    }
    void take(quint32 count)
    {
        m_used += count;
        m_size += count;
    }
    qint64 size() const { return m_size; }

    /// Writes the remaining bytes, then `rest`, and ends the file.
    Result<void> finish(const QByteArray &rest)
    {
        handOn();
        if (!rest.isEmpty())
            m_file->append(rest);
        return m_file->finish();
    }

private:
    /// In bytes; a multiple of the block, and with the buffer of the connection small enough for the processor's memory.
    static constexpr qsizetype gatheredSize = 64 * static_cast<qsizetype>(blockSize);

    void handOn()
    {
        if (m_used > 0)
            m_file->append(QByteArrayView(m_gathered).first(m_used));
        m_used = 0;
    }

    const std::unique_ptr<IncomingFile> m_file;
    QByteArray &m_gathered;
    qsizetype m_used = 0;
    qint64 m_size = 0;
};

TransferEngine::TransferEngine(FtpClient &client, FileStore &files, Prompts &prompts, const Displays &displays,
                               std::function<quint32()> ticks)
    : m_client(client), m_files(files), m_prompts(prompts), m_displays(displays), m_ticks(std::move(ticks))
{}

TransferEngine::~TransferEngine() = default;

TransferEngine::Outcome TransferEngine::run(const TransferQueue &queue)
{
    const bool downloads = queue.direction == TransferQueue::Direction::Download;
    const auto move = downloads ? &TransferEngine::download : &TransferEngine::upload;
    // Once for all files, whose folder may be large.
    if (downloads)
        m_files.removeLeavings(m_client.session.ftpLocalFolder);
    m_progress = {.total = queue.total()};
    m_number = 0;
    m_count = static_cast<int>(queue.files.size());
    m_displays.progress.beginRun(m_progress.total,
                                 static_cast<double>(m_progress.total) * (downloads ? downloadSlack : 1));
    for (const TransferQueue::File &file : queue.files) {
        if (!(this->*move)(file))
            return Outcome::Stopped;
    }
    tell(u"Data transfer completed."_s, {}, Question::Icon::Information);
    return Outcome::Completed;
}

bool TransferEngine::download(const TransferQueue::File &file)
{
    beginFile(u"Downloading File: %1 / %2 bytù."_s.arg(file.name, QString::number(file.size)),
              static_cast<double>(file.size) * downloadSlack);
    // The name came from a server: it must not lead out of the folder.
    if (!isSafeRemoteName(file.name))
        return refuse(u"This name can't be used for a file here: %1"_s.arg(file.name));
    const QString local = m_client.session.ftpLocalFolder + file.name;
    const QString remote = m_client.session.ftpRemoteFolder + file.name;
    m_displays.log.logSoon(LogEntry::DownloadBegun, {remote, local});
    m_displays.panels.setPanel(textPanel, u"Transfering data..., wait."_s);
    if (!open(remote, GENERIC_READ)) {
        tell(u"Can't open file path!"_s, u"Problém s URL"_s, Question::Icon::Exclamation);
        m_displays.log.log(LogEntry::DownloadRefused);
        return false;
    }

    Received received(m_files.receiveCopy(local), m_gathered);
    receive(received);
    const Result<void> stored = store(local, received);
    m_progress.endFile();
    close();
    m_displays.progress.endFile(m_progress);
    if (!stored)
        return refuse(stored.error().sentence);
    m_displays.log.logSoon(LogEntry::Done);
    return true;
}

/// A short block ends the file, whatever its cause.
void TransferEngine::receive(Received &received)
{
    m_progress.beginFile();
    m_startTicks = m_ticks();
    quint32 count = 0;
    do {
        count = 0;
        char *const block = received.next();
        m_client.operations.InternetReadFile(m_handle, block, blockSize, count);
        received.take(count);
        countBlock(count);
    } while (count == blockSize);
}

Result<void> TransferEngine::store(const QString &path, Received &received)
{
    QByteArray rest;
    if (const QFileInfo before(path); before.isFile() && before.size() > received.size()) {
        QFile old(path);
        if (!old.open(QIODevice::ReadOnly) || !old.seek(received.size()))
            return Error{Error::Code::Unreadable, u"Can't open the file %1: %2"_s.arg(path, old.errorString())};
        rest = old.readAll();
    }
    return received.finish(rest);
}

bool TransferEngine::upload(const TransferQueue::File &file)
{
    beginFile(u"Uploading file: %1 / %2 bytes."_s.arg(file.name, QString::number(file.size)),
              static_cast<double>(file.size));
    const QString path = m_client.session.ftpLocalFolder + file.name;
    const QString remote = m_client.session.ftpRemoteFolder + file.name;
    m_displays.log.logSoon(LogEntry::UploadBegun, {path, remote});
    m_displays.panels.setPanel(textPanel, u"uploading data..., wait."_s);
    // The local file is opened first: if it can't be read, the server's file must not be emptied.
    QFile local(path);
    if (!local.open(QIODevice::ReadOnly))
        return refuse(u"Can't open the file %1: %2"_s.arg(path, local.errorString()));
    if (!open(remote, GENERIC_WRITE)) {
        tell(u"Cant create requested file on server"_s, {}, Question::Icon::Exclamation);
        m_displays.log.log(LogEntry::UploadRefused);
        return false;
    }

    const Sending outcome = send(local);
    if (outcome == Sending::Refused)
        tellUploadFailure();
    local.close();
    m_progress.endFile();
    m_displays.progress.endFile(m_progress);
    // The server may notice only now that it can't store the file, for instance on a full disk.
    if (!close() && outcome == Sending::Complete)
        tellUploadFailure();
    if (outcome == Sending::Unreadable)
        return refuse(u"Can't read the file %1 to its end"_s.arg(path));
    m_displays.log.logSoon(LogEntry::Done);
    return true;
}

TransferEngine::Sending TransferEngine::send(QFile &local)
{
    const qint64 length = local.size();
    std::array<char, blockSize> block;
    qint64 sent = 0;
    m_progress.beginFile();
    m_startTicks = m_ticks();
    do {
        const qint64 size = std::min<qint64>(blockSize, length - sent);
        if (local.read(block.data(), size) != size)
            return Sending::Unreadable;
        quint32 count = 0;
        if (!m_client.operations.InternetWriteFile(m_handle, block.data(), static_cast<quint32>(size), count))
            return Sending::Refused;
        sent += size;
        countBlock(size);
    } while (sent < length);
    return Sending::Complete;
}

void TransferEngine::tellUploadFailure()
{
    tell(u"Could Not Download!"_s, {}, Question::Icon::Exclamation);
    m_displays.log.log(LogEntry::UploadFailed);
}

void TransferEngine::beginFile(const QString &line, double barMaximum)
{
    m_displays.progress.beginFile(++m_number, line, barMaximum);
}

bool TransferEngine::open(const QString &remote, quint32 access)
{
    const InternetHandle connection = m_client.session.ftpConnectHandle;
    m_handle = m_client.operations.FtpOpenFileA(connection, remote, access, FTP_TRANSFER_TYPE_BINARY, 0);
    if (m_handle != 0 && m_number < m_count)
        m_client.operations.expectTransfer(connection);
    return m_handle != 0;
}

void TransferEngine::countBlock(qint64 bytes)
{
    // The difference is correct even if the ticks wrapped around meanwhile.
    m_progress.addBlock(bytes, static_cast<qint32>(m_ticks() - m_startTicks));
    m_displays.progress.moved(m_progress);
}

bool TransferEngine::close()
{
    return m_client.operations.InternetCloseHandle(std::exchange(m_handle, 0));
}

void TransferEngine::tell(const QString &text, const QString &title, Question::Icon icon)
{
    m_displays.log.showLog();
    m_displays.progress.showAll();
    m_prompts.tell(text, title, icon);
}

bool TransferEngine::refuse(const QString &sentence)
{
    tell(sentence, {}, Question::Icon::Exclamation);
    m_displays.log.log(LogEntry::LocalFileFailed, {sentence});
    return false;
}

} // namespace zephira
