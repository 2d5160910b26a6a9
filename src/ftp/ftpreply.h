// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include <optional>

namespace zephira {

/// A server's reply to a command: three digits, and all of its lines with LF between them, the first digits included.
struct FtpReply {
    int code = 0;
    QByteArray text;

    /// The command was begun, and another reply will tell how it ended.
    bool isPreliminary() const { return code / 100 == 1; }
    bool isSuccess() const { return code / 100 == 2; }
    /// More is wanted: a password, or a new name.
    bool isIntermediate() const { return code / 100 == 3; }
};

/// Puts a reply together from the lines of the control connection. A reply of several lines begins with its digits and
/// "-" and ends with the line that begins with the same digits and a blank; whatever stands between belongs to it.
class FtpReplyReader
{
public:
    /// Takes a line without its line end. False if it can't be part of a reply, or the reply has become too long.
    bool take(QByteArrayView line);
    bool isComplete() const { return m_complete; }
    const FtpReply &reply() const { return m_reply; }

private:
    FtpReply m_reply;
    bool m_complete = false;
};

/// The port in the reply to EPSV: "229 Entering Extended Passive Mode (|||6446|)".
std::optional<quint16> extendedPassivePort(const FtpReply &reply);
/// The port in the reply to PASV: "227 Entering Passive Mode (127,0,0,1,25,46)". The address beside it is not looked at,
/// because a server could send the client to any machine with it.
std::optional<quint16> passivePort(const FtpReply &reply);
/// The folder in the reply to PWD, in which a quote is doubled: `257 "/a ""b""" is current`.
std::optional<QByteArray> quotedFolder(const FtpReply &reply);
/// True if the reply to FEAT names a feature, such as "MLST" or "UTF8", in whatever case and with whatever behind it.
bool hasFeature(const FtpReply &reply, QByteArrayView feature);

} // namespace zephira
