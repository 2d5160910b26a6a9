// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/net/ftpconversation.h"

#include "core/paths.h"
#include "ftp/net/remotefile.h"
#include "ftp/safenames.h"

namespace zephira {

namespace {

/// Room for hundreds of thousands of entries. If a server sends more, it isn't a listing.
constexpr qsizetype longestListing = 64 << 20;

/// Links beyond this number per folder count as files, so that no more time is spent on them.
constexpr int mostLinks = 64;

} // namespace

FtpConversation::~FtpConversation()
{
    m_data.close();
    m_control.quit();
}

bool FtpConversation::logIn(const QString &server, quint16 port, const QByteArray &user, const QByteArray &password)
{
    if (!isSafeInCommand(user) || !isSafeInCommand(password) || !m_control.connectTo(server, port))
        return false;
    FtpReply reply = m_control.readReply();
    if (reply.isPreliminary())
        reply = m_control.readReply();
    if (!reply.isSuccess())
        return false;
    reply = ask("USER " + user);
    if (reply.code == 331)
        reply = ask("PASS " + password);
    // Every transfer and listing is binary, so the type is set once.
    if (!reply.isSuccess() || !execute("TYPE I"))
        return false;
    m_loginFolder = quotedFolder(ask("PWD")).value_or(QByteArray());
    askForFeatures();
    return m_control.isOpen();
}

void FtpConversation::askForFeatures()
{
    const FtpReply features = ask("FEAT");
    m_knowsMlsd = hasFeature(features, "MLST");
    // Some servers send names in UTF-8 only if the client asks for it.
    if (hasFeature(features, "UTF8"))
        execute("OPTS UTF8 ON");
}

FtpReply FtpConversation::ask(const QByteArray &command)
{
    if (isTransferring())
        return {};
    m_port.settle();
    return m_control.ask(command);
}

bool FtpConversation::execute(const QByteArray &command)
{
    return ask(command).isSuccess();
}

bool FtpConversation::rename(const QByteArray &from, const QByteArray &to)
{
    return isSafeInCommand(to) && ask("RNFR " + from).isIntermediate() && execute("RNTO " + to);
}

std::optional<std::vector<ListedEntry>> FtpConversation::list(const QByteArray &folder, QDate today)
{
    // A folder name after LIST could be taken for options or a pattern, so the folder is entered first.
    if (!execute("CWD " + folder) || !beginListing())
        return {};
    const std::optional<QByteArray> listing = receiveListing();
    if (!listing)
        return {};
    std::vector<ListedEntry> entries = m_knowsMlsd ? readMlsd(*listing) : readList(*listing, today);
    followLinks(withSlash(folder), entries);
    return entries;
}

bool FtpConversation::beginListing()
{
    if (m_knowsMlsd && beginTransfer("MLSD"))
        return true;
    m_knowsMlsd = false;
    return beginTransfer("LIST");
}

std::optional<QByteArray> FtpConversation::receiveListing()
{
    FileReader reader(*this);
    QByteArray listing;
    QByteArray block(FileReader::blockSize, Qt::Uninitialized);
    quint32 count = 0;
    bool ok = true;
    do {
        ok = reader.read(block.data(), FileReader::blockSize, count);
        listing.append(block.constData(), count);
    } while (ok && count > 0 && listing.size() <= longestListing);
    return ok && count == 0 ? std::optional(listing) : std::nullopt;
}

void FtpConversation::followLinks(const QByteArray &path, std::vector<ListedEntry> &entries)
{
    const Deadline deadline(limit());
    int links = 0;
    for (ListedEntry &entry : entries) {
        if (entry.isLink && ++links <= mostLinks && !deadline.hasPassed())
            entry.isFolder = execute("CWD " + path + entry.name);
    }
}

bool FtpConversation::beginTransfer(const QByteArray &command)
{
    if (isTransferring() || !isSafeInCommand(command) || !m_port.prepare())
        return false;
    if (!ask(command).isPreliminary()) {
        m_port.discard();
        return false;
    }
    m_data = m_port.take();
    if (!m_data.isOpen())
        m_control.abandon();
    return m_data.isOpen();
}

bool FtpConversation::send(QByteArrayView bytes)
{
    const Deadline deadline(limit());
    if (m_data.send(bytes, limit()))
        return true;
    if (deadline.hasPassed())
        abandon();
    return false;
}

bool FtpConversation::endReceiving()
{
    if (!isTransferring())
        return false;
    m_data.close();
    return endTransfer(m_control.readReply());
}

bool FtpConversation::endSending()
{
    if (!isTransferring())
        return false;
    m_data.endSending();
    const FtpReply reply = m_control.readReplyBehind(m_data);
    m_data.close();
    return endTransfer(reply);
}

bool FtpConversation::endTransfer(const FtpReply &reply)
{
    if (std::exchange(m_expectsTransfer, false) && reply.isSuccess())
        m_port.askAhead();
    return reply.isSuccess();
}

void FtpConversation::abandon()
{
    m_data.close();
    m_control.abandon();
}

} // namespace zephira
