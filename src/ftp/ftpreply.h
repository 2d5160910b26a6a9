// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include <optional>

namespace zephira {

/// A server's reply to a command: its three-digit code, and all its lines separated by LF, including the leading
/// digits.
struct FtpReply {
    int code = 0;
    QByteArray text;

    /// The command was started; another reply will report how it ended.
    bool isPreliminary() const { return code / 100 == 1; }
    bool isSuccess() const { return code / 100 == 2; }
    /// The server needs more: a password, or a new name.
    bool isIntermediate() const { return code / 100 == 3; }
};

/// Assembles a reply from the lines of the control connection. A reply of several lines begins with its code and "-"
/// and ends with the line that begins with the same code and a blank; all lines between belong to it.
class FtpReplyReader
{
public:
    /// Takes a line without its line end. Returns false if it can't be part of a reply or the reply has become too
    /// long.
    bool take(QByteArrayView line);
    bool isComplete() const { return m_complete; }
    const FtpReply &reply() const { return m_reply; }

private:
    FtpReply m_reply;
    bool m_complete = false;
};

/// The port in the reply to EPSV: "229 Entering Extended Passive Mode (|||6446|)".
std::optional<quint16> extendedPassivePort(const FtpReply &reply);
/// The port in the reply to PASV: "227 Entering Passive Mode (127,0,0,1,25,46)". The address before it is ignored,
/// because a server could direct the client to any machine with it.
std::optional<quint16> passivePort(const FtpReply &reply);
/// The folder in the reply to PWD, where a quote is doubled: `257 "/a ""b""" is current`.
std::optional<QByteArray> quotedFolder(const FtpReply &reply);
/// True if the reply to FEAT lists a feature, such as "MLST" or "UTF8", in any case and with any parameters.
bool hasFeature(const FtpReply &reply, QByteArrayView feature);

} // namespace zephira
